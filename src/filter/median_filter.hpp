// The median filter with border synthesis, and the weighted-centre 3x3 median.
//
// Every element is the lower median of its window: the element of rank (mw*mh - 1) / 2
// (from 0) among the window's mw*mh elements in ascending order.  Values are ordered by
// keys: the element itself for 8u, 16u and 16s; for 32f the float's bits with the lower 31
// bits flipped when the sign is set (so -0 orders just below +0, and every number as its
// value), and every NaN the one key above +infinity, which comes back as the quiet NaN
// 0x7FC00000.
//
// Four methods, chosen by the mask; each gives exactly the rank above:
//   3x3 of 8u   each column of three sorted once per row, then the median of nine from
//               the three sorted columns of its window;
//   3x3, 5x5    a sorting network padded to 16 or 32 wires with keys above every value,
//               pruned (at compile time) to the comparators the median wire depends on,
//               run on 16, 8 or 4 elements at once;
//   8u, other   a sliding histogram along the row: 2*mh updates per pixel and a median
//               that walks from its last position;
//   wider types the window kept sorted along the row: each of the mh entering elements
//               replaces a leaving one by a binary search and a move of the elements
//               between the two places.
#pragma once

#include <emmintrin.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>
#include <utility>

#include "filter/window_frame.hpp"

namespace KROI_TIER::filter::median {

// ---- keys ----------------------------------------------------------------------------------

// The key type whose natural order is the median's order.
template <class T>
using Key = std::conditional_t<std::is_same_v<T, Kro32f>, int32_t, T>;

constexpr int32_t kNaNKey = 0x7FC00000; // above the key of +inf, 0x7F800000

inline int32_t floatKey(float v)
{
    int32_t b;
    std::memcpy(&b, &v, 4);
    if ((b & 0x7FFFFFFF) > 0x7F800000) return kNaNKey;
    return b ^ ((b >> 31) & 0x7FFFFFFF);
}
inline float keyFloat(int32_t k)
{
    const int32_t b = k ^ ((k >> 31) & 0x7FFFFFFF);
    float v;
    std::memcpy(&v, &b, 4);
    return v;
}

template <class T>
inline Key<T> toKey(T v)
{
    if constexpr (std::is_same_v<T, Kro32f>)
        return floatKey(v);
    else
        return v;
}
template <class T>
inline T fromKey(Key<T> k)
{
    if constexpr (std::is_same_v<T, Kro32f>)
        return keyFloat(k);
    else
        return k;
}

// A row of floats to keys, four at a time.
inline void keysOf(const float* in, int32_t* out, int64_t n)
{
    int64_t i = 0;
    const __m128i low31 = _mm_set1_epi32(0x7FFFFFFF), nanKey = _mm_set1_epi32(kNaNKey);
    for (; i + 4 <= n; i += 4) {
        const __m128 v = _mm_loadu_ps(in + i);
        const __m128i b = _mm_castps_si128(v);
        __m128i k = _mm_xor_si128(b, _mm_and_si128(_mm_srai_epi32(b, 31), low31));
        const __m128i nan = _mm_castps_si128(_mm_cmpunord_ps(v, v));
        k = _mm_or_si128(_mm_andnot_si128(nan, k), _mm_and_si128(nan, nanKey));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(out + i), k);
    }
    for (; i < n; ++i) out[i] = floatKey(in[i]);
}

// ---- the sorting networks --------------------------------------------------------------------

struct NetOp {
    uint8_t a, b, kind; // kind 0: a = min, b = max; 1: a = min only; 2: b = max only
};

template <int A>
struct Net {
    static constexpr int kWires = A <= 16 ? 16 : 32;
    NetOp ops[kWires * 8];
    int count = 0;
    int target = 0; // the slot that ends with the median
};

