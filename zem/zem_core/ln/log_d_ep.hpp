#pragma once
// Ln and Log10, double, EP: x = 2^k m, m_r = m rounded to 8 bits, u = (m - m_r)/m_r,
// log x = p(u) + (k log 2 + T), p of degree 2, |u| <= 2^-9. The term left out, u^3/3, is
// 2^-19.6 of the result next to 1, and below 2^-26 of it from |ln x| = 0.17 on.
// Fast range: positive normal numbers.
#include "frame/block.hpp"
#include "ork/zem_kernels.h"

namespace ork {

template <class Base> struct LogEpD : Core<double> {
  static constexpr const char* name = Base::name;

  static f64x2 eval(f64x2 x, u32x4& rare) {
    const u32x4 image = as<u32x4>(x);
    rare |= (u32x4)((i32x4)(image - 0x80100000) > -0x200001);
    // Row, rounded from 9 mantissa bits to 8, as a byte offset.
    const u32x4 index = ((image & u32x4{0, 0xFF800, 0, 0xFF800}) + u32x4{0, 0x800, 0, 0x800}) &
                        u32x4{0, 0x1FF000, 0, 0x1FF000};
    const u64x2 offset = as<u64x2>(index) >> 39;
    const char* const row0 = (const char*)Base::rows + as<u32x4>(offset)[0];
    const char* const row1 = (const char*)Base::rows + _mm_extract_epi16((__m128i)offset, 4);
    const f64x2 t = _mm_loadh_pd(_mm_load_sd((const double*)row0), (const double*)row1);
    const f64x2 c = _mm_loadh_pd(_mm_load_sd((const double*)row0 + 2), (const double*)row1 + 2);
    // The exponent field as a number: into the low word of 2^52.
    const f64x2 k = as<f64x2>((as<u64x2>(x) >> 52) | splat_u64(0x4330000000000000)) - (0x1p52 + 1023);
    const f64x2 m = or_bits(and_bits(x, splat_u64(0x000FFFFFFFFFFFFF)), splat_u64(0x3FF0000000000000));
    // Ones below the tie bit: a tie goes up, as in the row.
    const f64x2 m_r = or_bits(m, splat_u64(0x000003FF000003FF)) + 17592186044416.0 - 17592186044416.0;
    return Base::sum((m - m_r) * c, k * Base::log_2 + t);
  }
  // One element beyond the fast range, on the x87 unit: y log2 x with y = log 2.
  static int special(const double* a, double* out) {
    const uint64_t image = as<uint64_t>(*a), magnitude = image & ~0ull >> 1;
    double result;
    asm("fldt %2\n\tfldl %1\n\tfyl2x\n\tfstpl %0" : "=m"(result) : "m"(*a), "m"(Base::x87_log_2) : "st", "st(1)");
    __builtin_memcpy(out, &result, sizeof result);
    if (magnitude == 0) return ZEM_STATUS_SINGULARITY;
    if (magnitude <= 0x7FF0000000000000 && image != magnitude) return ZEM_STATUS_DOMAIN;
    return 0;
  }
};

}  // namespace ork
