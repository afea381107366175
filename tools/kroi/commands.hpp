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

// One line of library identification ("kroIP SSE3 (t3) 2026.0.0 (r0x00000001), Nov 2 2026").
std::string libraryLine();

} // namespace kroi_tool
