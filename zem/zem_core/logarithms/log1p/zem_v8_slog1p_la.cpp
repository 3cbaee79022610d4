// Log1p, single, LA: s + e = 1 + x, s = 2^k m, v = (m - 1) + e/2^k in [-1/3, 1/3],
// ln(1 + x) = v + v^2 q(v) + k ln 2, degree 9.
// Fast range: -1 < x <= 2^118.
#include "logarithms/log1p/log1p_s.hpp"
#include "logarithms/log_s.hpp"

namespace ork {
namespace {

struct Log1pLaS : Log1pS {
  static constexpr float q[] = {
#include "logarithms/log1p/poly_s_la.inc"
  };
  static f32x4 eval(f32x4 x, u32x4& rare) {
    test(x, rare);
    const f32x4 s = x + 1.0f, e = rest(x, s);
    i32x4 k;
    const f32x4 u = log_reduce(as<u32x4>(s), two_thirds, k);
    const f32x4 v = u + e * as<f32x4>(0x3F800000 - ((u32x4)k << 23));
    return with_sign_of(x, v + v * v * horner(v, q) + to_float(k) * 0.693147182f);
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_sLog1p_V8LAynn(int n, const float* a, float* r) {
  ork::chunk<ork::Log1pLaS>(n, {{a}, {r}});
}
