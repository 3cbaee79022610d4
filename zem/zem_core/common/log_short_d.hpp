#pragma once
// The short factor of Log1p and Log10, double, V8: m in [2^-10, 2^-9), c = 512..1024 the
// integer next to rcpps(m), so that r = m c - 1 is exact for m of 43 bits, |r| < 2^-9.5. Next to 1,
// within 2^-10, a lane of `near` makes c a power of two: r is exact for every m, |r| < 2^-10, and
// -log(c/1024) is 0, so that no sum cancels.
#include "base/round.hpp"
#include "base/vec.hpp"

namespace ork {

constexpr double short_shifter = integer_shifter<double>;  // c in the low words of t

struct ShortD {
  f64x2 m, t, c;

  __attribute__((always_inline)) explicit ShortD(f64x2 s) {
    m = or_bits(and_bits(s, splat_u64(0x000FFFFFFFFFFFFF)), splat_u64(0x3F50000000000000));
    t = (f64x2)_mm_cvtps_pd(rcp_est((f32x4)_mm_cvtpd_ps(m))) + short_shifter;
    c = t - short_shifter;
  }
  __attribute__((always_inline)) ShortD(f64x2 s, u64x2 near) : ShortD(s) {
    // c is 512, 513 or 1023, 1024, 1025 there, whatever the last bits of rcpps.
    t = as<f64x2>((as<u64x2>(t) + (near & splat_u64(1))) & ~(near & splat_u64(3)));
    c = t - short_shifter;
  }
  // Row of the first and the second lane in a table that begins with c = 512.
  int row0() const { return as<i32x4>(t)[0] - 512; }
  int row1() const { return word<4>(t) - 512; }
};

// The biased exponent less `offset`.
ORK_INLINE f64x2 exponent_less(f64x2 s, double offset) {
  return as<f64x2>((as<u64x2>(s) >> 52) | splat_u64(0x4330000000000000)) - (0x1p52 + offset);
}

// LA and EP: K log 2 + (T + p), T = -log(c/1024) with K the exponent, or half of c and one
// more, so that both vanish on either side of 1.
ORK_INLINE f64x2 short_sum(const ShortD& f, f64x2 s, const double* table, double log_2, f64x2 p) {
  const f64x2 upper = and_bits(splat(1.0), (u64x2)(f.c > 724.0));
  const f64x2 k = exponent_less(s, 1022.0) - upper;
  const f64x2 t = gather(table + f.row0(), table + f.row1());
  return k * log_2 + (t + p);
}

}  // namespace ork
