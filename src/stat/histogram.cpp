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

#include <xmmintrin.h>
#include <emmintrin.h>

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

// The bin of a value among the levels of one channel, or `bins` (a slot past the real counts)
// outside [L[0], L[n-1]) and for NaN, so that counting needs no branch on the answer.
template <class L>
class BinFinder {
public:
    BinFinder(const L* levels, int n, bool uniform)
        : lv_(levels), bins_(n - 1), uniform_(uniform), base_(double(levels[0])),
          scale_(double(n - 1) / (double(levels[n - 1]) - double(levels[0])))
    {
    }

    int clampBin(int k) const { return k < 0 ? 0 : k >= bins_ ? bins_ - 1 : k; }
    bool uniform() const { return uniform_; }

    int find(L v) const
    {
        if (!(v >= lv_[0] && v < lv_[bins_])) return bins_;
        if (!uniform_) return int(std::upper_bound(lv_, lv_ + bins_ + 1, v) - lv_) - 1;
        const double e = (double(v) - base_) * scale_;
        return settle(v, e < double(bins_ - 1) ? int(e) : bins_ - 1);
    }

    // From an estimate to the bin the stored levels give: the estimate is off by at most one
    // for uniform levels, so the loops almost never turn.
    int settle(L v, int k) const
    {
        while (v < lv_[k]) --k;
        while (v >= lv_[k + 1]) ++k;
        return k;
    }

    // Uniform 32f levels, four values at a time.  The position (v - L[0]) * bins / range is
    // estimated in single precision; its error, with that of the levels' own rounding to
    // float, stays below `margin_` of a bin, so a fractional part farther than that from
    // either edge names the bin for certain.  Other values are settled against the stored
    // levels one by one.
    void countUniform(const float* row, int n, int stride, uint32_t* h0, uint32_t* h1) const
    {
        const __m128 lo = _mm_set1_ps(lv_[0]), hi = _mm_set1_ps(lv_[bins_]);
        const __m128 scale = _mm_set1_ps(float(scale_));
        const __m128 margin = _mm_set1_ps(margin_), oneLess = _mm_set1_ps(1.f - margin_);
        int i = 0;
        for (; i + 4 <= n; i += 4) {
            const float* r = row + std::ptrdiff_t(i) * stride;
            const __m128 v = stride == 1 ? _mm_loadu_ps(r) : _mm_setr_ps(r[0], r[stride], r[2 * stride], r[3 * stride]);
            const __m128 in = _mm_and_ps(_mm_cmpge_ps(v, lo), _mm_cmplt_ps(v, hi));
            const __m128 e = _mm_mul_ps(_mm_sub_ps(v, lo), scale);
            const __m128i k = _mm_cvttps_epi32(e);
            const __m128 frac = _mm_sub_ps(e, _mm_cvtepi32_ps(k));
            const __m128 sure = _mm_and_ps(in, _mm_and_ps(_mm_cmpgt_ps(frac, margin), _mm_cmplt_ps(frac, oneLess)));
            // Lanes leave through registers: a narrow load from a wide store that has not
            // retired yet would wait for it.
            const int k0 = _mm_cvtsi128_si32(k), k1 = _mm_cvtsi128_si32(_mm_shuffle_epi32(k, 0x55));
            const int k2 = _mm_cvtsi128_si32(_mm_shuffle_epi32(k, 0xAA)), k3 = _mm_cvtsi128_si32(_mm_shuffle_epi32(k, 0xFF));
            if (_mm_movemask_ps(sure) == 0xF) [[likely]] {
                ++h0[k0], ++h1[k1], ++h0[k2], ++h1[k3];
            } else {
                const int inMask = _mm_movemask_ps(in);
                ++h0[inMask & 1 ? settle(r[0], clampBin(k0)) : bins_];
                ++h1[inMask & 2 ? settle(r[stride], clampBin(k1)) : bins_];
                ++h0[inMask & 4 ? settle(r[2 * stride], clampBin(k2)) : bins_];
                ++h1[inMask & 8 ? settle(r[3 * stride], clampBin(k3)) : bins_];
            }
        }
        for (; i < n; ++i) ++h0[find(row[std::ptrdiff_t(i) * stride])];
    }

private:
    // Single-precision estimate: three roundings of at most 2^-24 relative each on a
    // position below `bins`, and levels rounded to float by at most half an ulp of the larger
    // bound, which is max|bound| / range * bins * 2^-24 of a bin.  Four times 2^-24 covers
    // the three roundings and the scale's double-to-float rounding with room to spare.
    static float marginFor(const L* lv, int bins)
    {
        const double range = double(lv[bins]) - double(lv[0]);
        const double big = std::max(std::fabs(double(lv[0])), std::fabs(double(lv[bins])));
        const double m = std::ldexp(double(bins) * (4.0 + big / range), -24);
        return m < 0.25 ? float(m) : 0.5f; // 0.5: nothing is ever sure, every value settled
    }