// Batcher's odd-even merge sort on kWires wires, the wires from A on holding keys above
// every value (so the sort leaves the first A ranks to the inputs), pruned: comparators
// that meet such a wire only move it (a renaming, no operation), and comparators whose
// outputs the median does not read are dropped or halved.
template <int A>
constexpr Net<A> makeNet()
{
    constexpr int P = Net<A>::kWires;
    Net<A> n{};
    int wire[P] = {}; // the slot a wire holds, -1 for a key above every value
    for (int i = 0; i < P; ++i) wire[i] = i < A ? i : -1;
    NetOp all[P * 8] = {};
    int count = 0;
    for (int p = 1; p < P; p <<= 1)
        for (int k = p; k >= 1; k >>= 1)
            for (int j = k % p; j + k < P; j += 2 * k)
                for (int i = 0; i < k && i + j + k < P; ++i)
                    if ((i + j) / (2 * p) == (i + j + k) / (2 * p)) {
                        int& lo = wire[i + j];
                        int& hi = wire[i + j + k];
                        if (hi < 0) continue;
                        if (lo < 0) {
                            lo = hi;
                            hi = -1;
                            continue;
                        }
                        all[count++] = NetOp{uint8_t(lo), uint8_t(hi), 0};
                    }
    const int target = wire[(A - 1) / 2];
    bool need[P] = {};
    need[target] = true;
    bool keep[P * 8] = {};
    for (int i = count - 1; i >= 0; --i) {
        const bool nm = need[all[i].a], nx = need[all[i].b];
        if (!nm && !nx) continue;
        keep[i] = true;
        all[i].kind = uint8_t(nm && nx ? 0 : nm ? 1 : 2);
        need[all[i].a] = need[all[i].b] = true;
    }
    for (int i = 0; i < count; ++i)
        if (keep[i]) n.ops[n.count++] = all[i];
    n.target = target;
    return n;
}

// Vector lanes of one key type, in signed order where the instruction set has only that.
template <class T>
struct Lanes;

template <>
struct Lanes<Kro8u> {
    static constexpr int N = 16;
    static __m128i load(const Kro8u* p) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(p)); }
    static void store(Kro8u* p, __m128i v) { _mm_storeu_si128(reinterpret_cast<__m128i*>(p), v); }
    static __m128i min(__m128i a, __m128i b) { return _mm_min_epu8(a, b); }
    static __m128i max(__m128i a, __m128i b) { return _mm_max_epu8(a, b); }
};
template <>
struct Lanes<Kro16s> {
    static constexpr int N = 8;
    static __m128i load(const Kro16s* p) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(p)); }
    static void store(Kro16s* p, __m128i v) { _mm_storeu_si128(reinterpret_cast<__m128i*>(p), v); }
    static __m128i min(__m128i a, __m128i b) { return _mm_min_epi16(a, b); }
    static __m128i max(__m128i a, __m128i b) { return _mm_max_epi16(a, b); }
};
template <>
struct Lanes<Kro16u> { // biased to signed order on the way in and out
    static constexpr int N = 8;
    static __m128i bias() { return _mm_set1_epi16(short(0x8000)); }
    static __m128i load(const Kro16u* p)
    {
        return _mm_xor_si128(_mm_loadu_si128(reinterpret_cast<const __m128i*>(p)), bias());
    }
    static void store(Kro16u* p, __m128i v) { _mm_storeu_si128(reinterpret_cast<__m128i*>(p), _mm_xor_si128(v, bias())); }
    static __m128i min(__m128i a, __m128i b) { return _mm_min_epi16(a, b); }
    static __m128i max(__m128i a, __m128i b) { return _mm_max_epi16(a, b); }
};
template <>
struct Lanes<int32_t> {
    static constexpr int N = 4;
    static __m128i load(const int32_t* p) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(p)); }
    static __m128i min(__m128i a, __m128i b)
    {
        const __m128i m = _mm_cmpgt_epi32(a, b);
        return _mm_or_si128(_mm_and_si128(m, b), _mm_andnot_si128(m, a));
    }
    static __m128i max(__m128i a, __m128i b)
    {
        const __m128i m = _mm_cmpgt_epi32(a, b);
        return _mm_or_si128(_mm_and_si128(m, a), _mm_andnot_si128(m, b));
    }
};

template <int A>
inline constexpr Net<A> kNet = makeNet<A>();

// Every comparator's wires and kind are compile-time constants, so that the vectors stay in
// registers and no comparator costs a branch.
template <class L, int A, std::size_t... I>
[[gnu::always_inline]] inline void runNet(__m128i* v, std::index_sequence<I...>)
{
    auto one = [v]<std::size_t J>(std::integral_constant<std::size_t, J>) {
        constexpr NetOp o = kNet<A>.ops[J];
        if constexpr (o.kind == 0) {
            const __m128i lo = L::min(v[o.a], v[o.b]);
            v[o.b] = L::max(v[o.a], v[o.b]);
            v[o.a] = lo;
        } else if constexpr (o.kind == 1) {
            v[o.a] = L::min(v[o.a], v[o.b]);
        } else {
            v[o.b] = L::max(v[o.a], v[o.b]);
        }
    };
    (one(std::integral_constant<std::size_t, I>{}), ...);
}

