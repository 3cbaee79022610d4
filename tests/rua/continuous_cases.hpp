#pragma once
// The continuous distributions as rows of a table, for both types, each with a plain
// recomputation of its numbers in extended precision.
#include <functional>
#include <ostream>

#include "ork/rua_distributions.h"
#include "rua/stream_fixture.hpp"

template <class R>
struct Entries;
template <>
struct Entries<double> {
  static constexpr auto uniform = _ruadRngUniform, gaussian = _ruadRngGaussian,
                        exponential = _ruadRngExponential, laplace = _ruadRngLaplace,
                        cauchy = _ruadRngCauchy, rayleigh = _ruadRngRayleigh,
                        gumbel = _ruadRngGumbel;
  static constexpr auto lognormal = _ruadRngLognormal;
  static constexpr auto weibull = _ruadRngWeibull;
  static constexpr uint32_t pending = 2;  // chunk of the pending pair
  static constexpr long double least_ln = -744.4400719213812L, low = -0.7670519064056041L,
                               high = 5.8635847487551676L;
  static constexpr double half_pi = 1.5707963267948966;
  static constexpr double error = 4e-8;  // of kernels that keep half of the mantissa
};
template <>
struct Entries<float> {
  static constexpr auto uniform = _ruasRngUniform, gaussian = _ruasRngGaussian,
                        exponential = _ruasRngExponential, laplace = _ruasRngLaplace,
                        cauchy = _ruasRngCauchy, rayleigh = _ruasRngRayleigh,
                        gumbel = _ruasRngGumbel;
  static constexpr auto lognormal = _ruasRngLognormal;
  static constexpr auto weibull = _ruasRngWeibull;
  static constexpr uint32_t pending = 1;
  static constexpr long double least_ln = -103.2789306640625L, low = -1.0837466L, high = 3.832507L;
  static constexpr float half_pi = 1.57079637f;
  static constexpr double error = 1e-6;
};

// Standard variate v, output = shift + scale v (after an exponential for Lognormal).
template <class R>
struct Case {
  const char* name;
  std::function<int32_t(RuaStream*, int32_t, R*)> draw;
  R lo, hi;      // interval of the uniform numbers
  int per_pair;  // outputs of two uniform numbers: 1 or 2; 0: one output of one number
  // Output of the uniform numbers u and w; in place of w the parity when per_pair is 0.
  std::function<long double(long double u, long double w, bool odd)> value;
  std::function<double(double)> cdf;
  double mean, variance, kurtosis;  // variance 0: the distribution has no moments
  bool clamped;                     // never below `shift`
  double shift;
};
template <class R>
void PrintTo(const Case<R>& c, std::ostream* out) {
  *out << c.name;
}

inline long double erfinv(long double u) {  // bisection, then Newton steps
  long double lo = -6, hi = 6;
  for (int i = 0; i < 40; ++i) (erfl((lo + hi) / 2) < u ? lo : hi) = (lo + hi) / 2;
  long double x = (lo + hi) / 2;
  for (int i = 0; i < 2; ++i)
    x -= (x > 0 ? erfcl(-x) - 1 - u : 1 - erfcl(x) - u) * expl(x * x) * 0.886226925452758014L;
  return x;
}

// Logarithm as the guarded kernels see it.
template <class R>
long double ln(long double u) {
  return u == 0 ? Entries<R>::least_ln : logl(u);
}
constexpr long double kPi = 3.14159265358979323846L;

