// What the layout and comparison tests share: image placements that vary step sign, padding,
// alignment and which side touches a guard page, and a copy of an image's elements taken
// before a call, for the parts the call must leave alone.
#pragma once

#include <vector>

#include "support/guarded.hpp"

namespace lt {

// 0: tight rows ending at a guard page; 1: padded rows starting off 16-byte alignment just
// after one; 2: padded rows stored bottom-up (negative step).  Padding and offset keep the
// elements (up to 4-byte aligned types) on their natural alignment.
constexpr int kPlacements = 3;

inline kt::Shape placed(int w, int h, int c, int placement)
{
    kt::Shape s{w, h, c};
    if (placement == 1) s.padBytes = 12, s.guard = kt::Guard::Before, s.offset = 4;
    if (placement == 2) s.padBytes = 8, s.bottomUp = true;
    return s;
}

template <class T>
struct Elements {
    int w, h, c;
    std::vector<T> v;
    explicit Elements(const kt::Guarded<T>& g) : w(g.width()), h(g.height()), c(g.channels())
    {
        g.forEach([&](int, int, int, const T& e) { v.push_back(e); });
    }
    T operator()(int x, int y, int ch) const { return v[(std::size_t(y) * w + x) * c + ch]; }
};

}  // namespace lt
