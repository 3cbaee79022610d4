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
  ork::ss::Integers Record::*orders = nullptr;  // how many it reads, where it reads any
  int bad_orders = 0;
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
     _ruadSSBasic, _ruasSSBasic},
    {ORK_SS_MIN | ORK_SS_MAX, ORK_SS_FAST | ORK_SS_ONE_PASS, _ruadSSMinmax, _ruasSSMinmax},
    {ORK_SS_QUANTILES | ORK_SS_ORDER_STATS, ORK_SS_FAST, _ruadSSQuantiles, _ruasSSQuantiles,
     &Record::quantileCount, ORK_SS_BAD_QUANTILES},
    {ORK_SS_QUANTILES, ORK_SS_STREAM | ORK_SS_STREAM_ADD, _ruadSSStreamQuantiles,
     _ruasSSStreamQuantiles, &Record::streamOrderCount, ORK_SS_BAD_STREAM_ORDERS},
    {ORK_SS_MEDIAN_ABS_DEV, ORK_SS_FAST, _ruadSSMAD, _ruasSSMAD},
    {ORK_SS_MEAN_ABS_DEV, ORK_SS_FAST | ORK_SS_TWO_PASS, _ruadSSMAD, _ruasSSMAD},
};

// A number that kernels read as 32 bits, `least` or more.
bool counts(const Record& t, ork::ss::Integers parameter, int least) {
  if (parameter == nullptr) return false;
  const int64_t value = t.integer(parameter);
  return value >= least && value <= INT32_MAX;
}

// What kernels leave to their caller: the numbers that say how far they read, and the arrays they
// read there. Codes and null outputs they refuse themselves.
int shape(const Record& t, const Computation& c, uint64_t by) {
  if (!counts(t, t.dimension, 1)) return ORK_SS_BAD_DIMENSION;
  const bool observed = by & ~(ORK_SS_FROM_SUMS | ORK_SS_FROM_SUMS_ALT);
  const bool streaming = by & (ORK_SS_STREAM | ORK_SS_STREAM_ADD);  // of no new values, too
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
  for (const Computation& c : computations) {
    const uint64_t wanted = estimates & c.estimates, by = method & c.methods;
    if (wanted == 0 || by == 0) continue;
    const int status = (record.isDouble ? c.in_double : c.in_single)(
        task, uint32_t(wanted), uint32_t(wanted >> 32), uint32_t(by), uint32_t(by >> 32), threader);
    if (status != ORK_SS_OK) return status;
  }
  return ORK_SS_OK;
}
