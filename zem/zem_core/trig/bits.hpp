#pragma once
// Signs and range tests on the integer images.
#include "base/vec.hpp"

namespace ork::trig {

// Sign bit of a lane (of a double: of its high word) set where |x| is at or above a limit, itself
// an image (of a double: its high word); infinities and NaN are.
template <uint32_t limit, class V>
ORK_INLINE u32x4 reaches(V ax) {
  return as<u32x4>(ax) + splat_u32(0x80000000u - limit);
}

constexpr uint32_t limit_10000 = 0x461C4000;  // single

ORK_INLINE f64x2 sign_of(f64x2 x) { return and_bits(x, sign_f64x2); }
ORK_INLINE f32x4 sign_of(f32x4 x) { return and_bits(x, sign_f32x4); }
ORK_INLINE f64x2 flip(f64x2 x, f64x2 sign) { return xor_bits(x, as<u64x2>(sign)); }
ORK_INLINE f32x4 flip(f32x4 x, f32x4 sign) { return xor_bits(x, as<u32x4>(sign)); }

// The lowest bit of the integer in t = integer + shifter, as a sign.
ORK_INLINE f64x2 parity(f64x2 t) { return as<f64x2>(as<u64x2>(t) << 63); }
ORK_INLINE f32x4 parity(f32x4 t) { return as<f32x4>(as<u32x4>(t) << 31); }

}  // namespace ork::trig
