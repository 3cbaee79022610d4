// Images of streams, byte by byte, and every way in which saving and loading can fail.
#include <dlfcn.h>
#include <stdio.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>

#include "rua/stream_fixture.hpp"
#include "support/memory.hpp"

// The C library's file functions, of which the k-th call fails when a test says so.
namespace {
int fail_write, fail_read, fail_close;

bool fails(int& countdown) { return countdown > 0 && --countdown == 0; }

template <class F>
F* real(F*, const char* name, const char* version) {
  return reinterpret_cast<F*>(dlvsym(RTLD_NEXT, name, version));
}
}  // namespace

extern "C" size_t fwrite(const void* data, size_t size, size_t n, FILE* file) {
  return fails(fail_write) ? 0 : real(fwrite, "fwrite", "GLIBC_2.0")(data, size, n, file);
}
extern "C" size_t fread(void* data, size_t size, size_t n, FILE* file) {
  return fails(fail_read) ? 0 : real(fread, "fread", "GLIBC_2.0")(data, size, n, file);
}
extern "C" int fclose(FILE* file) {
  const int result = real(fclose, "fclose", "GLIBC_2.1")(file);
  return fails(fail_close) ? EOF : result;
}

namespace {

using Bytes = std::vector<uint8_t>;
constexpr int32_t kUntouched = 12345;
const uint32_t kKey[] = {0x11111111, 0x22222222, 0x33333333, 0x44444444};
// Chunks that no reader of the library has.
constexpr uint32_t kWords = 0x107, kEmpty = 0x108, kShared = 0x109;

void append(Bytes& bytes, std::initializer_list<uint32_t> words) {
  for (uint32_t w : words)
    for (int i = 0; i < 4; ++i) bytes.push_back(uint8_t(w >> 8 * i));
}

class Image : public RuaTest {
 protected:
  ~Image() { unlink(file_.c_str()); }

  const std::string file_ = testing::TempDir() + "rua_image_" + std::to_string(getpid());

