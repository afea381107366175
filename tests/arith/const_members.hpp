// Arithmetic with constants under test: every member in a table by operation and type, and
// the rule of each operation written out independently of the library.
#pragma once

#include <cstdint>
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "arith/logic_harness.hpp"
#include "support/reference.hpp"

namespace const_test {

using namespace kt::pix;
namespace ref = kt::ref;

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

inline const CMember<Kro8u, int> kAddC8u[] = {
    {"kroiAddC_8u_C1RSfs", 1, 1, ConstR<kroiAddC_8u_C1RSfs>::call, ConstI<kroiAddC_8u_C1IRSfs>::call, ConstR<kroiAddC_8u_C1RSfs_L>::call, ConstI<kroiAddC_8u_C1IRSfs_L>::call},
    {"kroiAddC_8u_C3RSfs", 3, 3, ConstR<kroiAddC_8u_C3RSfs>::call, ConstI<kroiAddC_8u_C3IRSfs>::call, ConstR<kroiAddC_8u_C3RSfs_L>::call, ConstI<kroiAddC_8u_C3IRSfs_L>::call},
    {"kroiAddC_8u_C4RSfs", 4, 4, ConstR<kroiAddC_8u_C4RSfs>::call, ConstI<kroiAddC_8u_C4IRSfs>::call, ConstR<kroiAddC_8u_C4RSfs_L>::call, ConstI<kroiAddC_8u_C4IRSfs_L>::call},
    {"kroiAddC_8u_AC4RSfs", 4, 3, ConstR<kroiAddC_8u_AC4RSfs>::call, ConstI<kroiAddC_8u_AC4IRSfs>::call, ConstR<kroiAddC_8u_AC4RSfs_L>::call, ConstI<kroiAddC_8u_AC4IRSfs_L>::call},
};
inline const CMember<Kro16u, int> kAddC16u[] = {
    {"kroiAddC_16u_C1RSfs", 1, 1, ConstR<kroiAddC_16u_C1RSfs>::call, ConstI<kroiAddC_16u_C1IRSfs>::call, ConstR<kroiAddC_16u_C1RSfs_L>::call, ConstI<kroiAddC_16u_C1IRSfs_L>::call},
    {"kroiAddC_16u_C3RSfs", 3, 3, ConstR<kroiAddC_16u_C3RSfs>::call, ConstI<kroiAddC_16u_C3IRSfs>::call, ConstR<kroiAddC_16u_C3RSfs_L>::call, ConstI<kroiAddC_16u_C3IRSfs_L>::call},
    {"kroiAddC_16u_C4RSfs", 4, 4, ConstR<kroiAddC_16u_C4RSfs>::call, ConstI<kroiAddC_16u_C4IRSfs>::call, ConstR<kroiAddC_16u_C4RSfs_L>::call, ConstI<kroiAddC_16u_C4IRSfs_L>::call},
    {"kroiAddC_16u_AC4RSfs", 4, 3, ConstR<kroiAddC_16u_AC4RSfs>::call, ConstI<kroiAddC_16u_AC4IRSfs>::call, ConstR<kroiAddC_16u_AC4RSfs_L>::call, ConstI<kroiAddC_16u_AC4IRSfs_L>::call},
};
inline const CMember<Kro16s, int> kAddC16s[] = {
    {"kroiAddC_16s_C1RSfs", 1, 1, ConstR<kroiAddC_16s_C1RSfs>::call, ConstI<kroiAddC_16s_C1IRSfs>::call, ConstR<kroiAddC_16s_C1RSfs_L>::call, ConstI<kroiAddC_16s_C1IRSfs_L>::call},
    {"kroiAddC_16s_C3RSfs", 3, 3, ConstR<kroiAddC_16s_C3RSfs>::call, ConstI<kroiAddC_16s_C3IRSfs>::call, ConstR<kroiAddC_16s_C3RSfs_L>::call, ConstI<kroiAddC_16s_C3IRSfs_L>::call},
    {"kroiAddC_16s_C4RSfs", 4, 4, ConstR<kroiAddC_16s_C4RSfs>::call, ConstI<kroiAddC_16s_C4IRSfs>::call, ConstR<kroiAddC_16s_C4RSfs_L>::call, ConstI<kroiAddC_16s_C4IRSfs_L>::call},
    {"kroiAddC_16s_AC4RSfs", 4, 3, ConstR<kroiAddC_16s_AC4RSfs>::call, ConstI<kroiAddC_16s_AC4IRSfs>::call, ConstR<kroiAddC_16s_AC4RSfs_L>::call, ConstI<kroiAddC_16s_AC4IRSfs_L>::call},
};
inline const CMember<Kro32f> kAddC32f[] = {
    {"kroiAddC_32f_C1R", 1, 1, ConstR<kroiAddC_32f_C1R>::call, ConstI<kroiAddC_32f_C1IR>::call, ConstR<kroiAddC_32f_C1R_L>::call, ConstI<kroiAddC_32f_C1IR_L>::call},
    {"kroiAddC_32f_C3R", 3, 3, ConstR<kroiAddC_32f_C3R>::call, ConstI<kroiAddC_32f_C3IR>::call, ConstR<kroiAddC_32f_C3R_L>::call, ConstI<kroiAddC_32f_C3IR_L>::call},
    {"kroiAddC_32f_C4R", 4, 4, ConstR<kroiAddC_32f_C4R>::call, ConstI<kroiAddC_32f_C4IR>::call, ConstR<kroiAddC_32f_C4R_L>::call, ConstI<kroiAddC_32f_C4IR_L>::call},
    {"kroiAddC_32f_AC4R", 4, 3, ConstR<kroiAddC_32f_AC4R>::call, ConstI<kroiAddC_32f_AC4IR>::call, ConstR<kroiAddC_32f_AC4R_L>::call, ConstI<kroiAddC_32f_AC4IR_L>::call},
};
inline const CMember<Kro8u, int> kSubC8u[] = {
    {"kroiSubC_8u_C1RSfs", 1, 1, ConstR<kroiSubC_8u_C1RSfs>::call, ConstI<kroiSubC_8u_C1IRSfs>::call, ConstR<kroiSubC_8u_C1RSfs_L>::call, ConstI<kroiSubC_8u_C1IRSfs_L>::call},
    {"kroiSubC_8u_C3RSfs", 3, 3, ConstR<kroiSubC_8u_C3RSfs>::call, ConstI<kroiSubC_8u_C3IRSfs>::call, ConstR<kroiSubC_8u_C3RSfs_L>::call, ConstI<kroiSubC_8u_C3IRSfs_L>::call},
    {"kroiSubC_8u_C4RSfs", 4, 4, ConstR<kroiSubC_8u_C4RSfs>::call, ConstI<kroiSubC_8u_C4IRSfs>::call, ConstR<kroiSubC_8u_C4RSfs_L>::call, ConstI<kroiSubC_8u_C4IRSfs_L>::call},
    {"kroiSubC_8u_AC4RSfs", 4, 3, ConstR<kroiSubC_8u_AC4RSfs>::call, ConstI<kroiSubC_8u_AC4IRSfs>::call, ConstR<kroiSubC_8u_AC4RSfs_L>::call, ConstI<kroiSubC_8u_AC4IRSfs_L>::call},
};
inline const CMember<Kro16u, int> kSubC16u[] = {
    {"kroiSubC_16u_C1RSfs", 1, 1, ConstR<kroiSubC_16u_C1RSfs>::call, ConstI<kroiSubC_16u_C1IRSfs>::call, ConstR<kroiSubC_16u_C1RSfs_L>::call, ConstI<kroiSubC_16u_C1IRSfs_L>::call},
    {"kroiSubC_16u_C3RSfs", 3, 3, ConstR<kroiSubC_16u_C3RSfs>::call, ConstI<kroiSubC_16u_C3IRSfs>::call, ConstR<kroiSubC_16u_C3RSfs_L>::call, ConstI<kroiSubC_16u_C3IRSfs_L>::call},
    {"kroiSubC_16u_C4RSfs", 4, 4, ConstR<kroiSubC_16u_C4RSfs>::call, ConstI<kroiSubC_16u_C4IRSfs>::call, ConstR<kroiSubC_16u_C4RSfs_L>::call, ConstI<kroiSubC_16u_C4IRSfs_L>::call},
    {"kroiSubC_16u_AC4RSfs", 4, 3, ConstR<kroiSubC_16u_AC4RSfs>::call, ConstI<kroiSubC_16u_AC4IRSfs>::call, ConstR<kroiSubC_16u_AC4RSfs_L>::call, ConstI<kroiSubC_16u_AC4IRSfs_L>::call},
};
inline const CMember<Kro16s, int> kSubC16s[] = {
    {"kroiSubC_16s_C1RSfs", 1, 1, ConstR<kroiSubC_16s_C1RSfs>::call, ConstI<kroiSubC_16s_C1IRSfs>::call, ConstR<kroiSubC_16s_C1RSfs_L>::call, ConstI<kroiSubC_16s_C1IRSfs_L>::call},
    {"kroiSubC_16s_C3RSfs", 3, 3, ConstR<kroiSubC_16s_C3RSfs>::call, ConstI<kroiSubC_16s_C3IRSfs>::call, ConstR<kroiSubC_16s_C3RSfs_L>::call, ConstI<kroiSubC_16s_C3IRSfs_L>::call},
    {"kroiSubC_16s_C4RSfs", 4, 4, ConstR<kroiSubC_16s_C4RSfs>::call, ConstI<kroiSubC_16s_C4IRSfs>::call, ConstR<kroiSubC_16s_C4RSfs_L>::call, ConstI<kroiSubC_16s_C4IRSfs_L>::call},
    {"kroiSubC_16s_AC4RSfs", 4, 3, ConstR<kroiSubC_16s_AC4RSfs>::call, ConstI<kroiSubC_16s_AC4IRSfs>::call, ConstR<kroiSubC_16s_AC4RSfs_L>::call, ConstI<kroiSubC_16s_AC4IRSfs_L>::call},
};
inline const CMember<Kro32f> kSubC32f[] = {
    {"kroiSubC_32f_C1R", 1, 1, ConstR<kroiSubC_32f_C1R>::call, ConstI<kroiSubC_32f_C1IR>::call, ConstR<kroiSubC_32f_C1R_L>::call, ConstI<kroiSubC_32f_C1IR_L>::call},
    {"kroiSubC_32f_C3R", 3, 3, ConstR<kroiSubC_32f_C3R>::call, ConstI<kroiSubC_32f_C3IR>::call, ConstR<kroiSubC_32f_C3R_L>::call, ConstI<kroiSubC_32f_C3IR_L>::call},
    {"kroiSubC_32f_C4R", 4, 4, ConstR<kroiSubC_32f_C4R>::call, ConstI<kroiSubC_32f_C4IR>::call, ConstR<kroiSubC_32f_C4R_L>::call, ConstI<kroiSubC_32f_C4IR_L>::call},
    {"kroiSubC_32f_AC4R", 4, 3, ConstR<kroiSubC_32f_AC4R>::call, ConstI<kroiSubC_32f_AC4IR>::call, ConstR<kroiSubC_32f_AC4R_L>::call, ConstI<kroiSubC_32f_AC4IR_L>::call},
};
inline const CMember<Kro8u, int> kMulC8u[] = {
    {"kroiMulC_8u_C1RSfs", 1, 1, ConstR<kroiMulC_8u_C1RSfs>::call, ConstI<kroiMulC_8u_C1IRSfs>::call, ConstR<kroiMulC_8u_C1RSfs_L>::call, ConstI<kroiMulC_8u_C1IRSfs_L>::call},
    {"kroiMulC_8u_C3RSfs", 3, 3, ConstR<kroiMulC_8u_C3RSfs>::call, ConstI<kroiMulC_8u_C3IRSfs>::call, ConstR<kroiMulC_8u_C3RSfs_L>::call, ConstI<kroiMulC_8u_C3IRSfs_L>::call},
    {"kroiMulC_8u_C4RSfs", 4, 4, ConstR<kroiMulC_8u_C4RSfs>::call, ConstI<kroiMulC_8u_C4IRSfs>::call, ConstR<kroiMulC_8u_C4RSfs_L>::call, ConstI<kroiMulC_8u_C4IRSfs_L>::call},
    {"kroiMulC_8u_AC4RSfs", 4, 3, ConstR<kroiMulC_8u_AC4RSfs>::call, ConstI<kroiMulC_8u_AC4IRSfs>::call, ConstR<kroiMulC_8u_AC4RSfs_L>::call, ConstI<kroiMulC_8u_AC4IRSfs_L>::call},
};
inline const CMember<Kro16u, int> kMulC16u[] = {
    {"kroiMulC_16u_C1RSfs", 1, 1, ConstR<kroiMulC_16u_C1RSfs>::call, ConstI<kroiMulC_16u_C1IRSfs>::call, ConstR<kroiMulC_16u_C1RSfs_L>::call, ConstI<kroiMulC_16u_C1IRSfs_L>::call},
    {"kroiMulC_16u_C3RSfs", 3, 3, ConstR<kroiMulC_16u_C3RSfs>::call, ConstI<kroiMulC_16u_C3IRSfs>::call, ConstR<kroiMulC_16u_C3RSfs_L>::call, ConstI<kroiMulC_16u_C3IRSfs_L>::call},
    {"kroiMulC_16u_C4RSfs", 4, 4, ConstR<kroiMulC_16u_C4RSfs>::call, ConstI<kroiMulC_16u_C4IRSfs>::call, ConstR<kroiMulC_16u_C4RSfs_L>::call, ConstI<kroiMulC_16u_C4IRSfs_L>::call},
    {"kroiMulC_16u_AC4RSfs", 4, 3, ConstR<kroiMulC_16u_AC4RSfs>::call, ConstI<kroiMulC_16u_AC4IRSfs>::call, ConstR<kroiMulC_16u_AC4RSfs_L>::call, ConstI<kroiMulC_16u_AC4IRSfs_L>::call},
};
inline const CMember<Kro16s, int> kMulC16s[] = {
    {"kroiMulC_16s_C1RSfs", 1, 1, ConstR<kroiMulC_16s_C1RSfs>::call, ConstI<kroiMulC_16s_C1IRSfs>::call, ConstR<kroiMulC_16s_C1RSfs_L>::call, ConstI<kroiMulC_16s_C1IRSfs_L>::call},
    {"kroiMulC_16s_C3RSfs", 3, 3, ConstR<kroiMulC_16s_C3RSfs>::call, ConstI<kroiMulC_16s_C3IRSfs>::call, ConstR<kroiMulC_16s_C3RSfs_L>::call, ConstI<kroiMulC_16s_C3IRSfs_L>::call},
    {"kroiMulC_16s_C4RSfs", 4, 4, ConstR<kroiMulC_16s_C4RSfs>::call, ConstI<kroiMulC_16s_C4IRSfs>::call, ConstR<kroiMulC_16s_C4RSfs_L>::call, ConstI<kroiMulC_16s_C4IRSfs_L>::call},
    {"kroiMulC_16s_AC4RSfs", 4, 3, ConstR<kroiMulC_16s_AC4RSfs>::call, ConstI<kroiMulC_16s_AC4IRSfs>::call, ConstR<kroiMulC_16s_AC4RSfs_L>::call, ConstI<kroiMulC_16s_AC4IRSfs_L>::call},
};
inline const CMember<Kro32f> kMulC32f[] = {
    {"kroiMulC_32f_C1R", 1, 1, ConstR<kroiMulC_32f_C1R>::call, ConstI<kroiMulC_32f_C1IR>::call, ConstR<kroiMulC_32f_C1R_L>::call, ConstI<kroiMulC_32f_C1IR_L>::call},
    {"kroiMulC_32f_C3R", 3, 3, ConstR<kroiMulC_32f_C3R>::call, ConstI<kroiMulC_32f_C3IR>::call, ConstR<kroiMulC_32f_C3R_L>::call, ConstI<kroiMulC_32f_C3IR_L>::call},
    {"kroiMulC_32f_C4R", 4, 4, ConstR<kroiMulC_32f_C4R>::call, ConstI<kroiMulC_32f_C4IR>::call, ConstR<kroiMulC_32f_C4R_L>::call, ConstI<kroiMulC_32f_C4IR_L>::call},
    {"kroiMulC_32f_AC4R", 4, 3, ConstR<kroiMulC_32f_AC4R>::call, ConstI<kroiMulC_32f_AC4IR>::call, ConstR<kroiMulC_32f_AC4R_L>::call, ConstI<kroiMulC_32f_AC4IR_L>::call},
};
inline const CMember<Kro8u, int> kDivC8u[] = {
    {"kroiDivC_8u_C1RSfs", 1, 1, ConstR<kroiDivC_8u_C1RSfs>::call, ConstI<kroiDivC_8u_C1IRSfs>::call, ConstR<kroiDivC_8u_C1RSfs_L>::call, ConstI<kroiDivC_8u_C1IRSfs_L>::call},
    {"kroiDivC_8u_C3RSfs", 3, 3, ConstR<kroiDivC_8u_C3RSfs>::call, ConstI<kroiDivC_8u_C3IRSfs>::call, ConstR<kroiDivC_8u_C3RSfs_L>::call, ConstI<kroiDivC_8u_C3IRSfs_L>::call},
    {"kroiDivC_8u_C4RSfs", 4, 4, ConstR<kroiDivC_8u_C4RSfs>::call, ConstI<kroiDivC_8u_C4IRSfs>::call, ConstR<kroiDivC_8u_C4RSfs_L>::call, ConstI<kroiDivC_8u_C4IRSfs_L>::call},
    {"kroiDivC_8u_AC4RSfs", 4, 3, ConstR<kroiDivC_8u_AC4RSfs>::call, ConstI<kroiDivC_8u_AC4IRSfs>::call, ConstR<kroiDivC_8u_AC4RSfs_L>::call, ConstI<kroiDivC_8u_AC4IRSfs_L>::call},
};
inline const CMember<Kro16u, int> kDivC16u[] = {
    {"kroiDivC_16u_C1RSfs", 1, 1, ConstR<kroiDivC_16u_C1RSfs>::call, ConstI<kroiDivC_16u_C1IRSfs>::call, ConstR<kroiDivC_16u_C1RSfs_L>::call, ConstI<kroiDivC_16u_C1IRSfs_L>::call},
    {"kroiDivC_16u_C3RSfs", 3, 3, ConstR<kroiDivC_16u_C3RSfs>::call, ConstI<kroiDivC_16u_C3IRSfs>::call, ConstR<kroiDivC_16u_C3RSfs_L>::call, ConstI<kroiDivC_16u_C3IRSfs_L>::call},
    {"kroiDivC_16u_C4RSfs", 4, 4, ConstR<kroiDivC_16u_C4RSfs>::call, ConstI<kroiDivC_16u_C4IRSfs>::call, ConstR<kroiDivC_16u_C4RSfs_L>::call, ConstI<kroiDivC_16u_C4IRSfs_L>::call},
    {"kroiDivC_16u_AC4RSfs", 4, 3, ConstR<kroiDivC_16u_AC4RSfs>::call, ConstI<kroiDivC_16u_AC4IRSfs>::call, ConstR<kroiDivC_16u_AC4RSfs_L>::call, ConstI<kroiDivC_16u_AC4IRSfs_L>::call},
};
inline const CMember<Kro16s, int> kDivC16s[] = {
    {"kroiDivC_16s_C1RSfs", 1, 1, ConstR<kroiDivC_16s_C1RSfs>::call, ConstI<kroiDivC_16s_C1IRSfs>::call, ConstR<kroiDivC_16s_C1RSfs_L>::call, ConstI<kroiDivC_16s_C1IRSfs_L>::call},
    {"kroiDivC_16s_C3RSfs", 3, 3, ConstR<kroiDivC_16s_C3RSfs>::call, ConstI<kroiDivC_16s_C3IRSfs>::call, ConstR<kroiDivC_16s_C3RSfs_L>::call, ConstI<kroiDivC_16s_C3IRSfs_L>::call},
    {"kroiDivC_16s_C4RSfs", 4, 4, ConstR<kroiDivC_16s_C4RSfs>::call, ConstI<kroiDivC_16s_C4IRSfs>::call, ConstR<kroiDivC_16s_C4RSfs_L>::call, ConstI<kroiDivC_16s_C4IRSfs_L>::call},
    {"kroiDivC_16s_AC4RSfs", 4, 3, ConstR<kroiDivC_16s_AC4RSfs>::call, ConstI<kroiDivC_16s_AC4IRSfs>::call, ConstR<kroiDivC_16s_AC4RSfs_L>::call, ConstI<kroiDivC_16s_AC4IRSfs_L>::call},
};
inline const CMember<Kro32f> kDivC32f[] = {
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
        // Shifts past 100 give the same result as 100 (beyond every quotient's reach), and
        // keep -s from overflowing at INT_MIN.
        const int c = s < -100 ? -100 : s > 100 ? 100 : s;
        if (c < 0) num *= ref::i128(1) << -c;
        else den *= ref::i128(1) << c;
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

}  // namespace const_test
