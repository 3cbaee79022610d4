#pragma once
// ErfcInv: w = min(x, 2 - x), z = 1 - x.
// Rare: x outside [2^-53, 2) (single: [2^-24, 2)). Mode and MXCSR are not touched.
#include "error_functions/inverse.hpp"

namespace ork {

int erfcinv_rare(const double* a, double* r);
int erfcinv_rare(const float* a, float* r);

struct ErfcInvSplit {
  static constexpr bool low_of_z = true;
  static InverseSplit split(f64x2 x) {
    const f64x2 z = 1.0 - x;
    return {_mm_min_pd(x, 2.0 - x), z, (1.0 - z) - x};
  }
  template <class Rows>
  static f64x2 ep_argument(f64x2 w) {
    return Rows::from_middle(w);
  }
};

struct ErfcInvD : Core<double>, ErfcInvSplit {
  static constexpr char name[] = "vdErfcInv";
  static constexpr Csr csr = Csr::untouched;
  static u32x4 rare(f64x2 x) { return outside(as<u32x4>(x), 0x3CA00000, 0x40000000); }
  static int special(const double* x, double* r) { return erfcinv_rare(x, r); }
};

struct ErfcInvS : Core<float>, ErfcInvSplit {
  static constexpr char name[] = "vsErfcInv";
  static constexpr Csr csr = Csr::untouched;
  static u32x4 rare(f32x4 x) { return outside(as<u32x4>(x), 0x33800000, 0x40000000); }
  static int special(const float* x, float* r) { return erfcinv_rare(x, r); }
};

}  // namespace ork
