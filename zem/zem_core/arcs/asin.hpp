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
ORK_INLINE f64x2 smaller(f64x2 x, f64x2 y) { return _mm_min_pd(x, y); }
ORK_INLINE f32x4 smaller(f32x4 x, f32x4 y) { return _mm_min_ps(x, y); }

// 1/sqrt z to 12 bits; finite for z = 0, so that z times it is 0. No other z is below 2^-54.
ORK_INLINE f32x4 root_estimate(f32x4 z) { return rsqrt_est(_mm_max_ps(z, splat(__FLT_MIN__))); }
ORK_INLINE f64x2 root_estimate(f64x2 z) {
  return _mm_cvtps_pd(root_estimate((f32x4)_mm_cvtpd_ps(z)));
}

// 2 sqrt z = S (1 + w/2)^(-1/2) with S = 2 z rsqrt z, w = S rsqrt z - 2, |w| < 1.5e-3.
// Frozen: degree 2 in w is good to 2^-32.8 of the root, degree 4 to 2^-55.5, in single 2^-33.4.
template <int degree>
ORK_INLINE f64x2 twice_root(f64x2 twice_z, f64x2 estimate) {
  const f64x2 s = twice_z * estimate, w = s * estimate - 2.0;
  if constexpr (degree == 2)
    return s - s * (w * (0.24999999999999725 + w * -0.09374999999999499));
  else
    return s - s * (w * (0.24999999999999725 +
                         w * (-0.09374999999999499 +
                              w * (0.039062512973409326 + w * -0.017089852669219818))));
}
ORK_INLINE f32x4 twice_root(f32x4 twice_z, f32x4 estimate) {
  const f32x4 s = twice_z * estimate, w = s * estimate - 2.0f;
  return s - s * (w * (0.25000003f + w * -0.0937500298f));
}

// P(y) on [0, 0.25].
inline constexpr double asin_rest_d[] = {
#include "arcs/asin_poly_d.inc"
};
ORK_INLINE f64x2 asin_poly(f64x2 y) {
  const double* const c = asin_rest_d - 3;
  const f64x2 w = y * y;
  const f64x2 even = 0.16666666666664731 +
                     w * (0.044642856775805428 + w * (c[4] + w * (c[6] + w * (c[8] + w * c[10]))));
  const f64x2 odd =
      0.075000000004254969 + w * (c[3] + w * (c[5] + w * (c[7] + w * (c[9] + w * c[11]))));
  return even + y * odd;
}
// Degree 5 in y <= 1/4, frozen: relative error of asin 2^-30.8.
ORK_INLINE f64x2 asin_poly_ep(f64x2 y) {
  const f64x2 w = y * y;
  return (0.16666656768980395 + y * 0.075006122693918847) +
         w * ((0.044501696981026712 + y * 0.031911494806822795) +
              w * (0.014101564261929104 + y * 0.037936060488222831));
}
// To 2^-32: for results that are rounded to single.
inline constexpr double asin_c[] = {
#include "arcs/asin_poly_s_ha.inc"
};
ORK_INLINE f64x2 asin_poly_single(f64x2 y) {
  const double* const c = asin_c;
  const f64x2 w = y * y;
  return (c[0] + w * (c[2] + w * c[4])) + y * (c[1] + w * (c[3] + w * c[5]));
}
// Degree 4 in y <= 1/4, frozen: relative error of asin 2^-26.7.
ORK_INLINE f32x4 asin_poly(f32x4 y) {
  return 0.166667923f +
         y * (0.0749436766f + y * (0.0455576926f + y * (0.0238239374f + y * 0.0426903032f)));
}

// The parts of the angles, high and low.
template <class T>
struct Angle;
template <>
struct Angle<double> {
  static constexpr double half = 1.5707963267948966, half_low = 6.123233995736766e-17;
  static constexpr double whole = 3.141592653589793, whole_low = 1.2246467991473532e-16;
};
template <>
struct Angle<float> {
  static constexpr float half = 1.57079637f, half_low = -4.37113883e-8f;
  static constexpr float whole = 3.14159274f, whole_low = -8.74227766e-8f;
};

