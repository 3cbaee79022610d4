// Gamma and beta: the numbers themselves, against the methods written out one number at a time;
// what stays with the stream; failing streams and ends of the range.
#include "ork/rua_distributions.h"
#include "rua/rejection_reference.hpp"

namespace {

template <class R>
struct Entries;
template <>
struct Entries<double> {
  static constexpr auto uniform = _ruadRngUniform;
  static constexpr auto gamma = _ruadRngGamma;
  static constexpr auto beta = _ruadRngBeta;
  static constexpr uint32_t pending = 7;
};
template <>
struct Entries<float> {
  static constexpr auto uniform = _ruasRngUniform;
  static constexpr auto gamma = _ruasRngGamma;
  static constexpr auto beta = _ruasRngBeta;
  static constexpr uint32_t pending = 8;
};

// A gamma distribution where q is 0, else a beta one.
struct Shape {
  double p, q;
};
std::ostream& operator<<(std::ostream& out, const Shape& s) { return out << s.p << ", " << s.q; }

// Every method, its borders from both sides, tiny and large shapes. At p = 0.7, q = 0.53864 beta
// changes from Johnk's method to the switching one.
const Shape kShapes[] = {{2.5, 0},    {1.00001, 0},  {1, 0},        {0.99999, 0},       {0.8, 0},
                         {0.6, 0},    {0.59999, 0},  {0.3, 0},      {1e-3, 0},          {1e6, 0},
                         {0.5, 0.5},  {0.7, 0.5386}, {0.7, 0.5387}, {0.9, 0.9},         {0.3, 2},
                         {2, 0.3},    {0.99999, 4},  {2, 3},        {1.00001, 1.00001}, {1, 2.5},
                         {2.5, 1},    {1, 1},        {0.3, 1},      {1e-3, 1e-3},       {1e6, 1e6},
                         {1e-3, 1e3}, {1e3, 1e-3}};

template <class R>
class GammaBeta : public RuaTest {
 protected:
  using E = Entries<R>;
  using Reference = reference::Rejections<R>;
  static constexpr uint32_t kSeed = 4357;

