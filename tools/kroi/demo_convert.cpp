// Demo entries of Convert and Scale: the scene widened to 16 bits, a contrast stretch through
// float, and brightness and contrast by a multiply-add.
#include <stdexcept>
#include <string>

#include "demo.hpp"

namespace kroi_tool {

namespace {

void check(KroStatus st, const char* what)
{
    if (st < 0) throw std::runtime_error(std::string(what) + " returned " + std::to_string(st));
}

// A float C3 image from the library's allocator, released on scope exit.
struct Float3 {
    int step = 0;  // before p, which fills it
    Kro32f* p = nullptr;
    Float3(int w, int h) : p(kroiMalloc_32f_C3(w, h, &step))
    {
        if (!p) throw std::runtime_error("kroiMalloc_32f_C3 returned null");
    }
    ~Float3() { kroiFree(p); }
    Float3(const Float3&) = delete;
    Float3& operator=(const Float3&) = delete;
};

} // namespace

Image scale8u16u(DemoContext& ctx)
{
    const Image& s = ctx.first();
    Image d(s.width, s.height, 3, 16);
    ctx.time("kroiScale_8u16u_C3R", [&] {
        return kroiScale_8u16u_C3R(s.row<Kro8u>(0), s.step, d.row<Kro16u>(0), d.step, {s.width, s.height});
    });
    ctx.note = "Each value v becomes v x 257, so 0..255 fills 0..65535; written as a 16-bit PNG.";
    return d;
}

Image stretch32f8u(DemoContext& ctx)
{
    const Image& s = ctx.first();
    Float3 f(s.width, s.height);
    check(kroiConvert_8u32f_C3R(s.row<Kro8u>(0), s.step, f.p, f.step, {s.width, s.height}), "kroiConvert_8u32f_C3R");
    Image d(s.width, s.height, 3, 8);
    ctx.time("kroiScale_32f8u_C3R", [&] {
        return kroiScale_32f8u_C3R(f.p, f.step, d.row<Kro8u>(0), d.step, {s.width, s.height}, 60.0f, 190.0f);
    });
    ctx.note = "kroiConvert_8u32f_C3R first makes the float image (untimed); values below 60 become 0, "
               "above 190 become 255, and the range between is stretched over 0..255.";
    return d;
}

Image scaleC8u(DemoContext& ctx)
{
    const Image& s = ctx.first();
    Image d(s.width, s.height, 3, 8);
    ctx.time("kroiScaleC_8u_C1R", [&] {
        return kroiScaleC_8u_C1R(s.row<Kro8u>(0), s.step, d.row<Kro8u>(0), d.step, {3 * s.width, s.height}, 1.4, -40.0);
    });
    ctx.note = "Every sample times 1.4 minus 40, rounded to nearest and saturated; the C1 function "
               "runs over the RGB rows as rows of 3 x width samples.";
    return d;
}

} // namespace kroi_tool
