// Two-image arithmetic beside OpenCV's add, subtract, multiply and divide, single core, same
// buffers.  bytes() counts what a call moves, two sources read and one destination written;
// the memcpy yardstick copies one and a half images, which moves as many bytes, so its
// percentage is the share of memcpy bandwidth the kernel reaches.
#include "support.hpp"

namespace {

using kb::Depth;
using kb::Image;

// The images of one case: src1 (the subtrahend or divisor), src2, dst, and the yardstick's
// pair of 1.5-image buffers.
struct Images {
    Image a, b, d, refSrc, refDst;
    Images(kb::Size s, Depth depth, double lo, double hi)
        : a(s, 1, depth), b(s, 1, depth), d(s, 1, depth),
          refSrc(s.width, s.height * 3 / 2, 1, depth), refDst(s.width, s.height * 3 / 2, 1, depth)
    {
        a.fillUniform(1, lo, hi);
        b.fillUniform(2, lo, hi);
        refSrc.fillRandom(3);
    }
    std::size_t bytes() const { return 3 * a.bytes(); }
#ifdef KROI_HAVE_OPENCV
    cv::Mat A = a.mat(), B = b.mat(), D = d.mat();
#endif
};

template <class T>
using SfsFn = KroStatus (*)(const T*, int, const T*, int, T*, int, KroiSize, int);
using FloatFn = KroStatus (*)(const Kro32f*, int, const Kro32f*, int, Kro32f*, int, KroiSize);

// One case: the kroIP member, its scale factor and OpenCV's counterpart by number.
enum class Peer { Add, AddHalf, Sub, SubHalf, Mul, Div };

template <class T, Depth Dp, auto Fn, int Scale, Peer P, int Lo = 0, int Hi = 256>
struct Case : Images {
    static constexpr const char* kReference = "memcpy";
    explicit Case(kb::Size s) : Images(s, Dp, Lo, Hi) {}
    KroStatus kroi()
    {
        if constexpr (std::is_same_v<T, Kro32f>)
            return Fn(a.ptr<T>(), a.step(), b.ptr<T>(), b.step(), d.ptr<T>(), d.step(), a.roi());
        else
            return Fn(a.ptr<T>(), a.step(), b.ptr<T>(), b.step(), d.ptr<T>(), d.step(), a.roi(), Scale);
    }
    void reference() { kb::copyRows(refSrc, refDst); }
#ifdef KROI_HAVE_OPENCV
    // dst = src2 op src1, as the kroIP call computes it.
    void opencv()
    {
        switch (P) {
        case Peer::Add: cv::add(B, A, D); break;
        case Peer::AddHalf: cv::addWeighted(B, 0.5, A, 0.5, 0.0, D); break;
        case Peer::Sub: cv::subtract(B, A, D); break;
        case Peer::SubHalf: cv::addWeighted(B, 0.5, A, -0.5, 0.0, D); break;
        case Peer::Mul: cv::multiply(B, A, D); break;
        case Peer::Div: cv::divide(B, A, D); break;
        }
    }
#endif
};

constexpr kb::Size kSizes[] = {kb::kHD, kb::k4K};

const bool registered = [] {
    using namespace kb;
    addCase<Case<Kro8u, Depth::u8, kroiAdd_8u_C1RSfs, 0, Peer::Add>>("Arith/Add_8u_C1_s0", kSizes);
    addCase<Case<Kro8u, Depth::u8, kroiAdd_8u_C1RSfs, 1, Peer::AddHalf>>("Arith/Add_8u_C1_s1", kSizes);
    addCase<Case<Kro8u, Depth::u8, kroiSub_8u_C1RSfs, 0, Peer::Sub>>("Arith/Sub_8u_C1_s0", kSizes);
    addCase<Case<Kro8u, Depth::u8, kroiSub_8u_C1RSfs, 1, Peer::SubHalf>>("Arith/Sub_8u_C1_s1", kSizes);
    addCase<Case<Kro16s, Depth::s16, kroiMul_16s_C1RSfs, 0, Peer::Mul, -300, 300>>("Arith/Mul_16s_C1_s0", kSizes);
    addCase<Case<Kro32f, Depth::f32, kroiAdd_32f_C1R, 0, Peer::Add, 0, 1>>("Arith/Add_32f_C1", kSizes);
    addCase<Case<Kro32f, Depth::f32, kroiMul_32f_C1R, 0, Peer::Mul, 0, 1>>("Arith/Mul_32f_C1", kSizes);
    addCase<Case<Kro32f, Depth::f32, kroiDiv_32f_C1R, 0, Peer::Div, 1, 2>>("Arith/Div_32f_C1", kSizes);
    addCase<Case<Kro8u, Depth::u8, kroiDiv_8u_C1RSfs, 0, Peer::Div, 1, 256>>("Arith/Div_8u_C1_s0", kSizes);
    return true;
}();

}  // namespace
