// Powers of t modulo a polynomial over GF(2) that is given by its exponents.
#pragma once
#include <emmintrin.h>

#include <cstdint>

namespace ork::rua {

// A polynomial of degree exponents[terms - 1], ascending. The second highest exponent is at least
// 512 below the degree, which lets reduction fold sixteen words at a time.
struct SparsePolynomial {
  const uint16_t* exponents;
  int32_t terms;
  constexpr int32_t degree() const { return exponents[terms - 1]; }
};

// t^n modulo phi, as bits: coefficient k in bit k % 32 of word k / 32. For degrees up to kDegree.
class PowerOfT {
 public:
  static constexpr int32_t kDegree = 19968;

  void compute(uint64_t n, const SparsePolynomial& phi);
  // Coefficients k to k + 3, k a multiple of 4.
  uint32_t four(int32_t k) const { return w_[k / 32] >> (k % 32) & 15; }

 private:
  static constexpr int32_t kWords = kDegree / 32 + 1, kFold = 16;

  void square(const SparsePolynomial& phi);
  void times_t(const SparsePolynomial& phi);
  void flip(int32_t k) { w_[k / 32] ^= 1u << (k % 32); }

  uint32_t w_[2 * kWords + 3 * kFold];  // the residue, and room for its square
};

}  // namespace ork::rua
