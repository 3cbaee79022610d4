// MCG31M1 against the plain recurrence, by division.
#include "rua/stream_fixture.hpp"
#include "support/bits.hpp"
#include "support/memory.hpp"

namespace {

constexpr uint64_t kM = 0x7FFFFFFF, kA = 1132489760;

uint64_t power(uint64_t base, uint64_t exponent) {
  uint64_t r = 1;
  for (uint64_t bit = uint64_t{1} << 63; bit; bit >>= 1) {
    r = r * r % kM;
    if (exponent & bit) r = r * base % kM;
  }
  return r;
}

struct Words {
  uint32_t x, a;
};

class Mcg31m1 : public RuaTest {};

TEST_F(Mcg31m1, SeedsReduceToAValidState) {
  const struct {
    std::vector<uint32_t> seed;
    uint32_t x;
  } cases[] = {{{}, 1},           {{0}, 1},          {{1}, 1},          {{0x7FFFFFFF}, 1},
               {{0x80000000}, 1}, {{0xFFFFFFFE}, 1}, {{0xFFFFFFFF}, 1}, {{0x7FFFFFFE}, 0x7FFFFFFE},
               {{77, 5}, 77}};
  for (const auto& c : cases) {
    Stream s(RUA_BRNG_MCG31M1, c.seed);
    EXPECT_EQ(s.state<Words>()->x, c.x) << testing::PrintToString(c.seed);
    EXPECT_EQ(s.state<Words>()->a, kA);
  }
  Stream s(RUA_BRNG_MCG31M1, {5});
  EXPECT_EQ(__ruaBRngMCG31M1InitStream(0, s, -3, nullptr), 0);
  EXPECT_EQ(s.state<Words>()->x, 1u);
  const uint32_t params[] = {1, 2};
  for (int method : {3, -1, 100}) EXPECT_EQ(__ruaBRngMCG31M1InitStream(method, s, 2, params), -2);
  EXPECT_EQ(s.state<Words>()->x, 1u);
}

// Every length around the block of eight, every offset of the array, all three forms; what
// lies in front of the array and behind it is not touched.
TEST_F(Mcg31m1, FormsFollowTheRecurrence) {
  GuardedPages pages(1024);
  const double c = from_bits<double>(0x3E00000000200000);
  for (uint32_t seed : {1u, 0x7FFFFFFEu, 123456789u})
    for (int n = 1; n <= 33; ++n) {
      std::vector<uint32_t> x(n + 1, seed);
      for (int i = 0; i < n; ++i) x[i + 1] = x[i] * kA % kM;
      for (int gap : {0, 4, 8, 12}) {
        Stream si(RUA_BRNG_MCG31M1, {seed}), sd(RUA_BRNG_MCG31M1, {seed}),
            ss(RUA_BRNG_MCG31M1, {seed});
        uint32_t* ri = pages.at_end<uint32_t>(n, gap);
        ASSERT_EQ(__ruaiBRngMCG31M1(si, n, ri), 0);
        for (int i = 0; i < n; ++i) ASSERT_EQ(ri[i], x[i]) << n << ' ' << i;

        double* rd = pages.at_end<double>(n, gap);
        rd[-1] = 7;
        ASSERT_EQ(__ruadBRngMCG31M1(sd, n, rd, -1.5, 3.25), 0);
        for (int i = 0; i < n; ++i) ASSERT_EQ(bits(rd[i]), bits(x[i] * (4.75 * c) + -1.5));
        ASSERT_EQ(rd[-1], 7);

        float* rs = pages.at_end<float>(n, gap);
        const float a = -0.1f, b = 1e7f;
        ASSERT_EQ(__ruasBRngMCG31M1(ss, n, rs, a, b), 0);
        const double t = (double(b) - double(a)) * c;
        for (int i = 0; i < n; ++i) ASSERT_EQ(bits(rs[i]), bits(float(x[i] * t + double(a))));

        for (RuaStream* s : {(RuaStream*)si, (RuaStream*)sd, (RuaStream*)ss}) {
          ASSERT_EQ(reinterpret_cast<Words*>(s + 1)->x, x[n]);
          ASSERT_EQ(reinterpret_cast<Words*>(s + 1)->a, kA);
        }
      }
    }
}

TEST_F(Mcg31m1, PowerIsThatOfTheField) {
  for (uint64_t e :
       {0ull, 1ull, 2ull, 3ull, 0x80000000ull, 0x7FFFFFFEull, 0x123456789ABCDEFull, ~0ull})
    for (uint32_t base : {1u, 2u, uint32_t(kA), 0x7FFFFFFEu, 0x7FFFFFFFu, 0xFFFFFFFFu})
      EXPECT_EQ(__ruaiPowMod2P31M1(base, uint32_t(e), uint32_t(e >> 32)), power(base % kM, e))
          << base << '^' << e;
}

TEST_F(Mcg31m1, SkipAheadAndLeapfrogCommuteWithGeneration) {
  const std::vector<uint32_t> all = Stream(RUA_BRNG_MCG31M1, {42}).integers(3000);
  for (int64_t skip : {0, 1, 7, 8, 9, 1000, 2900}) {
    Stream s(RUA_BRNG_MCG31M1, {42});
    ASSERT_EQ(__ruaSkipAheadStream(s, skip), 0);
    ASSERT_EQ(s.integers(50), std::vector(all.begin() + skip, all.begin() + skip + 50)) << skip;
  }
  for (int nstreams : {1, 2, 3, 10})
    for (int k = 0; k < nstreams; ++k) {
      Stream s(RUA_BRNG_MCG31M1, {42});
      ASSERT_EQ(__ruaLeapfrogStream(s, k, nstreams), 0);
      const auto part = s.integers(100);
      for (int i = 0; i < 100; ++i) ASSERT_EQ(part[i], all[k + i * nstreams]);
      // A leapt stream skips its own elements.
      ASSERT_EQ(__ruaSkipAheadStream(s, 50), 0);
      ASSERT_EQ(s.integers(1)[0], all[k + 150 * nstreams]);
    }
  Stream s(RUA_BRNG_MCG31M1, {42});
  const int64_t far = (int64_t{1} << 62) + 12345;
  ASSERT_EQ(__ruaSkipAheadStream(s, far), 0);
  EXPECT_EQ(s.state<Words>()->x, 42 * power(kA, far) % kM);
  EXPECT_EQ(__ruaLeapfrogStream(s, 0, -1), RUA_STATUS_BAD_LEAPFROG_COUNT);
  EXPECT_EQ(__ruaLeapfrogStream(s, 3, 0), 0);  // every element is the same one
  EXPECT_EQ(s.state<Words>()->a, 1u);
}

}  // namespace
