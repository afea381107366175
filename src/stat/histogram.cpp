// Histograms: the specification, its initialisers and the counting functions.
//
// 8u counts into full 256-entry tables and sums them over each bin's clamped levels.  The
// wider types find each value's bin: from the first and last level when the bins are uniform
// (an estimate that is then corrected against the stored levels, so that a value on an edge
// lands exactly where the half-open rule puts it, whatever rounding made the levels), and by
// binary search otherwise.
#include <algorithm>
#include <cmath>
#include <cstring>

#include "frame/base.hpp"
#include "frame/bind.hpp"
#include "frame/check.hpp"

namespace KROI_TIER::stat {

namespace {

constexpr uint32_t kHistTag = 0x74736968; // "hist" in memory order
constexpr int kMaxLevels = 1 << 24;
constexpr int kSpecHeader = 64;
constexpr int kTables8u = 4; // count tables per channel: neighbours land in different ones

static_assert(sizeof(KroiHistogramSpec) == kSpecHeader, "the level arrays start 64 bytes in");

bool knownType(KroDataType t) { return t == kro8u || t == kro16u || t == kro16s || t == kro32f; }
bool knownChannels(int n) { return n == 1 || n == 3 || n == 4; }
size_t levelBytes(int n) { return (size_t(n) * 4 + 15) & ~size_t(15); }

KroStatus checkCount(int n)
{
    if (n < 2) return kroStsFewHistLevelsErr;
    if (n > kMaxLevels) return kroStsBadSizeErr;
    return kroStsOk;
}

// Writes the header and points each channel at its array inside the block.
void layout(KroiHistogramSpec* s, KroDataType type, const int* n, int channels, uint32_t uniform)
{
    s->dataType = uint32_t(type);
    s->numChannels = uint32_t(channels);
    s->uniform = uniform;
    s->tag = kHistTag;
    char* p = reinterpret_cast<char*>(s) + kSpecHeader;
    for (int c = 0; c < 4; ++c) {
        s->numLevels[c] = c < channels ? n[c] : 0;
        s->pLevels[c] = c < channels ? p : nullptr;
        if (c < channels) p += levelBytes(n[c]);
    }
}

// Nearest integer, ties to even, saturated to 32 bits; independent of the rounding control.
int32_t roundLevel(double v)
{
    double f = std::floor(v);
    const double frac = v - f;
    if (frac > 0.5 || (frac == 0.5 && std::fmod(f, 2.0) != 0.0)) f += 1.0;
    if (f <= -2147483648.0) return INT32_MIN;
    if (f >= 2147483647.0) return INT32_MAX;
    return int32_t(f);
}

// Level k of n uniform levels over [lo, hi], in double.
double uniformLevel(double lo, double hi, int k, int n)
{
    if (k == 0) return lo;
    if (k == n - 1) return hi;
    return lo + k * ((hi - lo) / (n - 1));
}

template <class L>
L storedLevel(KroDataType type, double v)
{
    if constexpr (std::is_same_v<L, float>) return float(v);
    else { (void)type; return roundLevel(v); }
}

// Passes over the uniform levels of one channel: f(k, level) for each; false when they do not
// come out strictly increasing.
template <class L, class F>
bool uniformLevels(double lo, double hi, int n, F&& f)
{
    L prev{};
    for (int k = 0; k < n; ++k) {
        const L v = storedLevel<L>(0, uniformLevel(lo, hi, k, n));
        if (k > 0 && !(prev < v)) return false;
        f(k, v);
        prev = v;
    }
    return true;
}

template <class L>
bool increasing(const L* v, int n)
{
    for (int k = 1; k < n; ++k)
        if (!(v[k - 1] < v[k])) return false; // NaN fails too
    return true;
}

// ---- counting ------------------------------------------------------------------------------

// The bin of a value among n levels, or -1 outside [L[0], L[n-1]).
template <class L>
class BinFinder {
public:
    BinFinder(const L* levels, int n, bool uniform)
        : lv_(levels), bins_(n - 1), uniform_(uniform), base_(double(levels[0])),
          scale_(double(n - 1) / (double(levels[n - 1]) - double(levels[0])))
    {
    }

