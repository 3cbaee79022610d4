// The general editors: a row of the table for each code.
#include "rua_kernel/ss/service/edit.hpp"

#include <string.h>

namespace ork::ss {
namespace {

enum Kind : uint8_t { integer, real };
struct Row {
  Kind kind;
  uint8_t word;  // of the record
  int16_t null_status;
};

#define FIELD(name) uint8_t(offsetof(Task<double>, name) / 4)
constexpr Row rows[] = {
    {integer, FIELD(dimension), ORK_SS_BAD_DIMENSION},  // code 1
    {integer, FIELD(observationCount), ORK_SS_BAD_OBSERVATION_COUNT},
    {real, FIELD(observations), ORK_SS_NULL_OBSERVATIONS},
    {integer, FIELD(storageFormat), ORK_SS_NULL_STORAGE},
    {integer, FIELD(variableMask), ORK_SS_BAD_MASK},
    {real, FIELD(weights), ORK_SS_NULL_WEIGHTS},
    {real, FIELD(moments[kMean]), ORK_SS_NULL_MEAN},
    {real, FIELD(moments[kRaw2]), ORK_SS_NULL_RAW2},
    {real, FIELD(moments[kRaw3]), ORK_SS_NULL_RAW3},
    {real, FIELD(moments[kRaw4]), ORK_SS_NULL_RAW4},
    {real, FIELD(moments[kCentral2]), ORK_SS_NULL_CENTRAL2},
    {real, FIELD(moments[kCentral3]), ORK_SS_NULL_CENTRAL3},
    {real, FIELD(moments[kCentral4]), ORK_SS_NULL_CENTRAL4},
    {real, FIELD(kurtosis), ORK_SS_NULL_KURTOSIS},
    {real, FIELD(skewness), ORK_SS_NULL_SKEWNESS},
    {real, FIELD(min), ORK_SS_NULL_MIN},
    {real, FIELD(max), ORK_SS_NULL_MAX},
    {real, FIELD(variation), ORK_SS_NULL_VARIATION},
    {real, FIELD(cov), ORK_SS_NULL_COV},
    {integer, FIELD(covStorage), ORK_SS_NULL_STORAGE},
    {real, FIELD(cor), ORK_SS_NULL_COR},
    {integer, FIELD(corStorage), ORK_SS_NULL_STORAGE},
    {real, FIELD(accumulatedWeight), ORK_SS_NULL_ACCUMULATED_WEIGHT},
    {integer, FIELD(quantileCount), ORK_SS_BAD_QUANTILES},
    {real, FIELD(quantileOrders), ORK_SS_NULL_QUANTILE_ORDERS},
    {real, FIELD(quantiles), ORK_SS_NULL_QUANTILES},
    {real, FIELD(orderStatistics), ORK_SS_NULL_ORDER_STATS},
    {integer, FIELD(groupIndex), ORK_SS_BAD_GROUPS},
    {integer, FIELD(pooledCovStorage), ORK_SS_NULL_STORAGE},
    {real, FIELD(pooledMean), ORK_SS_NULL_POOLED_MEAN},
    {real, FIELD(pooledCov), ORK_SS_NULL_POOLED_COV},
    {integer, FIELD(groupRequest), ORK_SS_BAD_GROUPS},
    {real, FIELD(groupMeans), ORK_SS_NULL_GROUP_MEANS},
    {integer, FIELD(groupCovStorage), ORK_SS_NULL_STORAGE},
    {real, FIELD(groupCov), ORK_SS_NULL_GROUP_COV},
    {integer, FIELD(robustCovStorage), ORK_SS_NULL_STORAGE},
    {integer, FIELD(robustParamCount), ORK_SS_NULL_ROBUST_PARAM_COUNT},
    {real, FIELD(robustParams), ORK_SS_NULL_ROBUST_PARAMS},
    {real, FIELD(robustMean), ORK_SS_NULL_ROBUST_MEAN},
    {real, FIELD(robustCov), ORK_SS_NULL_ROBUST_COV},
    {integer, FIELD(outlierParamCount), ORK_SS_NULL_OUTLIER_PARAM_COUNT},
    {real, FIELD(outlierParams), ORK_SS_NULL_OUTLIER_PARAMS},
    {real, FIELD(outlierWeights), ORK_SS_NULL_OUTLIER_WEIGHTS},
    {integer, FIELD(orderStatisticsStorage), ORK_SS_NULL_STORAGE},
    {integer, FIELD(partialIndex), ORK_SS_NULL_PARTIAL_INDEX},
    {real, FIELD(partialCov), ORK_SS_NULL_PARTIAL_COV},
    {integer, FIELD(partialCovStorage), ORK_SS_NULL_STORAGE},
    {real, FIELD(partialCor), ORK_SS_NULL_PARTIAL_COR},
    {integer, FIELD(partialCorStorage), ORK_SS_NULL_STORAGE},
    {integer, FIELD(missingParamCount), ORK_SS_NULL_MISSING_PARAM_COUNT},
    {real, FIELD(missingParams), ORK_SS_NULL_MISSING_PARAMS},
    {integer, FIELD(initEstimateCount), ORK_SS_NULL_INIT_ESTIMATE_COUNT},
    {real, FIELD(initEstimates), ORK_SS_NULL_INIT_ESTIMATES},
    {integer, FIELD(simulatedCount), ORK_SS_NULL_SIMULATED_COUNT},
    {real, FIELD(simulated), ORK_SS_NULL_SIMULATED},
    {integer, FIELD(estimateCount), ORK_SS_NULL_ESTIMATE_COUNT},
    {real, FIELD(estimates), ORK_SS_NULL_ESTIMATES},
    {integer, FIELD(priorCount), ORK_SS_NULL_PRIOR_COUNT},
    {real, FIELD(prior), ORK_SS_NULL_PRIOR},
    {real, FIELD(paramCorrelation), ORK_SS_NULL_PARAM_COR},
    {integer, FIELD(paramCorrelationStorage), ORK_SS_NULL_STORAGE},
    {integer, FIELD(streamParamCount), ORK_SS_BAD_STREAM_PARAM_COUNT},
    {real, FIELD(streamParams), ORK_SS_NULL_STREAM_PARAMS},
    {integer, FIELD(streamOrderCount), ORK_SS_BAD_STREAM_ORDERS},
    {real, FIELD(streamOrders), ORK_SS_NULL_STREAM_ORDERS},
    {real, FIELD(streamQuantiles), ORK_SS_NULL_STREAM_QUANTILES},
    {real, FIELD(sums[kMean]), ORK_SS_NULL_SUM},
    {real, FIELD(sums[kRaw2]), ORK_SS_NULL_SUM2},
    {real, FIELD(sums[kRaw3]), ORK_SS_NULL_SUM3},
    {real, FIELD(sums[kRaw4]), ORK_SS_NULL_SUM4},
    {real, FIELD(sums[kCentral2]), ORK_SS_NULL_CENTRAL_SUM2},
    {real, FIELD(sums[kCentral3]), ORK_SS_NULL_CENTRAL_SUM3},
    {real, FIELD(sums[kCentral4]), ORK_SS_NULL_CENTRAL_SUM4},
    {real, FIELD(crossProduct), ORK_SS_NULL_CROSS_PRODUCT},
    {integer, FIELD(crossProductStorage), ORK_SS_NULL_STORAGE},
    {real, FIELD(medianAbsDev), ORK_SS_NULL_MEDIAN_ABS_DEV},
    {real, FIELD(meanAbsDev), ORK_SS_NULL_MEAN_ABS_DEV},
};
#undef FIELD
static_assert(sizeof rows / sizeof rows[0] == ORK_SS_EDIT_MEAN_ABS_DEV);

int32_t edit(ork_ss_task* task, int64_t code, Kind kind, const void* value) {
  if (!task) return ORK_SS_NULL_TASK;
  if (code < 1 || code > ORK_SS_EDIT_MEAN_ABS_DEV) return ORK_SS_BAD_CODE;
  const Row& row = rows[code - 1];
  if (row.kind != kind) return ORK_SS_BAD_CODE;
  if (!value) return row.null_status;
  set_field(task, int(code), value);
  return ORK_SS_OK;
}

}  // namespace

void set_field(ork_ss_task* task, int code, const void* value) {
  // By bytes: the field is a pointer of another type.
  memcpy(reinterpret_cast<char*>(task) + 4 * rows[code - 1].word, &value, sizeof value);
}

#define ORK_EDIT_TASK(t, R)                                                                  \
  ORK_EXPORT int32_t __rua##t##SSEditTask(ork_ss_task* task, int64_t code, const R* value) { \
    return edit(task, code, real, value);                                                    \
  }
ORK_TWINS(ORK_EDIT_TASK)
ORK_EXPORT int32_t __ruaiSSEditTask(ork_ss_task* task, int64_t code, const void* value) {
  return edit(task, code, integer, value);
}

}  // namespace ork::ss
