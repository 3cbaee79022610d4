#include "logarithms/ln/ln_s.hpp"

namespace ork {
namespace {

// p of degree 4: 2^-12.2, relative 2^-10.9.
struct Ep {
  static constexpr float q[] = {-0.5f, 0.352845669f, -0.267846942f};
  static f32x4 sum(f32x4 p, f32x4 k) { return p + k * 0.693147182f; }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_sLn_V8EPnnn(int n, const float* a, float* r) {
  ork::chunk<ork::LnS<ork::Ep>>(n, {{a}, {r}});
}
