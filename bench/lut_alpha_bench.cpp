// Lookup tables and alpha composition beside OpenCV at 1920x1080.
//   LUT 8u C1 and C3 with one 256-entry table: cv::LUT with a one-channel table; C3 with
//   three different tables: cv::LUT with a three-channel table.
//   Constant-alpha Over and Plus, 8u C3: cv::addWeighted with the weights the operations
//   give (Over: a1 and a2 (1 - a1); Plus: a1 and a2).
//   Per-pixel Over, 8u AC4: OpenCV has no single call; its shortest honest expression is
//   the two alphas taken out (extractChannel), the second source's weight a2 (255 - a1) /
//   255 (subtract, multiply), each weight spread over four channels (merge) and the two
//   scaled images added (multiply twice with scale 1/255, add).
#include <vector>

#include "support.hpp"

#ifdef KROI_HAVE_OPENCV
#include <opencv2/core.hpp>
#endif

namespace {

using kb::Depth;
using kb::Image;

// A 256-entry table as levels 0..256 with the nearest kind, or several of them.
struct LutSpec {
    std::vector<unsigned char> block;
    std::vector<Kro32s> levels, values[3];
    KroiLUTSpec* spec() { return reinterpret_cast<KroiLUTSpec*>(block.data()); }
    LutSpec(int layout, int tables, int seed)
    {
        for (int i = 0; i <= 256; ++i) levels.push_back(i);
        for (int t = 0; t < 3; ++t)
            for (int i = 0; i <= 256; ++i) values[t].push_back((i * (7 + 2 * (t % tables)) + seed) & 255);
        const Kro32s* L[3] = {levels.data(), levels.data(), levels.data()};
        const Kro32s* V[3] = {values[0].data(), values[1].data(), values[2].data()};
        const int n[3] = {257, 257, 257};
        int size = 0;
        kroiLUT_GetSize(kroInterNearest, kro8u, layout, {1, 1}, n, &size);
        block.resize(size);
        kroiLUT_Init_8u(kroInterNearest, layout, {1, 1}, V, L, n, spec());
    }
};

template <int C, int kTables>
struct Lut8u {
    Image src, dst;
    LutSpec lut{C == 1 ? kroC1 : kroC3, kTables, 3};
    explicit Lut8u(kb::Size s) : src(s, C, Depth::u8), dst(s, C, Depth::u8) { src.fillRandom(1); }
    KroStatus kroi()
    {
        if constexpr (C == 1) return kroiLUT_8u_C1R(src.ptr(), src.step(), dst.ptr(), dst.step(), src.roi(), lut.spec());
        else return kroiLUT_8u_C3R(src.ptr(), src.step(), dst.ptr(), dst.step(), src.roi(), lut.spec());
    }
#ifdef KROI_HAVE_OPENCV
    cv::Mat S = src.mat(), D = dst.mat(), table = makeTable();
    cv::Mat makeTable()
    {
        cv::Mat t(1, 256, kTables == 1 ? CV_8UC1 : CV_8UC3);
        for (int i = 0; i < 256; ++i)
            for (int c = 0; c < kTables; ++c) t.ptr<Kro8u>()[i * kTables + c] = Kro8u(lut.values[c][i]);
        return t;
    }
    void opencv() { cv::LUT(S, table, D); }
#endif
    std::size_t bytes() const { return src.bytes(); }
};

constexpr Kro8u kA1 = 180, kA2 = 200;

template <int kOp>
struct CompC8u {
    Image a, b, dst;
    explicit CompC8u(kb::Size s) : a(s, 3, Depth::u8), b(s, 3, Depth::u8), dst(s, 3, Depth::u8)
    {
        a.fillRandom(1), b.fillRandom(2);
    }
    KroStatus kroi()
    {
        return kroiAlphaCompC_8u_C3R(a.ptr(), a.step(), kA1, b.ptr(), b.step(), kA2, dst.ptr(), dst.step(), a.roi(), kOp);
    }
#ifdef KROI_HAVE_OPENCV
    cv::Mat A = a.mat(), B = b.mat(), D = dst.mat();
    void opencv()
    {
        const double a1 = kA1 / 255.0, a2 = kA2 / 255.0;
        cv::addWeighted(A, a1, B, kOp == kroAlphaOver ? a2 * (1 - a1) : a2, 0.0, D);
    }
#endif
    std::size_t bytes() const { return a.bytes(); }
};

struct OverAC4 {
    Image a, b, dst;
    explicit OverAC4(kb::Size s) : a(s, 4, Depth::u8), b(s, 4, Depth::u8), dst(s, 4, Depth::u8)
    {
        a.fillRandom(1), b.fillRandom(2);
    }
    KroStatus kroi()
    {
        return kroiAlphaComp_8u_AC4R(a.ptr(), a.step(), b.ptr(), b.step(), dst.ptr(), dst.step(), a.roi(), kroAlphaOver);
    }
#ifdef KROI_HAVE_OPENCV
    cv::Mat A = a.mat(), B = b.mat(), D = dst.mat();
    cv::Mat a1, a2, w, w4, a14, t1, t2;
    void opencv()
    {
        cv::extractChannel(A, a1, 3);
        cv::extractChannel(B, a2, 3);
        cv::multiply(a2, cv::Scalar(255) - a1, w, 1.0 / 255);
        cv::merge(std::vector<cv::Mat>{a1, a1, a1, a1}, a14);
        cv::merge(std::vector<cv::Mat>{w, w, w, w}, w4);
        cv::multiply(A, a14, t1, 1.0 / 255);
        cv::multiply(B, w4, t2, 1.0 / 255);
        cv::add(t1, t2, D);
    }
#endif
    std::size_t bytes() const { return a.bytes(); }
};

constexpr kb::Size kSizes[] = {kb::kHD};

const bool registered = [] {
    kb::addCase<Lut8u<1, 1>>("Lut/LUT_8u_C1", kSizes);
    kb::addCase<Lut8u<3, 1>>("Lut/LUT_8u_C3_oneTable", kSizes);
    kb::addCase<Lut8u<3, 3>>("Lut/LUT_8u_C3_threeTables", kSizes);
    kb::addCase<CompC8u<kroAlphaOver>>("Alpha/AlphaCompC_8u_C3_Over", kSizes);
    kb::addCase<CompC8u<kroAlphaPlus>>("Alpha/AlphaCompC_8u_C3_Plus", kSizes);
    kb::addCase<OverAC4>("Alpha/AlphaComp_8u_AC4_Over", kSizes);
    return true;
}();

}  // namespace
