#pragma once
// Asin, single: the block frame's special lanes, and the estimates shared with Acos EP.
#include "arcs/asin.hpp"

namespace ork {

// |x| >= 1 or a NaN.
inline int sasin_special(const float* x, float* r) {
  uint32_t image;
  __builtin_memcpy(&image, x, sizeof image);
  const uint32_t magnitude = image & 0x7FFFFFFF;
  int status = 0;
  if (magnitude == 0x3F800000)
    image = (image & 0x80000000) | as<uint32_t>(1.57079637f);
  else if (magnitude <= 0x7F800000) {
    image = 0xFFC00000;
    status = ZEM_STATUS_DOMAIN;
  } else
    image |= 0x00400000;  // a NaN, quiet
  __builtin_memcpy(r, &image, sizeof image);
  return status;
}

// z = (1 - a)/2 where a >= 0.5 (`outer`), else a^2. The halving is of the exponent field.
template <bool estimate>
ORK_INLINE f32x4 sasin_variable(f32x4 a, u32x4 outer) {
  // Of a = 1: -infinity, whose estimated root is a NaN, or with saturation 0; both raise no flag.
  const __m128i two_halves = as<__m128i>(1.0f - a), step = _mm_set1_epi32(0x00800000);
  const f32x4 half =
      as<f32x4>(estimate ? _mm_sub_epi32(two_halves, step) : _mm_subs_epu16(two_halves, step));
  return select(outer, half, a * a);
}

// K f + g: K below 0.5, pi/2 - 2 K above.
ORK_INLINE f32x4 sasin_result(f32x4 k, u32x4 outer) {
  const f32x4 f = as<f32x4>(as<u32x4>(splat(1.0f)) + (outer & 0x80800000));  // 1 or -2
  return k * f + and_bits(splat(1.57079637f), outer);
}

// v + v S(z), z <= 1/4, with v = sqrt z by rsqrt and one Newton step. S is frozen, of degree 2:
// relative error of asin 2^-14.7.
ORK_INLINE f32x4 sasin_ep(f32x4 z, f32x4 a, u32x4 outer) {
  const f32x4 y = and_bits(rsqrt_est(z), outer), s = z * y;  // of 0 it is infinite
  const f32x4 v = select(outer, (s * y - 3.0f) * (-0.5f * s), a);
  return v + v * (z * (0.165042728f + z * 0.0943948552f));
}

}  // namespace ork
