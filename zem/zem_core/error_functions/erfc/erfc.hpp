#pragma once
// Erfc: erfc(|x|) = exp(-x^2) g_i(t), t = |x| - x_i, x_i the left end of a quarter of a binade
// (row 0: all below 0.25), g polynomials near exp(x^2) erfc(x). x < 0 gives 2 - erfc(|x|).
// -x^2 = N ln 2/128 + r, exp(-x^2) = 2^k T_j exp(r), N = 128 k + j.
// Rare: from where erfc is below the normal range (all of these report it), and NaN.
#include "base/round.hpp"
#include "error_functions/inverse.hpp"

namespace ork {

struct ErfcPower {
  double high, low;
};
alignas(16) inline constexpr ErfcPower erfc_powers[128] = {
#include "error_functions/erfc/powers.inc"
};
inline constexpr double erfc_powers_s[128] = {
#include "common/exp_power128_d.inc"
};

// N, with k at the place of an exponent field, and j.
struct ErfcSteps {
  f64x2 n;
  u64x2 k;
  int j[2];
  __attribute__((always_inline)) explicit ErfcSteps(f64x2 square) {
    const f64x2 shifted = square * -184.66496523378731 + integer_shifter<double>;
    n = shifted - integer_shifter<double>;
    const u32x4 image = as<u32x4>(shifted), row = image & 127;
    k = as<u64x2>(image & u32x4{0xFFFFFF80, 0, 0xFFFFFF80, 0}) << 45;
    j[0] = word<0>(row), j[1] = word<4>(row);
  }
};

// x^2 = x_hi^2 + rest; exp(-x^2) = scale (T + T_low) exp(r), the scale being 2^k times 2^154. Both
// are 0 but in the lanes of `kept`: far beyond the fast range they might raise flags.
struct ErfcExp {
  f64x2 r, t, t_low, scale;
  __attribute__((always_inline)) ErfcExp(f64x2 x_hi, f64x2 rest, u64x2 kept) {
    const f64x2 square = x_hi * x_hi;  // exact
    const ErfcSteps s(square);
    r = and_bits(((s.n * -0.0054152123630046844 - square) - rest) - s.n * -1.4880111718420063e-11,
                 kept);
    scale = as<f64x2>((s.k + splat_u64((uint64_t)(1023 + 154) << 52)) & kept);
    gather_pairs(&erfc_powers[s.j[0]].high, &erfc_powers[s.j[1]].high, t, t_low);
  }
};

// Row and t of |x|.
template <int last, int columns>
ORK_INLINE f64x2 erfc_row(const double (*table)[columns], f64x2 ax, const double*& p0,
                          const double*& p1) {
  const __m128i row = _mm_min_epi16(
      _mm_max_epi16(_mm_sub_epi16(as<__m128i>(as<u64x2>(ax) >> 50), _mm_set1_epi16(0xFF3)),
                    _mm_setzero_si128()),
      _mm_set1_epi16(last));
  p0 = table[word<0>(row)];
  p1 = table[word<4>(row)];
  const u64x2 beyond = (u64x2)(ax >= 0.25);
  return ax - and_bits(ax, beyond & splat_u64(0x7FFC000000000000));
}

ORK_INLINE u64x2 sign_of(f64x2 x) { return as<u64x2>(x) & sign_f64x2; }
// B of the last sum: `two` where x has a sign, else 0.
ORK_INLINE f64x2 erfc_base(f64x2 x, double two) {
  return and_bits(splat(two), (u64x2)((i32x4)high_words(x) >> 31));
}

// One rare element: eval is the vector formula, which serves up to `reach`.
template <class T>
inline int erfc_special(const T* a, T* r, T reach, T underflow, T (*value)(T)) {
  const T x = *a, size = x < 0 ? -x : x;
  if (x != x) {
    *r = x + x;
    return 0;
  }
  *r = size < reach ? value(x) : x < 0 ? T(2) : T(0);
  return x > underflow && x <= (sizeof(T) == 8 ? T(__DBL_MAX__) : T(__FLT_MAX__))
             ? ZEM_STATUS_UNDERFLOW
             : ZEM_STATUS_NONE;
}

template <class Formula>
struct ErfcD : Core<double> {
  static constexpr char name[] = "vdErfc";
  ORK_INLINE f64x2 eval(f64x2 x, u32x4& rare) {
    const u32x4 far = outside(as<u32x4>(abs(x)), 0, 0x403A8B12);
    rare |= far;
    return Formula::value(x, ~as<u64x2>(high_words(as<f64x2>(far))));
  }
  static int special(const double* x, double* r) {
    return erfc_special<double>(x, r, 27.226017111108366, 26.543258454250978, [](double y) {
      return Formula::value(splat(y), splat_u64(~0ull))[0];
    });
  }
};

template <class Formula>
struct ErfcS : Core<float> {
  static constexpr char name[] = "vsErfc";
  static constexpr int vectors = 1;
  ORK_INLINE f32x4 value(f32x4 x) {
    const f32x4 low = _mm_cvtpd_ps(Formula::value(_mm_cvtps_pd(x)));
    const f32x4 high = _mm_cvtpd_ps(Formula::value(_mm_cvtps_pd(_mm_movehl_ps(x, x))));
    return _mm_movelh_ps(low, high);
  }
  ORK_INLINE f32x4 eval(f32x4 x, u32x4& rare) {
    rare |= outside(as<u32x4>(abs(x)), 0, 0x41131CE0);
    return value(x);
  }
  static int special(const float* x, float* r) {
    // The float after 0x4120DDFC, and the one before 0x41131CE0.
    return erfc_special<float>(x, r, as<float>(0x4120DDFDu), as<float>(0x41131CDFu),
                               [](float y) { return value(splat(y))[0]; });
  }
};

// Single, in double: x^2 is exact, T needs no low part, and 2^k T is normal.
template <class Level>
struct ErfcFormulaS {
  ORK_INLINE f64x2 value(f64x2 x) {
    const f64x2 ax = _mm_min_pd(abs(x), splat(20.0));
    const double *p0, *p1;
    const f64x2 t = erfc_row<22, Level::columns>(Level::table, ax, p0, p1);
    const f64x2 square = ax * ax;
    const ErfcSteps s(square);
    const f64x2 r = (s.n * -0.0054152123630046844 - square) - s.n * -1.4880111718420063e-11;
    const f64x2 power =
        as<f64x2>(as<u64x2>(gather(erfc_powers_s + s.j[0], erfc_powers_s + s.j[1])) + s.k);
    const f64x2 v = power * (Level::exp(r) * row_polynomial<Level::columns>(p0, p1, t));
    return erfc_base(x, 2.0) + xor_bits(v, sign_of(x));
  }
};

}  // namespace ork
