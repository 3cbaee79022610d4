// States that are a ring of 624 words, and their operations for skips by polynomials.
#pragma once
#include <string.h>

#include <algorithm>

#include "ork/rua_skip_ahead.h"
#include "rua_sub_kernel/service/stream.hpp"
#include "rua_sub_kernel/service/words.hpp"

namespace ork::rua {

constexpr uint32_t kRingWords = 624;

// What the generator's words begin with.
struct Ring {
  uint32_t w[kRingWords];
  int32_t index;  // of the oldest words; kRingWords counts as 0

  uint32_t oldest() const { return uint32_t(index) < kRingWords ? uint32_t(index) : 0; }
  // The words, oldest first.
  void unroll(uint32_t (&to)[kRingWords]) const {
    const uint32_t at = oldest();
    memcpy(to, w + at, (kRingWords - at) * 4);
    memcpy(to + (kRingWords - at), w, at * 4);
  }
};

// Step has kUnit, the words a step renews; step(words, at), which renews those at `at` in the ring
// that begins there; and round(words), as many steps from 0 as go round.
template <class Step>
struct RingOperations {
  static Ring& ring(RuaStream* s) { return state<Ring>(s); }

  static void zero(RuaStream* s) { memset(&ring(s), 0, sizeof(Ring)); }
  static void copy(RuaStream* s, const RuaStream* t) {
    memcpy(&ring(s), &state<Ring>(t), sizeof(Ring));
  }
  static void update(RuaStream* s) {
    const uint32_t at = ring(s).oldest();
    Step::step(ring(s).w, at);
    ring(s).index = at + Step::kUnit == kRingWords ? 0 : int32_t(at + Step::kUnit);
  }
  // Oldest words to oldest words.
  static void add(RuaStream* s, const RuaStream* t) {
    uint32_t* w = ring(s).w;
    const uint32_t* other = state<Ring>(t).w;
    uint32_t i = ring(s).oldest(), j = state<Ring>(t).oldest();
    for (uint32_t left = kRingWords; left != 0;) {
      const uint32_t run = std::min({kRingWords - i, kRingWords - j, left});
      uint32_t k = 0;
      for (; k + 4 <= run; k += 4)
        store4(w + i + k, _mm_xor_si128(load4(w + i + k), load4(other + j + k)));
      for (; k < run; ++k) w[i + k] ^= other[j + k];
      if ((i += run) == kRingWords) i = 0;
      if ((j += run) == kRingWords) j = 0;
      left -= run;
    }
  }
  // So many steps of a used-up block, without memory and without a power.
  static void advance(Ring& ring, uint64_t steps) {
    constexpr uint32_t kRound = kRingWords / Step::kUnit;
    for (uint64_t round = steps / kRound; round != 0; --round) Step::round(ring.w);
    const uint32_t rest = uint32_t(steps % kRound) * Step::kUnit;
    for (uint32_t at = 0; at != rest; at += Step::kUnit) Step::step(ring.w, at);
    std::rotate(ring.w, ring.w + rest, ring.w + kRingWords);
  }
};

// The characteristic polynomial of a step.
struct Characteristic {
  const int32_t* exponents;
  int32_t terms;
  int32_t degree() const { return exponents[terms - 1]; }
};

// Numbers up to which making the steps is quicker than a power.
constexpr int64_t kSteppedSkip = 1 << 20;

}  // namespace ork::rua
