// Prints the rows of the discrepancy tables of docs/randomness.md: the L2 star discrepancy of the
// first n points (T. T. Warnock, 1972), as a multiple of what independent uniform points have on
// the average, the root of (2^-d - 3^-d) / n. All pairs of points: a minute.
#include <emmintrin.h>

#include <cmath>
#include <cstdio>
#include <vector>

#include "ork/rua.h"

namespace {

constexpr int kFirst = 8, kLast = 16;

// D^2 = 3^-d - 2^(1 - d)/n sum prod (1 - x^2) + 1/n^2 sum sum prod (1 - max(x, y)). Coordinates
// stand dimension by dimension, so that pairs go two at a time.
class Discrepancy {
 public:
  Discrepancy(int d, const std::vector<double>& points) : d_(d), x_(points.size()) {
    for (size_t i = 0; i < points.size(); ++i) x_[(i % d) * kPoints + i / d] = points[i];
  }
  double first(int n) {
    for (; done_ < n; ++done_) {
      double single = 1, own = 1;
      for (int j = 0; j < d_; ++j) {
        const double x = coordinate(done_, j);
        single *= 1 - x * x;
        own *= 1 - x;
      }
      singles_ += single;
      pairs_ += own + 2 * earlier(done_);
    }
    return std::sqrt(std::pow(3, -d_) - std::pow(2, 1 - d_) * singles_ / n + pairs_ / n / n);
  }

 private:
  static constexpr int kPoints = 1 << kLast;
  const double& coordinate(int i, int j) const { return x_[size_t(j) * kPoints + i]; }
  // The sum over the points before this one.
  double earlier(int point) const {
    const __m128d one = _mm_set1_pd(1);
    __m128d sum = _mm_setzero_pd();
    for (int i = 0; i < point; i += 2) {
      __m128d product = i + 1 < point ? one : _mm_set_sd(1);
      for (int j = 0; j < d_; ++j) {
        const __m128d y = _mm_loadu_pd(&coordinate(i, j));
        const __m128d larger = _mm_max_pd(y, _mm_set1_pd(coordinate(point, j)));
        product = _mm_mul_pd(product, _mm_sub_pd(one, larger));
      }
      sum = _mm_add_pd(sum, product);
    }
    return _mm_cvtsd_f64(sum) + _mm_cvtsd_f64(_mm_unpackhi_pd(sum, sum));
  }

  int d_, done_ = 0;
  std::vector<double> x_;
  double singles_ = 0, pairs_ = 0;
};

std::vector<double> points(int32_t brng, int d) {
  const uint32_t seed = brng == RUA_BRNG_MT19937 ? 20240229 : uint32_t(d);
  RuaStream* stream = nullptr;
  RuaBrngProperties row;
  std::vector<double> r((size_t(1) << kLast) * d);
  if (__ruaNewStreamEx(&stream, brng, 1, &seed) != 0 || __ruaGetBrngProperties(brng, &row) != 0)
    return r;
  row.dGenerate(stream, int32_t(r.size()), r.data(), 0, 1);
  __ruaDeleteStream(&stream);
  return r;
}

}  // namespace

int main() {
  const int32_t generators[] = {RUA_BRNG_SOBOL, RUA_BRNG_NIEDERR, RUA_BRNG_MT19937};
  for (const int d : {2, 10}) {
    std::vector<std::vector<double>> x;
    std::vector<Discrepancy> found;
    for (const int32_t g : generators) x.push_back(points(g, d));
    for (const auto& set : x) found.emplace_back(d, set);
    std::printf("| n, d = %d | average | Sobol | Niederreiter | MT19937 |\n|---|---|---|---|---|\n",
                d);
    for (int k = kFirst; k <= kLast; ++k) {
      const int n = 1 << k;
      const double average = std::sqrt((std::pow(2, -d) - std::pow(3, -d)) / n);
      std::printf("| 2^%d | %.3g |", k, average);
      for (auto& f : found) std::printf(" %.3f |", f.first(n) / average);
      std::printf("\n");
    }
  }
}
