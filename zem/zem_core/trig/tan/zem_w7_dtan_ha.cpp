#include "ork/zem_kernels.h"
#include "trig/tan/tan.hpp"

namespace ork::trig {
namespace {

#include "trig/tan/tangent_fits.inc"

// Tangent, double, HA: see tan.hpp, P cubic and Q quartic. In stages of 64 elements, so that
// the x87 divisions run in one loop:
//   reduction      r as high + low, in double
//   polynomial 53  the upper terms of P and Q, in double, from the high parts
//   polynomial 64  P, Q and the quotient in extended precision
// Bound 0.60 ulp.
struct TanHaD : Core<double> {
  static constexpr char name[] = "dTan_HA";
  static constexpr unsigned x87 = x87_extended;
  static int special(const double* x, double* r) { return scalar<_dTan>(x, r); }
};

constexpr int stage = 64;

// A stage's intermediates; in pairs, so that an odd count has its second lane.
struct alignas(16) Stage {
  double high[stage], low[stage];
  double p[stage], q[stage];
  double sign[stage];   // of the result, as a sign bit
  uint64_t odd[stage];  // the parity of n
  u32x4 rare[stage / 2];
};

// True if a lane is rare.
ORK_INLINE bool reduce(const double* a, int count, Stage& s) {
  u32x4 any{};
  for (int i = 0; i < count; i += 2) {
    const f64x2 x = count - i >= 2 ? load(a + i) : load_part(a + i, 1);
    const f64x2 ax = abs(x), t = half_pi_steps(ax), n = t - splat(0x1p52);
    any |= s.rare[i / 2] = reaches<limit_128000>(ax);
    const f64x2 r2 = ax - n * splat(1.5707962512969971) - n * splat(7.5497894158615964e-08);
    const f64x2 third = n * splat(5.3903025299577648e-15), r3 = r2 - third;
    store_aligned(s.high + i, r3);
    store_aligned(s.low + i, ((r2 - r3) - third) - n * splat(3.2820035428735005e-22));
    store_aligned(s.sign + i, flip(parity(t), sign_of(x)));
    store_aligned((double*)s.odd + i, and_bits(t, splat_u64(1)));
  }
  return sign_mask<double>(any) != 0;
}

ORK_INLINE void short_terms(int count, Stage& s) {
  for (int i = 0; i < count; i += 2) {
    const f64x2 r = load_aligned(s.high + i), z = r * r;
    store_aligned(s.p + i, horner(z, double_ha_p2, double_ha_p3) * z);
    store_aligned(s.q + i, horner(z, double_ha_q3, double_ha_q4) * z);
  }
}

// odd ? x : y, without a branch.
ORK_INLINE long double choose(uint32_t odd, long double x, long double y) {
  asm("test %[odd], %[odd]\n\tfcmove %[y], %[x]" : [x] "+t"(x) : [y] "f"(y), [odd] "r"(odd) : "cc");
  return x;
}

// Leaves the results in s.high.
ORK_INLINE void extended_terms(int count, Stage& s) {
  for (int i = 0; i < count; ++i) {
    const long double r = (long double)s.high[i] + s.low[i], z = r * r;
    const long double rp = r + r * z * (double_ha_p1 + s.p[i]);
    const long double q = 1 + z * (double_ha_q1 + z * (double_ha_q2 + s.q[i]));
    const uint32_t odd = (uint32_t)s.odd[i];
    s.high[i] = (double)(choose(odd, q, rp) / choose(odd, rp, q));
  }
}

// Puts the signs on and stores; the rare elements go through the scalar routine, in index order.
ORK_INLINE void store_clean(const Stage& s, int count, double* r) {
  int i = 0;
  for (; i + 2 <= count; i += 2)
    store(r + i, flip(load_aligned(s.high + i), load_aligned(s.sign + i)));
  if (i < count) write_one(r + i, flip(load_aligned(s.high + i), load_aligned(s.sign + i))[0]);
}
__attribute__((noinline)) void store_mixed(const Stage& s, const OperandsOf<TanHaD>& o, int first,
                                           int count) {
  for (int i = 0; i < count; ++i) {
    if (sign_mask<double>(s.rare[i / 2]) >> i % 2 & 1) {
      const double x = read_one(o.in[0] + first + i);
      special_element(TanHaD{}, o, first + i, &x, &x);
    } else {
      write_one(o.out[0] + first + i, flip(splat(s.high[i]), splat(s.sign[i]))[0]);
    }
  }
}

// Apart from the entry, so that no x87 arithmetic moves across the control-word change.
__attribute__((noipa)) void tangent(int n, const OperandsOf<TanHaD>& o) {
  Stage s;
  for (int first = 0; first < n; first += stage) {
    const int count = n - first < stage ? n - first : stage;
    const bool rare = reduce(o.in[0] + first, count, s);
    short_terms(count, s);
    extended_terms(count, s);
    if (__builtin_expect(rare, 0))
      store_mixed(s, o, first, count);
    else
      store_clean(s, count, o.out[0] + first);
  }
}

}  // namespace
}  // namespace ork::trig

ORK_EXPORT void ork_zem_kernel_dTan_W7HAynn(int n, const double* a, double* r) {
  using namespace ork;
  if (n <= 0) return;
  const Control<trig::TanHaD> control;
  trig::tangent(n, {{a}, {r}});
}
