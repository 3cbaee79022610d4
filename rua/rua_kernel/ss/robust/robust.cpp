// Robust mean and covariance: an orthogonalised start, its outliers rejected, then steps towards
// an S-estimate.
#include "base/scratch.hpp"
#include "base/threads.hpp"
#include "rua_kernel/ss/quantiles/quantiles.hpp"
#include "rua_kernel/ss/robust/ogk.hpp"
#include "rua_kernel/ss/robust/tbs.hpp"
#include "rua_kernel/ss/service/computation.hpp"
#include "rua_kernel/ss/service/symmetric.hpp"

namespace ork::ss {
namespace {

template <class R>
int32_t check(const Task<R>& t, uint64_t method) {
  if (!t.dimension || t.integer(t.dimension) < 1) return ORK_SS_BAD_DIMENSION;
  if (!t.observationCount || t.integer(t.observationCount) <= 2 * t.integer(t.dimension))
    return ORK_SS_BAD_OBSERVATION_COUNT;
  if (!t.storageFormat) return ORK_SS_NULL_STORAGE;
  const int64_t layout = t.integer(t.storageFormat);
  if (layout != ORK_SS_ROWS && layout != ORK_SS_COLUMNS) return ORK_SS_BAD_STORAGE;
  if (!t.robustMean) return ORK_SS_NULL_ROBUST_MEAN;
  if (!t.robustCov) return ORK_SS_NULL_ROBUST_COV;
  if (!t.robustCovStorage) return ORK_SS_NULL_STORAGE;
  const int64_t storage = t.integer(t.robustCovStorage);
  if (storage < ORK_SS_FULL || storage > ORK_SS_UPPER_PACKED) return ORK_SS_BAD_STORAGE;
  if (!(method & ORK_SS_TBS)) return ORK_SS_BAD_METHOD;
  return t.observations ? ORK_SS_OK : ORK_SS_NULL_OBSERVATIONS;
}

constexpr int kMostSteps = 10000;  // where weights of 0 and 1 take turns, no number is enough

template <class R>
struct Parameters {
  double breakdown, rejection;
  R tolerance;
  int steps;

  // A value that is out of its range, a NaN too, gives way to the default.
  explicit Parameters(const Task<R>& t) : rejection(R(0.001)), tolerance(R(0.001)), steps(100) {
    const double n = t.n(), most = (n - t.p()) / (2 * n);
    breakdown = most;
    const R* const a = t.robustParams;
    if (!a || !t.robustParamCount || t.integer(t.robustParamCount) != 4) return;
    if (a[0] > 0 && a[0] < most) breakdown = a[0];
    if (a[1] > 0 && a[1] < 1) rejection = a[1];
    if (a[2] > 0) tolerance = a[2];
    if (a[3] >= 0) steps = a[3] < R(kMostSteps) ? int(a[3]) : kMostSteps;
  }
};

// w <- 1 where the squared distance e is below the quantile of 0.9, in units that put its median at
// that of 0.5; else 0. The number of ones.
template <class R>
int select_good(int p, int n, const R* e, R* w) {
  memcpy(w, e, size_t(n) * sizeof(R));
  const R limit = R(__ruadChi2ICDF(p, 0.9) * take_median(w, n) / __ruadChi2ICDF(p, 0.5));
  int good = 0;
  for (int i = 0; i < n; ++i) {
    const bool is_good = limit > e[i];
    w[i] = is_good ? R(1) : R(0);
    good += is_good;
  }
  return good;
}

template <class R>
int32_t compute(const Task<R>& t, const ork_threader* threader) {
  const Data<R> data = data_of(t);
  const int n = data.n, p = data.p;
  const Symmetric<R> to{t.robustCov, p, code_of(t, t.robustCovStorage)};
  const Scratch<R> block(3 * uint64_t(n) + (to.full() ? 0 : uint64_t(p) * p));
  if (!block) return ORK_SS_NO_MEMORY;
  R *const d = block.get(), *const w = d + n, *const scratch = w + n;
  const Estimate<R> estimate{t.robustMean, to.full() ? to.a : scratch + n};
  const Parameters<R> parameters(t);
  {
    const int threads = ogk_threads<R>(n, threader);
    const Scratch<R> series(ogk_reals<R>(p, n, threads));
    if (!series) return ORK_SS_NO_MEMORY;
    if (const int32_t status = ogk_distances(data, threads, series.get(), d, threader))
      return status;
  }
  const int good = select_good(p, n, d, w);
  if (good == 0) return ORK_SS_TOO_FEW_GOOD;
  if (const int32_t status = weighted_moments(data, w, R(good), estimate, threader)) return status;
  if (parameters.steps > 0) {
    const Biweight biweight = find_biweight(p, parameters.breakdown, parameters.rejection);
    if (const int32_t status = iterate(data, biweight, parameters.tolerance, parameters.steps, d, w,
                                       scratch, estimate, threader))
      return status;
  }
  if (!to.full())
    for (int i = 0; i < p; ++i)
      for (int j = 0; j <= i; ++j) to.set(i, j, estimate.v[size_t(i) * p + j]);
  return ORK_SS_OK;
}

template <class R>
int32_t robust(const Task<R>& t, uint64_t, uint64_t method, const ork_threader* threader) {
  if (const int32_t status = check(t, method)) return status;
  return compute(t, threader);
}

}  // namespace

ORK_COMPUTATION(RobustCovariance, robust)

}  // namespace ork::ss
