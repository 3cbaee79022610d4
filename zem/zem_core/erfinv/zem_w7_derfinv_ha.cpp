// ErfInv, double, HA: degree 14 in quarters of binades; c0 and the multiplier split.
#include "erfinv/erfinv.hpp"

namespace ork {
namespace {

alignas(16) constexpr double table[][17] = {
#include "erfinv/rows_d_ha.inc"
};

struct Function : ErfInvD {
  template <Level>
  static const double* rows() {
    return table[0];
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dErfInv_W7HAynn(int n, const double* a, double* r) {
  ork::block<ork::InverseD<ork::Function, ork::Level::ha>>(n, {{a}, {r}});
}
