#pragma once
#include <utility>

#include "ork/rua.h"
#include "ork/serv.h"
#include "support/blocks.hpp"

inline RuaBrngProperties properties(int32_t brng) {
  RuaBrngProperties row{};
  EXPECT_EQ(__ruaGetBrngProperties(brng, &row), 0) << std::hex << brng;
  return row;
}

// A stream that is deleted at the end of its scope.
class Stream {
 public:
  Stream() = default;
  Stream(int32_t brng, const std::vector<uint32_t>& seed) {
    EXPECT_EQ(__ruaNewStreamEx(&stream_, brng, int(seed.size()), seed.data()), 0)
        << std::hex << brng;
  }
  Stream(Stream&& other) : stream_(std::exchange(other.stream_, nullptr)) {}
  ~Stream() { __ruaDeleteStream(&stream_); }

  operator RuaStream*() const { return stream_; }
  RuaStream* operator->() const { return stream_; }
  RuaStream** slot() { return &stream_; }
  template <class T>
  T* state() const {
    return reinterpret_cast<T*>(stream_ + 1);
  }

  std::vector<uint32_t> integers(int n) const {
    const RuaBrngProperties row = properties(stream_->brng);
    std::vector<uint32_t> r(size_t(n) * row.wordSize / 4);
    EXPECT_EQ(row.iGenerate(stream_, n, r.data()), 0);
    return r;
  }
  // Gives the stream a chunk of these words.
  void add_chunk(uint32_t id, const uint32_t* key, const std::vector<uint32_t>& words) const {
    void* data = ork_serv_allocate(words.size() * 4, 128);
    std::copy(words.begin(), words.end(), static_cast<uint32_t*>(data));
    EXPECT_EQ(__ruaAddChunk(stream_, id, key, data, words.size() * 4), 0);
    if (stream_->chunks->data != data) ork_serv_deallocate(data);  // live shared data instead
  }

 private:
  RuaStream* stream_ = nullptr;
};

// The bytes of a stream's head and generator words.
inline std::vector<uint8_t> record(const RuaStream* stream) {
  const auto* p = reinterpret_cast<const uint8_t*>(stream);
  return {p, p + properties(stream->brng).stateSize};
}

// A generator of every kind with a sequence of its own.
inline constexpr int32_t kSequences[] = {
    RUA_BRNG_MCG31M1, RUA_BRNG_R250, RUA_BRNG_MRG32K3A,      RUA_BRNG_MCG59,    RUA_BRNG_WH + 272,
    RUA_BRNG_MT19937, 276,           RUA_BRNG_MT2203 + 6023, RUA_BRNG_SFMT19937};

// Every block that a test got is gone at its end.
class RuaTest : public ::testing::Test {
 protected:
  void TearDown() override { EXPECT_EQ(blocks::live(), before_); }

 private:
  int before_ = blocks::live();
};
