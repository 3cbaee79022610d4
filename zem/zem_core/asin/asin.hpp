#pragma once
// What Asin and Acos share, double and single. a = |x|:
//   a < 0.5   y = a^2, v = a;   else   y = z = (1 - a)/2, v = 2 sqrt z
//   K = v + v y P(y): asin a, and for the second case acos a.
// A level gives P, the root and, at HA, v and K in high and low parts.
#include "frame/kernel.hpp"

namespace ork {

ORK_INLINE f64x2 less(f64x2 x, f64x2 y) { return _mm_cmplt_pd(x, y); }
ORK_INLINE f32x4 less(f32x4 x, f32x4 y) { return _mm_cmplt_ps(x, y); }
ORK_INLINE f64x2 not_below_or_equal(f64x2 x, f64x2 y) { return _mm_cmpnle_pd(x, y); }
ORK_INLINE f32x4 not_below_or_equal(f32x4 x, f32x4 y) { return _mm_cmpnle_ps(x, y); }
ORK_INLINE f64x2 where_nonzero(f64x2 z, f64x2 x) { return _mm_and_pd(_mm_cmpneq_pd(z, splat(0.0)), x); }
ORK_INLINE f32x4 where_nonzero(f32x4 z, f32x4 x) { return _mm_and_ps(_mm_cmpneq_ps(z, splat(0.0f)), x); }
ORK_INLINE f64x2 smaller(f64x2 x, f64x2 y) { return _mm_min_pd(x, y); }
ORK_INLINE f32x4 smaller(f32x4 x, f32x4 y) { return _mm_min_ps(x, y); }

// 1/sqrt z to 12 bits; 0 for z = 0, which makes the root 0, too.
ORK_INLINE f64x2 root_estimate(f64x2 z) {
  return where_nonzero(z, _mm_cvtps_pd(rsqrt_est(_mm_cvtpd_ps(z))));
}
ORK_INLINE f32x4 root_estimate(f32x4 z) { return where_nonzero(z, rsqrt_est(z)); }

// 2 sqrt z = S (1 + w/2)^(-1/2) with S = 2 z rsqrt z, w = S rsqrt z - 2, |w| < 1.5e-3.
// Degree 2 in w is good to 2^-33, degree 4 to 2^-53. Constants: given.
template <int degree> ORK_INLINE f64x2 twice_root(f64x2 z, f64x2 estimate) {
  const f64x2 s = (z + z) * estimate, w = s * estimate - 2.0;
  if constexpr (degree == 2)
    return s - s * (w * (0.24999999999999725 + w * -0.09374999999999499));
  else
    return s - s * (w * (0.24999999999999725 + w * (-0.09374999999999499 +
                    w * (0.039062512973409326 + w * -0.017089852669219818))));
}
template <int> ORK_INLINE f32x4 twice_root(f32x4 z, f32x4 estimate) {
  const f32x4 s = (z + z) * estimate, w = s * estimate - 2.0f;
  return s - s * (w * (0.25000003f + w * -0.0937500298f));
}

// P(y) on [0, 0.25].
inline constexpr double asin_rest_d[] = {
#include "asin/poly_d.inc"
};
ORK_INLINE f64x2 asin_poly(f64x2 y) {
  const double* const c = asin_rest_d;
  f64x2 p = splat(c[8]);
#pragma GCC unroll 8
  for (int n = 7; n >= 0; --n) p = c[n] + y * p;
  return 0.16666666666664731 + y * (0.075000000004254969 + y * (0.044642856775805428 + y * p));
}
// Relative error of asin 2^-28. Constants: given.
ORK_INLINE f64x2 asin_poly_ep(f64x2 y) {
  const f64x2 w = y * y;
  return (0.16666656768980395 + y * 0.075006122693918847) + w * ((0.044501696981026712 +
         y * 0.031911494806822795) + w * (0.014101564261929104 + y * 0.037936060488222831));
}
ORK_INLINE f64x2 asin_poly_ha(f64x2 y) { return asin_poly(y); }
inline constexpr float asin_ha_s[] = {
#include "asin/poly_s_ha.inc"
};
ORK_INLINE f32x4 asin_poly_ha(f32x4 y) {
  const float* const c = asin_ha_s;
  return c[0] + y * (c[1] + y * (c[2] + y * (c[3] + y * (c[4] + y * (c[5] + y * c[6])))));
}
// Relative error of asin 2^-27. Constants: given.
ORK_INLINE f32x4 asin_poly(f32x4 y) {
  return 0.166667923f + y * (0.0749436766f + y * (0.0455576926f + y * (0.0238239374f +
         y * 0.0426903032f)));
}

// The parts of the angles, high and low.
template <class T> struct Angle;
template <> struct Angle<double> {
  static constexpr double half = 1.5707963267948966, half_low = 6.123233995736766e-17;
  static constexpr double whole = 3.141592653589793, whole_low = 1.2246467991473532e-16;
};
template <> struct Angle<float> {
  static constexpr float half = 1.57079637f, half_low = -4.37113883e-8f;
  static constexpr float whole = 3.14159274f, whole_low = -8.74227766e-8f;
};

// K = v + rest in one word, or K = high + (low + rest). add: base + K, base being 0 or an
// angle above K, `sign` the sign bits to flip in K.
template <class T, bool ep> struct AsinShort {
  using vec = vec_of<T>;
  using ivec = typename simd<T>::ivec;
  vec v, rest;
  vec add(vec base, vec base_low, ivec sign) const {
    const vec head = xor_bits(v, sign), low = xor_bits(rest, sign);
    // In double the angle's low word is half an ulp of the results below 1.
    if constexpr (sizeof(T) == 8 && !ep)
      return base + (head + (low + base_low));
    else
      return (base + head) + low;
  }
};
template <class T> struct AsinLong {
  using vec = vec_of<T>;
  using ivec = typename simd<T>::ivec;
  vec high, low, rest;
  vec add(vec base, vec base_low, ivec sign) const {
    const vec h = xor_bits(high, sign), sum = base + h;
    const vec lost = (base - sum) + h;  // exact: |base| >= |h| or base = 0
    return sum + (((xor_bits(low, sign) + lost) + base_low) + xor_bits(rest, sign));
  }
};

template <class T> ORK_INLINE vec_of<T> asin_variable(vec_of<T> a, vec_of<T>& z, vec_of<T>& y) {
  z = T(0.5) * -a + T(0.5);
  y = smaller(a * a, z);
  return less(a, splat(T(0.5)));
}

template <int degree, class T> ORK_INLINE AsinShort<T, degree == 2> asin_short(vec_of<T> a, vec_of<T>& inner) {
  using vec = vec_of<T>;
  vec z, y;
  inner = asin_variable<T>(a, z, y);
  const vec v = select(inner, a, twice_root<degree>(z, root_estimate(z)));
  if constexpr (degree == 2 && sizeof(T) == 8)
    return {v, v * (y * asin_poly_ep(y))};
  else
    return {v, v * (y * asin_poly(y))};
}

// s = 2 sqrt z is split as high + low with high^2 and high * upper exact; what s^2 misses of
// 4 z goes into low, a rsqrt estimate being enough to divide by.
template <class T> ORK_INLINE AsinLong<T> asin_long(vec_of<T> a, vec_of<T>& inner) {
  using vec = vec_of<T>;
  using ivec = typename simd<T>::ivec;
  constexpr bool d = sizeof(T) == 8;
  const ivec split = ivec{} + (bits_of<T>)(d ? 0xFFFFFFFFFC000000 : 0xFFFFF000);
  const ivec upper_split = ivec{} + (bits_of<T>)(d ? 0xFFFFFF8000000000 : 0xFFFFF000);
  vec z, y;
  inner = asin_variable<T>(a, z, y);
  const vec estimate = root_estimate(z), s = twice_root<4>(z, estimate);
  const vec high = and_bits(s, split), low = s - high;
  vec miss = T(4) * z;
  if constexpr (d) {  // high has 27 bits: its square takes 54
    const vec upper = and_bits(high, upper_split);
    miss = (miss - high * upper) - high * (high - upper);
  } else {
    miss -= high * high;
  }
  miss -= low * (s + high);
  const vec s_low = low + miss * (T(0.25) * estimate);
  const vec a_high = and_bits(a, split);
  const vec v = select(inner, a, s);
  return {select(inner, a_high, high),
          select(inner, a - a_high, s_low), v * (y * asin_poly_ha(y))};
}

struct AsinEp {
  template <class T> static AsinShort<T, true> value(vec_of<T> a, vec_of<T>& inner) { return asin_short<2, T>(a, inner); }
};
struct AsinLa {
  template <class T> static AsinShort<T, false> value(vec_of<T> a, vec_of<T>& inner) { return asin_short<4, T>(a, inner); }
};
struct AsinHa {
  template <class T> static AsinLong<T> value(vec_of<T> a, vec_of<T>& inner) { return asin_long<T>(a, inner); }
};

// A lane with |x| > 1 or a NaN.
template <class T> int asin_rare(const T* x, T* r) {
  constexpr bits_of<T> infinity = bits_of<T>(sizeof(T) == 8 ? 0x7FF : 0xFF) << (sizeof(T) == 8 ? 52 : 23);
  const bits_of<T> magnitude = as<bits_of<T>>(*x) & ~bits_of<T>(0) >> 1;
  if (magnitude >= infinity) {
    *r = *x / *x;
    return magnitude > infinity ? 0 : ZEM_STATUS_DOMAIN;
  }
  volatile T zero = 0;
  *r = zero / zero;
  return ZEM_STATUS_DOMAIN;
}

// Asin: K below 0.5, pi/2 - K above, with the sign of x. Rare: |x| > 1, NaN.
template <class T, class Level> struct Asin : Core<T> {
  using vec = vec_of<T>;
  using ivec = typename simd<T>::ivec;
  static constexpr char name[] = {'v', sizeof(T) == 8 ? 'd' : 's', 'A', 's', 'i', 'n', 0};
  ORK_INLINE vec eval(vec x, u32x4& rare) {
    const ivec sign = as<ivec>(splat(T(-0.0)));
    const vec a = abs(x);
    rare |= as<u32x4>(not_below_or_equal(a, splat(T(1))));
    vec inner;
    const auto k = Level::template value<T>(a, inner);
    const ivec outer = ~as<ivec>(inner);
    const vec m = k.add(and_bits(splat(Angle<T>::half), outer), and_bits(splat(Angle<T>::half_low), outer), sign & outer);
    return or_bits(m, as<ivec>(x) & sign);
  }
  static int special(const T* x, T* r) { return asin_rare(x, r); }
};

// Acos: pi/2 - asin x below 0.5; above, K for x > 0 and pi - K for x < 0. Rare: as Asin.
template <class T, class Level> struct Acos : Core<T> {
  using vec = vec_of<T>;
  using ivec = typename simd<T>::ivec;
  static constexpr char name[] = {'v', sizeof(T) == 8 ? 'd' : 's', 'A', 'c', 'o', 's', 0};
  ORK_INLINE vec eval(vec x, u32x4& rare) {
    const ivec sign = as<ivec>(splat(T(-0.0)));
    const vec a = abs(x);
    rare |= as<u32x4>(not_below_or_equal(a, splat(T(1))));
    vec inner;
    const auto k = Level::template value<T>(a, inner);
    const ivec below = as<ivec>(less(x, splat(T(0)))) & ~as<ivec>(inner);
    const auto base = [&](T half, T whole) {
      return as<vec>((as<ivec>(inner) & as<ivec>(splat(half))) | (below & as<ivec>(splat(whole))));
    };
    return k.add(base(Angle<T>::half, Angle<T>::whole), base(Angle<T>::half_low, Angle<T>::whole_low),
                 (as<ivec>(x) ^ as<ivec>(inner)) & sign);
  }
  static int special(const T* x, T* r) { return asin_rare(x, r); }
};

}  // namespace ork
