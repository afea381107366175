/*
 * libkrocore.so.10: allocation, cache size and processor features for the kroIP libraries.
 *
 * The processor facts are read once, when the library is loaded, and never change
 * afterwards: a hypervisor traps CPUID, and the image library asks for the feature bits
 * on every call that has an SSE4.1 kernel, so the answer must cost no more than a load.
 */
#define _GNU_SOURCE
#include "krocore.h"

#include <cpuid.h>
#include <stddef.h>
#include <stdlib.h>

#define KRO_CORE_API __attribute__((visibility("default")))

enum { kAlignment = 64 }; /* one cache line: rows of kroiMalloc images start on it */

static uint64_t g_features;
static int g_maxCache;

static uint64_t xcr0(void)
{
    uint32_t lo, hi;
    __asm__ volatile("xgetbv" : "=a"(lo), "=d"(hi) : "c"(0));
    return ((uint64_t)hi << 32) | lo;
}

static uint64_t detect_features(void)
{
    unsigned a, b, c, d;
    uint64_t f = 0;
    unsigned maxLeaf = __get_cpuid_max(0, 0);
    if (maxLeaf < 1) return 0;
    __cpuid(1, a, b, c, d);
    if (d & (1u << 26)) f |= kroCpuSSE2;
    if (c & (1u << 0)) f |= kroCpuSSE3;
    if (c & (1u << 9)) f |= kroCpuSSSE3;
    if (c & (1u << 19)) f |= kroCpuSSE41;
    if (c & (1u << 20)) f |= kroCpuSSE42;
    if (c & (1u << 23)) f |= kroCpuPOPCNT;
    /* AVX registers are usable only when the OS saves them (OSXSAVE and XCR0). */
    int osAvx = 0, osAvx512 = 0;
    if (c & (1u << 27)) {
        uint64_t x = xcr0();
        osAvx = (x & 0x6) == 0x6;
        osAvx512 = osAvx && (x & 0xE0) == 0xE0;
    }
    if (osAvx && (c & (1u << 28))) f |= kroCpuAVX;
    if (osAvx && (c & (1u << 12))) f |= kroCpuFMA;
    if (maxLeaf >= 7) {
        __cpuid_count(7, 0, a, b, c, d);
        if (osAvx && (b & (1u << 5))) f |= kroCpuAVX2;
        if (osAvx512 && (b & (1u << 16))) f |= kroCpuAVX512F;
        if (osAvx512 && (b & (1u << 30))) f |= kroCpuAVX512BW;
    }
    return f;
}

/* Largest cache described by a deterministic-cache-parameters leaf (Intel leaf 4, AMD
 * 0x8000001D): size = ways x partitions x line size x sets, each field stored minus one. */
static int largest_described_cache(unsigned leaf)
{
    long best = 0;
    for (unsigned sub = 0; sub < 16; ++sub) {
        unsigned a, b, c, d;
        __cpuid_count(leaf, sub, a, b, c, d);
        if ((a & 0x1F) == 0) break; /* no more caches */
        long ways = ((b >> 22) & 0x3FF) + 1;
        long parts = ((b >> 12) & 0x3FF) + 1;
        long line = (b & 0xFFF) + 1;
        long sets = (long)c + 1;
        long size = ways * parts * line * sets;
        if (size > best) best = size;
    }
    return best > 0x7FFFFFFF ? 0x7FFFFFFF : (int)best;
}

static int detect_max_cache(void)
{
    unsigned a, b, c, d;
    unsigned maxLeaf = __get_cpuid_max(0, &b);
    unsigned maxExt = __get_cpuid_max(0x80000000, 0);
    int size = 0;
    if (maxExt >= 0x8000001D) {
        __cpuid(0x80000001, a, b, c, d);
        if (c & (1u << 22)) size = largest_described_cache(0x8000001D); /* topology extensions */
    }
    if (size == 0 && maxLeaf >= 4) size = largest_described_cache(4);
    if (size == 0 && maxExt >= 0x80000006) {
        /* Older processors: L2 in KiB (ECX[31:16]) and L3 in 512 KiB units (EDX[31:18]). */
        __cpuid(0x80000006, a, b, c, d);
        long l2 = (long)(c >> 16) * 1024, l3 = (long)(d >> 18) * 512 * 1024;
        long best = l3 > l2 ? l3 : l2;
        size = best > 0x7FFFFFFF ? 0x7FFFFFFF : (int)best;
    }
    return size;
}

/* KROCORE_FEATURE_MASK (hexadecimal) clears feature bits at load, so that the SSE3 kernels
 * can be run and tested on a processor that has SSE4.1. */
__attribute__((constructor)) static void kro_core_init(void)
{
    g_features = detect_features();
    const char* mask = getenv("KROCORE_FEATURE_MASK");
    if (mask && *mask) g_features &= (uint64_t)strtoull(mask, 0, 16);
    g_maxCache = detect_max_cache();
}

/* Blocks come from malloc, over-allocated and aligned here: glibc's posix_memalign takes a
 * slow splitting path for 64-byte alignment that costs several times a plain malloc.  The
 * pointer malloc returned sits in the word just below the aligned start. */
static void* aligned_block(int64_t length)
{
#if defined(__SANITIZE_ADDRESS__)
    /* Under AddressSanitizer the block ends exactly at `length`, so that an overrun of a
     * kroMalloc block is reported instead of landing in the alignment slack. */
    void* p = 0;
    if (length < 1 || posix_memalign(&p, kAlignment, (size_t)length) != 0) return 0;
    return p;
#else
    if (length < 1 || (uint64_t)length > (uint64_t)PTRDIFF_MAX - kAlignment - sizeof(void*))
        return 0;
    char* raw = malloc((size_t)length + kAlignment + sizeof(void*));
    if (!raw) return 0;
    uintptr_t start = ((uintptr_t)raw + sizeof(void*) + kAlignment - 1) & ~(uintptr_t)(kAlignment - 1);
    ((void**)start)[-1] = raw;
    return (void*)start;
#endif
}

KRO_CORE_API void* kroMalloc(int length)
{
    return aligned_block(length);
}

KRO_CORE_API void* kroMalloc_L(int64_t length)
{
    return aligned_block(length);
}

KRO_CORE_API void kroFree(void* ptr)
{
#if defined(__SANITIZE_ADDRESS__)
    free(ptr);
#else
    if (ptr) free(((void**)ptr)[-1]);
#endif
}

KRO_CORE_API KroStatus kroGetMaxCacheSizeB(int* pSizeByte)
{
    if (!pSizeByte) return -8;   /* kroStsNullPointerErr */
    *pSizeByte = g_maxCache;
    return g_maxCache > 0 ? 0 : -14; /* kroStsUnsupportedModeErr */
}

KRO_CORE_API uint64_t ownGetFeature(void)
{
    return g_features;
}
