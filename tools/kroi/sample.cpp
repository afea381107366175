// The built-in sample images.  They are drawn, not downloaded, and are the same on every run
// and machine: later operations' results can be compared by eye from one run to the next.
//
// The scene holds what image operations tend to get wrong somewhere: smooth gradients
// (banding, rounding drift), hard and antialiased edges (ringing, border handling), one-pixel
// lines and a pixel checkerboard (aliasing under resize), a zone plate (every frequency at
// once), small bitmap text, saturated colours and a little noise.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <random>
#include <vector>

#include "demo.hpp"

namespace kroi_tool {

namespace {

struct Rgb {
    float r, g, b;
};

// A float RGB canvas with 0..255 values; shapes blend in by their coverage.
class Canvas {
public:
    Canvas(int w, int h) : w_(w), h_(h), px_(size_t(w) * h) {}

    int width() const { return w_; }
    int height() const { return h_; }
    Rgb& at(int x, int y) { return px_[size_t(y) * w_ + x]; }

    void blend(int x, int y, Rgb c, float coverage)
    {
        if (x < 0 || y < 0 || x >= w_ || y >= h_ || coverage <= 0.f) return;
        const float a = std::min(coverage, 1.f);
        Rgb& p = at(x, y);
        p = {p.r + (c.r - p.r) * a, p.g + (c.g - p.g) * a, p.b + (c.b - p.b) * a};
    }

    // Antialiased disc: coverage from the distance of the pixel centre to the rim.
    void disc(float cx, float cy, float radius, Rgb c, float opacity = 1.f)
    {
        for (int y = int(cy - radius - 1); y <= int(cy + radius + 1); ++y)
            for (int x = int(cx - radius - 1); x <= int(cx + radius + 1); ++x) {
                const float d = std::hypot(x + .5f - cx, y + .5f - cy);
                blend(x, y, c, std::clamp(radius - d + .5f, 0.f, 1.f) * opacity);
            }
    }

    // Hard-edged rectangle [x0, x1) x [y0, y1).
    void rect(int x0, int y0, int x1, int y1, Rgb c, float opacity = 1.f)
    {
        for (int y = y0; y < y1; ++y)
            for (int x = x0; x < x1; ++x) blend(x, y, c, opacity);
    }

    // Antialiased triangle, vertices in either order: coverage from the signed distance to
    // the nearest edge.
    void triangle(const float (&v)[3][2], Rgb c)
    {
        const float area = (v[1][0] - v[0][0]) * (v[2][1] - v[0][1]) - (v[1][1] - v[0][1]) * (v[2][0] - v[0][0]);
        const float inward = area < 0 ? 1.f : -1.f; // flips the edge distances to be positive inside
        const float x0 = std::min({v[0][0], v[1][0], v[2][0]}), x1 = std::max({v[0][0], v[1][0], v[2][0]});
        const float y0 = std::min({v[0][1], v[1][1], v[2][1]}), y1 = std::max({v[0][1], v[1][1], v[2][1]});
        for (int y = int(y0) - 1; y <= int(y1) + 1; ++y)
            for (int x = int(x0) - 1; x <= int(x1) + 1; ++x) {
                float inside = 1e9f;
                for (int e = 0; e < 3; ++e) {
                    const float* p = v[e];
                    const float* q = v[(e + 1) % 3];
                    const float ex = q[0] - p[0], ey = q[1] - p[1];
                    const float d = inward * ((x + .5f - p[0]) * ey - (y + .5f - p[1]) * ex) / std::hypot(ex, ey);
                    inside = std::min(inside, d);
                }
                blend(x, y, c, std::clamp(inside + .5f, 0.f, 1.f));
            }
    }

    // Line one pixel wide, antialiased by the distance of each pixel centre to the segment.
    void line(float ax, float ay, float bx, float by, Rgb c)
    {
        const float dx = bx - ax, dy = by - ay, len2 = dx * dx + dy * dy;
        for (int y = int(std::min(ay, by)) - 1; y <= int(std::max(ay, by)) + 1; ++y)
            for (int x = int(std::min(ax, bx)) - 1; x <= int(std::max(ax, bx)) + 1; ++x) {
                const float px = x + .5f - ax, py = y + .5f - ay;
                const float t = std::clamp((px * dx + py * dy) / len2, 0.f, 1.f);
                const float d = std::hypot(px - t * dx, py - t * dy);
                blend(x, y, c, 1.f - d);
            }
    }

