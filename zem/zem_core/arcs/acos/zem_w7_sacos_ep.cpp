// Acos, single, EP: K = v + v S(z) as in Asin EP; pi/2 - K below 0.5, 2 K or pi - 2 K above.
// Rare: |x| >= 1, NaN. Bound: 2^-12.
#include "arcs/asin_s.hpp"
#include "frame/block.hpp"
#include "ork/zem_kernels.h"

namespace ork {
namespace {

struct AcosEpS : Core<float> {
  static constexpr char name[] = "vsAcos";
  ORK_INLINE f32x4 eval(f32x4 x, u32x4& rare) {
    const f32x4 a = abs(x);
    rare |= as<u32x4>((f32x4)_mm_cmpnlt_ps(a, splat(1.0f)));
    const u32x4 outer = as<u32x4>((f32x4)_mm_cmple_ps(splat(0.5f), a));
    const u32x4 negative = as<u32x4>((f32x4)_mm_cmplt_ps(x, splat(0.0f))) & outer;
    const f32x4 k = sasin_ep(sasin_variable<true>(a, outer), a, outer);
    const f32x4 f = as<f32x4>(as<u32x4>(splat(-1.0f)) + (outer & 0x80800000));  // -1 or 2
    const u32x4 base =
        (~outer & as<uint32_t>(1.57079637f)) | (negative & as<uint32_t>(3.14159274f));
    return xor_bits(k * f, as<u32x4>(x) & sign_f32x4) + as<f32x4>(base);
  }
  static int special(const float* x, float* r) {
    if (*x == 1.0f || *x == -1.0f) {
      *r = *x == 1.0f ? 0.0f : 3.14159274f;
      return 0;
    }
    return asin_rare(x, r);
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_sAcos_W7EPnnn(int n, const float* a, float* r) {
  ork::block<ork::AcosEpS>(n, {{a}, {r}});
}
