// Chunks of a stream and the shared table of read-only data.
#include <atomic>
#include <thread>

#include "rua/stream_fixture.hpp"

namespace {

using Words = std::vector<uint32_t>;

class Chunks : public RuaTest {};

bool in_table(const uint32_t* key) {
  RuaSharedRow* row;
  const int32_t status = __ruaFindGlobRODataTableEntry(&row, key);
  EXPECT_TRUE(status == 0 || status == RUA_STATUS_NO_SHARED_ENTRY) << status;
  return status == 0;
}

uint32_t references(const uint32_t* key) {
  RuaSharedRow* row = nullptr;
  return __ruaFindGlobRODataTableEntry(&row, key) == 0 ? row->refCount : 0;
}

void* block(uint32_t word) {
  void* data = ork_serv_allocate(4, 128);
  memcpy(data, &word, 4);
  return data;
}

uint32_t word_of(RuaStream* s, uint32_t id) {
  const void* data = __ruaSearchChunk(s, id);
  return data ? *static_cast<const uint32_t*>(data) : 0;
}

TEST_F(Chunks, ListGrowsAtItsHead) {
  Stream s(RUA_BRNG_MCG31M1, {1});
  EXPECT_EQ(__ruaGetNumChunks(s), 0);
  EXPECT_EQ(__ruaSearchChunk(s, 1), nullptr);
  const uint32_t zero[4] = {};
  s.add_chunk(1, nullptr, {10});
  s.add_chunk(0xFFFFFFFF, zero, {11, 12});
  s.add_chunk(1, nullptr, {13});
  EXPECT_EQ(__ruaAddChunk(s, 4, nullptr, nullptr, 0), 0);
  EXPECT_EQ(__ruaGetNumChunks(s), 4);
  EXPECT_EQ(word_of(s, 1), 13u) << "the newest";
  EXPECT_EQ(word_of(s, 0xFFFFFFFF), 11u);
  EXPECT_EQ(__ruaSearchChunk(s, 4), nullptr);
  const RuaChunk* second = s->chunks->next->next;
  EXPECT_EQ(second->chunkId, 0xFFFFFFFF);
  EXPECT_EQ(second->size, 8u);
  EXPECT_EQ(memcmp(second->sharedId, zero, 16), 0);

  Stream copy;
  ASSERT_EQ(__ruaCopyStream(copy.slot(), s), 0);
  EXPECT_EQ(__ruaGetNumChunks(copy), 4);
  EXPECT_EQ(word_of(copy, 0xFFFFFFFF), 11u);
  EXPECT_NE(__ruaSearchChunk(copy, 0xFFFFFFFF), __ruaSearchChunk(s, 0xFFFFFFFF));
  EXPECT_EQ(__ruaDeleteChunks(s), 0);
  EXPECT_EQ(s->chunks, nullptr);
  EXPECT_EQ(word_of(copy, 0xFFFFFFFF), 11u);

  Stream empty(RUA_BRNG_MCG31M1, {1});
  EXPECT_EQ(__ruaCopyChunks(s, empty), 0);
  EXPECT_EQ(__ruaCopyChunks(s, copy), 0);
  EXPECT_EQ(__ruaGetNumChunks(s), 4);
}

TEST_F(Chunks, SharedDataLiveAsLongAsAChunk) {
  const uint32_t key[] = {0, 0, 0, 9};
  const int live = blocks::live();
  {
    Stream first(RUA_BRNG_MCG31M1, {1}), third(RUA_BRNG_MCG31M1, {1});
    first.add_chunk(9, key, {77});
    void* const data = __ruaSearchChunk(first, 9);
    EXPECT_EQ(references(key), 1u);
    {
      Stream second;
      ASSERT_EQ(__ruaCopyStream(second.slot(), first), 0);
      EXPECT_EQ(__ruaSearchChunk(second, 9), data);
      EXPECT_EQ(references(key), 2u);
      // A chunk with a live key takes the row's data; what it was given stays the caller's.
      void* mine = block(78);
      EXPECT_EQ(__ruaAddChunk(third, 9, key, mine, 4), 0);
      EXPECT_EQ(__ruaSearchChunk(third, 9), data);
      EXPECT_EQ(references(key), 3u);
      ork_serv_deallocate(mine);
    }
    EXPECT_EQ(references(key), 2u);
    __ruaDeleteChunks(first);
    EXPECT_EQ(word_of(third, 9), 77u);
    ASSERT_EQ(__ruaCopyStreamState(first, third), 0);
    EXPECT_EQ(__ruaSearchChunk(first, 9), data);
  }
  EXPECT_FALSE(in_table(key));
  EXPECT_EQ(blocks::live(), live);
}

TEST_F(Chunks, TableHasRoomFor127AndOneMore) {
  Stream s(RUA_BRNG_MCG31M1, {1}), late(RUA_BRNG_MCG31M1, {1});
  uint32_t key[4] = {5, 0, 0, 0};
  for (uint32_t i = 1; i <= 127; ++i) {
    key[1] = i;
    s.add_chunk(i, key, {i});
    ASSERT_TRUE(in_table(key)) << i;
  }
  key[1] = 1000;
  late.add_chunk(1000, key, {5});
  EXPECT_FALSE(in_table(key)) << "the chunk stays private";
  EXPECT_EQ(late->chunks->sharedId[0], 0u);
  EXPECT_EQ(late->chunks->sharedId[1], 0u);
  EXPECT_EQ(word_of(late, 1000), 5u);
  key[1] = 50;  // live keys go on being shared
  EXPECT_EQ(__ruaAddChunk(late, 50, key, nullptr, 4), 0);
  EXPECT_EQ(word_of(late, 50), 50u);
  EXPECT_EQ(references(key), 2u);

  RuaSharedRow* row = nullptr;
  const uint32_t last[] = {1, 1, 1, 1}, beyond[] = {2, 2, 2, 2}, zero[4] = {};
  EXPECT_EQ(__ruaCreateGlobRODataTableEntry(&row, zero, nullptr), RUA_STATUS_NO_SHARED_ENTRY);
  EXPECT_EQ(__ruaCreateGlobRODataTableEntry(&row, nullptr, nullptr), RUA_STATUS_NO_SHARED_ENTRY);
  void* data = block(128);
  ASSERT_EQ(__ruaCreateGlobRODataTableEntry(&row, last, data), 0);
  EXPECT_EQ(row->refCount, 1u);
  EXPECT_EQ(row->data, data);
  EXPECT_EQ(memcmp(row->sharedId, last, 16), 0);
  EXPECT_EQ(__ruaCreateGlobRODataTableEntry(&row, beyond, data), RUA_STATUS_SHARED_TABLE_FULL);
  RuaSharedRow* found = nullptr;
  EXPECT_EQ(__ruaFindGlobRODataTableEntry(&found, last), 0);
  EXPECT_EQ(found, row);

  // Rows stay findable when others go, the last one moving into the gap.
  EXPECT_EQ(__ruaUnregisterGlobRODataReference(beyond), 0);
  EXPECT_EQ(__ruaUnregisterGlobRODataReference(zero), 0);
  __ruaDeleteChunks(s);
  EXPECT_TRUE(in_table(last));
  for (uint32_t i = 1; i <= 127; ++i) {
    key[1] = i;
    EXPECT_EQ(in_table(key), i == 50) << i;
  }
  EXPECT_EQ(__ruaUnregisterGlobRODataReference(last), 0);
  EXPECT_FALSE(in_table(last));
}

TEST_F(Chunks, ReferencesByHand) {
  const uint32_t key[] = {1, 2, 3, 4};
  RuaChunk chunk = {7, 4, nullptr, nullptr, {}};
  RuaSharedRow* row = reinterpret_cast<RuaSharedRow*>(16);
  EXPECT_EQ(__ruaRegisterGlobRODataReference(&chunk, key), RUA_STATUS_NO_SHARED_ENTRY);
  EXPECT_EQ(__ruaFindGlobRODataTableEntry(&row, nullptr), RUA_STATUS_NO_SHARED_ENTRY);
  EXPECT_EQ(row, reinterpret_cast<RuaSharedRow*>(16));
  EXPECT_EQ(chunk.data, nullptr);
  void* data = block(3);
  ASSERT_EQ(__ruaCreateGlobRODataTableEntry(&row, key, data), 0);
  // Each word of a key counts.
  for (int word = 0; word < 4; ++word) {
    uint32_t other[4];
    memcpy(other, key, 16);
    other[word] ^= 0x80000000;
    EXPECT_FALSE(in_table(other)) << word;
  }
  EXPECT_EQ(__ruaRegisterGlobRODataReference(&chunk, key), 0);
  EXPECT_EQ(chunk.data, data);
  EXPECT_EQ(references(key), 2u);
  EXPECT_EQ(__ruaUnregisterGlobRODataReference(key), 0);
  EXPECT_EQ(references(key), 1u);
  EXPECT_EQ(__ruaUnregisterGlobRODataReference(key), 0);
  EXPECT_EQ(references(key), 0u);
}

TEST_F(Chunks, NewKeysAreNewAndTagged) {
  Stream s(RUA_BRNG_MCG31M1, {1});
  uint32_t key[4];
  for (int32_t tag : {0, 5, -5, INT32_MIN}) {
    const uint64_t before = ruatsRDTSC();
    EXPECT_EQ(__ruaGenerateNewGlobalRODataTableEntryId(key, tag), 0);
    const uint64_t time = uint64_t{key[1]} << 32 | key[0];
    EXPECT_GE(time, before);
    EXPECT_LE(time, ruatsRDTSC());
    EXPECT_EQ(key[2], uint32_t(tag));
    EXPECT_EQ(key[3], tag < 0 ? 0xFFFFFFFFu : 0u);
    EXPECT_FALSE(in_table(key));
    s.add_chunk(1, key, {1});
    EXPECT_TRUE(in_table(key));
  }
}

// Streams made, copied and deleted on several threads over a few keys, so that rows come and
// go under the others' eyes. Every payload read has to be that of its key.
TEST_F(Chunks, ThreadsShareTheTable) {
  constexpr int kThreads = 4, kKeys = 5, kRounds = 1500;
  std::atomic<int> wrong = 0;
  const auto work = [&](int thread) {
    for (int round = 0; round < kRounds; ++round) {
      const uint32_t tag = uint32_t(round * 7 + thread) % kKeys + 1;
      const uint32_t key[] = {tag, 0, 0, 0};
      RuaStream *s = nullptr, *copy = nullptr;
      wrong += __ruaNewStreamEx(&s, RUA_BRNG_MCG31M1, 0, nullptr) != 0;
      void* data = block(tag * 1000);
      wrong += __ruaAddChunk(s, 9, key, data, 4) != 0;
      if (s->chunks->data != data) ork_serv_deallocate(data);
      wrong += __ruaCopyStream(&copy, s) != 0;
      wrong += __ruaSearchChunk(copy, 9) != __ruaSearchChunk(s, 9);
      wrong += word_of(s, 9) != tag * 1000;
      __ruaDeleteStream(&s);
      wrong += word_of(copy, 9) != tag * 1000;
      __ruaDeleteStream(&copy);
    }
  };
  std::vector<std::thread> threads;
  for (int i = 0; i < kThreads; ++i) threads.emplace_back(work, i);
  for (std::thread& t : threads) t.join();
  EXPECT_EQ(wrong, 0);
  for (uint32_t tag = 1; tag <= kKeys; ++tag) EXPECT_FALSE(in_table(Words{tag, 0, 0, 0}.data()));
}

// References counted from several threads, while other rows come and go below and above.
TEST_F(Chunks, ThreadsLoseNoReference) {
  constexpr int kThreads = 3, kRounds = 200000;
  const uint32_t shared[] = {1, 0, 0, 0};
  RuaSharedRow* row;
  ASSERT_EQ(__ruaCreateGlobRODataTableEntry(&row, shared, block(1)), 0);
  std::atomic<int> wrong = 0;
  std::atomic<int> started = 0;
  const auto work = [&](uint32_t thread) {
    for (++started; started < kThreads;) std::this_thread::yield();
    RuaChunk chunk = {};
    RuaSharedRow* mine;
    for (int round = 0; round < kRounds; ++round) {
      const uint32_t own[] = {2, thread, 0, 0};
      wrong += __ruaRegisterGlobRODataReference(&chunk, shared) != 0;
      wrong += __ruaCreateGlobRODataTableEntry(&mine, own, nullptr) != 0;
      wrong += __ruaUnregisterGlobRODataReference(own) != 0;
    }
  };
  std::vector<std::thread> threads;
  for (uint32_t i = 0; i < kThreads; ++i) threads.emplace_back(work, i);
  for (std::thread& t : threads) t.join();
  EXPECT_EQ(wrong, 0);
  EXPECT_EQ(references(shared), 1u + kThreads * kRounds);
  for (int i = 0; i <= kThreads * kRounds; ++i) __ruaUnregisterGlobRODataReference(shared);
  EXPECT_FALSE(in_table(shared));
}

}  // namespace
