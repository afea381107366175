// The Gaussian filter: its buffer and specification query, the initialiser that fills the
// caller's specification with the kernel, and kroiFilterGaussianBorder for every type and
// layout.
//
// The kernel is separable and symmetric, m = 2r+1 single-precision coefficients c[0..m-1]
// that sum to exactly 1 (the centre is 1 minus the others).  Each output element follows
// one sequence of single-precision operations (written in the header), the vertical pass
// first into a float row over the widened columns, then the horizontal pass; the pairs
// of the symmetric kernel are added before they are multiplied, which halves the products.
#include <cmath>

#include "filter/box_frame.hpp"
#include "filter/window_frame.hpp"
#include "frame/bind.hpp"
#include "frame/fpround.hpp"

namespace KROI_TIER::filter::gauss {

constexpr uint32_t kTag = 0x6B476175; // identifies an initialised specification

struct Spec {
    uint32_t tag;
    int32_t size; // m, odd
    int32_t type; // KroDataType
    int32_t channels;
    float sigma;
    float coef[1]; // m of them
};

// The caller's block holds the structure from its first 16-byte boundary.
inline Spec* specAt(void* p)
{
    return reinterpret_cast<Spec*>((reinterpret_cast<uintptr_t>(p) + 15) & ~uintptr_t(15));
}
inline int64_t specBytes(int m) { return 16 + int64_t(offsetof(Spec, coef)) + 4 * int64_t(m); }

inline bool kernelOk(int m) { return m >= 1 && (m & 1); }

// Bytes beyond the frame: the float row of the vertical pass, an output row for AC4, and
// for integer types m widened rows converted to float, a table of m row pointers, so that each
// source row is converted once rather than once per tap.
inline int64_t extraBytes(KroiSize roi, int m, int64_t e, int64_t n)
{
    const int64_t row = window::align64((int64_t(roi.width) + m - 1) * n * 4);
    return row + window::align64(int64_t(roi.width) * n * e) + (e == 4 ? 0 : m * row + window::align64(8 * int64_t(m)));
}

KroStatus getBufferSize(KroiSize roi, int kernelSize, KroDataType type, int channels, int* pSpecSize, int* pBufferSize)
{
    KROI_CHECK(check::pointers(pSpecSize, pBufferSize));
    const bool ok = kernelOk(kernelSize);
    int size = 0;
    KROI_CHECK(window::bufferSize(roi, {ok ? kernelSize : 1, ok ? kernelSize : 1}, ok, type, channels, &size,
                                  [&](int64_t e, int64_t n) { return extraBytes(roi, kernelSize, e, n); }));
    *pSpecSize = int(specBytes(kernelSize));
    *pBufferSize = size;
    return kroStsOk;
}

KroStatus init(KroiSize roi, int kernelSize, Kro32f sigma, KroDataType type, int channels, KroiFilterGaussianSpec* pSpec)
{
    KROI_CHECK(check::pointers(pSpec));
    KROI_CHECK(check::roi(roi));
    if (!kernelOk(kernelSize)) return kroStsBadMaskErr;
    if (window::elementSize(type) == 0) return kroStsBadDataTypeErr;
    if (channels != 1 && channels != 3 && channels != 4) return kroStsBadChannelCountErr;
    if (!std::isfinite(sigma)) return kroStsBadArgumentErr;
    const int m = kernelSize, r = m >> 1;
    if (sigma <= 0.0f) sigma = (float(m - 1) * 0.5f - 1.0f) * 0.3f + 0.8f;
    Spec* s = specAt(pSpec);
    const double d = 2.0 * double(sigma) * double(sigma);
    float sum = 0.0f;
    for (int k = 1; k <= r; ++k) {
        const float g = float(std::exp(-(double(k) * double(k)) / d));
        s->coef[r - k] = s->coef[r + k] = g;
    }
    float total = 1.0f; // the centre's value before normalising
    for (int i = 0; i < m; ++i) total = total + (i == r ? 0.0f : s->coef[i]);
    const float inv = 1.0f / total;
    for (int i = 0; i < m; ++i)
        if (i != r) {
            s->coef[i] = s->coef[i] * inv;
            sum = sum + s->coef[i];
        }
    s->coef[r] = 1.0f - sum;
    s->size = m;
    s->type = type;
    s->channels = channels;
    s->sigma = sigma;
    s->tag = kTag;
    return kroStsOk;
}

// ---- the passes ------------------------------------------------------------------------------

// A widened row of integers as floats (exact).
template <class T>
void toFloat(const T* in, float* out, int64_t n)
{
    int64_t i = 0;
    if constexpr (std::is_same_v<T, Kro8u>) {
        const __m128i z = _mm_setzero_si128();
        for (; i + 16 <= n; i += 16) {
            const __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(in + i));
            const __m128i lo = _mm_unpacklo_epi8(v, z), hi = _mm_unpackhi_epi8(v, z);
            _mm_storeu_ps(out + i, _mm_cvtepi32_ps(_mm_unpacklo_epi16(lo, z)));
            _mm_storeu_ps(out + i + 4, _mm_cvtepi32_ps(_mm_unpackhi_epi16(lo, z)));
            _mm_storeu_ps(out + i + 8, _mm_cvtepi32_ps(_mm_unpacklo_epi16(hi, z)));
            _mm_storeu_ps(out + i + 12, _mm_cvtepi32_ps(_mm_unpackhi_epi16(hi, z)));
        }
    } else {
        for (; i + 4 <= n; i += 4) _mm_storeu_ps(out + i, box::Vec<float>::in<T>(in + i));
    }
    for (; i < n; ++i) out[i] = float(in[i]);
}

