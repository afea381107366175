// `kroi and|xor|not|shift|addc|mulc`: bitwise logic, shifts and arithmetic with a constant on
// the samples of a PNG image.  8- and 16-bit gray, RGB and RGBA images; the alpha of an RGBA
// image is kept (the AC4 forms), and gray+alpha images are refused.  Every call works in
// place on the image as read, so what the library does not write keeps the input's values.
#include <cstdio>
#include <stdexcept>
#include <string>

#include "commands.hpp"
#include "png_io.hpp"

namespace kroi_tool {

namespace {

// A whole decimal integer, or nothing.
bool parseInt(const std::string& s, long& v)
{
    if (s.empty()) return false;
    size_t used = 0;
    try {
        v = std::stol(s, &used);
    } catch (const std::exception&) {
        return false;
    }
    return used == s.size();
}

int usage(const char* cmd, const char* text)
{
    std::fprintf(stderr, "usage: kroi %s %s\n", cmd, text);
    return kExitUsage;
}

// The in-place forms of one operation, with a constant, without, or with a second image, for
// the three layouts kroi handles.
template <class T, class V, class... More>
struct ConstForms {
    KroStatus (*c1)(V, T*, int, KroiSize, More...);
    KroStatus (*c3)(const V*, T*, int, KroiSize, More...);
    KroStatus (*ac4)(const V*, T*, int, KroiSize, More...);
};
template <class T>
struct UnaryForms {
    KroStatus (*c1)(T*, int, KroiSize);
    KroStatus (*c3)(T*, int, KroiSize);
    KroStatus (*ac4)(T*, int, KroiSize);
};
template <class T>
struct ImageForms {
    KroStatus (*c1)(const T*, int, T*, int, KroiSize);
    KroStatus (*c3)(const T*, int, T*, int, KroiSize);
    KroStatus (*ac4)(const T*, int, T*, int, KroiSize);
};

[[noreturn]] void unsupported(const Image& img)
{
    throw std::runtime_error(describe(img) + " images are not supported (gray, RGB or RGBA)");
}

// Picks the form by channel count (RGBA through AC4, so that alpha stays) and calls it.
template <class F, class... A>
KroStatus byLayout(const Image& img, const F& f, A... a)
{
    switch (img.channels) {
    case 1: return f.c1(a...);
    case 3: return f.c3(a...);
    case 4: return f.ac4(a...);
    default: unsupported(img);
    }
}

template <class T, class V, class... More>
KroStatus applyConst(Image& img, const ConstForms<T, V, More...>& f, V value, More... more)
{
    const V k[3] = {value, value, value};
    const KroiSize roi{img.width, img.height};
    switch (img.channels) {
    case 1: return f.c1(value, img.row<T>(0), img.step, roi, more...);
    case 3: return f.c3(k, img.row<T>(0), img.step, roi, more...);
    case 4: return f.ac4(k, img.row<T>(0), img.step, roi, more...);
    default: unsupported(img);
    }
}

template <class T>
KroStatus applyImage(Image& img, const Image& other, const ImageForms<T>& f)
{
    if (other.width != img.width || other.height != img.height || other.channels != img.channels ||
        other.depth != img.depth)
        throw std::runtime_error("the two images differ in size or type");
    return byLayout(img, f, other.row<T>(0), other.step, img.row<T>(0), img.step, KroiSize{img.width, img.height});
}

// Reports a library status and writes the result; returns the exit code.
int finish(const char* cmd, KroStatus st, const std::string& out, const Image& img)
{
    if (st < 0) {
        std::fprintf(stderr, "kroi %s: the library returned %d\n", cmd, st);
        return kExitFailure;
    }
    writePng(out, img);
    return kExitOk;
}

struct LogicForms {
    ImageForms<Kro8u> image8;
    ImageForms<Kro16u> image16;
    ConstForms<Kro8u, Kro8u> const8;
    ConstForms<Kro16u, Kro16u> const16;
};
constexpr LogicForms kAnd = {{kroiAnd_8u_C1IR, kroiAnd_8u_C3IR, kroiAnd_8u_AC4IR},
                             {kroiAnd_16u_C1IR, kroiAnd_16u_C3IR, kroiAnd_16u_AC4IR},
                             {kroiAndC_8u_C1IR, kroiAndC_8u_C3IR, kroiAndC_8u_AC4IR},
                             {kroiAndC_16u_C1IR, kroiAndC_16u_C3IR, kroiAndC_16u_AC4IR}};
constexpr LogicForms kXor = {{kroiXor_8u_C1IR, kroiXor_8u_C3IR, kroiXor_8u_AC4IR},
                             {kroiXor_16u_C1IR, kroiXor_16u_C3IR, kroiXor_16u_AC4IR},
                             {kroiXorC_8u_C1IR, kroiXorC_8u_C3IR, kroiXorC_8u_AC4IR},
                             {kroiXorC_16u_C1IR, kroiXorC_16u_C3IR, kroiXorC_16u_AC4IR}};

// kroi and|xor A.png (B.png | VALUE) OUT.png
int runLogic(const char* cmd, const LogicForms& f, const Args& args)
{
    if (args.size() != 3) return usage(cmd, "A.png (B.png | VALUE) OUT.png");
    Image img = readPng(args[0]);
    long value = 0;
    KroStatus st;
    if (parseInt(args[1], value)) {
        if (value < 0 || value > (img.depth == 8 ? 255 : 65535))
            return usage(cmd, "A.png (B.png | VALUE from 0 to 255, to 65535 for 16 bits) OUT.png");
        st = img.depth == 8 ? applyConst(img, f.const8, Kro8u(value)) : applyConst(img, f.const16, Kro16u(value));
    } else {
        const Image other = readPng(args[1]);
        st = img.depth == 8 ? applyImage(img, other, f.image8) : applyImage(img, other, f.image16);
    }
    return finish(cmd, st, args[2], img);
}

} // namespace

int runAnd(const Args& args) { return runLogic("and", kAnd, args); }
int runXor(const Args& args) { return runLogic("xor", kXor, args); }

// kroi not IN.png OUT.png: every sample inverted (16-bit samples by Xor with 65535).
int runNot(const Args& args)
{
    if (args.size() != 2) return usage("not", "IN.png OUT.png");
    Image img = readPng(args[0]);
    constexpr UnaryForms<Kro8u> kNot = {kroiNot_8u_C1IR, kroiNot_8u_C3IR, kroiNot_8u_AC4IR};
    const KroStatus st = img.depth == 8 ? byLayout(img, kNot, img.row<Kro8u>(0), img.step, KroiSize{img.width, img.height})
                                        : applyConst(img, kXor.const16, Kro16u(0xFFFF));
    return finish("not", st, args[1], img);
}

// kroi shift IN.png COUNT OUT.png: a positive count shifts left, a negative one right.
int runShift(const Args& args)
{
    long count = 0;
    if (args.size() != 3 || !parseInt(args[1], count) || count < -64 || count > 64)
        return usage("shift", "IN.png COUNT (-64..64; negative shifts right) OUT.png");
    Image img = readPng(args[0]);
    const Kro32u n = Kro32u(count < 0 ? -count : count);
    constexpr ConstForms<Kro8u, Kro32u> kLeft8 = {kroiLShiftC_8u_C1IR, kroiLShiftC_8u_C3IR, kroiLShiftC_8u_AC4IR};
    constexpr ConstForms<Kro8u, Kro32u> kRight8 = {kroiRShiftC_8u_C1IR, kroiRShiftC_8u_C3IR, kroiRShiftC_8u_AC4IR};
    constexpr ConstForms<Kro16u, Kro32u> kLeft16 = {kroiLShiftC_16u_C1IR, kroiLShiftC_16u_C3IR, kroiLShiftC_16u_AC4IR};
    constexpr ConstForms<Kro16u, Kro32u> kRight16 = {kroiRShiftC_16u_C1IR, kroiRShiftC_16u_C3IR, kroiRShiftC_16u_AC4IR};
    const KroStatus st = img.depth == 8 ? applyConst(img, count >= 0 ? kLeft8 : kRight8, n)
                                        : applyConst(img, count >= 0 ? kLeft16 : kRight16, n);
    return finish("shift", st, args[2], img);
}

// kroi addc|mulc IN.png VALUE OUT.png [SCALE]: every sample (alpha kept) plus or times VALUE,
// times 2^-SCALE, rounded to nearest (ties to even) and saturated.
int runArithC(const char* cmd, const ConstForms<Kro8u, Kro8u, int>& f8, const ConstForms<Kro16u, Kro16u, int>& f16,
              const Args& args)
{
    long value = 0, scale = 0;
    if (args.size() < 3 || args.size() > 4 || !parseInt(args[1], value) ||
        (args.size() == 4 && (!parseInt(args[3], scale) || scale < -64 || scale > 64)))
        return usage(cmd, "IN.png VALUE OUT.png [SCALE]");
    Image img = readPng(args[0]);
    if (value < 0 || value > (img.depth == 8 ? 255 : 65535))
        return usage(cmd, "IN.png VALUE (0..255, 0..65535 for 16 bits) OUT.png [SCALE]");
    const KroStatus st = img.depth == 8 ? applyConst(img, f8, Kro8u(value), int(scale))
                                        : applyConst(img, f16, Kro16u(value), int(scale));
    return finish(cmd, st, args[2], img);
}

int runAddC(const Args& args)
{
    constexpr ConstForms<Kro8u, Kro8u, int> k8 = {kroiAddC_8u_C1IRSfs, kroiAddC_8u_C3IRSfs, kroiAddC_8u_AC4IRSfs};
    constexpr ConstForms<Kro16u, Kro16u, int> k16 = {kroiAddC_16u_C1IRSfs, kroiAddC_16u_C3IRSfs, kroiAddC_16u_AC4IRSfs};
    return runArithC("addc", k8, k16, args);
}

int runMulC(const Args& args)
{
    constexpr ConstForms<Kro8u, Kro8u, int> k8 = {kroiMulC_8u_C1IRSfs, kroiMulC_8u_C3IRSfs, kroiMulC_8u_AC4IRSfs};
    constexpr ConstForms<Kro16u, Kro16u, int> k16 = {kroiMulC_16u_C1IRSfs, kroiMulC_16u_C3IRSfs, kroiMulC_16u_AC4IRSfs};
    return runArithC("mulc", k8, k16, args);
}

} // namespace kroi_tool
