#pragma once
// How numbers that were drawn agree with the distribution they are said to have: in cells of equal
// probability (chi-square), in the distance of the distribution functions at the cells' borders
// (Kolmogorov, Smirnov), and in the number beyond the quantiles of 1e-5 on both sides.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "ork/rua_distributions.h"

namespace laws {

using real = long double;

// Regularised incomplete gamma function, P(a, e^y): by its series below a + 1, else by the
// continued fraction of its complement (W. Gautschi 1979).
inline real gamma_cdf(real a, real y) {
  const real x = expl(y), front = expl(a * y - x - lgammal(a));
  if (front == 0) return y > logl(a);
  if (x < a + 1) {
    real term = 1 / a, sum = term;
    for (real k = a + 1; term > sum * 1e-19L; ++k) sum += term *= x / k;
    return front * sum;
  }
  real b = x + 1 - a, c = 1e300L, d = 1 / b, h = d;
  for (int i = 1; i < 1000000; ++i) {
    const real an = -i * (i - a);
    b += 2;
    d = 1 / (an * d + b);
    c = b + an / c;
    h *= d * c;
    if (fabsl(d * c - 1) < 1e-18L) break;
  }
  return 1 - front * h;
}

// Regularised incomplete beta function I_x(p, q) with ln x and ln(1 - x): a continued fraction, on
// the side where it converges fast.
inline real beta_cdf(real p, real q, real ln_x, real ln_1x) {
  const real x = expl(ln_x);
  if (x > (p + 1) / (p + q + 2)) return 1 - beta_cdf(q, p, ln_1x, ln_x);
  const real front = expl(p * ln_x + q * ln_1x + lgammal(p + q) - lgammal(p) - lgammal(q)) / p;
  real c = 1, d = 1 / (1 - (p + q) * x / (p + 1)), h = d;
  for (int i = 1; i < 1000000; ++i) {
    real an = i * (q - i) * x / ((p + 2 * i - 1) * (p + 2 * i));
    d = 1 / (1 + an * d);
    c = 1 + an / c;
    h *= d * c;
    an = -(p + i) * (p + q + i) * x / ((p + 2 * i) * (p + 2 * i + 1));
    d = 1 / (1 + an * d);
    c = 1 + an / c;
    h *= d * c;
    if (fabsl(d * c - 1) < 1e-18L) break;
  }
  return front * h;
}

struct Law {
  std::string name;
  std::function<int32_t(RuaStream*, int32_t, double*)> of_double;
  std::function<int32_t(RuaStream*, int32_t, float*)> of_single;
  // A monotone parameter t of the values, and what is below it. Values near an end of the range can
  // lie closer together than numbers do.
  real low, high;
  std::function<real(real t)> value, cdf;
  // Letters of the types whose arithmetic this law is beyond; docs/distributions.md tells why.
  std::string beyond;
};

inline Law gamma(double alpha) {
  return {
      "gamma " + std::to_string(alpha),
      [=](RuaStream* s, int32_t n, double* r) { return _ruadRngGamma(0, s, n, r, alpha, 0, 1); },
      [=](RuaStream* s, int32_t n, float* r) {
        return _ruasRngGamma(0, s, n, r, float(alpha), 0, 1);
      },
      -20000,
      logl(alpha + 60 + 12 * std::sqrt(alpha)),
      [](real t) { return expl(t); },
      [=](real t) { return gamma_cdf(alpha, t); },
      ""};
}

// t is ln(x/(1 - x)).
inline Law beta(double p, double q) {
  return {"beta " + std::to_string(p) + ", " + std::to_string(q),
          [=](RuaStream* s, int32_t n, double* r) { return _ruadRngBeta(0, s, n, r, p, q, 0, 1); },
          [=](RuaStream* s, int32_t n, float* r) {
            return _ruasRngBeta(0, s, n, r, float(p), float(q), 0, 1);
          },
          -11000,
          11000,
          [](real t) { return 1 / (1 + expl(-t)); },
          [=](real t) {
            const real e = -log1pl(expl(-fabsl(t))), l = t < 0 ? t + e : e, m = t < 0 ? e : e - t;
            return beta_cdf(p, q, l, m);
          },
          p + q < 0.015  ? "ds"
          : p + q < 0.15 ? "s"
          : p + q > 3e4  ? "s"
                         : ""};
}

// Every method of gamma and beta at its borders, and far away.
inline std::vector<Law> all() {
  std::vector<Law> laws;
  for (const double a : {1e-3, 0.3, 0.59999, 0.6, 0.8, 0.99999, 1.0, 1.00001, 2.5, 30.0, 1e6})
    laws.push_back(gamma(a));
  const double shapes[][2] = {{0.5, 0.5},
                              {1e-3, 1e-3},
                              {0.7, 0.53},
                              {0.7, 0.55},
                              {0.9, 0.9},
                              {0.99999, 0.99999},
                              {0.3, 2},
                              {2, 0.3},
                              {0.99999, 1.00001},
                              {1.00001, 0.99999},
                              {0.5, 1e3},
                              {2, 3},
                              {1.00001, 1.00001},
                              {30, 2},
                              {1e6, 1e6},
                              {1, 2.5},
                              {2.5, 1},
                              {1, 1},
                              {0.3, 1}};
  for (const auto& [p, q] : shapes) laws.push_back(beta(p, q));
  return laws;
}

// Probabilities of agreement as bad as this by chance, and the numbers beyond the quantiles of 1e-5
// in standard deviations from what is expected.
struct Agreement {
  double chi_square, kolmogorov, low_tail, high_tail;
  int cells;  // that are wide enough to be told apart
};

// The chance of a greater distance between the distribution functions of n numbers and of their
// law.
inline double kolmogorov(real distance, real n) {
  real p = 0;
  for (int j = 1; j < 100; ++j) p += (j % 2 ? 2 : -2) * expl(-2 * j * j * distance * distance * n);
  return distance * sqrtl(n) < 0.2L ? 1 : double(p);
}

template <class R>
class Cells {
 public:
  Cells(const Law& law, int cells) {
    real t = law.low;
    const auto border = [&](real p) {
      real lo = t, hi = law.high;
      for (int i = 0; i < 60; ++i) (law.cdf((lo + hi) / 2) < p ? lo : hi) = (lo + hi) / 2;
      return t = (lo + hi) / 2;
    };
    low_ = add(law, border(1e-5L));
    for (int i = 1; i < cells; ++i) add(law, border(real(i) / cells));
    high_ = add(law, border(1 - 1e-5L));
  }

