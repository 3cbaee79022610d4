// What a generator needs of the frame. The records, statuses and exported functions are in
// ork/rua.h; this adds the views that code inside the library uses.
//
// A generator is a directory with
//   - a state record: the words behind the 16 bytes of RuaStream, in image order, with
//     static_assert(sizeof(RuaStream) + sizeof(State) == its stateSize in registry.cpp);
//   - its four exported functions, marked ORK_EXPORT, declared in ork/rua.h, named in
//     registry.cpp; each begins with `State& s = state<State>(stream)`.
// The init function is a switch over Method; generate functions return RUA_STATUS_OK.
#pragma once
#include "base/export.hpp"
#include "ork/rua.h"

namespace ork::rua {

enum Method : int32_t { kSeed = 0, kLeapfrog = 1, kSkipAhead = 2 };

static_assert(sizeof(void*) == 4, "records and images are those of 32-bit code");
static_assert(sizeof(RuaStream) == 16);
static_assert(sizeof(RuaChunk) == 32);
static_assert(sizeof(RuaBrngProperties) == 36);
static_assert(sizeof(RuaSharedRow) == 24);

constexpr uint32_t kAlignment = 128;  // of every block

// The generator's own words.
template <class State>
inline State& state(RuaStream* stream) {
  return *reinterpret_cast<State*>(stream + 1);
}
template <class State>
inline const State& state(const RuaStream* stream) {
  return *reinterpret_cast<const State*>(stream + 1);
}

// The registry row of a live stream.
inline const RuaBrngProperties& properties(const RuaStream* stream) {
  int32_t row, offset;
  const RuaBrngProperties* table = __ruaGetBrngBaseOffset(stream->brng, &row, &offset);
  return table[row];
}

// The generator of a stream as its row among the built-in ones, from 0 for MCG31M1 to 13 for the
// non-deterministic one, whichever of its ids the stream has; 14 or more: a registered one.
int32_t built_in_row(const RuaStream* stream);

// Bytes of the generator's words. A registered row may claim less than the head.
inline uint32_t state_bytes(const RuaBrngProperties& row) {
  constexpr int32_t head = sizeof(RuaStream);
  return row.stateSize > head ? row.stateSize - head : 0;
}

// The number of the stream within its generator's family, 0 where there is no family.
inline int32_t family_member(const RuaStream* stream) {
  int32_t row, offset;
  __ruaGetBrngBaseOffset(stream->brng, &row, &offset);
  return offset;
}

// The count of a skip-ahead or the exponent of a power: two words, low first.
inline uint64_t join(uint32_t low, uint32_t high) { return uint64_t{high} << 32 | low; }

}  // namespace ork::rua

// The three generate functions of a generator, each the status of an expression in stream, n, r
// and, but for the integers, the interval's ends a and b. r of the integers is a uint32_t*.
#define ORK_GENERATE(name, floats, doubles, integers)                                             \
  ORK_EXPORT int32_t __ruasBRng##name(RuaStream* stream, int32_t n, float* r, float a, float b) { \
    return floats;                                                                                \
  }                                                                                               \
  ORK_EXPORT int32_t __ruadBRng##name(RuaStream* stream, int32_t n, double* r, double a,          \
                                      double b) {                                                 \
    return doubles;                                                                               \
  }                                                                                               \
  ORK_EXPORT int32_t __ruaiBRng##name(RuaStream* stream, int32_t n, void* words) {                \
    uint32_t* const r = static_cast<uint32_t*>(words);                                            \
    return integers;                                                                              \
  }
