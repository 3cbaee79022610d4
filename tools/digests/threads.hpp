#pragma once
// A threader table that says it has three threads and runs everything here, in order: what the
// division into threads does to results, without their timing.
#include "ork/threader.h"

namespace digests {

inline void run_items(int count, int threads, void* context, ork_threader_body body) {
  for (int item = 0; item < count; ++item)
    body(item, item % (threads > 0 ? threads : 3), 0, context);
}
inline void run_team(int threads, void* context, ork_threader_body body) {
  const int team = threads > 0 ? threads : 3;
  for (int k = 0; k < team; ++k) body(k, k, team, context);
}
inline void run_ordered(int item, int thread, int third, void* context, ork_threader_body body) {
  body(item, thread, third, context);
}
inline int three() { return 3; }

inline constexpr ork_threader kThree = {run_items, run_items, run_team, run_ordered, three};

}  // namespace digests
