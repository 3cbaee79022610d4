// CdfNormInv, double, LA: degree 11 in quarters of binades.
#include "error_functions/cdfnorminv/cdfnorminv.hpp"

namespace ork {
namespace {

alignas(16) constexpr double table[][12] = {
#include "error_functions/cdfnorminv/rows_d_la.inc"
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dCdfNormInv_W7LAynn(int n, const double* a, double* r) {
  ork::block<ork::InverseD<ork::CdfNormInvD, ork::Level::la, ork::table>>(n, {{a}, {r}});
}
