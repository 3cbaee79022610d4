// Asin, single, HA: in double, see asin.hpp; in single the roundings of v y P alone left
// 0.63 ulp. Rare: |x| >= 1, NaN. Bound: 0.51 ulp.
#include "arcs/asin_s.hpp"
#include "frame/block.hpp"
#include "ork/zem_kernels.h"

namespace ork {
namespace {

struct AsinHaS : InDouble<Asin<double, AsinHaInDouble>> {
  static constexpr char name[] = "vsAsin";
  static int special(const float* x, float* r) { return sasin_special(x, r); }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_sAsin_T7HAynn(int n, const float* a, float* r) {
  ork::block<ork::AsinHaS>(n, {{a}, {r}});
}
