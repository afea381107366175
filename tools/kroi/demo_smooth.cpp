// Demo entries of the median, Gaussian and fixed-kernel filters: salt-and-pepper noise
// removed by a 3x3 median, a Gaussian blur, an edge map from the Sobel pair and a sharpened
// scene.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "demo.hpp"

namespace kroi_tool {

namespace {

// A work buffer of the size a query gave (read after the query ran); its failure throws.
std::vector<Kro8u> buffer(const char* query, KroStatus s, const int& size)
{
    if (s < 0) throw std::runtime_error(std::string(query) + " returned " + std::to_string(s));
    return std::vector<Kro8u>(size_t(size));
}

} // namespace

// The scene with one pixel in twelve set to black or white, then the median: the left half
// of the result shows the noise, the right half the filtered image.
Image medianSaltPepper(DemoContext& ctx)
{
    const Image& s = ctx.first();
    Image noisy(s.width, s.height, 3, 8), d(s.width, s.height, 3, 8);
    uint32_t state = 12345;
    for (int y = 0; y < s.height; ++y)
        for (int x = 0; x < s.width; ++x) {
            state = state * 1664525u + 1013904223u;
            const Kro8u* p = s.row<Kro8u>(y) + 3 * x;
            Kro8u* q = noisy.row<Kro8u>(y) + 3 * x;
            const int r = int(state >> 24);
            for (int c = 0; c < 3; ++c) q[c] = r < 11 ? 0 : r < 22 ? 255 : p[c];
        }
    int size = 0;
    auto buf = buffer("kroiFilterMedianBorderGetBufferSize",
                      kroiFilterMedianBorderGetBufferSize({s.width, s.height}, {3, 3}, kro8u, 3, &size), size);
    ctx.time("kroiFilterMedianBorder_8u_C3R", [&] {
        return kroiFilterMedianBorder_8u_C3R(noisy.row<Kro8u>(0), noisy.step, d.row<Kro8u>(0), d.step, {s.width, s.height},
                                             {3, 3}, kroBorderReplicate, nullptr, buf.data());
    });
    for (int y = 0; y < s.height; ++y) std::copy_n(noisy.row<Kro8u>(y), 3 * (s.width / 2), d.row<Kro8u>(y));
    ctx.note = "The program sets one pixel in twelve to black or white first; the left half of the result "
               "shows that noisy input, the right half the median.";
    return d;
}

Image gaussBlur(DemoContext& ctx)
{
    const Image& s = ctx.first();
    Image d(s.width, s.height, 3, 8);
    const KroiSize roi{s.width, s.height};
    int specSize = 0, size = 0;
    auto buf = buffer("kroiFilterGaussianGetBufferSize",
                      kroiFilterGaussianGetBufferSize(roi, 15, kro8u, 3, &specSize, &size), size);
    std::vector<Kro8u> spec(static_cast<size_t>(specSize));
    auto* sp = reinterpret_cast<KroiFilterGaussianSpec*>(spec.data());
    if (kroiFilterGaussianInit(roi, 15, 3.0f, kro8u, 3, sp) < 0) throw std::runtime_error("kroiFilterGaussianInit failed");
    ctx.time("kroiFilterGaussianBorder_8u_C3R", [&] {
        return kroiFilterGaussianBorder_8u_C3R(s.row<Kro8u>(0), s.step, d.row<Kro8u>(0), d.step, roi, kroBorderMirror,
                                               nullptr, sp, buf.data());
    });
    ctx.note = "The specification is made once by kroiFilterGaussianInit (15 taps, sigma 3) and serves every call.";
    return d;
}

// |dx| + |dy| of the gray level, saturated to 8 bits.
Image sobelEdges(DemoContext& ctx)
{
    const Image& s = ctx.first();
    Image g(s.width, s.height, 1, 8), d(s.width, s.height, 1, 8);
    for (int y = 0; y < s.height; ++y)
        for (int x = 0; x < s.width; ++x) {
            const Kro8u* p = s.row<Kro8u>(y) + 3 * x;
            g.row<Kro8u>(y)[x] = Kro8u((77 * p[0] + 150 * p[1] + 29 * p[2] + 128) >> 8);
        }
    const KroiSize roi{s.width, s.height};
    std::vector<Kro16s> dx(size_t(s.width) * s.height), dy(dx.size());
    int size = 0;
    auto buf = buffer("kroiFilterSobelBorderGetBufferSize", kroiFilterSobelBorderGetBufferSize(roi, 3, kro8u, 1, &size), size);
    const int step = 2 * s.width;
    ctx.time("kroiFilterSobelDxBorder_8u16s_C1R + kroiFilterSobelDyBorder_8u16s_C1R", [&] {
        const KroStatus a = kroiFilterSobelDxBorder_8u16s_C1R(g.row<Kro8u>(0), g.step, dx.data(), step, roi, 3,
                                                              kroBorderReplicate, nullptr, buf.data());
        if (a < 0) return a;
        return kroiFilterSobelDyBorder_8u16s_C1R(g.row<Kro8u>(0), g.step, dy.data(), step, roi, 3, kroBorderReplicate,
                                                 nullptr, buf.data());
    });
    for (int y = 0; y < s.height; ++y)
        for (int x = 0; x < s.width; ++x) {
            const size_t i = size_t(y) * s.width + x;
            d.row<Kro8u>(y)[x] = Kro8u(std::min(255, std::abs(dx[i]) + std::abs(dy[i])));
        }
    ctx.note = "The program computes the gray level (77 R + 150 G + 29 B) / 256 first and combines the two "
               "derivatives as min(255, |dx| + |dy|).";
    return d;
}

Image sharpen8u(DemoContext& ctx)
{
    const Image& s = ctx.first();
    Image d(s.width, s.height, 3, 8);
    const KroiSize roi{s.width, s.height};
    int size = 0;
    auto buf = buffer("kroiFilterSharpenBorderGetBufferSize", kroiFilterSharpenBorderGetBufferSize(roi, 3, kro8u, 3, &size), size);
    ctx.time("kroiFilterSharpenBorder_8u_C3R", [&] {
        return kroiFilterSharpenBorder_8u_C3R(s.row<Kro8u>(0), s.step, d.row<Kro8u>(0), d.step, roi, kroBorderReplicate,
                                              nullptr, buf.data());
    });
    ctx.note = "The image plus an eighth of its high-pass response, rounded and saturated.";
    return d;
}

} // namespace kroi_tool
