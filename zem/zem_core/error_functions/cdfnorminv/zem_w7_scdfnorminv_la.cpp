// CdfNormInv, single, LA: in double, degree 5 in quarters of binades.
#include "error_functions/cdfnorminv/cdfnorminv.hpp"

namespace ork {
namespace {

alignas(16) constexpr double table[][6] = {
#include "error_functions/cdfnorminv/rows_s_la.inc"
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_sCdfNormInv_W7LAynn(int n, const float* a, float* r) {
  ork::block<ork::InverseS<ork::CdfNormInvS, ork::table>>(n, {{a}, {r}});
}
