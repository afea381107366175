// The frame's internal helpers, compiled from their headers: rounding and saturation, the
// rounding-control scope, the _L driver and the argument checks.
#include <emmintrin.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

#include "frame/check.hpp"
#include "frame/fpround.hpp"
#include "frame/longform.hpp"
#include "frame/round.hpp"
#include "frame/rows.hpp"
#include "support/compare.hpp"
#include "support/random.hpp"
#include "support/reference.hpp"

namespace {

namespace ref = kt::ref;

// Values that probe every rounding boundary: small ones exhaustively, powers of two and their
// neighbours, the ends of the range, and random ones.
std::vector<int64_t> probeValues(kt::Rng& rng)
{
    std::vector<int64_t> v;
    for (int64_t i = -1100; i <= 1100; ++i) v.push_back(i);
    for (int k = 0; k < 63; ++k)
        for (int64_t d : {-1, 0, 1}) {
            v.push_back((int64_t{1} << k) + d);
            v.push_back(-(int64_t{1} << k) + d);
            v.push_back((int64_t{3} << k >> 1) + d); // halfway between powers of two
        }
    v.insert(v.end(), {INT64_MIN, INT64_MIN + 1, INT64_MAX, INT64_MAX - 1});
    for (int i = 0; i < 3000; ++i) v.push_back(kt::randomValue<int64_t>(rng));
    return v;
}

template <class T>
void expectScaleSaturate(const std::vector<int64_t>& values)
{
    for (int s = -70; s <= 70; ++s)
        for (int64_t v : values) {
            const T want = ref::scaleSaturate<T>(v, s);
            const T got = tier::scaleSaturate<T>(v, s);
            if (got != want) {
                ADD_FAILURE() << "scaleSaturate<" << sizeof(T) * 8 << "-bit>(" << v << ", " << s
                              << ") = " << int64_t(got) << ", expected " << int64_t(want);
                return;
            }
        }
}

}  // namespace

TEST(Round, IntegerScalingMatchesExactReference)
{
    auto rng = kt::rngForTest();
    const std::vector<int64_t> values = probeValues(rng);
    for (int s = -70; s <= 70; ++s)
        for (int64_t v : values) {
            const int64_t want = ref::saturate<int64_t>(ref::scaleRoundEven(v, s));
            ASSERT_EQ(tier::scaleRoundEven(v, s), want) << v << " * 2^" << -s;
            if (s >= 0) {
                ASSERT_EQ(tier::shiftRoundEven(v, s), want) << v << " >> " << s;
            }
        }
    expectScaleSaturate<uint8_t>(values);
    expectScaleSaturate<int8_t>(values);
    expectScaleSaturate<uint16_t>(values);
    expectScaleSaturate<int16_t>(values);
    expectScaleSaturate<int32_t>(values);
    expectScaleSaturate<uint32_t>(values);
}

TEST(Round, Saturate)
{
    for (int64_t v : {INT64_MIN, int64_t{INT32_MIN} - 1, int64_t{-129}, int64_t{-1}, int64_t{0}, int64_t{255},
                      int64_t{256}, int64_t{65536}, int64_t{UINT32_MAX} + 1, INT64_MAX}) {
        EXPECT_EQ(tier::saturate<uint8_t>(v), ref::saturate<uint8_t>(v)) << v;
        EXPECT_EQ(tier::saturate<int8_t>(v), ref::saturate<int8_t>(v)) << v;
        EXPECT_EQ(tier::saturate<uint16_t>(v), ref::saturate<uint16_t>(v)) << v;
        EXPECT_EQ(tier::saturate<int16_t>(v), ref::saturate<int16_t>(v)) << v;
        EXPECT_EQ(tier::saturate<int32_t>(v), ref::saturate<int32_t>(v)) << v;
        EXPECT_EQ(tier::saturate<uint32_t>(v), ref::saturate<uint32_t>(v)) << v;
    }
}

