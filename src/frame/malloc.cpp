// Image allocation: blocks whose every row starts on a 64-byte boundary, from the core
// library.  The step is the row's bytes rounded up to a multiple of 64, and the core's
// blocks start on 64 bytes, so every row does.
#include "frame/base.hpp"
#include "frame/bind.hpp"

namespace KROI_TIER::frame {

constexpr int64_t kRowAlign = 64;
constexpr int64_t kMax32 = 0x7FFFFFFF;

// The 32-bit form.  B bytes per pixel are sizeof(T) x C.
template <class T, int C>
T* mallocImage(int width, int height, int* pStep)
{
    constexpr int64_t B = int64_t(sizeof(T)) * C;
    if (!pStep) return nullptr;
    if (width < 1 || height < 1) {
        *pStep = 0;
        return nullptr;
    }
    const int64_t rowBytes = width * B;
    if (rowBytes > kMax32) {
        *pStep = 0;
        return nullptr;
    }
    // A row of 0x7FFFFFC1..0x7FFFFFFF bytes rounds to 0x80000000, which is stored as the
    // negative step INT_MIN on purpose; the total below is then negative and refused, so the
    // caller sees that step beside a null block.
    const int32_t step = static_cast<int32_t>(static_cast<uint32_t>((rowBytes + kRowAlign - 1) & ~(kRowAlign - 1)));
    *pStep = step;
    const int64_t total = int64_t{step} * height;
    if (static_cast<uint64_t>(total) > uint64_t(kMax32)) return nullptr;
    return static_cast<T*>(kroMalloc(static_cast<int>(total)));
}

// The 64-bit form.
template <class T, int C>
T* mallocImageL(int64_t width, int64_t height, int64_t* pStep)
{
    constexpr uint64_t B = sizeof(T) * C;
    if (!pStep) return nullptr;
    if (width < 1 || height < 1 || uint64_t(width) > UINT64_MAX / B) {
        *pStep = 0;
        return nullptr;
    }
    const uint64_t rowBytes = uint64_t(width) * B;
    const uint64_t step = (rowBytes + kRowAlign - 1) & ~uint64_t(kRowAlign - 1);
    if (step < rowBytes) { // rounding wrapped around 2^64
        *pStep = 0;
        return nullptr;
    }
    const int64_t s = static_cast<int64_t>(step);
    *pStep = s;
    // Overflow test of step x height on the 32-bit halves (upper halves by arithmetic shift,
    // lower halves sign-extended): any partial product reaching past 32 bits is refused.
    const int64_t sh = s >> 32, hh = height >> 32;
    const int64_t sl = static_cast<int32_t>(s), hl = static_cast<int32_t>(height);
    if (((sh * hh) >> 32) > 0 || ((sh * hl) >> 32) > 0 || ((sl * hh) >> 32) > 0) return nullptr;
    // The halves test lets a few products past the int64 range through; those are refused
    // here rather than handing the core a wrapped byte count.
    int64_t total;
    if (__builtin_mul_overflow(s, height, &total)) return nullptr;
    return static_cast<T*>(kroMalloc_L(total));
}

void freeImage(void* ptr) { kroFree(ptr); }

}  // namespace KROI_TIER::frame

#define KROI_EXPORT KROI_BIND
KROI_BIND_LIST {
#include "frame/malloc.exports.inc"
}
#undef KROI_EXPORT
