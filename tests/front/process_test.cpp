// The public layer in a process that forks, and in one that unloads it.
#include <sys/wait.h>
#include <unistd.h>

#include "front.hpp"

namespace {

// Exit code of a process, or -1 less the signal that ended it.
int end_of(pid_t child) {
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1 - WTERMSIG(status);
}

// OpenMP's threads do not follow into a child; the calls that would divide do their work there
// nevertheless, in the child's own child too.
TEST(FrontProcess, AForkedChildOfAProcessWithThreadsComputes) {
  constexpr int n = 3001;
  StateGuard state;
  DivisionGuard division;
  divide_all(3);
  const std::vector<double> a(n, 0.5);
  std::vector<double> expected(n);
  ASSERT_EQ(ork_dExp(n, a.data(), expected.data()), 0);
  const auto works = [&] {
    std::vector<double> r(n);
    int items = 0;
    const auto count = [](int, int, int, void* counter) { ++*static_cast<int*>(counter); };
    const auto& table = ork_threader_parallel;
    table.parallel_for(5, 0, &items, count);
    table.ordered_for(5, 2, &items, count);
    table.parallel(2, &items, count);
    return ork_dExp(n, a.data(), r.data()) == 0 && r == expected && items == 12 &&
           table.max_threads() == 1;
  };
  const pid_t child = fork();
  if (child == 0) {
    alarm(20);
    const pid_t grandchild = fork();
    if (grandchild == 0) {
      alarm(10);
      _exit(works() ? 0 : 1);
    }
    _exit(works() && end_of(grandchild) == 0 ? 0 : 1);
  }
  EXPECT_EQ(end_of(child), 0);
  EXPECT_EQ(ork_dExp(n, a.data(), expected.data()), 0) << "the parent goes on";
}

TEST(FrontProcess, UnloadedWhileThreadsAreIdle) {
#ifdef __SANITIZE_ADDRESS__
  GTEST_SKIP() << "the sanitizer's runtime has to come first";
#endif
  const pid_t child = fork();
  if (child == 0) {
    execl(ORK_BUILD_DIR "/bin/front_unload", "front_unload", ORK_LIB_DIR "/libork_front.so",
          nullptr);
    _exit(127);
  }
  EXPECT_EQ(end_of(child), 0);
}

}  // namespace
