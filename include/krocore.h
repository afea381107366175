/*
 * krocore.h -- kroIP core services, libkrocore.so.10.
 *
 * Aligned allocation, the size of the processor's largest cache and the processor's feature
 * bits.  The image library (kroi.h) takes all its memory and processor facts from here.
 */
#ifndef KROCORE_H
#define KROCORE_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Result of every kroIP function that reports one: 0 success, negative error, positive
 * warning.  The full table of codes is in kroi.h. */
#ifndef KRO_STATUS_DEFINED
#define KRO_STATUS_DEFINED
typedef int32_t KroStatus;
#endif

/* kroMalloc / kroMalloc_L: a block of `length` bytes whose start is aligned to 64 bytes, or
 * null when length < 1 or the memory cannot be had.  Release it with kroFree. */
void* kroMalloc(int length);
void* kroMalloc_L(int64_t length);

/* kroFree: releases a block from kroMalloc or kroMalloc_L; null is ignored. */
void kroFree(void* ptr);

/* kroGetMaxCacheSizeB: the size in bytes of the processor's largest cache, read from the
 * processor itself (CPUID deterministic cache parameters).
 *   0   *pSizeByte holds the size
 *   -8  pSizeByte is null (kroStsNullPointerErr)
 *   -14 the processor does not describe its caches (kroStsUnsupportedModeErr); *pSizeByte = 0 */
KroStatus kroGetMaxCacheSizeB(int* pSizeByte);

/* Processor feature bits returned by ownGetFeature.  A bit is set only when the processor
 * has the feature and, for the AVX family, the operating system saves its registers. */
#define kroCpuSSE2    ((uint64_t)1 << 0)
#define kroCpuSSE3    ((uint64_t)1 << 1)
#define kroCpuSSSE3   ((uint64_t)1 << 2)
#define kroCpuSSE41   ((uint64_t)1 << 3)
#define kroCpuSSE42   ((uint64_t)1 << 4)
#define kroCpuPOPCNT  ((uint64_t)1 << 5)
#define kroCpuAVX     ((uint64_t)1 << 6)
#define kroCpuAVX2    ((uint64_t)1 << 7)
#define kroCpuFMA     ((uint64_t)1 << 8)
#define kroCpuAVX512F ((uint64_t)1 << 9)
#define kroCpuAVX512BW ((uint64_t)1 << 10)

/* ownGetFeature: the feature bits of the processor this process runs on (kroCpu... above).
 * The bits are read once when the core library is loaded; the call is a plain load. */
uint64_t ownGetFeature(void);

#ifdef __cplusplus
}
#endif

#endif /* KROCORE_H */
