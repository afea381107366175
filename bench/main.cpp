// The benchmark program: Google Benchmark with its usual output and flags, then one summary
// table that pairs each case's kroIP, OpenCV and reference variants.
//
//   kroi-bench [--table FILE] [Google Benchmark flags]
//
// --table FILE also writes the summary as Markdown.  Without --benchmark_min_time each
// benchmark runs for 0.05 s, which keeps the whole run short; pass a larger value for
// steadier numbers.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iostream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "kroi.h"
#include "support.hpp"

#ifdef KROI_HAVE_OPENCV
#include <opencv2/core.hpp>
#include <opencv2/core/utility.hpp>
#endif

namespace {

constexpr const char* kDefaultMinTime = "--benchmark_min_time=0.05";

struct Result {
    double seconds = 0;      // CPU time per iteration
    double bytesPerSec = 0;  // 0 when the case sets no byte count
    bool fromIterations = false;
    std::string error;
};

// Forwards everything to Google Benchmark's own display reporter (so --benchmark_format
// still works) and keeps each run's time for the table.
class Collector : public benchmark::BenchmarkReporter {
public:
    explicit Collector(benchmark::BenchmarkReporter* display) : display_(display) {}

    bool ReportContext(const Context& context) override
    {
        std::ostringstream host;
        host << context.cpu_info.num_cpus << " CPUs at "
             << std::lround(context.cpu_info.cycles_per_second / 1e6) << " MHz";
        for (const auto& c : context.cpu_info.caches) {
            const char* kind = c.type == "Data" ? "d" : c.type == "Instruction" ? "i" : "";
            host << ", L" << c.level << kind
                 << " " << (c.size >= (1 << 20) ? c.size / (1 << 20) : c.size / 1024)
                 << (c.size >= (1 << 20) ? " MiB" : " KiB");
        }
        host_ = host.str();
        return display_->ReportContext(context);
    }

    void ReportRuns(const std::vector<Run>& runs) override
    {
        display_->ReportRuns(runs);
        for (const Run& run : runs) {
            Result& r = results_[run.run_name.function_name];
            if (run.error_occurred) {
                r.error = run.error_message;
                continue;
            }
            const double s =
                run.GetAdjustedCPUTime() / benchmark::GetTimeUnitMultiplier(run.time_unit);
            const auto bps = run.counters.find("bytes_per_second");
            const double bytesPerSec = bps == run.counters.end() ? 0.0 : double(bps->second);
            // The fastest repetition stands for the benchmark: interference from other work
            // on the machine only ever adds time.  A median is taken only when the
            // repetitions themselves were not reported.
            if (run.run_type == Run::RT_Iteration) {
                if (!r.fromIterations || s < r.seconds) {
                    r.seconds = s;
                    r.bytesPerSec = bytesPerSec;
                    r.fromIterations = true;
                }
            } else if (run.aggregate_name == "median" && !r.fromIterations &&
                       run.aggregate_unit == benchmark::kTime) {
                r.seconds = s;
                r.bytesPerSec = bytesPerSec;
            }
        }
    }

    void Finalize() override { display_->Finalize(); }

