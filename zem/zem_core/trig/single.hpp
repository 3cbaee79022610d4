#pragma once
// Four singles as two pairs of doubles, and back.
#include "trig/bits.hpp"

namespace ork::trig {

struct Widened {
  f64x2 low, high;
};
ORK_INLINE Widened widen(f32x4 x) { return {_mm_cvtps_pd(x), _mm_cvtps_pd(_mm_movehl_ps(x, x))}; }
ORK_INLINE f32x4 narrow(f64x2 low, f64x2 high) {
  return _mm_movelh_ps(_mm_cvtpd_ps(low), _mm_cvtpd_ps(high));
}

// The low words of four doubles: of t = n + 1.5 * 2^52, the integers n.
ORK_INLINE f32x4 low_words(f64x2 low, f64x2 high) {
  return _mm_shuffle_ps(as<f32x4>(low), as<f32x4>(high), 0x88);
}

}  // namespace ork::trig
