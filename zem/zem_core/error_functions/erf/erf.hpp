#pragma once
// Erf: y = min(|x|, 5.9921875), y_j = y rounded to 1/128, d = y - y_j, e = d y_j, g = d^2:
// erf(y) = E_j + D_j d (1 + P(e, g)), E = erf(y_j), D = 2/sqrt(pi) exp(-y_j^2), and
// 1 + P = sum over a, b of (-2e)^a (-g)^b / (a! b! (a + 2b + 1)).
// No lane is rare. A NaN gets through by d, whose minimum with |x| it is.
#include "frame/chunk.hpp"
#include "ork/zem_kernels.h"

namespace ork {

struct ErfReduced {
  f64x2 y_j, d, e, g;
  uint32_t row0, row1;  // byte offsets in rows of 16 bytes
};

// keep: lanes that keep their y_j; the others have row 0 and d = y.
template <class Keep>
ORK_INLINE ErfReduced erf_reduce(f64x2 x, Keep keep) {
  const f64x2 ax = abs(x), y = _mm_min_pd(ax, splat(5.9921875));
  const f64x2 t = y + 35184372088832.0;  // 2^45
  ErfReduced r;
  const u64x2 kept = keep(y);
  r.y_j = and_bits(t - 35184372088832.0, kept);
  f64x2 d = y - r.y_j;
  r.e = d * r.y_j;
  // A square below the normal range would raise the underflow flag.
  const f64x2 wide = and_bits(d, (u64x2)(y > 8.6361685550944446e-78));
  r.g = wide * wide;
  r.d = _mm_min_pd(d, ax);
  const u64x2 offset = (as<u64x2>(t) & kept) << 4;
  r.row0 = (uint32_t)word<0>(offset);
  r.row1 = (uint32_t)word<4>(offset);
  return r;
}
ORK_INLINE ErfReduced erf_reduce(f64x2 x) {
  return erf_reduce(x, [](f64x2) { return splat_u64(~0ull); });
}

alignas(16) inline constexpr double erf_rows_d[][2] = {
#include "error_functions/erf/rows_d.inc"
};

// E + D d (1 + P) with the sign of x.
ORK_INLINE f64x2 erf_value(f64x2 x, const ErfReduced& r, f64x2 p) {
  f64x2 e, d;
  const char* const table = (const char*)erf_rows_d;
  gather_pairs((const double*)(table + r.row0), (const double*)(table + r.row1), e, d);
  const f64x2 q = d * r.d;
  return or_bits(e + (q + q * p), as<u64x2>(x) & sign_f64x2);
}

// P at EP, frozen: relative error of the result below 2^-29.
ORK_INLINE f64x2 erf_short(const ErfReduced& r) {
  return r.e * (-1.0000014305126206 + r.e * 0.66666781107678186) +
         r.g * (-0.33333504994947405 + r.e * 0.5000019073510884);
}

template <class T>
struct ErfCore : Core<T> {
  static int special(const T*, T*) { return 0; }
};

}  // namespace ork
