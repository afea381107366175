// SSE4.1 bodies of the 8u three-channel copies: pblendvb and pshufb gather every third byte,
// or spread three planes into one row, 16 pixels at a time; the remainder is copied element
// by element as the definitions say.
#include "convert/copy_kernels.hpp"

#include <smmintrin.h>

namespace KROI_TIER::convert {

namespace {

// pshufb controls and pblendvb masks, 16 bytes each.
struct Bytes16 {
    alignas(16) signed char b[16];
};

// Sixteen 3-channel pixels span three vectors a, b, c.  Element p of pixel x is byte 3x + p,
// at position (3x + p) mod 16 of vector (3x + p) / 16.  As 16 = 1 (mod 3), vector v holds
// plane p's elements exactly at its positions q with q = p - v (mod 3), and the positions of
// the three planes' elements in the three vectors never collide: a blend of a, b and c by
// position residue gathers all 16 elements of one plane into one vector (at positions
// (3x + p) mod 16), and one pshufb puts them in order.  Merging runs the same way back.

// Positions q with q mod 3 == r.
constexpr Bytes16 residue(int r)
{
    Bytes16 m{};
    for (int q = 0; q < 16; ++q) m.b[q] = static_cast<signed char>(q % 3 == r ? -1 : 0);
    return m;
}
// Element x of plane p from position (3x + p) mod 16.
constexpr Bytes16 order(int p)
{
    Bytes16 m{};
    for (int x = 0; x < 16; ++x) m.b[x] = static_cast<signed char>((3 * x + p) % 16);
    return m;
}
// The inverse: position q takes element x with 3x + p = q (mod 16), x = 11 (q - p) mod 16.
constexpr Bytes16 spread(int p)
{
    Bytes16 m{};
    for (int q = 0; q < 16; ++q) m.b[q] = static_cast<signed char>(((11 * (q - p)) % 16 + 16) % 16);
    return m;
}

constexpr Bytes16 kResidue[3] = {residue(0), residue(1), residue(2)};
constexpr Bytes16 kOrder[3] = {order(0), order(1), order(2)};
constexpr Bytes16 kSpread[3] = {spread(0), spread(1), spread(2)};

KROI_SSE41 inline __m128i load_sse41(const Bytes16& m) { return _mm_load_si128(reinterpret_cast<const __m128i*>(m.b)); }
KROI_SSE41 inline __m128i loadu_sse41(const Kro8u* p) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(p)); }
KROI_SSE41 inline void storeu_sse41(Kro8u* p, __m128i v) { _mm_storeu_si128(reinterpret_cast<__m128i*>(p), v); }
// Streaming stores need 16-byte aligned destinations; the caller checks.
template <bool Stream>
KROI_SSE41 inline void store_sse41(Kro8u* p, __m128i v)
{
    if constexpr (Stream)
        _mm_stream_si128(reinterpret_cast<__m128i*>(p), v);
    else
        _mm_storeu_si128(reinterpret_cast<__m128i*>(p), v);
}

// The masks and controls, loaded once per row.
struct Masks {
    __m128i residue[3], control[3];
};
KROI_SSE41 inline Masks masks_sse41(const Bytes16 (&control)[3])
{
    return {{load_sse41(kResidue[0]), load_sse41(kResidue[1]), load_sse41(kResidue[2])},
            {load_sse41(control[0]), load_sse41(control[1]), load_sse41(control[2])}};
}

// Plane p of the 16 pixels in a, b, c: a's residue p, b's residue p - 1, c's residue p - 2.
KROI_SSE41 inline __m128i plane_sse41(const Masks& m, __m128i a, __m128i b, __m128i c, int p)
{
    const __m128i t = _mm_blendv_epi8(_mm_blendv_epi8(a, b, m.residue[(p + 2) % 3]), c, m.residue[(p + 1) % 3]);
    return _mm_shuffle_epi8(t, m.control[p]);
}

}  // namespace

KROI_SSE41 void extract3_8u_sse41(const Kro8u* s, Kro8u* d, std::ptrdiff_t n)
{
    const Masks m = masks_sse41(kOrder);
    // The source row ends at its last pixel's first byte: 16 pixels are loaded as 48 bytes
    // only while a 17th pixel follows.
    std::ptrdiff_t x = 0;
    for (; x + 17 <= n; x += 16, s += 48) storeu_sse41(d + x, plane_sse41(m, loadu_sse41(s), loadu_sse41(s + 16), loadu_sse41(s + 32), 0));
    for (; x < n; ++x, s += 3) d[x] = s[0];
}

template <bool Stream>
KROI_SSE41 void split3_8u_sse41(const Kro8u* s, Kro8u* const* d, std::ptrdiff_t n)
{
    const Masks m = masks_sse41(kOrder);
    Kro8u *d0 = d[0], *d1 = d[1], *d2 = d[2];
    std::ptrdiff_t x = 0;
    for (; x + 16 <= n; x += 16, s += 48) {
        // The interleaved row is read this far ahead: from memory, one read stream beside three
        // write streams leaves the hardware prefetcher too far behind; in the cache the
        // prefetch is a hit and costs next to nothing.
        _mm_prefetch(reinterpret_cast<const char*>(s) + 8192, _MM_HINT_T0);
        const __m128i a = loadu_sse41(s), b = loadu_sse41(s + 16), c = loadu_sse41(s + 32);
        store_sse41<Stream>(d0 + x, plane_sse41(m, a, b, c, 0));
        store_sse41<Stream>(d1 + x, plane_sse41(m, a, b, c, 1));
        store_sse41<Stream>(d2 + x, plane_sse41(m, a, b, c, 2));
    }
    for (; x < n; ++x, s += 3) d0[x] = s[0], d1[x] = s[1], d2[x] = s[2];
}

template <bool Stream>
KROI_SSE41 void merge3_8u_sse41(const Kro8u* const* s, Kro8u* d, std::ptrdiff_t n)
{
    const Masks m = masks_sse41(kSpread);
    const Kro8u *s0 = s[0], *s1 = s[1], *s2 = s[2];
    std::ptrdiff_t x = 0;
    for (; x + 16 <= n; x += 16, d += 48) {
        // Each plane spread to the positions its elements take in all three output vectors.
        const __m128i p[3] = {_mm_shuffle_epi8(loadu_sse41(s0 + x), m.control[0]),
                              _mm_shuffle_epi8(loadu_sse41(s1 + x), m.control[1]),
                              _mm_shuffle_epi8(loadu_sse41(s2 + x), m.control[2])};
        // Output vector o takes plane (o + r) mod 3 at positions of residue r.
        for (int o = 0; o < 3; ++o)
            store_sse41<Stream>(d + 16 * o, _mm_blendv_epi8(_mm_blendv_epi8(p[o % 3], p[(o + 1) % 3], m.residue[1]),
                                                     p[(o + 2) % 3], m.residue[2]));
    }
    for (; x < n; ++x, d += 3) d[0] = s0[x], d[1] = s1[x], d[2] = s2[x];
}

template void split3_8u_sse41<false>(const Kro8u*, Kro8u* const*, std::ptrdiff_t);
template void split3_8u_sse41<true>(const Kro8u*, Kro8u* const*, std::ptrdiff_t);
template void merge3_8u_sse41<false>(const Kro8u* const*, Kro8u*, std::ptrdiff_t);
template void merge3_8u_sse41<true>(const Kro8u* const*, Kro8u*, std::ptrdiff_t);

}  // namespace KROI_TIER::convert
