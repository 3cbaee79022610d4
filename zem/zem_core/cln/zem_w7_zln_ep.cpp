#include "cln/cln.hpp"

namespace ork {
namespace {

// Ln z, EP: the modulus of HA, see cln.hpp, the angle of Atan2 EP. Bound: 2^-26 of the modulus.
struct LnEpZ : ComplexLn<double> {
  static constexpr char name[] = "vzLn";
  static constexpr int vectors = 1;

  ORK_INLINE Planes<f64x2> eval(const Planes<f64x2>& z, u32x4& rare) {
    const Octant<double> o(z.im, z.re);
    rare |= atan2_pair_rare(o);
    return {log_modulus(o, rare), or_bits(o.base + xor_bits(atan_ep(o.small / o.large), o.flip),
                                          as<u64x2>(z.im) & sign_f64x2)};
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_zLn_W7EPnnn(int n, const double* a, double* r) {
  ork::block<ork::LnEpZ>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
