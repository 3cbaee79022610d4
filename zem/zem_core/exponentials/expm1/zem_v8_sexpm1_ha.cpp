// Expm1, single, HA: N = 64, e^r - 1 - r of degree 3, |r| <= ln 2/128, and a compensated sum.
// r = u_hi + u_lo - v0, u_hi of 12 bits, so that S_hi u_hi is exact; n = 0 keeps u_hi = x.
// Fast range: |x| <= 86.6433945. The polynomial is frozen: off by at most 2^-36.6.
#include "base/round.hpp"
#include "exponentials/expm1/expm1.hpp"

namespace ork {
namespace {

struct Expm1HaS : Core<float> {
  static constexpr char name[] = "vsExpm1";
  static f32x4 eval(f32x4 x, u32x4& rare) {
    const f32x4 n = x * 92.3324814f + integer_shifter<float> - integer_shifter<float>;
    const f32x4 u = x - n * 0.0108337402f, v0 = n * -3.31553815e-06f;
    const u32x4 whole = (u32x4)(u == x);
    const f32x4 u_hi = and_bits(u, whole | splat_u32(0xFFFFF000)), u_lo = u - u_hi;
    const f32x4 r = u - v0;
    const f32x4 p = r * r * horner(r, 0.500000894f, 0.16666697f);
    // A rare lane's S gets the exponent field 0, lest it raise flags.
    const u32x4 far = as<u32x4>((f32x4)_mm_cmpnle_ps(abs(x), splat(86.6433945f)));
    rare |= far;
    // 8 n in the low bits, biased.
    const u32x4 image = as<u32x4>(n + 1974208.0f), exponent = (image & (0x1FE00 & ~far)) << 14;
    const u32x4 j = image & 0x1F8;
    const auto row = [](int offset) {
      return (const float*)((const char*)expm1_split64_s + offset);
    };
    f32x4 high, low;
    gather_pairs(row(j[0]), row(word<2>(j)), row(word<4>(j)), row(word<6>(j)), high, low);
    const f32x4 s_hi = or_bits(high, exponent), s_lo = low * as<f32x4>(exponent);
    return with_sign_of(x, expm1_sum(s_hi, s_lo, u_hi, (u_lo - v0) + p));
  }
  static int special(const float* a, float* out) { return expm1_rare(a, out); }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_sExpm1_V8HAynn(int n, const float* a, float* r) {
  ork::chunk<ork::Expm1HaS>(n, {{a}, {r}});
}
