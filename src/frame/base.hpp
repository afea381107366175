// Common ground of every kroIP translation unit: the public header, the tier namespace and
// the one macro that every API function uses to return the first failed check.
#pragma once

#include <cstdint>
#include <type_traits>

#include "kroi.h"

// Internal code lives in a namespace named for the processor tier, and internal symbols
// carry the tier's prefix, so that other tiers can be built from the same sources and
// loaded side by side without their symbols meeting.
#ifndef KROI_TIER
#define KROI_TIER t3
#endif
#define KROI_STR2(x) #x
#define KROI_STR(x) KROI_STR2(x)
#define KROI_PREFIX KROI_STR(KROI_TIER) "_"

namespace KROI_TIER {}
namespace tier = KROI_TIER;

// Returns the status of `expr` from the enclosing function unless it is kroStsOk.
// Checks stay sequential early returns: a later check may read through a pointer that an
// earlier one vetted.
#define KROI_CHECK(expr)                                                   \
    do {                                                                   \
        if (const KroStatus kroi_status_ = (expr); kroi_status_ != kroStsOk) \
            return kroi_status_;                                           \
    } while (0)
