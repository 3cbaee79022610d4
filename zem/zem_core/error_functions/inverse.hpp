#pragma once
// ErfInv, ErfcInv, CdfNormInv: z f(w), where w is the distance to the nearer end of the domain,
// scaled to (0, 1], z the signed distance from its middle, |z| = 1 - w, and f = erfinv(z)/z
// (CdfNormInv: times sqrt 2) a polynomial for each quarter or sixteenth of a binade of w. It
// runs in t, w with its exponent and leading mantissa bits removed, less the interval's middle.
// A function gives w and z and its rare test; a level, the rows.
#include "frame/block.hpp"
#include "frame/level.hpp"
#include "ork/zem_kernels.h"

namespace ork {

// Rows of `columns` numbers, `parts` (4 or 16) to each of `binades`, next to w = 1 first.
template <int parts, int columns, int binades>
struct InverseRows {
  static constexpr int high_bits = parts == 4 ? 14 : 16;  // of w: sign, exponent, part
  static constexpr short first = parts == 4 ? 0xFFB : 0x3FEF;
  static constexpr short last = binades * parts - 1;

  // The rows of the two lanes. A w outside the table takes the nearest row.
  static void find(const double* table, f64x2 w, const double*& p0, const double*& p1) {
    const __m128i part = as<__m128i>(as<u64x2>(w) >> (64 - high_bits));
    const __m128i row = _mm_min_epi16(
        _mm_max_epi16(_mm_sub_epi16(_mm_set1_epi16(first), part), _mm_setzero_si128()),
        _mm_set1_epi16(last));
    const __m128i offset = _mm_mullo_epi16(row, _mm_set1_epi16(columns * 8));
    p0 = (const double*)((const char*)table + word<0>(offset));
    p1 = (const double*)((const char*)table + word<4>(offset));
  }
  // t of w in [1, 2) scale.
  static f64x2 from_middle(f64x2 w) {
    const u64x2 low = splat_u64(~0ull >> high_bits), one = splat_u64(0x3FF0000000000000);
    return as<f64x2>((as<u64x2>(w) & low) | one) - (1 + 0.5 / parts);
  }
};

// c[0] + c[1] t + ... of an even number of coefficients, by pairs in t^2; the last addition
// is that of c[0].
template <int count>
ORK_INLINE f64x2 row_polynomial(const double* p0, const double* p1, f64x2 t) {
  static_assert(count % 2 == 0);
  const f64x2 t2 = t * t;
  f64x2 c, d;
  gather_pairs(p0 + count - 2, p1 + count - 2, c, d);
  f64x2 p = c + t * d;
#pragma GCC unroll 8
  for (int k = count - 4; k > 0; k -= 2) {
    gather_pairs(p0 + k, p1 + k, c, d);
    p = (c + t * d) + t2 * p;
  }
  gather_pairs(p0, p1, c, d);
  return c + (t * d + t2 * p);
}

// Degree 3 in the order of EP.
ORK_INLINE f64x2 row_cubic(const double* p0, const double* p1, f64x2 t) {
  f64x2 c0, c1, c2, c3;
  gather_pairs(p0, p1, c0, c1);
  gather_pairs(p0 + 2, p1 + 2, c2, c3);
  return ((c3 * t + c2) * t + c1) * t + c0;
}

// w and z, and what one of them lost in rounding.
struct InverseSplit {
  f64x2 w, z, low;
};

// HA rows: low parts of c0 and c1, c2 to c14, high parts of c0 and c1. z_hi c0 is exact, all
// the rest is below 1/40 of it. `low` belongs to z, or to w (which then is in [0.5, 1)).
template <bool low_of_z>
ORK_INLINE f64x2 row_product(const double* p0, const double* p1, f64x2 t, InverseSplit s) {
  const auto c = [=](int k) { return gather(p0 + k, p1 + k); };
  const f64x2 t2 = t * t, z_hi = and_bits(s.z, splat_u64(0xFFFFFFFFF8000000));
  f64x2 p = c(14), z_lo = s.z - z_hi;
#pragma GCC unroll 8
  for (int k = 12; k >= 2; k -= 2) p = (c(k) + t * c(k + 1)) + t2 * p;
  const f64x2 c0 = c(15), c1 = c(16);
  f64x2 rest = (c(0) + t * c(1)) + t2 * p;
  if constexpr (low_of_z)
    z_lo += s.low;
  else
    rest += (s.low + s.low) * c1;
  rest += t * c1;
  return z_hi * c0 + (z_lo * c0 + s.z * rest);
}

// Sign bit set where high words, as signed numbers, are not within [low, high).
ORK_INLINE u32x4 outside(u32x4 x, uint32_t low, uint32_t high) {
  const i32x4 shifted = (i32x4)(x + splat_u32(0x80000000 - low));
  return (u32x4)(shifted > (i32x4)splat_u32(0x80000000 + (high - low) - 1));
}

// Double.
template <class Function, Level level, const auto& table>
struct InverseD : Function {
  ORK_INLINE f64x2 eval(f64x2 x, u32x4& rare) {
    const InverseSplit s = Function::split(x);
    rare |= Function::rare(x);
    const double *p0, *p1;
    if constexpr (level == Level::ha) {
      using Rows = InverseRows<4, 17, 53>;
      Rows::find(table[0], s.w, p0, p1);
      return row_product<Function::low_of_z>(p0, p1, Rows::from_middle(s.w), s);
    } else if constexpr (level == Level::la) {
      using Rows = InverseRows<4, 12, 53>;
      Rows::find(table[0], s.w, p0, p1);
      return s.z * row_polynomial<12>(p0, p1, Rows::from_middle(s.w));
    } else {
      using Rows = InverseRows<16, 4, 53>;
      Rows::find(table[0], s.w, p0, p1);
      return s.z * row_cubic(p0, p1, Function::template ep_argument<Rows>(s.w));
    }
  }
};

// Single, in double from the widened input; one rounding.
template <class Function, const auto& table>
struct InverseS : Function {
  static constexpr int vectors = 1;
  static f64x2 half(f64x2 x) {
    constexpr int columns = sizeof table[0] / sizeof table[0][0];
    using Rows = InverseRows<4, columns, 24>;
    const InverseSplit s = Function::split(x);
    const double *p0, *p1;
    Rows::find(table[0], s.w, p0, p1);
    return s.z * row_polynomial<columns>(p0, p1, Rows::from_middle(s.w));
  }
  ORK_INLINE f32x4 eval(f32x4 x, u32x4& rare) {
    rare |= Function::rare(x);
    const f32x4 low = _mm_cvtpd_ps(half(_mm_cvtps_pd(x)));
    const f32x4 high = _mm_cvtpd_ps(half(_mm_cvtps_pd(_mm_movehl_ps(x, x))));
    return _mm_movelh_ps(low, high);
  }
};

}  // namespace ork
