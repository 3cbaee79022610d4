// The serial threader table: every body in turn on the calling thread.
#pragma GCC visibility push(default)
#include "ork/threader.h"
#pragma GCC visibility pop

namespace {

void run_items(int count, int /*threads*/, void* context, ork_threader_body body) {
  for (int item = 0; item < count; ++item) body(item, 0, 0, context);
}

void run_threads(int threads, void* context, ork_threader_body body) {
  if (threads < 1) threads = 1;
  for (int thread = 0; thread < threads; ++thread) body(thread, thread, threads, context);
}

void run_ordered(int item, int thread, int third, void* context, ork_threader_body body) {
  body(item, thread, third, context);
}

int one_thread() { return 1; }

}  // namespace

const ork_threader ork_threader_serial = {run_items, run_items, run_threads, run_ordered,
                                          one_thread};

#ifndef _OPENMP
const ork_threader ork_threader_parallel = ork_threader_serial;
#endif
