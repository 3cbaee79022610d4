// The editors of groups of fields: what is not null is set, nothing is checked but the task.
#include "rua_kernel/ss/service/edit.hpp"

namespace ork::ss {
namespace {

// Fields by their codes, in the order of the arguments.
constexpr uint8_t moments_codes[] = {
    ORK_SS_EDIT_MEAN,     ORK_SS_EDIT_RAW2,     ORK_SS_EDIT_RAW3,    ORK_SS_EDIT_RAW4,
    ORK_SS_EDIT_CENTRAL2, ORK_SS_EDIT_CENTRAL3, ORK_SS_EDIT_CENTRAL4};
constexpr uint8_t sums_codes[] = {
    ORK_SS_EDIT_SUM,          ORK_SS_EDIT_SUM2,         ORK_SS_EDIT_SUM3,        ORK_SS_EDIT_SUM4,
    ORK_SS_EDIT_CENTRAL_SUM2, ORK_SS_EDIT_CENTRAL_SUM3, ORK_SS_EDIT_CENTRAL_SUM4};
constexpr uint8_t cov_cor_codes[] = {ORK_SS_EDIT_MEAN, ORK_SS_EDIT_COV, ORK_SS_EDIT_COV_STORAGE,
                                     ORK_SS_EDIT_COR, ORK_SS_EDIT_COR_STORAGE};
constexpr uint8_t cp_codes[] = {ORK_SS_EDIT_MEAN, ORK_SS_EDIT_SUM, ORK_SS_EDIT_CROSS_PRODUCT,
                                ORK_SS_EDIT_CROSS_PRODUCT_STORAGE};
constexpr uint8_t partial_cov_cor_codes[] = {
    ORK_SS_EDIT_PARTIAL_INDEX,       ORK_SS_EDIT_COV,
    ORK_SS_EDIT_COV_STORAGE,         ORK_SS_EDIT_COR,
    ORK_SS_EDIT_COR_STORAGE,         ORK_SS_EDIT_PARTIAL_COV,
    ORK_SS_EDIT_PARTIAL_COV_STORAGE, ORK_SS_EDIT_PARTIAL_COR,
    ORK_SS_EDIT_PARTIAL_COR_STORAGE};
constexpr uint8_t pooled_covariance_codes[] = {ORK_SS_EDIT_GROUP_INDEX, ORK_SS_EDIT_POOLED_MEAN,
                                               ORK_SS_EDIT_POOLED_COV,  ORK_SS_EDIT_GROUP_REQUEST,
                                               ORK_SS_EDIT_GROUP_MEANS, ORK_SS_EDIT_GROUP_COV};
constexpr uint8_t quantiles_codes[] = {ORK_SS_EDIT_QUANTILE_COUNT, ORK_SS_EDIT_QUANTILE_ORDERS,
                                       ORK_SS_EDIT_QUANTILES, ORK_SS_EDIT_ORDER_STATS,
                                       ORK_SS_EDIT_ORDER_STATS_STORAGE};
constexpr uint8_t stream_quantiles_codes[] = {
    ORK_SS_EDIT_STREAM_ORDER_COUNT, ORK_SS_EDIT_STREAM_ORDERS, ORK_SS_EDIT_STREAM_QUANTILES,
    ORK_SS_EDIT_STREAM_PARAM_COUNT, ORK_SS_EDIT_STREAM_PARAMS};
constexpr uint8_t out_detect_codes[] = {ORK_SS_EDIT_OUTLIER_PARAM_COUNT, ORK_SS_EDIT_OUTLIER_PARAMS,
                                        ORK_SS_EDIT_OUTLIER_WEIGHTS};
constexpr uint8_t rcov_codes[] = {ORK_SS_EDIT_ROBUST_COV_STORAGE, ORK_SS_EDIT_ROBUST_PARAM_COUNT,
                                  ORK_SS_EDIT_ROBUST_PARAMS, ORK_SS_EDIT_ROBUST_MEAN,
                                  ORK_SS_EDIT_ROBUST_COV};
constexpr uint8_t missing_vals_codes[] = {
    ORK_SS_EDIT_MISSING_PARAM_COUNT, ORK_SS_EDIT_MISSING_PARAMS,
    ORK_SS_EDIT_INIT_ESTIMATE_COUNT, ORK_SS_EDIT_INIT_ESTIMATES,
    ORK_SS_EDIT_PRIOR_COUNT,         ORK_SS_EDIT_PRIOR,
    ORK_SS_EDIT_SIMULATED_COUNT,     ORK_SS_EDIT_SIMULATED,
    ORK_SS_EDIT_ESTIMATE_COUNT,      ORK_SS_EDIT_ESTIMATES};
constexpr uint8_t mtx_parametrz_codes[] = {ORK_SS_EDIT_COR, ORK_SS_EDIT_COR_STORAGE,
                                           ORK_SS_EDIT_PARAM_COR, ORK_SS_EDIT_PARAM_COR_STORAGE};

template <size_t N, class... V>
int32_t set_all(ork_ss_task* task, const uint8_t (&codes)[N], V*... values) {
  static_assert(sizeof...(values) == N);
  const void* const list[] = {values...};
  if (!task) return ORK_SS_NULL_TASK;
  for (size_t i = 0; i < N; ++i)
    if (list[i]) set_field(task, codes[i], list[i]);
  return ORK_SS_OK;
}

}  // namespace

#define ORK_EDIT_MOMENTS(t, R)                                                                 \
  ORK_EXPORT int32_t __rua##t##SSEditMoments(ork_ss_task* task, R* mean, R* raw2, R* raw3,     \
                                             R* raw4, R* central2, R* central3, R* central4) { \
    return set_all(task, moments_codes, mean, raw2, raw3, raw4, central2, central3, central4); \
  }
