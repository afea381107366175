// The test-support library checks itself: guard pages fault, canaries catch a changed byte,
// comparisons name the first difference, and the references give the rule's answers.
#include <unistd.h>

#include <cmath>
#include <cstdint>

#include <gtest/gtest.h>

#include "support/compare.hpp"
#include "support/guarded.hpp"
#include "support/random.hpp"
#include "support/reference.hpp"

namespace {

const uintptr_t kPage = uintptr_t(sysconf(_SC_PAGESIZE));

// A write the compiler cannot drop.
void poke(unsigned char* p) { *static_cast<volatile unsigned char*>(p) = 1; }

}  // namespace

TEST(Guarded, LayoutAndGuards)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    for (bool bottomUp : {false, true})
        for (kt::Guard guard : {kt::Guard::After, kt::Guard::Before})
            for (int pad : {0, 13}) {
                kt::Guarded<uint16_t> img(kt::Shape{5, 3, 3, pad, guard, guard == kt::Guard::Before ? 6 : 0, bottomUp});
                SCOPED_TRACE(testing::Message() << "bottomUp " << bottomUp << " pad " << pad);
                EXPECT_EQ(img.rowBytes(), 30u);
                EXPECT_EQ(img.step(), (bottomUp ? -1 : 1) * (30 + pad));
                EXPECT_EQ(img.spanBytes(), size_t(2 * (30 + pad) + 30));
                EXPECT_EQ(&img.at(4, 2, 2) + 1, reinterpret_cast<uint16_t*>(img.rowBytesPtr(2) + 30));
                unsigned char* lo = img.lowest();
                unsigned char* hi = lo + img.spanBytes();
                // Every byte of the image can be written.
                img.fillBytes(0x11);
                if (guard == kt::Guard::After) {
                    EXPECT_EQ(uintptr_t(hi) % kPage, 0u);
                    EXPECT_DEATH(poke(hi), "");
                } else {
                    EXPECT_EQ(uintptr_t(lo) % kPage, 6u);
                    EXPECT_DEATH(poke(lo - 7), "");
                }
                // The touching row is row 0 for a bottom-up image ending at the guard.
                const int top = bottomUp ? 0 : 2;
                if (guard == kt::Guard::After) {
                    EXPECT_EQ(img.rowBytesPtr(top) + 30, hi);
                }
            }
}

TEST(Guarded, CanariesFindChangedBytes)
{
    kt::Guarded<uint8_t> img(3, 2, 4, 5); // AC4-like, 5 bytes of padding
    img.fillBytes(0xA5);
    const auto before = img.snapshot();
    EXPECT_TRUE(img.unchangedSince(before));
    img.at(1, 1, 0) = 7; // a written channel
    EXPECT_FALSE(img.unchangedSince(before));
    EXPECT_TRUE(img.restUnchangedSince(before, 3));
    img.at(2, 0, 3) = 7; // the alpha channel
    auto r = img.restUnchangedSince(before, 3);
    EXPECT_FALSE(r);
    EXPECT_NE(std::string(r.message()).find("row 0, byte 11 (pixel 2, channel 3)"), std::string::npos) << r.message();
    img.at(2, 0, 3) = 0xA5;
    img.row(0)[12 + 2] = 0; // padding after row 0
    r = img.restUnchangedSince(before, 4);
    EXPECT_NE(std::string(r.message()).find("(padding)"), std::string::npos) << r.message();
}

TEST(Compare, NamesFirstDifference)
{
    kt::Guarded<float> img(4, 3, 2);
    img.forEach([](int x, int y, int c, float& e) { e = float(x + 10 * y + 100 * c); });
    EXPECT_IMAGE_EQ(img, [](int x, int y, int c) { return x + 10 * y + 100 * c; });
    img.at(2, 1, 1) = NAN;
    img.at(3, 2, 0) = -0.0f;
    auto r = kt::imageEquals(img, [](int x, int y, int c) { return float(x + 10 * y + 100 * c); });
    EXPECT_NE(std::string(r.message()).find("2 of 24 elements differ; first at (x 2, y 1, c 1): got nan"),
              std::string::npos)
        << r.message();
    EXPECT_TRUE(kt::sameValue(NAN, -NAN));
    EXPECT_FALSE(kt::sameValue(0.0, -0.0));
    EXPECT_TRUE(kt::sameValue(0.0, -0.0, true));
}

TEST(Reference, ScaleRoundEvenAndSaturate)
{
    namespace ref = kt::ref;
    struct Case { int64_t v; int s; int64_t want; };
    for (const Case& c : {Case{5, 1, 2}, Case{7, 1, 4}, Case{-5, 1, -2}, Case{-7, 1, -4}, Case{-1, 1, 0},
                          Case{-3, 1, -2}, Case{6, 2, 2}, Case{-6, 2, -2}, Case{10, 2, 2}, Case{3, -2, 12},
                          Case{INT64_MIN, 63, -1}, Case{INT64_MIN, 64, 0}, Case{INT64_MAX, 63, 1},
                          Case{-(int64_t{3} << 40), 41, -2}, Case{1, 125, 0}})
        EXPECT_EQ(int64_t(ref::scaleRoundEven(c.v, c.s)), c.want) << c.v << ", " << c.s;
    EXPECT_EQ(ref::scaleRoundEven(INT64_MAX, -100), ref::kHuge);
    EXPECT_EQ(ref::saturate<int64_t>(ref::scaleRoundEven(-1, -70)), INT64_MIN);
    EXPECT_EQ(ref::scaleSaturate<uint8_t>(511, 1), 255); // 255.5 ties to even 256, saturates
    EXPECT_EQ(ref::scaleSaturate<uint8_t>(509, 1), 254);
    EXPECT_EQ(ref::scaleSaturate<int16_t>(-70000, 0), INT16_MIN);
    EXPECT_EQ(ref::toString(-(ref::i128(1) << 100)), "-1267650600228229401496703205376");
    EXPECT_EQ(ref::roundHalfEven(-2.5), -2.0);
    EXPECT_EQ(ref::roundHalfAway(-2.5), -3.0);
}

TEST(Random, WholeRangeAndSpecials)
{
    auto rng = kt::rngForTest();
    bool lo = false, hi = false, nan = false, inf = false, top = false;
    for (int i = 0; i < 20000; ++i) {
        const auto b = kt::randomValue<uint8_t>(rng);
        lo |= b == 0;
        hi |= b == 255;
        top |= kt::randomValue<int64_t>(rng) < INT64_MIN / 2;
        const float f = kt::randomValue<float>(rng, {-1, 1, 0.1});
        nan |= std::isnan(f);
        inf |= std::isinf(f);
    }
    EXPECT_TRUE(lo && hi && top && nan && inf);
    kt::Guarded<int16_t> img(7, 3, 2, 4);
    img.fillBytes(0x5A);
    const auto before = img.snapshot();
    kt::fillRandom(img, rng);
    EXPECT_TRUE(img.restUnchangedSince(before, 2)) << "random fill touched the padding";
}
