// Border copies and the box filter beside OpenCV (single thread): cv::copyMakeBorder and
// cv::blur with a replicated border.
#include <vector>

#include "support.hpp"

#ifdef KROI_HAVE_OPENCV
#include <opencv2/imgproc.hpp>
#endif

namespace {

using kb::Depth;
using kb::Image;

// Box filter, mask M x M, replicated border.
template <int M, int C, Depth D>
struct Box {
    using T = std::conditional_t<D == Depth::f32, Kro32f, Kro8u>;
    Image src, dst;
    std::vector<Kro8u> buffer;
    explicit Box(kb::Size s) : src(s, C, D), dst(s, C, D)
    {
        src.fillRandom(3);
        int size = 0;
        kroiFilterBoxBorderGetBufferSize(s.roi(), {M, M}, D == Depth::f32 ? kro32f : kro8u, C, &size);
        buffer.resize(std::size_t(size));
    }
    KroStatus kroi()
    {
        auto* s = src.ptr<T>();
        auto* d = dst.ptr<T>();
        if constexpr (D == Depth::f32)
            return kroiFilterBoxBorder_32f_C1R(s, src.step(), d, dst.step(), src.roi(), {M, M}, kroBorderReplicate,
                                               nullptr, buffer.data());
        else if constexpr (C == 1)
            return kroiFilterBoxBorder_8u_C1R(s, src.step(), d, dst.step(), src.roi(), {M, M}, kroBorderReplicate,
                                              nullptr, buffer.data());
        else
            return kroiFilterBoxBorder_8u_C3R(s, src.step(), d, dst.step(), src.roi(), {M, M}, kroBorderReplicate,
                                              nullptr, buffer.data());
    }
#ifdef KROI_HAVE_OPENCV
    cv::Mat A = src.mat(), B = dst.mat();
    void opencv() { cv::blur(A, B, cv::Size(M, M), cv::Point(-1, -1), cv::BORDER_REPLICATE); }
#endif
    std::size_t bytes() const { return dst.bytes(); }
};

// A border of 16 pixels on every side around the image.
template <int C, bool Mirror>
struct Border {
    static constexpr int kB = 16;
    Image src, dst;
    explicit Border(kb::Size s) : src(s, C, Depth::u8), dst(s.width + 2 * kB, s.height + 2 * kB, C, Depth::u8)
    {
        src.fillRandom(4);
    }
    KroStatus kroi()
    {
        if constexpr (Mirror)
            return kroiCopyMirrorBorder_8u_C3R(src.ptr(), src.step(), src.roi(), dst.ptr(), dst.step(), dst.roi(), kB,
                                               kB);
        else
            return kroiCopyReplicateBorder_8u_C1R(src.ptr(), src.step(), src.roi(), dst.ptr(), dst.step(), dst.roi(),
                                                  kB, kB);
    }
#ifdef KROI_HAVE_OPENCV
    cv::Mat A = src.mat(), B = dst.mat();
    void opencv()
    {
        cv::copyMakeBorder(A, B, kB, kB, kB, kB, Mirror ? cv::BORDER_REFLECT_101 : cv::BORDER_REPLICATE);
    }
#endif
    std::size_t bytes() const { return dst.bytes(); }
};

const bool registered = [] {
    kb::addCase<Box<3, 1, Depth::u8>>("Box/3x3_8u_C1", {kb::kHD});
    kb::addCase<Box<5, 1, Depth::u8>>("Box/5x5_8u_C1", {kb::kHD});
    kb::addCase<Box<31, 1, Depth::u8>>("Box/31x31_8u_C1", {kb::kHD});
    kb::addCase<Box<3, 3, Depth::u8>>("Box/3x3_8u_C3", {kb::kHD});
    kb::addCase<Box<5, 3, Depth::u8>>("Box/5x5_8u_C3", {kb::kHD});
    kb::addCase<Box<31, 3, Depth::u8>>("Box/31x31_8u_C3", {kb::kHD});
    kb::addCase<Box<3, 1, Depth::f32>>("Box/3x3_32f_C1", {kb::kHD});
    kb::addCase<Box<5, 1, Depth::f32>>("Box/5x5_32f_C1", {kb::kHD});
    kb::addCase<Box<31, 1, Depth::f32>>("Box/31x31_32f_C1", {kb::kHD});
    kb::addCase<Border<1, false>>("Border/Replicate_8u_C1", {kb::kHD});
    kb::addCase<Border<3, true>>("Border/Mirror_8u_C3", {kb::kHD});
    return true;
}();

}  // namespace
