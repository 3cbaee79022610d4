// LGamma, double, all levels: every element through the scalar routine.
#include "gamma/lgamma/lgamma.hpp"
#include "ork/zem_kernels.h"

namespace ork {
namespace {

struct LGammaD : Core<double> {
  static constexpr char name[] = "vdLGamma";
  static constexpr Csr csr = Csr::untouched;
  static int special(const double* a, double* r) { return lgamma_rare(a, r); }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dLGamma_PXHAynn(int n, const double* a, double* r) {
  ork::element<ork::LGammaD>(n, {{a}, {r}});
}
