// Log10, single, EP: u q(u) of degree 5, u in [sqrt(1/2) - 1, sqrt(2) - 1), k log10 2.
// Fast range: positive normal numbers.
#include "frame/block.hpp"
#include "logarithms/log10/log10.hpp"
#include "logarithms/log_s.hpp"
#include "ork/zem_kernels.h"

namespace ork {
namespace {

struct Log10EpS : Core<float> {
  static constexpr char name[] = "vsLog10";
  static constexpr float q[] = {
#include "logarithms/log10/poly_s_ep.inc"
  };
  static f32x4 eval(f32x4 x, u32x4& rare) {
    const u32x4 image = as<u32x4>(x);
    rare |= (u32x4)((i32x4)(image - 0x80800000) > -0x01000001);
    // The addition carries into the exponent from m = sqrt(2) on.
    const u32x4 carried = image + 0x004AFB0D;
    const f32x4 k = as<f32x4>((carried >> 23) | as<u32x4>(splat(8388608.0f))) - 8388735.0f;
    const f32x4 u = as<f32x4>((carried & 0x007FFFFF) + root_half) - 1.0f;
    return u * horner(u, q) + k * 0.30103001f;
  }
  static int special(const float* a, float* out) { return log10_rare(a, out); }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_sLog10_W7EPnnn(int n, const float* a, float* r) {
  ork::block<ork::Log10EpS>(n, {{a}, {r}});
}
