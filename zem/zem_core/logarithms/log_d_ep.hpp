#pragma once
// Ln and Log10, double, EP: x = 2^k m, m_r = m rounded to 8 bits, u = (m - m_r)/m_r,
// log x = p(u) + (k log 2 + T), p of degree 2, |u| <= 2^-9. The term left out, u^3/3, is
// 2^-19.6 of the result next to 1, and below 2^-26 of it from |ln x| = 0.17 on.
// Fast range: positive normal numbers.
#include "base/image.hpp"
#include "frame/block.hpp"
#include "ork/zem_kernels.h"

namespace ork {

template <class Base>
struct LogEpD : Core<double> {
  static constexpr const char* name = Base::name;

  static f64x2 eval(f64x2 x, u32x4& rare) {
    const u32x4 words = as<u32x4>(x);
    rare |= (u32x4)((i32x4)(words - 0x80100000) > -0x200001);
    // Row, rounded from 9 mantissa bits to 8, as a byte offset.
    const u32x4 index = ((words & u32x4{0, 0xFF800, 0, 0xFF800}) + u32x4{0, 0x800, 0, 0x800}) &
                        u32x4{0, 0x1FF000, 0, 0x1FF000};
    const u64x2 offset = as<u64x2>(index) >> 39;
    const char* const table = (const char*)Base::rows;
    const double* const row0 = (const double*)(table + as<u32x4>(offset)[0]);
    const double* const row1 = (const double*)(table + word<4>(offset));
    const f64x2 t = gather(row0, row1), c = gather(row0 + 2, row1 + 2);
    // The exponent field as a number: into the low word of 2^52.
    const u64x2 in_2_52 = splat_u64(0x4330000000000000);
    const f64x2 k = as<f64x2>((as<u64x2>(x) >> 52) | in_2_52) - (0x1p52 + 1023);
    const u64x2 mantissa = splat_u64(0x000FFFFFFFFFFFFF);
    const f64x2 m = or_bits(and_bits(x, mantissa), splat_u64(0x3FF0000000000000));
    const f64x2 m_r = as<f64x2>(index + u32x4{0, 0x3FF00000, 0, 0x3FF00000});
    return Base::sum((m - m_r) * c, k * Base::log_2 + t);
  }
  // One element beyond the fast range, on the x87 unit: y log2 x with y = log 2.
  static int special(const double* a, double* out) {
    double result;
    const X87Guard<x87_extended> nearest;  // the store rounds as the control word says
    asm volatile("fldt %2\n\tfldl %1\n\tfyl2x\n\tfstpl %0"
                 : "=m"(result)
                 : "m"(*a), "m"(Base::x87_log_2)
                 : "st", "st(1)", "memory");
    __builtin_memcpy(out, &result, sizeof result);
    if (magnitude(a) == 0) return ZEM_STATUS_SINGULARITY;
    if (magnitude(a) <= infinity_bits<double> && sign(a)) return ZEM_STATUS_DOMAIN;
    return 0;
  }
};

}  // namespace ork
