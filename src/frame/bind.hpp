// Binding an exported name to its implementation.
//
// Every export is listed once, in the exports.inc beside the translation unit that
// implements it, as
//
//     KROI_EXPORT(kroiMalloc_8u_C1, (frame::mallocImage<Kro8u, 1>))
//
// The implementation is named relative to the tier namespace.  The list is read three times: here, to give the implementation the hidden symbol
// t3_kroiMalloc_8u_C1; by entry.cpp, to lay out the exported stub and its table slot; and
// by the build, to write the linker's export list.  A translation unit ends with
//
//     #define KROI_EXPORT KROI_BIND
//     KROI_BIND_LIST {
//     #include "frame/malloc.exports.inc"
//     }
//     #undef KROI_EXPORT
//
// Entry<impl, type of the header prototype> refuses to compile unless the implementation
// has exactly the prototype's type, so a list line cannot bind a function of the wrong
// signature.  Each entry gets a wrapper of its own (a tail jump, or the body inlined), and
// the t3_ name is an assembler alias of that wrapper; the wrapper is never shared between
// translation units, so the alias always points into code the link keeps.
#pragma once

#include "frame/base.hpp"

#define KROI_UNWRAP(...) __VA_ARGS__

namespace KROI_TIER {

template <auto Impl, class Sig>
struct Entry;

template <auto Impl, class R, class... A>
struct Entry<Impl, R(A...)> {
    static_assert(std::is_same_v<decltype(Impl), R (*)(A...)>,
                  "the implementation's type differs from the prototype in kroi.h");
    static R call(A... a) { return Impl(a...); }
};

}  // namespace KROI_TIER

// Gives Entry<impl, prototype>::call the hidden global name t3_<name>.
#define KROI_BIND(name, impl)                                                          \
    asm(".globl " KROI_PREFIX #name "\n\t.hidden " KROI_PREFIX #name                 \
        "\n\t.type " KROI_PREFIX #name ",@function\n\t.set " KROI_PREFIX #name ",%p0" \
        :                                                                              \
        : "i"(&::KROI_TIER::Entry<&::KROI_TIER::KROI_UNWRAP impl, decltype(::name)>::call));

// The function that holds a translation unit's KROI_BIND lines; it is emitted (and never
// called) only so that its assembler directives reach the object file.
#define KROI_BIND_LIST [[gnu::used]] static void kroiBindEntries()

// Declares api::<name>, the hidden implementation of another export, for a family that
// reuses one through its API function (fills through kroiSet, copies through kroiCopy):
// the call goes straight to t3_<name>, past the exported stub and the table.
#define KROI_INTERNAL(name)                                                             \
    namespace KROI_TIER::api {                                                          \
    __attribute__((visibility("hidden"))) decltype(::name) name asm(KROI_PREFIX #name); \
    }
