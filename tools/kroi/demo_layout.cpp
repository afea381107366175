// Demo entries of the rearrangements (mirror, transpose, channel swap) and of the
// comparison masks, on the built-in sample.
#include "demo.hpp"

namespace kroi_tool {

namespace {

const Kro8u* pixels(const Image& img) { return static_cast<const Kro8u*>(img.data); }
Kro8u* pixels(Image& img) { return static_cast<Kro8u*>(img.data); }

}  // namespace

Image mirrorBoth8u(DemoContext& ctx)
{
    const Image& s = ctx.first();
    Image d(s.width, s.height, 3, 8);
    ctx.time("kroiMirror_8u_C3R", [&] {
        return kroiMirror_8u_C3R(pixels(s), s.step, pixels(d), d.step, {s.width, s.height}, kroFlipBoth);
    });
    return d;
}

Image transpose8u(DemoContext& ctx)
{
    const Image& s = ctx.first();
    Image d(s.height, s.width, 3, 8);
    ctx.time("kroiTranspose_8u_C3R", [&] {
        return kroiTranspose_8u_C3R(pixels(s), s.step, pixels(d), d.step, {s.width, s.height});
    });
    return d;
}

Image swapBgr8u(DemoContext& ctx)
{
    const Image& s = ctx.first();
    Image d(s.width, s.height, 3, 8);
    static constexpr int kOrder[3] = {2, 1, 0};
    ctx.time("kroiSwapChannels_8u_C3R", [&] {
        return kroiSwapChannels_8u_C3R(pixels(s), s.step, pixels(d), d.step, {s.width, s.height}, kOrder);
    });
    return d;
}

Image compareGe8u(DemoContext& ctx)
{
    const Image& a = ctx.first();
    const Image& b = ctx.second();
    Image d(a.width, a.height, 1, 8);
    ctx.time("kroiCompare_8u_C3R", [&] {
        return kroiCompare_8u_C3R(pixels(a), a.step, pixels(b), b.step, pixels(d), d.step, {a.width, a.height},
                                  kroCompareGreaterEq);
    });
    return d;
}

}  // namespace kroi_tool
