// Log10, single, HA: x = 2^k m, c an integer near 111/(256 m) from rcpps, r = m c - 111/256,
// log10 x = k log10 2 + L(c) + r + q(r) with a compensated sum. q is frozen, of degree 3: off by at
// most 2^-36.5 for |r| <= 2^-9. Fast range: positive normal numbers.
#include "base/pair.hpp"
#include "base/round.hpp"
#include "frame/chunk.hpp"
#include "logarithms/log10/log10.hpp"
#include "ork/zem_kernels.h"

namespace ork {
namespace {

struct Log10HaS : Core<float> {
  static constexpr char name[] = "vsLog10";
  static constexpr int first_row = 0x42DE;  // high half of the image of 111
  alignas(16) static constexpr float rows[][2] = {
#include "logarithms/log10/rows_s_ha.inc"
  };
  static f32x4 eval(f32x4 x, u32x4& rare) {
    rare |= as<u32x4>((f32x4)_mm_cmplt_ps(x, splat(0x1p-126f))) |
            as<u32x4>((f32x4)_mm_cmpnle_ps(x, splat(3.40282347e+38f)));
    const u32x4 image = as<u32x4>(x);
    const f32x4 m = as<f32x4>((image & 0x007FFFFF) | 0x3B000000);  // [2^-9, 2^-8)
    const f32x4 c = rcp_est(m) * 0.43359375f + integer_shifter<float> - integer_shifter<float>;
    const f32x4 m_hi = and_bits(m, splat_u32(0xFFFFFF00)), m_lo = m - m_hi;
    const f32x4 r = (m_hi * c - 0.43359375f) + m_lo * c;
    const f32x4 k = _mm_cvtepi32_ps((__m128i)((image >> 23) - 127));

    const auto row = [](int image) { return (const float*)rows + 2 * (image - first_row); };
    f32x4 l_hi, l_lo;
    gather_pairs(row(word<1>(c)), row(word<3>(c)), row(word<5>(c)), row(word<7>(c)), l_hi, l_lo);

    const f32x4 a = k * 0.30103302f + l_hi, b = k * -3.02435365e-06f + l_lo;
    const auto [s, e] = exact_sum(a, r);  // |a| > |r|, or a = 0
    const f32x4 q = r * horner(r, 0.00161610241f, -1.15502596f, 1.77590978f);
    return s + (e + (b + q));
  }
  static int special(const float* a, float* out) { return log10_rare(a, out); }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_sLog10_V8HAynn(int n, const float* a, float* r) {
  ork::chunk<ork::Log10HaS>(n, {{a}, {r}});
}
