// Skip-ahead of the generators whose state is a ring of 624 words and whose step is linear over
// GF(2): with phi the characteristic polynomial of the step F, F^n = g(F), g = t^n mod phi (H.
// Haramoto et al., "Efficient jump ahead for F2-linear random number generators", 2008).
#pragma once
#include <algorithm>
#include <cstring>

#include "ork/rua.h"
#include "ork/serv.h"
#include "rua_sub_kernel/service/stream.hpp"
#include "rua_sub_kernel/service/words.hpp"
#include "rua_sub_kernel/skip_ahead/gf2_power.hpp"

namespace ork::rua {

constexpr uint32_t kRingWords = 624;

// Step has kUnit, the words a step renews; step(words, at), which renews those at `at` in the ring
// that begins there; and round(words), as many steps from 0 as go round.
template <class Step>
struct Ring {
  uint32_t w[kRingWords];
  uint32_t at;  // the oldest words

  void step() {
    Step::step(w, at);
    at += Step::kUnit;
    if (at == kRingWords) at = 0;
  }
  // Adds a ring, oldest words to oldest words.
  void add(const Ring& t) {
    uint32_t i = at, j = t.at;
    for (uint32_t left = kRingWords; left != 0;) {
      const uint32_t run = std::min({kRingWords - i, kRingWords - j, left});
      uint32_t k = 0;
      for (; k + 4 <= run; k += 4)
        store4(w + i + k, _mm_xor_si128(load4(w + i + k), load4(t.w + j + k)));
      for (; k < run; ++k) w[i + k] ^= t.w[j + k];
      if ((i += run) == kRingWords) i = 0;
      if ((j += run) == kRingWords) j = 0;
      left -= run;
    }
  }
  // The words, oldest first.
  void unroll(uint32_t (&to)[kRingWords]) const {
    std::memcpy(to, w + at, (kRingWords - at) * 4);
    std::memcpy(to + (kRingWords - at), w, at * 4);
  }
};

template <class Step>
struct SkipAheadScratch {
  PowerOfT power;
  Ring<Step> sum, multiple[16];  // multiple[v]: v(F) state, bits of v as coefficients
};

template <class Step>
void make_steps(uint32_t (&block)[kRingWords], uint64_t steps) {
  constexpr uint32_t kRound = kRingWords / Step::kUnit;
  for (uint64_t round = steps / kRound; round != 0; --round) Step::round(block);
  Ring<Step> ring;
  std::memcpy(ring.w, block, sizeof block);
  ring.at = 0;
  for (uint32_t k = uint32_t(steps % kRound); k != 0; --k) ring.step();
  ring.unroll(block);
}

// Advances a block, oldest word first, by so many steps, and leaves it that way. NO_MEMORY: nothing
// has changed.
template <class Step>
int32_t skip_ahead(uint32_t (&block)[kRingWords], uint64_t steps, const SparsePolynomial& phi) {
  if (steps < uint64_t{1} << 20) {  // quicker than a power
    make_steps<Step>(block, steps);
    return RUA_STATUS_OK;
  }
  using Scratch = SkipAheadScratch<Step>;
  auto* s = static_cast<Scratch*>(ork_serv_allocate(sizeof(Scratch), kAlignment));
  if (s == nullptr) return RUA_STATUS_NO_MEMORY;
  // One step less than asked for, which is made at the end: it cleans the bits of the oldest word
  // that are not part of the state of MT19937, on which phi(F) is not 0.
  s->power.compute(steps - 1, phi);
  std::memset(s->multiple[0].w, 0, sizeof s->multiple[0].w);
  s->multiple[0].at = 0;
  for (uint32_t bit = 1; bit < 16; bit *= 2) {
    Ring<Step>& power = s->multiple[bit];
    if (bit == 1) {
      std::memcpy(power.w, block, sizeof block);
      power.at = 0;
    } else {
      power = s->multiple[bit / 2];
      power.step();
    }
    for (uint32_t v = 1; v < bit; ++v) {
      s->multiple[bit + v] = power;
      s->multiple[bit + v].add(s->multiple[v]);
    }
  }
  s->sum = s->multiple[0];
  for (int32_t k = phi.degree() & ~3; k >= 0; k -= 4) {
    for (int i = 0; i < 4; ++i) s->sum.step();
    if (const uint32_t v = s->power.four(k)) s->sum.add(s->multiple[v]);
  }
  s->sum.step();
  s->sum.unroll(block);
  ork_serv_deallocate(s);
  return RUA_STATUS_OK;
}

}  // namespace ork::rua