// The medians of elements i0 .. i0+N-1 of a row, the window rows `rows` holding keys K.
template <class K, int C, int MW, int MH>
[[gnu::always_inline]] inline __m128i networkAt(const K* const* rows, int64_t i0)
{
    using L = Lanes<K>;
    constexpr int A = MW * MH;
    __m128i v[A];
    for (int j = 0; j < MH; ++j)
        for (int i = 0; i < MW; ++i) v[j * MW + i] = L::load(rows[j] + i0 + i * C);
    runNet<L, A>(v, std::make_index_sequence<std::size_t(kNet<A>.count)>{});
    return v[kNet<A>.target];
}

// ---- the plain definition -----------------------------------------------------------------

// The median of element i by selection: the window gathered and partly sorted.
template <class K, int C>
K selectAt(const K* const* rows, int64_t i, int mw, int mh, K* scratch)
{
    int n = 0;
    for (int j = 0; j < mh; ++j)
        for (int k = 0; k < mw; ++k) scratch[n++] = rows[j][i + int64_t(k) * C];
    std::nth_element(scratch, scratch + (n - 1) / 2, scratch + n);
    return scratch[(n - 1) / 2];
}

// ---- row kernels ----------------------------------------------------------------------------

// Output keys of one row through a network; the tail (fewer than N elements left) overlaps
// the last full vector, or is selected one by one when the row is shorter than a vector.
template <class K, int C, int MW, int MH, class Store>
void rowNetwork(const K* const* rowTable, int64_t n, K* scratch, Store&& storeRef)
{
    constexpr int N = Lanes<K>::N;
    // Local copies, which the vector stores (that may alias anything) cannot change.
    const K* rows[MH];
    for (int j = 0; j < MH; ++j) rows[j] = rowTable[j];
    auto store = storeRef;
    if (n < N) {
        for (int64_t i = 0; i < n; ++i) store.one(i, selectAt<K, C>(rows, i, MW, MH, scratch));
        return;
    }
    int64_t i = 0;
    for (; i + N <= n; i += N) store.vec(i, networkAt<K, C, MW, MH>(rows, i));
    if (i < n) store.vec(n - N, networkAt<K, C, MW, MH>(rows, n - N));
}

// 3x3 of 8u: each column of three is sorted once per row (into the rows lo, mid, hi), then
// the median of nine is the median of the largest low, the median of the middles and the
// smallest high of its three columns, which costs a third of the network's comparisons.
template <int C, class Store>
void row3x3Columns(const Kro8u* const* rowTable, int64_t n, Kro8u* lo, Kro8u* mid, Kro8u* hi, Store&& storeRef)
{
    // Local copies: byte stores may alias anything, and the pointers would be reloaded after
    // every one of them.
    const Kro8u* const rows[3] = {rowTable[0], rowTable[1], rowTable[2]};
    auto store = storeRef;
    const int64_t wide = n + 2 * C;
    auto load = [](const Kro8u* p) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(p)); };
    auto put = [](Kro8u* p, __m128i v) { _mm_storeu_si128(reinterpret_cast<__m128i*>(p), v); };
    auto med3 = [](__m128i a, __m128i b, __m128i c) {
        return _mm_max_epu8(_mm_min_epu8(a, b), _mm_min_epu8(_mm_max_epu8(a, b), c));
    };
    int64_t i = 0;
    for (; i + 16 <= wide; i += 16) {
        const __m128i a = load(rows[0] + i), b = load(rows[1] + i), c = load(rows[2] + i);
        const __m128i l = _mm_min_epu8(a, b), h = _mm_max_epu8(a, b);
        put(lo + i, _mm_min_epu8(l, c));
        put(hi + i, _mm_max_epu8(h, c));
        put(mid + i, _mm_max_epu8(l, _mm_min_epu8(h, c)));
    }
    for (; i < wide; ++i) {
        const int a = rows[0][i], b = rows[1][i], c = rows[2][i];
        const int l = std::min(a, b), h = std::max(a, b);
        lo[i] = Kro8u(std::min(l, c));
        hi[i] = Kro8u(std::max(h, c));
        mid[i] = Kro8u(std::max(l, std::min(h, c)));
    }
    auto at = [&](int64_t x) {
        const __m128i a = _mm_max_epu8(_mm_max_epu8(load(lo + x), load(lo + x + C)), load(lo + x + 2 * C));
        const __m128i c = _mm_min_epu8(_mm_min_epu8(load(hi + x), load(hi + x + C)), load(hi + x + 2 * C));
        return med3(a, med3(load(mid + x), load(mid + x + C), load(mid + x + 2 * C)), c);
    };
    if (n < 16) {
        for (int64_t x = 0; x < n; ++x) {
            const int a = std::max({lo[x], lo[x + C], lo[x + 2 * C]}), c = std::min({hi[x], hi[x + C], hi[x + 2 * C]});
            const int p = mid[x], q = mid[x + C], r = mid[x + 2 * C];
            const int b = std::max(std::min(p, q), std::min(std::max(p, q), r));
            store.one(x, Kro8u(std::max(std::min(a, b), std::min(std::max(a, b), c))));
        }
        return;
    }
    int64_t x = 0;
    for (; x + 16 <= n; x += 16) store.vec(x, at(x));
    if (x < n) store.vec(n - 16, at(n - 16));
}

