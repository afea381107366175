// The demo registry: each entry runs library calls on the built-in sample and returns the
// image they made.  `kroi demo` writes every result beside its input into a gallery and
// times the calls.
//
// Adding an entry: write a function `Image name(DemoContext&)` in the family's own
// tools/kroi/demo_<family>.cpp, declare it in the family's block below, and add one line to
// the family's block of the table in demo_entries.cpp.
#pragma once

#include <algorithm>
#include <chrono>
#include <span>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

#include "png_io.hpp"

namespace kroi_tool {

// What an entry sees: the inputs, and a stopwatch for exactly the calls its call text shows.
class DemoContext {
public:
    DemoContext(const Image& scene, const Image& second, int runs)
        : scene_(scene), second_(second), runs_(runs)
    {
    }

    // The sample scene: 8-bit RGB, 512 x 384.
    const Image& first() const { return scene_; }
    // A second input of the same size and type for calls that take two sources; asking for
    // it puts it beside the result in the gallery.
    const Image& second()
    {
        usedSecond_ = true;
        return second_;
    }

    // Runs `call` once to warm caches and fault in the output's pages, then `runs` times
    // under the clock, and keeps the median.  `call` returns a KroStatus or nothing; the
    // status of the last run is returned, and a negative one throws, naming `what`.
    template <class F>
    KroStatus time(const char* what, F&& call)
    {
        std::vector<double> ms;
        KroStatus status = once(call);
        for (int i = 0; i < runs_; ++i) {
            const auto t0 = std::chrono::steady_clock::now();
            status = once(call);
            const auto t1 = std::chrono::steady_clock::now();
            ms.push_back(std::chrono::duration<double, std::milli>(t1 - t0).count());
        }
        std::nth_element(ms.begin(), ms.begin() + ms.size() / 2, ms.end());
        medianMs_ = ms[ms.size() / 2];
        if (status < 0) throw std::runtime_error(std::string(what) + " returned " + std::to_string(status));
        return status;
    }

    // A line for the gallery about what the program did around the calls (copying pixels
    // in, choosing values), so that no reader takes the program's work for the library's.
    std::string note;

    // Set by an entry whose timed call does not pass over the result's pixels (an
    // allocation): the gallery then gives its time per call and no pixel rate.
    bool perCallOnly = false;

    bool usedSecond() const { return usedSecond_; }
    double medianMs() const { return medianMs_; } // negative until time() ran
    int runs() const { return runs_; }

private:
    template <class F>
    static KroStatus once(F& call)
    {
        if constexpr (std::is_void_v<decltype(call())>) {
            call();
            return kroStsOk;
        } else {
            return call();
        }
    }

    const Image& scene_;
    const Image& second_;
    int runs_;
    bool usedSecond_ = false;
    double medianMs_ = -1.0;
};

using DemoRun = Image (*)(DemoContext&);

struct DemoEntry {
    const char* name; // file name of the result and row of the timing table
    const char* call; // the C call text the gallery shows under the result
    DemoRun run;
};

// The registry, in gallery order (demo_entries.cpp).
std::span<const DemoEntry> demoEntries();

// The families' entry functions, each in tools/kroi/demo_<family>.cpp.
// section COPYSET
Image demoSetMasked(DemoContext& ctx);
Image demoCopyMasked(DemoContext& ctx);
Image demoExtractGreen(DemoContext& ctx);
Image demoClearBlue(DemoContext& ctx);
Image demoPlanesSwapped(DemoContext& ctx);
// end of section COPYSET
// section ARITH
Image demoArithAdd(DemoContext& ctx);
Image demoArithSub(DemoContext& ctx);
Image demoArithMul(DemoContext& ctx);
Image demoArithDiv(DemoContext& ctx);
// end of section ARITH
// section ARITHC
Image demoAddC(DemoContext& ctx);    // demo_arithc.cpp
Image demoMulC(DemoContext& ctx);    // demo_arithc.cpp
Image demoNot(DemoContext& ctx);     // demo_arithc.cpp
Image demoAndC(DemoContext& ctx);    // demo_arithc.cpp
Image demoXor(DemoContext& ctx);     // demo_arithc.cpp
Image demoRShiftC(DemoContext& ctx); // demo_arithc.cpp
// end of section ARITHC
// section CONVERT
Image scale8u16u(DemoContext& ctx);
Image stretch32f8u(DemoContext& ctx);
Image scaleC8u(DemoContext& ctx);
// end of section CONVERT
// section LAYOUT
Image mirrorBoth8u(DemoContext& ctx);
Image transpose8u(DemoContext& ctx);
Image swapBgr8u(DemoContext& ctx);
// end of section LAYOUT
// section COMPARE
Image compareGe8u(DemoContext& ctx);
// end of section COMPARE
// section BORDER
Image demoMirrorBorder(DemoContext& ctx); // demo_border.cpp
Image demoBox(DemoContext& ctx);          // demo_border.cpp
// end of section BORDER
// section MINMAX
Image dilate8u(DemoContext& ctx); // demo_minmax.cpp
Image erode8u(DemoContext& ctx);
Image opening8u(DemoContext& ctx);
// end of section MINMAX
// section MOMHIST
Image histogram8u(DemoContext& ctx); // demo_momhist.cpp
Image moments8u(DemoContext& ctx);
// end of section MOMHIST
// section UNARY
Image sqrt8u(DemoContext& ctx);      // demo_unary.cpp
Image zonePlate8u(DemoContext& ctx);
Image gaussNoise8u(DemoContext& ctx);
// end of section UNARY
// section LUTALPHA
Image lutGamma8u(DemoContext& ctx);  // demo_lutalpha.cpp
Image lutCubic8u(DemoContext& ctx);  // demo_lutalpha.cpp
Image alphaOps8u(DemoContext& ctx);  // demo_lutalpha.cpp
// end of section LUTALPHA
// section SMOOTH
Image medianSaltPepper(DemoContext& ctx); // demo_smooth.cpp
Image gaussBlur(DemoContext& ctx);
Image sobelEdges(DemoContext& ctx);
Image sharpen8u(DemoContext& ctx);
// end of section SMOOTH
// section THRESHOLD
Image thresholdGt8u(DemoContext& ctx); // demo_threshold.cpp
Image thresholdOtsu8u(DemoContext& ctx);
Image thresholdAdaptive8u(DemoContext& ctx);
// end of section THRESHOLD

// The built-in inputs (sample.cpp): deterministic, the same on every run.
Image makeScene(int width, int height);  // 8-bit RGB scene
Image makeSecond(int width, int height); // 8-bit RGB pattern, the second source

} // namespace kroi_tool