// t[i] = c[r]*R[r][i] + sum over k = 1..r of c[r+k]*(R[r-k][i] + R[r+k][i]), k ascending.
template <class T>
void vertical(const T* const* rows, const float* c, int r, float* t, int64_t n)
{
    int64_t i = 0;
    for (; i + 4 <= n; i += 4) {
        __m128 acc = _mm_mul_ps(_mm_set1_ps(c[r]), box::Vec<float>::in<T>(rows[r] + i));
        for (int k = 1; k <= r; ++k) {
            const __m128 pair = _mm_add_ps(box::Vec<float>::in<T>(rows[r - k] + i), box::Vec<float>::in<T>(rows[r + k] + i));
            acc = _mm_add_ps(acc, _mm_mul_ps(_mm_set1_ps(c[r + k]), pair));
        }
        _mm_storeu_ps(t + i, acc);
    }
    for (; i < n; ++i) {
        float acc = c[r] * float(rows[r][i]);
        for (int k = 1; k <= r; ++k) acc = acc + c[r + k] * (float(rows[r - k][i]) + float(rows[r + k][i]));
        t[i] = acc;
    }
}

// The same along the row, elements C apart, into the pixel type: integers rounded to
// nearest with ties to even (the conversion under the rounding scope) and saturated.
template <class T, int C>
void horizontal(const float* t, const float* c, int r, T* d, int64_t n)
{
    auto at = [&](int64_t i) {
        __m128 acc = _mm_mul_ps(_mm_set1_ps(c[r]), _mm_loadu_ps(t + i + r * C));
        for (int k = 1; k <= r; ++k) {
            const __m128 pair = _mm_add_ps(_mm_loadu_ps(t + i + (r - k) * C), _mm_loadu_ps(t + i + (r + k) * C));
            acc = _mm_add_ps(acc, _mm_mul_ps(_mm_set1_ps(c[r + k]), pair));
        }
        return acc;
    };
    int64_t i = 0;
    if constexpr (std::is_same_v<T, Kro8u>) {
        for (; i + 16 <= n; i += 16) {
            const __m128i a = _mm_packs_epi32(_mm_cvtps_epi32(at(i)), _mm_cvtps_epi32(at(i + 4)));
            const __m128i b = _mm_packs_epi32(_mm_cvtps_epi32(at(i + 8)), _mm_cvtps_epi32(at(i + 12)));
            _mm_storeu_si128(reinterpret_cast<__m128i*>(d + i), _mm_packus_epi16(a, b));
        }
    }
    for (; i + 4 <= n; i += 4) {
        if constexpr (std::is_same_v<T, Kro32f>)
            _mm_storeu_ps(d + i, at(i));
        else
            box::store4(d + i, _mm_cvtps_epi32(at(i)));
    }
    for (; i < n; ++i) {
        float acc = c[r] * t[i + r * C];
        for (int k = 1; k <= r; ++k) acc = acc + c[r + k] * (t[i + (r - k) * C] + t[i + (r + k) * C]);
        if constexpr (std::is_same_v<T, Kro32f>)
            d[i] = acc;
        else
            d[i] = saturate<T>(_mm_cvtss_si32(_mm_set_ss(acc)));
    }
}

