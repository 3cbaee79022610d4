// Erf, single, EP: the scheme in single precision, P = -e + 2/3 e^2 - g/3. Coefficients: of the
// series.
#include "error_functions/erf/erf.hpp"

namespace ork {
namespace {

struct Row {
  float e, d;
};
alignas(16) constexpr Row table[] = {
#include "error_functions/erf/rows_s.inc"
};

struct ErfEpS : ErfCore<float> {
  static constexpr char name[] = "vsErf";
  static constexpr int vectors = 1;
  ORK_INLINE f32x4 eval(f32x4 x, u32x4&) {
    const f32x4 ax = abs(x), y = _mm_min_ps(ax, splat(5.9921875f));
    const f32x4 t = y + 65536.0f;  // 2^16: multiples of 1/128
    const f32x4 y_j = t - 65536.0f;
    const f32x4 d = _mm_min_ps(y - y_j, ax), e = d * y_j;
    const f32x4 wide = and_bits(d, (u32x4)(y > 1e-18f));  // no underflow in the square
    const u32x4 offset = (as<u32x4>(t) & 1023) << 3;
    const auto at = [&](int o) { return (const float*)((const char*)table + o); };
    f32x4 e_j, d_j;
    gather_pairs(at(word<0>(offset)), at(word<2>(offset)), at(word<4>(offset)), at(word<6>(offset)),
                 e_j, d_j);
    const f32x4 p = e * (-1.0f + e * 0.66666667f) - wide * wide * 0.33333333f;
    const f32x4 q = d_j * d;
    return or_bits(e_j + (q + q * p), as<u32x4>(x) & sign_f32x4);
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_sErf_V8EPnnn(int n, const float* a, float* r) {
  ork::chunk<ork::ErfEpS>(n, {{a}, {r}});
}
