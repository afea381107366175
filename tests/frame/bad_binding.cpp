// Must not compile: a list line that binds kroiMalloc_8u_C1 to a function whose step pointer
// is 64-bit.  The build would otherwise call it through the prototype's int* and write past
// the caller's step.  Compiled by a test that expects the binding's own diagnostic.
#include "frame/bind.hpp"

namespace KROI_TIER::frame {
Kro8u* wrongStepType(int, int, int64_t*) { return nullptr; }
}  // namespace KROI_TIER::frame

#define KROI_EXPORT KROI_BIND
KROI_BIND_LIST {
KROI_EXPORT(kroiMalloc_8u_C1, (frame::wrongStepType))
}
#undef KROI_EXPORT
