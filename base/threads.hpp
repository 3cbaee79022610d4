#pragma once
// Launches through the caller's threader table.
#include "ork/threader.h"

namespace ork {

// The greatest number of threads for `items` pieces of work, at least 1. A null table counts as
// one thread.
inline int thread_limit(const ork_threader* threader, int items = 0x7FFFFFFF) {
  const int most = threader ? threader->max_threads() : 1;
  const int limit = most < items ? most : items;
  return limit < 1 ? 1 : limit;
}

// Runs all items: on `threads` threads, or here in their order where that is 1.
inline void run_items(const ork_threader* threader, int items, int threads, void* context,
                      ork_threader_body body) {
  if (threads > 1)
    threader->parallel_for(items, threads, context, body);
  else
    for (int item = 0; item < items; ++item) body(item, 0, 0, context);
}

// Runs the body once a thread: body(k, k, threads, context).
inline void run_team(const ork_threader* threader, int threads, void* context,
                     ork_threader_body body) {
  if (threads > 1)
    threader->parallel(threads, context, body);
  else
    body(0, 0, 1, context);
}

}  // namespace ork
