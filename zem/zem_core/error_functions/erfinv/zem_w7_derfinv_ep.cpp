// ErfInv, double, EP: degree 3 in sixteenths of binades.
#include "error_functions/erfinv/erfinv.hpp"

namespace ork {
namespace {

alignas(16) constexpr double table[][4] = {
#include "error_functions/erfinv/rows_d_ep.inc"
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dErfInv_W7EPnnn(int n, const double* a, double* r) {
  ork::block<ork::InverseD<ork::ErfInvD, ork::Level::ep, ork::table>>(n, {{a}, {r}});
}
