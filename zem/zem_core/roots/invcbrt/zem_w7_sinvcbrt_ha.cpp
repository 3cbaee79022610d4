#include "roots/invcbrt/invcbrt_single.hpp"

ORK_EXPORT void ork_zem_kernel_sInvCbrt_W7HAynn(int n, const float* a, float* r) {
  ork::block<ork::InvCbrtHaS>(n, {{a}, {r}});
}
