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

ORK_EXPORT int32_t __ruadSSEditMoments(ork_ss_task* task, double* mean, double* raw2, double* raw3,
                                       double* raw4, double* central2, double* central3,
                                       double* central4) {
  return set_all(task, moments_codes, mean, raw2, raw3, raw4, central2, central3, central4);
}
ORK_EXPORT int32_t __ruasSSEditMoments(ork_ss_task* task, float* mean, float* raw2, float* raw3,
                                       float* raw4, float* central2, float* central3,
                                       float* central4) {
  return set_all(task, moments_codes, mean, raw2, raw3, raw4, central2, central3, central4);
}

ORK_EXPORT int32_t __ruadSSEditSums(ork_ss_task* task, double* sum, double* sum2, double* sum3,
                                    double* sum4, double* centralSum2, double* centralSum3,
                                    double* centralSum4) {
  return set_all(task, sums_codes, sum, sum2, sum3, sum4, centralSum2, centralSum3, centralSum4);
}
ORK_EXPORT int32_t __ruasSSEditSums(ork_ss_task* task, float* sum, float* sum2, float* sum3,
                                    float* sum4, float* centralSum2, float* centralSum3,
                                    float* centralSum4) {
  return set_all(task, sums_codes, sum, sum2, sum3, sum4, centralSum2, centralSum3, centralSum4);
}

ORK_EXPORT int32_t __ruadSSEditCovCor(ork_ss_task* task, double* mean, double* cov,
                                      const void* covStorage, double* cor, const void* corStorage) {
  return set_all(task, cov_cor_codes, mean, cov, covStorage, cor, corStorage);
}
ORK_EXPORT int32_t __ruasSSEditCovCor(ork_ss_task* task, float* mean, float* cov,
                                      const void* covStorage, float* cor, const void* corStorage) {
  return set_all(task, cov_cor_codes, mean, cov, covStorage, cor, corStorage);
}

ORK_EXPORT int32_t __ruadSSEditCP(ork_ss_task* task, double* mean, double* sum,
                                  double* crossProduct, const void* crossProductStorage) {
  return set_all(task, cp_codes, mean, sum, crossProduct, crossProductStorage);
}
ORK_EXPORT int32_t __ruasSSEditCP(ork_ss_task* task, float* mean, float* sum, float* crossProduct,
                                  const void* crossProductStorage) {
  return set_all(task, cp_codes, mean, sum, crossProduct, crossProductStorage);
}

ORK_EXPORT int32_t __ruadSSEditPartialCovCor(ork_ss_task* task, const void* partialIndex,
                                             double* cov, const void* covStorage, double* cor,
                                             const void* corStorage, double* partialCov,
                                             const void* partialCovStorage, double* partialCor,
                                             const void* partialCorStorage) {
  return set_all(task, partial_cov_cor_codes, partialIndex, cov, covStorage, cor, corStorage,
                 partialCov, partialCovStorage, partialCor, partialCorStorage);
}
ORK_EXPORT int32_t __ruasSSEditPartialCovCor(ork_ss_task* task, const void* partialIndex,
                                             float* cov, const void* covStorage, float* cor,
                                             const void* corStorage, float* partialCov,
                                             const void* partialCovStorage, float* partialCor,
                                             const void* partialCorStorage) {
  return set_all(task, partial_cov_cor_codes, partialIndex, cov, covStorage, cor, corStorage,
                 partialCov, partialCovStorage, partialCor, partialCorStorage);
}

ORK_EXPORT int32_t __ruadSSEditPooledCovariance(ork_ss_task* task, const void* groupIndex,
                                                double* pooledMean, double* pooledCov,
                                                const void* groupRequest, double* groupMeans,
                                                double* groupCov) {
  return set_all(task, pooled_covariance_codes, groupIndex, pooledMean, pooledCov, groupRequest,
                 groupMeans, groupCov);
}
ORK_EXPORT int32_t __ruasSSEditPooledCovariance(ork_ss_task* task, const void* groupIndex,
                                                float* pooledMean, float* pooledCov,
                                                const void* groupRequest, float* groupMeans,
                                                float* groupCov) {
  return set_all(task, pooled_covariance_codes, groupIndex, pooledMean, pooledCov, groupRequest,
                 groupMeans, groupCov);
}

