// Channel swap, transpose and mirror beside OpenCV's cvtColor, transpose and flip, at a
// full-HD frame (last-level cache) and 4096x4096 (memory).
#include "support.hpp"

#ifdef KROI_HAVE_OPENCV
#include <opencv2/imgproc.hpp>
#endif

namespace {

using kb::Depth;
using kb::Image;

template <Depth D, class T>
struct Transpose {
    static constexpr const char* kReference = "memcpy";
    Image src, dst, same;
    explicit Transpose(kb::Size s)
        : src(s, 1, D), dst(s.height, s.width, 1, D), same(s, 1, D)
    {
        src.fillRandom(3);
    }
    KroStatus kroi()
    {
        if constexpr (D == Depth::u8)
            return kroiTranspose_8u_C1R(src.ptr<T>(), src.step(), dst.ptr<T>(), dst.step(), src.roi());
        else
            return kroiTranspose_32f_C1R(src.ptr<T>(), src.step(), dst.ptr<T>(), dst.step(), src.roi());
    }
#ifdef KROI_HAVE_OPENCV
    cv::Mat A = src.mat(), B = dst.mat();
    void opencv() { cv::transpose(A, B); }
#endif
    void reference() { kb::copyRows(src, same); }
    std::size_t bytes() const { return src.bytes(); }
};

// flip 0, 1, 2 here are OpenCV's flip codes 0, 1 and -1.
template <int C, int Flip>
struct Mirror {
    static constexpr const char* kReference = "memcpy";
    Image src, dst;
    explicit Mirror(kb::Size s) : src(s, C, Depth::u8), dst(s, C, Depth::u8) { src.fillRandom(4); }
    KroStatus kroi()
    {
        if constexpr (C == 1)
            return kroiMirror_8u_C1R(src.ptr(), src.step(), dst.ptr(), dst.step(), src.roi(), Flip);
        else
            return kroiMirror_8u_C3R(src.ptr(), src.step(), dst.ptr(), dst.step(), src.roi(), Flip);
    }
#ifdef KROI_HAVE_OPENCV
    cv::Mat A = src.mat(), B = dst.mat();
    void opencv() { cv::flip(A, B, Flip == 2 ? -1 : Flip); }
#endif
    void reference() { kb::copyRows(src, dst); }
    std::size_t bytes() const { return src.bytes(); }
};

struct Swap8uC3 {
    static constexpr const char* kReference = "memcpy";
    Image src, dst;
    explicit Swap8uC3(kb::Size s) : src(s, 3, Depth::u8), dst(s, 3, Depth::u8) { src.fillRandom(5); }
    KroStatus kroi()
    {
        static constexpr int order[3] = {2, 1, 0};
        return kroiSwapChannels_8u_C3R(src.ptr(), src.step(), dst.ptr(), dst.step(), src.roi(), order);
    }
#ifdef KROI_HAVE_OPENCV
    cv::Mat A = src.mat(), B = dst.mat();
    void opencv() { cv::cvtColor(A, B, cv::COLOR_BGR2RGB); }
#endif
    void reference() { kb::copyRows(src, dst); }
    std::size_t bytes() const { return src.bytes(); }
};

constexpr kb::Size kSizes[] = {kb::kHD, kb::k4K};

const bool registered = [] {
    kb::addCase<Transpose<Depth::u8, Kro8u>>("Layout/Transpose_8u_C1", kSizes);
    kb::addCase<Transpose<Depth::f32, Kro32f>>("Layout/Transpose_32f_C1", kSizes);
    kb::addCase<Mirror<1, 0>>("Layout/Mirror_8u_C1_flip0", kSizes);
    kb::addCase<Mirror<1, 1>>("Layout/Mirror_8u_C1_flip1", kSizes);
    kb::addCase<Mirror<1, 2>>("Layout/Mirror_8u_C1_flip2", kSizes);
    kb::addCase<Mirror<3, 0>>("Layout/Mirror_8u_C3_flip0", kSizes);
    kb::addCase<Mirror<3, 1>>("Layout/Mirror_8u_C3_flip1", kSizes);
    kb::addCase<Mirror<3, 2>>("Layout/Mirror_8u_C3_flip2", kSizes);
    kb::addCase<Swap8uC3>("Layout/SwapChannels_8u_C3_210", kSizes);
    return true;
}();

}  // namespace
