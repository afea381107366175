// `kroi lut IN.png OUT.png --curve gamma:G|levels:L0=V0,L1=V1,... [--interp nearest|linear|cubic]`:
// every colour channel through one tone curve (alpha kept).
// `kroi composite A.png B.png OUT.png --op over|in|out|atop|xor|plus [--alpha A1,A2]`: A
// composed onto B, with the alphas of the PNGs' alpha channels or with two constants.
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <stdexcept>
#include <string>
#include <vector>

#include "commands.hpp"
#include "kroi.h"
#include "lutalpha.hpp"
#include "png_io.hpp"

namespace kroi_tool {

namespace {

long parseLong(const std::string& s, const char* what)
{
    char* end = nullptr;
    const long v = std::strtol(s.c_str(), &end, 10);
    if (s.empty() || *end) throw std::invalid_argument(std::string("bad ") + what + " '" + s + "'");
    return v;
}

}  // namespace

ToneCurve gammaCurve(double gamma, int depth)
{
    // Levels 0, 1, ..., 256 scaled to the depth; the values follow max (v / max)^(1/G).
    ToneCurve c;
    const double top = depth == 8 ? 255.0 : 65535.0, unit = depth == 8 ? 1.0 : 256.0;
    for (int i = 0; i <= 256; ++i) {
        const double v = std::min(i * unit, top);
        c.levels.push_back(Kro32s(i * unit));
        c.values.push_back(Kro32s(std::lround(top * std::pow(v / top, 1.0 / gamma))));
    }
    c.interp = depth == 8 ? kroInterNearest : kroInterLinear;
    return c;
}

KroStatus applyCurve(Image& img, const ToneCurve& curve)
{
    const int n[4] = {int(curve.levels.size()), int(curve.levels.size()), int(curve.levels.size()), 2};
    const int layout = img.channels == 1 ? kroC1 : img.channels == 3 ? kroC3 : kroAC4;
    const Kro32s* L[3] = {curve.levels.data(), curve.levels.data(), curve.levels.data()};
    const Kro32s* V[3] = {curve.values.data(), curve.values.data(), curve.values.data()};
    const KroiSize roi{img.width, img.height};
    int size = 0;
    KroStatus s = kroiLUT_GetSize(curve.interp, img.depth == 8 ? kro8u : kro16u, layout, roi, n, &size);
    if (s < 0) return s;
    std::vector<unsigned char> block(static_cast<size_t>(size));
    auto* spec = reinterpret_cast<KroiLUTSpec*>(block.data());
    s = img.depth == 8 ? kroiLUT_Init_8u(curve.interp, layout, roi, V, L, n, spec)
                       : kroiLUT_Init_16u(curve.interp, layout, roi, V, L, n, spec);
    if (s < 0) return s;
    // In place: the alpha of RGBA images stays (the AC4 forms never write it).
    if (img.depth == 8) {
        Kro8u* p = img.row<Kro8u>(0);
        return layout == kroC1 ? kroiLUT_8u_C1IR(p, img.step, roi, spec)
               : layout == kroC3 ? kroiLUT_8u_C3IR(p, img.step, roi, spec)
                                 : kroiLUT_8u_AC4IR(p, img.step, roi, spec);
    }
    Kro16u* p = img.row<Kro16u>(0);
    return layout == kroC1 ? kroiLUT_16u_C1IR(p, img.step, roi, spec)
           : layout == kroC3 ? kroiLUT_16u_C3IR(p, img.step, roi, spec)
                             : kroiLUT_16u_AC4IR(p, img.step, roi, spec);
}

int runLut(const Args& args)
{
    auto usage = [] {
        std::fprintf(stderr,
                     "usage: kroi lut IN.png OUT.png --curve gamma:G|levels:L0=V0,L1=V1,... "
                     "[--interp nearest|linear|cubic]\n");
        return kExitUsage;
    };
    if (args.size() != 4 && args.size() != 6) return usage();
    if (args[2] != "--curve" || (args.size() == 6 && args[4] != "--interp")) return usage();
    try {
        Image img = readPng(args[0]);
        if (img.channels == 2) throw std::runtime_error("gray+alpha images are not supported");
        ToneCurve curve;
        const std::string& spec = args[3];
        if (spec.rfind("gamma:", 0) == 0) {
            char* end = nullptr;
            const double g = std::strtod(spec.c_str() + 6, &end);
            if (*end || !(g > 0.01 && g < 100)) throw std::invalid_argument("gamma takes a number from 0.01 to 100");
            curve = gammaCurve(g, img.depth);
        } else if (spec.rfind("levels:", 0) == 0) {
            std::string rest = spec.substr(7);
            size_t at = 0;
            while (at <= rest.size()) {
                const size_t comma = std::min(rest.find(',', at), rest.size());
                const std::string pair = rest.substr(at, comma - at);
                const size_t eq = pair.find('=');
                if (eq == std::string::npos) throw std::invalid_argument("levels are L=V pairs: '" + pair + "'");
                curve.levels.push_back(Kro32s(parseLong(pair.substr(0, eq), "level")));
                curve.values.push_back(Kro32s(parseLong(pair.substr(eq + 1), "value")));
                at = comma + 1;
            }
            if (curve.levels.size() < 2) throw std::invalid_argument("levels need at least two L=V pairs");
            curve.interp = kroInterLinear;
        } else {
            return usage();
        }
        if (args.size() == 6) {
            const std::string& m = args[5];
            curve.interp = m == "nearest" ? kroInterNearest : m == "linear" ? kroInterLinear
                           : m == "cubic" ? kroInterCubic : 0;
            if (!curve.interp) return usage();
        }
        const KroStatus s = applyCurve(img, curve);
        if (s < 0) throw std::runtime_error("the lookup table call returned " + std::to_string(s));
        writePng(args[1], img);
    } catch (const std::invalid_argument& e) {
        std::fprintf(stderr, "kroi lut: %s\n", e.what());
        return kExitUsage;
    } catch (const std::exception& e) {
        std::fprintf(stderr, "kroi lut: %s\n", e.what());
        return kExitFailure;
    }
    return kExitOk;
}

// B becomes the result: the in-place forms take the second source as the destination.
template <class T>
KroStatus composeInto(const Image& a, Image& b, int op, bool constant, long a1, long a2)
{
    const KroiSize roi{a.width, a.height};
    const T* pa = a.row<T>(0);
    T* pb = b.row<T>(0);
    if constexpr (sizeof(T) == 1) {
        if (!constant) return kroiAlphaComp_8u_AC4IR(pa, a.step, pb, b.step, roi, op);
        return a.channels == 1 ? kroiAlphaCompC_8u_C1IR(pa, a.step, T(a1), pb, b.step, T(a2), roi, op)
               : a.channels == 3 ? kroiAlphaCompC_8u_C3IR(pa, a.step, T(a1), pb, b.step, T(a2), roi, op)
                                 : kroiAlphaCompC_8u_AC4IR(pa, a.step, T(a1), pb, b.step, T(a2), roi, op);
    } else {
        if (!constant) return kroiAlphaComp_16u_AC4IR(pa, a.step, pb, b.step, roi, op);
        return a.channels == 1 ? kroiAlphaCompC_16u_C1IR(pa, a.step, T(a1), pb, b.step, T(a2), roi, op)
               : a.channels == 3 ? kroiAlphaCompC_16u_C3IR(pa, a.step, T(a1), pb, b.step, T(a2), roi, op)
                                 : kroiAlphaCompC_16u_AC4IR(pa, a.step, T(a1), pb, b.step, T(a2), roi, op);
    }
}

int alphaOpByName(const std::string& name)
{
    static const char* names[] = {"over", "in", "out", "atop", "xor", "plus"};
    for (int i = 0; i < 6; ++i)
        if (name == names[i]) return i;
    return -1;
}

int runComposite(const Args& args)
{
    auto usage = [] {
        std::fprintf(stderr, "usage: kroi composite A.png B.png OUT.png --op over|in|out|atop|xor|plus [--alpha A1,A2]\n");
        return kExitUsage;
    };
    if ((args.size() != 5 && args.size() != 7) || args[3] != "--op" || (args.size() == 7 && args[5] != "--alpha"))
        return usage();
    const int op = alphaOpByName(args[4]);
    if (op < 0) return usage();
    try {
        const Image a = readPng(args[0]);
        Image b = readPng(args[1]);
        if (a.width != b.width || a.height != b.height || a.channels != b.channels || a.depth != b.depth)
            throw std::runtime_error("A and B differ in size, channels or depth (" + describe(a) + ", " + describe(b) + ")");
        if (a.channels == 2) throw std::runtime_error("gray+alpha images are not supported");
        const bool constant = args.size() == 7;
        long a1 = 0, a2 = 0;
        if (constant) {
            const std::string& s = args[6];
            const size_t comma = s.find(',');
            if (comma == std::string::npos) return usage();
            const long top = a.depth == 8 ? 255 : 65535;
            try {
                a1 = parseLong(s.substr(0, comma), "alpha"), a2 = parseLong(s.substr(comma + 1), "alpha");
            } catch (const std::invalid_argument&) {
                return usage();
            }
            if (a1 < 0 || a2 < 0 || a1 > top || a2 > top) {
                std::fprintf(stderr, "kroi composite: alphas run from 0 to %ld for this depth\n", top);
                return kExitUsage;
            }
        } else if (a.channels != 4) {
            throw std::runtime_error("without --alpha both images need an alpha channel (RGBA)");
        }
        const KroStatus s = a.depth == 8 ? composeInto<Kro8u>(a, b, op, constant, a1, a2)
                                         : composeInto<Kro16u>(a, b, op, constant, a1, a2);
        if (s < 0) throw std::runtime_error("the composition call returned " + std::to_string(s));
        writePng(args[2], b);
    } catch (const std::exception& e) {
        std::fprintf(stderr, "kroi composite: %s\n", e.what());
        return kExitFailure;
    }
    return kExitOk;
}

}  // namespace kroi_tool
