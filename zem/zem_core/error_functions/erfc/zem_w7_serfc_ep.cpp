// Erfc, single, EP: in double, g of degree 3.
#include "error_functions/erfc/erfc.hpp"

namespace ork {
namespace {

alignas(16) constexpr double rows[][4] = {
#include "error_functions/erfc/rows_s_ep.inc"
};

struct Parts {
  static constexpr int columns = 4;
  static constexpr const double (*table)[4] = rows;
  ORK_INLINE f64x2 exp(f64x2 r) { return 1.0 + r; }  // to 2^-18
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_sErfc_W7EPnnn(int n, const float* a, float* r) {
  ork::block<ork::ErfcS<ork::ErfcFormulaS<ork::Parts>>>(n, {{a}, {r}});
}
