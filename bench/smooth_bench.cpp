// Median, Gaussian and fixed-kernel filters beside cv::medianBlur, cv::GaussianBlur,
// cv::Sobel, cv::Scharr and cv::Laplacian, both replicating the border, on one thread.  The
// median at 3, 5 and 15 shows how its cost grows with the mask.
#include <vector>

#include "support.hpp"

#ifdef KROI_HAVE_OPENCV
#include <opencv2/imgproc.hpp>
#endif

namespace {

using kb::Depth;
using kb::Image;

template <class T>
constexpr Depth depthOf()
{
    return std::is_same_v<T, Kro8u> ? Depth::u8 : std::is_same_v<T, Kro16s> ? Depth::s16 : Depth::f32;
}
template <class T>
constexpr KroDataType typeOf()
{
    return std::is_same_v<T, Kro8u> ? kro8u : kro32f;
}

template <class T, int C, int M>
struct Median {
    Image src, dst;
    std::vector<Kro8u> buffer;
    explicit Median(kb::Size s) : src(s, C, depthOf<T>()), dst(s, C, depthOf<T>())
    {
        src.fillRandom(5);
        int size = 0;
        kroiFilterMedianBorderGetBufferSize(s.roi(), {M, M}, typeOf<T>(), C, &size);
        buffer.resize(size);
    }
    KroStatus kroi()
    {
        auto fn = C == 1 ? kroiFilterMedianBorder_8u_C1R : kroiFilterMedianBorder_8u_C3R;
        return fn(src.ptr<T>(), src.step(), dst.ptr<T>(), dst.step(), src.roi(), {M, M}, kroBorderReplicate, nullptr,
                  buffer.data());
    }
#ifdef KROI_HAVE_OPENCV
    cv::Mat A = src.mat(), D = dst.mat();
    void opencv() { cv::medianBlur(A, D, M); } // replicates the border
#endif
    std::size_t bytes() const { return dst.bytes(); }
};

// Sigma in tenths.
template <class T, int C, int M, int Sigma10>
struct Gauss {
    Image src, dst;
    std::vector<Kro8u> spec, buffer;
    explicit Gauss(kb::Size s) : src(s, C, depthOf<T>()), dst(s, C, depthOf<T>())
    {
        src.fillRandom(7);
        int specSize = 0, size = 0;
        kroiFilterGaussianGetBufferSize(s.roi(), M, typeOf<T>(), C, &specSize, &size);
        spec.resize(specSize);
        buffer.resize(size);
        kroiFilterGaussianInit(s.roi(), M, Sigma10 / 10.0f, typeOf<T>(), C,
                               reinterpret_cast<KroiFilterGaussianSpec*>(spec.data()));
    }
    KroStatus kroi()
    {
        auto sp = reinterpret_cast<const KroiFilterGaussianSpec*>(spec.data());
        if constexpr (std::is_same_v<T, Kro8u>)
            return (C == 1 ? kroiFilterGaussianBorder_8u_C1R : kroiFilterGaussianBorder_8u_C3R)(
                src.ptr<T>(), src.step(), dst.ptr<T>(), dst.step(), src.roi(), kroBorderReplicate, nullptr, sp,
                buffer.data());
        else
            return kroiFilterGaussianBorder_32f_C1R(src.ptr<T>(), src.step(), dst.ptr<T>(), dst.step(), src.roi(),
                                                    kroBorderReplicate, nullptr, sp, buffer.data());
    }
#ifdef KROI_HAVE_OPENCV
    cv::Mat A = src.mat(), D = dst.mat();
    void opencv() { cv::GaussianBlur(A, D, cv::Size(M, M), Sigma10 / 10.0, Sigma10 / 10.0, cv::BORDER_REPLICATE); }
#endif
    std::size_t bytes() const { return dst.bytes(); }
};

// 8u -> 16s derivatives and Laplace, 3x3.
enum class Op { SobelDx, SobelDy, ScharrDx, Laplace };
template <Op O>
struct Deriv {
    Image src, dst;
    std::vector<Kro8u> buffer;
    explicit Deriv(kb::Size s) : src(s, 1, Depth::u8), dst(s, 1, Depth::s16)
    {
        src.fillRandom(3);
        int size = 0;
        kroiFilterSobelBorderGetBufferSize(s.roi(), 3, kro8u, 1, &size);
        buffer.resize(size);
    }
    KroStatus kroi()
    {
        const Kro8u* a = src.ptr<Kro8u>();
        Kro16s* d = dst.ptr<Kro16s>();
        switch (O) {
        case Op::SobelDx:
            return kroiFilterSobelDxBorder_8u16s_C1R(a, src.step(), d, dst.step(), src.roi(), 3, kroBorderReplicate, nullptr, buffer.data());
        case Op::SobelDy:
            return kroiFilterSobelDyBorder_8u16s_C1R(a, src.step(), d, dst.step(), src.roi(), 3, kroBorderReplicate, nullptr, buffer.data());
        case Op::ScharrDx:
            return kroiFilterScharrDxBorder_8u16s_C1R(a, src.step(), d, dst.step(), src.roi(), kroBorderReplicate, nullptr, buffer.data());
        default:
            return kroiFilterLaplaceBorder_8u16s_C1R(a, src.step(), d, dst.step(), src.roi(), 3, kroBorderReplicate, nullptr, buffer.data());
        }
    }
#ifdef KROI_HAVE_OPENCV
    cv::Mat A = src.mat(), D = dst.mat();
    void opencv()
    {
        switch (O) {
        case Op::SobelDx: cv::Sobel(A, D, CV_16S, 1, 0, 3, 1, 0, cv::BORDER_REPLICATE); break;
        case Op::SobelDy: cv::Sobel(A, D, CV_16S, 0, 1, 3, 1, 0, cv::BORDER_REPLICATE); break;
        case Op::ScharrDx: cv::Scharr(A, D, CV_16S, 1, 0, 1, 0, cv::BORDER_REPLICATE); break;
        default: cv::Laplacian(A, D, CV_16S, 3, 1, 0, cv::BORDER_REPLICATE); break;
        }
    }
#endif
    std::size_t bytes() const { return dst.bytes(); }
};

const bool registered = [] {
    kb::addCase<Median<Kro8u, 1, 3>>("Smooth/Median_8u_C1_3x3", {kb::kHD});
    kb::addCase<Median<Kro8u, 1, 5>>("Smooth/Median_8u_C1_5x5", {kb::kHD});
    kb::addCase<Median<Kro8u, 1, 15>>("Smooth/Median_8u_C1_15x15", {kb::kHD});
    kb::addCase<Median<Kro8u, 3, 3>>("Smooth/Median_8u_C3_3x3", {kb::kHD});
    kb::addCase<Median<Kro8u, 3, 5>>("Smooth/Median_8u_C3_5x5", {kb::kHD});
    kb::addCase<Median<Kro8u, 3, 15>>("Smooth/Median_8u_C3_15x15", {kb::kHD});
    kb::addCase<Gauss<Kro8u, 1, 5, 12>>("Smooth/Gauss_8u_C1_5x5", {kb::kHD});
    kb::addCase<Gauss<Kro8u, 1, 15, 30>>("Smooth/Gauss_8u_C1_15x15", {kb::kHD});
    kb::addCase<Gauss<Kro8u, 3, 5, 12>>("Smooth/Gauss_8u_C3_5x5", {kb::kHD});
    kb::addCase<Gauss<Kro8u, 3, 15, 30>>("Smooth/Gauss_8u_C3_15x15", {kb::kHD});
    kb::addCase<Gauss<Kro32f, 1, 5, 12>>("Smooth/Gauss_32f_C1_5x5", {kb::kHD});
    kb::addCase<Gauss<Kro32f, 1, 15, 30>>("Smooth/Gauss_32f_C1_15x15", {kb::kHD});
    kb::addCase<Deriv<Op::SobelDx>>("Smooth/SobelDx_8u16s_3x3", {kb::kHD});
    kb::addCase<Deriv<Op::SobelDy>>("Smooth/SobelDy_8u16s_3x3", {kb::kHD});
    kb::addCase<Deriv<Op::ScharrDx>>("Smooth/ScharrDx_8u16s_3x3", {kb::kHD});
    kb::addCase<Deriv<Op::Laplace>>("Smooth/Laplace_8u16s_3x3", {kb::kHD});
    return true;
}();

}  // namespace
