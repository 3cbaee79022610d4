// ErfcInv, double, EP: degree 3 in sixteenths of binades.
#include "error_functions/erfcinv/erfcinv.hpp"

namespace ork {
namespace {

alignas(16) constexpr double table[][4] = {
#include "error_functions/erfcinv/rows_d_ep.inc"
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dErfcInv_W7EPnnn(int n, const double* a, double* r) {
  ork::block<ork::InverseD<ork::ErfcInvD, ork::Level::ep, ork::table>>(n, {{a}, {r}});
}
