// The interpolation entry: checks the request, and takes one of three roads: a single site, a
// few sites, or blocks of 64 sites over threads.
#include "interp1d/interpolate.hpp"

#include <string.h>

#include "service/blocks.hpp"

namespace ork::df {

template <class T>
int interpolate_block(const Interpolation<T>& job, int first, int n, int32_t& state,
                      BlockWork<T>& work, T* values) {
  const T* site = job.site + first;
  if (job.total_sites != 0) {
    generate_sites(job.site, job.total_sites, first, n, work.site);
    site = work.site;
  }
  // Kinds without derivatives leave those outputs alone; here they are 0.
  if (job.kind >= step_left_kind && job.kind != look_up_kind)
    for (int f = 0; f < job.fit.ny; ++f)
      for (int j = 0; j < n; ++j)
        for (int k = 0; k < job.request.count; ++k) *job.output(f, first).at(j, k) = T(0);
  if (job.has_callbacks())
    return interpolate_groups(job, first, n, site, state, work.located, values);

  int32_t* cell = work.cell;
  if (job.take_cells) {
    for (int j = 0; j < n; ++j) cell[j] = job.given_cell(first + j);
  } else {
    const int status = find_dispatch<T>[job.method](job.search, n, site, state, cell);
    if (status < 0) return status;
  }
  if (job.store_cells)
    for (int j = 0; j < n; ++j) job.put_cell(first + j, cell[j]);

  const Evaluator<T>& eval = evaluator<T>(job.kind);
  int status = eval.locate(job.fit, n, site, cell, work.located);
  for (int f = 0; f < job.fit.ny && status == ORK_DF_OK; ++f)
    status = eval.fill(job.fit, job.request, n, work.located, f, job.output(f, first));
  return status;
}

namespace {

constexpr int least_for_threads = 513;
constexpr int least_for_blocks = 32;
constexpr int values_in_block = 2048;
constexpr size_t block_bytes = 18256;

template <class T>
struct InterpolateTask {
  const Interpolation<T>& job;
  BlockWork<T>& work;  // the calling thread's; a team's threads bring their own
  T* values;           // a slice for each thread
  size_t slice;

