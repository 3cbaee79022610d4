// The parallel threader table, on OpenMP. (Without it: serial.cpp.)
#ifdef _OPENMP
#include <omp.h>
#include <pthread.h>

#pragma GCC visibility push(default)
#include "ork/threader.h"
#pragma GCC visibility pop

namespace {

// fork() copies the calling thread alone: OpenMP in the child of a process whose threads it had
// started waits for them for ever. Such a child, and its children, run everything in turn.
bool alone;

// Called before any thread is started. A process that cannot be told of its forks starts none.
void watch_forks() {
  static pthread_once_t once = PTHREAD_ONCE_INIT;
  pthread_once(&once, [] {
    if (pthread_atfork(nullptr, nullptr, [] { alone = true; }) != 0) alone = true;
  });
}

bool one_thread() {
  watch_forks();
  return alone;
}

int max_threads() { return alone ? 1 : omp_get_max_threads(); }

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
  if (one_thread()) return ork_threader_serial.parallel_for(count, 1, context, body);
#pragma omp parallel for schedule(static) num_threads(team(threads, count))
  for (int item = 0; item < count; ++item) body(item, omp_get_thread_num(), 0, context);
}

// Item by item in turn, so that no thread waits long for the lower items. An item whose
// body never calls `ordered` counts as passed when its body ends.
void ordered_for(int count, int threads, void* context, ork_threader_body body) {
  if (count < 1) return;
  if (one_thread()) return ork_threader_serial.ordered_for(count, 1, context, body);
#pragma omp parallel for ordered schedule(static, 1) num_threads(team(threads, count))
  for (int item = 0; item < count; ++item) body(item, omp_get_thread_num(), 0, context);
}

// A loop over the threads, not a bare region: all indices run even where OpenMP grants a
// smaller team.
void parallel(int threads, void* context, ork_threader_body body) {
  if (threads < 1) threads = max_threads();
  if (one_thread()) return ork_threader_serial.parallel(threads, context, body);
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
