// ScaleC from 32s, 32f and 64f against the rule, every member and constant pair, and the
// in-place forms.
#include <gtest/gtest.h>

#include "convert/scale_const_member.hpp"

namespace {

using namespace cvtest;

TEST(ScaleConst, EveryMemberFrom32sOrFloatMatchesTheRule)
{
    constMember(KT_M(kroiScaleC_32s8u_C1R, 1));
    constMember(KT_M(kroiScaleC_32s8s_C1R, 1));
    constMember(KT_M(kroiScaleC_32s16u_C1R, 1));
    constMember(KT_M(kroiScaleC_32s16s_C1R, 1));
    constMember(KT_M(kroiScaleC_32s_C1R, 1));
    constMember(KT_M(kroiScaleC_32s32f_C1R, 1));
    constMember(KT_M(kroiScaleC_32s64f_C1R, 1));
    constMember(KT_M(kroiScaleC_32f8u_C1R, 1));
    constMember(KT_M(kroiScaleC_32f8s_C1R, 1));
    constMember(KT_M(kroiScaleC_32f16u_C1R, 1));
    constMember(KT_M(kroiScaleC_32f16s_C1R, 1));
    constMember(KT_M(kroiScaleC_32f32s_C1R, 1));
    constMember(KT_M(kroiScaleC_32f_C1R, 1));
    constMember(KT_M(kroiScaleC_32f64f_C1R, 1));
    constMember(KT_M(kroiScaleC_64f8u_C1R, 1));
    constMember(KT_M(kroiScaleC_64f8s_C1R, 1));
    constMember(KT_M(kroiScaleC_64f16u_C1R, 1));
    constMember(KT_M(kroiScaleC_64f16s_C1R, 1));
    constMember(KT_M(kroiScaleC_64f32s_C1R, 1));
    constMember(KT_M(kroiScaleC_64f32f_C1R, 1));
    constMember(KT_M(kroiScaleC_64f_C1R, 1));
}

TEST(ScaleConst, InPlace)
{
    constInPlace(KT_M(kroiScaleC_8u_C1IR, 1));
    constInPlace(KT_M(kroiScaleC_8s_C1IR, 1));
    constInPlace(KT_M(kroiScaleC_16u_C1IR, 1));
    constInPlace(KT_M(kroiScaleC_16s_C1IR, 1));
    constInPlace(KT_M(kroiScaleC_32s_C1IR, 1));
    constInPlace(KT_M(kroiScaleC_32f_C1IR, 1));
    constInPlace(KT_M(kroiScaleC_64f_C1IR, 1));
}

}  // namespace
