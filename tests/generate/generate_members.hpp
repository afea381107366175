// Every member of the generation section as a table row.
#pragma once

#include <vector>

#include "kroi.h"

namespace generate_test {

template <class T>
struct RampMember {
    const char* name;
    int channels, written;
    KroStatus (*f)(T*, int, KroiSize, float, float, KroiRampAxis);
};
template <class T>
struct NoiseMember {
    const char* name;
    int channels, written;
    KroStatus (*uniform)(T*, int, KroiSize, float, float, unsigned int*);
    KroStatus (*gauss)(T*, int, KroiSize, float, float, unsigned int*);
};
template <class T>
struct Members {
    static const std::vector<RampMember<T>> ramp;
    static const std::vector<NoiseMember<T>> noise;
};

template <>
inline const std::vector<RampMember<Kro8u>> Members<Kro8u>::ramp = {
    {"kroiImageRamp_8u_C1R", 1, 1, kroiImageRamp_8u_C1R},
    {"kroiImageRamp_8u_C3R", 3, 3, kroiImageRamp_8u_C3R},
    {"kroiImageRamp_8u_C4R", 4, 4, kroiImageRamp_8u_C4R},
    {"kroiImageRamp_8u_AC4R", 4, 3, kroiImageRamp_8u_AC4R},
};
template <>
inline const std::vector<NoiseMember<Kro8u>> Members<Kro8u>::noise = {
    {"kroiAddRand*_8u_C1IR", 1, 1, kroiAddRandUniform_8u_C1IR, kroiAddRandGauss_8u_C1IR},
    {"kroiAddRand*_8u_C3IR", 3, 3, kroiAddRandUniform_8u_C3IR, kroiAddRandGauss_8u_C3IR},
    {"kroiAddRand*_8u_C4IR", 4, 4, kroiAddRandUniform_8u_C4IR, kroiAddRandGauss_8u_C4IR},
    {"kroiAddRand*_8u_AC4IR", 4, 3, kroiAddRandUniform_8u_AC4IR, kroiAddRandGauss_8u_AC4IR},
};

template <>
inline const std::vector<RampMember<Kro8s>> Members<Kro8s>::ramp = {
    {"kroiImageRamp_8s_C1R", 1, 1, kroiImageRamp_8s_C1R},
    {"kroiImageRamp_8s_C3R", 3, 3, kroiImageRamp_8s_C3R},
    {"kroiImageRamp_8s_C4R", 4, 4, kroiImageRamp_8s_C4R},
    {"kroiImageRamp_8s_AC4R", 4, 3, kroiImageRamp_8s_AC4R},
};
template <>
inline const std::vector<NoiseMember<Kro8s>> Members<Kro8s>::noise = {
    {"kroiAddRand*_8s_C1IR", 1, 1, kroiAddRandUniform_8s_C1IR, kroiAddRandGauss_8s_C1IR},
    {"kroiAddRand*_8s_C3IR", 3, 3, kroiAddRandUniform_8s_C3IR, kroiAddRandGauss_8s_C3IR},
    {"kroiAddRand*_8s_C4IR", 4, 4, kroiAddRandUniform_8s_C4IR, kroiAddRandGauss_8s_C4IR},
    {"kroiAddRand*_8s_AC4IR", 4, 3, kroiAddRandUniform_8s_AC4IR, kroiAddRandGauss_8s_AC4IR},
};

template <>
inline const std::vector<RampMember<Kro16u>> Members<Kro16u>::ramp = {
    {"kroiImageRamp_16u_C1R", 1, 1, kroiImageRamp_16u_C1R},
    {"kroiImageRamp_16u_C3R", 3, 3, kroiImageRamp_16u_C3R},
    {"kroiImageRamp_16u_C4R", 4, 4, kroiImageRamp_16u_C4R},
    {"kroiImageRamp_16u_AC4R", 4, 3, kroiImageRamp_16u_AC4R},
};
template <>
inline const std::vector<NoiseMember<Kro16u>> Members<Kro16u>::noise = {
    {"kroiAddRand*_16u_C1IR", 1, 1, kroiAddRandUniform_16u_C1IR, kroiAddRandGauss_16u_C1IR},
    {"kroiAddRand*_16u_C3IR", 3, 3, kroiAddRandUniform_16u_C3IR, kroiAddRandGauss_16u_C3IR},
    {"kroiAddRand*_16u_C4IR", 4, 4, kroiAddRandUniform_16u_C4IR, kroiAddRandGauss_16u_C4IR},
    {"kroiAddRand*_16u_AC4IR", 4, 3, kroiAddRandUniform_16u_AC4IR, kroiAddRandGauss_16u_AC4IR},
};

template <>
inline const std::vector<RampMember<Kro16s>> Members<Kro16s>::ramp = {
    {"kroiImageRamp_16s_C1R", 1, 1, kroiImageRamp_16s_C1R},
    {"kroiImageRamp_16s_C3R", 3, 3, kroiImageRamp_16s_C3R},
    {"kroiImageRamp_16s_C4R", 4, 4, kroiImageRamp_16s_C4R},
    {"kroiImageRamp_16s_AC4R", 4, 3, kroiImageRamp_16s_AC4R},
};
template <>
inline const std::vector<NoiseMember<Kro16s>> Members<Kro16s>::noise = {
    {"kroiAddRand*_16s_C1IR", 1, 1, kroiAddRandUniform_16s_C1IR, kroiAddRandGauss_16s_C1IR},
    {"kroiAddRand*_16s_C3IR", 3, 3, kroiAddRandUniform_16s_C3IR, kroiAddRandGauss_16s_C3IR},
    {"kroiAddRand*_16s_C4IR", 4, 4, kroiAddRandUniform_16s_C4IR, kroiAddRandGauss_16s_C4IR},
    {"kroiAddRand*_16s_AC4IR", 4, 3, kroiAddRandUniform_16s_AC4IR, kroiAddRandGauss_16s_AC4IR},
};

template <>
inline const std::vector<RampMember<Kro32f>> Members<Kro32f>::ramp = {
    {"kroiImageRamp_32f_C1R", 1, 1, kroiImageRamp_32f_C1R},
    {"kroiImageRamp_32f_C3R", 3, 3, kroiImageRamp_32f_C3R},
    {"kroiImageRamp_32f_C4R", 4, 4, kroiImageRamp_32f_C4R},
    {"kroiImageRamp_32f_AC4R", 4, 3, kroiImageRamp_32f_AC4R},
};
template <>
inline const std::vector<NoiseMember<Kro32f>> Members<Kro32f>::noise = {
    {"kroiAddRand*_32f_C1IR", 1, 1, kroiAddRandUniform_32f_C1IR, kroiAddRandGauss_32f_C1IR},
    {"kroiAddRand*_32f_C3IR", 3, 3, kroiAddRandUniform_32f_C3IR, kroiAddRandGauss_32f_C3IR},
    {"kroiAddRand*_32f_C4IR", 4, 4, kroiAddRandUniform_32f_C4IR, kroiAddRandGauss_32f_C4IR},
    {"kroiAddRand*_32f_AC4IR", 4, 3, kroiAddRandUniform_32f_AC4IR, kroiAddRandGauss_32f_AC4IR},
};

}  // namespace generate_test
