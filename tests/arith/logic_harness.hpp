// Test harness of the pixel-wise families with one constant per channel (bitwise logic,
// shifts, arithmetic with constants): members as table rows, calls adapted to one shape, and
// the sweeps that run a member against its rule on random images between guard pages.
#pragma once

#include <functional>
#include <string>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

#include "kroi.h"
#include "support/compare.hpp"
#include "support/guarded.hpp"
#include "support/random.hpp"

namespace kt::pix {

// ---- adapters: every member called with its constants as an array -----------------------

template <class P>
using ValueOf = std::remove_cv_t<std::remove_pointer_t<P>>;
template <class P>
P pass(const ValueOf<P>* v)
{
    if constexpr (std::is_pointer_v<P>) return v;
    else return *v;
}

// f(pSrc, srcStep, value, pDst, dstStep, roi[, more...]) called with the value as an array;
// the steps and size may be the 32-bit or the 64-bit ones.
template <auto F>
struct ConstR;
template <class S, class P, class D, class St, class Sz, class... More,
          KroStatus (*F)(const S*, St, P, D*, St, Sz, More...)>
struct ConstR<F> {
    static KroStatus call(const S* s, St ss, const ValueOf<P>* v, D* d, St sd, Sz r, More... m)
    {
        return F(s, ss, pass<P>(v), d, sd, r, m...);
    }
};
// f(value, pSrcDst, srcDstStep, roi[, more...]) likewise.
template <auto F>
struct ConstI;
template <class P, class D, class St, class Sz, class... More, KroStatus (*F)(P, D*, St, Sz, More...)>
struct ConstI<F> {
    static KroStatus call(const ValueOf<P>* v, D* d, St sd, Sz r, More... m) { return F(pass<P>(v), d, sd, r, m...); }
};

// ---- member rows: a name, channels per pixel, channels computed, out-of-place and in-place -

template <class T>
struct BinMember {
    const char* name;
    int channels, written;
    KroStatus (*r)(const T*, int, const T*, int, T*, int, KroiSize);
    KroStatus (*i)(const T*, int, T*, int, KroiSize);
};
template <class T, class V, class... More>
struct ConstMember {
    using Elem = T;
    const char* name;
    int channels, written;
    KroStatus (*r)(const T*, int, const V*, T*, int, KroiSize, More...);
    KroStatus (*i)(const V*, T*, int, KroiSize, More...);
};
template <class T>
struct UnaryMember {
    const char* name;
    int channels, written;
    KroStatus (*r)(const T*, int, T*, int, KroiSize);
    KroStatus (*i)(T*, int, KroiSize);
};

// ---- shapes -------------------------------------------------------------------------------

// Widths around every vector length and pattern period, the shapes that reach each row walk:
// tight rows (merged into one), padded rows at an odd offset ending at a guard page, padded
// rows starting right after one, and bottom-up rows for the families that take negative steps.
inline const std::vector<int> kWidths = {1, 2, 3, 4, 5, 7, 8, 15, 16, 17, 31, 33, 48, 65};
inline std::vector<Shape> shapes(int channels, int elemSize, bool negativeSteps, const std::vector<int>& widths = kWidths)
{
    std::vector<Shape> v;
    for (int w : widths) {
        v.push_back(Shape{w, 3, channels, 0, Guard::After, 0, false});
        v.push_back(Shape{w, 2, channels, 3 * elemSize, Guard::Before, elemSize, false});
        if (negativeSteps) v.push_back(Shape{w, 2, channels, 5 * elemSize, Guard::After, 0, true});
    }
    v.push_back(Shape{70, 1, channels, 0, Guard::Before, 0, false});
    return v;
}

// A copy of `src` in an image of shape `shape` (the same size), canaries in the padding.
template <class T>
void copyElements(const Guarded<T>& src, Guarded<T>& dst)
{
    dst.forEach([&](int x, int y, int c, T& e) { e = src.at(x, y, c); });
}

// ---- sweeps -------------------------------------------------------------------------------
// `written` is the number of leading channels a member computes (3 for AC4); the rest of each
// pixel and the row padding must keep their bytes.  want(inputs..., channel) gives an element.

template <class T>
using UnaryR = std::function<KroStatus(const T*, int, T*, int, KroiSize)>;
template <class T>
using UnaryI = std::function<KroStatus(T*, int, KroiSize)>;
template <class T>
using BinaryR = std::function<KroStatus(const T*, int, const T*, int, T*, int, KroiSize)>;
template <class T>
using BinaryI = std::function<KroStatus(const T*, int, T*, int, KroiSize)>;

// Fills an image from `gen` (a random element by default).
template <class T>
using Gen = std::function<T(Rng&)>;
// The expected element from a source element and its channel, and from two sources.  Taken
// as std::function so that every rule shares one copy of each sweep per element type.
template <class T>
using Want = std::function<T(T, int)>;
template <class T>
using Want2 = std::function<T(T, T)>;

template <class T>
Gen<T> anyValue()
{
    return [](Rng& r) { return randomValue<T>(r); };
}

template <class T>
void sweepUnary(const std::string& name, int channels, int written, const UnaryR<T>& out, const UnaryI<T>& in,
                const Want<T>& want, Rng& rng, const Gen<T>& gen = anyValue<T>(), bool negativeSteps = false,
                KroStatus expect = kroStsOk, const std::vector<int>& widths = kWidths)
{
    for (const Shape& sh : shapes(channels, sizeof(T), negativeSteps, widths)) {
        SCOPED_TRACE(name + " width " + std::to_string(sh.width) + " pad " + std::to_string(sh.padBytes) +
                     (sh.bottomUp ? " bottom-up" : ""));
        Guarded<T> src(sh), dst(sh);
        src.forEach([&](int, int, int, T& e) { e = gen(rng); });
        fillRandom(dst, rng);
        const auto srcBefore = src.snapshot(), dstBefore = dst.snapshot();
        const KroiSize roi{sh.width, sh.height};
        if (out) {
            ASSERT_EQ(out(src.ptr(), src.step(), dst.ptr(), dst.step(), roi), expect);
            EXPECT_TRUE(src.unchangedSince(srcBefore));
            EXPECT_TRUE(dst.restUnchangedSince(dstBefore, written));
            EXPECT_IMAGE_EQ(dst, [&](int x, int y, int c) { return c < written ? want(src.at(x, y, c), c) : dst.at(x, y, c); });
        }
        if (in) {
            Guarded<T> sd(sh);
            sd.fillBytes(0x5A);
            copyElements(src, sd);
            const auto sdBefore = sd.snapshot();
            ASSERT_EQ(in(sd.ptr(), sd.step(), roi), expect);
            EXPECT_TRUE(sd.restUnchangedSince(sdBefore, written));
            EXPECT_IMAGE_EQ(sd, [&](int x, int y, int c) { return c < written ? want(src.at(x, y, c), c) : src.at(x, y, c); });
        }
    }
}

// A member with constants `k` (and trailing arguments such as a scale factor), both forms.
template <class M, class V, class... More>
void sweepConst(const M& m, const V* k, const Want<typename M::Elem>& want, Rng& rng, bool negativeSteps, const std::vector<int>& widths,
                More... more)
{
    using T = typename M::Elem;
    sweepUnary<T>(m.name, m.channels, m.written,
                  [&](const T* s, int ss, T* d, int sd, KroiSize r) { return m.r(s, ss, k, d, sd, r, more...); },
                  [&](T* sd, int sds, KroiSize r) { return m.i(k, sd, sds, r, more...); }, want, rng, anyValue<T>(),
                  negativeSteps, kroStsOk, widths);
}

template <class T>
void sweepBinary(const std::string& name, int channels, int written, const BinaryR<T>& out, const BinaryI<T>& in,
                 const Want2<T>& want, Rng& rng)
{
    for (const Shape& sh : shapes(channels, sizeof(T), false)) {
        SCOPED_TRACE(name + " width " + std::to_string(sh.width) + " pad " + std::to_string(sh.padBytes));
        Shape other = sh;
        other.guard = sh.guard == Guard::After ? Guard::Before : Guard::After;
        Guarded<T> a(sh), b(other), dst(sh);
        fillRandom(a, rng);
        fillRandom(b, rng);
        fillRandom(dst, rng);
        const auto dstBefore = dst.snapshot();
        const KroiSize roi{sh.width, sh.height};
        ASSERT_EQ(out(a.ptr(), a.step(), b.ptr(), b.step(), dst.ptr(), dst.step(), roi), kroStsOk);
        EXPECT_TRUE(dst.restUnchangedSince(dstBefore, written));
        EXPECT_IMAGE_EQ(dst, [&](int x, int y, int c) {
            return c < written ? want(a.at(x, y, c), b.at(x, y, c)) : dst.at(x, y, c);
        });
        Guarded<T> sd(other);
        copyElements(b, sd);
        const auto sdBefore = sd.snapshot();
        ASSERT_EQ(in(a.ptr(), a.step(), sd.ptr(), sd.step(), roi), kroStsOk);
        EXPECT_TRUE(sd.restUnchangedSince(sdBefore, written));
        EXPECT_IMAGE_EQ(sd, [&](int x, int y, int c) { return c < written ? want(a.at(x, y, c), b.at(x, y, c)) : b.at(x, y, c); });
    }
}

// ---- check order --------------------------------------------------------------------------

// One bad-argument case: which pointer is null, the step and the size to pass, the status.
// kOwnStep stands for the images' own (valid) step.
constexpr int kOwnStep = -0x7FFFFFFF - 1;
struct BadCall {
    const char* what;
    bool nullSrc, nullDst;
    int step;
    KroiSize roi;
    KroStatus want;
};

// Runs `call(src or null, step, dst or null, step, roi)` for every case on canary images and
// checks the status and that nothing was written.
template <class T>
void expectCheckOrder(const std::string& name, int channels, const std::vector<BadCall>& cases,
                      const std::function<KroStatus(const T*, int, T*, int, KroiSize)>& call)
{
    for (const BadCall& b : cases) {
        Guarded<T> src(4, 2, channels), dst(4, 2, channels);
        src.fillBytes(0x33);
        dst.fillBytes(0xC5);
        const auto before = dst.snapshot();
        const int step = b.step == kOwnStep ? src.step() : b.step;
        EXPECT_EQ(call(b.nullSrc ? nullptr : src.ptr(), step, b.nullDst ? nullptr : dst.ptr(), step, b.roi), b.want)
            << name << ": " << b.what;
        EXPECT_TRUE(dst.unchangedSince(before)) << name << ": " << b.what;
    }
}

// The check order of the bitwise logic and shifts: pointers, then steps, then size.
inline const std::vector<BadCall>& logicOrder()
{
    static const std::vector<BadCall> cases = {
        {"null source, zero step and width", true, false, 0, {0, 0}, kroStsNullPointerErr},
        {"null destination, zero step and width", false, true, 0, {0, 0}, kroStsNullPointerErr},
        {"zero step and zero width", false, false, 0, {0, 2}, kroStsBadStepErr},
        {"negative step and zero height", false, false, -16, {4, 0}, kroStsBadStepErr},
        {"zero width", false, false, kOwnStep, {0, 2}, kroStsBadSizeErr},
        {"zero height", false, false, kOwnStep, {4, 0}, kroStsBadSizeErr},
        {"negative width", false, false, kOwnStep, {-3, 2}, kroStsBadSizeErr},
    };
    return cases;
}

// Members with constants through a check order, out of place and in place, with the
// constants `k` (and trailing arguments `more`); members with an array of constants also get
// a null array.
template <class Members, class V, class... More>
void expectCheckOrder(const Members& members, const V (&k)[4], const std::vector<BadCall>& cases, More... more)
{
    for (const auto& m : members) {
        using T = typename std::remove_cvref_t<decltype(m)>::Elem;
        expectCheckOrder<T>(m.name, m.channels, cases,
                            [&](const T* s, int st, T* d, int sd, KroiSize r) { return m.r(s, st, k, d, sd, r, more...); });
        expectCheckOrder<T>(m.name, m.channels, cases, [&](const T* s, int, T* d, int sd, KroiSize r) {
            return m.i(k, s ? d : nullptr, sd, r, more...);
        });
        if (m.channels > 1) {
            Guarded<T> a(2, 2, m.channels), b(2, 2, m.channels);
            EXPECT_EQ(m.r(a.ptr(), 0, nullptr, b.ptr(), 0, {0, 0}, more...), kroStsNullPointerErr) << m.name;
            EXPECT_EQ(m.i(nullptr, b.ptr(), 0, {0, 0}, more...), kroStsNullPointerErr) << m.name;
        }
    }
}

}  // namespace kt::pix
