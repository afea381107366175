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
    {"split",
     "kroi split IN.png PREFIX\n"
     "    write each channel of an RGB or RGBA image as a gray PNG, PREFIX-0.png, PREFIX-1.png, ...",
     runSplit},
    {"merge",
     "kroi merge OUT.png IN0.png IN1.png IN2.png [IN3.png]\n"
     "    interleave three or four gray PNGs of one size and depth into an RGB or RGBA PNG",
     runMerge},
    // end of section COPYSET
    // section ARITH
    {"add",
     "kroi add A.png B.png OUT.png [--scale S]\n"
     "    OUT = A + B, times 2^-S (default 0), ties to even, saturated; 8- or 16-bit images",
     runArithAdd},
    {"sub",
     "kroi sub A.png B.png OUT.png [--scale S]\n"
     "    OUT = A - B (negative gives 0), times 2^-S (default 0), ties to even, saturated; 8- or 16-bit images",
     runArithSub},
    {"mul",
     "kroi mul A.png B.png OUT.png [--scale S]\n"
     "    OUT = A x B, times 2^-S (default 0), ties to even, saturated; 8- or 16-bit images",
     runArithMul},
    {"div",
     "kroi div A.png B.png OUT.png [--scale S]\n"
     "    OUT = A / B (x / 0 gives the maximum, 0 / 0 gives 0), times 2^-S (default 0), ties to even, saturated; 8- or 16-bit images",
     runArithDiv},
    // end of section ARITH
    // section ARITHC
    {"addc", "kroi addc IN.png VALUE OUT.png [SCALE]\n    VALUE added to every sample, times 2^-SCALE, rounded and saturated", runAddC},
    {"mulc", "kroi mulc IN.png VALUE OUT.png [SCALE]\n    every sample times VALUE, times 2^-SCALE, rounded and saturated", runMulC},
    {"and", "kroi and A.png (B.png | VALUE) OUT.png\n    bitwise And with a second image of the same size and type, or with a constant", runAnd},
    {"xor", "kroi xor A.png (B.png | VALUE) OUT.png\n    bitwise Xor with a second image or a constant", runXor},
    {"not", "kroi not IN.png OUT.png\n    every sample's bits inverted", runNot},
    {"shift", "kroi shift IN.png COUNT OUT.png\n    samples shifted left by COUNT bits, right for a negative COUNT", runShift},
    // end of section ARITHC
    // section CONVERT
    {"convert",
     "kroi convert IN.png OUT.png --to 8u|16u [--values] [--fast]\n"
     "    change the sample depth: whole range onto whole range (accurate, or --fast), or\n"
     "    with --values the same values, saturated",
     runConvert},
    {"scale",
     "kroi scale IN.png OUT.png --mul M [--add A] [--to 8u|16u]\n"
     "    every sample times M plus A, rounded to nearest and saturated",
     runScale},
    // end of section CONVERT
    // section LAYOUT
    {"mirror", "kroi mirror rows|columns|both IN.png OUT.png\n    flip about the horizontal axis, the vertical axis or both", runMirror},
    {"transpose", "kroi transpose IN.png OUT.png\n    exchange rows and columns", runTranspose},
    {"swap", "kroi swap ORDER IN.png OUT.png\n    reorder channels: output channel c takes input channel ORDER[c] (2,1,0 or 3,2,1,0)",
     runSwap},
    // end of section LAYOUT
    // section COMPARE
    {"compare", "kroi compare lt|le|eq|ge|gt A.png B.png|NUMBER MASK.png\n    8-bit mask: 255 where A OP B in every channel",
     runCompare},
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
    // section MOMHIST
    {"hist", "kroi hist IN.png OUT.png [--bins N]\n    per-channel histogram over N uniform bins (default 256) drawn as a bar chart", runHist},
    {"moments", "kroi moments IN.png\n    centroid, orientation and Hu invariants of each channel", runMoments},
    // end of section MOMHIST
    // section UNARY
    {"math", "kroi math sqrt|sqr|exp|ln|abs IN.png OUT.png [--scale S]\n    element-wise mathematics with the scale factor S (result x 2^-S); abs draws the distance from mid-gray", runMath},
    {"ramp", "kroi ramp OUT.png WxH\n    an 8-bit horizontal ramp from 0 to 255", runRamp},
    {"zoneplate", "kroi zoneplate OUT.png WxH\n    an 8-bit zone plate: a radial chirp reaching the Nyquist limit at the corners", runZonePlate},
    {"checker", "kroi checker OUT.png WxH [--cell N]\n    an 8-bit checkerboard of N-pixel squares (default 32)", runChecker},
    {"noise", "kroi noise IN.png OUT.png --gauss SIGMA|--uniform LO,HI [--seed S]\n    additive Gaussian or uniform noise, the same image for the same seed", runNoise},
    // end of section UNARY
    // section LUTALPHA
    {"lut",
     "kroi lut IN.png OUT.png --curve gamma:G|levels:L0=V0,L1=V1,... [--interp nearest|linear|cubic]\n"
     "    every colour channel through one tone curve: max (v/max)^(1/G), or the points given (alpha kept)",
     runLut},
    {"composite",
     "kroi composite A.png B.png OUT.png --op over|in|out|atop|xor|plus [--alpha A1,A2]\n"
     "    A composed onto B with the alphas of the PNGs (RGBA) or two constant alphas",
     runComposite},
    // end of section LUTALPHA
    // section SMOOTH
    {"median",
     "kroi median IN.png OUT.png WxH [--border replicate|mirror|constant[=V]]\n"
     "    lower median over a W x H rectangle (8/16-bit gray, RGB, RGBA; alpha kept)",
     runMedian},
    {"gauss",
     "kroi gauss IN.png OUT.png SIZE [SIGMA] [--border replicate|mirror|constant[=V]]\n"
     "    Gaussian smoothing, odd SIZE, SIGMA derived from SIZE when left out or <= 0",
     runGauss},
    {"sobel", "kroi sobel IN.png OUT.png [3|5] [--border ...]\n    8-bit edge map |dx| + |dy| of the gray level", runSobel},
    {"scharr", "kroi scharr IN.png OUT.png [--border ...]\n    8-bit edge map |dx| + |dy| of the gray level, Scharr kernels", runScharr},
    {"laplace", "kroi laplace IN.png OUT.png [3|5] [--border ...]\n    Laplace response of 8-bit images, negative clipped to 0", runLaplace},
    {"sharpen", "kroi sharpen IN.png OUT.png [--border ...]\n    the image plus an eighth of its high-pass response (8-bit)", runSharpen},
    // end of section SMOOTH
    // section THRESHOLD
    {"threshold",
     "kroi threshold IN.png OUT.png --lt T|--gt T|--otsu|--adaptive WxH --delta D [--gauss SIGMA]\n"
     "    clamp to T from below or above, or 8-bit gray to black and white at Otsu's level or\n"
     "    against the local (box or Gaussian) mean less D",
     runThreshold},
    // end of section THRESHOLD
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