    // 5x7 bitmap text, each dot a scale x scale block.
    void text(int x, int y, const char* s, int scale, Rgb c);

    // Quantises to 8 bits with round-to-nearest after adding triangular noise of the given
    // amplitude (0 for none), into an image from the library allocator.
    Image toImage(float noise, uint32_t seed) const
    {
        Image img(w_, h_, 3, 8);
        std::mt19937 rng(seed); // the raw engine output is fixed by the standard
        for (int y = 0; y < h_; ++y) {
            uint8_t* row = img.row<uint8_t>(y);
            for (int x = 0; x < w_; ++x) {
                const Rgb& p = px_[size_t(y) * w_ + x];
                for (int ch = 0; ch < 3; ++ch) {
                    const float u = (float(rng() & 0xFFFF) + float(rng() & 0xFFFF)) / 65535.f - 1.f;
                    const float v = (ch == 0 ? p.r : ch == 1 ? p.g : p.b) + noise * u;
                    row[3 * x + ch] = uint8_t(std::lround(std::clamp(v, 0.f, 255.f)));
                }
            }
        }
        return img;
    }

private:
    int w_, h_;
    std::vector<Rgb> px_;
};

// Glyph rows top to bottom, five bits each, the most significant bit leftmost.
struct Glyph {
    char c;
    uint8_t rows[7];
};
constexpr Glyph kFont[] = {
    {'0', {0x0E, 0x11, 0x13, 0x15, 0x19, 0x11, 0x0E}}, {'1', {0x04, 0x0C, 0x04, 0x04, 0x04, 0x04, 0x0E}},
    {'2', {0x0E, 0x11, 0x01, 0x02, 0x04, 0x08, 0x1F}}, {'3', {0x1F, 0x02, 0x04, 0x02, 0x01, 0x11, 0x0E}},
    {'4', {0x02, 0x06, 0x0A, 0x12, 0x1F, 0x02, 0x02}}, {'5', {0x1F, 0x10, 0x1E, 0x01, 0x01, 0x11, 0x0E}},
    {'6', {0x06, 0x08, 0x10, 0x1E, 0x11, 0x11, 0x0E}}, {'7', {0x1F, 0x01, 0x02, 0x04, 0x08, 0x08, 0x08}},
    {'8', {0x0E, 0x11, 0x11, 0x0E, 0x11, 0x11, 0x0E}}, {'9', {0x0E, 0x11, 0x11, 0x0F, 0x01, 0x02, 0x0C}},
    {'A', {0x0E, 0x11, 0x11, 0x1F, 0x11, 0x11, 0x11}}, {'D', {0x1C, 0x12, 0x11, 0x11, 0x11, 0x12, 0x1C}},
    {'N', {0x11, 0x19, 0x15, 0x13, 0x11, 0x11, 0x11}}, {'E', {0x1F, 0x10, 0x10, 0x1E, 0x10, 0x10, 0x1F}},
    {'I', {0x0E, 0x04, 0x04, 0x04, 0x04, 0x04, 0x0E}}, {'K', {0x11, 0x12, 0x14, 0x18, 0x14, 0x12, 0x11}},
    {'L', {0x10, 0x10, 0x10, 0x10, 0x10, 0x10, 0x1F}}, {'M', {0x11, 0x1B, 0x15, 0x15, 0x11, 0x11, 0x11}},
    {'O', {0x0E, 0x11, 0x11, 0x11, 0x11, 0x11, 0x0E}}, {'P', {0x1E, 0x11, 0x11, 0x1E, 0x10, 0x10, 0x10}},
    {'R', {0x1E, 0x11, 0x11, 0x1E, 0x14, 0x12, 0x11}}, {'S', {0x0F, 0x10, 0x10, 0x0E, 0x01, 0x01, 0x1E}},
    {'T', {0x1F, 0x04, 0x04, 0x04, 0x04, 0x04, 0x04}}, {'X', {0x11, 0x11, 0x0A, 0x04, 0x0A, 0x11, 0x11}},
};

void Canvas::text(int x, int y, const char* s, int scale, Rgb c)
{
    for (; *s; ++s, x += 6 * scale) {
        const Glyph* g = std::find_if(std::begin(kFont), std::end(kFont), [&](const Glyph& f) { return f.c == *s; });
        if (g == std::end(kFont)) continue; // blank
        for (int r = 0; r < 7; ++r)
            for (int col = 0; col < 5; ++col)
                if (g->rows[r] & (0x10 >> col))
                    rect(x + col * scale, y + r * scale, x + (col + 1) * scale, y + (r + 1) * scale, c);
    }
}

constexpr float kPi = 3.14159265358979f;

} // namespace

Image makeScene(int w, int h)
{
    Canvas cv(w, h);
    const int horizon = h * 5 / 8;
    // Sky: dark blue at the top to pale near the horizon; ground: a brown-to-green ramp
    // running across, so both gradient directions are present.
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
            if (y < horizon) {
                const float t = float(y) / horizon;
                cv.at(x, y) = {20 + 170 * t, 40 + 170 * t, 110 + 130 * t};
            } else {
                const float t = float(x) / (w - 1);
                const float s = float(y - horizon) / (h - horizon);
                cv.at(x, y) = {120 - 70 * t + 30 * s, 90 + 60 * t + 20 * s, 40 + 10 * t};
            }
        }
    cv.disc(w * 0.82f, h * 0.18f, 52, {255, 200, 90}, 0.45f);  // halo
    cv.disc(w * 0.82f, h * 0.18f, 38, {255, 214, 70});         // sun
    cv.triangle({{150, float(horizon)}, {250, float(horizon) - 140}, {350, float(horizon)}}, {70, 75, 95});
    cv.triangle({{200, float(horizon) - 100}, {250, float(horizon) - 140}, {300, float(horizon) - 100}},
                {240, 245, 250}); // snow cap
    cv.rect(40, horizon - 60, 130, horizon + 40, {200, 30, 35});    // saturated red block
    cv.rect(90, horizon - 20, 170, horizon + 70, {30, 60, 220}, 0.6f); // translucent blue over it
    cv.disc(220, horizon + 70, 28, {0, 0, 0});
    cv.disc(220, horizon + 70, 18, {255, 255, 255});

