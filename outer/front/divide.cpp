// How a long vector is cut, handed to threads, and its events gathered.
#include <errno.h>
#include <fenv.h>
#include <pthread.h>

#include <atomic>

#include "ork/front.h"
#include "ork/threader.h"
#include "outer/export.hpp"
#include "outer/front/elementwise.hpp"

namespace {

using ork::front::Bound;

// Slices begin at multiples of this: 512 bytes of float, so that two of them share at most
// one cache line of the output.
constexpr int grain = 128;
constexpr int most_slices = 128;

// Some 40000 cycles a slice: a launch costs 5000, and two threads break even near 30000 of work
// (bench/results/front.txt).
constexpr float default_threshold = 100000;

std::atomic<int> threads_allowed{0};  // 0: what the threader table says
std::atomic<float> least_work{default_threshold};

// Error mode and denormal handling, with what a field of 0 means spelt out: a mode field can
// be replaced, but not set to 0.
uint32_t spelt_out(uint32_t mode) {
  uint32_t fields = mode & (ORK_ZEM_ERRMODE_MASK | ORK_ZEM_DENORMAL_MASK);
  if ((fields & ORK_ZEM_ERRMODE_MASK) == 0) fields |= ORK_ZEM_ERRMODE_IGNORE;
  if ((fields & ORK_ZEM_DENORMAL_MASK) == 0) fields |= ORK_ZEM_DENORMAL_KEEP;
  return fields;
}

// What of a thread's state decides results and reports.
struct Settings {
  uint32_t mode;
  ork_error_callback callback;
  fenv_t floating;  // rounding counts for Rint and NearbyInt, masks for raised exceptions

  void read() {
    mode = spelt_out(ork_zem_kernel_GetMode());
    callback = ork_zem_kernel_GetErrorCallBack();
    fegetenv(&floating);
  }
  void apply() const {
    ork_zem_kernel_SetErrorCallBack(callback);  // also edits the mode, so it comes first
    ork_zem_kernel_SetMode(mode);
    fesetenv(&floating);
  }
};

// What a slice left behind on its thread.
struct Outcome {
  int status, error_number, exceptions;
};

struct Job {
  const Bound* bound;
  int n, slice_length;
  pthread_t caller;
  Settings settings;
  Outcome outcomes[most_slices];
};

// The vector whose slice this thread runs, or null: a callback inside it may call again.
__thread const void* whole_input;

void count_from(const void* input) {
  whole_input = input;
  ork_zem_kernel_SetInterfInputVectorPointer(input);
}

Outcome run_slice(const Bound& bound, int begin, int n) {
  const int status_before = ork_zem_kernel_SetErrStatus(ZEM_STATUS_NONE), errno_before = errno;
  errno = 0;
  const void* outer = whole_input;
  count_from(bound.input);
  bound.run(bound.call, begin, n);
  count_from(outer);
  const Outcome outcome = {ork_zem_kernel_SetErrStatus(status_before), errno,
                           fetestexcept(FE_ALL_EXCEPT)};
  errno = errno_before;
  return outcome;
}

void body(int item, int, int, void* context) {
  Job& job = *static_cast<Job*>(context);
  const int begin = item * job.slice_length;
  const int n = job.n - begin < job.slice_length ? job.n - begin : job.slice_length;
  const bool borrowed = !pthread_equal(pthread_self(), job.caller);
  Settings own;
  if (borrowed) {
    own.read();
    job.settings.apply();
  }
  job.outcomes[item] = run_slice(*job.bound, begin, n);
  if (borrowed) own.apply();
}

int slices_for(int n, float cost) {
  const float work = float(n) * cost, least = least_work.load(std::memory_order_relaxed);
  if (!(work >= 2 * least)) return 1;  // a short vector asks no further
  const int allowed = threads_allowed.load(std::memory_order_relaxed);
  int slices = allowed > 0 ? allowed : ork_threader_parallel.max_threads();
  if (slices > most_slices) slices = most_slices;
  if (work < least * float(slices)) slices = int(work / least);
  return slices < n / grain ? slices : n / grain;
}

}  // namespace

int ork::front::rejected(int status, int argument, const char* name) {
  const void* outer = whole_input;
  count_from(nullptr);  // `argument` is no element to be shifted
  ork_zem_kernel_dError(status, argument, nullptr, nullptr, nullptr, nullptr, name);
  count_from(outer);
  return status;
}

int ork::front::run_whole(const Bound& bound, int n) {
  const int before = ork_zem_kernel_SetErrStatus(ZEM_STATUS_NONE);
  const void* outer = whole_input;
  if (outer != nullptr) count_from(nullptr);
  bound.run(bound.call, 0, n);
  if (outer != nullptr) count_from(outer);
  const int status = ork_zem_kernel_GetErrStatus();
  if (status == ZEM_STATUS_NONE) ork_zem_kernel_SetErrStatus(before);
  return status;
}

int ork::front::run_divided(const Bound& bound, int n, float cost) {
  const int slices = slices_for(n, cost);
  if (slices < 2) return run_whole(bound, n);
  Job job;
  job.bound = &bound;
  job.n = n;
  job.slice_length = ((n - 1) / slices / grain + 1) * grain;
  job.caller = pthread_self();
  job.settings.read();
  const int count = (n - 1) / job.slice_length + 1;
  ork_threader_parallel.parallel_for(count, count, &job, body);

  int status = ZEM_STATUS_NONE, exceptions = 0;
  for (int i = 0; i < count; ++i) {  // the last in the vector stands, as in a call that is whole
    const Outcome& outcome = job.outcomes[i];
    if (outcome.status != ZEM_STATUS_NONE) status = outcome.status;
    if (outcome.error_number != 0) errno = outcome.error_number;
    exceptions |= outcome.exceptions;
  }
  if (status != ZEM_STATUS_NONE) ork_zem_kernel_SetErrStatus(status);
  const fexcept_t flags = static_cast<fexcept_t>(exceptions);
  fesetexceptflag(&flags, exceptions);
  return status;
}

ORK_OUTER int ork_set_threads(int threads) {
  if (threads < 0) return threads_allowed.load(std::memory_order_relaxed);
  return threads_allowed.exchange(threads, std::memory_order_relaxed);
}

ORK_OUTER float ork_set_threshold(float work) {
  if (!(work > 0)) return least_work.load(std::memory_order_relaxed);
  return least_work.exchange(work, std::memory_order_relaxed);
}
