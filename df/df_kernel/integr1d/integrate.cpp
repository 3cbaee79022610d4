// The integration entry: checks the request, and serves blocks of 128 pairs over threads.
#include "integr1d/integration.hpp"
#include "service/blocks.hpp"

namespace ork::df {
namespace {

constexpr int values_on_stack = 2048;

// One of the two arrays of limits.
template <class T>
struct Limits {
  const T* first;  // or the two that the others are generated from
  int64_t total;   // generated limits: how many; else 0
  int method;
  Search<T> search;

  // The limits start .. start + n - 1 in `own` or where they lie, and their cells.
  int find(int start, int n, T* own, const T*& limit, int32_t& state, int32_t* cell) const {
    limit = first + start;
    if (total != 0) {
      generate_sites(first, total, start, n, own);
      limit = own;
    }
    return find_dispatch<T>[method](search, n, limit, state, cell);
  }
};

template <class T>
struct Integration {
  Fit<T> fit;
  int kind;
  Integrator<T> sum;
  int nlim;
  Limits<T> left, right;
  T* result;
  ptrdiff_t by_function, by_pair;
  Parts<T> parts;
  Middles<T> middles;
};

template <class T>
int integrate_block(const Integration<T>& job, int first, int n, int32_t (&state)[2], T* values) {
  T own_left[pair_block], own_right[pair_block];
  const T *left, *right;
  int32_t left_cell[pair_block], right_cell[pair_block];
  int status = job.left.find(first, n, own_left, left, state[0], left_cell);
  if (status < 0) return status;
  status = job.right.find(first, n, own_right, right, state[1], right_cell);
  if (status < 0) return status;
  T* result = job.result + first * job.by_pair;
  if (job.parts.any()) {
    for (int j = 0; j < n; ++j) {
      status = integrate_parts(job.fit, job.kind, job.parts, left[j], left_cell[j], right[j],
                               right_cell[j], values, values + job.fit.ny);
      if (status < 0) return status;
      for (int f = 0; f < job.fit.ny; ++f)
        result[j * job.by_pair + f * job.by_function] = values[f];
    }
    return ORK_DF_OK;
  }
  for (int j = 0; j < n; j += block) {
    const int count = n - j < block ? n - j : block;
    Located<T> from, to;
    job.sum.locate(job.fit, count, left + j, left_cell + j, from);
    job.sum.locate(job.fit, count, right + j, right_cell + j, to);
    for (int f = 0; f < job.fit.ny; ++f)
      job.sum.integrate(job.fit, count, left + j, from, right + j, to, f, job.middles,
                        result + j * job.by_pair + f * job.by_function, job.by_pair);
  }
  return ORK_DF_OK;
}

// Each task starts the sorted search anew, so that results do not depend on threads.
template <class T>
struct IntegrateTask {
  const Integration<T>& job;
  T* values;  // a slice for each thread
  size_t slice;

