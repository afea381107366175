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
int runBorder(const Args& args); // border.cpp
int runBox(const Args& args);    // border.cpp
// end of section BORDER
// section MINMAX
int runDilate(const Args& args); // minmax.cpp
int runErode(const Args& args);  // minmax.cpp
// end of section MINMAX

// One line of library identification ("kroIP SSE3 (t3) 2026.0.0 (r0x00000001), Nov 2 2026").
std::string libraryLine();

} // namespace kroi_tool
