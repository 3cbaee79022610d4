#pragma once
// ErfInv: w = 1 - |x|, z = x.
// Rare, double: |x| >= 1, |x| < 2^-35, NaN; single: |x| >= 1, NaN.
#include "erfinv/inverse.hpp"

namespace ork {

int vderfinv_cout_rare(const double* a, double* r);
int vserfinv_cout_rare(const float* a, float* r);

ORK_INLINE InverseSplit erfinv_split(f64x2 x) {
  const f64x2 m = _mm_min_pd(abs(x), splat(0.99999999999999989)), w = 1.0 - m;
  return {w, x, (1.0 - w) - m};
}

struct ErfInvD : Core<double> {
  static constexpr char name[] = "vdErfInv";
  static constexpr bool low_of_z = false;
  static InverseSplit split(f64x2 x) { return erfinv_split(x); }
  static u32x4 rare(f64x2 x) { return outside(as<u32x4>(abs(x)), 0x3DC00000, 0x3FF00000); }
  // EP alone leaves w unscaled.
  template <class Rows>
  static f64x2 ep_argument(f64x2 w) {
    const u64x2 interval = as<u64x2>(w) & splat_u64(0x7FFF000000000000);
    return w - as<f64x2>(interval | splat_u64(0x0000800000000000));
  }
  static int special(const double* x, double* r) { return vderfinv_cout_rare(x, r); }
};

struct ErfInvS : Core<float> {
  static constexpr char name[] = "vsErfInv";
  static InverseSplit split(f64x2 x) {
    InverseSplit s = erfinv_split(x);
    s.w = _mm_min_pd(s.w, splat(0.99999999999999989));  // w = 1 lies outside the rows
    return s;
  }
  static u32x4 rare(f32x4 x) { return outside(as<u32x4>(abs(x)), 0, 0x3F800000); }
  static int special(const float* x, float* r) { return vserfinv_cout_rare(x, r); }
};

}  // namespace ork
