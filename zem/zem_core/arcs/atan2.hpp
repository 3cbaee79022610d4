#pragma once
// Atan2, what its kernels share. q = min(|y|, |x|)/max(|y|, |x|), and atan q is put into its
// octant: base + (+-atan q), then the sign of y.
#include "arcs/atan_d.hpp"
#include "frame/block.hpp"
#include "frame/chunk.hpp"
#include "ork/zem_kernels.h"

namespace ork {

ORK_INLINE f64x2 least(f64x2 x, f64x2 y) { return _mm_min_pd(x, y); }
ORK_INLINE f32x4 least(f32x4 x, f32x4 y) { return _mm_min_ps(x, y); }
ORK_INLINE f64x2 greatest(f64x2 x, f64x2 y) { return _mm_max_pd(x, y); }
ORK_INLINE f32x4 greatest(f32x4 x, f32x4 y) { return _mm_max_ps(x, y); }

template <class T>
struct Octant {
  using vec = vec_of<T>;
  using ivec = typename simd<T>::ivec;
  vec small, large;    // large: 1 in the lanes of 0/0
  vec base, base_low;  // 0, pi/2 or pi
  ivec flip;           // sign bits to flip in atan q
  ivec zero;           // lanes of 0/0, by a comparison of numbers: denormals may count as zeros

  Octant(vec y, vec x) {
    const vec ay = abs(y), ax = abs(x);
    const ivec steep = (ivec)(ax < ay), left = (ivec)(x < T(0)), level = left & ~steep;
    const auto either = [&](T half, T whole) {
      return as<vec>((steep & as<ivec>(splat(half))) | (level & as<ivec>(splat(whole))));
    };
    constexpr bool d = sizeof(T) == 8;
    // Of a NaN: |y| is `small`, |x| is `large`.
    zero = (ivec)(y == T(0)) & (ivec)(x == T(0));
    small = least(ax, ay), large = or_bits(greatest(ay, ax), zero & as<ivec>(splat(T(1))));
    base = either(T(1.5707963267948966), T(3.141592653589793));
    base_low = either(d ? T(6.123233995736766e-17) : T(-4.37113883e-8),
                      d ? T(1.2246467991473532e-16) : T(-8.74227766e-8));
    flip = (steep ^ left) & as<ivec>(splat(T(-0.0)));
  }
};

// Infinities, NaNs and `zero`, the lanes of 0/0.
ORK_INLINE u32x4 atan2_rare(f64x2 y, f64x2 x, u32x4 zero) {
  const u32x4 ay = as<u32x4>(abs(y)), ax = as<u32x4>(abs(x));
  return (splat_u32(0x7FEFFFFF) - ay) | (splat_u32(0x7FEFFFFF) - ax) | zero;
}
ORK_INLINE u32x4 atan2_rare(f32x4 y, f32x4 x, u32x4 zero) {
  const u32x4 ay = as<u32x4>(abs(y)), ax = as<u32x4>(abs(x));
  return (0x7F7FFFFF - ay) | (0x7F7FFFFF - ax) | zero;
}

// The special values, in C99's order of cases.
template <class T>
int atan2_special(const T* y, const T* x, T* r) {
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

// atan q = atan b + atan t with b = k/64 nearest to q, t = (q - b)/(1 + q b), |t| <= 1/128.
alignas(16) inline constexpr double atan_steps[65][2] = {
#include "arcs/atan_steps_d.inc"
};

// b, with atan b = high + low. A NaN counts as 1.
ORK_INLINE f64x2 atan_step(f64x2 q, f64x2& high, f64x2& low) {
  const f64x2 shifter = splat(0x1.8p46);  // leaves k in the low bits
  const f64x2 k = _mm_min_pd(q, splat(1.0)) + shifter;
  const auto row = [](int j) { return atan_steps[j]; };
  gather_pairs(row(word<0>(k)), row(word<4>(k)), high, low);
  return k - shifter;
}

// Double: the roundings of q and t and the last sums are the errors that count, 2 ulp in all. The
// series of atan t is good to 2^-59.
ORK_INLINE f64x2 atan2_la(f64x2 y, const Octant<double>& o) {
  const f64x2 q = o.small / o.large;
  f64x2 high, low;
  const f64x2 b = atan_step(q, high, low), t = (q - b) / (1.0 + q * b), z = t * t;
  const f64x2 series = z * (ratio<-1, 3> + z * (ratio<1, 5> + z * ratio<-1, 7>));
  const f64x2 rest = t + (low + t * series);
  return or_bits((o.base + xor_bits(high, o.flip)) + xor_bits(rest, o.flip),
                 as<u64x2>(y) & sign_f64x2);
}

// atan2 of a lane by the x87's instruction, rounded once more to T.
ORK_INLINE void fpatan(const double* y, const double* x, double* r) {
  asm("fldl %1\n\tfldl %2\n\tfpatan\n\tfstpl %0" : "=m"(*r) : "m"(*y), "m"(*x));
}
ORK_INLINE void fpatan(const float* y, const float* x, float* r) {
  asm("flds %1\n\tflds %2\n\tfpatan\n\tfstps %0" : "=m"(*r) : "m"(*y), "m"(*x));
}

}  // namespace ork
