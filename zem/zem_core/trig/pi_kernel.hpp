#pragma once
// Sine and cosine by reduction modulo pi and one odd polynomial, no table.
//   sin x: n = round(|x| / pi),            r = |x| - n pi,         sin x = +-(-1)^n sin r
//   cos x: n = round((|x| + pi/2) / pi),   r = |x| - (n - 1/2) pi, cos x = (-1)^n sin r
//   pi in parts so short that n times all but the last is exact, |r| <= pi/2
//   sin r = r + r^3 (c_0 + c_1 r^2 + ...)
// On |x|, so that a zero keeps its sign. `Constants` has type, inverse, half_pi, shifter, parts, c.
#include "base/round.hpp"
#include "frame/kernel.hpp"
#include "trig/bits.hpp"
#include "trig/scalar.hpp"

namespace ork::trig {

template <class V>
struct ModuloPi {
  V r, sign;
};

// With four parts, the last two are subtracted as a sum, and then its rounding error: one
// rounding where r is large, and nothing lost where it is small.
template <class C, class V>
ORK_INLINE V subtract_parts(V ax, V n) {
  const V r = ax - n * splat(C::parts[0]) - n * splat(C::parts[1]), third = n * splat(C::parts[2]);
  if constexpr (sizeof C::parts == 3 * sizeof C::parts[0]) {
    return r - third;
  } else {
    const V fourth = n * splat(C::parts[3]), sum = third + fourth;
    return (r - sum) - ((third - sum) + fourth);
  }
}

// What sine and cosine differ in: r of ax >= 0, and t with n in its low bits; whether the sign of
// the argument is that of the result; from where on a double is large (the cosine's n has a bit
// more).
struct Sine {
  static constexpr double (*routine)(double) = _dSin;
  static constexpr uint32_t limit = 0x41700000;  // 2^24
  template <class C, class V>
  ORK_INLINE V remainder(V ax, V& t) {
    t = ax * splat(C::inverse) + splat(C::shifter);
    return subtract_parts<C>(ax, t - splat(C::shifter));
  }
  template <class V>
  ORK_INLINE V sign(V n, V x) {
    return flip(n, sign_of(x));
  }
};
struct Cosine {
  static constexpr double (*routine)(double) = _dCos;
  static constexpr uint32_t limit = 0x41600000;  // 2^23
  template <class C, class V>
  ORK_INLINE V remainder(V ax, V& t) {
    t = (ax + splat(C::half_pi)) * splat(C::inverse) + splat(C::shifter);
    return subtract_parts<C>(ax, (t - splat(C::shifter)) - splat(typename C::type(0.5)));
  }
  template <class V>
  ORK_INLINE V sign(V n, V) {
    return n;
  }
};

template <class F, class C, class V>
ORK_INLINE ModuloPi<V> reduce(V x) {
  V t;
  const V r = F::template remainder<C>(abs(x), t);
  return {r, F::sign(parity(t), x)};
}

// c_0 + c_1 z + ...
template <class C, class V>
ORK_INLINE V polynomial(V z) {
  constexpr int count = sizeof C::c / sizeof C::c[0];
  V p = splat(C::c[count - 1]);
#pragma GCC unroll 8
  for (int k = count - 2; k >= 0; --k) p = p * z + splat(C::c[k]);
  return p;
}

// Nothing above 1 comes out: in double the polynomials pass it next to pi/2.
ORK_INLINE f64x2 up_to_1(f64x2 y) { return _mm_min_pd(_mm_max_pd(y, splat(-1.0)), splat(1.0)); }
ORK_INLINE f32x4 up_to_1(f32x4 y) { return y; }

template <class C, class V>
ORK_INLINE V odd_sine(const ModuloPi<V>& x) {
  const V z = x.r * x.r, p = polynomial<C>(z);
  if constexpr (requires { C::head; }) {
    const V cube = z * x.r;
    return flip(up_to_1(x.r + (cube * p + cube * splat(C::head))), x.sign);
  } else {
    return flip(up_to_1(x.r + z * x.r * p), x.sign);
  }
}

// Double, EP: relative error of the polynomial 6.1e-9.
struct PiEpD {
  using type = double;
  static constexpr double inverse = 0.31830988618379069, half_pi = 1.5707963267948966,
                          shifter = integer_shifter<double>;
  static constexpr double parts[] = {3.1415925025939941, 1.5099578831723193e-07,
                                     1.0780605716316238e-14};
  static constexpr double c[] = {-0.16666659550427829, 0.0083330662460856901,
                                 -0.00019809602902257352, 2.605780638722852e-06};
};

// Double, LA: relative error of the polynomial 1.9e-16. Of the first coefficient, -1/8 is
// multiplied exactly, so that the roundings of the sum count for a sixth: 0.3 ulp less.
struct PiLaD : PiEpD {
  static constexpr double parts[] = {3.1415925025939941, 1.5099578831723193e-07,
                                     1.078060505991553e-14, 6.5640070857470009e-22};
  static constexpr double head = -0.125;
  static constexpr double c[] = {-0.16666666666666186 - head, 0.0083333333332855416,
                                 -0.00019841269825056256,     2.7557316600552628e-06,
                                 -2.5051880273862881e-08,     1.6048095404959637e-10,
                                 -7.3733445331106646e-13};
};

#include "trig/sine_fits.inc"

// Single, LA: error of the polynomial below 0.1 ulp (fit). pi in parts of 8, 11 and 11 bits and the
// rest.
struct PiLaS {
  using type = float;
  static constexpr float inverse = 0.318309873f, half_pi = 1.57079637f,
                         shifter = integer_shifter<float>;
  static constexpr float parts[] = {3.140625f, 0.00096750259f, 0x1.444p-23f, 5.1266883e-12f};
  static constexpr float c[] = {sine_s1, sine_s2, sine_s3, sine_s4};
};

// Single, EP: relative error of the polynomial 6e-9; 1.509958e-07 is all that the first
// two parts leave.
struct PiEpS : PiLaS {
  static constexpr float parts[] = {3.140625f, 0.00096750259f, 1.509958e-07f};
  static constexpr float c[] = {-0.1666666f, 0.0083330665f, -0.00019809602f, 2.6057805e-06f};
};

}  // namespace ork::trig