ORK_TWINS(ORK_EDIT_MOMENTS)

#define ORK_EDIT_SUMS(t, R)                                                                     \
  ORK_EXPORT int32_t __rua##t##SSEditSums(ork_ss_task* task, R* sum, R* sum2, R* sum3, R* sum4, \
                                          R* centralSum2, R* centralSum3, R* centralSum4) {     \
    return set_all(task, sums_codes, sum, sum2, sum3, sum4, centralSum2, centralSum3,           \
                   centralSum4);                                                                \
  }
ORK_TWINS(ORK_EDIT_SUMS)

#define ORK_EDIT_COV_COR(t, R)                                                   \
  ORK_EXPORT int32_t __rua##t##SSEditCovCor(ork_ss_task* task, R* mean, R* cov,  \
                                            const void* covStorage, R* cor,      \
                                            const void* corStorage) {            \
    return set_all(task, cov_cor_codes, mean, cov, covStorage, cor, corStorage); \
  }
ORK_TWINS(ORK_EDIT_COV_COR)

#define ORK_EDIT_CP(t, R)                                                                    \
  ORK_EXPORT int32_t __rua##t##SSEditCP(ork_ss_task* task, R* mean, R* sum, R* crossProduct, \
                                        const void* crossProductStorage) {                   \
    return set_all(task, cp_codes, mean, sum, crossProduct, crossProductStorage);            \
  }
ORK_TWINS(ORK_EDIT_CP)

#define ORK_EDIT_PARTIAL_COV_COR(t, R)                                                          \
  ORK_EXPORT int32_t __rua##t##SSEditPartialCovCor(                                             \
      ork_ss_task* task, const void* partialIndex, R* cov, const void* covStorage, R* cor,      \
      const void* corStorage, R* partialCov, const void* partialCovStorage, R* partialCor,      \
      const void* partialCorStorage) {                                                          \
    return set_all(task, partial_cov_cor_codes, partialIndex, cov, covStorage, cor, corStorage, \
                   partialCov, partialCovStorage, partialCor, partialCorStorage);               \
  }
ORK_TWINS(ORK_EDIT_PARTIAL_COV_COR)

