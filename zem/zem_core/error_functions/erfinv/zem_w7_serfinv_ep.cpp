// ErfInv, single, EP: in double, degree 3 in quarters of binades.
#include "error_functions/erfinv/erfinv.hpp"

namespace ork {
namespace {

alignas(16) constexpr double table[][4] = {
#include "error_functions/erfinv/cubics_s_ep.inc"
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_sErfInv_W7EPnnn(int n, const float* a, float* r) {
  ork::block<ork::ErfInvSCubic<4, ork::table>>(n, {{a}, {r}});
}