    template <class V>
    int find(V value) const
    {
        const L v = L(value);
        if (!(v >= lv_[0] && v < lv_[bins_])) return -1;
        if (!uniform_) return int(std::upper_bound(lv_, lv_ + bins_ + 1, v) - lv_) - 1;
        const double e = (double(v) - base_) * scale_;
        int k = e < double(bins_) ? int(e) : bins_ - 1;
        if (k < 0) k = 0;
        while (v < lv_[k]) --k;
        while (v >= lv_[k + 1]) ++k;
        return k;
    }

private:
    const L* lv_;
    int bins_;
    bool uniform_;
    double base_, scale_;
};

template <class T, int Ch>
void countWide(const T* src, int srcStep, KroiSize roi, Kro32u* const* hist, const KroiHistogramSpec* spec)
{
    using L = std::conditional_t<std::is_same_v<T, Kro32f>, float, int32_t>;
    for (int c = 0; c < Ch; ++c) {
        const BinFinder<L> finder(static_cast<const L*>(spec->pLevels[c]), spec->numLevels[c], spec->uniform == 1);
        Kro32u* h = hist[c];
        std::memset(h, 0, sizeof(Kro32u) * size_t(spec->numLevels[c] - 1));
        for (int y = 0; y < roi.height; ++y) {
            const T* row = reinterpret_cast<const T*>(reinterpret_cast<const char*>(src) + std::ptrdiff_t(y) * srcStep);
            for (int x = 0; x < roi.width; ++x) {
                const int k = finder.find(row[std::ptrdiff_t(x) * Ch + c]);
                if (k >= 0) ++h[k];
            }
        }
    }
}

// Full tables: `tables` holds kTables8u x Ch tables of 256 counts, table (t, c) at
// (t * Ch + c) * 256; consecutive pixels go to consecutive tables.
template <int Ch>
void countFull8u(const Kro8u* src, int srcStep, KroiSize roi, uint32_t* tables)
{
    std::memset(tables, 0, sizeof(uint32_t) * 256 * kTables8u * Ch);
    for (int y = 0; y < roi.height; ++y) {
        const Kro8u* p = src + std::ptrdiff_t(y) * srcStep;
        int x = 0;
        for (; x + kTables8u <= roi.width; x += kTables8u, p += kTables8u * Ch)
            for (int t = 0; t < kTables8u; ++t)
                for (int c = 0; c < Ch; ++c) ++tables[(t * Ch + c) * 256 + p[t * Ch + c]];
        for (; x < roi.width; ++x, p += Ch)
            for (int c = 0; c < Ch; ++c) ++tables[c * 256 + p[c]];
    }
}

template <int Ch>
void histogram8u(const Kro8u* src, int srcStep, KroiSize roi, Kro32u* const* hist, const KroiHistogramSpec* spec,
                 Kro8u* buffer)
{
    auto* tables = reinterpret_cast<uint32_t*>((reinterpret_cast<uintptr_t>(buffer) + 63) & ~uintptr_t(63));
    countFull8u<Ch>(src, srcStep, roi, tables);
    for (int c = 0; c < Ch; ++c) {
        // cum[v] = pixels below v, modulo 2^32 as the counts themselves.
        uint32_t cum[257];
        cum[0] = 0;
        for (int v = 0; v < 256; ++v) {
            uint32_t n = 0;
            for (int t = 0; t < kTables8u; ++t) n += tables[(t * Ch + c) * 256 + v];
            cum[v + 1] = cum[v] + n;
        }
        const auto* lv = static_cast<const int32_t*>(spec->pLevels[c]);
        auto clamp = [](int32_t l) { return l < 0 ? 0 : l > 256 ? 256 : l; };
        for (int k = 0; k + 1 < spec->numLevels[c]; ++k) hist[c][k] = cum[clamp(lv[k + 1])] - cum[clamp(lv[k])];
    }
}

template <int Ch>
using HistArg = std::conditional_t<Ch == 1, Kro32u*, Kro32u* const*>;

template <class T>
constexpr KroDataType typeCode()
{
    if constexpr (std::is_same_v<T, Kro8u>) return kro8u;
    else if constexpr (std::is_same_v<T, Kro16u>) return kro16u;
    else if constexpr (std::is_same_v<T, Kro16s>) return kro16s;
    else return kro32f;
}

}  // namespace

KroStatus histogramBufferSize(KroDataType dataType, KroiSize roi, const int* nLevels, int numChannels, int,
                              int* pSpecSize, int* pBufferSize)
{
    KROI_CHECK(check::pointers(nLevels, pSpecSize, pBufferSize));
    KROI_CHECK(check::roi(roi));
    if (!knownChannels(numChannels)) return kroStsBadChannelCountErr;
    for (int c = 0; c < numChannels; ++c)
        if (nLevels[c] < 2) return kroStsFewHistLevelsErr;
    for (int c = 0; c < numChannels; ++c)
        if (nLevels[c] > kMaxLevels) return kroStsBadSizeErr;
    if (!knownType(dataType)) return kroStsBadDataTypeErr;
    size_t spec = kSpecHeader;
    for (int c = 0; c < numChannels; ++c) spec += levelBytes(nLevels[c]);
    *pSpecSize = int(spec);
    *pBufferSize = dataType == kro8u ? 256 * 4 * kTables8u * numChannels + 64 : 64;
    return kroStsOk;
}

KroStatus histogramInit(KroDataType dataType, const void* const* pLevels, const int* nLevels, int numChannels,
                        KroiHistogramSpec* pSpec)
{
    if (!knownType(dataType)) return kroStsBadDataTypeErr;
    KROI_CHECK(check::pointers(pLevels, nLevels, pSpec));
    if (!knownChannels(numChannels)) return kroStsBadChannelCountErr;
    for (int c = 0; c < numChannels; ++c) {
        KROI_CHECK(checkCount(nLevels[c]));
        if (pLevels[c] == nullptr) return kroStsNullPointerErr;
        const bool ok = dataType == kro32f ? increasing(static_cast<const float*>(pLevels[c]), nLevels[c])
                                           : increasing(static_cast<const int32_t*>(pLevels[c]), nLevels[c]);
        if (!ok) return kroStsBadRangeErr;
    }
    layout(pSpec, dataType, nLevels, numChannels, 0);
    for (int c = 0; c < numChannels; ++c) std::memcpy(pSpec->pLevels[c], pLevels[c], size_t(nLevels[c]) * 4);
    return kroStsOk;
}

KroStatus histogramUniformInit(KroDataType dataType, const Kro32f* lower, const Kro32f* upper, const int* nLevels,
                               int numChannels, KroiHistogramSpec* pSpec)
{
    if (!knownType(dataType)) return kroStsBadDataTypeErr;
    KROI_CHECK(check::pointers(lower, upper, nLevels, pSpec));
    if (!knownChannels(numChannels)) return kroStsBadChannelCountErr;
    for (int c = 0; c < numChannels; ++c) {
        KROI_CHECK(checkCount(nLevels[c]));
        if (!(lower[c] < upper[c])) return kroStsBadRangeErr;
        const bool ok = dataType == kro32f ? uniformLevels<float>(lower[c], upper[c], nLevels[c], [](int, float) {})
                                           : uniformLevels<int32_t>(lower[c], upper[c], nLevels[c], [](int, int32_t) {});
        if (!ok) return kroStsBadRangeErr;
    }
    layout(pSpec, dataType, nLevels, numChannels, 1);
    for (int c = 0; c < numChannels; ++c) {
        if (dataType == kro32f) {
            auto* out = static_cast<float*>(pSpec->pLevels[c]);
            uniformLevels<float>(lower[c], upper[c], nLevels[c], [&](int k, float v) { out[k] = v; });
        } else {
            auto* out = static_cast<int32_t*>(pSpec->pLevels[c]);
            uniformLevels<int32_t>(lower[c], upper[c], nLevels[c], [&](int k, int32_t v) { out[k] = v; });
        }
    }
    return kroStsOk;
}

KroStatus histogramGetLevels(const KroiHistogramSpec* pSpec, void* const* pLevels)
{
    KROI_CHECK(check::pointers(pSpec, pLevels));
    if (pSpec->tag != kHistTag || !knownChannels(int(pSpec->numChannels))) return kroStsBadArgumentErr;
    const int channels = int(pSpec->numChannels);
    for (int c = 0; c < channels; ++c)
        if (pLevels[c] == nullptr) return kroStsNullPointerErr;
    for (int c = 0; c < channels; ++c)
        std::memcpy(pLevels[c], pSpec->pLevels[c], size_t(pSpec->numLevels[c]) * 4);
    return kroStsOk;
}

template <class T, int Ch>
KroStatus histogram(const T* pSrc, int srcStep, KroiSize roi, HistArg<Ch> pHist, const KroiHistogramSpec* pSpec,
                    Kro8u* pBuffer)
{
    KROI_CHECK(check::pointers(pSrc, pHist, pSpec, pBuffer));
    Kro32u* const* hist;
    if constexpr (Ch == 1) {
        hist = &pHist;
    } else {
        for (int c = 0; c < Ch; ++c)
            if (pHist[c] == nullptr) return kroStsNullPointerErr;
        hist = pHist;
    }
    KROI_CHECK(check::roi(roi));
    if (srcStep < 1 || int64_t(srcStep) < int64_t(roi.width) * Ch * int64_t(sizeof(T))) return kroStsBadStepErr;
    if (pSpec->tag != kHistTag || pSpec->dataType != uint32_t(typeCode<T>()) || pSpec->numChannels != uint32_t(Ch))
        return kroStsBadArgumentErr;
    for (int c = 0; c < Ch; ++c)
        if (pSpec->numLevels[c] < 2 || pSpec->numLevels[c] > kMaxLevels || pSpec->pLevels[c] == nullptr)
            return kroStsBadArgumentErr;

    if constexpr (std::is_same_v<T, Kro8u>) histogram8u<Ch>(pSrc, srcStep, roi, hist, pSpec, pBuffer);
    else countWide<T, Ch>(pSrc, srcStep, roi, hist, pSpec);
    return kroStsOk;
}

}  // namespace KROI_TIER::stat

#define KROI_EXPORT KROI_BIND
KROI_BIND_LIST {
#include "stat/histogram.exports.inc"
}
#undef KROI_EXPORT
