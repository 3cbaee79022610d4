// Continuous distributions: what they draw and what they make of it, ends of the range, failing
// streams, thread state, and the laws themselves.
#include <algorithm>

#include "rua/continuous_cases.hpp"
#include "rua/player.hpp"

namespace {

template <class R>
class Continuous : public RuaTest {};
using Types = testing::Types<double, float>;
TYPED_TEST_SUITE(Continuous, Types);

template <class R>
int32_t generate(RuaStream* s, int n, R* r, R a, R b) {
  const RuaBrngProperties row = properties(s->brng);
  if constexpr (sizeof(R) == 8)
    return row.dGenerate(s, n, r, a, b);
  else
    return row.sGenerate(s, n, r, a, b);
}

// Calls f with each case.
template <class R, class F>
void for_cases(F f) {
  for (const auto& c : continuous_cases<R>()) {
    SCOPED_TRACE(c.name);
    f(c);
  }
}

// Draws by c into r at an offset of one element, between marks.
template <class R>
std::vector<R> drawn(const Case<R>& c, RuaStream* s, int n) {
  std::vector<R> r(n + 2, R(99));
  EXPECT_EQ(c.draw(s, n, r.data() + 1), 0);
  EXPECT_EQ(r[0], R(99));
  EXPECT_EQ(r[n + 1], R(99));
  return {r.begin() + 1, r.end() - 1};
}

TYPED_TEST(Continuous, NumbersAreThoseOfTheDrawOrder) {
  using R = TypeParam;
  for_cases<R>([](const Case<R>& c) {
    for (int32_t brng : {RUA_BRNG_MT19937, RUA_BRNG_MCG31M1})
      for (int n : {0, 1, 2, 9, 511, 513, 1023, 1024, 1025, 2048, 3077}) {
        Stream s(brng, {777}), plain(brng, {777});
        const std::vector<R> r = drawn(c, s, n);
        const int draws = uniforms_of(c, n);
        std::vector<R> u(draws + 1);
        if (draws > 0) {
          ASSERT_EQ(generate<R>(plain, draws, u.data(), c.lo, c.hi), 0);
        }
        const auto want = recompute(c, n, u);
        for (int i = 0; i < n; ++i)
          ASSERT_TRUE(close(r[i], want[i])) << n << ' ' << i << ' ' << r[i] << ' ' << want[i];
        // As many numbers were drawn; only what hangs on the stream may differ.
        __ruaDeleteChunks(s);
        EXPECT_EQ(record(s), record(plain)) << n;
      }
  });
}

TYPED_TEST(Continuous, PiecesMakeTheWhole) {
  using R = TypeParam;
  for_cases<R>([](const Case<R>& c) {
    Stream s(RUA_BRNG_MT19937, {5}), split(RUA_BRNG_MT19937, {5});
    const std::vector<R> whole = drawn(c, s, 7001);
    std::vector<R> pieces;
    for (int n : {1, 1, 2, 0, 3, 1024, 1023, 1, 1025, 2048, 5}) {
      const auto r = drawn(c, split, n);
      pieces.insert(pieces.end(), r.begin(), r.end());
    }
    const auto r = drawn(c, split, 7001 - int(pieces.size()));
    pieces.insert(pieces.end(), r.begin(), r.end());
    for (int i = 0; i < 7001; ++i) ASSERT_EQ(pieces[i], whole[i]) << i;
  });
}

int events;
int32_t count_event(ork_error_record*) { return ++events, 0; }

// Exact ends of the range, in every place of a vector and paired with each other.
TYPED_TEST(Continuous, EndsOfTheRangeStayFinite) {
  using R = TypeParam;
  const ThreadState state;
  ork_zem_kernel_SetErrorCallBack(count_event);
  ork_zem_kernel_SetMode(ORK_ZEM_ERRMODE_DEFAULT);
  events = 0;
  const std::vector<double> list = {0, 0, 0.25, 0, 1, 0.75, 0, 1, 0.5, 0.5, 0.25};
  for_cases<R>([&](const Case<R>& c) {
    if (c.name == std::string("Cauchy")) return;  // no guard, no stand-in at the ends
    Stream s = player_stream(list);
    const int n = 2051, draws = uniforms_of(c, n);
    const std::vector<R> r = drawn(c, s, n);
    std::vector<R> u(draws);
    for (int i = 0; i < draws; ++i) u[i] = c.lo + (c.hi - c.lo) * R(list[i % list.size()]);
    const auto want = recompute(c, n, u);
    for (int i = 0; i < n; ++i) {
      ASSERT_TRUE(std::isfinite(r[i])) << i;
      ASSERT_TRUE(close(r[i], want[i])) << i << ' ' << r[i] << ' ' << want[i];
      if (c.clamped) {
        ASSERT_GE(r[i], c.shift);
      }
    }
  });
  EXPECT_EQ(events, 0);
}

TYPED_TEST(Continuous, ThreadStateComesBackAlsoWhenTheStreamFails) {
  using R = TypeParam;
  const ThreadState state;
  const struct {
    ork_error_callback callback;
    uint32_t mode;
  } states[] = {{nullptr, ORK_ZEM_DENORMAL_KEEP | ORK_ZEM_ERRMODE_DEFAULT | ORK_ZEM_HA},
                {nullptr, ORK_ZEM_DENORMAL_ZERO | ORK_ZEM_ERRMODE_ERRNO | ORK_ZEM_LA},
                {count_event, ORK_ZEM_DENORMAL_KEEP | ORK_ZEM_ERRMODE_DEFAULT | ORK_ZEM_HA},
                {count_event, ORK_ZEM_DENORMAL_ZERO | ORK_ZEM_ERRMODE_IGNORE | ORK_ZEM_EP}};
  for_cases<R>([&](const Case<R>& c) {
    for (const auto& st : states)
      for (int failing = -1; failing < 4; ++failing) {
        Stream s = player_stream({0, 0.5, 0.25}, failing);
        ork_zem_kernel_SetErrorCallBack(st.callback);
        ork_zem_kernel_SetMode(st.mode);
        std::vector<R> r(3001, R(99));
        const int32_t status = c.draw(s, 3001, r.data());
        const bool failed = failing >= 0 && player.calls > failing;
        EXPECT_EQ(status, failed ? kFailure : 0) << failing;
        EXPECT_EQ(ork_zem_kernel_GetMode(), st.mode);
        EXPECT_EQ(ork_zem_kernel_GetErrorCallBack(), st.callback);
        if (failed) {
          EXPECT_EQ(player.calls, failing + 1);  // nothing is drawn after a failure
        }
        if (failed && c.per_pair != 0 && !strstr(c.name, "Lognormal")) {
          // Outputs of whole blocks are there.
          const int made = std::min(1024 * failing, 3000);
          std::vector<R> u(uniforms_of(c, made) + 1);
          for (size_t i = 0; i < u.size(); ++i) u[i] = R(player.list[i % 3]);
          const auto want = recompute(c, made, u);
          for (int i = 0; i < made; ++i) ASSERT_TRUE(close(r[i], want[i])) << failing << ' ' << i;
        }
      }
  });
}

// Lognormal has no guard of its own around its exponential: an overflow is the caller's.
TYPED_TEST(Continuous, OverflowOfLognormalIsTheCallers) {
  using R = TypeParam;
  const ThreadState state;
  ork_zem_kernel_SetErrorCallBack(count_event);
  Stream s(RUA_BRNG_MT19937, {1});
  R r[5];
  events = 0;
  EXPECT_EQ(Entries<R>::lognormal(1, s, 5, r, 5000, 1, 0, 1), 0);
  EXPECT_EQ(events, 5);
  EXPECT_TRUE(std::isinf(r[4]));
}

TYPED_TEST(Continuous, AccurateUniformKeepsItsBounds) {
  using R = TypeParam;
  const R a = -2, b = 5;
  const std::vector<double> list = {-0.5, 0, 1, 1.5, 0.25};
  const auto uniform = [&](int32_t method, int n, R lo, R hi, std::vector<R>& r, int failing = -1) {
    Stream s = player_stream(list, failing);
    r.assign(n, R(99));
    return Entries<R>::uniform(method, s, n, r.data(), lo, hi);
  };
  for (int n : {1, 2, 3, 4, 5, 8, 13, 31}) {
    std::vector<R> raw, r;
    EXPECT_EQ(uniform(0, n, a, b, raw), 0);
    EXPECT_EQ(uniform(RUA_METHOD_ACCURATE, n, a, b, r), 0);
    for (int i = 0; i < n; ++i) {
      EXPECT_EQ(raw[i], a + (b - a) * R(list[i % 5]));
      EXPECT_EQ(r[i], std::clamp(raw[i], a, b));
    }
    EXPECT_EQ(uniform(RUA_METHOD_ACCURATE, n, b, b, r), 0);
    for (R x : r) EXPECT_EQ(x, b);
    EXPECT_EQ(uniform(RUA_METHOD_ACCURATE, n, a, b, r, 0), kFailure);
  }
}

class Uniform : public RuaTest {};

// The single form works in double and rounds at the end, also where it takes a shorter way.
TEST_F(Uniform, SingleNumbersAreTheDoubleOnesRounded) {
  for (int n : {1, 2, 3, 4, 5, 6, 7, 9, 300000})
    for (auto [a, b] : {std::pair{0.f, 1.f}, {-0.f, 1.f}, {0.f, 1.5f}, {-1.f, 1.f}}) {
      Stream s(RUA_BRNG_MT19937, {77}), d(RUA_BRNG_MT19937, {77});
      std::vector<float> r(n);
      std::vector<double> wide(n);
      ASSERT_EQ(_ruasRngUniform(0, s, n, r.data(), a, b), 0);
      ASSERT_EQ(_ruadRngUniform(0, d, n, wide.data(), a, b), 0);
      for (int i = 0; i < n; ++i) ASSERT_EQ(r[i], float(wide[i])) << i;
      EXPECT_EQ(record(s), record(d));
    }
}

// Kolmogorov-Smirnov both ways (p of about 1e-6), mean and variance within 5 standard errors.
template <class R>
class Law : public testing::TestWithParam<Case<R>> {
 protected:
  void check(const Case<R>& c) {
    constexpr int n = 1000000;
    Stream s(RUA_BRNG_MT19937, {20211});
    std::vector<R> r(n);
    ASSERT_EQ(c.draw(s, n, r.data()), 0);
    long double sum = 0, squares = 0;
    for (R x : r) sum += x;
    const double mean = double(sum / n);
    for (R x : r) squares += (x - mean) * (x - mean);
    if (c.variance > 0) {
      EXPECT_LT(std::fabs(mean - c.mean), 5 * std::sqrt(c.variance / n));
      EXPECT_LT(std::fabs(double(squares / n) - c.variance),
                5 * c.variance * std::sqrt((c.kurtosis - 1) / n));
    }
    std::sort(r.begin(), r.end());
    double distance = 0;
    for (int i = 0; i < n; ++i) {
      const double p = c.cdf(r[i]);
      distance = std::max({distance, (i + 1.0) / n - p, p - double(i) / n});
    }
    EXPECT_LT(distance * std::sqrt(n), 2.7);
    EXPECT_GT(distance * std::sqrt(n), 0.27);
  }
};
using DoubleLaw = Law<double>;
using SingleLaw = Law<float>;
TEST_P(DoubleLaw, Holds) { check(GetParam()); }
TEST_P(SingleLaw, Holds) { check(GetParam()); }
const auto name = [](const auto& info) { return std::string(info.param.name); };
INSTANTIATE_TEST_SUITE_P(Continuous, DoubleLaw, testing::ValuesIn(continuous_cases<double>()),
                         name);
INSTANTIATE_TEST_SUITE_P(Continuous, SingleLaw, testing::ValuesIn(continuous_cases<float>()), name);

}  // namespace
