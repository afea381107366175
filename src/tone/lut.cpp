// Lookup tables: the size query, the initialisers and the mapping functions.
//
// The integer types are mapped through full maps (one entry per possible value, indexed by
// the value's bit pattern) that the initialiser paints once: the identity first, then each
// non-empty interval with its values.  32f keeps the levels and values and finds each
// pixel's interval by binary search.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <new>

#include "frame/base.hpp"
#include "frame/bind.hpp"
#include "frame/check.hpp"
#include "frame/round.hpp"
#include "frame/rows.hpp"
#include "tone/lut_rule.hpp"
#include "tone/lut_spec.hpp"

namespace KROI_TIER::tone {

namespace {

using namespace lut;

// Counts of the layout's channels below 2: -106, the fourth of C4 first.
KroStatus levelCounts(int layout, const int* n)
{
    const int t = tablesOf(layout);
    if (t == 4 && n[3] < 2) return kroStsFewLutLevelsErr;
    for (int c = 0; c < std::min(t, 3); ++c)
        if (n[c] < 2) return kroStsFewLutLevelsErr;
    return kroStsOk;
}

KroStatus layoutCode(int layout)
{
    return tablesOf(layout) == 0 ? kroStsBadChannelErr : kroStsOk;
}

KroStatus interpCode(int interp)
{
    return interp == kNearest || interp == kLinear || interp == kCubic ? kroStsOk : kroStsBadInterpolationErr;
}

constexpr int64_t round64(int64_t v) { return (v + 63) & ~int64_t(63); }

// Bytes of the specification; every interpolation kind has the size of the nearest kind.
int64_t specBytes(int type, int layout, const int* n)
{
    const int t = tablesOf(layout);
    int64_t s3 = 0, s4 = 0;
    for (int c = 0; c < t; ++c) (c < 3 ? s3 : s4) += n[c];
    s4 += s3;
    constexpr int64_t kOver = 288;
    if (type == kro8u) return 256 * t + kOver;
    if (type == kro16u || type == kro16s) {
        if (layout == kC1) return 8 * int64_t(n[0]) + 131072 + kOver;
        if (layout == kC3) return round64(8 * s3) + 0x60000 + kOver;
        return (layout == kAC4 ? 0x60000 : 0x80000) + kOver;
    }
    if (layout == kC1) return 8 * int64_t(n[0]) + kOver;
    return round64(8 * (layout == kC4 ? s4 : s3)) + kOver;
}

uint32_t tableOffset(const void* spec)
{
    const auto p = reinterpret_cast<std::uintptr_t>(spec);
    return uint32_t(((p + kHead + 63) & ~std::uintptr_t(63)) - p);
}

// Checks shared by the four initialisers, in their order.
template <class E>
KroStatus initChecks(int interp, int layout, KroiSize roi, const E* const* values, const E* const* levels,
                     const int* n, const KroiLUTSpec* spec)
{
    KROI_CHECK(check::pointers(values, levels, n, spec));
    for (int c = 0; c < tablesOf(layout); ++c) KROI_CHECK(check::pointers(values[c], levels[c]));
    KROI_CHECK(check::roi(roi));
    KROI_CHECK(levelCounts(layout, n));
    KROI_CHECK(layoutCode(layout));
    KROI_CHECK(interpCode(interp));
    return kroStsOk;
}

// Paints one full map of T: the identity, then every non-empty interval clipped to the
// type's range, in order.
template <class T>
void paintMap(T* map, int interp, const Kro32s* lv, const Kro32s* val, int n)
{
    constexpr int64_t lo = std::numeric_limits<T>::min(), hi = std::numeric_limits<T>::max();
    using Key = std::make_unsigned_t<T>;
    for (int64_t v = lo; v <= hi; ++v) map[Key(T(v))] = T(v);
    for (int k = 0; k + 1 < n; ++k) {
        if (lv[k + 1] <= lv[k]) continue;
        const int64_t from = std::max<int64_t>(lv[k], lo), to = std::min<int64_t>(lv[k + 1], hi + 1);
        for (int64_t v = from; v < to; ++v) map[Key(T(v))] = saturate<T>(evalInt(interp, lv, val, n, k, v));
    }
}

template <class T>
KroStatus initInt(int interp, int layout, KroiSize roi, const Kro32s* values[], const Kro32s* levels[],
                  const int nLevels[], KroiLUTSpec* pSpec)
{
    KROI_CHECK(initChecks<Kro32s>(interp, layout, roi, values, levels, nLevels, pSpec));
    constexpr int kType = sizeof(T) == 1 ? kro8u : std::is_signed_v<T> ? kro16s : kro16u;
    constexpr std::size_t kEntries = std::size_t(1) << (8 * sizeof(T));
    Head h{};
    h.kind = kindId(kType, layout, interp);
    h.interp = interp;
    h.tables = tablesOf(layout);
    h.dataOffset = tableOffset(pSpec);
    T* maps = reinterpret_cast<T*>(reinterpret_cast<char*>(pSpec) + h.dataOffset);
    for (int c = 0; c < h.tables; ++c) paintMap(maps + c * kEntries, interp, levels[c], values[c], nLevels[c]);
    h.sameMaps = 1;
    for (int c = 1; c < h.tables; ++c)
        if (std::memcmp(maps, maps + c * kEntries, kEntries * sizeof(T)) != 0) h.sameMaps = 0;
    std::memcpy(pSpec, &h, sizeof h);
    return kroStsOk;
}

KroStatus init32f(int interp, int layout, KroiSize roi, const Kro32f* values[], const Kro32f* levels[],
                  const int nLevels[], KroiLUTSpec* pSpec)
{
    KROI_CHECK(initChecks<Kro32f>(interp, layout, roi, values, levels, nLevels, pSpec));
    Head h{};
    h.kind = kindId(kro32f, layout, interp);
    h.interp = interp;
    h.tables = tablesOf(layout);
    h.dataOffset = tableOffset(pSpec);
    uint64_t at = h.dataOffset;
    char* base = reinterpret_cast<char*>(pSpec);
    for (int c = 0; c < h.tables; ++c) {
        const int n = nLevels[c];
        h.count[c] = n;
        h.chanOffset[c] = at;
        std::memcpy(base + at, levels[c], sizeof(float) * n);
        std::memcpy(base + at + sizeof(float) * n, values[c], sizeof(float) * n);
        at += 8 * uint64_t(n);
        bool up = true;
        for (int k = 0; k < n && up; ++k) up = levels[c][k] == levels[c][k] && (k == 0 || levels[c][k - 1] <= levels[c][k]);
        h.ascending[c] = up;
    }
    std::memcpy(pSpec, &h, sizeof h);
    return kroStsOk;
}

// ---- mapping -----------------------------------------------------------------------------------

template <class T>
constexpr int typeCode()
{
    if constexpr (std::is_same_v<T, Kro8u>) return kro8u;
    else if constexpr (std::is_same_v<T, Kro16u>) return kro16u;
    else if constexpr (std::is_same_v<T, Kro16s>) return kro16s;
    else return kro32f;
}

constexpr int layoutOf(int c, int w) { return c == 1 ? kC1 : c == 3 ? kC3 : w == 3 ? kAC4 : kC4; }

KroStatus kindFor(const KroiLUTSpec* spec, int type, int layout)
{
    uint32_t kind;
    std::memcpy(&kind, spec, sizeof kind);
    for (int interp : {kNearest, kLinear, kCubic})
        if (kind == kindId(type, layout, interp)) return kroStsOk;
    return kroStsBadArgumentErr;
}

// One map for every element.  Four copies of the map widened to 32 bits, copy k shifted to
// byte k, let four looked-up bytes join with three ORs and no shifts; building them costs
// about as much as mapping 4 KiB, so short rows use the byte map directly.
struct WideMap8u {
    uint32_t t[4][256];
    explicit WideMap8u(const Kro8u* m)
    {
        for (int v = 0; v < 256; ++v)
            for (int k = 0; k < 4; ++k) t[k][v] = uint32_t(m[v]) << (8 * k);
    }
    uint32_t word(uint32_t s) const { return t[0][s & 255] | t[1][(s >> 8) & 255] | t[2][(s >> 16) & 255] | t[3][s >> 24]; }
};

void map8uSame(const Kro8u* s, Kro8u* d, long n, const Kro8u* m, const WideMap8u* w)
{
    long i = 0;
    if (w) {
        for (; i + 16 <= n; i += 16) {
            uint32_t a[4];
            std::memcpy(a, s + i, 16);
            const uint32_t r[4] = {w->word(a[0]), w->word(a[1]), w->word(a[2]), w->word(a[3])};
            std::memcpy(d + i, r, 16);
        }
    }
    for (; i < n; ++i) d[i] = m[s[i]];
}

// The plain definition: channel c of every pixel through map c.
template <class T, int C, int W>
void mapInt(const T* s, T* d, long n, const T* maps)
{
    using Key = std::make_unsigned_t<T>;
    constexpr std::size_t kEntries = std::size_t(1) << (8 * sizeof(T));
    for (long p = 0; p < n; ++p)
        for (int c = 0; c < W; ++c) d[p * C + c] = maps[c * kEntries + Key(s[p * C + c])];
}

// One 32f channel: the last interval that holds v, or v itself.
struct Chan32f {
    const float* lv;
    const float* val;
    int n;
    bool ascending;
    int interp;

