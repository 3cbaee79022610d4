#pragma once
// Choice of the tempering words of an MT2203 member.
//
// Criterion: at v = 1, 2, 4, 8 and 16 leading bits k(v) is at most 4 below floor(2203 / v), and
// the sum of the defects floor(2203 / v) - k(v) over v = 1 to 32 is at most 720. The sum can
// hardly be below 699; without tempering it is near 4600.
//
// Output bit v (1 the highest) is the first to depend on bit v of temperB, on bit v of temperC
// and, where that is set, on bit v + 15 of temperB. So the words are fixed from the top: for
// v = 1, 2, ... those bits take the first combination whose defect is no larger than kUsual[v],
// or else the one with the smallest. Set bits are tried first; when the result fails the
// criterion, the attempt is repeated with the combinations in another order.
#include <algorithm>
#include <unordered_map>

#include "equidistribution.hpp"

namespace mt2203 {

constexpr int kDefectLimit = 720, kPowerDefectLimit = 4;

// The largest defects of the three members whose parameters are frozen.
constexpr int kUsual[33] = {0,  0,  0,  29, 2,  29, 22, 37, 1,  37, 13, 59, 45, 31, 19, 8, 0,
                            59, 53, 46, 41, 35, 31, 26, 22, 19, 15, 12, 9,  6,  5,  3,  0};

inline uint32_t mix(uint32_t x) {
  x = (x ^ x >> 16) * 0x7FEB352Du;
  x = (x ^ x >> 15) * 0x846CA68Bu;
  return x ^ x >> 16;
}

inline int bound(int v) { return Equidistribution::kP / v; }

inline int total_defect(const std::array<int, 33>& k) {
  int sum = 0;
  for (int v = 1; v <= 32; ++v) sum += bound(v) - k[v];
  return sum;
}

inline bool well_distributed(const std::array<int, 33>& k) {
  for (int v = 1; v <= 16; v *= 2)
    if (bound(v) - k[v] > kPowerDefectLimit) return false;
  return total_defect(k) <= kDefectLimit;
}

class TemperingSearch {
 public:
  static constexpr uint32_t kMaskB = 0xFFFFFF80u, kMaskC = 0xFFFF8000u;  // bits that have a source

  static constexpr uint32_t kAttempts = 200;  // five times what is needed on average

  // The words for twist word a; temperC is 0 when no attempt met the criterion.
  Member find(uint32_t a) {
    for (auto& known : known_) known.clear();
    for (uint32_t attempt = 0; attempt < kAttempts; ++attempt) {
      Member m{a, 0, 0};
      if (!descend(m, attempt)) continue;
      trial_ = Equidistribution(m);
      if (well_distributed(trial_.profile())) return m;
    }
    return {a, 0, 0};
  }

 private:
  bool descend(Member& m, uint32_t attempt) {
    uint32_t fixed_b = 0;
    int sum = 0;
    for (int v = 1; v <= 25; ++v) {
      uint32_t bit = 0x80000000u >> (v - 1);
      uint32_t b = bit & kMaskB & ~fixed_b, c = bit & kMaskC,
               later_b = bit >> 15 & kMaskB & ~fixed_b;
      uint32_t order = attempt == 0 ? 7 : mix(m.a + 64 * attempt + v) & 7;
      Member best = m;
      int best_k = -1;
      for (uint32_t i = 0; i < 8 && best_k < bound(v) - kUsual[v]; ++i) {
        uint32_t choice = order ^ i;
        bool with_b = choice & 4, with_c = choice & 2, with_later = choice & 1;
        if ((with_b && !b) || (with_c && !c) || (with_later && !(with_c && later_b))) continue;
        Member trial = m;
        trial.b |= (with_b ? b : 0) | (with_later ? later_b : 0);
        trial.c |= with_c ? c : 0;
        int k = dimension(trial, v);
        if (k > best_k) best_k = k, best = trial;
      }
      m = best;
      fixed_b |= bit | (m.c & bit ? bit >> 15 : 0);
      int defect = bound(v) - best_k;
      sum += defect;
      bool power = (v & (v - 1)) == 0 && v <= 16;
      if (sum + least_rest(v) > kDefectLimit || (power && defect > kPowerDefectLimit)) return false;
    }
    return true;
  }

  // k(v), kept, as attempts have their beginnings in common.
  int dimension(const Member& m, int v) {
    auto [at, is_new] = known_[v].try_emplace(uint64_t{m.b} << 32 | m.c);
    if (is_new) {
      trial_ = Equidistribution(m);
      at->second = trial_.dimension(v);
    }
    return at->second;
  }

  // What the defects beyond v add at least: above v = 17 no member has k(v) over 69.
  static int least_rest(int v) {
    int rest = 0;
    for (int u = std::max(v, 17) + 1; u <= 31; ++u) rest += bound(u) - 69;
    return rest;
  }

  Equidistribution trial_{Member{}};
  std::unordered_map<uint64_t, int> known_[26];
};

}  // namespace mt2203
