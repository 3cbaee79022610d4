#include "base/pair.hpp"
#include "complex/csqrt/csqrt.hpp"
#include "frame/chunk.hpp"

namespace ork {
namespace {

// p - a b, p next to it.
ORK_INLINE f64x2 left_of(f64x2 p, f64x2 a, f64x2 b) {
  const f64x2 a1 = upper_half(a), a2 = a - a1, b1 = upper_half(b), b2 = b - b1;
  return (((p - a1 * b1) - a1 * b2) - a2 * b1) - a2 * b2;
}
// The root, and half its inverse.
ORK_INLINE Pair<f64x2> root(Pair<f64x2> x, f64x2& half_inverse) {
  const f64x2 s = sqrt(x.high);
  half_inverse = 0.5 / s;
  return {s, (left_of(x.high, s, s) + x.low) * half_inverse};
}

// Sqrt z, HA: r and u of csqrt.hpp in two words, both roots and the quotient with their remainders.
// Fast range: exponents within +-400. Bound: 0.51 ulp a part.
struct SqrtHaZ : ComplexSqrt<double> {
  static constexpr char name[] = "vzSqrt";
  static constexpr int vectors = 1;

  ORK_INLINE Planes<f64x2> eval(const Planes<f64x2>& z, u32x4& rare) {
    const f64x2 x = ork::abs(z.re), y = ork::abs(z.im);
    const f64x2 large = _mm_max_pd(x, y), small = _mm_min_pd(x, y);
    rare |= (as<u32x4>(small) - ((1023 - 400) << 20)) | (((1023 + 400) << 20) - as<u32x4>(large));

    // The bound, below the fast range, spares rare lanes 0/0.
    const f64x2 bounded = _mm_max_pd(large, splat(0x1p-500));
    const f64x2 l2 = bounded * bounded, s2 = small * small;
    const Pair<f64x2> sum = exact_sum(l2, s2);
    const f64x2 lost = sum.low - (left_of(l2, bounded, bounded) + left_of(s2, small, small));
    f64x2 over, half_inverse;
    const Pair<f64x2> r = root({sum.high, lost}, over);
    // r >= |x| but for its rounding.
    const Pair<f64x2> twice = exact_sum(r.high, x);
    const Pair<f64x2> t = root({0.5 * twice.high, 0.5 * (twice.low + r.low)}, half_inverse);

    const f64x2 q = y * half_inverse;
    const f64x2 left = left_of(0.5 * y, q, t.high) - q * t.low;
    return place_roots(t.high + t.low, q + left * (2.0 * half_inverse), z);
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_zSqrt_V8HAynn(int n, const double* a, double* r) {
  ork::chunk<ork::SqrtHaZ>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
