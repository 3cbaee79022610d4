#include "frame/element.hpp"
#include "powers/powx/dispatch.hpp"
#include "powers/powx/powx_d.hpp"

ORK_EXPORT void ork_zem_kernel_dPowx_W7HAynn(int n, const double* a, double b, double* r) {
  if (ork::powx_is_done(n, a, b, r)) return;
  if (ork::powx_is_special(b))
    ork::element<ork::PowxBaseD>(n, {{a}, {r}}, ork::PowxBaseD(b));
  else
    ork::block<ork::PowxD>(n, {{a}, {r}}, ork::PowxD(b));
}