#define ORK_EDIT_POOLED_COVARIANCE(t, R)                                                           \
  ORK_EXPORT int32_t __rua##t##SSEditPooledCovariance(                                             \
      ork_ss_task* task, const void* groupIndex, R* pooledMean, R* pooledCov,                      \
      const void* groupRequest, R* groupMeans, R* groupCov) {                                      \
    return set_all(task, pooled_covariance_codes, groupIndex, pooledMean, pooledCov, groupRequest, \
                   groupMeans, groupCov);                                                          \
  }
ORK_TWINS(ORK_EDIT_POOLED_COVARIANCE)

#define ORK_EDIT_QUANTILES(t, R)                                                           \
  ORK_EXPORT int32_t __rua##t##SSEditQuantiles(                                            \
      ork_ss_task* task, const void* quantileCount, const R* quantileOrders, R* quantiles, \
      R* orderStatistics, const void* orderStatisticsStorage) {                            \
    return set_all(task, quantiles_codes, quantileCount, quantileOrders, quantiles,        \
                   orderStatistics, orderStatisticsStorage);                               \
  }
ORK_TWINS(ORK_EDIT_QUANTILES)

#define ORK_EDIT_STREAM_QUANTILES(t, R)                                                           \
  ORK_EXPORT int32_t __rua##t##SSEditStreamQuantiles(                                             \
      ork_ss_task* task, const void* streamOrderCount, const R* streamOrders, R* streamQuantiles, \
      const void* streamParamCount, const R* streamParams) {                                      \
    return set_all(task, stream_quantiles_codes, streamOrderCount, streamOrders, streamQuantiles, \
                   streamParamCount, streamParams);                                               \
  }
ORK_TWINS(ORK_EDIT_STREAM_QUANTILES)

#define ORK_EDIT_OUT_DETECT(t, R)                                                                \
  ORK_EXPORT int32_t __rua##t##SSEditOutDetect(ork_ss_task* task, const void* outlierParamCount, \
                                               const R* outlierParams, R* outlierWeights) {      \
    return set_all(task, out_detect_codes, outlierParamCount, outlierParams, outlierWeights);    \
  }
ORK_TWINS(ORK_EDIT_OUT_DETECT)

#define ORK_EDIT_RCOV(t, R)                                                                        \
  ORK_EXPORT int32_t __rua##t##SSEditRCov(ork_ss_task* task, const void* robustCovStorage,         \
                                          const void* robustParamCount, const R* robustParams,     \
                                          R* robustMean, R* robustCov) {                           \
    return set_all(task, rcov_codes, robustCovStorage, robustParamCount, robustParams, robustMean, \
                   robustCov);                                                                     \
  }
ORK_TWINS(ORK_EDIT_RCOV)

#define ORK_EDIT_MISSING_VALS(t, R)                                                               \
  ORK_EXPORT int32_t __rua##t##SSEditMissingVals(                                                 \
      ork_ss_task* task, const void* missingParamCount, const R* missingParams,                   \
      const void* initEstimateCount, const R* initEstimates, const void* priorCount,              \
      const R* prior, const void* simulatedCount, R* simulated, const void* estimateCount,        \
      R* estimates) {                                                                             \
    return set_all(task, missing_vals_codes, missingParamCount, missingParams, initEstimateCount, \
                   initEstimates, priorCount, prior, simulatedCount, simulated, estimateCount,    \
                   estimates);                                                                    \
  }
ORK_TWINS(ORK_EDIT_MISSING_VALS)

#define ORK_EDIT_MTX_PARAMETRZ(t, R)                                                           \
  ORK_EXPORT int32_t __rua##t##SSEditMtxParametrz(ork_ss_task* task, R* cor,                   \
                                                  const void* corStorage, R* paramCorrelation, \
                                                  const void* paramCorrelationStorage) {       \
    return set_all(task, mtx_parametrz_codes, cor, corStorage, paramCorrelation,               \
                   paramCorrelationStorage);                                                   \
  }
ORK_TWINS(ORK_EDIT_MTX_PARAMETRZ)

}  // namespace ork::ss