  // All of r is used up.
  void count(const std::vector<R>& r) {
    counts_.resize(borders_.size() + 1);
    for (const R x : r)
      ++counts_[std::upper_bound(borders_.begin(), borders_.end(), x) - borders_.begin()];
    number_ += r.size();
  }
  Agreement agreement() const;

 private:
  std::vector<R> borders_;
  std::vector<real> below_;  // probabilities
  std::vector<uint64_t> counts_;
  uint64_t number_ = 0;
  int low_ = -1, high_ = -1;  // places of the tails' borders

  // A border, unless it is too near to the last one, to 0 or to where numbers are coarse.
  int add(const Law& law, real t) {
    const R x = R(law.value(t));
    const R last = borders_.empty() ? std::numeric_limits<R>::min() : borders_.back();
    const R room = 256 * std::numeric_limits<R>::epsilon() * x;
    if (!(x - last > room) || !(law.value(law.high) - x > room)) return -1;
    borders_.push_back(x);
    below_.push_back(law.cdf(t));
    return int(borders_.size()) - 1;
  }
};

template <class R>
Agreement Cells<R>::agreement() const {
  Agreement a{1, 1, 0, 0, int(counts_.size())};
  real chi = 0, distance = 0, before = 0;
  uint64_t sum = 0;
  int degrees = -1;
  const real n = real(number_);
  for (size_t i = 0; i < counts_.size(); ++i) {
    const real p = (i < below_.size() ? below_[i] : 1) - before;
    const real expected = n * p;
    if (expected > 20)
      chi += (counts_[i] - expected) * (counts_[i] - expected) / expected, ++degrees;
    sum += counts_[i];
    before += p;
    distance = std::max(distance, fabsl(sum / n - before));
  }
  if (degrees > 0) a.chi_square = double(1 - gamma_cdf(degrees / real(2), logl(chi / 2)));
  a.kolmogorov = kolmogorov(distance, n);
  const real tail = 1e-5L * n;
  if (low_ == 0) a.low_tail = double((counts_.front() - tail) / sqrtl(tail));
  if (high_ >= 0) a.high_tail = double((counts_.back() - tail) / sqrtl(tail));
  return a;
}

template <class R>
Agreement check(const Law& law, uint64_t draws, int cells, uint32_t seed) {
  Cells<R> c(law, cells);
  RuaStream* s;
  if (__ruaNewStreamEx(&s, RUA_BRNG_MT19937, 1, &seed) != 0) return {};
  std::vector<R> r;
  for (uint64_t left = draws; left > 0; left -= r.size()) {
    r.resize(std::min<uint64_t>(left, 100000));
    int32_t status;
    if constexpr (sizeof(R) == 8)
      status = law.of_double(s, int32_t(r.size()), r.data());
    else
      status = law.of_single(s, int32_t(r.size()), r.data());
    if (status != 0) break;
    c.count(r);
  }
  __ruaDeleteStream(&s);
  return c.agreement();
}

// Worse than one of a million.
inline bool bad(const Agreement& a) {
  return !(a.chi_square > 1e-6 && a.kolmogorov > 1e-6 && std::fabs(a.low_tail) < 6 &&
           std::fabs(a.high_tail) < 6);
}

}  // namespace laws
