// Test shapes for typed images: offsets and row padding in whole elements, so that every
// element of a 16- or 32-bit image is aligned for its type (as callers' images are), while
// the rows still start at every alignment a kernel can meet.
#pragma once

#include "support/guarded.hpp"

namespace kt {

template <class T>
Shape typed(Shape s)
{
    s.offset -= s.offset % int(sizeof(T));
    s.padBytes -= s.padBytes % int(sizeof(T));
    return s;
}

}  // namespace kt
