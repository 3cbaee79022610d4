// CdfNormInv, double, HA: degree 14 in quarters of binades; c0 and the multiplier split.
#include "error_functions/cdfnorminv/cdfnorminv.hpp"

namespace ork {
namespace {

alignas(16) constexpr double table[][17] = {
#include "error_functions/cdfnorminv/rows_d_ha.inc"
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dCdfNormInv_W7HAynn(int n, const double* a, double* r) {
  ork::block<ork::InverseD<ork::CdfNormInvD, ork::Level::ha, ork::table>>(n, {{a}, {r}});
}
