// The exported entry points.
//
// Every exported name is a 16-byte stub that does nothing but jump through its own slot of
// t3_kroEntryTable, an array of code pointers in writable data.  Each slot holds the address
// of the hidden t3_<name> implementation and is filled by the loader through a relative
// relocation, so name and implementation are bound once, at load, and never change.
//
// Stubs and slots are laid out from the one export list (exports.inc), in its order.  This
// file sees only the public header: it checks that every listed name is declared there and
// instantiates nothing.
#include "frame/base.hpp"

asm(".pushsection .data.rel.kroi_entry,\"aw\",@progbits\n\t"
    ".p2align 6\n\t"
    ".globl " KROI_PREFIX "kroEntryTable\n\t"
    ".hidden " KROI_PREFIX "kroEntryTable\n\t"
    ".type " KROI_PREFIX "kroEntryTable,@object\n"
    KROI_PREFIX "kroEntryTable:\n\t"
    ".popsection");

#define KROI_EXPORT(name, impl)                                                           \
    static_assert(std::is_function_v<decltype(::name)>, #name " is not declared in kroi.h"); \
    asm(".pushsection .data.rel.kroi_entry,\"aw\",@progbits\n"                             \
        ".Lkroi_slot_" #name ":\n\t"                                                      \
        ".quad " KROI_PREFIX #name "\n\t"                                                 \
        ".popsection\n\t"                                                                 \
        ".pushsection .text.kroi_entry,\"ax\",@progbits\n\t"                              \
        ".p2align 4,0xcc\n\t"                                                             \
        ".globl " #name "\n\t"                                                            \
        ".type " #name ",@function\n" #name ":\n\t"                                       \
        "jmp *.Lkroi_slot_" #name "(%rip)\n\t"                                            \
        ".p2align 4,0xcc\n\t"                                                             \
        ".size " #name ",.-" #name "\n\t"                                                 \
        ".popsection");
#include "exports.inc"
#undef KROI_EXPORT

asm(".pushsection .data.rel.kroi_entry,\"aw\",@progbits\n\t"
    ".globl " KROI_PREFIX "kroEntryTableEnd\n\t"
    ".hidden " KROI_PREFIX "kroEntryTableEnd\n"
    KROI_PREFIX "kroEntryTableEnd:\n\t"
    ".size " KROI_PREFIX "kroEntryTable," KROI_PREFIX "kroEntryTableEnd-" KROI_PREFIX "kroEntryTable\n\t"
    ".popsection");
