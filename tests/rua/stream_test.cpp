// Registry and stream operations, over all generators.
#include "rua/stream_fixture.hpp"
#include "support/stack.hpp"

namespace {

class Registry : public RuaTest {};
class StreamOps : public RuaTest {};

TEST_F(Registry, HoldsFourteenGenerators) {
  const struct {
    int32_t id, state, seed, zero, word, bit;
    RuaInitStream init;
    RuaSGenerate s;
    RuaDGenerate d;
    RuaIGenerate i;
  } rows[] = {
#define FUNCTIONS(G) __ruaBRng##G##InitStream, __ruasBRng##G, __ruadBRng##G, __ruaiBRng##G
      {0x100000, 24, 1, 0, 4, 31, FUNCTIONS(MCG31M1)},
      {0x200000, 1024, 252, 1, 4, 32, FUNCTIONS(R250)},
      {0x300000, 40, 6, 1, 4, 32, FUNCTIONS(MRG32K3A)},
      {0x400000, 32, 1, 0, 8, 59, FUNCTIONS(MCG59)},
      {0x500000, 48, 4, 1, 16, 24, FUNCTIONS(WH)},
      {0x600000, 11648, 2604, 0, 4, 32, FUNCTIONS(Sobol)},
      {0x700000, 43280, 10498, 0, 4, 32, FUNCTIONS(Niederr)},
      {0x800000, 2516, 625, 1, 4, 32, FUNCTIONS(MT19937)},
      {0x900000, 308, 70, 1, 4, 32, FUNCTIONS(MT2203)},
      {0xA00000, 36, 0, 1, 4, 32, FUNCTIONS(iAbstract)},
      {0xB00000, 52, 0, 1, 4, 32, FUNCTIONS(dAbstract)},
      {0xC00000, 44, 0, 1, 4, 32, FUNCTIONS(sAbstract)},
      {0xD00000, 2536, 625, 1, 4, 32, FUNCTIONS(SFMT19937)},
      {0xE00000, 24, 1, 0, 4, 32, FUNCTIONS(TRNG)},
#undef FUNCTIONS
  };
  const int small[] = {0, 1, 2, 3, 4, 277, 278};
  int number = 0;
  for (const auto& row : rows) {
    std::vector<int32_t> ids = {row.id};
    if (number < 7) ids.push_back(small[number]);
    for (int32_t id : ids) {
      const RuaBrngProperties p = properties(id);
      EXPECT_EQ(p.stateSize, row.state) << id;
      EXPECT_EQ(p.seedWords, row.seed) << id;
      EXPECT_EQ(p.zeroFlag, row.zero) << id;
      EXPECT_EQ(p.wordSize, row.word) << id;
      EXPECT_EQ(p.bitCount, row.bit) << id;
      EXPECT_TRUE(p.initStream == row.init && p.sGenerate == row.s && p.dGenerate == row.d &&
                  p.iGenerate == row.i)
          << id;
    }
    ++number;
  }
  EXPECT_GE(__ruaGetNumRegBrngs(), 14);
}

TEST_F(Registry, ResolvesIds) {
  constexpr int32_t kOk = 0, kBad = RUA_STATUS_BAD_GENERATOR;
  const struct {
    int32_t id, row, offset, status;
  } cases[] = {
      {0, 0, 0, kOk},
      {3, 3, 0, kOk},
      {4, 4, 0, kOk},
      {276, 4, 272, kOk},
      {277, 277, 0, kOk},
      {278, 278, 0, kOk},
      {279, 279, 0, kBad},
      {511, 511, 0, kBad},
      {0xFFFFF, 0xFFFFF, 0, kBad},
      {0x100000, 0, 0, kOk},
      {0x100001, 0, 1, kBad},
      {0x500000 + 272, 4, 272, kOk},
      {0x500000 + 273, 4, 273, kBad},
      {0x900000 + 6023, 8, 6023, kOk},
      {0x900000 + 6024, 8, 6024, kBad},
      {0xE00000, 13, 0, kOk},
      {0x20100000, 512, 0, kBad},
      {0x7FFFFFFF, 2046, 0xFFFFF, kBad},
      {-1, -1, 0, kBad},
      {INT32_MIN, INT32_MIN, 0, kBad},
  };
  for (const auto& c : cases) {
    int32_t row = 99, offset = 99;
    RuaBrngProperties* table = __ruaGetBrngBaseOffset(c.id, &row, &offset);
    EXPECT_EQ(row, c.row) << c.id;
    EXPECT_EQ(offset, c.offset) << c.id;
    EXPECT_EQ(__ruaIsBrngValid(table, row, offset), c.status) << c.id;
    RuaBrngProperties p;
    memset(&p, 0x11, sizeof p);
    EXPECT_EQ(__ruaGetBrngProperties(c.id, &p), c.status) << c.id;
    RuaStream* stream = nullptr;
    if (c.status == kBad) {
      EXPECT_EQ(p.stateSize, 0x11111111);
      EXPECT_EQ(__ruaNewStreamEx(&stream, c.id, 0, nullptr), kBad) << c.id;
      EXPECT_EQ(stream, nullptr);
    }
  }
  RuaStream* untouched = reinterpret_cast<RuaStream*>(16);
  for (int32_t id : {0xA00000, 0xB00000, 0xC00000})
    EXPECT_EQ(__ruaNewStreamEx(&untouched, id, 0, nullptr), kBad);
  EXPECT_EQ(untouched, reinterpret_cast<RuaStream*>(16));
}

// A generator of a user: counts up by one.
struct Counter {
  uint32_t next;
};
Counter& counter(RuaStream* s) { return *reinterpret_cast<Counter*>(s + 1); }
int32_t counter_init(int32_t method, RuaStream* s, int32_t n, const uint32_t* params) {
  if (method == 0 && n < 0) return -3;
  if (method == 0) counter(s).next = n > 0 ? params[0] : 0;
  if (method == 1) counter(s).next += params[0] + 1000 * n;
  if (method == 2) counter(s).next += n == 2 ? params[0] + 7 * params[1] : 0;
  return method > 2 ? -2 : 0;
}
int32_t counter_s(RuaStream* s, int32_t n, float* r, float a, float b) {
  for (int i = 0; i < n; ++i) r[i] = a + (b - a) * counter(s).next++;
  return 0;
}
int32_t counter_d(RuaStream* s, int32_t n, double* r, double a, double b) {
  for (int i = 0; i < n; ++i) r[i] = a + (b - a) * counter(s).next++;
  return 0;
}
int32_t counter_i(RuaStream* s, int32_t n, void* r) {
  for (int i = 0; i < n; ++i) static_cast<uint32_t*>(r)[i] = counter(s).next++;
  return 0;
}

TEST_F(Registry, TakesUserGenerators) {
  // Faults are put right one by one, in the order in which they have to be found.
  RuaBrngProperties row = {-1, 0, 5, 5, 0, counter_init, counter_s, counter_d, counter_i};
  const int32_t before = __ruaGetNumRegBrngs();
  EXPECT_EQ(__ruaRegisterBrng(&row), RUA_STATUS_BAD_STATE_SIZE);
  row.stateSize = 20;
  for (int size : {5, 0, -4, 2, 32}) {
    row.wordSize = size;
    EXPECT_EQ(__ruaRegisterBrng(&row), RUA_STATUS_BAD_WORD_SIZE);
  }
  row.wordSize = 4;
  EXPECT_EQ(__ruaRegisterBrng(&row), RUA_STATUS_BAD_SEED_WORDS);
  row.seedWords = 1;
  EXPECT_EQ(__ruaRegisterBrng(&row), RUA_STATUS_BAD_BIT_COUNT);
  row.bitCount = 32;
  for (int word = 5; word < 9; ++word) {
    RuaBrngProperties hole = row;
    memset(reinterpret_cast<uint32_t*>(&hole) + word, 0, 4);
    EXPECT_EQ(__ruaRegisterBrng(&hole), RUA_STATUS_NULL_POINTER) << word;
  }
  EXPECT_EQ(__ruaGetNumRegBrngs(), before);
  EXPECT_EQ(__ruaGetBrngProperties(before * 0x100000 + 0x100000, &row), RUA_STATUS_BAD_GENERATOR);

  const int32_t id = __ruaRegisterBrng(&row);
  ASSERT_EQ(id, before * 0x100000 + 0x100000);
  EXPECT_EQ(__ruaGetNumRegBrngs(), before + 1);
  const RuaBrngProperties got = properties(id);
  EXPECT_EQ(memcmp(&got, &row, sizeof row), 0);
  EXPECT_EQ(__ruaGetBrngProperties(id + 1, &row), RUA_STATUS_BAD_GENERATOR);

  Stream s(id, {10});
  EXPECT_EQ(s.integers(3), (std::vector<uint32_t>{10, 11, 12}));
  EXPECT_EQ(__ruaLeapfrogStream(s, 7, 2), 0);  // 13 + 7 + 2000
  EXPECT_EQ(__ruaSkipAheadStream(s, (int64_t{3} << 32) + 5), 0);
  EXPECT_EQ(s.integers(1)[0], 2020u + 5 + 21);
  RuaStream* copy = nullptr;
  ASSERT_EQ(__ruaCopyStream(&copy, s), 0);
  EXPECT_EQ(counter(copy).next, 2047u);
  __ruaDeleteStream(&copy);

  // A failing init leaves its record for the caller.
  RuaStream* failed = nullptr;
  EXPECT_EQ(__ruaNewStreamEx(&failed, id, -1, nullptr), -3);
  ASSERT_NE(failed, nullptr);
  EXPECT_EQ(failed->brng, id);
  __ruaDeleteStream(&failed);
  EXPECT_EQ(failed, nullptr);

  // A state beyond what the image's field of 16 bits can tell.
  row.stateSize = 16 + 70000;
  Stream large(__ruaRegisterBrng(&row), {3}), back;
  memset(large.state<char>() + 4, 7, 70000 - 4);
  std::vector<uint8_t> image(__ruaGetStreamSize(large));
  EXPECT_EQ(image.size(), 70016u);
  EXPECT_EQ(__ruaSaveStreamM(large, image.data()), 0);
  ASSERT_EQ(__ruaLoadStreamM(back.slot(), image.data()), 0);
  EXPECT_EQ(record(back), record(large));

  // A row may claim no more than a head, or less, or more seed words than it has state.
  for (int32_t size : {0, 15, 16, 20}) {
    row.stateSize = size;
    row.seedWords = 1 << 28;
    row.wordSize = 16;
    const int32_t small = __ruaRegisterBrng(&row);
    ASSERT_GT(small, 0);
    RuaStream *a = nullptr, *b = nullptr;
    int32_t place, offset;
    RuaBrngProperties* table = __ruaGetBrngBaseOffset(small, &place, &offset);
    ASSERT_EQ(__ruaAllocateStream(&a, table, small, place, offset), 0);
    ASSERT_EQ(__ruaCopyStream(&b, a), 0);
    EXPECT_EQ(__ruaCopyStreamState(b, a), 0);
    EXPECT_EQ(__ruaGetStreamSize(a), std::max(size, 16));
    EXPECT_EQ(b->brng, small);
    __ruaDeleteStream(&a);
    __ruaDeleteStream(&b);
  }
}

void fill_registry() {
  const RuaBrngProperties row = {24, 1, 0, 4, 31, counter_init, counter_s, counter_d, counter_i};
  int32_t id = 0;
  while (__ruaGetNumRegBrngs() < 512) {
    const int32_t next = __ruaRegisterBrng(&row);
    if (id != 0 && next != id + 0x100000) _exit(1);
    id = next;
  }
  if (id != 0x20000000) _exit(2);
  if (__ruaRegisterBrng(&row) != RUA_STATUS_BAD_GENERATOR) _exit(3);
  if (__ruaGetNumRegBrngs() != 512) _exit(4);
  RuaBrngProperties bad = row;
  bad.bitCount = 0;
  if (__ruaRegisterBrng(&bad) != RUA_STATUS_BAD_BIT_COUNT) _exit(5);
  if (properties(0x20000000).stateSize != 24 || properties(0xE00000).seedWords != 1) _exit(6);
  _exit(0);
}

// In a process of its own, as rows stay.
TEST_F(Registry, RefusesTheRowBehindTheLast) {
  EXPECT_EXIT(fill_registry(), testing::ExitedWithCode(0), "");
}

TEST_F(StreamOps, RecordHasItsHead) {
  for (int32_t id : {0, 0x100000}) {
    Stream s(id, {3});
    EXPECT_EQ(reinterpret_cast<uintptr_t>((RuaStream*)s) % 128, 0u);
    const uint32_t head[] = {uint32_t(id), 1, 0, 0};
    EXPECT_EQ(memcmp(s, head, 16), 0);
    EXPECT_EQ(__ruaGetStreamStateBrng(s), id);
    EXPECT_EQ(s.integers(20), Stream(0x100000, {3}).integers(20));
  }
  RuaStream* none = nullptr;
  EXPECT_EQ(__ruaDeleteStream(&none), 0);
}

TEST_F(StreamOps, SequencesSplitAndCopy) {
  for (int32_t id : kSequences) {
    SCOPED_TRACE(testing::Message() << std::hex << id);
    const int words = properties(id).wordSize / 4;
    const auto all = Stream(id, {7, 8, 9}).integers(3000);
    for (int first : {1, 3, 8, 623, 624, 700, 1249}) {
      Stream s(id, {7, 8, 9});
      auto part = s.integers(first);
      Stream copy, state(id, {1});
      ASSERT_EQ(__ruaCopyStream(copy.slot(), s), 0);
      EXPECT_EQ(record(copy), record(s));
      const auto second = s.integers(1000);
      part.insert(part.end(), second.begin(), second.end());
      EXPECT_TRUE(std::equal(part.begin(), part.end(), all.begin())) << first;
      EXPECT_EQ(copy.integers(1000), second) << first;
      ASSERT_EQ(__ruaCopyStreamState(state, copy), 0);
      if (id != RUA_BRNG_SFMT19937) {  // whose opened block is not part of the seed state
        EXPECT_EQ(state.integers(10), copy.integers(10)) << first;
      }
    }
    EXPECT_EQ(all.size(), size_t(3000 * words));
  }
}

// The position is copied and the multiplier that leapfrog set stays, where the seed state is
// one word; otherwise the whole state is copied.
TEST_F(StreamOps, CopyStateCopiesTheSeedState) {
  for (int32_t id : {0x100000, 0x400000, 0x500005}) {
    Stream from(id, {11, 12, 13, 14}), to(id, {21});
    ASSERT_EQ(__ruaLeapfrogStream(from, 1, 3), 0);
    to.add_chunk(5, nullptr, {1});
    from.add_chunk(6, nullptr, {2, 3});
    auto expected = record(to);
    const auto source = record(from);
    const RuaBrngProperties row = properties(id);
    const int bytes = std::min(row.seedWords * row.wordSize, row.stateSize - 16);
    std::copy_n(source.begin() + 16, bytes, expected.begin() + 16);
    ASSERT_EQ(__ruaCopyStreamState(to, from), 0);
    auto got = record(to);
    std::fill_n(got.begin() + 8, 4, 0);
    std::fill_n(expected.begin() + 8, 4, 0);
    EXPECT_EQ(got, expected) << std::hex << id;
    EXPECT_EQ(__ruaSearchChunk(to, 5), nullptr);
    ASSERT_NE(__ruaSearchChunk(to, 6), nullptr);
    EXPECT_EQ(static_cast<uint32_t*>(__ruaSearchChunk(to, 6))[1], 3u);
    EXPECT_EQ(__ruaCopyStreamState(from, from), 0);
    EXPECT_EQ(record(from), source);
  }
}

// Callers may bring a stack that is aligned to 4 bytes only.
TEST_F(StreamOps, StackMayBeMisaligned) {
  for (int32_t id : kSequences) {
    const RuaBrngProperties row = properties(id);
    Stream s(id, {5});
    double r[100], expected[100];
    ASSERT_EQ(row.dGenerate(Stream(id, {5}), 100, expected, 0, 1), 0);
    for (int shift : {0, 4, 8, 12}) {
      ASSERT_EQ(row.initStream(0, s, 1, std::vector<uint32_t>{5}.data()), 0);
      ASSERT_EQ(call_shifted(shift, row.dGenerate, (RuaStream*)s, 100, r, 0, 1), 0);
      ASSERT_EQ(memcmp(r, expected, sizeof r), 0) << std::hex << id << ' ' << shift;
    }
  }
}

TEST_F(StreamOps, FailingAllocationsLeaveNothing) {
  for (int32_t id : {RUA_BRNG_MCG31M1, RUA_BRNG_SFMT19937}) {
    const int allocations = blocks::fail_each([&] {
      RuaStream* s = reinterpret_cast<RuaStream*>(16);
      const int32_t status = __ruaNewStreamEx(&s, id, 0, nullptr);
      EXPECT_EQ(status, blocks::failed() ? RUA_STATUS_NO_MEMORY : 0);
      EXPECT_EQ(s == nullptr, blocks::failed());
      __ruaDeleteStream(&s);
    });
    EXPECT_EQ(allocations, 1);
  }
  const uint32_t key[] = {1, 2, 3, 4};
  Stream source(RUA_BRNG_MCG31M1, {5}), target(RUA_BRNG_MCG31M1, {6});
  source.add_chunk(1, nullptr, {1, 2, 3});
  source.add_chunk(2, key, {4, 5});
  source.add_chunk(3, nullptr, {6});
  const int live = blocks::live();
  // Record, three nodes, two payloads.
  EXPECT_EQ(blocks::fail_each([&] {
              RuaStream* copy = nullptr;
              const int32_t status = __ruaCopyStream(&copy, source);
              EXPECT_EQ(status, blocks::failed() ? RUA_STATUS_NO_MEMORY : 0);
              if (copy) {
                EXPECT_EQ(__ruaGetNumChunks(copy), blocks::failed() ? 0 : 3);
              }
              __ruaDeleteStream(&copy);
              EXPECT_EQ(blocks::live(), live);
            }),
            6);
  EXPECT_EQ(blocks::fail_each([&] {
              target.state<uint32_t>()[0] = 6;
              const int32_t status = __ruaCopyStreamState(target, source);
              EXPECT_EQ(status, blocks::failed() ? RUA_STATUS_NO_MEMORY : 0);
              EXPECT_EQ(__ruaGetNumChunks(target), blocks::failed() ? 0 : 3);
              EXPECT_EQ(target.state<uint32_t>()[0], 5u);
              __ruaDeleteChunks(target);
              EXPECT_EQ(blocks::live(), live);
            }),
            5);
  EXPECT_EQ(blocks::fail_each([&] {
              const int32_t status = __ruaAddChunk(target, 9, key, nullptr, 0);
              EXPECT_EQ(status, blocks::failed() ? RUA_STATUS_NO_MEMORY : 0);
              EXPECT_EQ(__ruaGetNumChunks(target), blocks::failed() ? 0 : 1);
              __ruaDeleteChunks(target);
            }),
            1);
  EXPECT_EQ(blocks::live(), live);
}

}  // namespace
