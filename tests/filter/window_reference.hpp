// The window of a border filter, built from the rule for the median, Gaussian and fixed-kernel
// tests: the ROI widened by the sides in memory is read as is; everything else comes from
// the mode's index rule over that widened extent, or is the constant.  A side the mask does
// not reach past counts as in memory.
#pragma once

#include <cmath>
#include <cstdint>
#include <cstring>
#include <cstdio>
#include <string>

#include "kroi.h"
#include "support/guarded.hpp"

namespace kt {

template <class T>
KroDataType typeCode()
{
    if constexpr (std::is_same_v<T, Kro8u>) return kro8u;
    else if constexpr (std::is_same_v<T, Kro16u>) return kro16u;
    else if constexpr (std::is_same_v<T, Kro16s>) return kro16s;
    else return kro32f;
}

// Equal bits, or both NaN (a NaN's payload is not part of any rule here).
template <class T>
bool sameElement(T a, T b)
{
    if constexpr (std::is_same_v<T, Kro32f>)
        if (std::isnan(a) && std::isnan(b)) return true;
    return std::memcmp(&a, &b, sizeof(T)) == 0;
}

// Border rule over a line of n pixels, stepping instead of taking a modulo.
inline int64_t ruleIndex(unsigned mode, int64_t x, int64_t n)
{
    if (mode == kroBorderReplicate) return x < 0 ? 0 : (x >= n ? n - 1 : x);
    if (n == 1) return 0;
    while (x < 0 || x >= n) x = x < 0 ? -x : 2 * (n - 1) - x;
    return x;
}

struct WindowCase {
    int W, H, mw, mh;
    KroiBorderMode code;
    int margin; // pixels of real memory around the ROI in the source image
    std::string name() const
    {
        char b[96];
        std::snprintf(b, sizeof b, "%dx%d mask %dx%d code 0x%X", W, H, mw, mh, code);
        return b;
    }
};

// Element c of window pixel (i, j) of output (x, y).
template <class T>
T windowAt(const Guarded<T>& src, const WindowCase& k, const T* value, int x, int y, int i, int j, int c)
{
    const int ax = (k.mw - 1) >> 1, ay = (k.mh - 1) >> 1, right = k.mw - 1 - ax, bottom = k.mh - 1 - ay;
    const bool all = k.code == kroBorderInMem;
    const bool mL = all || (k.code & kroBorderInMemLeft) || ax == 0, mR = all || (k.code & kroBorderInMemRight) || right == 0;
    const bool mT = all || (k.code & kroBorderInMemTop) || ay == 0, mB = all || (k.code & kroBorderInMemBottom) || bottom == 0;
    const unsigned mode = k.code & 15u;
    const int64_t xlo = mL ? -ax : 0, xhi = mR ? k.W + right : k.W, ylo = mT ? -ay : 0, yhi = mB ? k.H + bottom : k.H;
    int64_t sx = x - ax + i, sy = y - ay + j;
    const bool outX = sx < xlo || sx >= xhi, outY = sy < ylo || sy >= yhi;
    if ((outX || outY) && mode == kroBorderConstant && !all) return value[c];
    if (outX) sx = xlo + ruleIndex(mode, sx - xlo, xhi - xlo);
    if (outY) sy = ylo + ruleIndex(mode, sy - ylo, yhi - ylo);
    return src.at(int(sx + k.margin), int(sy + k.margin), c);
}

}  // namespace kt
