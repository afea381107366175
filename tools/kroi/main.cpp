// kroi: a command-line client of the kroIP image library.  It uses the public C interface
// only (kroi.h, krocore.h), as any application would.
//
// Adding a subcommand: a handler `int runX(const Args&)` and one line in kCommands.
#include <cstdint>
#include <cstdio>
#include <exception>
#include <string>

#include "commands.hpp"
#include "kroi.h"

namespace kroi_tool {

namespace {

int runHelp(const Args&);

struct Command {
    const char* name;
    const char* usage; // null: a test aid, left out of the help text
    int (*run)(const Args&);
};

constexpr Command kCommands[] = {
    {"help", "kroi help\n    this text", runHelp},
    {"info", "kroi info\n    version record, processor features seen, largest cache", runInfo},
    {"demo",
     "kroi demo [--out DIR] [--runs N]\n"
     "    run every demo entry on the built-in sample; write the input, the results and\n"
     "    index.html into DIR (default demo-out), print a timing table (median of N runs, default 15)",
     runDemo},
    // The families' commands, one block each.
    // section COPYSET
    // end of section COPYSET
    // section ARITH
    // end of section ARITH
    // section ARITHC
    // end of section ARITHC
    // section CONVERT
    // end of section CONVERT
    // section LAYOUT
    // end of section LAYOUT
    // section COMPARE
    // end of section COMPARE
    // section BORDER
    {"border",
     "kroi border IN.png OUT.png [--top T] [--left L] [--bottom B] [--right R]\n"
     "            [--mode replicate|mirror|wrap|const] [--value V[,V...]]\n"
     "    frame the image with a border of the given widths (default 0) synthesised by the mode\n"
     "    (default replicate; const takes --value per channel, default 0)",
     runBorder},
    {"box",
     "kroi box IN.png OUT.png WxH [--border replicate|mirror|const] [--value V[,V...]]\n"
     "    mean over a W x H window centred on each pixel (box filter); border default replicate",
     runBox},
    // end of section BORDER
    // section MINMAX
    {"dilate",
     "kroi dilate IN.png OUT.png WxH [--border replicate|mirror|constant[=V]]\n"
     "    maximum over a W x H rectangle (8/16-bit gray, RGB, RGBA; alpha kept)",
     runDilate},
    {"erode",
     "kroi erode IN.png OUT.png WxH [--border replicate|mirror|constant[=V]]\n"
     "    minimum over a W x H rectangle (8/16-bit gray, RGB, RGBA; alpha kept)",
     runErode},
    // end of section MINMAX
    {"png-roundtrip", nullptr, runPngRoundtrip},
};

int runHelp(const Args&)
{
    std::printf("usage:\n");
    for (const Command& c : kCommands)
        if (c.usage) std::printf("  %s\n", c.usage);
    return kExitOk;
}

// Names of the feature bits declared in krocore.h, in bit order.
struct Feature {
    uint64_t bit;
    const char* name;
};
constexpr Feature kFeatures[] = {
    {kroCpuSSE2, "SSE2"},       {kroCpuSSE3, "SSE3"},   {kroCpuSSSE3, "SSSE3"},
    {kroCpuSSE41, "SSE4.1"},    {kroCpuSSE42, "SSE4.2"}, {kroCpuPOPCNT, "POPCNT"},
    {kroCpuAVX, "AVX"},         {kroCpuAVX2, "AVX2"},   {kroCpuFMA, "FMA"},
    {kroCpuAVX512F, "AVX512F"}, {kroCpuAVX512BW, "AVX512BW"},
};

} // namespace

std::string libraryLine()
{
    const KroLibraryVersion* v = kroiGetLibVersion();
    return std::string(v->Name) + " " + v->Version + ", built " + v->BuildDate;
}

int runInfo(const Args& args)
{
    if (!args.empty()) {
        std::fprintf(stderr, "kroi info: takes no arguments\n");
        return kExitUsage;
    }
    const KroLibraryVersion* v = kroiGetLibVersion();
    std::printf("Name:       %s\n", v->Name);
    std::printf("Version:    %s\n", v->Version);
    std::printf("BuildDate:  %s\n", v->BuildDate);
    // targetCpu holds two characters and two zero bytes, no terminator of its own.
    std::printf("targetCpu:  %.4s\n", v->targetCpu);
    std::printf("Numbers:    major %d, minor %d, majorBuild %d, build 0x%08x\n", v->major, v->minor,
                v->majorBuild, static_cast<unsigned>(v->build));

    const uint64_t bits = ownGetFeature();
    std::printf("Features:  ");
    for (const Feature& f : kFeatures)
        if (bits & f.bit) std::printf(" %s", f.name);
    std::printf("  (0x%llx)\n", static_cast<unsigned long long>(bits));
    if (!(bits & kroCpuSSE3)) std::printf("            this processor lacks SSE3, which this library needs\n");

    int cache = 0;
    const KroStatus st = kroGetMaxCacheSizeB(&cache);
    if (st == kroStsOk)
        std::printf("Max cache:  %d bytes (%d KiB)\n", cache, cache / 1024);
    else
        std::printf("Max cache:  not described by the processor (status %d)\n", st);
    return kExitOk;
}

} // namespace kroi_tool

int main(int argc, char** argv)
{
    using namespace kroi_tool;
    if (argc < 2) return runHelp({});
    const std::string name = argv[1];
    const Args args(argv + 2, argv + argc);
    for (const Command& c : kCommands) {
        if (name != c.name) continue;
        try {
            return c.run(args);
        } catch (const std::exception& e) {
            std::fprintf(stderr, "kroi %s: %s\n", c.name, e.what());
            return kExitFailure;
        }
    }
    std::fprintf(stderr, "kroi: unknown command '%s' (try 'kroi help')\n", name.c_str());
    return kExitUsage;
}
