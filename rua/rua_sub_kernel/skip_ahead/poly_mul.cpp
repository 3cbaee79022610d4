// Products of polynomials over GF(2) by size: Toom-Cook three-way with evaluation at whole words
// (M. Bodrato, "Towards optimal Toom-Cook multiplication for univariate and multivariate
// polynomials in characteristic 2 and 0", 2007; R. P. Brent et al., "Faster multiplication in
// GF(2)[x]", 2008), Karatsuba, schoolbook.
#include <string.h>

#include <algorithm>

#include "base/export.hpp"
#include "rua_sub_kernel/skip_ahead/polynomial.hpp"

using namespace ork::rua;

namespace {

constexpr int32_t kToomCook = 39;  // words from which three parts pay

void multiply_words(const uint64_t* a, const uint64_t* b, uint64_t* product) {
  const auto word = [](const uint64_t* p) {
    return _mm_loadl_epi64(reinterpret_cast<const __m128i*>(p));
  };
  _mm_storeu_si128(reinterpret_cast<__m128i*>(product), carry_less_product(word(a), word(b)));
}

// Karatsuba: a, b = low + high X^h, high being as long as low or a word shorter. `half` multiplies
// h words, `rest` the n - h of the high parts; `work` has room for 4 h words.
template <class Half, class Rest>
inline void karatsuba(const uint64_t* a, const uint64_t* b, int32_t n, uint64_t* product,
                      uint64_t* work, Half half, Rest rest) {
  const int32_t h = (n + 1) / 2, top = n - h;
  uint64_t *sum_a = work, *sum_b = work + h, *middle = work + 2 * h;
  memcpy(sum_a, a, size_t(h) * 8);
  memcpy(sum_b, b, size_t(h) * 8);
  add_words(sum_a, a + h, top);
  add_words(sum_b, b + h, top);
  half(a, b, product);
  rest(a + h, b + h, product + 2 * h);
  half(sum_a, sum_b, middle);
  add_words(middle, product, 2 * h);
  add_words(middle, product + 2 * h, 2 * top);
  add_words(product + h, middle, h + std::min(h, 2 * top));
}

// Sizes known to the compiler.
template <int N>
void multiply(const uint64_t* a, const uint64_t* b, uint64_t* product) {
  if constexpr (N == 1) {
    multiply_words(a, b, product);
  } else {
    constexpr int kHalf = (N + 1) / 2;
    uint64_t work[4 * kHalf];
    karatsuba(a, b, N, product, work, multiply<kHalf>, multiply<N - kHalf>);
  }
}

using Multiply = void(const uint64_t*, const uint64_t*, uint64_t*);
constexpr Multiply* kFixed[] = {multiply<1>,  multiply<2>,  multiply<3>,  multiply<4>,
                                multiply<5>,  multiply<6>,  multiply<7>,  multiply<8>,
                                multiply<9>,  multiply<10>, multiply<11>, multiply<12>,
                                multiply<13>, multiply<14>, multiply<15>, multiply<16>,
                                multiply<17>, multiply<18>, multiply<19>, multiply<20>};
constexpr int32_t kLargestFixed = sizeof kFixed / sizeof kFixed[0];

// Division by x^64 + 1, exact: the quotient's words are sums of the dividend's.
void divide_by_next_word(uint64_t* r, int32_t n) {
  for (int32_t i = 1; i < n; ++i) r[i] ^= r[i - 1];
}

// The parts' polynomial a0 + a1 y + a2 y^2 at 1 (k words), at X = x^64 and X + 1 (k + 2 words).
void evaluate(const uint64_t* a, int32_t k, int32_t top, uint64_t* at1, uint64_t* at_x,
              uint64_t* at_x1) {
  const uint64_t *a1 = a + k, *a2 = a + 2 * k;
  memcpy(at1, a1, size_t(k) * 8);
  add_words(at1, a2, top);
  memset(at_x, 0, size_t(k + 2) * 8);
  memcpy(at_x, a, size_t(k) * 8);
  add_words(at_x + 1, a1, k);
  add_words(at_x + 2, a2, top);
  memcpy(at_x1, at_x, size_t(k + 2) * 8);
  add_words(at_x1, at1, k);  // (X + 1)^2 = X^2 + 1
  add_words(at1, a, k);
}

}  // namespace

ORK_EXPORT __m128i _rua_polyrem_xor_si128(__m128i a, __m128i b) { return _mm_xor_si128(a, b); }

ORK_EXPORT __m128i _rua_polyrem_clmulepi64_si128(__m128i a, __m128i b) {
  return carry_less_product(a, b);
}

ORK_EXPORT void poly_mul_long(const uint64_t* a, int32_t wordsA, const uint64_t* b, int32_t wordsB,
                              uint64_t* product) {
  memset(product, 0, (size_t(wordsA) + size_t(wordsB)) * 8);
  for (int32_t i = 0; i < wordsA; ++i)
    for (int32_t j = 0; j < wordsB; ++j) {
      uint64_t part[2];
      multiply_words(a + i, b + j, part);
      add_words(product + i + j, part, 2);
    }
}

