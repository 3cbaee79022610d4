#pragma once
// The entries of statistics by precision.
#include "ork/ss.h"
#include "ork/ss_math.h"

namespace statistics {

template <class R>
struct Api;
#define API(t, R, width)                                                  \
  template <>                                                             \
  struct Api<R> {                                                         \
    static constexpr auto make = __rua##t##SSNewTask;                     \
    static constexpr auto edit = __rua##t##SSEditTask;                    \
    static constexpr auto edit_moments = __rua##t##SSEditMoments;         \
    static constexpr auto edit_sums = __rua##t##SSEditSums;               \
    static constexpr auto edit_cov_cor = __rua##t##SSEditCovCor;          \
    static constexpr auto edit_cp = __rua##t##SSEditCP;                   \
    static constexpr auto edit_partial = __rua##t##SSEditPartialCovCor;   \
    static constexpr auto edit_pooled = __rua##t##SSEditPooledCovariance; \
    static constexpr auto edit_quantiles = __rua##t##SSEditQuantiles;     \
    static constexpr auto edit_stream = __rua##t##SSEditStreamQuantiles;  \
    static constexpr auto edit_outliers = __rua##t##SSEditOutDetect;      \
    static constexpr auto edit_robust = __rua##t##SSEditRCov;             \
    static constexpr auto edit_missing = __rua##t##SSEditMissingVals;     \
    static constexpr auto edit_matrix = __rua##t##SSEditMtxParametrz;     \
    static constexpr auto basic = _rua##t##SSBasic;                       \
    static constexpr auto minmax = _rua##t##SSMinmax;                     \
    static constexpr auto partial = _rua##t##SSPartialCovariance;         \
    static constexpr auto pooled = _rua##t##SSPooledCovariance;           \
    static constexpr auto quantiles = _rua##t##SSQuantiles;               \
    static constexpr auto stream = _rua##t##SSStreamQuantiles;            \
    static constexpr auto deviations = _rua##t##SSMAD;                    \
    static constexpr auto median = _rua##t##SSWMedian;                    \
    static constexpr auto robust = _rua##t##SSRobustCovariance;           \
    static constexpr auto repair = _rua##t##SSCorParametrization;         \
    static constexpr auto outliers = _rua##t##SSOutliersDetection;        \
    static constexpr auto missing = _rua##t##SSMissingValues;             \
    static constexpr auto select = __rua##t##QSortSelect;                 \
    static constexpr auto sort = __rua##t##QSort;                         \
    static constexpr auto sort_step = __rua##t##QSortStep;                \
    static constexpr auto sort_map = _v##t##SSQuickMapSort;               \
    static constexpr auto radix = v8_opxsSortRadixAscend_##width##f_I;    \
    static constexpr auto rank = __rua##t##TestCovRank;                   \
    static constexpr auto inverse = __rua##t##InvCov;                     \
    static constexpr auto ln = __rua##t##Ln;                              \
  };
API(d, double, 64)
API(s, float, 32)
#undef API

}  // namespace statistics
