// Arithmetic with constants, bitwise logic and shifts beside OpenCV, one thread, on frames
// (1920x1080) and on images that fit no cache (4096x4096).
#include "support.hpp"

namespace {

using kb::Depth;
using kb::Image;

constexpr kb::Size kSizes[] = {kb::kHD, kb::k4K};

// One source, one destination of the same geometry.
struct Unary {
    Image src, dst;
    Unary(kb::Size s, Depth d, int seed) : src(s, 1, d), dst(s, 1, d) { src.fillRandom(seed); }
    std::size_t bytes() const { return dst.bytes(); }
#ifdef KROI_HAVE_OPENCV
    cv::Mat A = src.mat(), D = dst.mat();
#endif
};

struct AddC8u : Unary {
    explicit AddC8u(kb::Size s) : Unary(s, Depth::u8, 14) {}
    KroStatus kroi() { return kroiAddC_8u_C1RSfs(src.ptr(), src.step(), 37, dst.ptr(), dst.step(), src.roi(), 0); }
#ifdef KROI_HAVE_OPENCV
    void opencv() { cv::add(A, cv::Scalar(37), D); }
#endif
};

struct MulC32f : Unary {
    explicit MulC32f(kb::Size s) : Unary(s, Depth::f32, 15) {}
    KroStatus kroi()
    {
        return kroiMulC_32f_C1R(src.ptr<Kro32f>(), src.step(), 1.5f, dst.ptr<Kro32f>(), dst.step(), src.roi());
    }
#ifdef KROI_HAVE_OPENCV
    void opencv() { cv::multiply(A, cv::Scalar(1.5), D); }
#endif
};

struct SubC16s : Unary {
    explicit SubC16s(kb::Size s) : Unary(s, Depth::s16, 16) {}
    KroStatus kroi()
    {
        return kroiSubC_16s_C1RSfs(src.ptr<Kro16s>(), src.step(), 1000, dst.ptr<Kro16s>(), dst.step(), src.roi(), 0);
    }
#ifdef KROI_HAVE_OPENCV
    void opencv() { cv::subtract(A, cv::Scalar(1000), D); }
#endif
};

struct AndC8u : Unary {
    explicit AndC8u(kb::Size s) : Unary(s, Depth::u8, 11) {}
    KroStatus kroi() { return kroiAndC_8u_C1R(src.ptr(), src.step(), 0x5A, dst.ptr(), dst.step(), src.roi()); }
#ifdef KROI_HAVE_OPENCV
    void opencv() { cv::bitwise_and(A, cv::Scalar(0x5A), D); }
#endif
};

struct Not8u : Unary {
    explicit Not8u(kb::Size s) : Unary(s, Depth::u8, 12) {}
    KroStatus kroi() { return kroiNot_8u_C1R(src.ptr(), src.step(), dst.ptr(), dst.step(), src.roi()); }
#ifdef KROI_HAVE_OPENCV
    void opencv() { cv::bitwise_not(A, D); }
#endif
};

// OpenCV has no shift of an image; its nearest is a conversion scaled by 2^-3, which rounds
// to nearest where the shift rounds down, and does the same memory traffic.
struct RShiftC16s : Unary {
    explicit RShiftC16s(kb::Size s) : Unary(s, Depth::s16, 13) {}
    KroStatus kroi()
    {
        return kroiRShiftC_16s_C1R(src.ptr<Kro16s>(), src.step(), 3, dst.ptr<Kro16s>(), dst.step(), src.roi());
    }
#ifdef KROI_HAVE_OPENCV
    void opencv() { A.convertTo(D, CV_16S, 1.0 / 8); }
#endif
};

const bool registered = [] {
    kb::addCase<AddC8u>("ArithC/AddC_8u_C1", kSizes);
    kb::addCase<MulC32f>("ArithC/MulC_32f_C1", kSizes);
    kb::addCase<SubC16s>("ArithC/SubC_16s_C1", kSizes);
    kb::addCase<AndC8u>("ArithC/AndC_8u_C1", kSizes);
    kb::addCase<Not8u>("ArithC/Not_8u_C1", kSizes);
    kb::addCase<RShiftC16s>("ArithC/RShiftC_16s_C1", kSizes);
    return true;
}();

}  // namespace
