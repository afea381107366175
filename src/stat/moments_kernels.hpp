// Raw moments up to order 3: the kernels and the exact wide sums they are carried in.
//
// Integer images.  The region is cut into tiles of at most kStripRows rows by kChunkCols
// columns.  Down each tile's columns four running sums are kept per element, eight columns
// at a time in registers, with additions only (A0 += v, A1 += A0, A2 += A1, A3 += A2), which leaves, after R rows, the sums of v
// weighted by 1, t, t(t+1)/2 and t(t+1)(t+2)/6 with t = R - y' (y' the row inside the
// tile): a polynomial weighting of the rows without a single multiplication in the
// per-pixel loop.  The largest sum, A3, reaches max(v) * C(R + 3, 4), so a tile has as many
// rows as keep it within 32-bit lanes: 128 for 8u, 32 for 16u.  Each tile
// then folds its columns with the powers of x into 128-bit sums, turns the t-weights into
// powers of y', and moves the tile's moments to the region's origin with the binomial
// expansion into 256-bit totals.  Every raw moment is thus an exact integer, rounded to
// double once at the end.
//
// 32f images follow one stated double order, row by row (see momentsFloat).
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#include <emmintrin.h>

#include "frame/base.hpp"

namespace KROI_TIER::stat {

using u128 = unsigned __int128;
using s128 = __int128;

// ---- 256-bit unsigned totals ----------------------------------------------------------------

struct U256 {
    uint64_t w[4] = {0, 0, 0, 0}; // least significant word first

    void add(const uint64_t (&v)[4])
    {
        unsigned carry = 0;
        for (int i = 0; i < 4; ++i) {
            const u128 s = u128(w[i]) + v[i] + carry;
            w[i] = uint64_t(s);
            carry = unsigned(s >> 64);
        }
    }
    // this += a * b, both below 2^128.
    void addProduct(u128 a, u128 b)
    {
        const uint64_t a0 = uint64_t(a), a1 = uint64_t(a >> 64), b0 = uint64_t(b), b1 = uint64_t(b >> 64);
        const u128 p00 = u128(a0) * b0, p01 = u128(a0) * b1, p10 = u128(a1) * b0, p11 = u128(a1) * b1;
        // Middle column: the high half of p00 plus the low halves of the cross products.
        const u128 mid = (p00 >> 64) + uint64_t(p01) + uint64_t(p10);
        const u128 hi = p11 + (p01 >> 64) + (p10 >> 64) + (mid >> 64);
        const uint64_t v[4] = {uint64_t(p00), uint64_t(mid), uint64_t(hi), uint64_t(hi >> 64)};
        add(v);
    }
};

// The nearest double to v, ties to even, by integer arithmetic alone (no dependence on the
// caller's rounding control).
inline double toDouble(const U256& v)
{
    int top = 3;
    while (top >= 0 && v.w[top] == 0) --top;
    if (top < 0) return 0.0;
    const int bits = 64 * top + (64 - __builtin_clzll(v.w[top])); // position of the top bit + 1
    if (bits <= 53) return double(v.w[0]);                       // exact
    const int shift = bits - 53;                                  // bits dropped
    auto bit = [&](int i) { return (v.w[i >> 6] >> (i & 63)) & 1u; };
    uint64_t mant = 0;
    for (int i = bits - 1; i >= shift; --i) mant = (mant << 1) | bit(i);
    const bool half = bit(shift - 1) != 0;
    bool sticky = false;
    for (int i = 0; i < shift - 1 && !sticky; ++i) sticky = bit(i) != 0;
    if (half && (sticky || (mant & 1))) ++mant; // may carry to 2^53: still exact in double
    return __builtin_ldexp(double(mant), shift);
}

// Binomial coefficients C(n, k), n <= 3.
inline constexpr uint32_t kBinom[4][4] = {{1, 0, 0, 0}, {1, 1, 0, 0}, {1, 2, 1, 0}, {1, 3, 3, 1}};

// The ten (p, q) with p + q <= 3, and their place in a channel's block of 16.
inline constexpr int kOrders[10][2] = {{0, 0}, {1, 0}, {2, 0}, {3, 0}, {0, 1}, {1, 1},
                                       {2, 1}, {0, 2}, {1, 2}, {0, 3}};
constexpr int blockEntry(int p, int q) { return 2 + p + 4 * q; }

// ---- the column sums of one tile ------------------------------------------------------------

// Rows per tile: the most for which max(v) * C(R + 3, 4) stays below 2^32.
template <class T>
constexpr int kStripRows = sizeof(T) == 1 ? 128 : 32;
static_assert(255ull * (131 * 130 * 129 * 128 / 24) < (1ull << 32));
static_assert(65535ull * (35 * 34 * 33 * 32 / 24) < (1ull << 32));
constexpr int kChunkCols = 512; // pixels per tile: keeps x'^3 * A0 within 64 bits

// The four running sums of one column of elements down `rows` rows: the readable definition.
template <class T>
inline void columnPlain(const T* first, int srcStep, int rows, uint32_t (&a)[4])
{
    a[0] = a[1] = a[2] = a[3] = 0;
    for (int y = 0; y < rows; ++y) {
        a[0] += *reinterpret_cast<const T*>(reinterpret_cast<const char*>(first) + std::ptrdiff_t(y) * srcStep);
        a[1] += a[0];
        a[2] += a[1];
        a[3] += a[2];
    }
}

// The same for eight neighbouring columns at once, the sums held in registers for the whole
// walk down the tile, so that each row costs one load and eight additions.
template <class T>
inline void columnBlock(const T* first, int srcStep, int rows, uint32_t (&a)[4][8])
{
    const __m128i z = _mm_setzero_si128();
    __m128i l0 = z, l1 = z, l2 = z, l3 = z, h0 = z, h1 = z, h2 = z, h3 = z;
    const char* p = reinterpret_cast<const char*>(first);
    for (int y = 0; y < rows; ++y, p += srcStep) {
        __m128i w;
        if constexpr (sizeof(T) == 1) w = _mm_unpacklo_epi8(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)), z);
        else w = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
        l0 = _mm_add_epi32(l0, _mm_unpacklo_epi16(w, z));
        h0 = _mm_add_epi32(h0, _mm_unpackhi_epi16(w, z));
        l1 = _mm_add_epi32(l1, l0), h1 = _mm_add_epi32(h1, h0);
        l2 = _mm_add_epi32(l2, l1), h2 = _mm_add_epi32(h2, h1);
        l3 = _mm_add_epi32(l3, l2), h3 = _mm_add_epi32(h3, h2);
    }
    const __m128i v[4][2] = {{l0, h0}, {l1, h1}, {l2, h2}, {l3, h3}};
    for (int k = 0; k < 4; ++k) {
        _mm_storeu_si128(reinterpret_cast<__m128i*>(a[k]), v[k][0]);
        _mm_storeu_si128(reinterpret_cast<__m128i*>(a[k] + 4), v[k][1]);
    }
}

