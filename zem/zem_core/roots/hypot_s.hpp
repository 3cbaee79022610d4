#pragma once
#include "frame/level.hpp"
#include "roots/hypot_special.hpp"

namespace ork {

// Single hypot. HA: sum and root in double, whose exponents hold the square of any single; the
// one rounding to single counts: within 0.501 ulp. LA: sum in double, root in single: within
// 1 ulp. EP: all in single.
// Fast: finite numbers; at LA only if the larger is in [2^-60, 2^62], at EP from 2^-50 on, where a
// denormal square is below 2^-26 of the other.
template <Level level>
struct HypotS : Core<float, 2> {
  static constexpr char name[] = "vsHypot";

  ORK_INLINE f64x2 sum(f32x4 a, f32x4 b) {
    const f64x2 x = _mm_cvtps_pd(a), y = _mm_cvtps_pd(b);
    return x * x + y * y;
  }
  ORK_INLINE f64x2 finish(f64x2 x) { return level == Level::ha ? sqrt(x) : x; }
  ORK_INLINE f32x4 eval(f32x4 a, f32x4 b, u32x4& rare) {
    const u32x4 x = as<u32x4>(abs(a)), y = as<u32x4>(abs(b));
    constexpr uint32_t last = level == Level::ha ? 0x7F7FFFFF : 0x5E800000;
    rare |= (last - x) | (last - y);
    constexpr uint32_t first = level == Level::ep ? 0x26800000 : 0x21800000;
    if constexpr (level != Level::ha) rare |= (x - first) & (y - first);
    if constexpr (level == Level::ep) return sqrt(a * a + b * b);
    const f32x4 low = _mm_cvtpd_ps(finish(sum(a, b)));
    const f32x4 high = _mm_cvtpd_ps(finish(sum(_mm_movehl_ps(a, a), _mm_movehl_ps(b, b))));
    const f32x4 all = _mm_movelh_ps(low, high);
    return level == Level::ha ? all : sqrt(all);
  }
  static int special(const float* a, const float* b, float* r) {
    return hypot_scalar(a, b, r, [](float p, float q) {
      const double x = p, y = q;
      return (float)sqrt(splat(x * x + y * y))[0];
    });
  }
};

}  // namespace ork
