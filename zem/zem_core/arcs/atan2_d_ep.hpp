#pragma once
// Atan2, double, EP: the polynomial of Atan EP on the quotient. Bound: 2^-26.
#include "arcs/atan2.hpp"

namespace ork {

struct Atan2Ep : Core<double, 2> {
  static constexpr char name[] = "vdAtan2";
  ORK_INLINE f64x2 eval(f64x2 y, f64x2 x, u32x4& rare) {
    const Octant<double> o(y, x);
    rare |= atan2_rare(y, x, as<u32x4>(o.zero));
    const f64x2 v = atan_ep(o.small / o.large);
    return or_bits(o.base + xor_bits(v, o.flip), as<u64x2>(y) & sign_f64x2);
  }
  static int special(const double* y, const double* x, double* r) { return atan2_special(y, x, r); }
};

}  // namespace ork
