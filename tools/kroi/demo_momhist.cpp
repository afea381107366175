// Demo entries of moments and histograms: the scene's histograms as a chart, and the
// centroid and major axis of its luma drawn onto it.
#include <cmath>

#include "demo.hpp"
#include "momhist.hpp"

namespace kroi_tool {

Image histogram8u(DemoContext& ctx)
{
    const auto counts = histogramOf(ctx.first(), 256, [&](auto&& f) { ctx.time("kroiHistogram_8u_C3R", f); });
    ctx.note = "The program sets up 256 uniform bins per channel with kroiHistogramUniformInit and draws the counts "
               "itself (red, green, blue panels).";
    return plotHistogram(counts);
}

Image moments8u(DemoContext& ctx)
{
    const Image& s = ctx.first();
    Image luma(s.width, s.height, 1, 8), out(s.width, s.height, 3, 8);
    for (int y = 0; y < s.height; ++y)
        for (int x = 0; x < s.width; ++x) {
            const uint8_t* p = s.row<uint8_t>(y) + 3 * x;
            luma.row<uint8_t>(y)[x] = uint8_t((77 * p[0] + 150 * p[1] + 29 * p[2] + 128) >> 8);
            for (int c = 0; c < 3; ++c) out.row<uint8_t>(y)[3 * x + c] = uint8_t(p[c] / 2);
        }
    KroiMomentState64f state;
    kroiMomentInit_64f(&state, kroHintAccurate);
    ctx.time("kroiMoments64f_8u_C1R",
             [&] { return kroiMoments64f_8u_C1R(luma.row<Kro8u>(0), luma.step, {s.width, s.height}, &state); });
    const MomentSummary m = summarise(state, 0);
    // The major axis through the centroid, and a cross on the centroid, in yellow.
    const double a = m.angle * M_PI / 180.0;
    auto dot = [&](double x, double y) {
        const int xi = int(std::lround(x)), yi = int(std::lround(y));
        if (xi < 0 || yi < 0 || xi >= s.width || yi >= s.height) return;
        uint8_t* q = out.row<uint8_t>(yi) + 3 * xi;
        q[0] = 255, q[1] = 230, q[2] = 0;
    };
    for (double t = -400; t <= 400; t += 0.5) dot(m.cx + t * std::cos(a), m.cy + t * std::sin(a));
    for (int d = -12; d <= 12; ++d) dot(m.cx + d, m.cy), dot(m.cx, m.cy + d);
    ctx.note = "The program makes the luma and draws the centroid and major axis onto the darkened scene. Luma " +
               describe(m) + ".";
    return out;
}

} // namespace kroi_tool