TEST(Round, FloatRoundingMatchesReference)
{
    // The sign of a zero result is not compared: these feed conversions to integers.
    auto rng = kt::rngForTest();
    constexpr double inf = std::numeric_limits<double>::infinity();
    std::vector<double> xs = {0.5, -0.5, 1.5, -1.5, 2.5, -2.5, 0.0, -0.0, 0.49999999999999994,
                              -0.49999999999999994, 4503599627370495.5, -4503599627370495.5,
                              4503599627370497.0, 9007199254740993.0, 1e300, -1e300, inf, -inf,
                              std::numeric_limits<double>::denorm_min(), std::numeric_limits<double>::quiet_NaN()};
    for (int i = 0; i < 20000; ++i) {
        xs.push_back(std::uniform_real_distribution<double>(-1e6, 1e6)(rng));
        xs.push_back(std::ldexp(double(kt::uniform<int64_t>(rng, -(1 << 20), 1 << 20)), -1)); // halves
    }
    for (double x : xs) {
        EXPECT_TRUE(kt::sameValue(tier::roundHalfEven(x), ref::roundHalfEven(x), true)) << x;
        EXPECT_TRUE(kt::sameValue(tier::roundHalfAway(x), ref::roundHalfAway(x), true)) << x;
        EXPECT_TRUE(kt::sameValue(tier::roundTowardZero(x), ref::roundTowardZero(x), true)) << x;
    }
    EXPECT_EQ(tier::saturateIntegral<uint8_t>(std::nan("")), 0);
    EXPECT_EQ(tier::saturateIntegral<int16_t>(-inf), INT16_MIN);
    EXPECT_EQ(tier::saturateIntegral<int32_t>(inf), INT32_MAX);
    EXPECT_EQ(tier::saturateIntegral<uint32_t>(-1.0), 0u);
    EXPECT_EQ(tier::saturateIntegral<int8_t>(-128.0), -128);
    EXPECT_EQ(tier::saturateIntegral<uint16_t>(65536.0), 65535);
}

TEST(Round, ScopeSetsControlAndRestoresCallersMxcsr)
{
    const unsigned original = _mm_getcsr();
    // A caller's MXCSR with unusual contents: rounding up, all flags raised, flush-to-zero and
    // denormals-are-zero on, all exceptions masked.
    const unsigned caller = 0x1F80u | 0x3Fu | 0x4000u | 0x8040u;
    struct Case { int mode; unsigned control; };
    for (const Case c : {Case{0, 0x6000u}, Case{1, 0x0000u}, Case{2, 0x0000u}, Case{3, 0x0000u},
                         Case{-1, 0x0000u}, Case{99, 0x0000u}}) {
        _mm_setcsr(caller);
        unsigned inside;
        volatile double a = 1.0, b = 3.0;
        {
            tier::RoundingScope scope(tier::RoundingScope::forMode(c.mode));
            inside = _mm_getcsr();
            _mm_setcsr(inside & ~0x3Fu); // the kernel's work changes the flags
            b = a / b;
        }
        const unsigned after = _mm_getcsr();
        _mm_setcsr(original);
        EXPECT_EQ(inside & 0x6000u, c.control) << "mode " << c.mode;
        EXPECT_EQ(inside & ~0x6000u, caller & ~0x6000u) << "mode " << c.mode;
        EXPECT_EQ(after, caller) << "mode " << c.mode;
    }
    // The conversion instruction follows the control while the scope lives.
    {
        tier::RoundingScope zero(tier::RoundingScope::forMode(0));
        EXPECT_EQ(_mm_cvtsd_si32(_mm_set_sd(-2.7)), -2);
    }
    {
        tier::RoundingScope near(tier::RoundingScope::forMode(1));
        EXPECT_EQ(_mm_cvtsd_si32(_mm_set_sd(2.5)), 2);
        EXPECT_EQ(_mm_cvtsd_si32(_mm_set_sd(3.5)), 4);
    }
    EXPECT_EQ(_mm_getcsr(), original);
}

// ---- the _L driver ----------------------------------------------------------------------------
namespace {

using Rule = tier::longform::ArithRule;
constexpr int64_t kPiece = 0x3FFFFFFF;

struct Piece { int64_t y, x; int len; };

// Records what run() does with fake narrow and piece functions.
struct Trace {
    int narrowCalls = 0;
    std::vector<int> steps32;
    KroiSize roi32{};
    std::vector<Piece> pieces;
};

constexpr KroStatus kNarrowStatus = 77;

template <std::size_t N, class PieceStatus>
KroStatus runTraced(const int64_t (&steps)[N], KroiSizeL roi, Trace& t, PieceStatus status)
{
    return tier::longform::run<Rule>(
        steps, roi,
        [&](const int* s32, KroiSize r) {
            ++t.narrowCalls;
            t.steps32.assign(s32, s32 + N);
            t.roi32 = r;
            return kNarrowStatus;
        },
        [&](int64_t y, int64_t x, int len) {
            t.pieces.push_back({y, x, len});
            return status(t.pieces.size(), len);
        });
}

// A row function that, like the real ones, reports a length below 1.
KroStatus rowStatus(std::size_t, int len) { return tier::check::length(len); }

}  // namespace

