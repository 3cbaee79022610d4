// The square of a polynomial over GF(2) has the same coefficients at twice their places, and a
// modulus of few terms is divided out by folding: t^degree equals the sum of the lower terms. So
// binary powering takes no multiplication.
#include "rua_sub_kernel/skip_ahead/gf2_power.hpp"

#include <cstring>

#include "rua_sub_kernel/service/words.hpp"

namespace ork::rua {
namespace {

// The low 16 bits at the even places.
uint32_t spread(uint32_t v) {
  v = (v | v << 8) & 0x00FF00FF;
  v = (v | v << 4) & 0x0F0F0F0F;
  v = (v | v << 2) & 0x33333333;
  return (v | v << 1) & 0x55555555;
}

}  // namespace

void PowerOfT::compute(uint64_t n, const SparsePolynomial& phi) {
  std::memset(w_, 0, sizeof w_);
  int32_t rest = 0;  // bits of n that are still to come
  while (n >> rest >= uint32_t(phi.degree())) ++rest;
  flip(int32_t(n >> rest));
  while (rest-- > 0) {
    square(phi);
    if (n >> rest & 1) times_t(phi);
  }
}

void PowerOfT::square(const SparsePolynomial& phi) {
  const int32_t degree = phi.degree();
  for (int32_t i = degree / 32; i >= 0; --i) {
    const uint32_t v = w_[i];
    w_[2 * i] = spread(v & 0xFFFF);
    w_[2 * i + 1] = spread(v >> 16);
  }
  // From the top, kFold words at a time: what stands at bit `degree + base` and above is taken
  // out, and added at base + e for every other exponent e.
  alignas(16) uint32_t high[kFold + 8] = {};  // with zeros on both sides
  for (int32_t base = (degree / (32 * kFold) + 1) * 32 * kFold; base >= 0; base -= 32 * kFold) {
    const int32_t from = degree + base, shift = from % 32;
    uint32_t* at = w_ + from / 32;
    for (int32_t i = 0; i < kFold; ++i)
      high[4 + i] = uint32_t((uint64_t{at[i + 1]} << 32 | at[i]) >> shift);
    at[0] &= (1u << shift) - 1;
    std::memset(at + 1, 0, kFold * 4);
    for (int32_t k = 0; k < phi.terms - 1; ++k) {
      const uint32_t to = uint32_t(base) + phi.exponents[k];
      const __m128i left = _mm_cvtsi32_si128(int32_t(to % 32));
      const __m128i right = _mm_cvtsi32_si128(int32_t(32 - to % 32));  // 32 leaves nothing
      for (int32_t i = 0; i <= kFold; i += 4) {
        const __m128i v = _mm_xor_si128(_mm_sll_epi32(load4(high + 4 + i), left),
                                        _mm_srl_epi32(load4(high + 3 + i), right));
        store4(w_ + to / 32 + i, _mm_xor_si128(load4(w_ + to / 32 + i), v));
      }
    }
  }
}

void PowerOfT::times_t(const SparsePolynomial& phi) {
  const int32_t degree = phi.degree();
  for (int32_t i = degree / 32; i > 0; --i) w_[i] = w_[i] << 1 | w_[i - 1] >> 31;
  w_[0] <<= 1;
  if (w_[degree / 32] >> (degree % 32) & 1)
    for (int32_t k = 0; k < phi.terms; ++k) flip(phi.exponents[k]);
}

}  // namespace ork::rua
