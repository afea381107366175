// Palette lookups: each source value, masked to its low bitSize bits, selects an entry of a
// table of 2^bitSize entries of the destination type (per channel for several channels).
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "frame/base.hpp"
#include "frame/bind.hpp"
#include "frame/check.hpp"
#include "frame/rows.hpp"

namespace KROI_TIER::tone {

namespace {

// The bit size a source of S can use: 1 up to the bits of S, else -11.
template <class S>
constexpr KroStatus bitSize(int n)
{
    return n < 1 || n > int(8 * sizeof(S)) ? kroStsOutsideRangeErr : kroStsOk;
}

// A 24-bit destination element: three bytes, copied in order from the entry's three bytes.
struct Px24 {
    Kro8u b[3];
};

template <class S, class D, int C, int W>
void paletteRow(const S* s, D* d, long n, const D* const* tab, unsigned mask)
{
    for (long p = 0; p < n; ++p)
        for (int c = 0; c < W; ++c) d[p * C + c] = tab[c][s[p * C + c] & mask];
}

template <class S, class D, int C, int W>
KroStatus paletteRows(const S* pSrc, int srcStep, D* pDst, int dstStep, KroiSize roi, const D* const* tab, int nBits)
{
    const auto Src = rows::image(pSrc, srcStep);
    const auto Dst = rows::image(pDst, dstStep);
    const unsigned mask = (1u << nBits) - 1;
    for (int y = 0; y < roi.height; ++y) paletteRow<S, D, C, W>(Src.row(y), Dst.row(y), roi.width, tab, mask);
    return kroStsOk;
}

}  // namespace

// Several channels: one table per written channel.
template <class T, int C, int W>
KroStatus palette(const T* pSrc, int srcStep, T* pDst, int dstStep, KroiSize roiSize, const T* const pTable[W],
                  int nBitSize)
{
    KROI_CHECK(check::pointers(pSrc, pDst, pTable));
    for (int c = 0; c < W; ++c) KROI_CHECK(check::pointers(pTable[c]));
    KROI_CHECK(check::steps(srcStep, dstStep));
    KROI_CHECK(check::roi(roiSize));
    KROI_CHECK(bitSize<T>(nBitSize));
    return paletteRows<T, T, C, W>(pSrc, srcStep, pDst, dstStep, roiSize, pTable, nBitSize);
}

// One channel, source type S, destination D.
template <class S, class D>
KroStatus palette1(const S* pSrc, int srcStep, D* pDst, int dstStep, KroiSize roiSize, const D* pTable, int nBitSize)
{
    KROI_CHECK(check::pointers(pSrc, pDst, pTable));
    KROI_CHECK(check::steps(srcStep, dstStep));
    KROI_CHECK(check::roi(roiSize));
    KROI_CHECK(bitSize<S>(nBitSize));
    return paletteRows<S, D, 1, 1>(pSrc, srcStep, pDst, dstStep, roiSize, &pTable, nBitSize);
}

// 24-bit destinations take and give bytes.
template <class S>
KroStatus palette24(const S* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, const Kro8u* pTable,
                    int nBitSize)
{
    KROI_CHECK(check::pointers(pSrc, pDst, pTable));
    KROI_CHECK(check::steps(srcStep, dstStep));
    KROI_CHECK(check::roi(roiSize));
    KROI_CHECK(bitSize<S>(nBitSize));
    const Px24* tab = reinterpret_cast<const Px24*>(pTable);
    return paletteRows<S, Px24, 1, 1>(pSrc, srcStep, reinterpret_cast<Px24*>(pDst), dstStep, roiSize, &tab, nBitSize);
}

}  // namespace KROI_TIER::tone

#define KROI_EXPORT KROI_BIND
KROI_BIND_LIST {
#include "tone/lut_palette.exports.inc"
}
#undef KROI_EXPORT
