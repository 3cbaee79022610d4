// One call for the estimates of a statistics task: which entries compute them.
#include "ork/front.h"
#include "outer/export.hpp"
#include "rua/rua_kernel/ss/service/task.hpp"

namespace {

typedef int32_t Entry(ork_ss_task*, uint32_t, uint32_t, uint32_t, uint32_t, const ork_threader*);

struct Computation {
  uint64_t estimates, methods;  // what it serves
  bool checks_shape;            // itself: dimension, count, observations, layout
  Entry *in_double, *in_single;
};

constexpr uint64_t moments =
    ORK_SS_MEAN | ORK_SS_RAW2 | ORK_SS_RAW3 | ORK_SS_RAW4 | ORK_SS_CENTRAL2 | ORK_SS_CENTRAL3 |
    ORK_SS_CENTRAL4 | ORK_SS_KURTOSIS | ORK_SS_SKEWNESS | ORK_SS_VARIATION | ORK_SS_COV |
    ORK_SS_COR | ORK_SS_SUM | ORK_SS_SUM2 | ORK_SS_SUM3 | ORK_SS_SUM4 | ORK_SS_CENTRAL_SUM2 |
    ORK_SS_CENTRAL_SUM3 | ORK_SS_CENTRAL_SUM4 | ORK_SS_CROSS_PRODUCT;

// In the order in which they run: later ones may read what the moments left.
constexpr Computation computations[] = {
    {moments,
     ORK_SS_FAST | ORK_SS_ONE_PASS | ORK_SS_TWO_PASS | ORK_SS_FROM_SUMS | ORK_SS_FROM_SUMS_ALT,
     true, _ruadSSBasic, _ruasSSBasic},
    {ORK_SS_MIN | ORK_SS_MAX, ORK_SS_FAST | ORK_SS_ONE_PASS, false, _ruadSSMinmax, _ruasSSMinmax},
    {ORK_SS_QUANTILES | ORK_SS_ORDER_STATS, ORK_SS_FAST, false, _ruadSSQuantiles, _ruasSSQuantiles},
    {ORK_SS_QUANTILES, ORK_SS_STREAM | ORK_SS_STREAM_ADD, true, _ruadSSStreamQuantiles,
     _ruasSSStreamQuantiles},
    {ORK_SS_MEDIAN_ABS_DEV, ORK_SS_FAST, true, _ruadSSMAD, _ruasSSMAD},
    {ORK_SS_MEAN_ABS_DEV, ORK_SS_FAST | ORK_SS_TWO_PASS, true, _ruadSSMAD, _ruasSSMAD},
};

// Only pointers and integers are looked at: they lie alike in both records.
int shape(const ork::ss::Task<double>& t) {
  if (t.dimension == nullptr || t.integer(t.dimension) < 1) return ORK_SS_BAD_DIMENSION;
  if (t.observationCount == nullptr || t.integer(t.observationCount) < 1)
    return ORK_SS_BAD_OBSERVATION_COUNT;
  if (t.observations == nullptr) return ORK_SS_NULL_OBSERVATIONS;
  return t.storageFormat != nullptr ? ORK_SS_OK : ORK_SS_NULL_STORAGE;
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
  for (const Computation& c : computations) {
    const uint64_t wanted = estimates & c.estimates, by = method & c.methods;
    if (wanted == 0 || by == 0) continue;
    if (const int status = c.checks_shape ? ORK_SS_OK : shape(record)) return status;
    const int status = (record.isDouble ? c.in_double : c.in_single)(
        task, uint32_t(wanted), uint32_t(wanted >> 32), uint32_t(by), uint32_t(by >> 32), threader);
    if (status != ORK_SS_OK) return status;
  }
  return ORK_SS_OK;
}
