#include "base/pair.hpp"
#include "logarithms/log1p/log1p_d.hpp"

namespace ork {
namespace {

// HA: p of degree 5; two-word ln 2 and table, sums with their errors kept. K is the biased
// exponent: the rows hold -1023 ln 2, too.
struct Log1pHa {
  alignas(16) static constexpr double rows[][2] = {
#include "logarithms/log1p/rows_d_ha.inc"
  };
  static f64x2 sum(const ShortD& f, f64x2 s, f64x2 r, f64x2 e2) {
    f64x2 l_hi, l_lo;
    gather_pairs(rows[f.row0()], rows[f.row1()], l_hi, l_lo);
    const f64x2 k = exponent_less(s, 0.0);
    const f64x2 a = l_hi + k * 0.69314718055829871, b = l_lo + k * 1.6465949582866463e-12;
    const auto [v, v_error] = exact_sum(r, e2);  // r = 0 or e2 below it where it counts
    const auto [y, y_error] = exact_sum(a, v);   // a = 0 or above v
    return y + (y_error + ((b + v_error) + log1p_degree5(v)));
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dLog1p_V8HAynn(int n, const double* a, double* r) {
  ork::chunk<ork::Log1pD<ork::Log1pHa>>(n, {{a}, {r}});
}
