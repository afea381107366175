// The core library: aligned allocation, the cache size and the processor's feature bits.
#include <climits>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include <gtest/gtest.h>

#include "krocore.h"
#include "support/random.hpp"

#if defined(__SANITIZE_ADDRESS__)
// The huge requests below must come back null rather than stop the program.
extern "C" const char* __asan_default_options() { return "allocator_may_return_null=1"; }
#endif

TEST(Core, AllocationIsAlignedAndWritable)
{
    auto rng = kt::rngForTest();
    std::vector<int64_t> lengths;
    for (int64_t n = 1; n <= 130; ++n) lengths.push_back(n);
    for (int i = 0; i < 20; ++i) lengths.push_back(kt::uniform<int64_t>(rng, 1, 1 << 20));
    for (int64_t n : lengths) {
        for (void* p : {kroMalloc(int(n)), kroMalloc_L(n)}) {
            ASSERT_NE(p, nullptr) << n;
            EXPECT_EQ(reinterpret_cast<uintptr_t>(p) % 64, 0u) << n;
            std::memset(p, 0xA5, size_t(n));
            kroFree(p);
        }
    }
    kroFree(nullptr);
}

TEST(Core, AllocationRefusesNonPositiveAndHugeCounts)
{
    for (int n : {0, -1, -64, INT_MIN}) EXPECT_EQ(kroMalloc(n), nullptr) << n;
    for (int64_t n : {int64_t{0}, int64_t{-1}, int64_t{INT_MIN}, INT64_MIN, INT64_MAX, int64_t{1} << 62,
                      INT64_MAX - 63})
        EXPECT_EQ(kroMalloc_L(n), nullptr) << n;
}

TEST(Core, MaxCacheSize)
{
    EXPECT_EQ(kroGetMaxCacheSizeB(nullptr), -8);
    int size = -1;
    const KroStatus st = kroGetMaxCacheSizeB(&size);
    if (st == -14) {
        EXPECT_EQ(size, 0); // a processor that does not describe its caches
        return;
    }
    EXPECT_EQ(st, 0);
    EXPECT_GE(size, 16 * 1024); // no x86-64 processor has a smaller largest cache
    EXPECT_LE(size, 2047 * 1024 * 1024);
    int again = -1;
    EXPECT_EQ(kroGetMaxCacheSizeB(&again), 0);
    EXPECT_EQ(again, size);
}

// The compiler's own reading of the processor, which includes the operating system's consent
// for the AVX registers, is the reference; KROCORE_FEATURE_MASK clears bits at load.
TEST(Core, FeaturesAgreeWithCompilerAndMask)
{
    __builtin_cpu_init();
    struct Bit { uint64_t bit; bool has; const char* name; };
    const Bit bits[] = {
        {kroCpuSSE2, bool(__builtin_cpu_supports("sse2")), "sse2"},
        {kroCpuSSE3, bool(__builtin_cpu_supports("sse3")), "sse3"},
        {kroCpuSSSE3, bool(__builtin_cpu_supports("ssse3")), "ssse3"},
        {kroCpuSSE41, bool(__builtin_cpu_supports("sse4.1")), "sse4.1"},
        {kroCpuSSE42, bool(__builtin_cpu_supports("sse4.2")), "sse4.2"},
        {kroCpuPOPCNT, bool(__builtin_cpu_supports("popcnt")), "popcnt"},
        {kroCpuAVX, bool(__builtin_cpu_supports("avx")), "avx"},
        {kroCpuAVX2, bool(__builtin_cpu_supports("avx2")), "avx2"},
        {kroCpuFMA, bool(__builtin_cpu_supports("fma")), "fma"},
        {kroCpuAVX512F, bool(__builtin_cpu_supports("avx512f")), "avx512f"},
        {kroCpuAVX512BW, bool(__builtin_cpu_supports("avx512bw")), "avx512bw"},
    };
    uint64_t mask = ~uint64_t{0};
    if (const char* env = std::getenv("KROCORE_FEATURE_MASK"); env && *env)
        mask = std::strtoull(env, nullptr, 16);
    const uint64_t f = ownGetFeature();
    uint64_t known = 0;
    for (const Bit& b : bits) {
        known |= b.bit;
        EXPECT_EQ((f & b.bit) != 0, b.has && (mask & b.bit) != 0) << b.name << ", mask " << std::hex << mask;
    }
    EXPECT_EQ(f & ~known, 0u) << "bits without a meaning";
    EXPECT_EQ(ownGetFeature(), f);
}
