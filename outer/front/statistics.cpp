// One call for the estimates of a statistics task: which entries compute them.
#include "ork/front.h"
#include "outer/export.hpp"
#include "rua/rua_kernel/ss/service/task.hpp"

namespace {

typedef int32_t Entry(ork_ss_task*, uint32_t, uint32_t, uint32_t, uint32_t, const ork_threader*);

using Record = ork::ss::Task<double>;  // of both precisions: pointers and integers lie alike

struct Computation {
  uint64_t estimates, methods;  // what it serves
  Entry *in_double, *in_single;
  bool observed = true;                         // reads observations, but from sums
  ork::ss::Integers Record::*orders = nullptr;  // how many it reads, where it reads any
  int bad_orders = 0;
};

// Needs no threads.
template <int32_t entry(ork_ss_task*, uint32_t, uint32_t, uint32_t)>
int32_t alone(ork_ss_task* task, uint32_t estimates_low, uint32_t estimates_high,
              uint32_t method_low, uint32_t, const ork_threader*) {
  return entry(task, estimates_low, estimates_high, method_low);
}

constexpr uint64_t moments =
    ORK_SS_MEAN | ORK_SS_RAW2 | ORK_SS_RAW3 | ORK_SS_RAW4 | ORK_SS_CENTRAL2 | ORK_SS_CENTRAL3 |
    ORK_SS_CENTRAL4 | ORK_SS_KURTOSIS | ORK_SS_SKEWNESS | ORK_SS_VARIATION | ORK_SS_COV |
    ORK_SS_COR | ORK_SS_SUM | ORK_SS_SUM2 | ORK_SS_SUM3 | ORK_SS_SUM4 | ORK_SS_CENTRAL_SUM2 |
    ORK_SS_CENTRAL_SUM3 | ORK_SS_CENTRAL_SUM4 | ORK_SS_CROSS_PRODUCT;

// In the order in which they run: later ones may read what the moments left.
constexpr Computation computations[] = {
    {moments,
     ORK_SS_FAST | ORK_SS_ONE_PASS | ORK_SS_TWO_PASS | ORK_SS_FROM_SUMS | ORK_SS_FROM_SUMS_ALT,
     _ruadSSBasic, _ruasSSBasic},
    {ORK_SS_MIN | ORK_SS_MAX, ORK_SS_FAST | ORK_SS_ONE_PASS, _ruadSSMinmax, _ruasSSMinmax},
    {ORK_SS_QUANTILES | ORK_SS_ORDER_STATS, ORK_SS_FAST, _ruadSSQuantiles, _ruasSSQuantiles, true,
     &Record::quantileCount, ORK_SS_BAD_QUANTILES},
    {ORK_SS_QUANTILES, ORK_SS_STREAM | ORK_SS_STREAM_ADD, _ruadSSStreamQuantiles,
     _ruasSSStreamQuantiles, true, &Record::streamOrderCount, ORK_SS_BAD_STREAM_ORDERS},
    {ORK_SS_MEDIAN_ABS_DEV, ORK_SS_FAST, _ruadSSMAD, _ruasSSMAD},
    {ORK_SS_MEAN_ABS_DEV, ORK_SS_FAST | ORK_SS_TWO_PASS, _ruadSSMAD, _ruasSSMAD},
    {ORK_SS_POOLED_COV | ORK_SS_GROUP_COV, ORK_SS_ONE_PASS, _ruadSSPooledCovariance,
     _ruasSSPooledCovariance},
    {ORK_SS_OUTLIERS, ORK_SS_BACON, _ruadSSOutliersDetection, _ruasSSOutliersDetection},
    {ORK_SS_ROBUST_COV, ORK_SS_TBS, _ruadSSRobustCovariance, _ruasSSRobustCovariance},
    {ORK_SS_PARTIAL_COV | ORK_SS_PARTIAL_COR, ORK_SS_FAST, alone<_ruadSSPartialCovariance>,
     alone<_ruasSSPartialCovariance>, false},
    {ORK_SS_REPAIRED_COR, ORK_SS_SPECTRAL, _ruadSSCorParametrization, _ruasSSCorParametrization,
     false},
    {ORK_SS_IMPUTED_VALUES, ORK_SS_IMPUTATION, _ruadSSMissingValues, _ruasSSMissingValues},
};

// Fields without which these estimates cannot be had by these methods, in the order in which
// their entries ask. The moments' entry runs first of all, and asks for its own.
struct Need {
  uint64_t estimates, methods;
  bool (*met)(const Record& t);
  int status;
};
#define ORK_HAS(field) [](const Record& t) { return t.field != nullptr; }
constexpr uint64_t any = ~uint64_t{0}, streamed = ORK_SS_STREAM | ORK_SS_STREAM_ADD,
                   partial = ORK_SS_PARTIAL_COV | ORK_SS_PARTIAL_COR,
                   grouped = ORK_SS_POOLED_COV | ORK_SS_GROUP_COV;
constexpr Need needs[] = {
    {ORK_SS_MIN, any, ORK_HAS(min), ORK_SS_NULL_MIN},
    {ORK_SS_MAX, any, ORK_HAS(max), ORK_SS_NULL_MAX},
    {ORK_SS_QUANTILES, ORK_SS_FAST, ORK_HAS(quantiles), ORK_SS_NULL_QUANTILES},
    {ORK_SS_QUANTILES, ORK_SS_FAST, ORK_HAS(quantileOrders), ORK_SS_NULL_QUANTILE_ORDERS},
    {ORK_SS_QUANTILES, ORK_SS_FAST, ORK_HAS(quantileCount), ORK_SS_BAD_QUANTILES},
    {ORK_SS_ORDER_STATS, any, ORK_HAS(orderStatistics), ORK_SS_NULL_ORDER_STATS},
    {ORK_SS_ORDER_STATS, any, ORK_HAS(orderStatisticsStorage), ORK_SS_NULL_STORAGE},
    {ORK_SS_QUANTILES, streamed, ORK_HAS(streamQuantiles), ORK_SS_NULL_STREAM_QUANTILES},
    {ORK_SS_QUANTILES, streamed, ORK_HAS(streamOrders), ORK_SS_NULL_STREAM_ORDERS},
    {ORK_SS_QUANTILES, streamed, ORK_HAS(streamOrderCount), ORK_SS_BAD_STREAM_ORDERS},
    {ORK_SS_QUANTILES, streamed, ORK_HAS(streamParamCount), ORK_SS_NULL_STREAM_PARAM_COUNT},
    {ORK_SS_QUANTILES, streamed, ORK_HAS(streamParams), ORK_SS_NULL_STREAM_PARAMS},
    {ORK_SS_MEDIAN_ABS_DEV, any, ORK_HAS(medianAbsDev), ORK_SS_NULL_MEDIAN_ABS_DEV},
    {ORK_SS_MEAN_ABS_DEV, any, ORK_HAS(meanAbsDev), ORK_SS_NULL_MEAN_ABS_DEV},
    {ORK_SS_MEAN_ABS_DEV, ORK_SS_TWO_PASS, ORK_HAS(mean()), ORK_SS_NULL_MEAN},
    {grouped, any, ORK_HAS(groupIndex), ORK_SS_NULL_GROUPS},
    {ORK_SS_POOLED_COV, any, ORK_HAS(pooledCovStorage), ORK_SS_NULL_STORAGE},
    {ORK_SS_POOLED_COV, any, ORK_HAS(pooledCov), ORK_SS_NULL_POOLED_COV},
    {ORK_SS_POOLED_COV, any, ORK_HAS(pooledMean), ORK_SS_NULL_POOLED_MEAN},
    {ORK_SS_GROUP_COV, any, ORK_HAS(groupCovStorage), ORK_SS_NULL_STORAGE},
    {ORK_SS_GROUP_COV, any, ORK_HAS(groupRequest), ORK_SS_NULL_GROUPS},
    {ORK_SS_GROUP_COV, any, ORK_HAS(groupCov), ORK_SS_NULL_GROUP_COV},
    {ORK_SS_GROUP_COV, any, ORK_HAS(groupMeans), ORK_SS_NULL_GROUP_MEANS},
    {ORK_SS_OUTLIERS, any, ORK_HAS(outlierWeights), ORK_SS_NULL_OUTLIER_WEIGHTS},
    {ORK_SS_ROBUST_COV, any, ORK_HAS(robustMean), ORK_SS_NULL_ROBUST_MEAN},
    {ORK_SS_ROBUST_COV, any, ORK_HAS(robustCov), ORK_SS_NULL_ROBUST_COV},
    {ORK_SS_ROBUST_COV, any, ORK_HAS(robustCovStorage), ORK_SS_NULL_STORAGE},
    {partial, any, [](const Record& t) { return t.cov || t.cor; }, ORK_SS_NULL_COV},
    {partial, any, [](const Record& t) { return (t.cov ? t.covStorage : t.corStorage) != nullptr; },
     ORK_SS_NULL_STORAGE},
    {partial, any, ORK_HAS(partialIndex), ORK_SS_NULL_PARTIAL_INDEX},
    {ORK_SS_PARTIAL_COV, any, ORK_HAS(partialCov), ORK_SS_NULL_PARTIAL_COV},
    {ORK_SS_PARTIAL_COV, any, ORK_HAS(partialCovStorage), ORK_SS_NULL_STORAGE},
    {ORK_SS_PARTIAL_COR, any, ORK_HAS(partialCor), ORK_SS_NULL_PARTIAL_COR},
    {ORK_SS_PARTIAL_COR, any, ORK_HAS(partialCorStorage), ORK_SS_NULL_STORAGE},
    {ORK_SS_REPAIRED_COR, any, ORK_HAS(cor), ORK_SS_NULL_COR},
    {ORK_SS_REPAIRED_COR, any, ORK_HAS(corStorage), ORK_SS_NULL_STORAGE},
    {ORK_SS_REPAIRED_COR, any, ORK_HAS(paramCorrelation), ORK_SS_NULL_PARAM_COR},
    {ORK_SS_REPAIRED_COR, any, ORK_HAS(paramCorrelationStorage), ORK_SS_NULL_STORAGE},
    {ORK_SS_IMPUTED_VALUES, any, ORK_HAS(missingParams), ORK_SS_NULL_MISSING_PARAMS},
    {ORK_SS_IMPUTED_VALUES, any, ORK_HAS(missingParamCount), ORK_SS_NULL_MISSING_PARAM_COUNT},
    {ORK_SS_IMPUTED_VALUES, any, [](const Record& t) { return !t.simulated || t.simulatedCount; },
     ORK_SS_NULL_SIMULATED_COUNT},
    {ORK_SS_IMPUTED_VALUES, any, [](const Record& t) { return t.simulated || !t.simulatedCount; },
     ORK_SS_NULL_SIMULATED},
    {ORK_SS_IMPUTED_VALUES, any,
     [](const Record& t) { return t.simulated || (t.estimates && t.estimateCount); },
     ORK_SS_NOTHING_TO_IMPUTE},
};
#undef ORK_HAS

// A number that kernels read as 32 bits, `least` or more.
bool counts(const Record& t, ork::ss::Integers parameter, int least) {
  if (parameter == nullptr) return false;
  const int64_t value = t.integer(parameter);
  return value >= least && value <= INT32_MAX;
}

// What kernels leave to their caller: the numbers that say how far they read, and the arrays they
// read there.
int shape(const Record& t, const Computation& c, uint64_t by) {
  if (!counts(t, t.dimension, 1)) return ORK_SS_BAD_DIMENSION;
  if (!c.observed) return ORK_SS_OK;
  const bool observed = by & ~(ORK_SS_FROM_SUMS | ORK_SS_FROM_SUMS_ALT);
  const bool streaming = by & streamed;  // of no new values, too
  if (observed || (t.accumulatedWeight == nullptr && t.observationCount != nullptr))
    if (!counts(t, t.observationCount, streaming ? 0 : 1)) return ORK_SS_BAD_OBSERVATION_COUNT;
  if (observed && t.n() > 0) {
    if (t.observations == nullptr) return ORK_SS_NULL_OBSERVATIONS;
    if (t.storageFormat == nullptr) return ORK_SS_NULL_STORAGE;
  }
  if (c.orders != nullptr && t.*c.orders != nullptr && !counts(t, t.*c.orders, 0))
    return c.bad_orders;
  return ORK_SS_OK;
}

}  // namespace

