// Discrete distributions by transformation: the integers themselves from recorded uniform numbers,
// which generators have which bits, failing streams and ends of the range.
#include <algorithm>
#include <cmath>
#include <functional>

#include "ork/rua_distributions.h"
#include "ork/ss_math.h"
#include "ork/zem_kernels.h"
#include "rua/player.hpp"

namespace {

constexpr int32_t kInts = 0x7fffffff;

struct Discrete {
  const char* name;
  std::function<int32_t(RuaStream*, int32_t, int32_t*)> draw;
  bool single;  // its uniform numbers
  std::function<int32_t(double u)> value;
};

float single_ln(float u) {
  float l;
  ork_zem_kernel_sLn_ttab[0](1, &u, &l);
  return l;
}

Discrete uniform(const char* name, int32_t a, int32_t b) {
  return {name, [=](auto* s, auto n, auto* r) { return _ruaiRngUniform(0, s, n, r, a, b); }, false,
          [=](double u) { return int32_t(std::floor(u * (double(b) - a) + a)); }};
}
Discrete bernoulli(const char* name, double p) {
  return {name, [=](auto* s, auto n, auto* r) { return _ruaiRngBernoulli(0, s, n, r, p); }, true,
          [=](double u) { return int32_t(float(u) < float(p)); }};
}
Discrete geometric(const char* name, double p) {
  return {name, [=](auto* s, auto n, auto* r) { return _ruaiRngGeometric(0, s, n, r, p); }, true,
          [=](double u) {
            return int32_t(std::floor(single_ln(float(u)) * float(1 / __ruadLn(1 - p))));
          }};
}

const std::vector<Discrete>& cases() {
  static const std::vector<Discrete> rows = {
      uniform("uniform 0 100", 0, 100),     uniform("uniform one value", -7, -6),
      uniform("uniform negative", -12, -3), uniform("uniform widest", -kInts - 1, kInts),
      bernoulli("bernoulli 0", 0),          bernoulli("bernoulli 0.3", 0.3),
      bernoulli("bernoulli 1", 1),          geometric("geometric 0.3", 0.3),
      geometric("geometric 0.999", 0.999),  geometric("geometric 1e-3", 1e-3),
  };
  return rows;
}

template <class R, class F>
std::vector<double> recorded(int32_t brng, int n, F draw) {
  Stream s(brng, {4357});
  std::vector<R> u(n);
  EXPECT_EQ(draw(0, s, n, u.data(), R(0), R(1)), 0);
  return {u.begin(), u.end()};
}

class DiscreteTest : public RuaTest {};

// Every length of a tail, whole and broken blocks, any alignment, marks on both sides; a call in
// pieces gives the numbers of one long call.
TEST_F(DiscreteTest, IntegersAreThoseOfTheUniformNumbers) {
  const ThreadState state;
  ork_zem_kernel_SetMode(ORK_ZEM_DENORMAL_KEEP);
  for (const int32_t brng : {RUA_BRNG_MT19937, RUA_BRNG_MCG31M1})
    for (const Discrete& d : cases()) {
      const auto u = d.single ? recorded<float>(brng, 8000, _ruasRngUniform)
                              : recorded<double>(brng, 8000, _ruadRngUniform);
      Stream s(brng, {4357});
      size_t next = 0;
      for (const int n : {1, 2, 3, 5, 0, -1, 4, 1000, 1024, 1025, 4099}) {
        std::vector<int32_t> r(std::max(n, 0) + 2, 99);
        const uint32_t mode = ork_zem_kernel_GetMode();
        ASSERT_EQ(d.draw(s, n, r.data() + 1), 0) << d.name << n;
        EXPECT_EQ(ork_zem_kernel_GetMode(), mode);
        ASSERT_TRUE(r.front() == 99 && r.back() == 99) << d.name << n;
        for (int i = 0; i < n; ++i)
          ASSERT_EQ(r[i + 1], d.value(u[next++])) << d.name << ' ' << n << ' ' << i;
      }
    }
}

// Numbers at the ends of their range: the logarithm of 0 stays finite, and the thread's own
// callback neither sees it nor is lost. A p near 0 leads beyond the integers.
TEST_F(DiscreteTest, EndsOfTheRange) {
  const ThreadState state;
  ork_zem_kernel_SetErrorCallBack([](ork_error_record*) -> int32_t {
    ADD_FAILURE() << "the caller's callback";
    return 0;
  });
  const auto callback = ork_zem_kernel_GetErrorCallBack();
  const Stream s = player_stream({0, 1, 0x1p-30});
  int32_t r[3];
  ASSERT_EQ(_ruaiRngGeometric(0, s, 3, r, 0.3), 0);
  EXPECT_EQ(r[0], 289);  // floor(103.2789... / -ln 0.7)
  EXPECT_EQ(r[1], 0);
  EXPECT_EQ(r[2], 58);  // floor(30 ln 2 / -ln 0.7)
  ASSERT_EQ(_ruaiRngGeometric(0, s, 3, r, 1e-9), 0);
  EXPECT_EQ(r[0], -kInts - 1);
  EXPECT_EQ(r[1], 0);
  EXPECT_EQ(ork_zem_kernel_GetErrorCallBack(), callback);
  ASSERT_EQ(_ruaiRngBernoulli(0, s, 3, r, 0.0), 0);
  EXPECT_EQ(r[0] | r[1] | r[2], 0);
}

// The status of the stream, at once, with the outputs of the blocks before in place.
TEST_F(DiscreteTest, FailingStreamEndsTheCall) {
  for (const Discrete& d : cases())
    for (const int failing : {0, 2}) {
      const Stream s = player_stream({0.25, 0.75, 0.5}, failing);
      std::vector<int32_t> r(5000, 99);
      const ThreadState state;
      const int32_t status = d.draw(s, 5000, r.data());
      if (failing && player.calls == 1) continue;  // the kernels that draw everything at once
      EXPECT_EQ(status, kFailure) << d.name;
      EXPECT_EQ(player.calls, failing + 1) << d.name;
      EXPECT_EQ(r[4999], 99) << d.name;
      EXPECT_EQ(ork_zem_kernel_GetErrorCallBack(), state.callback);
      if (failing) {
        EXPECT_EQ(r[2047], d.value(player.list[2047 % 3])) << d.name;
        EXPECT_EQ(r[2048], 99) << d.name;
      }
    }
}

// Which generators have words, and which bits these are; the others stay where they are.
TEST_F(DiscreteTest, Bits) {
  constexpr int n = 4099;
  for (const int32_t brng : kSequences) {
    SCOPED_TRACE(brng);
    Stream s(brng, {7}), twin(brng, {7});
    const auto items = twin.integers(2 * n + n);
    const size_t size = properties(brng).wordSize / 4;
    const int32_t family = brng & 0x7ff00000;
    const bool whole =
        family == RUA_BRNG_MT19937 || family == RUA_BRNG_MT2203 || family == RUA_BRNG_SFMT19937;
    const bool high = family == RUA_BRNG_MCG59;
    const auto word = [&](size_t i) {
      return high ? items[2 * i + 1] << 5 | items[2 * i] >> 27 : items[i];
    };
    const auto before = record(s);
    std::vector<uint32_t> r(n + 1, 99);
    std::vector<uint64_t> wide(n + 1, 99);
    const int32_t status32 = _ruaiRngUniformBits32(0, s, n, r.data());
    const int32_t status64 = _ruaiRngUniformBits64(0, s, n, wide.data());
    EXPECT_EQ(r[n], 99u);
    EXPECT_EQ(wide[n], 99u);
    if (!whole && !high) {
      EXPECT_EQ(status32, RUA_STATUS_NO_BITS_FORM);
      EXPECT_EQ(status64, RUA_STATUS_NO_BITS_FORM);
      EXPECT_EQ(record(s), before);
      EXPECT_EQ(r[0], 99u);
    } else {
      EXPECT_EQ(status32 | status64, 0);
      for (size_t i = 0; i < n; ++i) {
        ASSERT_EQ(r[i], word(i)) << i;
        ASSERT_EQ(wide[i], uint64_t{word(n + 2 * i + 1)} << 32 | word(n + 2 * i)) << i;
      }
    }
    Stream third(brng, {7});
    std::vector<uint32_t> plain(size * n);
    ASSERT_EQ(_ruaiRngUniformBits(0, third, n, plain.data()), 0);
    EXPECT_TRUE(std::equal(plain.begin(), plain.end(), items.begin()));
  }
  const Stream registered = player_stream({0.5});
  uint32_t r;
  EXPECT_EQ(_ruaiRngUniformBits32(0, registered, 1, &r), RUA_STATUS_NO_BITS_FORM);
}

}  // namespace
