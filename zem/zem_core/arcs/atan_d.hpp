#pragma once
// The arctangent of a >= 0 in double, shared by Atan and Atan2:
// atan a = atan b + atan t, t = (a - b)/(1 + a b), atan t = t + t z Q(z), z = t^2.
// b = 0 below 0.125, else a with four mantissa bits kept and the next one set, at most 28.5;
// so |t| < 0.125.
#include "frame/kernel.hpp"

namespace ork {

alignas(16) inline constexpr double atan_rows[126][2] = {
#include "arcs/atan_rows_d.inc"
};

constexpr double pi_half = 1.5707963267948966, pi_half_low = 6.123233995736766e-17;

// b, with atan b = high + low. a: finite, >= 0.
ORK_INLINE f64x2 atan_break(f64x2 a, f64x2& high, f64x2& low) {
  // Of each lane's four 16-bit words only the top one is used: the row is their distance.
  const __m128i before = _mm_set_epi16(0x3FBF, -1, -1, -1, 0x3FBF, -1, -1, -1);
  const __m128i last = _mm_set_epi16(125, 0, 0, 0, 125, 0, 0, 0);
  const __m128i j = _mm_min_epi16(_mm_subs_epu16(as<__m128i>(a), before), last);
  const __m128i middle = _mm_set_epi16(0x3FBF, -0x8000, 0, 0, 0x3FBF, -0x8000, 0, 0);
  const f64x2 b = as<f64x2>(_mm_add_epi16(j, middle));
  const __m128i offset = _mm_slli_epi16(j, 4);
  const char* const rows = (const char*)atan_rows;
  const f64x2 row0 = *(const f64x2*)(rows + _mm_extract_epi16(offset, 3));
  const f64x2 row1 = *(const f64x2*)(rows + _mm_extract_epi16(offset, 7));
  high = _mm_unpacklo_pd(row0, row1);
  low = _mm_unpackhi_pd(row0, row1);
  return _mm_and_pd(b, _mm_cmple_pd(splat(0.125), a));
}

// t z Q(z) = atan t - t for |t| <= 0.125. Q is frozen, of degree 6: relative error of atan 2^-61.8.
ORK_INLINE f64x2 atan_tail(f64x2 t) {
  const f64x2 z = t * t;
  return t * (z * (-0.3333333333333333 +
                   z * (0.19999999999994408 +
                        z * (-0.1428571428262597 +
                             z * (0.11111110301985087 +
                                  z * (-0.0909079559611586 +
                                       z * (0.07683539769703819 + z * -0.06313688776899645)))))));
}

// t P(t^2) for |t| <= 1. P is frozen, of degree 9: relative error 2^-28.6.
ORK_INLINE f64x2 atan_ep(f64x2 t) {
  const f64x2 z = t * t, w = z * z, v = w * w;
  const f64x2 p01 = 0.99999999759644054 + z * -0.33333283021381682;
  const f64x2 p23 = 0.19998247736726771 + z * -0.14261727144416822;
  const f64x2 p45 = 0.10940879001422719 + z * -0.083737221671148637;
  const f64x2 p67 = 0.05748661919552888 + z * -0.030735388968257352;
  const f64x2 p89 = 0.010687668252723471 + z * -0.001744677935340833;
  return t * ((p01 + w * p23) + v * ((p45 + w * p67) + v * p89));
}

}  // namespace ork
