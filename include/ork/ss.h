/* Summary statistics: tasks over an observation matrix, their editors and computations.
 *
 * A task is a record of pointers to the caller's arrays: dimension p, number of observations n,
 * observations, weights, parameters, and one output array for each estimate. It copies none of
 * them; they must live until the last computation, and what they hold, p and n included, is
 * read anew by each. One task may be computed many times. A task serves one caller at a time.
 *
 * Names with d are for double, with s for float: the same over 4-byte reals. A task made by
 * one of them is edited and computed by that one.
 *
 * Integer parameters pass as pointers and are 32 bits wide, or 64 bits when the task was made
 * with wideIntegers; computations use the low 32 bits of a wide one. All functions but those
 * that return a real return 0 or a negative status. Sorting, chi-square and matrix helpers are
 * in ss_math.h.
 */
#ifndef ORK_SS_H
#define ORK_SS_H

#include <stdint.h>

#include "ork/threader.h"

#ifdef __cplusplus
extern "C" {
#endif

typedef struct ork_ss_task ork_ss_task;

/* ---- Layouts ----------------------------------------------------------------------------
 *
 * Observations, element (variable j, observation i): */
#define ORK_SS_ROWS 0x10000    /* x[j * n + i]: a variable's observations are contiguous */
#define ORK_SS_COLUMNS 0x20000 /* x[i * p + j]: an observation's variables are contiguous */

/* Symmetric p by p matrices. Packed forms hold p (p + 1) / 2 values. */
#define ORK_SS_FULL 0         /* row after row */
#define ORK_SS_LOWER_PACKED 1 /* (0,0), (1,0), (1,1), (2,0), ... */
#define ORK_SS_UPPER_PACKED 2 /* (0,0), (0,1), ..., (0,p-1), (1,1), ... */

/* ---- Estimates: bits of a 64-bit mask that travels as two words ---------------------------
 *
 * W is the sum of weights, W2 the sum of their squares; without weights both are n. */
#define ORK_SS_MEAN (1ull << 0) /* sum w x / W */
#define ORK_SS_RAW2 (1ull << 1) /* sum w x^2 / W */
#define ORK_SS_RAW3 (1ull << 2)
#define ORK_SS_RAW4 (1ull << 3)
#define ORK_SS_CENTRAL2 (1ull << 4)  /* M2 W / (W^2 - W2), with Mk = sum w (x - mean)^k */
#define ORK_SS_CENTRAL3 (1ull << 5)  /* M3 / W */
#define ORK_SS_CENTRAL4 (1ull << 6)  /* M4 / W */
#define ORK_SS_KURTOSIS (1ull << 7)  /* central4 / central2^2 - 3 */
#define ORK_SS_SKEWNESS (1ull << 8)  /* central3 / sqrt(central2^3) */
#define ORK_SS_VARIATION (1ull << 9) /* sqrt(central2) / mean */
#define ORK_SS_MIN (1ull << 10)      /* in and out: the array holds the values to start from */
#define ORK_SS_MAX (1ull << 11)
#define ORK_SS_COV (1ull << 12)        /* cross-product / (W - W2 / W) */
#define ORK_SS_COR (1ull << 13)        /* correlations; the diagonal holds the variances */
#define ORK_SS_POOLED_COV (1ull << 14) /* pooled mean and covariance */
#define ORK_SS_GROUP_COV (1ull << 15)  /* mean and covariance of each group asked for */
#define ORK_SS_QUANTILES (1ull << 16)
#define ORK_SS_ORDER_STATS (1ull << 17)
#define ORK_SS_PARTIAL_COV (1ull << 20)
#define ORK_SS_PARTIAL_COR (1ull << 21)
#define ORK_SS_SUM (1ull << 25)  /* sum w x */
#define ORK_SS_SUM2 (1ull << 26) /* sum w x^2 */
#define ORK_SS_SUM3 (1ull << 27)
#define ORK_SS_SUM4 (1ull << 28)
#define ORK_SS_CENTRAL_SUM2 (1ull << 29) /* M2 */
#define ORK_SS_CENTRAL_SUM3 (1ull << 30)
#define ORK_SS_CENTRAL_SUM4 (1ull << 31)
#define ORK_SS_CROSS_PRODUCT (1ull << 32)  /* sum w (x - mean) (x - mean)' */
#define ORK_SS_MEDIAN_ABS_DEV (1ull << 33) /* median of |x - median| */
#define ORK_SS_MEAN_ABS_DEV (1ull << 34)   /* mean of |x - mean| */

/* ---- Methods ---------------------------------------------------------------------------- */
#define ORK_SS_FAST 0x1ull            /* plain sums; also quantiles, extremes, partial covariance */
#define ORK_SS_ONE_PASS 0x2ull        /* updates around the running mean; also pooled covariance */
#define ORK_SS_SPECTRAL 0x4ull        /* repair of correlation matrices */
#define ORK_SS_TBS 0x8ull             /* robust covariance */
#define ORK_SS_IMPUTATION 0x10ull     /* missing values */
#define ORK_SS_BACON 0x20ull          /* outliers */
#define ORK_SS_STREAM 0x40ull         /* streaming quantiles: add data and estimate */
#define ORK_SS_STREAM_ADD 0x80ull     /* streaming quantiles: add data */
#define ORK_SS_TWO_PASS 0x100ull      /* around a mean that the caller supplies */
#define ORK_SS_FROM_SUMS 0x200ull     /* from sums that the caller holds; observations unread */
#define ORK_SS_FROM_SUMS_ALT 0x400ull /* the same */

/* ---- Statuses ---------------------------------------------------------------------------
 *
 * After a failure the task is as it was; output arrays may hold partial results. "null" is
 * a pointer that is null when edited by __rua.SSEditTask or needed by a computation. */
#define ORK_SS_OK 0
#define ORK_SS_BAD_CODE (-3) /* edit code unknown, or of the other kind */
#define ORK_SS_NO_MEMORY (-4000)
#define ORK_SS_BAD_DIMENSION (-4001)         /* null, or p below 1 */
#define ORK_SS_BAD_OBSERVATION_COUNT (-4002) /* null, or n too small for the method */
#define ORK_SS_BAD_STORAGE (-4003)           /* not a layout that is accepted */
#define ORK_SS_BAD_MASK (-4004)              /* null, or at odds with the streaming state */
#define ORK_SS_NULL_WEIGHTS (-4005)
#define ORK_SS_NULL_MEAN (-4006)
#define ORK_SS_NULL_RAW2 (-4007)
#define ORK_SS_NULL_RAW3 (-4008)
#define ORK_SS_NULL_RAW4 (-4009)
#define ORK_SS_NULL_CENTRAL2 (-4010)
#define ORK_SS_NULL_CENTRAL3 (-4011)
#define ORK_SS_NULL_CENTRAL4 (-4012)
#define ORK_SS_NULL_KURTOSIS (-4013)
#define ORK_SS_NULL_SKEWNESS (-4014)
#define ORK_SS_NULL_MIN (-4015)
#define ORK_SS_NULL_MAX (-4016)
#define ORK_SS_NULL_VARIATION (-4017)
#define ORK_SS_NULL_COV (-4018)
#define ORK_SS_NULL_COR (-4019)
#define ORK_SS_NULL_ACCUMULATED_WEIGHT (-4020)
#define ORK_SS_NULL_QUANTILE_ORDERS (-4021)
#define ORK_SS_BAD_QUANTILES (-4022) /* count null or negative, or an order outside [0, 1] */
#define ORK_SS_NULL_QUANTILES (-4023)
#define ORK_SS_NULL_ORDER_STATS (-4024)
#define ORK_SS_TOO_FEW_GOOD (-4026) /* observations that a robust method may use */
#define ORK_SS_NULL_ROBUST_COV (-4027)
#define ORK_SS_NULL_ROBUST_MEAN (-4028)
#define ORK_SS_BAD_METHOD (-4029)
#define ORK_SS_NULL_GROUPS (-4030) /* groupIndex or groupRequest null in a computation */
#define ORK_SS_NULL_TASK (-4031)
#define ORK_SS_NULL_OBSERVATIONS (-4032)
#define ORK_SS_RANK_DEFICIENT (-4033) /* covariance matrix not of full rank */
#define ORK_SS_NULL_POOLED_COV (-4034)
#define ORK_SS_NULL_POOLED_MEAN (-4035)
#define ORK_SS_NULL_GROUP_COV (-4036)
#define ORK_SS_NULL_GROUP_MEANS (-4037)
#define ORK_SS_BAD_GROUPS (-4038) /* negative index, request not 0 or 1, or null when edited */
#define ORK_SS_NULL_OUTLIER_PARAMS (-4039)
#define ORK_SS_NULL_OUTLIER_PARAM_COUNT (-4040)
#define ORK_SS_NULL_OUTLIER_WEIGHTS (-4041)
#define ORK_SS_NULL_ROBUST_PARAMS (-4042)
#define ORK_SS_NULL_ROBUST_PARAM_COUNT (-4043)
#define ORK_SS_NULL_STORAGE (-4044) /* of observations or of a matrix */
#define ORK_SS_NULL_PARTIAL_INDEX (-4045)
#define ORK_SS_NULL_PARTIAL_COV (-4046)
#define ORK_SS_NULL_PARTIAL_COR (-4047)
#define ORK_SS_NULL_MISSING_PARAMS (-4048)
#define ORK_SS_NULL_MISSING_PARAM_COUNT (-4049)
#define ORK_SS_BAD_MISSING_PARAM_COUNT (-4050) /* not 5 */
#define ORK_SS_BAD_MISSING_PARAMS (-4051)      /* imputations or missing values below 1 */
#define ORK_SS_NULL_INIT_ESTIMATE_COUNT (-4052)
#define ORK_SS_NULL_INIT_ESTIMATES (-4053)
#define ORK_SS_NULL_SIMULATED (-4054)
#define ORK_SS_NULL_SIMULATED_COUNT (-4055)
#define ORK_SS_NULL_ESTIMATE_COUNT (-4056)
#define ORK_SS_NULL_ESTIMATES (-4057)
#define ORK_SS_BAD_SIMULATED_COUNT (-4058)
#define ORK_SS_BAD_ESTIMATE_COUNT (-4059)
#define ORK_SS_NOTHING_TO_IMPUTE (-4060) /* neither simulated values nor estimates asked for */
#define ORK_SS_NULL_PRIOR_COUNT (-4061)
#define ORK_SS_NULL_PRIOR (-4062)
#define ORK_SS_BAD_MISSING_COUNT (-4063)       /* differs from what the matrix has */
#define ORK_SS_NULL_STREAM_PARAM_COUNT (-4064) /* in a computation */
#define ORK_SS_NULL_STREAM_PARAMS (-4065)
#define ORK_SS_BAD_STREAM_PARAM_COUNT (-4066) /* not 1, or null when edited */
#define ORK_SS_BAD_STREAM_EPSILON (-4067)     /* outside (0, 1] */
#define ORK_SS_NULL_STREAM_ORDERS (-4068)
#define ORK_SS_BAD_STREAM_ORDERS (-4069) /* count null or negative, or an order outside [0, 1] */
#define ORK_SS_NULL_STREAM_QUANTILES (-4070)
#define ORK_SS_NULL_PARAM_COR (-4071)
#define ORK_SS_NO_EIGENVALUE (-4072) /* none that is of use */
#define ORK_SS_EMPTY_PARTIAL_SET (-4073)
#define ORK_SS_NULL_SUM (-4074)
#define ORK_SS_NULL_SUM2 (-4075)
#define ORK_SS_NULL_SUM3 (-4076)
#define ORK_SS_NULL_SUM4 (-4077)
#define ORK_SS_NULL_CENTRAL_SUM2 (-4078)
#define ORK_SS_NULL_CENTRAL_SUM3 (-4079)
#define ORK_SS_NULL_CENTRAL_SUM4 (-4080)
#define ORK_SS_NULL_CROSS_PRODUCT (-4081)
#define ORK_SS_NULL_MEDIAN_ABS_DEV (-4082)
#define ORK_SS_NULL_MEAN_ABS_DEV (-4083)
/* A routine of the dense layer, or a generator, failed: */
#define ORK_SS_ROBUST_EIGEN (-5000)     /* packed eigensolver, robust covariance */
#define ORK_SS_PARTIAL_CHOLESKY (-5010) /* factorisation, partial covariance */
#define ORK_SS_PARTIAL_INVERSE (-5011)
#define ORK_SS_IMPUTE_CHOLESKY (-5021)    /* factorisation, imputation step */
#define ORK_SS_IMPUTE_GAUSSIAN_MV (-5022) /* multivariate Gaussian numbers */
#define ORK_SS_POSTERIOR_GAUSSIAN (-5023) /* Gaussian numbers, posterior step */
#define ORK_SS_POSTERIOR_CHOLESKY (-5024)
#define ORK_SS_POSTERIOR_INVERSE (-5025)
#define ORK_SS_PARAM_EIGEN (-5030)      /* eigensolver, repair of correlation matrices */
#define ORK_SS_RANK_EIGEN (-5040)       /* eigensolver, rank test */
#define ORK_SS_INV_COV_CHOLESKY (-5041) /* factorisation, inverse covariance */
#define ORK_SS_INV_COV_INVERSE (-5042)

/* ---- Life of a task --------------------------------------------------------------------- */

/* A new task in *task, all fields null but those given here. p: dimension, not null. storage
 * (ORK_SS_ROWS or ORK_SS_COLUMNS) and n are needed, and looked at, when the observations x are
 * not null; what is null may be set later. w: n weights, or null for all 1. indices: p
 * integers, non-zero for the variables to be processed, or null for all. wideIntegers: 0 when
 * the integers here and in all editors are 32 bits wide, 1 when they are 64 bits wide.
 *
 * Statuses in order: task null -4031; p null or its value below 1 -4001; with x, storage null
 * -4044 or unknown -4003, n null or its value below 1 -4002; no memory -4000. *task is set only
 * on success. */
int32_t __ruadSSNewTask(ork_ss_task** task, const void* p, const void* n, const void* storage,
                        const double* x, const double* w, const void* indices,
                        int32_t wideIntegers);
int32_t __ruasSSNewTask(ork_ss_task** task, const void* p, const void* n, const void* storage,
                        const float* x, const float* w, const void* indices, int32_t wideIntegers);

/* Releases the task, with the state of its streaming quantiles, and sets *task to null; the
 * caller's arrays are not touched. task or *task null: -4031. */
int32_t __ruaSSDeleteTask(ork_ss_task** task);

/* ---- Editors ------------------------------------------------------------------------------
 *
 * One field, by its code. Reals go through the d and s forms, integers through the i form.
 * Statuses in order: task null -4031; code unknown or of the other kind -3; value null: the
 * status of that array, and the field keeps its value. Outputs pass through `value`, too: they
 * are written by computations. */
int32_t __ruadSSEditTask(ork_ss_task* task, int64_t code, const double* value);
int32_t __ruasSSEditTask(ork_ss_task* task, int64_t code, const float* value);
int32_t __ruaiSSEditTask(ork_ss_task* task, int64_t code, const void* value);

/* Codes; the comment gives the length of arrays, and (int) marks those of the i form. */
#define ORK_SS_EDIT_DIMENSION 1            /* (int) p */
#define ORK_SS_EDIT_OBSERVATION_COUNT 2    /* (int) n */
#define ORK_SS_EDIT_OBSERVATIONS 3         /* p n */
#define ORK_SS_EDIT_STORAGE_FORMAT 4       /* (int) ORK_SS_ROWS or ORK_SS_COLUMNS */
#define ORK_SS_EDIT_VARIABLE_MASK 5        /* (int) p */
#define ORK_SS_EDIT_WEIGHTS 6              /* n */
#define ORK_SS_EDIT_MEAN 7                 /* p; in the two-pass method an input */
#define ORK_SS_EDIT_RAW2 8                 /* p */
#define ORK_SS_EDIT_RAW3 9                 /* p */
#define ORK_SS_EDIT_RAW4 10                /* p */
#define ORK_SS_EDIT_CENTRAL2 11            /* p */
#define ORK_SS_EDIT_CENTRAL3 12            /* p */
#define ORK_SS_EDIT_CENTRAL4 13            /* p */
#define ORK_SS_EDIT_KURTOSIS 14            /* p */
#define ORK_SS_EDIT_SKEWNESS 15            /* p */
#define ORK_SS_EDIT_MIN 16                 /* p */
#define ORK_SS_EDIT_MAX 17                 /* p */
#define ORK_SS_EDIT_VARIATION 18           /* p */
#define ORK_SS_EDIT_COV 19                 /* p p, or packed */
#define ORK_SS_EDIT_COV_STORAGE 20         /* (int) ORK_SS_FULL, _LOWER_PACKED, _UPPER_PACKED */
#define ORK_SS_EDIT_COR 21                 /* p p, or packed */
#define ORK_SS_EDIT_COR_STORAGE 22         /* (int) */
#define ORK_SS_EDIT_ACCUMULATED_WEIGHT 23  /* 2: W and W2 so far, {0, 0} to begin */
#define ORK_SS_EDIT_QUANTILE_COUNT 24      /* (int) */
#define ORK_SS_EDIT_QUANTILE_ORDERS 25     /* quantileCount, each in [0, 1] */
#define ORK_SS_EDIT_QUANTILES 26           /* quantileCount for each variable processed */
#define ORK_SS_EDIT_ORDER_STATS 27         /* p n */
#define ORK_SS_EDIT_GROUP_INDEX 28         /* (int) n, each 0 or more */
#define ORK_SS_EDIT_POOLED_COV_STORAGE 29  /* (int) */
#define ORK_SS_EDIT_POOLED_MEAN 30         /* p */
#define ORK_SS_EDIT_POOLED_COV 31          /* p p, or packed */
#define ORK_SS_EDIT_GROUP_REQUEST 32       /* (int) 0 or 1 for each group */
#define ORK_SS_EDIT_GROUP_MEANS 33         /* p for each group asked for */
#define ORK_SS_EDIT_GROUP_COV_STORAGE 34   /* (int) */
#define ORK_SS_EDIT_GROUP_COV 35           /* one matrix for each group asked for */
#define ORK_SS_EDIT_ROBUST_COV_STORAGE 36  /* (int) */
#define ORK_SS_EDIT_ROBUST_PARAM_COUNT 37  /* (int) */
#define ORK_SS_EDIT_ROBUST_PARAMS 38       /* 4: breakdown, rejection, accuracy, steps */
#define ORK_SS_EDIT_ROBUST_MEAN 39         /* p */
#define ORK_SS_EDIT_ROBUST_COV 40          /* p p, or packed */
#define ORK_SS_EDIT_OUTLIER_PARAM_COUNT 41 /* (int) */
#define ORK_SS_EDIT_OUTLIER_PARAMS 42      /* 3: start, alpha, tol */
#define ORK_SS_EDIT_OUTLIER_WEIGHTS 43     /* n: 0 marks an outlier */
#define ORK_SS_EDIT_ORDER_STATS_STORAGE 44 /* (int) ORK_SS_ROWS or ORK_SS_COLUMNS */
#define ORK_SS_EDIT_PARTIAL_INDEX 45       /* (int) p: 1 of the result, -1 conditioned on */
#define ORK_SS_EDIT_PARTIAL_COV 46
#define ORK_SS_EDIT_PARTIAL_COV_STORAGE 47 /* (int) */
#define ORK_SS_EDIT_PARTIAL_COR 48
#define ORK_SS_EDIT_PARTIAL_COR_STORAGE 49   /* (int) */
#define ORK_SS_EDIT_MISSING_PARAM_COUNT 50   /* (int) 5 */
#define ORK_SS_EDIT_MISSING_PARAMS 51        /* 5: see MissingValues */
#define ORK_SS_EDIT_INIT_ESTIMATE_COUNT 52   /* (int) */
#define ORK_SS_EDIT_INIT_ESTIMATES 53        /* p (p + 3) / 2: where the iterations start */
#define ORK_SS_EDIT_SIMULATED_COUNT 54       /* (int) */
#define ORK_SS_EDIT_SIMULATED 55             /* imputations times missing values */
#define ORK_SS_EDIT_ESTIMATE_COUNT 56        /* (int) */
#define ORK_SS_EDIT_ESTIMATES 57             /* p (p + 3) / 2 for each step of the chain */
#define ORK_SS_EDIT_PRIOR_COUNT 58           /* (int) */
#define ORK_SS_EDIT_PRIOR 59                 /* p (p + 3) / 2 + 2 */
#define ORK_SS_EDIT_PARAM_COR 60             /* p p, or packed */
#define ORK_SS_EDIT_PARAM_COR_STORAGE 61     /* (int) */
#define ORK_SS_EDIT_STREAM_PARAM_COUNT 62    /* (int) 1 */
#define ORK_SS_EDIT_STREAM_PARAMS 63         /* 1: epsilon, in (0, 1] */
#define ORK_SS_EDIT_STREAM_ORDER_COUNT 64    /* (int) */
#define ORK_SS_EDIT_STREAM_ORDERS 65         /* streamOrderCount, each in [0, 1] */
#define ORK_SS_EDIT_STREAM_QUANTILES 66      /* streamOrderCount for each variable processed */
#define ORK_SS_EDIT_SUM 67                   /* p */
#define ORK_SS_EDIT_SUM2 68                  /* p */
#define ORK_SS_EDIT_SUM3 69                  /* p */
#define ORK_SS_EDIT_SUM4 70                  /* p */
#define ORK_SS_EDIT_CENTRAL_SUM2 71          /* p */
#define ORK_SS_EDIT_CENTRAL_SUM3 72          /* p */
#define ORK_SS_EDIT_CENTRAL_SUM4 73          /* p */
#define ORK_SS_EDIT_CROSS_PRODUCT 74         /* p p, or packed */
#define ORK_SS_EDIT_CROSS_PRODUCT_STORAGE 75 /* (int) */
#define ORK_SS_EDIT_MEDIAN_ABS_DEV 76        /* p */
#define ORK_SS_EDIT_MEAN_ABS_DEV 77          /* p */

/* Groups of fields. A null pointer leaves its field as it was. Integers pass as const void*.
 * Task null: -4031; nothing else is checked. */
int32_t __ruadSSEditMoments(ork_ss_task* task, double* mean, double* raw2, double* raw3,
                            double* raw4, double* central2, double* central3, double* central4);
int32_t __ruasSSEditMoments(ork_ss_task* task, float* mean, float* raw2, float* raw3, float* raw4,
                            float* central2, float* central3, float* central4);
int32_t __ruadSSEditSums(ork_ss_task* task, double* sum, double* sum2, double* sum3, double* sum4,
                         double* centralSum2, double* centralSum3, double* centralSum4);
int32_t __ruasSSEditSums(ork_ss_task* task, float* sum, float* sum2, float* sum3, float* sum4,
                         float* centralSum2, float* centralSum3, float* centralSum4);
int32_t __ruadSSEditCovCor(ork_ss_task* task, double* mean, double* cov, const void* covStorage,
                           double* cor, const void* corStorage);
int32_t __ruasSSEditCovCor(ork_ss_task* task, float* mean, float* cov, const void* covStorage,
                           float* cor, const void* corStorage);
int32_t __ruadSSEditCP(ork_ss_task* task, double* mean, double* sum, double* crossProduct,
                       const void* crossProductStorage);
int32_t __ruasSSEditCP(ork_ss_task* task, float* mean, float* sum, float* crossProduct,
                       const void* crossProductStorage);
int32_t __ruadSSEditPartialCovCor(ork_ss_task* task, const void* partialIndex, double* cov,
                                  const void* covStorage, double* cor, const void* corStorage,
                                  double* partialCov, const void* partialCovStorage,
                                  double* partialCor, const void* partialCorStorage);
int32_t __ruasSSEditPartialCovCor(ork_ss_task* task, const void* partialIndex, float* cov,
                                  const void* covStorage, float* cor, const void* corStorage,
                                  float* partialCov, const void* partialCovStorage,
                                  float* partialCor, const void* partialCorStorage);
int32_t __ruadSSEditPooledCovariance(ork_ss_task* task, const void* groupIndex, double* pooledMean,
                                     double* pooledCov, const void* groupRequest,
                                     double* groupMeans, double* groupCov);
int32_t __ruasSSEditPooledCovariance(ork_ss_task* task, const void* groupIndex, float* pooledMean,
                                     float* pooledCov, const void* groupRequest, float* groupMeans,
                                     float* groupCov);
int32_t __ruadSSEditQuantiles(ork_ss_task* task, const void* quantileCount,
                              const double* quantileOrders, double* quantiles,
                              double* orderStatistics, const void* orderStatisticsStorage);
int32_t __ruasSSEditQuantiles(ork_ss_task* task, const void* quantileCount,
                              const float* quantileOrders, float* quantiles, float* orderStatistics,
                              const void* orderStatisticsStorage);
int32_t __ruadSSEditStreamQuantiles(ork_ss_task* task, const void* streamOrderCount,
                                    const double* streamOrders, double* streamQuantiles,
                                    const void* streamParamCount, const double* streamParams);
int32_t __ruasSSEditStreamQuantiles(ork_ss_task* task, const void* streamOrderCount,
                                    const float* streamOrders, float* streamQuantiles,
                                    const void* streamParamCount, const float* streamParams);
int32_t __ruadSSEditOutDetect(ork_ss_task* task, const void* outlierParamCount,
                              const double* outlierParams, double* outlierWeights);
int32_t __ruasSSEditOutDetect(ork_ss_task* task, const void* outlierParamCount,
                              const float* outlierParams, float* outlierWeights);
int32_t __ruadSSEditRCov(ork_ss_task* task, const void* robustCovStorage,
                         const void* robustParamCount, const double* robustParams,
                         double* robustMean, double* robustCov);
int32_t __ruasSSEditRCov(ork_ss_task* task, const void* robustCovStorage,
                         const void* robustParamCount, const float* robustParams, float* robustMean,
                         float* robustCov);
int32_t __ruadSSEditMissingVals(ork_ss_task* task, const void* missingParamCount,
                                const double* missingParams, const void* initEstimateCount,
                                const double* initEstimates, const void* priorCount,
                                const double* prior, const void* simulatedCount, double* simulated,
                                const void* estimateCount, double* estimates);
int32_t __ruasSSEditMissingVals(ork_ss_task* task, const void* missingParamCount,
                                const float* missingParams, const void* initEstimateCount,
                                const float* initEstimates, const void* priorCount,
                                const float* prior, const void* simulatedCount, float* simulated,
                                const void* estimateCount, float* estimates);
int32_t __ruadSSEditMtxParametrz(ork_ss_task* task, double* cor, const void* corStorage,
                                 double* paramCorrelation, const void* paramCorrelationStorage);
int32_t __ruasSSEditMtxParametrz(ork_ss_task* task, float* cor, const void* corStorage,
                                 float* paramCorrelation, const void* paramCorrelationStorage);

/* ---- Computations -------------------------------------------------------------------------
 *
 * Estimates and method are 64-bit masks in two words, low word first; bits that an entry does
 * not serve are ignored, so one pair of masks may be passed to several entries. The threader
 * table starts all threads. The task is not checked for null. */

/* Moments, sums, covariance, correlation, cross-product, kurtosis, skewness, variation, by
 * exactly one of FAST, ONE_PASS and TWO_PASS, or FROM_SUMS. Each estimate needs its own array
 * and those it is derived from, all p long:
 *
 *   central k, kurtosis, skewness, variation   mean, the raw and central orders up to theirs
 *   centred sum k                              mean; with FAST the raw orders from 2 to k
 *   cov, cor, cross-product                    mean
 *   FROM_SUMS                                  the sums (or cross-product) they come from
 *
 * A status of the lowest-numbered array that is missing comes first, in the order mean, raw,
 * central, cov, cor, kurtosis, skewness, variation, sums, centred sums, cross-product.
 *
 * With accumulatedWeight set and W above 0 the outputs are taken as the result of earlier
 * calls, and the observations at hand are added to them. By ONE_PASS the third centred sum
 * rests on the second, the fourth on both: where one has no array (of its moment or its sum),
 * it is made of the raw orders up to its own, and where these have none -4078 or -4079, its
 * status, refuses the call and nothing changes.
 *
 * Central moments and matrices of TWO_PASS are those of the distances from the mean supplied,
 * whatever it is. An estimate whose divisor W - W2/W is 0, one observation having all the
 * weight, is 0 (TWO_PASS: unless the distance is not 0), so that blocks can go on from it.
 * Without a mean, TWO_PASS takes 0. */
int32_t _ruadSSBasic(ork_ss_task* task, uint32_t estimates_low, uint32_t estimates_high,
                     uint32_t method_low, uint32_t method_high, const ork_threader* threader);
int32_t _ruasSSBasic(ork_ss_task* task, uint32_t estimates_low, uint32_t estimates_high,
                     uint32_t method_low, uint32_t method_high, const ork_threader* threader);

/* MIN and MAX, by FAST or ONE_PASS: the extremes of what the arrays hold and the observations;
 * a NaN among them replaces nothing. */
int32_t _ruadSSMinmax(ork_ss_task* task, uint32_t estimates_low, uint32_t estimates_high,
                      uint32_t method_low, uint32_t method_high, const ork_threader* threader);
int32_t _ruasSSMinmax(ork_ss_task* task, uint32_t estimates_low, uint32_t estimates_high,
                      uint32_t method_low, uint32_t method_high, const ork_threader* threader);

/* QUANTILES and ORDER_STATS, by FAST. The quantile of order q is the value at place q (n - 1)
 * of the sorted observations, counted from 0, linear between places: never outside the two
 * values it lies between, and NaN only for a NaN order or between the two infinities.
 * Variable number s of those processed has its quantiles from s * quantileCount on. Its n
 * sorted values lie from s * n on (rows), or from s on with stride p (columns). */
int32_t _ruadSSQuantiles(ork_ss_task* task, uint32_t estimates_low, uint32_t estimates_high,
                         uint32_t method_low, uint32_t method_high, const ork_threader* threader);
int32_t _ruasSSQuantiles(ork_ss_task* task, uint32_t estimates_low, uint32_t estimates_high,
                         uint32_t method_low, uint32_t method_high, const ork_threader* threader);

/* Quantiles of all observations of all calls so far, by STREAM or STREAM_ADD: values of the
 * data, off in rank by at most 3 epsilon times their number, plus 1. (Up to 2.7 is met where
 * the second epoch begins, at some 2 / epsilon observations; from 20 / epsilon on it is 0.9.)
 * The task keeps a summary until it is deleted, about (log2(epsilon n))^3 / (2 epsilon) places
 * of 16 bytes (s 12) a variable after n observations. However few values a call brings, it
 * sorts the variable's buffer of up to log2(epsilon n) / epsilon values and allocates twice:
 * hand over blocks of that length, not single values. Estimating merges all summaries. p and
 * epsilon must stay the same: a later call with another p returns -4001 (below 1: -4004) and
 * changes nothing. n may be 0: then nothing is added. */
int32_t _ruadSSStreamQuantiles(ork_ss_task* task, uint32_t estimates_low, uint32_t estimates_high,
                               uint32_t method_low, uint32_t method_high,
                               const ork_threader* threader);
int32_t _ruasSSStreamQuantiles(ork_ss_task* task, uint32_t estimates_low, uint32_t estimates_high,
                               uint32_t method_low, uint32_t method_high,
                               const ork_threader* threader);

/* The release hook of that summary; deleting the task calls it. */
void __ruaSQuantilesFreeBuffers(ork_ss_task* task);

/* MEDIAN_ABS_DEV, by FAST; MEAN_ABS_DEV, by FAST (around the mean of the data) or TWO_PASS
 * (around the mean that the caller supplies). */
int32_t _ruadSSMAD(ork_ss_task* task, uint32_t estimates_low, uint32_t estimates_high,
                   uint32_t method_low, uint32_t method_high, const ork_threader* threader);
int32_t _ruasSSMAD(ork_ss_task* task, uint32_t estimates_low, uint32_t estimates_high,
                   uint32_t method_low, uint32_t method_high, const ork_threader* threader);

/* Repair of a matrix of correlations, by SPECTRAL: eigenvalues of cor below 1e-14 (s 1e-6) are
 * raised to that floor, and rows and columns scaled for a diagonal of 1 (the spectral
 * decomposition of Rebonato, Jaeckel 1999; not the nearest correlation matrix). Only the
 * elements of cor below its diagonal count (all others are taken as symmetric, the diagonal as
 * 1). The result, with a diagonal of exactly 1, has no eigenvalue below the floor less rounding.
 * Where no eigenvalue is below the floor, it is cor itself, to the bit. Estimates and threader
 * are not looked at; one block of 2 p^2 + 51 p reals is taken.
 *
 * Storages are ORK_SS_FULL, LOWER_PACKED or UPPER_PACKED of each. The arrays are disjoint or
 * one and the same; the same, and nothing to repair, with the same storage: it is not written,
 * its diagonal neither. Statuses in their order: p -4001; cor null -4019; its storage null -4044,
 * unknown -4003; the result null -4071; its storage as before; a full result in the array of
 * a packed cor -4003; method -4029; memory -4000; no convergence, or an element NaN or infinite
 * -5030; every eigenvalue below the floor -4072. On failure nothing is written. */
int32_t _ruadSSCorParametrization(ork_ss_task* task, uint32_t estimates_low,
                                  uint32_t estimates_high, uint32_t method_low,
                                  uint32_t method_high, const ork_threader* threader);
int32_t _ruasSSCorParametrization(ork_ss_task* task, uint32_t estimates_low,
                                  uint32_t estimates_high, uint32_t method_low,
                                  uint32_t method_high, const ork_threader* threader);

/* Mean and covariance that outliers cannot move far, by TBS: robustMean (p) and robustCov, from
 * n > 2 p observations. In three stages, of which docs/statistics.md has the formulas:
 * an orthogonalised estimate from robust scales of one variable each (Gnanadesikan, Kettenring
 * 1972; Maronna, Zamar 2002), the moments of the observations that it finds near, then
 * steps towards a translated biweight S-estimate (Rocke 1996). Weights, mask and estimate bits do
 * not count.
 *
 * robustParams are read when robustParamCount is 4. A value out of its range, a NaN too, means the
 * default:
 *   0  breakdown, above 0: the part of the data that may be bad; at most and by default
 *      (n - p) / (2 n)
 *   1  rejection, in (0, 1): the part of clean Gaussian data, for large n, that gets no weight;
 *      0.001
 *   2  accuracy, above 0: the steps end when no more than this is the root of the sum of squares
 *      of the weights' changes; 0.001
 *   3  steps, 0 or more, truncated, 10000 where it is more: their largest number; reaching it is no
 *      failure. 0 leaves the result of the second stage, the sum of squares divided by the number
 * of observations near; 100 Where breakdown and rejection cannot be had together (at breakdown 1/2
 * and rejection 0.001: below p = 5 and from some p = 30 on), observations count fully up to the
 * distance that the rejection tells, and not at all beyond.
 *
 * A variable of which more than half the values are equal has no robust scale and takes no part in
 * the first stage. Powers of two as units change no digit of a result but its exponent; layouts
 * and storages change nothing, numbers of threads what rounding does.
 *
 * Statuses in their order: p -4001; n -4002; storageFormat null -4044, unknown -4003; robustMean
 * null -4028; robustCov null -4027; its storage null -4044, unknown -4003; method -4029;
 * observations null -4032; memory -4000; a value that is NaN or infinite, or no convergence of the
 * first stage's eigenvectors -5000; no observation with weight -4026; and those of
 * __ruadTestCovRank and __ruadInvCov. After -4000 from the first two blocks, of 3 n reals (and
 * p^2 more where the storage is packed), and of some 5/2 p^2 reals and 3 n for each of the threads,
 * which are as many as have room in 10 MB, and after -5000 nothing is written. */
int32_t _ruadSSRobustCovariance(ork_ss_task* task, uint32_t estimates_low, uint32_t estimates_high,
                                uint32_t method_low, uint32_t method_high,
                                const ork_threader* threader);
int32_t _ruasSSRobustCovariance(ork_ss_task* task, uint32_t estimates_low, uint32_t estimates_high,
                                uint32_t method_low, uint32_t method_high,
                                const ork_threader* threader);

/* Mahalanobis distances sqrt((x - m)' A (x - m)) of observations first to last - 1, the distance of
 * the first at place 0. What it reads beyond dimension, observationCount, observations and
 * storageFormat has no edit code: fields 81 to 87 of the record, counted in words from 0, which are
 * pointers to first and last (integers), to m (p), to A (p by p, row after row, its lower triangle
 * and diagonal count), to the distances, and two that are not read. A square that is negative
 * counts as 0. An observation has the same bits whatever others go with it. Nothing is checked.
 * Beyond p = 256 one block of 8 p reals (s: 16 p) is taken. Returns 0 or -4000. */
int32_t _ruadSSMahDistance(ork_ss_task* task);
int32_t _ruasSSMahDistance(ork_ss_task* task);

/* Outliers of a multivariate sample, by BACON (Billor, Hadi, Velleman, Computational Statistics &
 * Data Analysis 34, 2000): outlierWeights[i] becomes 0 for an outlier, and the observation's own
 * weight, or 1, for the others. A subset of 5 p observations gives mean and covariance (by weight,
 * in one pass); the next subset is that of all observations whose Mahalanobis distance from these
 * is below
 *
 *   sqrt(chi2(p, 1 - alpha)) (max(0, (h - r) / (h + r)) + 1 + (p + 1) / (n - p) + 2 / (n - 1 - 3
 * p))
 *
 * with r the size of the subset at hand and h = (n + p + 1) / 2; and so on until the size changes
 * by less than tol of itself, or the subset holds everything, or after 1000 rounds.
 *
 * outlierParams counts only if outlierParamCount holds 3, else all defaults apply. A value out of
 * its range, NaN too, is replaced by its default:
 *   0  start   1: the 5 p observations nearest to the mean, in Mahalanobis distance; any other
 *              value, and the default: those nearest to the medians (weighted if there are
 *              weights) in Euclidean distance, which withstands far more outliers, but wants
 *              variables of like scale
 *   1  alpha   in [0, 1], default 0.05: the tail of each single observation, so that good ones are
 *              lost at about that rate; the article divides it by n. 0: no outliers
 *   2  tol     above 0, default 0.005
 *
 * The variable mask does not count. A NaN or infinity in the data ends the call with -5040 (p = 1:
 * -4033). Two blocks are taken, of p^2 + 6 p + 2048 T reals and of 5 p + T integers on T threads,
 * besides those of moments, quantiles, rank test and distances. Threads divide the moments, and
 * the distances where n p >= 10000; mean and covariance depend on their number by rounding, the
 * weights only for an observation that lies within rounding of the threshold.
 *
 * Statuses in their order: p -4001; n below 5 p -4002; layout null or unknown -4003; outlierWeights
 * null -4041; method without BACON -4029; memory -4000; those of rank test and inverse covariance;
 * a last subset of 5 p observations or fewer -4026, which outlierWeights describes as usual. After
 * the others outlierWeights is of no use. */
int32_t _ruadSSOutliersDetection(ork_ss_task* task, uint32_t estimates_low, uint32_t estimates_high,
                                 uint32_t method_low, uint32_t method_high,
                                 const ork_threader* threader);
int32_t _ruasSSOutliersDetection(ork_ss_task* task, uint32_t estimates_low, uint32_t estimates_high,
                                 uint32_t method_low, uint32_t method_high,
                                 const ork_threader* threader);

/* Missing values by multiple imputation under a multivariate normal model, by IMPUTATION. An
 * entry of the observations is missing where it is a negative quiet NaN: high bits 0xFFF8 of a
 * double's word, 0xFFC0 of a float's. Every other NaN is data, and spreads.
 *
 * First, mean and covariance (divisor n) by expectation-maximisation; then one chain of data
 * augmentation from there, whose steps draw the missing values given mean and covariance, and
 * mean and covariance given the completed data. Its numbers come from a stream of the call's own,
 * always the same, so that equal input gives equal output: MCG59 from the state 2^50, which has a
 * period of 128 numbers only (docs/statistics.md tells what that does). Weights, mask and estimate
 * bits do not count; nothing runs on other threads.
 *
 *   missingParams    [0] most iterations of expectation-maximisation (below 1: 50)
 *                    [1] steps L of the chain for each imputation (below 1: 30)
 *                    [2] these iterations end when no mean or covariance moves by as much
 *                        (0, below, NaN: 0.001; absolute, so mind the variables' units)
 *                    [3] imputations m
 *                    [4] missing entries of the whole matrix, to check
 *                    reals of which the whole part counts, but for [2]
 *   simulated        m records of all missing values, observation after observation, variables
 *                    ascending: the draws of every L-th step; simulatedCount m [4], or both null
 *   estimates        m L records, mean and covariance after each step: p means, then the rows of
 *                    the upper triangle (0,0), (0,1), ..., (1,1), ...; estimateCount
 *                    m L p (p + 3) / 2, or one of both null
 *   initEstimates    where to start, such a record; if initEstimateCount is another number, or
 *                    one of both null, means 0 and unit covariance
 *   prior            p means, their weight tau in observations (below 0: 0), degrees of freedom
 *                    (below p: p), the rows of the upper triangle of the inverted Wishart law's
 *                    matrix; if priorCount is less than that, or one of both null, none
 *
 * The posterior of each step is the prior of the next, imputations included: what is drawn for
 * mean and covariance settles down as the chain goes on, and imputations differ by the missing
 * values' spread alone. See docs/statistics.md for what that does to intervals. Step number t
 * draws about p n t numbers for the degrees of freedom alone: m L at a hundred takes 5000 p n.
 *
 * Memory: a copy of the data, up to 45 bytes an observation (p / 8 more), batches of up to
 * 3 * 2^18 reals, and where simulated is null a record of it.
 *
 * Statuses in their order: p -4001; storage null or unknown -4003; missingParams null -4048, its
 * count null -4049, not 5 -4050; simulated without its count -4055, the reverse -4054; neither
 * simulated values nor estimates asked for -4060; method -4029; n null or below 0 -4002;
 * observations null -4032; [4] is not the number of missing entries -4063; [3] or [4] below 1
 * -4051; simulatedCount -4058; estimateCount -4059; memory -4000. From then on the outputs hold
 * what was done: the stream not made (its status, -4); a missing part's covariance not positive
 * definite -5021, or its numbers not drawn -5022; numbers of mean and covariance not drawn -5023;
 * the posterior matrix not positive definite -5024, the Wishart draw singular -5025. Where the
 * chain never began, the first record of estimates is that of expectation-maximisation. */
int32_t _ruadSSMissingValues(ork_ss_task* task, uint32_t estimates_low, uint32_t estimates_high,
                             uint32_t method_low, uint32_t method_high,
                             const ork_threader* threader);
int32_t _ruasSSMissingValues(ork_ss_task* task, uint32_t estimates_low, uint32_t estimates_high,
                             uint32_t method_low, uint32_t method_high,
                             const ork_threader* threader);

/* The weighted quantile of each variable, of the first order in quantileOrders, in quantiles
 * (p). Nothing is checked; weights must be there. No memory: -4000. */
int32_t _ruadSSWMedian(ork_ss_task* task);
int32_t _ruasSSWMedian(ork_ss_task* task);

/* PARTIAL_COV and PARTIAL_COR, by FAST: the covariance of the variables whose partialIndex is 1
 * without the linear influence of those with -1 (any other entry: no part in it), which is
 * YY - YZ ZZ^-1 ZY, by Cholesky factorisation of ZZ. It starts from cov or, where that is null,
 * from cor with variances on its diagonal. Results are ny by ny, the order of variables kept, in
 * their own storage. PARTIAL_COR has the partial variances on its diagonal. Results must not
 * overlap what is read. n, observations and the variable mask do not count.
 * Checked in this order: cov and cor (-4018) and the storage of the one used (-4044), partialIndex
 * (-4045), partialCov (-4046) and its storage (-4044), partialCor (-4047) and its storage (-4044),
 * method (-4029), p < 1 or a set without members (-4073), memory (-4000; one block), ZZ not
 * positive definite (-5010), its inverse (-5011). After the last two a partialCov in full
 * storage, which is made in place, holds the covariance YY. */
int32_t _ruadSSPartialCovariance(ork_ss_task* task, uint32_t estimates_low, uint32_t estimates_high,
                                 uint32_t method_low);
int32_t _ruasSSPartialCovariance(ork_ss_task* task, uint32_t estimates_low, uint32_t estimates_high,
                                 uint32_t method_low);

/* POOLED_COV and GROUP_COV, by ONE_PASS: mean and covariance within groups, observation i being of
 * the group groupIndex[i]. With W, W2 of each group, S its sum of w (x - mean)(x - mean)' about
 * its own mean:
 *
 *   group      mean, S / (W - W2 / W); written where groupRequest holds 1 for the group, p means
 *              and one matrix for each of these, one behind the other
 *   pooled     sum W mean / sum W, sum S / sum (W - W2 / W), sums over the groups
 *
 * Groups are 0 to the greatest number in groupIndex, and groupRequest, when not null, is as long.
 * A group that no observation has, or none but with weight 0, counts for nothing in the pool; its
 * own mean and covariance, if asked for, are 0, as is a covariance whose divisor is 0 (that of one
 * observation). An observation of weight 0 is not read. With a variable mask, packed matrices hold
 * the triangle of the selected variables alone, at the start of the room of p (p + 1) / 2 values
 * that each matrix has; full ones and means leave the places of the others as they were.
 *
 * Observations are sorted by group first (4 (n + groups) bytes), so time does not grow with
 * groups times observations. In row storage, though, a cache line is read for each group that
 * has a member in it: where groups alternate, columns are faster. From p = 11 on groups run on
 * the threads of the table; p (p + 1) numbers of the next wider type and 256 p reals are taken for
 * each, and p (p + 1) for the pool. Results do not depend on the number of threads. Below 200001
 * observations a group's scatter comes from sums about an origin near its mean, from there on from
 * updates of the running mean; both differ in rounding only.
 *
 * Statuses in their order: storageFormat null -4044, unknown -4003; groupIndex -4030; for
 * POOLED_COV its storage -4044, pooledCov -4034, pooledMean -4035; for GROUP_COV its storage -4044,
 * groupRequest -4030, groupCov -4036, groupMeans -4037; method -4029; a group number below 0 or
 * above 2^31 - 2, then a request that is neither 0 nor 1, asked for or not, -4038; memory -4000.
 * On failure nothing is written. p, n and observations are not checked. */
int32_t _ruadSSPooledCovariance(ork_ss_task* task, uint32_t estimates_low, uint32_t estimates_high,
                                uint32_t method_low, uint32_t method_high,
                                const ork_threader* threader);
int32_t _ruasSSPooledCovariance(ork_ss_task* task, uint32_t estimates_low, uint32_t estimates_high,
                                uint32_t method_low, uint32_t method_high,
                                const ork_threader* threader);

#ifdef __cplusplus
}
#endif

#endif
