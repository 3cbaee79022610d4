#pragma once
// Gaussian samples with outliers, for methods that tell these apart.
#include <random>
#include <vector>

namespace statistics {

// Where outliers lie, in deviations of the good ones: at one point, 6 in each variable (and 0.01);
// around that point, as near to one another as 0.5; around the good ones, as far as 10.
enum Kind { kPoint, kCluster, kScatter };

// Observation i of n, of which `bad` are outliers: they stand all over the sample. n is no multiple
// of 7.
inline bool is_bad(int i, int n, int bad) { return i * 7 % n < bad; }

// n observations of p variables, one after another.
template <class R>
std::vector<R> contaminated(int p, int n, int bad, Kind kind, unsigned seed) {
  std::mt19937 g(1000 * seed + 10 * p + kind);
  std::normal_distribution<double> gauss;
  std::vector<R> x(p * n);
  for (int i = 0; i < n; ++i)
    for (int j = 0; j < p; ++j) {
      const double v = gauss(g);
      x[i * p + j] = R(!is_bad(i, n, bad) ? v
                       : kind == kPoint   ? 6 + 0.01 * v
                       : kind == kCluster ? 6 + 0.5 * v
                                          : 10 * v);
    }
  return x;
}

}  // namespace statistics
