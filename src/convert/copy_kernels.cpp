// SSE4.1 bodies of the 8u channel and planar copies: pshufb gathers every third byte, or
// spreads three planes into one row, 16 pixels at a time; the remainder goes through the
// scalar definition.
#include "convert/copy_kernels.hpp"

#include <smmintrin.h>

namespace KROI_TIER::convert {

namespace {

// pshufb control vectors; -128 (bit 7 set) yields a zero byte.
struct Shuffle {
    alignas(16) signed char b[16];
};

// Output byte x of plane p takes byte 3x + p of the 48-byte source; control for the source
// vector v (bytes 16v .. 16v + 15).
constexpr Shuffle splitControl(int p, int v)
{
    Shuffle m{};
    for (int x = 0; x < 16; ++x) {
        const int j = 3 * x + p;
        m.b[x] = static_cast<signed char>(j / 16 == v ? j % 16 : -128);
    }
    return m;
}
// Byte i of output vector o (row byte j = 16o + i) takes pixel j / 3 of plane j mod 3;
// control for plane p.
constexpr Shuffle mergeControl(int o, int p)
{
    Shuffle m{};
    for (int i = 0; i < 16; ++i) {
        const int j = 16 * o + i;
        m.b[i] = static_cast<signed char>(j % 3 == p ? j / 3 : -128);
    }
    return m;
}

constexpr Shuffle kSplit[3][3] = {{splitControl(0, 0), splitControl(0, 1), splitControl(0, 2)},
                                  {splitControl(1, 0), splitControl(1, 1), splitControl(1, 2)},
                                  {splitControl(2, 0), splitControl(2, 1), splitControl(2, 2)}};
constexpr Shuffle kMerge[3][3] = {{mergeControl(0, 0), mergeControl(0, 1), mergeControl(0, 2)},
                                  {mergeControl(1, 0), mergeControl(1, 1), mergeControl(1, 2)},
                                  {mergeControl(2, 0), mergeControl(2, 1), mergeControl(2, 2)}};

KROI_SSE41 inline __m128i control_sse41(const Shuffle& m) { return _mm_load_si128(reinterpret_cast<const __m128i*>(m.b)); }

// Plane p of 16 pixels from the three source vectors.
KROI_SSE41 inline __m128i gather_sse41(__m128i a, __m128i b, __m128i c, int p)
{
    return _mm_or_si128(_mm_or_si128(_mm_shuffle_epi8(a, control_sse41(kSplit[p][0])),
                                     _mm_shuffle_epi8(b, control_sse41(kSplit[p][1]))),
                        _mm_shuffle_epi8(c, control_sse41(kSplit[p][2])));
}

KROI_SSE41 inline __m128i loadu_sse41(const Kro8u* p) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(p)); }
KROI_SSE41 inline void storeu_sse41(Kro8u* p, __m128i v) { _mm_storeu_si128(reinterpret_cast<__m128i*>(p), v); }

}  // namespace

KROI_SSE41 void extract3_8u_sse41(const Kro8u* s, Kro8u* d, std::ptrdiff_t n)
{
    // The source row ends at its last pixel's first byte: 16 pixels are loaded as 48 bytes
    // only while a 17th pixel follows.
    std::ptrdiff_t x = 0;
    for (; x + 17 <= n; x += 16, s += 48)
        storeu_sse41(d + x, gather_sse41(loadu_sse41(s), loadu_sse41(s + 16), loadu_sse41(s + 32), 0));
    for (; x < n; ++x, s += 3) d[x] = s[0];
}

KROI_SSE41 void split3_8u_sse41(const Kro8u* s, Kro8u* const* d, std::ptrdiff_t n)
{
    std::ptrdiff_t x = 0;
    for (; x + 16 <= n; x += 16, s += 48) {
        const __m128i a = loadu_sse41(s), b = loadu_sse41(s + 16), c = loadu_sse41(s + 32);
        storeu_sse41(d[0] + x, gather_sse41(a, b, c, 0));
        storeu_sse41(d[1] + x, gather_sse41(a, b, c, 1));
        storeu_sse41(d[2] + x, gather_sse41(a, b, c, 2));
    }
    for (; x < n; ++x, s += 3) d[0][x] = s[0], d[1][x] = s[1], d[2][x] = s[2];
}

KROI_SSE41 void merge3_8u_sse41(const Kro8u* const* s, Kro8u* d, std::ptrdiff_t n)
{
    std::ptrdiff_t x = 0;
    for (; x + 16 <= n; x += 16, d += 48) {
        const __m128i p0 = loadu_sse41(s[0] + x), p1 = loadu_sse41(s[1] + x), p2 = loadu_sse41(s[2] + x);
        for (int o = 0; o < 3; ++o)
            storeu_sse41(d + 16 * o, _mm_or_si128(_mm_or_si128(_mm_shuffle_epi8(p0, control_sse41(kMerge[o][0])),
                                                               _mm_shuffle_epi8(p1, control_sse41(kMerge[o][1]))),
                                                  _mm_shuffle_epi8(p2, control_sse41(kMerge[o][2]))));
    }
    for (; x < n; ++x, d += 3) d[0] = s[0][x], d[1] = s[1][x], d[2] = s[2][x];
}

}  // namespace KROI_TIER::convert