// 8u: a histogram per channel slid along the row; the median walks from where it was.  The
// channels advance together, so that each window row's bytes are read once for all of them.
template <int C, class Store>
void rowHistogram(const Kro8u* const* rows, int64_t w, int mw, int mh, int32_t* hist, Store&& store)
{
    const int target = (mw * mh - 1) / 2;
    std::memset(hist, 0, 256 * C * sizeof(int32_t));
    for (int j = 0; j < mh; ++j)
        for (int k = 0; k < mw; ++k)
            for (int c = 0; c < C; ++c) ++hist[256 * c + rows[j][k * C + c]];
    int med[C] = {}, below[C] = {}; // below: elements of the window less than med
    for (int64_t x = 0;; ++x) {
        for (int c = 0; c < C; ++c) {
            const int32_t* h = hist + 256 * c;
            int m = med[c], b = below[c];
            while (b > target) b -= h[--m];
            while (b + h[m] <= target) b += h[m++];
            med[c] = m;
            below[c] = b;
            store.one(x * C + c, Kro8u(m));
        }
        if (x + 1 == w) break;
        for (int j = 0; j < mh; ++j) {
            const Kro8u* r = rows[j] + x * C;
            for (int c = 0; c < C; ++c) {
                const int out = r[c], in = r[mw * C + c];
                --hist[256 * c + out];
                ++hist[256 * c + in];
                below[c] += (in < med[c]) - (out < med[c]);
            }
        }
    }
}

// Other types: the window kept sorted per channel; entering elements replace leaving ones.
template <class K, int C, class Store>
void rowSorted(const K* const* rows, int64_t w, int mw, int mh, K* sorted, Store&& store)
{
    const int A = mw * mh, target = (A - 1) / 2;
    for (int c = 0; c < C; ++c) {
        K* s = sorted;
        int n = 0;
        for (int j = 0; j < mh; ++j)
            for (int k = 0; k < mw; ++k) s[n++] = rows[j][k * C + c];
        std::sort(s, s + A);
        for (int64_t x = 0;; ++x) {
            store.one(x * C + c, s[target]);
            if (x + 1 == w) break;
            for (int j = 0; j < mh; ++j) {
                const K out = rows[j][x * C + c], in = rows[j][(x + mw) * C + c];
                if (out == in) continue;
                const int p = int(std::lower_bound(s, s + A, out) - s);
                const int q = int(std::lower_bound(s, s + A, in) - s);
                if (q > p) {
                    std::memmove(s + p, s + p + 1, sizeof(K) * std::size_t(q - 1 - p));
                    s[q - 1] = in;
                } else {
                    std::memmove(s + q + 1, s + q, sizeof(K) * std::size_t(p - q));
                    s[q] = in;
                }
            }
        }
    }
}

// Writes keys as pixels: into the destination row, or into a whole-pixel row for AC4.
template <class T>
struct Store {
    T* d;
    void one(int64_t i, Key<T> k) { d[i] = fromKey<T>(k); }
    void vec(int64_t i, __m128i v)
    {
        if constexpr (std::is_same_v<T, Kro32f>) {
            const __m128i b = _mm_xor_si128(v, _mm_and_si128(_mm_srai_epi32(v, 31), _mm_set1_epi32(0x7FFFFFFF)));
            _mm_storeu_si128(reinterpret_cast<__m128i*>(d + i), b);
        } else {
            Lanes<T>::store(d + i, v);
        }
    }
};

// ---- the filter ---------------------------------------------------------------------------------

inline bool networkMask(KroiSize m) { return (m.width == 3 && m.height == 3) || (m.width == 5 && m.height == 5); }

