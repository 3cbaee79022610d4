// The hardware generator: its rounds over a scripted source, and the real instruction, present
// and absent.
#include <signal.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <ucontext.h>
#include <unistd.h>

#include "../../rua/rua_sub_kernel/nondeterministic/rounds.hpp"
#include "rua/stream_fixture.hpp"
#include "support/bits.hpp"

namespace {

class Nondeterministic : public RuaTest {};

// Draw k succeeds unless the pattern has an 'x' at place k; the words count up from 1.
struct Scripted {
  const char* pattern;
  uint32_t* draws;
  bool operator()(uint32_t* word) {
    const uint32_t k = (*draws)++;
    *word = k + 1;
    return k >= strlen(pattern) || pattern[k] != 'x';
  }
};

TEST_F(Nondeterministic, RetriesARound) {
  const int32_t failed = RUA_STATUS_HARDWARE_RANDOM_FAILED;
  const struct {
    const char* pattern;
    uint32_t retries;
    int32_t n, status;
    std::vector<uint32_t> output;
    uint32_t draws;
  } cases[] = {
      {"", 10, 4, 0, {1, 2, 3, 4}, 4},
      {"", 1, 3, 0, {1, 2, 3}, 3},
      {"..x.", 10, 4, 0, {1, 2, 5, 6}, 6},  // the whole pair is drawn again
      {"...x", 10, 4, 0, {1, 2, 5, 6}, 6},
      {"..x", 10, 3, 0, {1, 2, 4}, 4},      // the odd end draws one word
      {"x.x.", 3, 2, 0, {5, 6}, 6},         // two repeats within an allowance of three
      {"x.x.x.", 3, 2, failed, {0, 0}, 8},  // the third is good and does not count
      {"x.", 1, 2, failed, {0, 0}, 4},
      {"..x.x.", 2, 5, failed, {1, 2, 0, 0, 9}, 8},
      {"..xxxx", 2, 3, failed, {1, 2, 0}, 5},
      {"x", 0, 2, failed, {0, 0}, 2},
      {"xxxxxxxxxxxxxxxxxxxxxxxx", 10, 2, failed, {0, 0}, 22},
      {"xxxxxxxxxxxxxxxxxx", 10, 2, 0, {19, 20}, 20},  // nine repeats save it
  };
  for (const auto& c : cases) {
    uint32_t draws = 0;
    std::vector<uint32_t> r(c.output.size(), 9);
    EXPECT_EQ(ork::rua::draw_integers(Scripted{c.pattern, &draws}, c.retries, c.n, r.data()),
              c.status);
    EXPECT_EQ(r, c.output) << c.pattern;
    EXPECT_EQ(draws, c.draws) << c.pattern;

    draws = 0;
    std::vector<float> f(c.output.size(), 9);
    EXPECT_EQ(
        ork::rua::draw_singles(Scripted{c.pattern, &draws}, c.retries, c.n, f.data(), 0, 0x1p32f),
        c.status);
    for (size_t i = 0; i < f.size(); ++i)  // a failed round leaves what was there
      EXPECT_EQ(f[i], c.output[i] == 0 ? 9 : float(c.output[i])) << c.pattern;

    draws = 0;
    std::vector<double> d(c.n + 1, 9);
    const int32_t status = ork::rua::draw_doubles(Scripted{c.pattern, &draws}, c.retries, c.n / 2,
                                                  d.data(), 0, 0x1p64);
    for (int i = 0; i < c.n / 2; ++i) {
      const uint32_t lo = c.output[2 * i], hi = c.output[2 * i + 1];
      EXPECT_EQ(d[i], lo == 0 ? 9 : hi * 0x1p32 + lo) << c.pattern;
    }
    if (c.n % 2 == 0) {
      EXPECT_EQ(status, c.status) << c.pattern;
    }
  }
}

struct Fixed {
  uint32_t first, second;
  bool flip = false;
  bool operator()(uint32_t* word) {
    *word = flip ? second : first;
    return flip = !flip, true;
  }
};

// Words around the ties of each format, where two roundings would differ from one.
TEST_F(Nondeterministic, ConvertsWithOneRounding) {
  for (uint32_t w : {0u, 1u, 0x7FFFFFFFu, 0x80000000u, 0x80000080u, 0x80000081u, 0x80000180u,
                     0xFFFFFF7Fu, 0xFFFFFF80u, 0xFFFFFFFFu, 0x01000001u, 0x01000003u}) {
    float r[2];
    ASSERT_EQ(ork::rua::draw_singles(Fixed{w, 1}, 1, 2, r, -1, 3), 0);
    const float word = w < 0x80000000 ? float(int32_t(w)) : float(int32_t(w >> 1 | (w & 1))) * 2;
    EXPECT_EQ(bits(r[0]), bits(word * (4.0f * 2.3283064e-10f) + -1.0f)) << w;
  }
  const struct {
    uint32_t low, high;
    double value;
  } cases[] = {{0, 0, 0},
               {1, 0, 1},
               {0, 0x80000000, 0x1p63},
               {0x400, 0x80000000, 0x1p63},                // tie to even
               {0x401, 0x80000000, 0x1.0000000000001p63},  // beyond it by one bit
               {0xC00, 0x80000000, 0x1.0000000000002p63},  // tie to even, upwards
               {0xFFFFFBFF, 0xFFFFFFFF, 0x1.fffffffffffffp63},
               {0xFFFFFFFF, 0xFFFFFFFF, 0x1p64},
               {0x200, 0x40000000, 0x1p62},
               {0x201, 0x40000000, 0x1.0000000000001p62}};
  for (const auto& c : cases) {
    double r;
    ASSERT_EQ(ork::rua::draw_doubles(Fixed{c.low, c.high}, 1, 1, &r, 0, 0x1p64), 0);
    EXPECT_EQ(r, c.value) << std::hex << c.high << ' ' << c.low;
    ASSERT_EQ(ork::rua::draw_doubles(Fixed{c.low, c.high}, 1, 1, &r, 0.1, 0.3), 0);
    EXPECT_EQ(bits(r), bits(c.value * ((0.3 - 0.1) * 5.421010862427522e-20) + 0.1));
  }
}

TEST_F(Nondeterministic, KeepsItsRetries) {
  const struct {
    std::vector<uint32_t> seed;
    uint32_t retries;
  } cases[] = {{{}, 10}, {{3}, 10}, {{3, 0}, 10}, {{3, 4}, 4}, {{0, 0xFFFFFFFF, 5}, 0xFFFFFFFF}};
  for (const auto& c : cases) {
    Stream s(RUA_BRNG_NONDETERM, c.seed);
    EXPECT_EQ(s.state<uint32_t>()[0], 0u);
    EXPECT_EQ(s.state<uint32_t>()[1], c.retries);
    EXPECT_EQ(__ruaLeapfrogStream(s, 0, 2), RUA_STATUS_NO_LEAPFROG);
    EXPECT_EQ(__ruaSkipAheadStream(s, 1), RUA_STATUS_NO_SKIPAHEAD);
    EXPECT_EQ(__ruaBRngTRNGInitStream(3, s, 0, nullptr), RUA_STATUS_BAD_METHOD);
  }
}

// The word behind the last one given is not read.
TEST_F(Nondeterministic, OneSeedWordHoldsNoRetries) {
  Stream s(RUA_BRNG_NONDETERM, {});
  const uint32_t words[] = {3, 4};
  ASSERT_EQ(__ruaBRngTRNGInitStream(0, s, 1, words), 0);
  EXPECT_EQ(s.state<uint32_t>()[1], 10u);
}

TEST_F(Nondeterministic, DrawsFromTheProcessor) {
  if (!__ruaCPUisRDRAND()) GTEST_SKIP() << "the processor has no RDRAND";
  Stream s(RUA_BRNG_NONDETERM, {0, 1000});
  const auto before = record(s);
  for (int n = 0; n <= 9; ++n) {
    uint32_t i[10];
    float f[10];
    double d[10];
    i[n] = 7, f[n] = 7, d[n] = 7;
    ASSERT_EQ(__ruaiBRngTRNG(s, n, i), 0);
    ASSERT_EQ(__ruasBRngTRNG(s, n, f, -1, 1), 0);
    ASSERT_EQ(__ruadBRngTRNG(s, n, d, -1, 1), 0);
    EXPECT_TRUE(i[n] == 7 && f[n] == 7 && d[n] == 7);
    for (int k = 0; k < n; ++k) EXPECT_TRUE(f[k] >= -1 && f[k] <= 1 && d[k] >= -1 && d[k] <= 1);
  }
  EXPECT_EQ(__ruadBRngTRNG(s, -1, nullptr, 0, 1), 0);
  EXPECT_EQ(record(s), before);
  // Each bit of 1000 words is set 500 times, within eight standard deviations.
  const auto words = s.integers(1000);
  for (int bit = 0; bit < 32; ++bit) {
    int set = 0;
    for (uint32_t w : words) set += w >> bit & 1;
    EXPECT_NEAR(set, 500, 127) << bit;
  }
}

// CPUID made to fault, where the kernel and the processor can do that, and answered without
// the instruction's bit.
bool saw_cpuid;
void answer_cpuid(int, siginfo_t*, void* context) {
  auto& g = static_cast<ucontext_t*>(context)->uc_mcontext.gregs;
  const auto* code = reinterpret_cast<const uint8_t*>(g[REG_EIP]);
  if (code[0] != 0x0F || code[1] != 0xA2) _exit(99);
  saw_cpuid = true;
  g[REG_EAX] = g[REG_EAX] == 0 ? 1 : 0x0F4A;
  g[REG_EBX] = g[REG_EDX] = 0;
  g[REG_ECX] = 1;  // SSE3 only
  g[REG_EIP] += 2;
}

#define CHECK_OR_EXIT(condition, code) \
  if (!(condition)) _exit(code)

void without_rdrand(const char* file) {
  RuaStream *s = nullptr, *t = reinterpret_cast<RuaStream*>(16);
  CHECK_OR_EXIT(__ruaNewStreamEx(&s, RUA_BRNG_NONDETERM, 0, nullptr) == 0, 1);
  std::vector<uint8_t> image(__ruaGetStreamSize(s));
  CHECK_OR_EXIT(__ruaSaveStreamM(s, image.data()) == 0, 2);
  CHECK_OR_EXIT(__ruaSaveStreamF(s, file, -1) == 0, 3);
  const int live = blocks::live();
  struct sigaction action = {};
  action.sa_sigaction = answer_cpuid;
  action.sa_flags = SA_SIGINFO;
  sigaction(SIGSEGV, &action, nullptr);
  constexpr int kArchSetCpuid = 0x1012;
  if (syscall(SYS_arch_prctl, kArchSetCpuid, 0) != 0) _exit(77);
  const int32_t none = RUA_STATUS_NO_HARDWARE_RANDOM;
  CHECK_OR_EXIT(__ruaCPUisRDRAND() == 0 && saw_cpuid, 4);
  uint32_t i = 7;
  float f = 7;
  double d = 7;
  CHECK_OR_EXIT(__ruaiBRngTRNG(s, 1, &i) == none && i == 7, 5);
  CHECK_OR_EXIT(__ruasBRngTRNG(s, 1, &f, 0, 1) == none && f == 7, 6);
  CHECK_OR_EXIT(__ruadBRngTRNG(s, 1, &d, 0, 1) == none && d == 7, 7);
  CHECK_OR_EXIT(__ruaLoadStreamM(&t, image.data()) == none && t == nullptr, 8);
  t = s;
  CHECK_OR_EXIT(__ruaLoadStreamF(&t, file, -1) == none && t == nullptr, 9);
  CHECK_OR_EXIT(blocks::live() == live, 10);
  _exit(0);
}

TEST_F(Nondeterministic, SaysWhenTheInstructionIsMissing) {
  const std::string file = testing::TempDir() + "rua_nondeterministic";
  const pid_t child = fork();
  if (child == 0) without_rdrand(file.c_str());
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  unlink(file.c_str());
  ASSERT_TRUE(WIFEXITED(status));
  if (WEXITSTATUS(status) == 77) GTEST_SKIP() << "CPUID cannot be made to fault here";
  EXPECT_EQ(WEXITSTATUS(status), 0);
}

}  // namespace
