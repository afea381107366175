// Every member of Abs, Sqr, Sqrt, Exp, Ln, MinEvery and MaxEvery as a table row: its name,
// layout, and both forms called with a scale factor (ignored by the forms without one).
#pragma once

#include <string>
#include <vector>

#include "kroi.h"

namespace unary_test {

enum class Op { Abs, Sqr, Sqrt, Exp, Ln };

template <class T>
struct Member {
    Op op;
    const char* name;
    int channels, written;
    KroStatus (*r)(const T*, int, T*, int, KroiSize, int);
    KroStatus (*i)(T*, int, KroiSize, int);
};

// The forms without a scale factor, called as if they had one.
template <class T, KroStatus (*F)(const T*, int, T*, int, KroiSize)>
KroStatus r0(const T* s, int ss, T* d, int ds, KroiSize roi, int) { return F(s, ss, d, ds, roi); }
template <class T, KroStatus (*F)(T*, int, KroiSize)>
KroStatus i0(T* d, int ds, KroiSize roi, int) { return F(d, ds, roi); }

template <class T>
struct EveryMember {
    bool max;
    const char* name;
    int channels, written;
    KroStatus (*f)(const T*, int, T*, int, KroiSize);
};

template <class T>
const std::vector<Member<T>>& members();
template <class T>
const std::vector<EveryMember<T>>& everyMembers();

template <>
inline const std::vector<Member<Kro8u>>& members<Kro8u>()
{
    static const std::vector<Member<Kro8u>> m = {
    {Op::Sqr, "kroiSqr_8u_C1RSfs", 1, 1, kroiSqr_8u_C1RSfs, kroiSqr_8u_C1IRSfs},
    {Op::Sqr, "kroiSqr_8u_C3RSfs", 3, 3, kroiSqr_8u_C3RSfs, kroiSqr_8u_C3IRSfs},
    {Op::Sqr, "kroiSqr_8u_C4RSfs", 4, 4, kroiSqr_8u_C4RSfs, kroiSqr_8u_C4IRSfs},
    {Op::Sqr, "kroiSqr_8u_AC4RSfs", 4, 3, kroiSqr_8u_AC4RSfs, kroiSqr_8u_AC4IRSfs},
    {Op::Sqrt, "kroiSqrt_8u_C1RSfs", 1, 1, kroiSqrt_8u_C1RSfs, kroiSqrt_8u_C1IRSfs},
    {Op::Sqrt, "kroiSqrt_8u_C3RSfs", 3, 3, kroiSqrt_8u_C3RSfs, kroiSqrt_8u_C3IRSfs},
    {Op::Sqrt, "kroiSqrt_8u_C4RSfs", 4, 4, kroiSqrt_8u_C4RSfs, kroiSqrt_8u_C4IRSfs},
    {Op::Sqrt, "kroiSqrt_8u_AC4RSfs", 4, 3, kroiSqrt_8u_AC4RSfs, kroiSqrt_8u_AC4IRSfs},
    {Op::Exp, "kroiExp_8u_C1RSfs", 1, 1, kroiExp_8u_C1RSfs, kroiExp_8u_C1IRSfs},
    {Op::Exp, "kroiExp_8u_C3RSfs", 3, 3, kroiExp_8u_C3RSfs, kroiExp_8u_C3IRSfs},
    {Op::Exp, "kroiExp_8u_C4RSfs", 4, 4, kroiExp_8u_C4RSfs, kroiExp_8u_C4IRSfs},
    {Op::Exp, "kroiExp_8u_AC4RSfs", 4, 3, kroiExp_8u_AC4RSfs, kroiExp_8u_AC4IRSfs},
    {Op::Ln, "kroiLn_8u_C1RSfs", 1, 1, kroiLn_8u_C1RSfs, kroiLn_8u_C1IRSfs},
    {Op::Ln, "kroiLn_8u_C3RSfs", 3, 3, kroiLn_8u_C3RSfs, kroiLn_8u_C3IRSfs},
    {Op::Ln, "kroiLn_8u_C4RSfs", 4, 4, kroiLn_8u_C4RSfs, kroiLn_8u_C4IRSfs},
    {Op::Ln, "kroiLn_8u_AC4RSfs", 4, 3, kroiLn_8u_AC4RSfs, kroiLn_8u_AC4IRSfs},
    };
    return m;
}

template <>
inline const std::vector<EveryMember<Kro8u>>& everyMembers<Kro8u>()
{
    static const std::vector<EveryMember<Kro8u>> m = {
    {false, "kroiMinEvery_8u_C1IR", 1, 1, kroiMinEvery_8u_C1IR},
    {false, "kroiMinEvery_8u_C3IR", 3, 3, kroiMinEvery_8u_C3IR},
    {false, "kroiMinEvery_8u_C4IR", 4, 4, kroiMinEvery_8u_C4IR},
    {false, "kroiMinEvery_8u_AC4IR", 4, 3, kroiMinEvery_8u_AC4IR},
    {true, "kroiMaxEvery_8u_C1IR", 1, 1, kroiMaxEvery_8u_C1IR},
    {true, "kroiMaxEvery_8u_C3IR", 3, 3, kroiMaxEvery_8u_C3IR},
    {true, "kroiMaxEvery_8u_C4IR", 4, 4, kroiMaxEvery_8u_C4IR},
    {true, "kroiMaxEvery_8u_AC4IR", 4, 3, kroiMaxEvery_8u_AC4IR},
    };
    return m;
}

template <>
inline const std::vector<Member<Kro16u>>& members<Kro16u>()
{
    static const std::vector<Member<Kro16u>> m = {
    {Op::Sqr, "kroiSqr_16u_C1RSfs", 1, 1, kroiSqr_16u_C1RSfs, kroiSqr_16u_C1IRSfs},
    {Op::Sqr, "kroiSqr_16u_C3RSfs", 3, 3, kroiSqr_16u_C3RSfs, kroiSqr_16u_C3IRSfs},
    {Op::Sqr, "kroiSqr_16u_C4RSfs", 4, 4, kroiSqr_16u_C4RSfs, kroiSqr_16u_C4IRSfs},
    {Op::Sqr, "kroiSqr_16u_AC4RSfs", 4, 3, kroiSqr_16u_AC4RSfs, kroiSqr_16u_AC4IRSfs},
    {Op::Sqrt, "kroiSqrt_16u_C1RSfs", 1, 1, kroiSqrt_16u_C1RSfs, kroiSqrt_16u_C1IRSfs},
    {Op::Sqrt, "kroiSqrt_16u_C3RSfs", 3, 3, kroiSqrt_16u_C3RSfs, kroiSqrt_16u_C3IRSfs},
    {Op::Sqrt, "kroiSqrt_16u_C4RSfs", 4, 4, kroiSqrt_16u_C4RSfs, kroiSqrt_16u_C4IRSfs},
    {Op::Sqrt, "kroiSqrt_16u_AC4RSfs", 4, 3, kroiSqrt_16u_AC4RSfs, kroiSqrt_16u_AC4IRSfs},
    };
    return m;
}

template <>
inline const std::vector<EveryMember<Kro16u>>& everyMembers<Kro16u>()
{
    static const std::vector<EveryMember<Kro16u>> m = {
    {false, "kroiMinEvery_16u_C1IR", 1, 1, kroiMinEvery_16u_C1IR},
    {false, "kroiMinEvery_16u_C3IR", 3, 3, kroiMinEvery_16u_C3IR},
    {false, "kroiMinEvery_16u_C4IR", 4, 4, kroiMinEvery_16u_C4IR},
    {false, "kroiMinEvery_16u_AC4IR", 4, 3, kroiMinEvery_16u_AC4IR},
    {true, "kroiMaxEvery_16u_C1IR", 1, 1, kroiMaxEvery_16u_C1IR},
    {true, "kroiMaxEvery_16u_C3IR", 3, 3, kroiMaxEvery_16u_C3IR},
    {true, "kroiMaxEvery_16u_C4IR", 4, 4, kroiMaxEvery_16u_C4IR},
    {true, "kroiMaxEvery_16u_AC4IR", 4, 3, kroiMaxEvery_16u_AC4IR},
    };
    return m;
}

template <>
inline const std::vector<Member<Kro16s>>& members<Kro16s>()
{
    static const std::vector<Member<Kro16s>> m = {
    {Op::Abs, "kroiAbs_16s_C1R", 1, 1, r0<Kro16s, kroiAbs_16s_C1R>, i0<Kro16s, kroiAbs_16s_C1IR>},
    {Op::Abs, "kroiAbs_16s_C3R", 3, 3, r0<Kro16s, kroiAbs_16s_C3R>, i0<Kro16s, kroiAbs_16s_C3IR>},
    {Op::Abs, "kroiAbs_16s_C4R", 4, 4, r0<Kro16s, kroiAbs_16s_C4R>, i0<Kro16s, kroiAbs_16s_C4IR>},
    {Op::Abs, "kroiAbs_16s_AC4R", 4, 3, r0<Kro16s, kroiAbs_16s_AC4R>, i0<Kro16s, kroiAbs_16s_AC4IR>},
    {Op::Sqr, "kroiSqr_16s_C1RSfs", 1, 1, kroiSqr_16s_C1RSfs, kroiSqr_16s_C1IRSfs},
    {Op::Sqr, "kroiSqr_16s_C3RSfs", 3, 3, kroiSqr_16s_C3RSfs, kroiSqr_16s_C3IRSfs},
    {Op::Sqr, "kroiSqr_16s_C4RSfs", 4, 4, kroiSqr_16s_C4RSfs, kroiSqr_16s_C4IRSfs},
    {Op::Sqr, "kroiSqr_16s_AC4RSfs", 4, 3, kroiSqr_16s_AC4RSfs, kroiSqr_16s_AC4IRSfs},
    {Op::Sqrt, "kroiSqrt_16s_C1RSfs", 1, 1, kroiSqrt_16s_C1RSfs, kroiSqrt_16s_C1IRSfs},
    {Op::Sqrt, "kroiSqrt_16s_C3RSfs", 3, 3, kroiSqrt_16s_C3RSfs, kroiSqrt_16s_C3IRSfs},
    {Op::Sqrt, "kroiSqrt_16s_C4RSfs", 4, 4, kroiSqrt_16s_C4RSfs, kroiSqrt_16s_C4IRSfs},
    {Op::Sqrt, "kroiSqrt_16s_AC4RSfs", 4, 3, kroiSqrt_16s_AC4RSfs, kroiSqrt_16s_AC4IRSfs},
    {Op::Exp, "kroiExp_16s_C1RSfs", 1, 1, kroiExp_16s_C1RSfs, kroiExp_16s_C1IRSfs},
    {Op::Exp, "kroiExp_16s_C3RSfs", 3, 3, kroiExp_16s_C3RSfs, kroiExp_16s_C3IRSfs},
    {Op::Exp, "kroiExp_16s_C4RSfs", 4, 4, kroiExp_16s_C4RSfs, kroiExp_16s_C4IRSfs},
    {Op::Exp, "kroiExp_16s_AC4RSfs", 4, 3, kroiExp_16s_AC4RSfs, kroiExp_16s_AC4IRSfs},
    {Op::Ln, "kroiLn_16s_C1RSfs", 1, 1, kroiLn_16s_C1RSfs, kroiLn_16s_C1IRSfs},
    {Op::Ln, "kroiLn_16s_C3RSfs", 3, 3, kroiLn_16s_C3RSfs, kroiLn_16s_C3IRSfs},
    {Op::Ln, "kroiLn_16s_C4RSfs", 4, 4, kroiLn_16s_C4RSfs, kroiLn_16s_C4IRSfs},
    {Op::Ln, "kroiLn_16s_AC4RSfs", 4, 3, kroiLn_16s_AC4RSfs, kroiLn_16s_AC4IRSfs},
    };
    return m;
}

template <>
inline const std::vector<EveryMember<Kro16s>>& everyMembers<Kro16s>()
{
    static const std::vector<EveryMember<Kro16s>> m = {
    {false, "kroiMinEvery_16s_C1IR", 1, 1, kroiMinEvery_16s_C1IR},
    {false, "kroiMinEvery_16s_C3IR", 3, 3, kroiMinEvery_16s_C3IR},
    {false, "kroiMinEvery_16s_C4IR", 4, 4, kroiMinEvery_16s_C4IR},
    {false, "kroiMinEvery_16s_AC4IR", 4, 3, kroiMinEvery_16s_AC4IR},
    {true, "kroiMaxEvery_16s_C1IR", 1, 1, kroiMaxEvery_16s_C1IR},
    {true, "kroiMaxEvery_16s_C3IR", 3, 3, kroiMaxEvery_16s_C3IR},
    {true, "kroiMaxEvery_16s_C4IR", 4, 4, kroiMaxEvery_16s_C4IR},
    {true, "kroiMaxEvery_16s_AC4IR", 4, 3, kroiMaxEvery_16s_AC4IR},
    };
    return m;
}

template <>
inline const std::vector<Member<Kro32f>>& members<Kro32f>()
{
    static const std::vector<Member<Kro32f>> m = {
    {Op::Abs, "kroiAbs_32f_C1R", 1, 1, r0<Kro32f, kroiAbs_32f_C1R>, i0<Kro32f, kroiAbs_32f_C1IR>},
    {Op::Abs, "kroiAbs_32f_C3R", 3, 3, r0<Kro32f, kroiAbs_32f_C3R>, i0<Kro32f, kroiAbs_32f_C3IR>},
    {Op::Abs, "kroiAbs_32f_C4R", 4, 4, r0<Kro32f, kroiAbs_32f_C4R>, i0<Kro32f, kroiAbs_32f_C4IR>},
    {Op::Abs, "kroiAbs_32f_AC4R", 4, 3, r0<Kro32f, kroiAbs_32f_AC4R>, i0<Kro32f, kroiAbs_32f_AC4IR>},
    {Op::Sqr, "kroiSqr_32f_C1R", 1, 1, r0<Kro32f, kroiSqr_32f_C1R>, i0<Kro32f, kroiSqr_32f_C1IR>},
    {Op::Sqr, "kroiSqr_32f_C3R", 3, 3, r0<Kro32f, kroiSqr_32f_C3R>, i0<Kro32f, kroiSqr_32f_C3IR>},
    {Op::Sqr, "kroiSqr_32f_C4R", 4, 4, r0<Kro32f, kroiSqr_32f_C4R>, i0<Kro32f, kroiSqr_32f_C4IR>},
    {Op::Sqr, "kroiSqr_32f_AC4R", 4, 3, r0<Kro32f, kroiSqr_32f_AC4R>, i0<Kro32f, kroiSqr_32f_AC4IR>},
    {Op::Sqrt, "kroiSqrt_32f_C1R", 1, 1, r0<Kro32f, kroiSqrt_32f_C1R>, i0<Kro32f, kroiSqrt_32f_C1IR>},
    {Op::Sqrt, "kroiSqrt_32f_C3R", 3, 3, r0<Kro32f, kroiSqrt_32f_C3R>, i0<Kro32f, kroiSqrt_32f_C3IR>},
    {Op::Sqrt, "kroiSqrt_32f_C4R", 4, 4, r0<Kro32f, kroiSqrt_32f_C4R>, i0<Kro32f, kroiSqrt_32f_C4IR>},
    {Op::Sqrt, "kroiSqrt_32f_AC4R", 4, 3, r0<Kro32f, kroiSqrt_32f_AC4R>, i0<Kro32f, kroiSqrt_32f_AC4IR>},
    {Op::Exp, "kroiExp_32f_C1R", 1, 1, r0<Kro32f, kroiExp_32f_C1R>, i0<Kro32f, kroiExp_32f_C1IR>},
    {Op::Exp, "kroiExp_32f_C3R", 3, 3, r0<Kro32f, kroiExp_32f_C3R>, i0<Kro32f, kroiExp_32f_C3IR>},
    {Op::Exp, "kroiExp_32f_C4R", 4, 4, r0<Kro32f, kroiExp_32f_C4R>, i0<Kro32f, kroiExp_32f_C4IR>},
    {Op::Exp, "kroiExp_32f_AC4R", 4, 3, r0<Kro32f, kroiExp_32f_AC4R>, i0<Kro32f, kroiExp_32f_AC4IR>},
    {Op::Ln, "kroiLn_32f_C1R", 1, 1, r0<Kro32f, kroiLn_32f_C1R>, i0<Kro32f, kroiLn_32f_C1IR>},
    {Op::Ln, "kroiLn_32f_C3R", 3, 3, r0<Kro32f, kroiLn_32f_C3R>, i0<Kro32f, kroiLn_32f_C3IR>},
    {Op::Ln, "kroiLn_32f_C4R", 4, 4, r0<Kro32f, kroiLn_32f_C4R>, i0<Kro32f, kroiLn_32f_C4IR>},
    {Op::Ln, "kroiLn_32f_AC4R", 4, 3, r0<Kro32f, kroiLn_32f_AC4R>, i0<Kro32f, kroiLn_32f_AC4IR>},
    };
    return m;
}

template <>
inline const std::vector<EveryMember<Kro32f>>& everyMembers<Kro32f>()
{
    static const std::vector<EveryMember<Kro32f>> m = {
    {false, "kroiMinEvery_32f_C1IR", 1, 1, kroiMinEvery_32f_C1IR},
    {false, "kroiMinEvery_32f_C3IR", 3, 3, kroiMinEvery_32f_C3IR},
    {false, "kroiMinEvery_32f_C4IR", 4, 4, kroiMinEvery_32f_C4IR},
    {false, "kroiMinEvery_32f_AC4IR", 4, 3, kroiMinEvery_32f_AC4IR},
    {true, "kroiMaxEvery_32f_C1IR", 1, 1, kroiMaxEvery_32f_C1IR},
    {true, "kroiMaxEvery_32f_C3IR", 3, 3, kroiMaxEvery_32f_C3IR},
    {true, "kroiMaxEvery_32f_C4IR", 4, 4, kroiMaxEvery_32f_C4IR},
    {true, "kroiMaxEvery_32f_AC4IR", 4, 3, kroiMaxEvery_32f_AC4IR},
    };
    return m;
}

}  // namespace unary_test
