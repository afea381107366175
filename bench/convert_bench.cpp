// Convert and Scale beside OpenCV's convertTo, single-threaded, on the same buffers: the
// conversions an application meets most (8u to float and back, 16-bit to 8u, float to 16s)
// and the range scaling of a float image onto 8u, which convertTo does with alpha and beta.
#include "support.hpp"

namespace {

using kb::Depth;
using kb::Image;

// One source and one destination image, C1, with the source filled by `fill`.
template <Depth kSrc, Depth kDst>
struct Pair {
    Image src, dst;
    explicit Pair(kb::Size s, double lo, double hi) : src(s, 1, kSrc), dst(s, 1, kDst) { src.fillUniform(7, lo, hi); }
    std::size_t bytes() const { return src.bytes() + dst.bytes(); }
#ifdef KROI_HAVE_OPENCV
    cv::Mat S = src.mat(), D = dst.mat();
#endif
};

struct Convert8u32f : Pair<Depth::u8, Depth::f32> {
    explicit Convert8u32f(kb::Size s) : Pair(s, 0, 256) {}
    KroStatus kroi() { return kroiConvert_8u32f_C1R(src.ptr(), src.step(), dst.ptr<Kro32f>(), dst.step(), src.roi()); }
#ifdef KROI_HAVE_OPENCV
    void opencv() { S.convertTo(D, CV_32F); }
#endif
};

struct Convert32f8u : Pair<Depth::f32, Depth::u8> {
    explicit Convert32f8u(kb::Size s) : Pair(s, -20, 280) {}
    KroStatus kroi()
    {
        return kroiConvert_32f8u_C1R(src.ptr<Kro32f>(), src.step(), dst.ptr(), dst.step(), src.roi(), kroRndNear);
    }
#ifdef KROI_HAVE_OPENCV
    void opencv() { S.convertTo(D, CV_8U); }
#endif
};

struct Convert16s8u : Pair<Depth::s16, Depth::u8> {
    explicit Convert16s8u(kb::Size s) : Pair(s, -300, 600) {}
    KroStatus kroi() { return kroiConvert_16s8u_C1R(src.ptr<Kro16s>(), src.step(), dst.ptr(), dst.step(), src.roi()); }
#ifdef KROI_HAVE_OPENCV
    void opencv() { S.convertTo(D, CV_8U); }
#endif
};

struct Convert32f16s : Pair<Depth::f32, Depth::s16> {
    explicit Convert32f16s(kb::Size s) : Pair(s, -40000, 40000) {}
    KroStatus kroi()
    {
        return kroiConvert_32f16s_C1R(src.ptr<Kro32f>(), src.step(), dst.ptr<Kro16s>(), dst.step(), src.roi(),
                                      kroRndNear);
    }
#ifdef KROI_HAVE_OPENCV
    void opencv() { S.convertTo(D, CV_16S); }
#endif
};

struct Convert16u8u : Pair<Depth::u16, Depth::u8> {
    explicit Convert16u8u(kb::Size s) : Pair(s, 0, 600) {}
    KroStatus kroi() { return kroiConvert_16u8u_C1R(src.ptr<Kro16u>(), src.step(), dst.ptr(), dst.step(), src.roi()); }
#ifdef KROI_HAVE_OPENCV
    void opencv() { S.convertTo(D, CV_8U); }
#endif
};

// [vMin, vMax] = [-1, 3] onto 0..255: convertTo with alpha = 255 / 4 and beta = 255 / 4 does
// the same map without the clamp to the range (its saturation clamps the result instead).
struct Scale32f8u : Pair<Depth::f32, Depth::u8> {
    explicit Scale32f8u(kb::Size s) : Pair(s, -2, 4) {}
    KroStatus kroi()
    {
        return kroiScale_32f8u_C1R(src.ptr<Kro32f>(), src.step(), dst.ptr(), dst.step(), src.roi(), -1.0f, 3.0f);
    }
#ifdef KROI_HAVE_OPENCV
    void opencv() { S.convertTo(D, CV_8U, 255.0 / 4, 255.0 / 4); }
#endif
};

const bool registered = [] {
    const kb::Size sizes[] = {kb::kHD, kb::k4K};
    kb::addCase<Convert8u32f>("Convert/8u32f_C1", sizes);
    kb::addCase<Convert32f8u>("Convert/32f8u_C1_mode1", sizes);
    kb::addCase<Convert16s8u>("Convert/16s8u_C1", sizes);
    kb::addCase<Convert32f16s>("Convert/32f16s_C1_mode1", sizes);
    kb::addCase<Convert16u8u>("Convert/16u8u_C1", sizes);
    kb::addCase<Scale32f8u>("Convert/Scale_32f8u_C1", sizes);
    return true;
}();

}  // namespace
