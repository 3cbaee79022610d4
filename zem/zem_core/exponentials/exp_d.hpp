#pragma once
// Exp, double: e^x = 2^k 2^(j/N) e^r with n = round(x N/ln 2), r = x - n ln 2/N, j = n mod N,
// k = n div N, and p = e^r - 1 a polynomial.
// A level gives N, t and p by reduce(), 2^(j/N) (1 + p) as a sum by parts(), and combines it
// with the scale 2^k. Fast range: |x| below 708.396 by its high word, at LA and EP x above -670.1,
// so that no term of the scaled sum is denormal; beyond it exp_rare.
#include "base/image.hpp"
#include "base/round.hpp"
#include "common/exp_tables.hpp"
#include "frame/block.hpp"
#include "ork/zem_kernels.h"

namespace ork {

// HA, N = 64, |r| <= ln 2/128. v = T_hi + (T_lo + (T_hi + T_lo) p) is off by at most
// 0.51 ulp. p is frozen, of degree 5: e^r to 2^-59.2.
struct ExpHa {
  static constexpr int log2_n = 6;
  static constexpr double two_steps_from = 709.7772976810359;  // here k becomes 1024
  static constexpr bool nan_is_all_ones = true;
  // The range test: the high word of |centred(x)| up to `limit`. |x| below 708.396.
  static constexpr uint32_t limit = 0x4086232A;
  static f64x2 centred(f64x2 x) { return x; }

  static f64x2 reduce(f64x2 x, f64x2& t) {
    t = x * 92.33248261689366 + integer_shifter<double>;
    const f64x2 n = t - integer_shifter<double>;
    const f64x2 r = x - n * 0x1.62e42fefp-7 - n * 1.162596423439437e-12;
    return r + r * r *
                   horner(r, 0.49999999999945266, 0.16666666666653376, 0.04166672515731616,
                          0.008333343728805863);
  }
  static f64x2 parts(f64x2 t, f64x2 p, f64x2& hi) {
    const u32x4 row = (as<u32x4>(t) & 63) << 4;
    const char* const table = (const char*)exp_split64_d;
    f64x2 lo;
    gather_pairs((const double*)(table + row[0]), (const double*)(table + word<4>(row)), hi, lo);
    return lo + (hi + lo) * p;
  }
  static f64x2 combine(f64x2 t, f64x2 p, f64x2 scale) {
    f64x2 hi;
    const f64x2 lo = parts(t, p, hi);
    return (hi + lo) * scale;
  }
};

// LA and EP, N = 128, |r| <= ln 2/256: S + S p with S = 2^(n/128) of one OR.
struct ExpOneWord {
  static constexpr int log2_n = 7;
  static constexpr bool nan_is_all_ones = false;
  // -670.1 < x < 708.396, the difference below 689.25: above 2^-967, what of S p would be denormal
  // is below 2^-55 S.
  static constexpr uint32_t limit = 0x408589FF;
  static f64x2 centred(f64x2 x) { return x - 19.14599609375; }

  static u64x2 mantissa(f64x2 t) {
    const u32x4 j = as<u32x4>(t) & 127;
    const double* const table = (const double*)exp_mantissa128_d;
    return as<u64x2>(gather(table + j[0], table + word<4>(j)));
  }
  static f64x2 parts(f64x2 t, f64x2 p, f64x2& hi) {
    hi = or_bits(splat(1.0), mantissa(t));
    return hi * p;
  }
  static f64x2 combine(f64x2 t, f64x2 p, f64x2 scale) {
    const f64x2 s = or_bits(scale, mantissa(t));
    return s + s * p;
  }
};

// p of degree 4, frozen: e^r to 2^-51.5 for |r| <= ln 2/256.
struct ExpLa : ExpOneWord {
  static constexpr double two_steps_from = 709.78000528721;

