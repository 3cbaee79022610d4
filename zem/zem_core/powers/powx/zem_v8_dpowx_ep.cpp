#include "powers/pow_d_ep.hpp"
#include "powers/powx/powx_d.hpp"

namespace ork {

struct PowxEpD : PowxBaseD {
  using PowxBaseD::PowxBaseD;
  __attribute__((always_inline)) f64x2 eval(f64x2 a, u32x4& rare) const {
    return pow_main_ep(a, splat(b), rare);
  }
};

}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dPowx_V8EPnnn(int n, const double* a, double b, double* r) {
  ork::chunk<ork::PowxEpD>(n, {{a}, {r}}, ork::PowxEpD(b));
}
