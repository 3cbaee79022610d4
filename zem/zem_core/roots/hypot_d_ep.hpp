#pragma once
#include "roots/hypot_special.hpp"

namespace ork {

// Double hypot, EP: y = a^2 + b^2, y z (1 + e (-1/2 + 3/8 e)) with z the 12-bit estimate of
// y^(-1/2) and e = y z^2 - 1: relative error 5/16 e^3 < 2^-31.
// Fast: the larger of |a|, |b| in [2^-60, 2^61), so that y is in the range of singles.
// hypot_scalar: the others, scaled by a power of two.
struct HypotEpD : Core<double, 2> {
  static constexpr char name[] = "vdHypot";

  ORK_INLINE f64x2 eval(f64x2 a, f64x2 b, u32x4& rare) {
    const u32x4 x = as<u32x4>(abs(a)), y = as<u32x4>(abs(b));
    rare |= (0x43BFFFFF - x) | (0x43BFFFFF - y) | ((x - 0x3C300000) & (y - 0x3C300000));
    // Held within [2^-120, 2^124) by its highest 16 bits, so that a rare lane raises no flag.
    const __m128i most = _mm_set1_epi64x(0x47AF7FFF7FFF7FFF),
                  least = _mm_set1_epi64x(0x3870800080008000);
    const __m128i sum = as<__m128i>(a * a + b * b);
    const f64x2 s = as<f64x2>(_mm_max_epi16(_mm_min_epi16(sum, most), least));
    const f64x2 z = _mm_cvtps_pd(rsqrt_est(_mm_cvtpd_ps(s)));
    const f64x2 root = s * z, e = root * z - 1.0;
    return root + root * (e * (-0.5 + e * 0.375));
  }
  static int special(const double* a, const double* b, double* r) {
    return hypot_scalar(a, b, r, [](double x, double y) {
      const double larger = __builtin_fabs(x);
      const double scale = larger > 0x1p500 ? 0x1p-600 : larger < 0x1p-400 ? 0x1p600 : 1.0;
      const double p = x * scale, q = y * scale;
      return sqrt(splat(p * p + q * q))[0] / scale;
    });
  }
};

}  // namespace ork
