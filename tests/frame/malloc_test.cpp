// Image allocation: all 35 allocators in both forms against the allocation rule, with the
// core library's allocator interposed by this program so that every byte count the library
// asks for is seen.
#include <dlfcn.h>

#include <algorithm>
#include <climits>
#include <cstdint>
#include <cstring>
#include <vector>

#include <gtest/gtest.h>

#include "kroi.h"
#include "support/random.hpp"
#include "support/reference.hpp"

// ---- the interposer ----------------------------------------------------------------------
// libkroit3 reaches kroMalloc, kroMalloc_L and kroFree through its PLT, and the program's
// own definitions come first in the lookup.  Requests above kForwardLimit are answered with
// null as if memory had run out, so that the rule's large totals cost no memory.
namespace {

struct CoreCall {
    bool wide; // kroMalloc_L
    int64_t bytes;
};
std::vector<CoreCall> g_calls;
std::vector<void*> g_freed;
constexpr int64_t kForwardLimit = int64_t{1} << 16;

template <class F>
F real(const char* name)
{
    void* f = dlsym(RTLD_NEXT, name);
    if (!f) std::abort();
    return reinterpret_cast<F>(f);
}

}  // namespace

extern "C" void* kroMalloc(int length)
{
    g_calls.push_back({false, length});
    static auto next = real<void* (*)(int)>("kroMalloc");
    return length <= kForwardLimit ? next(length) : nullptr;
}

extern "C" void* kroMalloc_L(int64_t length)
{
    g_calls.push_back({true, length});
    static auto next = real<void* (*)(int64_t)>("kroMalloc_L");
    return length <= kForwardLimit ? next(length) : nullptr;
}

extern "C" void kroFree(void* ptr)
{
    g_freed.push_back(ptr);
    static auto next = real<void (*)(void*)>("kroFree");
    next(ptr);
}

