#pragma once
// Atan2, double, LA: see atan2.hpp. Bound: 2.5 ulp.
#include "arcs/atan2.hpp"

namespace ork {

struct Atan2La : Core<double, 2> {
  static constexpr char name[] = "vdAtan2";
  ORK_INLINE f64x2 eval(f64x2 y, f64x2 x, u32x4& rare) {
    const Octant<double> o(y, x);
    rare |= atan2_rare(y, x, as<u32x4>(o.zero));
    return atan2_la(y, o);
  }
  static int special(const double* y, const double* x, double* r) { return atan2_special(y, x, r); }
};

}  // namespace ork
