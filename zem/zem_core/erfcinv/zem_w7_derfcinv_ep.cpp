// ErfcInv, double, EP: degree 3 in sixteenths of binades.
#include "erfcinv/erfcinv.hpp"

namespace ork {
namespace {

alignas(16) constexpr double table[][4] = {
#include "erfcinv/rows_d_ep.inc"
};

struct Function : ErfcInvD {
  template <Level>
  static const double* rows() {
    return table[0];
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dErfcInv_W7EPnnn(int n, const double* a, double* r) {
  ork::block<ork::InverseD<ork::Function, ork::Level::ep>>(n, {{a}, {r}});
}
