// Min/max filters beside cv::dilate / cv::erode with a rectangular kernel, both replicating
// the border, on one thread.  The cases at 3x3, 15x15 and 31x31 show whether the cost per
// pixel stays flat as the mask grows.
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
    return std::is_same_v<T, Kro8u> ? Depth::u8 : Depth::f32;
}

template <class T>
constexpr KroDataType typeOf()
{
    return std::is_same_v<T, Kro8u> ? kro8u : kro32f;
}

// kMax: dilation, else erosion.
template <class T, int C, int M, bool kMax>
struct MinMax {
    using Fn = KroStatus (*)(const T*, int, T*, int, KroiSize, KroiSize, KroiBorderMode, const T*, Kro8u*);
    Image src, dst;
    std::vector<Kro8u> buffer;
    Fn fn;
    explicit MinMax(kb::Size s) : src(s, C, depthOf<T>()), dst(s, C, depthOf<T>())
    {
        src.fillRandom(9);
        int size = 0;
        kroiFilterMaxBorderGetBufferSize(s.roi(), {M, M}, typeOf<T>(), C, &size);
        buffer.resize(size);
        if constexpr (std::is_same_v<T, Kro8u>)
            fn = C == 1 ? (kMax ? kroiFilterMaxBorder_8u_C1R : kroiFilterMinBorder_8u_C1R)
                        : (kMax ? kroiFilterMaxBorder_8u_C3R : kroiFilterMinBorder_8u_C3R);
        else
            fn = kMax ? kroiFilterMaxBorder_32f_C1R : kroiFilterMinBorder_32f_C1R;
    }
    KroStatus kroi()
    {
        return fn(src.ptr<T>(), src.step(), dst.ptr<T>(), dst.step(), src.roi(), {M, M}, kroBorderReplicate,
                  nullptr, buffer.data());
    }
#ifdef KROI_HAVE_OPENCV
    cv::Mat A = src.mat(), D = dst.mat();
    cv::Mat kernel = cv::getStructuringElement(cv::MORPH_RECT, cv::Size(M, M));
    void opencv()
    {
        if (kMax) cv::dilate(A, D, kernel, cv::Point(-1, -1), 1, cv::BORDER_REPLICATE);
        else cv::erode(A, D, kernel, cv::Point(-1, -1), 1, cv::BORDER_REPLICATE);
    }
#endif
    std::size_t bytes() const { return dst.bytes(); }
};

const bool registered = [] {
    kb::addCase<MinMax<Kro8u, 1, 3, true>>("MinMax/Dilate_8u_C1_3x3", {kb::kHD});
    kb::addCase<MinMax<Kro8u, 1, 15, true>>("MinMax/Dilate_8u_C1_15x15", {kb::kHD});
    kb::addCase<MinMax<Kro8u, 1, 31, true>>("MinMax/Dilate_8u_C1_31x31", {kb::kHD});
    kb::addCase<MinMax<Kro8u, 3, 3, true>>("MinMax/Dilate_8u_C3_3x3", {kb::kHD});
    kb::addCase<MinMax<Kro8u, 3, 15, true>>("MinMax/Dilate_8u_C3_15x15", {kb::kHD});
    kb::addCase<MinMax<Kro8u, 3, 31, true>>("MinMax/Dilate_8u_C3_31x31", {kb::kHD});
    kb::addCase<MinMax<Kro32f, 1, 3, true>>("MinMax/Dilate_32f_C1_3x3", {kb::kHD});
    kb::addCase<MinMax<Kro32f, 1, 15, true>>("MinMax/Dilate_32f_C1_15x15", {kb::kHD});
    kb::addCase<MinMax<Kro32f, 1, 31, true>>("MinMax/Dilate_32f_C1_31x31", {kb::kHD});
    kb::addCase<MinMax<Kro8u, 1, 3, false>>("MinMax/Erode_8u_C1_3x3", {kb::kL2, kb::kHD});
    kb::addCase<MinMax<Kro8u, 1, 31, false>>("MinMax/Erode_8u_C1_31x31", {kb::kL2, kb::kHD});
    return true;
}();

}  // namespace
