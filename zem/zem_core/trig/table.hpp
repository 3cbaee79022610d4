#pragma once
// Sine and cosine by table: x = a + z + low with a = j * step, and sin(a + z + low) from a row
// for a. One arithmetic for a scalar and a vector of doubles.
#include "base/pair.hpp"

namespace ork::trig {

// sin a = s_hi + s_lo, cos a = c_hi + c_lo; c_hi is a power of two, or zero.
struct alignas(32) Row {
  double c_lo, s_hi, s_lo, c_hi;
};

extern const Row rows_pi32[64];  // a = j * pi/32
// a = j * pi/64: 128 rows, then the first 32 again, so that row j + 32, the cosine's, needs
// no second index.
extern const Row rows_pi64[160];

// A row, or the rows of two lanes.
template <class V>
struct Angle {
  V c_lo, s_hi, s_lo, c_hi;
};

// j * sizeof(Row) of both lanes, j the low bits of t + 1.5 * 2^52.
struct Offsets {
  uint32_t lane0, lane1;
};
template <int rows>
ORK_INLINE Offsets row_offsets(f64x2 t) {
  const u64x2 j = (as<u64x2>(t) & splat_u64(rows - 1)) << 5;
  return {(uint32_t)_mm_cvtsi128_si32(as<__m128i>(j)),
          (uint32_t)_mm_extract_epi16(as<__m128i>(j), 4)};
}

ORK_INLINE Angle<f64x2> gather(const Row* rows, Offsets o) {
  const auto* p0 = reinterpret_cast<const double*>(reinterpret_cast<const char*>(rows) + o.lane0);
  const auto* p1 = reinterpret_cast<const double*>(reinterpret_cast<const char*>(rows) + o.lane1);
  Angle<f64x2> a;
  gather_pairs(p0, p1, a.c_lo, a.s_hi);
  gather_pairs(p0 + 2, p1 + 2, a.s_lo, a.c_hi);
  return a;
}

// s_hi + z (c_hi + c_lo) + tail: the product with c_hi is exact, both sums keep their errors. What
// is added last is below 2^-5 of the result, so that its rounding once gives 0.51 ulp.
template <class V>
ORK_INLINE Pair<V> table_sum(const Angle<V>& a, V z, V tail, V s_low) {
  const auto [h, h_error] = exact_sum(a.s_hi, z * a.c_hi);
  const auto [h2, h2_error] = exact_sum(h, z * a.c_lo);
  return {h2, (tail + (h_error + h2_error)) + s_low};
}

// sin(a + z + low), low far below z's ulp; s_poly = sin z / z - 1, c_poly = cos z - 1.
template <class V>
ORK_INLINE Pair<V> table_sine(const Angle<V>& a, V z, V low, V s_poly, V c_poly) {
  const V c = a.c_hi + a.c_lo;
  const V s_low = (c - z * a.s_hi) * low + a.s_lo;
  return table_sum(a, z, s_poly * (z * c) + c_poly * a.s_hi, s_low);
}

}  // namespace ork::trig
