// What the methods of the binomial distribution keep with a stream, and their set-ups. Both work
// with q = min(p, 1 - p).
#pragma once
#include "ork/rua.h"
#include "rua_kernel/discrete/ratios.hpp"

namespace ork::rua {

// Of the hat of four regions: parallelograms around the mode, exponential tails. All in single
// precision, as are the candidates.
struct BinomialHat {
  float n, npq, s, a;             // s = q / (1 - q), a = (n + 1) s: f(i) / f(i - 1) = a / i - s
  float mode, xm, xl, xr, p1, c;  // xm = mode + 1/2; half the width p1; the second region's height
  float p2, p3, p4;               // areas up to the second, third, fourth region
  float cut0, cut1, cut2;         // where each region ends, over p4
  float left, right;              // slopes of the tails
  float stirling;                 // of the mode's two factorials
  float near;                     // from the mode the ratios decide up to here
  Ratios<32> ratios;              // f(mode + k) / f(mode)
};

// Chunk 5: what the last call worked out.
struct KeptBinomial {
  static constexpr uint32_t kChunk = 5;
  static constexpr int32_t kSums = 29 + 32;  // ntrial q is below 30

  double p = 0;
  int32_t ntrial = -1;  // none yet
  int32_t reserved = 0;
  union {
    struct {
      double last;  // probability, that of the last sum
      double sums[kSums];
    } table = {};
    BinomialHat hat;
    char room[528];
  };
};
static_assert(sizeof(KeptBinomial) == 544);

BinomialHat binomial_hat(int32_t ntrial, double q, double other);
int32_t binomial_by_hat(RuaStream* stream, int32_t n, int32_t* r, const BinomialHat& hat);

}  // namespace ork::rua
