// Binomial and hypergeometric numbers: the integers themselves, against the methods written out one
// candidate at a time; set-ups that stay with the stream; failing streams and ends of the range.
#include "ork/rua_distributions.h"
#include "rua/trials_reference.hpp"

namespace {

using reference::Trials;

// Binomial, or hypergeometric where there are marked items.
struct Case {
  int32_t trials;  // or the lot
  double p;        // or the sample
  int32_t marked = -1;

  bool binomial() const { return marked < 0; }
  int32_t draw(RuaStream* s, int n, int32_t* r) const {
    if (binomial()) return _ruaiRngBinomial(0, s, n, r, trials, p);
    return _ruaiRngHypergeometric(0, s, n, r, trials, int32_t(p), marked);
  }
  int32_t expect(Trials& t, int n) const {
    if (binomial()) return t.binomial(n, trials, p);
    return t.hypergeometric(n, trials, int32_t(p), marked);
  }
  // Of the method by a table, else nothing.
  std::vector<double> sums() const {
    if (binomial()) {
      const double q = std::min(p, 1 - p);
      return trials * q < 30 ? Trials::binomial_sums(trials, q) : std::vector<double>();
    }
    const int32_t s = int32_t(p), k = std::min(s, trials - s),
                  n1 = std::min(marked, trials - marked);
    const int mode = int((k + 1.0) * (n1 + 1.0) / (trials + 2.0));
    if (mode > 39 || k == 0 || n1 == 0) return {};
    return Trials::hypergeometric_sums(n1, trials - n1, k, trials, mode);
  }
};
std::ostream& operator<<(std::ostream& out, const Case& c) {
  if (c.binomial()) return out << "binomial " << c.trials << ", " << c.p;
  return out << "hypergeometric " << c.trials << ", " << c.p << ", " << c.marked;
}

// Methods at their borders and mirrored; tables that end with the values; ratios that reach as far
// as they are needed, and bounds beyond them; parameters where single precision is coarse.
const Case kCases[] = {
    {10, 0.3},
    {10, 0.5},
    {10, 0.7},
    {1, 0.5},
    {0, 0.5},
    {5, 0},
    {5, 1},
    {60, 29.99 / 60},
    {60, 0.5},
    {100, 0.3},
    {100, 0.7},
    {1000000, 3e-5},
    {1000000, 0.3},
    {170, 0.5},
    {90, 0.5},
    {88, 0.5},
    {2147483647, 1.39e-8},
    {2000, 0.02},
    {1000000, 2e-4},
    {1000000000, 0.5},
    {2147483647, 0.5},
    {160, 30, 100},
    {160, 130, 100},
    {160, 30, 60},
    {160, 130, 60},
    {10, 10, 4},
    {10, 0, 4},
    {10, 3, 0},
    {10, 3, 10},
    {1, 1, 1},
    {2, 1, 1},
    {40, 20, 20},
    {421, 129, 129},
    {420, 129, 129},
    {420, 291, 129},
    {200, 120, 80},
    {200, 80, 120},
    {1600000000, 250000, 250000},
    {40000, 16000, 20000},
    {40000, 16001, 20000},
    {1000000, 1000, 300000},
    {1000000, 500000, 500000},
    {1000000000, 500000000, 500000000},
    {2147483647, 1073741823, 1073741824},
};

class TrialsTest : public RuaTest {
 protected:
  static constexpr uint32_t kSeed = 4357;

