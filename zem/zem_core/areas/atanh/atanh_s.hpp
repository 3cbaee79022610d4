#pragma once
// Atanh, single. HA: ln((1 + a)/(1 - a))/2 in double, a = |x|; below 2^-12 a + a^3/3.
// LA, EP: ln(1 + 2 a/(1 - a))/2. The sign of x. Rare: |x| >= 1, NaN.
#include "areas/atanh/atanh_rare.hpp"
#include "areas/ln_s.hpp"

namespace ork {

enum class AtanhLevel { ha, la, ep };

template <AtanhLevel level>
struct AtanhS : Core<float> {
  static constexpr char name[] = "vsAtanh";
  ORK_INLINE f32x4 eval(f32x4 x, u32x4& rare) {
    const f32x4 magnitude = abs(x);
    rare |= 0x3F7FFFFF - as<u32x4>(magnitude);
    f32x4 y;
    if constexpr (level == AtanhLevel::ha)
      y = in_double(
          magnitude, [](f64x2 a) __attribute__((always_inline)) {
            const f64x2 small = a + a * (a * a * (1.0 / 3));
            return select((f64x2)_mm_cmplt_pd(a, splat(0x1p-12)), small,
                          0.5 * ln_short((1.0 + a) / (1.0 - a)));
          });
    else
      y = 0.5f * log1p_s<level == AtanhLevel::ep>((magnitude + magnitude) / (1.0f - magnitude));
    return or_bits(y, as<u32x4>(x) & sign_f32x4);
  }
  static int special(const float* x, float* r) { return atanh_rare(x, r); }
};

}  // namespace ork