// z = (1 - a)/2, as twice_z/2 and so exact from a = 0.5 on.
template <class T>
ORK_INLINE vec_of<T> asin_variable(vec_of<T> a, vec_of<T>& twice_z, vec_of<T>& y) {
  twice_z = T(1) - a;
  y = smaller(a * a, T(0.5) * twice_z);
  return less(a, splat(T(0.5)));
}

// K = v + rest. add: base + K, base being 0 or an angle above K, `sign` the sign bits to flip
// in K. In double the angle's low word is half an ulp of the results below 1.
template <class T, class Level>
struct AsinShort {
  using vec = vec_of<T>;
  using ivec = typename simd<T>::ivec;
  vec inner, v, rest;
  __attribute__((always_inline)) AsinShort(vec a, bool) {
    vec twice_z, y;
    inner = asin_variable<T>(a, twice_z, y);
    v = select(inner, a, Level::root(twice_z));
    rest = v * (y * Level::poly(y));
  }
  __attribute__((always_inline)) vec add(vec base, vec base_low, ivec sign) const {
    const vec head = xor_bits(v, sign), low = xor_bits(rest, sign);
    return Level::low_angle ? base + (head + (low + base_low)) : (base + head) + low;
  }
};

struct AsinEp {
  static constexpr bool low_angle = false;
  ORK_INLINE f64x2 root(f64x2 twice_z) {
    return twice_root<2>(twice_z, root_estimate(0.5 * twice_z));
  }
  ORK_INLINE f64x2 poly(f64x2 y) { return asin_poly_ep(y); }
  template <class T>
  using K = AsinShort<T, AsinEp>;
};
// The root of degree 2 would leave 2^-33 in double; sqrtpd is exact and no slower.
struct AsinLa {
  static constexpr bool low_angle = true;
  ORK_INLINE f64x2 root(f64x2 twice_z) { return sqrt(twice_z + twice_z); }
  ORK_INLINE f64x2 poly(f64x2 y) { return asin_poly(y); }
  template <class T>
  using K = AsinShort<T, AsinLa>;
};
struct AsinLaInSingle {
  static constexpr bool low_angle = false;
  ORK_INLINE f32x4 root(f32x4 twice_z) {
    return twice_root(twice_z, root_estimate(0.5f * twice_z));
  }
  ORK_INLINE f32x4 poly(f32x4 y) { return asin_poly(y); }
  template <class T>
  using K = AsinShort<T, AsinLaInSingle>;
};
struct AsinHaInDouble : AsinLa {  // double lanes for single results
  static constexpr bool low_angle = false;
  ORK_INLINE f64x2 poly(f64x2 y) { return asin_poly_single(y); }
  template <class T>
  using K = AsinShort<T, AsinHaInDouble>;
};

// K = high + (low + rest). s = 2 sqrt z is split with high^2 and high * upper exact; what s^2
// misses of 4 z goes into low, a rsqrt estimate being enough to divide by.
struct AsinLong {
  f64x2 inner, high, low, rest;
  // whole: where the low part of a is denormal and flushed, the high part is all of a.
  __attribute__((always_inline)) AsinLong(f64x2 a, bool whole) {
    const u64x2 split = splat_u64(0xFFFFFFFFFC000000), upper_split = splat_u64(0xFFFFFF8000000000);
    f64x2 twice_z, y;
    inner = asin_variable<double>(a, twice_z, y);
    const f64x2 estimate = root_estimate(0.5 * twice_z), s = twice_root<4>(twice_z, estimate);
    const f64x2 s_high = and_bits(s, split), s_low = s - s_high;  // 27 bits: the square takes 54
    const f64x2 upper = and_bits(s_high, upper_split);
    const f64x2 miss =
        (((twice_z + twice_z) - s_high * upper) - s_high * (s_high - upper)) - s_low * (s + s_high);
    const f64x2 a_high = and_bits(a, split), a_low = a - a_high, v = select(inner, a, s);
    high = select(inner, whole ? a - a_low : a_high, s_high);
    low = select(inner, a_low, s_low + miss * (0.25 * estimate));
    rest = v * (y * asin_poly(y));
  }
  __attribute__((always_inline)) f64x2 add(f64x2 base, f64x2 base_low, u64x2 sign) const {
    const f64x2 h = xor_bits(high, sign), sum = base + h;
    const f64x2 lost = (base - sum) + h;  // exact: |base| >= |h| or base = 0
    return sum + (((xor_bits(low, sign) + lost) + base_low) + xor_bits(rest, sign));
  }
};
struct AsinHa {
  template <class>
  using K = AsinLong;
};

