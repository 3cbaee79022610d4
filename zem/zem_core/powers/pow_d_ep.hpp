#pragma once
// Pow, double, EP: e^(b ln a). ln a = K ln 2 - ln(c/1024) + ln(1 + r) with the short factor of
// Log1p, degree 3; e^q = 2^n 2^(j/2048) e^f, |f| <= ln 2/4096. The absolute error of ln a,
// 2^-41, counts b times.
// Fast: normal a > 0, -674.8 < q < 708.4, so that no term of the scaled sum is denormal.
// pow_rare: the others. ln 2/2048 is rounded to double; the other constants are fits.
#include "base/round.hpp"
#include "common/log_short_d.hpp"
#include "powers/pow_d.hpp"

namespace ork {

// -ln(c/1024), c = 512..1024; less ln 2 up to 724.
inline constexpr double pow_short_logarithms[513] = {
#include "common/log1p_rows_d_la.inc"
};
inline constexpr uint64_t pow_mantissas[2048] = {
#include "powers/mantissa2048_d.inc"
};

ORK_INLINE f64x2 pow_main_ep(f64x2 a, f64x2 b, u32x4& rare) {
  rare |= as<u32x4>(as<i32x4>(as<u32x4>(a) + 0x00100000) < as<i32x4>(splat_u32(0x00200000)));
  const ShortD factor(a);
  const f64x2 v = factor.m * factor.c - 1.0;
  const f64x2 p = v + (v * v) * horner(v, -0.49999999999988803, 0.33333333333308374);
  const f64x2 q = b * short_sum(factor, a, pow_short_logarithms, 0.69314718055994529, p);
  const u64x2 field = pow_field(q - 16.77099609375, 0x40859CFF, rare);  // the difference < 691.625

  constexpr double shifter = integer_shifter<double>;
  const f64x2 t = q * 2954.639443740597 + shifter;
  const f64x2 f = q - (t - shifter) * 0.00033845077175778576;
  const u32x4 j = as<u32x4>(t) & 2047;
  const f64x2 fraction =
      gather((const double*)pow_mantissas + j[0], (const double*)pow_mantissas + ork::word<4>(j));
  const u64x2 scale = as<u64x2>(as<u32x4>(t) + u32x4{1023 << 11, 0, 1023 << 11, 0}) << 41;
  const f64x2 s = or_bits(fraction, scale & field);
  return s + s * (f * (0.99999999283948049 + 0.5 * f));
}

struct PowEpD : Core<double, 2> {
  static constexpr char name[] = "vdPow";
  static constexpr int vectors = 1;

  ORK_INLINE f64x2 eval(f64x2 a, f64x2 b, u32x4& rare) { return pow_main_ep(a, b, rare); }
  static int special(const double* a, const double* b, double* r) { return pow_rare(a, b, r); }
};

}  // namespace ork
