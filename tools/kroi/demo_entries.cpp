// The demo registry.  One table line and one function per entry; the table at the bottom
// sets the gallery order: the families' operations, each in its section, then one allocator
// entry, whose time is an allocation and release rather than a pass over pixels.
#include <cmath>
#include <cstdint>
#include <string>

#include "demo.hpp"

namespace kroi_tool {

namespace {

// Times one allocation and release of a width x height block (the call text of the
// allocator entries), then returns a fresh block from the same allocator as an Image.
template <class T, T* (*Alloc)(int, int, int*)>
Image allocate(DemoContext& ctx, const char* name, int width, int height, int channels, int depth)
{
    int step = 0;
    ctx.perCallOnly = true;
    ctx.time(name, [&] {
        T* p = Alloc(width, height, &step);
        const bool got = p != nullptr;
        kroiFree(p);
        return got ? kroStsOk : kroStsNoMemoryErr;
    });
    T* block = Alloc(width, height, &step);
    if (!block) throw std::runtime_error(std::string(name) + " returned null");
    const auto rowBytes = size_t(width) * channels * sizeof(T);
    ctx.note = "Step " + std::to_string(step) + " bytes for rows of " + std::to_string(rowBytes) +
               " bytes (" + std::to_string(step - int(rowBytes)) + " of padding); the block starts " +
               std::to_string(reinterpret_cast<uintptr_t>(block) % 64) + " bytes past a 64-byte boundary. ";
    return Image::adopt(block, step, width, height, channels, depth);
}

Image rgba8u(DemoContext& ctx)
{
    const Image& s = ctx.first();
    Image d = allocate<Kro8u, kroiMalloc_8u_C4>(ctx, "kroiMalloc_8u_C4", s.width, s.height, 4, 8);
    const float cx = s.width / 2.f, cy = s.height / 2.f, r = std::hypot(cx, cy);
    for (int y = 0; y < s.height; ++y)
        for (int x = 0; x < s.width; ++x) {
            const uint8_t* p = s.row<uint8_t>(y) + 3 * x;
            uint8_t* q = d.row<uint8_t>(y) + 4 * x;
            q[0] = p[0], q[1] = p[1], q[2] = p[2];
            q[3] = uint8_t(std::lround(255 * (1 - std::hypot(x - cx, y - cy) / r)));
        }
    ctx.note += "The program copies the scene in and fades alpha from the centre outwards.";
    return d;
}

constexpr DemoEntry kEntries[] = {
    // section COPYSET
    {"set-8u-c3-masked", "kroiSet_8u_C3MR(orange, dst, dstStep, {512, 384}, ring, ringStep)", demoSetMasked},
    {"copy-8u-c3-masked", "kroiCopy_8u_C3MR(src2, src2Step, dst, dstStep, {512, 384}, ring, ringStep)", demoCopyMasked},
    {"copy-8u-c3c1-green", "kroiCopy_8u_C3C1R(src + 1, srcStep, dst, dstStep, {512, 384})", demoExtractGreen},
    {"set-8u-c3c-blue", "kroiSet_8u_C3CR(0, dst + 2, dstStep, {512, 384})", demoClearBlue},
    {"copy-8u-planes-swapped",
     "kroiCopy_8u_C3P3R(src, srcStep, planes, planeStep, {512, 384});\n"
     "kroiCopy_8u_P3C3R((planes[2], planes[1], planes[0]), planeStep, dst, dstStep, {512, 384})",
     demoPlanesSwapped},
    // end of section COPYSET
    // section ARITH
    {"add-8u-c3-half", "kroiAdd_8u_C3RSfs(second, step2, scene, step1, dst, step, {512, 384}, 1)", demoArithAdd},
    {"sub-8u-c3", "kroiSub_8u_C3RSfs(second, step2, scene, step1, dst, step, {512, 384}, 0)", demoArithSub},
    {"mul-8u-c3-s8", "kroiMul_8u_C3RSfs(second, step2, scene, step1, dst, step, {512, 384}, 8)", demoArithMul},
    {"div-8u-c3-s-6", "kroiDiv_8u_C3RSfs(second, step2, scene, step1, dst, step, {512, 384}, -6)", demoArithDiv},
    // end of section ARITH
    // section ARITHC
    {"addc-8u-c3", "kroiAddC_8u_C3RSfs(src, srcStep, (Kro8u[]){60, 40, 0}, dst, dstStep, {512, 384}, 0)", demoAddC},
    {"mulc-8u-c3", "kroiMulC_8u_C3RSfs(src, srcStep, (Kro8u[]){3, 3, 3}, dst, dstStep, {512, 384}, 1)", demoMulC},
    {"not-8u-c3", "kroiNot_8u_C3R(src, srcStep, dst, dstStep, {512, 384})", demoNot},
    {"andc-8u-c3", "kroiAndC_8u_C3R(src, srcStep, (Kro8u[]){0xE0, 0xE0, 0xC0}, dst, dstStep, {512, 384})", demoAndC},
    {"xor-8u-c3", "kroiXor_8u_C3R(src, srcStep, second, secondStep, dst, dstStep, {512, 384})", demoXor},
    {"rshiftc-8u-c3", "kroiRShiftC_8u_C3R(src, srcStep, (Kro32u[]){0, 1, 3}, dst, dstStep, {512, 384})", demoRShiftC},
    // end of section ARITHC
    // section CONVERT
    {"scale-8u16u-c3", "kroiScale_8u16u_C3R(src, srcStep, dst, dstStep, {512, 384})", scale8u16u},
    {"scale-32f8u-stretch", "kroiScale_32f8u_C3R(src, srcStep, dst, dstStep, {512, 384}, 60.0f, 190.0f)", stretch32f8u},
    {"scalec-8u", "kroiScaleC_8u_C1R(src, srcStep, dst, dstStep, {3 * 512, 384}, 1.4, -40.0)", scaleC8u},
    // end of section CONVERT
    // section LAYOUT
    {"mirror-both-8u-c3", "kroiMirror_8u_C3R(src, srcStep, dst, dstStep, {512, 384}, kroFlipBoth)", mirrorBoth8u},
    {"transpose-8u-c3", "kroiTranspose_8u_C3R(src, srcStep, dst, dstStep, {512, 384})", transpose8u},
    {"swap-bgr-8u-c3", "kroiSwapChannels_8u_C3R(src, srcStep, dst, dstStep, {512, 384}, (int[]){2, 1, 0})",
     swapBgr8u},
    // end of section LAYOUT
    // section COMPARE
    {"compare-ge-8u-c3",
     "kroiCompare_8u_C3R(first, firstStep, second, secondStep, mask, maskStep, {512, 384}, kroCompareGreaterEq)",
     compareGe8u},
    // end of section COMPARE
    // section BORDER
    {"border-mirror-8u-c3",
     "kroiCopyMirrorBorder_8u_C3R(src, srcStep, {384, 256}, dst, dstStep, {512, 384}, 96, 64)", demoMirrorBorder},
    {"box-15x15-8u-c3",
     "kroiFilterBoxBorder_8u_C3R(src, srcStep, dst, dstStep, {512, 384}, {15, 15}, kroBorderMirror, NULL, buffer)",
     demoBox},
    // end of section BORDER
    // section MINMAX
    {"dilate-8u-c3-7x7", "kroiFilterMaxBorder_8u_C3R(src, step, dst, step, {512, 384}, {7, 7}, kroBorderReplicate, 0, buf)", dilate8u},
    {"erode-8u-c3-15x3", "kroiFilterMinBorder_8u_C3R(src, step, dst, step, {512, 384}, {15, 3}, kroBorderMirror, 0, buf)", erode8u},
    {"opening-8u-c3-31x31", "kroiFilterMinBorder_8u_C3R(src, ..., tmp, ..., {31, 31}, kroBorderReplicate, 0, buf); kroiFilterMaxBorder_8u_C3R(tmp, ..., dst, ..., {31, 31}, ...)", opening8u},
    // end of section MINMAX
    // section MOMHIST
    {"histogram-8u-c3", "kroiHistogram_8u_C3R(src, srcStep, {512, 384}, (Kro32u*[]){r, g, b}, spec, buffer)", histogram8u},
    {"moments-8u-c1", "kroiMoments64f_8u_C1R(luma, lumaStep, {512, 384}, &state)", moments8u},
    // end of section MOMHIST
    // section UNARY
    {"sqrt-8u-c3", "kroiSqrt_8u_C3RSfs(src, srcStep, dst, dstStep, {512, 384}, -4)", sqrt8u},
    {"zoneplate-8u", "kroiImageZonePlate_8u_C1R(dst, dstStep, {512, 384})", zonePlate8u},
    {"noise-gauss-8u-c3", "kroiAddRandGauss_8u_C3IR(img, step, {512, 384}, 0, 24, &seed)", gaussNoise8u},
    // end of section UNARY
    // section LUTALPHA
    {"lut-gamma-8u-c3", "kroiLUT_8u_C3R(src, srcStep, dst, dstStep, {512, 384}, spec)", lutGamma8u},
    {"lut-cubic-8u-c3", "kroiLUT_8u_C3R(src, srcStep, dst, dstStep, {512, 384}, spec)", lutCubic8u},
    {"alpha-ops-8u-ac4", "kroiAlphaComp_8u_AC4R(a, aStep, b, bStep, dst, dstStep, {512, 384}, op)", alphaOps8u},
    // end of section LUTALPHA
    // section SMOOTH
    {"median-8u-c3-salt-pepper", "kroiFilterMedianBorder_8u_C3R(noisy, step, dst, step, {512, 384}, {3, 3}, kroBorderReplicate, 0, buf)", medianSaltPepper},
    {"gauss-8u-c3-15", "kroiFilterGaussianInit({512, 384}, 15, 3.0f, kro8u, 3, spec); kroiFilterGaussianBorder_8u_C3R(src, step, dst, step, {512, 384}, kroBorderMirror, 0, spec, buf)", gaussBlur},
    {"sobel-edges-8u", "kroiFilterSobelDxBorder_8u16s_C1R(gray, step, dx, dxStep, {512, 384}, 3, kroBorderReplicate, 0, buf); kroiFilterSobelDyBorder_8u16s_C1R(...)", sobelEdges},
    {"sharpen-8u-c3", "kroiFilterSharpenBorder_8u_C3R(src, step, dst, step, {512, 384}, kroBorderReplicate, 0, buf)", sharpen8u},
    // end of section SMOOTH
    // section THRESHOLD
    {"threshold-gt-8u-c3", "kroiThreshold_GT_8u_C3R(src, srcStep, dst, dstStep, {512, 384}, (Kro8u[]){96, 160, 224})", thresholdGt8u},
    {"threshold-otsu-uneven", "kroiComputeThreshold_Otsu_8u_C1R(page, pageStep, {512, 384}, &level)", thresholdOtsu8u},
    {"threshold-adaptive-uneven", "kroiThresholdAdaptiveBox_8u_C1R(page, pageStep, dst, dstStep, {512, 384}, {31, 31}, 4, 255, 0, kroBorderReplicate, 0, buffer)", thresholdAdaptive8u},
    // end of section THRESHOLD
    // The allocator entry stays last: its time is an allocation, not a pass over pixels.
    {"alloc-8u-c4", "p = kroiMalloc_8u_C4(512, 384, &step); kroiFree(p)", rgba8u},
};

} // namespace

std::span<const DemoEntry> demoEntries() { return kEntries; }

} // namespace kroi_tool
