// Comparison masks beside OpenCV's compare (less than), one-channel 8u and 32f.
#include "support.hpp"

namespace {

using kb::Depth;
using kb::Image;

template <Depth D, class T>
struct CompareLess {
    Image a, b, dst;
    explicit CompareLess(kb::Size s) : a(s, 1, D), b(s, 1, D), dst(s, 1, Depth::u8)
    {
        a.fillRandom(6), b.fillRandom(7);
    }
    KroStatus kroi()
    {
        if constexpr (D == Depth::u8)
            return kroiCompare_8u_C1R(a.ptr<T>(), a.step(), b.ptr<T>(), b.step(), dst.ptr(), dst.step(), a.roi(),
                                      kroCompareLess);
        else
            return kroiCompare_32f_C1R(a.ptr<T>(), a.step(), b.ptr<T>(), b.step(), dst.ptr(), dst.step(), a.roi(),
                                       kroCompareLess);
    }
#ifdef KROI_HAVE_OPENCV
    cv::Mat A = a.mat(), B = b.mat(), M = dst.mat();
    void opencv() { cv::compare(A, B, M, cv::CMP_LT); }
#endif
    std::size_t bytes() const { return a.bytes(); }
};

constexpr kb::Size kSizes[] = {kb::kHD, kb::k4K};

const bool registered = [] {
    kb::addCase<CompareLess<Depth::u8, Kro8u>>("Compare/Compare_8u_C1", kSizes);
    kb::addCase<CompareLess<Depth::f32, Kro32f>>("Compare/Compare_32f_C1", kSizes);
    return true;
}();

}  // namespace
