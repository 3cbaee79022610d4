#include "logarithms/log_d_ep.hpp"

namespace ork {
namespace {

// Base e. ln(1 + u) by degree 2, frozen: off by at most 2^-28.5. log_2 is short; the row of m = 2
// holds the same number.
struct Natural {
  static constexpr char name[] = "vdLn";
  static constexpr double log_2 = 0.6931471805601177;
  static constexpr long double x87_log_2 = 0x1.62e42fefa39ef358p-1L;
  alignas(16) static constexpr double rows[257][4] = {
#include "logarithms/ln/rows_d_ep.inc"
  };
  static f64x2 sum(f64x2 u, f64x2 rest) { return (u + -0.49999999999924227 * (u * u)) + rest; }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dLn_W7EPnnn(int n, const double* a, double* r) {
  ork::block<ork::LogEpD<ork::Natural>>(n, {{a}, {r}});
}
