// `kroi dilate|erode IN.png OUT.png WxH [--border MODE]`: grey-level dilation (maximum) or
// erosion (minimum) over a rectangular mask with the min/max filters.  8- and 16-bit gray,
// RGB and RGBA; RGBA keeps its alpha (the AC4 forms never write it).
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <string>
#include <vector>

#include "commands.hpp"
#include "kroi.h"
#include "png_io.hpp"

namespace kroi_tool {

namespace {

template <class T>
using Filter = KroStatus (*)(const T*, int, T*, int, KroiSize, KroiSize, KroiBorderMode, const T*, Kro8u*);

// The member for a type, a channel count and the operation.
template <class T>
Filter<T> pick(int channels, bool dilate);
template <>
Filter<Kro8u> pick(int channels, bool dilate)
{
    if (channels == 1) return dilate ? kroiFilterMaxBorder_8u_C1R : kroiFilterMinBorder_8u_C1R;
    if (channels == 3) return dilate ? kroiFilterMaxBorder_8u_C3R : kroiFilterMinBorder_8u_C3R;
    return dilate ? kroiFilterMaxBorder_8u_AC4R : kroiFilterMinBorder_8u_AC4R;
}
template <>
Filter<Kro16u> pick(int channels, bool dilate)
{
    if (channels == 1) return dilate ? kroiFilterMaxBorder_16u_C1R : kroiFilterMinBorder_16u_C1R;
    if (channels == 3) return dilate ? kroiFilterMaxBorder_16u_C3R : kroiFilterMinBorder_16u_C3R;
    return dilate ? kroiFilterMaxBorder_16u_AC4R : kroiFilterMinBorder_16u_AC4R;
}

template <class T>
KroStatus filter(const Image& in, Image& out, KroiSize mask, KroiBorderMode border, long value, bool dilate)
{
    const KroiSize roi{in.width, in.height};
    int size = 0;
    const KroStatus s = kroiFilterMaxBorderGetBufferSize(roi, mask, sizeof(T) == 1 ? kro8u : kro16u, in.channels, &size);
    if (s < 0) return s;
    std::vector<Kro8u> buffer(size_t(size) + 1);
    const T v[4] = {T(value), T(value), T(value), T(value)};
    // The alpha of RGBA images is not written by the filter: it comes over unchanged.
    for (int y = 0; y < in.height; ++y) std::memcpy(out.row<T>(y), in.row<T>(y), in.rowBytes());
    return pick<T>(in.channels, dilate)(in.row<T>(0), in.step, out.row<T>(0), out.step, roi, mask, border, v,
                                        buffer.data());
}

int usage(const char* name)
{
    std::fprintf(stderr,
                 "usage: kroi %s IN.png OUT.png WxH [--border replicate|mirror|constant[=V]]\n", name);
    return kExitUsage;
}

int run(const Args& args, bool dilate)
{
    const char* name = dilate ? "dilate" : "erode";
    if (args.size() != 3 && args.size() != 5) return usage(name);
    int mw = 0, mh = 0;
    char tail = 0;
    if (std::sscanf(args[2].c_str(), "%dx%d%c", &mw, &mh, &tail) != 2) return usage(name);
    KroiBorderMode border = kroBorderReplicate;
    long value = 0;
    if (args.size() == 5) {
        if (args[3] != "--border") return usage(name);
        const std::string& b = args[4];
        if (b == "replicate") border = kroBorderReplicate;
        else if (b == "mirror") border = kroBorderMirror;
        else if (b == "constant") border = kroBorderConstant;
        else if (b.rfind("constant=", 0) == 0) {
            border = kroBorderConstant;
            char* end = nullptr;
            value = std::strtol(b.c_str() + 9, &end, 10);
            if (*end || b.size() == 9) return usage(name);
        } else {
            return usage(name);
        }
    }
    try {
        const Image in = readPng(args[0]);
        if (in.channels == 2) {
            std::fprintf(stderr, "kroi %s: %s: gray+alpha images are not supported\n", name, args[0].c_str());
            return kExitFailure;
        }
        Image out(in.width, in.height, in.channels, in.depth);
        const KroiSize mask{mw, mh};
        const KroStatus s = in.depth == 8 ? filter<Kro8u>(in, out, mask, border, value, dilate)
                                          : filter<Kro16u>(in, out, mask, border, value, dilate);
        if (s < 0) {
            std::fprintf(stderr, "kroi %s: the filter returned status %d\n", name, int(s));
            return kExitFailure;
        }
        writePng(args[1], out);
    } catch (const std::exception& e) {
        std::fprintf(stderr, "kroi %s: %s\n", name, e.what());
        return kExitFailure;
    }
    return kExitOk;
}

} // namespace

int runDilate(const Args& args) { return run(args, true); }
int runErode(const Args& args) { return run(args, false); }

} // namespace kroi_tool
