// The SSE rounding control, set for the length of one call.  Float-to-integer kernels that
// use the processor's conversion (cvtps2dq and friends) round by MXCSR; the caller's value,
// flags included, comes back when the scope ends, on every return path.
#pragma once

#include <xmmintrin.h>

#include "frame/base.hpp"

namespace KROI_TIER {

class RoundingScope {
public:
    enum Control : unsigned {
        kNearest = 0x0000, // ties to even
        kDown = 0x2000,
        kUp = 0x4000,
        kTowardZero = 0x6000,
    };
    static constexpr unsigned kMask = 0x6000;

    explicit RoundingScope(Control rc) : saved_(_mm_getcsr())
    {
        _mm_setcsr((saved_ & ~kMask) | rc);
    }
    ~RoundingScope() { _mm_setcsr(saved_); }

    RoundingScope(const RoundingScope&) = delete;
    RoundingScope& operator=(const RoundingScope&) = delete;

    // Mode 0 rounds toward zero; 1, and every value the processor has a control for, to
    // nearest with ties to even.  Mode 2 (ties away) has no control setting: its kernels
    // round in software.
    static Control forMode(int mode) { return mode == kroRndZero ? kTowardZero : kNearest; }

private:
    unsigned saved_;
};

// The processor's default environment for one call: round to nearest, every exception
// masked, subnormals kept (neither flush-to-zero nor denormals-are-zero).  Kernels whose
// floating-point results are promised bit for bit on every machine run inside it, so that a
// caller's FTZ, DAZ, rounding or unmasked exception changes nothing; the caller's value,
// flags included, comes back when the scope ends.
class DefaultFloatScope {
public:
    static constexpr unsigned kDefault = 0x1F80;
    DefaultFloatScope() : saved_(_mm_getcsr()) { _mm_setcsr(kDefault); }
    ~DefaultFloatScope() { _mm_setcsr(saved_); }

    DefaultFloatScope(const DefaultFloatScope&) = delete;
    DefaultFloatScope& operator=(const DefaultFloatScope&) = delete;

private:
    unsigned saved_;
};

}  // namespace KROI_TIER
