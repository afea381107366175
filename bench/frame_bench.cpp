// The frame's own cases: the bandwidth yardsticks every other family is read against, and
// the image allocator against OpenCV and malloc.
#include <cstdlib>
#include <cstring>

#include "support.hpp"

namespace {

using kb::Depth;
using kb::Image;

// Byte buffers, one row each: the sizes are said in bytes per buffer.  A copy touches twice
// that (source and destination): on a 48 KiB L1, 32 KiB stays in L1 only for memset;
// 256 KiB pairs fit L2, 64 MiB pairs fit no cache.
constexpr kb::Size kBytes32K{32 << 10, 1, "32KiB"};
constexpr kb::Size kBytes256K{256 << 10, 1, "256KiB"};
constexpr kb::Size kBytes64M{64 << 20, 1, "64MiB"};
constexpr kb::Size kByteSizes[] = {kBytes32K, kBytes256K, kBytes64M};

struct Memcpy {
    static constexpr const char* kReference = "memcpy";
    Image src, dst;
    explicit Memcpy(kb::Size s) : src(s, 1, Depth::u8), dst(s, 1, Depth::u8) { src.fillRandom(1); }
    void reference() { std::memcpy(dst.ptr(), src.ptr(), src.bytes()); }
    std::size_t bytes() const { return dst.bytes(); }
};

struct Memset {
    static constexpr const char* kReference = "memset";
    Image dst;
    explicit Memset(kb::Size s) : dst(s, 1, Depth::u8) {}
    void reference() { std::memset(dst.ptr(), 0x5A, dst.bytes()); }
    std::size_t bytes() const { return dst.bytes(); }
};

// The same yardsticks over 8u images, row by row, beside OpenCV's copy and fill of the same
// pixels: what a plain copy or fill of a frame costs, before any kroIP copy exists.
struct Copy8uC1 {
    static constexpr const char* kReference = "memcpy";
    Image src, dst;
    explicit Copy8uC1(kb::Size s) : src(s, 1, Depth::u8), dst(s, 1, Depth::u8)
    {
        src.fillRandom(2);
    }
    void reference() { kb::copyRows(src, dst); }
#ifdef KROI_HAVE_OPENCV
    cv::Mat A = src.mat(), D = dst.mat();
    void opencv() { A.copyTo(D); }  // same size and type: copies into D's pixels
#endif
    std::size_t bytes() const { return dst.bytes(); }
};

struct Set8uC1 {
    static constexpr const char* kReference = "memset";
    Image dst;
    explicit Set8uC1(kb::Size s) : dst(s, 1, Depth::u8) {}
    void reference() { kb::fillRows(dst, 0x5A); }
#ifdef KROI_HAVE_OPENCV
    cv::Mat D = dst.mat();
    void opencv() { D.setTo(cv::Scalar(0x5A)); }
#endif
    std::size_t bytes() const { return dst.bytes(); }
};

// Allocation and release of one 8u C3 image.  First touch is excluded on every side: no
// pixel is written, so this times the allocator, not the kernel's page faults.  malloc asks
// for the same bytes as kroiMalloc (padded step x height); cv::Mat asks for its own tight
// size.  All three end in the C library's allocator, so large blocks behave alike there.
struct Malloc8uC3 {
    static constexpr const char* kReference = "malloc";
    int width, height;
    std::size_t total;
    explicit Malloc8uC3(kb::Size s)
        : width(s.width), height(s.height),
          total(std::size_t((s.width * 3 + 63) & ~63) * std::size_t(s.height))
    {
    }
    KroStatus kroi()
    {
        int step = 0;
        Kro8u* p = kroiMalloc_8u_C3(width, height, &step);
        benchmark::DoNotOptimize(p);
        kroiFree(p);
        return p ? kroStsOk : kroStsNoMemoryErr;
    }
#ifdef KROI_HAVE_OPENCV
    void opencv()
    {
        cv::Mat m(height, width, CV_8UC3);
        benchmark::DoNotOptimize(m.data);
    }
#endif
    void reference()
    {
        void* p = std::malloc(total);
        benchmark::DoNotOptimize(p);
        std::free(p);
    }
};

const bool registered = [] {
    kb::addCase<Memcpy>("Frame/Memcpy", kByteSizes);
    kb::addCase<Memset>("Frame/Memset", kByteSizes);
    kb::addCase<Copy8uC1>("Frame/Copy_8u_C1", {kb::kHD, kb::k4K});
    kb::addCase<Set8uC1>("Frame/Set_8u_C1", {kb::kHD, kb::k4K});
    kb::addCase<Malloc8uC3>("Frame/Malloc_8u_C3", {kb::kL1, kb::kHD});
    return true;
}();

}  // namespace
