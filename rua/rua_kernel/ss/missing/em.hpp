// Expectation-maximisation for the mean and covariance of incomplete normal data (Dempster, Laird,
// Rubin 1977; by sweeps as in Little, Rubin, Statistical Analysis with Missing Data).
#pragma once
#include "rua_kernel/ss/missing/model.hpp"

namespace ork::ss {

// Reals of a batch of the E step.
constexpr int kExpectationBatch = 0x20000;

// The batch that goes through the dense layer: columns of `count` observations.
template <class R>
struct Batch {
  int p, count;
  R *y, *z;  // p + 1 columns each

  // The constant and the observations, 0 where they miss something.
  void set_y(const R* rows) const {
    std::fill_n(y, count, R(1));
    for (int i = 0; i < count; ++i)
      for (int j = 0; j < p; ++j) y[size_t(j + 1) * count + i] = rows[size_t(i) * p + j];
  }
  // The conditional means in the columns of what is missing, 0 elsewhere.
  void set_z(const Members& v, const R* means) const {
    std::fill_n(z, size_t(p + 1) * count, R(0));
    for (int i = 0; i < count; ++i)
      for (int a = 0; a < v.gaps; ++a)
        z[size_t(v.missing[a] + 1) * count + i] = means[size_t(i) * v.gaps + a];
  }
};

template <class R>
class Expectation {
 public:
  Expectation(Model<R>& model, const Patterns<R>& patterns)
      : model_(model),
        patterns_(patterns),
        length_(std::min(std::max(kExpectationBatch / model.d, 1), patterns.longest())),
        area_(uint64_t(length_) * (2 * model.d + model.p)) {}
  explicit operator bool() const { return bool(area_); }

  // Adds what pattern k misses, under the parameters, to the sums.
  void step(int k) {
    const Pattern& pattern = patterns_[k];
    if (pattern.gaps == 0) return;
    const Members v = model_.sweep_to(patterns_, k);
    const SweepForm<R>&theta = model_.theta, &sums = model_.sums;
    for (int a = 0; a < v.gaps; ++a)
      for (int b = a; b < v.gaps; ++b) {
        const int i = v.missing[a] + 1, j = v.missing[b] + 1;
        sums[i][j] += R(pattern.count) * theta[i][j];
      }
    // Where the dense layer does nothing, batches may be short enough for the first cache.
    const int p = model_.p, half = p / 2;
    const bool dense = p > 10, dense_products = dense && near_half(v.gaps, p),
               dense_squares = dense && v.gaps > half;
    const int length = dense_products || dense_squares ? length_ : std::min(length_, kNear);
    const R* rows = patterns_.rows(pattern);
    for (int first = 0; first < pattern.count; first += length) {
      const Batch<R> batch{p, std::min(length, pattern.count - first), area_.get(),
                           area_.get() + size_t(length_) * model_.d};
      R* const means = batch.z + size_t(length_) * model_.d;
      conditional_means(theta, v, batch.count, rows, means);
      if (dense_products || dense_squares) batch.set_z(v, means);
      if (dense_products) {
        batch.set_y(rows);
        Dense<R>::gemm("T", "N", &model_.d, &model_.d, &batch.count, &one, batch.y, &batch.count,
                       batch.z, &batch.count, &one, sums.a, &model_.d);
      } else {
        add_products(v, batch.count, rows, means, sums);
      }
      if (dense_squares)
        Dense<R>::syrk("L", "T", &model_.d, &batch.count, &one, batch.z, &batch.count, &one, sums.a,
                       &model_.d);
      else
        add_squares(v, batch.count, means, sums);
      rows += size_t(batch.count) * p;
    }
  }

 private:
  static constexpr int kNear = 32;
  static constexpr R one = 1;

  Model<R>& model_;
  const Patterns<R>& patterns_;
  const int length_;  // of the longest batch
  const Scratch<R> area_;
};

// Moves theta to the estimates, by at most `iterations` steps, until none of its elements moves by
// as much as the tolerance. False: no memory.
template <class R>
bool expectation_maximisation(Model<R>& model, const Patterns<R>& patterns, int iterations,
                              R tolerance) {
  Expectation<R> expectation(model, patterns);
  if (!expectation) return false;
  const auto &theta = model.theta, &before = model.other;
  const size_t square = model.square();
  for (R moved = tolerance; iterations > 0 && !(tolerance > moved); --iterations) {
    std::copy_n(theta.a, square, before.a);
    std::copy_n(model.constant.a, square, model.sums.a);
    // The order of the sums is free: that with the fewest sweeps.
    for (int k = 0; k < patterns.size(); ++k) expectation.step(patterns.near_order()[k]);
    settle(model.sums, patterns.n, theta);
    moved = 0;
    for (size_t i = 0; i < square; ++i) {
      const R distance = theta.a[i] - before.a[i], size = distance < 0 ? -distance : distance;
      if (size > moved) moved = size;
    }
  }
  return true;
}

}  // namespace ork::ss
