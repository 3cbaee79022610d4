// Passes over arrays: loops in the vector registers, and the vector kernels the distributions
// call.
#pragma once
#include "base/lanes.hpp"
#include "base/vec.hpp"
#include "ork/zem_kernels.h"
#include "rua_sub_kernel/math/vector_mode.hpp"

namespace ork::rua {

template <class R>
struct Tables;
#define ORK_TABLES(t, R)                                                                          \
  template <>                                                                                     \
  struct Tables<R> {                                                                              \
    static constexpr auto &ln = ork_zem_kernel_##t##Ln_ttab, &exp = ork_zem_kernel_##t##Exp_ttab, \
                          &log1p = ork_zem_kernel_##t##Log1p_ttab,                                \
                          &sqrt = ork_zem_kernel_##t##Sqrt_ttab,                                  \
                          &inv = ork_zem_kernel_##t##Inv_ttab,                                    \
                          &sin = ork_zem_kernel_##t##Sin_ttab,                                    \
                          &cos = ork_zem_kernel_##t##Cos_ttab,                                    \
                          &tan = ork_zem_kernel_##t##Tan_ttab,                                    \
                          &erf = ork_zem_kernel_##t##Erf_ttab,                                    \
                          &erf_inv = ork_zem_kernel_##t##ErfInv_ttab;                             \
    static constexpr auto& sin_cos = ork_zem_kernel_##t##SinCos_ttab;                             \
    static constexpr auto& pow = ork_zem_kernel_##t##Pow_ttab;                                    \
    static constexpr auto& powx = ork_zem_kernel_##t##Powx_ttab;                                  \
  };
ORK_TABLES(d, double)
ORK_TABLES(s, float)
#undef ORK_TABLES

// The slots of the tables: blocks of numbers go through EP in double and LA in single, the
// constants of a method through HA in both.
template <class R>
inline constexpr int kBlocks = sizeof(R) == 8 ? 2 : 0;
inline constexpr int kConstants = 1;

// r <- f(a) by the kernel of a table.
template <class R, class Table>
inline void apply(const Table& table, int32_t n, const R* a, R* r, int slot = kBlocks<R>) {
  const VectorMode mode;
  table[slot](n, a, r);
}
template <class R, class Table>
inline void apply(const Table& table, int32_t n, R* r, int slot = kBlocks<R>) {
  apply(table, n, r, r, slot);
}

// f of one number.
template <class R, class Table>
inline R value(const Table& table, R x, int slot = kConstants) {
  apply(table, 1, &x, slot);
  return x;
}

template <class R>
inline void sin_cos(int32_t n, R* angle_to_sine, R* cosine) {
  const VectorMode mode;
  Tables<R>::sin_cos[kBlocks<R>](n, angle_to_sine, angle_to_sine, cosine);
}

template <class R>
inline void power(int32_t n, R* r, R exponent, int slot = kBlocks<R>) {
  const VectorMode mode;
  Tables<R>::powx[slot](n, r, exponent, r);
}

// r <- f(r), eight values at a time. f takes a vector or a value.
template <class R, class F>
ORK_INLINE void each(int32_t n, R* r, F f) {
  constexpr int w = simd<R>::width;
  for (; n >= 8; n -= 8, r += 8)
#pragma GCC unroll 4
    for (int k = 0; k < 8; k += w) store(r + k, f(load(r + k)));
  for (; n > 0; --n, ++r) *r = f(*r);
}

// r <- sqrt(-2 ln(u)), the radius of a Gaussian pair. The arrays have to be two: an error
// callback that looks at the operand of a logarithm in place would find its result there.
template <class R>
inline void radii(int32_t n, const R* u, R* r) {
  apply(Tables<R>::ln, n, u, r);
  each(n, r, [](auto x) { return x * R(-2); });
  apply(Tables<R>::sqrt, n, r);
}

// first[i], second[i] <- pairs[2 i], f(pairs[2 i + 1]). One of them may be `pairs` itself.
template <class R, class F>
ORK_INLINE void split(int32_t n, const R* pairs, R* first, R* second, F f) {
  constexpr int w = simd<R>::width;
  int32_t i = 0;
  for (; n - i >= 4 * w; i += 4 * w)
#pragma GCC unroll 4
    for (int k = i; k < i + 4 * w; k += w) {
      const vec_of<R> a = load(pairs + 2 * k), b = load(pairs + 2 * k + w);
      store(first + k, evens(a, b));
      store(second + k, f(odds(a, b)));
    }
  for (; i < n; ++i) {
    const R a = pairs[2 * i], b = pairs[2 * i + 1];
    first[i] = a;
    second[i] = f(b);
  }
}

// t, but the displacement where that is above t: rounding never leads below it.
ORK_INLINE f64x2 at_least(double a, f64x2 t) { return _mm_max_pd(splat(a), t); }
ORK_INLINE f32x4 at_least(float a, f32x4 t) { return _mm_max_ps(splat(a), t); }
template <class R>
ORK_INLINE R at_least(R a, R t) {
  return a > t ? a : t;
}
ORK_INLINE f64x2 at_most(double b, f64x2 t) { return _mm_min_pd(splat(b), t); }
ORK_INLINE f32x4 at_most(float b, f32x4 t) { return _mm_min_ps(splat(b), t); }
template <class R>
ORK_INLINE R at_most(R b, R t) {
  return t > b ? b : t;
}

}  // namespace ork::rua
