#pragma once
// A threader table that really runs threads, last item first, and notes what it was asked for.
#include <atomic>
#include <thread>
#include <utility>
#include <vector>

#include "ork/threader.h"

struct Recorder {
  static inline int limit = 1;
  static inline std::vector<std::pair<int, int>> launches;  // count, threads

  static void run(int count, int threads, void* context, ork_threader_body body) {
    launches.emplace_back(count, threads);
    std::atomic<int> next = count;
    std::vector<std::thread> pool;
    for (int t = 0; t < threads; ++t)
      pool.emplace_back([&, t] {
        for (int item; (item = --next) >= 0;) body(item, t, 0, context);
      });
    for (auto& t : pool) t.join();
  }
  static int threads() { return limit; }
  static const ork_threader* table(int new_limit) {
    static const ork_threader recorder = {run, nullptr, nullptr, nullptr, threads};
    limit = new_limit;
    launches.clear();
    return &recorder;
  }
};
