// Demo entries of unary mathematics, generation and noise: the scene's square root (a
// brightening curve), a zone plate, and the scene with Gaussian noise.
#include <cstring>

#include "demo.hpp"
#include "unary.hpp"

namespace kroi_tool {

Image sqrt8u(DemoContext& ctx)
{
    const Image& s = ctx.first();
    Image out(s.width, s.height, 3, 8);
    ctx.time("kroiSqrt_8u_C3RSfs", [&] {
        return kroiSqrt_8u_C3RSfs(s.row<Kro8u>(0), s.step, out.row<Kro8u>(0), out.step, {s.width, s.height}, -4);
    });
    ctx.note = "sqrt(x) x 16 per channel, rounded to nearest with ties to even: 255 maps to 255.5, saturated to 255, "
               "and the dark tones are lifted.";
    return out;
}

Image zonePlate8u(DemoContext& ctx)
{
    const Image& s = ctx.first();
    Image out(s.width, s.height, 1, 8);
    ctx.time("kroiImageZonePlate_8u_C1R",
             [&] { return kroiImageZonePlate_8u_C1R(out.row<Kro8u>(0), out.step, {s.width, s.height}); });
    ctx.note = "cos(pi r^2 / 2R) scaled to 0..255: the rings tighten to half a cycle per pixel at the corners, where any "
               "resampling error shows as moire.";
    return out;
}

Image gaussNoise8u(DemoContext& ctx)
{
    const Image& s = ctx.first();
    Image scratch(s.width, s.height, 3, 8), out(s.width, s.height, 3, 8);
    for (int y = 0; y < s.height; ++y) {
        std::memcpy(scratch.row<uint8_t>(y), s.row<uint8_t>(y), s.rowBytes());
        std::memcpy(out.row<uint8_t>(y), s.row<uint8_t>(y), s.rowBytes());
    }
    unsigned int timingSeed = 1;
    ctx.time("kroiAddRandGauss_8u_C3IR", [&] {
        return kroiAddRandGauss_8u_C3IR(scratch.row<Kro8u>(0), scratch.step, {s.width, s.height}, 0.0f, 24.0f, &timingSeed);
    });
    unsigned int seed = 1;
    kroiAddRandGauss_8u_C3IR(out.row<Kro8u>(0), out.step, {s.width, s.height}, 0.0f, 24.0f, &seed);
    ctx.note = "Noise of deviation 24 added in place with seed 1 (the timed runs work on a copy). The same seed gives "
               "this image on every machine.";
    return out;
}

} // namespace kroi_tool
