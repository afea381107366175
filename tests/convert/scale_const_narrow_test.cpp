// ScaleC from 8- and 16-bit integers against the rule, every member and constant pair.
#include <gtest/gtest.h>

#include "convert/scale_const_member.hpp"

namespace {

using namespace cvtest;

TEST(ScaleConst, EveryMemberFromAnIntegerOf8Or16BitsMatchesTheRule)
{
    constMember(KT_M(kroiScaleC_8u_C1R, 1));
    constMember(KT_M(kroiScaleC_8u8s_C1R, 1));
    constMember(KT_M(kroiScaleC_8u16u_C1R, 1));
    constMember(KT_M(kroiScaleC_8u16s_C1R, 1));
    constMember(KT_M(kroiScaleC_8u32s_C1R, 1));
    constMember(KT_M(kroiScaleC_8u32f_C1R, 1));
    constMember(KT_M(kroiScaleC_8u64f_C1R, 1));
    constMember(KT_M(kroiScaleC_8s8u_C1R, 1));
    constMember(KT_M(kroiScaleC_8s_C1R, 1));
    constMember(KT_M(kroiScaleC_8s16u_C1R, 1));
    constMember(KT_M(kroiScaleC_8s16s_C1R, 1));
    constMember(KT_M(kroiScaleC_8s32s_C1R, 1));
    constMember(KT_M(kroiScaleC_8s32f_C1R, 1));
    constMember(KT_M(kroiScaleC_8s64f_C1R, 1));
    constMember(KT_M(kroiScaleC_16u8u_C1R, 1));
    constMember(KT_M(kroiScaleC_16u8s_C1R, 1));
    constMember(KT_M(kroiScaleC_16u_C1R, 1));
    constMember(KT_M(kroiScaleC_16u16s_C1R, 1));
    constMember(KT_M(kroiScaleC_16u32s_C1R, 1));
    constMember(KT_M(kroiScaleC_16u32f_C1R, 1));
    constMember(KT_M(kroiScaleC_16u64f_C1R, 1));
    constMember(KT_M(kroiScaleC_16s8u_C1R, 1));
    constMember(KT_M(kroiScaleC_16s8s_C1R, 1));
    constMember(KT_M(kroiScaleC_16s16u_C1R, 1));
    constMember(KT_M(kroiScaleC_16s_C1R, 1));
    constMember(KT_M(kroiScaleC_16s32s_C1R, 1));
    constMember(KT_M(kroiScaleC_16s32f_C1R, 1));
    constMember(KT_M(kroiScaleC_16s64f_C1R, 1));
}

}  // namespace
