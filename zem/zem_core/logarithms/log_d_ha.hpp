#pragma once
// Ln and Log10, double, HA: x = 2^k m, c a short number near c0/m from a table of 513 rows,
// u_hi + u_lo = m c - c0, log x = k log 2 + T + u + p, with u_hi, k L1 + T_hi and their sum
// exact. Off by at most 0.52 ulp.
// Fast range: positive normal numbers. A base gives its constants and p(r).
#include "base/image.hpp"
#include "frame/block.hpp"
#include "ork/zem_kernels.h"

namespace ork {

template <class Base>
struct LogHaD : Core<double> {
  static constexpr const char* name = Base::name;

  // The sum (returned + low) + s; returned is small, s exact.
  static f64x2 parts(f64x2 x, f64x2& low, f64x2& s) {
    const u32x4 words = as<u32x4>(x);
    // Row, rounded from 10 mantissa bits to 9, as a byte offset.
    const u32x4 index = ((words & u32x4{0, 0xFFC00, 0, 0xFFC00}) + u32x4{0, 0x400, 0, 0x400}) &
                        u32x4{0, 0x1FF800, 0, 0x1FF800};
    const u64x2 offset = as<u64x2>(index) >> 38;
    const char* const table = (const char*)Base::rows;
    const double* const row0 = (const double*)(table + as<u32x4>(offset)[0]);
    const double* const row1 = (const double*)(table + word<4>(offset));
    const f64x2 c = gather(row0, row1);
    f64x2 t_hi, t_lo;
    gather_pairs(row0 + 2, row1 + 2, t_hi, t_lo);
    // k into the high word of 1.5 * 2^20.
    const u32x4 shifted = as<u32x4>((i32x4)(words - u32x4{0, Base::k_from, 0, Base::k_from}) >> 20);
    const u32x4 high = {0, ~0u, 0, ~0u}, one_and_a_half = {0, 0x41380000, 0, 0x41380000};
    const f64x2 k = as<f64x2>((shifted & high) + one_and_a_half) - 1572864.0;

    const u64x2 mantissa = splat_u64(0x000FFFFFFFFFFFFF);
    const f64x2 m = or_bits(and_bits(x, mantissa), splat_u64(0x3FF0000000000000));
    const f64x2 m_hi = and_bits(m, splat_u64(0x7FFFFFFF00000000)), m_lo = m - m_hi;
    const f64x2 u_hi = m_hi * c - Base::c0, u_lo = m_lo * c, r = u_hi + u_lo;
    const f64x2 a = k * Base::l1 + t_hi, b = k * Base::l2 + t_lo;
    // b = 0 only where nothing is added to u: there u_lo belongs to the leading sum.
    const u64x2 alone = (u64x2)(b == 0.0);
    s = (u_hi + a) + and_bits(u_lo, alone);
    low = and_bits(u_lo, ~alone);
    return Base::p(r) + b;
  }
  static f64x2 eval(f64x2 x, u32x4& rare) {
    rare |= (u32x4)((i32x4)(as<u32x4>(x) - 0x80100000) > -0x200001);
    f64x2 low, s;
    const f64x2 small = parts(x, low, s);
    return (small + low) + s;
  }
  // One element beyond the fast range.
  static int special(const double* a, double* out) {
    const uint64_t magnitude = ork::magnitude(a);
    if (magnitude > infinity_bits<double> || image(a) == infinity_bits<double>) {
      __builtin_memcpy(out, a, sizeof *a);
      return 0;
    }
    const double y = *a * 0x1p52;  // 0, too, for a denormal in the mode that takes it as 0
    if (magnitude != 0 && sign(a)) {
      __builtin_memcpy(out, &domain_nan<double>, sizeof *out);
      return ZEM_STATUS_DOMAIN;
    }
    if (y == 0.0) {
      *out = -__builtin_inf();
      return ZEM_STATUS_SINGULARITY;
    }
    f64x2 low, s;
    const f64x2 small = parts(splat(y), low, s);
    *out = (small[0] + (low[0] - Base::log_2_52)) + s[0];
    return 0;
  }
};

}  // namespace ork
