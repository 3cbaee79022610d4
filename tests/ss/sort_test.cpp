// Sorting and selection: every pattern that partitions and digits could trip over, between
// inaccessible pages.
#include <algorithm>
#include <functional>
#include <numeric>
#include <random>

#include "rua_sub_kernel/math/select.hpp"
#include "ss/api.hpp"
#include "support/bits.hpp"
#include "support/memory.hpp"
#include "support/pch.hpp"
#include "support/special.hpp"

namespace {
using statistics::Api;

std::mt19937 generator(7);
template <class R>
struct Pattern {
  const char* name;
  std::function<R(int i, int n)> value;
};
template <class R>
const std::vector<Pattern<R>>& patterns() {
  static std::normal_distribution<R> gauss;
  static const R edges[] = {R(0),
                            R(-0.0),
                            R(1),
                            R(-1),
                            inf<R>,
                            -inf<R>,
                            largest<R>,
                            -largest<R>,
                            smallest_denormal<R>,
                            -smallest_denormal<R>,
                            smallest_normal<R>};
  static const std::vector<Pattern<R>> all = {
      {"random", [](int, int) { return gauss(generator); }},
      {"sorted", [](int i, int) { return R(i); }},
      {"reversed", [](int i, int) { return R(-i); }},
      {"constant", [](int, int) { return R(2.5); }},
      {"two values", [](int, int) { return R(generator() % 2); }},
      {"few values", [](int, int) { return R(generator() % 5) - 2; }},
      {"organ pipe", [](int i, int n) { return R(std::min(i, n - i)); }},
      {"saw", [](int i, int) { return R(i % 17); }},
      {"scales",
       [](int, int) { return std::ldexp(gauss(generator), int(generator() % 200) - 100); }},
      {"edges", [](int, int) { return edges[generator() % std::size(edges)]; }},
  };
  return all;
}
const int sizes[] = {1,  2,  3,   4,   5,   6,   7,   8,   9,    15,  16,
                     31, 64, 127, 130, 131, 132, 200, 257, 1000, 5003};

template <class R>
using Values = std::vector<R>;
// By bits, so that zeros and NaNs are told apart.
template <class R>
Values<uint64_t> images(const Values<R>& v) {
  Values<uint64_t> out(v.size());
  std::transform(v.begin(), v.end(), out.begin(), [](R x) { return uint64_t(bits(x)); });
  std::sort(out.begin(), out.end());
  return out;
}

template <class R>
struct Sorting : ::testing::Test {
  GuardedPages pages{5003 * sizeof(R)}, more{5003 * sizeof(R)};
  // Runs f over arrays that end at one guard page, then over ones that begin at the other.
  template <class F>
  void each(F f) {
    for (const auto& pattern : patterns<R>())
      for (const int n : sizes) {
        SCOPED_TRACE(std::string(pattern.name) + ", n = " + std::to_string(n));
        Values<R> v(n);
        for (int i = 0; i < n; ++i) v[i] = pattern.value(i, n);
        for (R* a : {pages.at_end<R>(n), pages.at_start<R>()}) {
          std::copy(v.begin(), v.end(), a);
          f(v, a, n);
        }
      }
  }
};
typedef ::testing::Types<double, float> RealTypes;
TYPED_TEST_SUITE(Sorting, RealTypes);

TYPED_TEST(Sorting, QuicksortGivesTheSameValuesInOrder) {
  typedef TypeParam R;
  this->each([](const Values<R>& v, R* a, int n) {
    Api<R>::sort(n, a);
    const Values<R> got(a, a + n);
    EXPECT_TRUE(std::is_sorted(got.begin(), got.end()));
    EXPECT_EQ(images(got), images(v));
  });
}

TYPED_TEST(Sorting, RadixSortOrdersZerosByTheirSign) {
  typedef TypeParam R;
  this->each([&](const Values<R>& v, R* a, int n) {
    R* const scratch = this->more.template at_end<R>(n);
    ASSERT_EQ(Api<R>::radix(a, scratch, n), 0);
    Values<R> want = v;
    std::sort(want.begin(), want.end(),
              [](R x, R y) { return x < y || (x == y && std::signbit(x) && !std::signbit(y)); });
    EXPECT_EQ(memcmp(a, want.data(), n * sizeof(R)), 0);
  });
  R a[2] = {2, 1}, b[2];
  EXPECT_EQ(Api<R>::radix(nullptr, b, 2), -8);
  EXPECT_EQ(Api<R>::radix(a, nullptr, 0), -8);
  EXPECT_EQ(Api<R>::radix(a, b, 0), -6);
  EXPECT_EQ(Api<R>::radix(a, b, -1), -6);
  EXPECT_EQ(a[0], 2);
}

TYPED_TEST(Sorting, StridedSortLeavesWhatLiesBetween) {
  typedef TypeParam R;
  for (const int stride : {1, 2, 5})
    for (const auto& pattern : patterns<R>())
      for (const int n : {1, 2, 7, 8, 40, 400}) {
        SCOPED_TRACE(std::string(pattern.name) + ", n = " + std::to_string(n));
        const int length = (n - 1) * stride + 1;
        R* const a = this->pages.template at_end<R>(length);
        Values<R> v(n), got(n);
        for (int i = 0; i < length; ++i) a[i] = R(-1234 - i);
        for (int i = 0; i < n; ++i) a[i * stride] = v[i] = pattern.value(i, n);
        Api<R>::sort_step(n, a, stride);
        for (int i = 0; i < length; ++i)
          if (i % stride != 0) {
            ASSERT_EQ(a[i], R(-1234 - i));
          }
        for (int i = 0; i < n; ++i) got[i] = a[i * stride];
        EXPECT_TRUE(std::is_sorted(got.begin(), got.end()));
        EXPECT_EQ(images(got), images(v));
      }
}

TYPED_TEST(Sorting, MapSortKeepsEachValueWithItsKey) {
  typedef TypeParam R;
  this->each([&](const Values<R>& v, R* keys, int n) {
    R* const values = this->more.template at_start<R>();
    std::iota(values, values + n, R(0));
    Api<R>::sort_map(n, keys, values);
    EXPECT_TRUE(std::is_sorted(keys, keys + n));
    std::vector<bool> seen(n);
    for (int i = 0; i < n; ++i) {
      const int from = int(values[i]);
      ASSERT_EQ(bits(v[from]), bits(keys[i]));
      ASSERT_FALSE(seen[from]);
      seen[from] = true;
    }
  });
}

TYPED_TEST(Sorting, SelectionSplitsAtTheAnswer) {
  typedef TypeParam R;
  this->each([](const Values<R>& v, R* a, int n) {
    Values<R> sorted = v;
    std::sort(sorted.begin(), sorted.end());
    const int step = n <= 16 ? 1 : n / 7;
    for (int k = 0; k < n; k += step) {
      // Repeated on what the last selection left, as the two neighbours of a quantile are.
      const R got = Api<R>::select(n, a, k);
      ASSERT_EQ(got, sorted[k]) << k;
      ASSERT_EQ(bits(got), bits(a[k]));
      ASSERT_LE(*std::max_element(a, a + k + 1), got);
      ASSERT_GE(*std::min_element(a + k, a + n), got);
    }
    EXPECT_EQ(images(Values<R>(a, a + n)), images(v));
  });
}

// Keys whose order is made up while they are compared, so that every pivot turns out to be one of
// the least (M. D. McIlroy, "A killer adversary for quicksort", 1999).
struct Adversary {
  static constexpr int kOpen = INT_MAX;
  std::vector<int> rank;
  int next = 0, candidate = 0;
  int64_t comparisons = 0;
  int fix(int id) { return rank[id] == kOpen ? rank[id] = next++ : rank[id]; }
  int compare(int x, int y) {
    ++comparisons;
    if (rank[x] == kOpen && rank[y] == kOpen) fix(x == candidate ? x : y);
    if (rank[x] == kOpen)
      candidate = x;
    else if (rank[y] == kOpen)
      candidate = y;
    return rank[x] < rank[y] ? -1 : rank[x] > rank[y];
  }
};
Adversary* adversary;
struct MadeUp {
  int id;
  bool operator<(MadeUp y) const { return adversary->compare(id, y.id) < 0; }
  bool operator>(MadeUp y) const { return adversary->compare(id, y.id) > 0; }
};
struct MadeUpSequence {
  struct Item {
    MadeUp key;
  };
  int* ids;
  MadeUp key(int i) const { return {ids[i]}; }
  uint32_t image(int i) const { return ++adversary->comparisons, adversary->fix(ids[i]); }
  Item load(int i) const { return {{ids[i]}}; }
  void store(int i, Item x) { ids[i] = x.key.id; }
};

TYPED_TEST(Sorting, SelectionHasABoundOnAnyInput) {
  typedef TypeParam R;
  for (const int n : {8, 40, 64, 65, 100, 300, 5003})
    for (const int k : {n / 2, n - 1, n / 10}) {
      SCOPED_TRACE(testing::Message() << n << " " << k);
      Adversary act;
      adversary = &act;
      act.rank.assign(n, Adversary::kOpen);
      Values<int> ids(n);
      std::iota(ids.begin(), ids.end(), 0);
      ork::select(MadeUpSequence{ids.data()}, n, k);
      EXPECT_LE(act.comparisons, 20 * n);
      // The same input for the library.
      for (int i = 0; i < n; ++i) act.fix(i);
      EXPECT_EQ(act.rank[ids[k]], k);
      R* const a = this->pages.template at_end<R>(n);
      for (int i = 0; i < n; ++i) a[i] = R(act.rank[i]) - R(n / 3);
      EXPECT_EQ(Api<R>::select(n, a, k), R(k) - R(n / 3));
      Values<R> left(a, a + n);
      EXPECT_LE(*std::max_element(a, a + k + 1), a[k]);
      EXPECT_GE(*std::min_element(a + k, a + n), a[k]);
      std::sort(left.begin(), left.end());
      for (int i = 0; i < n; ++i) ASSERT_EQ(left[i], R(i) - R(n / 3));
    }
}

TYPED_TEST(Sorting, QuicksortHasABoundOnAnyInput) {
  typedef TypeParam R;
  for (const int n : {40, 300, 5003}) {
    Adversary act;
    adversary = &act;
    act.rank.assign(n, Adversary::kOpen);
    Values<int> ids(n);
    std::iota(ids.begin(), ids.end(), 0);
    ork::quicksort(MadeUpSequence{ids.data()}, n);
    EXPECT_LE(act.comparisons, 5 * n * std::log2(n)) << n;
    for (int i = 0; i < n; ++i) EXPECT_EQ(act.fix(ids[i]), i);
    // The same input for the library, with companions.
    R* const a = this->pages.template at_end<R>(n);
    R* const b = this->more.template at_end<R>(n);
    for (int i = 0; i < n; ++i) a[i] = R(act.rank[i]), b[i] = -a[i];
    Api<R>::sort_map(n, a, b);
    for (int i = 0; i < n; ++i) ASSERT_TRUE(a[i] == R(i) && b[i] == R(-i));
  }
}

TYPED_TEST(Sorting, NaNsLoseNoValueAndLeaveNoArray) {
  typedef TypeParam R;
  for (const int one_in : {1, 2, 10})
    for (const int n : {2, 3, 8, 100, 300, 3000}) {
      Values<R> v(n);
      for (auto& x : v) x = generator() % one_in == 0 ? quiet_nan<R> : R(generator() % 100);
      for (R* a : {this->pages.template at_end<R>(n), this->pages.template at_start<R>()}) {
        std::copy(v.begin(), v.end(), a);
        Api<R>::select(n, a, n / 2);
        EXPECT_EQ(images(Values<R>(a, a + n)), images(v));
        std::copy(v.begin(), v.end(), a);
        Api<R>::sort(n, a);
        EXPECT_EQ(images(Values<R>(a, a + n)), images(v));
      }
    }
}

TEST(Blocks, CopyAndClearTouchWhatTheyAreGiven) {
  for (const int n : {-1, 0, 1, 3, 100}) {
    float from[102], to[102];
    int32_t words[102];
    uint8_t source[102], bytes[102], cleared[102];
    for (int i = 0; i < 102; ++i) from[i] = float(i), to[i] = words[i] = -1, source[i] = uint8_t(i);
    memset(bytes, 0xEE, sizeof bytes);
    memset(cleared, 0xEE, sizeof cleared);
    v8_opxsCopy_32f(from + 1, to + 1, n);
    v8_opxsZero_32s(words + 1, n);
    v8_ownsCopy_8u(source + 1, bytes + 1, n);
    v8_ownsZero_8u(cleared + 1, n);
    for (int i = 0; i < 102; ++i) {
      const bool inside = i >= 1 && i <= n;
      EXPECT_EQ(to[i], inside ? float(i) : -1);
      EXPECT_EQ(words[i], inside ? 0 : -1);
      EXPECT_EQ(bytes[i], inside ? i : 0xEE);
      EXPECT_EQ(cleared[i], inside ? 0 : 0xEE);
    }
  }
}

}  // namespace