ORK_EXPORT int32_t __ruadSSEditQuantiles(ork_ss_task* task, const void* quantileCount,
                                         const double* quantileOrders, double* quantiles,
                                         double* orderStatistics,
                                         const void* orderStatisticsStorage) {
  return set_all(task, quantiles_codes, quantileCount, quantileOrders, quantiles, orderStatistics,
                 orderStatisticsStorage);
}
ORK_EXPORT int32_t __ruasSSEditQuantiles(ork_ss_task* task, const void* quantileCount,
                                         const float* quantileOrders, float* quantiles,
                                         float* orderStatistics,
                                         const void* orderStatisticsStorage) {
  return set_all(task, quantiles_codes, quantileCount, quantileOrders, quantiles, orderStatistics,
                 orderStatisticsStorage);
}

ORK_EXPORT int32_t __ruadSSEditStreamQuantiles(ork_ss_task* task, const void* streamOrderCount,
                                               const double* streamOrders, double* streamQuantiles,
                                               const void* streamParamCount,
                                               const double* streamParams) {
  return set_all(task, stream_quantiles_codes, streamOrderCount, streamOrders, streamQuantiles,
                 streamParamCount, streamParams);
}
ORK_EXPORT int32_t __ruasSSEditStreamQuantiles(ork_ss_task* task, const void* streamOrderCount,
                                               const float* streamOrders, float* streamQuantiles,
                                               const void* streamParamCount,
                                               const float* streamParams) {
  return set_all(task, stream_quantiles_codes, streamOrderCount, streamOrders, streamQuantiles,
                 streamParamCount, streamParams);
}

ORK_EXPORT int32_t __ruadSSEditOutDetect(ork_ss_task* task, const void* outlierParamCount,
                                         const double* outlierParams, double* outlierWeights) {
  return set_all(task, out_detect_codes, outlierParamCount, outlierParams, outlierWeights);
}
ORK_EXPORT int32_t __ruasSSEditOutDetect(ork_ss_task* task, const void* outlierParamCount,
                                         const float* outlierParams, float* outlierWeights) {
  return set_all(task, out_detect_codes, outlierParamCount, outlierParams, outlierWeights);
}

ORK_EXPORT int32_t __ruadSSEditRCov(ork_ss_task* task, const void* robustCovStorage,
                                    const void* robustParamCount, const double* robustParams,
                                    double* robustMean, double* robustCov) {
  return set_all(task, rcov_codes, robustCovStorage, robustParamCount, robustParams, robustMean,
                 robustCov);
}
ORK_EXPORT int32_t __ruasSSEditRCov(ork_ss_task* task, const void* robustCovStorage,
                                    const void* robustParamCount, const float* robustParams,
                                    float* robustMean, float* robustCov) {
  return set_all(task, rcov_codes, robustCovStorage, robustParamCount, robustParams, robustMean,
                 robustCov);
}

ORK_EXPORT int32_t __ruadSSEditMissingVals(ork_ss_task* task, const void* missingParamCount,
                                           const double* missingParams,
                                           const void* initEstimateCount,
                                           const double* initEstimates, const void* priorCount,
                                           const double* prior, const void* simulatedCount,
                                           double* simulated, const void* estimateCount,
                                           double* estimates) {
  return set_all(task, missing_vals_codes, missingParamCount, missingParams, initEstimateCount,
                 initEstimates, priorCount, prior, simulatedCount, simulated, estimateCount,
                 estimates);
}
ORK_EXPORT int32_t __ruasSSEditMissingVals(ork_ss_task* task, const void* missingParamCount,
                                           const float* missingParams,
                                           const void* initEstimateCount,
                                           const float* initEstimates, const void* priorCount,
                                           const float* prior, const void* simulatedCount,
                                           float* simulated, const void* estimateCount,
                                           float* estimates) {
  return set_all(task, missing_vals_codes, missingParamCount, missingParams, initEstimateCount,
                 initEstimates, priorCount, prior, simulatedCount, simulated, estimateCount,
                 estimates);
}

ORK_EXPORT int32_t __ruadSSEditMtxParametrz(ork_ss_task* task, double* cor, const void* corStorage,
                                            double* paramCorrelation,
                                            const void* paramCorrelationStorage) {
  return set_all(task, mtx_parametrz_codes, cor, corStorage, paramCorrelation,
                 paramCorrelationStorage);
}
ORK_EXPORT int32_t __ruasSSEditMtxParametrz(ork_ss_task* task, float* cor, const void* corStorage,
                                            float* paramCorrelation,
                                            const void* paramCorrelationStorage) {
  return set_all(task, mtx_parametrz_codes, cor, corStorage, paramCorrelation,
                 paramCorrelationStorage);
}

}  // namespace ork::ss
