#pragma once
// e^x - 1 = (S - 1) + S p, S = 2^(n/N), n = round(x N/ln 2), r = x - n ln 2/N, p = e^r - 1.
// S comes out of one OR of an exponent and a table's mantissa bits.
// Rare are |x| beyond a limit a little below the overflow, and NaN; there -1 is lost.
#include <type_traits>

#include "base/round.hpp"
#include "frame/chunk.hpp"
#include "ork/zem_kernels.h"

namespace ork {

// Mantissa bits of T_hi, and T_lo; T_hi + T_lo = 2^(j/N).
struct Expm1RowD {
  uint64_t high;
  double low;
};
struct Expm1RowS {
  uint32_t high;
  float low;
};
alignas(16) inline constexpr Expm1RowD expm1_split128_d[128] = {
#include "exponentials/expm1/split128_d.inc"
};
alignas(16) inline constexpr Expm1RowS expm1_split64_s[64] = {
#include "exponentials/expm1/split64_s.inc"
};

int expm1_rare(const double* a, double* out);
int expm1_rare(const float* a, float* out);

struct Expm1D : Core<double> {
  static constexpr char name[] = "vdExpm1";
  // The lanes within the fast range. The others' S gets the exponent field 0, lest it raise flags.
  static u64x2 test(f64x2 x, u32x4& rare) {
    const u64x2 far = as<u64x2>((f64x2)_mm_cmpnle_pd(abs(x), splat(707.7032713517041)));
    rare |= as<u32x4>(far);
    return ~far;
  }
  static f64x2 round(f64x2 y) { return y + integer_shifter<double> - integer_shifter<double>; }
  static int special(const double* x, double* r) { return expm1_rare(x, r); }
};

// n to 2^(n/128) = S_hi + S_lo. Adding 1.5 * 2^48 + 1023 * 128 leaves 16 n in the low word.
ORK_INLINE f64x2 expm1_scale(f64x2 n, u64x2 kept, f64x2& s_lo) {
  const u32x4 image = as<u32x4>(n + 422212465196928.0);
  const u64x2 exponent = as<u64x2>(image & (u32x4{0x3FF800, 0, 0x3FF800, 0} & as<u32x4>(kept)))
                         << 41;
  const u32x4 row = image & 0x7F0;
  const char* const table = (const char*)expm1_split128_d;
  f64x2 high, low;
  gather_pairs((const double*)(table + row[0]), (const double*)(table + word<4>(row)), high, low);
  s_lo = low * as<f64x2>(exponent);
  return or_bits(high, exponent);
}

// Puts back the sign of a zero; all other results have the sign of x by themselves.
ORK_INLINE f64x2 with_sign_of(f64x2 x, f64x2 y) { return or_bits(y, as<u64x2>(x) & sign_f64x2); }
ORK_INLINE f32x4 with_sign_of(f32x4 x, f32x4 y) { return or_bits(y, as<u32x4>(x) & sign_f32x4); }

// The last steps at HA: S (1 + u_hi + v) - 1, S = S_hi + S_lo, S_hi u_hi exact.
template <class V>
ORK_INLINE V expm1_sum(V s_hi, V s_lo, V u_hi, V v) {
  using T = std::remove_cvref_t<decltype(V{}[0])>;
  const V minus_one = splat(T(-1));
  const V w = u_hi + v;
  const auto small_s = abs(s_hi) <= splat(T(1));
  const V big = select(small_s, minus_one, s_hi), small = select(small_s, s_hi, minus_one);
  const V s1 = s_hi + minus_one, e1 = small + (big - s1);
  const V product = s_hi * u_hi;
  const V s2 = s1 + product, e2 = (s1 - s2) + product;
  return s2 + ((e2 + s_hi * v) + ((e1 + s_lo) + s_lo * w));
}

}  // namespace ork
