// Atanh, double, HA: ln((1 + |x|)/(1 - |x|))/2, the sign of x; in two words, or on the x87 unit
// where these leave the rounding open, about one element of 200. Below 2^-8 the odd series.
// Bound: 0.60 ulp.
#include "areas/atanh/atanh_rare.hpp"
#include "areas/ln_pair.hpp"

namespace ork {
namespace {

struct AtanhHa : Core<double> {
  static constexpr char name[] = "vdAtanh";
  static constexpr int vectors = 1;  // a block with an open lane is done again
  static constexpr unsigned x87 = x87_extended;
  static constexpr uint32_t least = 0x3F700000;  // 2^-8, high word

  ORK_INLINE f64x2 eval(f64x2 x, u32x4& rare) {
    const f64x2 a = abs(x);
    rare |= (as<u32x4>(a) - least) | (0x3FEFFFFF - as<u32x4>(a));
    const auto [num, num_low] = exact_sum(splat(1.0), a);
    const f64x2 whole = 1.0 - a, whole_low = (1.0 - whole) - a;
    const Upper den(whole);
    const f64x2 inverse = 1.0 / whole;
    const Upper q(num * inverse);
    const f64x2 left = ((num - q.high * den.high) - q.high * den.low) - q.low * whole;
    const f64x2 q_low = (left + (num_low - q.whole * whole_low)) * inverse;
    const Pair<f64x2> ln_y = ln_pair(q, q_low);
    // In extended the quotient and y c are off by 2^-64, the logarithm's sums by 3.4 * 2^-64 of it.
    const f64x2 r = settled(ln_y, 0x1.1p-63 + ln_y.high * 0x1.b4p-63, rare);
    return or_bits(0.5 * r, as<u64x2>(x) & sign_f64x2);
  }

  // The series of `special` in double: 2^-51 of t at most, and the rounding of a's extended sum.
  ORK_INLINE f64x2 eval_rest(f64x2 x, f64x2 r, u32x4& rare) {
    const f64x2 a = abs(x), z = a * a;
    const f64x2 t = a * (z * (ratio<1, 3> + z * (0.2 + z * ratio<1, 7>)));
    u32x4 open = {};
    const f64x2 small = settled({a, t}, a * 0x1.2p-64 + t * 0x1p-50, open);
    const u32x4 is_small = as<u32x4>((f64x2)_mm_cmplt_pd(a, splat(0x1p-8)));
    const f64x2 v = select(is_small, or_bits(small, as<u64x2>(x) & sign_f64x2), r);
    rare |= as<u32x4>((f64x2)_mm_cmpunord_pd(v, v)) | (as<u32x4>(a) - 0x00100000) |
            (0x3FEFFFFF - as<u32x4>(a));
    return v;
  }

  static int special(const double* x, double* r) {
    const uint64_t magnitude = as<uint64_t>(*x) & ~0ull >> 1;
    if (magnitude >= 0x3FF0000000000000) return atanh_rare(x, r);
    const long double a = *x, z = a * a;
    if (magnitude < (uint64_t)least << 32) {  // the next term is below z^4/9 = 2^-67
      *r = (double)(a + a * (z * (1.0L / 3 + z * (0.2L + z * (1.0L / 7)))));
      return 0;
    }
    const long double size = __builtin_fabsl(a);
    *r = __builtin_copysign((double)(0.5L * ln_extended((1.0L + size) / (1.0L - size))), *x);
    return 0;
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dAtanh_W7HAynn(int n, const double* a, double* r) {
  ork::block<ork::AtanhHa>(n, {{a}, {r}});
}
