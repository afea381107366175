// `kroi hist IN.png OUT.png [--bins N]`: per-channel histograms drawn as a bar chart.
// `kroi moments IN.png`: centroid, orientation and Hu invariants of each channel.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string>

#include "commands.hpp"
#include "momhist.hpp"

namespace kroi_tool {

namespace {

constexpr int kPanelWidth = 512, kPanelHeight = 160, kGap = 8;

// Bar colours: gray for one channel, then red, green, blue and a gray for alpha.
void barColour(int channels, int c, uint8_t (&rgb)[3])
{
    static const uint8_t colours[4][3] = {{200, 40, 40}, {40, 160, 40}, {40, 70, 200}, {110, 110, 110}};
    if (channels == 1) rgb[0] = rgb[1] = rgb[2] = 60;
    else std::copy(colours[c], colours[c] + 3, rgb);
}

} // namespace

Image plotHistogram(const std::vector<std::vector<Kro32u>>& counts)
{
    const int ch = int(counts.size());
    Image out(kPanelWidth, ch * (kPanelHeight + kGap) - kGap, 3, 8);
    for (int y = 0; y < out.height; ++y) std::fill(out.row<uint8_t>(y), out.row<uint8_t>(y) + 3 * out.width, 255);
    for (int c = 0; c < ch; ++c) {
        const auto& h = counts[size_t(c)];
        const double top = std::max<double>(1.0, *std::max_element(h.begin(), h.end()));
        uint8_t rgb[3];
        barColour(ch, c, rgb);
        const int y0 = c * (kPanelHeight + kGap);
        for (int x = 0; x < kPanelWidth; ++x) {
            const size_t bin = size_t(x) * h.size() / kPanelWidth;
            const int bar = int(std::lround(h[bin] / top * (kPanelHeight - 1)));
            for (int y = kPanelHeight - bar; y < kPanelHeight; ++y) std::copy(rgb, rgb + 3, out.row<uint8_t>(y0 + y) + 3 * x);
        }
    }
    return out;
}

MomentSummary summarise(const KroiMomentState64f& state, int channel)
{
    MomentSummary m;
    double mu20 = 0, mu02 = 0, mu11 = 0, m10 = 0, m01 = 0;
    const KroiPoint origin{0, 0};
    KroStatus s = kroiGetSpatialMoment_64f(&state, 0, 0, channel, origin, &m.mass);
    if (s >= 0) s = kroiGetSpatialMoment_64f(&state, 1, 0, channel, origin, &m10);
    if (s >= 0) s = kroiGetSpatialMoment_64f(&state, 0, 1, channel, origin, &m01);
    if (s >= 0) s = kroiGetCentralMoment_64f(&state, 2, 0, channel, &mu20);
    if (s >= 0) s = kroiGetCentralMoment_64f(&state, 0, 2, channel, &mu02);
    if (s >= 0) s = kroiGetCentralMoment_64f(&state, 1, 1, channel, &mu11);
    if (s >= 0) s = kroiGetHuMoments_64f(&state, channel, m.hu);
    m.status = s;
    if (s < 0) return m;
    m.cx = m10 / m.mass, m.cy = m01 / m.mass;
    m.angle = 0.5 * std::atan2(2 * mu11, mu20 - mu02) * 180.0 / M_PI;
    return m;
}

std::string describe(const MomentSummary& m)
{
    if (m.status < 0) return "no moments (status " + std::to_string(m.status) + ": the channel has no mass)";
    char line[512];
    std::snprintf(line, sizeof line, "mass %.6g, centroid (%.3f, %.3f), orientation %.2f deg, Hu", m.mass, m.cx, m.cy,
                  m.angle);
    std::string s = line;
    for (double h : m.hu) {
        std::snprintf(line, sizeof line, " %.4g", h);
        s += line;
    }
    return s;
}

int runHist(const Args& args)
{
    int bins = 256;
    if (!(args.size() == 2 || (args.size() == 4 && args[2] == "--bins"))) {
        std::fprintf(stderr, "usage: kroi hist IN.png OUT.png [--bins N]\n");
        return kExitUsage;
    }
    if (args.size() == 4) {
        char* end = nullptr;
        const long n = std::strtol(args[3].c_str(), &end, 10);
        if (*end || n < 1 || n > 65536) {
            std::fprintf(stderr, "kroi hist: --bins takes a count from 1 to 65536\n");
            return kExitUsage;
        }
        bins = int(n);
    }
    try {
        const Image in = readPng(args[0]);
        if (in.depth == 8 && bins > 256) throw std::runtime_error("an 8-bit image has at most 256 bins");
        KroStatus status = kroStsOk;
        const auto counts = histogramOf(in, bins, [&](auto&& f) { status = f(); });
        if (status < 0) throw std::runtime_error("kroiHistogram returned " + std::to_string(status));
        writePng(args[1], plotHistogram(counts));
    } catch (const std::exception& e) {
        std::fprintf(stderr, "kroi hist: %s\n", e.what());
        return kExitFailure;
    }
    return kExitOk;
}

int runMoments(const Args& args)
{
    if (args.size() != 1) {
        std::fprintf(stderr, "usage: kroi moments IN.png\n");
        return kExitUsage;
    }
    try {
        const Image in = readPng(args[0]);
        if (in.channels == 2) throw std::runtime_error("gray+alpha images are not supported");
        KroiMomentState64f state;
        kroiMomentInit_64f(&state, kroHintAccurate);
        const KroiSize roi{in.width, in.height};
        KroStatus s;
        if (in.depth == 8) {
            const Kro8u* p = in.row<Kro8u>(0);
            s = in.channels == 1 ? kroiMoments64f_8u_C1R(p, in.step, roi, &state)
                : in.channels == 3 ? kroiMoments64f_8u_C3R(p, in.step, roi, &state)
                                   : kroiMoments64f_8u_AC4R(p, in.step, roi, &state);
        } else {
            const Kro16u* p = in.row<Kro16u>(0);
            s = in.channels == 1 ? kroiMoments64f_16u_C1R(p, in.step, roi, &state)
                : in.channels == 3 ? kroiMoments64f_16u_C3R(p, in.step, roi, &state)
                                   : kroiMoments64f_16u_AC4R(p, in.step, roi, &state);
        }
        if (s < 0) throw std::runtime_error("kroiMoments64f returned " + std::to_string(s));
        static const char* names[] = {"red", "green", "blue"};
        for (int c = 0; c < state.numChannels; ++c)
            std::printf("%s: %s\n", in.channels == 1 ? "gray" : names[c], describe(summarise(state, c)).c_str());
    } catch (const std::exception& e) {
        std::fprintf(stderr, "kroi moments: %s\n", e.what());
        return kExitFailure;
    }
    return kExitOk;
}

} // namespace kroi_tool
