#include "roots/invcbrt/invcbrt_single.hpp"

ORK_EXPORT void ork_zem_kernel_sInvCbrt_W7LAynn(int n, const float* a, float* r) {
  ork::block<ork::InvCbrtS<ork::Level::la>>(n, {{a}, {r}});
}
