#include "logarithms/log1p/log1p_d.hpp"

namespace ork {
namespace {

// LA: p of degree 5, ln 2 and T in one word each.
struct Log1pLa {
  static f64x2 sum(const ShortD& f, f64x2 s, f64x2 r, f64x2 e2) {
    const f64x2 v = r + e2;
    return short_sum(f, s, log1p_rows_d_la, 0.69314718055994529, v + log1p_degree5(v));
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dLog1p_V8LAynn(int n, const double* a, double* r) {
  ork::chunk<ork::Log1pD<ork::Log1pLa>>(n, {{a}, {r}});
}
