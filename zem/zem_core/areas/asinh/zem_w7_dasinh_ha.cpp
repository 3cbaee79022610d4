// Asinh, double, HA: ln(|x| + sqrt(x^2 + 1)), the sign of x; in two words, or on the x87 unit
// where these leave the rounding open, about one element of 250, and from 2^500 on (from 2^1020
// ln x + ln 2). Below 0.125 an odd series, so that y's rounding does not count. Bound: 0.52 ulp.
#include "areas/ln_pair.hpp"

namespace ork {
namespace {

struct AsinhHa : Core<double> {
  static constexpr char name[] = "vdAsinh";
  static constexpr int vectors = 1;  // a block with an open lane is done again
  static constexpr unsigned x87 = x87_extended;
  static constexpr uint32_t least = 0x3FC00000, limit = 0x5F300000;  // 0.125, 2^500: high words
  // c1 to c8 of the odd series.
  static constexpr double c[] = {
#include "areas/asinh/near_zero_d.inc"
  };

  ORK_INLINE f64x2 eval(f64x2 x, u32x4& rare) {
    const u32x4 size = as<u32x4>(abs(x));
    rare |= (size - least) | (limit - 1 - size);
    const f64x2 a = _mm_min_pd(abs(x), splat(0x1p500));  // a rare lane must not overflow
    // y = a + sqrt(a^2 + 1) solves y (y - 2 a) = 1: one step of Newton's.
    const f64x2 root = sqrt(1.0 + a * a), twice = a + a;
    const Upper y(root + a);
    const f64x2 whole = y.whole - twice, whole_low = (y.whole - whole) - twice;
    const f64x2 lack = lack_of_product(y, Upper(whole)) - y.whole * whole_low;
    const Pair<f64x2> ln_y = ln_pair(y, lack * (0.5 / root));
    // In extended y is off by 3 * 2^-64, y c by 2^-64, the logarithm's sums by 3.4 * 2^-64 of it.
    const f64x2 r = settled(ln_y, 0x1.08p-62 + ln_y.high * 0x1.b4p-63, rare);
    return or_bits(r, as<u64x2>(x) & sign_f64x2);
  }

  // The series of `special` in double: off by 5 * 2^-53 of t, and the extended sum by 2^-64 of a.
  ORK_INLINE f64x2 eval_rest(f64x2 x, f64x2 r, u32x4& rare) {
    const f64x2 size = abs(x), a = _mm_min_pd(size, splat(0.125)), z = a * a;
    f64x2 p = splat(c[7]);
#pragma GCC unroll 8
    for (int i = 6; i >= 0; --i) p = c[i] + z * p;
    const f64x2 t = a * (z * p);
    u32x4 open = {};
    const f64x2 small = settled({a, t}, a * 0x1.2p-64 - t * 0x1.8p-51, open);
    const u32x4 is_small = as<u32x4>((f64x2)_mm_cmplt_pd(size, splat(0.125)));
    const f64x2 v = select(is_small, or_bits(small, as<u64x2>(x) & sign_f64x2), r);
    rare |= as<u32x4>((f64x2)_mm_cmpunord_pd(v, v)) | (as<u32x4>(size) - 0x00100000) |
            (limit - 1 - as<u32x4>(size));
    return v;
  }

  static int special(const double* x, double* r) {
    const uint64_t magnitude = as<uint64_t>(*x) & ~0ull >> 1;
    if (magnitude >= 0x7FF0000000000000 || magnitude == 0) {
      *r = *x + *x;
      return 0;
    }
    const long double a = *x, z = a * a;
    if (magnitude < (uint64_t)least << 32) {
      long double p = c[7];
      for (int i = 6; i >= 0; --i) p = c[i] + z * p;
      *r = (double)(a + a * (z * p));
      return 0;
    }
    const long double size = __builtin_fabsl(a);
    const long double ln_y = magnitude < 0x7FB0000000000000
                                 ? ln_extended(size + __builtin_sqrtl(z + 1.0L))
                                 : ln_twice_extended(size);
    *r = __builtin_copysign((double)ln_y, *x);
    return 0;
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dAsinh_W7HAynn(int n, const double* a, double* r) {
  ork::block<ork::AsinhHa>(n, {{a}, {r}});
}
