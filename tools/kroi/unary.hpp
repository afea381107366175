// Shared by `kroi math`, `kroi ramp|zoneplate|checker`, `kroi noise` and their demo entries.
#pragma once

#include <string>

#include "kroi.h"
#include "png_io.hpp"

namespace kroi_tool {

enum class MathOp { Sqrt, Sqr, Exp, Ln, Abs };
bool mathOpFromName(const std::string& name, MathOp* op);

// out = op(in) sample by sample (every channel alike), 8-bit samples through the 8u members
// with `scale` as the scale factor, 16-bit ones through 16u (Sqrt, Sqr) or, halved, 16s (Exp,
// Ln).  Abs draws |x - mid-gray| x 2 through kroiAbs_16s.  Returns the library's status.
KroStatus applyMath(MathOp op, const Image& in, Image& out, int scale);

enum class Pattern { Ramp, ZonePlate, Checker };
// An 8-bit gray pattern: a horizontal ramp from 0 to 255, a zone plate, or a checkerboard of
// `cell`-pixel squares.  Throws std::runtime_error on a library error.
Image generatePattern(Pattern p, KroiSize size, int cell);

struct NoiseParams {
    bool gauss = false;
    float a = 0, b = 0; // sigma, or low and high
};
// Noise added to every sample of an 8- or 16-bit image in place; `seed` advances.
KroStatus addNoise(Image& img, const NoiseParams& n, unsigned int* seed);

} // namespace kroi_tool
