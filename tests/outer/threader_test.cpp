// Both threader tables keep the same promises.
#include "ork/threader.h"

#include <dlfcn.h>

#include <atomic>
#include <chrono>
#include <thread>

#include "ork/serv.h"

namespace {

// OpenMP, if the library was built with it.
void (*const set_nested_levels)(int) =
    reinterpret_cast<void (*)(int)>(dlsym(RTLD_DEFAULT, "omp_set_max_active_levels"));

class ThreaderTest : public testing::TestWithParam<const ork_threader*> {
 protected:
  const ork_threader& table = *GetParam();
};

struct Launch {
  const ork_threader* table;
  int threads;  // bound of the thread number
  std::vector<std::atomic<int>> runs;
  std::atomic<bool> failed{false};
  std::vector<int> order;  // what the ordered bodies saw
  bool skip_odd = false;
  Launch(const ork_threader* table, int threads, int count)
      : table(table), threads(threads), runs(count) {}
  void expect_each(int times) {
    for (size_t i = 0; i < runs.size(); ++i) EXPECT_EQ(times, runs[i]) << i;
    EXPECT_FALSE(failed);
  }
};

void count_item(int item, int thread, int, void* context) {
  auto& launch = *static_cast<Launch*>(context);
  if (thread < 0 || thread >= launch.threads || item < 0 || item >= int(launch.runs.size()))
    launch.failed = true;
  else
    ++launch.runs[item];
}

TEST_P(ThreaderTest, EachItemOnce) {
  const int own = table.max_threads();
  ASSERT_GE(own, 1);
  for (auto slot : {table.parallel_for, table.ordered_for})
    for (int threads : {0, 1, 3})
      for (int count : {0, 1, 2, 5, 100}) {
        Launch launch(&table, threads == 0 ? own : threads, count);
        slot(count, threads, &launch, count_item);
        launch.expect_each(1);
      }
  Launch none(&table, 1, 0);
  table.parallel_for(-3, 2, &none, count_item);
  table.ordered_for(-3, 0, &none, count_item);
  EXPECT_FALSE(none.failed);
}

TEST_P(ThreaderTest, OneRunAThread) {
  for (int threads : {0, 1, 2, 5}) {
    const int expected = threads == 0 ? table.max_threads() : threads;
    Launch launch(&table, expected, expected);
    table.parallel(threads, &launch, [](int index, int thread, int third, void* context) {
      auto& launch = *static_cast<Launch*>(context);
      if (index != thread || third != launch.threads) launch.failed = true;
      count_item(index, thread, third, context);
    });
    launch.expect_each(1);
  }
}

// The lower an item, the longer its body takes: only waiting brings them into order. The
// ordered body sees the values its caller passed.
TEST_P(ThreaderTest, OrderedBodiesAscend) {
  for (bool skip_odd : {false, true}) {
    const int count = 24;
    Launch launch(&table, 3, count);
    launch.skip_odd = skip_odd;
    table.ordered_for(count, 3, &launch, [](int item, int thread, int third, void* context) {
      auto& launch = *static_cast<Launch*>(context);
      count_item(item, thread, third, context);
      std::this_thread::sleep_for(std::chrono::microseconds(item % 3 == 0 ? 600 : 0));
      if (launch.skip_odd && item % 2 != 0) return;
      launch.table->ordered(item, thread, third, context,
                            [](int item, int thread, int, void* context) {
                              auto& launch = *static_cast<Launch*>(context);
                              if (thread >= launch.threads) launch.failed = true;
                              launch.order.push_back(item);  // no lock: one at a time
                            });
    });
    launch.expect_each(1);
    std::vector<int> expected;
    for (int i = 0; i < count; i += skip_odd ? 2 : 1) expected.push_back(i);
    EXPECT_EQ(expected, launch.order);
  }
}

TEST_P(ThreaderTest, LaunchInsideLaunch) {
  for (int levels : {1, 2}) {  // without and with nested teams
    if (set_nested_levels != nullptr) set_nested_levels(levels);
    struct Outer {
      const ork_threader* table;
      std::atomic<int> good{0};
    } outer{&table};
    table.parallel_for(6, 2, &outer, [](int, int, int, void* context) {
      auto& outer = *static_cast<Outer*>(context);
      Launch inner(outer.table, 3, 10);
      inner.table->parallel_for(10, 3, &inner, count_item);
      inner.table->ordered_for(10, 3, &inner, count_item);
      Launch team(outer.table, 4, 4);
      team.table->parallel(4, &team, count_item);
      bool good = !inner.failed && !team.failed;
      for (auto& runs : inner.runs) good = good && runs == 2;
      for (auto& runs : team.runs) good = good && runs == 1;
      outer.good += good;
    });
    EXPECT_EQ(6, outer.good);
  }
  if (set_nested_levels != nullptr) set_nested_levels(1);
}

TEST_P(ThreaderTest, BodiesMayAllocate) {
  Launch launch(&table, 4, 400);
  table.parallel_for(400, 4, &launch, [](int item, int thread, int, void* context) {
    auto& launch = *static_cast<Launch*>(context);
    const size_t size = 1 + 37 * item;
    auto* block = static_cast<unsigned char*>(ork_serv_allocate(size, 128));
    if (block == nullptr || reinterpret_cast<uintptr_t>(block) % 128 != 0) {
      launch.failed = true;
      return;
    }
    memset(block, item & 0xff, size);
    std::this_thread::yield();
    for (size_t i = 0; i < size; ++i)
      if (block[i] != (item & 0xff)) launch.failed = true;
    ork_serv_deallocate(block);
    count_item(item, thread, 0, context);
  });
  launch.expect_each(1);
}

INSTANTIATE_TEST_SUITE_P(Tables, ThreaderTest,
                         testing::Values(&ork_threader_serial, &ork_threader_parallel),
                         [](const auto& info) {
                           return info.param == &ork_threader_serial ? "Serial" : "Parallel";
                         });

TEST(ParallelThreader, UsesSeveralThreads) {
  if (set_nested_levels == nullptr) GTEST_SKIP() << "built without OpenMP";
  // Two bodies that each wait for the other end only if both run at once.
  struct Meeting {
    std::atomic<int> arrived{0}, met{0};
  } meeting;
  ork_threader_parallel.parallel(2, &meeting, [](int, int, int, void* context) {
    auto& meeting = *static_cast<Meeting*>(context);
    ++meeting.arrived;
    const auto limit = std::chrono::steady_clock::now() + std::chrono::seconds(5);
    while (meeting.arrived < 2 && std::chrono::steady_clock::now() < limit)
      std::this_thread::yield();
    meeting.met += meeting.arrived == 2;
  });
  EXPECT_EQ(2, meeting.met);
}

}  // namespace
