// The streaming paths of Set and the planar copies, on small images: this program answers the
// library's cache-size query itself (its definition of kroGetMaxCacheSizeB comes first in the
// lookup), so that "at least the largest cache" is a size a test can afford.  Streaming and
// ordinary stores must give the same pixels; destinations aligned to 16 bytes take the
// kernels that stream themselves, others stream through a buffer.
#include <vector>

#include <gtest/gtest.h>

#include "kroi.h"
#include "support/compare.hpp"
#include "support/random.hpp"
#include "support/guarded.hpp"

namespace {
int g_cacheBytes = 64 << 10;  // 0 or less: the query fails
}  // namespace

extern "C" KroStatus kroGetMaxCacheSizeB(int* pSizeByte)
{
    if (!pSizeByte) return kroStsNullPointerErr;
    *pSizeByte = g_cacheBytes;
    return g_cacheBytes > 0 ? kroStsOk : kroStsUnsupportedModeErr;
}

namespace {

using kt::Guard;
using kt::Guarded;
using kt::Shape;

// Fills above 512 KiB stream once they reach the cache size; a failed query means ordinary
// stores.  Either way the pixels are the fill, and the padding is untouched.
TEST(CopySetStreaming, SetAtEveryCacheAnswer)
{
    for (int cache : {64 << 10, 0, 1 << 30})
        for (int off : {0, 7}) {
            g_cacheBytes = cache;
            Guarded<Kro16u> d(kt::typed<Kro16u>(Shape{701, 140, 3, 10, Guard::Before, off}));  // 589 KB of pixels
            d.fillBytes(0);
            const Kro16u v[3] = {1, 65535, 258};
            ASSERT_EQ(kroiSet_16u_C3R(v, d.ptr(), d.step(), {701, 140}), kroStsOk);
            EXPECT_IMAGE_EQ(d, [&](int, int, int c) { return v[c]; }) << "cache " << cache;
            EXPECT_TRUE(d.restUnchangedSince(std::vector<unsigned char>(d.spanBytes(), 0), 3));
            Guarded<Kro8u> one(Shape{1024, 600, 1, 0, Guard::Before, off});  // contiguous
            ASSERT_EQ(kroiSet_8u_C1R(77, one.ptr(), one.step(), {1024, 600}), kroStsOk);
            EXPECT_IMAGE_EQ(one, [](int, int, int) { return 77; });
        }
    g_cacheBytes = 64 << 10;
}

// Split and merge above 1 MiB and the cache size, into aligned and unaligned destinations,
// for the shuffling 8u kernels and a generic type.
template <class T>
void expectPlanarRoundTrip(kt::Rng& rng, int width, int height, int planePad, int interOffset)
{
    const Shape inter = kt::typed<T>(Shape{width, height, 3, 0, Guard::Before, interOffset});
    Guarded<T> src(inter), back(inter);
    const Shape plane = kt::typed<T>(Shape{width, height, 1, planePad, Guard::Before});
    Guarded<T> p0(plane), p1(plane), p2(plane);
    kt::fillRandom(src, rng);
    T* const planes[3] = {p0.ptr(), p1.ptr(), p2.ptr()};
    const T* const cplanes[3] = {p0.ptr(), p1.ptr(), p2.ptr()};
    if constexpr (sizeof(T) == 1) {
        ASSERT_EQ(kroiCopy_8u_C3P3R(src.ptr(), src.step(), planes, p0.step(), {width, height}), kroStsOk);
        ASSERT_EQ(kroiCopy_8u_P3C3R(cplanes, p0.step(), back.ptr(), back.step(), {width, height}), kroStsOk);
    } else {
        ASSERT_EQ(kroiCopy_32f_C3P3R(src.ptr(), src.step(), planes, p0.step(), {width, height}), kroStsOk);
        ASSERT_EQ(kroiCopy_32f_P3C3R(cplanes, p0.step(), back.ptr(), back.step(), {width, height}), kroStsOk);
    }
    const Guarded<T>* ps[3] = {&p0, &p1, &p2};
    for (int c = 0; c < 3; ++c)
        EXPECT_IMAGE_EQ(*ps[c], [&](int x, int y, int) { return src.at(x, y, c); }) << "plane " << c << " pad " << planePad;
    EXPECT_IMAGE_EQ(back, [&](int x, int y, int c) { return src.at(x, y, c); }) << "offset " << interOffset;
}

TEST(CopySetStreaming, PlanarAlignedAndNot)
{
    auto rng = kt::rngForTest();
    // 512 x 800: planes of 400 KiB, interleaved 1.2 MB; tight aligned planes, padded aligned
    // planes (step 528), unaligned planes (step 515), an unaligned interleaved image.
    for (int pad : {0, 16, 3})
        for (int off : {0, 5}) expectPlanarRoundTrip<Kro8u>(rng, 512, 800, pad, off);
    expectPlanarRoundTrip<Kro32f>(rng, 300, 300, 0, 0);
    expectPlanarRoundTrip<Kro32f>(rng, 301, 299, 4, 8);
}

}  // namespace
