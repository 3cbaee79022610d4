#pragma once
// Argument reduction of the cube roots. x = 2^(3(q - q0) + rem) m, and m = c_j (1 + r) with
// c_j = 1 + (2j + 1)/64, |r| <= 2^-6. The biased exponent is 3q + rem; a root scales by
// 2^(q - q0), q0 = 341 in double.
#include "base/image.hpp"
#include "frame/block.hpp"

namespace ork {

// {T, 1 / c_j} for row 32 rem + j of a table; T is c_j^p 2^(rem p) for p = 1/3 or -1/3.
template <class T>
struct CbrtPair {
  T t, reciprocal;
};
alignas(16) inline constexpr double cbrt_reciprocals[32] = {
#include "roots/reciprocals.inc"
};

// Row and q in 16-bit lanes, from w = 32 exponent + j and e4 = 4 exponent (+ 0..3):
// 5462 / 2^14 is 1/3 for the whole range.
struct CbrtIndex {
  __m128i q, row;
  __attribute__((always_inline)) CbrtIndex(__m128i w, __m128i e4)
      : q(_mm_mulhi_epu16(e4, _mm_set1_epi16(0x1556))),
        row(_mm_sub_epi16(w, _mm_mullo_epi16(q, _mm_set1_epi16(96)))) {}
  template <int lane>
  ORK_INLINE unsigned get(__m128i x) {
    return (unsigned)_mm_extract_epi16(x, lane);
  }
};

struct CbrtReducedD {
  f64x2 difference;  // m - c_j, exact
  f64x2 scale;       // 2^(q - q0), or its inverse; with the sign of x
  unsigned row[2];

  template <bool inverse>
  ORK_INLINE CbrtReducedD of(f64x2 x) {
    const u64x2 a = as<u64x2>(abs(x));
    const CbrtIndex index(as<__m128i>(a >> 47), as<__m128i>(a >> 50));
    const u64x2 q = as<u64x2>(index.q);
    const u64x2 biased = inverse ? splat_u64(1364) - q : q + splat_u64(682);
    const f64x2 m = or_bits(and_bits(x, splat_u64(0x000FFFFFFFFFFFFF)), as<u64x2>(splat(1.0)));
    const f64x2 minus_c =
        or_bits(and_bits(x, splat_u64(0x000F800000000000)), as<u64x2>(splat(-1.015625)));
    return {m + minus_c,
            as<f64x2>(biased << 52 | (as<u64x2>(x) & sign_f64x2)),
            {index.get<0>(index.row), index.get<4>(index.row)}};
  }
};

// Four singles; the exponent is counted from one that makes q0 = 43.
struct CbrtReducedS {
  f32x4 difference, scale;
  unsigned row[4];

  template <bool inverse>
  ORK_INLINE CbrtReducedS of(f32x4 x) {
    const u32x4 a = as<u32x4>(abs(x));
    const CbrtIndex index(as<__m128i>((a >> 18) + splat_u32(64)),
                          as<__m128i>((a >> 21) + splat_u32(8)));
    const u32x4 q = as<u32x4>(index.q);
    const u32x4 biased = inverse ? splat_u32(170) - q : q + splat_u32(84);
    const f32x4 m = or_bits(and_bits(x, splat_u32(0x007FFFFF)), as<u32x4>(splat(1.0f)));
    const f32x4 minus_c = or_bits(and_bits(x, splat_u32(0x007C0000)), as<u32x4>(splat(-1.015625f)));
    return {m + minus_c,
            as<f32x4>(biased << 23 | (as<u32x4>(x) & sign_f32x4)),
            {index.get<0>(index.row), index.get<2>(index.row), index.get<4>(index.row),
             index.get<6>(index.row)}};
  }
};

// Two rows' T and 1 / c_j as vectors.
struct CbrtPairs {
  f64x2 t, reciprocal;
  __attribute__((always_inline)) CbrtPairs(const CbrtPair<double>* table, unsigned i, unsigned k) {
    const f64x2 x = load_aligned(&table[i].t), y = load_aligned(&table[k].t);
    t = _mm_unpacklo_pd(x, y);
    reciprocal = _mm_unpackhi_pd(x, y);
  }
};

// a[0] + r (a[1] + ... + r a[count - 1])
template <int count, class V, class T>
ORK_INLINE V horner(V r, const T* a) {
  V p = splat(a[count - 1]);
#pragma GCC unroll 16
  for (int k = count - 2; k >= 0; --k) p = splat(a[k]) + r * p;
  return p;
}

// Lanes other than normal numbers, of either sign.
ORK_INLINE u32x4 not_normal(f64x2 x) {
  constexpr u32x4 offset = {0, 0x80100000, 0, 0x80100000}, last = {0, 0xFFDFFFFF, 0, 0xFFDFFFFF};
  return as<u32x4>(as<i32x4>(as<u32x4>(abs(x)) - offset) > as<i32x4>(last));
}
ORK_INLINE u32x4 not_normal(f32x4 x) {
  return as<u32x4>(as<i32x4>(as<u32x4>(abs(x)) - splat_u32(0x80800000)) >
                   as<i32x4>(splat_u32(0xFEFFFFFF)));
}

// C's formula for a denormal: multiplied by `up`, a power of 8, and the result by `down`.
template <class C, class T>
ORK_INLINE T cbrt_of_denormal(T x) {
  constexpr bool wide = sizeof(T) == 8;
  constexpr T up = wide ? T(0x1p996) : T(0x1p24f);
  constexpr T down = C::inverse ? (wide ? T(0x1p332) : T(0x1p8f)) : wide ? T(0x1p-332) : T(0x1p-8f);
  u32x4 rare{};
  return C::eval(splat(T(x * up)), rare)[0] * down;
}

}  // namespace ork
