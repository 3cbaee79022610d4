#pragma once
// Atan2, what its kernels share. q = min(|y|, |x|)/max(|y|, |x|), and atan q is put into its
// octant: base + (+-atan q), then the sign of y.
#include "atan/atan_d.hpp"
#include "frame/block.hpp"
#include "frame/chunk.hpp"
#include "ork/zem_kernels.h"

namespace ork {

template <class T> struct Octant {
  using vec = vec_of<T>;
  using ivec = typename simd<T>::ivec;
  vec small, large, base;
  ivec flip;  // sign bits to flip in atan q

  Octant(vec y, vec x) {
    const ivec sign = as<ivec>(splat(T(-0.0)));
    const vec ay = abs(y), ax = abs(x);
    const ivec steep = (ivec)(ax < ay), left = (ivec)(x < T(0));
    small = select(steep, ax, ay), large = select(steep, ay, ax);
    base = as<vec>((steep & as<ivec>(splat(T(1.5707963267948966)))) |
                   (left & ~steep & as<ivec>(splat(T(3.141592653589793)))));
    flip = (steep ^ left) & sign;
  }
};

// Infinities, NaNs and 0/0.
ORK_INLINE u32x4 atan2_rare(f64x2 y, f64x2 x) {
  const u32x4 ay = as<u32x4>(abs(y)), ax = as<u32x4>(abs(x));
  return (splat_u32(0x7FEFFFFF) - ay) | (splat_u32(0x7FEFFFFF) - ax) |
         as<u32x4>((f64x2)_mm_cmpeq_pd(_mm_or_pd(as<f64x2>(ay), as<f64x2>(ax)), splat(0.0)));
}
ORK_INLINE u32x4 atan2_rare(f32x4 y, f32x4 x) {
  const u32x4 ay = as<u32x4>(abs(y)), ax = as<u32x4>(abs(x));
  return (0x7F7FFFFF - ay) | (0x7F7FFFFF - ax) | as<u32x4>((f32x4)_mm_cmpeq_ps(as<f32x4>(ay | ax), splat(0.0f)));
}

// The special values, in C99's order of cases.
template <class T> int atan2_special(const T* y, const T* x, T* r) {
  constexpr T pi = T(3.141592653589793), infinity = __builtin_inf();
  const T ay = *y < 0 ? -*y : *y, ax = *x < 0 ? -*x : *x;
  const bool left = __builtin_signbit(*x);
  if (*y != *y || *x != *x) {
    *r = *y + *x;
    return 0;
  }
  T magnitude;
  if (ay == 0)
    magnitude = left ? pi : T(0);
  else if (ax == 0)
    magnitude = pi / 2;
  else if (ay == infinity)
    magnitude = ax != infinity ? pi / 2 : left ? T(2.356194490192345) : pi / 4;
  else
    magnitude = left ? pi : T(0);  // x infinite
  *r = __builtin_signbit(*y) ? -magnitude : magnitude;
  return 0;
}

// Double: q's rounding and that of t are the errors that count, 1.5 ulp in all.
ORK_INLINE f64x2 atan2_la(f64x2 y, f64x2 x) {
  const Octant<double> o(y, x);
  const f64x2 q = o.small / o.large;
  f64x2 high, low;
  const f64x2 b = atan_break(q, high, low), t = (q - b) / (1.0 + q * b);
  const f64x2 rest = t + (low + atan_tail(t));
  return or_bits((o.base + xor_bits(high, o.flip)) + xor_bits(rest, o.flip), as<u64x2>(y) & sign_f64x2);
}

// atan2 of a lane by the x87's instruction, rounded once more to T.
ORK_INLINE void fpatan(const double* y, const double* x, double* r) {
  asm("fldl %1\n\tfldl %2\n\tfpatan\n\tfstpl %0" : "=m"(*r) : "m"(*y), "m"(*x));
}
ORK_INLINE void fpatan(const float* y, const float* x, float* r) {
  asm("flds %1\n\tflds %2\n\tfpatan\n\tfstps %0" : "=m"(*r) : "m"(*y), "m"(*x));
}

}  // namespace ork