// Bytes the median needs beyond the frame: an output row for AC4, the key rows for 32f, and
// the histograms or the sorted windows.
inline int64_t extraBytes(KroiSize roi, KroiSize mask, int64_t e, int64_t n)
{
    const int64_t wb = int64_t(roi.width) + mask.width - 1;
    int64_t bytes = window::align64(int64_t(roi.width) * n * e);
    if (e == 4) bytes += int64_t(mask.height) * window::align64(wb * n * 4);
    const int64_t work = int64_t(mask.width) * mask.height * e;
    if (e == 1 && mask.width == 3 && mask.height == 3) bytes += 3 * window::align64(wb * n); // sorted columns
    bytes += window::align64(std::max<int64_t>(1024 * n, work) + 8 * int64_t(mask.height));
    return bytes;
}

inline KroStatus bufferSize(KroiSize roi, KroiSize mask, KroDataType type, int channels, int* size)
{
    const bool ok = mask.width >= 1 && mask.height >= 1;
    return window::bufferSize(roi, mask, ok, type, channels, size,
                              [&](int64_t e, int64_t n) { return ok ? extraBytes(roi, mask, e, n) : 0; });
}

// Filters after the checks.  `value` holds C elements.
template <class T, int C, int WC>
void run(const T* src, int srcStep, T* dst, int dstStep, KroiSize roi, KroiSize mask, KroiBorderMode code,
         const T* value, Kro8u* buffer)
{
    using K = Key<T>;
    const int64_t w = roi.width, n = w * C, wb = w + mask.width - 1;
    char* extra = window::extraArea<T, C>(buffer, roi, mask);
    T* whole = reinterpret_cast<T*>(extra);
    extra += window::align64(n * int64_t(sizeof(T)));
    K* keyRing = reinterpret_cast<K*>(extra);
    const int64_t keyRow = window::align64(wb * C * 4) / 4;
    if constexpr (std::is_same_v<T, Kro32f>) extra += int64_t(mask.height) * keyRow * 4;
    void* work = extra;
    const int mw = mask.width, mh = mask.height;
    const bool net = networkMask(mask);
    const bool columns = std::is_same_v<T, Kro8u> && mw == 3 && mh == 3;
    const K* keyWin[5];

    window::run<T, C>(src, srcStep, roi, mask, code, value, buffer, [&](int64_t y, const T* const* rows) {
        const K* const* kr;
        if constexpr (std::is_same_v<T, Kro32f>) {
            // Each widened row becomes keys once, in a ring of its own.
            for (int j = y == 0 ? 0 : mh - 1; j < mh; ++j)
                keysOf(rows[j], keyRing + ((y + j) % mh) * keyRow, wb * C);
            const K** kw = reinterpret_cast<const K**>(work) + 0;
            const K** table = net ? keyWin : kw;
            for (int j = 0; j < mh; ++j) table[j] = keyRing + ((y + j) % mh) * keyRow;
            kr = table;
        } else {
            kr = rows;
        }
        T* out = C == WC ? window::rowAt(dst, dstStep, y) : whole;
        Store<T> st{out};
        if (columns) {
            if constexpr (std::is_same_v<T, Kro8u>) { // the rows after the work area
                const int64_t cr = window::align64(wb * C);
                Kro8u* cols = static_cast<Kro8u*>(work) + window::align64(std::max<int64_t>(1024 * C, 9) + 24);
                row3x3Columns<C>(kr, n, cols, cols + cr, cols + 2 * cr, st);
            }
        } else if (net) {
            K local[25];
            if (mw == 3)
                rowNetwork<K, C, 3, 3>(kr, n, local, st);
            else
                rowNetwork<K, C, 5, 5>(kr, n, local, st);
        } else if constexpr (std::is_same_v<T, Kro8u>) {
            rowHistogram<C>(kr, w, mw, mh, reinterpret_cast<int32_t*>(work), st);
        } else {
            K* sorted = reinterpret_cast<K*>(work);
            if constexpr (std::is_same_v<T, Kro32f>) sorted = reinterpret_cast<K*>(static_cast<char*>(work) + 8 * mh);
            rowSorted<K, C>(kr, w, mw, mh, sorted, st);
        }
        if constexpr (C != WC) {
            T* d = window::rowAt(dst, dstStep, y);
            for (int64_t x = 0; x < w; ++x)
                for (int c = 0; c < WC; ++c) d[x * C + c] = whole[x * C + c];
        }
    });
}

}  // namespace KROI_TIER::filter::median