// A lane with |x| > 1 or a NaN.
template <class T>
int asin_rare(const T* x, T* r) {
  constexpr bits_of<T> infinity = bits_of<T>(sizeof(T) == 8 ? 0x7FF : 0xFF)
                                  << (sizeof(T) == 8 ? 52 : 23);
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
template <class T, class Level>
struct Asin : Core<T> {
  using vec = vec_of<T>;
  using ivec = typename simd<T>::ivec;
  static constexpr char name[] = {'v', sizeof(T) == 8 ? 'd' : 's', 'A', 's', 'i', 'n', 0};
  ORK_INLINE vec eval(vec x, u32x4& rare) {
    const ivec sign = as<ivec>(splat(T(-0.0)));
    const vec a = abs(x);
    rare |= as<u32x4>(not_below_or_equal(a, splat(T(1))));
    const typename Level::template K<T> k(a, true);
    const ivec outer = ~as<ivec>(k.inner);
    const vec m = k.add(and_bits(splat(Angle<T>::half), outer),
                        and_bits(splat(Angle<T>::half_low), outer), sign & outer);
    return or_bits(m, as<ivec>(x) & sign);
  }
  static int special(const T* x, T* r) { return asin_rare(x, r); }
};

// Acos: pi/2 - asin x below 0.5; above, K for x > 0 and pi - K for x < 0. Rare: as Asin.
template <class T, class Level>
struct Acos : Core<T> {
  using vec = vec_of<T>;
  using ivec = typename simd<T>::ivec;
  static constexpr char name[] = {'v', sizeof(T) == 8 ? 'd' : 's', 'A', 'c', 'o', 's', 0};
  ORK_INLINE vec eval(vec x, u32x4& rare) {
    const ivec sign = as<ivec>(splat(T(-0.0)));
    const vec a = abs(x);
    rare |= as<u32x4>(not_below_or_equal(a, splat(T(1))));
    const typename Level::template K<T> k(a, false);
    const ivec inner = as<ivec>(k.inner), below = as<ivec>(less(x, splat(T(0)))) & ~inner;
    const auto base = [&](T half, T whole) {
      return as<vec>((inner & as<ivec>(splat(half))) | (below & as<ivec>(splat(whole))));
    };
    return k.add(base(Angle<T>::half, Angle<T>::whole),
                 base(Angle<T>::half_low, Angle<T>::whole_low), (as<ivec>(x) ^ inner) & sign);
  }
  static int special(const T* x, T* r) { return asin_rare(x, r); }
};

// Single HA: the four lanes through a double core with a short polynomial, rounded once.
template <class Wide>
struct InDouble : Core<float> {
  ORK_INLINE f32x4 eval(f32x4 x, u32x4& rare) {
    rare |= as<u32x4>(not_below_or_equal(abs(x), splat(1.0f)));
    u32x4 none{};
    const f64x2 low = Wide::eval(_mm_cvtps_pd(x), none),
                high = Wide::eval(_mm_cvtps_pd(_mm_movehl_ps(x, x)), none);
    return _mm_movelh_ps(_mm_cvtpd_ps(low), _mm_cvtpd_ps(high));
  }
  static int special(const float* x, float* r) { return asin_rare(x, r); }
};

}  // namespace ork
