#pragma once
// The inverse error functions in quad and extended precision, by Newton's iteration on erf
// where it is small and on erfc elsewhere.
#include <quadmath.h>

#include <cmath>

namespace exact {

struct QuadForms {
  static __float128 erf(__float128 x) { return erfq(x); }
  static __float128 erfc(__float128 x) { return erfcq(x); }
  static __float128 exp(__float128 x) { return expq(x); }
  static __float128 log(__float128 x) { return logq(x); }
  static __float128 sqrt(__float128 x) { return sqrtq(x); }
};
struct ExtendedForms {
  static long double erf(long double x) { return erfl(x); }
  static long double erfc(long double x) { return erfcl(x); }
  static long double exp(long double x) { return expl(x); }
  static long double log(long double x) { return logl(x); }
  static long double sqrt(long double x) { return sqrtl(x); }
};

// y with erf(y) = x; w = 1 - |x|, given apart because it may be known exactly.
template <class M, class R>
R inverse_error(R x, R w) {
  const R none = 0;
  if (w < 0 || x != x) return none / none;
  if (w == 0) return x / none;
  const R half_root_pi = R(0.886226925452758013649083741670572591Q);
  const R size = x < 0 ? -x : x;
  R y = size * half_root_pi;
  if (w < R(0.1)) y = M::sqrt(-M::log(w * M::sqrt(-3 * M::log(w))));
  for (int i = 0; i < 40; ++i) {
    const R slope = half_root_pi * M::exp(y * y);
    const R step = size < R(0.5) ? (size - M::erf(y)) * slope : (M::erfc(y) - w) * slope;
    const R next = step / (1 - y * step);  // Halley's
    y += next;
    if ((next < 0 ? -next : next) <= y * R(1e-12)) break;  // the next one would be 1e-36
  }
  return x < 0 ? -y : y;
}

template <class M, class R>
R erfinv(R x) {
  return inverse_error<M>(x, 1 - (x < 0 ? -x : x));
}
template <class M, class R>
R erfcinv(R x) {
  return inverse_error<M>(1 - x, x < 1 ? x : 2 - x);
}
template <class M, class R>
R cdfnorminv(R p) {
  return -R(1.41421356237309504880168872420969808Q) * erfcinv<M>(2 * p);
}
template <class M, class R>
R cdfnorm(R x) {
  return M::erfc(-x * R(0.707106781186547524400844362104849039Q)) / 2;
}

inline __float128 erfinv(__float128 x) { return erfinv<QuadForms>(x); }
inline __float128 erfcinv(__float128 x) { return erfcinv<QuadForms>(x); }
inline __float128 cdfnorminv(__float128 x) { return cdfnorminv<QuadForms>(x); }
inline __float128 cdfnorm(__float128 x) { return cdfnorm<QuadForms>(x); }
inline long double erfinv(long double x) { return erfinv<ExtendedForms>(x); }
inline long double erfcinv(long double x) { return erfcinv<ExtendedForms>(x); }
inline long double cdfnorminv(long double x) { return cdfnorminv<ExtendedForms>(x); }
inline long double cdfnorm(long double x) { return cdfnorm<ExtendedForms>(x); }

}  // namespace exact
