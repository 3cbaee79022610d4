#pragma once
// Sinh of |x| with the sign of x: see exp_pair.hpp; near zero, where the difference would
// cancel, an odd polynomial. EP needs none: its table's error is 2^-16 of the least
// difference, and below it diff is 0. Fast range: |x| below 708.4 (707.7 at LA), single 87.3365.
#include "exponentials/exp_pair.hpp"
#include "frame/block.hpp"
#include "frame/chunk.hpp"
#include "ork/zem_kernels.h"

namespace ork {

template <class Level>
struct NearZero;
template <>
struct NearZero<PairHa> {
  static constexpr double limit = 0.125, c[] = {
#include "exponentials/sinh/near_zero_d_ha.inc"
                                         };
};
template <>
struct NearZero<PairLa> {
  static constexpr double limit = 0.5, c[] = {
#include "exponentials/sinh/near_zero_d_la.inc"
                                       };
};
template <>
struct NearZero<PairHaS> {
  static constexpr float limit = 0.125, c[] = {
#include "exponentials/sinh/near_zero_s_ha.inc"
                                        };
};
template <>
struct NearZero<PairLaS> {
  static constexpr float limit = 0.5, c[] = {
#include "exponentials/sinh/near_zero_s_la.inc"
                                      };
};
template <>
struct NearZero<PairEpS> {};

ORK_INLINE u32x4 below(f64x2 a, double limit) {
  return as<u32x4>((f64x2)_mm_cmplt_pd(a, splat(limit)));
}
ORK_INLINE u32x4 below(f32x4 a, float limit) {
  return as<u32x4>((f32x4)_mm_cmplt_ps(a, splat(limit)));
}

template <class Level>
struct Sinh : Core<typename Level::type> {
  using T = typename Level::type;
  using vec = vec_of<T>;
  using ivec = typename simd<T>::ivec;
  static constexpr char name[] = {'v', sizeof(T) == 8 ? 'd' : 's', 'S', 'i', 'n', 'h', 0};

  ORK_INLINE vec near_zero(vec a) {
    constexpr int count = sizeof NearZero<Level>::c / sizeof(T);
    const vec z = a * a;
    vec p = vec{} + NearZero<Level>::c[count - 1];
#pragma GCC unroll 8
    for (int i = count - 2; i >= 0; --i) p = NearZero<Level>::c[i] + z * p;
    return a + a * (z * p);
  }
  ORK_INLINE vec eval(vec x, u32x4& rare) {
    const vec a = abs(x);
    vec y = from_pair<Level, true>(a, rare);
    if constexpr (!__is_same(Level, PairEpS))
      y = select(below(a, NearZero<Level>::limit), near_zero(a), y);
    return or_bits(y, as<ivec>(x) & as<ivec>(splat(T(-0.0))));
  }
  static int special(const T* x, T* r) { return pair_special<T, true>(x, r); }
};

}  // namespace ork
