// `kroi mirror`, `kroi transpose`, `kroi swap` and `kroi compare` on PNG files.
//
// Mirror and transpose move whole pixels, so any PNG works: a pixel of 1, 2, 3 or 4 samples
// of 8 or 16 bits is handed to the function whose element type and layout have its size
// (8-bit gray + alpha moves as one 16-bit element, 16-bit gray + alpha as one 32-bit one).
// Swap and compare look at the channels, so they take gray, RGB or RGBA images.
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <stdexcept>
#include <string>
#include <type_traits>

#include "commands.hpp"
#include "png_io.hpp"

namespace kroi_tool {

namespace {

// A pixel size in bytes as (element bytes, channels) of the library's layouts.
struct Layout {
    int elemBytes, channels;
};

Layout pixelLayout(const Image& img)
{
    const int bytes = img.channels * img.depth / 8;
    switch (bytes) {
    case 1: return {1, 1};
    case 2: return {2, 1};
    case 3: return {1, 3};
    case 4: return img.channels == 4 ? Layout{1, 4} : Layout{4, 1};
    case 6: return {2, 3};
    case 8: return {2, 4};
    }
    throw std::runtime_error("unsupported pixel of " + std::to_string(bytes) + " bytes");
}

void check(KroStatus st, const char* what)
{
    if (st < 0) throw std::runtime_error(std::string(what) + " returned status " + std::to_string(st));
}

int usage(const char* text)
{
    std::fprintf(stderr, "usage: %s\n", text);
    return kExitUsage;
}

}  // namespace

int runMirror(const Args& args)
{
    const char* use = "kroi mirror rows|columns|both IN.png OUT.png";
    if (args.size() != 3) return usage(use);
    const int flip = args[0] == "rows" ? kroFlipRows : args[0] == "columns" ? kroFlipColumns
                     : args[0] == "both" ? kroFlipBoth : -1;
    if (flip < 0) return usage(use);
    const Image in = readPng(args[1]);
    Image out(in.width, in.height, in.channels, in.depth);
    const Layout l = pixelLayout(in);
    const KroiSize roi{in.width, in.height};
    auto call = [&](auto* s, auto fn) {
        using T = std::remove_const_t<std::remove_pointer_t<decltype(s)>>;
        return fn(static_cast<const T*>(in.data), in.step, static_cast<T*>(out.data), out.step, roi, flip);
    };
    KroStatus st;
    if (l.elemBytes == 1)
        st = l.channels == 1 ? call((Kro8u*)nullptr, kroiMirror_8u_C1R)
           : l.channels == 3 ? call((Kro8u*)nullptr, kroiMirror_8u_C3R) : call((Kro8u*)nullptr, kroiMirror_8u_C4R);
    else if (l.elemBytes == 2)
        st = l.channels == 1 ? call((Kro16u*)nullptr, kroiMirror_16u_C1R)
           : l.channels == 3 ? call((Kro16u*)nullptr, kroiMirror_16u_C3R) : call((Kro16u*)nullptr, kroiMirror_16u_C4R);
    else
        st = call((Kro32s*)nullptr, kroiMirror_32s_C1R);
    check(st, "kroiMirror");
    writePng(args[2], out);
    return kExitOk;
}

int runTranspose(const Args& args)
{
    if (args.size() != 2) return usage("kroi transpose IN.png OUT.png");
    const Image in = readPng(args[0]);
    Image out(in.height, in.width, in.channels, in.depth);
    const Layout l = pixelLayout(in);
    const KroiSize roi{in.width, in.height};
    auto call = [&](auto* s, auto fn) {
        using T = std::remove_const_t<std::remove_pointer_t<decltype(s)>>;
        return fn(static_cast<const T*>(in.data), in.step, static_cast<T*>(out.data), out.step, roi);
    };
    KroStatus st;
    if (l.elemBytes == 1)
        st = l.channels == 1 ? call((Kro8u*)nullptr, kroiTranspose_8u_C1R)
           : l.channels == 3 ? call((Kro8u*)nullptr, kroiTranspose_8u_C3R) : call((Kro8u*)nullptr, kroiTranspose_8u_C4R);
    else if (l.elemBytes == 2)
        st = l.channels == 1 ? call((Kro16u*)nullptr, kroiTranspose_16u_C1R)
           : l.channels == 3 ? call((Kro16u*)nullptr, kroiTranspose_16u_C3R)
                             : call((Kro16u*)nullptr, kroiTranspose_16u_C4R);
    else
        st = call((Kro32s*)nullptr, kroiTranspose_32s_C1R);
    check(st, "kroiTranspose");
    writePng(args[1], out);
    return kExitOk;
}

// ORDER is three or four comma-separated channel indices: "2,1,0" turns RGB into BGR.
int runSwap(const Args& args)
{
    const char* use = "kroi swap ORDER IN.png OUT.png   (ORDER e.g. 2,1,0 for RGB or 2,1,0,3 for RGBA)";
    if (args.size() != 3) return usage(use);
    int order[4] = {0, 1, 2, 3}, n = 0;
    for (std::size_t pos = 0; pos <= args[0].size() && n < 5;) {
        const std::size_t comma = args[0].find(',', pos);
        const std::string part = args[0].substr(pos, comma == std::string::npos ? std::string::npos : comma - pos);
        if (part.empty() || n == 4) return usage(use);
        order[n++] = std::atoi(part.c_str());
        if (comma == std::string::npos) break;
        pos = comma + 1;
    }
    const Image in = readPng(args[1]);
    if (in.channels != n || (n != 3 && n != 4))
        throw std::runtime_error("ORDER names " + std::to_string(n) + " channels; the image is " + describe(in));
    Image out(in.width, in.height, in.channels, in.depth);
    const KroiSize roi{in.width, in.height};
    KroStatus st;
    if (in.depth == 8)
        st = n == 3 ? kroiSwapChannels_8u_C3R(static_cast<const Kro8u*>(in.data), in.step, static_cast<Kro8u*>(out.data),
                                              out.step, roi, order)
                    : kroiSwapChannels_8u_C4R(static_cast<const Kro8u*>(in.data), in.step, static_cast<Kro8u*>(out.data),
                                              out.step, roi, order);
    else
        st = n == 3 ? kroiSwapChannels_16u_C3R(static_cast<const Kro16u*>(in.data), in.step,
                                               static_cast<Kro16u*>(out.data), out.step, roi, order)
                    : kroiSwapChannels_16u_C4R(static_cast<const Kro16u*>(in.data), in.step,
                                               static_cast<Kro16u*>(out.data), out.step, roi, order);
    check(st, "kroiSwapChannels");
    writePng(args[2], out);
    return kExitOk;
}

// The comparison functions of one element type, by layout C1, C3, C4.
template <class T>
struct CompareFns {
    KroStatus (*img[3])(const T*, int, const T*, int, Kro8u*, int, KroiSize, KroCompareOp);
    KroStatus (*c1)(const T*, int, T, Kro8u*, int, KroiSize, KroCompareOp);
    KroStatus (*cn[2])(const T*, int, const T*, Kro8u*, int, KroiSize, KroCompareOp);
};
constexpr CompareFns<Kro8u> kCompare8u{{kroiCompare_8u_C1R, kroiCompare_8u_C3R, kroiCompare_8u_C4R},
                                       kroiCompareC_8u_C1R,
                                       {kroiCompareC_8u_C3R, kroiCompareC_8u_C4R}};
constexpr CompareFns<Kro16u> kCompare16u{{kroiCompare_16u_C1R, kroiCompare_16u_C3R, kroiCompare_16u_C4R},
                                         kroiCompareC_16u_C1R,
                                         {kroiCompareC_16u_C3R, kroiCompareC_16u_C4R}};

// The constant is clamped to the element's range.
template <class T>
KroStatus compareImage(const CompareFns<T>& f, const Image& a, const Image* b, double number, Image& mask, int op)
{
    const auto* s = static_cast<const T*>(a.data);
    Kro8u* m = static_cast<Kro8u*>(mask.data);
    const KroiSize roi{a.width, a.height};
    const int layout = a.channels == 1 ? 0 : a.channels == 3 ? 1 : 2;
    if (b) return f.img[layout](s, a.step, static_cast<const T*>(b->data), b->step, m, mask.step, roi, op);
    const double top = std::numeric_limits<T>::max();
    const T k = T(number < 0 ? 0 : number > top ? top : number), kv[4] = {k, k, k, k};
    return layout == 0 ? f.c1(s, a.step, k, m, mask.step, roi, op) : f.cn[layout - 1](s, a.step, kv, m, mask.step, roi, op);
}

// An 8-bit gray mask: 255 where A OP B holds in every channel.  B is a second image of the
// same size and type, or a number compared with every channel.
int runCompare(const Args& args)
{
    const char* use = "kroi compare lt|le|eq|ge|gt A.png B.png|NUMBER MASK.png";
    if (args.size() != 4) return usage(use);
    const char* ops[] = {"lt", "le", "eq", "ge", "gt"};
    int op = -1;
    for (int i = 0; i < 5; ++i)
        if (args[0] == ops[i]) op = i;
    if (op < 0) return usage(use);
    const Image a = readPng(args[1]);
    if (a.channels == 2) throw std::runtime_error("gray + alpha images are not compared; the image is " + describe(a));
    char* end = nullptr;
    const double number = std::strtod(args[2].c_str(), &end);
    const bool constant = end && *end == '\0' && !args[2].empty();
    const Image b = constant ? Image() : readPng(args[2]);
    if (!constant && (b.width != a.width || b.height != a.height || b.channels != a.channels || b.depth != a.depth))
        throw std::runtime_error("the images differ: " + describe(a) + " and " + describe(b));
    Image mask(a.width, a.height, 1, 8);
    const Image* second = constant ? nullptr : &b;
    check(a.depth == 8 ? compareImage(kCompare8u, a, second, number, mask, op)
                       : compareImage(kCompare16u, a, second, number, mask, op),
          "kroiCompare");
    writePng(args[3], mask);
    return kExitOk;
}

}  // namespace kroi_tool
