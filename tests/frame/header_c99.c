/* The public headers as a strict C99 program sees them (built with -pedantic -Werror);
   header_cxx.cpp compiles this same file as C++. */
#include "kroi.h"
#include "krocore.h"
#include "kroi.h" /* and twice */

int kroi_header_c99_use(void);

int kroi_header_c99_use(void)
{
    KroiSize roi = {64, 32};
    KroiSizeL roiL = {64, 32};
    Kro32fc c = {1.0f, -1.0f};
    KroStatus st = kroStsOk;
    int step = 0;
    Kro8u* p = kroiMalloc_8u_C3(roi.width, roi.height, &step);
    const KroLibraryVersion* v = kroiGetLibVersion();
    kroiFree(p);
    if (ownGetFeature() & kroCpuSSE41) st = kroStsBadSizeErr;
    return st + (int)roiL.width + (int)c.re + v->major;
}
