#pragma once
#include "roots/hypot_special.hpp"

namespace ork {

// Double hypot, HA: sqrt(a^2 + b^2) in the x87 unit's extended format, whose exponents hold
// the square of any double. The extended rounding errors stay below 2^-10 ulp: within 0.501 ulp.
// Fast: 2^-500 < |a|, |b| < 2^511. hypot_scalar: the others, zeros too.
struct HypotHaD : Core<double, 2> {
  static constexpr char name[] = "vdHypot";
  static constexpr unsigned x87 = x87_extended;

  ORK_INLINE double root(double a, double b) {
    return (double)__builtin_sqrtl((long double)a * a + (long double)b * b);
  }
  ORK_INLINE u32x4 outside(f64x2 x) {
    const u32x4 high = as<u32x4>(abs(x));
    return (high - 0x20B00001) | (0x5FE00000 - high);
  }
  ORK_INLINE f64x2 eval(f64x2 a, f64x2 b, u32x4& rare) {
    rare |= outside(a) | outside(b);
    return f64x2{root(a[0], b[0]), root(a[1], b[1])};
  }
  static int special(const double* a, const double* b, double* r) {
    return hypot_scalar(a, b, r, root);
  }
};

}  // namespace ork
