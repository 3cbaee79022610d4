#include "roots/invcbrt/invcbrt.hpp"

ORK_EXPORT void ork_zem_kernel_dInvCbrt_W7HAynn(int n, const double* a, double* r) {
  ork::block<ork::InvCbrtD>(n, {{a}, {r}});
}
