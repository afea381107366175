// Two-image arithmetic under test: every exported member in a table, the rule each one must
// follow written out independently of the library, and one runner that checks a member on
// random images in all four of its forms (R, IR, R_L, IR_L).
#pragma once

#include <xmmintrin.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "kroi.h"
#include "support/compare.hpp"
#include "support/guarded.hpp"
#include "support/random.hpp"
#include "support/reference.hpp"

namespace arith_test {

namespace ref = kt::ref;

enum class Op { Add, Sub, Mul, Div, DivRound };
enum Layout { kC1 = 1, kC3 = 3, kC4 = 4, kAC4 = 5 };

inline int elems(Layout l) { return l == kAC4 ? 4 : int(l); }
inline int channels(Layout l) { return l == kAC4 ? 3 : int(l); }

// What a call takes besides the images.
struct Params {
    int scale = 0;
    int mode = 1;
};

// The table entries, with the exported prototypes' own types.
template <class T>
struct SfsMember {
    Op op;
    Layout layout;
    const char* name;
    KroStatus (*r)(const T*, int, const T*, int, T*, int, KroiSize, int);
    KroStatus (*ir)(const T*, int, T*, int, KroiSize, int);
    KroStatus (*rl)(const T*, int64_t, const T*, int64_t, T*, int64_t, KroiSizeL, int);
    KroStatus (*irl)(const T*, int64_t, T*, int64_t, KroiSizeL, int);
};
template <class T>
struct RoundMember {
    Op op;
    Layout layout;
    const char* name;
    KroStatus (*r)(const T*, int, const T*, int, T*, int, KroiSize, KroRoundMode, int);
    KroStatus (*ir)(const T*, int, T*, int, KroiSize, KroRoundMode, int);
    KroStatus (*rl)(const T*, int64_t, const T*, int64_t, T*, int64_t, KroiSizeL, KroRoundMode, int);
    KroStatus (*irl)(const T*, int64_t, T*, int64_t, KroiSizeL, KroRoundMode, int);
};
struct FloatMember {
    Op op;
    Layout layout;
    const char* name;
    KroStatus (*r)(const Kro32f*, int, const Kro32f*, int, Kro32f*, int, KroiSize);
    KroStatus (*ir)(const Kro32f*, int, Kro32f*, int, KroiSize);
    KroStatus (*rl)(const Kro32f*, int64_t, const Kro32f*, int64_t, Kro32f*, int64_t, KroiSizeL);
    KroStatus (*irl)(const Kro32f*, int64_t, Kro32f*, int64_t, KroiSizeL);
};

template <class T>
const std::vector<SfsMember<T>>& sfsMembers();
template <class T>
const std::vector<RoundMember<T>>& roundMembers();

template <>
inline const std::vector<SfsMember<Kro8u>>& sfsMembers<Kro8u>()
{
    static const std::vector<SfsMember<Kro8u>> m = {
        {Op::Add, kC1, "kroiAdd_8u_C1RSfs", kroiAdd_8u_C1RSfs, kroiAdd_8u_C1IRSfs, kroiAdd_8u_C1RSfs_L, kroiAdd_8u_C1IRSfs_L},
        {Op::Add, kC3, "kroiAdd_8u_C3RSfs", kroiAdd_8u_C3RSfs, kroiAdd_8u_C3IRSfs, kroiAdd_8u_C3RSfs_L, kroiAdd_8u_C3IRSfs_L},
        {Op::Add, kC4, "kroiAdd_8u_C4RSfs", kroiAdd_8u_C4RSfs, kroiAdd_8u_C4IRSfs, kroiAdd_8u_C4RSfs_L, kroiAdd_8u_C4IRSfs_L},
        {Op::Add, kAC4, "kroiAdd_8u_AC4RSfs", kroiAdd_8u_AC4RSfs, kroiAdd_8u_AC4IRSfs, kroiAdd_8u_AC4RSfs_L, kroiAdd_8u_AC4IRSfs_L},
        {Op::Sub, kC1, "kroiSub_8u_C1RSfs", kroiSub_8u_C1RSfs, kroiSub_8u_C1IRSfs, kroiSub_8u_C1RSfs_L, kroiSub_8u_C1IRSfs_L},
        {Op::Sub, kC3, "kroiSub_8u_C3RSfs", kroiSub_8u_C3RSfs, kroiSub_8u_C3IRSfs, kroiSub_8u_C3RSfs_L, kroiSub_8u_C3IRSfs_L},
        {Op::Sub, kC4, "kroiSub_8u_C4RSfs", kroiSub_8u_C4RSfs, kroiSub_8u_C4IRSfs, kroiSub_8u_C4RSfs_L, kroiSub_8u_C4IRSfs_L},
        {Op::Sub, kAC4, "kroiSub_8u_AC4RSfs", kroiSub_8u_AC4RSfs, kroiSub_8u_AC4IRSfs, kroiSub_8u_AC4RSfs_L, kroiSub_8u_AC4IRSfs_L},
        {Op::Mul, kC1, "kroiMul_8u_C1RSfs", kroiMul_8u_C1RSfs, kroiMul_8u_C1IRSfs, kroiMul_8u_C1RSfs_L, kroiMul_8u_C1IRSfs_L},
        {Op::Mul, kC3, "kroiMul_8u_C3RSfs", kroiMul_8u_C3RSfs, kroiMul_8u_C3IRSfs, kroiMul_8u_C3RSfs_L, kroiMul_8u_C3IRSfs_L},
        {Op::Mul, kC4, "kroiMul_8u_C4RSfs", kroiMul_8u_C4RSfs, kroiMul_8u_C4IRSfs, kroiMul_8u_C4RSfs_L, kroiMul_8u_C4IRSfs_L},
        {Op::Mul, kAC4, "kroiMul_8u_AC4RSfs", kroiMul_8u_AC4RSfs, kroiMul_8u_AC4IRSfs, kroiMul_8u_AC4RSfs_L, kroiMul_8u_AC4IRSfs_L},
        {Op::Div, kC1, "kroiDiv_8u_C1RSfs", kroiDiv_8u_C1RSfs, kroiDiv_8u_C1IRSfs, kroiDiv_8u_C1RSfs_L, kroiDiv_8u_C1IRSfs_L},
        {Op::Div, kC3, "kroiDiv_8u_C3RSfs", kroiDiv_8u_C3RSfs, kroiDiv_8u_C3IRSfs, kroiDiv_8u_C3RSfs_L, kroiDiv_8u_C3IRSfs_L},
        {Op::Div, kC4, "kroiDiv_8u_C4RSfs", kroiDiv_8u_C4RSfs, kroiDiv_8u_C4IRSfs, kroiDiv_8u_C4RSfs_L, kroiDiv_8u_C4IRSfs_L},
        {Op::Div, kAC4, "kroiDiv_8u_AC4RSfs", kroiDiv_8u_AC4RSfs, kroiDiv_8u_AC4IRSfs, kroiDiv_8u_AC4RSfs_L, kroiDiv_8u_AC4IRSfs_L},
    };
    return m;
}
template <>
inline const std::vector<RoundMember<Kro8u>>& roundMembers<Kro8u>()
{
    static const std::vector<RoundMember<Kro8u>> m = {
        {Op::DivRound, kC1, "kroiDiv_Round_8u_C1RSfs", kroiDiv_Round_8u_C1RSfs, kroiDiv_Round_8u_C1IRSfs, kroiDiv_Round_8u_C1RSfs_L, kroiDiv_Round_8u_C1IRSfs_L},
        {Op::DivRound, kC3, "kroiDiv_Round_8u_C3RSfs", kroiDiv_Round_8u_C3RSfs, kroiDiv_Round_8u_C3IRSfs, kroiDiv_Round_8u_C3RSfs_L, kroiDiv_Round_8u_C3IRSfs_L},
        {Op::DivRound, kC4, "kroiDiv_Round_8u_C4RSfs", kroiDiv_Round_8u_C4RSfs, kroiDiv_Round_8u_C4IRSfs, kroiDiv_Round_8u_C4RSfs_L, kroiDiv_Round_8u_C4IRSfs_L},
        {Op::DivRound, kAC4, "kroiDiv_Round_8u_AC4RSfs", kroiDiv_Round_8u_AC4RSfs, kroiDiv_Round_8u_AC4IRSfs, kroiDiv_Round_8u_AC4RSfs_L, kroiDiv_Round_8u_AC4IRSfs_L},
    };
    return m;
}
template <>
inline const std::vector<SfsMember<Kro16u>>& sfsMembers<Kro16u>()
{
    static const std::vector<SfsMember<Kro16u>> m = {
        {Op::Add, kC1, "kroiAdd_16u_C1RSfs", kroiAdd_16u_C1RSfs, kroiAdd_16u_C1IRSfs, kroiAdd_16u_C1RSfs_L, kroiAdd_16u_C1IRSfs_L},
        {Op::Add, kC3, "kroiAdd_16u_C3RSfs", kroiAdd_16u_C3RSfs, kroiAdd_16u_C3IRSfs, kroiAdd_16u_C3RSfs_L, kroiAdd_16u_C3IRSfs_L},
        {Op::Add, kC4, "kroiAdd_16u_C4RSfs", kroiAdd_16u_C4RSfs, kroiAdd_16u_C4IRSfs, kroiAdd_16u_C4RSfs_L, kroiAdd_16u_C4IRSfs_L},
        {Op::Add, kAC4, "kroiAdd_16u_AC4RSfs", kroiAdd_16u_AC4RSfs, kroiAdd_16u_AC4IRSfs, kroiAdd_16u_AC4RSfs_L, kroiAdd_16u_AC4IRSfs_L},
        {Op::Sub, kC1, "kroiSub_16u_C1RSfs", kroiSub_16u_C1RSfs, kroiSub_16u_C1IRSfs, kroiSub_16u_C1RSfs_L, kroiSub_16u_C1IRSfs_L},
        {Op::Sub, kC3, "kroiSub_16u_C3RSfs", kroiSub_16u_C3RSfs, kroiSub_16u_C3IRSfs, kroiSub_16u_C3RSfs_L, kroiSub_16u_C3IRSfs_L},
        {Op::Sub, kC4, "kroiSub_16u_C4RSfs", kroiSub_16u_C4RSfs, kroiSub_16u_C4IRSfs, kroiSub_16u_C4RSfs_L, kroiSub_16u_C4IRSfs_L},
        {Op::Sub, kAC4, "kroiSub_16u_AC4RSfs", kroiSub_16u_AC4RSfs, kroiSub_16u_AC4IRSfs, kroiSub_16u_AC4RSfs_L, kroiSub_16u_AC4IRSfs_L},
        {Op::Mul, kC1, "kroiMul_16u_C1RSfs", kroiMul_16u_C1RSfs, kroiMul_16u_C1IRSfs, kroiMul_16u_C1RSfs_L, kroiMul_16u_C1IRSfs_L},
        {Op::Mul, kC3, "kroiMul_16u_C3RSfs", kroiMul_16u_C3RSfs, kroiMul_16u_C3IRSfs, kroiMul_16u_C3RSfs_L, kroiMul_16u_C3IRSfs_L},
        {Op::Mul, kC4, "kroiMul_16u_C4RSfs", kroiMul_16u_C4RSfs, kroiMul_16u_C4IRSfs, kroiMul_16u_C4RSfs_L, kroiMul_16u_C4IRSfs_L},
        {Op::Mul, kAC4, "kroiMul_16u_AC4RSfs", kroiMul_16u_AC4RSfs, kroiMul_16u_AC4IRSfs, kroiMul_16u_AC4RSfs_L, kroiMul_16u_AC4IRSfs_L},
        {Op::Div, kC1, "kroiDiv_16u_C1RSfs", kroiDiv_16u_C1RSfs, kroiDiv_16u_C1IRSfs, kroiDiv_16u_C1RSfs_L, kroiDiv_16u_C1IRSfs_L},
        {Op::Div, kC3, "kroiDiv_16u_C3RSfs", kroiDiv_16u_C3RSfs, kroiDiv_16u_C3IRSfs, kroiDiv_16u_C3RSfs_L, kroiDiv_16u_C3IRSfs_L},
        {Op::Div, kC4, "kroiDiv_16u_C4RSfs", kroiDiv_16u_C4RSfs, kroiDiv_16u_C4IRSfs, kroiDiv_16u_C4RSfs_L, kroiDiv_16u_C4IRSfs_L},
        {Op::Div, kAC4, "kroiDiv_16u_AC4RSfs", kroiDiv_16u_AC4RSfs, kroiDiv_16u_AC4IRSfs, kroiDiv_16u_AC4RSfs_L, kroiDiv_16u_AC4IRSfs_L},
    };
    return m;
}
template <>
inline const std::vector<RoundMember<Kro16u>>& roundMembers<Kro16u>()
{
    static const std::vector<RoundMember<Kro16u>> m = {
        {Op::DivRound, kC1, "kroiDiv_Round_16u_C1RSfs", kroiDiv_Round_16u_C1RSfs, kroiDiv_Round_16u_C1IRSfs, kroiDiv_Round_16u_C1RSfs_L, kroiDiv_Round_16u_C1IRSfs_L},
        {Op::DivRound, kC3, "kroiDiv_Round_16u_C3RSfs", kroiDiv_Round_16u_C3RSfs, kroiDiv_Round_16u_C3IRSfs, kroiDiv_Round_16u_C3RSfs_L, kroiDiv_Round_16u_C3IRSfs_L},
        {Op::DivRound, kC4, "kroiDiv_Round_16u_C4RSfs", kroiDiv_Round_16u_C4RSfs, kroiDiv_Round_16u_C4IRSfs, kroiDiv_Round_16u_C4RSfs_L, kroiDiv_Round_16u_C4IRSfs_L},
        {Op::DivRound, kAC4, "kroiDiv_Round_16u_AC4RSfs", kroiDiv_Round_16u_AC4RSfs, kroiDiv_Round_16u_AC4IRSfs, kroiDiv_Round_16u_AC4RSfs_L, kroiDiv_Round_16u_AC4IRSfs_L},
    };
    return m;
}
template <>
inline const std::vector<SfsMember<Kro16s>>& sfsMembers<Kro16s>()
{
    static const std::vector<SfsMember<Kro16s>> m = {
        {Op::Add, kC1, "kroiAdd_16s_C1RSfs", kroiAdd_16s_C1RSfs, kroiAdd_16s_C1IRSfs, kroiAdd_16s_C1RSfs_L, kroiAdd_16s_C1IRSfs_L},
        {Op::Add, kC3, "kroiAdd_16s_C3RSfs", kroiAdd_16s_C3RSfs, kroiAdd_16s_C3IRSfs, kroiAdd_16s_C3RSfs_L, kroiAdd_16s_C3IRSfs_L},
        {Op::Add, kC4, "kroiAdd_16s_C4RSfs", kroiAdd_16s_C4RSfs, kroiAdd_16s_C4IRSfs, kroiAdd_16s_C4RSfs_L, kroiAdd_16s_C4IRSfs_L},
        {Op::Add, kAC4, "kroiAdd_16s_AC4RSfs", kroiAdd_16s_AC4RSfs, kroiAdd_16s_AC4IRSfs, kroiAdd_16s_AC4RSfs_L, kroiAdd_16s_AC4IRSfs_L},
        {Op::Sub, kC1, "kroiSub_16s_C1RSfs", kroiSub_16s_C1RSfs, kroiSub_16s_C1IRSfs, kroiSub_16s_C1RSfs_L, kroiSub_16s_C1IRSfs_L},
        {Op::Sub, kC3, "kroiSub_16s_C3RSfs", kroiSub_16s_C3RSfs, kroiSub_16s_C3IRSfs, kroiSub_16s_C3RSfs_L, kroiSub_16s_C3IRSfs_L},
        {Op::Sub, kC4, "kroiSub_16s_C4RSfs", kroiSub_16s_C4RSfs, kroiSub_16s_C4IRSfs, kroiSub_16s_C4RSfs_L, kroiSub_16s_C4IRSfs_L},
        {Op::Sub, kAC4, "kroiSub_16s_AC4RSfs", kroiSub_16s_AC4RSfs, kroiSub_16s_AC4IRSfs, kroiSub_16s_AC4RSfs_L, kroiSub_16s_AC4IRSfs_L},
        {Op::Mul, kC1, "kroiMul_16s_C1RSfs", kroiMul_16s_C1RSfs, kroiMul_16s_C1IRSfs, kroiMul_16s_C1RSfs_L, kroiMul_16s_C1IRSfs_L},
        {Op::Mul, kC3, "kroiMul_16s_C3RSfs", kroiMul_16s_C3RSfs, kroiMul_16s_C3IRSfs, kroiMul_16s_C3RSfs_L, kroiMul_16s_C3IRSfs_L},
        {Op::Mul, kC4, "kroiMul_16s_C4RSfs", kroiMul_16s_C4RSfs, kroiMul_16s_C4IRSfs, kroiMul_16s_C4RSfs_L, kroiMul_16s_C4IRSfs_L},
        {Op::Mul, kAC4, "kroiMul_16s_AC4RSfs", kroiMul_16s_AC4RSfs, kroiMul_16s_AC4IRSfs, kroiMul_16s_AC4RSfs_L, kroiMul_16s_AC4IRSfs_L},
        {Op::Div, kC1, "kroiDiv_16s_C1RSfs", kroiDiv_16s_C1RSfs, kroiDiv_16s_C1IRSfs, kroiDiv_16s_C1RSfs_L, kroiDiv_16s_C1IRSfs_L},
        {Op::Div, kC3, "kroiDiv_16s_C3RSfs", kroiDiv_16s_C3RSfs, kroiDiv_16s_C3IRSfs, kroiDiv_16s_C3RSfs_L, kroiDiv_16s_C3IRSfs_L},
        {Op::Div, kC4, "kroiDiv_16s_C4RSfs", kroiDiv_16s_C4RSfs, kroiDiv_16s_C4IRSfs, kroiDiv_16s_C4RSfs_L, kroiDiv_16s_C4IRSfs_L},
        {Op::Div, kAC4, "kroiDiv_16s_AC4RSfs", kroiDiv_16s_AC4RSfs, kroiDiv_16s_AC4IRSfs, kroiDiv_16s_AC4RSfs_L, kroiDiv_16s_AC4IRSfs_L},
    };
    return m;
}
template <>
inline const std::vector<RoundMember<Kro16s>>& roundMembers<Kro16s>()
{
    static const std::vector<RoundMember<Kro16s>> m = {
        {Op::DivRound, kC1, "kroiDiv_Round_16s_C1RSfs", kroiDiv_Round_16s_C1RSfs, kroiDiv_Round_16s_C1IRSfs, kroiDiv_Round_16s_C1RSfs_L, kroiDiv_Round_16s_C1IRSfs_L},
        {Op::DivRound, kC3, "kroiDiv_Round_16s_C3RSfs", kroiDiv_Round_16s_C3RSfs, kroiDiv_Round_16s_C3IRSfs, kroiDiv_Round_16s_C3RSfs_L, kroiDiv_Round_16s_C3IRSfs_L},
        {Op::DivRound, kC4, "kroiDiv_Round_16s_C4RSfs", kroiDiv_Round_16s_C4RSfs, kroiDiv_Round_16s_C4IRSfs, kroiDiv_Round_16s_C4RSfs_L, kroiDiv_Round_16s_C4IRSfs_L},
        {Op::DivRound, kAC4, "kroiDiv_Round_16s_AC4RSfs", kroiDiv_Round_16s_AC4RSfs, kroiDiv_Round_16s_AC4IRSfs, kroiDiv_Round_16s_AC4RSfs_L, kroiDiv_Round_16s_AC4IRSfs_L},
    };
    return m;
}
inline const std::vector<FloatMember>& floatMembers()
{
    static const std::vector<FloatMember> m = {
        {Op::Add, kC1, "kroiAdd_32f_C1R", kroiAdd_32f_C1R, kroiAdd_32f_C1IR, kroiAdd_32f_C1R_L, kroiAdd_32f_C1IR_L},
        {Op::Add, kC3, "kroiAdd_32f_C3R", kroiAdd_32f_C3R, kroiAdd_32f_C3IR, kroiAdd_32f_C3R_L, kroiAdd_32f_C3IR_L},
        {Op::Add, kC4, "kroiAdd_32f_C4R", kroiAdd_32f_C4R, kroiAdd_32f_C4IR, kroiAdd_32f_C4R_L, kroiAdd_32f_C4IR_L},
        {Op::Add, kAC4, "kroiAdd_32f_AC4R", kroiAdd_32f_AC4R, kroiAdd_32f_AC4IR, kroiAdd_32f_AC4R_L, kroiAdd_32f_AC4IR_L},
        {Op::Sub, kC1, "kroiSub_32f_C1R", kroiSub_32f_C1R, kroiSub_32f_C1IR, kroiSub_32f_C1R_L, kroiSub_32f_C1IR_L},
        {Op::Sub, kC3, "kroiSub_32f_C3R", kroiSub_32f_C3R, kroiSub_32f_C3IR, kroiSub_32f_C3R_L, kroiSub_32f_C3IR_L},
        {Op::Sub, kC4, "kroiSub_32f_C4R", kroiSub_32f_C4R, kroiSub_32f_C4IR, kroiSub_32f_C4R_L, kroiSub_32f_C4IR_L},
        {Op::Sub, kAC4, "kroiSub_32f_AC4R", kroiSub_32f_AC4R, kroiSub_32f_AC4IR, kroiSub_32f_AC4R_L, kroiSub_32f_AC4IR_L},
        {Op::Mul, kC1, "kroiMul_32f_C1R", kroiMul_32f_C1R, kroiMul_32f_C1IR, kroiMul_32f_C1R_L, kroiMul_32f_C1IR_L},
        {Op::Mul, kC3, "kroiMul_32f_C3R", kroiMul_32f_C3R, kroiMul_32f_C3IR, kroiMul_32f_C3R_L, kroiMul_32f_C3IR_L},
        {Op::Mul, kC4, "kroiMul_32f_C4R", kroiMul_32f_C4R, kroiMul_32f_C4IR, kroiMul_32f_C4R_L, kroiMul_32f_C4IR_L},
        {Op::Mul, kAC4, "kroiMul_32f_AC4R", kroiMul_32f_AC4R, kroiMul_32f_AC4IR, kroiMul_32f_AC4R_L, kroiMul_32f_AC4IR_L},
        {Op::Div, kC1, "kroiDiv_32f_C1R", kroiDiv_32f_C1R, kroiDiv_32f_C1IR, kroiDiv_32f_C1R_L, kroiDiv_32f_C1IR_L},
        {Op::Div, kC3, "kroiDiv_32f_C3R", kroiDiv_32f_C3R, kroiDiv_32f_C3IR, kroiDiv_32f_C3R_L, kroiDiv_32f_C3IR_L},
        {Op::Div, kC4, "kroiDiv_32f_C4R", kroiDiv_32f_C4R, kroiDiv_32f_C4IR, kroiDiv_32f_C4R_L, kroiDiv_32f_C4IR_L},
        {Op::Div, kAC4, "kroiDiv_32f_AC4R", kroiDiv_32f_AC4R, kroiDiv_32f_AC4IR, kroiDiv_32f_AC4R_L, kroiDiv_32f_AC4IR_L},
    };
    return m;
}

// Every member of element type T behind one signature: src1, src2 (or src-dst), dst, size,
// parameters.
template <class T>
struct Member {
    Op op;
    Layout layout;
    std::string name;
    std::function<KroStatus(const T*, int, const T*, int, T*, int, KroiSize, Params)> r;
    std::function<KroStatus(const T*, int, T*, int, KroiSize, Params)> ir;
    std::function<KroStatus(const T*, int64_t, const T*, int64_t, T*, int64_t, KroiSizeL, Params)> rl;
    std::function<KroStatus(const T*, int64_t, T*, int64_t, KroiSizeL, Params)> irl;
};

template <class T>
std::vector<Member<T>> members()
{
    std::vector<Member<T>> all;
    if constexpr (std::is_same_v<T, Kro32f>) {
        for (const auto& m : floatMembers())
            all.push_back({m.op, m.layout, m.name,
                           [f = m.r](auto a, int sa, auto b, int sb, auto d, int sd, KroiSize s, Params) {
                               return f(a, sa, b, sb, d, sd, s);
                           },
                           [f = m.ir](auto a, int sa, auto d, int sd, KroiSize s, Params) { return f(a, sa, d, sd, s); },
                           [f = m.rl](auto a, int64_t sa, auto b, int64_t sb, auto d, int64_t sd, KroiSizeL s,
                                      Params) { return f(a, sa, b, sb, d, sd, s); },
                           [f = m.irl](auto a, int64_t sa, auto d, int64_t sd, KroiSizeL s, Params) {
                               return f(a, sa, d, sd, s);
                           }});
    } else {
        for (const auto& m : sfsMembers<T>())
            all.push_back({m.op, m.layout, m.name,
                           [f = m.r](auto a, int sa, auto b, int sb, auto d, int sd, KroiSize s, Params p) {
                               return f(a, sa, b, sb, d, sd, s, p.scale);
                           },
                           [f = m.ir](auto a, int sa, auto d, int sd, KroiSize s, Params p) {
                               return f(a, sa, d, sd, s, p.scale);
                           },
                           [f = m.rl](auto a, int64_t sa, auto b, int64_t sb, auto d, int64_t sd, KroiSizeL s,
                                      Params p) { return f(a, sa, b, sb, d, sd, s, p.scale); },
                           [f = m.irl](auto a, int64_t sa, auto d, int64_t sd, KroiSizeL s, Params p) {
                               return f(a, sa, d, sd, s, p.scale);
                           }});
        for (const auto& m : roundMembers<T>())
            all.push_back({m.op, m.layout, m.name,
                           [f = m.r](auto a, int sa, auto b, int sb, auto d, int sd, KroiSize s, Params p) {
                               return f(a, sa, b, sb, d, sd, s, p.mode, p.scale);
                           },
                           [f = m.ir](auto a, int sa, auto d, int sd, KroiSize s, Params p) {
                               return f(a, sa, d, sd, s, p.mode, p.scale);
                           },
                           [f = m.rl](auto a, int64_t sa, auto b, int64_t sb, auto d, int64_t sd, KroiSizeL s,
                                      Params p) { return f(a, sa, b, sb, d, sd, s, p.mode, p.scale); },
                           [f = m.irl](auto a, int64_t sa, auto d, int64_t sd, KroiSizeL s, Params p) {
                               return f(a, sa, d, sd, s, p.mode, p.scale);
                           }});
    }
    return all;
}

inline bool divides(Op op) { return op == Op::Div || op == Op::DivRound; }

// ---- the rule ----------------------------------------------------------------------------------

// x / y x 2^-s rounded by mode (0 toward zero, 1 ties to even, 2 ties away), exact in 128 bits.
inline ref::i128 divRound(ref::i128 x, ref::i128 y, int s, int mode)
{
    ref::i128 num = x, den = y;
    const int up = s < -100 ? 100 : s < 0 ? -s : 0, down = s > 100 ? 100 : s > 0 ? s : 0;
    for (int i = 0; i < up; ++i) num *= 2;
    for (int i = 0; i < down; ++i) den *= 2;
    if (den < 0) num = -num, den = -den;
    ref::i128 q = num / den, r = num % den; // truncated
    if (mode == 0) return q;
    if (r < 0) q -= 1, r += den; // floored
    if (2 * r > den) return q + 1;
    if (2 * r < den) return q;
    return mode == 1 ? q + (q % 2 != 0) : (q >= 0 ? q + 1 : q);
}

// A zero divisor: as an infinity of the dividend's sign.
template <class T>
T byZero(T x)
{
    return x > 0 ? std::numeric_limits<T>::max() : x < 0 ? std::numeric_limits<T>::lowest() : T(0);
}

// 8u Div: the single-precision reciprocal estimate with one Newton-Raphson step over the bulk
// of a row, exact single-precision division over its last (elements mod 16).
inline Kro8u div8u(Kro8u x, Kro8u y, int s, bool bulk)
{
    if (y == 0) return byZero(x);
    if (s > 8) return 0;
    if (s < -15) return x ? 255 : 0;
    float q;
    if (bulk) {
        const float fy = float(y);
        const float r0 = _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(fy)));
        const float r1 = r0 * (2.0f - fy * r0);
        q = float(x) * r1;
    } else {
        q = float(x) / float(y);
    }
    q = q * std::ldexp(1.0f, -s);
    const double r = ref::roundHalfEven(double(q));
    return Kro8u(r < 0 ? 0 : r > 255 ? 255 : r);
}

