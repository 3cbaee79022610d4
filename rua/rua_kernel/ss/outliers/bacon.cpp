#include "rua_kernel/ss/outliers/bacon.hpp"

#include <math.h>
#include <string.h>

#include "base/scratch.hpp"
#include "base/threads.hpp"
#include "rua_kernel/ss/moments/basic.hpp"
#include "rua_kernel/ss/outliers/nearest.hpp"
#include "rua_kernel/ss/quantiles/quantiles.hpp"
#include "rua_kernel/ss/robust/mahalanobis.hpp"
#include "rua_kernel/ss/service/math.hpp"
#include "rua_kernel/ss/service/private_task.hpp"

namespace ork::ss {
namespace {

constexpr int kBatch = 2048;          // observations whose distances stay in the cache
constexpr int kMostRounds = 1000;     // a subset that still changes then goes round in circles
constexpr int kLeastEntries = 10000;  // of the matrix, for more than one thread

template <class R>
class Bacon {
 public:
  Bacon(const Data<R>& data, const BaconSettings& settings, R* weights,
        const ork_threader* threader)
      : data_(data),
        storage_(data.rows ? ORK_SS_ROWS : ORK_SS_COLUMNS),
        settings_(settings),
        weights_(weights),
        threader_(threader),
        subset_(5 * data.p),
        threads_(uint64_t(data.n) * data.p < kLeastEntries ? 1 : thread_limit(threader)) {}

  int32_t run() {
    const uint64_t p = data_.p, buffer = uint64_t(threads_) * kBatch;
    const Scratch<R> reals(p * p + p + buffer + subset_);
    if (!reals) return ORK_SS_NO_MEMORY;
    const Scratch<int> integers(uint64_t(subset_) + threads_);
    if (!integers) return ORK_SS_NO_MEMORY;
    matrix_ = reals.get();
    location_ = matrix_ + p * p;
    distances_ = location_ + p;
    good_ = integers.get() + subset_;
    Nearest<R> nearest(subset_, integers.get(), distances_ + buffer);
    if (const int32_t status = start(nearest)) return status;
    return grow();
  }

 private:
  static int batch_end(int first, int end) { return end - first < kBatch ? end : first + kBatch; }
  R weight(int i) const { return data_.w ? data_.w[i] : R(1); }

  // Mean and inverse covariance of the observations by weight.
  int32_t estimate(const R* w) {
    const int32_t full = ORK_SS_FULL;
    R accumulated[2] = {0, 0};
    PrivateTask<R> task(data_.p, data_.n, storage_, data_.x, w);
    task->moments[kMean] = location_;
    task->cov = matrix_;
    task->covStorage = &full;
    task->accumulatedWeight = accumulated;
    if (const int32_t status = basic(*task, ORK_SS_COV, ORK_SS_ONE_PASS, threader_)) return status;
    if (const int32_t status = Math<R>::test_rank(data_.p, matrix_)) return status;
    return Math<R>::invert(data_.p, matrix_);
  }

  int32_t medians() {
    const int32_t one = 1;
    const R half = R(0.5);
    PrivateTask<R> task(data_.p, data_.n, storage_, data_.x, data_.w);
    task->quantileCount = &one;
    task->quantileOrders = &half;
    task->quantiles = location_;
    return data_.w ? weighted_quantiles(*task)
                   : quantiles(*task, ORK_SS_QUANTILES, ORK_SS_FAST, threader_);
  }

  // Of observations [first, last) from the location.
  int32_t mahalanobis(int first, int last, R* to) const {
    const int32_t from = first, end = last;
    PrivateTask<R> task(data_.p, data_.n, storage_, data_.x);
    task->mahFirst = &from;
    task->mahLast = &end;
    task->mahMean = location_;
    task->mahInverseCov = matrix_;
    task->mahDistances = to;
    return ss::mahalanobis(*task);
  }

