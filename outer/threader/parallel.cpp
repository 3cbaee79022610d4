// The parallel threader table, on OpenMP. (Without it: serial.cpp.)
#ifdef _OPENMP
#include <omp.h>

#pragma GCC visibility push(default)
#include "ork/threader.h"
#pragma GCC visibility pop

namespace {

int max_threads() { return omp_get_max_threads(); }

// A launch inside a launch gets one thread, its number 0: OpenMP's own rule unless the
// program asks for nested teams, and then numbers count within the inner team.
int team(int threads, int count) {
  if (threads < 1) threads = max_threads();
  return threads < count ? threads : count;
}

// Items go to threads in equal runs, fixed by count and threads alone: what a body
// gathers in its thread's slice does not depend on timing.
void parallel_for(int count, int threads, void* context, ork_threader_body body) {
  if (count < 1) return;
#pragma omp parallel for schedule(static) num_threads(team(threads, count))
  for (int item = 0; item < count; ++item) body(item, omp_get_thread_num(), 0, context);
}

// Item by item in turn, so that no thread waits long for the lower items. An item whose
// body never calls `ordered` counts as passed when its body ends.
void ordered_for(int count, int threads, void* context, ork_threader_body body) {
  if (count < 1) return;
#pragma omp parallel for ordered schedule(static, 1) num_threads(team(threads, count))
  for (int item = 0; item < count; ++item) body(item, omp_get_thread_num(), 0, context);
}

// A loop over the threads, not a bare region: all indices run even where OpenMP grants a
// smaller team.
void parallel(int threads, void* context, ork_threader_body body) {
  if (threads < 1) threads = max_threads();
#pragma omp parallel for schedule(static, 1) num_threads(threads)
  for (int thread = 0; thread < threads; ++thread) body(thread, thread, threads, context);
}

// Binds to the loop of ordered_for that the calling body belongs to.
void ordered(int item, int thread, int third, void* context, ork_threader_body body) {
#pragma omp ordered
  body(item, thread, third, context);
}

}  // namespace

const ork_threader ork_threader_parallel = {parallel_for, ordered_for, parallel, ordered,
                                            max_threads};
#endif
