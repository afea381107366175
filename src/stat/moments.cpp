// Moments: the state, the moment functions and the getters.
#include <cmath>
#include <cstring>

#include "frame/base.hpp"
#include "frame/bind.hpp"
#include "frame/check.hpp"
#include "frame/fpround.hpp"
#include "stat/moments_kernels.hpp"

namespace KROI_TIER::stat {

namespace {

constexpr int32_t kMomentTag = 35;
constexpr double kMassEpsilon = 2.220446049250313e-16;

static_assert(sizeof(KroiMomentState64f) == 400, "the state is 400 bytes");
static_assert(offsetof(KroiMomentState64f, raw) == 16, "block 0 entry 2 follows the header words");

// Where entry e of channel c's block lives in raw[].
constexpr int rawIndex(int c, int e) { return 16 * c + e - 2; }

double raw(const KroiMomentState64f* s, int c, int p, int q) { return s->raw[rawIndex(c, blockEntry(p, q))]; }

double powi(double b, int e)
{
    double r = 1.0;
    for (int i = 0; i < e; ++i) r *= b;
    return r;
}

// The binomial shift of the raw moments of channel c by (ox, oy), in the header's order.
double shifted(const KroiMomentState64f* s, int c, int m, int n, double ox, double oy)
{
    double sum = 0.0;
    for (int i = 0; i <= m; ++i)
        for (int j = 0; j <= n; ++j)
            sum += double(kBinom[m][i] * kBinom[n][j]) * powi(ox, m - i) * powi(oy, n - j) * raw(s, c, i, j);
    return sum;
}

double central(const KroiMomentState64f* s, int c, int m, int n)
{
    const double m00 = raw(s, c, 0, 0);
    if (m + n == 1) return 0.0; // about the centroid the first moments vanish exactly
    if (m + n == 0) return m00;
    return shifted(s, c, m, n, -(raw(s, c, 1, 0) / m00), -(raw(s, c, 0, 1) / m00));
}

// m00^((m + n + 2) / 2) as stated in the header.
double normaliser(double m00, int m, int n)
{
    const int order = m + n + 2;
    double d = powi(m00, order / 2);
    if (order & 1) d *= std::sqrt(m00);
    return d;
}

KroStatus checkGetter(const KroiMomentState64f* s, const void* out, int m, int n, int channel)
{
    KROI_CHECK(check::pointers(s, out));
    if (s->tag != kMomentTag) return kroStsWrongTagErr;
    if (m < 0 || n < 0 || m + n > 3) return kroStsBadSizeErr;
    if (channel < 0 || channel >= s->numChannels) return kroStsBadChannelErr;
    return kroStsOk;
}

bool zeroMass(const KroiMomentState64f* s, int c) { return std::fabs(raw(s, c, 0, 0)) <= kMassEpsilon; }

}  // namespace

KroStatus momentStateSize(KroAlgorithmHint, int* pSize)
{
    KROI_CHECK(check::pointers(pSize));
    *pSize = int(sizeof(KroiMomentState64f));
    return kroStsOk;
}

KroStatus momentInit(KroiMomentState64f* pState, KroAlgorithmHint hint)
{
    KROI_CHECK(check::pointers(pState));
    pState->tag = kMomentTag;
    pState->hint = hint;
    pState->numChannels = -1;
    return kroStsOk;
}

template <class T, int Elems>
KroStatus moments(const T* pSrc, int srcStep, KroiSize roi, KroiMomentState64f* pState)
{
    constexpr int kChannels = Elems == 1 ? 1 : 3;
    KROI_CHECK(check::pointers(pSrc, pState));
    if (pState->tag != kMomentTag) return kroStsWrongTagErr;
    KROI_CHECK(check::steps(srcStep));
    KROI_CHECK(check::roi(roi));
    KROI_CHECK(check::stepsCoverRow(int64_t(roi.width) * Elems * int64_t(sizeof(T)), srcStep));

    double m[3][10] = {};
    if constexpr (std::is_same_v<T, Kro32f>) {
        RoundingScope nearest(RoundingScope::kNearest);
        momentsFloat<Elems, kChannels>(pSrc, srcStep, roi.width, roi.height, m);
    } else {
        U256 totals[3][10];
        momentsExact<T, Elems, kChannels>(pSrc, srcStep, roi.width, roi.height, totals);
        for (int c = 0; c < kChannels; ++c)
            for (int k = 0; k < 10; ++k) m[c][k] = toDouble(totals[c][k]);
    }
    for (int c = 0; c < kChannels; ++c)
        for (int k = 0; k < 10; ++k) pState->raw[rawIndex(c, blockEntry(kOrders[k][0], kOrders[k][1]))] = m[c][k];
    pState->numChannels = kChannels;
    return kroStsOk;
}

// A getter: its checks, the zero-mass test when it needs one, then one value computed with
// round-to-nearest.
template <bool NeedsMass, class F>
KroStatus getter(const KroiMomentState64f* s, int m, int n, int channel, Kro64f* out, F&& value)
{
    KROI_CHECK(checkGetter(s, out, m, n, channel));
    if (NeedsMass && zeroMass(s, channel)) return kroStsZeroMassErr;
    RoundingScope nearest(RoundingScope::kNearest);
    *out = value();
    return kroStsOk;
}

KroStatus spatialMoment(const KroiMomentState64f* pState, int m, int n, int channel, KroiPoint offset, Kro64f* pValue)
{
    return getter<false>(pState, m, n, channel, pValue,
                         [&] { return shifted(pState, channel, m, n, double(offset.x), double(offset.y)); });
}

KroStatus centralMoment(const KroiMomentState64f* pState, int m, int n, int channel, Kro64f* pValue)
{
    return getter<true>(pState, m, n, channel, pValue, [&] { return central(pState, channel, m, n); });
}

KroStatus normalizedSpatialMoment(const KroiMomentState64f* pState, int m, int n, int channel, KroiPoint offset,
                                  Kro64f* pValue)
{
    return getter<true>(pState, m, n, channel, pValue, [&] {
        return shifted(pState, channel, m, n, double(offset.x), double(offset.y)) /
               normaliser(raw(pState, channel, 0, 0), m, n);
    });
}

KroStatus normalizedCentralMoment(const KroiMomentState64f* pState, int m, int n, int channel, Kro64f* pValue)
{
    return getter<true>(pState, m, n, channel, pValue, [&] {
        return central(pState, channel, m, n) / normaliser(raw(pState, channel, 0, 0), m, n);
    });
}

KroStatus huMoments(const KroiMomentState64f* pState, int channel, Kro64f* pHm)
{
    KROI_CHECK(checkGetter(pState, pHm, 0, 0, channel));
    if (zeroMass(pState, channel)) return kroStsZeroMassErr;
    RoundingScope nearest(RoundingScope::kNearest);
    const double m00 = raw(pState, channel, 0, 0);
    auto eta = [&](int m, int n) { return central(pState, channel, m, n) / normaliser(m00, m, n); };
    const double n20 = eta(2, 0), n02 = eta(0, 2), n11 = eta(1, 1);
    const double n30 = eta(3, 0), n12 = eta(1, 2), n21 = eta(2, 1), n03 = eta(0, 3);
    const double a = n30 + n12, b = n21 + n03;
    const double u = n30 - 3 * n12, v = 3 * n21 - n03;
    const double d = n20 - n02;
    pHm[0] = n20 + n02;
    pHm[1] = d * d + 4 * n11 * n11;
    pHm[2] = u * u + v * v;
    pHm[3] = a * a + b * b;
    pHm[4] = u * a * (a * a - 3 * b * b) + v * b * (3 * a * a - b * b);
    pHm[5] = d * (a * a - b * b) + 4 * n11 * a * b;
    pHm[6] = v * a * (a * a - 3 * b * b) - u * b * (3 * a * a - b * b);
    return kroStsOk;
}

}  // namespace KROI_TIER::stat

#define KROI_EXPORT KROI_BIND
KROI_BIND_LIST {
#include "stat/moments.exports.inc"
}
#undef KROI_EXPORT
