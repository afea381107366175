// The instruction tier of the built library: nothing above SSE3 outside the functions that
// are chosen at run time only on processors with SSE4.1 (named *_sse41), and nothing at all
// from AVX, AVX-512, SSE4.2 or BMI.  A single stray instruction would make the library crash
// on the oldest processors it is meant for, and only on those.
#include <cstdio>
#include <memory>
#include <regex>
#include <set>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

namespace {

// SSSE3 and SSE4.1: allowed inside *_sse41 functions only.
const std::set<std::string> kSse41Only = {
    // SSSE3
    "pshufb", "palignr", "pabsb", "pabsw", "pabsd", "pmaddubsw", "phaddw", "phaddd", "phaddsw",
    "phsubw", "phsubd", "phsubsw", "psignb", "psignw", "psignd", "pmulhrsw",
    // SSE4.1
    "pmovzxbw", "pmovzxbd", "pmovzxbq", "pmovzxwd", "pmovzxwq", "pmovzxdq", "pmovsxbw", "pmovsxbd",
    "pmovsxbq", "pmovsxwd", "pmovsxwq", "pmovsxdq", "pminud", "pminsd", "pminuw", "pminsb", "pmaxud",
    "pmaxsd", "pmaxuw", "pmaxsb", "packusdw", "pblendvb", "pblendw", "blendps", "blendpd", "blendvps",
    "blendvpd", "ptest", "roundps", "roundpd", "roundss", "roundsd", "pmulld", "pmuldq", "pinsrb",
    "pinsrd", "pinsrq", "pextrb", "pextrd", "pextrq", "insertps", "extractps", "dpps", "dppd",
    "mpsadbw", "pcmpeqq", "phminposuw", "movntdqa"};

// Never allowed: SSE4.2, POPCNT, BMI1/2, LZCNT.  Not tzcnt: GCC emits `rep bsf` for
// __builtin_ctz, which disassembles as tzcnt and runs as bsf on processors without BMI.
const std::set<std::string> kNever = {"pcmpgtq", "pcmpestri", "pcmpestrm", "pcmpistri", "pcmpistrm",
                                      "popcnt", "andn", "blsi", "blsr", "blsmsk", "lzcnt",
                                      "shlx", "sarx", "shrx", "bzhi", "pdep", "pext", "rorx", "mulx"};

const std::set<std::string> kPrefixes = {"rep", "repz", "repe", "repnz", "repne", "lock", "notrack",
                                         "bnd", "data16", "addr32", "cs", "ds", "es", "ss", "fs", "gs"};

// The mnemonic without an AT&T operand-size suffix, when the bare name is one we look for.
std::string bare(const std::string& m)
{
    if (kSse41Only.count(m) || kNever.count(m)) return m;
    if (m.rfind("crc32", 0) == 0) return "crc32";
    if (m.size() > 1 && std::string("bwlq").find(m.back()) != std::string::npos) {
        const std::string s = m.substr(0, m.size() - 1);
        if (kNever.count(s)) return s;
    }
    return m;
}

// The unqualified name of a demangled function, without parameters, template arguments or
// clone suffixes: "void t3::cvt_sse41<short>(short const*, long) [clone .isra.0]" -> cvt_sse41.
std::string functionName(std::string s)
{
    if (auto c = s.find(" [clone"); c != std::string::npos) s.erase(c);
    // The bracket of an unnamed namespace is part of the qualified name, not the parameters.
    for (std::size_t a; (a = s.find("(anonymous namespace)")) != std::string::npos;) s.erase(a, 21);
    if (auto dot = s.find('.'); dot != std::string::npos && s.find('(') == std::string::npos) s.erase(dot);
    int depth = 0;
    for (std::size_t i = 0; i < s.size(); ++i) {
        if (s[i] == '<') ++depth;
        else if (s[i] == '>') --depth;
        else if (s[i] == '(' && depth == 0) { s.erase(i); break; }
    }
    while (!s.empty() && s.back() == '>') {
        int d = 0;
        std::size_t i = s.size();
        do {
            --i;
            if (s[i] == '>') ++d;
            else if (s[i] == '<') --d;
        } while (i > 0 && d > 0);
        s.erase(i);
    }
    if (auto q = s.rfind("::"); q != std::string::npos) s.erase(0, q + 2);
    if (auto sp = s.rfind(' '); sp != std::string::npos) s.erase(0, sp + 1);
    return s;
}

bool endsWith(const std::string& s, const std::string& tail)
{
    return s.size() >= tail.size() && s.compare(s.size() - tail.size(), tail.size(), tail) == 0;
}

}  // namespace

TEST(TierAudit, FunctionNames)
{
    EXPECT_EQ(functionName("t3_kroiMalloc_8u_C1"), "t3_kroiMalloc_8u_C1");
    EXPECT_EQ(functionName("void t3::arith::cvt_sse41<short, 3>(short const*, long) [clone .isra.0]"), "cvt_sse41");
    EXPECT_EQ(functionName("t3::row_sse41(unsigned char const*)"), "row_sse41");
    EXPECT_EQ(functionName("kernel_sse41.cold"), "kernel_sse41");
    EXPECT_EQ(functionName("t3::(anonymous namespace)::swap_sse41<3>(unsigned char const*)"), "swap_sse41");
}

TEST(TierAudit, NothingAboveSse3OutsideSse41Kernels)
{
#ifdef KROI_SANITIZE
    // The instrumented library is not the one that ships; the optimised build audits that.
    GTEST_SKIP() << "sanitizer build";
#endif
    const std::string cmd = std::string(OBJDUMP) + " -d -C --no-show-raw-insn '" KROIT3_FILE "' 2>&1";
    std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(cmd.c_str(), "r"), pclose);
    ASSERT_TRUE(pipe) << cmd;
    static const std::regex header(R"(^[0-9a-f]+ <(.*)>:$)");
    static const std::regex insn(R"(^\s*([0-9a-f]+):\s+(\S.*)$)");
    static const std::regex wide(R"(%(ymm|zmm)[0-9]+|%k[0-7]\b)");
    std::string function = "?";
    bool inSse41 = false;
    long instructions = 0, faults = 0;
    char buf[4096];
    std::smatch m;
    while (fgets(buf, sizeof buf, pipe.get())) {
        std::string line(buf);
        if (!line.empty() && line.back() == '\n') line.pop_back();
        if (std::regex_match(line, m, header)) {
            function = m[1];
            inSse41 = endsWith(functionName(function), "_sse41");
            continue;
        }
        if (!std::regex_match(line, m, insn)) continue;
        ++instructions;
        const std::string text = m[2];
        std::istringstream words(text);
        std::string mnemonic;
        while (words >> mnemonic && kPrefixes.count(mnemonic)) {}
        const std::string b = bare(mnemonic);
        const char* why = nullptr;
        if (std::regex_search(text, wide) || (b[0] == 'v' && text.find("%xmm") != std::string::npos) ||
            b == "vzeroupper" || b == "vzeroall")
            why = "AVX or above";
        else if (kNever.count(b) || b == "crc32")
            why = "SSE4.2/BMI";
        else if (kSse41Only.count(b) && !inSse41)
            why = "SSSE3/SSE4.1 outside an *_sse41 function";
        if (why && ++faults <= 20) ADD_FAILURE() << why << ": " << function << ": " << text;
    }
    EXPECT_EQ(faults, 0);
    EXPECT_GT(instructions, 100) << "objdump produced no disassembly";
}