TEST(LongForm, ForwardsWhileStepsAndAreaFit)
{
    struct Case { int64_t s0, s1; KroiSizeL roi; bool forwards; };
    const Case cases[] = {
        {0x7FFFFFFE, 1, {3, 2}, true},   {-0x7FFFFFFE, 0, {3, 2}, true},
        {0x7FFFFFFF, 1, {3, 2}, false},  {1, -0x7FFFFFFF, {3, 2}, false},
        {INT64_MIN, 1, {3, 2}, false},   {0x80000000, 1, {3, 2}, false},
        {64, 64, {0x7FFFFFFE, 1}, true}, {64, 64, {2, 0x3FFFFFFF}, true},
        {64, 64, {0x7FFFFFFF, 1}, false}, {64, 64, {-5, 3}, true},
        {64, 64, {0, 0}, true},          {64, 64, {-0x7FFFFFFF, 1}, false},
        {64, 64, {int64_t{1} << 32, int64_t{1} << 32}, false}, // width x height overflows 64 bits
        {64, 64, {INT64_MIN, -1}, false},
    };
    for (const Case& c : cases) {
        Trace t;
        const int64_t steps[2] = {c.s0, c.s1};
        // Piece calls end at once with an error, so the long path costs nothing here.
        const KroStatus st = runTraced(steps, c.roi, t, [](std::size_t, int) { return KroStatus(-99); });
        const auto where = testing::Message() << "steps " << c.s0 << ", " << c.s1 << ", roi " << c.roi.width
                                              << " x " << c.roi.height;
        if (c.forwards) {
            EXPECT_EQ(st, kNarrowStatus) << where;
            EXPECT_EQ(t.narrowCalls, 1) << where;
            EXPECT_EQ(t.steps32, (std::vector<int>{int(c.s0), int(c.s1)})) << where;
            EXPECT_EQ(t.roi32.width, c.roi.width) << where;
            EXPECT_EQ(t.roi32.height, c.roi.height) << where;
            EXPECT_TRUE(t.pieces.empty()) << where;
        } else {
            EXPECT_EQ(t.narrowCalls, 0) << where;
            EXPECT_EQ(st, c.roi.height < 1 ? 0 : -99) << where;
            EXPECT_EQ(t.pieces.size(), c.roi.height < 1 ? 0u : 1u) << where;
        }
    }
}

TEST(LongForm, LowHeightOnLongPathCallsNothing)
{
    for (int64_t h : {int64_t{0}, int64_t{-1}, INT64_MIN}) {
        Trace t;
        const int64_t steps[1] = {0x80000000};
        EXPECT_EQ(runTraced(steps, {5, h}, t, rowStatus), 0) << h;
        EXPECT_EQ(t.narrowCalls, 0);
        EXPECT_TRUE(t.pieces.empty());
    }
}

TEST(LongForm, PiecesCoverEveryRowExactly)
{
    auto rng = kt::rngForTest();
    std::vector<int64_t> widths = {1, kPiece - 1, kPiece, kPiece + 1, 2 * kPiece, 2 * kPiece + 5, 7 * kPiece + 3};
    for (int i = 0; i < 20; ++i) widths.push_back(kt::uniform<int64_t>(rng, 1, 10 * kPiece));
    for (int64_t w : widths) {
        Trace t;
        const int64_t steps[3] = {64, 0x80000000, 64}; // one step too large: the long path
        const int64_t h = 3;
        ASSERT_EQ(runTraced(steps, {w, h}, t, rowStatus), 0) << w;
        ASSERT_EQ(t.narrowCalls, 0);
        std::size_t i = 0;
        for (int64_t y = 0; y < h; ++y) {
            int64_t x = 0;
            for (; i < t.pieces.size() && t.pieces[i].y == y; ++i) {
                EXPECT_EQ(t.pieces[i].x, x) << "width " << w << " row " << y;
                EXPECT_GE(t.pieces[i].len, 1);
                EXPECT_LE(t.pieces[i].len, kPiece);
                x += t.pieces[i].len;
            }
            EXPECT_EQ(x, w) << "row " << y << " covered up to " << x;
        }
        EXPECT_EQ(i, t.pieces.size()) << "pieces out of row order";
    }
    // A large but ordinary image takes the long path because its area does not fit: all rows.
    Trace t;
    const int64_t steps[1] = {0x10000};
    ASSERT_EQ(runTraced(steps, {0x10000, 0x8000}, t, rowStatus), 0);
    ASSERT_EQ(t.pieces.size(), 0x8000u);
    for (std::size_t y = 0; y < t.pieces.size(); ++y) ASSERT_EQ(t.pieces[y].y, int64_t(y));
}

