// Output forms of generators that emit 32-bit words: the words themselves, or z t + a with
// t = (b - a) C, in double. A form takes one word, or a vector of four.
#pragma once
#include <emmintrin.h>

#include "ork/rua.h"

namespace ork::rua {

// z t + a for words z in the low halves of the 64-bit lanes, the high halves being 0: or-ed into
// the mantissa of 2^52, a word is that much above it.
struct Affine {
  __m128d t, a;

  Affine(double a_, double b, double step) : t(_mm_set1_pd((b - a_) * step)), a(_mm_set1_pd(a_)) {}
  __m128d operator()(__m128i z) const {
    const __m128d two52 = _mm_set1_pd(0x1p52);
    const __m128d exact = _mm_sub_pd(_mm_or_pd(_mm_castsi128_pd(z), two52), two52);
    return _mm_add_pd(_mm_mul_pd(exact, t), a);
  }
  __m128d low(__m128i words) const { return (*this)(_mm_unpacklo_epi32(words, __m128i{})); }
  __m128d high(__m128i words) const { return (*this)(_mm_unpackhi_epi32(words, __m128i{})); }
  __m128d one(uint32_t word) const { return (*this)(_mm_cvtsi32_si128(int32_t(word))); }
};

struct WordsAsIntegers {
  uint32_t* r;

  void put(uint32_t z) { *r++ = z; }
  void put4(__m128i z) {
    _mm_storeu_si128(reinterpret_cast<__m128i*>(r), z);
    r += 4;
  }
};

struct WordsAsDoubles {
  double* r;
  Affine real;

  WordsAsDoubles(double* r_, double a, double b, double step) : r(r_), real(a, b, step) {}
  void put(uint32_t z) { _mm_store_sd(r++, real.one(z)); }
  void put4(__m128i z) {
    _mm_storeu_pd(r, real.low(z));
    _mm_storeu_pd(r + 2, real.high(z));
    r += 4;
  }
};

// The two usual ranges, from 0 or -1 to 1, where 2^-32 z (b - a) + a is exact: a word goes into
// the mantissa of the number whose last place is one step, less that number and a.
struct WordsAsUnitDoubles {
  double* r;
  __m128d above, shift;

  WordsAsUnitDoubles(double* r_, double a)
      : r(r_), above(_mm_set1_pd((1 - a) * 0x1p20)), shift(_mm_set1_pd((1 - a) * 0x1p20 - a)) {}
  __m128d operator()(__m128i z) const {
    return _mm_sub_pd(_mm_or_pd(_mm_castsi128_pd(z), above), shift);
  }
  void put(uint32_t z) { _mm_store_sd(r++, (*this)(_mm_cvtsi32_si128(int32_t(z)))); }
  void put4(__m128i z) {
    _mm_storeu_pd(r, (*this)(_mm_unpacklo_epi32(z, __m128i{})));
    _mm_storeu_pd(r + 2, (*this)(_mm_unpackhi_epi32(z, __m128i{})));
    r += 4;
  }
};

struct WordsAsFloats {
  float* r;
  Affine real;

  WordsAsFloats(float* r_, double a, double b, double step) : r(r_), real(a, b, step) {}
  void put(uint32_t z) { _mm_store_ss(r++, _mm_cvtpd_ps(real.one(z))); }
  void put4(__m128i z) {
    _mm_storeu_ps(r, _mm_movelh_ps(_mm_cvtpd_ps(real.low(z)), _mm_cvtpd_ps(real.high(z))));
    r += 4;
  }
};

// The common case of 2^-32 z in single precision without the way through double: both halves of
// a word are exact, so their sum is the word rounded once, as above.
struct WordsAsUnitFloats {
  float* r;

  void put(uint32_t z) { _mm_store_ss(r++, unit(_mm_cvtsi32_si128(int32_t(z)))); }
  void put4(__m128i z) {
    _mm_storeu_ps(r, unit(z));
    r += 4;
  }
  static __m128 unit(__m128i z) {
    const __m128 high = _mm_cvtepi32_ps(_mm_srli_epi32(z, 16));
    const __m128 low = _mm_cvtepi32_ps(_mm_and_si128(z, _mm_set1_epi32(0xFFFF)));
    return _mm_add_ps(_mm_mul_ps(high, _mm_set1_ps(0x1p-16f)),
                      _mm_mul_ps(low, _mm_set1_ps(0x1p-32f)));
  }
};

// 2^-31 z - 1, from which Gaussians by the inverse distribution function start: the signed word
// z - 2^31 rounded once, as by the way through double.
struct WordsAsSymmetricFloats {
  float* r;

  void put(uint32_t z) { _mm_store_ss(r++, symmetric(_mm_cvtsi32_si128(int32_t(z)))); }
  void put4(__m128i z) {
    _mm_storeu_ps(r, symmetric(z));
    r += 4;
  }
  static __m128 symmetric(__m128i z) {
    const __m128i centred = _mm_xor_si128(z, _mm_set1_epi32(INT32_MIN));
    return _mm_mul_ps(_mm_cvtepi32_ps(centred), _mm_set1_ps(0x1p-31f));
  }
};

inline __m128i load4(const uint32_t* p) {
  return _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
}
inline void store4(uint32_t* p, __m128i v) { _mm_storeu_si128(reinterpret_cast<__m128i*>(p), v); }

}  // namespace ork::rua
