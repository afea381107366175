// The 64-bit (_L) forms, written once.
//
// A _L function either forwards to its 32-bit sibling, narrowed, when its steps and size
// fit that sibling's arguments, or walks the image row by row and hands each row, in pieces,
// to the operation's one-dimensional row function.  Families differ in the forwarding test
// and the piece length, so both come from a Rule:
//
//   struct Rule {
//       static bool narrowable(const int64_t* steps, int n, KroiSizeL roi);
//       static constexpr int64_t kPiece;     // pixels per row piece
//   };
//
// The row function checks its own pointers and length; the first negative status ends the
// call, otherwise the last piece's status is returned.
#pragma once

#include <climits>
#include <cstddef>

#include "frame/base.hpp"

namespace KROI_TIER::longform {

// The arithmetic families: forward while every |step| and |width x height| are below
// 0x7FFFFFFF; otherwise pieces of at most 0x3FFFFFFF pixels.
struct ArithRule {
    static constexpr int64_t kLimit = 0x7FFFFFFF;
    static constexpr int64_t kPiece = 0x3FFFFFFF;

    static bool narrowable(const int64_t* steps, int n, KroiSizeL roi)
    {
        for (int i = 0; i < n; ++i)
            if (!below(steps[i])) return false;
        int64_t area;
        if (__builtin_mul_overflow(roi.width, roi.height, &area)) return false;
        return below(area);
    }
    // |v| < kLimit without overflowing at INT64_MIN.
    static constexpr bool below(int64_t v) { return v > -kLimit && v < kLimit; }
};

// Address of row y of an image with 64-bit step.
template <class T>
inline T* row(T* p, int64_t step, int64_t y)
{
    using Byte = std::conditional_t<std::is_const_v<T>, const char, char>;
    return reinterpret_cast<T*>(reinterpret_cast<Byte*>(p) + y * step);
}

// Runs a _L call.  `narrow(steps32, roi32)` calls the 32-bit sibling with the narrowed
// steps (same order as `steps`) and size; `piece(y, x, len)` calls the row function on
// pixels [x, x + len) of row y.  A row always yields at least one piece, so that a width
// below 1 on the long path reaches the row function and is reported by it.
template <class Rule, std::size_t N, class Narrow, class Piece>
KroStatus run(const int64_t (&steps)[N], KroiSizeL roi, Narrow&& narrow, Piece&& piece)
{
    if (Rule::narrowable(steps, int(N), roi)) {
        int steps32[N];
        for (std::size_t i = 0; i < N; ++i) steps32[i] = static_cast<int>(steps[i]);
        return narrow(steps32, KroiSize{static_cast<int>(roi.width), static_cast<int>(roi.height)});
    }
    if (roi.height < 1) return kroStsOk;
    KroStatus status = kroStsOk;
    for (int64_t y = 0; y < roi.height; ++y) {
        for (int64_t x = 0;; x += Rule::kPiece) {
            const int64_t left = roi.width - x;
            // A width below 1 goes to the row function as a length below 1 of its own: the
            // low 32 bits of a width under INT_MIN may be positive, so it is not narrowed.
            const int len = left < 1 ? (left < INT_MIN ? INT_MIN : static_cast<int>(left))
                                     : static_cast<int>(left < Rule::kPiece ? left : Rule::kPiece);
            status = piece(y, x, len);
            if (status < 0) return status;
            if (left <= Rule::kPiece) break;
        }
    }
    return status;
}

}  // namespace KROI_TIER::longform
