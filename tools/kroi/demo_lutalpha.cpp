// Demo entries of lookup tables and alpha composition: a gamma curve and a cubic S-curve on
// the scene, and the twelve composition operations on one page.
#include <cmath>
#include <cstring>
#include <stdexcept>
#include <string>
#include <vector>

#include "demo.hpp"
#include "lutalpha.hpp"

namespace kroi_tool {

namespace {

Image curveOn(DemoContext& ctx, const ToneCurve& curve, const char* what)
{
    const Image& s = ctx.first();
    Image out(s.width, s.height, 3, 8);
    const int n[3] = {int(curve.levels.size()), int(curve.levels.size()), int(curve.levels.size())};
    const Kro32s* L[3] = {curve.levels.data(), curve.levels.data(), curve.levels.data()};
    const Kro32s* V[3] = {curve.values.data(), curve.values.data(), curve.values.data()};
    const KroiSize roi{s.width, s.height};
    int size = 0;
    if (kroiLUT_GetSize(curve.interp, kro8u, kroC3, roi, n, &size) < 0) throw std::runtime_error("kroiLUT_GetSize failed");
    std::vector<unsigned char> block(static_cast<size_t>(size));
    auto* spec = reinterpret_cast<KroiLUTSpec*>(block.data());
    if (kroiLUT_Init_8u(curve.interp, kroC3, roi, V, L, n, spec) < 0) throw std::runtime_error("kroiLUT_Init_8u failed");
    ctx.time(what, [&] { return kroiLUT_8u_C3R(s.row<Kro8u>(0), s.step, out.row<Kro8u>(0), out.step, roi, spec); });
    return out;
}

} // namespace

Image lutGamma8u(DemoContext& ctx)
{
    ctx.note = "The program computes 257 levels of 255 (v/255)^(1/2.2) and initialises a nearest-kind "
               "specification with kroiLUT_GetSize and kroiLUT_Init_8u; one table serves all three channels.";
    return curveOn(ctx, gammaCurve(2.2, 8), "kroiLUT_8u_C3R");
}

Image lutCubic8u(DemoContext& ctx)
{
    ToneCurve c;
    c.levels = {0, 64, 128, 192, 256};
    c.values = {0, 30, 128, 225, 255};
    c.interp = kroInterCubic;
    ctx.note = "Five levels 0, 64, 128, 192, 256 with values 0, 30, 128, 225, 255 and cubic interpolation: "
               "the initialiser paints the whole 256-entry map once.";
    return curveOn(ctx, c, "kroiLUT_8u_C3R");
}

// The twelve operations on one page: the scene with alpha falling off from the centre over
// the second image with alpha rising from left to right, each on a quarter-size tile, the
// tiles in four columns and three rows (operations 0..11 in reading order), flattened over
// a checkerboard by the program so that the composed alpha shows.
Image alphaOps8u(DemoContext& ctx)
{
    const Image& s1 = ctx.first();
    const Image& s2 = ctx.second();
    const int w = s1.width, h = s1.height;
    Image a(w, h, 4, 8), b(w, h, 4, 8);
    const double cx = w / 2.0, cy = h / 2.0, r = std::hypot(cx, cy);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
            uint8_t* p = a.row<uint8_t>(y) + 4 * x;
            uint8_t* q = b.row<uint8_t>(y) + 4 * x;
            std::memcpy(p, s1.row<uint8_t>(y) + 3 * x, 3);
            std::memcpy(q, s2.row<uint8_t>(y) + 3 * x, 3);
            p[3] = uint8_t(std::lround(255 * std::max(0.0, 1 - 1.3 * std::hypot(x - cx, y - cy) / r)));
            q[3] = uint8_t(std::lround(255.0 * x / (w - 1)));
        }
    // Colours premultiplied for the operations that take them so (6..11).
    Image ap(w, h, 4, 8), bp(w, h, 4, 8);
    const KroiSize roi{w, h};
    if (kroiAlphaPremul_8u_AC4R(a.row<Kro8u>(0), a.step, ap.row<Kro8u>(0), ap.step, roi) < 0 ||
        kroiAlphaPremul_8u_AC4R(b.row<Kro8u>(0), b.step, bp.row<Kro8u>(0), bp.step, roi) < 0)
        throw std::runtime_error("kroiAlphaPremul_8u_AC4R failed");
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) ap.row<uint8_t>(y)[4 * x + 3] = a.row<uint8_t>(y)[4 * x + 3],
                                    bp.row<uint8_t>(y)[4 * x + 3] = b.row<uint8_t>(y)[4 * x + 3];
    Image d(w, h, 4, 8);
    ctx.time("kroiAlphaComp_8u_AC4R",
             [&] { return kroiAlphaComp_8u_AC4R(a.row<Kro8u>(0), a.step, b.row<Kro8u>(0), b.step, d.row<Kro8u>(0), d.step, roi, kroAlphaOver); });
    const int tw = w / 4, th = h / 4;
    Image page(4 * tw, 3 * th, 3, 8);
    for (int op = 0; op < 12; ++op) {
        const Image& s = op < 6 ? a : ap;
        const Image& t = op < 6 ? b : bp;
        if (kroiAlphaComp_8u_AC4R(s.row<Kro8u>(0), s.step, t.row<Kro8u>(0), t.step, d.row<Kro8u>(0), d.step, roi, op) < 0)
            throw std::runtime_error("kroiAlphaComp_8u_AC4R failed");
        // Every fourth pixel of the premultiplied result over a gray checkerboard.
        const int ox = (op % 4) * tw, oy = (op / 4) * th;
        for (int y = 0; y < th; ++y)
            for (int x = 0; x < tw; ++x) {
                const uint8_t* p = d.row<uint8_t>(4 * y) + 16 * x;
                const int board = ((x / 8 + y / 8) % 2) ? 200 : 150;
                uint8_t* q = page.row<uint8_t>(oy + y) + 3 * (ox + x);
                for (int c = 0; c < 3; ++c) q[c] = uint8_t(std::min(255, p[c] + board * (255 - p[3]) / 255));
            }
    }
    ctx.note = "Operations 0..11 (Over, In, Out, Atop, Xor, Plus, then their premultiplied forms) in reading order: "
               "the scene with alpha falling off from the centre, over the second image with alpha rising to the "
               "right; the premultiplied forms take colours from kroiAlphaPremul_8u_AC4R. The program shrinks each "
               "result to a tile and lays it over a checkerboard; the timing is one Over.";
    return page;
}

} // namespace kroi_tool
