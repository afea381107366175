// Masked copy: a pixel is copied where the 8u mask is non-zero, every other destination
// pixel is left as it was.
#include "convert/copy.hpp"

#include "frame/bind.hpp"
#include "frame/check.hpp"
#include "frame/rows.hpp"

namespace KROI_TIER::convert {

template <class T, Layout L>
KroStatus copyMasked(const T* pSrc, int srcStep, T* pDst, int dstStep, KroiSize roi, const Kro8u* pMask,
                     int maskStep)
{
    KROI_CHECK(check::pointers(pSrc, pDst, pMask));
    KROI_CHECK(check::roi(roi));
    rows::each(
        roi.width, roi.height, [](const T* s, T* d, const Kro8u* m, int w) { maskedRow<T, L>(s, d, m, w, nullptr); },
        rows::image(pSrc, srcStep), rows::image(pDst, dstStep), rows::image(pMask, maskStep));
    return kroStsOk;
}

}  // namespace KROI_TIER::convert

// The list names layouts as template arguments (convert::AC4), which are read here.
namespace convert = KROI_TIER::convert;

#define KROI_EXPORT KROI_BIND
KROI_BIND_LIST {
#include "convert/copy_masked.exports.inc"
}
#undef KROI_EXPORT
