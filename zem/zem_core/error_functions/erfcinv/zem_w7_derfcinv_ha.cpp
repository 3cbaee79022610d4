// ErfcInv, double, HA: degree 14 in quarters of binades; c0 and the multiplier split.
#include "error_functions/erfcinv/erfcinv.hpp"

namespace ork {
namespace {

alignas(16) constexpr double table[][17] = {
#include "error_functions/erfinv_rows_d_ha.inc"
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dErfcInv_W7HAynn(int n, const double* a, double* r) {
  ork::block<ork::InverseD<ork::ErfcInvD, ork::Level::ha, ork::table>>(n, {{a}, {r}});
}
