#include "complex/cln/cln.hpp"

namespace ork {
namespace {

// Ln z, HA: see cln.hpp; the angle in two words, see atan2_d_ha.hpp. Bound: 0.60 ulp a part.
struct LnHaZ : ComplexLn<double> {
  static constexpr char name[] = "vzLn";
  static constexpr int vectors = 1;

  ORK_INLINE Planes<f64x2> eval(const Planes<f64x2>& z, u32x4& rare) {
    const Octant<double> o(z.im, z.re);
    rare |= atan2_pair_rare(o);
    f64x2 low;
    const f64x2 high = atan2_pair(o, low);
    return {log_modulus(o, rare), or_bits(high + low, as<u64x2>(z.im) & sign_f64x2)};
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_zLn_V8HAynn(int n, const double* a, double* r) {
  ork::chunk<ork::LnHaZ>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
