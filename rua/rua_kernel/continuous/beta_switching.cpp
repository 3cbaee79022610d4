// Beta with a shape below 1: A. C. Atkinson, J. Whittaker, "A switching algorithm for the
// generation of beta random variables with at least one parameter less than 1", 1976. The
// envelope is x^(p - 1) below the point t and (1 - x)^(q - 1) above it; u chooses the side and
// makes the candidate there, v decides.
#include "rua_kernel/continuous/beta.hpp"
#include "rua_kernel/service/rejection.hpp"

namespace ork::rua {

namespace {

// The cut at t, which is reached with the probability w: below it the candidate is
// z = low.scale u^(1/p), above it 1 - z with z = high.scale (1 - u)^(1/q). It is accepted if
// (ln(1 - z) - ln_other) weight + ln v is not above 0.
template <class R>
struct Side {
  R scale, shape, ln_other, weight;
};
template <class R>
struct Cut {
  R w;
  Side<R> low, high;
};

template <class R>
inline R ln_of(R x) {
  return value(Tables<R>::ln, x);
}
template <class R>
inline R exp_of(R x) {
  return value(Tables<R>::exp, x);
}

template <class R>
int32_t generate(RuaStream* stream, int32_t n, R* r, const Cut<R>& cut) {
  using T = Tables<R>;
  using V = vec_of<R>;
  alignas(64) R sides[kRound];
  R* const side = sides;
  return accept_in_rounds(stream, n, r, [=](int32_t m, R* u, R* v, R* scratch) {
    R *const z = scratch, *const other = scratch + m;
    vectors<R>(m, [=](int32_t i) {
      const V ui = load(u + i);
      const auto high = ui > cut.w;
      store(side + i, as<V>(high));  // all ones above t
      store(u + i, select(high, 1 - ui, ui));
    });
    apply(T::ln, 2 * m, u);  // and v behind it
    const auto of_side = [=](int32_t i, R Side<R>::*member) {
      return select(load(side + i), splat(cut.high.*member), splat(cut.low.*member));
    };
    vectors<R>(m, [=](int32_t i) { store(z + i, load(u + i) / of_side(i, &Side<R>::shape)); });
    apply(T::exp, m, z);
    vectors<R>(m, [=](int32_t i) {
      const V zi = load(z + i) * of_side(i, &Side<R>::scale);
      store(z + i, zi);
      store(other + i, 1 - zi);
    });
    apply(T::ln, m, other, u);
    return [=](int32_t i) {
      const V test = (load(u + i) - of_side(i, &Side<R>::ln_other)) * of_side(i, &Side<R>::weight) +
                     load(v + i);
      return candidates(select(load(side + i), load(other + i), load(z + i)), ~lanes(test > 0));
    };
  });
}

// The scales that make the two sides meet at t.
template <class R>
inline void set_scales(Cut<R>& cut, R t) {
  cut.low.scale = exp_of(-(1 / cut.low.shape) * ln_of(cut.w)) * t;
  cut.high.scale = exp_of(-(1 / cut.high.shape) * ln_of(1 - cut.w)) * (1 - t);
}

}  // namespace

template <class R>
int32_t beta_switching(RuaStream* stream, int32_t n, R* r, R p, R q) {
  using T = Tables<R>;
  const R s1 = value(T::sqrt, p * (1 - p)), s2 = value(T::sqrt, q * (1 - q)), t = s1 / (s2 + s1);
  Cut<R> cut;
  cut.w = q * t / (p * (1 - t) + q * t);
  cut.low = {0, p, value(T::ln, 1 - t, kBlocks<R>), 1 - q};
  cut.high = {0, q, value(T::ln, t, kBlocks<R>), 1 - p};
  set_scales(cut, t);
  return generate(stream, n, r, cut);
}

template <class R>
int32_t beta_switching_mixed(RuaStream* stream, int32_t n, R* r, R p, R q) {
  const R t = (1 - p) / (q + (1 - p)), g = exp_of(q * ln_of(1 - t));
  Cut<R> cut;
  cut.w = t * q / (g * p + t * q);
  cut.low = {0, p, 0, 1 - q};
  cut.high = {0, q, value(Tables<R>::ln, t, kBlocks<R>), 1 - p};
  set_scales(cut, t);
  return generate(stream, n, r, cut);
}

#define ORK_METHODS(R)                                            \
  template int32_t beta_switching(RuaStream*, int32_t, R*, R, R); \
  template int32_t beta_switching_mixed(RuaStream*, int32_t, R*, R, R);
ORK_METHODS(double)
ORK_METHODS(float)
#undef ORK_METHODS

}  // namespace ork::rua
