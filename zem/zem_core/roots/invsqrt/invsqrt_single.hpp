#pragma once
#include "frame/level.hpp"
#include "ork/zem_kernels.h"
#include "roots/invsqrt/invsqrt_scalar.hpp"

namespace ork {

inline constexpr char sinvsqrt_name[] = "vsInvSqrt";

// Single reciprocal square root, HA: 1 / sqrt(x) in double. Rare: all but x > 0.
struct InvSqrtHaS : Core<float> {
  static constexpr auto& name = sinvsqrt_name;
  static f64x2 in_double(f64x2 x) { return splat(1.0) / sqrt(x); }

  ORK_INLINE f32x4 eval(f32x4 x, u32x4& rare) {
    rare |= ~as<u32x4>(x > splat(0.0f));
    const f64x2 low = in_double(_mm_cvtps_pd(x));
    const f64x2 high = in_double(_mm_cvtps_pd(_mm_movehl_ps(x, x)));
    return _mm_movelh_ps(_mm_cvtpd_ps(low), _mm_cvtpd_ps(high));
  }
  static int special(const float* x, float* r) {
    int status;
    if (!invsqrt_edge(x, r, &status)) *r = on_one<InvSqrtHaS>(*x);
    return status;
  }
};

// The rare elements of LA and EP, positive finite ones by root and division on the x87 unit.
int invsqrt_rare(const float* x, float* r);

// LA: the hardware's 12-bit estimate and one Newton step, within 4 ulp. EP: the estimate, within
// 2^-11. Rare: all but 2^-126 <= x <= 0x7F7FF001.
template <Level level>
struct InvSqrtS : Core<float> {
  static constexpr auto& name = sinvsqrt_name;
  static constexpr unsigned x87 = x87_double;

  ORK_INLINE f32x4 eval(f32x4 x, u32x4& rare) {
    rare |= as<u32x4>(as<i32x4>(as<u32x4>(x) + splat_u32(0x7F800000)) >
                      as<i32x4>(splat_u32(0xFEFFF001)));
    const f32x4 y = rsqrt_est(x);
    if constexpr (level == Level::ep) return y;
    return (splat(-0.5f) * y) * (x * y * y - splat(3.0f));
  }
  static int special(const float* x, float* r) { return invsqrt_rare(x, r); }
};

}  // namespace ork