template <class R>
std::vector<Case<R>> continuous_cases() {
  using E = Entries<R>;
  constexpr double pi = double(kPi), gamma = 0.57721566490153286;
  const auto radius = [](long double u) { return sqrtl(-2 * ln<R>(u)); };
  const auto normal = [](double x, double a, double s) {
    return std::erfc((a - x) / s * M_SQRT1_2) / 2;
  };
  // The ends of the range of ErfInv give fixed finite values.
  const auto icdf = [](long double u) {
    return sqrtl(2) * (u <= -1 ? E::low : u >= 1 ? E::high : erfinv(u));
  };
  const double q = 0.25, eq = std::exp(q);  // sigma^2 of Lognormal
  const auto lognormal_cdf = [normal](double x) {
    return x <= 2 ? 0 : normal(std::log((x - 2) / 3), 1, 0.5);
  };
  const double lm = 2 + 3 * std::exp(1 + q / 2), lv = 9 * (eq - 1) * std::exp(2 + q),
               lk = std::pow(eq, 4) + 2 * std::pow(eq, 3) + 3 * std::pow(eq, 2) - 3;
  const double g1 = std::tgamma(1 + 1 / 2.5), g2 = std::tgamma(1 + 2 / 2.5),
               g3 = std::tgamma(1 + 3 / 2.5), g4 = std::tgamma(1 + 4 / 2.5), wv = g2 - g1 * g1,
               wk = (g4 - 4 * g1 * g3 + 6 * g1 * g1 * g2 - 3 * std::pow(g1, 4)) / (wv * wv);
  const auto pair_wave = [](long double w, bool odd) {
    return odd ? cosl(2 * kPi * w) : sinl(2 * kPi * w);
  };
  return {
      {"Uniform",
       [](RuaStream* s, int32_t n, R* r) {
         return E::uniform(RUA_METHOD_ACCURATE, s, n, r, -2, 5);
       },
       -2, 5, 0, [](long double u, long double, bool) { return u; },
       [](double x) { return (x + 2) / 7; }, 1.5, 49 / 12., 1.8, true, -2},
      {"GaussianBoxMuller",
       [](RuaStream* s, int32_t n, R* r) {
         return E::gaussian(RUA_GAUSSIAN_BOXMULLER, s, n, r, 3, 2);
       },
       0, 1, 1,
       [=](long double u, long double w, bool) { return 3 + 2 * radius(u) * sinl(2 * kPi * w); },
       [=](double x) { return normal(x, 3, 2); }, 3, 4, 3, false, 3},
      {"GaussianBoxMuller2",
       [](RuaStream* s, int32_t n, R* r) {
         return E::gaussian(RUA_GAUSSIAN_BOXMULLER2, s, n, r, 3, 2);
       },
       0, 1, 2,
       [=](long double u, long double w, bool odd) {
         return 3 + 2 * radius(u) * pair_wave(w, odd);
       },
       [=](double x) { return normal(x, 3, 2); }, 3, 4, 3, false, 3},
      {"GaussianICDF",
       [](RuaStream* s, int32_t n, R* r) { return E::gaussian(RUA_GAUSSIAN_ICDF, s, n, r, 3, 2); },
       -1, 1, 0, [=](long double u, long double, bool) { return 3 + 2 * icdf(u); },
       [=](double x) { return normal(x, 3, 2); }, 3, 4, 3, false, 3},
      {"Exponential",
       [](RuaStream* s, int32_t n, R* r) { return E::exponential(0, s, n, r, -1, 2.5); }, 0, 1, 0,
       [](long double u, long double, bool) { return -1 - 2.5L * ln<R>(u); },
       [](double x) { return -std::expm1(-(x + 1) / 2.5); }, 1.5, 6.25, 9, true, -1},
      {"Laplace", [](RuaStream* s, int32_t n, R* r) { return E::laplace(0, s, n, r, -1, 2.5); }, 0,
       1, 1,
       [](long double u, long double w, bool) { return -1 + (w > 0.5L ? 2.5L : -2.5L) * ln<R>(u); },
       [](double x) {
         const double e = std::exp(-std::fabs(x + 1) / 2.5) / 2;
         return x < -1 ? e : 1 - e;
       },
       -1, 12.5, 6, false, -1},
      {"Cauchy", [](RuaStream* s, int32_t n, R* r) { return E::cauchy(0, s, n, r, 0.5, 1.5); },
       -E::half_pi, E::half_pi, 0,
       [](long double u, long double, bool) { return 0.5L + 1.5L * tanl(u); },
       [=](double x) { return 0.5 + std::atan((x - 0.5) / 1.5) / pi; }, 0, 0, 0, false, 0.5},
      {"Rayleigh", [](RuaStream* s, int32_t n, R* r) { return E::rayleigh(0, s, n, r, 1, 2); }, 0,
       1, 0, [](long double u, long double, bool) { return 1 + 2 * sqrtl(-ln<R>(u)); },
       [](double x) { return -std::expm1(-(x - 1) * (x - 1) / 4); }, 1 + std::sqrt(pi), 4 - pi,
       3.2450893006876, true, 1},
      {"LognormalBoxMuller2",
       [](RuaStream* s, int32_t n, R* r) { return E::lognormal(0, s, n, r, 1, 0.5, 2, 3); }, 0, 1,
       2,
       [=](long double u, long double w, bool odd) {
         return 2 + 3 * expl(1 + 0.5L * radius(u) * pair_wave(w, odd));
       },
       lognormal_cdf, lm, lv, lk, true, 2},
      {"LognormalICDF",
       [](RuaStream* s, int32_t n, R* r) { return E::lognormal(7, s, n, r, 1, 0.5, 2, 3); }, -1, 1,
       0, [=](long double u, long double, bool) { return 2 + 3 * expl(1 + 0.5L * icdf(u)); },
       lognormal_cdf, lm, lv, lk, true, 2},
      {"WeibullOfShape1",
       [](RuaStream* s, int32_t n, R* r) { return E::weibull(0, s, n, r, 1, -1, 2.5); }, 0, 1, 0,
       [](long double u, long double, bool) { return -1 - 2.5L * ln<R>(u); },
       [](double x) { return -std::expm1(-(x + 1) / 2.5); }, 1.5, 6.25, 9, true, -1},
      {"Weibull", [](RuaStream* s, int32_t n, R* r) { return E::weibull(0, s, n, r, 2.5, -1, 2); },
       0, 1, 0, [](long double u, long double, bool) { return -1 + 2 * powl(-ln<R>(u), 0.4L); },
       [](double x) { return -std::expm1(-std::pow((x + 1) / 2, 2.5)); }, -1 + 2 * g1, 4 * wv, wk,
       true, -1},
      {"Gumbel", [](RuaStream* s, int32_t n, R* r) { return E::gumbel(0, s, n, r, -1, 2); }, 0, 1,
       0, [](long double u, long double, bool) { return -1 + 2 * ln<R>(-ln<R>(u)); },
       [](double x) { return -std::expm1(-std::exp((x + 1) / 2)); }, -1 - 2 * gamma,
       4 * pi * pi / 6, 5.4, false, -1},
  };
}

// The recomputation: n outputs of the uniform numbers u.
template <class R>
std::vector<long double> recompute(const Case<R>& c, int n, const std::vector<R>& u) {
  std::vector<long double> r(n);
  for (int i = 0; i < n; ++i)
    r[i] = c.per_pair == 0   ? c.value(u[i], 0, false)
           : c.per_pair == 1 ? c.value(u[2 * i], u[2 * i + 1], false)
                             : c.value(u[i & ~1], u[i | 1], i & 1);
  return r;
}
template <class R>
int uniforms_of(const Case<R>& c, int n) {
  return c.per_pair == 0 ? n : c.per_pair == 1 ? 2 * n : (n + 1) & ~1;
}

template <class R>
bool close(R got, long double want) {
  return std::fabs((long double)got - want) <= 8 * Entries<R>::error * (1 + std::fabs(want));
}