    const L* lv_;
    int bins_;
    bool uniform_;
    double base_, scale_;
    float margin_ = marginFor(lv_, bins_);
};

// Two count rows per channel in the work buffer, each with a slot for values outside the
// bins; alternate pixels go to alternate rows, so that a run of equal values does not wait
// on its own stores.  The rows are summed into the output at the end.
template <class T, int Ch>
void countWide(const T* src, int srcStep, KroiSize roi, Kro32u* const* hist, const KroiHistogramSpec* spec,
               Kro8u* buffer)
{
    using L = std::conditional_t<std::is_same_v<T, Kro32f>, float, int32_t>;
    auto* counts = reinterpret_cast<uint32_t*>((reinterpret_cast<uintptr_t>(buffer) + 63) & ~uintptr_t(63));
    for (int c = 0; c < Ch; ++c) {
        const int bins = spec->numLevels[c] - 1;
        const BinFinder<L> finder(static_cast<const L*>(spec->pLevels[c]), bins + 1, spec->uniform == 1);
        uint32_t* h0 = counts;
        uint32_t* h1 = counts + bins + 1;
        std::memset(counts, 0, sizeof(uint32_t) * 2 * size_t(bins + 1));
        for (int y = 0; y < roi.height; ++y) {
            const T* row = reinterpret_cast<const T*>(reinterpret_cast<const char*>(src) + std::ptrdiff_t(y) * srcStep) + c;
            if constexpr (std::is_same_v<T, Kro32f>) {
                if (finder.uniform()) {
                    finder.countUniform(row, roi.width, Ch, h0, h1);
                    continue;
                }
            }
            int x = 0;
            for (; x + 2 <= roi.width; x += 2) {
                ++h0[finder.find(L(row[std::ptrdiff_t(x) * Ch]))];
                ++h1[finder.find(L(row[std::ptrdiff_t(x + 1) * Ch]))];
            }
            if (x < roi.width) ++h0[finder.find(L(row[std::ptrdiff_t(x) * Ch]))];
        }
        for (int k = 0; k < bins; ++k) hist[c][k] = h0[k] + h1[k];
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
        if constexpr (Ch == 1) {
            // Eight pixels per load: the loop is bound by memory operations, and one load
            // for eight leaves each pixel its counter's load and store alone.
            uint32_t* t0 = tables;
            uint32_t* t1 = tables + 256;
            uint32_t* t2 = tables + 512;
            uint32_t* t3 = tables + 768;
            for (; x + 8 <= roi.width; x += 8) {
                uint64_t v;
                std::memcpy(&v, p + x, 8);
                const uint32_t lo = uint32_t(v), hi = uint32_t(v >> 32);
                ++t0[lo & 0xFF], ++t1[(lo >> 8) & 0xFF], ++t2[(lo >> 16) & 0xFF], ++t3[lo >> 24];
                ++t0[hi & 0xFF], ++t1[(hi >> 8) & 0xFF], ++t2[(hi >> 16) & 0xFF], ++t3[hi >> 24];
            }
            for (; x < roi.width; ++x) ++t0[p[x]];
        } else {
            for (; x + kTables8u <= roi.width; x += kTables8u, p += kTables8u * Ch)
                for (int t = 0; t < kTables8u; ++t)
                    for (int c = 0; c < Ch; ++c) ++tables[(t * Ch + c) * 256 + p[t * Ch + c]];
            for (; x < roi.width; ++x, p += Ch)
                for (int c = 0; c < Ch; ++c) ++tables[c * 256 + p[c]];
        }
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
    int most = 0;
    for (int c = 0; c < numChannels; ++c) spec += levelBytes(nLevels[c]), most = std::max(most, nLevels[c]);
    *pSpecSize = int(spec);
    *pBufferSize = dataType == kro8u ? 256 * 4 * kTables8u * numChannels + 64 : 2 * 4 * most + 64;
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
    else countWide<T, Ch>(pSrc, srcStep, roi, hist, pSpec, pBuffer);
    return kroStsOk;
}

}  // namespace KROI_TIER::stat

#define KROI_EXPORT KROI_BIND
KROI_BIND_LIST {
#include "stat/histogram.exports.inc"
}
#undef KROI_EXPORT
