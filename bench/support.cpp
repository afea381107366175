#include "support.hpp"

#include <cstring>
#include <new>
#include <stdexcept>

namespace kb {

std::string Size::name() const
{
    if (label) return label;
    return std::to_string(width) + "x" + std::to_string(height);
}

std::size_t depthBytes(Depth d)
{
    switch (d) {
    case Depth::u8:
    case Depth::s8: return 1;
    case Depth::u16:
    case Depth::s16: return 2;
    case Depth::s32:
    case Depth::f32: return 4;
    case Depth::f64: return 8;
    }
    return 1;
}

// ---- images ---------------------------------------------------------------------------------

Image::Image(Size size, int channels, Depth depth, int padBytes)
    : width_(size.width), height_(size.height), channels_(channels), depth_(depth)
{
    const int64_t row = int64_t(rowBytes()) + padBytes;
    const int64_t step = (row + 63) & ~int64_t(63);
    if (size.width < 1 || size.height < 1 || channels < 1 || padBytes < 0 || step > 0x7FFFFFFF)
        throw std::invalid_argument("kb::Image: bad geometry " + size.name());
    step_ = int(step);
    data_ = static_cast<Kro8u*>(kroMalloc_L(step * height_));
    if (!data_) throw std::bad_alloc();
    // Padding gets a fixed byte so that runs are repeatable to the last byte.
    std::memset(data_, 0xA5, std::size_t(step) * height_);
}

Image::~Image() { kroFree(data_); }

Image::Image(Image&& other) noexcept { *this = std::move(other); }

Image& Image::operator=(Image&& other) noexcept
{
    if (this != &other) {
        kroFree(data_);
        data_ = other.data_;
        step_ = other.step_;
        width_ = other.width_;
        height_ = other.height_;
        channels_ = other.channels_;
        depth_ = other.depth_;
        other.data_ = nullptr;
    }
    return *this;
}

namespace {

// splitmix64: fast, and the same sequence for a seed on every machine.
struct Rng {
    std::uint64_t s;
    std::uint64_t next()
    {
        std::uint64_t z = (s += 0x9E3779B97F4A7C15ull);
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
        return z ^ (z >> 31);
    }
    double unit() { return double(next() >> 11) * 0x1.0p-53; }  // [0, 1)
};

template <class T>
void fillRowUniform(T* p, std::size_t n, Rng& rng, double lo, double hi)
{
    for (std::size_t i = 0; i < n; ++i) p[i] = static_cast<T>(lo + (hi - lo) * rng.unit());
}

}  // namespace

Image& Image::fillRandom(std::uint64_t seed)
{
    if (depth_ == Depth::f32 || depth_ == Depth::f64) return fillUniform(seed, 0.0, 1.0);
    Rng rng{seed};
    const std::size_t n = rowBytes();
    for (int y = 0; y < height_; ++y) {
        Kro8u* p = row(y);
        std::size_t i = 0;
        for (; i + 8 <= n; i += 8) {
            const std::uint64_t v = rng.next();
            std::memcpy(p + i, &v, 8);
        }
        if (i < n) {
            const std::uint64_t v = rng.next();
            std::memcpy(p + i, &v, n - i);
        }
    }
    return *this;
}

Image& Image::fillUniform(std::uint64_t seed, double lo, double hi)
{
    Rng rng{seed};
    const std::size_t n = std::size_t(width_) * channels_;
    for (int y = 0; y < height_; ++y) {
        switch (depth_) {
        case Depth::u8: fillRowUniform(row<Kro8u>(y), n, rng, lo, hi); break;
        case Depth::s8: fillRowUniform(row<Kro8s>(y), n, rng, lo, hi); break;
        case Depth::u16: fillRowUniform(row<Kro16u>(y), n, rng, lo, hi); break;
        case Depth::s16: fillRowUniform(row<Kro16s>(y), n, rng, lo, hi); break;
        case Depth::s32: fillRowUniform(row<Kro32s>(y), n, rng, lo, hi); break;
        case Depth::f32: fillRowUniform(row<Kro32f>(y), n, rng, lo, hi); break;
        case Depth::f64: fillRowUniform(row<Kro64f>(y), n, rng, lo, hi); break;
        }
    }
    return *this;
}

Image& Image::fillByte(std::uint8_t value)
{
    fillRows(*this, value);
    return *this;
}

#ifdef KROI_HAVE_OPENCV
cv::Mat Image::mat() const
{
    int cvDepth = CV_8U;
    switch (depth_) {
    case Depth::u8: cvDepth = CV_8U; break;
    case Depth::s8: cvDepth = CV_8S; break;
    case Depth::u16: cvDepth = CV_16U; break;
    case Depth::s16: cvDepth = CV_16S; break;
    case Depth::s32: cvDepth = CV_32S; break;
    case Depth::f32: cvDepth = CV_32F; break;
    case Depth::f64: cvDepth = CV_64F; break;
    }
    return cv::Mat(height_, width_, CV_MAKETYPE(cvDepth, channels_), data_, std::size_t(step_));
}
#endif

void copyRows(const Image& src, Image& dst)
{
    const std::size_t n = src.rowBytes();
    if (src.step() == int(n) && dst.step() == int(n)) {
        std::memcpy(dst.ptr(), src.ptr(), n * src.height());
        return;
    }
    for (int y = 0; y < src.height(); ++y) std::memcpy(dst.row(y), src.row(y), n);
}

void fillRows(Image& dst, std::uint8_t value)
{
    const std::size_t n = dst.rowBytes();
    if (dst.step() == int(n)) {
        std::memset(dst.ptr(), value, n * dst.height());
        return;
    }
    for (int y = 0; y < dst.height(); ++y) std::memset(dst.row(y), value, n);
}

// ---- registration ------------------------------------------------------------------------

namespace {
std::vector<Entry>& registry()
{
    static std::vector<Entry> r;
    return r;
}
}  // namespace

const std::vector<Entry>& entries() { return registry(); }

bool isReferenceVariant(const std::string& variant)
{
    return variant != "kroi" && variant != "opencv";
}

namespace detail {

void addEntry(const Entry& e) { registry().push_back(e); }

Slot& slot()
{
    static Slot s;
    return s;
}

}  // namespace detail

}  // namespace kb
