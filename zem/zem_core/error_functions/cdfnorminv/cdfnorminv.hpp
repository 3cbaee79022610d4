#pragma once
// CdfNormInv: u = 2p, w = min(u, 2 - u), z = u - 1, and rows times sqrt(2).
// Rare: p outside [2^-54, 1) (single: [2^-25, 1)). Mode and MXCSR are not touched.
#include "error_functions/inverse.hpp"

namespace ork {

int cdfnorminv_rare(const double* a, double* r);
int cdfnorminv_rare(const float* a, float* r);

struct CdfNormInvSplit {
  static constexpr bool low_of_z = true;
  static InverseSplit split(f64x2 p) {
    const f64x2 u = p + p, z = u - 1.0;
    return {_mm_min_pd(u, 2.0 - u), z, u - (z + 1.0)};
  }
  template <class Rows>
  static f64x2 ep_argument(f64x2 w) {
    return Rows::from_middle(w);
  }
};

struct CdfNormInvD : Core<double>, CdfNormInvSplit {
  static constexpr char name[] = "vdCdfNormInv";
  static constexpr Csr csr = Csr::untouched;
  static u32x4 rare(f64x2 p) { return outside(as<u32x4>(p), 0x3C900000, 0x3FF00000); }
  static int special(const double* p, double* r) { return cdfnorminv_rare(p, r); }
};

struct CdfNormInvS : Core<float>, CdfNormInvSplit {
  static constexpr char name[] = "vsCdfNormInv";
  static constexpr Csr csr = Csr::untouched;
  static u32x4 rare(f32x4 p) { return outside(as<u32x4>(p), 0x33000000, 0x3F800000); }
  static int special(const float* p, float* r) { return cdfnorminv_rare(p, r); }
};

}  // namespace ork
