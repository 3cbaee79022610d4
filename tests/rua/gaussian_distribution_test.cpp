// The pair that the second Box-Muller method leaves with a stream.
#include <memory>

#include "rua/continuous_cases.hpp"

namespace {

template <class R>
class PendingPair : public RuaTest {
 protected:
  static std::vector<R> draw(RuaStream* s, int n, R a = 0, R sigma = 1) {
    std::vector<R> r(n);
    EXPECT_EQ(Entries<R>::gaussian(RUA_GAUSSIAN_BOXMULLER2, s, n, r.data(), a, sigma), 0);
    return r;
  }
  static const R* pair(RuaStream* s) {
    return static_cast<const R*>(__ruaSearchChunk(s, Entries<R>::pending));
  }
  static std::vector<R> uniforms(RuaStream* s, int n) {
    std::vector<R> u(n);
    EXPECT_EQ(Entries<R>::uniform(0, s, n, u.data(), 0, 1), 0);
    return u;
  }
};
using Types = testing::Types<double, float>;
TYPED_TEST_SUITE(PendingPair, Types);

TYPED_TEST(PendingPair, WaitsForTheNextCall) {
  using R = TypeParam;
  Stream s(RUA_BRNG_MCG31M1, {9}), plain(RUA_BRNG_MCG31M1, {9});
  const auto u = this->uniforms(plain, 4);
  const long double radius = sqrtl(-2 * logl(u[0]));
  const R first = this->draw(s, 1)[0];
  ASSERT_NE(this->pair(s), nullptr);
  EXPECT_EQ(this->pair(s)[0], u[0]);
  EXPECT_EQ(this->pair(s)[1], u[1]);
  EXPECT_EQ(s->chunks->size, 2 * sizeof(R));
  const R second = this->draw(s, 1, 10, 3)[0];  // the parameters are those of each call
  EXPECT_TRUE(close(first, radius * sinl(2 * kPi * u[1])));
  EXPECT_TRUE(close(second, 10 + 3 * radius * cosl(2 * kPi * u[1])));
  EXPECT_EQ(this->pair(s)[0], R(-1));
  EXPECT_EQ(this->pair(s)[1], R(-1));
  this->draw(s, 2);
  EXPECT_EQ(this->pair(s)[0], R(-1));
  EXPECT_EQ(__ruaGetNumChunks(s), 1);
  __ruaDeleteChunks(s);
  EXPECT_EQ(record(s), record(plain));  // four numbers in all
}

TYPED_TEST(PendingPair, CountsBelow1LeaveTheStream) {
  using R = TypeParam;
  Stream s(RUA_BRNG_MT19937, {9});
  this->draw(s, 3);
  const auto before = record(s);
  const R left = this->pair(s)[0];
  R r = 99;
  for (int n : {0, -1, -2, INT32_MIN})
    for (int method : {RUA_GAUSSIAN_BOXMULLER, RUA_GAUSSIAN_BOXMULLER2})
      EXPECT_EQ(Entries<R>::gaussian(method, s, n, &r, 0, 1), 0);
  EXPECT_EQ(record(s), before);
  EXPECT_EQ(this->pair(s)[0], left);
  EXPECT_EQ(r, R(99));
}

TYPED_TEST(PendingPair, SurvivesCopyAndImage) {
  Stream s(RUA_BRNG_MT19937, {9}), copy, loaded;
  this->draw(s, 777);
  ASSERT_EQ(__ruaCopyStream(copy.slot(), s), 0);
  std::vector<char> image(__ruaGetStreamSize(s));
  ASSERT_EQ(__ruaSaveStreamM(s, image.data()), 0);
  const auto want = this->draw(s, 1500);
  EXPECT_EQ(this->draw(copy, 1500), want);
  ASSERT_EQ(__ruaLoadStreamM(loaded.slot(), image.data()), 0);
  EXPECT_EQ(this->draw(loaded, 1500), want);
}

TYPED_TEST(PendingPair, ChunkTooSmallIsRefused) {
  using R = TypeParam;
  for (uint32_t words = 0; words <= 2 * sizeof(R) / 4; ++words) {
    Stream s(RUA_BRNG_MT19937, {9});
    s.add_chunk(Entries<R>::pending, nullptr, std::vector<uint32_t>(words, 0xBF800000));
    const auto before = record(s);
    R r = 99;
    const bool whole = words * 4 == 2 * sizeof(R);
    EXPECT_EQ(Entries<R>::gaussian(RUA_GAUSSIAN_BOXMULLER2, s, 1, &r, 0, 1),
              whole ? 0 : RUA_STATUS_BAD_GENERATOR);
    EXPECT_EQ(Entries<R>::lognormal(0, s, 1, &r, 0, 1, 0, 1), whole ? 0 : RUA_STATUS_BAD_GENERATOR);
    EXPECT_EQ(record(s) == before, !whole);
    EXPECT_EQ(r == R(99), !whole);
  }
}

class PendingPairs : public RuaTest {};

TEST_F(PendingPairs, OfBothTypesLiveSideBySide) {
  Stream s(RUA_BRNG_MT19937, {9}), plain(RUA_BRNG_MT19937, {9});
  double d[2], ud[2];
  float f[2], uf[2];
  const int method = RUA_GAUSSIAN_BOXMULLER2;
  ASSERT_EQ(_ruadRngGaussian(method, s, 1, d, 0, 1), 0);
  ASSERT_EQ(_ruasRngGaussian(method, s, 1, f, 0, 1), 0);
  ASSERT_EQ(_ruadRngGaussian(method, s, 1, d + 1, 0, 1), 0);
  ASSERT_EQ(_ruasRngGaussian(method, s, 1, f + 1, 0, 1), 0);
  ASSERT_EQ(_ruadRngUniform(0, plain, 2, ud, 0, 1), 0);
  ASSERT_EQ(_ruasRngUniform(0, plain, 2, uf, 0, 1), 0);
  EXPECT_TRUE(close(d[1], sqrtl(-2 * logl(ud[0])) * cosl(2 * kPi * ud[1])));
  EXPECT_TRUE(close(f[1], sqrtl(-2 * logl(uf[0])) * cosl(2 * kPi * uf[1])));
  EXPECT_EQ(__ruaGetNumChunks(s), 2);
}

}  // namespace
