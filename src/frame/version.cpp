// The version record: one constant, the same pointer on every call.
#include "frame/base.hpp"
#include "frame/bind.hpp"
#include "frame/version.h"  // generated: KROI_VERSION_* and KROI_BUILD_DATE

namespace KROI_TIER::frame {

// "t3" and two zero bytes: the tier code is stored in the record, not pointed to.
constexpr KroLibraryVersion kVersion = {
    KROI_VERSION_MAJOR,
    KROI_VERSION_MINOR,
    KROI_VERSION_MAJOR_BUILD,
    KROI_VERSION_BUILD,
    {KROI_STR(KROI_TIER)[0], KROI_STR(KROI_TIER)[1], 0, 0},
    "kroIP " KROI_TIER_ISA " (" KROI_STR(KROI_TIER) ")",
    KROI_VERSION_STRING,
    KROI_BUILD_DATE,
};

const KroLibraryVersion* getLibVersion() { return &kVersion; }

}  // namespace KROI_TIER::frame

#define KROI_EXPORT KROI_BIND
KROI_BIND_LIST {
#include "frame/version.exports.inc"
}
#undef KROI_EXPORT
