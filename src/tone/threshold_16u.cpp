// The fixed thresholds of 16u images; the rules and row kernels are in threshold_fixed.hpp.
#include "frame/bind.hpp"
#include "tone/threshold_fixed.hpp"

#define KROI_EXPORT KROI_BIND
KROI_BIND_LIST {
#include "tone/threshold_16u.exports.inc"
}
#undef KROI_EXPORT
