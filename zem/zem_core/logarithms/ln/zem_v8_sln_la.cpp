#include "logarithms/ln/ln_s.hpp"

namespace ork {
namespace {

// p of degree 8: 2^-23.5, relative 2^-22.2.
struct La {
  static constexpr float q[] = {-0.5f,         0.333365649f, -0.250046641f, 0.198225036f,
                                -0.164624572f, 0.169648811f, -0.151772052f};
  static f32x4 sum(f32x4 p, f32x4 k) { return p + k * 0.693147182f; }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_sLn_V8LAynn(int n, const float* a, float* r) {
  ork::chunk<ork::LnS<ork::La>>(n, {{a}, {r}});
}
