// `kroi border` (a border copy around an image) and `kroi box` (the box filter).
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string>
#include <vector>

#include "commands.hpp"
#include "png_io.hpp"

namespace kroi_tool {

namespace {

bool toInt(const std::string& s, int& v)
{
    char* end = nullptr;
    const long l = std::strtol(s.c_str(), &end, 10);
    if (s.empty() || *end || l < 0 || l > 1 << 20) return false;
    v = int(l);
    return true;
}

// Up to four comma-separated values, one per channel.
bool toValues(const std::string& s, int (&v)[4])
{
    std::size_t at = 0;
    for (int k = 0; k < 4; ++k) {
        const std::size_t comma = s.find(',', at);
        if (!toInt(s.substr(at, comma == std::string::npos ? std::string::npos : comma - at), v[k])) return false;
        if (comma == std::string::npos) {
            for (int j = k + 1; j < 4; ++j) v[j] = v[k];
            return true;
        }
        at = comma + 1;
    }
    return false;
}

int usage(const char* cmd, const std::string& why)
{
    std::fprintf(stderr, "kroi %s: %s\n", cmd, why.c_str());
    return kExitUsage;
}

// The wrapped border exists for 32-bit single-channel images: each channel goes through a
// 32-bit plane of its own.
template <class T>
KroStatus wrapByPlanes(const Image& in, Image& out, int top, int left)
{
    const int sw = in.width, sh = in.height, dw = out.width, dh = out.height, C = in.channels;
    std::vector<Kro32s> src(std::size_t(sw) * sh), dst(std::size_t(dw) * dh);
    for (int c = 0; c < C; ++c) {
        for (int y = 0; y < sh; ++y)
            for (int x = 0; x < sw; ++x) src[std::size_t(y) * sw + x] = in.row<T>(y)[x * C + c];
        const KroStatus st = kroiCopyWrapBorder_32s_C1R(src.data(), sw * 4, {sw, sh}, dst.data(), dw * 4, {dw, dh},
                                                        top, left);
        if (st < 0) return st;
        for (int y = 0; y < dh; ++y)
            for (int x = 0; x < dw; ++x) out.row<T>(y)[x * C + c] = T(dst[std::size_t(y) * dw + x]);
    }
    return kroStsOk;
}

template <class T>
KroStatus copyBorder(const Image& in, Image& out, int top, int left, const std::string& mode, const int (&v)[4])
{
    const KroiSize s{in.width, in.height}, d{out.width, out.height};
    const T* p = in.row<T>(0);
    T* q = out.row<T>(0);
    const T value[4] = {T(v[0]), T(v[1]), T(v[2]), T(v[3])};
    const int C = in.channels;
    if (mode == "wrap") return wrapByPlanes<T>(in, out, top, left);
    if constexpr (sizeof(T) == 1) {
        if (mode == "replicate")
            return C == 1 ? kroiCopyReplicateBorder_8u_C1R(p, in.step, s, q, out.step, d, top, left)
                 : C == 3 ? kroiCopyReplicateBorder_8u_C3R(p, in.step, s, q, out.step, d, top, left)
                          : kroiCopyReplicateBorder_8u_C4R(p, in.step, s, q, out.step, d, top, left);
        if (mode == "mirror")
            return C == 1 ? kroiCopyMirrorBorder_8u_C1R(p, in.step, s, q, out.step, d, top, left)
                 : C == 3 ? kroiCopyMirrorBorder_8u_C3R(p, in.step, s, q, out.step, d, top, left)
                          : kroiCopyMirrorBorder_8u_C4R(p, in.step, s, q, out.step, d, top, left);
        return C == 1 ? kroiCopyConstBorder_8u_C1R(p, in.step, s, q, out.step, d, top, left, value[0])
             : C == 3 ? kroiCopyConstBorder_8u_C3R(p, in.step, s, q, out.step, d, top, left, value)
                      : kroiCopyConstBorder_8u_C4R(p, in.step, s, q, out.step, d, top, left, value);
    } else {
        if (mode == "replicate")
            return C == 1 ? kroiCopyReplicateBorder_16u_C1R(p, in.step, s, q, out.step, d, top, left)
                 : C == 3 ? kroiCopyReplicateBorder_16u_C3R(p, in.step, s, q, out.step, d, top, left)
                          : kroiCopyReplicateBorder_16u_C4R(p, in.step, s, q, out.step, d, top, left);
        if (mode == "mirror")
            return C == 1 ? kroiCopyMirrorBorder_16u_C1R(p, in.step, s, q, out.step, d, top, left)
                 : C == 3 ? kroiCopyMirrorBorder_16u_C3R(p, in.step, s, q, out.step, d, top, left)
                          : kroiCopyMirrorBorder_16u_C4R(p, in.step, s, q, out.step, d, top, left);
        return C == 1 ? kroiCopyConstBorder_16u_C1R(p, in.step, s, q, out.step, d, top, left, value[0])
             : C == 3 ? kroiCopyConstBorder_16u_C3R(p, in.step, s, q, out.step, d, top, left, value)
                      : kroiCopyConstBorder_16u_C4R(p, in.step, s, q, out.step, d, top, left, value);
    }
}

template <class T>
KroStatus box(const Image& in, Image& out, KroiSize mask, KroiBorderMode code, const int (&v)[4])
{
    int size = 0;
    const int C = in.channels;
    KroStatus st = kroiFilterBoxBorderGetBufferSize({in.width, in.height}, mask, sizeof(T) == 1 ? kro8u : kro16u, C,
                                                    &size);
    if (st < 0) return st;
    std::vector<Kro8u> buffer(static_cast<std::size_t>(size));
    const T value[4] = {T(v[0]), T(v[1]), T(v[2]), T(v[3])};
    const T* p = in.row<T>(0);
    T* q = out.row<T>(0);
    const KroiSize roi{in.width, in.height};
    if constexpr (sizeof(T) == 1)
        return C == 1 ? kroiFilterBoxBorder_8u_C1R(p, in.step, q, out.step, roi, mask, code, value, buffer.data())
             : C == 3 ? kroiFilterBoxBorder_8u_C3R(p, in.step, q, out.step, roi, mask, code, value, buffer.data())
                      : kroiFilterBoxBorder_8u_C4R(p, in.step, q, out.step, roi, mask, code, value, buffer.data());
    else
        return C == 1 ? kroiFilterBoxBorder_16u_C1R(p, in.step, q, out.step, roi, mask, code, value, buffer.data())
             : C == 3 ? kroiFilterBoxBorder_16u_C3R(p, in.step, q, out.step, roi, mask, code, value, buffer.data())
                      : kroiFilterBoxBorder_16u_C4R(p, in.step, q, out.step, roi, mask, code, value, buffer.data());
}

// Reads IN; refuses gray + alpha, which the border copies and the box filter do not take.
bool load(const char* cmd, const std::string& path, Image& img)
{
    img = readPng(path);
    if (img.channels == 2) {
        std::fprintf(stderr, "kroi %s: %s is gray + alpha; use a gray, RGB or RGBA image\n", cmd, path.c_str());
        return false;
    }
    return true;
}

} // namespace

int runBorder(const Args& args)
{
    if (args.size() < 2) return usage("border", "needs IN.png OUT.png");
    int side[4] = {0, 0, 0, 0}; // top, left, bottom, right
    int value[4] = {0, 0, 0, 0};
    std::string mode = "replicate";
    for (std::size_t i = 2; i < args.size(); ++i) {
        const std::string& a = args[i];
        if (i + 1 >= args.size()) return usage("border", "option " + a + " needs a value");
        const std::string& v = args[++i];
        const int k = a == "--top" ? 0 : a == "--left" ? 1 : a == "--bottom" ? 2 : a == "--right" ? 3 : -1;
        if (k >= 0) {
            if (!toInt(v, side[k])) return usage("border", "bad size '" + v + "' for " + a);
        } else if (a == "--mode") {
            if (v != "replicate" && v != "mirror" && v != "wrap" && v != "const")
                return usage("border", "mode must be replicate, mirror, wrap or const");
            mode = v;
        } else if (a == "--value") {
            if (!toValues(v, value)) return usage("border", "bad value '" + v + "'");
        } else {
            return usage("border", "unknown option " + a);
        }
    }
    try {
        Image in;
        if (!load("border", args[0], in)) return kExitFailure;
        Image out(in.width + side[1] + side[3], in.height + side[0] + side[2], in.channels, in.depth);
        const KroStatus st = in.depth == 8 ? copyBorder<Kro8u>(in, out, side[0], side[1], mode, value)
                                           : copyBorder<Kro16u>(in, out, side[0], side[1], mode, value);
        if (st < 0) {
            std::fprintf(stderr, "kroi border: the copy returned %d\n", st);
            return kExitFailure;
        }
        writePng(args[1], out);
    } catch (const std::exception& e) {
        std::fprintf(stderr, "kroi border: %s\n", e.what());
        return kExitFailure;
    }
    return kExitOk;
}

int runBox(const Args& args)
{
    if (args.size() < 3) return usage("box", "needs IN.png OUT.png WxH");
    KroiSize mask{};
    const std::size_t x = args[2].find('x');
    if (x == std::string::npos || !toInt(args[2].substr(0, x), mask.width) ||
        !toInt(args[2].substr(x + 1), mask.height) || mask.width < 1 || mask.height < 1)
        return usage("box", "mask must be WxH, e.g. 5x5");
    KroiBorderMode code = kroBorderReplicate;
    int value[4] = {0, 0, 0, 0};
    for (std::size_t i = 3; i < args.size(); ++i) {
        const std::string& a = args[i];
        if (i + 1 >= args.size()) return usage("box", "option " + a + " needs a value");
        const std::string& v = args[++i];
        if (a == "--border") {
            if (v == "replicate") code = kroBorderReplicate;
            else if (v == "mirror") code = kroBorderMirror;
            else if (v == "const") code = kroBorderConstant;
            else return usage("box", "border must be replicate, mirror or const");
        } else if (a == "--value") {
            if (!toValues(v, value)) return usage("box", "bad value '" + v + "'");
        } else {
            return usage("box", "unknown option " + a);
        }
    }
    try {
        Image in;
        if (!load("box", args[0], in)) return kExitFailure;
        Image out(in.width, in.height, in.channels, in.depth);
        const KroStatus st = in.depth == 8 ? box<Kro8u>(in, out, mask, code, value) : box<Kro16u>(in, out, mask, code, value);
        if (st < 0) {
            std::fprintf(stderr, "kroi box: the filter returned %d\n", st);
            return kExitFailure;
        }
        writePng(args[1], out);
    } catch (const std::exception& e) {
        std::fprintf(stderr, "kroi box: %s\n", e.what());
        return kExitFailure;
    }
    return kExitOk;
}

} // namespace kroi_tool
