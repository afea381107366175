// `kroi png-roundtrip DIR`, a test aid: PNG files written by kroi read back identically,
// files made elsewhere (16-bit, interlaced, palette) decode to their known samples, and
// unreadable files fail with a message that names them.
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <random>
#include <span>
#include <stdexcept>
#include <string>

#include "commands.hpp"
#include "png_io.hpp"

namespace kroi_tool {

namespace {

namespace fs = std::filesystem;

// Small PNG files made outside this program, with the samples they hold.  A round trip alone
// would pass with the 16-bit byte order wrong on both sides, and never meets the layouts
// kroi does not write; these pin the reader, and the round trip then pins the writer.
constexpr unsigned char kRgb16[] = { // 2 x 1, 16-bit RGB
    0x89, 0x50, 0x4e, 0x47, 0x0d, 0x0a, 0x1a, 0x0a, 0x00, 0x00, 0x00, 0x0d, 0x49, 0x48, 0x44, 0x52,
    0x00, 0x00, 0x00, 0x02, 0x00, 0x00, 0x00, 0x01, 0x10, 0x02, 0x00, 0x00, 0x00, 0x2b, 0xd0, 0x34,
    0x9e, 0x00, 0x00, 0x00, 0x15, 0x49, 0x44, 0x41, 0x54, 0x78, 0x9c, 0x63, 0x10, 0x32, 0x09, 0xab,
    0x98, 0xb5, 0xe7, 0xde, 0x07, 0x06, 0xc6, 0xff, 0xff, 0x00, 0x21, 0x8c, 0x06, 0x37, 0xe6, 0x66,
    0x39, 0x1e, 0x00, 0x00, 0x00, 0x00, 0x49, 0x45, 0x4e, 0x44, 0xae, 0x42, 0x60, 0x82};
constexpr uint16_t kRgb16Samples[] = {0x1234, 0x5678, 0x9abc, 0xdef0, 0x0001, 0xfffe};

constexpr unsigned char kInterlaced[] = { // 5 x 5, 8-bit gray, interlaced, sample 10 y + x
    0x89, 0x50, 0x4e, 0x47, 0x0d, 0x0a, 0x1a, 0x0a, 0x00, 0x00, 0x00, 0x0d, 0x49, 0x48, 0x44, 0x52,
    0x00, 0x00, 0x00, 0x05, 0x00, 0x00, 0x00, 0x05, 0x08, 0x00, 0x00, 0x00, 0x01, 0xdf, 0x03, 0x49,
    0xaf, 0x00, 0x00, 0x00, 0x2c, 0x49, 0x44, 0x41, 0x54, 0x78, 0x9c, 0x63, 0x60, 0x60, 0x60, 0x61,
    0xd0, 0xd0, 0x61, 0x60, 0x62, 0xd0, 0x62, 0x10, 0x11, 0x93, 0x60, 0x60, 0x64, 0x66, 0x10, 0x15,
    0x67, 0xd0, 0xd4, 0x66, 0xe0, 0xe2, 0xe6, 0xe1, 0xe5, 0x63, 0x90, 0x93, 0x57, 0x50, 0x54, 0x02,
    0x00, 0x20, 0x85, 0x02, 0x27, 0x48, 0x68, 0x63, 0x47, 0x00, 0x00, 0x00, 0x00, 0x49, 0x45, 0x4e,
    0x44, 0xae, 0x42, 0x60, 0x82};
constexpr uint16_t kInterlacedSamples[] = {0,  1,  2,  3,  4,  10, 11, 12, 13, 14, 20, 21, 22,
                                           23, 24, 30, 31, 32, 33, 34, 40, 41, 42, 43, 44};

constexpr unsigned char kPalette[] = { // 3 x 2, 2-bit palette with transparency
    0x89, 0x50, 0x4e, 0x47, 0x0d, 0x0a, 0x1a, 0x0a, 0x00, 0x00, 0x00, 0x0d, 0x49, 0x48, 0x44, 0x52,
    0x00, 0x00, 0x00, 0x03, 0x00, 0x00, 0x00, 0x02, 0x02, 0x03, 0x00, 0x00, 0x00, 0xe0, 0x1a, 0x8e,
    0x89, 0x00, 0x00, 0x00, 0x0c, 0x50, 0x4c, 0x54, 0x45, 0xff, 0x00, 0x00, 0x00, 0xff, 0x00, 0x00,
    0x00, 0xff, 0xff, 0xff, 0xff, 0xfb, 0x00, 0x60, 0xf6, 0x00, 0x00, 0x00, 0x02, 0x74, 0x52, 0x4e,
    0x53, 0x00, 0x80, 0x9b, 0x2b, 0x4e, 0x18, 0x00, 0x00, 0x00, 0x0c, 0x49, 0x44, 0x41, 0x54, 0x78,
    0x9c, 0x63, 0x90, 0x60, 0x78, 0x02, 0x00, 0x01, 0x30, 0x00, 0xfd, 0x56, 0xcd, 0x1c, 0x73, 0x00,
    0x00, 0x00, 0x00, 0x49, 0x45, 0x4e, 0x44, 0xae, 0x42, 0x60, 0x82};
constexpr uint16_t kPaletteSamples[] = {255, 0,   0,   0,   0,   255, 0,   128, 0, 0,   255, 255,
                                        255, 255, 255, 255, 0,   0,   255, 255, 0, 255, 0,   128};

struct KnownFile {
    const char* what;
    std::span<const unsigned char> bytes;
    int width, height, channels, depth;
    std::span<const uint16_t> samples; // row by row, channels interleaved
};

constexpr KnownFile kKnownFiles[] = {
    {"16-bit RGB", kRgb16, 2, 1, 3, 16, kRgb16Samples},
    {"interlaced 8-bit gray", kInterlaced, 5, 5, 1, 8, kInterlacedSamples},
    {"2-bit palette with transparency, as 8-bit RGBA", kPalette, 3, 2, 4, 8, kPaletteSamples},
};

bool holds(const Image& img, const KnownFile& k)
{
    if (img.width != k.width || img.height != k.height || img.channels != k.channels || img.depth != k.depth)
        return false;
    const size_t perRow = size_t(k.width) * k.channels;
    for (int y = 0; y < k.height; ++y)
        for (size_t i = 0; i < perRow; ++i) {
            const unsigned v = k.depth == 16 ? img.row<uint16_t>(y)[i] : img.row<uint8_t>(y)[i];
            if (v != k.samples[y * perRow + i]) return false;
        }
    return true;
}

void writeBytes(const fs::path& path, const void* bytes, size_t n)
{
    std::ofstream f(path, std::ios::binary);
    f.write(static_cast<const char*>(bytes), std::streamsize(n));
    if (!f) throw std::runtime_error(path.string() + ": cannot write");
}

bool sameLayout(const Image& a, const Image& b)
{
    return a.width == b.width && a.height == b.height && a.channels == b.channels && a.depth == b.depth;
}

bool samePixels(const Image& a, const Image& b)
{
    for (int y = 0; y < a.height; ++y)
        if (std::memcmp(a.row<uint8_t>(y), b.row<uint8_t>(y), a.rowBytes()) != 0) return false;
    return true;
}

// Whether reading `path` fails with a message that contains every one of `parts`; the
// message is shown, since its clarity is the point.
template <class... Parts>
bool failsWith(const std::string& path, const Parts&... parts)
{
    try {
        readPng(path);
    } catch (const std::runtime_error& e) {
        const std::string msg = e.what();
        std::printf("     %s\n", e.what());
        return ((msg.find(parts) != std::string::npos) && ...);
    }
    return false;
}

} // namespace

int runPngRoundtrip(const Args& args)
{
    if (args.size() != 1) {
        std::fprintf(stderr, "kroi png-roundtrip: wants one directory\n");
        return kExitUsage;
    }
    const fs::path dir = args[0];
    fs::create_directories(dir);
    int failures = 0;
    auto report = [&](bool ok, const std::string& what) {
        std::printf("%s %s\n", ok ? "ok  " : "FAIL", what.c_str());
        failures += !ok;
    };

    // Every layout, at widths whose rows fill the step exactly and leave padding; random
    // samples over the whole range.
    std::mt19937 rng(7);
    for (int depth : {8, 16})
        for (int channels = 1; channels <= 4; ++channels)
            for (auto [w, h] : {std::pair{1, 1}, {37, 23}, {64, 3}}) {
                Image img(w, h, channels, depth);
                for (int y = 0; y < h; ++y) {
                    uint8_t* row = img.row<uint8_t>(y);
                    for (size_t i = 0; i < img.rowBytes(); ++i) row[i] = uint8_t(rng());
                }
                const std::string name = describe(img) + " " + std::to_string(w) + "x" + std::to_string(h);
                const fs::path file = dir / ("rt-" + std::to_string(depth) + "-" + std::to_string(channels) + "-" +
                                             std::to_string(w) + ".png");
                writePng(file.string(), img);
                const Image back = readPng(file.string());
                report(sameLayout(img, back) && samePixels(img, back), "round trip " + name);
            }

    for (const KnownFile& k : kKnownFiles) {
        const fs::path file = dir / "known.png";
        writeBytes(file, k.bytes.data(), k.bytes.size());
        bool ok = false;
        try {
            ok = holds(readPng(file.string()), k);
        } catch (const std::runtime_error& e) {
            std::printf("     %s\n", e.what());
        }
        report(ok, std::string("reads ") + k.what);
    }

    const fs::path missing = dir / "no-such-file.png";
    fs::remove(missing);
    report(failsWith(missing.string(), missing.string(), "No such file"), "missing file is reported by name");

    const fs::path text = dir / "not-a-png.png";
    writeBytes(text, "just some text, long enough\n", 28);
    report(failsWith(text.string(), text.string(), "not a PNG"), "text file is refused");

    // Cut inside the image data: libpng fails halfway through the rows.
    const fs::path cut = dir / "truncated.png";
    writeBytes(cut, kRgb16, 50);
    report(failsWith(cut.string(), cut.string(), "damaged"), "truncated file is refused");

    return failures ? kExitFailure : kExitOk;
}

} // namespace kroi_tool
