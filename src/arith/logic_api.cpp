// Bitwise logic: And, Or, Xor of two images or of an image and a constant per channel, Not,
// and Complement.  The logic and shift functions check pointers, then steps (any step below
// 1), then the size, an order of their own that differs from the arithmetic.
#include "arith/logic_ops.hpp"
#include "frame/bind.hpp"
#include "frame/check.hpp"

namespace KROI_TIER::logic {

template <class Bit, class T, class Lay>
KroStatus bitwise(const T* a, int sa, const T* b, int sb, T* d, int sd, KroiSize roi)
{
    KROI_CHECK(check::pointers(a, b, d));
    KROI_CHECK(check::steps(sa, sb, sd));
    KROI_CHECK(check::roi(roi));
    imageBinary<T, Lay>(a, sa, b, sb, d, sd, roi, Bit{});
    return kroStsOk;
}

template <class Bit, class T, class Lay>
KroStatus bitwiseI(const T* s, int ss, T* sd, int sds, KroiSize roi)
{
    return bitwise<Bit, T, Lay>(s, ss, sd, sds, sd, sds, roi);
}

// The constant stands on the right of the operation, one per computed channel.
template <class Bit, class T, class Lay>
KroStatus bitwiseC(const T* s, int ss, ChannelArg<T, Lay> value, T* d, int sd, KroiSize roi)
{
    KROI_CHECK((checkWithConstants<Lay, T>(s, ss, value, d, sd, roi)));
    T k[4];
    channelValues<Lay, T>(value, k, T(0));
    imageUnary<T, Lay>(s, ss, d, sd, roi, BitConst<Bit, T, Lay>(k));
    return kroStsOk;
}

template <class Bit, class T, class Lay>
KroStatus bitwiseCI(ChannelArg<T, Lay> value, T* sd, int sds, KroiSize roi)
{
    return bitwiseC<Bit, T, Lay>(sd, sds, value, sd, sds, roi);
}

// Not is Xor with all ones.
template <class Lay>
KroStatus bitNot(const Kro8u* s, int ss, Kro8u* d, int sd, KroiSize roi)
{
    KROI_CHECK(check::pointers(s, d));
    KROI_CHECK(check::steps(ss, sd));
    KROI_CHECK(check::roi(roi));
    const Kro8u ones[4] = {0xFF, 0xFF, 0xFF, 0xFF};
    imageUnary<Kro8u, Lay>(s, ss, d, sd, roi, BitConst<BitXor, Kro8u, Lay>(ones));
    return kroStsOk;
}

template <class Lay>
KroStatus bitNotI(Kro8u* sd, int sds, KroiSize roi)
{
    return bitNot<Lay>(sd, sds, sd, sds, roi);
}

template <class T, class Lay>
KroStatus complement(const T* s, int ss, T* d, int sd, KroiSize roi)
{
    KROI_CHECK(check::pointers(s, d));
    KROI_CHECK(check::steps(ss, sd));
    KROI_CHECK(check::roi(roi));
    imageUnary<T, Lay>(s, ss, d, sd, roi, Complement<T>{});
    return kroStsOk;
}

template <class T, class Lay>
KroStatus complementI(T* sd, int sds, KroiSize roi)
{
    return complement<T, Lay>(sd, sds, sd, sds, roi);
}

}  // namespace KROI_TIER::logic

// The list names template arguments relative to the tier namespace too.
using namespace KROI_TIER;

#define KROI_EXPORT KROI_BIND
KROI_BIND_LIST {
#include "arith/logic_api.exports.inc"
}
#undef KROI_EXPORT