  static Bytes saved(RuaStream* s) {
    const int size = __ruaGetStreamSize(s);
    GuardedPages pages(size);
    uint8_t* at = pages.at_end<uint8_t>(size);
    EXPECT_EQ(__ruaSaveStreamM(s, at), 0);
    return Bytes(at, at + size);
  }
  Bytes saved_to_file(RuaStream* s) {
    EXPECT_EQ(__ruaSaveStreamF(s, file_.c_str(), -1), 0);
    std::ifstream in(file_, std::ios::binary);
    return Bytes(std::istreambuf_iterator<char>(in), {});
  }
  void put_file(const Bytes& bytes) {
    std::ofstream out(file_, std::ios::binary);
    out.write(reinterpret_cast<const char*>(bytes.data()), bytes.size());
  }
  // Loads from a file and from memory, where the image ends at an inaccessible page. On a
  // failure the stream must be null and nothing left behind.
  void expect_load(const Bytes& image, int32_t from_file, int32_t from_memory,
                   const Bytes* resaved = nullptr) {
    const int live = blocks::live();
    for (bool file : {true, false}) {
      const int32_t expected = file ? from_file : from_memory;
      if (expected == kUntouched) continue;
      GuardedPages pages(image.size());
      uint8_t* at = pages.at_end<uint8_t>(image.size());
      std::copy(image.begin(), image.end(), at);
      if (file) put_file(image);
      RuaStream* s = reinterpret_cast<RuaStream*>(16);
      const int32_t status =
          file ? __ruaLoadStreamF(&s, file_.c_str(), -1) : __ruaLoadStreamM(&s, at);
      EXPECT_EQ(status, expected) << (file ? "file" : "memory");
      EXPECT_EQ(s == nullptr, expected < 0);
      if (status == 0 && resaved) {
        EXPECT_EQ(saved(s), *resaved);
      }
      if (status == 0) __ruaDeleteStream(&s);
      EXPECT_EQ(blocks::live(), live) << (file ? "file" : "memory");
    }
  }
};

// MCG31M1 after one number, with two private chunks, one of them empty, and a shared one.
Stream example() {
  Stream s(RUA_BRNG_MCG31M1, {1});
  s.integers(1);
  s.add_chunk(kWords, nullptr, {0xAABBCCDD, 5});
  s.add_chunk(kShared, kKey, {0x01020304});
  s.add_chunk(kEmpty, nullptr, {});
  return s;
}
Bytes example_head(uint16_t chunks) {
  return {1, 'R', 'N', 'G', 16, 0, 8, 0, uint8_t(chunks), 0, 0, 0, 0, 0, 0x10, 0};
}

TEST_F(Image, HasTheseBytes) {
  Stream plain(RUA_BRNG_MCG31M1, {1});
  Bytes expected = example_head(0);
  append(expected, {1, 0x43806C20});
  EXPECT_EQ(saved(plain), expected);
  EXPECT_EQ(saved_to_file(plain), expected);
  EXPECT_EQ(__ruaGetStreamSize(plain), 24);

  Stream s = example();
  const auto before = record(s);
  expected = example_head(3);
  append(expected, {0x43806C20, 0x43806C20});
  append(expected, {kEmpty, 0, 0, 0, 0, 0});
  append(expected, {kShared, kKey[0], kKey[1], kKey[2], kKey[3], 4, 0x01020304});
  append(expected, {kWords, 0, 0, 0, 0, 8, 0xAABBCCDD, 5});
  EXPECT_EQ(saved(s), expected);
  EXPECT_EQ(saved_to_file(s), expected);
  EXPECT_EQ(__ruaGetStreamSize(s), int(expected.size()));
  EXPECT_EQ(record(s), before);
}

TEST_F(Image, LoadedStreamGoesOn) {
  for (int32_t id : kSequences) {
    SCOPED_TRACE(testing::Message() << std::hex << id);
    for (int drawn : {0, 1, 7, 300, 1001}) {
      Stream s(id, {3, 4, 5}), from_file, from_memory;
      if (drawn) s.integers(drawn);
      s.add_chunk(1, nullptr, {5, 6, 7});
      const Bytes image = saved_to_file(s);
      EXPECT_EQ(image, saved(s));
      ASSERT_EQ(__ruaLoadStreamF(from_file.slot(), file_.c_str(), -1), 0);
      ASSERT_EQ(__ruaLoadStreamM(from_memory.slot(), image.data()), 0);
      const auto next = s.integers(700);
      EXPECT_EQ(from_file->brng, id);
      EXPECT_EQ(from_file.integers(700), next);
      EXPECT_EQ(from_memory.integers(700), next);
      EXPECT_EQ(static_cast<uint32_t*>(__ruaSearchChunk(from_file, 1))[2], 7u);
    }
  }
}

TEST_F(Image, SharedChunksMeetTheLiveData) {
  Bytes image;
  const uint8_t* payload;
  {
    Stream s = example();
    image = saved(s);
    Stream again;
    ASSERT_EQ(__ruaLoadStreamM(again.slot(), image.data()), 0);
    EXPECT_EQ(__ruaSearchChunk(again, kShared), __ruaSearchChunk(s, kShared));
    EXPECT_NE(__ruaSearchChunk(again, kWords), __ruaSearchChunk(s, kWords));
    // Chunks come back in the opposite order.
    EXPECT_EQ(again->chunks->chunkId, kWords);
  }
  // Without live data the image makes the row, and a second load finds it.
  Stream first, second;
  ASSERT_EQ(__ruaLoadStreamM(first.slot(), image.data()), 0);
  ASSERT_EQ(__ruaLoadStreamM(second.slot(), image.data()), 0);
  payload = static_cast<uint8_t*>(__ruaSearchChunk(first, kShared));
  EXPECT_EQ(payload, __ruaSearchChunk(second, kShared));
  EXPECT_EQ(payload[3], 1);
}

TEST_F(Image, VersionsAndOrdersOfTheFirstWord) {
  const Bytes image = [] {
    Stream s = example();
    return saved(s);
  }();
  const Bytes plain(image.begin(), image.begin() + 24);
  const auto with_word = [](Bytes bytes, std::initializer_list<uint8_t> word, uint8_t chunks) {
    std::copy(word.begin(), word.end(), bytes.begin());
    bytes[8] = chunks;
    return bytes;
  };
  const Bytes none = with_word(plain, {1, 'R', 'N', 'G'}, 0);
  constexpr int32_t format = RUA_STATUS_BAD_FILE_FORMAT, memory = RUA_STATUS_BAD_MEMORY_FORMAT;
  constexpr int32_t version = RUA_STATUS_BAD_FILE_VERSION, read = RUA_STATUS_FILE_READ;
  const struct {
    std::initializer_list<uint8_t> word;
    int32_t file, memory;
  } words[] = {{{0, 'R', 'N', 'G'}, 0, 0},
               {{1, 'R', 'N', 'G'}, 0, 0},
               {{2, 'R', 'N', 'G'}, version, memory},
               {{255, 'R', 'N', 'G'}, version, memory},
               {{'R', 'N', 'G', 0}, 0, 0},
               {{'R', 'N', 'G', 1}, 0, 0},
               {{'R', 'N', 'G', 2}, version, memory},
               {{'R', 'N', 'G', 255}, version, memory},
               {{1, 'r', 'N', 'G'}, format, memory},
               {{1, 'R', 'N', 'H'}, format, memory},
               {{1, 'R', 'M', 'G'}, format, memory},
               {{'R', 'N', 1, 'G'}, format, memory},
               {{'G', 'N', 'R', 1}, format, memory},
               {{1, 'G', 'N', 'R'}, format, memory},
               {{0, 0, 0, 0}, format, memory},
               {{1, 0, 0, 0}, format, memory}};
  for (const auto& w : words) {
    SCOPED_TRACE(testing::PrintToString(Bytes(w.word)));
    expect_load(with_word(plain, w.word, 0), w.file, w.memory, &none);
  }
  // Chunks need the version in front: in the other order they cannot be read.
  for (uint8_t v : {0, 1}) expect_load(with_word(image, {'R', 'N', 'G', v}, 3), read, read);

  // Version 0 has no keys: all chunks are private.
  Bytes old = example_head(2);
  old[0] = 0;
  append(old, {0x43806C20, 0x43806C20});
  append(old, {kShared, 4, 0x01020304});
  append(old, {kWords, 0});
  Bytes modern = example_head(2);
  append(modern, {0x43806C20, 0x43806C20});
  append(modern, {kWords, 0, 0, 0, 0, 0});
  append(modern, {kShared, 0, 0, 0, 0, 4, 0x01020304});
  expect_load(old, 0, 0, &modern);
}

TEST_F(Image, EachHeaderFieldCounts) {
  Stream s(RUA_BRNG_MCG31M1, {1});
  const Bytes image = saved(s);
  constexpr int32_t format = RUA_STATUS_BAD_FILE_FORMAT, memory = RUA_STATUS_BAD_MEMORY_FORMAT;
  const struct {
    size_t offset, size;
    uint32_t value;
    int32_t file, memory;
  } edits[] = {{4, 2, 15, format, memory},
               {4, 2, 0, format, memory},
               {4, 2, 17, 0, 0},  // a longer head passes, and nothing is passed over
               {4, 2, 0xFFFF, 0, 0},
               {6, 2, 7, format, memory},
               {6, 2, 9, format, memory},
               {6, 2, 0x108, format, memory},
               {8, 2, 1, RUA_STATUS_FILE_READ, kUntouched},
               {8, 2, 0x100, RUA_STATUS_FILE_READ, kUntouched},
               {10, 2, 0xFFFF, 0, 0},
               {12, 4, 0, 0, 0},
               {12, 4, 1, format, memory},  // another generator, whose state has another size
               {12, 4, RUA_BRNG_NONDETERM, __ruaCPUisRDRAND() ? 0 : RUA_STATUS_NO_HARDWARE_RANDOM,
                __ruaCPUisRDRAND() ? 0 : RUA_STATUS_NO_HARDWARE_RANDOM},
               {12, 4, 0x100001, format, memory},
               {12, 4, 279, format, memory},
               {12, 4, 0xFFFFFFFF, format, memory},
               {12, 4, 0x7FFFFFFF, format, memory}};
  for (const auto& e : edits) {
    SCOPED_TRACE(testing::Message() << e.offset << ": " << e.value);
    Bytes bytes = image;
    memcpy(bytes.data() + e.offset, &e.value, e.size);
    expect_load(bytes, e.file, e.memory);
  }
}

TEST_F(Image, CutShortAtEveryByte) {
  for (int version : {0, 1}) {
    Bytes image;
    {
      Stream s = example();
      image = saved(s);
    }
    if (version == 0) {  // take the keys out
      image[0] = 0;
      for (size_t at : {24 + 4, 24 + 8 + 4, 24 + 8 + 12 + 4})
        image.erase(image.begin() + at, image.begin() + at + 16);
    }
    expect_load(image, 0, 0);
    for (size_t size = 0; size < image.size(); ++size) {
      SCOPED_TRACE(size);
      expect_load(Bytes(image.begin(), image.begin() + size), RUA_STATUS_FILE_READ, kUntouched);
    }
  }
}

TEST_F(Image, NamesWithAndWithoutLength) {
  Stream s(RUA_BRNG_MCG31M1, {9});
  const std::string longer = file_ + "zzz";
  for (int len : {int(file_.size()), -1, -100}) {
    unlink(file_.c_str());
    const char* name = len < 0 ? file_.c_str() : longer.c_str();
    ASSERT_EQ(__ruaSaveStreamF(s, name, len), 0);
    struct stat status;
    ASSERT_EQ(stat(file_.c_str(), &status), 0) << len;
    EXPECT_EQ(status.st_size, 24);
    EXPECT_NE(stat(longer.c_str(), &status), 0);
    Stream back;
    EXPECT_EQ(__ruaLoadStreamF(back.slot(), name, len), 0);
  }
  // A name that ends at the end of accessible memory.
  GuardedPages pages(file_.size());
  char* at = pages.at_end<char>(int(file_.size()));
  memcpy(at, file_.data(), file_.size());
  EXPECT_EQ(__ruaSaveStreamF(s, at, int(file_.size())), 0);

  RuaStream* t = reinterpret_cast<RuaStream*>(16);
  const std::string nowhere = file_ + "/no/such";
  EXPECT_EQ(__ruaSaveStreamF(s, nowhere.c_str(), -1), RUA_STATUS_FILE_OPEN);
  EXPECT_EQ(__ruaLoadStreamF(&t, nowhere.c_str(), int(nowhere.size())), RUA_STATUS_FILE_OPEN);
  EXPECT_EQ(t, nullptr);
  EXPECT_EQ(__ruaSaveStreamF(s, "", 0), RUA_STATUS_FILE_OPEN);
}

TEST_F(Image, FailingFileCalls) {
  Stream s = example();
  const Bytes image = saved_to_file(s);
  const auto before = record(s);
  // Head, state, and per chunk id, key, size and, unless empty, payload.
  constexpr int kCalls = 2 + 4 + 4 + 3;
  for (int k = 1; k <= kCalls + 1; ++k) {
    fail_write = k;
    EXPECT_EQ(__ruaSaveStreamF(s, file_.c_str(), -1), k <= kCalls ? RUA_STATUS_FILE_WRITE : 0) << k;
    EXPECT_EQ(fail_write, k <= kCalls ? 0 : 1);
    fail_write = 0;
  }
  EXPECT_EQ(record(s), before);
  put_file(image);
  const int live = blocks::live();
  for (int k = 1; k <= kCalls + 1; ++k) {
    RuaStream* t = reinterpret_cast<RuaStream*>(16);
    fail_read = k;
    EXPECT_EQ(__ruaLoadStreamF(&t, file_.c_str(), -1), k <= kCalls ? RUA_STATUS_FILE_READ : 0) << k;
    EXPECT_EQ(t == nullptr, k <= kCalls);
    fail_read = 0;
    __ruaDeleteStream(&t);
    EXPECT_EQ(blocks::live(), live);
  }
  // A failed close stands above everything else.
  for (int write : {0, 1}) {
    fail_write = write, fail_close = 1;
    EXPECT_EQ(__ruaSaveStreamF(s, file_.c_str(), -1), RUA_STATUS_FILE_CLOSE);
  }
  put_file(image);
  for (int read : {0, 3}) {
    RuaStream* t = reinterpret_cast<RuaStream*>(16);
    fail_read = read, fail_close = 1;
    EXPECT_EQ(__ruaLoadStreamF(&t, file_.c_str(), -1), RUA_STATUS_FILE_CLOSE);
    EXPECT_EQ(t, nullptr);
  }
  fail_read = fail_write = fail_close = 0;
  EXPECT_EQ(blocks::live(), live);
}

TEST_F(Image, FailingAllocations) {
  for (bool live_data : {false, true}) {
    Bytes image;
    Stream keeper;
    {
      Stream s = example();
      image = saved(s);
      if (live_data) {
        ASSERT_EQ(__ruaCopyStream(keeper.slot(), s), 0);
      }
    }
    put_file(image);
    const int live = blocks::live();
    const int name = int(file_.size());
    for (bool file : {true, false}) {
      const int allocations = blocks::fail_each([&] {
        RuaStream* t = reinterpret_cast<RuaStream*>(16);
        const int32_t status =
            file ? __ruaLoadStreamF(&t, file_.c_str(), name) : __ruaLoadStreamM(&t, image.data());
        EXPECT_EQ(status, blocks::failed() ? RUA_STATUS_NO_MEMORY : 0);
        EXPECT_EQ(t == nullptr, blocks::failed());
        __ruaDeleteStream(&t);
        EXPECT_EQ(blocks::live(), live);
      });
      EXPECT_EQ(allocations, (file ? 1 : 0) + 1 + 2 * 3);  // name, record, chunks and payloads
    }
    Stream s = example();
    EXPECT_EQ(blocks::fail_each([&] {
                const int32_t status = __ruaSaveStreamF(s, file_.c_str(), name);
                EXPECT_EQ(status, blocks::failed() ? RUA_STATUS_NO_MEMORY : 0);
              }),
              1);
  }
}

// A payload shorter than what the chunk's reader takes.
TEST_F(Image, ChunkTooSmall) {
  const struct {
    uint32_t id, least;
  } readers[] = {{1, 8}, {2, 16}, {3, 696}, {4, 1328}, {5, 544}, {6, 56}};
  for (const auto& r : readers)
    for (const uint32_t size : {0u, 4u, r.least - 4, r.least, r.least + 4}) {
      SCOPED_TRACE(testing::Message() << "chunk " << r.id << " of " << size);
      Bytes image = example_head(1);
      append(image, {1, 2});
      append(image, {r.id, 0, 0, 0, 0, size});
      image.resize(image.size() + size);
      const bool good = size >= r.least;
      expect_load(image, good ? 0 : RUA_STATUS_BAD_FILE_FORMAT,
                  good ? 0 : RUA_STATUS_BAD_MEMORY_FORMAT);
    }
}

// The live data's size stands, whatever the image or a caller says.
TEST_F(Image, LiveDataKeepTheirSize) {
  Stream s(RUA_BRNG_MCG31M1, {1});
  s.add_chunk(kShared, kKey, {10, 11, 12});
  const Bytes right = saved(s);
  for (uint32_t size : {0, 4, 400}) {
    Bytes image = example_head(1);
    append(image, {1, 0x43806C20});
    append(image, {kShared, kKey[0], kKey[1], kKey[2], kKey[3], size});
    image.resize(image.size() + size);
    expect_load(image, 0, 0, &right);
  }
  // Rows move down when one goes, and their sizes with them.
  const uint32_t early[] = {1, 0, 0, 0}, late[] = {2, 0, 0, 0};
  Stream first(RUA_BRNG_MCG31M1, {1}), second(RUA_BRNG_MCG31M1, {1});
  first.add_chunk(kShared, early, {1});
  second.add_chunk(kShared, late, {1, 2, 3, 4, 5});
  __ruaDeleteChunks(first);
  RuaChunk chunk = {};
  EXPECT_EQ(__ruaRegisterGlobRODataReference(&chunk, late), 0);
  EXPECT_EQ(chunk.size, 20u);
  EXPECT_EQ(__ruaUnregisterGlobRODataReference(late), 0);
}

// Payloads that a 32-bit process cannot get.
TEST_F(Image, ChunkTooLarge) {
  Bytes image = example_head(1);
  append(image, {1, 2});
  append(image, {kWords, 0, 0, 0, 0, 0xFFFFFFF0});
  expect_load(image, RUA_STATUS_NO_MEMORY, RUA_STATUS_NO_MEMORY);
}

}  // namespace
