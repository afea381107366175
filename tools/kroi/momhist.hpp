// Shared by `kroi hist`, `kroi moments` and their demo entries.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

#include "kroi.h"
#include "png_io.hpp"

namespace kroi_tool {

// Counts per channel over `bins` uniform bins covering the image's whole sample range
// (0..255 or 0..65535), through kroiHistogram_<8u|16u>_<C1|C3|C4>R.  Gray+alpha is refused
// (std::runtime_error).  `call` wraps the library call, so that the demo can time it.
template <class Call>
std::vector<std::vector<Kro32u>> histogramOf(const Image& img, int bins, Call&& call);

// A bar chart of the counts, one panel per channel stacked top to bottom, drawn by the
// program itself: 8-bit RGB.
Image plotHistogram(const std::vector<std::vector<Kro32u>>& counts);

// Centroid, orientation (degrees, of the major axis from the x axis, y down) and the seven
// Hu invariants of one channel of a state.
struct MomentSummary {
    double mass = 0, cx = 0, cy = 0, angle = 0;
    double hu[7] = {};
    KroStatus status = kroStsOk;
};
MomentSummary summarise(const KroiMomentState64f& state, int channel);
std::string describe(const MomentSummary& m);

// ---- implementation of the template --------------------------------------------------------

template <class Call>
std::vector<std::vector<Kro32u>> histogramOf(const Image& img, int bins, Call&& call)
{
    if (img.channels == 2) throw std::runtime_error("gray+alpha images are not supported");
    const KroDataType type = img.depth == 8 ? kro8u : kro16u;
    const int ch = img.channels;
    std::vector<int> levels(size_t(ch), bins + 1);
    std::vector<float> lo(size_t(ch), 0.f), hi(size_t(ch), img.depth == 8 ? 256.f : 65536.f);
    int specSize = 0, bufSize = 0;
    const KroiSize roi{img.width, img.height};
    KroStatus s = kroiHistogramGetBufferSize(type, roi, levels.data(), ch, 1, &specSize, &bufSize);
    if (s < 0) throw std::runtime_error("kroiHistogramGetBufferSize returned " + std::to_string(s));
    std::vector<uint64_t> spec(size_t(specSize) / 8 + 1); // 8-byte aligned for the structure
    std::vector<Kro8u> buffer(static_cast<size_t>(bufSize));
    auto* sp = reinterpret_cast<KroiHistogramSpec*>(spec.data());
    s = kroiHistogramUniformInit(type, lo.data(), hi.data(), levels.data(), ch, sp);
    if (s < 0) throw std::runtime_error("kroiHistogramUniformInit returned " + std::to_string(s));
    std::vector<std::vector<Kro32u>> counts(static_cast<size_t>(ch), std::vector<Kro32u>(static_cast<size_t>(bins)));
    Kro32u* h[4] = {};
    for (int c = 0; c < ch; ++c) h[c] = counts[size_t(c)].data();
    call([&] {
        if (type == kro8u) {
            const Kro8u* p = img.row<Kro8u>(0);
            if (ch == 1) return kroiHistogram_8u_C1R(p, img.step, roi, h[0], sp, buffer.data());
            if (ch == 3) return kroiHistogram_8u_C3R(p, img.step, roi, h, sp, buffer.data());
            return kroiHistogram_8u_C4R(p, img.step, roi, h, sp, buffer.data());
        }
        const Kro16u* p = img.row<Kro16u>(0);
        if (ch == 1) return kroiHistogram_16u_C1R(p, img.step, roi, h[0], sp, buffer.data());
        if (ch == 3) return kroiHistogram_16u_C3R(p, img.step, roi, h, sp, buffer.data());
        return kroiHistogram_16u_C4R(p, img.step, roi, h, sp, buffer.data());
    });
    return counts;
}

} // namespace kroi_tool
