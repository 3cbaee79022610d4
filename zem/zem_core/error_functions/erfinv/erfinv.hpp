#pragma once
// ErfInv: w = 1 - |x|, z = x.
// Rare, double: |x| >= 1, |x| < 2^-35, NaN; single: |x| >= 1, NaN.
#include "error_functions/inverse.hpp"

namespace ork {

int erfinv_rare(const double* a, double* r);
int erfinv_rare(const float* a, float* r);

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
  static int special(const double* x, double* r) { return erfinv_rare(x, r); }
};

struct ErfInvS : Core<float> {
  static constexpr char name[] = "vsErfInv";
  static InverseSplit split(f64x2 x) {
    InverseSplit s = erfinv_split(x);
    s.w = _mm_min_pd(s.w, splat(0.99999999999999989));  // w = 1 lies outside the rows
    return s;
  }
  static u32x4 rare(f32x4 x) { return (u32x4)((i32x4)as<u32x4>(abs(x)) > 0x3F7FFFFF); }
  static int special(const float* x, float* r) { return erfinv_rare(x, r); }
};

// Single, LA and EP: cubics in w for each of `parts` intervals of a binade of w, from 2^-24
// upward, and a last row for w = 1. The rows and t = w - middle are found in single, four at a
// time: w is exact for |x| >= 1/2, and its rounding below shifts f by 2^-27. The rest is in double,
// rounded once.
template <int parts, const double (*table)[4]>
struct ErfInvSCubic : ErfInvS {
  static constexpr int vectors = 1;
  static f32x4 eval(f32x4 x, u32x4& rare) {
    rare |= ErfInvS::rare(x);
    constexpr int shift = 23 - (parts == 4 ? 2 : 4), row_shift = 5;
    const f32x4 w = 1.0f - _mm_min_ps(abs(x), splat(0x1.fffffep-1f));
    const u32x4 interval = as<u32x4>(w) & splat_u32(~0u << shift);
    const f32x4 t = w - as<f32x4>(interval | splat_u32(1u << (shift - 1)));
    const u32x4 offset = (interval - splat_u32(0x33800000)) >> (shift - row_shift);
    const auto row = [](int at) { return (const double*)((const char*)table + at); };
    const auto half = [&](int at0, int at1, f32x4 t, f32x4 x) {
      return _mm_cvtpd_ps(row_cubic(row(at0), row(at1), _mm_cvtps_pd(t)) * _mm_cvtps_pd(x));
    };
    const f32x4 low = half(word<0>(offset), word<2>(offset), t, x);
    const f32x4 high =
        half(word<4>(offset), word<6>(offset), _mm_movehl_ps(t, t), _mm_movehl_ps(x, x));
    return _mm_movelh_ps(low, high);
  }
};

}  // namespace ork
