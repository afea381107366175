// Benchmark support: image buffers, standard sizes and case registration.
//
// A case is a struct built once per size.  Its constructor makes the buffers; its members
// kroi(), opencv() and reference() each do the case's work once.  addCase() registers one
// Google Benchmark per member and size, named
//     Family/Case/WxH/kroi     Family/Case/WxH/opencv     Family/Case/WxH/<kReference>
// All variants of one case and size run on the same instance, hence on the same buffers.
// The summary table in main.cpp pairs them back up by that name.
//
//   kroi()        the kroIP call.  When it returns a status, a negative one is reported as an
//                 error of that benchmark instead of timing a call that did nothing.
//   opencv()      the same work done by OpenCV (define it under #ifdef KROI_HAVE_OPENCV).
//   reference()   a plain-C yardstick on the same buffers, usually kb::copyRows or
//                 kb::fillRows; the struct names it in `static constexpr const char*
//                 kReference` ("memcpy", "memset", "malloc").
//   bytes()       bytes per call, the same figure for every variant, so that Google
//                 Benchmark reports bandwidth and "% of memcpy" is a plain time ratio.
// Any of the three work members may be missing; a case with none registers nothing.
#ifndef KROI_BENCH_SUPPORT_HPP
#define KROI_BENCH_SUPPORT_HPP

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>
#include <exception>
#include <initializer_list>
#include <memory>
#include <span>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "kroi.h"

#ifdef KROI_HAVE_OPENCV
#include <opencv2/core.hpp>
#endif

namespace kb {

// ---- sizes --------------------------------------------------------------------------------

// An image size.  `label` replaces the "WxH" name where a size is better said in bytes.
struct Size {
    int width;
    int height;
    const char* label = nullptr;

    std::string name() const;
    KroiSize roi() const { return {width, height}; }
};

// The standard working sets: an 8u C1 image of 64x64 stays in L1, 256x256 in L2, a
// 1920x1080 frame spills into the last level cache and 4096x4096 goes to memory.
inline constexpr Size kL1{64, 64};
inline constexpr Size kL2{256, 256};
inline constexpr Size kHD{1920, 1080};
inline constexpr Size k4K{4096, 4096};
inline constexpr Size kStdSizes[] = {kL1, kL2, kHD, k4K};

// ---- images ---------------------------------------------------------------------------------

enum class Depth { u8, s8, u16, s16, s32, f32, f64 };
std::size_t depthBytes(Depth d);

// An image in a block from the core allocator: every row starts on 64 bytes, the step is the
// row's bytes plus `padBytes`, rounded up to 64.  Padding is filled with 0xA5 once and never
// counted in bytes().
class Image {
public:
    Image(Size size, int channels, Depth depth, int padBytes = 0);
    Image(int width, int height, int channels, Depth depth, int padBytes = 0)
        : Image(Size{width, height}, channels, depth, padBytes) {}
    ~Image();
    Image(Image&& other) noexcept;
    Image& operator=(Image&& other) noexcept;
    Image(const Image&) = delete;
    Image& operator=(const Image&) = delete;

    template <class T = Kro8u> T* ptr() const { return reinterpret_cast<T*>(data_); }
    template <class T = Kro8u> T* row(int y) const
    {
        return reinterpret_cast<T*>(data_ + std::ptrdiff_t(step_) * y);
    }
    int step() const { return step_; }
    int width() const { return width_; }
    int height() const { return height_; }
    int channels() const { return channels_; }
    Depth depth() const { return depth_; }
    KroiSize roi() const { return {width_, height_}; }
    std::size_t rowBytes() const { return std::size_t(width_) * channels_ * depthBytes(depth_); }
    std::size_t bytes() const { return rowBytes() * std::size_t(height_); }

