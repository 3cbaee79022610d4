// TGamma, double, all levels: every element through the scalar routine.
#include "gamma/tgamma/tgamma.hpp"
#include "ork/zem_kernels.h"

namespace ork {
namespace {

struct TGammaD : Core<double> {
  static constexpr char name[] = "vdTGamma";
  static constexpr Csr csr = Csr::untouched;
  static int special(const double* a, double* r) { return tgamma_rare(a, r); }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dTGamma_PXHAynn(int n, const double* a, double* r) {
  ork::element<ork::TGammaD>(n, {{a}, {r}});
}
