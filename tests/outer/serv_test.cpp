// Memory blocks and message lines.
#include "ork/serv.h"

#include <algorithm>
#include <sstream>
#include <thread>

// The address sanitizer, where it is built in, must let a huge request fail.
extern "C" const char* __asan_default_options() { return "allocator_may_return_null=1"; }

namespace {

TEST(Allocate, AlignedAndWhole) {
  for (size_t alignment : {1u, 8u, 16u, 64u, 128u, 4096u})
    for (size_t size : {0u, 1u, 127u, 128u, 100000u}) {
      auto* block = static_cast<char*>(ork_serv_allocate(size, alignment));
      ASSERT_NE(nullptr, block);
      EXPECT_EQ(0u, reinterpret_cast<uintptr_t>(block) % alignment);
      memset(block, 0x5a, size);
      ork_serv_deallocate(block);
    }
  ork_serv_deallocate(nullptr);
  EXPECT_EQ(nullptr, ork_serv_allocate(SIZE_MAX - 4096, 128));
}

std::vector<std::string> lines(const std::string& text) {
  std::vector<std::string> result;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) result.push_back(line);
  return result;
}

TEST(Print, EveryMessageShowsItsValues) {
  testing::internal::CaptureStderr();
  for (int number = 735; number <= 753; ++number) {
    if (number == 735)
      ork_serv_print(1, number, 2, "vdExample", 41);
    else if (number <= 741)
      ork_serv_print(1, number, 1, "vdExample");
    else
      ork_serv_print(1, number, 2, 41, 0.1 + number);
  }
  const auto printed = lines(testing::internal::GetCapturedStderr());
  ASSERT_EQ(19u, printed.size());
  const auto has = [](const std::string& line, const std::string& part) {
    return line.find(part) != std::string::npos;
  };
  for (int number = 735; number <= 753; ++number) {
    const std::string& line = printed[number - 735];
    EXPECT_EQ(number <= 741, has(line, "vdExample")) << line;
    EXPECT_EQ(number == 735 || number > 741, has(line, "41")) << line;
    if (number > 741) {  // the last word reads back as the same double
      EXPECT_EQ(0.1 + number, strtod(line.c_str() + line.rfind(' '), nullptr)) << line;
      EXPECT_TRUE(has(line, "argument") != has(line, "result")) << line;
    }
  }
  std::vector<std::string> heads(printed.begin(), printed.begin() + 7);
  std::sort(heads.begin(), heads.end());
  EXPECT_EQ(heads.end(), std::unique(heads.begin(), heads.end())) << "two events read alike";
}

TEST(Print, UnknownNumbersAndLongNames) {
  testing::internal::CaptureStderr();
  for (int number : {0, -1, 734, 754, 100000}) ork_serv_print(1, number, 0);
  ork_serv_print(1, 735, 0);  // fewer values than the text takes: none is read
  ork_serv_print(1, 736, 1, std::string(5000, 'x').c_str());
  const auto printed = lines(testing::internal::GetCapturedStderr());
  ASSERT_EQ(7u, printed.size());
  for (int i = 0; i < 6; ++i) {
    const char* numbers[] = {"0", "-1", "734", "754", "100000", "735"};
    EXPECT_NE(std::string::npos, printed[i].find(numbers[i]));
  }
  EXPECT_NE(std::string::npos, printed[6].find("xxx"));
}

TEST(Print, LinesOfThreadsDoNotMix) {
  testing::internal::CaptureStderr();
  std::vector<std::thread> threads;
  for (int t = 0; t < 4; ++t)
    threads.emplace_back([t] {
      for (int i = 0; i < 200; ++i) ork_serv_print(1, 743, 2, t * 1000 + i, double(t));
    });
  for (auto& thread : threads) thread.join();
  auto printed = lines(testing::internal::GetCapturedStderr());
  ASSERT_EQ(800u, printed.size());
  std::sort(printed.begin(), printed.end());
  EXPECT_EQ(printed.end(), std::unique(printed.begin(), printed.end()));
  for (const auto& line : printed) {
    int element = -1, end = 0;
    double value = -1;
    sscanf(line.c_str(), " element %d: result %lf%n", &element, &value, &end);
    ASSERT_EQ(line.size(), size_t(end)) << line;
    EXPECT_EQ(element / 1000, value);
  }
}

}  // namespace
