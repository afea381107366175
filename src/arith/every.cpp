// The exported MinEvery and MaxEvery functions, bound to the templates of unary_api.hpp.
#include "arith/unary_api.hpp"
#include "frame/bind.hpp"

namespace arith = KROI_TIER::arith;

#define KROI_EXPORT KROI_BIND
KROI_BIND_LIST {
#include "arith/every.exports.inc"
}
#undef KROI_EXPORT
