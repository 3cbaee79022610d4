// Log1p, single, HA: s + e = 1 + x, s of 16 bits unless x is small; m in [2^-8, 2^-7), c the
// integer next to rcpps(m), r = m c - 1 exact, v = r + e c; ln(1 + x) = K ln 2 + L(c) +
// v + p(v), p of degree 3, |v| < 2^-7.8, with the errors of the sums kept.
// p is frozen: off by at most 2^-34.6. Fast range: -1 < x <= 2^118.
#include "base/pair.hpp"
#include "base/round.hpp"
#include "logarithms/log1p/log1p_s.hpp"

namespace ork {
namespace {

struct Log1pHaS : Log1pS {
  // K is the biased exponent: the rows, c = 128..256, hold -127 ln 2, too.
  alignas(16) static constexpr float rows[][2] = {
#include "logarithms/log1p/rows_s_ha.inc"
  };
  static f32x4 eval(f32x4 x, u32x4& rare) {
    test(x, rare);
    const u32x4 keep = (u32x4)(abs(x) < 0.000244140625f) | 0xFFFFFF00;
    const f32x4 s = and_bits(x + 1.0f, keep), e = rest(x, s);
    const u32x4 image = as<u32x4>(s);
    const f32x4 m = as<f32x4>((image & 0x007FFFFF) | 0x3B800000);
    const f32x4 t = rcp_est(m) + integer_shifter<float>, c = t - integer_shifter<float>,
                r = m * c - 1.0f;
    const f32x4 scale = as<f32x4>(0x7B000000 - (image & 0x7F800000));
    const f32x4 e2 = e * (scale * c);

    // c in the low half of each lane of t.
    const auto row = [](int c_value) { return (const float*)rows + 2 * (c_value - 128); };
    f32x4 l_hi, l_lo;
    gather_pairs(row(word<0>(t)), row(word<2>(t)), row(word<4>(t)), row(word<6>(t)), l_hi, l_lo);
    const f32x4 k = _mm_cvtepi32_ps((__m128i)(image >> 23));
    const f32x4 a = l_hi + k * 0.693145752f, b = l_lo + k * 1.42859062e-06f;

    const auto [v, v_error] = exact_sum(r, e2);  // r = 0 or e2 below it where it counts
    const auto [y, y_error] = exact_sum(a, v);   // a = 0 or above v
    const f32x4 p = v * v * (-0.500003219f + 0.333337575f * v);
    return with_sign_of(x, y + (y_error + ((b + v_error) + p)));
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_sLog1p_V8HAynn(int n, const float* a, float* r) {
  ork::chunk<ork::Log1pHaS>(n, {{a}, {r}});
}
