// Transpose: destination element (column y, row x) = source element (column x, row y).
//
// Pixels are moved as opaque blocks of P bytes.  The image is cut into square tiles that
// fit the first-level cache together with their transposed copy; inside a tile, pixel sizes
// of 1, 2, 4 and 8 bytes go through register transposes of one 16-byte row per pixel row
// (16x16, 8x8, 4x4, 2x2), and the rest, and the edges, through the plain loop that is the
// definition.
#include <algorithm>
#include <cstddef>
#include <cstring>

#include <emmintrin.h>

#include "frame/base.hpp"
#include "krocore.h"
#include "frame/bind.hpp"
#include "frame/check.hpp"

namespace KROI_TIER::convert {

namespace {

using Byte = unsigned char;

// The definition, on a w x h block of P-byte pixels.
template <int P>
void blockPlain(const Byte* s, std::ptrdiff_t ss, Byte* d, std::ptrdiff_t ds, int w, int h)
{
    for (int y = 0; y < h; ++y) {
        const Byte* sr = s + y * ss;
        for (int x = 0; x < w; ++x) std::memcpy(d + x * ds + y * P, sr + x * P, P);
    }
}

// Interleaves the halves of the register set: applied log2(N) times to N rows of N pixels
// it turns the set into its transpose.  (Vector v, lane j) of N = 2^k lanes moves to
// (v', j') whose 2k index bits are those of (v, j) rotated left by one; k rotations swap
// the row and column bits.
template <int P>
__m128i unpackLo(__m128i a, __m128i b)
{
    if constexpr (P == 1) return _mm_unpacklo_epi8(a, b);
    else if constexpr (P == 2) return _mm_unpacklo_epi16(a, b);
    else if constexpr (P == 4) return _mm_unpacklo_epi32(a, b);
    else return _mm_unpacklo_epi64(a, b);
}
template <int P>
__m128i unpackHi(__m128i a, __m128i b)
{
    if constexpr (P == 1) return _mm_unpackhi_epi8(a, b);
    else if constexpr (P == 2) return _mm_unpackhi_epi16(a, b);
    else if constexpr (P == 4) return _mm_unpackhi_epi32(a, b);
    else return _mm_unpackhi_epi64(a, b);
}

template <int P>
constexpr int kMicro = (P == 1 || P == 2 || P == 4 || P == 8) ? 16 / P : 0;

template <int P>
inline void blockRegs(const Byte* s, std::ptrdiff_t ss, Byte* d, std::ptrdiff_t ds)
{
    constexpr int N = kMicro<P>;
    __m128i r[N], t[N];
    for (int i = 0; i < N; ++i) r[i] = _mm_loadu_si128(reinterpret_cast<const __m128i*>(s + i * ss));
    for (int n = N; n > 1; n /= 2) {
        for (int i = 0; i < N / 2; ++i) {
            t[2 * i] = unpackLo<P>(r[i], r[i + N / 2]);
            t[2 * i + 1] = unpackHi<P>(r[i], r[i + N / 2]);
        }
        for (int i = 0; i < N; ++i) r[i] = t[i];
    }
    for (int i = 0; i < N; ++i) _mm_storeu_si128(reinterpret_cast<__m128i*>(d + i * ds), r[i]);
}

// Tile edge in pixels: two tiles of the largest pixel stay within 16 KiB.
template <int P>
constexpr int kTile = P <= 2 ? 64 : (P <= 8 ? 32 : 16);

// One tile of at most kTile x kTile pixels.
template <int P>
void tile(const Byte* s, std::ptrdiff_t ss, Byte* d, std::ptrdiff_t ds, int w, int h)
{
    constexpr int M = kMicro<P>;
    if constexpr (M == 0) {
        blockPlain<P>(s, ss, d, ds, w, h);
    } else {
        const int wm = w - w % M, hm = h - h % M;
        for (int y = 0; y < hm; y += M)
            for (int x = 0; x < wm; x += M) blockRegs<P>(s + y * ss + x * P, ss, d + x * ds + y * P, ds);
        if (wm < w) blockPlain<P>(s + wm * P, ss, d + wm * ds, ds, w - wm, hm);
        if (hm < h) blockPlain<P>(s + hm * ss, ss, d + hm * P, ds, w, h - hm);
    }
}

template <int P>
void transposeRect(const Byte* s, std::ptrdiff_t ss, Byte* d, std::ptrdiff_t ds, int w, int h)
{
    constexpr int T = kTile<P>;
    for (int ty = 0; ty < h; ty += T)
        for (int tx = 0; tx < w; tx += T)
            tile<P>(s + ty * ss + std::ptrdiff_t(tx) * P, ss, d + tx * ds + std::ptrdiff_t(ty) * P, ds,
                    std::min(T, w - tx), std::min(T, h - ty));
}

// In place, n x n: the tile pair (i, j), (j, i) is exchanged through one tile on the stack:
// (i, j) transposed into the buffer, (j, i) transposed onto (i, j), the buffer copied onto
// (j, i).  A diagonal tile goes through the buffer alone.
template <int P>
void transposeSquare(Byte* p, std::ptrdiff_t step, int n)
{
    constexpr int T = kTile<P>;
    constexpr std::ptrdiff_t bs = std::ptrdiff_t(T) * P;
    alignas(16) Byte buf[T * T * P];
    auto at = [&](int ty, int tx) { return p + ty * step + std::ptrdiff_t(tx) * P; };
    for (int i = 0; i < n; i += T) {
        const int hi = std::min(T, n - i);
        tile<P>(at(i, i), step, buf, bs, hi, hi);
        for (int r = 0; r < hi; ++r) std::memcpy(at(i + r, i), buf + r * bs, std::size_t(hi) * P);
        for (int j = i + T; j < n; j += T) {
            const int hj = std::min(T, n - j);
            tile<P>(at(i, j), step, buf, bs, hj, hi);  // (i, j) is hj wide and hi high
            tile<P>(at(j, i), step, at(i, j), step, hi, hj);
            for (int r = 0; r < hj; ++r) std::memcpy(at(j + r, i), buf + r * bs, std::size_t(hi) * P);
        }
    }
}

}  // namespace

// In place.  A square region swaps its tiles pairwise.  Any other shape: the caller's memory
// holds both the height x width source and the width x height result at the same step, and
// the two overlap in no order that a tile walk could follow, so the source is copied to a
// block from kroMalloc_L first (-9, nothing written, when it cannot be had) and transposed
// from there.
template <class T, int C>
KroStatus transposeI(T* pSrcDst, int srcDstStep, KroiSize roiSize)
{
    KROI_CHECK(check::pointers(pSrcDst));
    KROI_CHECK(check::roi(roiSize));
    constexpr int P = int(sizeof(T)) * C;
    Byte* p = reinterpret_cast<Byte*>(pSrcDst);
    if (roiSize.width == roiSize.height) {
        transposeSquare<P>(p, srcDstStep, roiSize.width);
        return kroStsOk;
    }
    const std::ptrdiff_t rowBytes = std::ptrdiff_t(roiSize.width) * P;
    Byte* copy = static_cast<Byte*>(kroMalloc_L(rowBytes * roiSize.height));
    if (!copy) return kroStsNoMemoryErr;
    for (int y = 0; y < roiSize.height; ++y) std::memcpy(copy + y * rowBytes, p + std::ptrdiff_t(y) * srcDstStep, std::size_t(rowBytes));
    transposeRect<P>(copy, rowBytes, p, srcDstStep, roiSize.width, roiSize.height);
    kroFree(copy);
    return kroStsOk;
}

// The same image with the same step is the in-place case, before any check of this form.
// Steps are used as given.
template <class T, int C>
KroStatus transpose(const T* pSrc, int srcStep, T* pDst, int dstStep, KroiSize roiSize)
{
    if (pSrc == pDst && srcStep == dstStep) return transposeI<T, C>(pDst, dstStep, roiSize);
    KROI_CHECK(check::pointers(pSrc, pDst));
    KROI_CHECK(check::roi(roiSize));
    transposeRect<int(sizeof(T)) * C>(reinterpret_cast<const Byte*>(pSrc), srcStep, reinterpret_cast<Byte*>(pDst),
                                      dstStep, roiSize.width, roiSize.height);
    return kroStsOk;
}

}  // namespace KROI_TIER::convert

#define KROI_EXPORT KROI_BIND
KROI_BIND_LIST {
#include "convert/transpose_image.exports.inc"
}
#undef KROI_EXPORT
