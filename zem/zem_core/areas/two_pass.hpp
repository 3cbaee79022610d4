#pragma once
// The frame of the HA inverse hyperbolics, double: blocks of 64 elements in two passes on the
// x87 unit. The first forms y, the argument of a logarithm, in extended precision, 16 bytes
// each; elements outside the fast range are finished there, and their entries flagged with
// all ones. The second takes the logarithms.
//
// A core supplies, beside name and special() of Core,
//   bool is_fast(uint64_t magnitude)          the fast range, by the bits of |x|
//   long double first(long double a)          y of |x|, 1 <= y < 2^1022
//   double last(long double ln_y)             |result|
#include "areas/log_rows.hpp"
#include "frame/kernel.hpp"
#include "ork/zem_kernels.h"

namespace ork {

struct TwoPassCore : Core<double> {
  static constexpr unsigned x87 = x87_extended;
};

struct alignas(16) Extended {
  long double y;
};

// The high half of y's mantissa, and its exponent: all ones where flagged.
ORK_INLINE uint32_t mantissa_of(const Extended& e) {
  uint32_t w;
  __builtin_memcpy(&w, (const char*)&e + 4, sizeof w);
  return w;
}
ORK_INLINE uint16_t exponent_of(const Extended& e) {
  uint16_t w;
  __builtin_memcpy(&w, (const char*)&e + 8, sizeof w);
  return w;
}

// ln y = k ln 2 + T_j + ln(1 + r), r = y 2^-k c_j - 1, 0 <= r < 2^-8 but for the rounding of c.
// p is frozen: ln(1 + r) by degree 6, off by at most 2^-69.1.
ORK_INLINE long double ln_extended(const Extended& e) {
  const double* const row = log_rows_d[mantissa_of(e) >> 23 & 0xFF];
  const int k = exponent_of(e) - 0x3FFF;
  // 2^-k by a vector shift: a scalar one goes through memory in halves, and the load stalls.
  const __m128i scale = _mm_slli_epi64(_mm_cvtsi32_si128(1023 - k), 52);
  const double c = row[2] * as<f64x2>(scale)[0];
  const long double r = e.y * c - 1.0L;
  const long double p =
      r * (-0.4999999999999955 +
           r * (0.33333333331983062 +
                r * (-0.24999998524219055 + r * (0.19999270610222492 + r * -0.16500333306925632))));
  return (k * 0.693147180559945309417232L + row[0]) + ((r + r * p) + row[1]);
}

template <class C>
ORK_INLINE void two_pass(int n, const double* a, double* r) {
  if (n <= 0) return;
  const Control<C> control;
  const C core{};
  const OperandsOf<C> o{{a}, {r}};
  Extended buffer[64];
  for (int start = 0; start < n; start += 64) {
    const int count = n - start < 64 ? n - start : 64;
    for (int i = 0; i < count; ++i) {
      uint64_t image;
      __builtin_memcpy(&image, a + start + i, sizeof image);
      if (__builtin_expect(C::is_fast(image), 1)) {
        buffer[i].y = C::first(__builtin_fabs(as<double>(image)));
      } else {
        __builtin_memset(buffer + i, 0xFF, sizeof buffer[i]);
        const double x = as<double>(image);
        special_element(core, o, start + i, &x, &x);
      }
    }
    for (int i = 0; i < count; ++i)
      if (__builtin_expect(exponent_of(buffer[i]) != 0xFFFF, 1)) {
        uint64_t image;
        __builtin_memcpy(&image, a + start + i, sizeof image);
        const uint64_t y = as<uint64_t>(C::last(ln_extended(buffer[i]))) | (image & 1ull << 63);
        __builtin_memcpy(r + start + i, &y, sizeof y);
      }
  }
}

}  // namespace ork
