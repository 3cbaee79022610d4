#pragma once
// Acosh, single. HA: ln(x + sqrt(x^2 - 1)) in double, where x^2 is exact.
// EP: ln(1 + u), u = t + sqrt(2 t + t^2), t = x - 1. Rare: x < 1, NaN, infinity; at EP x >= 2^62.
#include "areas/ln_s.hpp"

namespace ork {

template <bool ep>
struct AcoshS : Core<float> {
  static constexpr char name[] = "vsAcosh";
  ORK_INLINE f32x4 eval(f32x4 x, u32x4& rare) {
    rare |= ((ep ? 0x5E7FFFFF : 0x7F7FFFFF) - as<u32x4>(x)) | (as<u32x4>(x) - 0x3F800000) |
            as<u32x4>(x);
    if constexpr (ep) {
      const f32x4 t = x - 1.0f;
      return log1p_s<true>(t + sqrt((t + t) + t * t));
    } else {
      return in_double(
          x,
          [](f64x2 w) __attribute__((always_inline)) { return ln_short(w + sqrt(w * w - 1.0)); });
    }
  }
  static int special(const float* x, float* r) {
    if (*x < 1.0f) {
      *r = -__builtin_nanf("");
      return ZEM_STATUS_DOMAIN;
    }
    *r = *x <= __FLT_MAX__ ? (float)ln_short(splat((double)*x + (double)*x))[0] : *x + *x;
    return 0;
  }
};

}  // namespace ork
