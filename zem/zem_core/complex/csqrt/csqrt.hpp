#pragma once
// Sqrt of complex vectors: |z| = r, u = (|x| + r)/2; the larger part is sqrt(u), the other |y|/2
// over it; they change places for x < 0, and the imaginary part has the sign of y. Rare lanes go to
// the scalar.
#include "frame/block.hpp"
#include "heap/complex/element.hpp"

namespace ork {

template <class R>
struct ComplexSqrt : OfScalar<R, ork_zem_kernel_csqrt_scalar, false> {
  static constexpr Csr csr = Csr::from_mode;
};

// Larger and smaller part to the real and the imaginary one.
template <class V>
ORK_INLINE Planes<V> place_roots(V large, V small, const Planes<V>& z) {
  const auto left = (z.re < V{});
  const V re = select(left, small, large), im = select(left, large, small);
  if constexpr (sizeof(z.re[0]) == 8)
    return {re, or_bits(im, as<u64x2>(z.im) & sign_f64x2)};
  else
    return {re, or_bits(im, as<u32x4>(z.im) & sign_f32x4)};
}

// Single, in double: no square leaves the range, and the roundings are 2^-51 in all.
struct SqrtS : ComplexSqrt<float> {
  static constexpr char name[] = "vcSqrt";
  static constexpr int vectors = 1;

  ORK_INLINE void half(f64x2 x, f64x2 y, f64x2& large, f64x2& small) {
    const f64x2 u = 0.5 * x + 0.5 * sqrt(x * x + y * y);
    large = sqrt(u);
    small = 0.5 * y / _mm_max_pd(large, splat(0x1p-200));  // 0/0 in no rare lane
  }
  ORK_INLINE Planes<f32x4> eval(const Planes<f32x4>& z, u32x4& rare) {
    const f32x4 x = ork::abs(z.re), y = ork::abs(z.im);
    // Infinite, a NaN, or both zero or denormal, which the mode word may take for zero.
    rare |= not_finite(x) | not_finite(y) | ((as<u32x4>(x) | as<u32x4>(y)) - splat_u32(0x00800000));
    f64x2 l0, l1, s0, s1;
    half(_mm_cvtps_pd(x), _mm_cvtps_pd(y), l0, s0);
    half(_mm_cvtps_pd(_mm_movehl_ps(x, x)), _mm_cvtps_pd(_mm_movehl_ps(y, y)), l1, s1);
    const f32x4 large = _mm_movelh_ps(_mm_cvtpd_ps(l0), _mm_cvtpd_ps(l1));
    const f32x4 small = _mm_movelh_ps(_mm_cvtpd_ps(s0), _mm_cvtpd_ps(s1));
    return place_roots(large, small, z);
  }
};

}  // namespace ork
