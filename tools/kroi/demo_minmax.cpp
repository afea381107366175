// Demo entries of the min/max filters: a dilation, an erosion with a flat mask and a mirror
// border, and an opening (erosion then dilation) with a large mask, whose cost is that of
// the small masks.
#include <vector>

#include "demo.hpp"

namespace kroi_tool {

namespace {

// A work buffer sized by the query for the scene and the mask.
std::vector<Kro8u> bufferFor(const Image& s, KroiSize mask)
{
    int size = 0;
    if (kroiFilterMaxBorderGetBufferSize({s.width, s.height}, mask, kro8u, 3, &size) < 0)
        throw std::runtime_error("kroiFilterMaxBorderGetBufferSize failed");
    return std::vector<Kro8u>(size_t(size));
}

// One filter call on the scene, timed, with its buffer sized by the query first.
Image filterScene(DemoContext& ctx, const char* name, decltype(&kroiFilterMaxBorder_8u_C3R) fn, KroiSize mask,
                  KroiBorderMode border)
{
    const Image& s = ctx.first();
    Image d(s.width, s.height, 3, 8);
    auto buf = bufferFor(s, mask);
    ctx.time(name, [&] {
        return fn(s.row<Kro8u>(0), s.step, d.row<Kro8u>(0), d.step, {s.width, s.height}, mask, border, nullptr,
                  buf.data());
    });
    ctx.note = "The program sizes the work buffer with kroiFilterMaxBorderGetBufferSize first.";
    return d;
}

} // namespace

Image dilate8u(DemoContext& ctx)
{
    return filterScene(ctx, "kroiFilterMaxBorder_8u_C3R", kroiFilterMaxBorder_8u_C3R, {7, 7}, kroBorderReplicate);
}

Image erode8u(DemoContext& ctx)
{
    return filterScene(ctx, "kroiFilterMinBorder_8u_C3R", kroiFilterMinBorder_8u_C3R, {15, 3}, kroBorderMirror);
}

Image opening8u(DemoContext& ctx)
{
    const Image& s = ctx.first();
    Image t(s.width, s.height, 3, 8), d(s.width, s.height, 3, 8);
    auto buf = bufferFor(s, {31, 31});
    const KroiSize roi{s.width, s.height};
    ctx.time("kroiFilterMinBorder_8u_C3R + kroiFilterMaxBorder_8u_C3R", [&] {
        const KroStatus e = kroiFilterMinBorder_8u_C3R(s.row<Kro8u>(0), s.step, t.row<Kro8u>(0), t.step, roi, {31, 31},
                                                       kroBorderReplicate, nullptr, buf.data());
        if (e < 0) return e;
        return kroiFilterMaxBorder_8u_C3R(t.row<Kro8u>(0), t.step, d.row<Kro8u>(0), d.step, roi, {31, 31},
                                          kroBorderReplicate, nullptr, buf.data());
    });
    ctx.note = "One buffer serves both calls: the query's size depends on the ROI and mask only.";
    return d;
}

} // namespace kroi_tool
