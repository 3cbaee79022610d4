// What all generators have in common: the forms, the cuts between calls, the methods of init.
#include <random>

#include "rua/reference.hpp"
#include "support/memory.hpp"

namespace {

using reference::Generator;
using reference::Item;

class Generators : public RuaTest {};

const std::vector<std::vector<uint32_t>> kSeeds = {
    {}, {0}, {1}, {7777777}, {0, 0x8000000}, {0xFFFFFFFF, 0xFFFFFFFF, 5, 6, 7, 8, 9}};

std::vector<uint32_t> long_seed(int n) {
  std::vector<uint32_t> seed(n);
  std::minstd_rand random(n);
  for (auto& w : seed) w = random() * 2 + (random() & 1);
  return seed;
}

// Items of a stream, by one call of a form, against the recurrence. The array ends `gap` bytes
// before an inaccessible page; the item in front of it is to stay.
void expect_call(const Generator& g, RuaStream* stream, const std::vector<Item>& items, int form,
                 GuardedPages& pages, int gap) {
  const RuaBrngProperties row = properties(g.id);
  const int n = int(items.size());
  if (form == 0) {
    const int words = row.wordSize / 4;
    uint32_t* r = pages.at_end<uint32_t>(n * words, gap);
    r[-1] = 0xABCD;
    ASSERT_EQ(row.iGenerate(stream, n, r), 0);
    for (int i = 0; i < n; ++i)
      for (int w = 0; w < words; ++w) ASSERT_EQ(r[i * words + w], items[i][w]) << i << ' ' << w;
    ASSERT_EQ(r[-1], 0xABCDu);
    return;
  }
  // Some generators have ways of their own to the two usual ranges.
  constexpr float bounds[][2] = {{-0.1f, 1e7f}, {0, 1}, {-1, 1}};
  const auto [a, b] = bounds[n % 3];
  if (form == 1) {
    double* r = pages.at_end<double>(n, gap);
    r[-1] = 7;
    ASSERT_EQ(row.dGenerate(stream, n, r, a, b), 0);
    for (int i = 0; i < n; ++i) ASSERT_EQ(bits(r[i]), bits(g.real_double(items[i], a, b))) << i;
    ASSERT_EQ(r[-1], 7);
  } else {
    float* r = pages.at_end<float>(n, gap);
    r[-1] = 7;
    ASSERT_EQ(row.sGenerate(stream, n, r, a, b), 0);
    for (int i = 0; i < n; ++i) ASSERT_EQ(bits(r[i]), bits(g.real_float(items[i], a, b))) << i;
    ASSERT_EQ(r[-1], 7);
  }
}

std::vector<Item> take(reference::Source& source, int n) {
  std::vector<Item> items(n);
  for (Item& item : items) item = source();
  return items;
}

// Lengths around vectors, blocks and stretches, every offset of the array, all forms.
TEST_F(Generators, FormsFollowTheRecurrence) {
  GuardedPages pages(40000);
  std::vector<int> lengths = {59,  60,  61,  68,  69,  70,   72,   249,
                              250, 251, 623, 624, 625, 1024, 1250, 2051};
  for (int n = 1; n <= 20; ++n) lengths.push_back(n);
  for (const Generator& g : reference::generators())
    for (const auto& seed : kSeeds)
      for (int n : lengths) {
        auto source = g.source(seed);
        const auto items = take(source, n);
        for (int form = 0; form < 3; ++form) {
          SCOPED_TRACE(testing::Message() << g.name << ' ' << n << " form " << form);
          Stream s(g.id, seed);
          expect_call(g, s, items, form, pages, 4 * ((n + form) % 4));
          if (HasFatalFailure()) return;
        }
      }
}

// Calls of all sizes and forms, one after the other, in one stream.
TEST_F(Generators, SplitCallsGoOn) {
  GuardedPages pages(40000);
  std::minstd_rand random(5);
  for (const Generator& g : reference::generators()) {
    const auto seed = long_seed(3);
    auto source = g.source(seed);
    Stream s(g.id, seed);
    for (int call = 0; call < 400; ++call) {
      const int sizes[] = {1,  2,   3,   5,   7,   int(random() % 16 + 1),  int(random() % 300 + 1),
                           69, 147, 249, 250, 624, int(random() % 1300 + 1)};
      const int n = sizes[random() % std::size(sizes)], form = random() % 3;
      SCOPED_TRACE(testing::Message() << g.name << " call " << call << " of " << n);
      expect_call(g, s, take(source, n), form, pages, 0);
      if (HasFatalFailure()) return;
    }
  }
}

TEST_F(Generators, SeedsOfManyWordsCountInFull) {
  for (const Generator& g : reference::generators())
    for (int n : {6, 68, 69, 70, 249, 250, 251, 623, 624, 625, 1000}) {
      auto source = g.source(long_seed(n));
      Stream s(g.id, long_seed(n));
      const int words = properties(g.id).wordSize / 4;
      const auto got = s.integers(700);
      const auto items = take(source, 700);
      for (int i = 0; i < 700; ++i)
        for (int w = 0; w < words; ++w)
          ASSERT_EQ(got[i * words + w], items[i][w]) << g.name << ' ' << n << ' ' << i;
    }
}

TEST_F(Generators, MethodsThatDoNotExist) {
  const struct {
    int32_t id;
    int leapfrog, skip;
  } cases[] = {{RUA_BRNG_R250, -1002, -1003}, {RUA_BRNG_MRG32K3A, -1002, 0},
               {RUA_BRNG_MCG59, 0, 0},        {RUA_BRNG_WH + 5, 0, 0},
               {RUA_BRNG_MT19937, -1002, 0},  {RUA_BRNG_MT2203 + 5, -1002, -1003},
               {RUA_BRNG_SFMT19937, -1002, 0}};
  for (const auto& c : cases) {
    Stream s(c.id, {3});
    const auto before = record(s);
    EXPECT_EQ(__ruaLeapfrogStream(s, 0, 1), c.leapfrog) << std::hex << c.id;
    EXPECT_EQ(__ruaSkipAheadStream(s, 0), c.skip) << std::hex << c.id;
    const uint32_t params[2] = {};
    for (int method : {-1, 3, 1000})
      EXPECT_EQ(properties(c.id).initStream(method, s, 2, params), -2) << std::hex << c.id;
    EXPECT_EQ(record(s), before) << std::hex << c.id;
  }
}

// A state that nothing here made, as a damaged image would bring it, stays within its record.
TEST_F(Generators, PlacesOutsideTheStateAreHarmless) {
  const struct {
    int32_t id, words;  // the places begin behind so many words
    int places;
  } cases[] = {{RUA_BRNG_R250, 250, 2},
               {RUA_BRNG_MT19937, 624, 1},
               {RUA_BRNG_MT2203, 69, 1},
               {RUA_BRNG_SFMT19937, 624, 1},
               {RUA_BRNG_SFMT19937, 628, 2}};
  for (const auto& c : cases)
    for (int32_t bad : {-1, -1000000, 625, 1 << 30, 627})
      for (int which = 0; which < c.places; ++which) {
        Stream s(c.id, {3});
        s.state<int32_t>()[c.words + which] = bad;
        s.integers(5);
        s.integers(700);
        for (int i = 0; i < c.places; ++i) {
          EXPECT_GE(s.state<int32_t>()[c.words + i], 0);
          EXPECT_LE(s.state<int32_t>()[c.words + i], 624);
        }
      }
}

// Leapfrog and skip-ahead against numbers that were generated and thrown away.
TEST_F(Generators, LeapfrogAndSkipAheadCommuteWithGeneration) {
  std::vector<Generator> with_skip;
  for (const Generator& g : reference::generators())
    if (g.id == RUA_BRNG_MCG59 || g.id == RUA_BRNG_MRG32K3A || g.id == RUA_BRNG_WH)
      with_skip.push_back(g);
  ASSERT_EQ(with_skip.size(), 3u);
  for (const Generator& g : with_skip) {
    const size_t words = properties(g.id).wordSize / 4;
    Stream whole(g.id, {11, 12, 13, 14});
    const auto all = whole.integers(5000);
    const auto item = [&](int i) {
      return std::vector<uint32_t>(&all[i * words], &all[(i + 1) * words]);
    };
    for (int skip : {0, 1, 2, 3, 4, 59, 999, 4000}) {
      Stream s(g.id, {11, 12, 13, 14});
      s.integers(7);
      ASSERT_EQ(__ruaSkipAheadStream(s, skip), 0);
      for (int i = 0; i < 50; ++i)
        ASSERT_EQ(s.integers(1), item(7 + skip + i)) << g.name << ' ' << skip;
    }
    // Counts of 64 bits: by steps and at once.
    Stream once(g.id, {5}), steps(g.id, {5});
    ASSERT_EQ(__ruaSkipAheadStream(once, 0x7FFFFFFFFFFFFFFF), 0);
    for (int64_t part : {int64_t{0x4000000000000000}, int64_t{0x3FFFFFFFFFFFFFF0}, int64_t{15}})
      ASSERT_EQ(__ruaSkipAheadStream(steps, part), 0);
    EXPECT_EQ(record(once), record(steps)) << g.name;
    if (g.id == RUA_BRNG_MRG32K3A) continue;
    for (const auto& [k, count] : {std::pair{0, 1}, {0, 3}, {2, 3}, {6, 7}, {100, 101}}) {
      Stream s(g.id, {11, 12, 13, 14});
      ASSERT_EQ(__ruaLeapfrogStream(s, k, count), 0);
      const auto got = s.integers(45);  // by vectors of the new multiplier
      for (int i = 0; i < 45; ++i)
        ASSERT_EQ(std::vector<uint32_t>(&got[i * words], &got[(i + 1) * words]),
                  item(k + i * count))
            << g.name << ' ' << k << ' ' << count << ' ' << i;
    }
  }
}

}  // namespace
