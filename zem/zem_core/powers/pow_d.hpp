#pragma once
// Pow, double: a^b = 2^(b log2 a). With a = 2^k m, c near L/m, L = 1.44... the high part of log2 e,
// log2 a = k + log2(L/c) + log2(1 + w/L), w = m c - L, in two doubles, off by 2^-64 of itself.
// 2^q = 2^n 2^(j/128) 2^f, |f| <= 1/256.
// Frozen: log2(1 + w/L), degree 6, relative error 2^-65.4 for |w| < 2^-10.4; 2^f, degree 5,
// 2^-60.4. Fast: normal a > 0, finite b, |q| < 1000. pow_rare: the others. Within 0.6 ulp.
#include "base/image.hpp"
#include "base/pair.hpp"
#include "frame/chunk.hpp"
#include "ork/zem_kernels.h"
#include "powers/special.hpp"

namespace ork {

inline constexpr double pow_reciprocals[1025] = {
#include "powers/reciprocals_d.inc"
};
alignas(16) inline constexpr double pow_logarithms[1025][2] = {
#include "powers/logarithms_d.inc"
};
alignas(16) inline constexpr double pow_powers[128][2] = {
#include "powers/powers_d.inc"
};

// log2 of a normal a > 0, and less `down`.
ORK_INLINE Pair<f64x2> pow_log2(f64x2 a, double down = 0) {
  const u32x4 word = as<u32x4>(a);
  const u32x4 row = ((word & 0x000FFE00) + 0x200) >> 10;
  const unsigned i0 = (unsigned)ork::word<2>(row), i1 = (unsigned)ork::word<6>(row);
  const u32x4 k_word =
      (as<u32x4>(as<i32x4>(word - 0x3FE7FE00) >> 20) + 0x41380000) & u32x4{0, ~0u, 0, ~0u};
  const f64x2 k = as<f64x2>(k_word) - (1572864.0 + down);

  const f64x2 m = or_bits(and_bits(a, splat_u64(0x000FFFFFFFFFFFFF)), as<u64x2>(splat(1.0)));
  const f64x2 c = gather(&pow_reciprocals[i0], &pow_reciprocals[i1]);
  const auto [p, p_low] = exact_short_product(c, Upper(m));
  const auto [w, w_low] = exact_sum(p - 1.4426949024200439, p_low);

  f64x2 h_high, h_low;
  gather_pairs(pow_logarithms[i0], pow_logarithms[i1], h_high, h_low);
  const auto [first, first_low] = exact_sum(k + h_high, w);
  // The quadratic term's main part is an exact product: at b = 2^20 its rounding would show.
  constexpr double c2 = -0.3465736568077919;
  constexpr double c2_high =
      __builtin_bit_cast(double, __builtin_bit_cast(uint64_t, c2) & 0xFFFFFFFC00000000);
  const f64x2 top = and_bits(w, splat_u64(0xFFFFFFF000000000));  // 17 bits
  const auto [sum, sum_low] = exact_sum(first, (top * c2_high) * top);
  const f64x2 tail = ((w - top) + w_low) * (w + top) * c2_high +
                     w * horner(w, 9.5979350332335112e-08, c2 - c2_high, 0.16015105075297303,
                                -0.083256194960726712, 0.046167041872023737, -0.026667131649815552);
  return exact_sum(sum, tail + (h_low + (w_low + (first_low + sum_low))));
}

// b x; b = high + low, both of 26 bits or so.
ORK_INLINE Pair<f64x2> pow_product(f64x2 b, f64x2 b_high, f64x2 b_low, Pair<f64x2> x) {
  const f64x2 x_high = upper_half(x.high), x_low = x.high - x_high;
  return {b_high * x_high, (b_high * x_low + b_low * x.high) + b * x.low};
}

// 2^q as (high + low) 2^(N >> 7), N in the low words of t. |q| < 2^17.
ORK_INLINE Pair<f64x2> pow_exp2(Pair<f64x2> q, f64x2& t) {
  constexpr double shifter = 52776558133248.0;  // 1.5 * 2^45: the unit is 1/128
  t = q.high + shifter;
  const f64x2 f = (q.high - (t - shifter)) + q.low, g = f * f;
  const f64x2 p =
      f * 0.69314718055994529 + g * ((0.24022650695910069 + f * 0.055504108664821576) +
                                     g * (0.0096181291076284769 + f * 0.0013333558146428443));
  const u32x4 j = as<u32x4>(t) & 127;
  Pair<f64x2> r;
  gather_pairs(pow_powers[j[0]], pow_powers[word<4>(j)], r.high, r.low);
  r.low = r.low + r.high * p;
  return r;
}

// The exponent field's bits, or none where the high word of |q| is above `limit`: a rare lane
// takes 0 as its scale, another might be infinite and raise a flag.
ORK_INLINE u64x2 pow_field(f64x2 q, uint32_t limit, u32x4& rare) {
  const int high = (int)limit;
  const i32x4 far = as<i32x4>(abs(q)) > i32x4{0x7FFFFFFF, high, 0x7FFFFFFF, high};
  rare |= as<u32x4>(far);
  return splat_u64(0x7FF0000000000000) & ~as<u64x2>(far);
}

// Main path. b comes with its parts, so that a fixed exponent is split once.
ORK_INLINE f64x2 pow_main(f64x2 a, f64x2 b, f64x2 b_high, f64x2 b_low, u32x4& rare) {
  // The sum wraps to a negative number for all that is no positive normal number.
  rare |= as<u32x4>(as<i32x4>(as<u32x4>(a) + 0x00100000) < as<i32x4>(splat_u32(0x00200000)));
  const Pair<f64x2> q = pow_product(b, b_high, b_low, pow_log2(a));
  f64x2 t;
  const Pair<f64x2> r = pow_exp2(q, t);
  const u64x2 field = pow_field(q.high, 0x408F3FFE, rare);
  const u64x2 scale = as<u64x2>(as<u32x4>(t) + u32x4{1023 << 7, 0, 1023 << 7, 0}) << 45;
  return (r.high + r.low) * as<f64x2>(scale & field);
}

int pow_rare(const double* a, const double* b, double* r);

struct PowD : Core<double, 2> {
  static constexpr char name[] = "vdPow";
  static constexpr int vectors = 1;

  ORK_INLINE f64x2 eval(f64x2 a, f64x2 b, u32x4& rare) {
    rare |= 0x7F7FFFFF - as<u32x4>(abs(b));
    const f64x2 b_high = upper_half(b);
    return pow_main(a, b, b_high, b - b_high, rare);
  }
  static int special(const double* a, const double* b, double* r) { return pow_rare(a, b, r); }
};

}  // namespace ork