  static Trials recorded() {
    static const auto numbers = [] {
      constexpr int n = 100000;
      std::vector<double> d(n);
      std::vector<float> f(n);
      EXPECT_EQ(_ruadRngUniform(0, Stream(RUA_BRNG_MT19937, {kSeed}), n, d.data(), 0, 1), 0);
      EXPECT_EQ(_ruasRngUniform(0, Stream(RUA_BRNG_MT19937, {kSeed}), n, f.data(), 0, 1), 0);
      return Trials(d, f);
    }();
    return numbers;
  }
  // Draws at an offset of one element, between marks.
  static int32_t draw(const Case& c, RuaStream* s, int n, std::vector<int32_t>& r) {
    r.assign(n + 2, 99);
    const int32_t status = c.draw(s, n, r.data() + 1);
    EXPECT_TRUE(r.front() == 99 && r.back() == 99);
    r = {r.begin() + 1, r.end() - 1};
    return status;
  }
  static void expect_next(RuaStream* s, Trials& trials) {
    double next;
    ASSERT_EQ(_ruadRngUniform(0, s, 1, &next, 0, 1), 0);
    ASSERT_EQ(next, trials.next()) << "as many numbers were drawn";
  }
};

TEST_F(TrialsTest, IntegersAreThoseOfTheDrawOrder) {
  for (const Case& c : kCases)
    for (const int n : {1, 2, 3, 1000, 5000}) {
      SCOPED_TRACE(testing::Message() << c << ", n = " << n);
      Stream s(RUA_BRNG_MT19937, {kSeed});
      Trials trials = recorded();
      std::vector<int32_t> r;
      ASSERT_EQ(draw(c, s, n, r), 0);
      ASSERT_EQ(c.expect(trials, n), 0);
      ASSERT_EQ(r, trials.r);
      expect_next(s, trials);
    }
}

// Calls of all parameters and lengths in turn, each parameters twice: a set-up is used again, or
// made anew, through copies and images of the stream; other chunks stay.
TEST_F(TrialsTest, SetUpsFollowTheParameters) {
  Stream s(RUA_BRNG_MT19937, {kSeed});
  Trials trials = recorded();
  s.add_chunk(77, nullptr, {1, 2});
  const int lengths[] = {1, 7, 130, 2, 1, 300, 0, 64, -1, 1030};
  std::vector<int32_t> r;
  int call = 0;
  for (int turn = 0; turn < 3; ++turn)
    for (const Case& c : kCases)
      for (int again = 0; again < 2; ++again) {
        const int n = lengths[call++ % std::size(lengths)];
        SCOPED_TRACE(testing::Message() << c << ", call " << call << ", n = " << n);
        ASSERT_EQ(draw(c, s, std::max(n, 0), r), 0);
        ASSERT_EQ(c.expect(trials, std::max(n, 0)), 0);
        ASSERT_EQ(r, trials.r);
        Stream other;
        if (call % 2) {
          ASSERT_EQ(__ruaCopyStream(other.slot(), s), 0);
        } else {
          std::vector<char> image(__ruaGetStreamSize(s));
          ASSERT_EQ(__ruaSaveStreamM(s, image.data()), 0);
          ASSERT_EQ(__ruaLoadStreamM(other.slot(), image.data()), 0);
        }
        std::swap(*s.slot(), *other.slot());
      }
  EXPECT_EQ(__ruaGetNumChunks(s), 3);
  EXPECT_EQ(*static_cast<const uint32_t*>(__ruaSearchChunk(s, 77)), 1u);
  expect_next(s, trials);
}

// By tables a number each: calls in pieces give the numbers of one long call. By rejection they do
// not: the last pairs of a round serve numbers that another call would draw anew.
TEST_F(TrialsTest, PiecesOfTableMethods) {
  for (const Case& c : kCases) {
    if (c.sums().empty()) continue;
    Stream s(RUA_BRNG_MT19937, {kSeed});
    Trials trials = recorded();
    std::vector<int32_t> r(3001);
    int done = 0;
    for (const int n : {1, 127, 128, 2000, 745}) {
      ASSERT_EQ(c.draw(s, n, r.data() + done), 0);
      done += n;
    }
    ASSERT_EQ(c.expect(trials, done), 0);
    ASSERT_EQ(r, trials.r) << c;
  }
}

// Sums themselves, their neighbours and the ends of the range; heights of 0, whose logarithm stays
// finite. The thread's own callback neither sees them nor is lost.
TEST_F(TrialsTest, EndsOfTheRange) {
  const ThreadState state;
  ork_zem_kernel_SetErrorCallBack([](ork_error_record*) -> int32_t {
    ADD_FAILURE() << "the caller's callback";
    return 0;
  });
  const auto callback = ork_zem_kernel_GetErrorCallBack();
  const uint32_t mode = ork_zem_kernel_GetMode();
  for (const Case& c : kCases) {
    std::vector<double> list = {0, 1, 0, 0, 1, 1, 1, 0, 0.5, 0.999999, 0x1p-30, 1e-9, 1e-9, 1};
    for (int i = 1; i < 200; ++i) list.insert(list.end(), {i / 200.0, 0, i / 200.0, 1});
    for (const double sum : c.sums())
      for (const double to : {0.0, sum, 1.0}) list.push_back(std::nextafter(sum, to));
    for (double& x : list) x = std::min(x, 1.0);
    for (const int n : {40, int(list.size())}) {
      Trials trials(list, {list.begin(), list.end()});
      const Stream s = player_stream(list);
      std::vector<int32_t> r;
      ASSERT_EQ(draw(c, s, n, r), 0);
      ASSERT_EQ(c.expect(trials, n), 0);
      ASSERT_EQ(r, trials.r) << c;
      EXPECT_EQ(player.next, trials.drawn);
    }
    EXPECT_EQ(ork_zem_kernel_GetErrorCallBack(), callback);
    EXPECT_EQ(ork_zem_kernel_GetMode(), mode | ORK_ZEM_DENORMAL_KEEP);
  }
}

// The status of the stream, at once; numbers made before stand, not yet mirrored.
TEST_F(TrialsTest, FailingStreamEndsTheCall) {
  const std::vector<double> list = recorded().doubles();
  for (const Case& c : kCases)
    for (const int failing : {0, 1, 3}) {
      Trials numbers(list, {list.begin(), list.end()});
      numbers.failing = failing;
      const Stream s = player_stream(list, failing);
      std::vector<int32_t> r;
      const ThreadState state;
      if (c.expect(numbers, 4000) == 0) continue;  // fewer draws, or none
      ASSERT_EQ(draw(c, s, 4000, r), kFailure) << c;
      EXPECT_EQ(player.calls, failing + 1) << c;
      EXPECT_EQ(ork_zem_kernel_GetErrorCallBack(), state.callback);
      r.resize(numbers.r.size());
      EXPECT_EQ(r, numbers.r) << c << ' ' << failing;
    }
}

}  // namespace