  static const std::vector<R>& recorded() {
    static const std::vector<R> u = [] {
      Stream s(RUA_BRNG_MT19937, {kSeed});
      std::vector<R> u(400000);
      EXPECT_EQ(E::uniform(0, s, int(u.size()), u.data(), 0, 1), 0);
      return u;
    }();
    return u;
  }
  // Draws at an offset of one element, between marks.
  static int32_t draw(RuaStream* s, int n, const Shape& d, std::vector<R>& r, R a = -1,
                      R beta = 2) {
    r.assign(n + 2, R(99));
    const int32_t status = d.q == 0 ? E::gamma(0, s, n, r.data() + 1, R(d.p), a, beta)
                                    : E::beta(0, s, n, r.data() + 1, R(d.p), R(d.q), a, beta);
    EXPECT_EQ(r.front(), R(99));
    EXPECT_EQ(r.back(), R(99));
    r = {r.begin() + 1, r.end() - 1};
    return status;
  }
  static int32_t expect(Reference& reference, int n, const Shape& d, R a = -1, R beta = 2) {
    return d.q == 0 ? reference.gamma(n, R(d.p), a, beta)
                    : reference.beta(n, R(d.p), R(d.q), a, beta);
  }
  // Bits, but for the payload of NaNs.
  static void expect_equal(const std::vector<R>& r, const std::vector<R>& want) {
    ASSERT_GE(r.size(), want.size());
    for (size_t i = 0; i < want.size(); ++i)
      ASSERT_TRUE(r[i] == want[i] || (r[i] != r[i] && want[i] != want[i]))
          << i << ' ' << r[i] << ' ' << want[i];
  }
  static void expect_pending(RuaStream* s, const Reference& reference) {
    const auto* p = static_cast<const R*>(__ruaSearchChunk(s, E::pending));
    ASSERT_NE(p, nullptr);
    if (reference.pending) {
      EXPECT_EQ(p[0], reference.pending->u);
      EXPECT_EQ(p[1], reference.pending->z);
    } else {
      EXPECT_EQ(p[0], R(-1));
    }
  }
  static void expect_next(RuaStream* s, const Reference& reference) {
    R next;
    ASSERT_EQ(E::uniform(0, s, 1, &next, 0, 1), 0);
    EXPECT_EQ(next, recorded()[reference.drawn]) << "as many numbers were drawn";
  }
};
using Types = testing::Types<double, float>;
TYPED_TEST_SUITE(GammaBeta, Types);

TYPED_TEST(GammaBeta, NumbersAreThoseOfTheDrawOrder) {
  using R = TypeParam;
  for (const Shape& d : kShapes)
    for (const int n : {1, 2, 3, 511, 512, 513, 5000}) {
      SCOPED_TRACE(testing::Message() << d << ", n = " << n);
      Stream s(RUA_BRNG_MT19937, {this->kSeed});
      typename TestFixture::Reference reference(this->recorded());
      std::vector<R> r;
      ASSERT_EQ(this->draw(s, n, d, r), 0);
      ASSERT_EQ(this->expect(reference, n, d), 0);
      this->expect_equal(r, reference.r);
      EXPECT_EQ(__ruaGetNumChunks(s), d.q == 0 && d.p > 1);
      if (__ruaGetNumChunks(s)) this->expect_pending(s, reference);
      this->expect_next(s, reference);
    }
}

// Calls of all shapes and lengths in turn: a candidate waits through what does not use it, through
// copies and images, and through calls for no numbers.
TYPED_TEST(GammaBeta, CandidateWaitsForTheNextCallThatUsesIt) {
  using R = TypeParam;
  Stream s(RUA_BRNG_MT19937, {this->kSeed});
  typename TestFixture::Reference reference(this->recorded());
  const int lengths[] = {1, 3, 0, 7, 2, -1, 511, 1, 1, 512, 64, 1023, 5};
  std::vector<R> r;
  int call = 0, waited = 0;
  for (int turn = 0; turn < 4; ++turn)
    for (const Shape& d : {Shape{2.5, 0}, {1.2, 0}, {0.3, 0}, {2, 3}, {1e6, 0}, {1, 0}}) {
      const int n = lengths[call++ % std::size(lengths)];
      SCOPED_TRACE(testing::Message() << d << ", call " << call << ", n = " << n);
      ASSERT_EQ(this->draw(s, std::max(n, 0), d, r), 0);
      ASSERT_EQ(this->expect(reference, std::max(n, 0), d), 0);
      this->expect_equal(r, reference.r);
      this->expect_pending(s, reference);
      waited += reference.pending.has_value();
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
  EXPECT_GT(waited, 8);
  this->expect_next(s, reference);
}

TYPED_TEST(GammaBeta, OneCandidateServesACallWithoutADraw) {
  using R = TypeParam;
  Stream s(RUA_BRNG_MT19937, {this->kSeed});
  std::vector<R> r;
  do ASSERT_EQ(this->draw(s, 1, {2.5, 0}, r), 0);
  while (*static_cast<const R*>(__ruaSearchChunk(s, Entries<R>::pending)) < 0);
  const auto before = record(s);
  R none = 99;
  EXPECT_EQ(Entries<R>::gamma(0, s, -5, &none, 2.5, 0, 1), 0);
  EXPECT_EQ(none, R(99));
  ASSERT_EQ(this->draw(s, 1, {2.5, 0}, r), 0);  // accepted with this seed
  EXPECT_EQ(record(s), before);
}

// The k-th draw fails: numbers accepted before stand, unscaled; mode and callback are the thread's
// own again; a candidate taken from the stream is lost.
int32_t own(ork_error_record*) { return 0; }
TYPED_TEST(GammaBeta, FailingDrawEndsTheCall) {
  using R = TypeParam;
  const ThreadState state;
  ork_zem_kernel_SetErrorCallBack(own);
  ork_zem_kernel_SetMode(ORK_ZEM_DENORMAL_ZERO | ORK_ZEM_ERRMODE_ERRNO | ORK_ZEM_LA);
  const uint32_t mode = ork_zem_kernel_GetMode();
  const std::vector<R>& u = this->recorded();
  const std::vector<double> list(u.begin(), u.begin() + 50000);
  for (const Shape& d : kShapes)
    for (const int failing : {0, 1, 2, 3, 4}) {
      SCOPED_TRACE(testing::Message() << d << ", draw " << failing);
      Stream s = player_stream(list, failing);
      typename TestFixture::Reference reference(u);
      reference.failing = failing;
      std::vector<R> r;
      const int32_t first = this->draw(s, 1, d, r);  // may leave a candidate
      ASSERT_EQ(this->expect(reference, 1, d), first);
      const int32_t status = this->draw(s, 2100, d, r);
      ASSERT_EQ(this->expect(reference, 2100, d), status);
      this->expect_equal(r, reference.r);
      if (__ruaGetNumChunks(s)) this->expect_pending(s, reference);
      EXPECT_EQ(ork_zem_kernel_GetMode(), mode);
      EXPECT_EQ(ork_zem_kernel_GetErrorCallBack(), own);
    }
}

// The very number v from which on a candidate is rejected: it shows the last bits of a method's
// constants and tests. The list is a candidate, then one that is accepted for its tiny number.
TYPED_TEST(GammaBeta, RejectionBeginsAtTheSameNumber) {
  using R = TypeParam;
  int borders = 0;
  for (const Shape& d : kShapes) {
    // Powers of tiny shapes vanish: no number of the list would ever be accepted.
    if (d.p < 0.01 || (d.q > 0 && d.q < 0.01)) continue;
    for (const double u : {0.02, 0.11, 0.3, 0.52, 0.77, 0.9, 0.98}) {
      const auto by_reference = [&](R v) {
        const std::vector<R> list = {R(u), v, R(0.37), R(1e-30)};
        typename TestFixture::Reference reference(list);
        EXPECT_EQ(this->expect(reference, 1, d), 0);
        return reference.r[0];
      };
      const auto by_kernel = [&](R v) {
        Stream s = player_stream({double(R(u)), double(v), double(R(0.37)), double(R(1e-30))});
        std::vector<R> r;
        EXPECT_EQ(this->draw(s, 1, d, r), 0);
        return r[0];
      };
      R lo = R(1e-30), hi = 1;
      const R accepted = by_reference(lo);
      if (by_reference(hi) == accepted) continue;
      while (std::nextafter(lo, hi) < hi) {
        const R middle = lo + (hi - lo) / 2;
        (by_reference(middle) == accepted ? lo : hi) = middle;
      }
      ++borders;
      EXPECT_EQ(by_kernel(lo), accepted) << d << ", u = " << u;
      EXPECT_EQ(by_kernel(hi), by_reference(hi)) << d << ", u = " << u;
    }
  }
  EXPECT_GT(borders, 50);
}

// Uniform numbers of exactly 0 and 1 in every place of a pair.
TYPED_TEST(GammaBeta, EndsOfTheRangeAreTakenAsTheyAre) {
  using R = TypeParam;
  const ThreadState state;
  std::vector<double> list = {0, 0, 0.25, 0, 1, 0.75, 0, 1, 0.5, 0.5, 0.25, 1, 1, 0.125, 0.875};
  const std::vector<R> u(list.begin(), list.end());
  for (const Shape& d : kShapes) {
    SCOPED_TRACE(testing::Message() << d);
    Stream s = player_stream(list);
    typename TestFixture::Reference reference(u);
    std::vector<R> r;
    ASSERT_EQ(this->draw(s, 1100, d, r), 0);
    ASSERT_EQ(this->expect(reference, 1100, d), 0);
    this->expect_equal(r, reference.r);
    EXPECT_EQ(player.next, reference.drawn);
    for (const R x : r) {
      EXPECT_FALSE(x < -1);
      if (d.q != 0) {
        EXPECT_FALSE(x > 1);
      }
    }
  }
}

// Scaling rounds: a + beta may be reached, never passed; gamma stays above a.
TYPED_TEST(GammaBeta, BoundsHoldWhateverTheScale) {
  using R = TypeParam;
  for (const Shape& d : {Shape{1e-3, 1e-3}, {0.5, 0.5}, {2, 1e-3}, {1e-3, 2}, {1, 9}, {9, 1}})
    for (const auto& [a, beta] : {std::pair<R, R>{R(1) / 3, R(1) / 7}, {1e8, 1}, {-1, 1}}) {
      Stream s(RUA_BRNG_MT19937, {1});
      std::vector<R> r;
      ASSERT_EQ(this->draw(s, 4000, d, r, a, beta), 0);
      EXPECT_GE(*std::min_element(r.begin(), r.end()), a) << d;
      EXPECT_LE(*std::max_element(r.begin(), r.end()), a + beta) << d;
      ASSERT_EQ(this->draw(s, 1000, {d.p, 0}, r, a, beta), 0);
      EXPECT_GE(*std::min_element(r.begin(), r.end()), a) << d;
    }
}

TYPED_TEST(GammaBeta, ShapesThatAreNoNumbersLeaveUniform) {
  using R = TypeParam;
  for (const int32_t method : {0, RUA_METHOD_ACCURATE})
    for (const auto& [p, q] : {std::pair<R, R>{R(NAN), R(2)}, {R(0.5), R(NAN)}}) {
      Stream s = player_stream({-0.5, 0.25, 1.5}), plain = player_stream({-0.5, 0.25, 1.5});
      R r[5], want[5];
      ASSERT_EQ(Entries<R>::uniform(method, plain, 5, want, 1, 3), 0);
      player.next = 0;
      ASSERT_EQ(Entries<R>::beta(method, s, 5, r, p, q, 1, 2), 0);
      EXPECT_EQ(memcmp(r, want, sizeof r), 0);
    }
}

// A chunk that an image has damaged.
TYPED_TEST(GammaBeta, ChunkTooSmallIsRefused) {
  using R = TypeParam;
  Stream s(RUA_BRNG_MT19937, {9});
  s.add_chunk(Entries<R>::pending, nullptr, std::vector<uint32_t>(sizeof(R) / 4 * 2 - 1));
  const auto before = record(s);
  R r = 99;
  EXPECT_EQ(Entries<R>::gamma(0, s, 1, &r, 2, 0, 1), RUA_STATUS_BAD_GENERATOR);
  EXPECT_EQ(record(s), before);
  EXPECT_EQ(r, R(99));
}

}  // namespace