  void euclidean(int first, int last, R* to) const {
    const int count = last - first;
    memset(to, 0, size_t(count) * sizeof(R));
    const auto add = [&](int i, int j, R x) {
      const R d = x - location_[j];
      to[i] += d * d;
    };
    for (int j = 0; data_.rows && j < data_.p; ++j) {
      const R* const x = data_.variable(j).x + first;
      for (int i = 0; i < count; ++i) add(i, j, x[i]);
    }
    for (int i = 0; !data_.rows && i < count; ++i) {
      const R* const x = data_.x + (size_t(first) + i) * data_.p;
      for (int j = 0; j < data_.p; ++j) add(i, j, x[j]);
    }
    for (int i = 0; i < count; ++i) to[i] = R(sqrt(to[i]));
  }

  // Gives the observations of the first subset their weights, all others 0.
  int32_t start(Nearest<R>& nearest) {
    memset(weights_, 0, size_t(data_.n) * sizeof(R));
    if (const int32_t status = settings_.medians ? medians() : estimate(data_.w)) return status;
    for (int first = 0; first < data_.n;) {
      const int last = batch_end(first, data_.n);
      if (settings_.medians)
        euclidean(first, last, distances_);
      else if (const int32_t status = mahalanobis(first, last, distances_))
        return status;
      for (R* d = distances_; first < last; ++first) nearest.offer(first, *d++);
    }
    for (int i = 0; i < subset_; ++i) weights_[nearest[i]] = weight(nearest[i]);
    return ORK_SS_OK;
  }

  // Observations below the threshold keep their weight, those of thread `index`; returns how
  // many there are.
  int32_t take_share(int index, R threshold) {
    const int each = data_.n / threads_, begin = index * each;
    const int end = index == threads_ - 1 ? data_.n : begin + each;
    R* const distances = distances_ + size_t(index) * kBatch;
    int good = 0;
    for (int first = begin; first < end;) {
      const int last = batch_end(first, end);
      if (const int32_t status = mahalanobis(first, last, distances)) return status;
      for (const R* d = distances; first < last; ++first) {
        const bool near = threshold > *d++;
        good += near;
        weights_[first] = near ? weight(first) : R(0);
      }
    }
    good_[index] = good;
    return ORK_SS_OK;
  }

  // Replaces the subset by the observations that are not far from it, until it settles.
  int32_t grow() {
    const R n = R(data_.n), p = R(data_.p);
    const R chi = R(sqrt(__ruadChi2ICDF(data_.p, 1 - settings_.alpha)));
    const R correction = 1 + (p + 1) / (n - p) + 2 / (n - 1 - 3 * p);
    const R half = (n + p + 1) / 2, tolerance = R(settings_.tolerance);
    int good = subset_;
    for (int round = 0; round < kMostRounds; ++round) {
      if (const int32_t status = estimate(weights_)) return status;
      const R size = R(good), ratio = (half - size) / (half + size);
      const R threshold = ((ratio > 0 ? ratio : R(0)) + correction) * chi;
      SharedStatus status;
      run_team(threader_, threads_,
               [&](int index, int) { status.put(take_share(index, threshold)); });
      if (status.get() < 0) return status.get();
      good = 0;
      for (int k = 0; k < threads_; ++k) good += good_[k];
      if (good >= data_.n) break;
      // None after none: 0/0 would go on.
      const R change = R(good) - size;
      if (change == 0 || (change < 0 ? -change : change) / size < tolerance) break;
    }
    return good > subset_ ? ORK_SS_OK : ORK_SS_TOO_FEW_GOOD;
  }

  const Data<R>& data_;
  const int storage_;
  const BaconSettings& settings_;
  R* const weights_;
  const ork_threader* const threader_;
  const int subset_;  // observations of the start
  const int threads_;
  R *matrix_, *location_;  // covariance, or its inverse; mean, or medians
  R* distances_;           // a batch for each thread
  int* good_;              // by thread
};

}  // namespace

template <class R>
int32_t bacon(const Data<R>& data, const BaconSettings& settings, R* weights,
              const ork_threader* threader) {
  return Bacon<R>(data, settings, weights, threader).run();
}

template int32_t bacon(const Data<double>&, const BaconSettings&, double*, const ork_threader*);
template int32_t bacon(const Data<float>&, const BaconSettings&, float*, const ork_threader*);

}  // namespace ork::ss