// S[p][k] += x^p * A_k for p + k <= 3: one column's share of a tile's sums.
inline void fold(u128 (&s)[4][4], uint64_t x, uint64_t k0, uint64_t k1, uint64_t k2, uint64_t k3)
{
    const uint64_t x2 = x * x, x3 = x2 * x;
    s[0][0] += k0, s[0][1] += k1, s[0][2] += k2, s[0][3] += k3;
    s[1][0] += u128(x * k0), s[1][1] += u128(x * k1), s[1][2] += u128(x) * k2;
    s[2][0] += u128(x2) * k0, s[2][1] += u128(x2) * k1;
    s[3][0] += u128(x3) * k0;
}

// ---- integer moments ------------------------------------------------------------------------

// A tile's sums S (x' and t = rows - y' counted inside the tile) moved to the region's
// origin and added into the 256-bit totals of one channel.
inline void addTile(const u128 (&s)[4][4], int rows, uint64_t x0, uint64_t y0, U256 (&totals)[10])
{
    // T[p][q]: the sums weighted by t^q, from the weights 1, t, t(t+1)/2, t(t+1)(t+2)/6.
    s128 t[4][4] = {};
    for (int p = 0; p <= 3; ++p) {
        t[p][0] = s128(s[p][0]);
        if (p <= 2) t[p][1] = s128(s[p][1]);
        if (p <= 1) t[p][2] = 2 * s128(s[p][2]) - t[p][1];
        if (p == 0) t[p][3] = 6 * s128(s[p][3]) - 3 * t[p][2] - 2 * t[p][1];
    }
    // L[p][q]: weighted by y'^q = (R - t)^q; exact, and never negative.
    const s128 R = rows;
    u128 l[4][4] = {};
    for (int p = 0; p <= 3; ++p) {
        l[p][0] = u128(t[p][0]);
        if (p <= 2) l[p][1] = u128(R * t[p][0] - t[p][1]);
        if (p <= 1) l[p][2] = u128(R * R * t[p][0] - 2 * R * t[p][1] + t[p][2]);
        if (p == 0) l[p][3] = u128(R * R * R * t[p][0] - 3 * R * R * t[p][1] + 3 * R * t[p][2] - t[p][3]);
    }
    // To the region's origin: (x' + X0)^p (y' + Y0)^q, every term non-negative.
    const u128 xp[4] = {1, x0, u128(x0) * x0, u128(x0) * x0 * x0};
    const u128 yp[4] = {1, y0, u128(y0) * y0, u128(y0) * y0 * y0};
    for (int k = 0; k < 10; ++k) {
        const int p = kOrders[k][0], q = kOrders[k][1];
        for (int i = 0; i <= p; ++i)
            for (int j = 0; j <= q; ++j)
                if (l[i][j] != 0) totals[k].addProduct(u128(kBinom[p][i] * kBinom[q][j]) * xp[p - i] * yp[q - j], l[i][j]);
    }
}

