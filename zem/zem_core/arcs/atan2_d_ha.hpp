#pragma once
// Atan2, double, HA: what fpatan gives, to the bit. The instruction takes 140 cycles, so atan q
// is first formed in two words, with an error below 2^-64: t = (small - b large)/(large + b small),
// its remainder divided once more, then the angles of step and octant with their low words.
// Rare: lanes within 2^-62 of a border between two doubles, and those with an exponent beyond
// +-400, both left to the instruction; zeros, infinities, NaNs. Bound: 0.51 ulp.
#include "arcs/atan2.hpp"
#include "base/pair.hpp"

namespace ork {

inline int atan2_rare(const double* y, const double* x, double* r) {
  const double ay = __builtin_fabs(*y), ax = __builtin_fabs(*x), infinity = __builtin_inf();
  if (ay > 0 && ay < infinity && ax > 0 && ax < infinity)
    fpatan(y, x, r);
  else
    return atan2_special(y, x, r);
  return 0;
}

// |atan2| = result + low, for small above 2^-400 and large below 2^401.
ORK_INLINE f64x2 atan2_pair(const Octant<double>& o, f64x2& low) {
  f64x2 step, step_low;
  const f64x2 b = atan_step(o.small / o.large, step, step_low);

  // small - b large = num - over, large + b small = den + under
  const auto [across, over] = exact_short_product(b, Upper(o.large));
  const auto [along, along_low] = exact_short_product(b, Upper(o.small));
  const f64x2 num = o.small - across;  // exact
  const auto [whole, whole_low] = exact_sum(o.large, along);
  const Upper den(whole);
  const f64x2 under = whole_low + along_low;
  const f64x2 inverse = 1.0 / whole;
  const Upper t(num * inverse);
  const f64x2 left = ((num - t.high * den.high) - t.high * den.low) - t.low * whole;
  const f64x2 t_low = ((left - over) - t.whole * under) * inverse;

  const f64x2 z = t.whole * t.whole;
  const f64x2 series =
      z * ((ratio<-1, 3> + z * ratio<1, 5>)+(z * z) * (ratio<-1, 7> + z * ratio<1, 9>));
  const auto [angle, lost] = exact_sum(step, t.whole);
  const f64x2 angle_low = lost + (step_low + (t_low + t.whole * series));
  const auto [high, lost_base] = exact_sum(o.base, xor_bits(angle, o.flip));
  low = lost_base + (o.base_low + xor_bits(angle_low, o.flip));
  return high;
}
ORK_INLINE u32x4 atan2_pair_rare(const Octant<double>& o) {
  return (as<u32x4>(o.small) - ((1023 - 400) << 20)) | (((1023 + 400) << 20) - as<u32x4>(o.large));
}

struct Atan2Ha : Core<double, 2> {
  static constexpr char name[] = "vdAtan2";
  static constexpr unsigned x87 = x87_extended;  // the store rounds as it says
  ORK_INLINE f64x2 eval(f64x2 y, f64x2 x, u32x4& rare) {
    const Octant<double> o(y, x);
    rare |= atan2_pair_rare(o);
    f64x2 low;
    const f64x2 high = atan2_pair(o, low);

    const f64x2 doubt = high * 0x1p-62, r = high + (low + doubt);
    rare |= as<u32x4>((f64x2)_mm_cmpneq_pd(r, high + (low - doubt)));
    return or_bits(r, as<u64x2>(y) & sign_f64x2);
  }
  static int special(const double* y, const double* x, double* r) { return atan2_rare(y, x, r); }
};

}  // namespace ork
