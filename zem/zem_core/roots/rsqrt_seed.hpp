#pragma once
// 1 / sqrt(x) for positive normal doubles without the hardware's root and division: a 12-bit seed,
// and the binomial series of (1 + e)^(-1/2) in e = x y0^2 - 1, |e| < 2^-10.4.
#include "base/vec.hpp"
#include "frame/level.hpp"

namespace ork {

inline constexpr u64x2 high_half = {0xFFFFFFFF00000000, 0xFFFFFFFF00000000};

// The seed. Its low word is 0: with at most 21 significant bits its square is exact.
// x << 3 lines the mantissa up with that of a single in the high word; the exponent's low bit
// makes it a number in [1/2, 2), and the low word becomes infinity, whose estimate is 0. The
// seed's exponent is then 896 - ceil((exponent - 1023) / 2) more than the shifted estimate's.
ORK_INLINE f64x2 rsqrt_seed(f64x2 x) {
  constexpr u32x4 keep = {0, 0x00FFFFFF, 0, 0x00FFFFFF};
  constexpr u32x4 range = {0x7F800000, 0x3F000000, 0x7F800000, 0x3F000000};
  constexpr u32x4 top = {0, 0xAFFFFFFF, 0, 0xAFFFFFFF};  // (2815 << 20) + 0xFFFFF
  constexpr u32x4 exponent = {0, 0xFFF00000, 0, 0xFFF00000};
  const u32x4 m = (as<u32x4>(as<u64x2>(x) << 3) & keep) | range;
  const u32x4 y = as<u32x4>(rsqrt_est(as<f32x4>(m))) >> 3;
  return as<f64x2>(y + ((top - as<u32x4>(x)) >> 1 & exponent));
}

// c(e) = (1 + e)^(-1/2) - 1 to degree 5 (HA), 4 (LA), 2 (EP); the terms left out are below
// 2^-64, 2^-54 and 2^-32.
template <Level level>
ORK_INLINE f64x2 rsqrt_series(f64x2 e) {
  if constexpr (level == Level::ep) return e * (splat(-0.5) + e * splat(0.375));
  f64x2 c = splat(0.2734375);
  if constexpr (level == Level::ha) c = c + e * splat(-0.24609375);
  return e * (splat(-0.5) + e * (splat(0.375) + e * (splat(-0.3125) + e * c)));
}

// Lanes other than positive numbers of whose products and parts none is denormal: from 2^1022 on
// y0^2 is; at HA, below 2^-970, the low part of x.
template <Level level>
ORK_INLINE u32x4 rsqrt_rare(f64x2 x) {
  constexpr uint32_t least = (level == Level::ha ? 1023 - 970 : 1) << 20, beyond = 0x7FD00000;
  constexpr uint32_t shift = 0x80000000 + least, greatest = beyond - 1 - shift;
  constexpr u32x4 offset = {0, shift, 0, shift}, last = {0, greatest, 0, greatest};
  return as<u32x4>(as<i32x4>(as<u32x4>(x) - offset) > as<i32x4>(last));
}

}  // namespace ork
