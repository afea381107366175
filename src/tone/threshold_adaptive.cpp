// Adaptive thresholds of 8u images: each pixel against the mean of the square window centred
// on it (box) or against its Gaussian-weighted mean, less a delta.
//
// Both walk the image once, top to bottom.  A ring of m rows in the work buffer holds the
// window's rows widened by the border (fetched with the border rules of the filters), so that
// every pixel is read from the caller's image once, before any row that needs it is written:
// the same walk serves separate images and in-place calls.  The box form keeps integer column
// sums that move down by one row at a time and compares without dividing, A * source against
// the window sum S less ceil(A * delta), which is exact for any mask; the Gaussian form
// convolves the ring's rows vertically and then horizontally in single precision.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>

#include <emmintrin.h>

#include "filter/border_rules.hpp"
#include "frame/base.hpp"
#include "frame/bind.hpp"
#include "frame/check.hpp"
#include "frame/rows.hpp"

namespace KROI_TIER::tone {

namespace {

constexpr std::uint32_t kGaussTag = 0x4B61738E;

// The accepted border codes: replicate or constant with any in-memory flags, or every side in
// memory (0xF0 exactly); the mirror is not offered here.
constexpr KroStatus borderCode(KroiBorderMode code)
{
    if (code > 255) return kroStsBadBorderErr;
    if (code == kroBorderInMem) return kroStsOk;
    const unsigned m = code & 15u;
    return (m == kroBorderReplicate || m == kroBorderConstant) ? kroStsOk : kroStsBadBorderErr;
}

constexpr KroStatus squareOddMask(KroiSize mask)
{
    return (mask.width != mask.height || mask.width < 1 || !(mask.width & 1)) ? kroStsBadMaskErr : kroStsOk;
}

// Size of the work buffer, products taken modulo 2^32 as unsigned arithmetic does.
std::uint32_t bufferBytes(KroiSize roi, int maskWidth)
{
    const std::uint32_t w = std::uint32_t(roi.width), h = std::uint32_t(roi.height), m = std::uint32_t(maskWidth);
    const std::uint32_t r = m / 2;
    const std::uint32_t base = (((w + m + 30) & ~31u) * m + ((4 * w + 31) & ~31u) * (m + 1) + 8 * m + 31) & ~31u;
    if (m <= w && m <= h) {
        const std::uint32_t edges = ((r * w + 31) / 32 + (r * h + 31) / 32) * 64;
        return edges + (((std::max(w, h) + 2 * r) * 3 * r + 31) & ~31u) + base;
    }
    return (((m + w - 1) * (m + h - 1) + 31) & ~31u) + base;
}

// ---- the walk --------------------------------------------------------------------------------

// The image walk shared by both forms.  Acc gets the ring and writes one output row:
//   acc.start(ring, widened)       once the first m rows are in the ring,
//   acc.row(ring, top, src, d)     for each output row: top is the ring slot of the window's
//                                  first row, src the row's own pixels, d its output,
//   acc.retire(row), acc.admit(row) around the replacement of the window's oldest row.
template <class Acc>
void walk(const Kro8u* src, std::ptrdiff_t ss, Kro8u* dst, std::ptrdiff_t ds, KroiSize roi, int m,
          KroiBorderMode code, const Kro8u* value, Kro8u* buffer, Acc& acc)
{
    const border::Frame f = border::frame(code, {m, m});
    const border::Rows<Kro8u, 1> rows{src, ss, roi.width, roi.height, f, value};
    const int r = m / 2;
    const std::ptrdiff_t wide = std::ptrdiff_t(roi.width) + m - 1;
    Kro8u* ring = buffer;
    auto slot = [&](std::int64_t v) { return ring + ((v + r) % m) * wide; };
    for (std::int64_t v = -r; v <= r; ++v) rows.fetchRow(v, slot(v));
    acc.start(ring, wide);
    for (int y = 0; y < roi.height; ++y) {
        acc.row(ring, y % m, slot(y) + r,
                reinterpret_cast<Kro8u*>(reinterpret_cast<char*>(dst) + y * ds));
        if (y + 1 == roi.height) break;
        Kro8u* s = slot(y - r);
        acc.retire(s);
        rows.fetchRow(y + r + 1, s);
        acc.admit(s);
    }
}

// Where the accumulator's arrays start: after the ring, on 16 bytes.
inline __m128i load16(const void* p) { return _mm_loadu_si128(static_cast<const __m128i*>(p)); }

inline void* after(Kro8u* buffer, int m, int width)
{
    const std::uintptr_t p = reinterpret_cast<std::uintptr_t>(buffer + std::ptrdiff_t(m) * (width + m - 1));
    return reinterpret_cast<void*>((p + 15) & ~std::uintptr_t(15));
}

// ---- box -------------------------------------------------------------------------------------

// ceil(A * delta), the product in single precision: truncated toward zero, plus one when
// positive and not whole.  |delta| < 255 here, so the result fits comfortably.
std::int64_t ceilAreaDelta(std::int64_t area, float delta)
{
    const float p = float(area) * delta;
    const std::int64_t t = std::int64_t(p);
    return t + (p > 0 && float(t) != p ? 1 : 0);
}

// col[x] += row[x] (kAdd) or -= row[x], n entries.
template <bool kAdd>
void accumulate(std::uint32_t* col, const Kro8u* row, std::ptrdiff_t n)
{
    const __m128i z = _mm_setzero_si128();
    std::ptrdiff_t x = 0;
    for (; x + 16 <= n; x += 16) {
        const __m128i v = load16(row + x);
        const __m128i lo = _mm_unpacklo_epi8(v, z), hi = _mm_unpackhi_epi8(v, z);
        const __m128i q[4] = {_mm_unpacklo_epi16(lo, z), _mm_unpackhi_epi16(lo, z), _mm_unpacklo_epi16(hi, z),
                              _mm_unpackhi_epi16(hi, z)};
        for (int j = 0; j < 4; ++j) {
            auto* c = reinterpret_cast<__m128i*>(col + x + 4 * j);
            const __m128i a = _mm_loadu_si128(c);
            _mm_storeu_si128(c, kAdd ? _mm_add_epi32(a, q[j]) : _mm_sub_epi32(a, q[j]));
        }
    }
    for (; x < n; ++x) col[x] = kAdd ? col[x] + row[x] : col[x] - row[x];
}

struct BoxAcc {
    std::int64_t area, bias; // the pixel is above when area * source + bias > window sum
    Kro8u above, other;
    int m, width;
    std::uint32_t* col;      // column sums of the ring's rows, widened width