    float operator()(float v) const
    {
        if (ascending) {
            if (!(v >= lv[0] && v < lv[n - 1])) return v;  // NaN too
            const int k = int(std::upper_bound(lv, lv + n, v) - lv) - 1;
            return evalFloat(interp, lv, val, n, k, v);
        }
        for (int k = n - 2; k >= 0; --k)
            if (lv[k] < lv[k + 1] && lv[k] <= v && v < lv[k + 1]) return evalFloat(interp, lv, val, n, k, v);
        return v;
    }
};

template <int C, int W>
void map32f(const float* s, float* d, long n, const Chan32f* ch)
{
    for (long p = 0; p < n; ++p)
        for (int c = 0; c < W; ++c) d[p * C + c] = ch[c](s[p * C + c]);
}

}  // namespace

KroStatus lutGetSize(int interpolation, KroDataType dataType, int channels, KroiSize roiSize, const int nLevels[],
                     int* pSpecSize)
{
    KROI_CHECK(check::pointers(nLevels, pSpecSize));
    KROI_CHECK(check::roi(roiSize));
    KROI_CHECK(levelCounts(channels, nLevels));
    KROI_CHECK(layoutCode(channels));
    if (dataType != kro8u && dataType != kro16u && dataType != kro16s && dataType != kro32f)
        return kroStsBadDataTypeErr;
    KROI_CHECK(interpCode(interpolation));
    const int64_t bytes = specBytes(dataType, channels, nLevels);
    if (bytes > std::numeric_limits<int>::max()) return kroStsBadSizeErr;
    *pSpecSize = int(bytes);
    return kroStsOk;
}

KroStatus lutInit8u(int interpolation, int channels, KroiSize roiSize, const Kro32s* pValues[],
                    const Kro32s* pLevels[], const int nLevels[], KroiLUTSpec* pSpec)
{
    return initInt<Kro8u>(interpolation, channels, roiSize, pValues, pLevels, nLevels, pSpec);
}
KroStatus lutInit16u(int interpolation, int channels, KroiSize roiSize, const Kro32s* pValues[],
                     const Kro32s* pLevels[], const int nLevels[], KroiLUTSpec* pSpec)
{
    return initInt<Kro16u>(interpolation, channels, roiSize, pValues, pLevels, nLevels, pSpec);
}
KroStatus lutInit16s(int interpolation, int channels, KroiSize roiSize, const Kro32s* pValues[],
                     const Kro32s* pLevels[], const int nLevels[], KroiLUTSpec* pSpec)
{
    return initInt<Kro16s>(interpolation, channels, roiSize, pValues, pLevels, nLevels, pSpec);
}
KroStatus lutInit32f(int interpolation, int channels, KroiSize roiSize, const Kro32f* pValues[],
                     const Kro32f* pLevels[], const int nLevels[], KroiLUTSpec* pSpec)
{
    return init32f(interpolation, channels, roiSize, pValues, pLevels, nLevels, pSpec);
}

// C elements per pixel, the first W of them mapped.
template <class T, int C, int W>
KroStatus lutMap(const T* pSrc, int srcStep, T* pDst, int dstStep, KroiSize roiSize, const KroiLUTSpec* pSpec)
{
    KROI_CHECK(check::pointers(pSrc, pDst, pSpec));
    KROI_CHECK(check::steps(srcStep, dstStep));
    KROI_CHECK(check::roi(roiSize));
    KROI_CHECK(kindFor(pSpec, typeCode<T>(), layoutOf(C, W)));
    Head h;
    std::memcpy(&h, pSpec, sizeof h);
    const char* base = reinterpret_cast<const char*>(pSpec);
    const auto S = rows::image(pSrc, srcStep);
    const auto D = rows::image(pDst, dstStep);
    const std::ptrdiff_t rowBytes = std::ptrdiff_t(roiSize.width) * C * sizeof(T);
    const bool merged = rows::merged(rowBytes, S, D);
    const long width = merged ? long(roiSize.width) * roiSize.height : roiSize.width;
    const int height = merged ? 1 : roiSize.height;
    if constexpr (std::is_same_v<T, Kro32f>) {
        Chan32f ch[4];
        for (int c = 0; c < W; ++c) {
            const float* lv = reinterpret_cast<const float*>(base + h.chanOffset[c]);
            ch[c] = {lv, lv + h.count[c], h.count[c], h.ascending[c] != 0, h.interp};
        }
        for (int y = 0; y < height; ++y) map32f<C, W>(S.row(y), D.row(y), width, ch);
    } else {
        const T* maps = reinterpret_cast<const T*>(base + h.dataOffset);
        if constexpr (std::is_same_v<T, Kro8u> && C == W) {
            if (h.sameMaps) {
                const bool wide = int64_t(roiSize.width) * roiSize.height * C >= 16384;
                alignas(64) unsigned char store[sizeof(WideMap8u)];
                const WideMap8u* w = wide ? new (store) WideMap8u(maps) : nullptr;
                for (int y = 0; y < height; ++y) map8uSame(S.row(y), D.row(y), width * C, maps, w);
                return kroStsOk;
            }
        }
        for (int y = 0; y < height; ++y) mapInt<T, C, W>(S.row(y), D.row(y), width, maps);
    }
    return kroStsOk;
}

template <class T, int C, int W>
KroStatus lutMapI(T* pSrcDst, int srcDstStep, KroiSize roiSize, const KroiLUTSpec* pSpec)
{
    return lutMap<T, C, W>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, pSpec);
}

}  // namespace KROI_TIER::tone

#define KROI_EXPORT KROI_BIND
KROI_BIND_LIST {
#include "tone/lut.exports.inc"
}
#undef KROI_EXPORT
