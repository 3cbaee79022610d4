#pragma once
// Twist words of MT2203 members: words a whose characteristic polynomial is irreducible. About one
// candidate in 551 is. Each member looks among candidates of its own, in a fixed order.
#include <cstdint>
#include <vector>

#include "gf2_poly.hpp"
#include "tempering.hpp"

namespace mt2203 {

// A permutation of the 15-bit numbers.
inline uint32_t permute15(uint32_t x) {
  x = (x * 25173u + 13849u) & 0x7FFF;
  x ^= x >> 7;
  x = x * 20077u & 0x7FFF;
  return x ^ x >> 8;
}

// Divisibility by every irreducible polynomial of degree 2 to 16. As the characteristic polynomial
// is affine in the bits of a, a flipped bit changes all residues by a known row.
class Sieve {
 public:
  Sieve() {
    std::vector<bool> reducible(1u << 17);
    for (uint32_t g = 2; g < 1u << 17; ++g) {
      if (reducible[g]) continue;
      if (g >= 4) moduli_.push_back(g);
      for (uint32_t h = 2; degree(g) + degree(h) <= 16; ++h) reducible[product(g, h)] = true;
    }
    leading_.resize(moduli_.size());
    for (auto& row : bit_) row.resize(moduli_.size());
    for (size_t i = 0; i < moduli_.size(); ++i) fill(i);
  }

  void set(uint32_t a) {
    residue_ = leading_;
    for (int j = 0; j < kW; ++j)
      if (a >> j & 1) toggle(j);
  }

  void toggle(int j) {
    const uint16_t* row = bit_[j].data();
    uint16_t* r = residue_.data();
    for (size_t i = 0, n = residue_.size(); i < n; ++i) r[i] ^= row[i];
  }

  bool passes() const {
    int zeros = 0;
    for (uint16_t r : residue_) zeros += r == 0;
    return zeros == 0;
  }

 private:
  static int degree(uint32_t g) { return 31 - __builtin_clz(g); }

  static uint32_t product(uint32_t a, uint32_t b) {
    uint32_t p = 0;
    for (; b != 0; b >>= 1, a <<= 1)
      if (b & 1) p ^= a;
    return p;
  }

  static uint32_t product_mod(uint32_t a, uint32_t b, uint32_t g) {
    uint32_t p = 0;
    for (int d = degree(g); b != 0; b >>= 1) {
      if (b & 1) p ^= a;
      a <<= 1;
      if (a >> d & 1) a ^= g;
    }
    return p;
  }

  static uint32_t power_of_t(int e, uint32_t g) {
    uint32_t p = 1, t = 2;  // degree(g) is 2 or more
    for (; e != 0; e >>= 1, t = product_mod(t, t, g))
      if (e & 1) p = product_mod(p, t, g);
    return p;
  }

  // The recursion of Family, modulo one g.
  void fill(size_t i) {
    uint32_t g = moduli_[i], p = 1;
    uint32_t u = power_of_t(kN, g) ^ power_of_t(kM, g);
    uint32_t l = power_of_t(kN - 1, g) ^ power_of_t(kM - 1, g);
    for (int j = kW - 1; j >= 0; --j) {
      bit_[j][i] = static_cast<uint16_t>(p);
      p = product_mod(p, j >= kR ? u : l, g);
    }
    leading_[i] = static_cast<uint16_t>(p);
  }

  std::vector<uint32_t> moduli_;
  std::vector<uint16_t> leading_, residue_;
  std::array<std::vector<uint16_t>, kW> bit_;
};

// The irreducible candidates of one member, in order. Words for different members differ in bits
// 16 to 30, so that no two are equal; bit 31 makes the recurrence invertible, bit 0 keeps the
// lowest bit in play. Bits 1 to 15 run through a Gray code.
class TwistSearch {
 public:
  explicit TwistSearch(uint32_t member)
      : a_(0x80000001u | permute15(member) << 16 | (mix(member) & 0x7FFF) << 1) {}

  // The next word, or 0 when none is left.
  uint32_t next(const Family& family, Sieve& sieve) {
    for (sieve.set(a_); step_ < 1u << 15;) {
      uint32_t a = a_;
      bool found = sieve.passes() && irreducible(family.characteristic(a));
      int j = 1 + __builtin_ctz(++step_);
      a_ ^= 1u << j;
      sieve.toggle(j);
      if (found) return a;
    }
    return 0;
  }

 private:
  uint32_t a_, step_ = 0;
};

}  // namespace mt2203