    void start(const Kro8u* ring, std::ptrdiff_t wide)
    {
        std::memset(col, 0, sizeof(std::uint32_t) * std::size_t(wide));
        for (int k = 0; k < m; ++k) accumulate<true>(col, ring + k * wide, wide);
    }
    void retire(const Kro8u* old) { accumulate<false>(col, old, std::ptrdiff_t(width) + m - 1); }
    void admit(const Kro8u* fresh) { accumulate<true>(col, fresh, std::ptrdiff_t(width) + m - 1); }

    // Pixels x.. of the row one by one, the window sum sliding along; 64 bits hold it for any
    // mask.
    void rowScalar(const Kro8u* s, Kro8u* d, int x) const
    {
        std::int64_t sum = 0;
        for (int k = 0; k < m; ++k) sum += col[x + k];
        for (; x < width; ++x) {
            d[x] = area * s[x] + bias > sum ? above : other;
            if (x + 1 < width) sum += std::int64_t(col[x + m]) - col[x];
        }
    }

    // Four pixels at a time while every quantity fits 32 bits (masks up to 2047: the sum and
    // both sides of the comparison stay below 2^31).  The window sums of four neighbours move
    // on by four with the differences D[i] = col[i + m] - col[i]: lane j gains D[x + j] ..
    // D[x + j + 3], a suffix sum of this group of differences plus a prefix sum of the next.
    void row(const Kro8u*, int, const Kro8u* s, Kro8u* d) const
    {
        if (m > 2047 || width < 9) return rowScalar(s, d, 0);
        const auto* c = reinterpret_cast<const std::int32_t*>(col);
        std::int32_t first[4] = {};
        for (int j = 0; j < 4; ++j)
            for (int k = 0; k < m; ++k) first[j] += c[j + k];
        __m128i sum = _mm_loadu_si128(reinterpret_cast<const __m128i*>(first));
        auto diff = [&](int x) {
            return _mm_sub_epi32(_mm_loadu_si128(reinterpret_cast<const __m128i*>(c + x + m)),
                                 _mm_loadu_si128(reinterpret_cast<const __m128i*>(c + x)));
        };
        const __m128i a = _mm_set1_epi32(std::int32_t(area)), b = _mm_set1_epi32(std::int32_t(bias));
        const __m128i hi = _mm_set1_epi8(char(above)), lo = _mm_set1_epi8(char(other)), z = _mm_setzero_si128();
        __m128i dv = diff(0);
        int x = 0;
        for (; x + 9 <= width; x += 4) {
            int v;
            std::memcpy(&v, s + x, 4);
            const __m128i px = _mm_unpacklo_epi16(_mm_unpacklo_epi8(_mm_cvtsi32_si128(v), z), z);
            const __m128i even = _mm_mul_epu32(px, a), odd = _mm_mul_epu32(_mm_srli_epi64(px, 32), a);
            const __m128i prod = _mm_unpacklo_epi32(_mm_shuffle_epi32(even, 0x08), _mm_shuffle_epi32(odd, 0x08));
            __m128i mask = _mm_cmpgt_epi32(_mm_add_epi32(prod, b), sum);
            mask = _mm_packs_epi16(_mm_packs_epi32(mask, mask), mask);
            const int out = _mm_cvtsi128_si32(_mm_or_si128(_mm_and_si128(mask, hi), _mm_andnot_si128(mask, lo)));
            std::memcpy(d + x, &out, 4);
            const __m128i next = diff(x + 4);
            __m128i suffix = _mm_add_epi32(dv, _mm_srli_si128(dv, 4));
            suffix = _mm_add_epi32(suffix, _mm_srli_si128(suffix, 8));
            __m128i prefix = _mm_slli_si128(next, 4);
            prefix = _mm_add_epi32(prefix, _mm_slli_si128(prefix, 4));
            prefix = _mm_add_epi32(prefix, _mm_slli_si128(prefix, 8));
            sum = _mm_add_epi32(sum, _mm_add_epi32(suffix, prefix));
            dv = next;
        }
        rowScalar(s, d, x);
    }
};

// ---- Gaussian --------------------------------------------------------------------------------

struct GaussAcc {
    const float* g;          // m coefficients
    float delta;
    Kro8u above, other;
    int m, width;
    float* col;              // the vertical pass of the current row, widened width

