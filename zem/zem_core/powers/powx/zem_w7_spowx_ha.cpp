#include "frame/element.hpp"
#include "powers/powx/dispatch.hpp"
#include "powers/powx/powx_s.hpp"

ORK_EXPORT void ork_zem_kernel_sPowx_W7HAynn(int n, const float* a, float b, float* r) {
  using C = ork::PowxS<ork::Level::ha>;
  if (ork::powx_is_done(n, a, b, r)) return;
  if (ork::powx_is_special(b))
    ork::element<C>(n, {{a}, {r}}, C(b));
  else
    ork::block<C>(n, {{a}, {r}}, C(b));
}