    const Result* find(const std::string& name) const
    {
        auto it = results_.find(name);
        if (it == results_.end() || !it->second.error.empty() || it->second.seconds <= 0)
            return nullptr;
        return &it->second;
    }
    const std::string& host() const { return host_; }

private:
    benchmark::BenchmarkReporter* display_;
    std::map<std::string, Result> results_;
    std::string host_;
};

std::string fmt(const char* format, double v)
{
    char buf[64];
    std::snprintf(buf, sizeof buf, format, v);
    return buf;
}

std::string fmtTime(double s)
{
    static const struct { double scale; const char* unit; } units[] = {
        {1e9, "ns"}, {1e6, "us"}, {1e3, "ms"}, {1, "s"}};
    for (const auto& u : units) {
        const double v = s * u.scale;
        if (v < 1000 || u.scale == 1)
            return fmt(v < 10 ? "%.2f " : v < 100 ? "%.1f " : "%.0f ", v) + u.unit;
    }
    return "-";
}

std::string fmtGBs(const Result* r)
{
    return r && r->bytesPerSec > 0 ? fmt("%.2f", r->bytesPerSec / 1e9) : "-";
}

using Row = std::vector<std::string>;

struct Table {
    std::string title;
    Row header;
    std::vector<Row> rows;
};

// One row per case and size, in registration order.  Cases with a kroIP or OpenCV variant
// go to the comparison table; cases with only reference variants (the frame's own
// bandwidth yardsticks) to the reference table.
std::vector<Table> buildTables(const Collector& c)
{
    Table cmp{"kroIP against OpenCV (CPU time per call, 1 thread)",
              {"Case", "Size", "kroIP", "OpenCV", "OpenCV/kroIP", "kroIP GB/s", "kroIP vs ref"},
              {}};
    Table ref{"Reference bandwidth",
              {"Case", "Size", "Reference", "Time", "GB/s", "OpenCV", "OpenCV GB/s",
               "OpenCV vs ref"},
              {}};

    struct Group {
        std::string caseName, size;
        const Result *kroi = nullptr, *opencv = nullptr, *reference = nullptr;
        std::string refName;
    };
    std::vector<Group> groups;
    for (const kb::Entry& e : kb::entries()) {
        const Result* r = c.find(e.name);
        if (!r) continue;
        if (groups.empty() || groups.back().caseName != e.caseName ||
            groups.back().size != e.size) {
            Group g;
            g.caseName = e.caseName;
            g.size = e.size;
            groups.push_back(g);
        }
        Group& g = groups.back();
        if (e.variant == "kroi") g.kroi = r;
        else if (e.variant == "opencv") g.opencv = r;
        else {
            g.reference = r;
            g.refName = e.variant;
        }
    }

    // "vs ref" is reference time over our time: with the same byte count on both sides it is
    // our bandwidth as a share of the reference's, measured on the same buffers.
    auto share = [](const Result* a, const Result* refRes, const std::string& refName) {
        return a && refRes ? refName + " " + fmt("%.0f%%", 100.0 * refRes->seconds / a->seconds)
                           : std::string("-");
    };
    for (const Group& g : groups) {
        if (g.kroi) {
            cmp.rows.push_back({g.caseName, g.size, fmtTime(g.kroi->seconds),
                                g.opencv ? fmtTime(g.opencv->seconds) : "-",
                                g.opencv ? fmt("%.2f", g.opencv->seconds / g.kroi->seconds) : "-",
                                fmtGBs(g.kroi), share(g.kroi, g.reference, g.refName)});
        } else {
            ref.rows.push_back({g.caseName, g.size, g.reference ? g.refName : "-",
                                g.reference ? fmtTime(g.reference->seconds) : "-",
                                fmtGBs(g.reference),
                                g.opencv ? fmtTime(g.opencv->seconds) : "-", fmtGBs(g.opencv),
                                share(g.opencv, g.reference, g.refName)});
        }
    }
    std::vector<Table> out;
    if (!cmp.rows.empty()) out.push_back(cmp);
    if (!ref.rows.empty()) out.push_back(ref);
    return out;
}

void printText(std::ostream& os, const Table& t)
{
    std::vector<size_t> w(t.header.size());
    for (size_t i = 0; i < w.size(); ++i) {
        w[i] = t.header[i].size();
        for (const Row& r : t.rows) w[i] = std::max(w[i], r[i].size());
    }
    auto line = [&](const Row& r) {
        for (size_t i = 0; i < r.size(); ++i) {
            // Names left-aligned, numbers right-aligned.
            const std::string pad(w[i] - r[i].size(), ' ');
            os << (i ? "  " : "") << (i < 2 ? r[i] + pad : pad + r[i]);
        }
        os << '\n';
    };
    os << '\n' << t.title << '\n';
    line(t.header);
    size_t total = 0;
    for (size_t x : w) total += x + 2;
    os << std::string(total - 2, '-') << '\n';
    for (const Row& r : t.rows) line(r);
}

void printMarkdown(std::ostream& os, const Table& t)
{
    os << "\n**" << t.title << "**\n\n";
    auto line = [&](const Row& r) {
        os << '|';
        for (const std::string& cell : r) os << ' ' << cell << " |";
        os << '\n';
    };
    line(t.header);
    os << '|';
    for (size_t i = 0; i < t.header.size(); ++i) os << (i < 2 ? " --- |" : " ---: |");
    os << '\n';
    for (const Row& r : t.rows) line(r);
}

std::string contextLine(const Collector& c, const std::string& minTime)
{
    std::ostringstream os;
    const KroLibraryVersion* v = kroiGetLibVersion();
    os << v->Name << " " << v->Version;
#ifdef KROI_HAVE_OPENCV
    os << "; OpenCV " << CV_VERSION;
#else
    os << "; OpenCV not found";
#endif
    os << "; host " << c.host() << "; " << minTime.substr(2)
       << "; CPU time per call; GB = 10^9 bytes";
    return os.str();
}

}  // namespace

