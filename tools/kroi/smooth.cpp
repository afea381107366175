// `kroi median|gauss|sobel|scharr|laplace|sharpen IN.png OUT.png ...`: the neighbourhood
// filters on PNG images.  median and gauss take 8- and 16-bit gray, RGB and RGBA (alpha
// kept: the AC4 forms never write it); laplace and sharpen take 8-bit images; sobel and
// scharr make an 8-bit edge map, min(255, |dx| + |dy|), of the image's gray level.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <stdexcept>
#include <string>
#include <vector>

#include "commands.hpp"
#include "kroi.h"
#include "png_io.hpp"

namespace kroi_tool {

namespace {

// The options after IN.png OUT.png: positional words and an optional border.
struct Options {
    std::vector<std::string> words;
    KroiBorderMode border = kroBorderReplicate;
    long value = 0;
};

bool parse(const Args& args, Options& o)
{
    if (args.size() < 2) return false;
    for (size_t i = 2; i < args.size(); ++i) {
        if (args[i] != "--border") {
            o.words.push_back(args[i]);
            continue;
        }
        if (++i == args.size()) return false;
        const std::string& b = args[i];
        char* end = nullptr;
        if (b == "replicate") o.border = kroBorderReplicate;
        else if (b == "mirror") o.border = kroBorderMirror;
        else if (b == "constant") o.border = kroBorderConstant;
        else if (b.rfind("constant=", 0) == 0 && b.size() > 9 && (o.value = std::strtol(b.c_str() + 9, &end, 10), !*end))
            o.border = kroBorderConstant;
        else return false;
    }
    return true;
}

bool number(const std::string& s, int& v)
{
    char* end = nullptr;
    v = int(std::strtol(s.c_str(), &end, 10));
    return !s.empty() && !*end;
}

int fail(const char* name, const std::string& what)
{
    std::fprintf(stderr, "kroi %s: %s\n", name, what.c_str());
    return kExitFailure;
}

// An output of the input's shape with the input's pixels (AC4 calls keep the alpha so).
Image copyOf(const Image& in)
{
    Image out(in.width, in.height, in.channels, in.depth);
    for (int y = 0; y < in.height; ++y) std::memcpy(out.row<Kro8u>(y), in.row<Kro8u>(y), in.rowBytes());
    return out;
}

// Runs fn(buffer) with a buffer of `size` bytes once the query succeeded.
template <class F>
KroStatus withBuffer(KroStatus query, const int& size, F&& fn)
{
    if (query < 0) return query;
    std::vector<Kro8u> buffer(size_t(size) + 1);
    return fn(buffer.data());
}

template <class T>
KroStatus median(const Image& in, Image& out, KroiSize mask, const Options& o)
{
    using Fn = KroStatus (*)(const T*, int, T*, int, KroiSize, KroiSize, KroiBorderMode, const T*, Kro8u*);
    Fn fn;
    if constexpr (sizeof(T) == 1)
        fn = in.channels == 1 ? kroiFilterMedianBorder_8u_C1R : in.channels == 3 ? kroiFilterMedianBorder_8u_C3R : kroiFilterMedianBorder_8u_AC4R;
    else
        fn = in.channels == 1 ? kroiFilterMedianBorder_16u_C1R : in.channels == 3 ? kroiFilterMedianBorder_16u_C3R : kroiFilterMedianBorder_16u_AC4R;
    const T v[4] = {T(o.value), T(o.value), T(o.value), T(o.value)};
    int size = 0;
    const KroiSize roi{in.width, in.height};
    return withBuffer(kroiFilterMedianBorderGetBufferSize(roi, mask, sizeof(T) == 1 ? kro8u : kro16u, in.channels, &size), size,
                      [&](Kro8u* b) { return fn(in.row<T>(0), in.step, out.row<T>(0), out.step, roi, mask, o.border, v, b); });
}

template <class T>
KroStatus gauss(const Image& in, Image& out, int kernel, float sigma, const Options& o)
{
    using Fn = KroStatus (*)(const T*, int, T*, int, KroiSize, KroiBorderMode, const T*, const KroiFilterGaussianSpec*, Kro8u*);
    Fn fn;
    if constexpr (sizeof(T) == 1)
        fn = in.channels == 1 ? kroiFilterGaussianBorder_8u_C1R : in.channels == 3 ? kroiFilterGaussianBorder_8u_C3R : kroiFilterGaussianBorder_8u_AC4R;
    else
        fn = in.channels == 1 ? kroiFilterGaussianBorder_16u_C1R : in.channels == 3 ? kroiFilterGaussianBorder_16u_C3R : kroiFilterGaussianBorder_16u_AC4R;
    const KroDataType type = sizeof(T) == 1 ? kro8u : kro16u;
    const KroiSize roi{in.width, in.height};
    int specSize = 0, size = 0;
    KroStatus s = kroiFilterGaussianGetBufferSize(roi, kernel, type, in.channels, &specSize, &size);
    if (s < 0) return s;
    std::vector<Kro8u> spec(size_t(specSize) + 1);
    auto* sp = reinterpret_cast<KroiFilterGaussianSpec*>(spec.data());
    s = kroiFilterGaussianInit(roi, kernel, sigma, type, in.channels, sp);
    if (s < 0) return s;
    const T v[4] = {T(o.value), T(o.value), T(o.value), T(o.value)};
    return withBuffer(s, size, [&](Kro8u* b) { return fn(in.row<T>(0), in.step, out.row<T>(0), out.step, roi, o.border, v, sp, b); });
}

// The gray level of an 8-bit image: the program's own (77 R + 150 G + 29 B + 128) / 256.
Image grayOf(const Image& in)
{
    Image g(in.width, in.height, 1, 8);
    for (int y = 0; y < in.height; ++y)
        for (int x = 0; x < in.width; ++x) {
            const Kro8u* p = in.row<Kro8u>(y) + x * in.channels;
            g.row<Kro8u>(y)[x] = in.channels < 3 ? p[0] : Kro8u((77 * p[0] + 150 * p[1] + 29 * p[2] + 128) >> 8);
        }
    return g;
}

int run(const Args& args, const char* name, const char* usage, int (*body)(const Image&, const Options&, Image&))
{
    Options o;
    if (!parse(args, o)) {
        std::fprintf(stderr, "usage: %s\n", usage);
        return kExitUsage;
    }
    try {
        const Image in = readPng(args[0]);
        if (in.channels == 2) return fail(name, args[0] + ": gray+alpha images are not supported");
        Image out;
        const int rc = body(in, o, out);
        if (rc == kExitUsage) std::fprintf(stderr, "usage: %s\n", usage);
        if (rc != kExitOk) return rc;
        writePng(args[1], out);
    } catch (const std::exception& e) {
        return fail(name, e.what());
    }
    return kExitOk;
}

int status(const char* name, KroStatus s)
{
    if (s >= 0) return kExitOk;
    std::fprintf(stderr, "kroi %s: the filter returned status %d\n", name, int(s));
    return kExitFailure;
}

// A mask-size word, 3 or 5 by default 3.
bool maskWord(const Options& o, int& m)
{
    m = 3;
    return o.words.empty() || (o.words.size() == 1 && number(o.words[0], m));
}

// sobel and scharr: |dx| + |dy| of the gray level, saturated to 8 bits.
int edges(const Image& in, const Options& o, Image& out, bool scharr)
{
    int m = 3;
    if (!maskWord(o, m) || (scharr && !o.words.empty())) return kExitUsage;
    if (in.depth != 8) return fail(scharr ? "scharr" : "sobel", "8-bit images only");
    const Image g = grayOf(in);
    const KroiSize roi{g.width, g.height};
    std::vector<Kro16s> dx(size_t(g.width) * g.height), dy(dx.size());
    const int step = g.width * 2;
    int size = 0;
    const Kro8u v = Kro8u(o.value);
    const KroStatus s = withBuffer(
        scharr ? kroiFilterScharrBorderGetBufferSize(roi, 3, kro8u, 1, &size) : kroiFilterSobelBorderGetBufferSize(roi, m, kro8u, 1, &size),
        size, [&](Kro8u* b) {
            const Kro8u* p = g.row<Kro8u>(0);
            const KroStatus a = scharr ? kroiFilterScharrDxBorder_8u16s_C1R(p, g.step, dx.data(), step, roi, o.border, &v, b)
                                       : kroiFilterSobelDxBorder_8u16s_C1R(p, g.step, dx.data(), step, roi, m, o.border, &v, b);
            if (a < 0) return a;
            return scharr ? kroiFilterScharrDyBorder_8u16s_C1R(p, g.step, dy.data(), step, roi, o.border, &v, b)
                          : kroiFilterSobelDyBorder_8u16s_C1R(p, g.step, dy.data(), step, roi, m, o.border, &v, b);
        });
    if (s < 0) return status(scharr ? "scharr" : "sobel", s);
    out = Image(g.width, g.height, 1, 8);
    for (int y = 0; y < g.height; ++y)
        for (int x = 0; x < g.width; ++x) {
            const size_t i = size_t(y) * g.width + x;
            out.row<Kro8u>(y)[x] = Kro8u(std::min(255, std::abs(dx[i]) + std::abs(dy[i])));
        }
    return kExitOk;
}

// laplace and sharpen on 8-bit images of every layout.
int eightBit(const Image& in, const Options& o, Image& out, bool sharpen)
{
    const char* name = sharpen ? "sharpen" : "laplace";
    int m = 3;
    if (!maskWord(o, m) || (sharpen && !o.words.empty())) return kExitUsage;
    if (in.depth != 8) return fail(name, "8-bit images only");
    out = copyOf(in);
    const KroiSize roi{in.width, in.height};
    const Kro8u v[4] = {Kro8u(o.value), Kro8u(o.value), Kro8u(o.value), Kro8u(o.value)};
    const int c = in.channels;
    int size = 0;
    const KroStatus q = sharpen ? kroiFilterSharpenBorderGetBufferSize(roi, 3, kro8u, c, &size)
                                : kroiFilterLaplaceBorderGetBufferSize(roi, m, kro8u, c, &size);
    return status(name, withBuffer(q, size, [&](Kro8u* b) {
        const Kro8u* s = in.row<Kro8u>(0);
        Kro8u* d = out.row<Kro8u>(0);
        if (sharpen)
            return (c == 1 ? kroiFilterSharpenBorder_8u_C1R : c == 3 ? kroiFilterSharpenBorder_8u_C3R : kroiFilterSharpenBorder_8u_AC4R)(
                s, in.step, d, out.step, roi, o.border, v, b);
        return (c == 1 ? kroiFilterLaplaceBorder_8u_C1R : c == 3 ? kroiFilterLaplaceBorder_8u_C3R : kroiFilterLaplaceBorder_8u_AC4R)(
            s, in.step, d, out.step, roi, m, o.border, v, b);
    }));
}

constexpr const char* kBorder = "[--border replicate|mirror|constant[=V]]";

} // namespace

int runMedian(const Args& args)
{
    static const std::string u = std::string("kroi median IN.png OUT.png WxH ") + kBorder;
    return run(args, "median", u.c_str(), [](const Image& in, const Options& o, Image& out) {
        int mw = 0, mh = 0;
        char tail = 0;
        if (o.words.size() != 1 || std::sscanf(o.words[0].c_str(), "%dx%d%c", &mw, &mh, &tail) != 2) return kExitUsage;
        out = copyOf(in);
        return status("median", in.depth == 8 ? median<Kro8u>(in, out, {mw, mh}, o) : median<Kro16u>(in, out, {mw, mh}, o));
    });
}

int runGauss(const Args& args)
{
    static const std::string u = std::string("kroi gauss IN.png OUT.png SIZE [SIGMA] ") + kBorder;
    return run(args, "gauss", u.c_str(), [](const Image& in, const Options& o, Image& out) {
        int k = 0;
        float sigma = 0.0f;
        char* end = nullptr;
        if (o.words.empty() || o.words.size() > 2 || !number(o.words[0], k)) return kExitUsage;
        if (o.words.size() == 2 && (sigma = std::strtof(o.words[1].c_str(), &end), *end)) return kExitUsage;
        out = copyOf(in);
        return status("gauss", in.depth == 8 ? gauss<Kro8u>(in, out, k, sigma, o) : gauss<Kro16u>(in, out, k, sigma, o));
    });
}

int runSobel(const Args& args)
{
    static const std::string u = std::string("kroi sobel IN.png OUT.png [3|5] ") + kBorder;
    return run(args, "sobel", u.c_str(), [](const Image& in, const Options& o, Image& out) { return edges(in, o, out, false); });
}

int runScharr(const Args& args)
{
    static const std::string u = std::string("kroi scharr IN.png OUT.png ") + kBorder;
    return run(args, "scharr", u.c_str(), [](const Image& in, const Options& o, Image& out) { return edges(in, o, out, true); });
}

int runLaplace(const Args& args)
{
    static const std::string u = std::string("kroi laplace IN.png OUT.png [3|5] ") + kBorder;
    return run(args, "laplace", u.c_str(), [](const Image& in, const Options& o, Image& out) { return eightBit(in, o, out, false); });
}

int runSharpen(const Args& args)
{
    static const std::string u = std::string("kroi sharpen IN.png OUT.png ") + kBorder;
    return run(args, "sharpen", u.c_str(), [](const Image& in, const Options& o, Image& out) { return eightBit(in, o, out, true); });
}

} // namespace kroi_tool
