// Copy and Set beside OpenCV and the C library's memcpy and memset on the same buffers;
// the channel and planar copies beside cv::split, cv::merge and cv::extractChannel.
#include <cstring>

#include "support.hpp"

#ifdef KROI_HAVE_OPENCV
#include <opencv2/core.hpp>
#endif

namespace {

using kb::Depth;
using kb::Image;

constexpr kb::Size kSizes[] = {kb::kL2, kb::kHD, kb::k4K};

// Whole copy of C channels of type T.
template <class T, int C, Depth D, KroStatus (*F)(const T*, int, T*, int, KroiSize)>
struct Copy {
    static constexpr const char* kReference = "memcpy";
    Image src, dst;
    explicit Copy(kb::Size s) : src(s, C, D), dst(s, C, D) { src.fillRandom(3); }
    KroStatus kroi() { return F(src.ptr<T>(), src.step(), dst.ptr<T>(), dst.step(), src.roi()); }
    void reference() { kb::copyRows(src, dst); }
#ifdef KROI_HAVE_OPENCV
    cv::Mat A = src.mat(), B = dst.mat();
    void opencv() { A.copyTo(B); }
#endif
    std::size_t bytes() const { return dst.bytes(); }
};

// Whole fill; the value array is used by every layout but C1.
template <class T, int C, Depth D, class Fill>
struct Set {
    static constexpr const char* kReference = "memset";
    Image dst;
    explicit Set(kb::Size s) : dst(s, C, D) {}
    KroStatus kroi() { return Fill::call(dst.ptr<T>(), dst.step(), dst.roi()); }
    void reference() { kb::fillRows(dst, 0x5A); }
#ifdef KROI_HAVE_OPENCV
    cv::Mat B = dst.mat();
    void opencv() { B.setTo(Fill::scalar()); }
#endif
    std::size_t bytes() const { return dst.bytes(); }
};
struct Fill8uC1 {
    static KroStatus call(Kro8u* d, int step, KroiSize roi) { return kroiSet_8u_C1R(0x5A, d, step, roi); }
#ifdef KROI_HAVE_OPENCV
    static cv::Scalar scalar() { return cv::Scalar(0x5A); }
#endif
};
struct Fill8uC3 {
    static KroStatus call(Kro8u* d, int step, KroiSize roi)
    {
        const Kro8u v[3] = {1, 2, 3};
        return kroiSet_8u_C3R(v, d, step, roi);
    }
#ifdef KROI_HAVE_OPENCV
    static cv::Scalar scalar() { return cv::Scalar(1, 2, 3); }
#endif
};
struct Fill32fC1 {
    static KroStatus call(Kro32f* d, int step, KroiSize roi) { return kroiSet_32f_C1R(0.25f, d, step, roi); }
#ifdef KROI_HAVE_OPENCV
    static cv::Scalar scalar() { return cv::Scalar(0.25); }
#endif
};

// 8u C3 to three planes and back, and one channel out.  bytes() is the interleaved image.
struct Split8uC3 {
    Image src, p0, p1, p2;
    explicit Split8uC3(kb::Size s) : src(s, 3, Depth::u8), p0(s, 1, Depth::u8), p1(s, 1, Depth::u8), p2(s, 1, Depth::u8)
    {
        src.fillRandom(4);
    }
    KroStatus kroi()
    {
        Kro8u* const planes[3] = {p0.ptr(), p1.ptr(), p2.ptr()};
        return kroiCopy_8u_C3P3R(src.ptr(), src.step(), planes, p0.step(), src.roi());
    }
#ifdef KROI_HAVE_OPENCV
    cv::Mat A = src.mat();
    cv::Mat planes[3] = {p0.mat(), p1.mat(), p2.mat()};
    void opencv() { cv::split(A, planes); }
#endif
    std::size_t bytes() const { return src.bytes(); }
};

struct Merge8uC3 {
    Image dst, p0, p1, p2;
    explicit Merge8uC3(kb::Size s) : dst(s, 3, Depth::u8), p0(s, 1, Depth::u8), p1(s, 1, Depth::u8), p2(s, 1, Depth::u8)
    {
        p0.fillRandom(5), p1.fillRandom(6), p2.fillRandom(7);
    }
    KroStatus kroi()
    {
        const Kro8u* const planes[3] = {p0.ptr(), p1.ptr(), p2.ptr()};
        return kroiCopy_8u_P3C3R(planes, p0.step(), dst.ptr(), dst.step(), dst.roi());
    }
#ifdef KROI_HAVE_OPENCV
    cv::Mat D = dst.mat();
    cv::Mat planes[3] = {p0.mat(), p1.mat(), p2.mat()};
    void opencv() { cv::merge(planes, 3, D); }
#endif
    std::size_t bytes() const { return dst.bytes(); }
};

struct Extract8uC3 {
    Image src, dst;
    explicit Extract8uC3(kb::Size s) : src(s, 3, Depth::u8), dst(s, 1, Depth::u8) { src.fillRandom(8); }
    KroStatus kroi() { return kroiCopy_8u_C3C1R(src.ptr() + 1, src.step(), dst.ptr(), dst.step(), src.roi()); }
#ifdef KROI_HAVE_OPENCV
    cv::Mat A = src.mat(), D = dst.mat();
    void opencv() { cv::extractChannel(A, D, 1); }
#endif
    std::size_t bytes() const { return src.bytes(); }
};

const bool registered = [] {
    kb::addCase<Copy<Kro8u, 1, Depth::u8, kroiCopy_8u_C1R>>("Copy/8u_C1R", kSizes);
    kb::addCase<Copy<Kro8u, 3, Depth::u8, kroiCopy_8u_C3R>>("Copy/8u_C3R", kSizes);
    kb::addCase<Set<Kro8u, 1, Depth::u8, Fill8uC1>>("Set/8u_C1R", kSizes);
    kb::addCase<Set<Kro8u, 3, Depth::u8, Fill8uC3>>("Set/8u_C3R", kSizes);
    kb::addCase<Set<Kro32f, 1, Depth::f32, Fill32fC1>>("Set/32f_C1R", kSizes);
    kb::addCase<Split8uC3>("Copy/8u_C3P3R", kSizes);
    kb::addCase<Merge8uC3>("Copy/8u_P3C3R", kSizes);
    kb::addCase<Extract8uC3>("Copy/8u_C3C1R", kSizes);
    return true;
}();

}  // namespace
