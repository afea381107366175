// Demo entries of Copy and Set: masked fill and copy, one channel out, one channel filled,
// and a round trip through planes that swaps red and blue on the way back.
#include <cmath>
#include <cstdint>
#include <stdexcept>
#include <string>

#include "demo.hpp"

namespace kroi_tool {

namespace {

void check(KroStatus st, const char* what)
{
    if (st < 0) throw std::runtime_error(std::string(what) + " returned " + std::to_string(st));
}

// A copy of the scene, made with the library's whole copy (not timed).
Image sceneCopy(const Image& s)
{
    Image d(s.width, s.height, 3, 8);
    check(kroiCopy_8u_C3R(s.row<Kro8u>(0), s.step, d.row<Kro8u>(0), d.step, {s.width, s.height}), "kroiCopy_8u_C3R");
    return d;
}

// A ring around the centre, drawn by the program: 255 inside, 0 outside.
Image ringMask(int width, int height)
{
    Image m(width, height, 1, 8);
    const double cx = width / 2.0, cy = height / 2.0, r = std::min(width, height) * 0.4;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const double d = std::hypot(x + 0.5 - cx, y + 0.5 - cy);
            m.row<Kro8u>(y)[x] = d < r && d > r * 0.6 ? 255 : 0;
        }
    return m;
}

} // namespace

Image demoSetMasked(DemoContext& ctx)
{
    const Image& s = ctx.first();
    Image d = sceneCopy(s);
    const Image m = ringMask(s.width, s.height);
    const Kro8u orange[3] = {255, 140, 0};
    ctx.time("kroiSet_8u_C3MR", [&] {
        return kroiSet_8u_C3MR(orange, d.row<Kro8u>(0), d.step, {s.width, s.height}, m.row<Kro8u>(0), m.step);
    });
    ctx.note = "The program copies the scene in (kroiCopy_8u_C3R) and draws the ring mask.";
    return d;
}

Image demoCopyMasked(DemoContext& ctx)
{
    const Image& s = ctx.first();
    const Image& t = ctx.second();
    Image d = sceneCopy(s);
    const Image m = ringMask(s.width, s.height);
    ctx.time("kroiCopy_8u_C3MR", [&] {
        return kroiCopy_8u_C3MR(t.row<Kro8u>(0), t.step, d.row<Kro8u>(0), d.step, {s.width, s.height},
                                m.row<Kro8u>(0), m.step);
    });
    ctx.note = "The program copies the scene in (kroiCopy_8u_C3R) and draws the ring mask.";
    return d;
}

Image demoExtractGreen(DemoContext& ctx)
{
    const Image& s = ctx.first();
    Image d(s.width, s.height, 1, 8);
    ctx.time("kroiCopy_8u_C3C1R", [&] {
        return kroiCopy_8u_C3C1R(s.row<Kro8u>(0) + 1, s.step, d.row<Kro8u>(0), d.step, {s.width, s.height});
    });
    return d;
}

Image demoClearBlue(DemoContext& ctx)
{
    const Image& s = ctx.first();
    Image d = sceneCopy(s);
    ctx.time("kroiSet_8u_C3CR", [&] { return kroiSet_8u_C3CR(0, d.row<Kro8u>(0) + 2, d.step, {s.width, s.height}); });
    ctx.note = "The program copies the scene in (kroiCopy_8u_C3R).";
    return d;
}

Image demoPlanesSwapped(DemoContext& ctx)
{
    const Image& s = ctx.first();
    Image r(s.width, s.height, 1, 8), g(s.width, s.height, 1, 8), b(s.width, s.height, 1, 8);
    Image d(s.width, s.height, 3, 8);
    Kro8u* const planes[3] = {r.row<Kro8u>(0), g.row<Kro8u>(0), b.row<Kro8u>(0)};
    const Kro8u* const swapped[3] = {planes[2], planes[1], planes[0]};
    ctx.time("kroiCopy_8u_C3P3R + kroiCopy_8u_P3C3R", [&] {
        const KroStatus st = kroiCopy_8u_C3P3R(s.row<Kro8u>(0), s.step, planes, r.step, {s.width, s.height});
        return st < 0 ? st : kroiCopy_8u_P3C3R(swapped, r.step, d.row<Kro8u>(0), d.step, {s.width, s.height});
    });
    return d;
}

} // namespace kroi_tool
