// The exported SubC functions: every type, layout and form, bound to the templates of
// const_api.hpp.
#include "arith/const_api.hpp"
#include "frame/bind.hpp"

// The list names the templates relative to the tier namespace.
namespace arith = KROI_TIER::arith;

#define KROI_EXPORT KROI_BIND
KROI_BIND_LIST {
#include "arith/const_sub.exports.inc"
}
#undef KROI_EXPORT
