// Acos, single, HA: in double, as Asin HA; see asin.hpp. Bound: 0.51 ulp.
#include "arcs/asin.hpp"
#include "frame/chunk.hpp"
#include "ork/zem_kernels.h"

namespace ork {
namespace {

struct AcosHaS : InDouble<Acos<double, AsinHaInDouble>> {
  static constexpr char name[] = "vsAcos";
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_sAcos_V8HAynn(int n, const float* a, float* r) {
  ork::chunk<ork::AcosHaS>(n, {{a}, {r}});
}
