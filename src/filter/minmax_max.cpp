// The max filters (grey-level dilation) for every type and layout, and the
// fixed 3x3 64f form.  The min and max halves live in two translation units so that the
// build compiles them in parallel.
#include "filter/minmax_filter.hpp"
#include "frame/bind.hpp"

#define KROI_EXPORT KROI_BIND
KROI_BIND_LIST {
#include "filter/minmax_max.exports.inc"
}
#undef KROI_EXPORT
