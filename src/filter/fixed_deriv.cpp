// The derivative filters (Sobel, Scharr, Prewitt, Roberts): their buffer queries and API functions.
#include "filter/fixed_filter.hpp"
#include "frame/bind.hpp"

namespace filter = KROI_TIER::filter;

#define KROI_EXPORT KROI_BIND
KROI_BIND_LIST {
#include "filter/fixed_deriv.exports.inc"
}
#undef KROI_EXPORT
