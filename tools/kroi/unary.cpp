// `kroi math sqrt|sqr|exp|ln|abs IN.png OUT.png [--scale S]`: element-wise mathematics.
// `kroi ramp|zoneplate|checker OUT.png WxH [--cell N]`: generated 8-bit gray images.
// `kroi noise IN.png OUT.png --gauss SIGMA|--uniform LO,HI [--seed S]`: additive noise.
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <stdexcept>
#include <string>

#include "commands.hpp"
#include "unary.hpp"

namespace kroi_tool {

namespace {

bool parseInt(const std::string& s, long lo, long hi, long* out)
{
    char* end = nullptr;
    const long v = std::strtol(s.c_str(), &end, 10);
    if (s.empty() || *end || v < lo || v > hi) return false;
    *out = v;
    return true;
}

bool parseFloat(const std::string& s, float* out)
{
    char* end = nullptr;
    const float v = std::strtof(s.c_str(), &end);
    if (s.empty() || *end) return false;
    *out = v;
    return true;
}

// "640x480".
bool parseSize(const std::string& s, KroiSize* out)
{
    const auto x = s.find('x');
    long w, h;
    if (x == std::string::npos || !parseInt(s.substr(0, x), 1, 16384, &w) || !parseInt(s.substr(x + 1), 1, 16384, &h))
        return false;
    *out = {int(w), int(h)};
    return true;
}

} // namespace

// ---- the operations on an image, shared with the demo entries ---------------------------------------

bool mathOpFromName(const std::string& name, MathOp* op)
{
    static const char* names[] = {"sqrt", "sqr", "exp", "ln", "abs"};
    for (int k = 0; k < 5; ++k)
        if (name == names[k]) return *op = MathOp(k), true;
    return false;
}

KroStatus applyMath(MathOp op, const Image& in, Image& out, int scale)
{
    const KroiSize roi{in.width * in.channels, in.height}; // every sample alike: one channel, wider
    if (op == MathOp::Abs) {
        // |x - mid| x 2: the distance from mid-gray, through 16s.
        const int mid = in.depth == 8 ? 128 : 32768;
        Image t(in.width * in.channels, in.height, 1, 16);
        for (int y = 0; y < in.height; ++y)
            for (int x = 0; x < roi.width; ++x) {
                const int v = in.depth == 8 ? in.row<uint8_t>(y)[x] : in.row<uint16_t>(y)[x];
                t.row<int16_t>(y)[x] = int16_t((v - mid) / (in.depth == 8 ? 1 : 2));
            }
        const KroStatus s = kroiAbs_16s_C1IR(t.row<Kro16s>(0), t.step, roi);
        for (int y = 0; y < in.height; ++y)
            for (int x = 0; x < roi.width; ++x) {
                const int v = t.row<int16_t>(y)[x] * (in.depth == 8 ? 2 : 4);
                if (in.depth == 8) out.row<uint8_t>(y)[x] = uint8_t(v > 255 ? 255 : v);
                else out.row<uint16_t>(y)[x] = uint16_t(v > 65535 ? 65535 : v);
            }
        return s;
    }
    if (in.depth == 8) {
        const Kro8u* s = in.row<Kro8u>(0);
        Kro8u* d = out.row<Kro8u>(0);
        switch (op) {
        case MathOp::Sqrt: return kroiSqrt_8u_C1RSfs(s, in.step, d, out.step, roi, scale);
        case MathOp::Sqr: return kroiSqr_8u_C1RSfs(s, in.step, d, out.step, roi, scale);
        case MathOp::Exp: return kroiExp_8u_C1RSfs(s, in.step, d, out.step, roi, scale);
        default: return kroiLn_8u_C1RSfs(s, in.step, d, out.step, roi, scale);
        }
    }
    const Kro16u* s = in.row<Kro16u>(0);
    Kro16u* d = out.row<Kro16u>(0);
    if (op == MathOp::Sqrt) return kroiSqrt_16u_C1RSfs(s, in.step, d, out.step, roi, scale);
    if (op == MathOp::Sqr) return kroiSqr_16u_C1RSfs(s, in.step, d, out.step, roi, scale);
    // Exp and Ln of 16-bit samples through 16s: the samples halved into 0..32767, the results
    // clamped at 0.
    Image t(roi.width, in.height, 1, 16);
    for (int y = 0; y < in.height; ++y)
        for (int x = 0; x < roi.width; ++x) t.row<int16_t>(y)[x] = int16_t(s[std::ptrdiff_t(y) * in.step / 2 + x] >> 1);
    const KroStatus st = op == MathOp::Exp ? kroiExp_16s_C1IRSfs(t.row<Kro16s>(0), t.step, roi, scale)
                                           : kroiLn_16s_C1IRSfs(t.row<Kro16s>(0), t.step, roi, scale);
    for (int y = 0; y < in.height; ++y)
        for (int x = 0; x < roi.width; ++x) {
            const int v = t.row<int16_t>(y)[x];
            out.row<uint16_t>(y)[x] = uint16_t(v < 0 ? 0 : v);
        }
    return st;
}

// ---- the commands -------------------------------------------------------------------------------------

int runMath(const Args& args)
{
    MathOp op;
    long scale = 0;
    const bool ok = (args.size() == 3 || (args.size() == 5 && args[3] == "--scale" &&
                                          parseInt(args[4], -64, 64, &scale))) &&
                    mathOpFromName(args[0], &op);
    if (!ok) {
        std::fprintf(stderr, "usage: kroi math sqrt|sqr|exp|ln|abs IN.png OUT.png [--scale S]  (S from -64 to 64)\n");
        return kExitUsage;
    }
    try {
        const Image in = readPng(args[1]);
        Image out(in.width, in.height, in.channels, in.depth);
        const KroStatus s = applyMath(op, in, out, int(scale));
        if (s < 0) throw std::runtime_error("the library returned " + std::to_string(s));
        if (s > 0) std::fprintf(stderr, "kroi math: warning %d (%s)\n", s, s == 7 ? "logarithm of zero" : "negative root");
        writePng(args[2], out);
    } catch (const std::exception& e) {
        std::fprintf(stderr, "kroi math: %s\n", e.what());
        return kExitFailure;
    }
    return kExitOk;
}

Image generatePattern(Pattern p, KroiSize size, int cell)
{
    Image out(size.width, size.height, 1, 8);
    KroStatus s;
    Kro8u* d = out.row<Kro8u>(0);
    if (p == Pattern::Ramp)
        s = kroiImageRamp_8u_C1R(d, out.step, size, 0.0f, size.width > 1 ? 255.0f / float(size.width - 1) : 0.0f,
                                 kroRampAxisX);
    else if (p == Pattern::ZonePlate) s = kroiImageZonePlate_8u_C1R(d, out.step, size);
    else s = kroiImageCheckerboard_8u_C1R(d, out.step, size, cell, 255, 0);
    if (s < 0) throw std::runtime_error("the library returned " + std::to_string(s));
    return out;
}

namespace {

int runPattern(Pattern p, const char* name, const Args& args)
{
    KroiSize size;
    long cell = 32;
    const bool ok = (args.size() == 2 || (p == Pattern::Checker && args.size() == 4 && args[2] == "--cell" &&
                                          parseInt(args[3], 1, 1 << 30, &cell))) &&
                    parseSize(args[1], &size);
    if (!ok) {
        std::fprintf(stderr, "usage: kroi %s OUT.png WxH%s\n", name, p == Pattern::Checker ? " [--cell N]" : "");
        return kExitUsage;
    }
    try {
        writePng(args[0], generatePattern(p, size, int(cell)));
    } catch (const std::exception& e) {
        std::fprintf(stderr, "kroi %s: %s\n", name, e.what());
        return kExitFailure;
    }
    return kExitOk;
}

} // namespace

int runRamp(const Args& args) { return runPattern(Pattern::Ramp, "ramp", args); }
int runZonePlate(const Args& args) { return runPattern(Pattern::ZonePlate, "zoneplate", args); }
int runChecker(const Args& args) { return runPattern(Pattern::Checker, "checker", args); }

KroStatus addNoise(Image& img, const NoiseParams& n, unsigned int* seed)
{
    const KroiSize roi{img.width * img.channels, img.height};
    if (img.depth == 8)
        return n.gauss ? kroiAddRandGauss_8u_C1IR(img.row<Kro8u>(0), img.step, roi, 0.0f, n.a, seed)
                       : kroiAddRandUniform_8u_C1IR(img.row<Kro8u>(0), img.step, roi, n.a, n.b, seed);
    return n.gauss ? kroiAddRandGauss_16u_C1IR(img.row<Kro16u>(0), img.step, roi, 0.0f, n.a, seed)
                   : kroiAddRandUniform_16u_C1IR(img.row<Kro16u>(0), img.step, roi, n.a, n.b, seed);
}

int runNoise(const Args& args)
{
    NoiseParams n;
    long seed = 1;
    bool ok = args.size() == 4 || (args.size() == 6 && args[4] == "--seed" && parseInt(args[5], 0, 4294967295L, &seed));
    if (ok && args[2] == "--gauss") {
        n.gauss = true;
        ok = parseFloat(args[3], &n.a) && n.a >= 0;
    } else if (ok && args[2] == "--uniform") {
        const auto comma = args[3].find(',');
        ok = comma != std::string::npos && parseFloat(args[3].substr(0, comma), &n.a) &&
             parseFloat(args[3].substr(comma + 1), &n.b) && n.a < n.b;
    } else {
        ok = false;
    }
    if (!ok) {
        std::fprintf(stderr, "usage: kroi noise IN.png OUT.png --gauss SIGMA|--uniform LO,HI [--seed S]\n");
        return kExitUsage;
    }
    try {
        Image img = readPng(args[0]);
        unsigned int state = unsigned(seed);
        const KroStatus s = addNoise(img, n, &state);
        if (s < 0) throw std::runtime_error("the library returned " + std::to_string(s));
        writePng(args[1], img);
    } catch (const std::exception& e) {
        std::fprintf(stderr, "kroi noise: %s\n", e.what());
        return kExitFailure;
    }
    return kExitOk;
}

} // namespace kroi_tool