  // Each task starts the sorted search anew, so that results do not depend on threads.
  int serve(int first, int blocks, int thread, BlockWork<T>& own) const {
    int32_t state = 0;
    for (int b = 0; b < blocks; ++b) {
      const int code = interpolate_block(job, first + b * block, block, state, own,
                                         values + static_cast<size_t>(thread) * slice);
      if (code < 0) return code;
    }
    return ORK_DF_OK;
  }
  int run(int first, int blocks, int thread) const { return serve(first, blocks, thread, work); }
  int run_in_team(int first, int blocks, int thread) const {
    BlockWork<T> own;
    return serve(first, blocks, thread, own);
  }
};

template <class T>
int interpolate_blocks(const Interpolation<T>& job, const ork_threader* threader) {
  // The calling thread's arrays and, when they fit, the slices of all threads.
  struct Room {
    BlockWork<T> work;
    T values[values_in_block];
  };
  static_assert(sizeof(Room) <= block_bytes);
  Scratch<char> room_block(block_bytes);
  if (!room_block) return ORK_DF_NO_MEMORY;
  Room& room = *reinterpret_cast<Room*>(room_block.get());

  const BlockPlan plan(job.nsite, block,
                       job.nsite >= least_for_threads ? thread_limit(threader) : 1);
  const uint64_t slice = job.has_callbacks() ? uint64_t{block} * job.fit.ny * job.request.count : 0;
  const uint64_t needed = slice * plan.threads;
  const auto run = [&](T* values) -> int {
    const int status = serve_blocks(
        plan, threader, InterpolateTask<T>{job, room.work, values, static_cast<size_t>(slice)});
    const int first = plan.served(), rest = job.nsite - first;
    int32_t state = 0;
    return status < 0 || rest == 0 ? status
                                   : interpolate_block(job, first, rest, state, room.work, values);
  };
  if (needed <= values_in_block) return run(room.values);
  Scratch<T> slices(needed);
  return slices ? run(slices.get()) : ORK_DF_NO_MEMORY;
}

// Fewer than 32 sites: one block, and no memory but for large callback results.
template <class T>
int interpolate_few(const Interpolation<T>& job) {
  constexpr int on_stack = 1024;
  BlockWork<T> work;
  int32_t state = 0;
  const uint64_t needed =
      job.has_callbacks() ? uint64_t(job.nsite) * job.fit.ny * job.request.count : 0;
  if (needed <= on_stack) {
    T values[on_stack];
    return interpolate_block(job, 0, job.nsite, state, work, values);
  }
  Scratch<T> values(needed);
  return values ? interpolate_block(job, 0, job.nsite, state, work, values.get())
                : ORK_DF_NO_MEMORY;
}

// One site, one function. Here the right end itself belongs to the right callback, and the
// callback's status is the result.
template <class T>
int interpolate_one(const Interpolation<T>& job) {
  const T s = job.site[0];
  const int side = s < job.fit.x[0] ? left_side : s >= job.fit.right_end() ? right_side : interior;
  int32_t state = 0, cell = 0;
  if (side == right_side) cell = job.fit.nx;
  if (side == interior) find_dispatch<T>[job.method](job.search, 1, &s, state, &cell);
  if (job.callback[side] != nullptr) {
    const int64_t one = 1, piece = piece_of_cell(cell, last_piece(job.kind, job.fit.nx));
    T values[4] = {};
    const int status = job.callback[side](&one, &piece, &s, values, job.params[side]);
    for (int k = 0; k < job.request.count; ++k) *job.output(0, 0).at(0, k) = values[k];
    return status;
  }
  const Evaluator<T>& eval = evaluator<T>(job.kind);
  Located<T> located;
  eval.locate(job.fit, 1, &s, &cell, located);
  return eval.fill(job.fit, job.request, 1, located, 0, job.output(0, 0));
}

// What the entry is called with, in its order.
template <class T>
struct Call {
  using Callback = typename InterpCallback<T>::type;
  const Task* task;
  int64_t type, nsite;
  const T* site;
  int64_t site_hint;
  int64_t flags;
  const void* flag;
  const T* data_hint;
  T* result;
  int64_t result_hint;
  void* cell;
  Callback* left;
  void* left_params;
  Callback* right;
  void* right_params;
  Callback* inner;
  void* inner_params;
  typename SearchCallback<T>::type* search_callback;
  void* search_params;

