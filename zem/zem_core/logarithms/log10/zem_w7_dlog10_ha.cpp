#include "logarithms/log_d_ha.hpp"

namespace ork {
namespace {

constexpr double log10_2[][2] = {
#include "logarithms/log10/log10_2.inc"
};

// Base 10, in the variable scaled by c0 = 111/256. p(r) for log10(1 + r/c0) - r is frozen, of
// degree 5: off by at most 2^-64.6 for |r| <= 2^-11.
struct Decimal {
  static constexpr char name[] = "vdLog10";
  static constexpr double c0 = 0.43359375, l1 = log10_2[0][0], l2 = log10_2[0][1];
  static constexpr double log_2_52 = 15.653559774527023;  // 52 log10 2
  // k is the exponent as it stands: the row of m = 2 cancels k = -1.
  static constexpr uint32_t k_from = 0x3FF00000;
  alignas(16) static constexpr double rows[513][4] = {
#include "logarithms/log10/rows_d_ha.inc"
  };
  static f64x2 p(f64x2 r) {
    return r * horner(r, 0.0016161024074997105, -1.1550167667400704, 1.7758816353479039,
                      -3.0717977023883023, 5.6676062562689262);
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dLog10_W7HAynn(int n, const double* a, double* r) {
  ork::block<ork::LogHaD<ork::Decimal>>(n, {{a}, {r}});
}
