// Log10, single, LA: p = u q(u) of degree 9, u in [-1/3, 1/3), log10 2 in two parts.
// Fast range: positive normal numbers.
#include "frame/chunk.hpp"
#include "logarithms/log10/log10.hpp"
#include "logarithms/log_s.hpp"
#include "ork/zem_kernels.h"

namespace ork {
namespace {

struct Log10LaS : Core<float> {
  static constexpr char name[] = "vsLog10";
  static constexpr float q[] = {
#include "logarithms/log10/poly_s_la.inc"
  };
  static f32x4 eval(f32x4 x, u32x4& rare) {
    rare |= not_normal(x);
    i32x4 exponent;
    const f32x4 u = log_reduce(as<u32x4>(x), two_thirds, exponent), k = to_float(exponent);
    return (u * horner(u, q) + k * -3.02435365e-06f) + k * 0.30103302f;
  }
  static int special(const float* a, float* out) { return log10_rare(a, out); }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_sLog10_V8LAynn(int n, const float* a, float* r) {
  ork::chunk<ork::Log10LaS>(n, {{a}, {r}});
}
