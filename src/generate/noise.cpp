// Additive noise in place: kroiAddRandUniform and kroiAddRandGauss for 8u, 8s, 16u, 16s, 32f
// in C1, C3, C4 and AC4.
//
// The written elements of the ROI are numbered in row-major order (three per AC4 pixel) from
// 0; element e gets noise from samples of the caller's state (random_lanes.hpp): sample e + 1
// for uniform noise, the pair of samples 2 (e / 2) + 1, 2 (e / 2) + 2 for Gaussian noise (the
// cosine part for even e, the sine part for odd e).  Each row makes its noise a block at a
// time into a small buffer, then adds it: in single precision, pixel + noise, clamped to the
// type's range and rounded to nearest with ties to even for the integer types.
#include <cstring>
#include <limits>

#include "frame/bind.hpp"
#include "frame/check.hpp"
#include "frame/fpround.hpp"
#include "frame/rows.hpp"
#include "generate/random_lanes.hpp"

namespace KROI_TIER::generate {
namespace {

constexpr int kBlock = 256; // elements of noise made at a time

// ---- the noise of elements [e, e + n), n <= kBlock, into out ----------------------------------

struct Uniform {
    uint32_t s;
    __m128 low, range;
    Uniform(uint32_t seed, float lo, float hi) : s(seed), low(_mm_set1_ps(lo)), range(_mm_set1_ps(hi - lo)) {}
    void block(uint32_t e, int n, float* out) const
    {
        for (int i = 0; i < n; i += 4) _mm_storeu_ps(out + i, uniform4(samples4(s, e + uint32_t(i) + 1, 1), low, range));
    }
    static uint32_t samplesFor(uint64_t elements) { return uint32_t(elements); }
};

struct Gauss {
    uint32_t s;
    __m128 mean, sd;
    Gauss(uint32_t seed, float m, float d) : s(seed), mean(_mm_set1_ps(m)), sd(_mm_set1_ps(d)) {}
    void block(uint32_t e, int n, float* out) const
    {
        alignas(16) float pairs[kBlock + 8];
        const int skip = int(e & 1);
        uint32_t p = e >> 1;
        for (int made = 0; made < n + skip; made += 8, p += 4) {
            __m128 c, sn;
            gauss4(samples4(s, 2 * p + 1, 2), samples4(s, 2 * p + 2, 2), &c, &sn);
            c = _mm_add_ps(mean, _mm_mul_ps(sd, c));
            sn = _mm_add_ps(mean, _mm_mul_ps(sd, sn));
            _mm_store_ps(pairs + made, _mm_unpacklo_ps(c, sn));
            _mm_store_ps(pairs + made + 4, _mm_unpackhi_ps(c, sn));
        }
        std::memcpy(out, pairs + skip, std::size_t(n) * sizeof(float));
    }
    static uint32_t samplesFor(uint64_t elements) { return uint32_t(2 * ((elements + 1) / 2)); }
};

// ---- adding it ----------------------------------------------------------------------------------------

// x + n in single precision; integers clamped to their range (a NaN sum gives the minimum, as
// maxps gives its second operand) and rounded to nearest, ties to even.
template <class T>
inline T addOne(T x, float n)
{
    const float r = float(x) + n;
    if constexpr (std::is_same_v<T, Kro32f>) {
        return r;
    } else {
        constexpr float lo = float(std::numeric_limits<T>::min()), hi = float(std::numeric_limits<T>::max());
        const float c = _mm_cvtss_f32(_mm_min_ss(_mm_max_ss(_mm_set_ss(r), _mm_set_ss(lo)), _mm_set_ss(hi)));
        return T(_mm_cvtss_si32(_mm_set_ss(c)));
    }
}

// Four int32 lanes of x plus four of noise, clamped, rounded.
template <class T>
inline __m128i addFour(__m128i x, const float* n)
{
    constexpr float lo = float(std::numeric_limits<T>::min()), hi = float(std::numeric_limits<T>::max());
    const __m128 r = _mm_add_ps(_mm_cvtepi32_ps(x), _mm_loadu_ps(n));
    return _mm_cvtps_epi32(_mm_min_ps(_mm_max_ps(r, _mm_set1_ps(lo)), _mm_set1_ps(hi)));
}

// count contiguous elements: 16 bytes at a time, the rest one by one.
template <class T>
void addElements(T* d, const float* n, int count)
{
    int i = 0;
    if constexpr (std::is_same_v<T, Kro32f>) {
        for (; i + 4 <= count; i += 4) _mm_storeu_ps(d + i, _mm_add_ps(_mm_loadu_ps(d + i), _mm_loadu_ps(n + i)));
    } else if constexpr (sizeof(T) == 1) {
        const __m128i z = _mm_setzero_si128();
        for (; i + 16 <= count; i += 16) {
            const __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(d + i));
            __m128i w[2];
            if constexpr (std::is_signed_v<T>) {
                w[0] = _mm_srai_epi16(_mm_unpacklo_epi8(v, v), 8);
                w[1] = _mm_srai_epi16(_mm_unpackhi_epi8(v, v), 8);
            } else {
                w[0] = _mm_unpacklo_epi8(v, z);
                w[1] = _mm_unpackhi_epi8(v, z);
            }
            __m128i h[2];
            for (int k = 0; k < 2; ++k) {
                const __m128i a = addFour<T>(_mm_srai_epi32(_mm_unpacklo_epi16(w[k], w[k]), 16), n + i + 8 * k);
                const __m128i b = addFour<T>(_mm_srai_epi32(_mm_unpackhi_epi16(w[k], w[k]), 16), n + i + 8 * k + 4);
                h[k] = _mm_packs_epi32(a, b);
            }
            const __m128i r = std::is_signed_v<T> ? _mm_packs_epi16(h[0], h[1]) : _mm_packus_epi16(h[0], h[1]);
            _mm_storeu_si128(reinterpret_cast<__m128i*>(d + i), r);
        }
    } else {
        const __m128i z = _mm_setzero_si128();
        for (; i + 8 <= count; i += 8) {
            const __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(d + i));
            __m128i a, b;
            if constexpr (std::is_signed_v<T>) {
                a = _mm_srai_epi32(_mm_unpacklo_epi16(v, v), 16);
                b = _mm_srai_epi32(_mm_unpackhi_epi16(v, v), 16);
            } else {
                a = _mm_unpacklo_epi16(v, z);
                b = _mm_unpackhi_epi16(v, z);
            }
            a = addFour<T>(a, n + i);
            b = addFour<T>(b, n + i + 4);
            __m128i r;
            if constexpr (std::is_signed_v<T>) {
                r = _mm_packs_epi32(a, b);
            } else { // no unsigned 32-to-16 pack before SSE4.1: shift down, pack signed, shift back
                const __m128i off = _mm_set1_epi32(32768);
                r = _mm_xor_si128(_mm_packs_epi32(_mm_sub_epi32(a, off), _mm_sub_epi32(b, off)), _mm_set1_epi16(short(0x8000)));
            }
            _mm_storeu_si128(reinterpret_cast<__m128i*>(d + i), r);
        }
    }
    for (; i < count; ++i) d[i] = addOne(d[i], n[i]);
}