  void set_callbacks(Interpolation<T>& job) const {
    job.callback[left_side] = left, job.params[left_side] = left_params;
    job.callback[interior] = inner, job.params[interior] = inner_params;
    job.callback[right_side] = right, job.params[right_side] = right_params;
  }
};

template <class T>
int interpolate(const Call<T>& call, const ork_threader* threader) {
  constexpr int64_t store_cells = 2, take_cells = 4;
  const Task* const task = call.task;
  if (task == nullptr) return ORK_DF_NULL_TASK;
  Interpolation<T> job;
  const bool all_callbacks = call.left != nullptr && call.right != nullptr && call.inner != nullptr;
  job.kind = kind_of(task->splineOrder, task->splineType, all_callbacks);
  if (job.kind < 0) return job.kind;
  job.take_cells = call.type == take_cells;
  job.store_cells = (call.type & store_cells) != 0;
  job.method = no_search;
  if (!job.take_cells) {
    job.method = choose_search(task, call.site_hint, call.data_hint, call.search_callback,
                               call.search_params, job.search);
    if (job.method < 0) return job.method;
  }
  job.nsite = call.nsite > 0 ? static_cast<int32_t>(call.nsite) : 0;
  job.fit = Fit<T>(task);
  const bool wide = task->widthFlag != 0;
  job.request = read_request(call.flags, call.flag, wide);
  job.result = call.result;
  switch (call.result_hint) {
    case ORK_DF_RESULT_DEFAULT:
    case ORK_DF_RESULT_COLS:
      job.by_site = 1;
      job.by_order = job.nsite;
      break;
    case ORK_DF_RESULT_ROWS:
    case ORK_DF_RESULT_ROWS_APART:
      job.by_site = job.request.count;
      job.by_order = 1;
      break;
    default:
      return ORK_DF_BAD_RESULT_HINT;
  }
  job.by_function = static_cast<ptrdiff_t>(job.nsite) * job.request.count;
  job.site = call.site;
  job.total_sites = (call.site_hint & uniform_sites) != 0 ? job.nsite : 0;
  job.cell = call.cell;
  job.wide_cells = wide;
  call.set_callbacks(job);

  if (!has_data(task, job.kind)) {
    if (job.kind >= step_left_kind) return ORK_DF_BAD_Y;
    if (!all_callbacks) return ORK_DF_BAD_COEFFS;
  }
  if (job.nsite == 0) return ORK_DF_OK;
  if (job.nsite == 1 && !job.store_cells && !job.take_cells && job.total_sites == 0 &&
      job.kind <= cubic_kind && call.flags <= 4 && job.fit.ny == 1 &&
      call.search_callback == nullptr)
    return interpolate_one(job);
  if (job.nsite < least_for_blocks) return interpolate_few(job);
  return interpolate_blocks(job, threader);
}

}  // namespace

// The single-site road with the spline and the search named by the caller.
static int interpolate_scalar(const Call<double>& call, int kind, int search_kind) {
  const Task* const task = call.task;
  if (task == nullptr) return ORK_DF_NULL_TASK;
  if (kind < 0 || kind > cubic_kind) return ORK_DF_BAD_TYPE;
  if (!has_data(task, kind)) return ORK_DF_BAD_COEFFS;
  Interpolation<double> job;
  job.fit = Fit<double>(task);
  job.kind = kind;
  job.request =
      read_request(call.flags < 4 ? call.flags : 4, call.flag, (task->widthFlag & 1) != 0);
  Task as_named = *task;
  as_named.xhint = search_kind == 0   ? ORK_DF_X_UNIFORM
                   : search_kind == 1 ? ORK_DF_X_QUASI_UNIFORM
                                      : ORK_DF_X_NON_UNIFORM;
  job.method = choose_search<double>(&as_named, 0, nullptr, nullptr, nullptr, job.search);
  job.site = call.site;
  job.result = call.result;
  job.by_function = job.by_site = job.request.count;
  job.by_order = 1;
  call.set_callbacks(job);
  return interpolate_one(job);
}

}  // namespace ork::df

#define ORK_INTERPOLATE(letter, T)                                                                 \
  ORK_EXPORT int ork_df_kernel_##letter##DFInterpolate1D(                                          \
      const ork_df_task* task, int64_t type, int64_t, int64_t nsite, const T* site,                \
      int64_t siteHint, int64_t nDerivFlags, const void* derivFlags, const T* dataHint, T* result, \
      int64_t resultHint, void* cell, ork_df_interp_##letter* leftCallback, void* leftParams,      \
      ork_df_interp_##letter* rightCallback, void* rightParams,                                    \
      ork_df_interp_##letter* interiorCallback, void* interiorParams,                              \
      ork_df_search_##letter* searchCallback, void* searchParams, const ork_threader* threader) {  \
    return ork::df::interpolate<T>(                                                                \
        {task, type, nsite, site, siteHint, nDerivFlags, derivFlags, dataHint, result, resultHint, \
         cell, leftCallback, leftParams, rightCallback, rightParams, interiorCallback,             \
         interiorParams, searchCallback, searchParams},                                            \
        threader);                                                                                 \
  }
ORK_TWINS(ORK_INTERPOLATE)

ORK_EXPORT int _Interp1DKernel_scalar(const ork_df_task* task, int splineIndex, int searchKind,
                                      double site, int64_t nDerivFlags, const void* derivFlags,
                                      double* result, ork_df_interp_d* leftCallback,
                                      void* leftParams, ork_df_interp_d* rightCallback,
                                      void* rightParams, ork_df_interp_d* interiorCallback,
                                      void* interiorParams) {
  return ork::df::interpolate_scalar(
      {task, 0, 1, &site, 0, nDerivFlags, derivFlags, nullptr, result, 0, nullptr, leftCallback,
       leftParams, rightCallback, rightParams, interiorCallback, interiorParams, nullptr, nullptr},
      splineIndex, searchKind);
}
