// `kroi split IN.png PREFIX` and `kroi merge OUT.png IN0.png IN1.png IN2.png [IN3.png]`:
// an RGB or RGBA image to one gray image per channel and back, through the library's
// interleaved-to-planar copies (8- and 16-bit samples alike).
#include <cstdio>
#include <exception>
#include <stdexcept>
#include <string>

#include "commands.hpp"
#include "png_io.hpp"

namespace kroi_tool {

namespace {

// The planar copies, by sample type and channel count.
KroStatus toPlanes(const Kro8u* s, int ss, Kro8u* const* p, int ps, KroiSize roi, int channels)
{
    return channels == 3 ? kroiCopy_8u_C3P3R(s, ss, p, ps, roi) : kroiCopy_8u_C4P4R(s, ss, p, ps, roi);
}
KroStatus toPlanes(const Kro16u* s, int ss, Kro16u* const* p, int ps, KroiSize roi, int channels)
{
    return channels == 3 ? kroiCopy_16u_C3P3R(s, ss, p, ps, roi) : kroiCopy_16u_C4P4R(s, ss, p, ps, roi);
}
KroStatus fromPlanes(const Kro8u* const* p, int ps, Kro8u* d, int ds, KroiSize roi, int channels)
{
    return channels == 3 ? kroiCopy_8u_P3C3R(p, ps, d, ds, roi) : kroiCopy_8u_P4C4R(p, ps, d, ds, roi);
}
KroStatus fromPlanes(const Kro16u* const* p, int ps, Kro16u* d, int ds, KroiSize roi, int channels)
{
    return channels == 3 ? kroiCopy_16u_P3C3R(p, ps, d, ds, roi) : kroiCopy_16u_P4C4R(p, ps, d, ds, roi);
}

// The planes, allocated as gray images of the source's size and depth; the library wants
// one step for all of them, which images of one size and depth from one allocator share.
struct PlaneSet {
    Image img[4];
    int count = 0;
};

template <class T>
void splitInto(const Image& s, PlaneSet& ps)
{
    T* planes[4] = {};
    for (int c = 0; c < ps.count; ++c) planes[c] = ps.img[c].row<T>(0);
    const KroStatus st = toPlanes(s.row<T>(0), s.step, planes, ps.img[0].step, {s.width, s.height}, s.channels);
    if (st < 0) throw std::runtime_error("the planar copy returned " + std::to_string(st));
}

template <class T>
void mergeInto(const PlaneSet& ps, Image& d)
{
    const T* planes[4] = {};
    for (int c = 0; c < ps.count; ++c) planes[c] = ps.img[c].row<T>(0);
    const KroStatus st = fromPlanes(planes, ps.img[0].step, d.row<T>(0), d.step, {d.width, d.height}, d.channels);
    if (st < 0) throw std::runtime_error("the interleaving copy returned " + std::to_string(st));
}

} // namespace

int runSplit(const Args& args)
{
    if (args.size() != 2) {
        std::fprintf(stderr, "usage: kroi split IN.png PREFIX\n");
        return kExitUsage;
    }
    try {
        const Image src = readPng(args[0]);
        if (src.channels != 3 && src.channels != 4)
            throw std::runtime_error(args[0] + " is " + describe(src) + "; split wants RGB or RGBA");
        PlaneSet ps;
        ps.count = src.channels;
        for (int c = 0; c < ps.count; ++c) ps.img[c] = Image(src.width, src.height, 1, src.depth);
        if (src.depth == 8)
            splitInto<Kro8u>(src, ps);
        else
            splitInto<Kro16u>(src, ps);
        for (int c = 0; c < ps.count; ++c) {
            const std::string name = args[1] + "-" + std::to_string(c) + ".png";
            writePng(name, ps.img[c]);
            std::printf("%s\n", name.c_str());
        }
    } catch (const std::exception& e) {
        std::fprintf(stderr, "kroi split: %s\n", e.what());
        return kExitFailure;
    }
    return kExitOk;
}

int runMerge(const Args& args)
{
    if (args.size() != 4 && args.size() != 5) {
        std::fprintf(stderr, "usage: kroi merge OUT.png IN0.png IN1.png IN2.png [IN3.png]\n");
        return kExitUsage;
    }
    try {
        PlaneSet ps;
        ps.count = int(args.size()) - 1;
        for (int c = 0; c < ps.count; ++c) {
            ps.img[c] = readPng(args[c + 1]);
            const Image& p = ps.img[c];
            const Image& first = ps.img[0];
            if (p.channels != 1)
                throw std::runtime_error(args[c + 1] + " is " + describe(p) + "; merge wants gray images");
            if (p.width != first.width || p.height != first.height || p.depth != first.depth || p.step != first.step)
                throw std::runtime_error(args[c + 1] + " differs from " + args[1] + " in size or depth");
        }
        Image dst(ps.img[0].width, ps.img[0].height, ps.count, ps.img[0].depth);
        if (dst.depth == 8)
            mergeInto<Kro8u>(ps, dst);
        else
            mergeInto<Kro16u>(ps, dst);
        writePng(args[0], dst);
    } catch (const std::exception& e) {
        std::fprintf(stderr, "kroi merge: %s\n", e.what());
        return kExitFailure;
    }
    return kExitOk;
}

} // namespace kroi_tool
