#pragma once
// The parts of the inverse functions in the first quadrant, by the distances of a + ib from 1 and
// -1 (T. E. Hull, T. F. Fairgrieve, P. T. P. Tang, ACM TOMS 23, 1997). In 64 bits with the
// exponents of the extended format no square leaves the range.
#include "heap/complex/parts.hpp"
#include "heap/real/inverse.hpp"
#include "heap/real/log.hpp"

namespace ork::complex_scalar {

constexpr long double log_border = 1.5L;
constexpr long double sine_border = 0xE.666666666666666p-4L;    // 0.9
constexpr long double cosine_border = 0xA.4467381D7DBF488p-4L;  // 0.6417

struct Quadrant {
  long double a, b, gap, far, near, mean, rest;

  // a, b >= 0, b > 0.
  __attribute__((always_inline)) Quadrant(long double a, long double b)
      : a(a),
        b(b),
        gap(a - 1),
        far(square_root((a + 1) * (a + 1) + b * b)),
        near(square_root(gap * gap + b * b)),
        mean(0.5L * (far + near)),
        rest(near - gap) {}

  // The leg beside a in the angle's triangle.
  __attribute__((always_inline)) long double leg() const {
    const long double above = mean + a, out = a + 1 + far;
    if (a <= 1) return square_root(0.5L * above * (b * b / out + rest));
    return b * square_root(0.5L * (above / out + above / (gap + near)));
  }
  __attribute__((always_inline)) long double sine_angle() const {
    if (sine_border * mean >= a) return asin_inside(a / mean);
    return angle_scaled(a, leg());
  }
  __attribute__((always_inline)) long double cosine_angle() const {
    if (cosine_border * mean > a) return acos_inside(a / mean);
    return angle_scaled(leg(), a);
  }
  __attribute__((always_inline)) long double log_part() const {
    if (mean > log_border) return log_normal(mean + square_root(mean * mean - 1));
    const long double t = b * b / (far + a + 1);
    const long double above_one = 0.5L * (a < 1 ? t + b * b / rest : near + gap + t);
    return log1p_finite(above_one + square_root(above_one * (mean + 1)));
  }
};

// A double with a part's sign, where the exact value is a fraction of pi.
ORK_INLINE long double arc(const Part& of, double x) {
  raise_inexact();
  return of.sign(x);
}
constexpr double pi_double = 0x1.921fb54442d18p1, half_pi_double = 0x1.921fb54442d18p0;
constexpr double quarter_pi_double = 0x1.921fb54442d18p-1;
constexpr double three_quarters_pi_double = 0x1.2d97c7f3321d2p1;

}  // namespace ork::complex_scalar
