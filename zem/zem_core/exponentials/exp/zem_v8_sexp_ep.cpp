// Exp, single, EP: e^x = 2^n 2^f, u = x log2 e, n = round(u), f = u - n; 2^f by a cubic of
// relative error 1.8e-4 on [-1/2, 1/2], frozen; 2^n is added to the exponent field.
// Fast range: |x| up to 87.3365402; beyond it exp_rare.
#include "base/image.hpp"
#include "base/round.hpp"
#include "frame/chunk.hpp"
#include "ork/zem_kernels.h"

namespace ork {
namespace {

constexpr float shifter = integer_shifter<float>;

int exp_rare(const float* a, float* out) {
  if (sign(a) && magnitude(a) == infinity_bits<float>) {
    *out = 0.0f;
    return 0;
  }
  const float x = *a;
  if (magnitude(a) >= infinity_bits<float>) {
    *out = x * x;
    return 0;
  }
  if (x > 88.72283f) {
    volatile float huge = __FLT_MAX__;
    *out = huge * huge;
    return ZEM_STATUS_OVERFLOW;
  }
  if (x < -103.97208f) {
    volatile float tiny = 1e-45f;
    *out = tiny * tiny;
    return ZEM_STATUS_UNDERFLOW;
  }
  const float t = 1.442695f * x + shifter, n = t - shifter;
  const float r = x - n * 0.69314575f - n * 1.4286068e-6f;
  // e^r by degree 5, frozen: relative error 1.4e-7 for |r| <= ln 2/2.
  const float p =
      horner(r, 1.0000001f, 1.0000001f, 0.4999887f, 0.16666326f, 0.041917525f, 0.0083811125f);
  const uint32_t k = as<uint32_t>(t);  // n in its low bits
  const auto scaled = [&](uint32_t field) { return p * as<float>(field << 24 >> 1); };
  if (x < -87.33654f) {
    *out = scaled(k - 69) * 0x1p-60f;  // n + 60, biased: k - 69 modulo 256
    return ZEM_STATUS_UNDERFLOW;
  }
  *out = (int)n + 127 < 1 || (int)n + 127 > 254 ? scaled(k + 126) * 2.0f : scaled(k + 127);
  return 0;
}

struct ExpEpS : Core<float> {
  static constexpr char name[] = "vsExp";
  static f32x4 eval(f32x4 x, u32x4& rare) {
    const f32x4 u = x * 1.4426950216f, t = u + shifter, f = u - (t - shifter);
    const f32x4 p =
        horner(f, 1.0f, 0.6931782960891724f, 0.2420288622379303f, 0.055504005402326584f);
    rare |= 0x42AEAC4F - as<u32x4>(abs(x));
    return as<f32x4>(as<u32x4>(p) + (as<u32x4>(t) << 23));
  }
  static int special(const float* a, float* out) { return exp_rare(a, out); }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_sExp_V8EPnnn(int n, const float* a, float* r) {
  ork::chunk<ork::ExpEpS>(n, {{a}, {r}});
}
