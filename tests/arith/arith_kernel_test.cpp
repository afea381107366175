// The kernels directly, as the constant forms use them: a per-channel constant operand in
// the row loop gives, at every length around the vector size, its C3 period and the loop's
// four-vector step, the operation's own scalar body, and AC4 rows keep their fourth element.
#include <vector>

#include "arith/arith_kernels.hpp"
#include "support/random.hpp"

namespace {

namespace arith = t3::arith;

template <class T, arith::Layout L, class Op>
void constantRows(const Op& op)
{
    kt::Rng rng = kt::rngForTest();
    constexpr int E = arith::kElems<L>;
    const T values[3] = {kt::randomValue<T>(rng), kt::randomValue<T>(rng), kt::randomValue<T>(rng)};
    const arith::ConstOperand<T, L> k(values);
    constexpr int kLanes = 16 / sizeof(T);
    for (int width = 0; width <= 5 * kLanes + 1; ++width) {
        std::vector<T> src(std::size_t(width) * E), dst(src.size());
        for (T& v : src) v = kt::randomValue<T>(rng);
        for (T& v : dst) v = kt::randomValue<T>(rng);
        const std::vector<T> before = dst;
        arith::rowLoop<L>(op, arith::RowView<T>{src.data()}, k, dst.data(), width);
        for (int i = 0; i < width * E; ++i) {
            const int c = i % E;
            const T want = c < arith::kChannels<L> ? op.scalar(src[i], values[c]) : before[i];
            ASSERT_EQ(dst[i], want) << "width " << width << " element " << i;
        }
    }
}

TEST(ArithKernels, ConstantOperandC3) {
    constantRows<Kro8u, arith::kC3>(arith::Scaled<Kro8u, arith::Add, arith::Mode::Down>{3});
    constantRows<Kro16s, arith::kC3>(arith::Scaled<Kro16s, arith::Mul, arith::Mode::Up>{-2});
    constantRows<Kro32f, arith::kC3>(arith::Float<arith::Sub>{});
}

TEST(ArithKernels, ConstantOperandC1) {
    constantRows<Kro8u, arith::kC1>(arith::Scaled<Kro8u, arith::Add, arith::Mode::Half>{});
    constantRows<Kro16s, arith::kC1>(arith::Scaled<Kro16s, arith::Mul, arith::Mode::Plain>{});
    constantRows<Kro32f, arith::kC1>(arith::Float<arith::Add>{});
}

TEST(ArithKernels, ConstantOperandAC4) {
    constantRows<Kro8u, arith::kAC4>(arith::Scaled<Kro8u, arith::Sub, arith::Mode::Plain>{});
    constantRows<Kro16u, arith::kAC4>(arith::Scaled<Kro16u, arith::Add, arith::Mode::Half>{});
    constantRows<Kro32f, arith::kAC4>(arith::Float<arith::Mul>{});
}

}  // namespace
