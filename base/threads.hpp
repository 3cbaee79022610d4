// Launches through the caller's threader table. The work is a function object: it runs here where
// one thread does, and through a body that fits the table's stack where more do.
#pragma once
#include <stdint.h>

#include "ork/threader.h"

namespace ork {

// The greatest number of threads for `items` pieces of work, at least 1. A null table counts as
// one thread.
inline int thread_limit(const ork_threader* threader, int items = 0x7FFFFFFF) {
  const int most = threader ? threader->max_threads() : 1;
  const int limit = most < items ? most : items;
  return limit < 1 ? 1 : limit;
}

// The table may run a body on any stack.
#define ORK_BODY __attribute__((force_align_arg_pointer))

// f(item, thread) for all items, through the table.
template <class F>
inline void launch_items(const ork_threader* threader, int items, int threads, F f) {
  threader->parallel_for(items, threads, &f, [](int item, int thread, int, void* context) ORK_BODY {
    (*static_cast<F*>(context))(item, thread);
  });
}

// The same, but here in their order where one thread does.
template <class F>
inline void run_items(const ork_threader* threader, int items, int threads, F f) {
  if (threads > 1)
    launch_items(threader, items, threads, f);
  else
    for (int item = 0; item < items; ++item) f(item, 0);
}

// f(k, threads) once for each thread k.
template <class F>
inline void run_team(const ork_threader* threader, int threads, F f) {
  if (threads > 1)
    threader->parallel(threads, &f, [](int k, int, int count, void* context) ORK_BODY {
      (*static_cast<F*>(context))(k, count);
    });
  else
    f(0, 1);
}

// f(item, thread) as run_items() does; after it, and after those of all lower items,
// in_order(item, thread), where there is something to be done `ordered`.
template <class F, class G>
inline void run_in_order(const ork_threader* threader, int items, int threads, F f, G in_order,
                         bool ordered = true) {
  struct Context {
    const ork_threader* threader;
    F& f;
    G& in_order;
    bool ordered;
  } context{threader, f, in_order, ordered};
  if (threads > 1)
    threader->ordered_for(
        items, threads, &context, [](int item, int thread, int third, void* words) ORK_BODY {
          const Context& c = *static_cast<Context*>(words);
          c.f(item, thread);
          if (!c.ordered) return;
          c.threader->ordered(item, thread, third, words,
                              [](int own_item, int own_thread, int, void* same) ORK_BODY {
                                static_cast<Context*>(same)->in_order(own_item, own_thread);
                              });
        });
  else
    for (int item = 0; item < items; ++item) {
      f(item, 0);
      if (ordered) in_order(item, 0);
    }
}

#undef ORK_BODY

// What bodies on several threads report: one of their failures, or 0.
class SharedStatus {
 public:
  void put(int32_t status) {
    if (status != 0) __atomic_store_n(&status_, status, __ATOMIC_RELAXED);
  }
  int32_t get() const { return __atomic_load_n(&status_, __ATOMIC_RELAXED); }

 private:
  int32_t status_ = 0;
};

}  // namespace ork
