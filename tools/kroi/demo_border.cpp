// Demo entries of the border copies and the box filter.
#include <string>
#include <vector>

#include "demo.hpp"

namespace kroi_tool {

// The middle 384 x 256 of the scene framed back to 512 x 384 by a mirrored border, wider at
// the top and bottom than at the sides.
Image demoMirrorBorder(DemoContext& ctx)
{
    const Image& s = ctx.first();
    constexpr int kW = 384, kH = 256, kTop = 96, kLeft = 64;
    Image d(kW + 2 * kLeft, kH + 2 * kTop - 64, 3, 8);
    const Kro8u* src = s.row<Kro8u>((s.height - kH) / 2) + 3 * ((s.width - kW) / 2);
    ctx.time("kroiCopyMirrorBorder_8u_C3R", [&] {
        return kroiCopyMirrorBorder_8u_C3R(src, s.step, {kW, kH}, d.row<Kro8u>(0), d.step, {d.width, d.height}, kTop,
                                           kLeft);
    });
    ctx.note = "The source is the middle 384 x 256 of the scene; the bottom border is 32 rows.";
    return d;
}

Image demoBox(DemoContext& ctx)
{
    const Image& s = ctx.first();
    Image d(s.width, s.height, 3, 8);
    int size = 0;
    if (kroiFilterBoxBorderGetBufferSize({s.width, s.height}, {15, 15}, kro8u, 3, &size) < 0)
        throw std::runtime_error("kroiFilterBoxBorderGetBufferSize failed");
    std::vector<Kro8u> buffer(static_cast<std::size_t>(size));
    ctx.time("kroiFilterBoxBorder_8u_C3R", [&] {
        return kroiFilterBoxBorder_8u_C3R(s.row<Kro8u>(0), s.step, d.row<Kro8u>(0), d.step, {s.width, s.height},
                                          {15, 15}, kroBorderMirror, nullptr, buffer.data());
    });
    ctx.note = "The program asks kroiFilterBoxBorderGetBufferSize for the buffer and allocates it.";
    return d;
}

} // namespace kroi_tool
