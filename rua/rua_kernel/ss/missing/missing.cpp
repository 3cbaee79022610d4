// Missing values by multiple imputation under a multivariate normal model (Rubin, Multiple
// Imputation for Nonresponse in Surveys, 1987): expectation-maximisation, and from its result a
// chain of data augmentation.
#include "rua_kernel/ss/missing/em.hpp"
#include "rua_kernel/ss/missing/imputation.hpp"
#include "rua_kernel/ss/missing/posterior.hpp"
#include "rua_kernel/ss/service/computation.hpp"

namespace ork::ss {
namespace {

constexpr int kParams = 5;

// An integer parameter that comes as a real. What is below 1, or no number, counts as 0.
template <class R>
int whole(R x) {
  if (!(x >= 1)) return 0;
  return x < R(0x40000000) ? int(x) : 0x40000000;
}

template <class R>
struct Request {
  int em_iterations, steps, imputations;
  R tolerance;
  const R *start, *prior;
  R *simulated, *estimates;  // null: not asked for
  uint64_t missing;          // entries
};

// The number of an array's elements; 0 where nothing tells it.
template <class R>
uint64_t length(const Task<R>& t, Integers count) {
  return count ? uint32_t(t.integer(count)) : 0;
}

template <class R>
int32_t check_fields(const Task<R>& t, uint64_t method) {
  if (!t.dimension || t.integer(t.dimension) < 1 || t.p() < 1) return ORK_SS_BAD_DIMENSION;
  if (!t.storageFormat) return ORK_SS_BAD_STORAGE;
  const int64_t storage = t.integer(t.storageFormat);
  if (storage != ORK_SS_ROWS && storage != ORK_SS_COLUMNS) return ORK_SS_BAD_STORAGE;
  if (!t.missingParams) return ORK_SS_NULL_MISSING_PARAMS;
  if (!t.missingParamCount) return ORK_SS_NULL_MISSING_PARAM_COUNT;
  if (length(t, t.missingParamCount) != kParams) return ORK_SS_BAD_MISSING_PARAM_COUNT;
  if (t.simulated && !t.simulatedCount) return ORK_SS_NULL_SIMULATED_COUNT;
  if (!t.simulated && t.simulatedCount) return ORK_SS_NULL_SIMULATED;
  if ((!t.estimateCount || !t.estimates) && length(t, t.simulatedCount) == 0)
    return ORK_SS_NOTHING_TO_IMPUTE;
  if (!(method & ORK_SS_IMPUTATION)) return ORK_SS_BAD_METHOD;
  // The caller's to check; but nothing is read where nothing can be.
  if (!t.observationCount || t.n() < 0) return ORK_SS_BAD_OBSERVATION_COUNT;
  return t.observations ? ORK_SS_OK : ORK_SS_NULL_OBSERVATIONS;
}

template <class R>
uint64_t count_missing(const Task<R>& t) {
  const size_t entries = size_t(t.p()) * t.n();
  uint64_t count = 0;
  for (size_t i = 0; i < entries; ++i) count += is_missing(t.observations + i);
  return count;
}

// Reals of one record of estimates.
uint64_t record_length(uint64_t p) { return p * (p + 3) / 2; }

template <class R>
int32_t make_request(const Task<R>& t, Request<R>& r) {
  const R* const params = t.missingParams;
  const uint64_t record = record_length(t.p()), missing = count_missing(t);
  // Also as a real: single has no room for every number above 2^24.
  if (params[4] != R(missing) &&
      !(params[4] > -1 && params[4] < 0x40000000 && uint64_t(int64_t(params[4])) == missing))
    return ORK_SS_BAD_MISSING_COUNT;
  r.imputations = whole(params[3]);
  if (r.imputations < 1 || missing < 1) return ORK_SS_BAD_MISSING_PARAMS;
  r.em_iterations = whole(params[0]);
  if (r.em_iterations < 1) r.em_iterations = 50;
  r.steps = whole(params[1]);
  if (r.steps < 1) r.steps = 30;
  r.tolerance = params[2] > 0 ? params[2] : R(0.001);
  r.missing = missing;
  if (t.simulated && length(t, t.simulatedCount) != r.imputations * missing)
    return ORK_SS_BAD_SIMULATED_COUNT;
  r.simulated = t.simulated;
  r.estimates = t.estimateCount ? t.estimates : nullptr;
  if (r.estimates && length(t, t.estimateCount) != record * r.imputations * r.steps)
    return ORK_SS_BAD_ESTIMATE_COUNT;
  r.start = length(t, t.initEstimateCount) == record ? t.initEstimates : nullptr;
  r.prior = length(t, t.priorCount) >= record + 2 ? t.prior : nullptr;
  return ORK_SS_OK;
}

// Zero mean, unit covariance.
template <class R>
void set_default_start(const Model<R>& model, const R* centre) {
  const SweepForm<R>& theta = model.theta;
  std::fill_n(theta.a, model.square(), R(0));
  theta[0][0] = -1;
  for (int j = 1; j < model.d; ++j) {
    theta[j][j] = 1;
    theta[j][0] = theta[0][j] = -centre[j - 1];
  }
}

template <class R>
int32_t run_chain(Model<R>& model, const Patterns<R>& patterns, const Request<R>& r) {
  Imputation<R> imputation(model, patterns);
  Posterior<R> posterior(model, r.prior, patterns.centre());
  const Scratch<R> own_record = r.simulated ? Scratch<R>() : Scratch<R>(r.missing);
  if (!imputation || !posterior || !(r.simulated || own_record)) return ORK_SS_NO_MEMORY;
  const Stream stream;
  if (stream.status() != RUA_STATUS_OK) return stream.status();
  R* estimates = r.estimates;
  for (int i = 0; i < r.imputations; ++i) {
    R* const simulated = r.simulated ? r.simulated + r.missing * i : own_record.get();
    for (int step = 0; step < r.steps; ++step) {
      if (const int32_t status = imputation.step(stream.get(), simulated)) return status;
      if (const int32_t status = posterior.step(stream.get(), patterns.n)) return status;
      if (!estimates) continue;
      model.get_estimates(patterns.centre(), estimates);
      estimates += record_length(model.p);
    }
  }
  return ORK_SS_OK;
}

template <class R>
int32_t missing_values(const Task<R>& t, uint64_t, uint64_t method, const ork_threader*) {
  if (const int32_t status = check_fields(t, method)) return status;
  Request<R> r;
  if (const int32_t status = make_request(t, r)) return status;
  const Patterns<R> patterns(data_of(t));
  Model<R> model(t.p());
  if (!patterns || !model) return ORK_SS_NO_MEMORY;
  const R* const centre = patterns.centre();
  if (r.start)
    model.set_estimates(centre, r.start);
  else
    set_default_start(model, centre);
  model.set_constant(patterns);
  if (!expectation_maximisation(model, patterns, r.em_iterations, r.tolerance))
    return ORK_SS_NO_MEMORY;
  // Until the chain's first one takes its place.
  if (r.estimates) model.get_estimates(centre, r.estimates);
  return run_chain(model, patterns, r);
}

}  // namespace

ORK_COMPUTATION(MissingValues, missing_values)

}  // namespace ork::ss