ORK_OUTER int ork_ss_compute(ork_ss_task* task, uint64_t estimates, uint64_t method,
                             const ork_threader* threader) {
  if (task == nullptr) return ORK_SS_NULL_TASK;
  const auto& record = ork::ss::record_of<double>(task);
  uint64_t unserved = estimates;
  for (const Computation& c : computations)
    if (method & c.methods) unserved &= ~c.estimates;
  if (unserved != 0) return ORK_SS_BAD_METHOD;
  if (threader == nullptr) threader = &ork_threader_serial;
  for (const Computation& c : computations)
    if (const uint64_t by = method & c.methods; by != 0 && (estimates & c.estimates) != 0)
      if (const int status = shape(record, c, by)) return status;
  for (const Need& need : needs)
    if ((estimates & need.estimates) && (method & need.methods) && !need.met(record))
      return need.status;
  for (const Computation& c : computations) {
    const uint64_t wanted = estimates & c.estimates, by = method & c.methods;
    if (wanted == 0 || by == 0) continue;
    const int status = (record.isDouble ? c.in_double : c.in_single)(
        task, uint32_t(wanted), uint32_t(wanted >> 32), uint32_t(by), uint32_t(by >> 32), threader);
    if (status != ORK_SS_OK) return status;
  }
  return ORK_SS_OK;
}
