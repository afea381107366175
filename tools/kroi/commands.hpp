// The subcommand handlers.  Each takes the arguments after its name and returns the exit
// status: 0 success, 1 failure, 2 bad usage.
#pragma once

#include <string>
#include <vector>

namespace kroi_tool {

using Args = std::vector<std::string>;

constexpr int kExitOk = 0;
constexpr int kExitFailure = 1;
constexpr int kExitUsage = 2;

int runInfo(const Args& args);         // main.cpp
int runDemo(const Args& args);         // demo.cpp
int runPngRoundtrip(const Args& args); // roundtrip.cpp

// The families' handlers, each in tools/kroi/<family>.cpp.
// section COPYSET
int runSplit(const Args& args); // copyset.cpp
int runMerge(const Args& args); // copyset.cpp
// end of section COPYSET
// section ARITH
int runArithAdd(const Args& args); // arith.cpp
int runArithSub(const Args& args); // arith.cpp
int runArithMul(const Args& args); // arith.cpp
int runArithDiv(const Args& args); // arith.cpp
// end of section ARITH
// section ARITHC
int runAnd(const Args& args);   // arithc.cpp
int runXor(const Args& args);   // arithc.cpp
int runNot(const Args& args);   // arithc.cpp
int runShift(const Args& args); // arithc.cpp
int runAddC(const Args& args);  // arithc.cpp
int runMulC(const Args& args);  // arithc.cpp
// end of section ARITHC
// section CONVERT
int runConvert(const Args& args); // convert.cpp
int runScale(const Args& args);   // convert.cpp
// end of section CONVERT
// section LAYOUT
int runMirror(const Args& args);    // layout.cpp
int runTranspose(const Args& args); // layout.cpp
int runSwap(const Args& args);      // layout.cpp
// end of section LAYOUT
// section COMPARE
int runCompare(const Args& args); // layout.cpp
// end of section COMPARE
// section BORDER
int runBorder(const Args& args); // border.cpp
int runBox(const Args& args);    // border.cpp
// end of section BORDER
// section MINMAX
int runDilate(const Args& args); // minmax.cpp
int runErode(const Args& args);  // minmax.cpp
// end of section MINMAX
// section MOMHIST
int runHist(const Args& args);    // momhist.cpp
int runMoments(const Args& args); // momhist.cpp
// end of section MOMHIST
// section UNARY
int runMath(const Args& args);      // unary.cpp
int runRamp(const Args& args);      // unary.cpp
int runZonePlate(const Args& args); // unary.cpp
int runChecker(const Args& args);   // unary.cpp
int runNoise(const Args& args);     // unary.cpp
// end of section UNARY
// section LUTALPHA
int runLut(const Args& args);       // lutalpha.cpp
int runComposite(const Args& args); // lutalpha.cpp
// end of section LUTALPHA
// section SMOOTH
int runMedian(const Args& args);  // smooth.cpp
int runGauss(const Args& args);   // smooth.cpp
int runSobel(const Args& args);   // smooth.cpp
int runScharr(const Args& args);  // smooth.cpp
int runLaplace(const Args& args); // smooth.cpp
int runSharpen(const Args& args); // smooth.cpp
// end of section SMOOTH
// section THRESHOLD
int runThreshold(const Args& args); // threshold.cpp
// end of section THRESHOLD

// One line of library identification ("kroIP SSE3 (t3) 2026.0.0 (r0x00000001), Nov 2 2026").
std::string libraryLine();

} // namespace kroi_tool
