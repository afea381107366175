/*
 * kroi.h -- kroIP image-processing primitives, libkroit3.so.10 (x86-64, SSE3 tier "t3").
 *
 * This header is the reference manual of the image library.  It holds the shared types,
 * the status codes and every exported function, family by family, each family with a
 * short note on what it computes, how it rounds and which status codes it returns.
 *
 * Calling model
 *   An image argument is a typed pointer to the first pixel of the region of interest
 *   (ROI), a row step in bytes (distance between the starts of two rows; signed 32-bit,
 *   signed 64-bit in the _L forms) and the ROI size, given once per call.  Channels are
 *   interleaved (C3: three elements per pixel) unless the name says planar (P3, P4).
 *   AC4 images have four channels of which the fourth (alpha) is neither read nor written.
 *
 *   Argument order: each source's pointer and step, the destination's pointer and step,
 *   the ROI size, then the operation's parameters.  In-place (I) forms take the constant
 *   or the second source first, then the source-destination pointer and step, the size.
 *
 *   Checks run in a fixed order per family, normally pointers (-8), size (-6), steps (-16)
 *   where the family checks them, then the operation's parameters.  The first failing
 *   check is returned and nothing is written.  Zero is success; a positive status is a
 *   warning and the whole output was written.
 *
 *   Integer results with a scale factor (Sfs) are the exact result times 2^-scaleFactor,
 *   rounded to nearest with ties to even, then saturated to the destination type.
 *
 *   _L forms take 64-bit steps and a KroiSizeL.  When every |step| and |width x height|
 *   are below 0x7FFFFFFF they forward to the 32-bit function, which makes all its checks.
 *   Otherwise a height below 1 returns 0 at once, and each row is processed in pieces of
 *   at most 0x3FFFFFFF pixels by the operation's one-row kernel, which checks its own
 *   pointers and length (a row always yields at least one piece, so a width below 1
 *   reports -6); the first negative status ends the call, otherwise the last piece's
 *   status is returned.  Rows finished before an error stay written.
 *
 *   Every function is stateless and may be called from any number of threads at once,
 *   provided outputs and work buffers do not overlap.  Float-to-integer functions set the
 *   SSE rounding control for the call and restore the caller's value before returning.
 *
 * The core services (allocation, cache size, processor features) are declared in krocore.h,
 * which this header includes.
 */
#ifndef KROI_H
#define KROI_H

#include <stddef.h>
#include <stdint.h>

#include "krocore.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---------------------------------------------------------------------------------------
 * Pixel element types, named by the codes used in function names.
 * ------------------------------------------------------------------------------------- */
typedef uint8_t  Kro8u;
typedef int8_t   Kro8s;
typedef uint16_t Kro16u;
typedef int16_t  Kro16s;
typedef uint32_t Kro32u;
typedef int32_t  Kro32s;
typedef int64_t  Kro64s;
typedef uint64_t Kro64u;
typedef float    Kro32f;
typedef double   Kro64f;
typedef struct { Kro16s re, im; } Kro16sc;
typedef struct { Kro32s re, im; } Kro32sc;
typedef struct { Kro32f re, im; } Kro32fc;
typedef struct { Kro64f re, im; } Kro64fc;

/* ---------------------------------------------------------------------------------------
 * Sizes and geometry.  KroiSize is passed by value (one 64-bit register: width low,
 * height high); KroiSizeL is the 64-bit form taken by the _L functions.
 * ------------------------------------------------------------------------------------- */
typedef struct { int32_t width, height; } KroiSize;
typedef struct { int64_t width, height; } KroiSizeL;
typedef struct { int32_t x, y; } KroiPoint;
typedef struct { int32_t x, y, width, height; } KroiRect;
typedef struct { uint32_t left, top, right, bottom; } KroiBorderSize;

/* ---------------------------------------------------------------------------------------
 * Status codes.  0 success; negative: error, nothing was written to any output;
 * positive: warning, the output was written.
 * ------------------------------------------------------------------------------------- */
/* KroStatus itself (a signed 32-bit integer) is declared in krocore.h. */
enum {
    kroStsOk                    =    0, /* success */
    kroStsNothingDoneWarn       =    1, /* a size argument is zero: nothing to do, nothing written */
    kroStsZeroDivisorWarn       =    2, /* a division met a zero divisor; all output written */
    kroStsNegativeRootWarn      =    3, /* a square root met a negative argument */
    kroStsNonPositiveLogWarn    =    7, /* a logarithm met a zero or negative argument */
    kroStsQuadAdjustedWarn      =   28, /* quadrangle is no parallelogram: fourth vertex ignored */
    kroStsRoiOutsideWarn        =   29, /* source region origin outside the image: nothing done */
    kroStsNoOverlapWarn         =   30, /* mapped source misses the destination: nothing written */
    kroStsNoAntialiasWarn       =   46, /* antialiasing requested where it does not apply */
    kroStsTileClippedWarn       =   48, /* destination tile larger than the specification: clipped */

    kroStsBadArgumentErr        =   -5, /* argument outside its allowed set */
    kroStsBadSizeErr            =   -6, /* ROI width or height < 1, or another size out of range */
    kroStsBadRangeErr           =   -7, /* lower bound not below the upper bound */
    kroStsNullPointerErr        =   -8, /* a required pointer is null */
    kroStsNoMemoryErr           =   -9, /* a temporary buffer could not be sized or obtained */
    kroStsZeroDivisorErr        =  -10, /* an integer constant divisor is zero */
    kroStsOutsideRangeErr       =  -11, /* position or bit count outside its allowed range */
    kroStsEmptyScaleRangeErr    =  -12, /* float range maximum not greater than its minimum */
    kroStsWrongTagErr           =  -13, /* specification or state of the wrong kind */
    kroStsUnsupportedModeErr    =  -14, /* mode or parameter combination not supported */
    kroStsBadStepErr            =  -16, /* row step < 1 (or too small where the family says so) */
    kroStsTransformOrderErr     =  -17, /* transform order above 30 */
    kroStsTransformFlagErr      =  -18, /* transform normalisation flag not 1, 2, 4 or 8 */
    kroStsThresholdOrderErr     =  -19, /* lower threshold greater than the upper */
    kroStsZeroMassErr           =  -21, /* zero-order moment too small */
    kroStsBadFlipErr            =  -22, /* in-place mirror axis not allowed */
    kroStsBadInterpolationErr   =  -23, /* interpolation code not allowed */
    kroStsBadFactorErr          =  -24, /* volume resize factor not greater than 0 */
    kroStsBadMaskErr            =  -33, /* mask or kernel size invalid */
    kroStsBadAnchorErr          =  -34, /* anchor outside the mask */
    kroStsNegativeToleranceErr  =  -36, /* comparison tolerance below 0 */
    kroStsShortStepErr          =  -37, /* row step smaller than the bytes of one row */
    kroStsBadChannelErr         =  -47, /* channel index or channel argument not supported */
    kroStsZeroParameterErr      =  -49, /* a parameter the method needs non-zero is zero */
    kroStsBadAlphaOpErr         =  -50, /* alpha composition operation above 11 */
    kroStsZeroFilterDivisorErr  =  -51, /* filter divisor of zero */
    kroStsBadChannelCountErr    =  -53, /* channel count not among the allowed */
    kroStsSingularTransformErr  =  -56, /* transform coefficients are singular */
    kroStsSmallRectErr          =  -57, /* rectangle narrower or lower than 2 pixels */
    kroStsBadQuadErr            =  -58, /* quadrangle degenerate or not convex */
    kroStsBadDataTypeErr        =  -59, /* data type code not supported */
    kroStsBadChannelOrderErr    =  -60, /* channel order index outside 0..3 */
    kroStsFewLutLevelsErr       = -106, /* lookup table with fewer than 2 levels */
    kroStsFewHistLevelsErr      = -107, /* histogram with fewer than 2 levels */
    kroStsOddStepErr            = -108, /* step that must be a multiple of the element size */
    kroStsNegativeNoiseErr      = -125, /* noise power below 0 */
    kroStsBadWeightErr          = -211, /* centre weight <= 0 */
    kroStsBadFractionErr        = -212, /* decimation fraction not supported */
    kroStsBadRoundModeErr       = -213, /* rounding mode not 0, 1 or 2 */
    kroStsBadBorderErr          = -225, /* border type invalid */
    kroStsOddPositionErr        = -227, /* offset or size that must be even is odd */
    kroStsBadAlgorithmErr       = -228, /* algorithm code above 2 */
    kroStsBadDirectionErr       = -231, /* warp direction not 0 or 1 */
    kroStsSizeLimitErr          = -232, /* dimension above 0x1FFFFFF in a size query */
    kroStsBadTransformKindErr   = -233  /* quadrangle warp transform kind not 0 or 1 */
};

/* ---------------------------------------------------------------------------------------
 * Parameter codes shared by several families.
 * ------------------------------------------------------------------------------------- */

/* Data type codes taken by queries and initialisers; other values give -59 where checked. */
typedef int32_t KroDataType;
enum { kro8u = 1, kro16u = 5, kro16s = 7, kro32f = 13, kro64f = 19 };

/* Rounding of float-to-integer results. */
typedef int32_t KroRoundMode;
enum {
    kroRndZero     = 0, /* toward zero */
    kroRndNear     = 1, /* to nearest, ties to even */
    kroRndNearAway = 2  /* to nearest, ties away from zero */
};

/* Accuracy hint: 2 selects the accurate (wider-precision) kernel, any other value the fast one. */
typedef int32_t KroAlgorithmHint;
enum { kroHintNone = 0, kroHintFast = 1, kroHintAccurate = 2 };

/* Interpolation codes. */
enum {
    kroInterNearest = 1,
    kroInterLinear  = 2,
    kroInterCubic   = 6,
    kroInterSuper   = 8,
    kroInterLanczos = 16
};

/* Comparison relations: src1 OP src2 (or src OP constant). */
typedef int32_t KroCompareOp;
enum {
    kroCompareLess      = 0,
    kroCompareLessEq    = 1,
    kroCompareEq        = 2,
    kroCompareGreaterEq = 3,
    kroCompareGreater   = 4
};

/* Border code: the low nibble is the mode, the high nibble four in-memory flags.  A flag says
 * that the pixels on that side of the ROI are real image memory and are read, not synthesised.
 * Codes above 255 are invalid everywhere. */
typedef uint32_t KroiBorderMode;
enum {
    kroBorderReplicate    = 1,    /* clamp to the nearest edge pixel */
    kroBorderMirror       = 3,    /* reflect about the edge pixel, which is not repeated */
    kroBorderReplicateAlt = 4,    /* geometric families only, as each defines it */
    kroBorderConstant     = 6,    /* a caller-supplied value per channel */
    kroBorderTransparent  = 7,    /* affine warp only: outside positions leave dst unwritten */
    kroBorderInMemTop     = 0x10,
    kroBorderInMemBottom  = 0x20,
    kroBorderInMemLeft    = 0x40,
    kroBorderInMemRight   = 0x80,
    kroBorderInMem        = 0xF0  /* all four sides in memory; the mode is then ignored */
};

/* Alpha-composition operations, colours s1, s2 with alphas a1, a2 in [0, 1]. */
typedef int32_t KroiAlphaOp;
enum {
    kroAlphaOver        = 0,  /* s1*a1 + s2*a2*(1-a1) */
    kroAlphaIn          = 1,  /* s1*a1*a2 */
    kroAlphaOut         = 2,  /* s1*a1*(1-a2) */
    kroAlphaAtop        = 3,  /* s1*a1*a2 + s2*a2*(1-a1) */
    kroAlphaXor         = 4,  /* s1*a1*(1-a2) + s2*a2*(1-a1) */
    kroAlphaPlus        = 5,  /* s1*a1 + s2*a2 */
    kroAlphaOverPremul  = 6,  /* s1 + s2*(1-a1); colours already multiplied by alpha */
    kroAlphaInPremul    = 7,  /* s1*a2 */
    kroAlphaOutPremul   = 8,  /* s1*(1-a2) */
    kroAlphaAtopPremul  = 9,  /* s1*a2 + s2*(1-a1) */
    kroAlphaXorPremul   = 10, /* s1*(1-a2) + s2*(1-a1) */
    kroAlphaPlusPremul  = 11  /* s1 + s2 */
};

/* ---------------------------------------------------------------------------------------
 * Version record.
 * ------------------------------------------------------------------------------------- */
typedef struct {
    int32_t     major;        /* release year */
    int32_t     minor;
    int32_t     majorBuild;
    int32_t     build;        /* build number, printed in hexadecimal inside Version */
    char        targetCpu[4]; /* tier code "t3" and two zero bytes */
    const char* Name;         /* "kroIP SSE3 (t3)" */
    const char* Version;      /* "major.minor.majorBuild (r0x%08x)" */
    const char* BuildDate;    /* "Mon D YYYY", e.g. "Nov 22 2026" */
} KroLibraryVersion;

/* kroiGetLibVersion: the library's constant version record.  Takes nothing, checks nothing,
 * returns the same pointer on every call; the record and its strings live as long as the
 * library and are never freed. */
const KroLibraryVersion* kroiGetLibVersion(void);

/* ---------------------------------------------------------------------------------------
 * Image allocation.
 *
 * kroiMalloc_<type>_<layout>(width, height, pStep) returns a block for a width x height image
 * whose every row starts on a 64-byte boundary, and stores the row step in *pStep; the block
 * is released with kroiFree.  The step is the row's bytes rounded up to a multiple of 64.
 *   - pStep null: null is returned and nothing is written.
 *   - width or height below 1, or a row of more than 0x7FFFFFFF bytes: *pStep = 0, null.
 *   - total bytes (step x height) above 0x7FFFFFFF, or no memory: null, with *pStep holding
 *     the step.  A row of 0x7FFFFFC1..0x7FFFFFFF bytes rounds to a step of 0x80000000,
 *     which is stored as the negative step -2147483648 beside a null result.
 * The _L forms take 64-bit width, height and step and ask for up to 2^63-1 bytes:
 *   - pStep null: null.  width or height below 1, or a row size that overflows 64 bits when
 *     rounded to 64: *pStep = 0, null.
 *   - step x height that overflows: null with the step stored.
 * ------------------------------------------------------------------------------------- */
Kro8u*   kroiMalloc_8u_C1(int widthPixels, int heightPixels, int* pStepBytes);
Kro8u*   kroiMalloc_8u_C2(int widthPixels, int heightPixels, int* pStepBytes);
Kro8u*   kroiMalloc_8u_C3(int widthPixels, int heightPixels, int* pStepBytes);
Kro8u*   kroiMalloc_8u_C4(int widthPixels, int heightPixels, int* pStepBytes);
Kro8u*   kroiMalloc_8u_AC4(int widthPixels, int heightPixels, int* pStepBytes);
Kro16u*  kroiMalloc_16u_C1(int widthPixels, int heightPixels, int* pStepBytes);
Kro16u*  kroiMalloc_16u_C2(int widthPixels, int heightPixels, int* pStepBytes);
Kro16u*  kroiMalloc_16u_C3(int widthPixels, int heightPixels, int* pStepBytes);
Kro16u*  kroiMalloc_16u_C4(int widthPixels, int heightPixels, int* pStepBytes);
Kro16u*  kroiMalloc_16u_AC4(int widthPixels, int heightPixels, int* pStepBytes);
Kro16s*  kroiMalloc_16s_C1(int widthPixels, int heightPixels, int* pStepBytes);
Kro16s*  kroiMalloc_16s_C2(int widthPixels, int heightPixels, int* pStepBytes);
Kro16s*  kroiMalloc_16s_C3(int widthPixels, int heightPixels, int* pStepBytes);
Kro16s*  kroiMalloc_16s_C4(int widthPixels, int heightPixels, int* pStepBytes);
Kro16s*  kroiMalloc_16s_AC4(int widthPixels, int heightPixels, int* pStepBytes);
Kro32s*  kroiMalloc_32s_C1(int widthPixels, int heightPixels, int* pStepBytes);
Kro32s*  kroiMalloc_32s_C2(int widthPixels, int heightPixels, int* pStepBytes);
Kro32s*  kroiMalloc_32s_C3(int widthPixels, int heightPixels, int* pStepBytes);
Kro32s*  kroiMalloc_32s_C4(int widthPixels, int heightPixels, int* pStepBytes);
Kro32s*  kroiMalloc_32s_AC4(int widthPixels, int heightPixels, int* pStepBytes);
Kro32f*  kroiMalloc_32f_C1(int widthPixels, int heightPixels, int* pStepBytes);
Kro32f*  kroiMalloc_32f_C2(int widthPixels, int heightPixels, int* pStepBytes);
Kro32f*  kroiMalloc_32f_C3(int widthPixels, int heightPixels, int* pStepBytes);
Kro32f*  kroiMalloc_32f_C4(int widthPixels, int heightPixels, int* pStepBytes);
Kro32f*  kroiMalloc_32f_AC4(int widthPixels, int heightPixels, int* pStepBytes);
Kro32sc* kroiMalloc_32sc_C1(int widthPixels, int heightPixels, int* pStepBytes);
Kro32sc* kroiMalloc_32sc_C2(int widthPixels, int heightPixels, int* pStepBytes);
Kro32sc* kroiMalloc_32sc_C3(int widthPixels, int heightPixels, int* pStepBytes);
Kro32sc* kroiMalloc_32sc_C4(int widthPixels, int heightPixels, int* pStepBytes);
Kro32sc* kroiMalloc_32sc_AC4(int widthPixels, int heightPixels, int* pStepBytes);
Kro32fc* kroiMalloc_32fc_C1(int widthPixels, int heightPixels, int* pStepBytes);
Kro32fc* kroiMalloc_32fc_C2(int widthPixels, int heightPixels, int* pStepBytes);
Kro32fc* kroiMalloc_32fc_C3(int widthPixels, int heightPixels, int* pStepBytes);
Kro32fc* kroiMalloc_32fc_C4(int widthPixels, int heightPixels, int* pStepBytes);
Kro32fc* kroiMalloc_32fc_AC4(int widthPixels, int heightPixels, int* pStepBytes);

Kro8u*   kroiMalloc_8u_C1_L(int64_t widthPixels, int64_t heightPixels, int64_t* pStepBytes);
Kro8u*   kroiMalloc_8u_C2_L(int64_t widthPixels, int64_t heightPixels, int64_t* pStepBytes);
Kro8u*   kroiMalloc_8u_C3_L(int64_t widthPixels, int64_t heightPixels, int64_t* pStepBytes);
Kro8u*   kroiMalloc_8u_C4_L(int64_t widthPixels, int64_t heightPixels, int64_t* pStepBytes);
Kro8u*   kroiMalloc_8u_AC4_L(int64_t widthPixels, int64_t heightPixels, int64_t* pStepBytes);
Kro16u*  kroiMalloc_16u_C1_L(int64_t widthPixels, int64_t heightPixels, int64_t* pStepBytes);
Kro16u*  kroiMalloc_16u_C2_L(int64_t widthPixels, int64_t heightPixels, int64_t* pStepBytes);
Kro16u*  kroiMalloc_16u_C3_L(int64_t widthPixels, int64_t heightPixels, int64_t* pStepBytes);
Kro16u*  kroiMalloc_16u_C4_L(int64_t widthPixels, int64_t heightPixels, int64_t* pStepBytes);
Kro16u*  kroiMalloc_16u_AC4_L(int64_t widthPixels, int64_t heightPixels, int64_t* pStepBytes);
Kro16s*  kroiMalloc_16s_C1_L(int64_t widthPixels, int64_t heightPixels, int64_t* pStepBytes);
Kro16s*  kroiMalloc_16s_C2_L(int64_t widthPixels, int64_t heightPixels, int64_t* pStepBytes);
Kro16s*  kroiMalloc_16s_C3_L(int64_t widthPixels, int64_t heightPixels, int64_t* pStepBytes);
Kro16s*  kroiMalloc_16s_C4_L(int64_t widthPixels, int64_t heightPixels, int64_t* pStepBytes);
Kro16s*  kroiMalloc_16s_AC4_L(int64_t widthPixels, int64_t heightPixels, int64_t* pStepBytes);
Kro32s*  kroiMalloc_32s_C1_L(int64_t widthPixels, int64_t heightPixels, int64_t* pStepBytes);
Kro32s*  kroiMalloc_32s_C2_L(int64_t widthPixels, int64_t heightPixels, int64_t* pStepBytes);
Kro32s*  kroiMalloc_32s_C3_L(int64_t widthPixels, int64_t heightPixels, int64_t* pStepBytes);
Kro32s*  kroiMalloc_32s_C4_L(int64_t widthPixels, int64_t heightPixels, int64_t* pStepBytes);
Kro32s*  kroiMalloc_32s_AC4_L(int64_t widthPixels, int64_t heightPixels, int64_t* pStepBytes);
Kro32f*  kroiMalloc_32f_C1_L(int64_t widthPixels, int64_t heightPixels, int64_t* pStepBytes);
Kro32f*  kroiMalloc_32f_C2_L(int64_t widthPixels, int64_t heightPixels, int64_t* pStepBytes);
Kro32f*  kroiMalloc_32f_C3_L(int64_t widthPixels, int64_t heightPixels, int64_t* pStepBytes);
Kro32f*  kroiMalloc_32f_C4_L(int64_t widthPixels, int64_t heightPixels, int64_t* pStepBytes);
Kro32f*  kroiMalloc_32f_AC4_L(int64_t widthPixels, int64_t heightPixels, int64_t* pStepBytes);
Kro32sc* kroiMalloc_32sc_C1_L(int64_t widthPixels, int64_t heightPixels, int64_t* pStepBytes);
Kro32sc* kroiMalloc_32sc_C2_L(int64_t widthPixels, int64_t heightPixels, int64_t* pStepBytes);
Kro32sc* kroiMalloc_32sc_C3_L(int64_t widthPixels, int64_t heightPixels, int64_t* pStepBytes);
Kro32sc* kroiMalloc_32sc_C4_L(int64_t widthPixels, int64_t heightPixels, int64_t* pStepBytes);
Kro32sc* kroiMalloc_32sc_AC4_L(int64_t widthPixels, int64_t heightPixels, int64_t* pStepBytes);
Kro32fc* kroiMalloc_32fc_C1_L(int64_t widthPixels, int64_t heightPixels, int64_t* pStepBytes);
Kro32fc* kroiMalloc_32fc_C2_L(int64_t widthPixels, int64_t heightPixels, int64_t* pStepBytes);
Kro32fc* kroiMalloc_32fc_C3_L(int64_t widthPixels, int64_t heightPixels, int64_t* pStepBytes);
Kro32fc* kroiMalloc_32fc_C4_L(int64_t widthPixels, int64_t heightPixels, int64_t* pStepBytes);
Kro32fc* kroiMalloc_32fc_AC4_L(int64_t widthPixels, int64_t heightPixels, int64_t* pStepBytes);

/* kroiFree: releases a block from any kroiMalloc form (null is accepted and ignored). */
void kroiFree(void* ptr);

/* =======================================================================================
 * Copy and Set
 * ======================================================================================= */
/* section COPYSET */
/* Copy and Set, for 8u, 16u, 16s, 32s and 32f.
 *
 * kroiCopy_<t>_<layout>R copies the source ROI into the destination ROI of the same size;
 * kroiSet_<t>_<layout>R fills the destination ROI with constants (C1R takes the value,
 * C3R and AC4R an array of three, C4R an array of four).  AC4 forms leave the fourth
 * (alpha) channel of the destination as it was: its value is neither used nor changed
 * (rows are stored whole, with the alpha they held, so no other thread may write the
 * alpha during the call).  The results are exact.
 *
 * Checks, in this order: a null pointer (pSrc, pDst, the value array, a mask, a plane
 * pointer array or any plane in it) gives kroStsNullPointerErr (-8); a width or height
 * below 1 gives kroStsBadSizeErr (-6).  Steps are not checked and are used as given
 * (negative steps walk bottom-up; a destination step of 0 writes the same row again, the
 * last row's values winning).  Copy and Set return only 0, -8 and -6; the _L copies also
 * return the status of their one-dimensional row copy.  An error writes nothing.
 *
 * Whole copies (C1R, C3R, C4R, AC4R) need a source and a destination that do not overlap.
 * Contiguous images (both steps equal to the row's bytes, width and height below 32768)
 * are copied as one long row.  Copies of more than 1,048,576 bytes (of any type and
 * layout) write with non-temporal (cache-bypassing) stores, as do fills of more than
 * 524,288 bytes that are at least as large as the largest cache reported by
 * kroGetMaxCacheSizeB (a failed query means ordinary stores); either is followed by a
 * store fence before the function returns, so the caller's later stores are seen after
 * the image.  AC4 forms, which store rows with the alpha they read, use ordinary stores.
 * A fill whose destination step equals the row's bytes is done as one long row.
 */

/* Whole copies. */
KroStatus kroiCopy_8u_C1R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_8u_C3R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_8u_C4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_8u_AC4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_16u_C1R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_16u_C3R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_16u_C4R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_16u_AC4R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_16s_C1R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_16s_C3R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_16s_C4R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_16s_AC4R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_32s_C1R(const Kro32s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_32s_C3R(const Kro32s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_32s_C4R(const Kro32s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_32s_AC4R(const Kro32s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_32f_C3R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_32f_C4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_32f_AC4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);

/* Whole fills. */
KroStatus kroiSet_8u_C1R(Kro8u value, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSet_8u_C3R(const Kro8u value[3], Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSet_8u_C4R(const Kro8u value[4], Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSet_8u_AC4R(const Kro8u value[3], Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSet_16u_C1R(Kro16u value, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSet_16u_C3R(const Kro16u value[3], Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSet_16u_C4R(const Kro16u value[4], Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSet_16u_AC4R(const Kro16u value[3], Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSet_16s_C1R(Kro16s value, Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSet_16s_C3R(const Kro16s value[3], Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSet_16s_C4R(const Kro16s value[4], Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSet_16s_AC4R(const Kro16s value[3], Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSet_32s_C1R(Kro32s value, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSet_32s_C3R(const Kro32s value[3], Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSet_32s_C4R(const Kro32s value[4], Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSet_32s_AC4R(const Kro32s value[3], Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSet_32f_C1R(Kro32f value, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSet_32f_C3R(const Kro32f value[3], Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSet_32f_C4R(const Kro32f value[4], Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSet_32f_AC4R(const Kro32f value[3], Kro32f* pDst, int dstStep, KroiSize roiSize);

/* Masked copies and fills (MR): pixel x of row y is written where pMask's byte (x, y) is
 * non-zero (pMask, maskStep: an 8u image of the ROI's size); every other destination pixel
 * keeps its value.  Checks: pSrc (copy) or the value array (fills other than C1), pDst,
 * pMask null: -8; size: -6.  The mask's step is used as given, like the others. */
KroStatus kroiCopy_8u_C1MR(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, const Kro8u* pMask, int maskStep);
KroStatus kroiCopy_8u_C3MR(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, const Kro8u* pMask, int maskStep);
KroStatus kroiCopy_8u_C4MR(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, const Kro8u* pMask, int maskStep);
KroStatus kroiCopy_8u_AC4MR(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, const Kro8u* pMask, int maskStep);
KroStatus kroiCopy_16u_C1MR(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, const Kro8u* pMask, int maskStep);
KroStatus kroiCopy_16u_C3MR(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, const Kro8u* pMask, int maskStep);
KroStatus kroiCopy_16u_C4MR(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, const Kro8u* pMask, int maskStep);
KroStatus kroiCopy_16u_AC4MR(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, const Kro8u* pMask, int maskStep);
KroStatus kroiCopy_16s_C1MR(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, const Kro8u* pMask, int maskStep);
KroStatus kroiCopy_16s_C3MR(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, const Kro8u* pMask, int maskStep);
KroStatus kroiCopy_16s_C4MR(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, const Kro8u* pMask, int maskStep);
KroStatus kroiCopy_16s_AC4MR(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, const Kro8u* pMask, int maskStep);
KroStatus kroiCopy_32s_C1MR(const Kro32s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize, const Kro8u* pMask, int maskStep);
KroStatus kroiCopy_32s_C3MR(const Kro32s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize, const Kro8u* pMask, int maskStep);
KroStatus kroiCopy_32s_C4MR(const Kro32s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize, const Kro8u* pMask, int maskStep);
KroStatus kroiCopy_32s_AC4MR(const Kro32s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize, const Kro8u* pMask, int maskStep);
KroStatus kroiCopy_32f_C1MR(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, const Kro8u* pMask, int maskStep);
KroStatus kroiCopy_32f_C3MR(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, const Kro8u* pMask, int maskStep);
KroStatus kroiCopy_32f_C4MR(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, const Kro8u* pMask, int maskStep);
KroStatus kroiCopy_32f_AC4MR(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, const Kro8u* pMask, int maskStep);
KroStatus kroiSet_8u_C1MR(Kro8u value, Kro8u* pDst, int dstStep, KroiSize roiSize, const Kro8u* pMask, int maskStep);
KroStatus kroiSet_8u_C3MR(const Kro8u value[3], Kro8u* pDst, int dstStep, KroiSize roiSize, const Kro8u* pMask, int maskStep);
KroStatus kroiSet_8u_C4MR(const Kro8u value[4], Kro8u* pDst, int dstStep, KroiSize roiSize, const Kro8u* pMask, int maskStep);
KroStatus kroiSet_8u_AC4MR(const Kro8u value[3], Kro8u* pDst, int dstStep, KroiSize roiSize, const Kro8u* pMask, int maskStep);
KroStatus kroiSet_16u_C1MR(Kro16u value, Kro16u* pDst, int dstStep, KroiSize roiSize, const Kro8u* pMask, int maskStep);
KroStatus kroiSet_16u_C3MR(const Kro16u value[3], Kro16u* pDst, int dstStep, KroiSize roiSize, const Kro8u* pMask, int maskStep);
KroStatus kroiSet_16u_C4MR(const Kro16u value[4], Kro16u* pDst, int dstStep, KroiSize roiSize, const Kro8u* pMask, int maskStep);
KroStatus kroiSet_16u_AC4MR(const Kro16u value[3], Kro16u* pDst, int dstStep, KroiSize roiSize, const Kro8u* pMask, int maskStep);
KroStatus kroiSet_16s_C1MR(Kro16s value, Kro16s* pDst, int dstStep, KroiSize roiSize, const Kro8u* pMask, int maskStep);
KroStatus kroiSet_16s_C3MR(const Kro16s value[3], Kro16s* pDst, int dstStep, KroiSize roiSize, const Kro8u* pMask, int maskStep);
KroStatus kroiSet_16s_C4MR(const Kro16s value[4], Kro16s* pDst, int dstStep, KroiSize roiSize, const Kro8u* pMask, int maskStep);
KroStatus kroiSet_16s_AC4MR(const Kro16s value[3], Kro16s* pDst, int dstStep, KroiSize roiSize, const Kro8u* pMask, int maskStep);
KroStatus kroiSet_32s_C1MR(Kro32s value, Kro32s* pDst, int dstStep, KroiSize roiSize, const Kro8u* pMask, int maskStep);
KroStatus kroiSet_32s_C3MR(const Kro32s value[3], Kro32s* pDst, int dstStep, KroiSize roiSize, const Kro8u* pMask, int maskStep);
KroStatus kroiSet_32s_C4MR(const Kro32s value[4], Kro32s* pDst, int dstStep, KroiSize roiSize, const Kro8u* pMask, int maskStep);
KroStatus kroiSet_32s_AC4MR(const Kro32s value[3], Kro32s* pDst, int dstStep, KroiSize roiSize, const Kro8u* pMask, int maskStep);
KroStatus kroiSet_32f_C1MR(Kro32f value, Kro32f* pDst, int dstStep, KroiSize roiSize, const Kro8u* pMask, int maskStep);
KroStatus kroiSet_32f_C3MR(const Kro32f value[3], Kro32f* pDst, int dstStep, KroiSize roiSize, const Kro8u* pMask, int maskStep);
KroStatus kroiSet_32f_C4MR(const Kro32f value[4], Kro32f* pDst, int dstStep, KroiSize roiSize, const Kro8u* pMask, int maskStep);
KroStatus kroiSet_32f_AC4MR(const Kro32f value[3], Kro32f* pDst, int dstStep, KroiSize roiSize, const Kro8u* pMask, int maskStep);

/* Channel copies.  C3CR and C4CR copy one channel into the same or another channel of
 * another image (both pointers at the chosen channel of the first pixel); C3C1R and C4C1R
 * copy one channel (pSrc at that channel) into a one-channel image; C1C3R and C1C4R copy a
 * one-channel image into one channel (pDst at that channel), the other channels keeping
 * their values; C3AC4R copies three channels into the first three of four (the fourth
 * keeps its value) and AC4C3R the first three of four into three.  A row spans from the
 * first pixel's element to the last pixel's on each side; nothing outside is touched.
 * Source and destination may share memory: the result is then that of separate buffers,
 * provided the rows of each image follow one another without overlapping (both steps of
 * one sign and at least the row's bytes, or a height of 1).  Otherwise the rows are
 * copied in row order, pixel by pixel.
 *
 * Fills of one channel (C3CR, C4CR): pDst points at the channel, which takes the value;
 * the other channels between the first and the last pixel's are stored with the values
 * they held, as in AC4 forms.
 */
KroStatus kroiCopy_8u_C3CR(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_8u_C4CR(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_8u_C3C1R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_8u_C4C1R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_8u_C1C3R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_8u_C1C4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_8u_C3AC4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_8u_AC4C3R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_16u_C3CR(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_16u_C4CR(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_16u_C3C1R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_16u_C4C1R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_16u_C1C3R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_16u_C1C4R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_16u_C3AC4R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_16u_AC4C3R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_16s_C3CR(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_16s_C4CR(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_16s_C3C1R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_16s_C4C1R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_16s_C1C3R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_16s_C1C4R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_16s_C3AC4R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_16s_AC4C3R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_32s_C3CR(const Kro32s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_32s_C4CR(const Kro32s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_32s_C3C1R(const Kro32s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_32s_C4C1R(const Kro32s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_32s_C1C3R(const Kro32s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_32s_C1C4R(const Kro32s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_32s_C3AC4R(const Kro32s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_32s_AC4C3R(const Kro32s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_32f_C3CR(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_32f_C4CR(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_32f_C3C1R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_32f_C4C1R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_32f_C1C3R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_32f_C1C4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_32f_C3AC4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_32f_AC4C3R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSet_8u_C3CR(Kro8u value, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSet_8u_C4CR(Kro8u value, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSet_16u_C3CR(Kro16u value, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSet_16u_C4CR(Kro16u value, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSet_16s_C3CR(Kro16s value, Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSet_16s_C4CR(Kro16s value, Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSet_32s_C3CR(Kro32s value, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSet_32s_C4CR(Kro32s value, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSet_32f_C3CR(Kro32f value, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSet_32f_C4CR(Kro32f value, Kro32f* pDst, int dstStep, KroiSize roiSize);

/* Interleaved to planar (C3P3R, C4P4R) and back (P3C3R, P4C4R).  The planar side is an
 * array of 3 or 4 plane pointers; the planes share one step (dstStep, or srcStep).  Checks:
 * a null interleaved pointer, plane array or plane: -8; size: -6.  The planes and the
 * interleaved image must not overlap.  When the planes' step equals the row's bytes of a
 * plane and the interleaved step is 3 or 4 times that, the image is handled as one row.
 * P3C3R and P4C4R write with non-temporal stores (and fence) when the interleaved image
 * has more than 1,048,576 bytes; C3P3R and C4P4R when it has more than that and is at
 * least as large as the largest cache (smaller planes stay in the cache for their reader).
 * The kernels take any alignment; streaming into destinations that are not 16-byte
 * aligned goes through a small buffer.
 */
KroStatus kroiCopy_8u_C3P3R(const Kro8u* pSrc, int srcStep, Kro8u* const pDst[3], int dstStep, KroiSize roiSize);
KroStatus kroiCopy_8u_P3C3R(const Kro8u* const pSrc[3], int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_8u_C4P4R(const Kro8u* pSrc, int srcStep, Kro8u* const pDst[4], int dstStep, KroiSize roiSize);
KroStatus kroiCopy_8u_P4C4R(const Kro8u* const pSrc[4], int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_16u_C3P3R(const Kro16u* pSrc, int srcStep, Kro16u* const pDst[3], int dstStep, KroiSize roiSize);
KroStatus kroiCopy_16u_P3C3R(const Kro16u* const pSrc[3], int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_16u_C4P4R(const Kro16u* pSrc, int srcStep, Kro16u* const pDst[4], int dstStep, KroiSize roiSize);
KroStatus kroiCopy_16u_P4C4R(const Kro16u* const pSrc[4], int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_16s_C3P3R(const Kro16s* pSrc, int srcStep, Kro16s* const pDst[3], int dstStep, KroiSize roiSize);
KroStatus kroiCopy_16s_P3C3R(const Kro16s* const pSrc[3], int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_16s_C4P4R(const Kro16s* pSrc, int srcStep, Kro16s* const pDst[4], int dstStep, KroiSize roiSize);
KroStatus kroiCopy_16s_P4C4R(const Kro16s* const pSrc[4], int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_32s_C3P3R(const Kro32s* pSrc, int srcStep, Kro32s* const pDst[3], int dstStep, KroiSize roiSize);
KroStatus kroiCopy_32s_P3C3R(const Kro32s* const pSrc[3], int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_32s_C4P4R(const Kro32s* pSrc, int srcStep, Kro32s* const pDst[4], int dstStep, KroiSize roiSize);
KroStatus kroiCopy_32s_P4C4R(const Kro32s* const pSrc[4], int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_32f_C3P3R(const Kro32f* pSrc, int srcStep, Kro32f* const pDst[3], int dstStep, KroiSize roiSize);
KroStatus kroiCopy_32f_P3C3R(const Kro32f* const pSrc[3], int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiCopy_32f_C4P4R(const Kro32f* pSrc, int srcStep, Kro32f* const pDst[4], int dstStep, KroiSize roiSize);
KroStatus kroiCopy_32f_P4C4R(const Kro32f* const pSrc[4], int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);

/* 64-bit copies (_L): pointers (-8), then width or height below 1 (-6), then each row is
 * copied in pieces of at most 0x40000000 elements by the one-dimensional copy, whose
 * status (0) is returned.  They never forward to the 32-bit forms and use ordinary stores.
 */
KroStatus kroiCopy_8u_C1R_L(const Kro8u* pSrc, int64_t srcStep, Kro8u* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiCopy_8u_C3R_L(const Kro8u* pSrc, int64_t srcStep, Kro8u* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiCopy_8u_C4R_L(const Kro8u* pSrc, int64_t srcStep, Kro8u* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiCopy_8u_AC4R_L(const Kro8u* pSrc, int64_t srcStep, Kro8u* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiCopy_16u_C1R_L(const Kro16u* pSrc, int64_t srcStep, Kro16u* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiCopy_16u_C3R_L(const Kro16u* pSrc, int64_t srcStep, Kro16u* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiCopy_16u_C4R_L(const Kro16u* pSrc, int64_t srcStep, Kro16u* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiCopy_16u_AC4R_L(const Kro16u* pSrc, int64_t srcStep, Kro16u* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiCopy_16s_C1R_L(const Kro16s* pSrc, int64_t srcStep, Kro16s* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiCopy_16s_C3R_L(const Kro16s* pSrc, int64_t srcStep, Kro16s* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiCopy_16s_C4R_L(const Kro16s* pSrc, int64_t srcStep, Kro16s* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiCopy_16s_AC4R_L(const Kro16s* pSrc, int64_t srcStep, Kro16s* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiCopy_32s_C1R_L(const Kro32s* pSrc, int64_t srcStep, Kro32s* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiCopy_32s_C3R_L(const Kro32s* pSrc, int64_t srcStep, Kro32s* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiCopy_32s_C4R_L(const Kro32s* pSrc, int64_t srcStep, Kro32s* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiCopy_32s_AC4R_L(const Kro32s* pSrc, int64_t srcStep, Kro32s* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiCopy_32f_C1R_L(const Kro32f* pSrc, int64_t srcStep, Kro32f* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiCopy_32f_C3R_L(const Kro32f* pSrc, int64_t srcStep, Kro32f* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiCopy_32f_C4R_L(const Kro32f* pSrc, int64_t srcStep, Kro32f* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiCopy_32f_AC4R_L(const Kro32f* pSrc, int64_t srcStep, Kro32f* pDst, int64_t dstStep, KroiSizeL roiSize);

/* kroiCopyManaged_8u_C1R: the 8u C1 copy with a choice of stores.  Bit 0 of flags (1)
 * writes with non-temporal stores, followed by a store fence before return; with bit 0
 * clear the copy uses ordinary stores whatever its size.  Other bits are ignored.  When
 * both steps equal the width the ROI is copied as one row. */
KroStatus kroiCopyManaged_8u_C1R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, int flags);

/* end of section COPYSET */

/* =======================================================================================
 * Two-image arithmetic
 * ======================================================================================= */
/* section ARITH */
/* Two-image arithmetic: Add, Sub, Mul, Div, Div_Round.
 *
 *   kroiAdd   dst = src1 + src2        kroiSub   dst = src2 - src1
 *   kroiMul   dst = src1 x src2        kroiDiv   dst = src2 / src1
 *   kroiDiv_Round                      dst = src2 / src1, rounded by rndMode
 * The first image is the subtrahend and the divisor.  In place (IR), pSrc plays src1 and
 * pSrcDst both src2 and the destination: pSrcDst = pSrcDst - pSrc, pSrcDst / pSrc.
 * A row is width x channels elements; AC4 computes the first three elements of each pixel
 * and never writes the fourth.
 *
 * Integer forms (8u, 16u, 16s, Sfs): the exact result r (sum, difference, product as a wide
 * integer, quotient as below) times 2^-scaleFactor, rounded to nearest with ties to even,
 * saturated to the type (8u 0..255, 16u 0..65535, 16s -32768..32767).  Every scale factor is
 * allowed; where it makes every result 0 (Add 8u s > 9, Sub 8u s > 8, Mul 8u s > 16, Add and
 * Sub 16s s > 16, Mul 16s s > 30, Add 16u s >= 18, Sub 16u s >= 17, Mul 16u s >= 33) the
 * destination ROI is filled with 0 through kroiSet and the Set's status is returned.
 * 32f forms: one IEEE single-precision operation per element.
 *
 * Division:
 *   8u Div, -15 <= s <= 8: src2 times the reciprocal of src1 in single precision, the
 *     reciprocal being the processor's estimate refined by one Newton-Raphson step
 *     x0 (2 - src1 x0); the quotient times 2^-s is converted to the nearest integer, ties to
 *     even, and saturated.  The last (width x channels) mod 16 elements of each ROI row are
 *     divided exactly in single precision instead.  At ties (for example 3 / 2) the estimate
 *     may round differently from the exact quotient.  s > 8: 0; s < -15: 255 where src2 is
 *     non-zero, 0 where it is 0.
 *   16u and 16s Div: exact, (src2 x 2^-s) / src1 rounded to nearest with ties to even.
 *   Div_Round (8u, 16u, 16s): exact in every type, (src2 x 2^-s) / src1 rounded by rndMode:
 *     kroRndZero (0) toward zero, kroRndNear (1) to nearest with ties to even, kroRndNearAway
 *     (2) to nearest with ties away from zero; then saturated.  8u Div_Round with mode 1
 *     is therefore the exact quotient, which 8u Div may miss at ties.
 *   Zero divisor (every integer division): the result is the type's maximum where src2 > 0,
 *     the type's minimum where src2 < 0 (16s: -32768) and 0 where src2 = 0, as if the
 *     quotient were an infinity of src2's sign; the whole ROI is computed and the status is
 *     kroStsZeroDivisorWarn (2).  32f Div: the IEEE result (+-inf, NaN for 0 / 0) and the
 *     warning 2.  In AC4 forms the untouched fourth channel does not count.
 *
 * Checks, in this order; the first failure is returned and nothing is written:
 *   1. null pSrc1, pSrc2 or pDst (in place pSrc, pSrcDst): kroStsNullPointerErr (-8);
 *   2. width or height < 1: kroStsBadSizeErr (-6);
 *   3. Div and Div_Round only: any step < 1: kroStsBadStepErr (-16).  Add, Sub and Mul do not
 *      check steps and use them as given (zero and negative steps included);
 *   4. Div_Round only: rndMode not 0, 1 or 2: kroStsBadRoundModeErr (-213).
 *   16u Add from s = 18 and 16u Sub from s = 17 check only the two source pointers, then
 *   fill through kroiSet_16s_C1R (kroiSet_16s_C3R, _C4R, _AC4R for the other layouts),
 *   whose own checks report a null destination or a bad size.
 *
 * When the sources and the destination together span half the largest cache
 * (kroGetMaxCacheSizeB) or more and every destination row starts on 16 bytes, the destination is
 * written with non-temporal stores, followed by a store fence before the function returns.
 *
 * _L forms: the 64-bit convention at the top of this header; on the long path each row
 * piece goes to the operation's one-row function, which checks its pointers, its length and
 * (Div_Round) the rounding mode, and returns the warning 2 for zero divisors.
 */

KroStatus kroiAdd_8u_C1RSfs(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAdd_8u_C1IRSfs(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAdd_8u_C1RSfs_L(const Kro8u* pSrc1, int64_t src1Step, const Kro8u* pSrc2, int64_t src2Step, Kro8u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAdd_8u_C1IRSfs_L(const Kro8u* pSrc, int64_t srcStep, Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAdd_8u_C3RSfs(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAdd_8u_C3IRSfs(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAdd_8u_C3RSfs_L(const Kro8u* pSrc1, int64_t src1Step, const Kro8u* pSrc2, int64_t src2Step, Kro8u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAdd_8u_C3IRSfs_L(const Kro8u* pSrc, int64_t srcStep, Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAdd_8u_C4RSfs(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAdd_8u_C4IRSfs(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAdd_8u_C4RSfs_L(const Kro8u* pSrc1, int64_t src1Step, const Kro8u* pSrc2, int64_t src2Step, Kro8u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAdd_8u_C4IRSfs_L(const Kro8u* pSrc, int64_t srcStep, Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAdd_8u_AC4RSfs(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAdd_8u_AC4IRSfs(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAdd_8u_AC4RSfs_L(const Kro8u* pSrc1, int64_t src1Step, const Kro8u* pSrc2, int64_t src2Step, Kro8u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAdd_8u_AC4IRSfs_L(const Kro8u* pSrc, int64_t srcStep, Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAdd_16u_C1RSfs(const Kro16u* pSrc1, int src1Step, const Kro16u* pSrc2, int src2Step, Kro16u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAdd_16u_C1IRSfs(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAdd_16u_C1RSfs_L(const Kro16u* pSrc1, int64_t src1Step, const Kro16u* pSrc2, int64_t src2Step, Kro16u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAdd_16u_C1IRSfs_L(const Kro16u* pSrc, int64_t srcStep, Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAdd_16u_C3RSfs(const Kro16u* pSrc1, int src1Step, const Kro16u* pSrc2, int src2Step, Kro16u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAdd_16u_C3IRSfs(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAdd_16u_C3RSfs_L(const Kro16u* pSrc1, int64_t src1Step, const Kro16u* pSrc2, int64_t src2Step, Kro16u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAdd_16u_C3IRSfs_L(const Kro16u* pSrc, int64_t srcStep, Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAdd_16u_C4RSfs(const Kro16u* pSrc1, int src1Step, const Kro16u* pSrc2, int src2Step, Kro16u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAdd_16u_C4IRSfs(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAdd_16u_C4RSfs_L(const Kro16u* pSrc1, int64_t src1Step, const Kro16u* pSrc2, int64_t src2Step, Kro16u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAdd_16u_C4IRSfs_L(const Kro16u* pSrc, int64_t srcStep, Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAdd_16u_AC4RSfs(const Kro16u* pSrc1, int src1Step, const Kro16u* pSrc2, int src2Step, Kro16u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAdd_16u_AC4IRSfs(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAdd_16u_AC4RSfs_L(const Kro16u* pSrc1, int64_t src1Step, const Kro16u* pSrc2, int64_t src2Step, Kro16u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAdd_16u_AC4IRSfs_L(const Kro16u* pSrc, int64_t srcStep, Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAdd_16s_C1RSfs(const Kro16s* pSrc1, int src1Step, const Kro16s* pSrc2, int src2Step, Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAdd_16s_C1IRSfs(const Kro16s* pSrc, int srcStep, Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAdd_16s_C1RSfs_L(const Kro16s* pSrc1, int64_t src1Step, const Kro16s* pSrc2, int64_t src2Step, Kro16s* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAdd_16s_C1IRSfs_L(const Kro16s* pSrc, int64_t srcStep, Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAdd_16s_C3RSfs(const Kro16s* pSrc1, int src1Step, const Kro16s* pSrc2, int src2Step, Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAdd_16s_C3IRSfs(const Kro16s* pSrc, int srcStep, Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAdd_16s_C3RSfs_L(const Kro16s* pSrc1, int64_t src1Step, const Kro16s* pSrc2, int64_t src2Step, Kro16s* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAdd_16s_C3IRSfs_L(const Kro16s* pSrc, int64_t srcStep, Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAdd_16s_C4RSfs(const Kro16s* pSrc1, int src1Step, const Kro16s* pSrc2, int src2Step, Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAdd_16s_C4IRSfs(const Kro16s* pSrc, int srcStep, Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAdd_16s_C4RSfs_L(const Kro16s* pSrc1, int64_t src1Step, const Kro16s* pSrc2, int64_t src2Step, Kro16s* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAdd_16s_C4IRSfs_L(const Kro16s* pSrc, int64_t srcStep, Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAdd_16s_AC4RSfs(const Kro16s* pSrc1, int src1Step, const Kro16s* pSrc2, int src2Step, Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAdd_16s_AC4IRSfs(const Kro16s* pSrc, int srcStep, Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAdd_16s_AC4RSfs_L(const Kro16s* pSrc1, int64_t src1Step, const Kro16s* pSrc2, int64_t src2Step, Kro16s* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAdd_16s_AC4IRSfs_L(const Kro16s* pSrc, int64_t srcStep, Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAdd_32f_C1R(const Kro32f* pSrc1, int src1Step, const Kro32f* pSrc2, int src2Step, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAdd_32f_C1IR(const Kro32f* pSrc, int srcStep, Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAdd_32f_C1R_L(const Kro32f* pSrc1, int64_t src1Step, const Kro32f* pSrc2, int64_t src2Step, Kro32f* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiAdd_32f_C1IR_L(const Kro32f* pSrc, int64_t srcStep, Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize);
KroStatus kroiAdd_32f_C3R(const Kro32f* pSrc1, int src1Step, const Kro32f* pSrc2, int src2Step, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAdd_32f_C3IR(const Kro32f* pSrc, int srcStep, Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAdd_32f_C3R_L(const Kro32f* pSrc1, int64_t src1Step, const Kro32f* pSrc2, int64_t src2Step, Kro32f* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiAdd_32f_C3IR_L(const Kro32f* pSrc, int64_t srcStep, Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize);
KroStatus kroiAdd_32f_C4R(const Kro32f* pSrc1, int src1Step, const Kro32f* pSrc2, int src2Step, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAdd_32f_C4IR(const Kro32f* pSrc, int srcStep, Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAdd_32f_C4R_L(const Kro32f* pSrc1, int64_t src1Step, const Kro32f* pSrc2, int64_t src2Step, Kro32f* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiAdd_32f_C4IR_L(const Kro32f* pSrc, int64_t srcStep, Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize);
KroStatus kroiAdd_32f_AC4R(const Kro32f* pSrc1, int src1Step, const Kro32f* pSrc2, int src2Step, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAdd_32f_AC4IR(const Kro32f* pSrc, int srcStep, Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAdd_32f_AC4R_L(const Kro32f* pSrc1, int64_t src1Step, const Kro32f* pSrc2, int64_t src2Step, Kro32f* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiAdd_32f_AC4IR_L(const Kro32f* pSrc, int64_t srcStep, Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize);

KroStatus kroiSub_8u_C1RSfs(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSub_8u_C1IRSfs(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSub_8u_C1RSfs_L(const Kro8u* pSrc1, int64_t src1Step, const Kro8u* pSrc2, int64_t src2Step, Kro8u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSub_8u_C1IRSfs_L(const Kro8u* pSrc, int64_t srcStep, Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSub_8u_C3RSfs(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSub_8u_C3IRSfs(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSub_8u_C3RSfs_L(const Kro8u* pSrc1, int64_t src1Step, const Kro8u* pSrc2, int64_t src2Step, Kro8u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSub_8u_C3IRSfs_L(const Kro8u* pSrc, int64_t srcStep, Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSub_8u_C4RSfs(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSub_8u_C4IRSfs(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSub_8u_C4RSfs_L(const Kro8u* pSrc1, int64_t src1Step, const Kro8u* pSrc2, int64_t src2Step, Kro8u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSub_8u_C4IRSfs_L(const Kro8u* pSrc, int64_t srcStep, Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSub_8u_AC4RSfs(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSub_8u_AC4IRSfs(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSub_8u_AC4RSfs_L(const Kro8u* pSrc1, int64_t src1Step, const Kro8u* pSrc2, int64_t src2Step, Kro8u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSub_8u_AC4IRSfs_L(const Kro8u* pSrc, int64_t srcStep, Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSub_16u_C1RSfs(const Kro16u* pSrc1, int src1Step, const Kro16u* pSrc2, int src2Step, Kro16u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSub_16u_C1IRSfs(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSub_16u_C1RSfs_L(const Kro16u* pSrc1, int64_t src1Step, const Kro16u* pSrc2, int64_t src2Step, Kro16u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSub_16u_C1IRSfs_L(const Kro16u* pSrc, int64_t srcStep, Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSub_16u_C3RSfs(const Kro16u* pSrc1, int src1Step, const Kro16u* pSrc2, int src2Step, Kro16u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSub_16u_C3IRSfs(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSub_16u_C3RSfs_L(const Kro16u* pSrc1, int64_t src1Step, const Kro16u* pSrc2, int64_t src2Step, Kro16u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSub_16u_C3IRSfs_L(const Kro16u* pSrc, int64_t srcStep, Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSub_16u_C4RSfs(const Kro16u* pSrc1, int src1Step, const Kro16u* pSrc2, int src2Step, Kro16u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSub_16u_C4IRSfs(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSub_16u_C4RSfs_L(const Kro16u* pSrc1, int64_t src1Step, const Kro16u* pSrc2, int64_t src2Step, Kro16u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSub_16u_C4IRSfs_L(const Kro16u* pSrc, int64_t srcStep, Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSub_16u_AC4RSfs(const Kro16u* pSrc1, int src1Step, const Kro16u* pSrc2, int src2Step, Kro16u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSub_16u_AC4IRSfs(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSub_16u_AC4RSfs_L(const Kro16u* pSrc1, int64_t src1Step, const Kro16u* pSrc2, int64_t src2Step, Kro16u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSub_16u_AC4IRSfs_L(const Kro16u* pSrc, int64_t srcStep, Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSub_16s_C1RSfs(const Kro16s* pSrc1, int src1Step, const Kro16s* pSrc2, int src2Step, Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSub_16s_C1IRSfs(const Kro16s* pSrc, int srcStep, Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSub_16s_C1RSfs_L(const Kro16s* pSrc1, int64_t src1Step, const Kro16s* pSrc2, int64_t src2Step, Kro16s* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSub_16s_C1IRSfs_L(const Kro16s* pSrc, int64_t srcStep, Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSub_16s_C3RSfs(const Kro16s* pSrc1, int src1Step, const Kro16s* pSrc2, int src2Step, Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSub_16s_C3IRSfs(const Kro16s* pSrc, int srcStep, Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSub_16s_C3RSfs_L(const Kro16s* pSrc1, int64_t src1Step, const Kro16s* pSrc2, int64_t src2Step, Kro16s* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSub_16s_C3IRSfs_L(const Kro16s* pSrc, int64_t srcStep, Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSub_16s_C4RSfs(const Kro16s* pSrc1, int src1Step, const Kro16s* pSrc2, int src2Step, Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSub_16s_C4IRSfs(const Kro16s* pSrc, int srcStep, Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSub_16s_C4RSfs_L(const Kro16s* pSrc1, int64_t src1Step, const Kro16s* pSrc2, int64_t src2Step, Kro16s* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSub_16s_C4IRSfs_L(const Kro16s* pSrc, int64_t srcStep, Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSub_16s_AC4RSfs(const Kro16s* pSrc1, int src1Step, const Kro16s* pSrc2, int src2Step, Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSub_16s_AC4IRSfs(const Kro16s* pSrc, int srcStep, Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSub_16s_AC4RSfs_L(const Kro16s* pSrc1, int64_t src1Step, const Kro16s* pSrc2, int64_t src2Step, Kro16s* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSub_16s_AC4IRSfs_L(const Kro16s* pSrc, int64_t srcStep, Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSub_32f_C1R(const Kro32f* pSrc1, int src1Step, const Kro32f* pSrc2, int src2Step, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSub_32f_C1IR(const Kro32f* pSrc, int srcStep, Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiSub_32f_C1R_L(const Kro32f* pSrc1, int64_t src1Step, const Kro32f* pSrc2, int64_t src2Step, Kro32f* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiSub_32f_C1IR_L(const Kro32f* pSrc, int64_t srcStep, Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize);
KroStatus kroiSub_32f_C3R(const Kro32f* pSrc1, int src1Step, const Kro32f* pSrc2, int src2Step, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSub_32f_C3IR(const Kro32f* pSrc, int srcStep, Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiSub_32f_C3R_L(const Kro32f* pSrc1, int64_t src1Step, const Kro32f* pSrc2, int64_t src2Step, Kro32f* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiSub_32f_C3IR_L(const Kro32f* pSrc, int64_t srcStep, Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize);
KroStatus kroiSub_32f_C4R(const Kro32f* pSrc1, int src1Step, const Kro32f* pSrc2, int src2Step, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSub_32f_C4IR(const Kro32f* pSrc, int srcStep, Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiSub_32f_C4R_L(const Kro32f* pSrc1, int64_t src1Step, const Kro32f* pSrc2, int64_t src2Step, Kro32f* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiSub_32f_C4IR_L(const Kro32f* pSrc, int64_t srcStep, Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize);
KroStatus kroiSub_32f_AC4R(const Kro32f* pSrc1, int src1Step, const Kro32f* pSrc2, int src2Step, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSub_32f_AC4IR(const Kro32f* pSrc, int srcStep, Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiSub_32f_AC4R_L(const Kro32f* pSrc1, int64_t src1Step, const Kro32f* pSrc2, int64_t src2Step, Kro32f* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiSub_32f_AC4IR_L(const Kro32f* pSrc, int64_t srcStep, Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize);

KroStatus kroiMul_8u_C1RSfs(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMul_8u_C1IRSfs(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMul_8u_C1RSfs_L(const Kro8u* pSrc1, int64_t src1Step, const Kro8u* pSrc2, int64_t src2Step, Kro8u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMul_8u_C1IRSfs_L(const Kro8u* pSrc, int64_t srcStep, Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMul_8u_C3RSfs(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMul_8u_C3IRSfs(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMul_8u_C3RSfs_L(const Kro8u* pSrc1, int64_t src1Step, const Kro8u* pSrc2, int64_t src2Step, Kro8u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMul_8u_C3IRSfs_L(const Kro8u* pSrc, int64_t srcStep, Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMul_8u_C4RSfs(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMul_8u_C4IRSfs(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMul_8u_C4RSfs_L(const Kro8u* pSrc1, int64_t src1Step, const Kro8u* pSrc2, int64_t src2Step, Kro8u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMul_8u_C4IRSfs_L(const Kro8u* pSrc, int64_t srcStep, Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMul_8u_AC4RSfs(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMul_8u_AC4IRSfs(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMul_8u_AC4RSfs_L(const Kro8u* pSrc1, int64_t src1Step, const Kro8u* pSrc2, int64_t src2Step, Kro8u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMul_8u_AC4IRSfs_L(const Kro8u* pSrc, int64_t srcStep, Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMul_16u_C1RSfs(const Kro16u* pSrc1, int src1Step, const Kro16u* pSrc2, int src2Step, Kro16u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMul_16u_C1IRSfs(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMul_16u_C1RSfs_L(const Kro16u* pSrc1, int64_t src1Step, const Kro16u* pSrc2, int64_t src2Step, Kro16u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMul_16u_C1IRSfs_L(const Kro16u* pSrc, int64_t srcStep, Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMul_16u_C3RSfs(const Kro16u* pSrc1, int src1Step, const Kro16u* pSrc2, int src2Step, Kro16u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMul_16u_C3IRSfs(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMul_16u_C3RSfs_L(const Kro16u* pSrc1, int64_t src1Step, const Kro16u* pSrc2, int64_t src2Step, Kro16u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMul_16u_C3IRSfs_L(const Kro16u* pSrc, int64_t srcStep, Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMul_16u_C4RSfs(const Kro16u* pSrc1, int src1Step, const Kro16u* pSrc2, int src2Step, Kro16u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMul_16u_C4IRSfs(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMul_16u_C4RSfs_L(const Kro16u* pSrc1, int64_t src1Step, const Kro16u* pSrc2, int64_t src2Step, Kro16u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMul_16u_C4IRSfs_L(const Kro16u* pSrc, int64_t srcStep, Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMul_16u_AC4RSfs(const Kro16u* pSrc1, int src1Step, const Kro16u* pSrc2, int src2Step, Kro16u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMul_16u_AC4IRSfs(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMul_16u_AC4RSfs_L(const Kro16u* pSrc1, int64_t src1Step, const Kro16u* pSrc2, int64_t src2Step, Kro16u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMul_16u_AC4IRSfs_L(const Kro16u* pSrc, int64_t srcStep, Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMul_16s_C1RSfs(const Kro16s* pSrc1, int src1Step, const Kro16s* pSrc2, int src2Step, Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMul_16s_C1IRSfs(const Kro16s* pSrc, int srcStep, Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMul_16s_C1RSfs_L(const Kro16s* pSrc1, int64_t src1Step, const Kro16s* pSrc2, int64_t src2Step, Kro16s* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMul_16s_C1IRSfs_L(const Kro16s* pSrc, int64_t srcStep, Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMul_16s_C3RSfs(const Kro16s* pSrc1, int src1Step, const Kro16s* pSrc2, int src2Step, Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMul_16s_C3IRSfs(const Kro16s* pSrc, int srcStep, Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMul_16s_C3RSfs_L(const Kro16s* pSrc1, int64_t src1Step, const Kro16s* pSrc2, int64_t src2Step, Kro16s* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMul_16s_C3IRSfs_L(const Kro16s* pSrc, int64_t srcStep, Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMul_16s_C4RSfs(const Kro16s* pSrc1, int src1Step, const Kro16s* pSrc2, int src2Step, Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMul_16s_C4IRSfs(const Kro16s* pSrc, int srcStep, Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMul_16s_C4RSfs_L(const Kro16s* pSrc1, int64_t src1Step, const Kro16s* pSrc2, int64_t src2Step, Kro16s* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMul_16s_C4IRSfs_L(const Kro16s* pSrc, int64_t srcStep, Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMul_16s_AC4RSfs(const Kro16s* pSrc1, int src1Step, const Kro16s* pSrc2, int src2Step, Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMul_16s_AC4IRSfs(const Kro16s* pSrc, int srcStep, Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMul_16s_AC4RSfs_L(const Kro16s* pSrc1, int64_t src1Step, const Kro16s* pSrc2, int64_t src2Step, Kro16s* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMul_16s_AC4IRSfs_L(const Kro16s* pSrc, int64_t srcStep, Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMul_32f_C1R(const Kro32f* pSrc1, int src1Step, const Kro32f* pSrc2, int src2Step, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiMul_32f_C1IR(const Kro32f* pSrc, int srcStep, Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiMul_32f_C1R_L(const Kro32f* pSrc1, int64_t src1Step, const Kro32f* pSrc2, int64_t src2Step, Kro32f* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiMul_32f_C1IR_L(const Kro32f* pSrc, int64_t srcStep, Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize);
KroStatus kroiMul_32f_C3R(const Kro32f* pSrc1, int src1Step, const Kro32f* pSrc2, int src2Step, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiMul_32f_C3IR(const Kro32f* pSrc, int srcStep, Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiMul_32f_C3R_L(const Kro32f* pSrc1, int64_t src1Step, const Kro32f* pSrc2, int64_t src2Step, Kro32f* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiMul_32f_C3IR_L(const Kro32f* pSrc, int64_t srcStep, Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize);
KroStatus kroiMul_32f_C4R(const Kro32f* pSrc1, int src1Step, const Kro32f* pSrc2, int src2Step, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiMul_32f_C4IR(const Kro32f* pSrc, int srcStep, Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiMul_32f_C4R_L(const Kro32f* pSrc1, int64_t src1Step, const Kro32f* pSrc2, int64_t src2Step, Kro32f* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiMul_32f_C4IR_L(const Kro32f* pSrc, int64_t srcStep, Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize);
KroStatus kroiMul_32f_AC4R(const Kro32f* pSrc1, int src1Step, const Kro32f* pSrc2, int src2Step, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiMul_32f_AC4IR(const Kro32f* pSrc, int srcStep, Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiMul_32f_AC4R_L(const Kro32f* pSrc1, int64_t src1Step, const Kro32f* pSrc2, int64_t src2Step, Kro32f* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiMul_32f_AC4IR_L(const Kro32f* pSrc, int64_t srcStep, Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize);

KroStatus kroiDiv_8u_C1RSfs(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDiv_8u_C1IRSfs(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDiv_8u_C1RSfs_L(const Kro8u* pSrc1, int64_t src1Step, const Kro8u* pSrc2, int64_t src2Step, Kro8u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDiv_8u_C1IRSfs_L(const Kro8u* pSrc, int64_t srcStep, Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDiv_8u_C3RSfs(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDiv_8u_C3IRSfs(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDiv_8u_C3RSfs_L(const Kro8u* pSrc1, int64_t src1Step, const Kro8u* pSrc2, int64_t src2Step, Kro8u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDiv_8u_C3IRSfs_L(const Kro8u* pSrc, int64_t srcStep, Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDiv_8u_C4RSfs(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDiv_8u_C4IRSfs(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDiv_8u_C4RSfs_L(const Kro8u* pSrc1, int64_t src1Step, const Kro8u* pSrc2, int64_t src2Step, Kro8u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDiv_8u_C4IRSfs_L(const Kro8u* pSrc, int64_t srcStep, Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDiv_8u_AC4RSfs(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDiv_8u_AC4IRSfs(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDiv_8u_AC4RSfs_L(const Kro8u* pSrc1, int64_t src1Step, const Kro8u* pSrc2, int64_t src2Step, Kro8u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDiv_8u_AC4IRSfs_L(const Kro8u* pSrc, int64_t srcStep, Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDiv_16u_C1RSfs(const Kro16u* pSrc1, int src1Step, const Kro16u* pSrc2, int src2Step, Kro16u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDiv_16u_C1IRSfs(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDiv_16u_C1RSfs_L(const Kro16u* pSrc1, int64_t src1Step, const Kro16u* pSrc2, int64_t src2Step, Kro16u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDiv_16u_C1IRSfs_L(const Kro16u* pSrc, int64_t srcStep, Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDiv_16u_C3RSfs(const Kro16u* pSrc1, int src1Step, const Kro16u* pSrc2, int src2Step, Kro16u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDiv_16u_C3IRSfs(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDiv_16u_C3RSfs_L(const Kro16u* pSrc1, int64_t src1Step, const Kro16u* pSrc2, int64_t src2Step, Kro16u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDiv_16u_C3IRSfs_L(const Kro16u* pSrc, int64_t srcStep, Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDiv_16u_C4RSfs(const Kro16u* pSrc1, int src1Step, const Kro16u* pSrc2, int src2Step, Kro16u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDiv_16u_C4IRSfs(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDiv_16u_C4RSfs_L(const Kro16u* pSrc1, int64_t src1Step, const Kro16u* pSrc2, int64_t src2Step, Kro16u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDiv_16u_C4IRSfs_L(const Kro16u* pSrc, int64_t srcStep, Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDiv_16u_AC4RSfs(const Kro16u* pSrc1, int src1Step, const Kro16u* pSrc2, int src2Step, Kro16u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDiv_16u_AC4IRSfs(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDiv_16u_AC4RSfs_L(const Kro16u* pSrc1, int64_t src1Step, const Kro16u* pSrc2, int64_t src2Step, Kro16u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDiv_16u_AC4IRSfs_L(const Kro16u* pSrc, int64_t srcStep, Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDiv_16s_C1RSfs(const Kro16s* pSrc1, int src1Step, const Kro16s* pSrc2, int src2Step, Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDiv_16s_C1IRSfs(const Kro16s* pSrc, int srcStep, Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDiv_16s_C1RSfs_L(const Kro16s* pSrc1, int64_t src1Step, const Kro16s* pSrc2, int64_t src2Step, Kro16s* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDiv_16s_C1IRSfs_L(const Kro16s* pSrc, int64_t srcStep, Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDiv_16s_C3RSfs(const Kro16s* pSrc1, int src1Step, const Kro16s* pSrc2, int src2Step, Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDiv_16s_C3IRSfs(const Kro16s* pSrc, int srcStep, Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDiv_16s_C3RSfs_L(const Kro16s* pSrc1, int64_t src1Step, const Kro16s* pSrc2, int64_t src2Step, Kro16s* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDiv_16s_C3IRSfs_L(const Kro16s* pSrc, int64_t srcStep, Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDiv_16s_C4RSfs(const Kro16s* pSrc1, int src1Step, const Kro16s* pSrc2, int src2Step, Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDiv_16s_C4IRSfs(const Kro16s* pSrc, int srcStep, Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDiv_16s_C4RSfs_L(const Kro16s* pSrc1, int64_t src1Step, const Kro16s* pSrc2, int64_t src2Step, Kro16s* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDiv_16s_C4IRSfs_L(const Kro16s* pSrc, int64_t srcStep, Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDiv_16s_AC4RSfs(const Kro16s* pSrc1, int src1Step, const Kro16s* pSrc2, int src2Step, Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDiv_16s_AC4IRSfs(const Kro16s* pSrc, int srcStep, Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDiv_16s_AC4RSfs_L(const Kro16s* pSrc1, int64_t src1Step, const Kro16s* pSrc2, int64_t src2Step, Kro16s* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDiv_16s_AC4IRSfs_L(const Kro16s* pSrc, int64_t srcStep, Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDiv_32f_C1R(const Kro32f* pSrc1, int src1Step, const Kro32f* pSrc2, int src2Step, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiDiv_32f_C1IR(const Kro32f* pSrc, int srcStep, Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiDiv_32f_C1R_L(const Kro32f* pSrc1, int64_t src1Step, const Kro32f* pSrc2, int64_t src2Step, Kro32f* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiDiv_32f_C1IR_L(const Kro32f* pSrc, int64_t srcStep, Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize);
KroStatus kroiDiv_32f_C3R(const Kro32f* pSrc1, int src1Step, const Kro32f* pSrc2, int src2Step, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiDiv_32f_C3IR(const Kro32f* pSrc, int srcStep, Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiDiv_32f_C3R_L(const Kro32f* pSrc1, int64_t src1Step, const Kro32f* pSrc2, int64_t src2Step, Kro32f* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiDiv_32f_C3IR_L(const Kro32f* pSrc, int64_t srcStep, Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize);
KroStatus kroiDiv_32f_C4R(const Kro32f* pSrc1, int src1Step, const Kro32f* pSrc2, int src2Step, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiDiv_32f_C4IR(const Kro32f* pSrc, int srcStep, Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiDiv_32f_C4R_L(const Kro32f* pSrc1, int64_t src1Step, const Kro32f* pSrc2, int64_t src2Step, Kro32f* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiDiv_32f_C4IR_L(const Kro32f* pSrc, int64_t srcStep, Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize);
KroStatus kroiDiv_32f_AC4R(const Kro32f* pSrc1, int src1Step, const Kro32f* pSrc2, int src2Step, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiDiv_32f_AC4IR(const Kro32f* pSrc, int srcStep, Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiDiv_32f_AC4R_L(const Kro32f* pSrc1, int64_t src1Step, const Kro32f* pSrc2, int64_t src2Step, Kro32f* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiDiv_32f_AC4IR_L(const Kro32f* pSrc, int64_t srcStep, Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize);
KroStatus kroiDiv_Round_8u_C1RSfs(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_8u_C1IRSfs(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_8u_C1RSfs_L(const Kro8u* pSrc1, int64_t src1Step, const Kro8u* pSrc2, int64_t src2Step, Kro8u* pDst, int64_t dstStep, KroiSizeL roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_8u_C1IRSfs_L(const Kro8u* pSrc, int64_t srcStep, Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_8u_C3RSfs(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_8u_C3IRSfs(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_8u_C3RSfs_L(const Kro8u* pSrc1, int64_t src1Step, const Kro8u* pSrc2, int64_t src2Step, Kro8u* pDst, int64_t dstStep, KroiSizeL roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_8u_C3IRSfs_L(const Kro8u* pSrc, int64_t srcStep, Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_8u_C4RSfs(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_8u_C4IRSfs(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_8u_C4RSfs_L(const Kro8u* pSrc1, int64_t src1Step, const Kro8u* pSrc2, int64_t src2Step, Kro8u* pDst, int64_t dstStep, KroiSizeL roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_8u_C4IRSfs_L(const Kro8u* pSrc, int64_t srcStep, Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_8u_AC4RSfs(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_8u_AC4IRSfs(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_8u_AC4RSfs_L(const Kro8u* pSrc1, int64_t src1Step, const Kro8u* pSrc2, int64_t src2Step, Kro8u* pDst, int64_t dstStep, KroiSizeL roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_8u_AC4IRSfs_L(const Kro8u* pSrc, int64_t srcStep, Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_16u_C1RSfs(const Kro16u* pSrc1, int src1Step, const Kro16u* pSrc2, int src2Step, Kro16u* pDst, int dstStep, KroiSize roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_16u_C1IRSfs(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_16u_C1RSfs_L(const Kro16u* pSrc1, int64_t src1Step, const Kro16u* pSrc2, int64_t src2Step, Kro16u* pDst, int64_t dstStep, KroiSizeL roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_16u_C1IRSfs_L(const Kro16u* pSrc, int64_t srcStep, Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_16u_C3RSfs(const Kro16u* pSrc1, int src1Step, const Kro16u* pSrc2, int src2Step, Kro16u* pDst, int dstStep, KroiSize roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_16u_C3IRSfs(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_16u_C3RSfs_L(const Kro16u* pSrc1, int64_t src1Step, const Kro16u* pSrc2, int64_t src2Step, Kro16u* pDst, int64_t dstStep, KroiSizeL roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_16u_C3IRSfs_L(const Kro16u* pSrc, int64_t srcStep, Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_16u_C4RSfs(const Kro16u* pSrc1, int src1Step, const Kro16u* pSrc2, int src2Step, Kro16u* pDst, int dstStep, KroiSize roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_16u_C4IRSfs(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_16u_C4RSfs_L(const Kro16u* pSrc1, int64_t src1Step, const Kro16u* pSrc2, int64_t src2Step, Kro16u* pDst, int64_t dstStep, KroiSizeL roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_16u_C4IRSfs_L(const Kro16u* pSrc, int64_t srcStep, Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_16u_AC4RSfs(const Kro16u* pSrc1, int src1Step, const Kro16u* pSrc2, int src2Step, Kro16u* pDst, int dstStep, KroiSize roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_16u_AC4IRSfs(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_16u_AC4RSfs_L(const Kro16u* pSrc1, int64_t src1Step, const Kro16u* pSrc2, int64_t src2Step, Kro16u* pDst, int64_t dstStep, KroiSizeL roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_16u_AC4IRSfs_L(const Kro16u* pSrc, int64_t srcStep, Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_16s_C1RSfs(const Kro16s* pSrc1, int src1Step, const Kro16s* pSrc2, int src2Step, Kro16s* pDst, int dstStep, KroiSize roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_16s_C1IRSfs(const Kro16s* pSrc, int srcStep, Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_16s_C1RSfs_L(const Kro16s* pSrc1, int64_t src1Step, const Kro16s* pSrc2, int64_t src2Step, Kro16s* pDst, int64_t dstStep, KroiSizeL roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_16s_C1IRSfs_L(const Kro16s* pSrc, int64_t srcStep, Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_16s_C3RSfs(const Kro16s* pSrc1, int src1Step, const Kro16s* pSrc2, int src2Step, Kro16s* pDst, int dstStep, KroiSize roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_16s_C3IRSfs(const Kro16s* pSrc, int srcStep, Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_16s_C3RSfs_L(const Kro16s* pSrc1, int64_t src1Step, const Kro16s* pSrc2, int64_t src2Step, Kro16s* pDst, int64_t dstStep, KroiSizeL roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_16s_C3IRSfs_L(const Kro16s* pSrc, int64_t srcStep, Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_16s_C4RSfs(const Kro16s* pSrc1, int src1Step, const Kro16s* pSrc2, int src2Step, Kro16s* pDst, int dstStep, KroiSize roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_16s_C4IRSfs(const Kro16s* pSrc, int srcStep, Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_16s_C4RSfs_L(const Kro16s* pSrc1, int64_t src1Step, const Kro16s* pSrc2, int64_t src2Step, Kro16s* pDst, int64_t dstStep, KroiSizeL roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_16s_C4IRSfs_L(const Kro16s* pSrc, int64_t srcStep, Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_16s_AC4RSfs(const Kro16s* pSrc1, int src1Step, const Kro16s* pSrc2, int src2Step, Kro16s* pDst, int dstStep, KroiSize roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_16s_AC4IRSfs(const Kro16s* pSrc, int srcStep, Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_16s_AC4RSfs_L(const Kro16s* pSrc1, int64_t src1Step, const Kro16s* pSrc2, int64_t src2Step, Kro16s* pDst, int64_t dstStep, KroiSizeL roiSize, KroRoundMode rndMode, int scaleFactor);
KroStatus kroiDiv_Round_16s_AC4IRSfs_L(const Kro16s* pSrc, int64_t srcStep, Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, KroRoundMode rndMode, int scaleFactor);

/* end of section ARITH */

/* =======================================================================================
 * Arithmetic with constants, logic and shifts
 * ======================================================================================= */
/* section ARITHC */
/* ---------------------------------------------------------------------------------------
 * Arithmetic with constants: AddC, SubC, MulC, DivC.
 *
 *   kroiAddC  dst = src + value       kroiSubC  dst = src - value
 *   kroiMulC  dst = src x value       kroiDivC  dst = src / value
 * The constant stands on the right (unlike the two-image Sub and Div, whose first image is
 * the subtrahend and the divisor).  C1 takes one value; C3 and AC4 an array of three, C4 of
 * four, one per channel.  In place (IR): (value, pSrcDst, srcDstStep, roiSize[, scale]).
 * AC4 computes the first three channels and never writes the fourth, also where a shortcut
 * below copies or fills.
 *
 * Integer forms (8u, 16u, 16s, Sfs) follow the two-image arithmetic's rule exactly, with the
 * constant in place of the second element: exact result times 2^-scaleFactor, rounded to
 * nearest with ties to even, saturated; and the same kernel choice by scale factor, with the
 * same fills of 0 through kroiSet where the scale factor makes every result 0 (AddC 8u above
 * 9, SubC 8u above 8, MulC 8u above 16, AddC and SubC 16s above 16, MulC 16s above 30,
 * AddC 16u above 17, SubC 16u above 16, MulC 16u above 32).  DivC is exact: the quotient
 * src / value times 2^-scaleFactor, rounded to nearest with ties to even, saturated.
 * Shortcuts before any arithmetic, integer forms only; each gives the rule's result:
 *   - AddC and SubC with every value 0, MulC and DivC with every value 1, at scale factor 0:
 *     the source is copied through kroiCopy of the same layout (16u through 16s) and its
 *     status returned (in place nothing is done);
 *   - MulC with every value 0, at any scale factor: the destination is filled with 0
 *     through kroiSet;
 *   - DivC with every value 1 is MulC by 1 at the same scale factor.
 * 32f forms: one IEEE single-precision operation per element, with no shortcuts (so that
 * -0 + 0 gives +0 and infinity x 0 gives NaN as IEEE arithmetic does).
 *
 * Checks, in this order; the first failure is returned and nothing is written:
 *   AddC, SubC, MulC: null pSrc, pDst (pSrcDst) or value array: kroStsNullPointerErr (-8);
 *     width or height < 1: kroStsBadSizeErr (-6).  Steps are not checked: any step,
 *     negative and zero included, is used as given.
 *   DivC: pointers (-8); size (-6); any step < 1: kroStsBadStepErr (-16); a value of 0 in
 *     any computed channel (32f: +0 or -0 too): kroStsZeroDivisorErr (-10).  A division by
 *     zero is always this error, never a warning.
 * _L forms: 64-bit steps and KroiSizeL.  When every |step| and |width x height| are below
 *   0x7FFFFFFF the call goes to the 32-bit form with the same arguments narrowed, and returns
 *   its status.  Otherwise a height below 1 returns 0; each row is cut into pieces of at
 *   most 0x3FFFFFFF pixels, and each piece runs through the one-row operation, which checks
 *   its pointers, its length (-6) and, for DivC, the divisor (-10); the first error ends the
 *   call (earlier rows stay written), otherwise the last piece's status is returned.
 * Status: 0, or the error; a fill or copy returns the status of kroiSet or kroiCopy.
 * ------------------------------------------------------------------------------------- */
KroStatus kroiAddC_8u_C1RSfs(const Kro8u* pSrc, int srcStep, Kro8u value, Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAddC_8u_C1IRSfs(Kro8u value, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAddC_8u_C1RSfs_L(const Kro8u* pSrc, int64_t srcStep, Kro8u value, Kro8u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAddC_8u_C1IRSfs_L(Kro8u value, Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAddC_8u_C3RSfs(const Kro8u* pSrc, int srcStep, const Kro8u value[3], Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAddC_8u_C3IRSfs(const Kro8u value[3], Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAddC_8u_C3RSfs_L(const Kro8u* pSrc, int64_t srcStep, const Kro8u value[3], Kro8u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAddC_8u_C3IRSfs_L(const Kro8u value[3], Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAddC_8u_C4RSfs(const Kro8u* pSrc, int srcStep, const Kro8u value[4], Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAddC_8u_C4IRSfs(const Kro8u value[4], Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAddC_8u_C4RSfs_L(const Kro8u* pSrc, int64_t srcStep, const Kro8u value[4], Kro8u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAddC_8u_C4IRSfs_L(const Kro8u value[4], Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAddC_8u_AC4RSfs(const Kro8u* pSrc, int srcStep, const Kro8u value[3], Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAddC_8u_AC4IRSfs(const Kro8u value[3], Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAddC_8u_AC4RSfs_L(const Kro8u* pSrc, int64_t srcStep, const Kro8u value[3], Kro8u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAddC_8u_AC4IRSfs_L(const Kro8u value[3], Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAddC_16u_C1RSfs(const Kro16u* pSrc, int srcStep, Kro16u value, Kro16u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAddC_16u_C1IRSfs(Kro16u value, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAddC_16u_C1RSfs_L(const Kro16u* pSrc, int64_t srcStep, Kro16u value, Kro16u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAddC_16u_C1IRSfs_L(Kro16u value, Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAddC_16u_C3RSfs(const Kro16u* pSrc, int srcStep, const Kro16u value[3], Kro16u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAddC_16u_C3IRSfs(const Kro16u value[3], Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAddC_16u_C3RSfs_L(const Kro16u* pSrc, int64_t srcStep, const Kro16u value[3], Kro16u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAddC_16u_C3IRSfs_L(const Kro16u value[3], Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAddC_16u_C4RSfs(const Kro16u* pSrc, int srcStep, const Kro16u value[4], Kro16u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAddC_16u_C4IRSfs(const Kro16u value[4], Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAddC_16u_C4RSfs_L(const Kro16u* pSrc, int64_t srcStep, const Kro16u value[4], Kro16u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAddC_16u_C4IRSfs_L(const Kro16u value[4], Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAddC_16u_AC4RSfs(const Kro16u* pSrc, int srcStep, const Kro16u value[3], Kro16u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAddC_16u_AC4IRSfs(const Kro16u value[3], Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAddC_16u_AC4RSfs_L(const Kro16u* pSrc, int64_t srcStep, const Kro16u value[3], Kro16u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAddC_16u_AC4IRSfs_L(const Kro16u value[3], Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAddC_16s_C1RSfs(const Kro16s* pSrc, int srcStep, Kro16s value, Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAddC_16s_C1IRSfs(Kro16s value, Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAddC_16s_C1RSfs_L(const Kro16s* pSrc, int64_t srcStep, Kro16s value, Kro16s* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAddC_16s_C1IRSfs_L(Kro16s value, Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAddC_16s_C3RSfs(const Kro16s* pSrc, int srcStep, const Kro16s value[3], Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAddC_16s_C3IRSfs(const Kro16s value[3], Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAddC_16s_C3RSfs_L(const Kro16s* pSrc, int64_t srcStep, const Kro16s value[3], Kro16s* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAddC_16s_C3IRSfs_L(const Kro16s value[3], Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAddC_16s_C4RSfs(const Kro16s* pSrc, int srcStep, const Kro16s value[4], Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAddC_16s_C4IRSfs(const Kro16s value[4], Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAddC_16s_C4RSfs_L(const Kro16s* pSrc, int64_t srcStep, const Kro16s value[4], Kro16s* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAddC_16s_C4IRSfs_L(const Kro16s value[4], Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAddC_16s_AC4RSfs(const Kro16s* pSrc, int srcStep, const Kro16s value[3], Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAddC_16s_AC4IRSfs(const Kro16s value[3], Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiAddC_16s_AC4RSfs_L(const Kro16s* pSrc, int64_t srcStep, const Kro16s value[3], Kro16s* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAddC_16s_AC4IRSfs_L(const Kro16s value[3], Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiAddC_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f value, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAddC_32f_C1IR(Kro32f value, Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAddC_32f_C1R_L(const Kro32f* pSrc, int64_t srcStep, Kro32f value, Kro32f* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiAddC_32f_C1IR_L(Kro32f value, Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize);
KroStatus kroiAddC_32f_C3R(const Kro32f* pSrc, int srcStep, const Kro32f value[3], Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAddC_32f_C3IR(const Kro32f value[3], Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAddC_32f_C3R_L(const Kro32f* pSrc, int64_t srcStep, const Kro32f value[3], Kro32f* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiAddC_32f_C3IR_L(const Kro32f value[3], Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize);
KroStatus kroiAddC_32f_C4R(const Kro32f* pSrc, int srcStep, const Kro32f value[4], Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAddC_32f_C4IR(const Kro32f value[4], Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAddC_32f_C4R_L(const Kro32f* pSrc, int64_t srcStep, const Kro32f value[4], Kro32f* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiAddC_32f_C4IR_L(const Kro32f value[4], Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize);
KroStatus kroiAddC_32f_AC4R(const Kro32f* pSrc, int srcStep, const Kro32f value[3], Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAddC_32f_AC4IR(const Kro32f value[3], Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAddC_32f_AC4R_L(const Kro32f* pSrc, int64_t srcStep, const Kro32f value[3], Kro32f* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiAddC_32f_AC4IR_L(const Kro32f value[3], Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize);

KroStatus kroiSubC_8u_C1RSfs(const Kro8u* pSrc, int srcStep, Kro8u value, Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSubC_8u_C1IRSfs(Kro8u value, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSubC_8u_C1RSfs_L(const Kro8u* pSrc, int64_t srcStep, Kro8u value, Kro8u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSubC_8u_C1IRSfs_L(Kro8u value, Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSubC_8u_C3RSfs(const Kro8u* pSrc, int srcStep, const Kro8u value[3], Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSubC_8u_C3IRSfs(const Kro8u value[3], Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSubC_8u_C3RSfs_L(const Kro8u* pSrc, int64_t srcStep, const Kro8u value[3], Kro8u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSubC_8u_C3IRSfs_L(const Kro8u value[3], Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSubC_8u_C4RSfs(const Kro8u* pSrc, int srcStep, const Kro8u value[4], Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSubC_8u_C4IRSfs(const Kro8u value[4], Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSubC_8u_C4RSfs_L(const Kro8u* pSrc, int64_t srcStep, const Kro8u value[4], Kro8u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSubC_8u_C4IRSfs_L(const Kro8u value[4], Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSubC_8u_AC4RSfs(const Kro8u* pSrc, int srcStep, const Kro8u value[3], Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSubC_8u_AC4IRSfs(const Kro8u value[3], Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSubC_8u_AC4RSfs_L(const Kro8u* pSrc, int64_t srcStep, const Kro8u value[3], Kro8u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSubC_8u_AC4IRSfs_L(const Kro8u value[3], Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSubC_16u_C1RSfs(const Kro16u* pSrc, int srcStep, Kro16u value, Kro16u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSubC_16u_C1IRSfs(Kro16u value, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSubC_16u_C1RSfs_L(const Kro16u* pSrc, int64_t srcStep, Kro16u value, Kro16u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSubC_16u_C1IRSfs_L(Kro16u value, Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSubC_16u_C3RSfs(const Kro16u* pSrc, int srcStep, const Kro16u value[3], Kro16u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSubC_16u_C3IRSfs(const Kro16u value[3], Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSubC_16u_C3RSfs_L(const Kro16u* pSrc, int64_t srcStep, const Kro16u value[3], Kro16u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSubC_16u_C3IRSfs_L(const Kro16u value[3], Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSubC_16u_C4RSfs(const Kro16u* pSrc, int srcStep, const Kro16u value[4], Kro16u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSubC_16u_C4IRSfs(const Kro16u value[4], Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSubC_16u_C4RSfs_L(const Kro16u* pSrc, int64_t srcStep, const Kro16u value[4], Kro16u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSubC_16u_C4IRSfs_L(const Kro16u value[4], Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSubC_16u_AC4RSfs(const Kro16u* pSrc, int srcStep, const Kro16u value[3], Kro16u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSubC_16u_AC4IRSfs(const Kro16u value[3], Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSubC_16u_AC4RSfs_L(const Kro16u* pSrc, int64_t srcStep, const Kro16u value[3], Kro16u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSubC_16u_AC4IRSfs_L(const Kro16u value[3], Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSubC_16s_C1RSfs(const Kro16s* pSrc, int srcStep, Kro16s value, Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSubC_16s_C1IRSfs(Kro16s value, Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSubC_16s_C1RSfs_L(const Kro16s* pSrc, int64_t srcStep, Kro16s value, Kro16s* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSubC_16s_C1IRSfs_L(Kro16s value, Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSubC_16s_C3RSfs(const Kro16s* pSrc, int srcStep, const Kro16s value[3], Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSubC_16s_C3IRSfs(const Kro16s value[3], Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSubC_16s_C3RSfs_L(const Kro16s* pSrc, int64_t srcStep, const Kro16s value[3], Kro16s* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSubC_16s_C3IRSfs_L(const Kro16s value[3], Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSubC_16s_C4RSfs(const Kro16s* pSrc, int srcStep, const Kro16s value[4], Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSubC_16s_C4IRSfs(const Kro16s value[4], Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSubC_16s_C4RSfs_L(const Kro16s* pSrc, int64_t srcStep, const Kro16s value[4], Kro16s* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSubC_16s_C4IRSfs_L(const Kro16s value[4], Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSubC_16s_AC4RSfs(const Kro16s* pSrc, int srcStep, const Kro16s value[3], Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSubC_16s_AC4IRSfs(const Kro16s value[3], Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSubC_16s_AC4RSfs_L(const Kro16s* pSrc, int64_t srcStep, const Kro16s value[3], Kro16s* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSubC_16s_AC4IRSfs_L(const Kro16s value[3], Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiSubC_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f value, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSubC_32f_C1IR(Kro32f value, Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiSubC_32f_C1R_L(const Kro32f* pSrc, int64_t srcStep, Kro32f value, Kro32f* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiSubC_32f_C1IR_L(Kro32f value, Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize);
KroStatus kroiSubC_32f_C3R(const Kro32f* pSrc, int srcStep, const Kro32f value[3], Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSubC_32f_C3IR(const Kro32f value[3], Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiSubC_32f_C3R_L(const Kro32f* pSrc, int64_t srcStep, const Kro32f value[3], Kro32f* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiSubC_32f_C3IR_L(const Kro32f value[3], Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize);
KroStatus kroiSubC_32f_C4R(const Kro32f* pSrc, int srcStep, const Kro32f value[4], Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSubC_32f_C4IR(const Kro32f value[4], Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiSubC_32f_C4R_L(const Kro32f* pSrc, int64_t srcStep, const Kro32f value[4], Kro32f* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiSubC_32f_C4IR_L(const Kro32f value[4], Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize);
KroStatus kroiSubC_32f_AC4R(const Kro32f* pSrc, int srcStep, const Kro32f value[3], Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSubC_32f_AC4IR(const Kro32f value[3], Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiSubC_32f_AC4R_L(const Kro32f* pSrc, int64_t srcStep, const Kro32f value[3], Kro32f* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiSubC_32f_AC4IR_L(const Kro32f value[3], Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize);

KroStatus kroiMulC_8u_C1RSfs(const Kro8u* pSrc, int srcStep, Kro8u value, Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMulC_8u_C1IRSfs(Kro8u value, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMulC_8u_C1RSfs_L(const Kro8u* pSrc, int64_t srcStep, Kro8u value, Kro8u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMulC_8u_C1IRSfs_L(Kro8u value, Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMulC_8u_C3RSfs(const Kro8u* pSrc, int srcStep, const Kro8u value[3], Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMulC_8u_C3IRSfs(const Kro8u value[3], Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMulC_8u_C3RSfs_L(const Kro8u* pSrc, int64_t srcStep, const Kro8u value[3], Kro8u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMulC_8u_C3IRSfs_L(const Kro8u value[3], Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMulC_8u_C4RSfs(const Kro8u* pSrc, int srcStep, const Kro8u value[4], Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMulC_8u_C4IRSfs(const Kro8u value[4], Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMulC_8u_C4RSfs_L(const Kro8u* pSrc, int64_t srcStep, const Kro8u value[4], Kro8u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMulC_8u_C4IRSfs_L(const Kro8u value[4], Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMulC_8u_AC4RSfs(const Kro8u* pSrc, int srcStep, const Kro8u value[3], Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMulC_8u_AC4IRSfs(const Kro8u value[3], Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMulC_8u_AC4RSfs_L(const Kro8u* pSrc, int64_t srcStep, const Kro8u value[3], Kro8u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMulC_8u_AC4IRSfs_L(const Kro8u value[3], Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMulC_16u_C1RSfs(const Kro16u* pSrc, int srcStep, Kro16u value, Kro16u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMulC_16u_C1IRSfs(Kro16u value, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMulC_16u_C1RSfs_L(const Kro16u* pSrc, int64_t srcStep, Kro16u value, Kro16u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMulC_16u_C1IRSfs_L(Kro16u value, Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMulC_16u_C3RSfs(const Kro16u* pSrc, int srcStep, const Kro16u value[3], Kro16u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMulC_16u_C3IRSfs(const Kro16u value[3], Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMulC_16u_C3RSfs_L(const Kro16u* pSrc, int64_t srcStep, const Kro16u value[3], Kro16u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMulC_16u_C3IRSfs_L(const Kro16u value[3], Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMulC_16u_C4RSfs(const Kro16u* pSrc, int srcStep, const Kro16u value[4], Kro16u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMulC_16u_C4IRSfs(const Kro16u value[4], Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMulC_16u_C4RSfs_L(const Kro16u* pSrc, int64_t srcStep, const Kro16u value[4], Kro16u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMulC_16u_C4IRSfs_L(const Kro16u value[4], Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMulC_16u_AC4RSfs(const Kro16u* pSrc, int srcStep, const Kro16u value[3], Kro16u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMulC_16u_AC4IRSfs(const Kro16u value[3], Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMulC_16u_AC4RSfs_L(const Kro16u* pSrc, int64_t srcStep, const Kro16u value[3], Kro16u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMulC_16u_AC4IRSfs_L(const Kro16u value[3], Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMulC_16s_C1RSfs(const Kro16s* pSrc, int srcStep, Kro16s value, Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMulC_16s_C1IRSfs(Kro16s value, Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMulC_16s_C1RSfs_L(const Kro16s* pSrc, int64_t srcStep, Kro16s value, Kro16s* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMulC_16s_C1IRSfs_L(Kro16s value, Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMulC_16s_C3RSfs(const Kro16s* pSrc, int srcStep, const Kro16s value[3], Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMulC_16s_C3IRSfs(const Kro16s value[3], Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMulC_16s_C3RSfs_L(const Kro16s* pSrc, int64_t srcStep, const Kro16s value[3], Kro16s* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMulC_16s_C3IRSfs_L(const Kro16s value[3], Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMulC_16s_C4RSfs(const Kro16s* pSrc, int srcStep, const Kro16s value[4], Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMulC_16s_C4IRSfs(const Kro16s value[4], Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMulC_16s_C4RSfs_L(const Kro16s* pSrc, int64_t srcStep, const Kro16s value[4], Kro16s* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMulC_16s_C4IRSfs_L(const Kro16s value[4], Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMulC_16s_AC4RSfs(const Kro16s* pSrc, int srcStep, const Kro16s value[3], Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMulC_16s_AC4IRSfs(const Kro16s value[3], Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiMulC_16s_AC4RSfs_L(const Kro16s* pSrc, int64_t srcStep, const Kro16s value[3], Kro16s* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMulC_16s_AC4IRSfs_L(const Kro16s value[3], Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiMulC_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f value, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiMulC_32f_C1IR(Kro32f value, Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiMulC_32f_C1R_L(const Kro32f* pSrc, int64_t srcStep, Kro32f value, Kro32f* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiMulC_32f_C1IR_L(Kro32f value, Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize);
KroStatus kroiMulC_32f_C3R(const Kro32f* pSrc, int srcStep, const Kro32f value[3], Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiMulC_32f_C3IR(const Kro32f value[3], Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiMulC_32f_C3R_L(const Kro32f* pSrc, int64_t srcStep, const Kro32f value[3], Kro32f* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiMulC_32f_C3IR_L(const Kro32f value[3], Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize);
KroStatus kroiMulC_32f_C4R(const Kro32f* pSrc, int srcStep, const Kro32f value[4], Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiMulC_32f_C4IR(const Kro32f value[4], Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiMulC_32f_C4R_L(const Kro32f* pSrc, int64_t srcStep, const Kro32f value[4], Kro32f* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiMulC_32f_C4IR_L(const Kro32f value[4], Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize);
KroStatus kroiMulC_32f_AC4R(const Kro32f* pSrc, int srcStep, const Kro32f value[3], Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiMulC_32f_AC4IR(const Kro32f value[3], Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiMulC_32f_AC4R_L(const Kro32f* pSrc, int64_t srcStep, const Kro32f value[3], Kro32f* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiMulC_32f_AC4IR_L(const Kro32f value[3], Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize);

KroStatus kroiDivC_8u_C1RSfs(const Kro8u* pSrc, int srcStep, Kro8u value, Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDivC_8u_C1IRSfs(Kro8u value, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDivC_8u_C1RSfs_L(const Kro8u* pSrc, int64_t srcStep, Kro8u value, Kro8u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDivC_8u_C1IRSfs_L(Kro8u value, Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDivC_8u_C3RSfs(const Kro8u* pSrc, int srcStep, const Kro8u value[3], Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDivC_8u_C3IRSfs(const Kro8u value[3], Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDivC_8u_C3RSfs_L(const Kro8u* pSrc, int64_t srcStep, const Kro8u value[3], Kro8u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDivC_8u_C3IRSfs_L(const Kro8u value[3], Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDivC_8u_C4RSfs(const Kro8u* pSrc, int srcStep, const Kro8u value[4], Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDivC_8u_C4IRSfs(const Kro8u value[4], Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDivC_8u_C4RSfs_L(const Kro8u* pSrc, int64_t srcStep, const Kro8u value[4], Kro8u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDivC_8u_C4IRSfs_L(const Kro8u value[4], Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDivC_8u_AC4RSfs(const Kro8u* pSrc, int srcStep, const Kro8u value[3], Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDivC_8u_AC4IRSfs(const Kro8u value[3], Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDivC_8u_AC4RSfs_L(const Kro8u* pSrc, int64_t srcStep, const Kro8u value[3], Kro8u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDivC_8u_AC4IRSfs_L(const Kro8u value[3], Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDivC_16u_C1RSfs(const Kro16u* pSrc, int srcStep, Kro16u value, Kro16u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDivC_16u_C1IRSfs(Kro16u value, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDivC_16u_C1RSfs_L(const Kro16u* pSrc, int64_t srcStep, Kro16u value, Kro16u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDivC_16u_C1IRSfs_L(Kro16u value, Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDivC_16u_C3RSfs(const Kro16u* pSrc, int srcStep, const Kro16u value[3], Kro16u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDivC_16u_C3IRSfs(const Kro16u value[3], Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDivC_16u_C3RSfs_L(const Kro16u* pSrc, int64_t srcStep, const Kro16u value[3], Kro16u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDivC_16u_C3IRSfs_L(const Kro16u value[3], Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDivC_16u_C4RSfs(const Kro16u* pSrc, int srcStep, const Kro16u value[4], Kro16u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDivC_16u_C4IRSfs(const Kro16u value[4], Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDivC_16u_C4RSfs_L(const Kro16u* pSrc, int64_t srcStep, const Kro16u value[4], Kro16u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDivC_16u_C4IRSfs_L(const Kro16u value[4], Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDivC_16u_AC4RSfs(const Kro16u* pSrc, int srcStep, const Kro16u value[3], Kro16u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDivC_16u_AC4IRSfs(const Kro16u value[3], Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDivC_16u_AC4RSfs_L(const Kro16u* pSrc, int64_t srcStep, const Kro16u value[3], Kro16u* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDivC_16u_AC4IRSfs_L(const Kro16u value[3], Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDivC_16s_C1RSfs(const Kro16s* pSrc, int srcStep, Kro16s value, Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDivC_16s_C1IRSfs(Kro16s value, Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDivC_16s_C1RSfs_L(const Kro16s* pSrc, int64_t srcStep, Kro16s value, Kro16s* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDivC_16s_C1IRSfs_L(Kro16s value, Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDivC_16s_C3RSfs(const Kro16s* pSrc, int srcStep, const Kro16s value[3], Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDivC_16s_C3IRSfs(const Kro16s value[3], Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDivC_16s_C3RSfs_L(const Kro16s* pSrc, int64_t srcStep, const Kro16s value[3], Kro16s* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDivC_16s_C3IRSfs_L(const Kro16s value[3], Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDivC_16s_C4RSfs(const Kro16s* pSrc, int srcStep, const Kro16s value[4], Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDivC_16s_C4IRSfs(const Kro16s value[4], Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDivC_16s_C4RSfs_L(const Kro16s* pSrc, int64_t srcStep, const Kro16s value[4], Kro16s* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDivC_16s_C4IRSfs_L(const Kro16s value[4], Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDivC_16s_AC4RSfs(const Kro16s* pSrc, int srcStep, const Kro16s value[3], Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDivC_16s_AC4IRSfs(const Kro16s value[3], Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiDivC_16s_AC4RSfs_L(const Kro16s* pSrc, int64_t srcStep, const Kro16s value[3], Kro16s* pDst, int64_t dstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDivC_16s_AC4IRSfs_L(const Kro16s value[3], Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize, int scaleFactor);
KroStatus kroiDivC_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f value, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiDivC_32f_C1IR(Kro32f value, Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiDivC_32f_C1R_L(const Kro32f* pSrc, int64_t srcStep, Kro32f value, Kro32f* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiDivC_32f_C1IR_L(Kro32f value, Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize);
KroStatus kroiDivC_32f_C3R(const Kro32f* pSrc, int srcStep, const Kro32f value[3], Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiDivC_32f_C3IR(const Kro32f value[3], Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiDivC_32f_C3R_L(const Kro32f* pSrc, int64_t srcStep, const Kro32f value[3], Kro32f* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiDivC_32f_C3IR_L(const Kro32f value[3], Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize);
KroStatus kroiDivC_32f_C4R(const Kro32f* pSrc, int srcStep, const Kro32f value[4], Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiDivC_32f_C4IR(const Kro32f value[4], Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiDivC_32f_C4R_L(const Kro32f* pSrc, int64_t srcStep, const Kro32f value[4], Kro32f* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiDivC_32f_C4IR_L(const Kro32f value[4], Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize);
KroStatus kroiDivC_32f_AC4R(const Kro32f* pSrc, int srcStep, const Kro32f value[3], Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiDivC_32f_AC4IR(const Kro32f value[3], Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiDivC_32f_AC4R_L(const Kro32f* pSrc, int64_t srcStep, const Kro32f value[3], Kro32f* pDst, int64_t dstStep, KroiSizeL roiSize);
KroStatus kroiDivC_32f_AC4IR_L(const Kro32f value[3], Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL roiSize);

/* ---------------------------------------------------------------------------------------
 * Bitwise logic: And, Or, Xor, their constant forms, Not and Complement.
 *
 * Types 8u, 16u, 32s (Not: 8u; Complement: 8s, 16s, 32s), each in C1, C3, C4 and AC4, out
 * of place (R) and in place (IR).  AC4 computes the first three channels and never writes
 * the fourth.  No scaling, no saturation: the result is the bits of the operation.
 *   kroiAnd/Or/Xor       dst = src1 op src2; in place srcDst = src op srcDst.
 *   kroiAndC/OrC/XorC    dst = src op value, one value per channel (an array of 3 for C3 and
 *                        AC4, of 4 for C4; the array pointer is checked like the images).
 *   kroiNot_8u           dst = ~src (Xor with 255).
 *   kroiComplement       two's complement to sign and magnitude and back: a negative value
 *                        becomes its magnitude with the sign bit set, and the reverse, so
 *                        that two applications give the value back (-1 <-> 0x8001 in 16s);
 *                        non-negative values are unchanged, and the most negative value
 *                        (-128, -32768, -2^31), which has no magnitude in the type, maps to
 *                        itself.
 * Checks, in this order (it differs from the arithmetic's): a null pointer -8; any step
 * below 1 -16; width or height below 1 -6.  A zero step with a zero width gives -16.
 * Status: 0, or the error; nothing is written on error.
 * ------------------------------------------------------------------------------------- */
KroStatus kroiAnd_8u_C1R(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAnd_8u_C1IR(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAnd_8u_C3R(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAnd_8u_C3IR(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAnd_8u_C4R(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAnd_8u_C4IR(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAnd_8u_AC4R(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAnd_8u_AC4IR(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAnd_16u_C1R(const Kro16u* pSrc1, int src1Step, const Kro16u* pSrc2, int src2Step, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAnd_16u_C1IR(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAnd_16u_C3R(const Kro16u* pSrc1, int src1Step, const Kro16u* pSrc2, int src2Step, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAnd_16u_C3IR(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAnd_16u_C4R(const Kro16u* pSrc1, int src1Step, const Kro16u* pSrc2, int src2Step, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAnd_16u_C4IR(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAnd_16u_AC4R(const Kro16u* pSrc1, int src1Step, const Kro16u* pSrc2, int src2Step, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAnd_16u_AC4IR(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAnd_32s_C1R(const Kro32s* pSrc1, int src1Step, const Kro32s* pSrc2, int src2Step, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAnd_32s_C1IR(const Kro32s* pSrc, int srcStep, Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAnd_32s_C3R(const Kro32s* pSrc1, int src1Step, const Kro32s* pSrc2, int src2Step, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAnd_32s_C3IR(const Kro32s* pSrc, int srcStep, Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAnd_32s_C4R(const Kro32s* pSrc1, int src1Step, const Kro32s* pSrc2, int src2Step, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAnd_32s_C4IR(const Kro32s* pSrc, int srcStep, Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAnd_32s_AC4R(const Kro32s* pSrc1, int src1Step, const Kro32s* pSrc2, int src2Step, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAnd_32s_AC4IR(const Kro32s* pSrc, int srcStep, Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize);

KroStatus kroiOr_8u_C1R(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiOr_8u_C1IR(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiOr_8u_C3R(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiOr_8u_C3IR(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiOr_8u_C4R(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiOr_8u_C4IR(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiOr_8u_AC4R(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiOr_8u_AC4IR(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiOr_16u_C1R(const Kro16u* pSrc1, int src1Step, const Kro16u* pSrc2, int src2Step, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiOr_16u_C1IR(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiOr_16u_C3R(const Kro16u* pSrc1, int src1Step, const Kro16u* pSrc2, int src2Step, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiOr_16u_C3IR(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiOr_16u_C4R(const Kro16u* pSrc1, int src1Step, const Kro16u* pSrc2, int src2Step, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiOr_16u_C4IR(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiOr_16u_AC4R(const Kro16u* pSrc1, int src1Step, const Kro16u* pSrc2, int src2Step, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiOr_16u_AC4IR(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiOr_32s_C1R(const Kro32s* pSrc1, int src1Step, const Kro32s* pSrc2, int src2Step, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiOr_32s_C1IR(const Kro32s* pSrc, int srcStep, Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiOr_32s_C3R(const Kro32s* pSrc1, int src1Step, const Kro32s* pSrc2, int src2Step, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiOr_32s_C3IR(const Kro32s* pSrc, int srcStep, Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiOr_32s_C4R(const Kro32s* pSrc1, int src1Step, const Kro32s* pSrc2, int src2Step, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiOr_32s_C4IR(const Kro32s* pSrc, int srcStep, Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiOr_32s_AC4R(const Kro32s* pSrc1, int src1Step, const Kro32s* pSrc2, int src2Step, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiOr_32s_AC4IR(const Kro32s* pSrc, int srcStep, Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize);

KroStatus kroiXor_8u_C1R(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiXor_8u_C1IR(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiXor_8u_C3R(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiXor_8u_C3IR(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiXor_8u_C4R(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiXor_8u_C4IR(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiXor_8u_AC4R(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiXor_8u_AC4IR(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiXor_16u_C1R(const Kro16u* pSrc1, int src1Step, const Kro16u* pSrc2, int src2Step, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiXor_16u_C1IR(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiXor_16u_C3R(const Kro16u* pSrc1, int src1Step, const Kro16u* pSrc2, int src2Step, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiXor_16u_C3IR(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiXor_16u_C4R(const Kro16u* pSrc1, int src1Step, const Kro16u* pSrc2, int src2Step, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiXor_16u_C4IR(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiXor_16u_AC4R(const Kro16u* pSrc1, int src1Step, const Kro16u* pSrc2, int src2Step, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiXor_16u_AC4IR(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiXor_32s_C1R(const Kro32s* pSrc1, int src1Step, const Kro32s* pSrc2, int src2Step, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiXor_32s_C1IR(const Kro32s* pSrc, int srcStep, Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiXor_32s_C3R(const Kro32s* pSrc1, int src1Step, const Kro32s* pSrc2, int src2Step, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiXor_32s_C3IR(const Kro32s* pSrc, int srcStep, Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiXor_32s_C4R(const Kro32s* pSrc1, int src1Step, const Kro32s* pSrc2, int src2Step, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiXor_32s_C4IR(const Kro32s* pSrc, int srcStep, Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiXor_32s_AC4R(const Kro32s* pSrc1, int src1Step, const Kro32s* pSrc2, int src2Step, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiXor_32s_AC4IR(const Kro32s* pSrc, int srcStep, Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize);

KroStatus kroiAndC_8u_C1R(const Kro8u* pSrc, int srcStep, Kro8u value, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAndC_8u_C1IR(Kro8u value, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAndC_8u_C3R(const Kro8u* pSrc, int srcStep, const Kro8u value[3], Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAndC_8u_C3IR(const Kro8u value[3], Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAndC_8u_C4R(const Kro8u* pSrc, int srcStep, const Kro8u value[4], Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAndC_8u_C4IR(const Kro8u value[4], Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAndC_8u_AC4R(const Kro8u* pSrc, int srcStep, const Kro8u value[3], Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAndC_8u_AC4IR(const Kro8u value[3], Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAndC_16u_C1R(const Kro16u* pSrc, int srcStep, Kro16u value, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAndC_16u_C1IR(Kro16u value, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAndC_16u_C3R(const Kro16u* pSrc, int srcStep, const Kro16u value[3], Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAndC_16u_C3IR(const Kro16u value[3], Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAndC_16u_C4R(const Kro16u* pSrc, int srcStep, const Kro16u value[4], Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAndC_16u_C4IR(const Kro16u value[4], Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAndC_16u_AC4R(const Kro16u* pSrc, int srcStep, const Kro16u value[3], Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAndC_16u_AC4IR(const Kro16u value[3], Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAndC_32s_C1R(const Kro32s* pSrc, int srcStep, Kro32s value, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAndC_32s_C1IR(Kro32s value, Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAndC_32s_C3R(const Kro32s* pSrc, int srcStep, const Kro32s value[3], Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAndC_32s_C3IR(const Kro32s value[3], Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAndC_32s_C4R(const Kro32s* pSrc, int srcStep, const Kro32s value[4], Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAndC_32s_C4IR(const Kro32s value[4], Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAndC_32s_AC4R(const Kro32s* pSrc, int srcStep, const Kro32s value[3], Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAndC_32s_AC4IR(const Kro32s value[3], Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize);

KroStatus kroiOrC_8u_C1R(const Kro8u* pSrc, int srcStep, Kro8u value, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiOrC_8u_C1IR(Kro8u value, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiOrC_8u_C3R(const Kro8u* pSrc, int srcStep, const Kro8u value[3], Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiOrC_8u_C3IR(const Kro8u value[3], Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiOrC_8u_C4R(const Kro8u* pSrc, int srcStep, const Kro8u value[4], Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiOrC_8u_C4IR(const Kro8u value[4], Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiOrC_8u_AC4R(const Kro8u* pSrc, int srcStep, const Kro8u value[3], Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiOrC_8u_AC4IR(const Kro8u value[3], Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiOrC_16u_C1R(const Kro16u* pSrc, int srcStep, Kro16u value, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiOrC_16u_C1IR(Kro16u value, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiOrC_16u_C3R(const Kro16u* pSrc, int srcStep, const Kro16u value[3], Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiOrC_16u_C3IR(const Kro16u value[3], Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiOrC_16u_C4R(const Kro16u* pSrc, int srcStep, const Kro16u value[4], Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiOrC_16u_C4IR(const Kro16u value[4], Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiOrC_16u_AC4R(const Kro16u* pSrc, int srcStep, const Kro16u value[3], Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiOrC_16u_AC4IR(const Kro16u value[3], Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiOrC_32s_C1R(const Kro32s* pSrc, int srcStep, Kro32s value, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiOrC_32s_C1IR(Kro32s value, Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiOrC_32s_C3R(const Kro32s* pSrc, int srcStep, const Kro32s value[3], Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiOrC_32s_C3IR(const Kro32s value[3], Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiOrC_32s_C4R(const Kro32s* pSrc, int srcStep, const Kro32s value[4], Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiOrC_32s_C4IR(const Kro32s value[4], Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiOrC_32s_AC4R(const Kro32s* pSrc, int srcStep, const Kro32s value[3], Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiOrC_32s_AC4IR(const Kro32s value[3], Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize);

KroStatus kroiXorC_8u_C1R(const Kro8u* pSrc, int srcStep, Kro8u value, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiXorC_8u_C1IR(Kro8u value, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiXorC_8u_C3R(const Kro8u* pSrc, int srcStep, const Kro8u value[3], Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiXorC_8u_C3IR(const Kro8u value[3], Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiXorC_8u_C4R(const Kro8u* pSrc, int srcStep, const Kro8u value[4], Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiXorC_8u_C4IR(const Kro8u value[4], Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiXorC_8u_AC4R(const Kro8u* pSrc, int srcStep, const Kro8u value[3], Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiXorC_8u_AC4IR(const Kro8u value[3], Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiXorC_16u_C1R(const Kro16u* pSrc, int srcStep, Kro16u value, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiXorC_16u_C1IR(Kro16u value, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiXorC_16u_C3R(const Kro16u* pSrc, int srcStep, const Kro16u value[3], Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiXorC_16u_C3IR(const Kro16u value[3], Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiXorC_16u_C4R(const Kro16u* pSrc, int srcStep, const Kro16u value[4], Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiXorC_16u_C4IR(const Kro16u value[4], Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiXorC_16u_AC4R(const Kro16u* pSrc, int srcStep, const Kro16u value[3], Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiXorC_16u_AC4IR(const Kro16u value[3], Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiXorC_32s_C1R(const Kro32s* pSrc, int srcStep, Kro32s value, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiXorC_32s_C1IR(Kro32s value, Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiXorC_32s_C3R(const Kro32s* pSrc, int srcStep, const Kro32s value[3], Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiXorC_32s_C3IR(const Kro32s value[3], Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiXorC_32s_C4R(const Kro32s* pSrc, int srcStep, const Kro32s value[4], Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiXorC_32s_C4IR(const Kro32s value[4], Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiXorC_32s_AC4R(const Kro32s* pSrc, int srcStep, const Kro32s value[3], Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiXorC_32s_AC4IR(const Kro32s value[3], Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize);

KroStatus kroiNot_8u_C1R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiNot_8u_C1IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiNot_8u_C3R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiNot_8u_C3IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiNot_8u_C4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiNot_8u_C4IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiNot_8u_AC4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiNot_8u_AC4IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);

KroStatus kroiComplement_8s_C1R(const Kro8s* pSrc, int srcStep, Kro8s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiComplement_8s_C1IR(Kro8s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiComplement_8s_C3R(const Kro8s* pSrc, int srcStep, Kro8s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiComplement_8s_C3IR(Kro8s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiComplement_8s_C4R(const Kro8s* pSrc, int srcStep, Kro8s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiComplement_8s_C4IR(Kro8s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiComplement_8s_AC4R(const Kro8s* pSrc, int srcStep, Kro8s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiComplement_8s_AC4IR(Kro8s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiComplement_16s_C1R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiComplement_16s_C1IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiComplement_16s_C3R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiComplement_16s_C3IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiComplement_16s_C4R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiComplement_16s_C4IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiComplement_16s_AC4R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiComplement_16s_AC4IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiComplement_32s_C1R(const Kro32s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiComplement_32s_C1IR(Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiComplement_32s_C3R(const Kro32s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiComplement_32s_C3IR(Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiComplement_32s_C4R(const Kro32s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiComplement_32s_C4IR(Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiComplement_32s_AC4R(const Kro32s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiComplement_32s_AC4IR(Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize);

/* ---------------------------------------------------------------------------------------
 * Shifts by a constant count: kroiLShiftC (8u, 16u, 32s), kroiRShiftC (8u, 16u, 16s, 32s).
 *
 * C1, C3, C4, AC4, out of place and in place; the count is an unsigned 32-bit value, an
 * array of one count per channel for C3, C4 (4) and AC4 (3, the fourth channel is never
 * written).  Checks as the bitwise logic: null pointer (count array included) -8, any step
 * below 1 -16, width or height below 1 -6.
 *   LShiftC   v << count; the bits shifted out are lost (32s: the bits of the two's
 *             complement value, no saturation).  A count of the type's width or more (8u
 *             above 7, 16u above 15, 32s above 31) gives 0; when it does so for every
 *             channel the ROI is filled with 0 through kroiSet of the same layout (16u
 *             through the 16s form).
 *   RShiftC   8u, 16u: logical shift, 0 for counts above 7 and 15, filled through kroiSet
 *             as above.  16s: arithmetic shift, rounding toward minus infinity (-5 by 1
 *             gives -3); a count of 16 or more gives 0 for non-negative and -1 for negative
 *             values, and so does every count above 31: no count wraps around or fills.  A
 *             count of 0 in every channel copies through kroiCopy_16s of the same layout.
 *             32s: arithmetic too, like 16s, so that a signed image keeps its sign: counts
 *             of 31 and more give 0 or -1.
 * Status: 0, or the error (a fill or copy returns the status of kroiSet or kroiCopy).
 * ------------------------------------------------------------------------------------- */
KroStatus kroiLShiftC_8u_C1R(const Kro8u* pSrc, int srcStep, Kro32u value, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiLShiftC_8u_C1IR(Kro32u value, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiLShiftC_8u_C3R(const Kro8u* pSrc, int srcStep, const Kro32u value[3], Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiLShiftC_8u_C3IR(const Kro32u value[3], Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiLShiftC_8u_C4R(const Kro8u* pSrc, int srcStep, const Kro32u value[4], Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiLShiftC_8u_C4IR(const Kro32u value[4], Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiLShiftC_8u_AC4R(const Kro8u* pSrc, int srcStep, const Kro32u value[3], Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiLShiftC_8u_AC4IR(const Kro32u value[3], Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiLShiftC_16u_C1R(const Kro16u* pSrc, int srcStep, Kro32u value, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiLShiftC_16u_C1IR(Kro32u value, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiLShiftC_16u_C3R(const Kro16u* pSrc, int srcStep, const Kro32u value[3], Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiLShiftC_16u_C3IR(const Kro32u value[3], Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiLShiftC_16u_C4R(const Kro16u* pSrc, int srcStep, const Kro32u value[4], Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiLShiftC_16u_C4IR(const Kro32u value[4], Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiLShiftC_16u_AC4R(const Kro16u* pSrc, int srcStep, const Kro32u value[3], Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiLShiftC_16u_AC4IR(const Kro32u value[3], Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiLShiftC_32s_C1R(const Kro32s* pSrc, int srcStep, Kro32u value, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiLShiftC_32s_C1IR(Kro32u value, Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiLShiftC_32s_C3R(const Kro32s* pSrc, int srcStep, const Kro32u value[3], Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiLShiftC_32s_C3IR(const Kro32u value[3], Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiLShiftC_32s_C4R(const Kro32s* pSrc, int srcStep, const Kro32u value[4], Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiLShiftC_32s_C4IR(const Kro32u value[4], Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiLShiftC_32s_AC4R(const Kro32s* pSrc, int srcStep, const Kro32u value[3], Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiLShiftC_32s_AC4IR(const Kro32u value[3], Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize);

KroStatus kroiRShiftC_8u_C1R(const Kro8u* pSrc, int srcStep, Kro32u value, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiRShiftC_8u_C1IR(Kro32u value, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiRShiftC_8u_C3R(const Kro8u* pSrc, int srcStep, const Kro32u value[3], Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiRShiftC_8u_C3IR(const Kro32u value[3], Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiRShiftC_8u_C4R(const Kro8u* pSrc, int srcStep, const Kro32u value[4], Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiRShiftC_8u_C4IR(const Kro32u value[4], Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiRShiftC_8u_AC4R(const Kro8u* pSrc, int srcStep, const Kro32u value[3], Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiRShiftC_8u_AC4IR(const Kro32u value[3], Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiRShiftC_16u_C1R(const Kro16u* pSrc, int srcStep, Kro32u value, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiRShiftC_16u_C1IR(Kro32u value, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiRShiftC_16u_C3R(const Kro16u* pSrc, int srcStep, const Kro32u value[3], Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiRShiftC_16u_C3IR(const Kro32u value[3], Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiRShiftC_16u_C4R(const Kro16u* pSrc, int srcStep, const Kro32u value[4], Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiRShiftC_16u_C4IR(const Kro32u value[4], Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiRShiftC_16u_AC4R(const Kro16u* pSrc, int srcStep, const Kro32u value[3], Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiRShiftC_16u_AC4IR(const Kro32u value[3], Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiRShiftC_16s_C1R(const Kro16s* pSrc, int srcStep, Kro32u value, Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiRShiftC_16s_C1IR(Kro32u value, Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiRShiftC_16s_C3R(const Kro16s* pSrc, int srcStep, const Kro32u value[3], Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiRShiftC_16s_C3IR(const Kro32u value[3], Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiRShiftC_16s_C4R(const Kro16s* pSrc, int srcStep, const Kro32u value[4], Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiRShiftC_16s_C4IR(const Kro32u value[4], Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiRShiftC_16s_AC4R(const Kro16s* pSrc, int srcStep, const Kro32u value[3], Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiRShiftC_16s_AC4IR(const Kro32u value[3], Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiRShiftC_32s_C1R(const Kro32s* pSrc, int srcStep, Kro32u value, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiRShiftC_32s_C1IR(Kro32u value, Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiRShiftC_32s_C3R(const Kro32s* pSrc, int srcStep, const Kro32u value[3], Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiRShiftC_32s_C3IR(const Kro32u value[3], Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiRShiftC_32s_C4R(const Kro32s* pSrc, int srcStep, const Kro32u value[4], Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiRShiftC_32s_C4IR(const Kro32u value[4], Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiRShiftC_32s_AC4R(const Kro32s* pSrc, int srcStep, const Kro32u value[3], Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiRShiftC_32s_AC4IR(const Kro32u value[3], Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize);


/* end of section ARITHC */

/* =======================================================================================
 * Convert and Scale
 * ======================================================================================= */
/* section CONVERT */

/* Convert: changes the element type value for value.  Layouts C1, C3, C4, AC4 unless the name
 * says otherwise; AC4 never writes the fourth element of a pixel.  Every function of Convert,
 * Scale and ScaleC returns with the caller's MXCSR exactly as it was, exception flags
 * included, on success and on error.
 *
 * Without a rounding argument (R and Rs forms): widening is exact; narrowing saturates to the
 * destination's range; Rs (signed to unsigned) turns negative values into 0.  32s and 32u to
 * 32f round to nearest with ties to even, whatever rounding the caller's SSE control holds.
 * Checks: pSrc or pDst null -8; width or height < 1 -6; srcStep or dstStep < 1 -16.  When both
 * steps equal their rows' bytes the ROI is converted as one row. */

KroStatus kroiConvert_8u16u_C1R(const Kro8u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_8u16u_C3R(const Kro8u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_8u16u_C4R(const Kro8u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_8u16u_AC4R(const Kro8u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_8u16s_C1R(const Kro8u* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_8u16s_C3R(const Kro8u* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_8u16s_C4R(const Kro8u* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_8u16s_AC4R(const Kro8u* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_8u32s_C1R(const Kro8u* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_8u32s_C3R(const Kro8u* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_8u32s_C4R(const Kro8u* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_8u32s_AC4R(const Kro8u* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_8u32f_C1R(const Kro8u* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_8u32f_C3R(const Kro8u* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_8u32f_C4R(const Kro8u* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_8u32f_AC4R(const Kro8u* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_8s16s_C1R(const Kro8s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_8s32s_C1R(const Kro8s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_8s32s_C3R(const Kro8s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_8s32s_C4R(const Kro8s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_8s32s_AC4R(const Kro8s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_8s32f_C1R(const Kro8s* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_8s32f_C3R(const Kro8s* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_8s32f_C4R(const Kro8s* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_8s32f_AC4R(const Kro8s* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_8s64f_C1R(const Kro8s* pSrc, int srcStep, Kro64f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_16u32s_C1R(const Kro16u* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_16u32s_C3R(const Kro16u* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_16u32s_C4R(const Kro16u* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_16u32s_AC4R(const Kro16u* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_16u32f_C1R(const Kro16u* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_16u32f_C3R(const Kro16u* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_16u32f_C4R(const Kro16u* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_16u32f_AC4R(const Kro16u* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_16u32u_C1R(const Kro16u* pSrc, int srcStep, Kro32u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_16s32s_C1R(const Kro16s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_16s32s_C3R(const Kro16s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_16s32s_C4R(const Kro16s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_16s32s_AC4R(const Kro16s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_16s32f_C1R(const Kro16s* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_16s32f_C3R(const Kro16s* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_16s32f_C4R(const Kro16s* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_16s32f_AC4R(const Kro16s* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_32s32f_C1R(const Kro32s* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_32u32f_C1R(const Kro32u* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_16u8u_C1R(const Kro16u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_16u8u_C3R(const Kro16u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_16u8u_C4R(const Kro16u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_16u8u_AC4R(const Kro16u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_16s8u_C1R(const Kro16s* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_16s8u_C3R(const Kro16s* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_16s8u_C4R(const Kro16s* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_16s8u_AC4R(const Kro16s* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_32s8u_C1R(const Kro32s* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_32s8u_C3R(const Kro32s* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_32s8u_C4R(const Kro32s* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_32s8u_AC4R(const Kro32s* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_32s8s_C1R(const Kro32s* pSrc, int srcStep, Kro8s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_32s8s_C3R(const Kro32s* pSrc, int srcStep, Kro8s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_32s8s_C4R(const Kro32s* pSrc, int srcStep, Kro8s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_32s8s_AC4R(const Kro32s* pSrc, int srcStep, Kro8s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_8s8u_C1Rs(const Kro8s* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_8s16u_C1Rs(const Kro8s* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_8s32u_C1Rs(const Kro8s* pSrc, int srcStep, Kro32u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_16s16u_C1Rs(const Kro16s* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_16s32u_C1Rs(const Kro16s* pSrc, int srcStep, Kro32u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiConvert_32s32u_C1Rs(const Kro32s* pSrc, int srcStep, Kro32u* pDst, int dstStep, KroiSize roiSize);

/* Float to integer with a rounding mode (32f to 8u, 8s, 16u, 16s): roundMode 0 rounds toward
 * zero and 1 to nearest with ties to even, both by the SSE rounding control set for the call
 * and restored before return (flags included); 2 and every other value round to nearest with
 * ties away from zero.  No mode value is rejected.  Results saturate to the destination's
 * range; NaN gives 0, infinities saturate.  Checks: null -8; size -6; a step < 1 -16.  Both
 * steps equal to their rows' bytes: the ROI is converted as one row.
 * Example: 2.5 gives 2, 2, 3 with modes 0, 1, 2; -1.0 gives 0 in 8u; 300.0 gives 255. */

KroStatus kroiConvert_32f8u_C1R(const Kro32f* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroRoundMode roundMode);
KroStatus kroiConvert_32f8u_C3R(const Kro32f* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroRoundMode roundMode);
KroStatus kroiConvert_32f8u_C4R(const Kro32f* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroRoundMode roundMode);
KroStatus kroiConvert_32f8u_AC4R(const Kro32f* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroRoundMode roundMode);
KroStatus kroiConvert_32f8s_C1R(const Kro32f* pSrc, int srcStep, Kro8s* pDst, int dstStep, KroiSize roiSize, KroRoundMode roundMode);
KroStatus kroiConvert_32f8s_C3R(const Kro32f* pSrc, int srcStep, Kro8s* pDst, int dstStep, KroiSize roiSize, KroRoundMode roundMode);
KroStatus kroiConvert_32f8s_C4R(const Kro32f* pSrc, int srcStep, Kro8s* pDst, int dstStep, KroiSize roiSize, KroRoundMode roundMode);
KroStatus kroiConvert_32f8s_AC4R(const Kro32f* pSrc, int srcStep, Kro8s* pDst, int dstStep, KroiSize roiSize, KroRoundMode roundMode);
KroStatus kroiConvert_32f16u_C1R(const Kro32f* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, KroRoundMode roundMode);
KroStatus kroiConvert_32f16u_C3R(const Kro32f* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, KroRoundMode roundMode);
KroStatus kroiConvert_32f16u_C4R(const Kro32f* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, KroRoundMode roundMode);
KroStatus kroiConvert_32f16u_AC4R(const Kro32f* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, KroRoundMode roundMode);
KroStatus kroiConvert_32f16s_C1R(const Kro32f* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroRoundMode roundMode);
KroStatus kroiConvert_32f16s_C3R(const Kro32f* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroRoundMode roundMode);
KroStatus kroiConvert_32f16s_C4R(const Kro32f* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroRoundMode roundMode);
KroStatus kroiConvert_32f16s_AC4R(const Kro32f* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroRoundMode roundMode);

/* RSfs conversions (C1): each element times 2^-scaleFactor, rounded by roundMode (as above:
 * 0 toward zero, 1 ties to even, any other value ties away from zero), saturated.  Integer
 * sources round the exact scaled value by the same mode, in integers; a negative
 * scaleFactor shifts left exactly and saturates.  Float and double sources scale exactly
 * (2^-scaleFactor applied without loss wherever the result can matter); NaN gives 0.
 * Checks: null -8; size -6; the steps are not checked and are used as given.  When the
 * source step is width x source element size and the destination step is width x
 * destination element size the ROI is converted as one row.  kroiConvert_32f32u_C1IRSfs
 * reads each element of pSrcDst as a float and writes it back as a 32-bit unsigned integer. */

KroStatus kroiConvert_8u8s_C1RSfs(const Kro8u* pSrc, int srcStep, Kro8s* pDst, int dstStep, KroiSize roiSize, KroRoundMode roundMode, int scaleFactor);
KroStatus kroiConvert_16u8s_C1RSfs(const Kro16u* pSrc, int srcStep, Kro8s* pDst, int dstStep, KroiSize roiSize, KroRoundMode roundMode, int scaleFactor);
KroStatus kroiConvert_16s8s_C1RSfs(const Kro16s* pSrc, int srcStep, Kro8s* pDst, int dstStep, KroiSize roiSize, KroRoundMode roundMode, int scaleFactor);
KroStatus kroiConvert_16u16s_C1RSfs(const Kro16u* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroRoundMode roundMode, int scaleFactor);
KroStatus kroiConvert_32s16s_C1RSfs(const Kro32s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroRoundMode roundMode, int scaleFactor);
KroStatus kroiConvert_32s16u_C1RSfs(const Kro32s* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, KroRoundMode roundMode, int scaleFactor);
KroStatus kroiConvert_32u8u_C1RSfs(const Kro32u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroRoundMode roundMode, int scaleFactor);
KroStatus kroiConvert_32u8s_C1RSfs(const Kro32u* pSrc, int srcStep, Kro8s* pDst, int dstStep, KroiSize roiSize, KroRoundMode roundMode, int scaleFactor);
KroStatus kroiConvert_32u16u_C1RSfs(const Kro32u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, KroRoundMode roundMode, int scaleFactor);
KroStatus kroiConvert_32u16s_C1RSfs(const Kro32u* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroRoundMode roundMode, int scaleFactor);
KroStatus kroiConvert_32u32s_C1RSfs(const Kro32u* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize, KroRoundMode roundMode, int scaleFactor);
KroStatus kroiConvert_32f8u_C1RSfs(const Kro32f* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroRoundMode roundMode, int scaleFactor);
KroStatus kroiConvert_32f8s_C1RSfs(const Kro32f* pSrc, int srcStep, Kro8s* pDst, int dstStep, KroiSize roiSize, KroRoundMode roundMode, int scaleFactor);
KroStatus kroiConvert_32f16u_C1RSfs(const Kro32f* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, KroRoundMode roundMode, int scaleFactor);
KroStatus kroiConvert_32f16s_C1RSfs(const Kro32f* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroRoundMode roundMode, int scaleFactor);
KroStatus kroiConvert_32f32s_C1RSfs(const Kro32f* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize, KroRoundMode roundMode, int scaleFactor);
KroStatus kroiConvert_32f32u_C1RSfs(const Kro32f* pSrc, int srcStep, Kro32u* pDst, int dstStep, KroiSize roiSize, KroRoundMode roundMode, int scaleFactor);
KroStatus kroiConvert_64f8u_C1RSfs(const Kro64f* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroRoundMode roundMode, int scaleFactor);
KroStatus kroiConvert_64f8s_C1RSfs(const Kro64f* pSrc, int srcStep, Kro8s* pDst, int dstStep, KroiSize roiSize, KroRoundMode roundMode, int scaleFactor);
KroStatus kroiConvert_64f16u_C1RSfs(const Kro64f* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, KroRoundMode roundMode, int scaleFactor);
KroStatus kroiConvert_64f16s_C1RSfs(const Kro64f* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroRoundMode roundMode, int scaleFactor);
KroStatus kroiConvert_32f32u_C1IRSfs(Kro32u* pSrcDst, int srcDstStep, KroiSize roiSize, KroRoundMode roundMode, int scaleFactor);

/* Scale: maps the whole range of one type onto the whole range of the other.  Layouts C1,
 * C3, C4, AC4.
 *   8u to 16u: v x 257.  8u to 16s: v x 257 - 32768.  8u to 32s: v x 16843009 - 2^31.
 *   16s to 8u, fast (any hint but 2): ((v - (v >> 8)) >> 8) + 128, arithmetic shifts.
 *   16u to 8u, fast: the same on v - 32768.  32s to 8u, fast: ((v - (v >> 8)) >> 24) + 128.
 *   Accurate (hint 2): 16s: (v + 32768) x 0.0038910505827516317 (255/65535 in single
 *   precision), 16u: v x the same constant, the product in single precision rounded to
 *   nearest and converted with ties to even; 32s: (v + 2^31) x 255 / (2^32 - 1) rounded to
 *   nearest, computed exactly (no value falls on a half).
 * Checks: null -8; size -6; a step < 1 -16.  Both steps equal to their rows' bytes: one row.
 * Above 2 MiB of source and destination together (counting every channel; for C1 8u to
 * 16s, above 699,050 pixels) the destination is written with non-temporal stores, except in
 * AC4. */

KroStatus kroiScale_8u16u_C1R(const Kro8u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiScale_8u16u_C3R(const Kro8u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiScale_8u16u_C4R(const Kro8u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiScale_8u16u_AC4R(const Kro8u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiScale_8u16s_C1R(const Kro8u* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiScale_8u16s_C3R(const Kro8u* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiScale_8u16s_C4R(const Kro8u* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiScale_8u16s_AC4R(const Kro8u* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiScale_8u32s_C1R(const Kro8u* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiScale_8u32s_C3R(const Kro8u* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiScale_8u32s_C4R(const Kro8u* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiScale_8u32s_AC4R(const Kro8u* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiScale_16u8u_C1R(const Kro16u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroAlgorithmHint hint);
KroStatus kroiScale_16u8u_C3R(const Kro16u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroAlgorithmHint hint);
KroStatus kroiScale_16u8u_C4R(const Kro16u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroAlgorithmHint hint);
KroStatus kroiScale_16u8u_AC4R(const Kro16u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroAlgorithmHint hint);
KroStatus kroiScale_16s8u_C1R(const Kro16s* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroAlgorithmHint hint);
KroStatus kroiScale_16s8u_C3R(const Kro16s* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroAlgorithmHint hint);
KroStatus kroiScale_16s8u_C4R(const Kro16s* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroAlgorithmHint hint);
KroStatus kroiScale_16s8u_AC4R(const Kro16s* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroAlgorithmHint hint);
KroStatus kroiScale_32s8u_C1R(const Kro32s* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroAlgorithmHint hint);
KroStatus kroiScale_32s8u_C3R(const Kro32s* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroAlgorithmHint hint);
KroStatus kroiScale_32s8u_C4R(const Kro32s* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroAlgorithmHint hint);
KroStatus kroiScale_32s8u_AC4R(const Kro32s* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroAlgorithmHint hint);

/* Scale with a float range [vMin, vMax].
 *   8u to 32f: factor = (vMax - vMin) / 255 in single precision; dst = v x factor + vMin.
 *   32f to 8u: factor = 255 / (vMax - vMin), offset = -vMin x factor; each value is clamped
 *   to [vMin, vMax] (NaN takes vMin, so gives 0), then dst = value x factor + offset,
 *   rounded to nearest with ties to even.
 * All float arithmetic is single precision rounded to nearest, set for the call and restored.
 * Checks, in this order: vMax - vMin not greater than 0 (NaN included) -12, before the
 * pointers; null -8; size -6; a step < 1 -16.  Both steps equal to their rows' bytes and
 * width x height below 2^31 - 1: one row.  8u to 32f streams its stores above 2 MiB of
 * source and destination together (419,430 pixels of C1), except in AC4. */

KroStatus kroiScale_8u32f_C1R(const Kro8u* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, Kro32f vMin, Kro32f vMax);
KroStatus kroiScale_8u32f_C3R(const Kro8u* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, Kro32f vMin, Kro32f vMax);
KroStatus kroiScale_8u32f_C4R(const Kro8u* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, Kro32f vMin, Kro32f vMax);
KroStatus kroiScale_8u32f_AC4R(const Kro8u* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, Kro32f vMin, Kro32f vMax);
KroStatus kroiScale_32f8u_C1R(const Kro32f* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, Kro32f vMin, Kro32f vMax);
KroStatus kroiScale_32f8u_C3R(const Kro32f* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, Kro32f vMin, Kro32f vMax);
KroStatus kroiScale_32f8u_C4R(const Kro32f* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, Kro32f vMin, Kro32f vMax);
KroStatus kroiScale_32f8u_AC4R(const Kro32f* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, Kro32f vMin, Kro32f vMax);

/* ScaleC (C1): dst = v x mVal + aVal, computed in double precision rounded to nearest (set
 * for the call), then rounded once to the destination: integers to nearest with ties to even
 * and saturated (NaN gives 0, infinities saturate), 32f to nearest, 64f as computed.  Every
 * pair of 8u, 8s, 16u, 16s, 32s, 32f, 64f; one type code when source and destination agree;
 * the IR forms work in place.  Checks: null -8; size -6; a step < 1 -16. */

KroStatus kroiScaleC_8u_C1R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_8u8s_C1R(const Kro8u* pSrc, int srcStep, Kro8s* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_8u16u_C1R(const Kro8u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_8u16s_C1R(const Kro8u* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_8u32s_C1R(const Kro8u* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_8u32f_C1R(const Kro8u* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_8u64f_C1R(const Kro8u* pSrc, int srcStep, Kro64f* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_8s8u_C1R(const Kro8s* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_8s_C1R(const Kro8s* pSrc, int srcStep, Kro8s* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_8s16u_C1R(const Kro8s* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_8s16s_C1R(const Kro8s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_8s32s_C1R(const Kro8s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_8s32f_C1R(const Kro8s* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_8s64f_C1R(const Kro8s* pSrc, int srcStep, Kro64f* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_16u8u_C1R(const Kro16u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_16u8s_C1R(const Kro16u* pSrc, int srcStep, Kro8s* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_16u_C1R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_16u16s_C1R(const Kro16u* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_16u32s_C1R(const Kro16u* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_16u32f_C1R(const Kro16u* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_16u64f_C1R(const Kro16u* pSrc, int srcStep, Kro64f* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_16s8u_C1R(const Kro16s* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_16s8s_C1R(const Kro16s* pSrc, int srcStep, Kro8s* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_16s16u_C1R(const Kro16s* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_16s_C1R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_16s32s_C1R(const Kro16s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_16s32f_C1R(const Kro16s* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_16s64f_C1R(const Kro16s* pSrc, int srcStep, Kro64f* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_32s8u_C1R(const Kro32s* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_32s8s_C1R(const Kro32s* pSrc, int srcStep, Kro8s* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_32s16u_C1R(const Kro32s* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_32s16s_C1R(const Kro32s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_32s_C1R(const Kro32s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_32s32f_C1R(const Kro32s* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_32s64f_C1R(const Kro32s* pSrc, int srcStep, Kro64f* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_32f8u_C1R(const Kro32f* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_32f8s_C1R(const Kro32f* pSrc, int srcStep, Kro8s* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_32f16u_C1R(const Kro32f* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_32f16s_C1R(const Kro32f* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_32f32s_C1R(const Kro32f* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_32f64f_C1R(const Kro32f* pSrc, int srcStep, Kro64f* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_64f8u_C1R(const Kro64f* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_64f8s_C1R(const Kro64f* pSrc, int srcStep, Kro8s* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_64f16u_C1R(const Kro64f* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_64f16s_C1R(const Kro64f* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_64f32s_C1R(const Kro64f* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_64f32f_C1R(const Kro64f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_64f_C1R(const Kro64f* pSrc, int srcStep, Kro64f* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal);
KroStatus kroiScaleC_8u_C1IR(Kro64f mVal, Kro64f aVal, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiScaleC_8s_C1IR(Kro64f mVal, Kro64f aVal, Kro8s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiScaleC_16u_C1IR(Kro64f mVal, Kro64f aVal, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiScaleC_16s_C1IR(Kro64f mVal, Kro64f aVal, Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiScaleC_32s_C1IR(Kro64f mVal, Kro64f aVal, Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiScaleC_32f_C1IR(Kro64f mVal, Kro64f aVal, Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiScaleC_64f_C1IR(Kro64f mVal, Kro64f aVal, Kro64f* pSrcDst, int srcDstStep, KroiSize roiSize);

/* end of section CONVERT */

/* =======================================================================================
 * Channel swap, transpose, mirror, duplication
 * ======================================================================================= */
/* section LAYOUT */
/* Flip codes of kroiMirror. */
enum {
    kroFlipRows    = 0, /* about the horizontal axis: row i exchanges with row height-1-i */
    kroFlipColumns = 1, /* about the vertical axis: element j exchanges with width-1-j */
    kroFlipBoth    = 2  /* about both axes */
};

/* kroiSwapChannels: destination channel c of each pixel receives source channel dstOrder[c]
 * (three indices for C3, AC4 and C4C3, four for C4 and C3C4).
 *   Checks: null pSrc, pDst or dstOrder -8; width or height < 1 -6; a step of 0 -16 (only
 *   zero: a negative step walks that image upward and is accepted); then the order -60:
 *   C3: each index 0..2; C4, C4C3: 0..3; AC4: 0..2 (the fourth channel is neither read
 *   nor written).  C3C4: a negative index -60; 0..2 take a source channel, 3 writes `val`
 *   into that channel, 4 and up leave that destination channel as it was.
 *   pSrc == pDst reorders in place (each whole pixel is read before it is written); the
 *   8u C3IR and C4IR forms do the same with one image. */
KroStatus kroiSwapChannels_8u_C3R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, const int dstOrder[3]);
KroStatus kroiSwapChannels_8u_C4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, const int dstOrder[4]);
KroStatus kroiSwapChannels_8u_AC4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, const int dstOrder[3]);
KroStatus kroiSwapChannels_8u_C4C3R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, const int dstOrder[3]);
KroStatus kroiSwapChannels_8u_C3C4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, const int dstOrder[4], Kro8u val);
KroStatus kroiSwapChannels_16u_C3R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, const int dstOrder[3]);
KroStatus kroiSwapChannels_16u_C4R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, const int dstOrder[4]);
KroStatus kroiSwapChannels_16u_AC4R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, const int dstOrder[3]);
KroStatus kroiSwapChannels_16u_C4C3R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, const int dstOrder[3]);
KroStatus kroiSwapChannels_16u_C3C4R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, const int dstOrder[4], Kro16u val);
KroStatus kroiSwapChannels_16s_C3R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, const int dstOrder[3]);
KroStatus kroiSwapChannels_16s_C4R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, const int dstOrder[4]);
KroStatus kroiSwapChannels_16s_AC4R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, const int dstOrder[3]);
KroStatus kroiSwapChannels_16s_C4C3R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, const int dstOrder[3]);
KroStatus kroiSwapChannels_16s_C3C4R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, const int dstOrder[4], Kro16s val);
KroStatus kroiSwapChannels_32s_C3R(const Kro32s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize, const int dstOrder[3]);
KroStatus kroiSwapChannels_32s_C4R(const Kro32s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize, const int dstOrder[4]);
KroStatus kroiSwapChannels_32s_AC4R(const Kro32s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize, const int dstOrder[3]);
KroStatus kroiSwapChannels_32s_C4C3R(const Kro32s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize, const int dstOrder[3]);
KroStatus kroiSwapChannels_32s_C3C4R(const Kro32s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize, const int dstOrder[4], Kro32s val);
KroStatus kroiSwapChannels_32f_C3R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, const int dstOrder[3]);
KroStatus kroiSwapChannels_32f_C4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, const int dstOrder[4]);
KroStatus kroiSwapChannels_32f_AC4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, const int dstOrder[3]);
KroStatus kroiSwapChannels_32f_C4C3R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, const int dstOrder[3]);
KroStatus kroiSwapChannels_32f_C3C4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, const int dstOrder[4], Kro32f val);
KroStatus kroiSwapChannels_8u_C3IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, const int dstOrder[3]);
KroStatus kroiSwapChannels_8u_C4IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, const int dstOrder[4]);

/* kroiTranspose: destination element at (column y, row x) = source element at (column x,
 * row y); roiSize is the source's size, the destination is height x width.
 *   pSrc == pDst with equal steps is handed to the in-place form before any check.
 *   Checks: null -8; width < 1 or height < 1 -6.  Steps are used as given.
 *   In place (IR): null -8; width or height < 1 -6.  A region of any shape: the memory at
 *   the step must hold both the height x width source and the width x height result; a
 *   square one is swapped tile by tile, any other is first copied to a block from kroMalloc_L
 *   (kroStsNoMemoryErr -9, nothing written, when it cannot be had).  Elements of the source
 *   outside the result keep their values.
 *   The image is processed in cache-sized square tiles. */
KroStatus kroiTranspose_8u_C1R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiTranspose_8u_C3R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiTranspose_8u_C4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiTranspose_8u_C1IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiTranspose_8u_C3IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiTranspose_8u_C4IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiTranspose_16u_C1R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiTranspose_16u_C3R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiTranspose_16u_C4R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiTranspose_16u_C1IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiTranspose_16u_C3IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiTranspose_16u_C4IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiTranspose_16s_C1R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiTranspose_16s_C3R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiTranspose_16s_C4R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiTranspose_16s_C1IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiTranspose_16s_C3IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiTranspose_16s_C4IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiTranspose_32s_C1R(const Kro32s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiTranspose_32s_C3R(const Kro32s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiTranspose_32s_C4R(const Kro32s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiTranspose_32s_C1IR(Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiTranspose_32s_C3IR(Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiTranspose_32s_C4IR(Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiTranspose_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiTranspose_32f_C3R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiTranspose_32f_C4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiTranspose_32f_C1IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiTranspose_32f_C3IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiTranspose_32f_C4IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiTranspose_32fc_C1R(const Kro32fc* pSrc, int srcStep, Kro32fc* pDst, int dstStep, KroiSize roiSize);

/* kroiMirror: flip 0 (kroFlipRows) exchanges row i with row height-1-i, flip 1
 * (kroFlipColumns) element j of each row with element width-1-j, flip 2 both.  AC4 leaves
 * the fourth channel of every destination pixel as it was (in place: alpha stays where it
 * is).
 *   In place (IR): null -8; width or height < 1 -6; flip other than 0, 1, 2 -22.
 *   Out of place: pSrc == pDst with equal steps and a flip other than 0 and 1 is handed to
 *   the in-place form, checks included.  Otherwise: null -8; size -6; a flip outside 0..2
 *   -22 (also when the images differ).  With flip 0 or 1 on the same image and step the
 *   mirror is made in place after this form's checks.  Steps are used as given.
 *   Out of place, flip 1 of an image larger than the biggest processor cache
 *   (kroGetMaxCacheSizeB) is written with streaming stores when the destination rows start
 *   on 16 bytes; the result is the same. */
KroStatus kroiMirror_8u_C1R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, int flip);
KroStatus kroiMirror_8u_C3R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, int flip);
KroStatus kroiMirror_8u_C4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, int flip);
KroStatus kroiMirror_8u_AC4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, int flip);
KroStatus kroiMirror_8u_C1IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int flip);
KroStatus kroiMirror_8u_C3IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int flip);
KroStatus kroiMirror_8u_C4IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int flip);
KroStatus kroiMirror_8u_AC4IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int flip);
KroStatus kroiMirror_16u_C1R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, int flip);
KroStatus kroiMirror_16u_C3R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, int flip);
KroStatus kroiMirror_16u_C4R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, int flip);
KroStatus kroiMirror_16u_AC4R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, int flip);
KroStatus kroiMirror_16u_C1IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int flip);
KroStatus kroiMirror_16u_C3IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int flip);
KroStatus kroiMirror_16u_C4IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int flip);
KroStatus kroiMirror_16u_AC4IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int flip);
KroStatus kroiMirror_16s_C1R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, int flip);
KroStatus kroiMirror_16s_C3R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, int flip);
KroStatus kroiMirror_16s_C4R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, int flip);
KroStatus kroiMirror_16s_AC4R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, int flip);
KroStatus kroiMirror_16s_C1IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int flip);
KroStatus kroiMirror_16s_C3IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int flip);
KroStatus kroiMirror_16s_C4IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int flip);
KroStatus kroiMirror_16s_AC4IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int flip);
KroStatus kroiMirror_32s_C1R(const Kro32s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize, int flip);
KroStatus kroiMirror_32s_C3R(const Kro32s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize, int flip);
KroStatus kroiMirror_32s_C4R(const Kro32s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize, int flip);
KroStatus kroiMirror_32s_AC4R(const Kro32s* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize, int flip);
KroStatus kroiMirror_32s_C1IR(Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize, int flip);
KroStatus kroiMirror_32s_C3IR(Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize, int flip);
KroStatus kroiMirror_32s_C4IR(Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize, int flip);
KroStatus kroiMirror_32s_AC4IR(Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize, int flip);
KroStatus kroiMirror_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, int flip);
KroStatus kroiMirror_32f_C3R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, int flip);
KroStatus kroiMirror_32f_C4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, int flip);
KroStatus kroiMirror_32f_AC4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, int flip);
KroStatus kroiMirror_32f_C1IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize, int flip);
KroStatus kroiMirror_32f_C3IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize, int flip);
KroStatus kroiMirror_32f_C4IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize, int flip);
KroStatus kroiMirror_32f_AC4IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize, int flip);

/* kroiDup: each destination pixel receives the source value in all three or four channels.
 *   Checks: null -8; width or height < 1 -6.  Steps are used as given. */
KroStatus kroiDup_8u_C1C3R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiDup_8u_C1C4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize);

/* end of section LAYOUT */

/* =======================================================================================
 * Comparison
 * ======================================================================================= */
/* section COMPARE */
/* kroiCompare, kroiCompareC: a one-channel 8u mask, 255 where src1 OP src2 (or src OP the
 * constant) holds in every compared channel (all of C3 and C4, the first three of AC4), 0
 * elsewhere.  kroiCompareEqualEps, kroiCompareEqualEpsC (32f): 255 where |s1 - s2| <= eps
 * in every compared channel, the difference formed in single precision.
 *   Checks, in order: null source, constant array or destination -8; any step < 1 -16;
 *   width or height < 1 -6.  Then an operation code outside 0..4 (negative ones included)
 *   returns 0 and writes nothing; a tolerance eps below 0 gives -36.
 *   32f: every relation with a NaN is false (mask 0), and -0 equals +0.
 *   One-channel masks of images larger than the biggest processor cache are written with
 *   streaming stores when the destination rows start on 16 bytes. */
KroStatus kroiCompare_8u_C1R(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, KroCompareOp op);
KroStatus kroiCompare_8u_C3R(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, KroCompareOp op);
KroStatus kroiCompare_8u_C4R(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, KroCompareOp op);
KroStatus kroiCompare_8u_AC4R(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, KroCompareOp op);
KroStatus kroiCompare_16u_C1R(const Kro16u* pSrc1, int src1Step, const Kro16u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, KroCompareOp op);
KroStatus kroiCompare_16u_C3R(const Kro16u* pSrc1, int src1Step, const Kro16u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, KroCompareOp op);
KroStatus kroiCompare_16u_C4R(const Kro16u* pSrc1, int src1Step, const Kro16u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, KroCompareOp op);
KroStatus kroiCompare_16u_AC4R(const Kro16u* pSrc1, int src1Step, const Kro16u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, KroCompareOp op);
KroStatus kroiCompare_16s_C1R(const Kro16s* pSrc1, int src1Step, const Kro16s* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, KroCompareOp op);
KroStatus kroiCompare_16s_C3R(const Kro16s* pSrc1, int src1Step, const Kro16s* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, KroCompareOp op);
KroStatus kroiCompare_16s_C4R(const Kro16s* pSrc1, int src1Step, const Kro16s* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, KroCompareOp op);
KroStatus kroiCompare_16s_AC4R(const Kro16s* pSrc1, int src1Step, const Kro16s* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, KroCompareOp op);
KroStatus kroiCompare_32f_C1R(const Kro32f* pSrc1, int src1Step, const Kro32f* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, KroCompareOp op);
KroStatus kroiCompare_32f_C3R(const Kro32f* pSrc1, int src1Step, const Kro32f* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, KroCompareOp op);
KroStatus kroiCompare_32f_C4R(const Kro32f* pSrc1, int src1Step, const Kro32f* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, KroCompareOp op);
KroStatus kroiCompare_32f_AC4R(const Kro32f* pSrc1, int src1Step, const Kro32f* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, KroCompareOp op);
KroStatus kroiCompareC_8u_C1R(const Kro8u* pSrc, int srcStep, Kro8u value, Kro8u* pDst, int dstStep, KroiSize roiSize, KroCompareOp op);
KroStatus kroiCompareC_8u_C3R(const Kro8u* pSrc, int srcStep, const Kro8u value[3], Kro8u* pDst, int dstStep, KroiSize roiSize, KroCompareOp op);
KroStatus kroiCompareC_8u_C4R(const Kro8u* pSrc, int srcStep, const Kro8u value[4], Kro8u* pDst, int dstStep, KroiSize roiSize, KroCompareOp op);
KroStatus kroiCompareC_8u_AC4R(const Kro8u* pSrc, int srcStep, const Kro8u value[3], Kro8u* pDst, int dstStep, KroiSize roiSize, KroCompareOp op);
KroStatus kroiCompareC_16u_C1R(const Kro16u* pSrc, int srcStep, Kro16u value, Kro8u* pDst, int dstStep, KroiSize roiSize, KroCompareOp op);
KroStatus kroiCompareC_16u_C3R(const Kro16u* pSrc, int srcStep, const Kro16u value[3], Kro8u* pDst, int dstStep, KroiSize roiSize, KroCompareOp op);
KroStatus kroiCompareC_16u_C4R(const Kro16u* pSrc, int srcStep, const Kro16u value[4], Kro8u* pDst, int dstStep, KroiSize roiSize, KroCompareOp op);
KroStatus kroiCompareC_16u_AC4R(const Kro16u* pSrc, int srcStep, const Kro16u value[3], Kro8u* pDst, int dstStep, KroiSize roiSize, KroCompareOp op);
KroStatus kroiCompareC_16s_C1R(const Kro16s* pSrc, int srcStep, Kro16s value, Kro8u* pDst, int dstStep, KroiSize roiSize, KroCompareOp op);
KroStatus kroiCompareC_16s_C3R(const Kro16s* pSrc, int srcStep, const Kro16s value[3], Kro8u* pDst, int dstStep, KroiSize roiSize, KroCompareOp op);
KroStatus kroiCompareC_16s_C4R(const Kro16s* pSrc, int srcStep, const Kro16s value[4], Kro8u* pDst, int dstStep, KroiSize roiSize, KroCompareOp op);
KroStatus kroiCompareC_16s_AC4R(const Kro16s* pSrc, int srcStep, const Kro16s value[3], Kro8u* pDst, int dstStep, KroiSize roiSize, KroCompareOp op);
KroStatus kroiCompareC_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f value, Kro8u* pDst, int dstStep, KroiSize roiSize, KroCompareOp op);
KroStatus kroiCompareC_32f_C3R(const Kro32f* pSrc, int srcStep, const Kro32f value[3], Kro8u* pDst, int dstStep, KroiSize roiSize, KroCompareOp op);
KroStatus kroiCompareC_32f_C4R(const Kro32f* pSrc, int srcStep, const Kro32f value[4], Kro8u* pDst, int dstStep, KroiSize roiSize, KroCompareOp op);
KroStatus kroiCompareC_32f_AC4R(const Kro32f* pSrc, int srcStep, const Kro32f value[3], Kro8u* pDst, int dstStep, KroiSize roiSize, KroCompareOp op);
KroStatus kroiCompareEqualEps_32f_C1R(const Kro32f* pSrc1, int src1Step, const Kro32f* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, Kro32f eps);
KroStatus kroiCompareEqualEps_32f_C3R(const Kro32f* pSrc1, int src1Step, const Kro32f* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, Kro32f eps);
KroStatus kroiCompareEqualEps_32f_C4R(const Kro32f* pSrc1, int src1Step, const Kro32f* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, Kro32f eps);
KroStatus kroiCompareEqualEps_32f_AC4R(const Kro32f* pSrc1, int src1Step, const Kro32f* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, Kro32f eps);
KroStatus kroiCompareEqualEpsC_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f value, Kro8u* pDst, int dstStep, KroiSize roiSize, Kro32f eps);
KroStatus kroiCompareEqualEpsC_32f_C3R(const Kro32f* pSrc, int srcStep, const Kro32f value[3], Kro8u* pDst, int dstStep, KroiSize roiSize, Kro32f eps);
KroStatus kroiCompareEqualEpsC_32f_C4R(const Kro32f* pSrc, int srcStep, const Kro32f value[4], Kro8u* pDst, int dstStep, KroiSize roiSize, Kro32f eps);
KroStatus kroiCompareEqualEpsC_32f_AC4R(const Kro32f* pSrc, int srcStep, const Kro32f value[3], Kro8u* pDst, int dstStep, KroiSize roiSize, Kro32f eps);

/* end of section COMPARE */

/* =======================================================================================
 * Border copies, border-filter frame, box filter and window sums
 * ======================================================================================= */
/* section BORDER */
/* Border codes taken by the border-aware filters (box filter, window sums, min/max filters):
 * a code above 255 gives kroStsBadBorderErr (-225); 0xF0 (kroBorderInMem) exactly is accepted
 * and nothing is synthesised; otherwise the low nibble must be kroBorderReplicate,
 * kroBorderMirror or kroBorderConstant, with any of the four in-memory flags.  For a mask
 * mw x mh with anchor ax = (mw-1)>>1, ay = (mh-1)>>1 the flags read ay rows above the ROI,
 * mh-1-ay rows below, ax columns left and mw-1-ax columns right from memory.
 *
 * Index rules for a coordinate x outside 0..n-1:
 *   replicate  x < 0 reads 0, x >= n reads n-1;
 *   mirror     period p = 2n-2: r = x mod p (non-negative), r >= n reads p-r; so -1 reads 1,
 *              n reads n-2, and borders wider than the image bounce back and forth (a row
 *              of 3 with a left border of 5 reads 1,0,1,2,1 from the outside in); n = 1
 *              reads 0 everywhere;
 *   wrap       x mod n (non-negative): the row repeats (border copies only);
 *   constant   a caller's value per channel. */

/* Border copies: copy the source ROI (srcRoiSize) into the destination (dstRoiSize) at
 * (leftBorderWidth, topBorderHeight) and fill the frame around it by the mode's rule.  The
 * bottom border is dstHeight - srcHeight - top rows, the right one dstWidth - srcWidth - left
 * columns; either may be zero.  In-place forms (IR): pSrcDst is the source's first pixel,
 * already inside the destination, whose first pixel lies top rows and left pixels before it.
 *
 * The copies move bits: 16u and 16s behave alike, 32s and 32f alike, and a 32f constant is
 * written as its bit pattern (NaN payloads and -0 survive).  A one-channel constant is passed
 * by value, a multi-channel one as an array (three values for C3 and AC4, four for C4).
 * AC4: the fourth channel of the destination is never written, in the border nor where the
 * source is copied.
 *
 * Order of writing (visible only when source and destination overlap): replicate writes each
 * source row with its left and right parts, then the bottom rows as copies of the last row
 * written, then the top rows as copies of row top; the constant copy writes top rows, source
 * rows, bottom rows; mirror and wrap write the destination rows top to bottom.  In place, the
 * left and right parts of every source row come first, then top and bottom rows as copies of
 * the finished rows their rule names.
 *
 * Checks, in order:
 *   replicate and mirror R: pSrc == pDst hands the call to the IR form with dstStep, before
 *     any check;
 *   a null pSrc, pDst or pSrcDst: -8;  srcStep or dstStep < 1: -16 (steps are not compared
 *     with the row's bytes);
 *   source or destination width or height < 1, top < 0, left < 0, dstWidth < srcWidth + left
 *     or dstHeight < srcHeight + top: -6;
 *   multi-channel constant copies: a null value pointer: -8;
 *   wrap R: pSrc == pDst, found only now, hands the call to the IR form.
 *   The constant copy never hands over: equal pointers are an ordinary overlapping copy.
 * The _L forms take 64-bit steps, sizes and borders and make the same checks with the same
 * codes; they share the kernels of the 32-bit forms. */
KroStatus kroiCopyConstBorder_8u_C1R(const Kro8u* pSrc, int srcStep, KroiSize srcRoiSize, Kro8u* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Kro8u value);
KroStatus kroiCopyConstBorder_8u_C1R_L(const Kro8u* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro8u* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth, Kro8u value);
KroStatus kroiCopyConstBorder_8u_C1IR(Kro8u* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Kro8u value);
KroStatus kroiCopyConstBorder_8u_C1IR_L(Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth, Kro8u value);
KroStatus kroiCopyConstBorder_8u_C3R(const Kro8u* pSrc, int srcStep, KroiSize srcRoiSize, Kro8u* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kro8u value[3]);
KroStatus kroiCopyConstBorder_8u_C3R_L(const Kro8u* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro8u* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth, const Kro8u value[3]);
KroStatus kroiCopyConstBorder_8u_C3IR(Kro8u* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kro8u value[3]);
KroStatus kroiCopyConstBorder_8u_C3IR_L(Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth, const Kro8u value[3]);
KroStatus kroiCopyConstBorder_8u_C4R(const Kro8u* pSrc, int srcStep, KroiSize srcRoiSize, Kro8u* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kro8u value[4]);
KroStatus kroiCopyConstBorder_8u_C4R_L(const Kro8u* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro8u* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth, const Kro8u value[4]);
KroStatus kroiCopyConstBorder_8u_C4IR(Kro8u* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kro8u value[4]);
KroStatus kroiCopyConstBorder_8u_C4IR_L(Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth, const Kro8u value[4]);
KroStatus kroiCopyConstBorder_8u_AC4R(const Kro8u* pSrc, int srcStep, KroiSize srcRoiSize, Kro8u* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kro8u value[3]);
KroStatus kroiCopyConstBorder_8u_AC4R_L(const Kro8u* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro8u* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth, const Kro8u value[3]);
KroStatus kroiCopyConstBorder_8u_AC4IR(Kro8u* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kro8u value[3]);
KroStatus kroiCopyConstBorder_8u_AC4IR_L(Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth, const Kro8u value[3]);
KroStatus kroiCopyConstBorder_16u_C1R(const Kro16u* pSrc, int srcStep, KroiSize srcRoiSize, Kro16u* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Kro16u value);
KroStatus kroiCopyConstBorder_16u_C1R_L(const Kro16u* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro16u* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth, Kro16u value);
KroStatus kroiCopyConstBorder_16u_C1IR(Kro16u* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Kro16u value);
KroStatus kroiCopyConstBorder_16u_C1IR_L(Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth, Kro16u value);
KroStatus kroiCopyConstBorder_16u_C3R(const Kro16u* pSrc, int srcStep, KroiSize srcRoiSize, Kro16u* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kro16u value[3]);
KroStatus kroiCopyConstBorder_16u_C3R_L(const Kro16u* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro16u* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth, const Kro16u value[3]);
KroStatus kroiCopyConstBorder_16u_C3IR(Kro16u* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kro16u value[3]);
KroStatus kroiCopyConstBorder_16u_C3IR_L(Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth, const Kro16u value[3]);
KroStatus kroiCopyConstBorder_16u_C4R(const Kro16u* pSrc, int srcStep, KroiSize srcRoiSize, Kro16u* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kro16u value[4]);
KroStatus kroiCopyConstBorder_16u_C4R_L(const Kro16u* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro16u* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth, const Kro16u value[4]);
KroStatus kroiCopyConstBorder_16u_C4IR(Kro16u* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kro16u value[4]);
KroStatus kroiCopyConstBorder_16u_C4IR_L(Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth, const Kro16u value[4]);
KroStatus kroiCopyConstBorder_16u_AC4R(const Kro16u* pSrc, int srcStep, KroiSize srcRoiSize, Kro16u* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kro16u value[3]);
KroStatus kroiCopyConstBorder_16u_AC4R_L(const Kro16u* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro16u* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth, const Kro16u value[3]);
KroStatus kroiCopyConstBorder_16u_AC4IR(Kro16u* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kro16u value[3]);
KroStatus kroiCopyConstBorder_16u_AC4IR_L(Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth, const Kro16u value[3]);
KroStatus kroiCopyConstBorder_16s_C1R(const Kro16s* pSrc, int srcStep, KroiSize srcRoiSize, Kro16s* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Kro16s value);
KroStatus kroiCopyConstBorder_16s_C1R_L(const Kro16s* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro16s* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth, Kro16s value);
KroStatus kroiCopyConstBorder_16s_C1IR(Kro16s* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Kro16s value);
KroStatus kroiCopyConstBorder_16s_C1IR_L(Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth, Kro16s value);
KroStatus kroiCopyConstBorder_16s_C3R(const Kro16s* pSrc, int srcStep, KroiSize srcRoiSize, Kro16s* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kro16s value[3]);
KroStatus kroiCopyConstBorder_16s_C3R_L(const Kro16s* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro16s* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth, const Kro16s value[3]);
KroStatus kroiCopyConstBorder_16s_C3IR(Kro16s* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kro16s value[3]);
KroStatus kroiCopyConstBorder_16s_C3IR_L(Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth, const Kro16s value[3]);
KroStatus kroiCopyConstBorder_16s_C4R(const Kro16s* pSrc, int srcStep, KroiSize srcRoiSize, Kro16s* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kro16s value[4]);
KroStatus kroiCopyConstBorder_16s_C4R_L(const Kro16s* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro16s* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth, const Kro16s value[4]);
KroStatus kroiCopyConstBorder_16s_C4IR(Kro16s* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kro16s value[4]);
KroStatus kroiCopyConstBorder_16s_C4IR_L(Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth, const Kro16s value[4]);
KroStatus kroiCopyConstBorder_16s_AC4R(const Kro16s* pSrc, int srcStep, KroiSize srcRoiSize, Kro16s* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kro16s value[3]);
KroStatus kroiCopyConstBorder_16s_AC4R_L(const Kro16s* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro16s* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth, const Kro16s value[3]);
KroStatus kroiCopyConstBorder_16s_AC4IR(Kro16s* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kro16s value[3]);
KroStatus kroiCopyConstBorder_16s_AC4IR_L(Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth, const Kro16s value[3]);
KroStatus kroiCopyConstBorder_32s_C1R(const Kro32s* pSrc, int srcStep, KroiSize srcRoiSize, Kro32s* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Kro32s value);
KroStatus kroiCopyConstBorder_32s_C1R_L(const Kro32s* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro32s* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth, Kro32s value);
KroStatus kroiCopyConstBorder_32s_C1IR(Kro32s* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Kro32s value);
KroStatus kroiCopyConstBorder_32s_C1IR_L(Kro32s* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth, Kro32s value);
KroStatus kroiCopyConstBorder_32s_C3R(const Kro32s* pSrc, int srcStep, KroiSize srcRoiSize, Kro32s* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kro32s value[3]);
KroStatus kroiCopyConstBorder_32s_C3R_L(const Kro32s* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro32s* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth, const Kro32s value[3]);
KroStatus kroiCopyConstBorder_32s_C3IR(Kro32s* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kro32s value[3]);
KroStatus kroiCopyConstBorder_32s_C3IR_L(Kro32s* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth, const Kro32s value[3]);
KroStatus kroiCopyConstBorder_32s_C4R(const Kro32s* pSrc, int srcStep, KroiSize srcRoiSize, Kro32s* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kro32s value[4]);
KroStatus kroiCopyConstBorder_32s_C4R_L(const Kro32s* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro32s* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth, const Kro32s value[4]);
KroStatus kroiCopyConstBorder_32s_C4IR(Kro32s* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kro32s value[4]);
KroStatus kroiCopyConstBorder_32s_C4IR_L(Kro32s* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth, const Kro32s value[4]);
KroStatus kroiCopyConstBorder_32s_AC4R(const Kro32s* pSrc, int srcStep, KroiSize srcRoiSize, Kro32s* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kro32s value[3]);
KroStatus kroiCopyConstBorder_32s_AC4R_L(const Kro32s* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro32s* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth, const Kro32s value[3]);
KroStatus kroiCopyConstBorder_32s_AC4IR(Kro32s* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kro32s value[3]);
KroStatus kroiCopyConstBorder_32s_AC4IR_L(Kro32s* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth, const Kro32s value[3]);
KroStatus kroiCopyConstBorder_32f_C1R(const Kro32f* pSrc, int srcStep, KroiSize srcRoiSize, Kro32f* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Kro32f value);
KroStatus kroiCopyConstBorder_32f_C1R_L(const Kro32f* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro32f* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth, Kro32f value);
KroStatus kroiCopyConstBorder_32f_C1IR(Kro32f* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Kro32f value);
KroStatus kroiCopyConstBorder_32f_C1IR_L(Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth, Kro32f value);
KroStatus kroiCopyConstBorder_32f_C3R(const Kro32f* pSrc, int srcStep, KroiSize srcRoiSize, Kro32f* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kro32f value[3]);
KroStatus kroiCopyConstBorder_32f_C3R_L(const Kro32f* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro32f* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth, const Kro32f value[3]);
KroStatus kroiCopyConstBorder_32f_C3IR(Kro32f* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kro32f value[3]);
KroStatus kroiCopyConstBorder_32f_C3IR_L(Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth, const Kro32f value[3]);
KroStatus kroiCopyConstBorder_32f_C4R(const Kro32f* pSrc, int srcStep, KroiSize srcRoiSize, Kro32f* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kro32f value[4]);
KroStatus kroiCopyConstBorder_32f_C4R_L(const Kro32f* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro32f* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth, const Kro32f value[4]);
KroStatus kroiCopyConstBorder_32f_C4IR(Kro32f* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kro32f value[4]);
KroStatus kroiCopyConstBorder_32f_C4IR_L(Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth, const Kro32f value[4]);
KroStatus kroiCopyConstBorder_32f_AC4R(const Kro32f* pSrc, int srcStep, KroiSize srcRoiSize, Kro32f* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kro32f value[3]);
KroStatus kroiCopyConstBorder_32f_AC4R_L(const Kro32f* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro32f* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth, const Kro32f value[3]);
KroStatus kroiCopyConstBorder_32f_AC4IR(Kro32f* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kro32f value[3]);
KroStatus kroiCopyConstBorder_32f_AC4IR_L(Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth, const Kro32f value[3]);
KroStatus kroiCopyReplicateBorder_8u_C1R(const Kro8u* pSrc, int srcStep, KroiSize srcRoiSize, Kro8u* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyReplicateBorder_8u_C1R_L(const Kro8u* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro8u* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyReplicateBorder_8u_C1IR(Kro8u* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyReplicateBorder_8u_C1IR_L(Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyReplicateBorder_8u_C3R(const Kro8u* pSrc, int srcStep, KroiSize srcRoiSize, Kro8u* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyReplicateBorder_8u_C3R_L(const Kro8u* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro8u* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyReplicateBorder_8u_C3IR(Kro8u* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyReplicateBorder_8u_C3IR_L(Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyReplicateBorder_8u_C4R(const Kro8u* pSrc, int srcStep, KroiSize srcRoiSize, Kro8u* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyReplicateBorder_8u_C4R_L(const Kro8u* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro8u* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyReplicateBorder_8u_C4IR(Kro8u* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyReplicateBorder_8u_C4IR_L(Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyReplicateBorder_8u_AC4R(const Kro8u* pSrc, int srcStep, KroiSize srcRoiSize, Kro8u* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyReplicateBorder_8u_AC4R_L(const Kro8u* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro8u* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyReplicateBorder_8u_AC4IR(Kro8u* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyReplicateBorder_8u_AC4IR_L(Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyReplicateBorder_16u_C1R(const Kro16u* pSrc, int srcStep, KroiSize srcRoiSize, Kro16u* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyReplicateBorder_16u_C1R_L(const Kro16u* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro16u* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyReplicateBorder_16u_C1IR(Kro16u* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyReplicateBorder_16u_C1IR_L(Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyReplicateBorder_16u_C3R(const Kro16u* pSrc, int srcStep, KroiSize srcRoiSize, Kro16u* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyReplicateBorder_16u_C3R_L(const Kro16u* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro16u* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyReplicateBorder_16u_C3IR(Kro16u* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyReplicateBorder_16u_C3IR_L(Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyReplicateBorder_16u_C4R(const Kro16u* pSrc, int srcStep, KroiSize srcRoiSize, Kro16u* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyReplicateBorder_16u_C4R_L(const Kro16u* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro16u* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyReplicateBorder_16u_C4IR(Kro16u* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyReplicateBorder_16u_C4IR_L(Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyReplicateBorder_16u_AC4R(const Kro16u* pSrc, int srcStep, KroiSize srcRoiSize, Kro16u* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyReplicateBorder_16u_AC4R_L(const Kro16u* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro16u* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyReplicateBorder_16u_AC4IR(Kro16u* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyReplicateBorder_16u_AC4IR_L(Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyReplicateBorder_16s_C1R(const Kro16s* pSrc, int srcStep, KroiSize srcRoiSize, Kro16s* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyReplicateBorder_16s_C1R_L(const Kro16s* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro16s* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyReplicateBorder_16s_C1IR(Kro16s* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyReplicateBorder_16s_C1IR_L(Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyReplicateBorder_16s_C3R(const Kro16s* pSrc, int srcStep, KroiSize srcRoiSize, Kro16s* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyReplicateBorder_16s_C3R_L(const Kro16s* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro16s* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyReplicateBorder_16s_C3IR(Kro16s* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyReplicateBorder_16s_C3IR_L(Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyReplicateBorder_16s_C4R(const Kro16s* pSrc, int srcStep, KroiSize srcRoiSize, Kro16s* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyReplicateBorder_16s_C4R_L(const Kro16s* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro16s* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyReplicateBorder_16s_C4IR(Kro16s* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyReplicateBorder_16s_C4IR_L(Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyReplicateBorder_16s_AC4R(const Kro16s* pSrc, int srcStep, KroiSize srcRoiSize, Kro16s* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyReplicateBorder_16s_AC4R_L(const Kro16s* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro16s* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyReplicateBorder_16s_AC4IR(Kro16s* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyReplicateBorder_16s_AC4IR_L(Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyReplicateBorder_32s_C1R(const Kro32s* pSrc, int srcStep, KroiSize srcRoiSize, Kro32s* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyReplicateBorder_32s_C1R_L(const Kro32s* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro32s* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyReplicateBorder_32s_C1IR(Kro32s* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyReplicateBorder_32s_C1IR_L(Kro32s* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyReplicateBorder_32s_C3R(const Kro32s* pSrc, int srcStep, KroiSize srcRoiSize, Kro32s* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyReplicateBorder_32s_C3R_L(const Kro32s* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro32s* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyReplicateBorder_32s_C3IR(Kro32s* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyReplicateBorder_32s_C3IR_L(Kro32s* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyReplicateBorder_32s_C4R(const Kro32s* pSrc, int srcStep, KroiSize srcRoiSize, Kro32s* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyReplicateBorder_32s_C4R_L(const Kro32s* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro32s* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyReplicateBorder_32s_C4IR(Kro32s* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyReplicateBorder_32s_C4IR_L(Kro32s* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyReplicateBorder_32s_AC4R(const Kro32s* pSrc, int srcStep, KroiSize srcRoiSize, Kro32s* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyReplicateBorder_32s_AC4R_L(const Kro32s* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro32s* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyReplicateBorder_32s_AC4IR(Kro32s* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyReplicateBorder_32s_AC4IR_L(Kro32s* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyReplicateBorder_32f_C1R(const Kro32f* pSrc, int srcStep, KroiSize srcRoiSize, Kro32f* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyReplicateBorder_32f_C1R_L(const Kro32f* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro32f* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyReplicateBorder_32f_C1IR(Kro32f* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyReplicateBorder_32f_C1IR_L(Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyReplicateBorder_32f_C3R(const Kro32f* pSrc, int srcStep, KroiSize srcRoiSize, Kro32f* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyReplicateBorder_32f_C3R_L(const Kro32f* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro32f* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyReplicateBorder_32f_C3IR(Kro32f* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyReplicateBorder_32f_C3IR_L(Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyReplicateBorder_32f_C4R(const Kro32f* pSrc, int srcStep, KroiSize srcRoiSize, Kro32f* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyReplicateBorder_32f_C4R_L(const Kro32f* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro32f* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyReplicateBorder_32f_C4IR(Kro32f* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyReplicateBorder_32f_C4IR_L(Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyReplicateBorder_32f_AC4R(const Kro32f* pSrc, int srcStep, KroiSize srcRoiSize, Kro32f* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyReplicateBorder_32f_AC4R_L(const Kro32f* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro32f* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyReplicateBorder_32f_AC4IR(Kro32f* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyReplicateBorder_32f_AC4IR_L(Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyMirrorBorder_8u_C1R(const Kro8u* pSrc, int srcStep, KroiSize srcRoiSize, Kro8u* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyMirrorBorder_8u_C1R_L(const Kro8u* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro8u* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyMirrorBorder_8u_C1IR(Kro8u* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyMirrorBorder_8u_C1IR_L(Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyMirrorBorder_8u_C3R(const Kro8u* pSrc, int srcStep, KroiSize srcRoiSize, Kro8u* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyMirrorBorder_8u_C3R_L(const Kro8u* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro8u* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyMirrorBorder_8u_C3IR(Kro8u* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyMirrorBorder_8u_C3IR_L(Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyMirrorBorder_8u_C4R(const Kro8u* pSrc, int srcStep, KroiSize srcRoiSize, Kro8u* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyMirrorBorder_8u_C4R_L(const Kro8u* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro8u* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyMirrorBorder_8u_C4IR(Kro8u* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyMirrorBorder_8u_C4IR_L(Kro8u* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyMirrorBorder_16u_C1R(const Kro16u* pSrc, int srcStep, KroiSize srcRoiSize, Kro16u* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyMirrorBorder_16u_C1R_L(const Kro16u* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro16u* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyMirrorBorder_16u_C1IR(Kro16u* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyMirrorBorder_16u_C1IR_L(Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyMirrorBorder_16u_C3R(const Kro16u* pSrc, int srcStep, KroiSize srcRoiSize, Kro16u* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyMirrorBorder_16u_C3R_L(const Kro16u* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro16u* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyMirrorBorder_16u_C3IR(Kro16u* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyMirrorBorder_16u_C3IR_L(Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyMirrorBorder_16u_C4R(const Kro16u* pSrc, int srcStep, KroiSize srcRoiSize, Kro16u* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyMirrorBorder_16u_C4R_L(const Kro16u* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro16u* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyMirrorBorder_16u_C4IR(Kro16u* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyMirrorBorder_16u_C4IR_L(Kro16u* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyMirrorBorder_16s_C1R(const Kro16s* pSrc, int srcStep, KroiSize srcRoiSize, Kro16s* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyMirrorBorder_16s_C1R_L(const Kro16s* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro16s* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyMirrorBorder_16s_C1IR(Kro16s* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyMirrorBorder_16s_C1IR_L(Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyMirrorBorder_16s_C3R(const Kro16s* pSrc, int srcStep, KroiSize srcRoiSize, Kro16s* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyMirrorBorder_16s_C3R_L(const Kro16s* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro16s* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyMirrorBorder_16s_C3IR(Kro16s* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyMirrorBorder_16s_C3IR_L(Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyMirrorBorder_16s_C4R(const Kro16s* pSrc, int srcStep, KroiSize srcRoiSize, Kro16s* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyMirrorBorder_16s_C4R_L(const Kro16s* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro16s* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyMirrorBorder_16s_C4IR(Kro16s* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyMirrorBorder_16s_C4IR_L(Kro16s* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyMirrorBorder_32s_C1R(const Kro32s* pSrc, int srcStep, KroiSize srcRoiSize, Kro32s* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyMirrorBorder_32s_C1R_L(const Kro32s* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro32s* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyMirrorBorder_32s_C1IR(Kro32s* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyMirrorBorder_32s_C1IR_L(Kro32s* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyMirrorBorder_32s_C3R(const Kro32s* pSrc, int srcStep, KroiSize srcRoiSize, Kro32s* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyMirrorBorder_32s_C3R_L(const Kro32s* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro32s* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyMirrorBorder_32s_C3IR(Kro32s* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyMirrorBorder_32s_C3IR_L(Kro32s* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyMirrorBorder_32s_C4R(const Kro32s* pSrc, int srcStep, KroiSize srcRoiSize, Kro32s* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyMirrorBorder_32s_C4R_L(const Kro32s* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro32s* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyMirrorBorder_32s_C4IR(Kro32s* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyMirrorBorder_32s_C4IR_L(Kro32s* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyMirrorBorder_32f_C1R(const Kro32f* pSrc, int srcStep, KroiSize srcRoiSize, Kro32f* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyMirrorBorder_32f_C1R_L(const Kro32f* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro32f* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyMirrorBorder_32f_C1IR(Kro32f* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyMirrorBorder_32f_C1IR_L(Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyMirrorBorder_32f_C3R(const Kro32f* pSrc, int srcStep, KroiSize srcRoiSize, Kro32f* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyMirrorBorder_32f_C3R_L(const Kro32f* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro32f* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyMirrorBorder_32f_C3IR(Kro32f* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyMirrorBorder_32f_C3IR_L(Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyMirrorBorder_32f_C4R(const Kro32f* pSrc, int srcStep, KroiSize srcRoiSize, Kro32f* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyMirrorBorder_32f_C4R_L(const Kro32f* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro32f* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyMirrorBorder_32f_C4IR(Kro32f* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyMirrorBorder_32f_C4IR_L(Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyWrapBorder_32s_C1R(const Kro32s* pSrc, int srcStep, KroiSize srcRoiSize, Kro32s* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyWrapBorder_32s_C1R_L(const Kro32s* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro32s* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyWrapBorder_32s_C1IR(Kro32s* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyWrapBorder_32s_C1IR_L(Kro32s* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyWrapBorder_32f_C1R(const Kro32f* pSrc, int srcStep, KroiSize srcRoiSize, Kro32f* pDst, int dstStep, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyWrapBorder_32f_C1R_L(const Kro32f* pSrc, int64_t srcStep, KroiSizeL srcRoiSize, Kro32f* pDst, int64_t dstStep, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);
KroStatus kroiCopyWrapBorder_32f_C1IR(Kro32f* pSrcDst, int srcDstStep, KroiSize srcRoiSize, KroiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KroStatus kroiCopyWrapBorder_32f_C1IR_L(Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL srcRoiSize, KroiSizeL dstRoiSize, int64_t topBorderHeight, int64_t leftBorderWidth);


/* Box filter with border synthesis (kroiFilterBoxBorder) and window sums (kroiSumWindow).
 *
 * Output pixel (x, y) is the mean (the sum) of source pixels x-ax .. x-ax+mw-1 and
 * y-ay .. y-ay+mh-1, ax = (mw-1)>>1, ay = (mh-1)>>1: an even mask reaches one pixel further
 * right (down) than left (up).  Pixels outside the ROI come from memory on the sides the
 * border code flags, and from the mode's rule on the others (see the border codes above).
 * pSrc may equal pDst (in place; dstStep then serves as both steps).
 *
 * Buffer: the caller allocates pBuffer with the size returned by
 * kroiFilterBoxBorderGetBufferSize (kroiSumWindowGetBufferSize) for the same ROI, mask, data
 * type (of the source: kro8u, kro16u, kro16s, kro32f) and channel count (1, 3 or 4; AC4
 * images are queried with 4); no alignment is required.  With W, H the ROI, Wb = W+mw-1,
 * Hb = H+mh-1, e the element size and n the channels, the size is the sum of
 *   4n(A + D), A = (2mh-2-ay)Wb, B = (2mw-2-ax)Hb, C = B + (Hb if mw = 2),
 *              D = A + (Wb if mh = 2) + B + C;
 *   (W+mw+3)*4 for n = 1, (W+mw+3)*16 otherwise;
 *   W*n*(ay+1)*e + 64, raised to e*Wb*Hb*n unless W-mw+1 > mw and H-mh+1 > mh;
 *   8(ay+1);
 * a total above 2^31-1 returns kroStsSizeLimitErr (-232).  Query checks, in order: null
 * pBufferSize -8; ROI width or height < 1: -6; mask width or height < 1: -33; dataType:
 * -59; numChannels: -53; size: -232.  The window sums' query is the same function.
 *
 * When the ROI is not larger than the mask in both directions (W <= mw or H <= mh) and the
 * code is not kroBorderInMem, the image (widened by the sides in memory) is first copied
 * into the buffer with the mode's border copy and filtered from there; the result is the
 * same as filtering a bordered copy of the image.
 *
 * Arithmetic: single precision, one fixed sequence, so results are reproducible bit for bit:
 *   column sums over the mh window rows start from +0 and add the rows top to bottom; for
 *   the next output row each becomes sum + (entering - leaving), the difference first;
 *   the window sum starts from +0 and adds the first mw column sums left to right, then
 *   moves right as sum + (entering column sum - leaving column sum);
 *   the mean is sum * r with r = 1.0f / (mw*mh) computed once in single precision;
 *   8u and 16u: truncate(sum*r + 0.5f); 16s: truncate(sum*r - 0.5f) for a negative sum,
 *   truncate(sum*r + 0.5f) otherwise (halves away from zero, as far as r is exact);
 *   32f: sum*r, and a 1 x 1 mask copies the ROI.
 * Integer sums are exact while they stay below 2^24 (8u up to 65,793 mask pixels).
 * kroiSumWindow stores the window sum: 8u32s as a 32-bit integer (the single-precision sum,
 * truncated), the others as a float.  AC4: the fourth channel of pDst is never written, and
 * pBorderValue holds three values (C1 one, C3 three, C4 four).
 *
 * Checks of kroiFilterBoxBorder, in order: a null pSrc, pDst or pBuffer: -8; srcStep or
 * dstStep < 1: -16; ROI width or height < 1: -6; mask width or height < 1: -33; border code
 * invalid: -225; constant mode (low nibble 6) with a null pBorderValue: -8.  The members
 * 8u_C1R, 8u_AC4R, 16u_AC4R and 32f_C1R check in that order; all the others check the
 * border code first and then the rest in the same order.  Every kroiSumWindow member checks
 * in the first order.  Last, every member refuses with -6, before reading or writing
 * anything, a call whose work area (the query's size in exact arithmetic) exceeds 2^31 - 1
 * bytes: the query gives -232 for it, so no buffer can have been sized for it.
 * kroiSumWindow_32f with pSrc == pDst sums in place safely. */
KroStatus kroiFilterBoxBorderGetBufferSize(KroiSize roiSize, KroiSize maskSize, KroDataType dataType, int numChannels, int* pBufferSize);
KroStatus kroiFilterBoxBorder_8u_C1R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterBoxBorder_8u_C3R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterBoxBorder_8u_C4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterBoxBorder_8u_AC4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterBoxBorder_16u_C1R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro16u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterBoxBorder_16u_C3R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro16u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterBoxBorder_16u_C4R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro16u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterBoxBorder_16u_AC4R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro16u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterBoxBorder_16s_C1R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro16s* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterBoxBorder_16s_C3R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro16s* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterBoxBorder_16s_C4R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro16s* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterBoxBorder_16s_AC4R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro16s* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterBoxBorder_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro32f* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterBoxBorder_32f_C3R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro32f* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterBoxBorder_32f_C4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro32f* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterBoxBorder_32f_AC4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro32f* pBorderValue, Kro8u* pBuffer);
KroStatus kroiSumWindowGetBufferSize(KroiSize roiSize, KroiSize maskSize, KroDataType dataType, int numChannels, int* pBufferSize);
KroStatus kroiSumWindow_8u32s_C1R(const Kro8u* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiSumWindow_8u32s_C3R(const Kro8u* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiSumWindow_8u32s_C4R(const Kro8u* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiSumWindow_8u32s_AC4R(const Kro8u* pSrc, int srcStep, Kro32s* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiSumWindow_16u32f_C1R(const Kro16u* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro16u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiSumWindow_16u32f_C3R(const Kro16u* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro16u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiSumWindow_16u32f_C4R(const Kro16u* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro16u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiSumWindow_16u32f_AC4R(const Kro16u* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro16u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiSumWindow_16s32f_C1R(const Kro16s* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro16s* pBorderValue, Kro8u* pBuffer);
KroStatus kroiSumWindow_16s32f_C3R(const Kro16s* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro16s* pBorderValue, Kro8u* pBuffer);
KroStatus kroiSumWindow_16s32f_C4R(const Kro16s* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro16s* pBorderValue, Kro8u* pBuffer);
KroStatus kroiSumWindow_16s32f_AC4R(const Kro16s* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro16s* pBorderValue, Kro8u* pBuffer);
KroStatus kroiSumWindow_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro32f* pBorderValue, Kro8u* pBuffer);
KroStatus kroiSumWindow_32f_C3R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro32f* pBorderValue, Kro8u* pBuffer);
KroStatus kroiSumWindow_32f_C4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro32f* pBorderValue, Kro8u* pBuffer);
KroStatus kroiSumWindow_32f_AC4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro32f* pBorderValue, Kro8u* pBuffer);

/* One-dimensional window sums, neighbourhood read from memory (no border synthesis): output
 * x (row form) or row y (column form) is the float sum of maskSize source pixels starting
 * anchor pixels before it along the row (column).  The row form follows the window-sum
 * sequence above channel by channel; the column form starts from +0 and adds the rows top
 * to bottom, then each output row is the row above plus (entering - leaving).  Checks, in
 * order: a null pointer: -8; maskSize < 1: -33; anchor < 0 or >= maskSize: -34; ROI height
 * < 1: success, nothing written; ROI width < 1: -6.  Steps are used as given. */
KroStatus kroiSumWindowRow_8u32f_C1R(const Kro8u* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize dstRoiSize, int maskSize, int anchor);
KroStatus kroiSumWindowRow_8u32f_C3R(const Kro8u* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize dstRoiSize, int maskSize, int anchor);
KroStatus kroiSumWindowRow_8u32f_C4R(const Kro8u* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize dstRoiSize, int maskSize, int anchor);
KroStatus kroiSumWindowRow_16u32f_C1R(const Kro16u* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize dstRoiSize, int maskSize, int anchor);
KroStatus kroiSumWindowRow_16u32f_C3R(const Kro16u* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize dstRoiSize, int maskSize, int anchor);
KroStatus kroiSumWindowRow_16u32f_C4R(const Kro16u* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize dstRoiSize, int maskSize, int anchor);
KroStatus kroiSumWindowRow_16s32f_C1R(const Kro16s* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize dstRoiSize, int maskSize, int anchor);
KroStatus kroiSumWindowRow_16s32f_C3R(const Kro16s* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize dstRoiSize, int maskSize, int anchor);
KroStatus kroiSumWindowRow_16s32f_C4R(const Kro16s* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize dstRoiSize, int maskSize, int anchor);
KroStatus kroiSumWindowColumn_8u32f_C1R(const Kro8u* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize dstRoiSize, int maskSize, int anchor);
KroStatus kroiSumWindowColumn_8u32f_C3R(const Kro8u* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize dstRoiSize, int maskSize, int anchor);
KroStatus kroiSumWindowColumn_8u32f_C4R(const Kro8u* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize dstRoiSize, int maskSize, int anchor);
KroStatus kroiSumWindowColumn_16u32f_C1R(const Kro16u* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize dstRoiSize, int maskSize, int anchor);
KroStatus kroiSumWindowColumn_16u32f_C3R(const Kro16u* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize dstRoiSize, int maskSize, int anchor);
KroStatus kroiSumWindowColumn_16u32f_C4R(const Kro16u* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize dstRoiSize, int maskSize, int anchor);
KroStatus kroiSumWindowColumn_16s32f_C1R(const Kro16s* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize dstRoiSize, int maskSize, int anchor);
KroStatus kroiSumWindowColumn_16s32f_C3R(const Kro16s* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize dstRoiSize, int maskSize, int anchor);
KroStatus kroiSumWindowColumn_16s32f_C4R(const Kro16s* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize dstRoiSize, int maskSize, int anchor);

/* kroiFilterBox_64f_C1R: mean over the window (x - anchor.x .. x - anchor.x + mw - 1) x
 * (y - anchor.y .. y - anchor.y + mh - 1), all read from memory; any anchor, inside the mask
 * or not, merely moves the window.  Double precision: column sums start from +0 and add the
 * window's rows top to bottom, then move down as sum + (entering - leaving); the window sum
 * adds the first mw column sums from +0, then moves right the same way; the mean is
 * sum * (1.0 / (mw * mh)).  Checks, in order: a null pointer: -8; ROI or mask width or height
 * < 1: -6; srcStep < (W + mw - 1) * 8 or dstStep < W * 8: -16.  It takes one row of
 * W + mw - 1 doubles from kroMalloc; if that fails: kroStsNoMemoryErr (-9). */
KroStatus kroiFilterBox_64f_C1R(const Kro64f* pSrc, int srcStep, Kro64f* pDst, int dstStep, KroiSize dstRoiSize, KroiSize maskSize, KroiPoint anchor);
/* end of section BORDER */

/* =======================================================================================
 * Min/max filters
 * ======================================================================================= */
/* section MINMAX */
/* Min/max filters (grey-level dilation and erosion with a rectangular mask).
 * kroiFilterMaxBorder replaces each pixel by the maximum of its maskSize neighbourhood,
 * kroiFilterMinBorder by the minimum.  The anchor is the mask centre, ax = (mw-1)>>1,
 * ay = (mh-1)>>1: output (x, y) reads source columns x-ax .. x-ax+mw-1 and rows
 * y-ay .. y-ay+mh-1, so an even mask reaches one pixel further right (down) than left (up).
 * Pixels outside the ROI come from the border code (see the border codes above): a side the
 * mask does not reach past (ax = 0 on the left, mw-1-ax = 0 on the right, likewise rows) is
 * treated as in memory whatever the flags say.  When something must be synthesised and the
 * mask is at least as wide or as high as the ROI, the ROI (widened where a side is in
 * memory) is first staged into the buffer with the mode's border copy; otherwise the border
 * is synthesised while streaming.  The result is exactly the extreme over the window for
 * every mask size, and the cost per pixel is bounded whatever the mask (rows by spans that
 * double up to 256 pixels, then by blocks; columns by blocks).  A 1 x 1 mask copies the
 * ROI.  pBorderValue points at one value per channel (three for AC4) and is read only in the
 * constant mode.  AC4: the fourth channel of the destination is never written.
 *
 * 32f (and the 64f 3x3 forms): NaN never wins.  The max filter counts a NaN as -infinity and
 * the min filter as +infinity, so a window with numbers gives the extreme of its numbers and
 * a window of NaNs only gives -inf (max) or +inf (min).  A 1 x 1 mask copies NaNs as they
 * are.  +0 and -0 compare equal; a window whose extreme is a zero may give either sign.
 *
 * The work buffer is the caller's, of the size kroiFilterMaxBorderGetBufferSize returns
 * (kroiFilterMinBorderGetBufferSize is the same query); no alignment is needed.  Two calls may
 * run at once with buffers of their own.  The source and destination must not overlap:
 * filtering in place is not supported (the result is then unspecified, though nothing
 * outside the destination ROI and the buffer is written).
 *
 * Buffer size (roiSize W x H, maskSize mw x mh, dataType 1, 5, 7 or 13 with element size e
 * of 1, 2, 2, 4 bytes, numChannels n of 1, 3 or 4), in unsigned 32-bit arithmetic:
 *   if mw < W and mh < H: S = (W+mw-1)*(2*mh-ay-2), or 0 when mh-ay-1 < 1; then, when
 *     mw-ax-1 > 0, S = max(S, (H+mh-1)*(2*mw-ax-2)) compared as signed values;
 *   otherwise S = (W+mw-1)*(H+mh-1);
 *   total = align32(n*S*e) + align32(mw*n*e) + mh*align32(W*n*e) + 32, plus 64 for 32f,
 *   where align32 rounds up to a multiple of 32.  No overflow test is made: sizes whose
 *   total would pass 2^31-1 are the caller's to avoid.
 * Query checks, in order: null pBufferSize -8; ROI width or height < 1: -6; mask width or
 * height < 1: kroStsBadMaskErr (-33); numChannels not 1, 3, 4: kroStsBadChannelCountErr
 * (-53); dataType not 1, 5, 7, 13: kroStsBadDataTypeErr (-59).
 * Filter checks, in order: null pSrc, pDst or pBuffer: -8; ROI width or height < 1: -6; mask
 * width or height < 1: -33; border code above 255, or not 0xF0 with a low nibble other than
 * 1, 3, 6: kroStsBadBorderErr (-225); then, only when the constant mode synthesises some
 * side, a null pBorderValue: -8; last, a call whose work area, the query's formula in exact
 * arithmetic, exceeds 2^31 - 1 bytes: -6 (the query's 32-bit result wraps there, and a buffer
 * of that size would be overrun), before anything is read or written.  Steps are not
 * checked; they are used as given. */
KroStatus kroiFilterMaxBorderGetBufferSize(KroiSize roiSize, KroiSize maskSize, KroDataType dataType, int numChannels, int* pBufferSize);
KroStatus kroiFilterMinBorderGetBufferSize(KroiSize roiSize, KroiSize maskSize, KroDataType dataType, int numChannels, int* pBufferSize);
KroStatus kroiFilterMaxBorder_8u_C1R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMaxBorder_8u_C3R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMaxBorder_8u_C4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMaxBorder_8u_AC4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMaxBorder_16u_C1R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro16u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMaxBorder_16u_C3R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro16u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMaxBorder_16u_C4R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro16u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMaxBorder_16u_AC4R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro16u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMaxBorder_16s_C1R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro16s* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMaxBorder_16s_C3R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro16s* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMaxBorder_16s_C4R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro16s* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMaxBorder_16s_AC4R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro16s* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMaxBorder_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro32f* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMaxBorder_32f_C3R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro32f* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMaxBorder_32f_C4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro32f* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMaxBorder_32f_AC4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro32f* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMinBorder_8u_C1R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMinBorder_8u_C3R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMinBorder_8u_C4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMinBorder_8u_AC4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMinBorder_16u_C1R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro16u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMinBorder_16u_C3R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro16u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMinBorder_16u_C4R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro16u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMinBorder_16u_AC4R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro16u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMinBorder_16s_C1R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro16s* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMinBorder_16s_C3R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro16s* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMinBorder_16s_C4R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro16s* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMinBorder_16s_AC4R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro16s* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMinBorder_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro32f* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMinBorder_32f_C3R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro32f* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMinBorder_32f_C4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro32f* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMinBorder_32f_AC4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro32f* pBorderValue, Kro8u* pBuffer);

/* kroiDilate3x3_64f_C1R / kroiErode3x3_64f_C1R: the maximum (minimum) of the 3 x 3
 * neighbourhood, read from memory: pSrc is the first ROI pixel, and the row above, the row
 * below and one column on each side must be readable.  NaN as for the filters above.
 * Checks, in order: null pSrc or pDst -8; srcStep or dstStep < 1: -16; ROI width < 1, then
 * height < 1: -6; srcStep < roiWidth*8 + 16 or dstStep < roiWidth*8: kroStsShortStepErr
 * (-37). */
KroStatus kroiDilate3x3_64f_C1R(const Kro64f* pSrc, int srcStep, Kro64f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiErode3x3_64f_C1R(const Kro64f* pSrc, int srcStep, Kro64f* pDst, int dstStep, KroiSize roiSize);

/* end of section MINMAX */

/* section MOMENTS */
/* =======================================================================================
 * Moments
 *
 * kroiMoments64f_<t>_<c>R computes the raw moments M[p][q] = sum over the region of
 * x^p * y^q * I(x, y), p + q <= 3, x and y counted from the region's top-left pixel, into a
 * caller-allocated state; the getters derive spatial, central and normalised moments and the
 * seven Hu invariants from the state without touching the image again.
 *
 * State (KroiMomentState64f, 400 bytes, kroiMomentGetStateSize_64f): the tag 35, the hint
 * given to kroiMomentInit_64f, the channel count (-1 until a moment call sets it: 1 for C1,
 * 3 for C3 and AC4), then per channel c a block of 16 doubles whose entry 2 + p + 4q holds
 * M[p][q].  Block c starts at byte 128*c of the state, so entries 0 and 1 of the first block
 * lie over the header words; `raw[16*c + 2 + p + 4*q - 2]` reads M[p][q] of channel c.
 *
 * Accuracy.  8u and 16u: the sums are exact integers (carried in 256 bits), and each stored
 * M[p][q] is the exact value rounded once to the nearest double, ties to even, for every
 * region size the functions accept.  32f: for each row y, r_p = sum of (x^p * I) over the row
 * left to right in double (x^p formed as x*x*x in double from x converted exactly), then
 * M[p][q] += y^q * r_p row by row, top to bottom, y^q likewise; NaN and infinities
 * propagate.  The hint is stored and changes nothing: the integer sums are already exact,
 * and the 32f order above is the only one.  All double arithmetic of this family runs with
 * round-to-nearest whatever the caller's rounding control, which is restored on return.
 *
 * Checks of kroiMoments64f, in order: null pSrc or pState -8; state tag not 35
 * kroStsWrongTagErr (-13); srcStep < 1 -16; width or height < 1 -6; srcStep below the bytes
 * of one row (width * channels * element size) kroStsShortStepErr (-37).  AC4 reads each
 * pixel's four elements and keeps the moments of the first three.
 *
 * Getters, checks in order: null state or output -8; tag not 35 -13; m < 0, n < 0 or
 * m + n > 3 -6; channel < 0 or not below the state's channel count kroStsBadChannelErr
 * (-47); then, for all but the spatial getter, |M00| <= 2.220446049250313e-16
 * kroStsZeroMassErr (-21).  Nothing is written on error.
 *   Spatial (offset (ox, oy)): the sum over i = 0..m (outer), j = 0..n (inner) of
 *     ((C(m,i) * C(n,j)) * ox^(m-i)) * oy^(n-j) * M[i][j], accumulated in that order from 0;
 *     powers by repeated multiplication; offset (0, 0) gives M[m][n] exactly.
 *   Central: the same sum with ox = -xc, oy = -yc, xc = M10 / M00, yc = M01 / M00;
 *     mu00 = M00, mu10 = mu01 = 0 exactly.
 *   Normalised (spatial or central): the moment divided by M00^((m + n + 2) / 2), formed as
 *     M00^k (repeated multiplication), times sqrt(M00) when m + n is odd, k = (m+n+2) div 2.
 *     A negative M00 (32f images) gives NaN for odd m + n.
 *   Hu: the seven invariants of the normalised central moments eta of orders 2 and 3:
 *     I1 = eta20 + eta02, I2 = (eta20 - eta02)^2 + 4 eta11^2, I3 = (eta30 - 3 eta12)^2 +
 *     (3 eta21 - eta03)^2, I4 = (eta30 + eta12)^2 + (eta21 + eta03)^2, I5, I6 and I7 by the
 *     published formulas, with a = eta30 + eta12, b = eta21 + eta03:
 *     I5 = (eta30 - 3 eta12) a (a^2 - 3 b^2) + (3 eta21 - eta03) b (3 a^2 - b^2),
 *     I6 = (eta20 - eta02)(a^2 - b^2) + 4 eta11 a b,
 *     I7 = (3 eta21 - eta03) a (a^2 - 3 b^2) - (eta30 - 3 eta12) b (3 a^2 - b^2).
 *     Checks: null -8; tag -13; channel -47; zero mass -21.
 * ------------------------------------------------------------------------------------- */
typedef struct KroiMomentState64f {
    int32_t tag;         /* 35 once initialised */
    int32_t hint;        /* the hint given to kroiMomentInit_64f */
    int32_t numChannels; /* -1 until a moment call sets it */
    int32_t reserved;    /* entry 1 of the first block: not used */
    Kro64f  raw[48];     /* raw[16*c + e - 2]: entry e of channel c's block */
} KroiMomentState64f;

/* kroiMomentGetStateSize_64f: writes 400.  Null pSize: -8.  kroiMomentInit_64f: null -8;
 * writes the tag, the hint and the channel count -1 (the moments are left as they are). */
KroStatus kroiMomentGetStateSize_64f(KroAlgorithmHint hint, int* pSize);
KroStatus kroiMomentInit_64f(KroiMomentState64f* pState, KroAlgorithmHint hint);
KroStatus kroiMoments64f_8u_C1R(const Kro8u* pSrc, int srcStep, KroiSize roiSize, KroiMomentState64f* pState);
KroStatus kroiMoments64f_8u_C3R(const Kro8u* pSrc, int srcStep, KroiSize roiSize, KroiMomentState64f* pState);
KroStatus kroiMoments64f_8u_AC4R(const Kro8u* pSrc, int srcStep, KroiSize roiSize, KroiMomentState64f* pState);
KroStatus kroiMoments64f_16u_C1R(const Kro16u* pSrc, int srcStep, KroiSize roiSize, KroiMomentState64f* pState);
KroStatus kroiMoments64f_16u_C3R(const Kro16u* pSrc, int srcStep, KroiSize roiSize, KroiMomentState64f* pState);
KroStatus kroiMoments64f_16u_AC4R(const Kro16u* pSrc, int srcStep, KroiSize roiSize, KroiMomentState64f* pState);
KroStatus kroiMoments64f_32f_C1R(const Kro32f* pSrc, int srcStep, KroiSize roiSize, KroiMomentState64f* pState);
KroStatus kroiMoments64f_32f_C3R(const Kro32f* pSrc, int srcStep, KroiSize roiSize, KroiMomentState64f* pState);
KroStatus kroiMoments64f_32f_AC4R(const Kro32f* pSrc, int srcStep, KroiSize roiSize, KroiMomentState64f* pState);
KroStatus kroiGetSpatialMoment_64f(const KroiMomentState64f* pState, int mOrd, int nOrd, int nChannel, KroiPoint roiOffset, Kro64f* pValue);
KroStatus kroiGetCentralMoment_64f(const KroiMomentState64f* pState, int mOrd, int nOrd, int nChannel, Kro64f* pValue);
KroStatus kroiGetNormalizedSpatialMoment_64f(const KroiMomentState64f* pState, int mOrd, int nOrd, int nChannel, KroiPoint roiOffset, Kro64f* pValue);
KroStatus kroiGetNormalizedCentralMoment_64f(const KroiMomentState64f* pState, int mOrd, int nOrd, int nChannel, Kro64f* pValue);
KroStatus kroiGetHuMoments_64f(const KroiMomentState64f* pState, int nChannel, Kro64f pHm[7]);

/* end of section MOMENTS */

/* section HISTOGRAM */
/* =======================================================================================
 * Histograms
 *
 * Per-channel counts of a region's values over bins prepared once into a caller-allocated
 * specification.  A channel with n levels L[0] < ... < L[n-1] has n - 1 bins; bin k counts
 * the values v with L[k] <= v < L[k+1] (half-open; values outside [L[0], L[n-1]) and NaN are
 * not counted).  Counts are unsigned 32-bit and wrap past 2^32 - 1.
 *
 * Specification (KroiHistogramSpec, then the level arrays in the same block): data type
 * code, channel count, the uniform word (1 from kroiHistogramUniformInit, 0 from
 * kroiHistogramInit), the tag 0x74736968, per-channel level counts, per-channel pointers to
 * the level arrays (32-bit floats for 32f, 32-bit integers for the integer types), which lie
 * after the structure, each on a 16-byte boundary.  The pointers point into the block, so a
 * specification must not be moved or copied once initialised.
 *
 * kroiHistogramGetBufferSize(dataType, roi, pLevels counts, numChannels, uniform, pSpecSize,
 * pBufferSize): checks, in order: null level counts or either output -8; width or height
 * < 1 -6; numChannels not 1, 3, 4 -53; a level count < 2 kroStsFewHistLevelsErr (-107);
 * a level count above 2^24 -6; dataType not 1, 5, 7, 13 -59.  Sizes: specification
 * 64 + sum of (4 * n rounded up to 16); buffer 4096 * numChannels + 64 for 8u (four
 * count tables per channel), 8 * (largest level count) + 64 for the other types (two
 * count rows that alternate pixels, summed into the output).
 *
 * kroiHistogramInit(dataType, pLevels (per-channel arrays), level counts, numChannels,
 * pSpec): dataType -59; null pLevels, counts or pSpec -8; numChannels -53; then per channel:
 * count < 2 -107, count above 2^24 -6, null level array -8, levels not strictly increasing
 * (or NaN) kroStsBadRangeErr (-7).  The levels are copied.
 * kroiHistogramUniformInit(dataType, lower, upper, counts, numChannels, pSpec): dataType
 * -59; null lower, upper, counts or pSpec -8; numChannels -53; per channel: count < 2 -107,
 * count above 2^24 -6, lower not below upper (or NaN) -7.  Level k of n is
 * lower + k * ((upper - lower) / (n - 1)) in double (first and last exactly lower and upper);
 * 32f stores it as the nearest float; the integer types round it to the nearest integer,
 * ties to even, saturated to the 32-bit range.  Levels that do not come out strictly
 * increasing after rounding give -7 (for example 10 integer levels over [0, 3]).
 * kroiHistogramGetLevels(pSpec, pLevels): null pSpec or pLevels -8; tag -5; a null array for
 * one of the channels -8; copies each channel's levels.
 *
 * kroiHistogram_<t>_<c>R(pSrc, srcStep, roi, pHist (one array for C1, one per channel
 * otherwise), pSpec, pBuffer): checks, in order: null pSrc, pHist (or any channel's array),
 * pSpec or pBuffer -8; width or height < 1 -6; srcStep < 1 or below the bytes of one row
 * kroStsBadStepErr (-16); tag not 0x74736968, or a specification made for another data type
 * or channel count, kroStsBadArgumentErr (-5).  8u counts every pixel into a full 256-entry
 * table (four tables for one channel, so that equal neighbours do not wait on each other's
 * stores) and sums it over [clamp(L[k]), clamp(L[k+1])), levels clamped to 0..256.  The
 * other types find each value's bin from the first and last level when the specification is
 * uniform (an estimate corrected against the stored levels, so edges fall exactly as the
 * half-open rule says) and by binary search otherwise.  C4 counts all four channels.
 * ------------------------------------------------------------------------------------- */
typedef struct KroiHistogramSpec {
    uint32_t dataType;     /* kro8u, kro16u, kro16s or kro32f */
    uint32_t numChannels;  /* 1, 3 or 4 */
    uint32_t uniform;      /* 1 when made by kroiHistogramUniformInit */
    uint32_t tag;          /* 0x74736968 */
    int32_t  numLevels[4];
    void*    pLevels[4];   /* Kro32f* for 32f, Kro32s* otherwise; arrays follow in the block */
} KroiHistogramSpec;

KroStatus kroiHistogramGetBufferSize(KroDataType dataType, KroiSize roiSize, const int* nLevels, int numChannels, int uniform, int* pSpecSize, int* pBufferSize);
KroStatus kroiHistogramInit(KroDataType dataType, const void* const* pLevels, const int* nLevels, int numChannels, KroiHistogramSpec* pSpec);
KroStatus kroiHistogramUniformInit(KroDataType dataType, const Kro32f* lowerLevel, const Kro32f* upperLevel, const int* nLevels, int numChannels, KroiHistogramSpec* pSpec);
KroStatus kroiHistogramGetLevels(const KroiHistogramSpec* pSpec, void* const* pLevels);
KroStatus kroiHistogram_8u_C1R(const Kro8u* pSrc, int srcStep, KroiSize roiSize, Kro32u* pHist, const KroiHistogramSpec* pSpec, Kro8u* pBuffer);
KroStatus kroiHistogram_8u_C3R(const Kro8u* pSrc, int srcStep, KroiSize roiSize, Kro32u* const pHist[3], const KroiHistogramSpec* pSpec, Kro8u* pBuffer);
KroStatus kroiHistogram_8u_C4R(const Kro8u* pSrc, int srcStep, KroiSize roiSize, Kro32u* const pHist[4], const KroiHistogramSpec* pSpec, Kro8u* pBuffer);
KroStatus kroiHistogram_16u_C1R(const Kro16u* pSrc, int srcStep, KroiSize roiSize, Kro32u* pHist, const KroiHistogramSpec* pSpec, Kro8u* pBuffer);
KroStatus kroiHistogram_16u_C3R(const Kro16u* pSrc, int srcStep, KroiSize roiSize, Kro32u* const pHist[3], const KroiHistogramSpec* pSpec, Kro8u* pBuffer);
KroStatus kroiHistogram_16u_C4R(const Kro16u* pSrc, int srcStep, KroiSize roiSize, Kro32u* const pHist[4], const KroiHistogramSpec* pSpec, Kro8u* pBuffer);
KroStatus kroiHistogram_16s_C1R(const Kro16s* pSrc, int srcStep, KroiSize roiSize, Kro32u* pHist, const KroiHistogramSpec* pSpec, Kro8u* pBuffer);
KroStatus kroiHistogram_16s_C3R(const Kro16s* pSrc, int srcStep, KroiSize roiSize, Kro32u* const pHist[3], const KroiHistogramSpec* pSpec, Kro8u* pBuffer);
KroStatus kroiHistogram_16s_C4R(const Kro16s* pSrc, int srcStep, KroiSize roiSize, Kro32u* const pHist[4], const KroiHistogramSpec* pSpec, Kro8u* pBuffer);
KroStatus kroiHistogram_32f_C1R(const Kro32f* pSrc, int srcStep, KroiSize roiSize, Kro32u* pHist, const KroiHistogramSpec* pSpec, Kro8u* pBuffer);
KroStatus kroiHistogram_32f_C3R(const Kro32f* pSrc, int srcStep, KroiSize roiSize, Kro32u* const pHist[3], const KroiHistogramSpec* pSpec, Kro8u* pBuffer);
KroStatus kroiHistogram_32f_C4R(const Kro32f* pSrc, int srcStep, KroiSize roiSize, Kro32u* const pHist[4], const KroiHistogramSpec* pSpec, Kro8u* pBuffer);

/* end of section HISTOGRAM */

/* section UNARY: Abs, Sqr, Sqrt, Exp, Ln, MinEvery, MaxEvery */

/* ---- Abs: |x| element by element ----------------------------------------------------------------
 *   16s: |-32768| saturates to 32767.  32f: the sign bit cleared (|-0| = +0, a NaN stays a NaN).
 *   Layouts C1, C3, C4, AC4 (the fourth element of AC4 neither read nor written); R writes
 *   pDst, IR replaces pSrcDst.  Checks, in this order: a null image pointer -8, a width or
 *   height below 1 -6.  No step is checked (a step of 0 repeats the first row).  These
 *   checks and layouts are those of every function of this section.
 */
KroStatus kroiAbs_16s_C1R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAbs_16s_C1IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAbs_16s_C3R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAbs_16s_C3IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAbs_16s_C4R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAbs_16s_C4IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAbs_16s_AC4R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAbs_16s_AC4IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAbs_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAbs_32f_C1IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAbs_32f_C3R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAbs_32f_C3IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAbs_32f_C4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAbs_32f_C4IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAbs_32f_AC4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAbs_32f_AC4IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);

/* ---- Sqr: x^2 --------------------------------------------------------------------------------------
 *   8u, 16u, 16s (Sfs): the exact square times 2^-scaleFactor, rounded to nearest with ties
 *   to even, saturated; every int scaleFactor is valid.  It is the product of the image with
 *   itself and rounds exactly as kroiMul.  32f: the IEEE product x * x.
 */
KroStatus kroiSqr_8u_C1RSfs(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqr_8u_C1IRSfs(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqr_8u_C3RSfs(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqr_8u_C3IRSfs(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqr_8u_C4RSfs(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqr_8u_C4IRSfs(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqr_8u_AC4RSfs(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqr_8u_AC4IRSfs(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqr_16u_C1RSfs(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqr_16u_C1IRSfs(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqr_16u_C3RSfs(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqr_16u_C3IRSfs(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqr_16u_C4RSfs(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqr_16u_C4IRSfs(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqr_16u_AC4RSfs(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqr_16u_AC4IRSfs(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqr_16s_C1RSfs(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqr_16s_C1IRSfs(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqr_16s_C3RSfs(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqr_16s_C3IRSfs(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqr_16s_C4RSfs(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqr_16s_C4IRSfs(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqr_16s_AC4RSfs(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqr_16s_AC4IRSfs(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqr_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSqr_32f_C1IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiSqr_32f_C3R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSqr_32f_C3IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiSqr_32f_C4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSqr_32f_C4IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiSqr_32f_AC4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSqr_32f_AC4IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);

/* ---- Sqrt: square root -----------------------------------------------------------------------------
 *   8u, 16u, 16s (Sfs): the exact sqrt(x) times 2^-scaleFactor, rounded to nearest with ties to
 *   even, saturated (sqrt(9) x 2^-1 = 1.5 gives 2).  16s: a negative x gives 0.
 *   32f: the IEEE square root, correctly rounded; sqrt(-0) = -0, sqrt(+inf) = +inf, a
 *   negative x (-inf included) gives NaN.
 *   A negative x anywhere gives kroStsNegativeRootWarn (3) after the whole output is written.
 */
KroStatus kroiSqrt_8u_C1RSfs(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqrt_8u_C1IRSfs(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqrt_8u_C3RSfs(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqrt_8u_C3IRSfs(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqrt_8u_C4RSfs(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqrt_8u_C4IRSfs(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqrt_8u_AC4RSfs(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqrt_8u_AC4IRSfs(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqrt_16u_C1RSfs(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqrt_16u_C1IRSfs(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqrt_16u_C3RSfs(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqrt_16u_C3IRSfs(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqrt_16u_C4RSfs(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqrt_16u_C4IRSfs(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqrt_16u_AC4RSfs(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqrt_16u_AC4IRSfs(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqrt_16s_C1RSfs(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqrt_16s_C1IRSfs(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqrt_16s_C3RSfs(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqrt_16s_C3IRSfs(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqrt_16s_C4RSfs(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqrt_16s_C4IRSfs(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqrt_16s_AC4RSfs(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqrt_16s_AC4IRSfs(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiSqrt_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSqrt_32f_C1IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiSqrt_32f_C3R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSqrt_32f_C3IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiSqrt_32f_C4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSqrt_32f_C4IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiSqrt_32f_AC4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiSqrt_32f_AC4IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);

/* ---- Exp: e^x --------------------------------------------------------------------------------------
 *   8u, 16s (Sfs): the exact e^x times 2^-scaleFactor, rounded to nearest with ties to even,
 *   saturated (e^x is never a tie except e^0 2^-s; the tests show every result to be exact).
 *   32f: within 2 ulp of the correctly rounded e^x, and the same bits on every processor and
 *   in every MXCSR setting (the processor's rounding and flush modes are set to their defaults
 *   for the call and restored).  e^-inf = +0, e^+inf = +inf, NaN stays NaN; results below the
 *   smallest subnormal give +0, above the largest float +inf.
 */
KroStatus kroiExp_8u_C1RSfs(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiExp_8u_C1IRSfs(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiExp_8u_C3RSfs(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiExp_8u_C3IRSfs(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiExp_8u_C4RSfs(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiExp_8u_C4IRSfs(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiExp_8u_AC4RSfs(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiExp_8u_AC4IRSfs(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiExp_16s_C1RSfs(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiExp_16s_C1IRSfs(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiExp_16s_C3RSfs(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiExp_16s_C3IRSfs(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiExp_16s_C4RSfs(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiExp_16s_C4IRSfs(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiExp_16s_AC4RSfs(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiExp_16s_AC4IRSfs(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiExp_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiExp_32f_C1IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiExp_32f_C3R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiExp_32f_C3IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiExp_32f_C4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiExp_32f_C4IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiExp_32f_AC4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiExp_32f_AC4IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);

/* ---- Ln: natural logarithm ----------------------------------------------------------------------------
 *   8u, 16s (Sfs): the exact ln x times 2^-scaleFactor, rounded to nearest with ties to even,
 *   saturated; x <= 0 gives the type's minimum (minus infinity saturated: 0 for 8u, -32768
 *   for 16s).  32f: within 1 ulp of the correctly rounded ln x, the same bits on every
 *   processor and MXCSR setting; ln(+-0) = -inf, ln of a negative x (-inf included) NaN,
 *   ln(+inf) = +inf, NaN stays NaN.
 *   Any x <= 0 (-0 included, NaN not) gives kroStsNonPositiveLogWarn (7) after the whole output
 *   is written.
 */
KroStatus kroiLn_8u_C1RSfs(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiLn_8u_C1IRSfs(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiLn_8u_C3RSfs(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiLn_8u_C3IRSfs(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiLn_8u_C4RSfs(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiLn_8u_C4IRSfs(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiLn_8u_AC4RSfs(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiLn_8u_AC4IRSfs(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiLn_16s_C1RSfs(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiLn_16s_C1IRSfs(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiLn_16s_C3RSfs(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiLn_16s_C3IRSfs(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiLn_16s_C4RSfs(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiLn_16s_C4IRSfs(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiLn_16s_AC4RSfs(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiLn_16s_AC4IRSfs(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, int scaleFactor);
KroStatus kroiLn_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiLn_32f_C1IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiLn_32f_C3R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiLn_32f_C3IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiLn_32f_C4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiLn_32f_C4IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiLn_32f_AC4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiLn_32f_AC4IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);

/* ---- MinEvery, MaxEvery: pSrcDst = min(pSrcDst, pSrc) or max(pSrcDst, pSrc) ---------------------------
 *   8u, 16u, 16s, 32f, in place only.  The source replaces the destination only where it is
 *   strictly less (MinEvery) or greater (MaxEvery): so a NaN in the source never replaces, a
 *   NaN in the destination stays, and of -0 and +0 the destination's is kept.
 */
KroStatus kroiMinEvery_8u_C1IR(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiMinEvery_8u_C3IR(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiMinEvery_8u_C4IR(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiMinEvery_8u_AC4IR(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiMinEvery_16u_C1IR(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiMinEvery_16u_C3IR(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiMinEvery_16u_C4IR(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiMinEvery_16u_AC4IR(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiMinEvery_16s_C1IR(const Kro16s* pSrc, int srcStep, Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiMinEvery_16s_C3IR(const Kro16s* pSrc, int srcStep, Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiMinEvery_16s_C4IR(const Kro16s* pSrc, int srcStep, Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiMinEvery_16s_AC4IR(const Kro16s* pSrc, int srcStep, Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiMinEvery_32f_C1IR(const Kro32f* pSrc, int srcStep, Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiMinEvery_32f_C3IR(const Kro32f* pSrc, int srcStep, Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiMinEvery_32f_C4IR(const Kro32f* pSrc, int srcStep, Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiMinEvery_32f_AC4IR(const Kro32f* pSrc, int srcStep, Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);

KroStatus kroiMaxEvery_8u_C1IR(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiMaxEvery_8u_C3IR(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiMaxEvery_8u_C4IR(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiMaxEvery_8u_AC4IR(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiMaxEvery_16u_C1IR(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiMaxEvery_16u_C3IR(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiMaxEvery_16u_C4IR(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiMaxEvery_16u_AC4IR(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiMaxEvery_16s_C1IR(const Kro16s* pSrc, int srcStep, Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiMaxEvery_16s_C3IR(const Kro16s* pSrc, int srcStep, Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiMaxEvery_16s_C4IR(const Kro16s* pSrc, int srcStep, Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiMaxEvery_16s_AC4IR(const Kro16s* pSrc, int srcStep, Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiMaxEvery_32f_C1IR(const Kro32f* pSrc, int srcStep, Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiMaxEvery_32f_C3IR(const Kro32f* pSrc, int srcStep, Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiMaxEvery_32f_C4IR(const Kro32f* pSrc, int srcStep, Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiMaxEvery_32f_AC4IR(const Kro32f* pSrc, int srcStep, Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize);

/* end of section UNARY */

/* section GENERATE: ramps, test patterns, additive noise */

/* ---- kroiImageRamp: a linear ramp ----------------------------------------------------------------
 *   Every written channel of pixel (x, y), counted from the ROI's top-left pixel, gets
 *   offset + slope * t with t = x (kroRampAxisX), y (kroRampAxisY) or x * y (kroRampAxisXY),
 *   evaluated in double (t and the product exact, each operation rounded to nearest double);
 *   integer types then round to nearest with ties to even and saturate (NaN gives 0), 32f
 *   rounds to the nearest float.  AC4 leaves the fourth element alone.
 *   Checks, in this order: null pDst -8, width or height below 1 -6, an axis not among the
 *   three -5.  No step is checked (this holds for the whole section).
 */
typedef int32_t KroiRampAxis;
enum { kroRampAxisX = 0, kroRampAxisY = 1, kroRampAxisXY = 2 };
KroStatus kroiImageRamp_8u_C1R(Kro8u* pDst, int dstStep, KroiSize roiSize, float offset, float slope, KroiRampAxis axis);
KroStatus kroiImageRamp_8u_C3R(Kro8u* pDst, int dstStep, KroiSize roiSize, float offset, float slope, KroiRampAxis axis);
KroStatus kroiImageRamp_8u_C4R(Kro8u* pDst, int dstStep, KroiSize roiSize, float offset, float slope, KroiRampAxis axis);
KroStatus kroiImageRamp_8u_AC4R(Kro8u* pDst, int dstStep, KroiSize roiSize, float offset, float slope, KroiRampAxis axis);
KroStatus kroiImageRamp_8s_C1R(Kro8s* pDst, int dstStep, KroiSize roiSize, float offset, float slope, KroiRampAxis axis);
KroStatus kroiImageRamp_8s_C3R(Kro8s* pDst, int dstStep, KroiSize roiSize, float offset, float slope, KroiRampAxis axis);
KroStatus kroiImageRamp_8s_C4R(Kro8s* pDst, int dstStep, KroiSize roiSize, float offset, float slope, KroiRampAxis axis);
KroStatus kroiImageRamp_8s_AC4R(Kro8s* pDst, int dstStep, KroiSize roiSize, float offset, float slope, KroiRampAxis axis);
KroStatus kroiImageRamp_16u_C1R(Kro16u* pDst, int dstStep, KroiSize roiSize, float offset, float slope, KroiRampAxis axis);
KroStatus kroiImageRamp_16u_C3R(Kro16u* pDst, int dstStep, KroiSize roiSize, float offset, float slope, KroiRampAxis axis);
KroStatus kroiImageRamp_16u_C4R(Kro16u* pDst, int dstStep, KroiSize roiSize, float offset, float slope, KroiRampAxis axis);
KroStatus kroiImageRamp_16u_AC4R(Kro16u* pDst, int dstStep, KroiSize roiSize, float offset, float slope, KroiRampAxis axis);
KroStatus kroiImageRamp_16s_C1R(Kro16s* pDst, int dstStep, KroiSize roiSize, float offset, float slope, KroiRampAxis axis);
KroStatus kroiImageRamp_16s_C3R(Kro16s* pDst, int dstStep, KroiSize roiSize, float offset, float slope, KroiRampAxis axis);
KroStatus kroiImageRamp_16s_C4R(Kro16s* pDst, int dstStep, KroiSize roiSize, float offset, float slope, KroiRampAxis axis);
KroStatus kroiImageRamp_16s_AC4R(Kro16s* pDst, int dstStep, KroiSize roiSize, float offset, float slope, KroiRampAxis axis);
KroStatus kroiImageRamp_32f_C1R(Kro32f* pDst, int dstStep, KroiSize roiSize, float offset, float slope, KroiRampAxis axis);
KroStatus kroiImageRamp_32f_C3R(Kro32f* pDst, int dstStep, KroiSize roiSize, float offset, float slope, KroiRampAxis axis);
KroStatus kroiImageRamp_32f_C4R(Kro32f* pDst, int dstStep, KroiSize roiSize, float offset, float slope, KroiRampAxis axis);
KroStatus kroiImageRamp_32f_AC4R(Kro32f* pDst, int dstStep, KroiSize roiSize, float offset, float slope, KroiRampAxis axis);

/* ---- kroiImageZonePlate: a radial chirp -----------------------------------------------------------
 *   With the centre (cx, cy) = ((W - 1) / 2, (H - 1) / 2), r2 = (x - cx)^2 + (y - cy)^2 and R the
 *   distance from the centre to a corner, the pattern is cos(pi t) with t = r2 / (2 R) (t = 0
 *   for a 1 x 1 image): its local frequency rises linearly from 0 at the centre to the Nyquist
 *   limit, half a cycle per pixel, at the corners.  Computed in double (t rounded once) with the
 *   library's own cosine, within 2^-50 of cos(pi t), so the image is the same on every machine; 8u gets
 *   127.5 + 127.5 cos, 16s 32767 cos, both rounded to nearest with ties to even, 32f cos
 *   rounded to float.  Checks: null pDst -8, size -6.
 */
KroStatus kroiImageZonePlate_8u_C1R(Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiImageZonePlate_16s_C1R(Kro16s* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiImageZonePlate_32f_C1R(Kro32f* pDst, int dstStep, KroiSize roiSize);

/* ---- kroiImageCheckerboard: squares of cellSize x cellSize pixels --------------------------------
 *   Pixel (x, y) gets value1 where x / cellSize + y / cellSize is even (the top-left cell
 *   included) and value2 elsewhere.  Checks: null pDst -8, size -6, cellSize below 1 -6.
 */
KroStatus kroiImageCheckerboard_8u_C1R(Kro8u* pDst, int dstStep, KroiSize roiSize, int cellSize, Kro8u value1, Kro8u value2);
KroStatus kroiImageCheckerboard_16s_C1R(Kro16s* pDst, int dstStep, KroiSize roiSize, int cellSize, Kro16s value1, Kro16s value2);
KroStatus kroiImageCheckerboard_32f_C1R(Kro32f* pDst, int dstStep, KroiSize roiSize, int cellSize, Kro32f value1, Kro32f value2);

/* ---- kroiAddRandUniform, kroiAddRandGauss: additive noise, in place ------------------------------
 *   Generator: *pSeed is a 32-bit state that walks a Weyl sequence, state += 0x9E3779B9 per
 *   sample, each new state mixed by the 32-bit finaliser of MurmurHash3
 *   (z ^= z >> 16; z *= 0x85EBCA6B; z ^= z >> 13; z *= 0xC2B2AE35; z ^= z >> 16).
 *   Every seed is valid and gives a sequence of period 2^32; the call leaves *pSeed advanced by
 *   the samples it used, so a second call continues the sequence, and a seed gives the same
 *   image on every machine.  The written elements are numbered e = 0, 1, ... in row-major
 *   order (three per AC4 pixel).
 *   Uniform: element e takes sample e + 1, u = (z >> 8) / 16777215 (so 0 and 1 both occur), and
 *   noise low + (high - low) * u; N elements use N samples.
 *   Gaussian (Box-Muller): the pair of samples z1 = 2 (e / 2) + 1, z2 = 2 (e / 2) + 2 gives
 *   u1 = ((z1 >> 8) + 1) 2^-24, the angle (z2 >> 30 + (z2 & 0x3FFFFFFF) 2^-30) pi / 2, and
 *   rho = sqrt(-2 ln u1) (the library's own logarithm); even e takes rho cos, odd e rho sin, and
 *   noise mean + stdDev * that.  N elements use 2 ceil(N / 2) samples.  |rho| < 5.8, so noise
 *   stays within mean +- 5.8 stdDev.
 *   Every step in single precision: the pixel plus its noise, for integer types clamped to the
 *   type's range and rounded to nearest with ties to even (a NaN sum gives the minimum); 32f
 *   the float sum.  Results do not depend on the caller's MXCSR.
 *   Checks, in this order: null pSrcDst or pSeed -8, size -6, then uniform: low not below high
 *   (or NaN) -7 kroStsBadRangeErr; Gaussian: stdDev below 0 (or NaN) -125
 *   kroStsNegativeNoiseErr.  *pSeed is untouched on error.
 */
KroStatus kroiAddRandUniform_8u_C1IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, float low, float high, unsigned int* pSeed);
KroStatus kroiAddRandUniform_8u_C3IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, float low, float high, unsigned int* pSeed);
KroStatus kroiAddRandUniform_8u_C4IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, float low, float high, unsigned int* pSeed);
KroStatus kroiAddRandUniform_8u_AC4IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, float low, float high, unsigned int* pSeed);
KroStatus kroiAddRandUniform_8s_C1IR(Kro8s* pSrcDst, int srcDstStep, KroiSize roiSize, float low, float high, unsigned int* pSeed);
KroStatus kroiAddRandUniform_8s_C3IR(Kro8s* pSrcDst, int srcDstStep, KroiSize roiSize, float low, float high, unsigned int* pSeed);
KroStatus kroiAddRandUniform_8s_C4IR(Kro8s* pSrcDst, int srcDstStep, KroiSize roiSize, float low, float high, unsigned int* pSeed);
KroStatus kroiAddRandUniform_8s_AC4IR(Kro8s* pSrcDst, int srcDstStep, KroiSize roiSize, float low, float high, unsigned int* pSeed);
KroStatus kroiAddRandUniform_16u_C1IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, float low, float high, unsigned int* pSeed);
KroStatus kroiAddRandUniform_16u_C3IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, float low, float high, unsigned int* pSeed);
KroStatus kroiAddRandUniform_16u_C4IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, float low, float high, unsigned int* pSeed);
KroStatus kroiAddRandUniform_16u_AC4IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, float low, float high, unsigned int* pSeed);
KroStatus kroiAddRandUniform_16s_C1IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, float low, float high, unsigned int* pSeed);
KroStatus kroiAddRandUniform_16s_C3IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, float low, float high, unsigned int* pSeed);
KroStatus kroiAddRandUniform_16s_C4IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, float low, float high, unsigned int* pSeed);
KroStatus kroiAddRandUniform_16s_AC4IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, float low, float high, unsigned int* pSeed);
KroStatus kroiAddRandUniform_32f_C1IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize, float low, float high, unsigned int* pSeed);
KroStatus kroiAddRandUniform_32f_C3IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize, float low, float high, unsigned int* pSeed);
KroStatus kroiAddRandUniform_32f_C4IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize, float low, float high, unsigned int* pSeed);
KroStatus kroiAddRandUniform_32f_AC4IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize, float low, float high, unsigned int* pSeed);

KroStatus kroiAddRandGauss_8u_C1IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, float mean, float stdDev, unsigned int* pSeed);
KroStatus kroiAddRandGauss_8u_C3IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, float mean, float stdDev, unsigned int* pSeed);
KroStatus kroiAddRandGauss_8u_C4IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, float mean, float stdDev, unsigned int* pSeed);
KroStatus kroiAddRandGauss_8u_AC4IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, float mean, float stdDev, unsigned int* pSeed);
KroStatus kroiAddRandGauss_8s_C1IR(Kro8s* pSrcDst, int srcDstStep, KroiSize roiSize, float mean, float stdDev, unsigned int* pSeed);
KroStatus kroiAddRandGauss_8s_C3IR(Kro8s* pSrcDst, int srcDstStep, KroiSize roiSize, float mean, float stdDev, unsigned int* pSeed);
KroStatus kroiAddRandGauss_8s_C4IR(Kro8s* pSrcDst, int srcDstStep, KroiSize roiSize, float mean, float stdDev, unsigned int* pSeed);
KroStatus kroiAddRandGauss_8s_AC4IR(Kro8s* pSrcDst, int srcDstStep, KroiSize roiSize, float mean, float stdDev, unsigned int* pSeed);
KroStatus kroiAddRandGauss_16u_C1IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, float mean, float stdDev, unsigned int* pSeed);
KroStatus kroiAddRandGauss_16u_C3IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, float mean, float stdDev, unsigned int* pSeed);
KroStatus kroiAddRandGauss_16u_C4IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, float mean, float stdDev, unsigned int* pSeed);
KroStatus kroiAddRandGauss_16u_AC4IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, float mean, float stdDev, unsigned int* pSeed);
KroStatus kroiAddRandGauss_16s_C1IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, float mean, float stdDev, unsigned int* pSeed);
KroStatus kroiAddRandGauss_16s_C3IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, float mean, float stdDev, unsigned int* pSeed);
KroStatus kroiAddRandGauss_16s_C4IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, float mean, float stdDev, unsigned int* pSeed);
KroStatus kroiAddRandGauss_16s_AC4IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, float mean, float stdDev, unsigned int* pSeed);
KroStatus kroiAddRandGauss_32f_C1IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize, float mean, float stdDev, unsigned int* pSeed);
KroStatus kroiAddRandGauss_32f_C3IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize, float mean, float stdDev, unsigned int* pSeed);
KroStatus kroiAddRandGauss_32f_C4IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize, float mean, float stdDev, unsigned int* pSeed);
KroStatus kroiAddRandGauss_32f_AC4IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize, float mean, float stdDev, unsigned int* pSeed);

/* end of section GENERATE */
/* section LUT */
/* =======================================================================================
 * Lookup tables
 *
 * Per channel, a table of n >= 2 levels L[0..n-1] and values V[0..n-1] (32-bit integers for
 * the integer types, 32-bit floats for 32f) maps a pixel value v: interval k is
 * [L[k], L[k+1]); an interval whose upper level is not above its lower one is skipped; a v
 * that lies in no interval (below L[0], at or above L[n-1] for ascending levels, NaN) is
 * left unchanged.  Where intervals overlap (levels not ascending) the later interval wins.
 *   nearest (1): V[k].
 *   linear (2):  V[k] + (V[k+1] - V[k]) * (v - L[k]) / (L[k+1] - L[k]); for the integer
 *                types computed exactly and rounded to nearest, ties to even.
 *   cubic (6):   the Lagrange cubic through the points k-1, k, k+1, k+2, the four moved
 *                inwards at the first and last interval (points 0..3, n-4..n-1); evaluated
 *                in double and, for the integer types, rounded to nearest, ties to even.
 *                With fewer than four levels, or where those four levels are not strictly
 *                ascending, the linear rule is used.
 *   32f: linear and cubic are computed in double and rounded once to single precision.
 *   Integer results are saturated to the pixel type.
 * The integer types are mapped through full maps painted once by the initialiser: the
 * identity, then each non-empty interval clipped to the type's range, [max(L[k], min),
 * min(L[k+1], max + 1)), in order.  32f finds each value's interval by binary search when
 * the levels never descend; other level lists are searched interval by interval.
 *
 * Channel layout codes: kroC1 = 1, kroC3 = 3, kroC4 = 4, kroAC4 = 9 (three tables for C3 and
 * AC4, four for C4; AC4 leaves the fourth channel unwritten).
 *
 * Specification (KroiLUTSpec, opaque, in the caller's block of kroiLUT_GetSize bytes):
 * begins with a 32-bit kind identifier; the tables start at the first 64-byte boundary at
 * or after 128 bytes into the block and are found through offsets from its start, so an
 * initialised specification may be copied to another block.  Kind identifiers:
 *   8u  C1 nearest 0x1234567, linear 0x1234577, cubic 0x1234587; 8u C3 nearest 0x1234588;
 *   8u  C4 nearest 0x123458A; 32f C1 nearest 0x1234573;
 *   every other kind 0x4C4B0000 + (data type code << 8) + (layout code << 4) + interpolation
 *   code (8u AC4 linear: 0x4C4B0192).
 *
 * kroiLUT_GetSize(interpolation, dataType, channels, roi, nLevels, pSpecSize): checks, in
 * order: null nLevels or pSpecSize -8; width or height < 1 -6; a level count < 2 among the
 * layout's channels -106 (C4 tests its fourth count first; an unknown layout tests none);
 * layout not 1, 3, 4, 9 -47; dataType not 1, 5, 7, 13 -59; interpolation not 1, 2, 6 -23;
 * a size beyond INT_MAX -6.  Sizes (n the C1 count, S3 the sum of the first three counts,
 * S4 of all four, round64 up to a multiple of 64), the same for all three interpolations:
 *   8u:        C1 544, C3 and AC4 768 + 288, C4 1024 + 288;
 *   16u, 16s:  C1 8n + 131360, C3 round64(8 S3) + 0x60000 + 288, AC4 0x60000 + 288,
 *              C4 0x80000 + 288;
 *   32f:       C1 8n + 288, C3 and AC4 round64(8 S3) + 288, C4 round64(8 S4) + 288.
 *
 * kroiLUT_Init_<t>(interpolation, channels, roi, pValues, pLevels, nLevels, pSpec): checks,
 * in order: null pValues, pLevels, nLevels or pSpec, or (for a known layout) a null value
 * or level array of one of its channels -8; width or height < 1 -6; level counts -106 as
 * in the query; layout -47; interpolation -23.  The region is only checked.
 *
 * kroiLUT_<t>_<c>R, _<c>IR: checks, in order: null source, destination (or source-
 * destination) or specification -8; a step < 1 -16 (before the size); width or height < 1
 * -6; a kind identifier not made for the function's type and layout -5 (a C3 specification
 * does not serve AC4 and the reverse).
 * ======================================================================================= */
typedef struct KroiLUTSpec KroiLUTSpec;
enum { kroC1 = 1, kroC3 = 3, kroC4 = 4, kroAC4 = 9 };
KroStatus kroiLUT_GetSize(int interpolation, KroDataType dataType, int channels, KroiSize roiSize, const int nLevels[], int* pSpecSize);
KroStatus kroiLUT_Init_8u(int interpolation, int channels, KroiSize roiSize, const Kro32s* pValues[], const Kro32s* pLevels[], const int nLevels[], KroiLUTSpec* pSpec);
KroStatus kroiLUT_Init_16u(int interpolation, int channels, KroiSize roiSize, const Kro32s* pValues[], const Kro32s* pLevels[], const int nLevels[], KroiLUTSpec* pSpec);
KroStatus kroiLUT_Init_16s(int interpolation, int channels, KroiSize roiSize, const Kro32s* pValues[], const Kro32s* pLevels[], const int nLevels[], KroiLUTSpec* pSpec);
KroStatus kroiLUT_Init_32f(int interpolation, int channels, KroiSize roiSize, const Kro32f* pValues[], const Kro32f* pLevels[], const int nLevels[], KroiLUTSpec* pSpec);
KroStatus kroiLUT_8u_C1R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, const KroiLUTSpec* pSpec);
KroStatus kroiLUT_8u_C1IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, const KroiLUTSpec* pSpec);
KroStatus kroiLUT_8u_C3R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, const KroiLUTSpec* pSpec);
KroStatus kroiLUT_8u_C3IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, const KroiLUTSpec* pSpec);
KroStatus kroiLUT_8u_C4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, const KroiLUTSpec* pSpec);
KroStatus kroiLUT_8u_C4IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, const KroiLUTSpec* pSpec);
KroStatus kroiLUT_8u_AC4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, const KroiLUTSpec* pSpec);
KroStatus kroiLUT_8u_AC4IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, const KroiLUTSpec* pSpec);
KroStatus kroiLUT_16u_C1R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, const KroiLUTSpec* pSpec);
KroStatus kroiLUT_16u_C1IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, const KroiLUTSpec* pSpec);
KroStatus kroiLUT_16u_C3R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, const KroiLUTSpec* pSpec);
KroStatus kroiLUT_16u_C3IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, const KroiLUTSpec* pSpec);
KroStatus kroiLUT_16u_C4R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, const KroiLUTSpec* pSpec);
KroStatus kroiLUT_16u_C4IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, const KroiLUTSpec* pSpec);
KroStatus kroiLUT_16u_AC4R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, const KroiLUTSpec* pSpec);
KroStatus kroiLUT_16u_AC4IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, const KroiLUTSpec* pSpec);
KroStatus kroiLUT_16s_C1R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, const KroiLUTSpec* pSpec);
KroStatus kroiLUT_16s_C1IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, const KroiLUTSpec* pSpec);
KroStatus kroiLUT_16s_C3R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, const KroiLUTSpec* pSpec);
KroStatus kroiLUT_16s_C3IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, const KroiLUTSpec* pSpec);
KroStatus kroiLUT_16s_C4R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, const KroiLUTSpec* pSpec);
KroStatus kroiLUT_16s_C4IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, const KroiLUTSpec* pSpec);
KroStatus kroiLUT_16s_AC4R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, const KroiLUTSpec* pSpec);
KroStatus kroiLUT_16s_AC4IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, const KroiLUTSpec* pSpec);
KroStatus kroiLUT_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, const KroiLUTSpec* pSpec);
KroStatus kroiLUT_32f_C1IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize, const KroiLUTSpec* pSpec);
KroStatus kroiLUT_32f_C3R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, const KroiLUTSpec* pSpec);
KroStatus kroiLUT_32f_C3IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize, const KroiLUTSpec* pSpec);
KroStatus kroiLUT_32f_C4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, const KroiLUTSpec* pSpec);
KroStatus kroiLUT_32f_C4IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize, const KroiLUTSpec* pSpec);
KroStatus kroiLUT_32f_AC4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, const KroiLUTSpec* pSpec);
KroStatus kroiLUT_32f_AC4IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize, const KroiLUTSpec* pSpec);
/*
 * kroiLUTPalette_<t>_<c>R(pSrc, srcStep, pDst, dstStep, roi, pTable, nBitSize): each source
 * value, masked to its low nBitSize bits, selects its entry of a palette of 2^nBitSize
 * entries of the destination type; C3, C4 and AC4 take one palette per written channel
 * (AC4 leaves the fourth channel unwritten).  nBitSize is 1..8 for 8u sources and 1..16 for
 * 16u sources.  24u destinations are three bytes per pixel, copied in order from the
 * entry's three bytes (a palette of 3 * 2^nBitSize bytes; read as a little-endian value,
 * the first byte is the lowest).
 *   Checks, in order: null source, destination, palette (or one of the channel palettes)
 *   -8; a step < 1 -16; width or height < 1 -6; nBitSize outside its bounds
 *   kroStsOutsideRangeErr (-11).
 */
KroStatus kroiLUTPalette_8u_C1R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, const Kro8u* pTable, int nBitSize);
KroStatus kroiLUTPalette_8u_C3R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, const Kro8u* const pTable[3], int nBitSize);
KroStatus kroiLUTPalette_8u_C4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, const Kro8u* const pTable[4], int nBitSize);
KroStatus kroiLUTPalette_8u_AC4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, const Kro8u* const pTable[3], int nBitSize);
KroStatus kroiLUTPalette_16u_C1R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, const Kro16u* pTable, int nBitSize);
KroStatus kroiLUTPalette_16u_C3R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, const Kro16u* const pTable[3], int nBitSize);
KroStatus kroiLUTPalette_16u_C4R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, const Kro16u* const pTable[4], int nBitSize);
KroStatus kroiLUTPalette_16u_AC4R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, const Kro16u* const pTable[3], int nBitSize);
KroStatus kroiLUTPalette_8u24u_C1R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, const Kro8u* pTable, int nBitSize);
KroStatus kroiLUTPalette_8u32u_C1R(const Kro8u* pSrc, int srcStep, Kro32u* pDst, int dstStep, KroiSize roiSize, const Kro32u* pTable, int nBitSize);
KroStatus kroiLUTPalette_16u8u_C1R(const Kro16u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, const Kro8u* pTable, int nBitSize);
KroStatus kroiLUTPalette_16u24u_C1R(const Kro16u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, const Kro8u* pTable, int nBitSize);
KroStatus kroiLUTPalette_16u32u_C1R(const Kro16u* pSrc, int srcStep, Kro32u* pDst, int dstStep, KroiSize roiSize, const Kro32u* pTable, int nBitSize);

/* end of section LUT */

/* section ALPHA */
/* =======================================================================================
 * Alpha composition
 *
 * Porter-Duff composition of two images (KroiAlphaOp, 0..11; the formulas stand beside the
 * codes above).  Alpha 1 is 255 for 8u, 65535 for 16u, 32767 for 16s, 2^31 - 1 for 32s,
 * 2^32 - 1 for 32u and 1.0 for 32f; alpha values beyond it are used as they are.
 *
 * 8u (constant and per-pixel alphas): single precision, products in the order written,
 * k1 = 0x3B808081 (nearest 1/255), k2 = 0x37810182 (nearest 1/65025) as bit patterns,
 * results rounded to nearest with ties to even (whatever the caller's rounding control)
 * and saturated to 0..255:
 *   Over        round((S1*A1 + S2*w)*k1), w = ((255 - A1)*k1)*A2
 *   In          round(S1*(A2*(A1*k2)))
 *   Out         round(S1*((A1*k2)*(255 - A2)))
 *   Atop, Xor   round((S1*p + S2*q)*k2); Atop p = A1*A2, q = (255 - A1)*A2;
 *               Xor p = (255 - A2)*A1, q = (255 - A1)*A2
 *   Plus        round((S1*A1 + S2*A2)*k1)
 *   OverPremul  min(S1 + div255(S2*(255 - A1)), 255)
 *   InPremul    div255(S1*A2);  OutPremul div255(S1*(255 - A2))
 *   AtopPremul, XorPremul  round((S1*u + S2*v)*k1), u = A2 (Atop) or 255 - A2 (Xor),
 *               v = 255 - A1, saturated at 255
 *   PlusPremul  min(S1 + S2, 255)
 * with div255(x) = (x + ((x + 128) >> 8) + 128) >> 8, x / 255 rounded to nearest.  The
 * alpha constants (w, p, q and the products of In and Out) are formed once per call for
 * constant alphas and once per pixel for the per-pixel forms.
 * Every other type: the exact value of the formula (alphas divided by alpha 1) rounded once:
 * the integer types compute it exactly in integers and round to nearest (alpha 1 is odd,
 * so no result is a tie), then saturate; 32f computes in double and rounds to single.
 *
 * kroiAlphaCompC_<t>_<c>R(pSrc1, step1, alpha1, pSrc2, step2, alpha2, pDst, dstStep, roi,
 * alphaType): one constant alpha per image.  C1, C3, C4 compose every channel; AC4 and AP4
 * compose the three colour channels (planes) and never write the fourth.  _IR: the second
 * source is the destination.
 *   Checks, in order: a null source, destination or plane pointer -8; width < 1, then
 *   height < 1 -6; alphaType outside 0..11 (negative ones included) kroStsBadAlphaOpErr
 *   (-50).  Steps are not checked.
 * kroiAlphaComp_<t>_<c>R(pSrc1, step1, pSrc2, step2, pDst, dstStep, roi, alphaType): the
 * alpha of each pixel.  AC4: channels 0..2 are colours, channel 3 the alpha; AP4: planes
 * 0..2 colours, plane 3 the alpha; AC1: the image is an alpha image.  The destination's
 * alpha (channel 3 of AC4, plane 3 of AP4, every element of AC1) is written with the
 * composed alpha: the premultiplied rule of the operation with each alpha as its own
 * colour (Over and OverPremul: A1 + A2 (1 - A1); In: A1 A2; Out: A1 (1 - A2); Atop: A2;
 * Xor: A1 (1 - A2) + A2 (1 - A1); Plus: A1 + A2, saturated), with the rounding of the
 * type above.  _IR (8u and 16u AC1 and AC4, and the AC4 forms of 16s, 32s, 32u, 32f): the
 * second source is the destination.  Checks as kroiAlphaCompC.
 * kroiAlphaCompColorKey_8u_AC4R(pSrc1, step1, pSrc2, step2, pDst, dstStep, roi, colorKey,
 * alphaType): where the three colours of the first source's pixel equal colorKey[0..2],
 * the destination pixel is the second source's pixel (alpha included); elsewhere it is
 * composed as by kroiAlphaComp_8u_AC4R.  Checks: null pointers (colorKey included) -8;
 * width or height < 1 -6; any step < 1 -16; alphaType -50.
 */
KroStatus kroiAlphaCompC_8u_C1R(const Kro8u* pSrc1, int src1Step, Kro8u alpha1, const Kro8u* pSrc2, int src2Step, Kro8u alpha2, Kro8u* pDst, int dstStep, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaCompC_8u_C1IR(const Kro8u* pSrc, int srcStep, Kro8u alpha1, Kro8u* pSrcDst, int srcDstStep, Kro8u alpha2, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaCompC_8u_C3R(const Kro8u* pSrc1, int src1Step, Kro8u alpha1, const Kro8u* pSrc2, int src2Step, Kro8u alpha2, Kro8u* pDst, int dstStep, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaCompC_8u_C3IR(const Kro8u* pSrc, int srcStep, Kro8u alpha1, Kro8u* pSrcDst, int srcDstStep, Kro8u alpha2, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaCompC_8u_C4R(const Kro8u* pSrc1, int src1Step, Kro8u alpha1, const Kro8u* pSrc2, int src2Step, Kro8u alpha2, Kro8u* pDst, int dstStep, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaCompC_8u_C4IR(const Kro8u* pSrc, int srcStep, Kro8u alpha1, Kro8u* pSrcDst, int srcDstStep, Kro8u alpha2, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaCompC_8u_AC4R(const Kro8u* pSrc1, int src1Step, Kro8u alpha1, const Kro8u* pSrc2, int src2Step, Kro8u alpha2, Kro8u* pDst, int dstStep, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaCompC_8u_AC4IR(const Kro8u* pSrc, int srcStep, Kro8u alpha1, Kro8u* pSrcDst, int srcDstStep, Kro8u alpha2, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaCompC_8u_AP4R(const Kro8u* const pSrc1[4], int src1Step, Kro8u alpha1, const Kro8u* const pSrc2[4], int src2Step, Kro8u alpha2, Kro8u* const pDst[4], int dstStep, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaCompC_8u_AP4IR(const Kro8u* const pSrc[4], int srcStep, Kro8u alpha1, Kro8u* const pSrcDst[4], int srcDstStep, Kro8u alpha2, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaCompC_16u_C1R(const Kro16u* pSrc1, int src1Step, Kro16u alpha1, const Kro16u* pSrc2, int src2Step, Kro16u alpha2, Kro16u* pDst, int dstStep, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaCompC_16u_C1IR(const Kro16u* pSrc, int srcStep, Kro16u alpha1, Kro16u* pSrcDst, int srcDstStep, Kro16u alpha2, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaCompC_16u_C3R(const Kro16u* pSrc1, int src1Step, Kro16u alpha1, const Kro16u* pSrc2, int src2Step, Kro16u alpha2, Kro16u* pDst, int dstStep, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaCompC_16u_C3IR(const Kro16u* pSrc, int srcStep, Kro16u alpha1, Kro16u* pSrcDst, int srcDstStep, Kro16u alpha2, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaCompC_16u_C4R(const Kro16u* pSrc1, int src1Step, Kro16u alpha1, const Kro16u* pSrc2, int src2Step, Kro16u alpha2, Kro16u* pDst, int dstStep, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaCompC_16u_C4IR(const Kro16u* pSrc, int srcStep, Kro16u alpha1, Kro16u* pSrcDst, int srcDstStep, Kro16u alpha2, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaCompC_16u_AC4R(const Kro16u* pSrc1, int src1Step, Kro16u alpha1, const Kro16u* pSrc2, int src2Step, Kro16u alpha2, Kro16u* pDst, int dstStep, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaCompC_16u_AC4IR(const Kro16u* pSrc, int srcStep, Kro16u alpha1, Kro16u* pSrcDst, int srcDstStep, Kro16u alpha2, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaCompC_16u_AP4R(const Kro16u* const pSrc1[4], int src1Step, Kro16u alpha1, const Kro16u* const pSrc2[4], int src2Step, Kro16u alpha2, Kro16u* const pDst[4], int dstStep, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaCompC_16u_AP4IR(const Kro16u* const pSrc[4], int srcStep, Kro16u alpha1, Kro16u* const pSrcDst[4], int srcDstStep, Kro16u alpha2, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaCompC_16s_C1R(const Kro16s* pSrc1, int src1Step, Kro16s alpha1, const Kro16s* pSrc2, int src2Step, Kro16s alpha2, Kro16s* pDst, int dstStep, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaCompC_16s_C1IR(const Kro16s* pSrc, int srcStep, Kro16s alpha1, Kro16s* pSrcDst, int srcDstStep, Kro16s alpha2, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaCompC_32s_C1R(const Kro32s* pSrc1, int src1Step, Kro32s alpha1, const Kro32s* pSrc2, int src2Step, Kro32s alpha2, Kro32s* pDst, int dstStep, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaCompC_32s_C1IR(const Kro32s* pSrc, int srcStep, Kro32s alpha1, Kro32s* pSrcDst, int srcDstStep, Kro32s alpha2, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaCompC_32u_C1R(const Kro32u* pSrc1, int src1Step, Kro32u alpha1, const Kro32u* pSrc2, int src2Step, Kro32u alpha2, Kro32u* pDst, int dstStep, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaCompC_32u_C1IR(const Kro32u* pSrc, int srcStep, Kro32u alpha1, Kro32u* pSrcDst, int srcDstStep, Kro32u alpha2, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaCompC_32f_C1R(const Kro32f* pSrc1, int src1Step, Kro32f alpha1, const Kro32f* pSrc2, int src2Step, Kro32f alpha2, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaCompC_32f_C1IR(const Kro32f* pSrc, int srcStep, Kro32f alpha1, Kro32f* pSrcDst, int srcDstStep, Kro32f alpha2, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaComp_8u_AC1R(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaComp_8u_AC1IR(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaComp_8u_AC4R(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaComp_8u_AC4IR(const Kro8u* pSrc, int srcStep, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaComp_8u_AP4R(const Kro8u* const pSrc1[4], int src1Step, const Kro8u* const pSrc2[4], int src2Step, Kro8u* const pDst[4], int dstStep, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaComp_16u_AC1R(const Kro16u* pSrc1, int src1Step, const Kro16u* pSrc2, int src2Step, Kro16u* pDst, int dstStep, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaComp_16u_AC1IR(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaComp_16u_AC4R(const Kro16u* pSrc1, int src1Step, const Kro16u* pSrc2, int src2Step, Kro16u* pDst, int dstStep, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaComp_16u_AC4IR(const Kro16u* pSrc, int srcStep, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaComp_16u_AP4R(const Kro16u* const pSrc1[4], int src1Step, const Kro16u* const pSrc2[4], int src2Step, Kro16u* const pDst[4], int dstStep, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaComp_16s_AC1R(const Kro16s* pSrc1, int src1Step, const Kro16s* pSrc2, int src2Step, Kro16s* pDst, int dstStep, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaComp_16s_AC4R(const Kro16s* pSrc1, int src1Step, const Kro16s* pSrc2, int src2Step, Kro16s* pDst, int dstStep, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaComp_16s_AC4IR(const Kro16s* pSrc, int srcStep, Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaComp_32s_AC1R(const Kro32s* pSrc1, int src1Step, const Kro32s* pSrc2, int src2Step, Kro32s* pDst, int dstStep, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaComp_32s_AC4R(const Kro32s* pSrc1, int src1Step, const Kro32s* pSrc2, int src2Step, Kro32s* pDst, int dstStep, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaComp_32s_AC4IR(const Kro32s* pSrc, int srcStep, Kro32s* pSrcDst, int srcDstStep, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaComp_32u_AC1R(const Kro32u* pSrc1, int src1Step, const Kro32u* pSrc2, int src2Step, Kro32u* pDst, int dstStep, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaComp_32u_AC4R(const Kro32u* pSrc1, int src1Step, const Kro32u* pSrc2, int src2Step, Kro32u* pDst, int dstStep, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaComp_32u_AC4IR(const Kro32u* pSrc, int srcStep, Kro32u* pSrcDst, int srcDstStep, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaComp_32f_AC1R(const Kro32f* pSrc1, int src1Step, const Kro32f* pSrc2, int src2Step, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaComp_32f_AC4R(const Kro32f* pSrc1, int src1Step, const Kro32f* pSrc2, int src2Step, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaComp_32f_AC4IR(const Kro32f* pSrc, int srcStep, Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize, KroiAlphaOp alphaType);
KroStatus kroiAlphaCompColorKey_8u_AC4R(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, const Kro8u colorKey[3], KroiAlphaOp alphaType);

/* kroiAlphaPremul_<t>_<c>R(pSrc, srcStep, pDst, dstStep, roi): each colour times its pixel's
 * alpha, rounded to nearest: 8u div255(S*A), 16u S*A/65535 exactly rounded (no ties).  The
 * alpha channel (AC4) or plane (AP4) is not written; AP4 needs all four plane pointers.
 * kroiAlphaPremulC_<t>_<c>R(pSrc, srcStep, alpha, pDst, dstStep, roi), _IR(alpha, pSrcDst,
 * step, roi): the same with one constant alpha; C1, C3, C4 multiply every channel, AC4 and
 * AP4 the three colour channels (planes) and leave the fourth unwritten.
 *   Checks, in order: a null pointer (plane pointers included) -8; width or height < 1 -6.
 *   Steps are not checked. */
KroStatus kroiAlphaPremul_8u_AC4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAlphaPremul_8u_AC4IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAlphaPremul_8u_AP4R(const Kro8u* const pSrc[4], int srcStep, Kro8u* const pDst[4], int dstStep, KroiSize roiSize);
KroStatus kroiAlphaPremul_8u_AP4IR(Kro8u* const pSrcDst[4], int srcDstStep, KroiSize roiSize);
KroStatus kroiAlphaPremul_16u_AC4R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAlphaPremul_16u_AC4IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAlphaPremul_16u_AP4R(const Kro16u* const pSrc[4], int srcStep, Kro16u* const pDst[4], int dstStep, KroiSize roiSize);
KroStatus kroiAlphaPremul_16u_AP4IR(Kro16u* const pSrcDst[4], int srcDstStep, KroiSize roiSize);
KroStatus kroiAlphaPremulC_8u_C1R(const Kro8u* pSrc, int srcStep, Kro8u alpha, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAlphaPremulC_8u_C1IR(Kro8u alpha, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAlphaPremulC_8u_C3R(const Kro8u* pSrc, int srcStep, Kro8u alpha, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAlphaPremulC_8u_C3IR(Kro8u alpha, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAlphaPremulC_8u_C4R(const Kro8u* pSrc, int srcStep, Kro8u alpha, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAlphaPremulC_8u_C4IR(Kro8u alpha, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAlphaPremulC_8u_AC4R(const Kro8u* pSrc, int srcStep, Kro8u alpha, Kro8u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAlphaPremulC_8u_AC4IR(Kro8u alpha, Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAlphaPremulC_8u_AP4R(const Kro8u* const pSrc[4], int srcStep, Kro8u alpha, Kro8u* const pDst[4], int dstStep, KroiSize roiSize);
KroStatus kroiAlphaPremulC_8u_AP4IR(Kro8u alpha, Kro8u* const pSrcDst[4], int srcDstStep, KroiSize roiSize);
KroStatus kroiAlphaPremulC_16u_C1R(const Kro16u* pSrc, int srcStep, Kro16u alpha, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAlphaPremulC_16u_C1IR(Kro16u alpha, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAlphaPremulC_16u_C3R(const Kro16u* pSrc, int srcStep, Kro16u alpha, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAlphaPremulC_16u_C3IR(Kro16u alpha, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAlphaPremulC_16u_C4R(const Kro16u* pSrc, int srcStep, Kro16u alpha, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAlphaPremulC_16u_C4IR(Kro16u alpha, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAlphaPremulC_16u_AC4R(const Kro16u* pSrc, int srcStep, Kro16u alpha, Kro16u* pDst, int dstStep, KroiSize roiSize);
KroStatus kroiAlphaPremulC_16u_AC4IR(Kro16u alpha, Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize);
KroStatus kroiAlphaPremulC_16u_AP4R(const Kro16u* const pSrc[4], int srcStep, Kro16u alpha, Kro16u* const pDst[4], int dstStep, KroiSize roiSize);
KroStatus kroiAlphaPremulC_16u_AP4IR(Kro16u alpha, Kro16u* const pSrcDst[4], int srcDstStep, KroiSize roiSize);

/* kroiCompColorKey_<t>_<c>R(pSrc1, step1, pSrc2, step2, pDst, dstStep, roi, colorKey):
 * the second source's pixel where every channel of the first source's pixel equals the key
 * (one value for C1, an array of 3 or 4 for C3, C4), the first source's pixel elsewhere.
 *   Checks, in order: null sources, destination or key array -8; width or height < 1 -6;
 *   any step < 1 -16. */
KroStatus kroiCompColorKey_8u_C1R(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, Kro8u colorKey);
KroStatus kroiCompColorKey_8u_C3R(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, const Kro8u colorKey[3]);
KroStatus kroiCompColorKey_8u_C4R(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst, int dstStep, KroiSize roiSize, const Kro8u colorKey[4]);
KroStatus kroiCompColorKey_16u_C1R(const Kro16u* pSrc1, int src1Step, const Kro16u* pSrc2, int src2Step, Kro16u* pDst, int dstStep, KroiSize roiSize, Kro16u colorKey);
KroStatus kroiCompColorKey_16u_C3R(const Kro16u* pSrc1, int src1Step, const Kro16u* pSrc2, int src2Step, Kro16u* pDst, int dstStep, KroiSize roiSize, const Kro16u colorKey[3]);
KroStatus kroiCompColorKey_16u_C4R(const Kro16u* pSrc1, int src1Step, const Kro16u* pSrc2, int src2Step, Kro16u* pDst, int dstStep, KroiSize roiSize, const Kro16u colorKey[4]);
KroStatus kroiCompColorKey_16s_C1R(const Kro16s* pSrc1, int src1Step, const Kro16s* pSrc2, int src2Step, Kro16s* pDst, int dstStep, KroiSize roiSize, Kro16s colorKey);
KroStatus kroiCompColorKey_16s_C3R(const Kro16s* pSrc1, int src1Step, const Kro16s* pSrc2, int src2Step, Kro16s* pDst, int dstStep, KroiSize roiSize, const Kro16s colorKey[3]);
KroStatus kroiCompColorKey_16s_C4R(const Kro16s* pSrc1, int src1Step, const Kro16s* pSrc2, int src2Step, Kro16s* pDst, int dstStep, KroiSize roiSize, const Kro16s colorKey[4]);

/* end of section ALPHA */
/* section MEDIAN */
/* Median filters.  kroiFilterMedianBorder replaces each element by the lower median of its
 * maskSize neighbourhood: the element of rank (mw*mh - 1) / 2, counted from 0, among the
 * mw*mh window elements of its channel in ascending order (an even mask takes the lower of
 * the two middle elements).  The anchor is the mask centre, ax = (mw-1)>>1, ay = (mh-1)>>1:
 * output (x, y) reads source columns x-ax .. x-ax+mw-1 and rows y-ay .. y-ay+mh-1, so an even
 * mask reaches one pixel further right (down) than left (up).  Pixels outside the ROI come
 * from the border code as for kroiFilterBoxBorder (replicate, mirror or constant with the
 * in-memory flags, or 0xF0; a side the mask does not reach past counts as in memory); an
 * image not larger than the mask in both directions is first staged into the buffer with the
 * mode's border copy.  pBorderValue points at one value per channel (three for AC4).  AC4:
 * the fourth channel is neither read as data nor written.
 *
 * 32f order: numbers by value with -0 just below +0; every NaN counts as one value above
 * +infinity, and a median that falls among the NaNs is the quiet NaN 0x7FC00000.
 *
 * Method: 3x3 of 8u sorts each column of three once per row and takes the median of the
 * largest low, the median of the middles and the smallest high of the three columns; other
 * 3x3 and all 5x5 masks run a sorting network pruned to the median; other masks slide
 * along each row, 8u with a histogram whose median walks from its previous place, the wider
 * types with the window kept sorted (each entering element replaces a leaving one).  The
 * cost per pixel grows with the mask height, not with its area.
 *
 * kroiFilterMedianWeightedCenter3x3Border_8u_C1R: the 3x3 median with the centre counted
 * `weight` times: the element of rank (8 + weight - 1) / 2 among the eight neighbours and
 * weight copies of the centre (weight >= 9 always gives the centre).  Its buffer is the one
 * kroiFilterMedianBorderGetBufferSize gives for a 3 x 3 mask, 8u, one channel.
 *
 * The work buffer is the caller's, of the size kroiFilterMedianBorderGetBufferSize returns
 * for the same ROI, mask, data type (1 8u, 5 16u, 7 16s, 13 32f) and channel count (1, 3 or
 * 4; AC4 counts 4); no alignment is needed.  Two calls may run at once with buffers of their
 * own.  Source and destination must not overlap.
 * Query checks, in order: null pBufferSize -8; ROI width or height < 1: -6; mask width or
 * height < 1: kroStsBadMaskErr (-33); dataType: kroStsBadDataTypeErr (-59); numChannels:
 * kroStsBadChannelCountErr (-53); a size above 2^31-1: kroStsSizeLimitErr (-232).
 * Filter checks, in order: null pSrc, pDst or pBuffer -8; srcStep or dstStep < 1: -16; ROI
 * width or height < 1: -6; mask width or height < 1: -33 (weighted form: weight <= 0:
 * kroStsBadWeightErr (-211)); border code above 255, or not 0xF0 with a low nibble other
 * than 1, 3, 6: kroStsBadBorderErr (-225); the constant mode with a null pBorderValue: -8;
 * last, a call whose bordered rows and staged copy alone need more than 2^31 - 1 bytes: -6
 * (the query gives -232 there), before anything is read or written.  The Gaussian and
 * fixed-kernel filters below, which share this frame, end their checks the same way. */
KroStatus kroiFilterMedianBorderGetBufferSize(KroiSize roiSize, KroiSize maskSize, KroDataType dataType, int numChannels, int* pBufferSize);
KroStatus kroiFilterMedianBorder_8u_C1R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMedianBorder_8u_C3R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMedianBorder_8u_C4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMedianBorder_8u_AC4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMedianBorder_16u_C1R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro16u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMedianBorder_16u_C3R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro16u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMedianBorder_16u_C4R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro16u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMedianBorder_16u_AC4R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro16u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMedianBorder_16s_C1R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro16s* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMedianBorder_16s_C3R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro16s* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMedianBorder_16s_C4R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro16s* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMedianBorder_16s_AC4R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro16s* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMedianBorder_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro32f* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMedianBorder_32f_C3R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro32f* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMedianBorder_32f_C4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro32f* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMedianBorder_32f_AC4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, KroiBorderMode borderType, const Kro32f* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterMedianWeightedCenter3x3Border_8u_C1R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, int weight, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);

/* end of section MEDIAN */

/* section GAUSS */
/* Gaussian filter.  A separable, symmetric kernel of m = 2r+1 single-precision coefficients
 * c[0..m-1] (m odd, any size), made by kroiFilterGaussianInit into the caller's
 * specification:
 *   if sigma <= 0: sigma = ((m-1)*0.5f - 1) * 0.3f + 0.8f (single precision);
 *   g[r-k] = g[r+k] = (float)exp(-((double)k*(double)k) / (2.0 * (double)sigma * (double)sigma)), k = 1..r;
 *   total = 1.0f + g[0] + g[1] + ... (every index but r, ascending, single precision);
 *   c[i] = g[i] * (1.0f / total) for i != r; c[r] = 1.0f - (sum of those c[i], ascending);
 * so the kernel is symmetric and its coefficients, summed in that order with the centre
 * last, give exactly 1.  A NaN or infinite sigma gives kroStsBadArgumentErr (-5).
 * Every output element (channel by channel, the anchor at the centre, the border as for
 * kroiFilterBoxBorder) follows this sequence of single-precision operations, the multiply
 * and the add separate:
 *   vertical, for each of the W+m-1 columns of the widened row:
 *     t = c[r]*s(y); for k = 1..r: t = t + c[r+k] * (s(y-k) + s(y+k));
 *   horizontal: v = c[r]*t(x); for k = 1..r: v = v + c[r+k] * (t(x-k) + t(x+k));
 * with source elements converted to float exactly.  8u, 16u, 16s: v rounded to nearest with
 * ties to even (whatever the caller's rounding control), then saturated.  32f: v.
 * AC4: the fourth channel is neither read as data nor written.
 *
 * kroiFilterGaussianGetBufferSize gives the specification's and the work buffer's sizes for
 * the ROI, kernel size, data type (1 8u, 5 16u, 7 16s, 13 32f) and channel count (1, 3, 4;
 * AC4 counts 4); neither block needs alignment.  The specification is tagged for its data
 * type and channel count: a filter of another type or layout, or a block never initialised,
 * gives kroStsWrongTagErr (-13).  Once initialised it may be used by any number of calls at
 * once, each with its own work buffer.  Source and destination must not overlap.
 * Query checks, in order: null pSpecSize or pBufferSize -8; ROI width or height < 1: -6;
 * kernelSize < 1 or even: kroStsBadMaskErr (-33); dataType -59; numChannels -53; a buffer
 * above 2^31-1: -232.  Init: null pSpec -8; ROI -6; kernelSize -33; dataType -59;
 * numChannels -53; sigma not finite -5.
 * Filter checks, in order: null pSrc, pDst, pSpec or pBuffer -8; srcStep or dstStep < 1:
 * -16; ROI -6; the specification's tag, type and channels -13; border code -225 (as the box
 * filter); the constant mode with a null pBorderValue -8. */
typedef struct KroiFilterGaussianSpec KroiFilterGaussianSpec;
KroStatus kroiFilterGaussianGetBufferSize(KroiSize roiSize, int kernelSize, KroDataType dataType, int numChannels, int* pSpecSize, int* pBufferSize);
KroStatus kroiFilterGaussianInit(KroiSize roiSize, int kernelSize, Kro32f sigma, KroDataType dataType, int numChannels, KroiFilterGaussianSpec* pSpec);
KroStatus kroiFilterGaussianBorder_8u_C1R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro8u* pBorderValue, const KroiFilterGaussianSpec* pSpec, Kro8u* pBuffer);
KroStatus kroiFilterGaussianBorder_8u_C3R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro8u* pBorderValue, const KroiFilterGaussianSpec* pSpec, Kro8u* pBuffer);
KroStatus kroiFilterGaussianBorder_8u_C4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro8u* pBorderValue, const KroiFilterGaussianSpec* pSpec, Kro8u* pBuffer);
KroStatus kroiFilterGaussianBorder_8u_AC4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro8u* pBorderValue, const KroiFilterGaussianSpec* pSpec, Kro8u* pBuffer);
KroStatus kroiFilterGaussianBorder_16u_C1R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro16u* pBorderValue, const KroiFilterGaussianSpec* pSpec, Kro8u* pBuffer);
KroStatus kroiFilterGaussianBorder_16u_C3R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro16u* pBorderValue, const KroiFilterGaussianSpec* pSpec, Kro8u* pBuffer);
KroStatus kroiFilterGaussianBorder_16u_C4R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro16u* pBorderValue, const KroiFilterGaussianSpec* pSpec, Kro8u* pBuffer);
KroStatus kroiFilterGaussianBorder_16u_AC4R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro16u* pBorderValue, const KroiFilterGaussianSpec* pSpec, Kro8u* pBuffer);
KroStatus kroiFilterGaussianBorder_16s_C1R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro16s* pBorderValue, const KroiFilterGaussianSpec* pSpec, Kro8u* pBuffer);
KroStatus kroiFilterGaussianBorder_16s_C3R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro16s* pBorderValue, const KroiFilterGaussianSpec* pSpec, Kro8u* pBuffer);
KroStatus kroiFilterGaussianBorder_16s_C4R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro16s* pBorderValue, const KroiFilterGaussianSpec* pSpec, Kro8u* pBuffer);
KroStatus kroiFilterGaussianBorder_16s_AC4R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro16s* pBorderValue, const KroiFilterGaussianSpec* pSpec, Kro8u* pBuffer);
KroStatus kroiFilterGaussianBorder_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro32f* pBorderValue, const KroiFilterGaussianSpec* pSpec, Kro8u* pBuffer);
KroStatus kroiFilterGaussianBorder_32f_C3R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro32f* pBorderValue, const KroiFilterGaussianSpec* pSpec, Kro8u* pBuffer);
KroStatus kroiFilterGaussianBorder_32f_C4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro32f* pBorderValue, const KroiFilterGaussianSpec* pSpec, Kro8u* pBuffer);
KroStatus kroiFilterGaussianBorder_32f_AC4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro32f* pBorderValue, const KroiFilterGaussianSpec* pSpec, Kro8u* pBuffer);

/* end of section GAUSS */

/* section FIXED */
/* Fixed-kernel filters: small integer kernels with border synthesis, in the box filter's
 * frame.  Kernels are written row by row, top row first, y growing downwards and x to the
 * right; the anchor is ((m-1)>>1, (m-1)>>1) (the centre; (0, 0) for the 2x2 Roberts kernels),
 * and the border is built as for kroiFilterBoxBorder (modes, in-memory flags, staging of
 * images not larger than the mask).  Every result is the sum of the products of the
 * nonzero taps with the window's elements:
 *   8u and 16s sources: exact in integers, then (sharpen only) divided by 8 rounding to
 *     nearest with ties to even, then saturated to the destination (8u destinations clip
 *     negative responses to 0); 8u16s results always fit;
 *   32f: single precision, the products k*s taken row by row, left to right, zero taps
 *     skipped, the first product the start and each further one added (multiply and add
 *     separate); sharpen then multiplies by 0.125f.
 * Each filter has a buffer query (roiSize, maskSize, dataType of the source, numChannels;
 * the AC4 layout counts 4) with the box filter query's checks and order: null pBufferSize
 * -8; ROI -6; a mask size the filter does not have: kroStsBadMaskErr (-33); dataType -59;
 * numChannels -53; a buffer above 2^31-1: -232.
 * Filter checks, in order: null pSrc, pDst or pBuffer -8; srcStep or dstStep < 1: -16; ROI
 * -6; (filters with a maskSize argument) maskSize not 3 or 5: -33; border code -225 (as the
 * box filter); the constant mode with a null pBorderValue -8.  Source and destination must
 * not overlap.  AC4: the fourth channel is not written. */

/* Sobel derivatives, maskSize 3 or 5.  With the smoothing s3 = (1 2 1), s5 = (1 4 6 4 1),
 * first differences d3 = (-1 0 1), d5 = (-1 -2 0 2 1) and second differences
 * e3 = (1 -2 1), e5 = (1 0 -2 0 1), the kernel k[j][i] is:
 *   Dx  s[j]*d[i]   (3x3: -1 0 1 / -2 0 2 / -1 0 1)     Dy  d[j]*s[i]
 *   Dxx s[j]*e[i]   (3x3:  1 -2 1 / 2 -4 2 / 1 -2 1)    Dyy e[j]*s[i]
 *   Dxy d[j]*d[i]   (3x3:  1 0 -1 / 0 0 0 / -1 0 1)
 * so Dx is positive where values grow to the right and Dy where they grow downwards. */
KroStatus kroiFilterSobelBorderGetBufferSize(KroiSize roiSize, int maskSize, KroDataType dataType, int numChannels, int* pBufferSize);
KroStatus kroiFilterSobelDxBorder_8u16s_C1R(const Kro8u* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, int maskSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterSobelDxBorder_16s_C1R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, int maskSize, KroiBorderMode borderType, const Kro16s* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterSobelDxBorder_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, int maskSize, KroiBorderMode borderType, const Kro32f* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterSobelDyBorder_8u16s_C1R(const Kro8u* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, int maskSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterSobelDyBorder_16s_C1R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, int maskSize, KroiBorderMode borderType, const Kro16s* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterSobelDyBorder_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, int maskSize, KroiBorderMode borderType, const Kro32f* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterSobelDxxBorder_8u16s_C1R(const Kro8u* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, int maskSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterSobelDxxBorder_16s_C1R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, int maskSize, KroiBorderMode borderType, const Kro16s* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterSobelDxxBorder_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, int maskSize, KroiBorderMode borderType, const Kro32f* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterSobelDyyBorder_8u16s_C1R(const Kro8u* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, int maskSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterSobelDyyBorder_16s_C1R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, int maskSize, KroiBorderMode borderType, const Kro16s* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterSobelDyyBorder_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, int maskSize, KroiBorderMode borderType, const Kro32f* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterSobelDxyBorder_8u16s_C1R(const Kro8u* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, int maskSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterSobelDxyBorder_16s_C1R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, int maskSize, KroiBorderMode borderType, const Kro16s* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterSobelDxyBorder_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, int maskSize, KroiBorderMode borderType, const Kro32f* pBorderValue, Kro8u* pBuffer);

/* Scharr derivatives, 3x3: Dx -3 0 3 / -10 0 10 / -3 0 3; Dy its transpose
 * (-3 -10 -3 / 0 0 0 / 3 10 3). */
KroStatus kroiFilterScharrBorderGetBufferSize(KroiSize roiSize, int maskSize, KroDataType dataType, int numChannels, int* pBufferSize);
KroStatus kroiFilterScharrDxBorder_8u16s_C1R(const Kro8u* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterScharrDxBorder_16s_C1R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro16s* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterScharrDxBorder_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro32f* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterScharrDyBorder_8u16s_C1R(const Kro8u* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterScharrDyBorder_16s_C1R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro16s* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterScharrDyBorder_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro32f* pBorderValue, Kro8u* pBuffer);

/* Prewitt derivatives, 3x3: Dx -1 0 1 / -1 0 1 / -1 0 1; Dy -1 -1 -1 / 0 0 0 / 1 1 1. */
KroStatus kroiFilterPrewittBorderGetBufferSize(KroiSize roiSize, int maskSize, KroDataType dataType, int numChannels, int* pBufferSize);
KroStatus kroiFilterPrewittDxBorder_8u16s_C1R(const Kro8u* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterPrewittDxBorder_16s_C1R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro16s* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterPrewittDxBorder_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro32f* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterPrewittDyBorder_8u16s_C1R(const Kro8u* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterPrewittDyBorder_16s_C1R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro16s* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterPrewittDyBorder_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro32f* pBorderValue, Kro8u* pBuffer);

/* Roberts cross, 2x2 with the anchor at the top left: Down 1 0 / 0 -1 (the pixel minus its
 * lower-right neighbour); Up 0 1 / -1 0 (the right neighbour minus the lower one). */
KroStatus kroiFilterRobertsBorderGetBufferSize(KroiSize roiSize, int maskSize, KroDataType dataType, int numChannels, int* pBufferSize);
KroStatus kroiFilterRobertsDownBorder_8u16s_C1R(const Kro8u* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterRobertsDownBorder_16s_C1R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro16s* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterRobertsDownBorder_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro32f* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterRobertsUpBorder_8u16s_C1R(const Kro8u* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterRobertsUpBorder_16s_C1R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro16s* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterRobertsUpBorder_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro32f* pBorderValue, Kro8u* pBuffer);

/* Laplace, maskSize 3: 1 1 1 / 1 -8 1 / 1 1 1; maskSize 5: every tap 1 but the centre, -24.
 * Positive in dark spots among brighter neighbours; the 8u destinations clip the negative
 * responses to 0. */
KroStatus kroiFilterLaplaceBorderGetBufferSize(KroiSize roiSize, int maskSize, KroDataType dataType, int numChannels, int* pBufferSize);
KroStatus kroiFilterLaplaceBorder_8u16s_C1R(const Kro8u* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, int maskSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterLaplaceBorder_16s_C1R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, int maskSize, KroiBorderMode borderType, const Kro16s* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterLaplaceBorder_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, int maskSize, KroiBorderMode borderType, const Kro32f* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterLaplaceBorder_8u_C1R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, int maskSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterLaplaceBorder_8u_C3R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, int maskSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterLaplaceBorder_8u_C4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, int maskSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterLaplaceBorder_8u_AC4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, int maskSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);

/* High-pass, maskSize 3: -1 -1 -1 / -1 8 -1 / -1 -1 -1; maskSize 5: every tap -1 but the
 * centre, 24 (the Laplace kernels negated). */
KroStatus kroiFilterHighPassBorderGetBufferSize(KroiSize roiSize, int maskSize, KroDataType dataType, int numChannels, int* pBufferSize);
KroStatus kroiFilterHighPassBorder_8u_C1R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, int maskSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterHighPassBorder_8u_C3R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, int maskSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterHighPassBorder_8u_C4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, int maskSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterHighPassBorder_8u_AC4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, int maskSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterHighPassBorder_16s_C1R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, int maskSize, KroiBorderMode borderType, const Kro16s* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterHighPassBorder_16s_C3R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, int maskSize, KroiBorderMode borderType, const Kro16s* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterHighPassBorder_16s_C4R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, int maskSize, KroiBorderMode borderType, const Kro16s* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterHighPassBorder_16s_AC4R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, int maskSize, KroiBorderMode borderType, const Kro16s* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterHighPassBorder_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, int maskSize, KroiBorderMode borderType, const Kro32f* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterHighPassBorder_32f_C3R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, int maskSize, KroiBorderMode borderType, const Kro32f* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterHighPassBorder_32f_C4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, int maskSize, KroiBorderMode borderType, const Kro32f* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterHighPassBorder_32f_AC4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, int maskSize, KroiBorderMode borderType, const Kro32f* pBorderValue, Kro8u* pBuffer);

/* Sharpen, 3x3: (-1 -1 -1 / -1 16 -1 / -1 -1 -1) / 8, the image plus an eighth of its
 * high-pass response; integer results rounded to nearest with ties to even. */
KroStatus kroiFilterSharpenBorderGetBufferSize(KroiSize roiSize, int maskSize, KroDataType dataType, int numChannels, int* pBufferSize);
KroStatus kroiFilterSharpenBorder_8u_C1R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterSharpenBorder_8u_C3R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterSharpenBorder_8u_C4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterSharpenBorder_8u_AC4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterSharpenBorder_16s_C1R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro16s* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterSharpenBorder_16s_C3R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro16s* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterSharpenBorder_16s_C4R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro16s* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterSharpenBorder_16s_AC4R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro16s* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterSharpenBorder_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro32f* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterSharpenBorder_32f_C3R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro32f* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterSharpenBorder_32f_C4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro32f* pBorderValue, Kro8u* pBuffer);
KroStatus kroiFilterSharpenBorder_32f_AC4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, KroiBorderMode borderType, const Kro32f* pBorderValue, Kro8u* pBuffer);

/* end of section FIXED */

/* section GRADIENT */
/* Gradient vector from the Sobel pair (kroiGradientVectorSobel).  gx and gy are the Sobel Dx
 * and Dy responses of maskSize 3 or 5 (kernels, anchor, border and arithmetic as for
 * kroiFilterSobelDxBorder / DyBorder: exact integers for 8u, the single-precision sequence
 * for 32f), converted to float.  Then, in single precision:
 *   magnitude  kroGradientL1: |gx| + |gy|;  kroGradientL2: sqrt(gx*gx + gy*gy), the
 *              products and the sum rounded separately, the square root correctly rounded;
 *   angle      (float)atan2((double)gy, (double)gx) in radians, in [-pi, pi]: 0 along +x,
 *              pi/2 along +y (downwards, as rows grow); a zero gradient gives 0 (or +-pi
 *              with signed zeros of 32f derivatives, as atan2 defines).
 * Either output may be null (its step is then not checked), not both.  Sources and outputs
 * must not overlap.
 * kroiGradientVectorSobelGetBufferSize checks, in order: null pBufferSize -8; ROI -6;
 * maskSize not 3 or 5: -33; dataType not kro8u or kro32f: -59; numChannels not 1: -53; a
 * buffer above 2^31-1: -232.
 * Checks, in order: null pSrc or pBuffer, or both outputs null: -8; srcStep < 1, or the step
 * of a given output < 1: -16; ROI -6; maskSize -33; norm not kroGradientL1 or
 * kroGradientL2: kroStsBadArgumentErr (-5); border code -225 (as the box filter); the
 * constant mode with a null pBorderValue -8. */
typedef int KroiGradientNorm;
enum {
    kroGradientL1 = 1, /* |gx| + |gy| */
    kroGradientL2 = 2  /* sqrt(gx^2 + gy^2) */
};
KroStatus kroiGradientVectorSobelGetBufferSize(KroiSize roiSize, int maskSize, KroDataType dataType, int numChannels, int* pBufferSize);
KroStatus kroiGradientVectorSobel_8u32f_C1R(const Kro8u* pSrc, int srcStep, Kro32f* pMagnitude, int magnitudeStep, Kro32f* pAngle, int angleStep, KroiSize roiSize, int maskSize, KroiGradientNorm norm, KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer);
KroStatus kroiGradientVectorSobel_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f* pMagnitude, int magnitudeStep, Kro32f* pAngle, int angleStep, KroiSize roiSize, int maskSize, KroiGradientNorm norm, KroiBorderMode borderType, const Kro32f* pBorderValue, Kro8u* pBuffer);

/* end of section GRADIENT */
/* section THRESHOLD */
/* =======================================================================================
 * Thresholds
 *
 * Fixed thresholds, per channel, with threshold T and value V of the element's channel (one
 * value by value for C1, arrays of three for C3 and AC4, of four for C4):
 *   kroiThreshold_LT, and kroiThreshold with kroCompareLess (0):    dst = src < T ? T : src
 *   kroiThreshold_GT, and kroiThreshold with kroCompareGreater (4): dst = src > T ? T : src
 *   kroiThreshold_LTVal, and kroiThreshold_Val with 0:              dst = src < T ? V : src
 *   kroiThreshold_GTVal, and kroiThreshold_Val with 4:              dst = src > T ? V : src
 *   kroiThreshold_LTValGTVal: dst = src < lower T ? lower V : src > upper T ? upper V : src
 * Comparisons are strict: an element equal to its threshold is kept.  32f compares as IEEE
 * does: a NaN element or a NaN threshold compares false, so the element is kept; -0 and +0
 * are equal.  AC4 forms never read the fourth element of the parameters nor write the fourth
 * channel of the destination.  IR forms work in place.  Results never depend on the cache
 * size or on the rows being contiguous.
 *
 * Checks, in order; the first failure returns and nothing is written:
 *   kroiThreshold:       any pointer (image or parameter array) null -8; width or height
 *                        below 1 -6; a step below 1 -16; operation neither 0 nor 4 -14.
 *   kroiThreshold_Val:   operation neither 0 nor 4 -14 (before any pointer, on purpose);
 *                        then pointers -8, size -6, steps -16.
 *   _LT, _GT, _LTVal, _GTVal: pointers -8, size -6, steps -16.
 *   _LTValGTVal:         pointers -8, size -6, steps -16, then an upper threshold below its
 *                        lower one in some channel kroStsThresholdOrderErr (-19); equal
 *                        thresholds are accepted.
 * ======================================================================================= */
KroStatus kroiThreshold_8u_C1R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, Kro8u threshold, KroCompareOp op);
KroStatus kroiThreshold_8u_C1IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, Kro8u threshold, KroCompareOp op);
KroStatus kroiThreshold_8u_C3R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, const Kro8u threshold[3], KroCompareOp op);
KroStatus kroiThreshold_8u_C3IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro8u threshold[3], KroCompareOp op);
KroStatus kroiThreshold_8u_AC4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, const Kro8u threshold[3], KroCompareOp op);
KroStatus kroiThreshold_8u_AC4IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro8u threshold[3], KroCompareOp op);
KroStatus kroiThreshold_16u_C1R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, Kro16u threshold, KroCompareOp op);
KroStatus kroiThreshold_16u_C1IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, Kro16u threshold, KroCompareOp op);
KroStatus kroiThreshold_16u_C3R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, const Kro16u threshold[3], KroCompareOp op);
KroStatus kroiThreshold_16u_C3IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro16u threshold[3], KroCompareOp op);
KroStatus kroiThreshold_16u_AC4R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, const Kro16u threshold[3], KroCompareOp op);
KroStatus kroiThreshold_16u_AC4IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro16u threshold[3], KroCompareOp op);
KroStatus kroiThreshold_16s_C1R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, Kro16s threshold, KroCompareOp op);
KroStatus kroiThreshold_16s_C1IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, Kro16s threshold, KroCompareOp op);
KroStatus kroiThreshold_16s_C3R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, const Kro16s threshold[3], KroCompareOp op);
KroStatus kroiThreshold_16s_C3IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro16s threshold[3], KroCompareOp op);
KroStatus kroiThreshold_16s_AC4R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, const Kro16s threshold[3], KroCompareOp op);
KroStatus kroiThreshold_16s_AC4IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro16s threshold[3], KroCompareOp op);
KroStatus kroiThreshold_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, Kro32f threshold, KroCompareOp op);
KroStatus kroiThreshold_32f_C1IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize, Kro32f threshold, KroCompareOp op);
KroStatus kroiThreshold_32f_C3R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, const Kro32f threshold[3], KroCompareOp op);
KroStatus kroiThreshold_32f_C3IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro32f threshold[3], KroCompareOp op);
KroStatus kroiThreshold_32f_AC4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, const Kro32f threshold[3], KroCompareOp op);
KroStatus kroiThreshold_32f_AC4IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro32f threshold[3], KroCompareOp op);
KroStatus kroiThreshold_LT_8u_C1R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, Kro8u threshold);
KroStatus kroiThreshold_LT_8u_C1IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, Kro8u threshold);
KroStatus kroiThreshold_LT_8u_C3R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, const Kro8u threshold[3]);
KroStatus kroiThreshold_LT_8u_C3IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro8u threshold[3]);
KroStatus kroiThreshold_LT_8u_AC4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, const Kro8u threshold[3]);
KroStatus kroiThreshold_LT_8u_AC4IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro8u threshold[3]);
KroStatus kroiThreshold_LT_16u_C1R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, Kro16u threshold);
KroStatus kroiThreshold_LT_16u_C1IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, Kro16u threshold);
KroStatus kroiThreshold_LT_16u_C3R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, const Kro16u threshold[3]);
KroStatus kroiThreshold_LT_16u_C3IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro16u threshold[3]);
KroStatus kroiThreshold_LT_16u_AC4R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, const Kro16u threshold[3]);
KroStatus kroiThreshold_LT_16u_AC4IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro16u threshold[3]);
KroStatus kroiThreshold_LT_16s_C1R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, Kro16s threshold);
KroStatus kroiThreshold_LT_16s_C1IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, Kro16s threshold);
KroStatus kroiThreshold_LT_16s_C3R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, const Kro16s threshold[3]);
KroStatus kroiThreshold_LT_16s_C3IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro16s threshold[3]);
KroStatus kroiThreshold_LT_16s_AC4R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, const Kro16s threshold[3]);
KroStatus kroiThreshold_LT_16s_AC4IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro16s threshold[3]);
KroStatus kroiThreshold_LT_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, Kro32f threshold);
KroStatus kroiThreshold_LT_32f_C1IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize, Kro32f threshold);
KroStatus kroiThreshold_LT_32f_C3R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, const Kro32f threshold[3]);
KroStatus kroiThreshold_LT_32f_C3IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro32f threshold[3]);
KroStatus kroiThreshold_LT_32f_AC4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, const Kro32f threshold[3]);
KroStatus kroiThreshold_LT_32f_AC4IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro32f threshold[3]);
KroStatus kroiThreshold_GT_8u_C1R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, Kro8u threshold);
KroStatus kroiThreshold_GT_8u_C1IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, Kro8u threshold);
KroStatus kroiThreshold_GT_8u_C3R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, const Kro8u threshold[3]);
KroStatus kroiThreshold_GT_8u_C3IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro8u threshold[3]);
KroStatus kroiThreshold_GT_8u_AC4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, const Kro8u threshold[3]);
KroStatus kroiThreshold_GT_8u_AC4IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro8u threshold[3]);
KroStatus kroiThreshold_GT_16u_C1R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, Kro16u threshold);
KroStatus kroiThreshold_GT_16u_C1IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, Kro16u threshold);
KroStatus kroiThreshold_GT_16u_C3R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, const Kro16u threshold[3]);
KroStatus kroiThreshold_GT_16u_C3IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro16u threshold[3]);
KroStatus kroiThreshold_GT_16u_AC4R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, const Kro16u threshold[3]);
KroStatus kroiThreshold_GT_16u_AC4IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro16u threshold[3]);
KroStatus kroiThreshold_GT_16s_C1R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, Kro16s threshold);
KroStatus kroiThreshold_GT_16s_C1IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, Kro16s threshold);
KroStatus kroiThreshold_GT_16s_C3R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, const Kro16s threshold[3]);
KroStatus kroiThreshold_GT_16s_C3IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro16s threshold[3]);
KroStatus kroiThreshold_GT_16s_AC4R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, const Kro16s threshold[3]);
KroStatus kroiThreshold_GT_16s_AC4IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro16s threshold[3]);
KroStatus kroiThreshold_GT_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, Kro32f threshold);
KroStatus kroiThreshold_GT_32f_C1IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize, Kro32f threshold);
KroStatus kroiThreshold_GT_32f_C3R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, const Kro32f threshold[3]);
KroStatus kroiThreshold_GT_32f_C3IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro32f threshold[3]);
KroStatus kroiThreshold_GT_32f_AC4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, const Kro32f threshold[3]);
KroStatus kroiThreshold_GT_32f_AC4IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro32f threshold[3]);
KroStatus kroiThreshold_Val_8u_C1R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, Kro8u threshold, Kro8u value, KroCompareOp op);
KroStatus kroiThreshold_Val_8u_C1IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, Kro8u threshold, Kro8u value, KroCompareOp op);
KroStatus kroiThreshold_Val_8u_C3R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, const Kro8u threshold[3], const Kro8u value[3], KroCompareOp op);
KroStatus kroiThreshold_Val_8u_C3IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro8u threshold[3], const Kro8u value[3], KroCompareOp op);
KroStatus kroiThreshold_Val_8u_AC4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, const Kro8u threshold[3], const Kro8u value[3], KroCompareOp op);
KroStatus kroiThreshold_Val_8u_AC4IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro8u threshold[3], const Kro8u value[3], KroCompareOp op);
KroStatus kroiThreshold_Val_16u_C1R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, Kro16u threshold, Kro16u value, KroCompareOp op);
KroStatus kroiThreshold_Val_16u_C1IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, Kro16u threshold, Kro16u value, KroCompareOp op);
KroStatus kroiThreshold_Val_16u_C3R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, const Kro16u threshold[3], const Kro16u value[3], KroCompareOp op);
KroStatus kroiThreshold_Val_16u_C3IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro16u threshold[3], const Kro16u value[3], KroCompareOp op);
KroStatus kroiThreshold_Val_16u_AC4R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, const Kro16u threshold[3], const Kro16u value[3], KroCompareOp op);
KroStatus kroiThreshold_Val_16u_AC4IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro16u threshold[3], const Kro16u value[3], KroCompareOp op);
KroStatus kroiThreshold_Val_16s_C1R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, Kro16s threshold, Kro16s value, KroCompareOp op);
KroStatus kroiThreshold_Val_16s_C1IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, Kro16s threshold, Kro16s value, KroCompareOp op);
KroStatus kroiThreshold_Val_16s_C3R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, const Kro16s threshold[3], const Kro16s value[3], KroCompareOp op);
KroStatus kroiThreshold_Val_16s_C3IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro16s threshold[3], const Kro16s value[3], KroCompareOp op);
KroStatus kroiThreshold_Val_16s_AC4R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, const Kro16s threshold[3], const Kro16s value[3], KroCompareOp op);
KroStatus kroiThreshold_Val_16s_AC4IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro16s threshold[3], const Kro16s value[3], KroCompareOp op);
KroStatus kroiThreshold_Val_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, Kro32f threshold, Kro32f value, KroCompareOp op);
KroStatus kroiThreshold_Val_32f_C1IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize, Kro32f threshold, Kro32f value, KroCompareOp op);
KroStatus kroiThreshold_Val_32f_C3R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, const Kro32f threshold[3], const Kro32f value[3], KroCompareOp op);
KroStatus kroiThreshold_Val_32f_C3IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro32f threshold[3], const Kro32f value[3], KroCompareOp op);
KroStatus kroiThreshold_Val_32f_AC4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, const Kro32f threshold[3], const Kro32f value[3], KroCompareOp op);
KroStatus kroiThreshold_Val_32f_AC4IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro32f threshold[3], const Kro32f value[3], KroCompareOp op);
KroStatus kroiThreshold_LTVal_8u_C1R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, Kro8u threshold, Kro8u value);
KroStatus kroiThreshold_LTVal_8u_C1IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, Kro8u threshold, Kro8u value);
KroStatus kroiThreshold_LTVal_8u_C3R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, const Kro8u threshold[3], const Kro8u value[3]);
KroStatus kroiThreshold_LTVal_8u_C3IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro8u threshold[3], const Kro8u value[3]);
KroStatus kroiThreshold_LTVal_8u_C4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, const Kro8u threshold[4], const Kro8u value[4]);
KroStatus kroiThreshold_LTVal_8u_C4IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro8u threshold[4], const Kro8u value[4]);
KroStatus kroiThreshold_LTVal_8u_AC4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, const Kro8u threshold[3], const Kro8u value[3]);
KroStatus kroiThreshold_LTVal_8u_AC4IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro8u threshold[3], const Kro8u value[3]);
KroStatus kroiThreshold_LTVal_16u_C1R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, Kro16u threshold, Kro16u value);
KroStatus kroiThreshold_LTVal_16u_C1IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, Kro16u threshold, Kro16u value);
KroStatus kroiThreshold_LTVal_16u_C3R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, const Kro16u threshold[3], const Kro16u value[3]);
KroStatus kroiThreshold_LTVal_16u_C3IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro16u threshold[3], const Kro16u value[3]);
KroStatus kroiThreshold_LTVal_16u_C4R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, const Kro16u threshold[4], const Kro16u value[4]);
KroStatus kroiThreshold_LTVal_16u_C4IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro16u threshold[4], const Kro16u value[4]);
KroStatus kroiThreshold_LTVal_16u_AC4R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, const Kro16u threshold[3], const Kro16u value[3]);
KroStatus kroiThreshold_LTVal_16u_AC4IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro16u threshold[3], const Kro16u value[3]);
KroStatus kroiThreshold_LTVal_16s_C1R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, Kro16s threshold, Kro16s value);
KroStatus kroiThreshold_LTVal_16s_C1IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, Kro16s threshold, Kro16s value);
KroStatus kroiThreshold_LTVal_16s_C3R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, const Kro16s threshold[3], const Kro16s value[3]);
KroStatus kroiThreshold_LTVal_16s_C3IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro16s threshold[3], const Kro16s value[3]);
KroStatus kroiThreshold_LTVal_16s_C4R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, const Kro16s threshold[4], const Kro16s value[4]);
KroStatus kroiThreshold_LTVal_16s_C4IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro16s threshold[4], const Kro16s value[4]);
KroStatus kroiThreshold_LTVal_16s_AC4R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, const Kro16s threshold[3], const Kro16s value[3]);
KroStatus kroiThreshold_LTVal_16s_AC4IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro16s threshold[3], const Kro16s value[3]);
KroStatus kroiThreshold_LTVal_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, Kro32f threshold, Kro32f value);
KroStatus kroiThreshold_LTVal_32f_C1IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize, Kro32f threshold, Kro32f value);
KroStatus kroiThreshold_LTVal_32f_C3R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, const Kro32f threshold[3], const Kro32f value[3]);
KroStatus kroiThreshold_LTVal_32f_C3IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro32f threshold[3], const Kro32f value[3]);
KroStatus kroiThreshold_LTVal_32f_C4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, const Kro32f threshold[4], const Kro32f value[4]);
KroStatus kroiThreshold_LTVal_32f_C4IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro32f threshold[4], const Kro32f value[4]);
KroStatus kroiThreshold_LTVal_32f_AC4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, const Kro32f threshold[3], const Kro32f value[3]);
KroStatus kroiThreshold_LTVal_32f_AC4IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro32f threshold[3], const Kro32f value[3]);
KroStatus kroiThreshold_GTVal_8u_C1R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, Kro8u threshold, Kro8u value);
KroStatus kroiThreshold_GTVal_8u_C1IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, Kro8u threshold, Kro8u value);
KroStatus kroiThreshold_GTVal_8u_C3R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, const Kro8u threshold[3], const Kro8u value[3]);
KroStatus kroiThreshold_GTVal_8u_C3IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro8u threshold[3], const Kro8u value[3]);
KroStatus kroiThreshold_GTVal_8u_C4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, const Kro8u threshold[4], const Kro8u value[4]);
KroStatus kroiThreshold_GTVal_8u_C4IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro8u threshold[4], const Kro8u value[4]);
KroStatus kroiThreshold_GTVal_8u_AC4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, const Kro8u threshold[3], const Kro8u value[3]);
KroStatus kroiThreshold_GTVal_8u_AC4IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro8u threshold[3], const Kro8u value[3]);
KroStatus kroiThreshold_GTVal_16u_C1R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, Kro16u threshold, Kro16u value);
KroStatus kroiThreshold_GTVal_16u_C1IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, Kro16u threshold, Kro16u value);
KroStatus kroiThreshold_GTVal_16u_C3R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, const Kro16u threshold[3], const Kro16u value[3]);
KroStatus kroiThreshold_GTVal_16u_C3IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro16u threshold[3], const Kro16u value[3]);
KroStatus kroiThreshold_GTVal_16u_C4R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, const Kro16u threshold[4], const Kro16u value[4]);
KroStatus kroiThreshold_GTVal_16u_C4IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro16u threshold[4], const Kro16u value[4]);
KroStatus kroiThreshold_GTVal_16u_AC4R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, const Kro16u threshold[3], const Kro16u value[3]);
KroStatus kroiThreshold_GTVal_16u_AC4IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro16u threshold[3], const Kro16u value[3]);
KroStatus kroiThreshold_GTVal_16s_C1R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, Kro16s threshold, Kro16s value);
KroStatus kroiThreshold_GTVal_16s_C1IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, Kro16s threshold, Kro16s value);
KroStatus kroiThreshold_GTVal_16s_C3R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, const Kro16s threshold[3], const Kro16s value[3]);
KroStatus kroiThreshold_GTVal_16s_C3IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro16s threshold[3], const Kro16s value[3]);
KroStatus kroiThreshold_GTVal_16s_C4R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, const Kro16s threshold[4], const Kro16s value[4]);
KroStatus kroiThreshold_GTVal_16s_C4IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro16s threshold[4], const Kro16s value[4]);
KroStatus kroiThreshold_GTVal_16s_AC4R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, const Kro16s threshold[3], const Kro16s value[3]);
KroStatus kroiThreshold_GTVal_16s_AC4IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro16s threshold[3], const Kro16s value[3]);
KroStatus kroiThreshold_GTVal_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, Kro32f threshold, Kro32f value);
KroStatus kroiThreshold_GTVal_32f_C1IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize, Kro32f threshold, Kro32f value);
KroStatus kroiThreshold_GTVal_32f_C3R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, const Kro32f threshold[3], const Kro32f value[3]);
KroStatus kroiThreshold_GTVal_32f_C3IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro32f threshold[3], const Kro32f value[3]);
KroStatus kroiThreshold_GTVal_32f_C4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, const Kro32f threshold[4], const Kro32f value[4]);
KroStatus kroiThreshold_GTVal_32f_C4IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro32f threshold[4], const Kro32f value[4]);
KroStatus kroiThreshold_GTVal_32f_AC4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, const Kro32f threshold[3], const Kro32f value[3]);
KroStatus kroiThreshold_GTVal_32f_AC4IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro32f threshold[3], const Kro32f value[3]);
KroStatus kroiThreshold_LTValGTVal_8u_C1R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, Kro8u thresholdLT, Kro8u valueLT, Kro8u thresholdGT, Kro8u valueGT);
KroStatus kroiThreshold_LTValGTVal_8u_C1IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, Kro8u thresholdLT, Kro8u valueLT, Kro8u thresholdGT, Kro8u valueGT);
KroStatus kroiThreshold_LTValGTVal_8u_C3R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, const Kro8u thresholdLT[3], const Kro8u valueLT[3], const Kro8u thresholdGT[3], const Kro8u valueGT[3]);
KroStatus kroiThreshold_LTValGTVal_8u_C3IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro8u thresholdLT[3], const Kro8u valueLT[3], const Kro8u thresholdGT[3], const Kro8u valueGT[3]);
KroStatus kroiThreshold_LTValGTVal_8u_AC4R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, const Kro8u thresholdLT[3], const Kro8u valueLT[3], const Kro8u thresholdGT[3], const Kro8u valueGT[3]);
KroStatus kroiThreshold_LTValGTVal_8u_AC4IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro8u thresholdLT[3], const Kro8u valueLT[3], const Kro8u thresholdGT[3], const Kro8u valueGT[3]);
KroStatus kroiThreshold_LTValGTVal_16u_C1R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, Kro16u thresholdLT, Kro16u valueLT, Kro16u thresholdGT, Kro16u valueGT);
KroStatus kroiThreshold_LTValGTVal_16u_C1IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, Kro16u thresholdLT, Kro16u valueLT, Kro16u thresholdGT, Kro16u valueGT);
KroStatus kroiThreshold_LTValGTVal_16u_C3R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, const Kro16u thresholdLT[3], const Kro16u valueLT[3], const Kro16u thresholdGT[3], const Kro16u valueGT[3]);
KroStatus kroiThreshold_LTValGTVal_16u_C3IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro16u thresholdLT[3], const Kro16u valueLT[3], const Kro16u thresholdGT[3], const Kro16u valueGT[3]);
KroStatus kroiThreshold_LTValGTVal_16u_AC4R(const Kro16u* pSrc, int srcStep, Kro16u* pDst, int dstStep, KroiSize roiSize, const Kro16u thresholdLT[3], const Kro16u valueLT[3], const Kro16u thresholdGT[3], const Kro16u valueGT[3]);
KroStatus kroiThreshold_LTValGTVal_16u_AC4IR(Kro16u* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro16u thresholdLT[3], const Kro16u valueLT[3], const Kro16u thresholdGT[3], const Kro16u valueGT[3]);
KroStatus kroiThreshold_LTValGTVal_16s_C1R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, Kro16s thresholdLT, Kro16s valueLT, Kro16s thresholdGT, Kro16s valueGT);
KroStatus kroiThreshold_LTValGTVal_16s_C1IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, Kro16s thresholdLT, Kro16s valueLT, Kro16s thresholdGT, Kro16s valueGT);
KroStatus kroiThreshold_LTValGTVal_16s_C3R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, const Kro16s thresholdLT[3], const Kro16s valueLT[3], const Kro16s thresholdGT[3], const Kro16s valueGT[3]);
KroStatus kroiThreshold_LTValGTVal_16s_C3IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro16s thresholdLT[3], const Kro16s valueLT[3], const Kro16s thresholdGT[3], const Kro16s valueGT[3]);
KroStatus kroiThreshold_LTValGTVal_16s_AC4R(const Kro16s* pSrc, int srcStep, Kro16s* pDst, int dstStep, KroiSize roiSize, const Kro16s thresholdLT[3], const Kro16s valueLT[3], const Kro16s thresholdGT[3], const Kro16s valueGT[3]);
KroStatus kroiThreshold_LTValGTVal_16s_AC4IR(Kro16s* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro16s thresholdLT[3], const Kro16s valueLT[3], const Kro16s thresholdGT[3], const Kro16s valueGT[3]);
KroStatus kroiThreshold_LTValGTVal_32f_C1R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, Kro32f thresholdLT, Kro32f valueLT, Kro32f thresholdGT, Kro32f valueGT);
KroStatus kroiThreshold_LTValGTVal_32f_C1IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize, Kro32f thresholdLT, Kro32f valueLT, Kro32f thresholdGT, Kro32f valueGT);
KroStatus kroiThreshold_LTValGTVal_32f_C3R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, const Kro32f thresholdLT[3], const Kro32f valueLT[3], const Kro32f thresholdGT[3], const Kro32f valueGT[3]);
KroStatus kroiThreshold_LTValGTVal_32f_C3IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro32f thresholdLT[3], const Kro32f valueLT[3], const Kro32f thresholdGT[3], const Kro32f valueGT[3]);
KroStatus kroiThreshold_LTValGTVal_32f_AC4R(const Kro32f* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, const Kro32f thresholdLT[3], const Kro32f valueLT[3], const Kro32f thresholdGT[3], const Kro32f valueGT[3]);
KroStatus kroiThreshold_LTValGTVal_32f_AC4IR(Kro32f* pSrcDst, int srcDstStep, KroiSize roiSize, const Kro32f thresholdLT[3], const Kro32f valueLT[3], const Kro32f thresholdGT[3], const Kro32f valueGT[3]);

/* kroiComputeThreshold_Otsu_8u_C1R: the threshold that maximises the between-class variance
 * of the region's histogram, in double precision.  With h[i] the counts, N their sum,
 * inv = 1/N, mT = inv * sum((i + 0.5) h[i]) (bin centres at i + 0.5), and for i = 0..255 in
 * order p = inv h[i], w0 += p, w1 = 1 - w0: a bin is admitted only when
 * min(w0, w1) >= 2^-23 and max(w0, w1) <= 1 - 2^-23; an admitted bin adds p (i + 0.5) to m
 * and scores s = (w1 m - (mT - m) w0)^2 / (w1 w0).  The result is the first bin with the
 * largest score (a strict improvement moves it), 0 when no bin is admitted (a constant
 * image).  Checks: pSrc or pThreshold null -8; width or height below 1 -6; srcStep below the
 * width -16. */
KroStatus kroiComputeThreshold_Otsu_8u_C1R(const Kro8u* pSrc, int srcStep, KroiSize roiSize, Kro8u* pThreshold);

/* Adaptive thresholds of 8u C1 images: dst = valGT where src > (local mean - delta), valLE
 * otherwise.  The local mean is over the square mask centred on the pixel (box), or weighted
 * by the separable Gaussian coefficients of a specification (Gauss); pixels outside the
 * region come from the border: kroBorderReplicate or kroBorderConstant (borderValue), each
 * with any in-memory flags, or kroBorderInMem (0xF0) exactly; the mirror is refused.
 *   Box: with A = mask area and S the integer window sum, valGT where
 *     A * src > S - ceil(A * delta), the product A * delta in single precision (truncated
 *     toward zero, plus 1 when positive and not whole); exact for every mask.
 *   Gauss: the weighted mean in single precision, a vertical pass (k = -r..r in order) then a
 *     horizontal one over the vertical results, compared as float(src) > mean - delta.
 *   delta > 255 gives valGT everywhere, delta <= -255 or NaN valLE everywhere, without
 *   reading the source.
 * The R forms with pSrc == pDst and equal steps are the IR forms (their checks and result).
 * IR forms keep the rows still needed in the work buffer.  Steps are not checked (negative
 * steps walk bottom-up images).
 * Checks of the box: pointers (pSrc, pDst, pBuffer) -8; width or height < 1 -6; mask not
 * square, below 1 or even kroStsBadMaskErr (-33); border code above 255, or (unless 0xF0)
 * a low nibble other than 1 or 6, kroStsBadBorderErr (-225).  The Gauss form: pointers
 * (pSrc, pDst, pSpec, pBuffer) -8; size -6; border -225; then a block that is not a
 * specification made by kroiThresholdAdaptiveGaussInit kroStsWrongTagErr (-13).  Its mask
 * size is the specification's.
 * kroiThresholdAdaptiveBoxGetBufferSize: pBufferSize null -8; size -6; mask -33; dataType not
 * kro8u -59; numChannels not 1 -53.  With m the mask width, r = m / 2, products modulo 2^32,
 * and R32(x) = x rounded down to a multiple of 32:
 *   base = R32(R32(w + m + 30) m + R32(4w + 31) (m + 1) + 8m + 31);
 *   m <= w and m <= h: (ceil(r w / 32) + ceil(r h / 32)) 64 + R32((max(w, h) + 2r) 3r + 31) + base;
 *   otherwise:         R32((m + w - 1)(m + h - 1) + 31) + base.
 * kroiThresholdAdaptiveGaussGetBufferSize: pSpecSize null -8, then as the box query; the
 * specification size is 4m + 40.
 * kroiThresholdAdaptiveGaussInit: pSpec null -8; size -6; mask -33; type -59; channels -53.
 * sigma <= 0 becomes ((m - 1) * 0.5 - 1) * 0.3 + 0.8; coefficient k (-r..r) is
 * exp(-k^2 / (2 sigma^2)), all in single precision, then each is multiplied by 1 / (their sum).
 * The block may be unaligned: its first byte holds the offset (1 to 8) to the structure at
 * the next 8-byte boundary: tag 0x4B61738E, two words 1, the mask width, sigma, a pointer
 * to the coefficients, then the coefficients.  A copied block keeps pointing at the
 * original's coefficients. */
typedef struct KroiThresholdAdaptiveGaussSpec KroiThresholdAdaptiveGaussSpec;
KroStatus kroiThresholdAdaptiveBox_8u_C1R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroiSize maskSize, Kro32f delta, Kro8u valGT, Kro8u valLE, KroiBorderMode borderType, Kro8u borderValue, Kro8u* pBuffer);
KroStatus kroiThresholdAdaptiveBox_8u_C1IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, KroiSize maskSize, Kro32f delta, Kro8u valGT, Kro8u valLE, KroiBorderMode borderType, Kro8u borderValue, Kro8u* pBuffer);
KroStatus kroiThresholdAdaptiveBoxGetBufferSize(KroiSize roiSize, KroiSize maskSize, KroDataType dataType, int numChannels, int* pBufferSize);
KroStatus kroiThresholdAdaptiveGaussGetBufferSize(KroiSize roiSize, KroiSize maskSize, KroDataType dataType, int numChannels, int* pSpecSize, int* pBufferSize);
KroStatus kroiThresholdAdaptiveGaussInit(KroiSize roiSize, KroiSize maskSize, KroDataType dataType, int numChannels, KroiThresholdAdaptiveGaussSpec* pSpec, Kro32f sigma);
KroStatus kroiThresholdAdaptiveGauss_8u_C1R(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, Kro32f delta, Kro8u valGT, Kro8u valLE, KroiBorderMode borderType, Kro8u borderValue, const KroiThresholdAdaptiveGaussSpec* pSpec, Kro8u* pBuffer);
KroStatus kroiThresholdAdaptiveGauss_8u_C1IR(Kro8u* pSrcDst, int srcDstStep, KroiSize roiSize, Kro32f delta, Kro8u valGT, Kro8u valLE, KroiBorderMode borderType, Kro8u borderValue, const KroiThresholdAdaptiveGaussSpec* pSpec, Kro8u* pBuffer);

/* end of section THRESHOLD */

#ifdef __cplusplus
}
#endif

#endif /* KROI_H */
