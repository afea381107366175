// The conversion family's test harness: every member is a call from one source image to one
// destination image (parameters bound in a lambda) and a reference that gives one element's
// result from one source element, written from the rule alone.  sweep() runs the call over
// guarded images of many shapes (tight rows that merge into one, padded rows, odd starts,
// guard pages on either side), with random data and, for 8- and 16-bit sources, every value
// of the type; it checks every element, that padding and AC4 alpha stay as they were, and
// that the caller's MXCSR (set to round down) is exactly as it was after every call.
#pragma once

#include <xmmintrin.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <string>
#include <type_traits>
#include <vector>

#include "kroi.h"
#include "support/compare.hpp"
#include "support/guarded.hpp"
#include "support/random.hpp"

// A member of a table: its name and the function (tests spell every exported name).
#define KT_M(fn, layout) #fn, fn, layout

namespace cvtest {

// Layout codes of the member tables: 1, 3, 4 channels, and 5 for AC4.
constexpr int kAC4 = 5;
inline int channelsOf(int layout) { return layout == kAC4 ? 4 : layout; }
inline int writtenOf(int layout) { return layout == kAC4 ? 3 : layout; }

// The caller's MXCSR during every call: round down (so that a kernel relying on the default
// rounding shows), every exception masked, no flag set (so that a flag left raised shows).
constexpr unsigned kCallerCsr = 0x3F80;
constexpr unsigned kDefaultCsr = 0x1F80;

template <class F>
KroStatus callAsCaller(F&& call)
{
    _mm_setcsr(kCallerCsr);
    const KroStatus status = call();
    const unsigned after = _mm_getcsr();
    _mm_setcsr(kDefaultCsr);
    EXPECT_EQ(after, kCallerCsr) << "the caller's MXCSR changed";
    return status;
}

// Where float sources draw from: ordinary values in [lo, hi], halves in it (ties), and the
// special values (zeros of both signs, extremes, denormals, infinities, NaN).
struct FloatSource {
    double lo = -1000, hi = 1000;
};

template <class S>
S draw(kt::Rng& rng, const FloatSource& fs)
{
    if constexpr (std::is_integral_v<S>) {
        return kt::randomValue<S>(rng);
    } else {
        const int kind = kt::uniform<int>(rng, 0, 9);
        if (kind < 2) {
            const auto& sp = kt::specialValues<S>();
            return sp[kt::uniform<std::size_t>(rng, 0, sp.size() - 1)];
        }
        const double u = std::uniform_real_distribution<double>(fs.lo, fs.hi)(rng);
        if (kind < 5) return S(std::floor(u) + 0.5);  // a tie
        if (kind < 6) return S(std::floor(u));        // an integral value
        return S(u);
    }
}

// Padding and offset count elements, so that every row of a 16- or 32-bit image stays
// aligned to its element (a misaligned element pointer is the caller's fault) while starts
// still fall anywhere relative to 16 bytes.
struct Geometry {
    int width, height, padSrc, padDst;
    kt::Guard guard;
    int offset;
};

template <class T>
kt::Shape shapeOf(const Geometry& g, int channels, int pad)
{
    const int size = int(sizeof(T));
    return kt::Shape{g.width, g.height, channels, pad * size, g.guard, g.offset * size};
}

// Widths around the 16-element block, heights that merge or not, tight and padded steps,
// the guard page after the last byte or before the first (with odd starts).
inline const std::vector<Geometry>& fullGeometries()
{
    static const std::vector<Geometry> g = {
        {1, 1, 0, 0, kt::Guard::After, 0},   {3, 2, 0, 0, kt::Guard::After, 0},
        {15, 3, 0, 0, kt::Guard::Before, 1}, {16, 2, 0, 0, kt::Guard::After, 0},
        {17, 3, 5, 3, kt::Guard::After, 0},  {33, 2, 13, 0, kt::Guard::Before, 3},
        {64, 1, 0, 0, kt::Guard::Before, 2}, {70, 3, 0, 6, kt::Guard::After, 0},
        {47, 4, 16, 16, kt::Guard::Before, 0},
        {130, 40, 7, 5, kt::Guard::Before, 3}}; // past the pixel counts where kernels change path
    return g;
}
inline const std::vector<Geometry>& quickGeometries()
{
    static const std::vector<Geometry> g = {{1, 2, 0, 0, kt::Guard::After, 0},
                                            {37, 3, 0, 0, kt::Guard::Before, 1},
                                            {21, 2, 6, 2, kt::Guard::After, 0}};
    return g;
}

enum class Depth { full, quick };

// A callable passed by reference without its type, so that the heavy parts of the harness
// are compiled once per pair of element types rather than once per lambda.
template <class Sig>
class Fn;
template <class R, class... A>
class Fn<R(A...)> {
public:
    // The callable must outlive the Fn (a temporary lasts to the end of the call it is an
    // argument of, which is all the harness needs).
    template <class F>
        requires(!std::is_same_v<std::remove_cvref_t<F>, Fn>)
    Fn(F&& f)
        : obj_(const_cast<void*>(static_cast<const void*>(&f))),
          call_([](void* o, A... a) -> R { return (*static_cast<std::remove_reference_t<F>*>(o))(a...); })
    {
    }
    R operator()(A... a) const { return call_(obj_, a...); }

private:
    void* obj_;
    R (*call_)(void*, A...);
};

template <class S, class D>
using CallFn = Fn<KroStatus(const S*, int, D*, int, KroiSize)>;
template <class S, class D>
using RefFn = Fn<D(S)>;

// One call on one geometry.  `fill(src)` sets the source elements.
template <class S, class D>
void runOnce(const std::string& what, int layout, const Geometry& g, CallFn<S, D> call, RefFn<S, D> ref,
             Fn<void(kt::Guarded<S>&)> fill)
{
    const int ch = channelsOf(layout), wr = writtenOf(layout);
    kt::Guarded<S> src(shapeOf<S>(g, ch, g.padSrc));
    kt::Guarded<D> dst(shapeOf<D>(g, ch, g.padDst));
    fill(src);
    dst.fillBytes(0xA5);
    const auto before = dst.snapshot();
    const KroStatus st = callAsCaller([&] {
        return call(src.ptr(), src.step(), dst.ptr(), dst.step(), KroiSize{g.width, g.height});
    });
    ASSERT_EQ(st, kroStsOk) << what << " on " << g.width << "x" << g.height;
    EXPECT_TRUE(dst.restUnchangedSince(before, wr)) << what;
    EXPECT_TRUE(kt::imageEquals(dst, [&](int x, int y, int c) {
        return c < wr ? ref(src.at(x, y, c)) : dst.at(x, y, c);
    })) << what << " on " << g.width << "x" << g.height << " pads " << g.padSrc << "/" << g.padDst;
}

// The call against the reference on every geometry of the depth, random data, and (8- and
// 16-bit sources) one image holding every value of the type.
template <class S, class D, class Call, class Ref>
void sweep(const std::string& what, int layout, Call call, Ref ref, kt::Rng& rng, Depth depth,
           const FloatSource& fs = {})
{
    auto random = [&](kt::Guarded<S>& s) { s.forEach([&](int, int, int, S& e) { e = draw<S>(rng, fs); }); };
    for (const Geometry& g : depth == Depth::full ? fullGeometries() : quickGeometries())
        runOnce<S, D>(what, layout, g, call, ref, random);
    if constexpr (std::is_integral_v<S> && sizeof(S) <= 2) {
        const long count = 1L << (8 * sizeof(S));
        const int width = 256, wr = writtenOf(layout);
        // 8-bit values repeat down 17 rows, so that the image is also large enough for the
        // kernels that change path with the pixel count.
        const int height = sizeof(S) == 1 ? 17 : int((count + long(width) * wr - 1) / (long(width) * wr));
        const Geometry g{width, height, 0, 0, kt::Guard::After, 0};
        auto every = [&](kt::Guarded<S>& s) {
            long k = 0;
            s.forEach([&](int, int, int c, S& e) {
                if (c < wr) e = S(std::numeric_limits<S>::min() + k++ % count);
            });
        };
        runOnce<S, D>(what + " (every value)", layout, g, call, ref, every);
    }
}

// The in-place form: the image holds the source elements (of type S, the same size as D)
// and receives the results.
template <class S, class D, class Call, class Ref>
void sweepInPlace(const std::string& what, Call call, Ref ref, kt::Rng& rng, const FloatSource& fs = {})
{
    static_assert(sizeof(S) == sizeof(D));
    for (const Geometry& g : fullGeometries()) {
        kt::Guarded<D> img(shapeOf<D>(g, 1, g.padDst));
        img.fillBytes(0xA5);
        std::vector<S> values;
        img.forEach([&](int, int, int, D& e) {
            const S v = draw<S>(rng, fs);
            values.push_back(v);
            std::memcpy(&e, &v, sizeof v);
        });
        const auto before = img.snapshot();
        const KroStatus st = callAsCaller([&] { return call(img.ptr(), img.step(), KroiSize{g.width, g.height}); });
        ASSERT_EQ(st, kroStsOk) << what;
        EXPECT_TRUE(img.restUnchangedSince(before, 1)) << what;
        EXPECT_TRUE(kt::imageEquals(img, [&](int x, int y, int) { return ref(values[size_t(y) * g.width + x]); }))
            << what << " on " << g.width << "x" << g.height;
    }
}

// Float to integer rows convert a block of sixteen without clamping and convert it again,
// clamped, when a lane came out as INT32_MIN.  Here each value that does (NaN, infinities,
// floats beyond the int32 range) stands at each position of three blocks of ordinary
// values from `fs`: it must get its own result and leave the other lanes theirs.
template <class D, class Call, class Ref>
void outOfRangeLanes(const std::string& what, Call call, Ref ref, const FloatSource& fs)
{
    constexpr int kN = 48;
    const float inf = std::numeric_limits<float>::infinity(), nan = std::numeric_limits<float>::quiet_NaN();
    const float odd[] = {nan, -nan, inf, -inf, 3e9f, -3e9f, 2147483648.0f, -2147483648.0f, 2147483520.0f};
    kt::Rng rng = kt::rngForTest();
    Kro32f ordinary[kN];
    for (Kro32f& v : ordinary) v = Kro32f(std::uniform_real_distribution<double>(fs.lo, fs.hi)(rng));
    for (float value : odd)
        for (int pos = 0; pos < kN; ++pos) {
            Kro32f src[kN];
            D dst[kN];
            std::memcpy(src, ordinary, sizeof src);
            src[pos] = value;
            ASSERT_EQ(callAsCaller([&] { return call(src, int(sizeof src), dst, int(sizeof dst), KroiSize{kN, 1}); }),
                      kroStsOk)
                << what;
            for (int i = 0; i < kN; ++i)
                ASSERT_EQ(int64_t(dst[i]), int64_t(ref(src[i])))
                    << what << ": " << value << " at " << pos << ", element " << i << " from " << src[i];
        }
}

// Check order: each row names the arguments that are wrong and the status the family owes.
struct BadCall {
    bool nullSrc, nullDst;
    int width, height, srcStep, dstStep;  // a step of 0 here means "the image's own step"
    KroStatus expected;
};

// Pointers (-8), size (-6), steps (-16) when the family checks them.  Nothing is written.
inline std::vector<BadCall> orderTable(bool checksSteps)
{
    std::vector<BadCall> t = {
        {true, false, 0, 2, -1, -1, kroStsNullPointerErr},  {false, true, 3, 0, 0, 0, kroStsNullPointerErr},
        {true, true, 3, 2, 0, 0, kroStsNullPointerErr},     {false, false, 0, 2, -1, -1, kroStsBadSizeErr},
        {false, false, 3, -1, 0, 0, kroStsBadSizeErr},      {false, false, INT32_MIN, 2, 0, 0, kroStsBadSizeErr}};
    if (checksSteps) {
        t.push_back({false, false, 3, 2, -1, 0, kroStsBadStepErr});
        t.push_back({false, false, 3, 2, 0, -64, kroStsBadStepErr});
    }
    return t;
}

template <class S, class D>
void checkOrder(const std::string& what, CallFn<S, D> call, bool checksSteps)
{
    kt::Guarded<S> src(3, 2, 4);
    kt::Guarded<D> dst(3, 2, 4);
    for (const BadCall& b : orderTable(checksSteps)) {
        dst.fillBytes(0x5A);
        const auto before = dst.snapshot();
        const KroStatus st = callAsCaller([&] {
            return call(b.nullSrc ? nullptr : src.ptr(), b.srcStep == 0 ? src.step() : b.srcStep,
                        b.nullDst ? nullptr : dst.ptr(), b.dstStep == 0 ? dst.step() : b.dstStep,
                        KroiSize{b.width, b.height});
        });
        EXPECT_EQ(st, b.expected) << what << " width " << b.width << " height " << b.height;
        EXPECT_TRUE(dst.unchangedSince(before)) << what;
    }
}

// Reference helpers, from the rules: long double holds every source value exactly.
template <class D>
D clampTo(long double v)
{
    if (std::isnan(v)) return D(0);
    const long double lo = std::numeric_limits<D>::lowest(), hi = std::numeric_limits<D>::max();
    return D(v < lo ? lo : v > hi ? hi : v);
}

// Rounding by mode: 0 toward zero, 1 to nearest even, every other value ties away.
inline long double roundMode(long double v, int mode)
{
    if (mode == 0) return std::trunc(v);
    if (mode == 1) return std::nearbyint(v);  // the test runs with the default rounding
    return std::round(v);
}

}  // namespace cvtest
