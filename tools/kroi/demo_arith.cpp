// Demo entries of the two-image arithmetic: the scene and the second pattern combined by
// Add, Sub, Mul and Div on 8-bit RGB, with the scale factors that keep the results in range.
#include "demo.hpp"

namespace kroi_tool {

namespace {

using Fn = KroStatus (*)(const Kro8u*, int, const Kro8u*, int, Kro8u*, int, KroiSize, int);

// dst = fn(src1 = second, src2 = scene, scale): the library's first image is the subtrahend
// and the divisor.
Image combine(DemoContext& ctx, const char* name, Fn fn, int scale)
{
    const Image& scene = ctx.first();
    const Image& second = ctx.second();
    Image d(scene.width, scene.height, 3, 8);
    ctx.time(name, [&] {
        return fn(second.row<Kro8u>(0), second.step, scene.row<Kro8u>(0), scene.step, d.row<Kro8u>(0), d.step,
                  {scene.width, scene.height}, scale);
    });
    return d;
}

} // namespace

Image demoArithAdd(DemoContext& ctx)
{
    ctx.note = "The mean of the two images: their sum halved, ties to even.";
    return combine(ctx, "kroiAdd_8u_C3RSfs", kroiAdd_8u_C3RSfs, 1);
}

Image demoArithSub(DemoContext& ctx)
{
    ctx.note = "Scene minus pattern; negative differences give 0.";
    return combine(ctx, "kroiSub_8u_C3RSfs", kroiSub_8u_C3RSfs, 0);
}

Image demoArithMul(DemoContext& ctx)
{
    ctx.note = "The product scaled by 2^-8: the pattern acts as a mask of weights in 0..255/256.";
    return combine(ctx, "kroiMul_8u_C3RSfs", kroiMul_8u_C3RSfs, 8);
}

Image demoArithDiv(DemoContext& ctx)
{
    ctx.note = "Scene over pattern times 2^6, saturated; a zero in the pattern gives 255 and the warning 2.";
    return combine(ctx, "kroiDiv_8u_C3RSfs", kroiDiv_8u_C3RSfs, -6);
}

} // namespace kroi_tool
