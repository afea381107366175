// Generated images: ramps in every type and layout, and two test patterns (zone plate,
// checkerboard).  Every value is computed in double from its pixel's coordinates, so a row
// never depends on another and the result is the same on every machine.
#include <cmath>

#include "frame/bind.hpp"
#include "frame/check.hpp"
#include "frame/fpround.hpp"
#include "frame/round.hpp"
#include "frame/rows.hpp"

namespace KROI_TIER::generate {
namespace {

// A double value as an element of T: integers rounded to nearest with ties to even and
// saturated (NaN gives 0), floats rounded to nearest (the scope's rounding).
template <class T>
T element(double v)
{
    if constexpr (std::is_same_v<T, Kro32f>) return static_cast<float>(v);
    else return saturateIntegral<T>(roundHalfEven(v));
}

// cos(pi t) for t >= 0 in double, from Taylor polynomials on [0, pi / 4] and exact reductions
// (fmod is exact, and so are 2 - t, 1 - t and 0.5 - t where they are used), so that every
// machine gets the same bits; within 2^-50 of cos(pi t) for the double t.
double cosPi(double t)
{
    t = std::fmod(t, 2.0);
    if (t > 1.0) t = 2.0 - t;
    double sign = 1.0;
    if (t > 0.5) t = 1.0 - t, sign = -1.0;
    const double pi = 3.141592653589793;
    if (t <= 0.25) { // cos x, x = pi t <= pi / 4: terms to x^18 / 18!
        const double x = pi * t, x2 = x * x;
        // Horner from the inside: 1 - x^2 / (1 2) (1 - x^2 / (3 4) (1 - ...)).
        double h = 1.0;
        for (int k = 18; k >= 2; k -= 2) h = 1.0 - x2 * h / double((k - 1) * k);
        return sign * h;
    }
    const double x = pi * (0.5 - t), x2 = x * x; // sin x: terms to x^19 / 19!
    double h = 1.0;
    for (int k = 19; k >= 3; k -= 2) h = 1.0 - x2 * h / double((k - 1) * k);
    return sign * x * h;
}

}  // namespace

// ---- the API functions ---------------------------------------------------------------------------------

template <class T, int kCh, int kElems>
KroStatus ramp(T* pDst, int dstStep, KroiSize roi, float offset, float slope, KroiRampAxis axis)
{
    KROI_CHECK(check::pointers(pDst));
    KROI_CHECK(check::roi(roi));
    if (axis != kroRampAxisX && axis != kroRampAxisY && axis != kroRampAxisXY) return kroStsBadArgumentErr;
    const DefaultFloatScope env;
    const rows::Image<T> dst{pDst, dstStep};
    const double a = offset, b = slope;
    for (int y = 0; y < roi.height; ++y) {
        T* row = dst.row(y);
        const T rowValue = element<T>(a + b * double(y));
        for (int x = 0; x < roi.width; ++x) {
            const T v = axis == kroRampAxisY ? rowValue
                      : axis == kroRampAxisX ? element<T>(a + b * double(x))
                                             : element<T>(a + b * (double(x) * double(y)));
            for (int c = 0; c < kCh; ++c) row[std::ptrdiff_t(x) * kElems + c] = v;
        }
    }
    return kroStsOk;
}

template <class T>
KroStatus zonePlate(T* pDst, int dstStep, KroiSize roi)
{
    KROI_CHECK(check::pointers(pDst));
    KROI_CHECK(check::roi(roi));
    const DefaultFloatScope env;
    const rows::Image<T> dst{pDst, dstStep};
    const double cx = (roi.width - 1) / 2.0, cy = (roi.height - 1) / 2.0;
    const double twoR = 2.0 * std::sqrt(cx * cx + cy * cy);
    for (int y = 0; y < roi.height; ++y) {
        T* row = dst.row(y);
        const double dy2 = (y - cy) * (y - cy);
        for (int x = 0; x < roi.width; ++x) {
            const double r2 = (x - cx) * (x - cx) + dy2; // exact: halves squared
            const double c = cosPi(twoR > 0 ? r2 / twoR : 0.0);
            if constexpr (std::is_same_v<T, Kro8u>) row[x] = element<T>(127.5 + 127.5 * c);
            else if constexpr (std::is_same_v<T, Kro16s>) row[x] = element<T>(32767.0 * c);
            else row[x] = element<T>(c);
        }
    }
    return kroStsOk;
}

template <class T>
KroStatus checkerboard(T* pDst, int dstStep, KroiSize roi, int cellSize, T value1, T value2)
{
    KROI_CHECK(check::pointers(pDst));
    KROI_CHECK(check::roi(roi));
    if (cellSize < 1) return kroStsBadSizeErr;
    const rows::Image<T> dst{pDst, dstStep};
    for (int y = 0; y < roi.height; ++y) {
        T* row = dst.row(y);
        bool first = (y / cellSize) % 2 == 0;
        for (int64_t x0 = 0; x0 < roi.width; x0 += cellSize, first = !first) {
            const int64_t end = roi.width - x0 < cellSize ? roi.width : x0 + cellSize;
            const T v = first ? value1 : value2;
            for (int64_t x = x0; x < end; ++x) row[x] = v;
        }
    }
    return kroStsOk;
}

}  // namespace KROI_TIER::generate

namespace generate = KROI_TIER::generate;

#define KROI_EXPORT KROI_BIND
KROI_BIND_LIST {
#include "generate/pattern.exports.inc"
}
#undef KROI_EXPORT
