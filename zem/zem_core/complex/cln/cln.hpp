#pragma once
// Ln of complex vectors: half the logarithm of S = x^2 + y^2 and the angle. S and what its rounding
// lost come in two doubles, and ln(S + lost) = ln S + lost/S. Rare lanes go to the scalar.
#include "arcs/atan2_d_ha.hpp"
#include "base/pair.hpp"
#include "heap/complex/element.hpp"
#include "logarithms/natural_d.hpp"

namespace ork {

template <class R>
struct ComplexLn : OfScalar<R, ork_zem_kernel_clog_scalar, false> {
  static constexpr Csr csr = Csr::from_mode;
};

ORK_INLINE Pair<f64x2> square(f64x2 x) {
  const f64x2 head = upper_half(x), rest = x - head, s = x * x;
  return {s, ((head * head - s) + 2.0 * head * rest) + rest * rest};
}
// Double: parts that are not atan2_pair_rare; next to the unit circle, |S - 1| < 2^-30, the two
// words are too short.
ORK_INLINE f64x2 log_modulus(const Octant<double>& o, u32x4& rare) {
  const Pair<f64x2> l = square(o.large), s = square(o.small), sum = exact_sum(l.high, s.high);
  rare |= as<u32x4>(abs(sum.high - 1.0)) - 0x3E100000;
  const f64x2 lost = sum.low + (l.low + s.low);
  f64x2 low, head;
  const f64x2 rest = LogHaD<Natural>::parts(sum.high, low, head);
  return 0.5 * (((rest + low) + lost / sum.high) + head);
}

// Single, in double, where the squares are exact: what the sum lost counts only next to 1.
ORK_INLINE f64x2 log_modulus_single(f64x2 x, f64x2 y) {
  const f64x2 x2 = x * x, y2 = y * y, large = _mm_max_pd(x2, y2), small = _mm_min_pd(x2, y2);
  const f64x2 sum = large + small;
  const f64x2 lost = and_bits((large - sum) + small, (u64x2)(abs(sum - 1.0) < 0.0078125));
  f64x2 low, head;
  const f64x2 rest = LogHaD<Natural>::parts(sum, low, head);
  return 0.5 * (((rest + low) + lost) + head);
}

// Single: the double arctangent of the widened parts, see atan2.hpp.
struct LnS : ComplexLn<float> {
  static constexpr char name[] = "vcLn";
  static constexpr int vectors = 1;

  ORK_INLINE Planes<f32x4> eval(const Planes<f32x4>& z, u32x4& rare) {
    const f64x2 x0 = _mm_cvtps_pd(z.re), x1 = _mm_cvtps_pd(_mm_movehl_ps(z.re, z.re));
    const f64x2 y0 = _mm_cvtps_pd(z.im), y1 = _mm_cvtps_pd(_mm_movehl_ps(z.im, z.im));
    const Octant<double> o0(y0, x0), o1(y1, x1);
    rare |= atan2_rare(z.im, z.re, (u32x4)(ork::abs(z.re) + ork::abs(z.im) == 0.0f));
    return {_mm_movelh_ps(_mm_cvtpd_ps(log_modulus_single(x0, y0)),
                          _mm_cvtpd_ps(log_modulus_single(x1, y1))),
            _mm_movelh_ps(_mm_cvtpd_ps(atan2_la(y0, o0)), _mm_cvtpd_ps(atan2_la(y1, o1)))};
  }
};

// Ln z, LA: the modulus of HA, see cln.hpp, the angle of Atan2 LA. Bound: 2 ulp a part. Serves EP,
// too: the polynomial of Arctangent EP would take longer than the table.
struct LnLaZ : ComplexLn<double> {
  static constexpr char name[] = "vzLn";
  static constexpr int vectors = 1;

  ORK_INLINE Planes<f64x2> eval(const Planes<f64x2>& z, u32x4& rare) {
    const Octant<double> o(z.im, z.re);
    rare |= atan2_pair_rare(o);
    return {log_modulus(o, rare), atan2_la(z.im, o)};
  }
};

}  // namespace ork