    // Deterministic fills of the pixels (not the padding).  fillRandom: every bit of an
    // integer image random; a float image uniform in [0, 1).  fillUniform: values uniform in
    // [lo, hi), rounded toward zero for integer images.  fillByte: every byte set.
    Image& fillRandom(std::uint64_t seed);
    Image& fillUniform(std::uint64_t seed, double lo, double hi);
    Image& fillByte(std::uint8_t value);

#ifdef KROI_HAVE_OPENCV
    // A header over the same pixels; nothing is copied and the Mat never owns the block.
    cv::Mat mat() const;
#endif

private:
    Kro8u* data_ = nullptr;
    int step_ = 0;
    int width_ = 0, height_ = 0, channels_ = 0;
    Depth depth_ = Depth::u8;
};

// memcpy and memset over images of the same geometry: the yardsticks a case calls from
// reference().  Tight rows are done as one block, as kroIP functions merge them too; this
// matters out of cache, where the C library switches to streaming stores for large blocks
// and a row-by-row copy of 4096x4096 loses about a fifth of its bandwidth.
void copyRows(const Image& src, Image& dst);
void fillRows(Image& dst, std::uint8_t value);

// ---- registration ------------------------------------------------------------------------

// What main.cpp needs to pair results: one entry per registered benchmark.
struct Entry {
    std::string name;     // full benchmark name
    std::string caseName; // Family/Case
    std::string size;     // WxH or the size's label
    std::string variant;  // "kroi", "opencv" or the reference's name
};
const std::vector<Entry>& entries();
bool isReferenceVariant(const std::string& variant);

namespace detail {

void addEntry(const Entry& e);

// The one live case instance.  The variants of a case and size run back to back, so they
// share it; the next case frees it before building its own, which keeps one case's buffers
// in memory at a time.
struct Slot {
    std::string key;
    std::shared_ptr<void> instance;
};
Slot& slot();

template <class Case>
Case& instance(const std::string& key, Size size)
{
    Slot& s = slot();
    if (!s.instance || s.key != key) {
        s.instance.reset();
        s.key.clear();
        s.instance = std::make_shared<Case>(size);
        s.key = key;
    }
    return *static_cast<Case*>(s.instance.get());
}

enum class Which { kroi, opencv, reference };

template <class Case, Which W>
decltype(auto) call(Case& c)
{
    if constexpr (W == Which::kroi) return c.kroi();
    else if constexpr (W == Which::opencv) return c.opencv();
    else return c.reference();
}

template <class Case, Which W>
void run(benchmark::State& st, const std::string& key, Size size)
{
    using R = decltype(call<Case, W>(std::declval<Case&>()));
    Case* c = nullptr;
    // One untimed call first: it maps the destination's pages, so first touch is never
    // timed, and it checks that the call does its work.
    try {
        c = &instance<Case>(key, size);
        if constexpr (std::is_void_v<R>) {
            call<Case, W>(*c);
        } else {
            const auto status = call<Case, W>(*c);
            if (status < 0) {
                st.SkipWithError(("status " + std::to_string(status)).c_str());
                return;
            }
        }
    } catch (const std::exception& e) {
        st.SkipWithError(e.what());
        return;
    }
    for (auto _ : st) {
        if constexpr (std::is_void_v<R>) {
            call<Case, W>(*c);
        } else {
            auto r = call<Case, W>(*c);
            benchmark::DoNotOptimize(r);
        }
        benchmark::ClobberMemory();
    }
    if constexpr (requires { c->bytes(); })
        st.SetBytesProcessed(int64_t(st.iterations()) * int64_t(c->bytes()));
}

template <class Case, Which W>
void registerOne(const std::string& caseName, Size size, const std::string& variant)
{
    const std::string sizeName = size.name();
    const std::string key = caseName + "/" + sizeName;
    const std::string name = key + "/" + variant;
    benchmark::RegisterBenchmark(name.c_str(), [key, size](benchmark::State& st) {
        run<Case, W>(st, key, size);
    });
    addEntry({name, caseName, sizeName, variant});
}

}  // namespace detail

// Registers every variant the case defines at each size, sizes outermost so that the
// variants of one size run back to back on one instance.
template <class Case>
void addCase(const std::string& caseName, std::span<const Size> sizes)
{
    for (const Size& size : sizes) {
        if constexpr (requires(Case& c) { c.kroi(); })
            detail::registerOne<Case, detail::Which::kroi>(caseName, size, "kroi");
#ifdef KROI_HAVE_OPENCV
        if constexpr (requires(Case& c) { c.opencv(); })
            detail::registerOne<Case, detail::Which::opencv>(caseName, size, "opencv");
#endif
        if constexpr (requires(Case& c) { c.reference(); })
            detail::registerOne<Case, detail::Which::reference>(caseName, size,
                                                                Case::kReference);
    }
}

template <class Case>
void addCase(const std::string& caseName, std::initializer_list<Size> sizes)
{
    addCase<Case>(caseName, std::span<const Size>(sizes.begin(), sizes.size()));
}

}  // namespace kb

#endif  // KROI_BENCH_SUPPORT_HPP
