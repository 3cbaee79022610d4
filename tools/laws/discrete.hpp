#pragma once
// How integers that were drawn agree with the probabilities they are said to have: in the cells,
// one for each integer that is expected more than ten times, in the distance of the distribution
// functions there, and in the numbers below and above.
#include "laws/laws.hpp"

namespace laws {

struct DiscreteLaw {
  std::string name;
  std::function<int32_t(RuaStream*, int32_t, int32_t*)> draw;
  int64_t least, mode, most;            // of the values; their probabilities fall from the mode on
  std::function<real(int64_t)> ln_pmf;  // of values from least to most
  // Beyond single precision: neighbours cannot be told apart there. docs/distributions.md tells
  // from where on.
  bool coarse = false;
  // Draws from which on the distance of a fitted law shows; likewise told there.
  uint64_t shows = UINT64_MAX;
};

inline real ln_factorial(int64_t k) { return lgammal(real(k) + 1); }

inline DiscreteLaw uniform(int32_t a, int32_t b) {
  return {"uniform " + std::to_string(a) + " " + std::to_string(b),
          [=](auto* s, auto n, auto* r) { return _ruaiRngUniform(0, s, n, r, a, b); },
          a,
          a,
          int64_t{b} - 1,
          [=](int64_t) { return -logl(real(b) - a); }};
}

inline DiscreteLaw bernoulli(double p) {
  return {"bernoulli " + std::to_string(p),
          [=](auto* s, auto n, auto* r) { return _ruaiRngBernoulli(0, s, n, r, p); },
          0,
          p > 0.5,
          1,
          [=](int64_t k) { return k ? logl(p) : log1pl(-p); }};
}

inline DiscreteLaw geometric(double p) {
  return {"geometric " + std::to_string(p),
          [=](auto* s, auto n, auto* r) { return _ruaiRngGeometric(0, s, n, r, p); },
          0,
          0,
          INT32_MAX,
          [=](int64_t k) { return k * log1pl(-p) + logl(p); }};
}

inline DiscreteLaw binomial(int32_t n, double p, bool coarse = false) {
  return {"binomial " + std::to_string(n) + " " + std::to_string(p),
          [=](auto* s, auto m, auto* r) { return _ruaiRngBinomial(0, s, m, r, n, p); },
          0,
          std::min(n, int32_t(floorl((n + real(1)) * p))),
          n,
          [=](int64_t k) {
            return ln_factorial(n) - ln_factorial(k) - ln_factorial(n - k) + k * logl(p) +
                   (n - k) * log1pl(-p);
          },
          coarse};
}

inline DiscreteLaw negbinomial(double a, double p, bool coarse = false) {
  std::string name = "negbinomial " + std::to_string(a) + " " + std::to_string(p);
  const real mode = floorl((a - 1) * (1 - real(p)) / p);
  return {std::move(name),
          [=](auto* s, auto n, auto* r) { return _ruaiRngNegbinomial(0, s, n, r, a, p); },
          0,
          mode > 0 ? int64_t(mode) : 0,
          INT32_MAX,
          [=](int64_t k) {
            return lgammal(k + real(a)) - ln_factorial(k) - lgammal(a) + a * logl(p) +
                   k * log1pl(-p);
          },
          coarse};
}

inline DiscreteLaw hypergeometric(int32_t l, int32_t s, int32_t m, bool coarse = false) {
  const auto ln_choose = [](int64_t n, int64_t k) {
    return ln_factorial(n) - ln_factorial(k) - ln_factorial(n - k);
  };
  return {"hypergeometric " + std::to_string(l) + " " + std::to_string(s) + " " + std::to_string(m),
          [=](auto* stream, auto n, auto* r) {
            return _ruaiRngHypergeometric(0, stream, n, r, l, s, m);
          },
          std::max(int64_t{0}, int64_t{s} + m - l),
          int64_t((real(s) + 1) * (real(m) + 1) / (real(l) + 2)),
          std::min(s, m),
          [=](int64_t k) { return ln_choose(m, k) + ln_choose(l - m, s - k) - ln_choose(l, s); },
          coarse};
}

// Method -1: PoissonV, every output with this mean.
inline DiscreteLaw poisson(int32_t method, double lambda, bool coarse = false) {
  const bool fitted = method != RUA_POISSON_PTPE && lambda > 0.5 && lambda < 4;
  const char* const names[] = {"poissonv ", "poisson ", "poisson normal "};
  return {names[method + 1] + std::to_string(lambda),
          [=](RuaStream* s, int32_t n, int32_t* r) {
            if (method >= 0) return _ruaiRngPoisson(method, s, n, r, lambda);
            const std::vector<double> means(size_t(n), lambda);
            return _ruaiRngPoissonV(0, s, n, r, means.data());
          },
          0,
          int64_t(lambda),
          INT32_MAX,
          [=](int64_t k) { return k * logl(lambda) - lambda - ln_factorial(k); },
          coarse,
          fitted ? 1000000 : UINT64_MAX};
}

// Every method at its borders, and far away.
inline std::vector<DiscreteLaw> all_discrete() {
  std::vector<DiscreteLaw> laws = {uniform(0, 100), uniform(-12, -3), bernoulli(0.3),
                                   bernoulli(0.99), geometric(0.3),   geometric(0.999),
                                   geometric(1e-3)};
  for (const double p : {0.3, 0.5, 0.7}) laws.push_back(binomial(10, p));
  for (const double product : {29.99, 30.0})
    for (const int n : {60, 100, 1000000})
      for (const double p : {product / n, 1 - product / n}) laws.push_back(binomial(n, p));
  laws.push_back(binomial(300, 0.5));
  laws.push_back(binomial(1000, 0.1));
  laws.push_back(binomial(1000000, 0.3));
  laws.push_back(binomial(1000000000, 0.5, true));
  // The hat begins where (a - 1)(1 - p)/p is 100; before that, and in shapes to about 2, sums.
  const double ap[][2] = {{10, 0.3},   {1, 0.3},     {0.5, 0.3},   {100.9, 0.5}, {101, 0.5},
                          {0.5, 1e-3}, {1.5, 0.004}, {2.2, 0.005}, {2.3, 0.005}, {3, 0.01},
                          {1000, 0.3}, {20, 1e-3},   {2e5, 0.999}, {1e6, 0.5}};
  for (const auto& [a, p] : ap) laws.push_back(negbinomial(a, p));
  laws.push_back(negbinomial(1e8, 0.5, true));
  // Both halves of lot and sample; modes 39 and 40; 16000 values and one more.
  for (const int s : {30, 130})
    for (const int m : {60, 100}) laws.push_back(hypergeometric(160, s, m));
  for (const int l : {421, 420}) laws.push_back(hypergeometric(l, 129, 129));
  for (const int s : {80, 120}) laws.push_back(hypergeometric(200, s, s));
  laws.push_back(hypergeometric(1600000000, 250000, 250000));
  laws.push_back(hypergeometric(40000, 16000, 20000));
  laws.push_back(hypergeometric(40000, 16001, 20000));
  laws.push_back(hypergeometric(1000000, 1000, 300000));
  laws.push_back(hypergeometric(1000000, 500000, 500000));
  laws.push_back(hypergeometric(1000000000, 500000000, 500000000, true));
  for (const double lambda : {1e-3, 5.0, 26.99, 27.0, 50.0, 100.0, 100.01, 127.99, 1e6})
    laws.push_back(poisson(RUA_POISSON_PTPE, lambda));
  for (const double lambda :
       {0.5, 0.999, 1.0, 1.99, 2.5, 6.0, 12.0, 24.0, 48.0, 99.99, 100.0, 127.99, 1e4, 1e6})
    laws.push_back(poisson(RUA_POISSON_POISNORM, lambda));
  for (double lambda = 0.05; lambda < 2e4; lambda *= 1.9) laws.push_back(poisson(-1, lambda));
  for (const int32_t method : {0, 1, -1}) laws.push_back(poisson(method, 1e8, method >= 0));
  return laws;
}

// Agreement as of the continuous laws; a tail in deviations of a count of at least one.
inline Agreement check(const DiscreteLaw& law, uint64_t draws, uint32_t seed) {
  const real n = real(draws);
  const auto p = [&](int64_t k) { return expl(law.ln_pmf(k)); };
  // The cells, [low, high), and what lies beyond them.
  int64_t low = law.mode, high = law.mode;
  while (low > law.least && n * p(low - 1) > 10) --low;
  while (high <= law.most && n * p(high) > 10) ++high;
  real below = 0, above = 0;
  for (int64_t k = low - 1; k >= law.least && n * p(k) > 1e-12L; --k) below += p(k);
  for (int64_t k = high; k <= law.most && n * p(k) > 1e-12L; ++k) above += p(k);

  std::vector<uint64_t> counts(size_t(high - low) + 2);
  RuaStream* s;
  if (__ruaNewStreamEx(&s, RUA_BRNG_MT19937, 1, &seed) != 0) return {};
  std::vector<int32_t> r;
  for (uint64_t left = draws; left > 0; left -= r.size()) {
    r.resize(std::min<uint64_t>(left, 10000));
    if (law.draw(s, int32_t(r.size()), r.data()) != 0) break;
    for (const int64_t x : r) ++counts[size_t(std::clamp(x, low - 1, high) - low + 1)];
  }
  __ruaDeleteStream(&s);

  const auto deviation = [](uint64_t count, real expected) {
    return double((real(count) - expected) / sqrtl(expected + 1));
  };
  Agreement a{1, 1, deviation(counts.front(), n * below), deviation(counts.back(), n * above),
              int(high - low)};
  real chi = 0, distance = 0, sum = real(counts.front()), expected_sum = n * below;
  int degrees = -1;
  const auto add = [&](real count, real expected) {
    chi += (count - expected) * (count - expected) / expected, ++degrees;
  };
  for (int64_t k = low; k < high; ++k) {
    const real count = real(counts[size_t(k - low + 1)]), expected = n * p(k);
    add(count, expected);
    sum += count, expected_sum += expected;
    distance = std::max(distance, fabsl(sum - expected_sum) / n);
  }
  if (n * below > 10) add(real(counts.front()), n * below);
  if (n * above > 10) add(real(counts.back()), n * above);
  if (degrees > 0) a.chi_square = double(1 - gamma_cdf(degrees / real(2), logl(chi / 2)));
  a.kolmogorov = kolmogorov(distance, n);
  return a;
}

}  // namespace laws
