// ErfcInv, double, LA: degree 11 in quarters of binades.
#include "error_functions/erfcinv/erfcinv.hpp"

namespace ork {
namespace {

alignas(16) constexpr double table[][12] = {
#include "error_functions/erfinv_rows_d_la.inc"
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dErfcInv_W7LAynn(int n, const double* a, double* r) {
  ork::block<ork::InverseD<ork::ErfcInvD, ork::Level::la, ork::table>>(n, {{a}, {r}});
}