// The expected element for src1 = a, src2 = b; `bulk`: the element lies before the row's last
// (elements mod 16).
template <class T>
T expected(Op op, T a, T b, Params p, bool bulk)
{
    if constexpr (std::is_same_v<T, Kro32f>) {
        switch (op) {
        case Op::Add: return a + b;
        case Op::Sub: return b - a;
        case Op::Mul: return a * b;
        default: return b / a;
        }
    } else {
        using W = ref::i128;
        switch (op) {
        case Op::Add: return ref::scaleSaturate<T>(W(a) + W(b), p.scale);
        case Op::Sub: return ref::scaleSaturate<T>(W(b) - W(a), p.scale);
        case Op::Mul: return ref::scaleSaturate<T>(W(a) * W(b), p.scale);
        case Op::Div:
            if constexpr (std::is_same_v<T, Kro8u>) return div8u(b, a, p.scale, bulk);
            [[fallthrough]];
        default:
            if (a == 0) return byZero(b);
            return ref::saturate<T>(divRound(b, a, p.scale, op == Op::Div ? 1 : p.mode));
        }
    }
}

// ---- random operands ---------------------------------------------------------------------------------

// Divisors come often zero and often small, so that quotients cover the whole range and the
// zero-divisor rule is met; other operands over the whole range (floats with specials).
template <class T>
void fillOperand(kt::Guarded<T>& img, kt::Rng& rng, bool divisor)
{
    img.forEach([&](int, int, int, T& e) {
        const int pick = kt::uniform(rng, 0, 15);
        if (divisor && pick == 0) e = T(0);
        else if (divisor && pick < 7) e = std::is_signed_v<T> ? T(kt::uniform(rng, -9, 9)) : T(kt::uniform(rng, 1, 9));
        else e = kt::randomValue<T>(rng, kt::FloatMix{-100.0, 100.0, 0.05});
    });
}

