#pragma once
// Sine of |x| + quarters * pi/2 for two large arguments: their product with the digits of 1/(2 pi)
// that matter (M. Payne, R. Hanek), in integers, then a row of a table of the quarter turn.
//
//   |x| = M 2^s 2^(8 g - 52), M 53 bits, s in 0..7; the row g holds 180 bits of the fraction of
//   2^(8 g - 52) / (2 pi) as digits of 30 bits; the product's fraction f has 120 of them right
//   f = q/4 + j/512 + f', |f'| <= 1/1024, z = 2 pi f', a = j pi/256
//   sine of a + z + q pi/2: sine and cosine of a change places for an odd q
//   sin z / z - 1 and cos z - 1, |z| <= pi/512: frozen, error 2^-61
// For 1 <= |x| < infinity; other lanes give no fault and no sense.
#include "trig/pi_kernel.hpp"

namespace ork::trig {

struct alignas(32) Digits {
  uint32_t d[8];
};
extern const Digits inverse_two_pi[128];
struct alignas(16) SineCosine {
  double sine, cosine;
};
extern const SineCosine rows_quadrant[128];

ORK_INLINE u64x2 multiply_even(u64x2 x, u64x2 y) {
  return (u64x2)_mm_mul_epu32((__m128i)x, (__m128i)y);
}

// A double from 52 bits below an exponent: 2^e + v * 2^(e - 52), exact.
template <int e>
ORK_INLINE f64x2 below(u64x2 v) {
  return as<f64x2>(v | splat_u64(uint64_t(1023 + e) << 52));
}

ORK_INLINE f64x2 large_sine(f64x2 ax, int quarters) {
  // M shifted by s, in two digits of 30 bits.
  const u64x2 image = as<u64x2>(ax);
  const u64x2 e = (image >> 52) - splat_u64(1023);
  const u64x2 significand =
      (image & splat_u64((uint64_t{1} << 52) - 1)) | splat_u64(uint64_t{1} << 52);
  const u64x2 shift = e & splat_u64(7);
  const __m128i m0 = _mm_sll_epi64((__m128i)significand, (__m128i)shift);
  const __m128i m1 =
      _mm_sll_epi64((__m128i)significand, _mm_unpackhi_epi64((__m128i)shift, (__m128i)shift));
  const u64x2 m = as<u64x2>(_mm_move_sd(as<f64x2>(m1), as<f64x2>(m0)));
  const u64x2 digit = splat_u64((1u << 30) - 1);
  const u64x2 low = m & digit, high = m >> 30;

  // Digits of both lanes' rows, in the even words.
  const u64x2 g = (e << 2) & splat_u64(127 << 5);
  const auto* base = reinterpret_cast<const char*>(inverse_two_pi);
  const auto* row0 = reinterpret_cast<const __m128i*>(base + _mm_cvtsi128_si32((__m128i)g));
  const auto* row1 = reinterpret_cast<const __m128i*>(base + _mm_extract_epi16((__m128i)g, 4));
  const __m128i a0 = _mm_load_si128(row0), a1 = _mm_load_si128(row1);
  const __m128i b0 = _mm_load_si128(row0 + 1), b1 = _mm_load_si128(row1 + 1);
  const u64x2 d01 = (u64x2)_mm_unpacklo_epi64(a0, a1), d23 = (u64x2)_mm_unpackhi_epi64(a0, a1),
              d45 = (u64x2)_mm_unpacklo_epi64(b0, b1);

  // Columns of the product from the last to the first; the bits above the point fall away.
  const u64x2 s4 = multiply_even(low, d45) + multiply_even(high, d45 >> 32);
  const u64x2 s3 = multiply_even(low, d23 >> 32) + multiply_even(high, d45) + (s4 >> 30);
  const u64x2 s2 = multiply_even(low, d23) + multiply_even(high, d23 >> 32) + (s3 >> 30);
  const u64x2 s1 = multiply_even(low, d01 >> 32) + multiply_even(high, d23) + (s2 >> 30);
  const u64x2 s0 = multiply_even(low, d01) + multiply_even(high, d01 >> 32) + (s1 >> 30);

  // 120 bits as 52, 52 and 16; the first rounded to a row and what remains, in -2^42..2^42.
  const u64x2 top = (((s0 & digit) << 22) | ((s1 & digit) >> 8)) +
                    splat_u64((uint64_t{1} << 42) + ((uint64_t)quarters << 50));
  const u64x2 middle = ((s1 & splat_u64(255)) << 44) | ((s2 & digit) << 14) | ((s3 & digit) >> 16);
  const u64x2 last = s3 & splat_u64(0xFFFF);
  const f64x2 f1 = below<0>(top & splat_u64((uint64_t{1} << 43) - 1)) - splat(0x1.004p0);
  const f64x2 f2 = below<-52>(middle) - splat(0x1p-52), f3 = below<-68>(last) - splat(0x1p-68);
  const f64x2 f = f1 + f2, rest = ((f1 - f) + f2) + f3;

  // z = 2 pi f: the head of f times the first part is exact.
  const f64x2 head = and_bits(f, splat_u64(~uint64_t{0} << 27)), tail = (f - head) + rest;
  const f64x2 z = head * splat(6.2831853032112122) +
                  (head * splat(3.9683743187221617e-09) + tail * splat(6.2831853071795862));

  const u64x2 j = (top >> 43) & splat_u64(127);
  f64x2 sine, cosine;
  gather_pairs(&rows_quadrant[_mm_cvtsi128_si32((__m128i)j)].sine,
               &rows_quadrant[_mm_extract_epi16((__m128i)j, 4)].sine, sine, cosine);
  const u64x2 q = top >> 50, odd = u64x2{} - (q & splat_u64(1));
  const u64x2 swap = (as<u64x2>(sine) ^ as<u64x2>(cosine)) & odd;
  const f64x2 s = xor_bits(sine, swap), c = xor_bits(cosine, swap);

  const f64x2 z2 = z * z, zc = flip(z, as<f64x2>(q << 63)) * c;
  const f64x2 s_poly = z2 * horner(z2, -0.1666666666665455, 0.0083333229326095146);
  const f64x2 c_poly = z2 * horner(z2, -0.5, 0.041666666666651524, -0.0013888875887985619);
  return flip(s + (zc + (c_poly * s + s_poly * zc)), as<f64x2>((q >> 1) << 63));
}

// `fast` with the lanes from a limit on replaced by `wide`; infinities and NaN are rare.
template <uint32_t limit>
ORK_INLINE f64x2 replace_large(f64x2 ax, f64x2 fast, f64x2 wide, u32x4& rare) {
  const i32x4 large = as<i32x4>(high_words(as<f64x2>(reaches<limit>(ax)))) >> 31;
  rare |= reaches<0x7FF00000>(ax);
  return select(large, wide, fast);
}

}  // namespace ork::trig