namespace {

// ---- the members ---------------------------------------------------------------------------
template <auto F>
void* call32(int w, int h, int* step) { return F(w, h, step); }
template <auto F>
void* callL(int64_t w, int64_t h, int64_t* step) { return F(w, h, step); }

struct Member32 { const char* name; void* (*fn)(int, int, int*); int b; };
struct MemberL { const char* name; void* (*fn)(int64_t, int64_t, int64_t*); int b; };

// b is the bytes per pixel of each type and layout, written out from the table, not derived
// from the function's return type.
#define KT_M32(fn, b) Member32{#fn, call32<fn>, b}
#define KT_ML(fn, b) MemberL{#fn, callL<fn>, b}
const Member32 k32[] = {
    KT_M32(kroiMalloc_8u_C1, 1),    KT_M32(kroiMalloc_8u_C2, 2),     KT_M32(kroiMalloc_8u_C3, 3),
    KT_M32(kroiMalloc_8u_C4, 4),    KT_M32(kroiMalloc_8u_AC4, 4),    KT_M32(kroiMalloc_16u_C1, 2),
    KT_M32(kroiMalloc_16u_C2, 4),   KT_M32(kroiMalloc_16u_C3, 6),    KT_M32(kroiMalloc_16u_C4, 8),
    KT_M32(kroiMalloc_16u_AC4, 8),  KT_M32(kroiMalloc_16s_C1, 2),    KT_M32(kroiMalloc_16s_C2, 4),
    KT_M32(kroiMalloc_16s_C3, 6),   KT_M32(kroiMalloc_16s_C4, 8),    KT_M32(kroiMalloc_16s_AC4, 8),
    KT_M32(kroiMalloc_32s_C1, 4),   KT_M32(kroiMalloc_32s_C2, 8),    KT_M32(kroiMalloc_32s_C3, 12),
    KT_M32(kroiMalloc_32s_C4, 16),  KT_M32(kroiMalloc_32s_AC4, 16),  KT_M32(kroiMalloc_32f_C1, 4),
    KT_M32(kroiMalloc_32f_C2, 8),   KT_M32(kroiMalloc_32f_C3, 12),   KT_M32(kroiMalloc_32f_C4, 16),
    KT_M32(kroiMalloc_32f_AC4, 16), KT_M32(kroiMalloc_32sc_C1, 8),   KT_M32(kroiMalloc_32sc_C2, 16),
    KT_M32(kroiMalloc_32sc_C3, 24), KT_M32(kroiMalloc_32sc_C4, 32),  KT_M32(kroiMalloc_32sc_AC4, 32),
    KT_M32(kroiMalloc_32fc_C1, 8),  KT_M32(kroiMalloc_32fc_C2, 16),  KT_M32(kroiMalloc_32fc_C3, 24),
    KT_M32(kroiMalloc_32fc_C4, 32), KT_M32(kroiMalloc_32fc_AC4, 32),
};
const MemberL kL[] = {
    KT_ML(kroiMalloc_8u_C1_L, 1),    KT_ML(kroiMalloc_8u_C2_L, 2),     KT_ML(kroiMalloc_8u_C3_L, 3),
    KT_ML(kroiMalloc_8u_C4_L, 4),    KT_ML(kroiMalloc_8u_AC4_L, 4),    KT_ML(kroiMalloc_16u_C1_L, 2),
    KT_ML(kroiMalloc_16u_C2_L, 4),   KT_ML(kroiMalloc_16u_C3_L, 6),    KT_ML(kroiMalloc_16u_C4_L, 8),
    KT_ML(kroiMalloc_16u_AC4_L, 8),  KT_ML(kroiMalloc_16s_C1_L, 2),    KT_ML(kroiMalloc_16s_C2_L, 4),
    KT_ML(kroiMalloc_16s_C3_L, 6),   KT_ML(kroiMalloc_16s_C4_L, 8),    KT_ML(kroiMalloc_16s_AC4_L, 8),
    KT_ML(kroiMalloc_32s_C1_L, 4),   KT_ML(kroiMalloc_32s_C2_L, 8),    KT_ML(kroiMalloc_32s_C3_L, 12),
    KT_ML(kroiMalloc_32s_C4_L, 16),  KT_ML(kroiMalloc_32s_AC4_L, 16),  KT_ML(kroiMalloc_32f_C1_L, 4),
    KT_ML(kroiMalloc_32f_C2_L, 8),   KT_ML(kroiMalloc_32f_C3_L, 12),   KT_ML(kroiMalloc_32f_C4_L, 16),
    KT_ML(kroiMalloc_32f_AC4_L, 16), KT_ML(kroiMalloc_32sc_C1_L, 8),   KT_ML(kroiMalloc_32sc_C2_L, 16),
    KT_ML(kroiMalloc_32sc_C3_L, 24), KT_ML(kroiMalloc_32sc_C4_L, 32),  KT_ML(kroiMalloc_32sc_AC4_L, 32),
    KT_ML(kroiMalloc_32fc_C1_L, 8),  KT_ML(kroiMalloc_32fc_C2_L, 16),  KT_ML(kroiMalloc_32fc_C3_L, 24),
    KT_ML(kroiMalloc_32fc_C4_L, 32), KT_ML(kroiMalloc_32fc_AC4_L, 32),
};
#undef KT_M32
#undef KT_ML

// ---- the rule --------------------------------------------------------------------------------
// What one call must do: the step it leaves and the byte count it asks of the core, if any.
struct Outcome {
    int64_t step;
    bool asksCore;
    int64_t bytes;
};

Outcome rule32(int w, int h, int b)
{
    if (w < 1 || h < 1) return {0, false, 0};
    const int64_t row = int64_t{w} * b;
    if (row > 0x7FFFFFFF) return {0, false, 0};
    const int64_t rounded = (row + 63) / 64 * 64;
    // The step is a signed 32-bit value: a rounded row of 2^31 bytes reads back as INT_MIN.
    const int64_t step = rounded > INT32_MAX ? rounded - (int64_t{1} << 32) : rounded;
    const int64_t total = step * h;
    if (total < 0 || total > 0x7FFFFFFF) return {step, false, 0};
    return {step, true, total};
}

Outcome ruleL(int64_t w, int64_t h, int b)
{
    using kt::ref::i128;
    if (w < 1 || h < 1) return {0, false, 0};
    const i128 row = i128(w) * b;
    if (row >= (i128(1) << 64)) return {0, false, 0};
    const i128 rounded = (row + 63) / 64 * 64;
    if (rounded >= (i128(1) << 64)) return {0, false, 0}; // rounding would wrap
    // Stored as a signed 64-bit step: a rounded row of 2^63 bytes or more reads back negative.
    const int64_t step = int64_t(rounded >= (i128(1) << 63) ? rounded - (i128(1) << 64) : rounded);
    // The product is refused when a partial product of its 32-bit halves reaches past 32 bits
    // (upper halves by arithmetic shift, lower halves sign-extended)...
    const int64_t sh = step >> 32, hh = h >> 32;
    const int64_t sl = int32_t(uint32_t(uint64_t(step))), hl = int32_t(uint32_t(uint64_t(h)));
    if (((sh * hh) >> 32) > 0 || ((sh * hl) >> 32) > 0 || ((sl * hh) >> 32) > 0) return {step, false, 0};
    // ...and when the exact product lies outside the signed 64-bit range that the core's count
    // can carry, which the halves test lets through for a few products.
    const i128 total = i128(step) * h;
    if (total > INT64_MAX || total < INT64_MIN) return {step, false, 0};
    return {step, true, int64_t(total)};
}

constexpr int kCanary32 = 0x5A5A5A5A;
constexpr int64_t kCanaryL = 0x5A5A5A5A5A5A5A5ALL;

testing::AssertionResult matches(const char* name, int64_t w, int64_t h, void* p, int64_t step, bool wide,
                                 const Outcome& want)
{
    auto fail = [&] {
        return testing::AssertionFailure() << name << "(" << w << ", " << h << "): ";
    };
    if (step != want.step) return fail() << "step " << step << ", expected " << want.step;
    if (!want.asksCore) {
        if (!g_calls.empty()) return fail() << "asked the core for " << g_calls[0].bytes << " bytes";
        if (p) return fail() << "returned a block";
        return testing::AssertionSuccess();
    }
    if (g_calls.size() != 1) return fail() << g_calls.size() << " core calls, expected 1";
    if (g_calls[0].wide != wide) return fail() << "called the core's other allocator";
    if (g_calls[0].bytes != want.bytes)
        return fail() << "asked for " << g_calls[0].bytes << " bytes, expected " << want.bytes;
    // The core's answer is the result.
    const bool coreGave = want.bytes >= 1 && want.bytes <= kForwardLimit;
    if ((p != nullptr) != coreGave) return fail() << (p ? "returned a block" : "returned null");
    return testing::AssertionSuccess();
}

void run32(const Member32& m, int64_t w, int64_t h)
{
    if (w < INT32_MIN || w > INT32_MAX || h < INT32_MIN || h > INT32_MAX) return;
    g_calls.clear();
    int step = kCanary32;
    void* p = m.fn(int(w), int(h), &step);
    EXPECT_TRUE(matches(m.name, w, h, p, step, false, rule32(int(w), int(h), m.b)));
    kroiFree(p);
}

void runL(const MemberL& m, int64_t w, int64_t h)
{
    g_calls.clear();
    int64_t step = kCanaryL;
    void* p = m.fn(w, h, &step);
    EXPECT_TRUE(matches(m.name, w, h, p, step, true, ruleL(w, h, m.b)));
    kroiFree(p);
}

// Widths around every boundary of a member's rule, and random ones.
std::vector<int64_t> widths32(int b, kt::Rng& rng)
{
    const int64_t maxRow = 0x7FFFFFFF / b;
    std::vector<int64_t> v = {INT32_MIN, -1, 0, 1, 2, 63, 64, 65, 1000, 65536,
                              maxRow - 1, maxRow, maxRow + 1, INT32_MAX,
                              0x7FFFFFC0 / b, 0x7FFFFFC0 / b + 1, 0x7FFFFFC1 / b + 1,
                              0x40000000 / b, 0x40000000 / b + 1, 0x3FFFFFC0 / b + 1};
    for (int i = 0; i < 40; ++i) v.push_back(kt::uniform<int64_t>(rng, 1, 300));
    for (int i = 0; i < 40; ++i) v.push_back(kt::uniform<int64_t>(rng, 1, maxRow + 2));
    return v;
}

}  // namespace

