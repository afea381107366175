// Thresholds beside OpenCV's threshold and adaptiveThreshold at 1920x1080.
#include "support.hpp"

#ifdef KROI_HAVE_OPENCV
#include <opencv2/imgproc.hpp>
#endif

#include <vector>

namespace {

using kb::Depth;
using kb::Image;

// Clamping from above (OpenCV's truncation), and zeroing what lies above (to-zero inverted).
template <Depth D, class T, int C, bool kToZero>
struct Fixed {
    Image src, dst;
    explicit Fixed(kb::Size s) : src(s, C, D), dst(s, C, D)
    {
        if constexpr (D == Depth::f32) src.fillUniform(3, 0, 255);
        else src.fillRandom(3);
    }
    KroStatus kroi()
    {
        const T t[3] = {T(100), T(100), T(100)}, z[3] = {};
        if constexpr (C == 3) {
            if constexpr (kToZero)
                return kroiThreshold_GTVal_8u_C3R(src.ptr(), src.step(), dst.ptr(), dst.step(), src.roi(), t, z);
            else
                return kroiThreshold_GT_8u_C3R(src.ptr(), src.step(), dst.ptr(), dst.step(), src.roi(), t);
        } else if constexpr (D == Depth::u8) {
            if constexpr (kToZero)
                return kroiThreshold_GTVal_8u_C1R(src.ptr(), src.step(), dst.ptr(), dst.step(), src.roi(), 100, 0);
            else
                return kroiThreshold_GT_8u_C1R(src.ptr(), src.step(), dst.ptr(), dst.step(), src.roi(), 100);
        } else {
            auto* s = src.ptr<Kro32f>();
            auto* d = dst.ptr<Kro32f>();
            if constexpr (kToZero)
                return kroiThreshold_GTVal_32f_C1R(s, src.step(), d, dst.step(), src.roi(), 100, 0);
            else
                return kroiThreshold_GT_32f_C1R(s, src.step(), d, dst.step(), src.roi(), 100);
        }
    }
#ifdef KROI_HAVE_OPENCV
    cv::Mat S = src.mat(), M = dst.mat();
    void opencv() { cv::threshold(S, M, 100, 255, kToZero ? cv::THRESH_TOZERO_INV : cv::THRESH_TRUNC); }
#endif
    std::size_t bytes() const { return src.bytes(); }
};

// Otsu's threshold, then the binary image it gives (OpenCV does both in one call).
struct Otsu {
    Image src, dst;
    explicit Otsu(kb::Size s) : src(s, 1, Depth::u8), dst(s, 1, Depth::u8) { src.fillRandom(4); }
    KroStatus kroi()
    {
        Kro8u t = 0;
        KroStatus st = kroiComputeThreshold_Otsu_8u_C1R(src.ptr(), src.step(), src.roi(), &t);
        if (st < 0) return st;
        st = kroiThreshold_GTVal_8u_C1R(src.ptr(), src.step(), dst.ptr(), dst.step(), src.roi(), t, 255);
        if (st < 0 || t == 255) return st;
        return kroiThreshold_LTVal_8u_C1IR(dst.ptr(), dst.step(), src.roi(), Kro8u(t + 1), 0);
    }
#ifdef KROI_HAVE_OPENCV
    cv::Mat S = src.mat(), M = dst.mat();
    void opencv() { cv::threshold(S, M, 0, 255, cv::THRESH_BINARY | cv::THRESH_OTSU); }
#endif
    std::size_t bytes() const { return src.bytes(); }
};

template <int kMask, bool kGauss>
struct Adaptive {
    Image src, dst;
    std::vector<Kro8u> buffer, spec;
    explicit Adaptive(kb::Size s) : src(s, 1, Depth::u8), dst(s, 1, Depth::u8)
    {
        src.fillRandom(5);
        int bytes = 0, specBytes = 0;
        kroiThresholdAdaptiveGaussGetBufferSize(s.roi(), {kMask, kMask}, kro8u, 1, &specBytes, &bytes);
        buffer.resize(std::size_t(bytes));
        spec.resize(std::size_t(specBytes));
        kroiThresholdAdaptiveGaussInit(s.roi(), {kMask, kMask}, kro8u, 1,
                                       reinterpret_cast<KroiThresholdAdaptiveGaussSpec*>(spec.data()), 0);
    }
    KroStatus kroi()
    {
        if constexpr (kGauss)
            return kroiThresholdAdaptiveGauss_8u_C1R(src.ptr(), src.step(), dst.ptr(), dst.step(), src.roi(), 5, 255, 0,
                                                     kroBorderReplicate,  0,
                                                     reinterpret_cast<KroiThresholdAdaptiveGaussSpec*>(spec.data()),
                                                     buffer.data());
        else
            return kroiThresholdAdaptiveBox_8u_C1R(src.ptr(), src.step(), dst.ptr(), dst.step(), src.roi(),
                                                   {kMask, kMask}, 5, 255, 0, kroBorderReplicate, 0, buffer.data());
    }
#ifdef KROI_HAVE_OPENCV
    cv::Mat S = src.mat(), M = dst.mat();
    void opencv()
    {
        cv::adaptiveThreshold(S, M, 255, kGauss ? cv::ADAPTIVE_THRESH_GAUSSIAN_C : cv::ADAPTIVE_THRESH_MEAN_C,
                              cv::THRESH_BINARY, kMask, 5);
    }
#endif
    std::size_t bytes() const { return src.bytes(); }
};

constexpr kb::Size kSizes[] = {kb::kHD};

const bool registered = [] {
    kb::addCase<Fixed<Depth::u8, Kro8u, 1, false>>("Threshold/Trunc_8u_C1", kSizes);
    kb::addCase<Fixed<Depth::f32, Kro32f, 1, false>>("Threshold/Trunc_32f_C1", kSizes);
    kb::addCase<Fixed<Depth::u8, Kro8u, 3, false>>("Threshold/Trunc_8u_C3", kSizes);
    kb::addCase<Fixed<Depth::u8, Kro8u, 1, true>>("Threshold/ToZeroInv_8u_C1", kSizes);
    kb::addCase<Fixed<Depth::f32, Kro32f, 1, true>>("Threshold/ToZeroInv_32f_C1", kSizes);
    kb::addCase<Fixed<Depth::u8, Kro8u, 3, true>>("Threshold/ToZeroInv_8u_C3", kSizes);
    kb::addCase<Otsu>("Threshold/OtsuBinary_8u_C1", kSizes);
    kb::addCase<Adaptive<3, false>>("Threshold/AdaptiveMean3_8u_C1", kSizes);
    kb::addCase<Adaptive<31, false>>("Threshold/AdaptiveMean31_8u_C1", kSizes);
    kb::addCase<Adaptive<11, true>>("Threshold/AdaptiveGauss11_8u_C1", kSizes);
    return true;
}();

}  // namespace
