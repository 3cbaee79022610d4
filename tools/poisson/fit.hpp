#pragma once
// Fits of polynomials in a normal number z to the Poisson law: the thresholds at which they pass
// the integers, put through the normal distribution function, against the cumulative probabilities.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

namespace poisson {

using real = long double;

// The greatest normal number that a 24-bit uniform number leads to is 5.42.
constexpr real kEnd = 5.5L;

inline real normal_cdf(real z) { return erfcl(-z * sqrtl(0.5L)) / 2; }
inline real normal_density(real z) { return expl(-z * z / 2) * 0.398942280401432677939946L; }
inline real normal_quantile(real p, real q) {  // q = 1 - p
  real z = 0;
  for (int i = 0; i < 200; ++i) {
    const real off = p < q ? normal_cdf(z) - p : q - normal_cdf(-z);
    real step = off / normal_density(z);
    // Halley's form; it converges from 0 to any quantile in range.
    step /= 1 + z * step / 2 > 0.5L ? 1 + z * step / 2 : 0.5L;
    z -= step > 1 ? 1 : step < -1 ? -1 : step;
    if (fabsl(step) < 1e-17L) break;
  }
  return z;
}

// P(X < k) and its complement for k from first on, over all k where neither is below 1e-12.
struct Law {
  int64_t first;
  std::vector<real> below, above;

  explicit Law(real mean) {
    const real width = 8 * sqrtl(mean) + 12;
    first = std::max<int64_t>(1, int64_t(mean - width));
    const int64_t last = int64_t(mean + width + 12), mode = int64_t(mean);
    std::vector<real> p(last + 1 - first + 1);  // of first - 1 ... last
    const int64_t base = first - 1;
    p[mode - base] = expl(mode * logl(mean) - mean - lgammal(mode + 1.0L));
    for (int64_t k = mode; k > base; --k) p[k - 1 - base] = p[k - base] * k / mean;
    for (int64_t k = mode; k < last; ++k) p[k + 1 - base] = p[k - base] * mean / (k + 1);
    below.resize(p.size() - 1);
    above.resize(p.size() - 1);
    real sum = 0;
    for (size_t i = 0; i < below.size(); ++i) below[i] = sum += p[i];
    sum = 0;
    for (size_t i = below.size(); i-- > 0;) above[i] = sum += p[i + 1];
    while (above.back() < 1e-12L) above.pop_back(), below.pop_back();
    size_t skip = 0;
    while (below[skip] < 1e-12L) ++skip;
    first += skip;
    below.erase(below.begin(), below.begin() + skip);
    above.erase(above.begin(), above.begin() + skip);
  }
};

// A polynomial of degree 4 in z.
struct Quartic {
  real c[5];
  real operator()(real z) const { return c[0] + z * (c[1] + z * (c[2] + z * (c[3] + z * c[4]))); }
  real slope(real z) const { return c[1] + z * (2 * c[2] + z * (3 * c[3] + z * 4 * c[4])); }
};

// Where q passes k, which it does before kEnd, from a z nearby; q rises there.
inline real crossing(const Quartic& q, real k, real z) {
  real low = -kEnd, high = kEnd;
  z = std::clamp(z, low, high);
  for (int i = 0; i < 200; ++i) {
    (q(z) < k ? low : high) = z;
    const real slope = q.slope(z), next = z - (q(z) - k) / slope;
    const real last = z;
    z = slope > 0 && next > low && next < high ? next : (low + high) / 2;
    if (fabsl(z - last) < 1e-16L) break;
  }
  return z;
}

}  // namespace poisson