TEST(Malloc, NullStepPointerWritesNothingAndAsksNothing)
{
    for (const auto& m : k32) {
        g_calls.clear();
        EXPECT_EQ(m.fn(1, 1, nullptr), nullptr) << m.name;
        EXPECT_TRUE(g_calls.empty()) << m.name;
    }
    for (const auto& m : kL) {
        g_calls.clear();
        EXPECT_EQ(m.fn(1, 1, nullptr), nullptr) << m.name;
        EXPECT_TRUE(g_calls.empty()) << m.name;
    }
}

TEST(Malloc, WorkedExamples)
{
    // Rows rounded up to 64 bytes; a total past 31 bits refused with the step kept, and the
    // 64-bit form asking for that same total.
    struct Case { const Member32& m; int w, h, step; int64_t bytes; };
    const Case cases[] = {{k32[0], 1, 1, 64, 64},            // kroiMalloc_8u_C1
                          {k32[2], 22, 2, 128, 256},         // kroiMalloc_8u_C3: 66 bytes a row
                          {k32[33], 2, 3, 64, 192},          // kroiMalloc_32fc_C4
                          {k32[0], 65536, 65536, 65536, -1}};
    for (const Case& c : cases) {
        g_calls.clear();
        int step = 0;
        void* p = c.m.fn(c.w, c.h, &step);
        EXPECT_EQ(step, c.step) << c.m.name;
        EXPECT_EQ(g_calls.size(), c.bytes < 0 ? 0u : 1u) << c.m.name;
        if (!g_calls.empty()) {
            EXPECT_EQ(g_calls[0].bytes, c.bytes) << c.m.name;
        }
        EXPECT_EQ(p != nullptr, c.bytes > 0) << c.m.name;
        kroiFree(p);
    }
    g_calls.clear();
    int64_t stepL = 0;
    EXPECT_EQ(kroiMalloc_8u_C1_L(65536, 65536, &stepL), nullptr); // the interposer declines 4 GiB
    EXPECT_EQ(stepL, 65536);
    ASSERT_EQ(g_calls.size(), 1u);
    EXPECT_TRUE(g_calls[0].wide);
    EXPECT_EQ(g_calls[0].bytes, int64_t{1} << 32);
}

