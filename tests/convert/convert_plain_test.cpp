// Convert without a rounding argument against the rule: exact widening, saturating narrowing
// and the signed-to-unsigned Rs forms, every member.
#include <cmath>
#include <cstdint>
#include <limits>

#include <gtest/gtest.h>

#include "convert/convert_harness.hpp"

namespace {

using namespace cvtest;

// ---- without a rounding argument ------------------------------------------------------------
template <class S, class D>
D plainRule(S v)
{
    if constexpr (std::is_floating_point_v<D>) return D(v);  // 32-bit integers: nearest, ties to even
    else return clampTo<D>(v);
}

template <class S, class D>
void plainMember(const char* name, KroStatus (*fn)(const S*, int, D*, int, KroiSize), int layout)
{
    kt::Rng rng = kt::rngForTest();
    sweep<S, D>(name, layout, fn, plainRule<S, D>, rng, Depth::full);
    checkOrder<S, D>(name, fn, true);
}

TEST(ConvertPlain, EveryMemberMatchesTheRule)
{
    plainMember(KT_M(kroiConvert_8u16u_C1R, 1));
    plainMember(KT_M(kroiConvert_8u16u_C3R, 3));
    plainMember(KT_M(kroiConvert_8u16u_C4R, 4));
    plainMember(KT_M(kroiConvert_8u16u_AC4R, 5));
    plainMember(KT_M(kroiConvert_8u16s_C1R, 1));
    plainMember(KT_M(kroiConvert_8u16s_C3R, 3));
    plainMember(KT_M(kroiConvert_8u16s_C4R, 4));
    plainMember(KT_M(kroiConvert_8u16s_AC4R, 5));
    plainMember(KT_M(kroiConvert_8u32s_C1R, 1));
    plainMember(KT_M(kroiConvert_8u32s_C3R, 3));
    plainMember(KT_M(kroiConvert_8u32s_C4R, 4));
    plainMember(KT_M(kroiConvert_8u32s_AC4R, 5));
    plainMember(KT_M(kroiConvert_8u32f_C1R, 1));
    plainMember(KT_M(kroiConvert_8u32f_C3R, 3));
    plainMember(KT_M(kroiConvert_8u32f_C4R, 4));
    plainMember(KT_M(kroiConvert_8u32f_AC4R, 5));
    plainMember(KT_M(kroiConvert_8s16s_C1R, 1));
    plainMember(KT_M(kroiConvert_8s32s_C1R, 1));
    plainMember(KT_M(kroiConvert_8s32s_C3R, 3));
    plainMember(KT_M(kroiConvert_8s32s_C4R, 4));
    plainMember(KT_M(kroiConvert_8s32s_AC4R, 5));
    plainMember(KT_M(kroiConvert_8s32f_C1R, 1));
    plainMember(KT_M(kroiConvert_8s32f_C3R, 3));
    plainMember(KT_M(kroiConvert_8s32f_C4R, 4));
    plainMember(KT_M(kroiConvert_8s32f_AC4R, 5));
    plainMember(KT_M(kroiConvert_8s64f_C1R, 1));
    plainMember(KT_M(kroiConvert_16u32s_C1R, 1));
    plainMember(KT_M(kroiConvert_16u32s_C3R, 3));
    plainMember(KT_M(kroiConvert_16u32s_C4R, 4));
    plainMember(KT_M(kroiConvert_16u32s_AC4R, 5));
    plainMember(KT_M(kroiConvert_16u32f_C1R, 1));
    plainMember(KT_M(kroiConvert_16u32f_C3R, 3));
    plainMember(KT_M(kroiConvert_16u32f_C4R, 4));
    plainMember(KT_M(kroiConvert_16u32f_AC4R, 5));
    plainMember(KT_M(kroiConvert_16u32u_C1R, 1));
    plainMember(KT_M(kroiConvert_16s32s_C1R, 1));
    plainMember(KT_M(kroiConvert_16s32s_C3R, 3));
    plainMember(KT_M(kroiConvert_16s32s_C4R, 4));
    plainMember(KT_M(kroiConvert_16s32s_AC4R, 5));
    plainMember(KT_M(kroiConvert_16s32f_C1R, 1));
    plainMember(KT_M(kroiConvert_16s32f_C3R, 3));
    plainMember(KT_M(kroiConvert_16s32f_C4R, 4));
    plainMember(KT_M(kroiConvert_16s32f_AC4R, 5));
    plainMember(KT_M(kroiConvert_32s32f_C1R, 1));
    plainMember(KT_M(kroiConvert_32u32f_C1R, 1));
    plainMember(KT_M(kroiConvert_16u8u_C1R, 1));
    plainMember(KT_M(kroiConvert_16u8u_C3R, 3));
    plainMember(KT_M(kroiConvert_16u8u_C4R, 4));
    plainMember(KT_M(kroiConvert_16u8u_AC4R, 5));
    plainMember(KT_M(kroiConvert_16s8u_C1R, 1));
    plainMember(KT_M(kroiConvert_16s8u_C3R, 3));
    plainMember(KT_M(kroiConvert_16s8u_C4R, 4));
    plainMember(KT_M(kroiConvert_16s8u_AC4R, 5));
    plainMember(KT_M(kroiConvert_32s8u_C1R, 1));
    plainMember(KT_M(kroiConvert_32s8u_C3R, 3));
    plainMember(KT_M(kroiConvert_32s8u_C4R, 4));
    plainMember(KT_M(kroiConvert_32s8u_AC4R, 5));
    plainMember(KT_M(kroiConvert_32s8s_C1R, 1));
    plainMember(KT_M(kroiConvert_32s8s_C3R, 3));
    plainMember(KT_M(kroiConvert_32s8s_C4R, 4));
    plainMember(KT_M(kroiConvert_32s8s_AC4R, 5));
    plainMember(KT_M(kroiConvert_8s8u_C1Rs, 1));
    plainMember(KT_M(kroiConvert_8s16u_C1Rs, 1));
    plainMember(KT_M(kroiConvert_8s32u_C1Rs, 1));
    plainMember(KT_M(kroiConvert_16s16u_C1Rs, 1));
    plainMember(KT_M(kroiConvert_16s32u_C1Rs, 1));
    plainMember(KT_M(kroiConvert_32s32u_C1Rs, 1));
}

}  // namespace
