#pragma once
// Powx, double: Pow with one exponent, whose parts are split before the loop.
#include "powers/pow_d.hpp"

namespace ork {

// What the forms of Powx share: the exponent, the rare routine, the exponent in reports.
struct PowxBaseD : Core<double> {
  static constexpr char name[] = "vdPowx";
  static constexpr int vectors = 1;
  double b;
  explicit PowxBaseD(double exponent) : b(exponent) {}
  const double* second(const double*, int index) const { return array_with(&b, index); }
  int special(const double* a, double* r) const { return pow_rare(a, &b, r); }
};

struct PowxD : PowxBaseD {
  f64x2 exponent, high, low;
  u32x4 rare_exponent;  // infinities and NaNs
  __attribute__((always_inline)) explicit PowxD(double b) : PowxBaseD(b) {
    exponent = splat(b);
    high = upper_half(exponent);
    low = exponent - high;
    rare_exponent = 0x7F7FFFFF - as<u32x4>(abs(exponent));
  }
  __attribute__((always_inline)) f64x2 eval(f64x2 a, u32x4& rare) const {
    rare |= rare_exponent;
    return pow_main(a, exponent, high, low, rare);
  }
};

}  // namespace ork