    // A fan of one-pixel lines from a ground corner.
    for (int i = 0; i <= 16; ++i) {
        const float a = kPi * (0.02f + 0.46f * i / 16);
        cv.line(8, h - 8, 8 + 110 * std::cos(a), h - 8 - 110 * std::sin(a), {250, 250, 240});
    }
    // Checkerboards: 8-pixel cells and single pixels.
    for (int y = 0; y < 48; ++y)
        for (int x = 0; x < 64; ++x) {
            const bool coarse = ((x >> 3) ^ (y >> 3)) & 1;
            const bool fine = (x ^ y) & 1;
            cv.blend(w - 200 + x, horizon + 8 + y, coarse ? Rgb{255, 255, 255} : Rgb{0, 0, 0}, 1);
            cv.blend(w - 200 + x, horizon + 64 + y, fine ? Rgb{255, 255, 255} : Rgb{0, 0, 0}, 1);
        }
    // Zone plate: cos(pi r^2 / n) reaches the Nyquist frequency at the rim of the inscribed
    // circle; outside it would alias already, so the corners stay mid-gray.
    const int n = 120, zx = w - n - 8, zy = h - n - 8;
    for (int y = 0; y < n; ++y)
        for (int x = 0; x < n; ++x) {
            const float dx = x - n / 2 + .5f, dy = y - n / 2 + .5f, r2 = dx * dx + dy * dy;
            const float v = r2 > n * n / 4 ? 127.5f : 127.5f + 127.5f * std::cos(kPi * r2 / n);
            cv.at(zx + x, zy + y) = {v, v, v};
        }
    cv.text(10, 10, "KROIP SAMPLE", 3, {255, 255, 255});
    cv.text(10, 40, "0123456789 512X384", 2, {255, 230, 120});
    cv.text(10, 60, "0123456789 TEXT AT ONE PIXEL PER DOT", 1, {230, 240, 255});
    return cv.toImage(3.f, 20260101);
}

Image makeSecond(int w, int h)
{
    // Concentric rings over a diagonal colour ramp, with bold diagonal stripes: it differs
    // from the scene everywhere, so a two-source result shows both.
    Canvas cv(w, h);
    const float cx = w * 0.5f, cy = h * 0.5f;
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
            const float t = float(x + y) / (w + h - 2);
            const float r = std::hypot(x - cx, y - cy);
            const float ring = 0.5f + 0.5f * std::cos(r * 2 * kPi / 24);
            const bool stripe = ((x + y) / 32) % 4 == 0;
            cv.at(x, y) = {stripe ? 230.f : 40 + 200 * t * ring, 60 + 140 * ring, stripe ? 40.f : 220 - 180 * t};
        }
    return cv.toImage(0.f, 0);
}

} // namespace kroi_tool
