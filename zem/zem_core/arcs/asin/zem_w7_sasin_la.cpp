// Asin, single, LA: v = a, z = a^2 below 0.5; z = (1 - a)/2, v = sqrt z above;
// K = v + v S(z); the result is K or pi/2 - 2 K with the sign of x.
// S is frozen, of degree 5 for z <= 1/4: relative error of asin 2^-27.2.
// Rare: |x| >= 1, NaN. Bound: 2.5 ulp.
#include "arcs/asin_s.hpp"
#include "frame/block.hpp"
#include "ork/zem_kernels.h"

namespace ork {
namespace {

struct AsinLaS : Core<float> {
  static constexpr char name[] = "vsAsin";
  ORK_INLINE f32x4 eval(f32x4 x, u32x4& rare) {
    const f32x4 a = abs(x);
    rare |= as<u32x4>((f32x4)_mm_cmpnlt_ps(a, splat(1.0f)));
    const u32x4 outer = as<u32x4>((f32x4)_mm_cmple_ps(splat(0.5f), a));
    const f32x4 z = sasin_variable<false>(a, outer), w = z * z, v = select(outer, sqrt(z), a);
    const f32x4 odd = z * (0.166667551f + w * (0.0454827659f + w * 0.0422858484f));
    const f32x4 even = w * (0.0749520734f + w * 0.0241135862f);
    return or_bits(sasin_result(v + v * (odd + even), outer), as<u32x4>(x) & sign_f32x4);
  }
  static int special(const float* x, float* r) { return sasin_special(x, r); }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_sAsin_W7LAynn(int n, const float* a, float* r) {
  ork::block<ork::AsinLaS>(n, {{a}, {r}});
}