// totals[c][k]: 256-bit M[p][q] of channel c for the k-th order pair of kOrders.
template <class T, int Elems, int Channels>
void momentsExact(const T* src, int srcStep, int width, int height, U256 (&totals)[3][10])
{
    for (int y0 = 0; y0 < height; y0 += kStripRows<T>) {
        const int rows = height - y0 < kStripRows<T> ? height - y0 : kStripRows<T>;
        const T* strip = reinterpret_cast<const T*>(reinterpret_cast<const char*>(src) + std::ptrdiff_t(y0) * srcStep);
        for (int x0 = 0; x0 < width; x0 += kChunkCols) {
            const int cols = width - x0 < kChunkCols ? width - x0 : kChunkCols;
            const int n = cols * Elems;
            const T* tile = strip + std::ptrdiff_t(x0) * Elems;
            u128 s[Channels][4][4] = {};
            int e = 0;
            for (; e + 8 <= n; e += 8) {
                uint32_t a[4][8];
                columnBlock(tile + e, srcStep, rows, a);
                for (int j = 0; j < 8; ++j) {
                    const int c = (e + j) % Elems;
                    if (c < Channels) fold(s[c], uint64_t((e + j) / Elems), a[0][j], a[1][j], a[2][j], a[3][j]);
                }
            }
            for (; e < n; ++e) {
                const int c = e % Elems;
                if (c >= Channels) continue;
                uint32_t a[4];
                columnPlain(tile + e, srcStep, rows, a);
                fold(s[c], uint64_t(e / Elems), a[0], a[1], a[2], a[3]);
            }
            for (int c = 0; c < Channels; ++c) addTile(s[c], rows, uint64_t(x0), uint64_t(y0), totals[c]);
        }
    }
}

// ---- 32f moments ----------------------------------------------------------------------------

// For each row y: r_p = sum over x of (x^p * v), left to right, in double; then
// M[p][q] += y^q * r_p.  x^2 = x*x, x^3 = x^2*x, likewise for y.
template <int Elems, int Channels>
void momentsFloat(const Kro32f* src, int srcStep, int width, int height, double (&m)[3][10])
{
    for (int y = 0; y < height; ++y) {
        const Kro32f* row =
            reinterpret_cast<const Kro32f*>(reinterpret_cast<const char*>(src) + std::ptrdiff_t(y) * srcStep);
        const double yd = y, y2 = yd * yd, y3 = y2 * yd;
        for (int c = 0; c < Channels; ++c) {
            double r0 = 0, r1 = 0, r2 = 0, r3 = 0;
            for (int x = 0; x < width; ++x) {
                const double v = row[std::ptrdiff_t(x) * Elems + c];
                const double xd = x, x2 = xd * xd, x3 = x2 * xd;
                r0 += v;
                r1 += xd * v;
                r2 += x2 * v;
                r3 += x3 * v;
            }
            m[c][0] += r0, m[c][1] += r1, m[c][2] += r2, m[c][3] += r3;
            m[c][4] += yd * r0, m[c][5] += yd * r1, m[c][6] += yd * r2;
            m[c][7] += y2 * r0, m[c][8] += y2 * r1;
            m[c][9] += y3 * r0;
        }
    }
}

}  // namespace KROI_TIER::stat
