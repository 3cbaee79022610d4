// Erfc, single, LA: in double, g of degree 5.
#include "error_functions/erfc/erfc.hpp"

namespace ork {
namespace {

alignas(16) constexpr double rows[][6] = {
#include "error_functions/erfc/rows_s_la.inc"
};

struct Parts {
  static constexpr int columns = 6;
  static constexpr const double (*table)[6] = rows;
  ORK_INLINE f64x2 exp(f64x2 r) { return horner(r, 1.0, 1.0, 0.5, 0.16666666666666666); }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_sErfc_W7LAynn(int n, const float* a, float* r) {
  ork::block<ork::ErfcS<ork::ErfcFormulaS<ork::Parts>>>(n, {{a}, {r}});
}