// The status a call must return: the warning 2 when a divisor of a computed element is zero.
template <class T>
KroStatus expectedStatus(Op op, const kt::Guarded<T>& src1, Layout l)
{
    if (!divides(op)) return kroStsOk;
    bool zero = false;
    src1.forEach([&](int, int, int c, const T& v) { zero |= c < channels(l) && v == T(0); });
    return zero ? kroStsZeroDivisorWarn : kroStsOk;
}

// Every computed element of dst is the rule's; the fourth AC4 element, the padding and the
// bytes around are as in `before`.
template <class T>
testing::AssertionResult matchesRule(const Member<T>& m, Params p, const kt::Guarded<T>& src1,
                                     const kt::Guarded<T>& src2, const kt::Guarded<T>& dst,
                                     const std::vector<unsigned char>& before)
{
    const int E = elems(m.layout), C = channels(m.layout);
    const int n = dst.width() * E;
    auto r = kt::imageEquals(dst, [&](int x, int y, int c) {
        if (c >= C) return dst.at(x, y, c);
        const int i = x * E + c;
        return expected<T>(m.op, src1.at(x, y, c), src2.at(x, y, c), p, i < n - n % 16);
    });
    if (!r) return r;
    return dst.restUnchangedSince(before, C);
}

// Copies the elements (not the padding) of one image into another of the same size.
template <class T>
void copyElements(const kt::Guarded<T>& from, kt::Guarded<T>& to)
{
    to.forEach([&](int x, int y, int c, T& e) { e = from.at(x, y, c); });
}

}  // namespace arith_test
