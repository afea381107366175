// `kroi demo`: runs every entry of the demo registry on the built-in sample, writes the
// inputs and results as PNG files with a self-contained index.html, and prints the timings.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "commands.hpp"
#include "demo.hpp"

namespace kroi_tool {

namespace {

namespace fs = std::filesystem;

constexpr int kSampleWidth = 512;
constexpr int kSampleHeight = 384;
constexpr const char* kFirstFile = "input.png";
constexpr const char* kSecondFile = "input2.png";

struct Result {
    const DemoEntry* entry = nullptr;
    std::string file;  // result PNG, relative to the output directory; empty on failure
    std::string shape; // "8-bit RGBA, 512 x 384, step 2048"
    std::string note;
    std::string error; // empty on success
    bool usedSecond = false;
    double ms = -1;    // median milliseconds per call; negative when never timed
    double pixels = 0; // of the result
    std::string size;  // "512x384"
};

std::string shapeOf(const Image& img)
{
    return describe(img) + ", " + std::to_string(img.width) + " \u00d7 " + std::to_string(img.height) +
           ", step " + std::to_string(img.step);
}

std::string html(const std::string& s)
{
    std::string out;
    for (char c : s) {
        switch (c) {
        case '&': out += "&amp;"; break;
        case '<': out += "&lt;"; break;
        case '>': out += "&gt;"; break;
        case '"': out += "&quot;"; break;
        default: out += c;
        }
    }
    return out;
}

std::string fixed(double v, int decimals)
{
    char buf[64];
    std::snprintf(buf, sizeof buf, "%.*f", decimals, v);
    return buf;
}

// A time per call in the unit that keeps three significant digits readable.
std::string duration(double ms)
{
    if (ms < 0) return "-";
    if (ms < 1e-3) return fixed(ms * 1e6, 1) + " ns";
    if (ms < 1) return fixed(ms * 1e3, 2) + " us";
    return fixed(ms, 3) + " ms";
}

// Megapixels per second of the result, or "-" when the entry was not timed or too fast to
// measure.
std::string mpps(const Result& r)
{
    return r.ms > 0 && r.pixels > 0 ? fixed(r.pixels / (r.ms * 1e3), 1) : "-";
}

void printTable(const std::vector<Result>& results, int runs)
{
    std::printf("%-24s %-10s %12s %12s   (median of %d runs)\n", "entry", "size", "time/call", "MP/s", runs);
    for (const Result& r : results) {
        if (!r.error.empty())
            std::printf("%-24s FAILED: %s\n", r.entry->name, r.error.c_str());
        else
            std::printf("%-24s %-10s %12s %12s\n", r.entry->name, r.size.c_str(),
                        duration(r.ms).c_str(), mpps(r).c_str());
    }
}

constexpr const char* kStyle = R"(
body { font: 15px/1.45 system-ui, sans-serif; margin: 2em auto; max-width: 1120px; color: #222; background: #fafafa; }
h1 { margin-bottom: .2em; }
.lib { color: #555; margin-top: 0; }
.entry { background: #fff; border: 1px solid #ddd; border-radius: 6px; padding: 1em 1.2em; margin: 1.4em 0; }
.entry h2 { margin: 0 0 .6em; font-size: 1.15em; }
.pair { display: flex; gap: 1em; flex-wrap: wrap; align-items: flex-start; }
figure { margin: 0; }
figure img { display: block; max-width: 100%; border: 1px solid #ccc;
  background: repeating-conic-gradient(#ddd 0 25%, #fff 0 50%) 0 0 / 16px 16px; }
figcaption { font-size: .85em; color: #555; margin-top: .3em; }
pre { background: #f2f2f2; padding: .5em .8em; border-radius: 4px; overflow-x: auto; margin: .8em 0 .4em; }
.note { margin: .3em 0; }
.time { color: #0a5; margin: .3em 0 0; font-variant-numeric: tabular-nums; }
.error { color: #b00; font-weight: bold; }
)";

std::string figure(const std::string& file, const std::string& caption)
{
    return "<figure><img src=\"" + html(file) + "\" alt=\"" + html(caption) + "\"><figcaption>" + html(caption) +
           "</figcaption></figure>";
}

void writeGallery(const fs::path& path, const std::vector<Result>& results, const Image& first,
                  const Image& second, int runs)
{
    std::ostringstream o;
    o << "<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\">\n<title>kroIP demo</title>\n<style>"
      << kStyle << "</style></head>\n<body>\n<h1>kroIP demo</h1>\n<p class=\"lib\">" << html(libraryLine())
      << "</p>\n<p>Each entry ran the library call shown under it on the built-in sample and wrote what it made. "
         "Times are the median of "
      << runs
      << " calls after one warm-up call, in one thread, on the machine that ran the demo; megapixels per second "
         "count the pixels of the result.</p>\n"
         "<p>The entries follow the library's families: copies and fills, arithmetic, conversions, layout, "
         "comparison, borders and filters, statistics, mathematics and generated images. The last one shows "
         "an allocator: its time is one kroiMalloc and one kroiFree of the block, which never touch the "
         "pixels, so it is a per-call overhead and no pixel rate is given for it.</p>\n";
    for (const Result& r : results) {
        o << "<section class=\"entry\"><h2>" << html(r.entry->name) << "</h2>\n<div class=\"pair\">"
          << figure(kFirstFile, "input: " + shapeOf(first));
        if (r.usedSecond) o << figure(kSecondFile, "second input: " + shapeOf(second));
        if (r.error.empty()) o << figure(r.file, "result: " + r.shape);
        o << "</div>\n<pre><code>" << html(r.entry->call) << "</code></pre>\n";
        if (!r.note.empty()) o << "<p class=\"note\">" << html(r.note) << "</p>\n";
        if (!r.error.empty())
            o << "<p class=\"error\">Failed: " << html(r.error) << "</p>\n";
        else if (r.ms >= 0)
            o << "<p class=\"time\">" << duration(r.ms) << " per call"
              << (r.pixels > 0 ? ", " + mpps(r) + " MP/s" : std::string(" (allocation and release, no pixels touched)"))
              << "</p>\n";
        o << "</section>\n";
    }
    o << "</body></html>\n";
    std::ofstream f(path, std::ios::binary);
    f << o.str();
    f.close();
    if (!f) throw std::runtime_error(path.string() + ": cannot write");
}

} // namespace

int runDemo(const Args& args)
{
    fs::path out = "demo-out";
    int runs = 15;
    for (size_t i = 0; i < args.size(); ++i) {
        const bool hasValue = i + 1 < args.size();
        if (args[i] == "--out" && hasValue) {
            out = args[++i];
        } else if (args[i] == "--runs" && hasValue) {
            runs = std::atoi(args[++i].c_str());
            if (runs < 1) {
                std::fprintf(stderr, "kroi demo: --runs wants a count of at least 1\n");
                return kExitUsage;
            }
        } else {
            std::fprintf(stderr, "kroi demo: unexpected argument '%s' (try 'kroi help')\n", args[i].c_str());
            return kExitUsage;
        }
    }
    fs::create_directories(out);

    const Image first = makeScene(kSampleWidth, kSampleHeight);
    const Image second = makeSecond(kSampleWidth, kSampleHeight);
    writePng((out / kFirstFile).string(), first);

    std::vector<Result> results;
    bool anySecond = false;
    int failures = 0;
    for (const DemoEntry& e : demoEntries()) {
        DemoContext ctx(first, second, runs);
        Result r;
        r.entry = &e;
        try {
            const Image img = e.run(ctx);
            r.file = std::string(e.name) + ".png";
            writePng((out / r.file).string(), img);
            r.shape = shapeOf(img);
            r.pixels = ctx.perCallOnly ? 0.0 : double(img.width) * img.height;
            r.size = std::to_string(img.width) + "x" + std::to_string(img.height);
        } catch (const std::exception& ex) {
            r.error = ex.what();
            ++failures;
        }
        r.note = ctx.note;
        r.ms = ctx.medianMs();
        r.usedSecond = ctx.usedSecond();
        anySecond = anySecond || r.usedSecond;
        results.push_back(std::move(r));
    }
    if (anySecond) writePng((out / kSecondFile).string(), second);
    writeGallery(out / "index.html", results, first, second, runs);

    std::printf("%s\n", libraryLine().c_str());
    printTable(results, runs);
    std::printf("gallery: %s\n", (out / "index.html").string().c_str());
    return failures ? kExitFailure : kExitOk;
}

} // namespace kroi_tool