TEST(Malloc, Form32MatchesRule)
{
    auto rng = kt::rngForTest();
    for (const auto& m : k32) {
        const std::vector<int64_t> ws = widths32(m.b, rng);
        std::vector<int64_t> hs = {INT32_MIN, -1, 0, 1, 2, 3, 64, 1000, 0x10000, INT32_MAX};
        for (int i = 0; i < 10; ++i) hs.push_back(kt::uniform<int64_t>(rng, 1, 5000));
        for (int64_t w : ws)
            for (int64_t h : hs) run32(m, w, h);
        // The deliberate negative step: rows of 0x7FFFFFC1..0x7FFFFFFF bytes.
        int step = 0;
        g_calls.clear();
        const int w = 0x7FFFFFC1 / m.b + (0x7FFFFFC1 % m.b != 0);
        if (int64_t{w} * m.b <= 0x7FFFFFFF) {
            EXPECT_EQ(m.fn(w, 1, &step), nullptr) << m.name;
            EXPECT_EQ(step, INT32_MIN) << m.name;
            EXPECT_TRUE(g_calls.empty()) << m.name;
        }
    }
}

TEST(Malloc, FormLMatchesRule)
{
    auto rng = kt::rngForTest();
    for (const auto& m : kL) {
        using kt::ref::i128;
        const i128 b = m.b, two64 = i128(1) << 64, two63 = i128(1) << 63;
        std::vector<int64_t> ws = {INT64_MIN, -1, 0, 1, 63, 64, 65, 0x7FFFFFFF, 0x80000000, int64_t{1} << 32};
        // Around the widths where the row stops fitting 64 bits, where rounding it up to 64
        // would wrap, and where the step turns negative; each clamped to int64.
        for (i128 edge : {two64 / b, (two64 - 63) / b, two63 / b, i128(INT64_MAX) / b})
            for (int d = -1; d <= 1; ++d) ws.push_back(int64_t(std::min<i128>(edge + d, INT64_MAX)));
        for (int i = 0; i < 30; ++i) ws.push_back(kt::uniform<int64_t>(rng, 1, 300));
        for (int i = 0; i < 30; ++i) ws.push_back(kt::uniform<int64_t>(rng, 1, INT64_MAX));
        for (int i = 0; i < 30; ++i) ws.push_back(int64_t{1} << kt::uniform<int>(rng, 0, 62));
        std::vector<int64_t> hs = {INT64_MIN, -1, 0, 1, 2, 3, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF,
                                   int64_t{1} << 32, (int64_t{1} << 32) + 1, INT64_MAX};
        for (int i = 0; i < 10; ++i) hs.push_back(kt::uniform<int64_t>(rng, 1, 5000));
        for (int i = 0; i < 10; ++i) hs.push_back(kt::uniform<int64_t>(rng, 1, INT64_MAX));
        for (int64_t w : ws)
            for (int64_t h : hs) runL(m, w, h);
    }
}