    void start(const Kro8u*, std::ptrdiff_t) {}
    void retire(const Kro8u*) {}
    void admit(const Kro8u*) {}
    // top: the ring slot of the window's first row.  Sums run over k ascending in both
    // passes, lane by lane the same as the scalar order.
    void row(const Kro8u* ring, int top, const Kro8u* s, Kro8u* d) const
    {
        const std::ptrdiff_t wide = std::ptrdiff_t(width) + m - 1;
        const __m128i z = _mm_setzero_si128();
        std::ptrdiff_t x = 0;
        for (; x + 16 <= wide; x += 16) {
            __m128 a0 = _mm_setzero_ps(), a1 = a0, a2 = a0, a3 = a0;
            for (int k = 0, t = top; k < m; ++k, t = t + 1 == m ? 0 : t + 1) {
                const __m128i v = load16(ring + t * wide + x);
                const __m128i lo = _mm_unpacklo_epi8(v, z), hi = _mm_unpackhi_epi8(v, z);
                const __m128 gk = _mm_set1_ps(g[k]);
                a0 = _mm_add_ps(a0, _mm_mul_ps(gk, _mm_cvtepi32_ps(_mm_unpacklo_epi16(lo, z))));
                a1 = _mm_add_ps(a1, _mm_mul_ps(gk, _mm_cvtepi32_ps(_mm_unpackhi_epi16(lo, z))));
                a2 = _mm_add_ps(a2, _mm_mul_ps(gk, _mm_cvtepi32_ps(_mm_unpacklo_epi16(hi, z))));
                a3 = _mm_add_ps(a3, _mm_mul_ps(gk, _mm_cvtepi32_ps(_mm_unpackhi_epi16(hi, z))));
            }
            _mm_storeu_ps(col + x, a0), _mm_storeu_ps(col + x + 4, a1);
            _mm_storeu_ps(col + x + 8, a2), _mm_storeu_ps(col + x + 12, a3);
        }
        for (; x < wide; ++x) {
            float a = 0;
            for (int k = 0; k < m; ++k) a = a + g[k] * float(ring[((top + k) % m) * wide + x]);
            col[x] = a;
        }
        // Sixteen outputs per turn: four independent sums hide the latency of the additions.
        const __m128 dv = _mm_set1_ps(delta);
        const __m128i hi = _mm_set1_epi8(char(above)), lo = _mm_set1_epi8(char(other));
        int i = 0;
        for (; i + 16 <= width; i += 16) {
            __m128 a0 = _mm_setzero_ps(), a1 = a0, a2 = a0, a3 = a0;
            for (int k = 0; k < m; ++k) {
                const __m128 gk = _mm_set1_ps(g[k]);
                a0 = _mm_add_ps(a0, _mm_mul_ps(gk, _mm_loadu_ps(col + i + k)));
                a1 = _mm_add_ps(a1, _mm_mul_ps(gk, _mm_loadu_ps(col + i + k + 4)));
                a2 = _mm_add_ps(a2, _mm_mul_ps(gk, _mm_loadu_ps(col + i + k + 8)));
                a3 = _mm_add_ps(a3, _mm_mul_ps(gk, _mm_loadu_ps(col + i + k + 12)));
            }
            const __m128i v = load16(s + i);
            const __m128i vl = _mm_unpacklo_epi8(v, z), vh = _mm_unpackhi_epi8(v, z);
            auto gt = [&](__m128i px, __m128 mean) {
                return _mm_castps_si128(_mm_cmpgt_ps(_mm_cvtepi32_ps(px), _mm_sub_ps(mean, dv)));
            };
            const __m128i m01 = _mm_packs_epi32(gt(_mm_unpacklo_epi16(vl, z), a0), gt(_mm_unpackhi_epi16(vl, z), a1));
            const __m128i m23 = _mm_packs_epi32(gt(_mm_unpacklo_epi16(vh, z), a2), gt(_mm_unpackhi_epi16(vh, z), a3));
            const __m128i mask = _mm_packs_epi16(m01, m23);
            _mm_storeu_si128(reinterpret_cast<__m128i*>(d + i),
                             _mm_or_si128(_mm_and_si128(mask, hi), _mm_andnot_si128(mask, lo)));
        }
        for (; i < width; ++i) {
            float a = 0;
            for (int k = 0; k < m; ++k) a = a + g[k] * col[i + k];
            d[i] = float(s[i]) > a - delta ? above : other;
        }
    }
};

// Fills the destination for a delta that decides every pixel alone, without reading the
// source; false when the pixels must be compared.  A NaN delta makes every comparison false.
bool shortcut(Kro8u* dst, std::ptrdiff_t ds, KroiSize roi, float delta, Kro8u above, Kro8u other)
{
    Kro8u v;
    if (delta > 255.0f) v = above;
    else if (delta <= -255.0f || std::isnan(delta)) v = other;
    else return false;
    for (int y = 0; y < roi.height; ++y)
        std::memset(reinterpret_cast<char*>(dst) + y * ds, v, std::size_t(roi.width));
    return true;
}

// The Gaussian specification inside the caller's block: the first byte holds the offset (1
// to 8) to the structure, which starts at the first 8-byte boundary after the block start.
struct GaussSpec {
    std::uint32_t tag, one0, one1;
    std::int32_t maskWidth;
    float sigma;
    std::uint32_t pad;
    const float* coeffs;
};
static_assert(sizeof(GaussSpec) == 32);

inline std::size_t specOffset(const void* block)
{
    return 8 - (reinterpret_cast<std::uintptr_t>(block) & 7);
}

// The structure of a block, or null when the block is not a well-formed specification.
const GaussSpec* readSpec(const void* block)
{
    const auto* b = static_cast<const Kro8u*>(block);
    const std::size_t off = specOffset(block);
    if (b[0] != off) return nullptr;
    const auto* s = reinterpret_cast<const GaussSpec*>(b + off);
    if (s->tag != kGaussTag || s->one0 != 1 || s->one1 != 1 || s->maskWidth < 1 || !(s->maskWidth & 1) ||
        !s->coeffs)
        return nullptr;
    return s;
}

KroStatus queryChecks(KroiSize roi, KroiSize mask, KroDataType type, int channels)
{
    KROI_CHECK(check::roi(roi));
    KROI_CHECK(squareOddMask(mask));
    if (type != kro8u) return kroStsBadDataTypeErr;
    if (channels != 1) return kroStsBadChannelCountErr;
    return kroStsOk;
}

}  // namespace

// ---- API functions ---------------------------------------------------------------------------

KroStatus adaptiveBoxI(Kro8u* p, int step, KroiSize roi, KroiSize mask, Kro32f delta, Kro8u above, Kro8u other,
                       KroiBorderMode border, Kro8u value, Kro8u* buffer)
{
    KROI_CHECK(check::pointers(p, buffer));
    KROI_CHECK(check::roi(roi));
    KROI_CHECK(squareOddMask(mask));
    KROI_CHECK(borderCode(border));
    if (shortcut(p, step, roi, delta, above, other)) return kroStsOk;
    const std::int64_t area = std::int64_t(mask.width) * mask.width;
    BoxAcc acc{area, ceilAreaDelta(area, delta), above, other, mask.width, roi.width,
               static_cast<std::uint32_t*>(after(buffer, mask.width, roi.width))};
    walk(p, step, p, step, roi, mask.width, border, &value, buffer, acc);
    return kroStsOk;
}

// Identical images with identical steps are the in-place call, checks included.
KroStatus adaptiveBox(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roi, KroiSize mask,
                      Kro32f delta, Kro8u above, Kro8u other, KroiBorderMode border, Kro8u value, Kro8u* buffer)
{
    if (pSrc == pDst && srcStep == dstStep)
        return adaptiveBoxI(pDst, dstStep, roi, mask, delta, above, other, border, value, buffer);
    KROI_CHECK(check::pointers(pSrc, pDst, buffer));
    KROI_CHECK(check::roi(roi));
    KROI_CHECK(squareOddMask(mask));
    KROI_CHECK(borderCode(border));
    if (shortcut(pDst, dstStep, roi, delta, above, other)) return kroStsOk;
    const std::int64_t area = std::int64_t(mask.width) * mask.width;
    BoxAcc acc{area, ceilAreaDelta(area, delta), above, other, mask.width, roi.width,
               static_cast<std::uint32_t*>(after(buffer, mask.width, roi.width))};
    walk(pSrc, srcStep, pDst, dstStep, roi, mask.width, border, &value, buffer, acc);
    return kroStsOk;
}

KroStatus adaptiveGaussI(Kro8u* p, int step, KroiSize roi, Kro32f delta, Kro8u above, Kro8u other,
                         KroiBorderMode border, Kro8u value, const KroiThresholdAdaptiveGaussSpec* pSpec,
                         Kro8u* buffer)
{
    KROI_CHECK(check::pointers(p, pSpec, buffer));
    KROI_CHECK(check::roi(roi));
    KROI_CHECK(borderCode(border));
    const GaussSpec* spec = readSpec(pSpec);
    if (!spec) return kroStsWrongTagErr;
    if (shortcut(p, step, roi, delta, above, other)) return kroStsOk;
    const int m = spec->maskWidth;
    GaussAcc acc{spec->coeffs, delta, above, other, m, roi.width, static_cast<float*>(after(buffer, m, roi.width))};
    walk(p, step, p, step, roi, m, border, &value, buffer, acc);
    return kroStsOk;
}

KroStatus adaptiveGauss(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roi, Kro32f delta,
                        Kro8u above, Kro8u other, KroiBorderMode border, Kro8u value,
                        const KroiThresholdAdaptiveGaussSpec* pSpec, Kro8u* buffer)
{
    if (pSrc == pDst && srcStep == dstStep)
        return adaptiveGaussI(pDst, dstStep, roi, delta, above, other, border, value, pSpec, buffer);
    KROI_CHECK(check::pointers(pSrc, pDst, pSpec, buffer));
    KROI_CHECK(check::roi(roi));
    KROI_CHECK(borderCode(border));
    const GaussSpec* spec = readSpec(pSpec);
    if (!spec) return kroStsWrongTagErr;
    if (shortcut(pDst, dstStep, roi, delta, above, other)) return kroStsOk;
    const int m = spec->maskWidth;
    GaussAcc acc{spec->coeffs, delta, above, other, m, roi.width, static_cast<float*>(after(buffer, m, roi.width))};
    walk(pSrc, srcStep, pDst, dstStep, roi, m, border, &value, buffer, acc);
    return kroStsOk;
}

KroStatus adaptiveBoxBufferSize(KroiSize roi, KroiSize mask, KroDataType type, int channels, int* pSize)
{
    KROI_CHECK(check::pointers(pSize));
    KROI_CHECK(queryChecks(roi, mask, type, channels));
    *pSize = int(bufferBytes(roi, mask.width));
    return kroStsOk;
}

KroStatus adaptiveGaussBufferSize(KroiSize roi, KroiSize mask, KroDataType type, int channels, int* pSpecSize,
                                  int* pSize)
{
    KROI_CHECK(check::pointers(pSpecSize));
    KROI_CHECK(check::pointers(pSize));
    KROI_CHECK(queryChecks(roi, mask, type, channels));
    *pSize = int(bufferBytes(roi, mask.width));
    *pSpecSize = 4 * mask.width + 40;
    return kroStsOk;
}

KroStatus adaptiveGaussInit(KroiSize roi, KroiSize mask, KroDataType type, int channels,
                            KroiThresholdAdaptiveGaussSpec* pSpec, Kro32f sigma)
{
    KROI_CHECK(check::pointers(pSpec));
    KROI_CHECK(queryChecks(roi, mask, type, channels));
    const int m = mask.width, r = m / 2;
    if (sigma <= 0) sigma = (float(m - 1) * 0.5f - 1.0f) * 0.3f + 0.8f;
    auto* b = reinterpret_cast<Kro8u*>(pSpec);
    const std::size_t off = specOffset(b);
    b[0] = Kro8u(off);
    float* coeffs = reinterpret_cast<float*>(b + off + sizeof(GaussSpec));
    float sum = 0;
    for (int k = -r; k <= r; ++k) {
        const float e = std::exp(-float(std::int64_t(k) * k) / (2.0f * sigma * sigma));
        coeffs[k + r] = e;
        sum += e;
    }
    const float scale = 1.0f / sum;
    for (int i = 0; i < m; ++i) coeffs[i] *= scale;
    const GaussSpec s{kGaussTag, 1, 1, m, sigma, 0, coeffs};
    std::memcpy(b + off, &s, sizeof s);
    return kroStsOk;
}

}  // namespace KROI_TIER::tone

#define KROI_EXPORT KROI_BIND
KROI_BIND_LIST {
#include "tone/threshold_adaptive.exports.inc"
}
#undef KROI_EXPORT
