// ErfInv, single, LA: in double, degree 3 in sixteenths of binades.
#include "error_functions/erfinv/erfinv.hpp"

namespace ork {
namespace {

alignas(16) constexpr double table[][4] = {
#include "error_functions/erfinv/cubics_s_la.inc"
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_sErfInv_W7LAynn(int n, const float* a, float* r) {
  ork::block<ork::ErfInvSCubic<16, ork::table>>(n, {{a}, {r}});
}