// One row of `width` pixels whose first written element is number e.
template <class T, int kCh, int kElems, class Source>
void noiseRow(const Source& src, T* d, int width, uint32_t e)
{
    constexpr int kPixels = kBlock / kCh; // whole pixels per block
    alignas(16) float noise[kBlock + 4];
    for (int x = 0; x < width; x += kPixels) {
        const int pixels = width - x < kPixels ? width - x : kPixels;
        src.block(e, pixels * kCh, noise);
        T* p = d + std::ptrdiff_t(x) * kElems;
        if constexpr (kCh == kElems) {
            addElements(p, noise, pixels * kCh);
        } else {
            for (int i = 0; i < pixels; ++i)
                for (int c = 0; c < kCh; ++c) p[i * kElems + c] = addOne(p[i * kElems + c], noise[i * kCh + c]);
        }
        e += uint32_t(pixels * kCh);
    }
}

template <class T, int kCh, int kElems, class Source>
void addNoise(const Source& src, T* d, int step, KroiSize roi)
{
    const DefaultFloatScope env;
    const rows::Image<T> dst{d, step};
    const uint32_t perRow = uint32_t(uint64_t(roi.width) * kCh);
    for (int y = 0; y < roi.height; ++y) noiseRow<T, kCh, kElems>(src, dst.row(y), roi.width, uint32_t(y) * perRow);
}

}  // namespace

// ---- the API functions ----------------------------------------------------------------------------------

template <class T, int kCh, int kElems>
KroStatus uniform(T* pSrcDst, int srcDstStep, KroiSize roi, float low, float high, unsigned int* pSeed)
{
    KROI_CHECK(check::pointers(pSrcDst, pSeed));
    KROI_CHECK(check::roi(roi));
    if (!(low < high)) return kroStsBadRangeErr;
    addNoise<T, kCh, kElems>(Uniform(*pSeed, low, high), pSrcDst, srcDstStep, roi);
    *pSeed += Uniform::samplesFor(uint64_t(roi.width) * uint64_t(roi.height) * kCh) * kWeyl;
    return kroStsOk;
}

template <class T, int kCh, int kElems>
KroStatus gauss(T* pSrcDst, int srcDstStep, KroiSize roi, float mean, float stdDev, unsigned int* pSeed)
{
    KROI_CHECK(check::pointers(pSrcDst, pSeed));
    KROI_CHECK(check::roi(roi));
    if (!(stdDev >= 0.0f)) return kroStsNegativeNoiseErr;
    addNoise<T, kCh, kElems>(Gauss(*pSeed, mean, stdDev), pSrcDst, srcDstStep, roi);
    *pSeed += Gauss::samplesFor(uint64_t(roi.width) * uint64_t(roi.height) * kCh) * kWeyl;
    return kroStsOk;
}

}  // namespace KROI_TIER::generate

namespace generate = KROI_TIER::generate;

#define KROI_EXPORT KROI_BIND
KROI_BIND_LIST {
#include "generate/noise.exports.inc"
}
#undef KROI_EXPORT
