// `kroi add|sub|mul|div A.png B.png OUT.png [--scale S]`: OUT = A + B, A - B, A x B, A / B,
// each element times 2^-S (default 0), rounded to nearest with ties to even and saturated, by
// the library's two-image arithmetic.  8- and 16-bit images of any colour type; both inputs
// must match in size, channels and depth.  Alpha is computed like any other channel.
#include <cstdio>
#include <exception>
#include <stdexcept>
#include <string>

#include "commands.hpp"
#include "kroi.h"
#include "png_io.hpp"

namespace kroi_tool {

namespace {

enum class Which { Add, Sub, Mul, Div };

template <class T>
using Fn = KroStatus (*)(const T*, int, const T*, int, T*, int, KroiSize, int);

// The C1, C3 and C4 forms of one operation; 2-channel images run as C1 rows of twice the width.
template <class T>
struct Forms {
    Fn<T> c1, c3, c4;
};

template <class T>
Forms<T> forms(Which w);

template <>
Forms<Kro8u> forms<Kro8u>(Which w)
{
    switch (w) {
    case Which::Add: return {kroiAdd_8u_C1RSfs, kroiAdd_8u_C3RSfs, kroiAdd_8u_C4RSfs};
    case Which::Sub: return {kroiSub_8u_C1RSfs, kroiSub_8u_C3RSfs, kroiSub_8u_C4RSfs};
    case Which::Mul: return {kroiMul_8u_C1RSfs, kroiMul_8u_C3RSfs, kroiMul_8u_C4RSfs};
    default: return {kroiDiv_8u_C1RSfs, kroiDiv_8u_C3RSfs, kroiDiv_8u_C4RSfs};
    }
}

template <>
Forms<Kro16u> forms<Kro16u>(Which w)
{
    switch (w) {
    case Which::Add: return {kroiAdd_16u_C1RSfs, kroiAdd_16u_C3RSfs, kroiAdd_16u_C4RSfs};
    case Which::Sub: return {kroiSub_16u_C1RSfs, kroiSub_16u_C3RSfs, kroiSub_16u_C4RSfs};
    case Which::Mul: return {kroiMul_16u_C1RSfs, kroiMul_16u_C3RSfs, kroiMul_16u_C4RSfs};
    default: return {kroiDiv_16u_C1RSfs, kroiDiv_16u_C3RSfs, kroiDiv_16u_C4RSfs};
    }
}

template <class T>
KroStatus apply(Which w, const Image& a, const Image& b, Image& out, int scale)
{
    const Forms<T> f = forms<T>(w);
    Fn<T> fn = a.channels == 3 ? f.c3 : a.channels == 4 ? f.c4 : f.c1;
    const int width = a.channels == 2 ? 2 * a.width : a.width;
    // The library takes the subtrahend and the divisor first: B, then A.
    return fn(b.row<T>(0), b.step, a.row<T>(0), a.step, out.row<T>(0), out.step, {width, a.height}, scale);
}

int run(Which w, const Args& args)
{
    if (args.size() != 3 && !(args.size() == 5 && args[3] == "--scale")) {
        std::fprintf(stderr, "usage: kroi add|sub|mul|div A.png B.png OUT.png [--scale S]\n");
        return kExitUsage;
    }
    try {
        int scale = 0;
        if (args.size() == 5) {
            std::size_t used = 0;
            scale = std::stoi(args[4], &used);
            if (used != args[4].size()) throw std::invalid_argument("scale");
        }
        const Image a = readPng(args[0]), b = readPng(args[1]);
        if (a.width != b.width || a.height != b.height || a.channels != b.channels || a.depth != b.depth) {
            std::fprintf(stderr, "kroi: %s is %dx%d %s, %s is %dx%d %s: they must match\n", args[0].c_str(),
                         a.width, a.height, describe(a).c_str(), args[1].c_str(), b.width, b.height,
                         describe(b).c_str());
            return kExitFailure;
        }
        Image out(a.width, a.height, a.channels, a.depth);
        const KroStatus st = a.depth == 8 ? apply<Kro8u>(w, a, b, out, scale) : apply<Kro16u>(w, a, b, out, scale);
        if (st < 0) {
            std::fprintf(stderr, "kroi: the library returned status %d\n", st);
            return kExitFailure;
        }
        if (st == kroStsZeroDivisorWarn)
            std::fprintf(stderr, "kroi: warning: zero divisors met; those elements are the type's maximum or 0\n");
        writePng(args[2], out);
        return kExitOk;
    } catch (const std::logic_error&) { // from std::stoi: not an integer, or out of range
        std::fprintf(stderr, "kroi: --scale takes an integer\n");
        return kExitUsage;
    } catch (const std::exception& e) {
        std::fprintf(stderr, "kroi: %s\n", e.what());
        return kExitFailure;
    }
}

} // namespace

int runArithAdd(const Args& args) { return run(Which::Add, args); }
int runArithSub(const Args& args) { return run(Which::Sub, args); }
int runArithMul(const Args& args) { return run(Which::Mul, args); }
int runArithDiv(const Args& args) { return run(Which::Div, args); }

} // namespace kroi_tool
