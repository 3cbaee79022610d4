// A request served block by block, over threads.
#pragma once
#include "service/task.hpp"

namespace ork::df {

// n items divided into tasks of five blocks, then into single blocks; items beyond `served`
// make no block and are the caller's.
struct BlockPlan {
  static constexpr int first_blocks = 5;
  int block, tasks[2], limit, threads;

  BlockPlan(int n, int block, int limit)
      : block(block),
        tasks{n / (first_blocks * block), n % (first_blocks * block) / block},
        limit(limit) {
    const int widest = tasks[0] > tasks[1] ? tasks[0] : tasks[1];
    threads = limit < widest ? limit : widest > 0 ? widest : 1;
  }
  int served() const { return (tasks[0] * first_blocks + tasks[1]) * block; }
};

// Serve's run(first, blocks, thread) serves whole blocks on the calling thread, run_in_team on
// a thread of a team. 0, or a negative status of one of them.
template <class Serve>
int serve_blocks(const BlockPlan& plan, const ork_threader* threader, const Serve& serve) {
  int first = 0;
  for (int k = 0; k < 2; ++k) {
    const int count = plan.tasks[k], blocks = k == 0 ? BlockPlan::first_blocks : 1;
    const int size = blocks * plan.block;
    const int threads = plan.threads < count ? plan.threads : count;
    if (plan.limit > 1 && count > 0) {
      SharedStatus status;
      launch_items(threader, count, threads, [&](int item, int thread) {
        const int code = serve.run_in_team(first + item * size, blocks, thread);
        if (code < 0) status.put(code);
      });
      if (status.get() != ORK_DF_OK) return status.get();
    } else {
      for (int item = 0; item < count; ++item) {
        const int code = serve.run(first + item * size, blocks, 0);
        if (code < 0) return code;
      }
    }
    first += count * size;
  }
  return ORK_DF_OK;
}

}  // namespace ork::df
