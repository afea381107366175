// Demo entries of thresholds: the scene clamped from above, and a page under uneven light,
// where one global level (Otsu's) loses the dark side and the local mean keeps it.
#include <string>
#include <vector>

#include "demo.hpp"
#include "kroi.h"

namespace kroi_tool {

namespace {

// The scene's luma under light that falls from the right edge to a fifth at the left and
// dims towards the top.
Image shadedPage(const Image& s)
{
    Image page(s.width, s.height, 1, 8);
    for (int y = 0; y < s.height; ++y)
        for (int x = 0; x < s.width; ++x) {
            const uint8_t* p = s.row<uint8_t>(y) + 3 * x;
            const int luma = (77 * p[0] + 150 * p[1] + 29 * p[2] + 128) >> 8;
            const double light = (0.2 + 0.8 * x / (s.width - 1)) * (0.7 + 0.3 * y / (s.height - 1));
            page.row<uint8_t>(y)[x] = uint8_t(luma * light + 0.5);
        }
    return page;
}

} // namespace

Image thresholdGt8u(DemoContext& ctx)
{
    const Image& s = ctx.first();
    Image out(s.width, s.height, 3, 8);
    const Kro8u t[3] = {96, 160, 224};
    ctx.time("kroiThreshold_GT_8u_C3R", [&] {
        return kroiThreshold_GT_8u_C3R(s.row<Kro8u>(0), s.step, out.row<Kro8u>(0), out.step, {s.width, s.height}, t);
    });
    ctx.note = "Red is lowered to at most 96, green to 160, blue to 224.";
    return out;
}

Image thresholdOtsu8u(DemoContext& ctx)
{
    const Image page = shadedPage(ctx.first());
    Image out(page.width, page.height, 1, 8);
    Kro8u level = 0;
    ctx.time("kroiComputeThreshold_Otsu_8u_C1R", [&] {
        return kroiComputeThreshold_Otsu_8u_C1R(page.row<Kro8u>(0), page.step, {page.width, page.height}, &level);
    });
    for (int y = 0; y < page.height; ++y)
        for (int x = 0; x < page.width; ++x) out.row<uint8_t>(y)[x] = page.row<uint8_t>(y)[x] > level ? 255 : 0;
    ctx.note = "The program shades the scene's luma (dark at the left, dimmer at the top) and writes white above "
               "Otsu's level " + std::to_string(level) + ": one level for the whole page loses the dark side.";
    return out;
}

Image thresholdAdaptive8u(DemoContext& ctx)
{
    const Image page = shadedPage(ctx.first());
    Image out(page.width, page.height, 1, 8);
    const KroiSize roi{page.width, page.height};
    int bytes = 0;
    kroiThresholdAdaptiveBoxGetBufferSize(roi, {31, 31}, kro8u, 1, &bytes);
    std::vector<Kro8u> buffer(static_cast<size_t>(unsigned(bytes)));
    ctx.time("kroiThresholdAdaptiveBox_8u_C1R", [&] {
        return kroiThresholdAdaptiveBox_8u_C1R(page.row<Kro8u>(0), page.step, out.row<Kro8u>(0), out.step, roi,
                                               {31, 31}, 4.0f, 255, 0, kroBorderReplicate, 0, buffer.data());
    });
    ctx.note = "The same shaded page against the mean of the 31 x 31 window around each pixel, less 4: the light "
               "falls out and the shapes stay, on both sides.";
    return out;
}

} // namespace kroi_tool
