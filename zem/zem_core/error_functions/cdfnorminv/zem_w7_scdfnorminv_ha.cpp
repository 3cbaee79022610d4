// CdfNormInv, single, HA: in double, degree 7 in quarters of binades.
#include "error_functions/cdfnorminv/cdfnorminv.hpp"

namespace ork {
namespace {

alignas(16) constexpr double table[][8] = {
#include "error_functions/cdfnorminv/rows_s_ha.inc"
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_sCdfNormInv_W7HAynn(int n, const float* a, float* r) {
  ork::block<ork::InverseS<ork::CdfNormInvS, ork::table>>(n, {{a}, {r}});
}
