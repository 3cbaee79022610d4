#pragma once
// Atan2, single, EP: t = -|x|/|y| for |x| <= |y|, else |y|/|x|, by rcp and a Newton step;
// t P(t^2) plus pi/2 or 0, from pi for x < 0, with the sign of y.
// P is frozen, of degree 3: relative error of atan 2^-12.1 on [0, 1].
// Fast range: |x| and |y| above 2^-125 and below 1.06e37; beyond it fpatan. Bound: 2^-12.
#include "arcs/atan2.hpp"

namespace ork {

struct Atan2EpS : Core<float, 2> {
  static constexpr char name[] = "vsAtan2";
  static constexpr unsigned x87 = x87_extended;
  ORK_INLINE f32x4 eval(f32x4 y, f32x4 x, u32x4& rare) {
    const f32x4 ay = abs(y), ax = abs(x);
    rare |= (as<u32x4>(ay) - 0x01000001) | (0x7CFFFFFF - as<u32x4>(ay)) |
            (as<u32x4>(ax) - 0x01000001) | (0x7CFFFFFF - as<u32x4>(ax));
    const u32x4 steep = (u32x4)(ax <= ay), left = (u32x4)(x < 0.0f);
    const f32x4 num = select(steep, -ax, ay);
    const f32x4 den = _mm_max_ps(select(steep, ay, ax), splat(0x1p-126f));  // 0/0 raises a flag
    const f32x4 y0 = rcp_est(den), t = num * (y0 * (2.0f - den * y0)), z = t * t, w = z * z;
    const f32x4 p = (0.999775231f + w * 0.154571936f) + z * (-0.325505346f + w * -0.043525815f);
    const f32x4 v = t * p + and_bits(splat(1.57079637f), steep);
    return or_bits(xor_bits(v, left & sign_f32x4) + and_bits(splat(3.14159274f), left),
                   as<u32x4>(y) & sign_f32x4);
  }
  static int special(const float* y, const float* x, float* r) {
    fpatan(y, x, r);
    return 0;
  }
};

}  // namespace ork
