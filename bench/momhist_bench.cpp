// Moments and histograms beside OpenCV's moments and calcHist.
#include <cstring>
#include <vector>

#include "support.hpp"

#ifdef KROI_HAVE_OPENCV
#include <opencv2/imgproc.hpp>
#endif

namespace {

using kb::Depth;
using kb::Image;

struct Moments8u {
    Image src;
    KroiMomentState64f state{};
    explicit Moments8u(kb::Size s) : src(s, 1, Depth::u8) { src.fillRandom(11), kroiMomentInit_64f(&state, kroHintNone); }
    KroStatus kroi() { return kroiMoments64f_8u_C1R(src.ptr(), src.step(), src.roi(), &state); }
#ifdef KROI_HAVE_OPENCV
    cv::Mat S = src.mat();
    void opencv() { benchmark::DoNotOptimize(cv::moments(S, false)); }
#endif
    std::size_t bytes() const { return src.bytes(); }
};

// Uniform bins: 256 over [0, 256) for 8u, 64 over [0, 1) for 32f.  `Flat` fills the image
// with one value, where every pixel lands in the same count.
template <Depth D, bool Flat>
struct Hist {
    static constexpr bool k8u = D == Depth::u8;
    static constexpr int kBins = k8u ? 256 : 64;
    Image src;
    std::vector<Kro8u> spec, buffer;
    std::vector<Kro32u> hist = std::vector<Kro32u>(kBins);
    explicit Hist(kb::Size s) : src(s, 1, D)
    {
        src.fillRandom(12);
        if (Flat)
            for (int y = 0; y < s.height; ++y) std::memset(src.row(y), k8u ? 0x5A : 0, src.rowBytes());
        const int n = kBins + 1;
        const float lo = 0.f, hi = k8u ? 256.f : 1.f;
        int specSize = 0, bufSize = 0;
        kroiHistogramGetBufferSize(k8u ? kro8u : kro32f, src.roi(), &n, 1, 1, &specSize, &bufSize);
        spec.resize(size_t(specSize)), buffer.resize(size_t(bufSize));
        kroiHistogramUniformInit(k8u ? kro8u : kro32f, &lo, &hi, &n, 1, specPtr());
    }
    KroiHistogramSpec* specPtr() { return reinterpret_cast<KroiHistogramSpec*>(spec.data()); }
    KroStatus kroi()
    {
        if constexpr (k8u)
            return kroiHistogram_8u_C1R(src.ptr(), src.step(), src.roi(), hist.data(), specPtr(), buffer.data());
        else
            return kroiHistogram_32f_C1R(src.ptr<Kro32f>(), src.step(), src.roi(), hist.data(), specPtr(), buffer.data());
    }
#ifdef KROI_HAVE_OPENCV
    cv::Mat S = src.mat(), H;
    void opencv()
    {
        const int channels[] = {0}, sizes[] = {kBins};
        const float range[] = {0.f, k8u ? 256.f : 1.f};
        const float* ranges[] = {range};
        cv::calcHist(&S, 1, channels, cv::Mat(), H, 1, sizes, ranges, true, false);
    }
#endif
    std::size_t bytes() const { return src.bytes(); }
};

constexpr kb::Size kSizes[] = {kb::kHD};

const bool registered = [] {
    kb::addCase<Moments8u>("Moments/Moments_8u_C1", kSizes);
    kb::addCase<Hist<Depth::u8, false>>("Histogram/Histogram_8u_C1_256", kSizes);
    kb::addCase<Hist<Depth::u8, true>>("Histogram/Histogram_8u_C1_256_flat", kSizes);
    kb::addCase<Hist<Depth::f32, false>>("Histogram/Histogram_32f_C1_64", kSizes);
    return true;
}();

}  // namespace
