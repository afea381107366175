// Copy and Set: the pixel layouts and the row kernels that copy.cpp, copy_channel.cpp and
// set.cpp share.
//
// The whole-image copies are byte copies (a C3 row of 16u is 6 x width bytes), so their
// kernels never see the element type.  The forms that leave channels alone (AC4, the masked
// forms) work per pixel, with a scalar body that is the definition and an SSE2 body over 16
// bytes that gives the same bytes.
#pragma once

#include <emmintrin.h>

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "frame/stream.hpp"
#include "frame/base.hpp"

namespace KROI_TIER::convert {

// Pixel layouts of the whole-image forms.  AC4 has four channels of which the fourth keeps
// its value.
enum Layout { C1, C3, C4, AC4 };

constexpr int channels(Layout l) { return l == C1 ? 1 : l == C3 ? 3 : 4; }
// Channels the operation reads and writes.
constexpr int written(Layout l) { return l == AC4 ? 3 : channels(l); }

template <class T>
inline const unsigned char* bytes(const T* p) { return reinterpret_cast<const unsigned char*>(p); }
template <class T>
inline unsigned char* bytes(T* p) { return reinterpret_cast<unsigned char*>(p); }

// The pattern of a pixel of C elements of type T whose element `channel` is all ones and
// the others zero: with it, the row kernels below write one channel, or (with channel 3 of
// four) keep the alpha channel.  Constant-evaluable, so that kernels can hold it as a table.
template <class T, int C>
constexpr stream::Pattern channelBytes(int channel)
{
    stream::Pattern p{};
    for (int i = 0; i < int(sizeof p.bytes); ++i)
        p.bytes[i] = (i % (C * int(sizeof(T)))) / int(sizeof(T)) == channel ? 0xFF : 0;
    return p;
}
// The complement: ones everywhere except on `channel`.
template <class T, int C>
constexpr stream::Pattern otherBytes(int channel)
{
    stream::Pattern p = channelBytes<T, C>(channel);
    for (unsigned char& b : p.bytes) b = static_cast<unsigned char>(~b);
    return p;
}

// The operation of the forms that leave some bytes alone (AC4 alpha, the other channels of
// the one-channel forms): byte i of a row becomes keep[i mod 48] ? d[i] : s[i], where s is
// a source row or a fill pattern.
struct KeepBytes {
    static unsigned char scalar(unsigned char s, unsigned char d, unsigned char keep) { return keep ? d : s; }
    static __m128i vec(__m128i s, __m128i d, __m128i keep)
    {
        return _mm_or_si128(_mm_andnot_si128(keep, s), _mm_and_si128(keep, d));
    }
};

// Row of n bytes: d[i] = KeepBytes(source byte, d[i], keep[i mod 48]), the source byte being
// s[i] of a source row or, FromPattern, s[i mod 48] of a fill pattern's bytes.
template <bool FromPattern>
inline void keepRow(const unsigned char* s, unsigned char* d, std::size_t n, const stream::Pattern& keep)
{
    const __m128i* k = reinterpret_cast<const __m128i*>(keep.bytes);
    std::size_t i = 0;
    for (int j = 0; i + 16 <= n; i += 16, j = j == 2 ? 0 : j + 1) {
        const __m128i a = _mm_loadu_si128(reinterpret_cast<const __m128i*>(s + (FromPattern ? 16 * j : i)));
        const __m128i b = _mm_loadu_si128(reinterpret_cast<const __m128i*>(d + i));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(d + i), KeepBytes::vec(a, b, _mm_load_si128(k + j)));
    }
    for (; i < n; ++i) d[i] = KeepBytes::scalar(s[FromPattern ? i % 48 : i], d[i], keep.bytes[i % 48]);
}

// Copies `height` rows of `rowBytes` bytes, with non-temporal stores when `streaming` (and
// the fence after them).
void copyRows(const unsigned char* s, std::ptrdiff_t srcStep, unsigned char* d, std::ptrdiff_t dstStep,
              std::size_t rowBytes, int height, bool streaming);

}  // namespace KROI_TIER::convert

namespace KROI_TIER::convert {

// ---- masked forms ----------------------------------------------------------------------
// Pixel x of a row is written where mask[x] is non-zero; its first written(L) elements
// take the source's (or the fill's) values, everything else stays as it was.

// Bytes per pixel of a layout.
template <class T, Layout L>
constexpr int pixelBytes = channels(L) * int(sizeof(T));
// Pixels whose size divides 16 get a vector body: 16 / B mask bytes cover one vector.
template <class T, Layout L>
constexpr bool kMaskVector = 16 % pixelBytes<T, L> == 0;

// The keep bytes of 16 / B pixels from their mask bytes: 0xFF across a pixel whose mask
// byte is zero, and across the alpha of AC4 pixels.
template <class T, Layout L>
inline __m128i maskKeep(const Kro8u* m, __m128i alpha)
{
    constexpr int B = pixelBytes<T, L>, n = 16 / B;
    __m128i k;
    if constexpr (n == 16) {
        k = _mm_loadu_si128(reinterpret_cast<const __m128i*>(m));
    } else {
        int64_t bits = 0;
        std::memcpy(&bits, m, n);
        k = _mm_cvtsi64_si128(bits);
    }
    k = _mm_cmpeq_epi8(k, _mm_setzero_si128());
    // Widen each mask byte across its pixel's B bytes.
    if constexpr (B >= 2) k = _mm_unpacklo_epi8(k, k);
    if constexpr (B >= 4) k = _mm_unpacklo_epi16(k, k);
    if constexpr (B >= 8) k = _mm_unpacklo_epi32(k, k);
    if constexpr (B >= 16) k = _mm_unpacklo_epi64(k, k);
    return L == AC4 ? _mm_or_si128(k, alpha) : k;
}

// One masked row.  `s` is a source row, or, when `fill` is given, ignored in favour of the
// fill pattern (whose period divides 48 and, for vector pixels, 16).
template <class T, Layout L>
void maskedRow(const T* s, T* d, const Kro8u* m, int width, const stream::Pattern* fill)
{
    constexpr int C = channels(L), B = pixelBytes<T, L>;
    int x = 0;
    if constexpr (kMaskVector<T, L>) {
        const __m128i alpha = _mm_loadu_si128(reinterpret_cast<const __m128i*>(channelBytes<T, 4>(3).bytes));
        const __m128i value = fill ? _mm_loadu_si128(reinterpret_cast<const __m128i*>(fill->bytes)) : __m128i{};
        for (constexpr int n = 16 / B; x + n <= width; x += n) {
            __m128i* dv = reinterpret_cast<__m128i*>(d + x * C);
            const __m128i sv = fill ? value : _mm_loadu_si128(reinterpret_cast<const __m128i*>(s + x * C));
            _mm_storeu_si128(dv, KeepBytes::vec(sv, _mm_loadu_si128(dv), maskKeep<T, L>(m + x, alpha)));
        }
    }
    for (; x < width; ++x)
        if (m[x]) std::memcpy(d + x * C, fill ? static_cast<const void*>(fill->bytes) : s + x * C, written(L) * sizeof(T));
}

}  // namespace KROI_TIER::convert
