// LGamma, float, all levels: every element through the scalar routine.
#include "gamma/lgamma/lgamma.hpp"
#include "ork/zem_kernels.h"

namespace ork {
namespace {

struct LGammaS : Core<float> {
  static constexpr char name[] = "vsLGamma";
  static constexpr Csr csr = Csr::untouched;
  static int special(const float* a, float* r) { return lgamma_rare(a, r); }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_sLGamma_PXHAynn(int n, const float* a, float* r) {
  ork::element<ork::LGammaS>(n, {{a}, {r}});
}