  static f64x2 reduce(f64x2 x, f64x2& t) {
    t = x * 184.66496523378731 + integer_shifter<double>;
    const f64x2 n = t - integer_shifter<double>;
    const f64x2 r = x - n * 0x1.62e42feep-8 - n * 1.4907929134926466e-12;
    return r + r * r * horner(r, 0.49999999999998135, 0.16666671248624326, 0.041666679394326736);
  }
};

// p of degree 2, frozen: relative error r^3/6 <= 2^-28.2.
struct ExpEp : ExpOneWord {
  static constexpr double two_steps_from = 709.7772976810359;

  static f64x2 reduce(f64x2 x, f64x2& t) {
    t = x * 184.66496523378731 + integer_shifter<double>;
    const f64x2 n = t - integer_shifter<double>;
    const f64x2 r = x - n * 0x1.62e42fefa39efp-8;
    return r + 0.5 * (r * r);
  }
};

// One element beyond the fast range. x rises through the rows.
template <class Level>
int exp_rare(const double* a, double* out) {
  const uint64_t magnitude = ork::magnitude(a);
  if (magnitude > infinity_bits<double>) {
    const uint64_t quiet = Level::nan_is_all_ones ? ~0ull : image(a) | 0x0008000000000000;
    __builtin_memcpy(out, &quiet, sizeof quiet);
    return 0;
  }
  if (magnitude == infinity_bits<double>) {
    *out = sign(a) ? 0.0 : *a;
    return 0;
  }
  const double x = *a;
  if (x <= -745.1332191019412) {
    *out = 0.0;
    return ZEM_STATUS_UNDERFLOW;
  }
  if (x >= 709.7827128933841) {
    *out = __builtin_inf();
    return ZEM_STATUS_OVERFLOW;
  }
  f64x2 t, hi;
  const f64x2 p = Level::reduce(splat(x), t);
  const double lo = Level::parts(t, p, hi)[0];
  const int k = (int32_t)as<u32x4>(t)[0] >> Level::log2_n;
  const auto power_of_two = [](int e) { return as<double>((uint64_t)(e + 1023) << 52); };
  if (x <= -708.3964185322642) {
    // The sum is rounded once, where the last bit of a denormal will be: at 2^-52.
    const double up = power_of_two(k + 1022), high = hi[0] * up;
    const double s = 1.0 + high, rest = high - (s - 1.0) + lo * up;
    *out = (s + rest - 1.0) * power_of_two(-1022);
    return ZEM_STATUS_UNDERFLOW;
  }
  if (x >= Level::two_steps_from) {
    // EP's error may carry the largest results past the end of the range.
    const double y = (hi[0] + lo) * power_of_two(k - 1) * 2.0;
    *out = y < __DBL_MAX__ ? y : __DBL_MAX__;
    return 0;
  }
  *out = (hi[0] + lo) * power_of_two(k);
  return 0;
}

template <class Level>
struct ExpD : Core<double> {
  static constexpr char name[] = "vdExp";
  static f64x2 eval(f64x2 x, u32x4& rare) {
    f64x2 t;
    const f64x2 p = Level::reduce(x, t);
    // A rare lane takes 0 as its scale: another might be infinite and raise a flag.
    constexpr int none = 0x7FFFFFFF, limit = Level::limit;
    const i32x4 far = as<i32x4>(abs(Level::centred(x))) > i32x4{none, limit, none, limit};
    rare |= as<u32x4>(far);
    const u64x2 field = splat_u64(0x7FF0000000000000) & ~as<u64x2>(far);
    const u32x4 bias = {1023u << Level::log2_n, 0, 1023u << Level::log2_n, 0};
    const u64x2 k = as<u64x2>(as<u32x4>(t) + bias) << (52 - Level::log2_n);
    return Level::combine(t, p, as<f64x2>(k & field));
  }
  static int special(const double* x, double* r) { return exp_rare<Level>(x, r); }
};

}  // namespace ork
