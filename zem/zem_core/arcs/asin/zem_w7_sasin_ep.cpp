// Asin, single, EP: as LA with v by rsqrt and a Newton step, S of degree 2.
// Rare: |x| >= 1, NaN. Bound: 2^-12.
#include "arcs/asin_s.hpp"
#include "frame/block.hpp"
#include "ork/zem_kernels.h"

namespace ork {
namespace {

struct AsinEpS : Core<float> {
  static constexpr char name[] = "vsAsin";
  ORK_INLINE f32x4 eval(f32x4 x, u32x4& rare) {
    const f32x4 a = abs(x);
    rare |= as<u32x4>((f32x4)_mm_cmpnlt_ps(a, splat(1.0f)));
    const u32x4 outer = as<u32x4>((f32x4)_mm_cmple_ps(splat(0.5f), a));
    const f32x4 k = sasin_ep(sasin_variable<true>(a, outer), a, outer);
    return or_bits(sasin_result(k, outer), as<u32x4>(x) & sign_f32x4);
  }
  static int special(const float* x, float* r) { return sasin_special(x, r); }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_sAsin_W7EPnnn(int n, const float* a, float* r) {
  ork::block<ork::AsinEpS>(n, {{a}, {r}});
}