int main(int argc, char** argv)
{
    // Take out our own flag and add the default minimum time before Google Benchmark parses
    // the rest, so that every other flag passes through untouched.
    std::string tableFile;
    std::string minTime = kDefaultMinTime;
    bool machineFormat = false;
    std::vector<char*> args{argv[0]};
    for (int i = 1; i < argc; ++i) {
        const char* a = argv[i];
        if (std::strcmp(a, "--table") == 0) {
            if (i + 1 == argc) {
                std::cerr << "kroi-bench: --table needs a file name\n";
                return 1;
            }
            tableFile = argv[++i];
            continue;
        }
        if (std::strncmp(a, "--table=", 8) == 0) {
            tableFile = a + 8;
            continue;
        }
        if (std::strncmp(a, "--benchmark_min_time", 20) == 0) minTime = a;
        if (std::strncmp(a, "--benchmark_format=", 19) == 0 && std::strcmp(a + 19, "console") != 0)
            machineFormat = true;
        args.push_back(argv[i]);
    }
    std::string defaultMinTime = kDefaultMinTime;
    if (minTime == kDefaultMinTime) args.insert(args.begin() + 1, defaultMinTime.data());
    int n = int(args.size());
    args.push_back(nullptr);

    benchmark::Initialize(&n, args.data());
    if (benchmark::ReportUnrecognizedArguments(n, args.data())) return 1;

#ifdef KROI_HAVE_OPENCV
    // Both sides run on one core: OpenCV's own thread pool would compare us against a team.
    cv::setNumThreads(1);
#endif

    Collector collector(benchmark::CreateDefaultDisplayReporter());
    benchmark::RunSpecifiedBenchmarks(&collector);
    benchmark::Shutdown();
    kb::detail::slot().instance.reset();

    const std::vector<Table> tables = buildTables(collector);
    if (tables.empty()) return 0;
    // With JSON or CSV on stdout the table goes to stderr, so the stream stays parseable.
    std::ostream& os = machineFormat ? std::cerr : std::cout;
    os << '\n' << contextLine(collector, minTime) << '\n';
    for (const Table& t : tables) printText(os, t);

    if (!tableFile.empty()) {
        std::ofstream md(tableFile);
        md << contextLine(collector, minTime) << '\n';
        for (const Table& t : tables) printMarkdown(md, t);
        if (!md) {
            std::cerr << "kroi-bench: cannot write " << tableFile << '\n';
            return 1;
        }
        os << "\nTable written to " << tableFile << '\n';
    }
    return 0;
}
