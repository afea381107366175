// Unary mathematics, MinEvery/MaxEvery and additive noise beside OpenCV's sqrt, exp, log,
// absdiff against zero, min, max, and randu/randn followed by an add.
#include "support.hpp"

#ifdef KROI_HAVE_OPENCV
#include <opencv2/core.hpp>
#endif

namespace {

using kb::Depth;
using kb::Image;

enum class Fn { Sqrt, Exp, Ln };

// 32f C1 out of place; exp over [-20, 20), sqrt and log over (0, 1000).
template <Fn F>
struct Math32f {
    Image src, dst;
    explicit Math32f(kb::Size s) : src(s, 1, Depth::f32), dst(s, 1, Depth::f32)
    {
        if (F == Fn::Exp) src.fillUniform(21, -20.0, 20.0);
        else src.fillUniform(21, 1e-3, 1000.0);
    }
    KroStatus kroi()
    {
        const auto* s = src.ptr<Kro32f>();
        auto* d = dst.ptr<Kro32f>();
        if constexpr (F == Fn::Sqrt) return kroiSqrt_32f_C1R(s, src.step(), d, dst.step(), src.roi());
        else if constexpr (F == Fn::Exp) return kroiExp_32f_C1R(s, src.step(), d, dst.step(), src.roi());
        else return kroiLn_32f_C1R(s, src.step(), d, dst.step(), src.roi());
    }
#ifdef KROI_HAVE_OPENCV
    cv::Mat S = src.mat(), D = dst.mat();
    void opencv()
    {
        if constexpr (F == Fn::Sqrt) cv::sqrt(S, D);
        else if constexpr (F == Fn::Exp) cv::exp(S, D);
        else cv::log(S, D);
    }
#endif
    std::size_t bytes() const { return src.bytes() * 2; }
};

struct Abs16s {
    Image src, dst;
    explicit Abs16s(kb::Size s) : src(s, 1, Depth::s16), dst(s, 1, Depth::s16) { src.fillRandom(22); }
    KroStatus kroi() { return kroiAbs_16s_C1R(src.ptr<Kro16s>(), src.step(), dst.ptr<Kro16s>(), dst.step(), src.roi()); }
#ifdef KROI_HAVE_OPENCV
    cv::Mat S = src.mat(), D = dst.mat();
    void opencv() { cv::absdiff(S, cv::Scalar::all(0), D); }
#endif
    std::size_t bytes() const { return src.bytes() * 2; }
};

// In place: d = min(d, s) or max(d, s).
template <Depth D, bool kMax>
struct Every {
    Image src, sd;
    explicit Every(kb::Size s) : src(s, 1, D), sd(s, 1, D) { src.fillRandom(23), sd.fillRandom(24); }
    KroStatus kroi()
    {
        if constexpr (D == Depth::u8) {
            return kMax ? kroiMaxEvery_8u_C1IR(src.ptr(), src.step(), sd.ptr(), sd.step(), src.roi())
                        : kroiMinEvery_8u_C1IR(src.ptr(), src.step(), sd.ptr(), sd.step(), src.roi());
        } else {
            return kMax ? kroiMaxEvery_32f_C1IR(src.ptr<Kro32f>(), src.step(), sd.ptr<Kro32f>(), sd.step(), src.roi())
                        : kroiMinEvery_32f_C1IR(src.ptr<Kro32f>(), src.step(), sd.ptr<Kro32f>(), sd.step(), src.roi());
        }
    }
#ifdef KROI_HAVE_OPENCV
    cv::Mat S = src.mat(), SD = sd.mat();
    void opencv()
    {
        if (kMax) cv::max(SD, S, SD);
        else cv::min(SD, S, SD);
    }
#endif
    std::size_t bytes() const { return src.bytes() * 3; }
};

// Noise added to an 8u image in place; OpenCV draws 16s noise of the same law and adds it
// with saturation.
template <bool kGauss>
struct Noise8u {
    Image img;
    unsigned int seed = 1;
    explicit Noise8u(kb::Size s) : img(s, 1, Depth::u8) { img.fillRandom(25); }
    KroStatus kroi()
    {
        return kGauss ? kroiAddRandGauss_8u_C1IR(img.ptr(), img.step(), img.roi(), 0.0f, 8.0f, &seed)
                      : kroiAddRandUniform_8u_C1IR(img.ptr(), img.step(), img.roi(), -16.0f, 16.0f, &seed);
    }
#ifdef KROI_HAVE_OPENCV
    cv::Mat I = img.mat(), N = cv::Mat(I.size(), CV_16SC1);
    void opencv()
    {
        if (kGauss) cv::randn(N, 0.0, 8.0);
        else cv::randu(N, -16, 17);
        cv::add(I, N, I, cv::noArray(), CV_8U);
    }
#endif
    std::size_t bytes() const { return img.bytes() * 2; }
};

constexpr kb::Size kSizes[] = {kb::kHD};

const bool registered = [] {
    kb::addCase<Math32f<Fn::Sqrt>>("Unary/Sqrt_32f_C1", kSizes);
    kb::addCase<Math32f<Fn::Exp>>("Unary/Exp_32f_C1", kSizes);
    kb::addCase<Math32f<Fn::Ln>>("Unary/Ln_32f_C1", kSizes);
    kb::addCase<Abs16s>("Unary/Abs_16s_C1", kSizes);
    kb::addCase<Every<Depth::u8, false>>("Unary/MinEvery_8u_C1", kSizes);
    kb::addCase<Every<Depth::u8, true>>("Unary/MaxEvery_8u_C1", kSizes);
    kb::addCase<Every<Depth::f32, false>>("Unary/MinEvery_32f_C1", kSizes);
    kb::addCase<Every<Depth::f32, true>>("Unary/MaxEvery_32f_C1", kSizes);
    kb::addCase<Noise8u<false>>("Noise/AddRandUniform_8u_C1", kSizes);
    kb::addCase<Noise8u<true>>("Noise/AddRandGauss_8u_C1", kSizes);
    return true;
}();

}  // namespace
