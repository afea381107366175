// Arithmetic with constants against its rule: every member, every scale factor from -40 to
// 40, past every fill threshold and through every shortcut, in place and out of place between
// guard pages, AC4 alpha untouched; 32f against IEEE; the _L forms on both of their paths;
// the check orders of AddC/SubC/MulC (no steps) and DivC (steps before the divisor).
#include <cstdint>
#include <limits>
#include <span>
#include <string>

#include <gtest/gtest.h>

#include "arith/logic_harness.hpp"
#include "support/reference.hpp"

namespace {

using namespace kt::pix;
namespace ref = kt::ref;

// One member: out-of-place and in-place forms, 32-bit and _L.
template <class T, class... More>
struct CMember {
    using Elem = T;
    const char* name;
    int channels, written;
    KroStatus (*r)(const T*, int, const T*, T*, int, KroiSize, More...);
    KroStatus (*i)(const T*, T*, int, KroiSize, More...);
    KroStatus (*rl)(const T*, int64_t, const T*, T*, int64_t, KroiSizeL, More...);
    KroStatus (*il)(const T*, T*, int64_t, KroiSizeL, More...);
};

const CMember<Kro8u, int> kAddC8u[] = {
    {"kroiAddC_8u_C1RSfs", 1, 1, ConstR<kroiAddC_8u_C1RSfs>::call, ConstI<kroiAddC_8u_C1IRSfs>::call, ConstR<kroiAddC_8u_C1RSfs_L>::call, ConstI<kroiAddC_8u_C1IRSfs_L>::call},
    {"kroiAddC_8u_C3RSfs", 3, 3, ConstR<kroiAddC_8u_C3RSfs>::call, ConstI<kroiAddC_8u_C3IRSfs>::call, ConstR<kroiAddC_8u_C3RSfs_L>::call, ConstI<kroiAddC_8u_C3IRSfs_L>::call},
    {"kroiAddC_8u_C4RSfs", 4, 4, ConstR<kroiAddC_8u_C4RSfs>::call, ConstI<kroiAddC_8u_C4IRSfs>::call, ConstR<kroiAddC_8u_C4RSfs_L>::call, ConstI<kroiAddC_8u_C4IRSfs_L>::call},
    {"kroiAddC_8u_AC4RSfs", 4, 3, ConstR<kroiAddC_8u_AC4RSfs>::call, ConstI<kroiAddC_8u_AC4IRSfs>::call, ConstR<kroiAddC_8u_AC4RSfs_L>::call, ConstI<kroiAddC_8u_AC4IRSfs_L>::call},
};
const CMember<Kro16u, int> kAddC16u[] = {
    {"kroiAddC_16u_C1RSfs", 1, 1, ConstR<kroiAddC_16u_C1RSfs>::call, ConstI<kroiAddC_16u_C1IRSfs>::call, ConstR<kroiAddC_16u_C1RSfs_L>::call, ConstI<kroiAddC_16u_C1IRSfs_L>::call},
    {"kroiAddC_16u_C3RSfs", 3, 3, ConstR<kroiAddC_16u_C3RSfs>::call, ConstI<kroiAddC_16u_C3IRSfs>::call, ConstR<kroiAddC_16u_C3RSfs_L>::call, ConstI<kroiAddC_16u_C3IRSfs_L>::call},
    {"kroiAddC_16u_C4RSfs", 4, 4, ConstR<kroiAddC_16u_C4RSfs>::call, ConstI<kroiAddC_16u_C4IRSfs>::call, ConstR<kroiAddC_16u_C4RSfs_L>::call, ConstI<kroiAddC_16u_C4IRSfs_L>::call},
    {"kroiAddC_16u_AC4RSfs", 4, 3, ConstR<kroiAddC_16u_AC4RSfs>::call, ConstI<kroiAddC_16u_AC4IRSfs>::call, ConstR<kroiAddC_16u_AC4RSfs_L>::call, ConstI<kroiAddC_16u_AC4IRSfs_L>::call},
};
const CMember<Kro16s, int> kAddC16s[] = {
    {"kroiAddC_16s_C1RSfs", 1, 1, ConstR<kroiAddC_16s_C1RSfs>::call, ConstI<kroiAddC_16s_C1IRSfs>::call, ConstR<kroiAddC_16s_C1RSfs_L>::call, ConstI<kroiAddC_16s_C1IRSfs_L>::call},
    {"kroiAddC_16s_C3RSfs", 3, 3, ConstR<kroiAddC_16s_C3RSfs>::call, ConstI<kroiAddC_16s_C3IRSfs>::call, ConstR<kroiAddC_16s_C3RSfs_L>::call, ConstI<kroiAddC_16s_C3IRSfs_L>::call},
    {"kroiAddC_16s_C4RSfs", 4, 4, ConstR<kroiAddC_16s_C4RSfs>::call, ConstI<kroiAddC_16s_C4IRSfs>::call, ConstR<kroiAddC_16s_C4RSfs_L>::call, ConstI<kroiAddC_16s_C4IRSfs_L>::call},
    {"kroiAddC_16s_AC4RSfs", 4, 3, ConstR<kroiAddC_16s_AC4RSfs>::call, ConstI<kroiAddC_16s_AC4IRSfs>::call, ConstR<kroiAddC_16s_AC4RSfs_L>::call, ConstI<kroiAddC_16s_AC4IRSfs_L>::call},
};
const CMember<Kro32f> kAddC32f[] = {
    {"kroiAddC_32f_C1R", 1, 1, ConstR<kroiAddC_32f_C1R>::call, ConstI<kroiAddC_32f_C1IR>::call, ConstR<kroiAddC_32f_C1R_L>::call, ConstI<kroiAddC_32f_C1IR_L>::call},
    {"kroiAddC_32f_C3R", 3, 3, ConstR<kroiAddC_32f_C3R>::call, ConstI<kroiAddC_32f_C3IR>::call, ConstR<kroiAddC_32f_C3R_L>::call, ConstI<kroiAddC_32f_C3IR_L>::call},
    {"kroiAddC_32f_C4R", 4, 4, ConstR<kroiAddC_32f_C4R>::call, ConstI<kroiAddC_32f_C4IR>::call, ConstR<kroiAddC_32f_C4R_L>::call, ConstI<kroiAddC_32f_C4IR_L>::call},
    {"kroiAddC_32f_AC4R", 4, 3, ConstR<kroiAddC_32f_AC4R>::call, ConstI<kroiAddC_32f_AC4IR>::call, ConstR<kroiAddC_32f_AC4R_L>::call, ConstI<kroiAddC_32f_AC4IR_L>::call},
};
const CMember<Kro8u, int> kSubC8u[] = {
    {"kroiSubC_8u_C1RSfs", 1, 1, ConstR<kroiSubC_8u_C1RSfs>::call, ConstI<kroiSubC_8u_C1IRSfs>::call, ConstR<kroiSubC_8u_C1RSfs_L>::call, ConstI<kroiSubC_8u_C1IRSfs_L>::call},
    {"kroiSubC_8u_C3RSfs", 3, 3, ConstR<kroiSubC_8u_C3RSfs>::call, ConstI<kroiSubC_8u_C3IRSfs>::call, ConstR<kroiSubC_8u_C3RSfs_L>::call, ConstI<kroiSubC_8u_C3IRSfs_L>::call},
    {"kroiSubC_8u_C4RSfs", 4, 4, ConstR<kroiSubC_8u_C4RSfs>::call, ConstI<kroiSubC_8u_C4IRSfs>::call, ConstR<kroiSubC_8u_C4RSfs_L>::call, ConstI<kroiSubC_8u_C4IRSfs_L>::call},
    {"kroiSubC_8u_AC4RSfs", 4, 3, ConstR<kroiSubC_8u_AC4RSfs>::call, ConstI<kroiSubC_8u_AC4IRSfs>::call, ConstR<kroiSubC_8u_AC4RSfs_L>::call, ConstI<kroiSubC_8u_AC4IRSfs_L>::call},
};
const CMember<Kro16u, int> kSubC16u[] = {
    {"kroiSubC_16u_C1RSfs", 1, 1, ConstR<kroiSubC_16u_C1RSfs>::call, ConstI<kroiSubC_16u_C1IRSfs>::call, ConstR<kroiSubC_16u_C1RSfs_L>::call, ConstI<kroiSubC_16u_C1IRSfs_L>::call},
    {"kroiSubC_16u_C3RSfs", 3, 3, ConstR<kroiSubC_16u_C3RSfs>::call, ConstI<kroiSubC_16u_C3IRSfs>::call, ConstR<kroiSubC_16u_C3RSfs_L>::call, ConstI<kroiSubC_16u_C3IRSfs_L>::call},
    {"kroiSubC_16u_C4RSfs", 4, 4, ConstR<kroiSubC_16u_C4RSfs>::call, ConstI<kroiSubC_16u_C4IRSfs>::call, ConstR<kroiSubC_16u_C4RSfs_L>::call, ConstI<kroiSubC_16u_C4IRSfs_L>::call},
    {"kroiSubC_16u_AC4RSfs", 4, 3, ConstR<kroiSubC_16u_AC4RSfs>::call, ConstI<kroiSubC_16u_AC4IRSfs>::call, ConstR<kroiSubC_16u_AC4RSfs_L>::call, ConstI<kroiSubC_16u_AC4IRSfs_L>::call},
};
const CMember<Kro16s, int> kSubC16s[] = {
    {"kroiSubC_16s_C1RSfs", 1, 1, ConstR<kroiSubC_16s_C1RSfs>::call, ConstI<kroiSubC_16s_C1IRSfs>::call, ConstR<kroiSubC_16s_C1RSfs_L>::call, ConstI<kroiSubC_16s_C1IRSfs_L>::call},
    {"kroiSubC_16s_C3RSfs", 3, 3, ConstR<kroiSubC_16s_C3RSfs>::call, ConstI<kroiSubC_16s_C3IRSfs>::call, ConstR<kroiSubC_16s_C3RSfs_L>::call, ConstI<kroiSubC_16s_C3IRSfs_L>::call},
    {"kroiSubC_16s_C4RSfs", 4, 4, ConstR<kroiSubC_16s_C4RSfs>::call, ConstI<kroiSubC_16s_C4IRSfs>::call, ConstR<kroiSubC_16s_C4RSfs_L>::call, ConstI<kroiSubC_16s_C4IRSfs_L>::call},
    {"kroiSubC_16s_AC4RSfs", 4, 3, ConstR<kroiSubC_16s_AC4RSfs>::call, ConstI<kroiSubC_16s_AC4IRSfs>::call, ConstR<kroiSubC_16s_AC4RSfs_L>::call, ConstI<kroiSubC_16s_AC4IRSfs_L>::call},
};
const CMember<Kro32f> kSubC32f[] = {
    {"kroiSubC_32f_C1R", 1, 1, ConstR<kroiSubC_32f_C1R>::call, ConstI<kroiSubC_32f_C1IR>::call, ConstR<kroiSubC_32f_C1R_L>::call, ConstI<kroiSubC_32f_C1IR_L>::call},
    {"kroiSubC_32f_C3R", 3, 3, ConstR<kroiSubC_32f_C3R>::call, ConstI<kroiSubC_32f_C3IR>::call, ConstR<kroiSubC_32f_C3R_L>::call, ConstI<kroiSubC_32f_C3IR_L>::call},
    {"kroiSubC_32f_C4R", 4, 4, ConstR<kroiSubC_32f_C4R>::call, ConstI<kroiSubC_32f_C4IR>::call, ConstR<kroiSubC_32f_C4R_L>::call, ConstI<kroiSubC_32f_C4IR_L>::call},
    {"kroiSubC_32f_AC4R", 4, 3, ConstR<kroiSubC_32f_AC4R>::call, ConstI<kroiSubC_32f_AC4IR>::call, ConstR<kroiSubC_32f_AC4R_L>::call, ConstI<kroiSubC_32f_AC4IR_L>::call},
};
const CMember<Kro8u, int> kMulC8u[] = {
    {"kroiMulC_8u_C1RSfs", 1, 1, ConstR<kroiMulC_8u_C1RSfs>::call, ConstI<kroiMulC_8u_C1IRSfs>::call, ConstR<kroiMulC_8u_C1RSfs_L>::call, ConstI<kroiMulC_8u_C1IRSfs_L>::call},
    {"kroiMulC_8u_C3RSfs", 3, 3, ConstR<kroiMulC_8u_C3RSfs>::call, ConstI<kroiMulC_8u_C3IRSfs>::call, ConstR<kroiMulC_8u_C3RSfs_L>::call, ConstI<kroiMulC_8u_C3IRSfs_L>::call},
    {"kroiMulC_8u_C4RSfs", 4, 4, ConstR<kroiMulC_8u_C4RSfs>::call, ConstI<kroiMulC_8u_C4IRSfs>::call, ConstR<kroiMulC_8u_C4RSfs_L>::call, ConstI<kroiMulC_8u_C4IRSfs_L>::call},
    {"kroiMulC_8u_AC4RSfs", 4, 3, ConstR<kroiMulC_8u_AC4RSfs>::call, ConstI<kroiMulC_8u_AC4IRSfs>::call, ConstR<kroiMulC_8u_AC4RSfs_L>::call, ConstI<kroiMulC_8u_AC4IRSfs_L>::call},
};
const CMember<Kro16u, int> kMulC16u[] = {
    {"kroiMulC_16u_C1RSfs", 1, 1, ConstR<kroiMulC_16u_C1RSfs>::call, ConstI<kroiMulC_16u_C1IRSfs>::call, ConstR<kroiMulC_16u_C1RSfs_L>::call, ConstI<kroiMulC_16u_C1IRSfs_L>::call},
    {"kroiMulC_16u_C3RSfs", 3, 3, ConstR<kroiMulC_16u_C3RSfs>::call, ConstI<kroiMulC_16u_C3IRSfs>::call, ConstR<kroiMulC_16u_C3RSfs_L>::call, ConstI<kroiMulC_16u_C3IRSfs_L>::call},
    {"kroiMulC_16u_C4RSfs", 4, 4, ConstR<kroiMulC_16u_C4RSfs>::call, ConstI<kroiMulC_16u_C4IRSfs>::call, ConstR<kroiMulC_16u_C4RSfs_L>::call, ConstI<kroiMulC_16u_C4IRSfs_L>::call},
    {"kroiMulC_16u_AC4RSfs", 4, 3, ConstR<kroiMulC_16u_AC4RSfs>::call, ConstI<kroiMulC_16u_AC4IRSfs>::call, ConstR<kroiMulC_16u_AC4RSfs_L>::call, ConstI<kroiMulC_16u_AC4IRSfs_L>::call},
};
const CMember<Kro16s, int> kMulC16s[] = {
    {"kroiMulC_16s_C1RSfs", 1, 1, ConstR<kroiMulC_16s_C1RSfs>::call, ConstI<kroiMulC_16s_C1IRSfs>::call, ConstR<kroiMulC_16s_C1RSfs_L>::call, ConstI<kroiMulC_16s_C1IRSfs_L>::call},
    {"kroiMulC_16s_C3RSfs", 3, 3, ConstR<kroiMulC_16s_C3RSfs>::call, ConstI<kroiMulC_16s_C3IRSfs>::call, ConstR<kroiMulC_16s_C3RSfs_L>::call, ConstI<kroiMulC_16s_C3IRSfs_L>::call},
    {"kroiMulC_16s_C4RSfs", 4, 4, ConstR<kroiMulC_16s_C4RSfs>::call, ConstI<kroiMulC_16s_C4IRSfs>::call, ConstR<kroiMulC_16s_C4RSfs_L>::call, ConstI<kroiMulC_16s_C4IRSfs_L>::call},
    {"kroiMulC_16s_AC4RSfs", 4, 3, ConstR<kroiMulC_16s_AC4RSfs>::call, ConstI<kroiMulC_16s_AC4IRSfs>::call, ConstR<kroiMulC_16s_AC4RSfs_L>::call, ConstI<kroiMulC_16s_AC4IRSfs_L>::call},
};
const CMember<Kro32f> kMulC32f[] = {
    {"kroiMulC_32f_C1R", 1, 1, ConstR<kroiMulC_32f_C1R>::call, ConstI<kroiMulC_32f_C1IR>::call, ConstR<kroiMulC_32f_C1R_L>::call, ConstI<kroiMulC_32f_C1IR_L>::call},
    {"kroiMulC_32f_C3R", 3, 3, ConstR<kroiMulC_32f_C3R>::call, ConstI<kroiMulC_32f_C3IR>::call, ConstR<kroiMulC_32f_C3R_L>::call, ConstI<kroiMulC_32f_C3IR_L>::call},
    {"kroiMulC_32f_C4R", 4, 4, ConstR<kroiMulC_32f_C4R>::call, ConstI<kroiMulC_32f_C4IR>::call, ConstR<kroiMulC_32f_C4R_L>::call, ConstI<kroiMulC_32f_C4IR_L>::call},
    {"kroiMulC_32f_AC4R", 4, 3, ConstR<kroiMulC_32f_AC4R>::call, ConstI<kroiMulC_32f_AC4IR>::call, ConstR<kroiMulC_32f_AC4R_L>::call, ConstI<kroiMulC_32f_AC4IR_L>::call},
};
const CMember<Kro8u, int> kDivC8u[] = {
    {"kroiDivC_8u_C1RSfs", 1, 1, ConstR<kroiDivC_8u_C1RSfs>::call, ConstI<kroiDivC_8u_C1IRSfs>::call, ConstR<kroiDivC_8u_C1RSfs_L>::call, ConstI<kroiDivC_8u_C1IRSfs_L>::call},
    {"kroiDivC_8u_C3RSfs", 3, 3, ConstR<kroiDivC_8u_C3RSfs>::call, ConstI<kroiDivC_8u_C3IRSfs>::call, ConstR<kroiDivC_8u_C3RSfs_L>::call, ConstI<kroiDivC_8u_C3IRSfs_L>::call},
    {"kroiDivC_8u_C4RSfs", 4, 4, ConstR<kroiDivC_8u_C4RSfs>::call, ConstI<kroiDivC_8u_C4IRSfs>::call, ConstR<kroiDivC_8u_C4RSfs_L>::call, ConstI<kroiDivC_8u_C4IRSfs_L>::call},
    {"kroiDivC_8u_AC4RSfs", 4, 3, ConstR<kroiDivC_8u_AC4RSfs>::call, ConstI<kroiDivC_8u_AC4IRSfs>::call, ConstR<kroiDivC_8u_AC4RSfs_L>::call, ConstI<kroiDivC_8u_AC4IRSfs_L>::call},
};
const CMember<Kro16u, int> kDivC16u[] = {
    {"kroiDivC_16u_C1RSfs", 1, 1, ConstR<kroiDivC_16u_C1RSfs>::call, ConstI<kroiDivC_16u_C1IRSfs>::call, ConstR<kroiDivC_16u_C1RSfs_L>::call, ConstI<kroiDivC_16u_C1IRSfs_L>::call},
    {"kroiDivC_16u_C3RSfs", 3, 3, ConstR<kroiDivC_16u_C3RSfs>::call, ConstI<kroiDivC_16u_C3IRSfs>::call, ConstR<kroiDivC_16u_C3RSfs_L>::call, ConstI<kroiDivC_16u_C3IRSfs_L>::call},
    {"kroiDivC_16u_C4RSfs", 4, 4, ConstR<kroiDivC_16u_C4RSfs>::call, ConstI<kroiDivC_16u_C4IRSfs>::call, ConstR<kroiDivC_16u_C4RSfs_L>::call, ConstI<kroiDivC_16u_C4IRSfs_L>::call},
    {"kroiDivC_16u_AC4RSfs", 4, 3, ConstR<kroiDivC_16u_AC4RSfs>::call, ConstI<kroiDivC_16u_AC4IRSfs>::call, ConstR<kroiDivC_16u_AC4RSfs_L>::call, ConstI<kroiDivC_16u_AC4IRSfs_L>::call},
};
const CMember<Kro16s, int> kDivC16s[] = {
    {"kroiDivC_16s_C1RSfs", 1, 1, ConstR<kroiDivC_16s_C1RSfs>::call, ConstI<kroiDivC_16s_C1IRSfs>::call, ConstR<kroiDivC_16s_C1RSfs_L>::call, ConstI<kroiDivC_16s_C1IRSfs_L>::call},
    {"kroiDivC_16s_C3RSfs", 3, 3, ConstR<kroiDivC_16s_C3RSfs>::call, ConstI<kroiDivC_16s_C3IRSfs>::call, ConstR<kroiDivC_16s_C3RSfs_L>::call, ConstI<kroiDivC_16s_C3IRSfs_L>::call},
    {"kroiDivC_16s_C4RSfs", 4, 4, ConstR<kroiDivC_16s_C4RSfs>::call, ConstI<kroiDivC_16s_C4IRSfs>::call, ConstR<kroiDivC_16s_C4RSfs_L>::call, ConstI<kroiDivC_16s_C4IRSfs_L>::call},
    {"kroiDivC_16s_AC4RSfs", 4, 3, ConstR<kroiDivC_16s_AC4RSfs>::call, ConstI<kroiDivC_16s_AC4IRSfs>::call, ConstR<kroiDivC_16s_AC4RSfs_L>::call, ConstI<kroiDivC_16s_AC4IRSfs_L>::call},
};
const CMember<Kro32f> kDivC32f[] = {
    {"kroiDivC_32f_C1R", 1, 1, ConstR<kroiDivC_32f_C1R>::call, ConstI<kroiDivC_32f_C1IR>::call, ConstR<kroiDivC_32f_C1R_L>::call, ConstI<kroiDivC_32f_C1IR_L>::call},
    {"kroiDivC_32f_C3R", 3, 3, ConstR<kroiDivC_32f_C3R>::call, ConstI<kroiDivC_32f_C3IR>::call, ConstR<kroiDivC_32f_C3R_L>::call, ConstI<kroiDivC_32f_C3IR_L>::call},
    {"kroiDivC_32f_C4R", 4, 4, ConstR<kroiDivC_32f_C4R>::call, ConstI<kroiDivC_32f_C4IR>::call, ConstR<kroiDivC_32f_C4R_L>::call, ConstI<kroiDivC_32f_C4IR_L>::call},
    {"kroiDivC_32f_AC4R", 4, 3, ConstR<kroiDivC_32f_AC4R>::call, ConstI<kroiDivC_32f_AC4IR>::call, ConstR<kroiDivC_32f_AC4R_L>::call, ConstI<kroiDivC_32f_AC4IR_L>::call},
};

// The rules.  Integers: the exact result times 2^-s, ties to even, saturated; the quotient
// exactly so.  32f: the IEEE operation, computed in double and rounded once to float, which
// for one operation on floats gives the same bits.
struct AddR {
    template <class T>
    static T f(T v, T k, int s) { return ref::scaleSaturate<T>(ref::i128(v) + k, s); }
    static float f(float v, float k, int) { return float(double(v) + double(k)); }
};
struct SubR {
    template <class T>
    static T f(T v, T k, int s) { return ref::scaleSaturate<T>(ref::i128(v) - k, s); }
    static float f(float v, float k, int) { return float(double(v) - double(k)); }
};
struct MulR {
    template <class T>
    static T f(T v, T k, int s) { return ref::scaleSaturate<T>(ref::i128(v) * k, s); }
    static float f(float v, float k, int) { return float(double(v) * double(k)); }
};
struct DivR {
    template <class T>
    static T f(T v, T k, int s)
    {
        ref::i128 num = v, den = k;
        if (s < 0) num *= ref::i128(1) << -s;
        else den *= ref::i128(1) << s;
        if (den < 0) num = -num, den = -den;
        ref::i128 q = num / den, r = num % den;
        if (r < 0) q -= 1, r += den;
        if (2 * r > den || (2 * r == den && q % 2 != 0)) q += 1;
        return ref::saturate<T>(q);
    }
    static float f(float v, float k, int) { return float(double(v) / double(k)); }
};

template <class R>
inline constexpr bool kDivides = std::is_same_v<R, DivR>;

// Constants for a round: over the whole range, or small ones that keep results in range.
template <class T>
void drawConstants(kt::Rng& rng, bool small, bool nonZero, T (&k)[4])
{
    for (T& v : k) {
        v = small ? kt::uniform<T>(rng, std::is_signed_v<T> ? T(-9) : T(0), T(9)) : kt::randomValue<T>(rng);
        if (nonZero && v == T(0)) v = T(3);
    }
}

template <class R, class T, std::size_t N>
void everyScaleFactor(const CMember<T, int> (&members)[N])
{
    kt::Rng rng = kt::rngForTest();
    for (const auto& m : members)
        for (int s = -40; s <= 40; ++s) {
            SCOPED_TRACE("scale factor " + std::to_string(s));
            T k[4];
            drawConstants(rng, s % 2 != 0, kDivides<R>, k);
            sweepConst(m, k, [&](T v, int c) { return R::f(v, k[c], s); }, rng, !kDivides<R>, {3, 33}, s);
        }
}

TEST(ArithcConst, EveryScaleFactorMatchesRule)
{
    everyScaleFactor<AddR>(kAddC8u), everyScaleFactor<AddR>(kAddC16u), everyScaleFactor<AddR>(kAddC16s);
    everyScaleFactor<SubR>(kSubC8u), everyScaleFactor<SubR>(kSubC16u), everyScaleFactor<SubR>(kSubC16s);
    everyScaleFactor<MulR>(kMulC8u), everyScaleFactor<MulR>(kMulC16u), everyScaleFactor<MulR>(kMulC16s);
    everyScaleFactor<DivR>(kDivC8u), everyScaleFactor<DivR>(kDivC16u), everyScaleFactor<DivR>(kDivC16s);
}

// The copies and fills taken before any arithmetic give the rule's result, AC4 alpha kept;
// a mixed constant that is not an identity takes the arithmetic.
template <class R, class T, std::size_t N>
void shortcuts(const CMember<T, int> (&members)[N])
{
    kt::Rng rng = kt::rngForTest();
    const T sets[][4] = {{0, 0, 0, 0}, {1, 1, 1, 1}, {1, 1, 0, 1}, {0, 1, 0, 0}};
    for (const auto& m : members)
        for (const auto& k : sets) {
            if (kDivides<R> && k[0] * k[1] * k[2] * (m.channels == 4 && m.written == 4 ? k[3] : 1) == 0) continue;
            for (int s : {-3, 0, 40})
                sweepConst(m, k, [&](T v, int c) { return R::f(v, k[c], s); }, rng, !kDivides<R>, {1, 17, 33}, s);
        }
}

TEST(ArithcConst, ShortcutsMatchRule)
{
    shortcuts<AddR>(kAddC8u), shortcuts<AddR>(kAddC16u), shortcuts<AddR>(kAddC16s);
    shortcuts<SubR>(kSubC8u), shortcuts<SubR>(kSubC16u), shortcuts<SubR>(kSubC16s);
    shortcuts<MulR>(kMulC8u), shortcuts<MulR>(kMulC16u), shortcuts<MulR>(kMulC16s);
    shortcuts<DivR>(kDivC8u), shortcuts<DivR>(kDivC16u), shortcuts<DivR>(kDivC16s);
}

template <class R, std::size_t N>
void floatMatchesRule(const CMember<Kro32f> (&members)[N])
{
    kt::Rng rng = kt::rngForTest();
    const kt::FloatMix mix{-1e3, 1e3, 0.2};
    for (const auto& m : members)
        for (int round = 0; round < 6; ++round) {
            Kro32f k[4];
            for (Kro32f& v : k) {
                v = kt::randomValue<Kro32f>(rng, mix);
                if (kDivides<R> && v == 0) v = 0.5f;
            }
            if (round == 0 && !kDivides<R>) k[0] = 0.0f, k[1] = 1.0f, k[2] = -0.0f; // no shortcut for floats
            sweepUnary<Kro32f>(
                m.name, m.channels, m.written,
                [&](const Kro32f* s, int ss, Kro32f* d, int sd, KroiSize r) { return m.r(s, ss, k, d, sd, r); },
                [&](Kro32f* sd, int sds, KroiSize r) { return m.i(k, sd, sds, r); },
                [&](Kro32f v, int c) { return R::f(v, k[c], 0); }, rng,
                [&](kt::Rng& r) { return kt::randomValue<Kro32f>(r, mix); }, !kDivides<R>);
        }
}

TEST(ArithcConst, FloatMatchesIeee)
{
    floatMatchesRule<AddR>(kAddC32f), floatMatchesRule<SubR>(kSubC32f);
    floatMatchesRule<MulR>(kMulC32f), floatMatchesRule<DivR>(kDivC32f);
}

TEST(ArithcConst, KnownValues)
{
    Kro8u a[4] = {3, 10, 200, 0};
    ASSERT_EQ(kroiSubC_8u_C1IRSfs(10, a, 4, {4, 1}, 0), kroStsOk);
    EXPECT_EQ(a[0], 0);
    EXPECT_EQ(a[2], 190);
    Kro8u b[2] = {200, 9};
    ASSERT_EQ(kroiDivC_8u_C1IRSfs(3, b, 2, {2, 1}, 0), kroStsOk);
    EXPECT_EQ(b[0], 67);
    EXPECT_EQ(b[1], 3);
}

// The _L forms: narrowed to the 32-bit form while steps and size fit, and otherwise row by
// row through the one-row operation, which checks its own pointers, length and divisor.
template <class R, class T, class... More, std::size_t N>
void longForms(const CMember<T, More...> (&members)[N], More... more)
{
    kt::Rng rng = kt::rngForTest();
    const int s = (more + ... + 0);
    T k[4];
    drawConstants(rng, true, true, k);
    const auto want = [&](T v, int c) { return R::f(v, k[c], s); };
    for (const auto& m : members) {
        SCOPED_TRACE(m.name);
        sweepUnary<T>(
            m.name, m.channels, m.written,
            [&](const T* p, int ps, T* d, int ds, KroiSize r) { return m.rl(p, ps, k, d, ds, {r.width, r.height}, more...); },
            [&](T* d, int ds, KroiSize r) { return m.il(k, d, ds, {r.width, r.height}, more...); }, want, rng,
            anyValue<T>(), false, kroStsOk, {1, 17});
        // A step of 2^31 does not narrow: with one row only row 0 is touched.
        constexpr int64_t kFar = int64_t{1} << 31;
        for (int w : {1, 7, 40}) {
            kt::Guarded<T> src(w, 1, m.channels), dst(w, 1, m.channels);
            kt::fillRandom(src, rng);
            kt::fillRandom(dst, rng);
            const auto before = dst.snapshot();
            ASSERT_EQ(m.rl(src.ptr(), kFar, k, dst.ptr(), kFar, {w, 1}, more...), kroStsOk);
            EXPECT_TRUE(dst.restUnchangedSince(before, m.written));
            EXPECT_IMAGE_EQ(dst, [&](int x, int y, int c) { return c < m.written ? want(src.at(x, y, c), c) : dst.at(x, y, c); });
            ASSERT_EQ(m.il(k, src.ptr(), kFar, {w, 1}, more...), kroStsOk);
            EXPECT_IMAGE_EQ(src, [&](int x, int y, int c) { return c < m.written ? dst.at(x, y, c) : src.at(x, y, c); });
        }
        kt::Guarded<T> img(4, 1, m.channels);
        const auto before = img.snapshot();
        EXPECT_EQ(m.rl(nullptr, kFar, k, nullptr, kFar, {4, 0}, more...), kroStsOk) << "no row, no check";
        EXPECT_EQ(m.rl(nullptr, kFar, k, img.ptr(), kFar, {4, 1}, more...), kroStsNullPointerErr);
        EXPECT_EQ(m.rl(img.ptr(), kFar, k, img.ptr(), kFar, {0, 1}, more...), kroStsBadSizeErr);
        EXPECT_EQ(m.rl(img.ptr(), 64, k, img.ptr(), 64, {0, 1}, more...), kroStsBadSizeErr) << "narrowed";
        if (kDivides<R>) {
            const T zero[4] = {};
            EXPECT_EQ(m.rl(img.ptr(), kFar, zero, img.ptr(), kFar, {4, 1}, more...), kroStsZeroDivisorErr);
            EXPECT_EQ(m.il(zero, img.ptr(), kFar, {4, 1}, more...), kroStsZeroDivisorErr);
        }
        EXPECT_TRUE(img.unchangedSince(before));
    }
}

TEST(ArithcConst, LongFormsMatchRule)
{
    for (int s : {0, 2, -3}) {
        longForms<AddR>(kAddC8u, s), longForms<AddR>(kAddC16u, s), longForms<AddR>(kAddC16s, s);
        longForms<SubR>(kSubC8u, s), longForms<SubR>(kSubC16u, s), longForms<SubR>(kSubC16s, s);
        longForms<MulR>(kMulC8u, s), longForms<MulR>(kMulC16u, s), longForms<MulR>(kMulC16s, s);
        longForms<DivR>(kDivC8u, s), longForms<DivR>(kDivC16u, s), longForms<DivR>(kDivC16s, s);
    }
    longForms<AddR>(kAddC32f), longForms<SubR>(kSubC32f), longForms<MulR>(kMulC32f), longForms<DivR>(kDivC32f);
}

// AddC, SubC and MulC: pointers, then size; steps are used as given.
const std::vector<BadCall> kPlainOrder = {
    {"null source, zero width", true, false, 0, {0, 0}, kroStsNullPointerErr},
    {"null destination, zero height", false, true, 0, {4, 0}, kroStsNullPointerErr},
    {"zero width", false, false, 0, {0, 2}, kroStsBadSizeErr},
    {"zero height, negative step", false, false, -5, {4, 0}, kroStsBadSizeErr},
};
// DivC: pointers, size, steps, then the divisor.
const std::vector<BadCall> kDivOrder = {
    {"null source, zero step and width", true, false, 0, {0, 0}, kroStsNullPointerErr},
    {"zero width and zero step", false, false, 0, {0, 2}, kroStsBadSizeErr},
    {"zero step", false, false, 0, {4, 2}, kroStsBadStepErr},
    {"negative step", false, false, -8, {4, 2}, kroStsBadStepErr},
};
const std::vector<BadCall> kZeroDivisorOrder = {
    {"zero divisor, null destination", false, true, 0, {0, 2}, kroStsNullPointerErr},
    {"zero divisor and zero width", false, false, kOwnStep, {0, 2}, kroStsBadSizeErr},
    {"zero divisor and zero step", false, false, 0, {4, 2}, kroStsBadStepErr},
    {"zero divisor", false, false, kOwnStep, {4, 2}, kroStsZeroDivisorErr},
};

template <class T, class... More, std::size_t N>
void checkOrder(const CMember<T, More...> (&members)[N], const std::vector<BadCall>& cases, More... more)
{
    const T k[4] = {1, 2, 3, 4};
    expectCheckOrder(members, k, cases, more...);
}

TEST(ArithcConst, CheckOrders)
{
    for (int s : {0, 1, 40, -40}) {
        checkOrder(kAddC8u, kPlainOrder, s), checkOrder(kAddC16u, kPlainOrder, s), checkOrder(kAddC16s, kPlainOrder, s);
        checkOrder(kSubC8u, kPlainOrder, s), checkOrder(kSubC16u, kPlainOrder, s), checkOrder(kSubC16s, kPlainOrder, s);
        checkOrder(kMulC8u, kPlainOrder, s), checkOrder(kMulC16u, kPlainOrder, s), checkOrder(kMulC16s, kPlainOrder, s);
        checkOrder(kDivC8u, kDivOrder, s), checkOrder(kDivC16u, kDivOrder, s), checkOrder(kDivC16s, kDivOrder, s);
    }
    checkOrder(kAddC32f, kPlainOrder), checkOrder(kSubC32f, kPlainOrder), checkOrder(kMulC32f, kPlainOrder);
    checkOrder(kDivC32f, kDivOrder);
    // A zero constant in the last computed channel, and the identity and zero constants whose
    // shortcuts must not run before the checks.
    const Kro8u zero8[4] = {0, 5, 5, 5}, last8[4] = {5, 5, 0, 5};
    const Kro16u zero16u[4] = {0, 5, 5, 5};
    const Kro16s zero16s[4] = {0, 5, 5, 5};
    const Kro32f zero32f[4] = {-0.0f, 5, 5, 5}, last32f[4] = {5, 5, 0.0f, 5};
    expectCheckOrder(kDivC8u, zero8, kZeroDivisorOrder, 0), expectCheckOrder(kDivC16u, zero16u, kZeroDivisorOrder, 0);
    expectCheckOrder(kDivC16s, zero16s, kZeroDivisorOrder, 0), expectCheckOrder(kDivC32f, zero32f, kZeroDivisorOrder);
    expectCheckOrder(std::span(kDivC8u).subspan(1), last8, kZeroDivisorOrder, 0);
    expectCheckOrder(std::span(kDivC32f).subspan(1), last32f, kZeroDivisorOrder);
    const Kro8u ones[4] = {1, 1, 1, 1}, zeros[4] = {};
    expectCheckOrder(kMulC8u, ones, kPlainOrder, 0), expectCheckOrder(kMulC8u, zeros, kPlainOrder, 3);
    expectCheckOrder(kAddC8u, zeros, kPlainOrder, 0), expectCheckOrder(kDivC8u, ones, kDivOrder, 0);
}

}  // namespace