  int run(int first, int blocks, int thread) const {
    int32_t state[2] = {0, 0};
    for (int b = 0; b < blocks; ++b) {
      const int code = integrate_block(job, first + b * pair_block, pair_block, state,
                                       values + static_cast<size_t>(thread) * slice);
      if (code < 0) return code;
    }
    return ORK_DF_OK;
  }
  int run_in_team(int first, int blocks, int thread) const { return run(first, blocks, thread); }
};

template <class T>
int integrate_blocks(const Integration<T>& job, const ork_threader* threader) {
  const BlockPlan plan(job.nlim, pair_block, job.nlim < pair_block ? 1 : thread_limit(threader));
  const uint64_t slice = job.parts.any() ? uint64_t{pair_block} * job.fit.ny : 0;
  const uint64_t needed = slice * plan.threads;
  const auto run = [&](T* values) -> int {
    const int status =
        serve_blocks(plan, threader, IntegrateTask<T>{job, values, static_cast<size_t>(slice)});
    const int first = plan.served(), rest = job.nlim - first;
    int32_t state[2] = {0, 0};
    return status < 0 || rest == 0 ? status : integrate_block(job, first, rest, state, values);
  };
  if (needed <= values_on_stack) {
    T values[values_on_stack];
    return run(values);
  }
  Scratch<T> values(needed);
  return values ? run(values.get()) : ORK_DF_NO_MEMORY;
}

// ---- Peaks ------------------------------------------------------------------------------

// Breakpoints on both sides of two peaks at which most intervals start and end. False when
// the peaks are too close for a middle between them.
template <class T>
bool cut_at_peaks(const T* left_hint, const T* right_hint, int nx, int (&cut)[4]) {
  if (nx < 6 || !marks_peak(left_hint, nx) || !marks_peak(right_hint, nx)) return false;
  T p = left_hint[4], q = right_hint[4];
  if (p > q) {
    const T lower = q;
    q = p;
    p = lower;
  }
  if (!(q - p > 3)) return false;
  const auto clamp = [nx](T position) {
    return position < 2                        ? 2
           : position > static_cast<T>(nx - 2) ? nx - 2
                                               : static_cast<int>(position);
  };
  const int low = clamp(p), high = clamp(q);
  cut[0] = low - 1, cut[1] = low + 1, cut[2] = high - 1, cut[3] = high + 1;
  return high - low > 2;
}

// The integrals between the cuts, by the integrator itself.
template <class T>
void fill_middles(const Integration<T>& job, T* value) {
  T left[3], right[3];
  int32_t left_cell[3], right_cell[3];
  for (int m = 0; m < 3; ++m) {
    const int from = job.middles.cut[m], to = job.middles.cut[m + 1];
    left[m] = job.fit.point(from), left_cell[m] = from + 1;
    right[m] = job.fit.point(to), right_cell[m] = to + 1;
  }
  Located<T> from, to;
  job.sum.locate(job.fit, 3, left, left_cell, from);
  job.sum.locate(job.fit, 3, right, right_cell, to);
  for (int f = 0; f < job.fit.ny; ++f)
    job.sum.integrate(job.fit, 3, left, from, right, to, f, {}, value + 3 * f, 1);
}

template <class T>
int integrate_peaks(Integration<T>& job, const ork_threader* threader) {
  constexpr int functions_on_stack = 16;
  const auto run = [&](T* value) {
    fill_middles(job, value);
    job.middles.value = value;
    return integrate_blocks(job, threader);
  };
  if (job.fit.ny <= functions_on_stack) {
    T value[3 * functions_on_stack];
    return run(value);
  }
  Scratch<T> value(uint64_t{3} * job.fit.ny);
  return value ? run(value.get()) : ORK_DF_NO_MEMORY;
}

// What the entry is called with.
template <class T>
struct Call {
  struct Ends {
    const T* limits;
    int64_t hint;
    const T* data_hint;
  };
  const Task* task;
  int64_t nlim;
  Ends left, right;
  T* result;
  int64_t result_hint;
  Parts<T> parts;
  typename SearchCallback<T>::type* search_callback;
  void* search_params;
};

template <class T>
int integrate_task(const Call<T>& call, const ork_threader* threader) {
  const Task* const task = call.task;
  const Parts<T>& parts = call.parts;
  if (task == nullptr) return ORK_DF_NULL_TASK;
  Integration<T> job;
  const bool all_callbacks =
      parts.left != nullptr && parts.interior != nullptr && parts.right != nullptr;
  job.kind = kind_of(task->splineOrder, task->splineType, all_callbacks);
  if (job.kind < 0 || job.kind == look_up_kind) return ORK_DF_BAD_TYPE;
  job.nlim = call.nlim > 0 ? static_cast<int32_t>(call.nlim) : 0;
  const auto set = [&](Limits<T>& limits, const typename Call<T>::Ends& ends) {
    limits.first = ends.limits;
    limits.total = (ends.hint & uniform_sites) != 0 ? job.nlim : 0;
    limits.method = choose_search(task, ends.hint, ends.data_hint, call.search_callback,
                                  call.search_params, limits.search);
    return limits.method < 0 ? limits.method : 0;
  };
  int status = set(job.left, call.left);
  if (status < 0) return status;
  status = set(job.right, call.right);
  if (status < 0) return status;
  job.fit = Fit<T>(task);
  job.result = call.result;
  switch (call.result_hint) {
    case ORK_DF_RESULT_DEFAULT:
    case ORK_DF_RESULT_COLS:
      job.by_function = 1;
      job.by_pair = job.fit.ny;
      break;
    case ORK_DF_RESULT_ROWS:
    case ORK_DF_RESULT_ROWS_APART:
      job.by_function = job.nlim;
      job.by_pair = 1;
      break;
    default:
      return ORK_DF_BAD_INTEGRAL_LAYOUT;
  }
  if (!has_data(task, job.kind)) {
    if (job.kind >= step_left_kind) return ORK_DF_BAD_Y;
    if (!all_callbacks) return ORK_DF_BAD_COEFFS;
  }
  if (job.nlim == 0) return ORK_DF_OK;
  job.sum = integrator<T>(job.kind);
  job.parts = parts;
  job.middles = {};
  const bool summed_by_cells = job.kind != subbotin_kind && job.kind < step_left_kind;
  if (summed_by_cells && !parts.any() &&
      cut_at_peaks(call.left.data_hint, call.right.data_hint, job.fit.nx, job.middles.cut))
    return integrate_peaks(job, threader);
  return integrate_blocks(job, threader);
}

}  // namespace
}  // namespace ork::df

#define ORK_INTEGRATE(letter, T)                                                                   \
  ORK_EXPORT int ork_df_kernel_##letter##DFIntegrate1D(                                            \
      const ork_df_task* task, int64_t, int64_t nlim, const T* left, int64_t leftHint,             \
      const T* right, int64_t rightHint, const T* leftDataHint, const T* rightDataHint, T* result, \
      int64_t resultHint, ork_df_integr_##letter* leftCallback, void* leftParams,                  \
      ork_df_integr_##letter* rightCallback, void* rightParams,                                    \
      ork_df_integr_##letter* interiorCallback, void* interiorParams,                              \
      ork_df_search_##letter* searchCallback, void* searchParams, const ork_threader* threader) {  \
    return ork::df::integrate_task<T>(                                                             \
        {task,                                                                                     \
         nlim,                                                                                     \
         {left, leftHint, leftDataHint},                                                           \
         {right, rightHint, rightDataHint},                                                        \
         result,                                                                                   \
         resultHint,                                                                               \
         {leftCallback, leftParams, interiorCallback, interiorParams, rightCallback, rightParams}, \
         searchCallback,                                                                           \
         searchParams},                                                                            \
        threader);                                                                                 \
  }
ORK_TWINS(ORK_INTEGRATE)
