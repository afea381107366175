// `kroi threshold IN.png OUT.png --lt T|--gt T|--otsu|--adaptive WxH --delta D [--gauss SIGMA]`
//   --lt T, --gt T   raise to T what lies below it, or lower to T what lies above it (8- or
//                    16-bit gray, RGB, RGBA with alpha kept);
//   --otsu           8-bit gray to black and white at Otsu's threshold, which is printed;
//   --adaptive       8-bit gray to black and white against the mean of a W x W window (or
//                    its Gaussian-weighted mean with --gauss; SIGMA 0 picks one from W) less
//                    D; the border replicates the edge.
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <stdexcept>
#include <string>
#include <vector>

#include "commands.hpp"
#include "kroi.h"
#include "png_io.hpp"

namespace kroi_tool {

namespace {

bool number(const std::string& s, double& v)
{
    char* end = nullptr;
    v = std::strtod(s.c_str(), &end);
    return !s.empty() && !*end;
}

void need(KroStatus s, const char* what)
{
    if (s < 0) throw std::runtime_error(std::string(what) + " returned " + std::to_string(s));
}

template <class T>
KroStatus clamp(const Image& in, Image& out, bool below, T t)
{
    const T k[3] = {t, t, t};
    const auto* s = in.row<T>(0);
    auto* d = out.row<T>(0);
    const KroiSize roi{in.width, in.height};
    if constexpr (sizeof(T) == 1) {
        if (in.channels == 1) return below ? kroiThreshold_LT_8u_C1R(s, in.step, d, out.step, roi, t) : kroiThreshold_GT_8u_C1R(s, in.step, d, out.step, roi, t);
        if (in.channels == 3) return below ? kroiThreshold_LT_8u_C3R(s, in.step, d, out.step, roi, k) : kroiThreshold_GT_8u_C3R(s, in.step, d, out.step, roi, k);
        return below ? kroiThreshold_LT_8u_AC4R(s, in.step, d, out.step, roi, k) : kroiThreshold_GT_8u_AC4R(s, in.step, d, out.step, roi, k);
    } else {
        if (in.channels == 1) return below ? kroiThreshold_LT_16u_C1R(s, in.step, d, out.step, roi, t) : kroiThreshold_GT_16u_C1R(s, in.step, d, out.step, roi, t);
        if (in.channels == 3) return below ? kroiThreshold_LT_16u_C3R(s, in.step, d, out.step, roi, k) : kroiThreshold_GT_16u_C3R(s, in.step, d, out.step, roi, k);
        return below ? kroiThreshold_LT_16u_AC4R(s, in.step, d, out.step, roi, k) : kroiThreshold_GT_16u_AC4R(s, in.step, d, out.step, roi, k);
    }
}

} // namespace

int runThreshold(const Args& args)
{
    static const char* usage =
        "usage: kroi threshold IN.png OUT.png --lt T|--gt T|--otsu|--adaptive WxH --delta D [--gauss SIGMA]\n";
    double t = 0, delta = 0, sigma = 0;
    int mask = 0;
    bool gauss = false;
    const size_t n = args.size();
    bool ok = n >= 3;
    const std::string mode = ok ? args[2] : "";
    if (ok && (mode == "--lt" || mode == "--gt")) {
        ok = n == 4 && number(args[3], t) && t >= 0 && t <= 65535 && t == int(t);
    } else if (ok && mode == "--otsu") {
        ok = n == 3;
    } else if (ok && mode == "--adaptive") {
        int w = 0, h = 0;
        ok = (n == 6 || n == 8) && std::sscanf(args[3].c_str(), "%dx%d", &w, &h) == 2 && w == h && w >= 1 && (w & 1) &&
             args[4] == "--delta" && number(args[5], delta);
        if (ok && n == 8) {
            ok = args[6] == "--gauss" && number(args[7], sigma);
            gauss = true;
        }
        mask = w;
    } else {
        ok = false;
    }
    if (!ok) {
        std::fprintf(stderr, "%s    (the adaptive window is square with an odd side)\n", usage);
        return kExitUsage;
    }
    try {
        const Image in = readPng(args[0]);
        if (in.channels == 2) throw std::runtime_error("gray+alpha images are not supported");
        Image out(in.width, in.height, in.channels, in.depth);
        const KroiSize roi{in.width, in.height};
        if (mode == "--lt" || mode == "--gt") {
            if (in.depth == 8 && t > 255) throw std::runtime_error("an 8-bit threshold is at most 255");
            need(in.depth == 8 ? clamp<Kro8u>(in, out, mode == "--lt", Kro8u(t)) : clamp<Kro16u>(in, out, mode == "--lt", Kro16u(t)),
                 "kroiThreshold");
        } else {
            if (in.channels != 1 || in.depth != 8) throw std::runtime_error("needs an 8-bit gray image");
            const Kro8u* s = in.row<Kro8u>(0);
            Kro8u* d = out.row<Kro8u>(0);
            if (mode == "--otsu") {
                Kro8u level = 0;
                need(kroiComputeThreshold_Otsu_8u_C1R(s, in.step, roi, &level), "kroiComputeThreshold_Otsu");
                std::printf("threshold %d\n", level);
                need(kroiThreshold_GTVal_8u_C1R(s, in.step, d, out.step, roi, level, 255), "kroiThreshold_GTVal");
                if (level < 255) need(kroiThreshold_LTVal_8u_C1IR(d, out.step, roi, Kro8u(level + 1), 0), "kroiThreshold_LTVal");
            } else {
                int bytes = 0, specBytes = 0;
                need(kroiThresholdAdaptiveGaussGetBufferSize(roi, {mask, mask}, kro8u, 1, &specBytes, &bytes),
                     "kroiThresholdAdaptiveGaussGetBufferSize");
                std::vector<Kro8u> buffer(static_cast<size_t>(unsigned(bytes))), spec(static_cast<size_t>(specBytes));
                if (gauss) {
                    auto* sp = reinterpret_cast<KroiThresholdAdaptiveGaussSpec*>(spec.data());
                    need(kroiThresholdAdaptiveGaussInit(roi, {mask, mask}, kro8u, 1, sp, float(sigma)),
                         "kroiThresholdAdaptiveGaussInit");
                    need(kroiThresholdAdaptiveGauss_8u_C1R(s, in.step, d, out.step, roi, float(delta), 255, 0,
                                                           kroBorderReplicate, 0, sp, buffer.data()),
                         "kroiThresholdAdaptiveGauss");
                } else {
                    need(kroiThresholdAdaptiveBox_8u_C1R(s, in.step, d, out.step, roi, {mask, mask}, float(delta), 255,
                                                         0, kroBorderReplicate, 0, buffer.data()),
                         "kroiThresholdAdaptiveBox");
                }
            }
        }
        writePng(args[1], out);
    } catch (const std::exception& e) {
        std::fprintf(stderr, "kroi threshold: %s\n", e.what());
        return kExitFailure;
    }
    return kExitOk;
}

} // namespace kroi_tool
