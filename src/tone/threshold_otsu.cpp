// The global threshold of an 8u image that best separates its histogram into two classes
// (largest between-class variance), in double precision with a fixed order of operations so
// that every caller gets the same threshold for the same histogram.
#include <algorithm>
#include <cstdint>
#include <cstring>

#include "frame/base.hpp"
#include "frame/bind.hpp"
#include "frame/check.hpp"
#include "frame/rows.hpp"

namespace KROI_TIER::tone {

namespace {

// Counts of the 256 values.  Four partial histograms, summed at the end, keep consecutive
// equal pixels (the common case) from waiting on each other's increments.
void countRows(const Kro8u* src, int step, KroiSize roi, std::uint32_t* hist)
{
    std::uint32_t h[4][256] = {};
    const auto S = rows::image(src, step);
    for (int y = 0; y < roi.height; ++y) {
        const Kro8u* p = S.row(y);
        int x = 0;
        for (; x + 4 <= roi.width; x += 4) ++h[0][p[x]], ++h[1][p[x + 1]], ++h[2][p[x + 2]], ++h[3][p[x + 3]];
        for (; x < roi.width; ++x) ++h[0][p[x]];
    }
    for (int i = 0; i < 256; ++i) hist[i] = h[0][i] + h[1][i] + h[2][i] + h[3][i];
}

// Weights within single-precision epsilon of 0 or 1 are treated as empty classes: such a bin
// neither counts towards the class mean nor competes, which keeps noise-sized classes from
// winning on rounding.
constexpr double kEps = 1.1920928955078125e-7;
constexpr double kOneMinusEps = 0.9999998807907104;

}  // namespace

// The threshold is the first bin (lowest value) reaching the largest variance; 0 when no
// bin separates two non-empty classes, as for a constant image.
int otsuFromHistogram(const std::uint32_t* counts)
{
    double h[256], n = 0;
    for (int i = 0; i < 256; ++i) h[i] = counts[i], n += h[i];
    const double inv = (n > kEps || n < -kEps) ? 1.0 / n : 0.0;
    double total = 0;
    for (int i = 0; i < 256; ++i) total += (i + 0.5) * h[i];
    const double mT = inv * total;
    double best = 0.0, threshold = 0.0, w0 = 0, m = 0;
    for (int i = 0; i < 256; ++i) {
        const double p = inv * h[i];
        w0 = w0 + p;
        const double w1 = 1.0 - w0;
        if (std::min(w0, w1) < kEps || std::max(w0, w1) > kOneMinusEps) continue;
        m = m + p * (i + 0.5);
        const double d = w1 * m - (mT - m) * w0;
        const double s = d * d / (w1 * w0);
        if (s > best) threshold = i + 0.5;
        best = std::max(best, s);
    }
    return int(threshold);
}

KroStatus otsu(const Kro8u* pSrc, int srcStep, KroiSize roiSize, Kro8u* pThreshold)
{
    KROI_CHECK(check::pointers(pSrc, pThreshold));
    KROI_CHECK(check::roi(roiSize));
    if (srcStep < roiSize.width) return kroStsBadStepErr;
    std::uint32_t hist[256];
    countRows(pSrc, srcStep, roiSize, hist);
    *pThreshold = Kro8u(otsuFromHistogram(hist));
    return kroStsOk;
}

}  // namespace KROI_TIER::tone

#define KROI_EXPORT KROI_BIND
KROI_BIND_LIST {
#include "tone/threshold_otsu.exports.inc"
}
#undef KROI_EXPORT
