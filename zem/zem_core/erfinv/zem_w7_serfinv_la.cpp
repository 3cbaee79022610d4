// ErfInv, single, LA: in double, degree 5 in quarters of binades.
#include "erfinv/erfinv.hpp"

namespace ork {
namespace {

alignas(16) constexpr double table[][6] = {
#include "erfinv/rows_s_la.inc"
};

struct Function : ErfInvS {
  template <Level>
  static const double* rows() {
    return table[0];
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_sErfInv_W7LAynn(int n, const float* a, float* r) {
  ork::block<ork::InverseS<ork::Function, ork::Level::la>>(n, {{a}, {r}});
}
