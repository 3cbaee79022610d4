#include "cln/cln.hpp"

namespace ork {
namespace {

// Ln z, LA: the modulus of HA, see cln.hpp, the angle of Atan2 LA. Bound: 2 ulp a part.
struct LnLaZ : ComplexLn<double> {
  static constexpr char name[] = "vzLn";
  static constexpr int vectors = 1;

  ORK_INLINE Planes<f64x2> eval(const Planes<f64x2>& z, u32x4& rare) {
    const Octant<double> o(z.im, z.re);
    rare |= atan2_pair_rare(o);
    return {log_modulus(o, rare), atan2_la(z.im, o)};
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_zLn_W7LAynn(int n, const double* a, double* r) {
  ork::block<ork::LnLaZ>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
