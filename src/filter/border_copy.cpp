// The exported border copies: checks in the family's order, then one kernel of
// border_copy.hpp.  Every form is a thin adapter onto copyR / copyIR, which take 64-bit
// sizes; the 32-bit forms widen their arguments and check exactly as the _L forms do.
#include "filter/border_copy.hpp"

#include "frame/bind.hpp"
#include "frame/check.hpp"

namespace KROI_TIER::border {

namespace {

template <class T>
using Bits = std::conditional_t<sizeof(T) == 1, uint8_t, std::conditional_t<sizeof(T) == 2, uint16_t, uint32_t>>;

constexpr KroiSizeL wide(KroiSize s) { return {s.width, s.height}; }

// Source and destination extents: each at least 1, borders not negative, and the
// destination large enough for the source at (left, top).
KroStatus sizes(KroiSizeL s, KroiSizeL d, int64_t top, int64_t left)
{
    if (s.width < 1 || s.height < 1 || d.width < 1 || d.height < 1 || top < 0 || left < 0 ||
        d.width - left < s.width || d.height - top < s.height)
        return kroStsBadSizeErr;
    return kroStsOk;
}

// The in-place form: pointer, step, sizes, then (multi-channel constant) the value.
template <Mode M, class T, int C, int WC>
KroStatus copyIR(T* p, int64_t step, KroiSizeL s, KroiSizeL d, int64_t top, int64_t left, const T* value)
{
    KROI_CHECK(check::pointers(p));
    KROI_CHECK(check::steps(step));
    KROI_CHECK(sizes(s, d, top, left));
    if constexpr (M == Mode::Constant && C > 1) KROI_CHECK(check::pointers(value));
    using B = Bits<T>;
    copyBorderInPlace<B, C, WC>(reinterpret_cast<B*>(p), step, CopyShape{s.width, s.height, d.width, d.height, top, left},
                                M, reinterpret_cast<const B*>(value));
    return kroStsOk;
}

// The out-of-place form.  Replicate and mirror hand pSrc == pDst to the in-place form before
// any check; wrap does so only after its own checks; the constant copy never does (equal
// pointers are then an ordinary overlapping copy, done in the copy order).
template <Mode M, class T, int C, int WC>
KroStatus copyR(const T* s, int64_t ss, KroiSizeL sr, T* d, int64_t ds, KroiSizeL dr, int64_t top, int64_t left,
                const T* value)
{
    if constexpr (M == Mode::Replicate || M == Mode::Mirror)
        if (s == d) return copyIR<M, T, C, WC>(d, ds, sr, dr, top, left, value);
    KROI_CHECK(check::pointers(s, d));
    KROI_CHECK(check::steps(ss, ds));
    KROI_CHECK(sizes(sr, dr, top, left));
    if constexpr (M == Mode::Constant && C > 1) KROI_CHECK(check::pointers(value));
    if constexpr (M == Mode::Wrap)
        if (s == d) return copyIR<M, T, C, WC>(d, ds, sr, dr, top, left, value);
    using B = Bits<T>;
    copyBorder<B, C, WC>(reinterpret_cast<const B*>(s), ss, reinterpret_cast<B*>(d), ds,
                         CopyShape{sr.width, sr.height, dr.width, dr.height, top, left}, M,
                         reinterpret_cast<const B*>(value));
    return kroStsOk;
}

}  // namespace

// ---- the exported shapes ---------------------------------------------------------------
// The list names them as border::<Mode>::<form><T, C, WC>: the forms R, RL (R_L), IR and IRL
// (IR_L) of each mode, the constant ones with the value by value for one channel (R1 ...).

template <Mode M>
struct Copies {
    template <class T, int C, int WC>
    static KroStatus R(const T* s, int ss, KroiSize sr, T* d, int ds, KroiSize dr, int top, int left)
    {
        return copyR<M, T, C, WC>(s, ss, wide(sr), d, ds, wide(dr), top, left, nullptr);
    }
    template <class T, int C, int WC>
    static KroStatus RL(const T* s, int64_t ss, KroiSizeL sr, T* d, int64_t ds, KroiSizeL dr, int64_t top,
                        int64_t left)
    {
        return copyR<M, T, C, WC>(s, ss, sr, d, ds, dr, top, left, nullptr);
    }
    template <class T, int C, int WC>
    static KroStatus IR(T* p, int step, KroiSize sr, KroiSize dr, int top, int left)
    {
        return copyIR<M, T, C, WC>(p, step, wide(sr), wide(dr), top, left, nullptr);
    }
    template <class T, int C, int WC>
    static KroStatus IRL(T* p, int64_t step, KroiSizeL sr, KroiSizeL dr, int64_t top, int64_t left)
    {
        return copyIR<M, T, C, WC>(p, step, sr, dr, top, left, nullptr);
    }
};
using Replicate = Copies<Mode::Replicate>;
using Mirror = Copies<Mode::Mirror>;
using Wrap = Copies<Mode::Wrap>;

struct Constant {
    static constexpr Mode M = Mode::Constant;
    template <class T>
    static KroStatus R1(const T* s, int ss, KroiSize sr, T* d, int ds, KroiSize dr, int top, int left, T v)
    {
        return copyR<M, T, 1, 1>(s, ss, wide(sr), d, ds, wide(dr), top, left, &v);
    }
    template <class T>
    static KroStatus RL1(const T* s, int64_t ss, KroiSizeL sr, T* d, int64_t ds, KroiSizeL dr, int64_t top,
                         int64_t left, T v)
    {
        return copyR<M, T, 1, 1>(s, ss, sr, d, ds, dr, top, left, &v);
    }
    template <class T>
    static KroStatus IR1(T* p, int step, KroiSize sr, KroiSize dr, int top, int left, T v)
    {
        return copyIR<M, T, 1, 1>(p, step, wide(sr), wide(dr), top, left, &v);
    }
    template <class T>
    static KroStatus IRL1(T* p, int64_t step, KroiSizeL sr, KroiSizeL dr, int64_t top, int64_t left, T v)
    {
        return copyIR<M, T, 1, 1>(p, step, sr, dr, top, left, &v);
    }
    template <class T, int C, int WC>
    static KroStatus R(const T* s, int ss, KroiSize sr, T* d, int ds, KroiSize dr, int top, int left, const T* v)
    {
        return copyR<M, T, C, WC>(s, ss, wide(sr), d, ds, wide(dr), top, left, v);
    }
    template <class T, int C, int WC>
    static KroStatus RL(const T* s, int64_t ss, KroiSizeL sr, T* d, int64_t ds, KroiSizeL dr, int64_t top,
                        int64_t left, const T* v)
    {
        return copyR<M, T, C, WC>(s, ss, sr, d, ds, dr, top, left, v);
    }
    template <class T, int C, int WC>
    static KroStatus IR(T* p, int step, KroiSize sr, KroiSize dr, int top, int left, const T* v)
    {
        return copyIR<M, T, C, WC>(p, step, wide(sr), wide(dr), top, left, v);
    }
    template <class T, int C, int WC>
    static KroStatus IRL(T* p, int64_t step, KroiSizeL sr, KroiSizeL dr, int64_t top, int64_t left, const T* v)
    {
        return copyIR<M, T, C, WC>(p, step, sr, dr, top, left, v);
    }
};

}  // namespace KROI_TIER::border

#define KROI_EXPORT KROI_BIND
KROI_BIND_LIST {
#include "filter/border_copy.exports.inc"
}
#undef KROI_EXPORT
