// Long vectors in slices on several threads: events and thread state are those of a whole call.
#include <errno.h>
#include <fenv.h>
#include <unistd.h>

#include <algorithm>
#include <mutex>
#include <thread>

#include "front.hpp"

namespace {

constexpr int n = 3001, slice = 1024;

// Built without OpenMP the parallel table is the serial one.
const bool parallel = ork_threader_parallel.parallel_for != ork_threader_serial.parallel_for;

struct Seen {
  pthread_t thread;
  int status, index;
  double a1;
};
std::mutex seen_lock;
std::vector<Seen> seen;
int wait_below;  // events of lower indices come late

int32_t note(ork_error_record* record) {
  if (record->index < wait_below) usleep(20000);
  std::lock_guard hold(seen_lock);
  seen.push_back({pthread_self(), record->status, record->index, record->a1});
  record->r1 = 77;
  return 0;
}

struct DivideEvents : testing::Test {
  StateGuard state;
  DivisionGuard division;
  std::vector<double> a = std::vector<double>(n, 2.0), r = std::vector<double>(n);
  void SetUp() override {
    seen.clear();
    wait_below = 0;
    divide_all(3);
  }
};

TEST_F(DivideEvents, IndexStatusErrnoAndCallbackOfTheSecondSlice) {
  a[slice + 5] = -1;
  ork_zem_kernel_SetErrorCallBack(note);
  ork_zem_kernel_SetErrStatus(4);
  errno = 0;
  EXPECT_EQ(ork_dLn(n, a.data(), r.data()), ZEM_STATUS_DOMAIN);
  EXPECT_EQ(errno, EDOM);
  EXPECT_EQ(ork_zem_kernel_GetErrStatus(), ZEM_STATUS_DOMAIN);
  ASSERT_EQ(seen.size(), 1u);
  EXPECT_EQ(seen[0].index, slice + 5);
  EXPECT_EQ(seen[0].a1, -1);
  if (parallel) {
    EXPECT_FALSE(pthread_equal(seen[0].thread, pthread_self())) << "the worker calls back";
  }
  EXPECT_EQ(r[slice + 5], 77);
  EXPECT_EQ(std::count(r.begin(), r.end(), r[0]), n - 1);
}

// Calls from within a callback, rejected, divided and whole, do not disturb the slice around
// them, nor that one their indices.
TEST_F(DivideEvents, CallbacksMayCall) {
  a[slice + 5] = a[slice + 6] = a[n - 1] = -1;
  static std::vector<int> indices;
  indices.clear();
  ork_zem_kernel_SetErrorCallBack([](ork_error_record* record) {
    {
      std::lock_guard hold(seen_lock);
      indices.push_back(record->index);
    }
    if (record->status != ZEM_STATUS_DOMAIN) return 0;
    const std::vector<double> x(n, 0.0);  // of whose elements one goes to Ln
    std::vector<double> y(n);
    ork_dExp(-1, nullptr, nullptr);
    ork_dExp(n, x.data(), y.data());
    ork_dLn(1, x.data(), y.data());
    return 0;
  });
  ork_dLn(n, a.data(), r.data());
  std::sort(indices.begin(), indices.end());
  EXPECT_EQ(indices, (std::vector<int>{0, 0, 0, 1, 1, 1, slice + 5, slice + 6, n - 1}));
}

TEST_F(DivideEvents, TheLastInTheVectorStandsWhicheverComesLast) {
  wait_below = slice;
  a[7] = -1, a[2 * slice + 1] = 0;  // domain, late; singularity
  ork_zem_kernel_SetErrorCallBack(note);
  EXPECT_EQ(ork_dLn(n, a.data(), r.data()), ZEM_STATUS_SINGULARITY);
  EXPECT_EQ(errno, ERANGE);
  ASSERT_EQ(seen.size(), 2u);
  a[7] = 0, a[2 * slice + 1] = -1;
  EXPECT_EQ(ork_dLn(n, a.data(), r.data()), ZEM_STATUS_DOMAIN);
  EXPECT_EQ(errno, EDOM);
}

TEST_F(DivideEvents, ACallWithoutEventsReturns0AndLeavesStatusAndErrno) {
  for (const int threads : {1, 3}) {
    ork_set_threads(threads);
    ork_zem_kernel_SetErrStatus(3);
    errno = ENOTTY;
    EXPECT_EQ(ork_dLn(n, a.data(), r.data()), 0);
    EXPECT_EQ(ork_zem_kernel_GetErrStatus(), 3);
    EXPECT_EQ(errno, ENOTTY);
  }
}

TEST_F(DivideEvents, NoMoreSlicesThanThereAreRecordsFor) {
  constexpr int long_n = 40000;
  std::vector<double> x(long_n, 4.0), y(long_n);
  ork_set_threads(1000);
  x[long_n - 1] = -1;
  EXPECT_EQ(ork_dSqrt(long_n, x.data(), y.data()), ZEM_STATUS_DOMAIN);
  EXPECT_EQ(std::count(y.begin(), y.end(), 2.0), long_n - 1);
}

TEST_F(DivideEvents, FloatingPointFlagsOfWorkersReachTheCaller) {
  a[2 * slice] = -1;
  ork_zem_kernel_SetMode(ORK_ZEM_ERRMODE_EXCEPT);
  feclearexcept(FE_ALL_EXCEPT);
  ork_dLn(n, a.data(), r.data());
  EXPECT_TRUE(fetestexcept(FE_INVALID));
  EXPECT_FALSE(fetestexcept(FE_DIVBYZERO | FE_OVERFLOW));
}

TEST_F(DivideEvents, WorkersTakeRoundingAndDenormalHandling) {
  std::fill(a.begin(), a.end(), 2.25);
  std::vector<double> tiny(n, 1e-310), one(n, 1);
  fesetround(FE_UPWARD);
  ork_dRint(n, a.data(), r.data());
  fesetround(FE_TONEAREST);
  EXPECT_EQ(std::count(r.begin(), r.end(), 3.0), n);
  ork_zem_kernel_SetMode(ORK_ZEM_DENORMAL_ZERO);
  ork_dMul(n, tiny.data(), one.data(), r.data());
  EXPECT_EQ(std::count(r.begin(), r.end(), 0.0), n);
}

// What a thread of the table carries.
struct Carried {
  unsigned mode, mxcsr;
  unsigned short x87;
  ork_error_callback callback;
  int status;
  bool operator==(const Carried&) const = default;
};
std::vector<Carried> carried_by(int threads) {
  std::vector<Carried> all(threads);
  ork_threader_parallel.parallel_for(threads, threads, &all, [](int item, int, int, void* out) {
    (*static_cast<std::vector<Carried>*>(out))[item] = {
        ork_zem_kernel_GetMode() & ORK_ZEM_ERRMODE_MASK, _mm_getcsr() & ~0x3Fu, x87_control(),
        ork_zem_kernel_GetErrorCallBack(), ork_zem_kernel_GetErrStatus()};
  });
  return all;
}

TEST_F(DivideEvents, WorkersGoBackToTheirOwnState) {
  const std::vector<Carried> before = carried_by(3);
  a[slice] = a[2 * slice] = -1;
  ork_zem_kernel_SetMode(ORK_ZEM_ERRMODE_ERRNO | ORK_ZEM_DENORMAL_ZERO);
  ork_zem_kernel_SetErrorCallBack(note);
  fesetround(FE_DOWNWARD);
  ork_dLn(n, a.data(), r.data());
  fesetround(FE_TONEAREST);
  ASSERT_EQ(seen.size(), 2u);
  const std::vector<Carried> after = carried_by(3);
  for (int i = 1; i < 3; ++i) EXPECT_EQ(before[i], after[i]) << i;  // 0 is this thread
}

TEST_F(DivideEvents, ShortVectorsAndOneThreadStayWhole) {
  ork_zem_kernel_SetErrorCallBack(note);
  a[n - 1] = -1;
  const float work = n * ork_zem_kernel_dLn_ctab[1];
  const struct {
    int threads;
    float threshold;
    bool own;
  } rows[] = {
      {1, 1e-6f, true}, {3, work * 0.51f, true}, {3, work * 0.49f, false}, {3, 1e30f, true}};
  for (const auto& row : rows) {
    seen.clear();
    ork_set_threads(row.threads), ork_set_threshold(row.threshold);
    EXPECT_EQ(ork_dLn(n, a.data(), r.data()), ZEM_STATUS_DOMAIN);
    ASSERT_EQ(seen.size(), 1u);
    EXPECT_EQ(seen[0].index, n - 1);
    if (parallel) {
      EXPECT_EQ(pthread_equal(seen[0].thread, pthread_self()) != 0, row.own) << row.threshold;
    }
  }
}

TEST_F(DivideEvents, CallersSideBySideKeepTheirOwnEvents) {
  std::vector<int> statuses(4);
  const auto work = [&](int k) {
    std::vector<double> x(n, 2.0), y(n);
    x[slice + k] = k % 2 ? -1 : 0;
    ork_zem_kernel_SetMode(ORK_ZEM_ERRMODE_IGNORE);
    for (int i = 0; i < 50; ++i) {
      const int status = ork_dLn(n, x.data(), y.data());
      if (i == 0 || status != statuses[k]) statuses[k] = i == 0 ? status : 99;
    }
  };
  std::vector<std::thread> threads;
  for (int k = 0; k < 4; ++k) threads.emplace_back(work, k);
  for (std::thread& t : threads) t.join();
  EXPECT_EQ(statuses, (std::vector<int>{2, 1, 2, 1}));
}

TEST_F(DivideEvents, SettersReturnWhatWasAndIgnoreNonsense) {
  EXPECT_EQ(ork_set_threads(5), 3);
  EXPECT_EQ(ork_set_threads(-1), 5);
  EXPECT_EQ(ork_set_threads(0), 5);
  EXPECT_EQ(ork_set_threads(-7), 0);
  ork_set_threshold(10);
  for (const float nonsense : {0.0f, -1.0f, NAN}) EXPECT_EQ(ork_set_threshold(nonsense), 10);
}

}  // namespace
