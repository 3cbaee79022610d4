// Outlier detection: checks and parameters.
#include "rua_kernel/ss/outliers/bacon.hpp"
#include "rua_kernel/ss/service/computation.hpp"

namespace ork::ss {
namespace {

// The parameters' places.
enum { kStart, kAlpha, kTolerance, kParams };

// What is not there, or out of its range, NaN too, is replaced by its default.
template <class R>
BaconSettings settings_of(const Task<R>& t) {
  BaconSettings s{true, 0.05, 0.005};
  const R* const params = t.outlierParams;
  if (!params || !t.outlierParamCount || t.integer(t.outlierParamCount) != kParams) return s;
  s.medians = !(params[kStart] >= 1 && params[kStart] < 2);
  if (params[kAlpha] >= 0 && params[kAlpha] <= 1) s.alpha = params[kAlpha];
  if (params[kTolerance] > 0) s.tolerance = params[kTolerance];
  return s;
}

template <class R>
int32_t outliers(const Task<R>& t, uint64_t, uint64_t method, const ork_threader* threader) {
  if (!t.dimension || t.integer(t.dimension) < 1) return ORK_SS_BAD_DIMENSION;
  if (!t.observationCount || t.integer(t.observationCount) / 5 < t.integer(t.dimension))
    return ORK_SS_BAD_OBSERVATION_COUNT;
  if (!t.storageFormat) return ORK_SS_BAD_STORAGE;
  const int64_t layout = t.integer(t.storageFormat);
  if (layout != ORK_SS_ROWS && layout != ORK_SS_COLUMNS) return ORK_SS_BAD_STORAGE;
  const BaconSettings settings = settings_of(t);
  if (!t.outlierWeights) return ORK_SS_NULL_OUTLIER_WEIGHTS;
  if (!(method & ORK_SS_BACON)) return ORK_SS_BAD_METHOD;
  return bacon(data_of(t), settings, t.outlierWeights, threader);
}

}  // namespace

ORK_COMPUTATION(OutliersDetection, outliers)

}  // namespace ork::ss
