#pragma once
// The special values of Pow and Powx, decided in this order by bits.
#include "base/image.hpp"
#include "ork/zem.h"

namespace ork {

// Of the double hi, lo (its two words): 0 no integer, 1 odd, 2 even. Infinities and NaNs are no
// integers.
ORK_INLINE int TestInt(uint32_t lo, uint32_t hi) {
  const uint64_t magnitude = ((uint64_t)hi << 32 | lo) & ~sign_bit<double>;
  const int exponent = (int)(magnitude >> 52);
  if (magnitude == 0) return 2;
  if (exponent == 0x7FF) return 0;
  if (exponent > 1023 + 52) return 2;
  if (exponent < 1023) return 0;
  const int fraction_bits = 1023 + 52 - exponent;
  const uint64_t mantissa = (magnitude & 0x000FFFFFFFFFFFFF) | 0x0010000000000000;
  if (mantissa & (((uint64_t)1 << fraction_bits) - 1)) return 0;
  return mantissa >> fraction_bits & 1 ? 1 : 2;
}

// general(|a|, b, negative): a finite and not 0, b finite and not 0; negative: of the result.
template <class T, class General>
ORK_INLINE int pow_special(const T* a, const T* b, T* r, General general) {
  const bits_of<T> x = magnitude(a), y = magnitude(b), inf = infinity_bits<T>;
  const bits_of<T> one = as<bits_of<T>>(T(1));
  const double wide = *b;
  const uint64_t wide_bits = as<uint64_t>(wide);
  const int integer = TestInt((uint32_t)wide_bits, (uint32_t)(wide_bits >> 32));
  const bool negative = sign(a) && integer == 1;
  const auto signed_result = [&](bits_of<T> v) { return as<T>(v | (negative ? sign_bit<T> : 0)); };
  int status = ZEM_STATUS_NONE;
  if (image(a) == one || y == 0 || (y < inf && *b == 0)) {  // also a denormal that counts as zero
    *r = 1;
  } else if (x > inf || y > inf) {
    *r = *a + *b;
  } else if (*a == 0) {
    *r = signed_result(0);
    if (sign(b)) {
      *r = 1 / *r;  // the pole raises its flag
      status = ZEM_STATUS_DOMAIN;
    }
  } else if (x == one && (y == inf || integer != 0)) {
    *r = signed_result(one);
  } else if (y == inf) {
    *r = (x > one) == !sign(b) ? as<T>(inf) : 0;
  } else if (x == inf) {
    *r = signed_result(sign(b) ? 0 : inf);
  } else if (sign(a) && integer == 0) {
    const bits_of<T> nan = domain_nan<T>;
    __builtin_memcpy(r, &nan, sizeof nan);
    status = ZEM_STATUS_DOMAIN;
  } else {
    *r = general(as<T>(x), *b, negative);
  }
  return status;
}

}  // namespace ork
