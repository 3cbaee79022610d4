// The posterior step of data augmentation: draws mean and covariance given the completed data. The
// prior is normal times inverted Wishart (Schafer, Analysis of Incomplete Multivariate Data, 1997).
#pragma once
#include <math.h>

#include "rua_kernel/ss/missing/draws.hpp"
#include "rua_kernel/ss/missing/model.hpp"

namespace ork::ss {

template <class R>
class Posterior {
 public:
  // prior: p means, their weight, degrees of freedom, the rows of the upper triangle of the
  // inverted Wishart law's matrix; null: no knowledge.
  Posterior(Model<R>& model, const R* prior, const R* centre)
      : model_(model),
        p_(model.p),
        blocks_(3 * square() + 3 * uint64_t(p_)),
        matrix_(blocks_.get()),
        bartlett_(place(blocks_, square())),
        root_(place(blocks_, 2 * square())),
        mean_(place(blocks_, 3 * square())),
        drawn_(place(blocks_, 3 * square() + p_)),
        normals_(place(blocks_, 3 * square() + 2 * uint64_t(p_))) {
    if (blocks_) set_prior(prior, centre);
  }
  explicit operator bool() const { return bool(blocks_); }

  // From the completed data's estimates in model.other to model.theta. What is learnt stays: the
  // posterior is the next step's prior.
  int32_t step(RuaStream* stream, int n) {
    learn(n);
    if (!draw_bartlett(stream)) return ORK_SS_POSTERIOR_GAUSSIAN;
    // The covariance is root root', root = L T^-1: L L' the matrix, T'T a Wishart draw. By columns
    // L is lower, T upper triangular.
    int info = 0;
    std::copy_n(matrix_, square(), root_);
    Dense<R>::potrf("L", &p_, root_, &p_, &info);
    if (info != 0) return ORK_SS_POSTERIOR_CHOLESKY;
    for (int i = 1; i < p_; ++i) std::fill_n(root_ + size_t(i) * p_, i, R(0));
    Dense<R>::trtri("U", "N", &p_, bartlett_, &p_, &info);
    if (info != 0) return ORK_SS_POSTERIOR_INVERSE;
    const R one = 1, zero = 0, scale = R(1 / ::sqrt(weight_));
    const int step = 1;
    Dense<R>::trmm("R", "U", "N", "N", &p_, &p_, &one, bartlett_, &p_, root_, &p_);
    std::copy_n(mean_, p_, drawn_);
    Dense<R>::gemv("N", &p_, &p_, &scale, root_, &p_, normals_, &step, &one, drawn_, &step);
    const SweepForm<R>& theta = model_.theta;
    Dense<R>::syrk("U", "N", &p_, &p_, &one, root_, &p_, &zero, theta[1] + 1, &model_.d);
    theta[0][0] = -1;
    for (int j = 0; j < p_; ++j) theta[j + 1][0] = drawn_[j];
    theta.mirror();
    return ORK_SS_OK;
  }

 private:
  uint64_t square() const { return uint64_t(p_) * p_; }

  void set_prior(const R* prior, const R* centre) {
    weight_ = 0;
    freedom_ = p_;
    std::fill_n(matrix_, square(), R(0));
    std::fill_n(mean_, p_, R(0));
    if (!prior) return;
    for (int j = 0; j < p_; ++j) mean_[j] = prior[j] - centre[j];
    if (prior[p_] > 0) weight_ = prior[p_];
    constexpr R kMost = R(1e18);
    if (const R freedom = prior[p_ + 1]; freedom > R(p_))
      freedom_ = int64_t(freedom < kMost ? freedom : kMost);
    const R* from = prior + p_ + 2;
    for (int i = 0; i < p_; ++i)
      for (int j = i; j < p_; ++j) matrix_[i * p_ + j] = matrix_[j * p_ + i] = *from++;
  }

  void learn(int n) {
    const SweepForm<R>& data = model_.other;
    const double weight = weight_ + n;
    const R own = R(n / weight), old = R(weight_ / weight), between = R(weight_ * n / weight);
    for (int j = 0; j < p_; ++j)
      for (int k = 0; k <= j; ++k) {
        const R distances = (data[0][j + 1] - mean_[j]) * (data[0][k + 1] - mean_[k]);
        matrix_[j * p_ + k] += R(n) * data[j + 1][k + 1] + between * distances;
        matrix_[k * p_ + j] = matrix_[j * p_ + k];
      }
    for (int j = 0; j < p_; ++j) mean_[j] = own * data[0][j + 1] + old * mean_[j];
    weight_ = weight;
    freedom_ += n;
  }

  // The triangular root of a Wishart draw (Bartlett 1933), and p normal numbers. The chi-square
  // numbers come as sums of squares, so a step takes about p freedom_ numbers.
  bool draw_bartlett(RuaStream* stream) {
    for (int i = 0; i < p_; ++i) {
      double sum = 0;
      const bool drawn = draw(stream, freedom_ - i, [&](R x) { sum += double(x) * x; });
      if (!drawn) return false;
      bartlett_[i * p_ + i] = R(::sqrt(sum));
    }
    int i = 1, j = 0;
    const auto next = [&](R x) {
      bartlett_[i * p_ + j] = x;
      if (++j == i) ++i, j = 0;
    };
    if (!draw(stream, int64_t(p_) * (p_ - 1) / 2, next)) return false;
    return Draws<R>::gaussian(RUA_GAUSSIAN_ICDF, stream, p_, normals_, 0, 1) >= 0;
  }

  template <class F>
  bool draw(RuaStream* stream, int64_t count, F take) {
    constexpr int kMost = 1024;
    R x[kMost];
    for (; count > 0; count -= kMost) {
      const int some = int(std::min<int64_t>(count, kMost));
      if (Draws<R>::gaussian(RUA_GAUSSIAN_ICDF, stream, some, x, 0, 1) < 0) return false;
      for (int i = 0; i < some; ++i) take(x[i]);
    }
    return true;
  }

  Model<R>& model_;
  const int p_;
  const Scratch<R> blocks_;
  // The law of mean and covariance: normal around mean_ of this weight; inverted Wishart.
  R *const matrix_, *const bartlett_, *const root_, *const mean_, *const drawn_, *const normals_;
  double weight_;
  int64_t freedom_;
};

}  // namespace ork::ss
