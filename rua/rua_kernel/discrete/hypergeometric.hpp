// What the methods of the hypergeometric distribution keep with a stream, and their set-ups.
#pragma once
#include "ork/rua.h"
#include "rua_kernel/discrete/ratios.hpp"

namespace ork::rua {

// Both halves of the lot and of the sample are exchanged so that the smaller ones are looked at:
// the number of n1 items among k drawn, n1 <= n2 and k <= l - k. Values run from 0 to most.
struct Lot {
  int32_t l, s, m;  // items, drawn, marked
  int32_t n1, n2, k;
  int32_t most, mode;

  Lot(int32_t l, int32_t s, int32_t m);
  // What a number of the smaller halves says of the marked items drawn: base + r or base - r.
  int32_t base() const;
  bool downward() const;
};

// Of the hat: level around the mode, exponential tails. All in single precision, as are the
// candidates, but for factorials.
struct HypergeometricHat {
  double factorials;         // ln of those in the denominator of f(mode)
  float xl, xr, p1, p2, p3;  // the level part's ends, areas up to each region
  float left, right;         // slopes of the tails
  Ratios<64> ratios;         // f(mode + k) / f(mode)
};

// Chunk 6: what the last call worked out, for its l, s and m.
struct KeptLot {
  static constexpr uint32_t kChunk = 6;

  int32_t l = -1, s = 0, m = 0;  // -1: none
  int32_t size = 0;              // of a table of sums
  char reserved[24] = {};

  bool is_of(const Lot& lot) const { return l == lot.l && s == lot.s && m == lot.m; }
};
struct KeptTable : KeptLot {
  double sums[2];  // as many as values, 2 or more
};
struct KeptHat : KeptLot {
  HypergeometricHat hat;
};
static_assert(sizeof(KeptTable) == 56 && sizeof(KeptHat) == 596);

HypergeometricHat hypergeometric_hat(const Lot& lot);
int32_t hypergeometric_by_hat(RuaStream* stream, int32_t n, int32_t* r, const Lot& lot,
                              const HypergeometricHat& hat);

}  // namespace ork::rua
