#pragma once
// Means and covariances of multivariate Gaussian numbers against a and T T'.
#include <cmath>
#include <cstdint>
#include <vector>

#include "ork/rua_distributions.h"

namespace laws {

inline int32_t draw_vectors(RuaStream* s, int32_t n, double* r, int32_t dim, int32_t storage,
                            const double* a, const double* t) {
  return _ruadRngGaussianMV(RUA_GAUSSIAN_ICDF, s, n, r, dim, storage, a, t);
}
inline int32_t draw_vectors(RuaStream* s, int32_t n, float* r, int32_t dim, int32_t storage,
                            const float* a, const float* t) {
  return _ruasRngGaussianMV(RUA_GAUSSIAN_ICDF, s, n, r, dim, storage, a, t);
}

// The greatest deviation of a mean or a covariance of so many vectors, in its standard errors.
template <class R>
double covariance_deviation(int dim, int storage, uint64_t vectors) {
  const auto at = [=](int i, int j) {  // of the factor
    return storage == RUA_MATRIX_DIAGONAL && i != j ? 0 : double(1 + (7 * i + 3 * j) % 11) / 8;
  };
  std::vector<R> a(dim), t, r;
  for (int i = 0; i < dim; ++i) a[i] = R(i % 5);
  for (int i = 0; i < dim; ++i)
    for (int j = 0; j < dim; ++j)
      if (storage == RUA_MATRIX_FULL || (storage == RUA_MATRIX_PACKED ? j >= i : i == j))
        t.push_back(storage == RUA_MATRIX_PACKED ? R(at(j, i)) : R(at(i, j)));
  RuaStream* s;
  const uint32_t seed = 20211;
  if (__ruaNewStreamEx(&s, RUA_BRNG_MT19937, 1, &seed) != 0) return INFINITY;
  std::vector<double> mean(dim), product(dim * dim), x(dim);
  constexpr int32_t block = 1000;
  r.resize(block * dim);
  const uint64_t blocks = vectors / block;
  for (uint64_t b = 0; b < blocks; ++b) {
    if (draw_vectors(s, block, r.data(), dim, storage, a.data(), t.data()) != 0) return INFINITY;
    for (int k = 0; k < block; ++k) {
      for (int i = 0; i < dim; ++i) mean[i] += x[i] = double(r[k * dim + i]) - a[i];
      for (int i = 0; i < dim; ++i)
        for (int j = 0; j <= i; ++j) product[i * dim + j] += x[i] * x[j];
    }
  }
  __ruaDeleteStream(&s);
  const double n = double(blocks * block);
  const auto exact = [&](int i, int j) {  // j <= i
    double sum = 0;
    for (int k = 0; k <= j; ++k) sum += at(i, k) * at(j, k);
    return sum;
  };
  double worst = 0;
  for (int i = 0; i < dim; ++i) {
    const double variance = exact(i, i);
    worst = std::fmax(worst, std::fabs(mean[i] / n) / std::sqrt(variance / n));
    for (int j = 0; j <= i; ++j) {
      const double c = exact(i, j), error = std::sqrt((variance * exact(j, j) + c * c) / n);
      worst = std::fmax(worst, std::fabs(product[i * dim + j] / n - c) / error);
    }
  }
  return worst;
}

}  // namespace laws
