// Demo entries of the bitwise logic, shifts and arithmetic with constants, on the 8-bit RGB
// scene.
#include "demo.hpp"

namespace kroi_tool {

namespace {

// An output of the scene's size and type, and the scene's pointer, step and size.
struct Frame {
    const Image& src;
    Image dst;
    const Kro8u* s() const { return src.row<Kro8u>(0); }
    Kro8u* d() { return dst.row<Kro8u>(0); }
    KroiSize roi() const { return {src.width, src.height}; }
};
Frame frame(DemoContext& ctx) { return {ctx.first(), Image(ctx.first().width, ctx.first().height, 3, 8)}; }

} // namespace

Image demoAddC(DemoContext& ctx)
{
    Frame f = frame(ctx);
    const Kro8u add[3] = {60, 40, 0};
    ctx.time("kroiAddC_8u_C3RSfs",
             [&] { return kroiAddC_8u_C3RSfs(f.s(), f.src.step, add, f.d(), f.dst.step, f.roi(), 0); });
    ctx.note = "Red raised by 60 and green by 40, saturating at 255: a warmer, brighter scene.";
    return std::move(f.dst);
}

Image demoMulC(DemoContext& ctx)
{
    Frame f = frame(ctx);
    const Kro8u mul[3] = {3, 3, 3};
    ctx.time("kroiMulC_8u_C3RSfs",
             [&] { return kroiMulC_8u_C3RSfs(f.s(), f.src.step, mul, f.d(), f.dst.step, f.roi(), 1); });
    ctx.note = "Every sample times 3 / 2 (scale factor 1), halves rounded to even, saturated.";
    return std::move(f.dst);
}

Image demoNot(DemoContext& ctx)
{
    Frame f = frame(ctx);
    ctx.time("kroiNot_8u_C3R", [&] { return kroiNot_8u_C3R(f.s(), f.src.step, f.d(), f.dst.step, f.roi()); });
    return std::move(f.dst);
}

Image demoAndC(DemoContext& ctx)
{
    Frame f = frame(ctx);
    const Kro8u mask[3] = {0xE0, 0xE0, 0xC0};
    ctx.time("kroiAndC_8u_C3R", [&] { return kroiAndC_8u_C3R(f.s(), f.src.step, mask, f.d(), f.dst.step, f.roi()); });
    ctx.note = "Keeping the top three bits of red and green and two of blue: a 256-colour poster.";
    return std::move(f.dst);
}

Image demoXor(DemoContext& ctx)
{
    Frame f = frame(ctx);
    const Image& b = ctx.second();
    ctx.time("kroiXor_8u_C3R", [&] {
        return kroiXor_8u_C3R(f.s(), f.src.step, b.row<Kro8u>(0), b.step, f.d(), f.dst.step, f.roi());
    });
    return std::move(f.dst);
}

Image demoRShiftC(DemoContext& ctx)
{
    Frame f = frame(ctx);
    const Kro32u counts[3] = {0, 1, 3};
    ctx.time("kroiRShiftC_8u_C3R",
             [&] { return kroiRShiftC_8u_C3R(f.s(), f.src.step, counts, f.d(), f.dst.step, f.roi()); });
    ctx.note = "Red kept, green halved, blue divided by 8 (rounded down): one count per channel.";
    return std::move(f.dst);
}

} // namespace kroi_tool
