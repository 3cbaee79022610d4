#include "base/pair.hpp"
#include "frame/block.hpp"
#include "ork/zem_kernels.h"
#include "trig/tan/tan.hpp"

namespace ork::trig {

// Tangent, double, LA: see tan.hpp, P and Q cubic; relative error of P/Q 5.3e-17. Q is
// summed as (1 - z/2) + z (1/2 + q1 + ...), and what rounding takes from r P and Q goes back
// after the division, which a rough 1/Q is enough for: left are the roundings of z, of the quotient
// and of the result. Bound 2 ulp.
struct TanLaD : Core<double> {
  static constexpr char name[] = "dTan_LA";
  static constexpr unsigned x87 = x87_double;
  ORK_INLINE f64x2 eval(f64x2 x, u32x4& rare) {
    const f64x2 ax = abs(x);
    rare |= reaches<limit_128000>(ax);
    const f64x2 t = half_pi_steps(ax), n = t - splat(0x1p52);
    const f64x2 r2 = ax - n * splat(1.5707962512969971) - n * splat(7.5497894158615964e-08);
    const f64x2 third = n * splat(5.3903025299577648e-15), r = r2 - third;
    const f64x2 low = ((r2 - r) - third) - n * splat(3.2820035428735005e-22);
    const f64x2 z = r * r;

    const f64x2 p = horner(z, -0.12828347040957438, 0.0028059182411699891, -7.483634966612065e-06);
    const auto [rp, rp_low] = exact_sum(r, r * z * p + low);
    constexpr double q1 = 0.5 - 0.46161680374290487;  // exact
    const f64x2 half = 0.5 * z, head = 1.0 - half;
    const f64x2 tail =
        z * horner(z, q1, 0.023344852822068728, -0.00020844804422038708) + ((1.0 - head) - half);
    const auto [q, q_low] = exact_sum(head, tail);

    const u64x2 odd = odd_steps(t);
    const u64x2 swap = (as<u64x2>(rp) ^ as<u64x2>(q)) & odd;
    const u64x2 swap_low = (as<u64x2>(rp_low) ^ as<u64x2>(q_low)) & odd;
    const f64x2 above = xor_bits(rp, swap), below = xor_bits(q, swap);
    const f64x2 above_low = xor_bits(rp_low, swap_low), below_low = xor_bits(q_low, swap_low);
    const f64x2 y = above / below;
    const f64x2 inverse = as<f64x2>(splat_u64(0x7FDE623800000000) - as<u64x2>(below));  // to 6 %
    return flip(y + (above_low - below_low * y) * inverse, flip(parity(t), sign_of(x)));
  }
  static int special(const double* x, double* r) { return scalar<_dTan>(x, r); }
};

}  // namespace ork::trig

ORK_EXPORT void ork_zem_kernel_dTan_W7LAynn(int n, const double* a, double* r) {
  ork::block<ork::trig::TanLaD>(n, {{a}, {r}});
}
