// Tone curves and compositing shared by the lut and composite commands and their demo
// entries.
#pragma once

#include <string>
#include <vector>

#include "kroi.h"
#include "png_io.hpp"

namespace kroi_tool {

// A curve through (level, value) points with an interpolation code.
struct ToneCurve {
    std::vector<Kro32s> levels, values;
    int interp = kroInterLinear;
};

// max (v / max)^(1/G) for 8- or 16-bit samples: 257 levels, nearest for 8 bits (one level
// per value), linear between levels 256 apart for 16 bits.
ToneCurve gammaCurve(double gamma, int depth);

// The curve applied in place to every colour channel (alpha kept).
KroStatus applyCurve(Image& img, const ToneCurve& curve);

// "over", "in", ..., "plus": 0..5, or -1.
int alphaOpByName(const std::string& name);

} // namespace kroi_tool
