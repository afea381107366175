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

/* end of section COPYSET */

/* =======================================================================================
 * Two-image arithmetic
 * ======================================================================================= */
/* section ARITH */

/* end of section ARITH */

/* =======================================================================================
 * Arithmetic with constants, logic and shifts
 * ======================================================================================= */
/* section ARITHC */

/* end of section ARITHC */

/* =======================================================================================
 * Convert and Scale
 * ======================================================================================= */
/* section CONVERT */

/* end of section CONVERT */

/* =======================================================================================
 * Channel swap, transpose, mirror, duplication
 * ======================================================================================= */
/* section LAYOUT */

/* end of section LAYOUT */

/* =======================================================================================
 * Comparison
 * ======================================================================================= */
/* section COMPARE */

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
 * in the first order.  kroiSumWindow_32f with pSrc == pDst sums in place safely. */
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
 * side, a null pBorderValue: -8.  Steps are not checked; they are used as given. */
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

#ifdef __cplusplus
}
#endif

#endif /* KROI_H */
