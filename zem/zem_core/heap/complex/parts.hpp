#pragma once
// What the complex scalars share: arguments of two doubles, looked at by their bits, results of
// two extended numbers, which are rounded once when they are stored.
#include "base/image.hpp"
#include "heap/real/extended.hpp"
#include "ork/zem_complex_scalar.h"

namespace ork::complex_scalar {

using namespace ork::extended;

// One part of an argument: its value in 64 bits (a signalling NaN is quiet there) and its fields.
struct Part {
  long double value;
  uint64_t magnitude;
  bool negative;
  __attribute__((always_inline)) explicit Part(const double& x)
      : value(x), magnitude(ork::magnitude(&x)), negative(ork::sign(&x) != 0) {}

  __attribute__((always_inline)) int exponent() const { return (int)(magnitude >> 52); }
  __attribute__((always_inline)) bool nan() const { return magnitude > infinity_bits<double>; }
  __attribute__((always_inline)) bool infinite() const {
    return magnitude == infinity_bits<double>;
  }
  __attribute__((always_inline)) bool finite() const { return magnitude < infinity_bits<double>; }
  __attribute__((always_inline)) bool zero() const { return magnitude == 0; }
  __attribute__((always_inline)) bool denormal() const { return exponent() == 0 && !zero(); }
  __attribute__((always_inline)) bool ordinary() const { return finite() && !zero(); }
  __attribute__((always_inline)) bool below_one() const { return magnitude < 0x3FF0000000000000; }
  __attribute__((always_inline)) long double squared() const { return value * value; }
  // `size` with this part's sign.
  __attribute__((always_inline)) long double sign(long double size) const {
    return negative ? -size : size;
  }
};

struct Parts {
  long double re, im;
};

// What raises a flag although no part of the result comes from it.
ORK_INLINE void raise_underflow() {
  double x = 0x1p-1022;
  asm volatile("mulsd %0, %0" : "+x"(x));
}
ORK_INLINE void raise_inexact() {
  double x = 0x1.fffffffffffffp1023;
  asm volatile("subsd %1, %0" : "+x"(x) : "x"(0x1p-1022));
}
// The square of the largest double: infinity, overflow raised.
ORK_INLINE long double beyond_double() {
  double x = 0x1.fffffffffffffp1023;
  asm volatile("mulsd %0, %0" : "+x"(x));
  return x;
}

ORK_INLINE bool is_denormal(const double& x) {
  const uint64_t size = ork::magnitude(&x);
  return size != 0 && size < 0x0010000000000000;
}
ORK_INLINE double* store(double* r, Parts z) {
  r[0] = (double)z.re;
  r[1] = (double)z.im;
  return r;
}
// The same, with underflow for a denormal part.
ORK_INLINE double* store_flagged(double* r, Parts z) {
  store(r, z);
  if (__builtin_expect(is_denormal(r[0]) || is_denormal(r[1]), 0)) raise_underflow();
  return r;
}

// -x, but a NaN as it is.
ORK_INLINE double opposite(const double& x) {
  const uint64_t turned = ork::image(&x) ^ sign_bit<double>;
  return ork::magnitude(&x) > infinity_bits<double> ? x : as<double>(turned);
}

}  // namespace ork::complex_scalar
