#include "logarithms/log_d_ep.hpp"

namespace ork {
namespace {

// Base 10. log10(1 + u) by degree 2, frozen: off by at most 2^-29.7. log_2 is short; the row of
// m = 2 holds the same number.
struct Decimal {
  static constexpr char name[] = "vdLog10";
  static constexpr double log_2 = 0.30102999566406652;
  static constexpr long double x87_log_2 = 0x1.34413509f79fef32p-2L;
  alignas(16) static constexpr double rows[257][4] = {
#include "logarithms/log10/rows_d_ep.inc"
  };
  static f64x2 sum(f64x2 u, f64x2 rest) {
    return u * (0.43429448190325182 + -0.21714724095129675 * u) + rest;
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dLog10_W7EPnnn(int n, const double* a, double* r) {
  ork::block<ork::LogEpD<ork::Decimal>>(n, {{a}, {r}});
}
