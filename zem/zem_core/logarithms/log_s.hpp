#pragma once
// Single-precision logarithms without a table: x = 2^k m with m around 1, u = m - 1 exact,
// log x = p(u) + k log 2.
#include "base/vec.hpp"

namespace ork {

constexpr uint32_t two_thirds = 0x3F2AAAAB, root_half = 0x3F3504F3;  // where m starts

// u and k of positive normal numbers; m in [low, 2 low), `low` an image.
ORK_INLINE f32x4 log_reduce(u32x4 image, uint32_t low, i32x4& k) {
  const u32x4 d = image - low;
  k = (i32x4)d >> 23;
  return as<f32x4>((d & 0x007FFFFF) + low) - 1.0f;
}
ORK_INLINE f32x4 to_float(i32x4 k) { return _mm_cvtepi32_ps((__m128i)k); }

// The coefficients of a generated file.
template <int count>
ORK_INLINE f32x4 horner(f32x4 x, const float (&c)[count]) {
  f32x4 y = splat(c[count - 1]);
#pragma GCC unroll 16
  for (int i = count - 2; i >= 0; --i) y = c[i] + x * y;
  return y;
}

// All lanes but those of positive finite numbers above the smallest normal.
ORK_INLINE u32x4 not_normal(f32x4 x) {
  return ~(u32x4)((i32x4)(as<u32x4>(x) + 0x00800000) > 0x01000000);
}

}  // namespace ork
