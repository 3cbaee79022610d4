// TGamma, float, all levels: every element through the scalar routine.
#include "gamma/tgamma/tgamma.hpp"
#include "ork/zem_kernels.h"

namespace ork {
namespace {

struct TGammaS : Core<float> {
  static constexpr char name[] = "vsTGamma";
  static constexpr Csr csr = Csr::untouched;
  static int special(const float* a, float* r) { return tgamma_rare(a, r); }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_sTGamma_PXHAynn(int n, const float* a, float* r) {
  ork::element<ork::TGammaS>(n, {{a}, {r}});
}