// kroiFilterGaussianBorder: pointers, steps, ROI, specification, border code, border value.
template <class T, int C, int WC>
KroStatus filterBorder(const T* pSrc, int srcStep, T* pDst, int dstStep, KroiSize roi, KroiBorderMode borderType,
                       const T* pBorderValue, const KroiFilterGaussianSpec* pSpec, Kro8u* pBuffer)
{
    KROI_CHECK(check::pointers(pSrc, pDst, pSpec, pBuffer));
    KROI_CHECK(window::checkStepsRoi(srcStep, dstStep, roi));
    const Spec* s = specAt(const_cast<KroiFilterGaussianSpec*>(pSpec));
    if (s->tag != kTag || s->type != window::dataType<T>() || s->channels != C) return kroStsWrongTagErr;
    KROI_CHECK(border::checkFilterMode(borderType));
    T pad[4] = {};
    KROI_CHECK((window::borderValue<T, WC>(borderType, pBorderValue, pad)));
    KROI_CHECK((window::checkWorkArea<T, C>(roi, KroiSize{s->size, s->size})));
    const int m = s->size, r = m >> 1;
    const KroiSize mask{m, m};
    const int64_t n = int64_t(roi.width) * C, wide = (int64_t(roi.width) + m - 1) * C;
    const int64_t rowBytes = window::align64(wide * 4);
    float* t = reinterpret_cast<float*>(window::extraArea<T, C>(pBuffer, roi, mask));
    T* whole = reinterpret_cast<T*>(reinterpret_cast<char*>(t) + rowBytes);
    float* ring = reinterpret_cast<float*>(reinterpret_cast<char*>(whole) + window::align64(n * int64_t(sizeof(T))));
    const float** table = reinterpret_cast<const float**>(reinterpret_cast<char*>(ring) + m * rowBytes);
    const RoundingScope nearest(RoundingScope::kNearest);
    window::run<T, C>(pSrc, srcStep, roi, mask, borderType, pad, pBuffer, [&](int64_t y, const T* const* rows) {
        if constexpr (std::is_same_v<T, Kro32f>) {
            vertical<T>(rows, s->coef, r, t, wide);
        } else {
            // Window row j of output row y is source row y-r+j: slot (y+j) mod m of the ring,
            // converted when it enters (all m of them for the first row).
            for (int j = y == 0 ? 0 : m - 1; j < m; ++j) toFloat(rows[j], ring + ((y + j) % m) * (rowBytes / 4), wide);
            for (int j = 0; j < m; ++j) table[j] = ring + ((y + j) % m) * (rowBytes / 4);
            vertical<float>(table, s->coef, r, t, wide);
        }
        T* d = C == WC ? window::rowAt(pDst, dstStep, y) : whole;
        horizontal<T, C>(t, s->coef, r, d, n);
        if constexpr (C != WC) {
            T* out = window::rowAt(pDst, dstStep, y);
            for (int64_t x = 0; x < roi.width; ++x)
                for (int c = 0; c < WC; ++c) out[x * C + c] = whole[x * C + c];
        }
    });
    return kroStsOk;
}

}  // namespace KROI_TIER::filter::gauss

#define KROI_EXPORT KROI_BIND
KROI_BIND_LIST {
#include "filter/gauss_filter.exports.inc"
}
#undef KROI_EXPORT
