#pragma once
// Single-precision reciprocals from the hardware's 12-bit estimate, for division and reciprocal
// at LA and EP.
#include "base/vec.hpp"
#include "frame/level.hpp"

namespace ork {

// EP: the estimate, relative error below 1.5 * 2^-12. LA: one Newton step,
// y' = y * (2 - b * y), relative error below 2^-23 + 3 * 2^-25.
template <Level level>
ORK_INLINE f32x4 reciprocal(f32x4 b) {
  const f32x4 y = rcp_est(b);
  if constexpr (level == Level::ep) return y;
  return y * (splat(2.0f) - b * y);
}

// Lanes that the estimate does not serve: zeros, denormals, infinities, NaNs, and numbers from
// 2^126 up, less the estimate's error, where it underflows to zero.
ORK_INLINE u32x4 out_of_reach(f32x4 b) {
  const u32x4 t = (as<u32x4>(b) - splat_u32(0x00800000)) & ~sign_f32x4;
  return as<u32x4>(as<i32x4>(t) > as<i32x4>(splat_u32(0x7E000000 - 0x2001)));
}

// a / b on the x87 unit, for these lanes: the quotient of two singles, rounded to extended and
// then to single, is the correctly rounded one.
void divide_single(const float* a, const float* b, float* r);

}  // namespace ork