TEST(Malloc, FormLGuardsProductsPastInt64)
{
    // Step 2^32 and height 2^32 - 1: no partial product of the halves reaches past 32 bits, yet
    // the total is near 2^64; such totals must never reach the core as a wrapped count.
    for (const auto& m : kL) {
        const int64_t w = (int64_t{1} << 32) / m.b;
        for (int64_t h : {int64_t{0xFFFFFFFF}, int64_t{0x80000000}, int64_t{0x80000001}}) {
            runL(m, w, h);
            EXPECT_FALSE(ruleL(w, h, m.b).asksCore) << m.name << " " << h;
        }
    }
}

TEST(Malloc, RealBlocksHoldEveryRowAligned)
{
    // Every byte of every row is written: a short block shows under the address sanitizer.
    auto rng = kt::rngForTest();
    auto check = [&](const char* name, unsigned char* p, int64_t step, int64_t w, int64_t h, int b) {
        ASSERT_NE(p, nullptr) << name;
        for (int64_t y = 0; y < h; ++y) {
            unsigned char* row = p + y * step;
            ASSERT_EQ(reinterpret_cast<uintptr_t>(row) % 64, 0u) << name << " row " << y;
            std::memset(row, int(y), size_t(w * b));
        }
    };
    for (int i = 0; i < 8; ++i) {
        const int w = kt::uniform<int>(rng, 1, 100), h = kt::uniform<int>(rng, 1, 6);
        for (const auto& m : k32) {
            int step = 0;
            auto* p = static_cast<unsigned char*>(m.fn(w, h, &step));
            check(m.name, p, step, w, h, m.b);
            kroiFree(p);
        }
        for (const auto& m : kL) {
            int64_t step = 0;
            auto* p = static_cast<unsigned char*>(m.fn(w, h, &step));
            check(m.name, p, step, w, h, m.b);
            kroiFree(p);
        }
    }
}

TEST(Malloc, FreeForwardsToCore)
{
    g_freed.clear();
    kroiFree(nullptr);
    int step;
    void* p = kroiMalloc_16s_C3(7, 3, &step);
    ASSERT_NE(p, nullptr);
    kroiFree(p);
    int64_t stepL;
    void* q = kroiMalloc_32fc_AC4_L(7, 3, &stepL);
    ASSERT_NE(q, nullptr);
    kroiFree(q);
    EXPECT_EQ(g_freed, (std::vector<void*>{nullptr, p, q}));
}
