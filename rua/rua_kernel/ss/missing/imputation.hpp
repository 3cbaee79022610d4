// The imputation step of data augmentation (Tanner, Wong 1987; Schafer, Analysis of Incomplete
// Multivariate Data, 1997): draws what is missing, given the parameters and what is there.
#pragma once
#include "rua_kernel/ss/missing/draws.hpp"
#include "rua_kernel/ss/missing/model.hpp"

namespace ork::ss {

// Reals of a batch in each of three buffers.
constexpr int kImputationBatch = 0x40000;
// Below this many variables, products are loops.
constexpr int kDense = 21;

template <class R>
class Imputation {
 public:
  Imputation(Model<R>& model, const Patterns<R>& patterns)
      : model_(model),
        patterns_(patterns),
        p_(model.p),
        length_(std::min(std::max(kImputationBatch / p_, 1), patterns.longest())),
        blocks_(2 * square() + p_),
        area_(3 * uint64_t(length_) * p_),
        factor_(blocks_.get()),
        products_(place(blocks_, square())),
        zeros_(place(blocks_, 2 * square())),
        x_(area_.get()),
        z_(place(area_, uint64_t(length_) * p_)),
        draws_(place(area_, 2 * uint64_t(length_) * p_)) {
    if (blocks_) std::fill_n(zeros_, p_, R(0));
  }
  explicit operator bool() const { return blocks_ && area_; }

  // The draws go to `simulated`, observation after observation; mean and covariance of the
  // completed data, of divisor n, to model.other.
  int32_t step(RuaStream* stream, R* simulated) {
    std::copy_n(model_.constant.a, model_.square(), model_.sums.a);
    for (int k = 0; k < patterns_.size(); ++k)
      if (const int32_t status = complete(stream, k, simulated)) return status;
    settle(model_.sums, patterns_.n, model_.other);
    return ORK_SS_OK;
  }

 private:
  uint64_t square() const { return uint64_t(p_) * p_; }

  int32_t complete(RuaStream* stream, int k, R* simulated) {
    const Pattern& pattern = patterns_[k];
    if (pattern.gaps == 0) return ORK_SS_OK;
    const Members v = model_.sweep_to(patterns_, k);
    const int q = v.gaps, half = p_ / 2;
    for (int a = 0; a < q; ++a)
      for (int b = 0; b < q; ++b)
        factor_[a * q + b] = model_.theta[v.missing[a] + 1][v.missing[b] + 1];
    int info = 0;
    Dense<R>::potrf("U", &q, factor_, &q, &info);
    if (info != 0) return ORK_SS_IMPUTE_CHOLESKY;
    const bool dense_means = p_ - q >= kDense && q >= kDense,
               dense_products = p_ >= kDense && near_half(q, p_),
               dense_squares = p_ >= kDense && q > half;
    for (int first = 0; first < pattern.count; first += length_) {
      const int count = std::min(length_, pattern.count - first);
      const R* const rows = patterns_.rows(pattern) + size_t(first) * p_;
      if (dense_means || dense_products) set_present(v, count, rows);
      if (dense_means)
        dense_conditional_means(v, count);
      else
        conditional_means(model_.theta, v, count, rows, z_);
      if (Draws<R>::vectors(RUA_GAUSSIANMV_ICDF, stream, count, draws_, q, RUA_MATRIX_FULL, zeros_,
                            factor_) < 0)
        return ORK_SS_IMPUTE_GAUSSIAN_MV;
      put_draws(v, count, dense_means, patterns_.offsets(pattern) + first, simulated);
      if (dense_products || dense_squares) set_drawn(q, count);
      if (dense_products)
        add_dense_products(v, count);
      else
        add_products(v, count, rows, draws_, model_.sums);
      if (dense_squares)
        add_dense_squares(v, count);
      else
        add_squares(v, count, draws_, model_.sums);
    }
    return ORK_SS_OK;
  }

  // x, z: columns of `count` values.
  void set_present(const Members& v, int count, const R* rows) {
    for (int i = 0; i < count; ++i)
      for (int b = 0; b < p_ - v.gaps; ++b)
        x_[size_t(b) * count + i] = rows[size_t(i) * p_ + v.present[b]];
  }
  void set_drawn(int q, int count) {
    for (int i = 0; i < count; ++i)
      for (int a = 0; a < q; ++a) z_[size_t(a) * count + i] = draws_[size_t(i) * q + a];
  }

  void dense_conditional_means(const Members& v, int count) {
    const int q = v.gaps, there = p_ - q;
    for (int a = 0; a < q; ++a) {
      const R* const row = model_.theta[v.missing[a] + 1];
      std::fill_n(z_ + size_t(a) * count, count, row[0]);
      for (int b = 0; b < there; ++b) products_[a * there + b] = row[v.present[b] + 1];
    }
    Dense<R>::gemm("N", "N", &count, &q, &there, &one, x_, &count, products_, &there, &one, z_,
                   &count);
  }

  // draws <- means + draws.
  void put_draws(const Members& v, int count, bool by_columns, const int32_t* offsets,
                 R* simulated) {
    const int q = v.gaps;
    const R* const centre = patterns_.centre();
    for (int i = 0; i < count; ++i) {
      R *const own = draws_ + size_t(i) * q, *const to = simulated + offsets[i];
      for (int a = 0; a < q; ++a) {
        own[a] += by_columns ? z_[size_t(a) * count + i] : z_[size_t(i) * q + a];
        to[a] = own[a] + centre[v.missing[a]];
      }
    }
  }

  void add_dense_products(const Members& v, int count) {
    const int q = v.gaps, there = p_ - q;
    Dense<R>::gemm("T", "N", &q, &there, &count, &one, z_, &count, x_, &count, &zero, products_,
                   &q);
    for (int a = 0; a < q; ++a) {
      R* const row = model_.sums[v.missing[a] + 1];
      for (int i = 0; i < count; ++i) row[0] += z_[size_t(a) * count + i];
      for (int b = 0; b < there; ++b) row[v.present[b] + 1] += products_[b * q + a];
    }
  }
  void add_dense_squares(const Members& v, int count) {
    const int q = v.gaps;
    Dense<R>::syrk("U", "T", &q, &count, &one, z_, &count, &zero, products_, &q);
    for (int b = 0; b < q; ++b)
      for (int a = 0; a <= b; ++a)
        model_.sums[v.missing[a] + 1][v.missing[b] + 1] += products_[b * q + a];
  }

  static constexpr R one = 1, zero = 0;

  Model<R>& model_;
  const Patterns<R>& patterns_;
  const int p_, length_;  // length: of the longest batch
  const Scratch<R> blocks_, area_;
  R *const factor_, *const products_, *const zeros_, *const x_, *const z_, *const draws_;
};

}  // namespace ork::ss
