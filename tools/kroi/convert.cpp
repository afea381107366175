// `kroi convert` and `kroi scale`: the Convert and Scale family on PNG files, 8- and 16-bit.
//
//   kroi convert IN.png OUT.png --to 8u|16u [--values] [--fast]
//     changes the sample depth.  By default the whole range maps onto the whole range
//     (kroiScale_8u16u: v x 257; kroiScale_16u8u: accurate, or the fast kernel with --fast);
//     --values keeps the values (kroiConvert_8u16u_*, kroiConvert_16u8u_* with saturation).
//   kroi scale IN.png OUT.png --mul M [--add A] [--to 8u|16u]
//     every sample times M plus A, rounded to nearest and saturated (kroiScaleC_*), written
//     at the input's depth or the one asked for.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <string>

#include "commands.hpp"
#include "png_io.hpp"

namespace kroi_tool {

namespace {

struct Options {
    std::string in, out;
    int toDepth = 0;  // 0: the input's
    bool values = false, fast = false;
    double mul = 1.0, add = 0.0;
    bool haveMul = false;
};

// Parses the common arguments; returns false (after a message) on bad usage.
bool parse(const char* cmd, const Args& args, Options& o, bool scaleFlags)
{
    auto bad = [&](const std::string& why) {
        std::fprintf(stderr, "kroi %s: %s\n", cmd, why.c_str());
        return false;
    };
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& a = args[i];
        auto next = [&]() -> const std::string* { return i + 1 < args.size() ? &args[++i] : nullptr; };
        if (a == "--to") {
            const std::string* v = next();
            if (!v || (*v != "8u" && *v != "16u")) return bad("--to takes 8u or 16u");
            o.toDepth = *v == "8u" ? 8 : 16;
        } else if (!scaleFlags && a == "--values") {
            o.values = true;
        } else if (!scaleFlags && a == "--fast") {
            o.fast = true;
        } else if (scaleFlags && (a == "--mul" || a == "--add")) {
            const std::string* v = next();
            char* end = nullptr;
            const double d = v ? std::strtod(v->c_str(), &end) : 0.0;
            if (!v || v->empty() || *end != '\0') return bad(a + " takes a number");
            (a == "--mul" ? o.mul : o.add) = d;
            o.haveMul |= a == "--mul";
        } else if (!a.empty() && a[0] == '-') {
            return bad("unknown option " + a);
        } else if (o.in.empty()) {
            o.in = a;
        } else if (o.out.empty()) {
            o.out = a;
        } else {
            return bad("too many file names");
        }
    }
    if (o.out.empty()) return bad("needs IN.png and OUT.png");
    if (!scaleFlags && o.toDepth == 0) return bad("needs --to 8u or --to 16u");
    if (scaleFlags && !o.haveMul) return bad("needs --mul M");
    return true;
}

void check(KroStatus st, const char* what)
{
    if (st < 0) throw std::runtime_error(std::string(what) + " returned " + std::to_string(st));
}

// Calls the member of the image's channel layout: C1, C3 or C4; two channels (gray and
// alpha) run as C1 over twice the width, the conversion being element by element.
template <class S, class D>
KroStatus byLayout(const Image& in, Image& out, KroStatus (*c1)(const S*, int, D*, int, KroiSize),
                   KroStatus (*c3)(const S*, int, D*, int, KroiSize), KroStatus (*c4)(const S*, int, D*, int, KroiSize))
{
    const S* s = in.row<S>(0);
    D* d = out.row<D>(0);
    if (in.channels == 3) return c3(s, in.step, d, out.step, {in.width, in.height});
    if (in.channels == 4) return c4(s, in.step, d, out.step, {in.width, in.height});
    return c1(s, in.step, d, out.step, {in.width * in.channels, in.height});
}

} // namespace

int runConvert(const Args& args)
{
    Options o;
    if (!parse("convert", args, o, false)) return kExitUsage;
    const Image in = readPng(o.in);
    Image out(in.width, in.height, in.channels, o.toDepth);
    if (in.depth == o.toDepth) {
        for (int y = 0; y < in.height; ++y) std::memcpy(out.row<Kro8u>(y), in.row<Kro8u>(y), in.rowBytes());
    } else if (o.toDepth == 16) {
        check(o.values ? byLayout(in, out, kroiConvert_8u16u_C1R, kroiConvert_8u16u_C3R, kroiConvert_8u16u_C4R)
                       : byLayout(in, out, kroiScale_8u16u_C1R, kroiScale_8u16u_C3R, kroiScale_8u16u_C4R),
              "kroiScale_8u16u");
    } else if (o.values) {
        check(byLayout(in, out, kroiConvert_16u8u_C1R, kroiConvert_16u8u_C3R, kroiConvert_16u8u_C4R),
              "kroiConvert_16u8u");
    } else {
        // The hint is bound here; the layouts differ only in their function.
        const KroAlgorithmHint hint = o.fast ? kroHintFast : kroHintAccurate;
        const Kro16u* s = in.row<Kro16u>(0);
        Kro8u* d = out.row<Kro8u>(0);
        const KroStatus st =
            in.channels == 3   ? kroiScale_16u8u_C3R(s, in.step, d, out.step, {in.width, in.height}, hint)
            : in.channels == 4 ? kroiScale_16u8u_C4R(s, in.step, d, out.step, {in.width, in.height}, hint)
                               : kroiScale_16u8u_C1R(s, in.step, d, out.step, {in.width * in.channels, in.height}, hint);
        check(st, "kroiScale_16u8u");
    }
    writePng(o.out, out);
    std::printf("%s: %s to %d-bit\n", o.out.c_str(), describe(in).c_str(), o.toDepth);
    return kExitOk;
}

int runScale(const Args& args)
{
    Options o;
    if (!parse("scale", args, o, true)) return kExitUsage;
    const Image in = readPng(o.in);
    const int depth = o.toDepth ? o.toDepth : in.depth;
    Image out(in.width, in.height, in.channels, depth);
    const KroiSize roi{in.width * in.channels, in.height};  // ScaleC is C1: samples one by one
    KroStatus st;
    if (in.depth == 8)
        st = depth == 8 ? kroiScaleC_8u_C1R(in.row<Kro8u>(0), in.step, out.row<Kro8u>(0), out.step, roi, o.mul, o.add)
                        : kroiScaleC_8u16u_C1R(in.row<Kro8u>(0), in.step, out.row<Kro16u>(0), out.step, roi, o.mul, o.add);
    else
        st = depth == 8 ? kroiScaleC_16u8u_C1R(in.row<Kro16u>(0), in.step, out.row<Kro8u>(0), out.step, roi, o.mul, o.add)
                        : kroiScaleC_16u_C1R(in.row<Kro16u>(0), in.step, out.row<Kro16u>(0), out.step, roi, o.mul, o.add);
    check(st, "kroiScaleC");
    writePng(o.out, out);
    std::printf("%s: %s times %g plus %g, %d-bit\n", o.out.c_str(), describe(in).c_str(), o.mul, o.add, depth);
    return kExitOk;
}

} // namespace kroi_tool