TEST(LongForm, WidthBelowOneReachesRowFunctionOnce)
{
    for (int64_t w : {int64_t{0}, int64_t{-1}, -(int64_t{1} << 40)}) {
        Trace t;
        const int64_t steps[1] = {INT64_MIN};
        EXPECT_EQ(runTraced(steps, {w, 4}, t, rowStatus), kroStsBadSizeErr) << w;
        EXPECT_EQ(t.pieces.size(), 1u) << w;
    }
}

TEST(LongForm, StatusIsFirstErrorElseLastPiece)
{
    const int64_t steps[1] = {0x80000000};
    const KroiSizeL roi = {2 * kPiece + 1, 4}; // 3 pieces a row, 12 in all
    {
        Trace t; // error in the fifth piece ends the call there
        EXPECT_EQ(runTraced(steps, roi, t, [](std::size_t n, int) { return KroStatus(n == 5 ? -8 : 0); }), -8);
        EXPECT_EQ(t.pieces.size(), 5u);
    }
    {
        Trace t; // a warning in the middle is overtaken by the last piece's success
        EXPECT_EQ(runTraced(steps, roi, t, [](std::size_t n, int) { return KroStatus(n == 4 ? 2 : 0); }), 0);
        EXPECT_EQ(t.pieces.size(), 12u);
    }
    {
        Trace t; // the last piece's warning is returned
        EXPECT_EQ(runTraced(steps, roi, t, [](std::size_t n, int) { return KroStatus(n == 12 ? 7 : 0); }), 7);
    }
}

TEST(Check, Codes)
{
    int a = 0, b = 0;
    EXPECT_EQ(tier::check::pointers(&a, &b), 0);
    EXPECT_EQ(tier::check::pointers(&a, static_cast<const int*>(nullptr)), -8);
    EXPECT_EQ(tier::check::pointers(static_cast<const double*>(nullptr), &a), -8);
    EXPECT_EQ(tier::check::roi(KroiSize{1, 1}), 0);
    EXPECT_EQ(tier::check::roi(KroiSize{0, 1}), -6);
    EXPECT_EQ(tier::check::roi(KroiSize{1, -1}), -6);
    EXPECT_EQ(tier::check::roi(KroiSizeL{INT64_MIN, 1}), -6);
    EXPECT_EQ(tier::check::roi(KroiSizeL{int64_t{1} << 40, 1}), 0);
    EXPECT_EQ(tier::check::length(1), 0);
    EXPECT_EQ(tier::check::length(0), -6);
    EXPECT_EQ(tier::check::length(int64_t{-1}), -6);
    EXPECT_EQ(tier::check::steps(1, 64), 0);
    EXPECT_EQ(tier::check::steps(64, 0), -16);
    EXPECT_EQ(tier::check::steps(int64_t{-64}), -16);
    EXPECT_EQ(tier::check::stepsCoverRow(30, 30, 31), 0);
    EXPECT_EQ(tier::check::stepsCoverRow(30, 31, 29), -37);
    EXPECT_EQ(tier::check::stepsCoverRow(30, -64), -37);
    for (int m : {0, 1, 2}) EXPECT_EQ(tier::check::roundMode(m), 0) << m;
    for (int m : {-1, 3, INT32_MIN}) EXPECT_EQ(tier::check::roundMode(m), -213) << m;
}

// Rows are visited in order at their own steps (negative ones too), and the status walk stops
// at the first error.
TEST(Rows, WalkAdvancesEachImageByItsOwnStep)
{
    std::vector<uint8_t> a(64), b(64);
    using namespace KROI_TIER;
    auto src = rows::image<const uint8_t>(a.data() + 48, -16);
    auto dst = rows::image(b.data(), 8);
    std::vector<std::pair<std::ptrdiff_t, std::ptrdiff_t>> seen;
    rows::each(5, 3, [&](const uint8_t* s, uint8_t* d, int w) {
        EXPECT_EQ(w, 5);
        seen.emplace_back(s - a.data(), d - b.data());
    }, src, dst);
    EXPECT_EQ(seen, (std::vector<std::pair<std::ptrdiff_t, std::ptrdiff_t>>{{48, 0}, {32, 8}, {16, 16}}));
    EXPECT_TRUE(rows::merged(8, dst));
    EXPECT_FALSE(rows::merged(8, dst, rows::image(b.data(), 9)));
    int calls = 0;
    EXPECT_EQ(rows::eachStatus(1, 4, [&](uint8_t*, int) { return ++calls == 2 ? -8 : 1; }, dst), -8);
    EXPECT_EQ(calls, 2);
    EXPECT_EQ(rows::eachStatus(1, 2, [&](uint8_t*, int) { return 3; }, dst), 3);
}