#define ORK_POLY_MUL_KAR(n)                                                                    \
  ORK_EXPORT void poly_mul_kar_n##n(const uint64_t* a, const uint64_t* b, uint64_t* product) { \
    multiply<n>(a, b, product);                                                                \
  }
ORK_POLY_MUL_KAR(2)
ORK_POLY_MUL_KAR(3)
ORK_POLY_MUL_KAR(4)
ORK_POLY_MUL_KAR(5)
ORK_POLY_MUL_KAR(6)
ORK_POLY_MUL_KAR(7)
ORK_POLY_MUL_KAR(9)
ORK_POLY_MUL_KAR(11)
ORK_POLY_MUL_KAR(13)
ORK_POLY_MUL_KAR(15)
ORK_POLY_MUL_KAR(17)
ORK_POLY_MUL_KAR(19)

ORK_EXPORT void poly_mul_kar(const uint64_t* a, const uint64_t* b, int32_t n, uint64_t* product,
                             uint64_t* work) {
  if (n < 1) return;
  if (n <= kLargestFixed) return kFixed[n - 1](a, b, product);
  const int32_t h = (n + 1) / 2;
  const auto part = [work, h](int32_t words) {
    return [=](const uint64_t* x, const uint64_t* y, uint64_t* to) {
      poly_mul_kar(x, y, words, to, work + 4 * h);
    };
  };
  karatsuba(a, b, n, product, work, part(h), part(n - h));
}

// Three parts of k words, the top one shorter. With v(y) = c0 + c1 y + ... + c4 y^4 the product of
// the parts' polynomials, v(X) + v(X + 1) + v(1) = c0 + c3 X (X + 1), and so on.
ORK_EXPORT void poly_mul_tc3(const uint64_t* a, const uint64_t* b, int32_t n, uint64_t* product,
                             uint64_t* work) {
  if (n < kToomCook) return poly_mul_kar(a, b, n, product, work);
  const int32_t k = (n + 2) / 3, top = n - 2 * k, whole = 2 * k, wide = 2 * k + 4;
  uint64_t* at = work;
  const auto take = [&at](int32_t words) {
    uint64_t* block = at;
    at += words;
    return block;
  };
  uint64_t *a1 = take(k), *ax = take(k + 2), *ax1 = take(k + 2);
  uint64_t *b1 = take(k), *bx = take(k + 2), *bx1 = take(k + 2);
  uint64_t *v1 = take(wide), *vx = take(wide), *vx1 = take(wide);
  evaluate(a, k, top, a1, ax, ax1);
  evaluate(b, k, top, b1, bx, bx1);
  uint64_t *c0 = product, *c4 = product + 4 * k;
  memset(product + whole, 0, size_t(whole) * 8);
  poly_mul_tc3(a, b, k, c0, at);
  poly_mul_tc3(a + whole, b + whole, top, c4, at);
  poly_mul_tc3(a1, b1, k, v1, at);
  poly_mul_tc3(ax, bx, k + 2, vx, at);
  poly_mul_tc3(ax1, bx1, k + 2, vx1, at);

  uint64_t* c3 = vx1 + 1;  // c3 = (v(X) + v(X + 1) + v(1) + c0) / (X (X + 1))
  add_words(vx1, vx, wide);
  add_words(vx1, v1, whole);
  add_words(vx1, c0, whole);
  divide_by_next_word(c3, wide - 1);
  uint64_t* sum = v1;  // c1 + c2 = v(1) + c0 + c3 + c4
  add_words(sum, c0, whole);
  add_words(sum, c3, whole);
  add_words(sum, c4, 2 * top);
  uint64_t* c2 = vx + 1;  // c1 + c2 X = (v(X) + c0 + c3 X^3 + c4 X^4) / X
  add_words(vx, c0, whole);
  add_words(vx + 3, c3, wide - 4);
  add_words(vx + 4, c4, 2 * top);
  add_words(c2, sum, whole);
  divide_by_next_word(c2, wide - 1);
  uint64_t* c1 = sum;
  add_words(c1, c2, whole);

  add_words(product + k, c1, whole);
  add_words(product + 2 * k, c2, whole);
  add_words(product + 3 * k, c3, k + top);  // its two summands are that long
}

ORK_EXPORT void poly_mul(const uint64_t* a, int32_t degreeA, const uint64_t* b, int32_t degreeB,
                         uint64_t* product, uint64_t* work) {
  int32_t wa = (degreeA + 64) >> 6, wb = (degreeB + 64) >> 6;
  if (wa < wb) {
    std::swap(a, b);
    std::swap(wa, wb);
  }
  poly_mul_tc3(a, b, wb, product, work);
  if (wa == wb) return;
  memset(product + 2 * wb, 0, size_t(wa - wb) * 8);
  poly_mul_long(a + wb, wa - wb, b, wb, work);
  add_words(product + wb, work, wa);
}
