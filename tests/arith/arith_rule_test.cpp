// Every member against the rule on random images: every scale factor from -20 to 20, odd and
// vector-sized widths, padded steps, guard pages before and after, in place and out of place,
// the _L forms both forwarded and on their long path.
#include <climits>
#include "arith/arith_members.hpp"

namespace arith_test {
namespace {

constexpr int kWidths[] = {1, 2, 3, 5, 7, 8, 15, 16, 17, 31, 33, 47, 48, 49, 65, 70};
constexpr int kHeight = 3;

// Padding of 0, 7 or 14 elements, and starts anywhere an element may start.
template <class T>
kt::Shape shape(int width, Layout l, kt::Rng& rng, kt::Guard guard)
{
    constexpr int e = sizeof(T);
    kt::Shape s;
    s.width = width;
    s.height = kHeight;
    s.channels = elems(l);
    s.padBytes = kt::uniform(rng, 0, 2) * 7 * e;
    s.guard = guard;
    s.offset = guard == kt::Guard::Before ? kt::uniform(rng, 0, 15 / e) * e : 0;
    return s;
}

// One member with one set of parameters, in its four forms, on one pair of random images.
template <class T>
void checkForms(const Member<T>& m, Params p, int width, kt::Rng& rng)
{
    SCOPED_TRACE(m.name + " s " + std::to_string(p.scale) + " mode " + std::to_string(p.mode) + " width " +
                 std::to_string(width));
    kt::Guarded<T> a(shape<T>(width, m.layout, rng, kt::Guard::After));
    kt::Guarded<T> b(shape<T>(width, m.layout, rng, kt::Guard::Before));
    fillOperand(a, rng, divides(m.op));
    fillOperand(b, rng, false);
    const KroStatus want = expectedStatus(m.op, a, m.layout);
    const KroiSize roi{width, kHeight};
    const KroiSizeL roiL{width, kHeight};

    for (int form = 0; form < 4; ++form) {
        const bool inPlace = form & 1, wide = form & 2;
        kt::Guarded<T> d(shape<T>(width, m.layout, rng, form == 1 ? kt::Guard::Before : kt::Guard::After));
        d.fillBytes(0xA5);
        if (inPlace) copyElements(b, d);
        const auto before = d.snapshot();
        KroStatus got;
        if (!inPlace && !wide) got = m.r(a.ptr(), a.step(), b.ptr(), b.step(), d.ptr(), d.step(), roi, p);
        else if (inPlace && !wide) got = m.ir(a.ptr(), a.step(), d.ptr(), d.step(), roi, p);
        else if (!inPlace) got = m.rl(a.ptr(), a.step(), b.ptr(), b.step(), d.ptr(), d.step(), roiL, p);
        else got = m.irl(a.ptr(), a.step(), d.ptr(), d.step(), roiL, p);
        EXPECT_EQ(got, want) << "form " << form;
        EXPECT_TRUE(matchesRule(m, p, a, b, d, before)) << "form " << form;
    }
}

template <class T>
void sweep()
{
    kt::Rng rng = kt::rngForTest();
    int k = 0;
    for (const auto& m : members<T>()) {
        const int modes = m.op == Op::DivRound ? 3 : 1;
        for (int mode = 0; mode < modes; ++mode)
            for (int s = -26; s <= 26; ++s) {
                // -20..20, and beyond: the clamps of the shifts, the last 16u products, and
                // the ends of int, where negating or shifting by the factor would overflow.
                const int scale = s == -26 ? INT_MIN : s == -25 ? INT_MIN + 1 : s == -24 ? -32 : s == -23 ? -33
                                : s == -22 ? -40 : s == -21 ? 31 : s == 21 ? 32 : s == 22 ? 33 : s == 23 ? 63
                                : s == 24 ? 64 : s == 25 ? INT_MAX - 1 : s == 26 ? INT_MAX : s;
                checkForms(m, Params{scale, m.op == Op::DivRound ? mode : 1}, kWidths[k++ % std::size(kWidths)], rng);
                if (testing::Test::HasFailure()) return; // one member's failure is enough to read
            }
    }
}

TEST(ArithRule, Every8uMember) { sweep<Kro8u>(); }
TEST(ArithRule, Every16uMember) { sweep<Kro16u>(); }
TEST(ArithRule, Every16sMember) { sweep<Kro16s>(); }

TEST(ArithRule, Every32fMember)
{
    kt::Rng rng = kt::rngForTest();
    for (const auto& m : members<Kro32f>())
        for (int width : kWidths) checkForms(m, Params{}, width, rng);
}

// The _L forms on their long path: a step of 0x80000000 cannot be narrowed, so each of the
// one-row images goes through the row function; the results and the status are the rule's.
// Height 0 returns 0 there without any other check, a width of 0 reaches the row function's
// length check, and a null pointer its pointer check.
constexpr int64_t kNegativeWidths[] = {
    -(int64_t{1} << 32) + 1, -(int64_t{1} << 32), -(int64_t{1} << 32) - 1, -(int64_t{1} << 31) + 1,
    -(int64_t{1} << 31),     -(int64_t{1} << 31) - 1, INT64_MIN, -3639531663080023339, -1};

template <class T>
void longPath()
{
    kt::Rng rng = kt::rngForTest();
    const int64_t huge = int64_t{1} << 31;
    for (const auto& m : members<T>()) {
        const Params p{std::is_same_v<T, Kro32f> ? 0 : kt::uniform(rng, -3, 3), 1};
        for (int width : {1, 17, 70}) {
            SCOPED_TRACE(m.name + " width " + std::to_string(width));
            kt::Shape s{width, 1, elems(m.layout)};
            kt::Guarded<T> a(s), b(s), d(s), di(s);
            fillOperand(a, rng, divides(m.op));
            fillOperand(b, rng, false);
            d.fillBytes(0x5A);
            di.fillBytes(0x5A);
            copyElements(b, di);
            const auto before = d.snapshot(), beforeI = di.snapshot();
            const KroStatus want = expectedStatus(m.op, a, m.layout);
            EXPECT_EQ(m.rl(a.ptr(), huge, b.ptr(), huge, d.ptr(), huge, KroiSizeL{width, 1}, p), want);
            EXPECT_TRUE(matchesRule(m, p, a, b, d, before));
            EXPECT_EQ(m.irl(a.ptr(), huge, di.ptr(), huge, KroiSizeL{width, 1}, p), want);
            EXPECT_TRUE(matchesRule(m, p, a, b, di, beforeI));
        }
        kt::Guarded<T> a(1, 1, elems(m.layout)), d(1, 1, elems(m.layout));
        d.fillBytes(0x5A);
        const auto before = d.snapshot();
        EXPECT_EQ(m.rl(a.ptr(), huge, a.ptr(), huge, d.ptr(), huge, KroiSizeL{1, 0}, p), kroStsOk) << m.name;
        EXPECT_EQ(m.rl(a.ptr(), huge, a.ptr(), huge, d.ptr(), huge, KroiSizeL{0, 1}, p), kroStsBadSizeErr) << m.name;
        EXPECT_EQ(m.irl(nullptr, huge, d.ptr(), huge, KroiSizeL{1, 1}, p), kroStsNullPointerErr) << m.name;
        // Negative widths whose low 32 bits are positive, zero or negative: each reaches the
        // row function as a length below 1, whatever the steps.
        for (int64_t width : kNegativeWidths)
            for (int64_t step : {int64_t{64}, huge})
                for (int64_t height : {1, 2}) {
                    EXPECT_EQ(m.rl(a.ptr(), step, a.ptr(), step, d.ptr(), step, KroiSizeL{width, height}, p),
                              kroStsBadSizeErr) << m.name << " width " << width;
                    EXPECT_EQ(m.irl(a.ptr(), step, d.ptr(), step, KroiSizeL{width, height}, p), kroStsBadSizeErr)
                        << m.name << " width " << width;
                }
        EXPECT_TRUE(d.unchangedSince(before)) << m.name;
    }
}

TEST(ArithLong, RowPieces8u) { longPath<Kro8u>(); }
TEST(ArithLong, RowPieces16u) { longPath<Kro16u>(); }
TEST(ArithLong, RowPieces16s) { longPath<Kro16s>(); }
TEST(ArithLong, RowPieces32f) { longPath<Kro32f>(); }

}  // namespace
}  // namespace arith_test
