// ErfcInv, single, LA: in double, degree 5 in quarters of binades.
#include "error_functions/erfcinv/erfcinv.hpp"

namespace ork {
namespace {

alignas(16) constexpr double table[][6] = {
#include "error_functions/erfinv_rows_s_la.inc"
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_sErfcInv_W7LAynn(int n, const float* a, float* r) {
  ork::block<ork::InverseS<ork::ErfcInvS, ork::table>>(n, {{a}, {r}});
}
