#include "roots/invcbrt/invcbrt_single.hpp"

ORK_EXPORT void ork_zem_kernel_sInvCbrt_W7EPnnn(int n, const float* a, float* r) {
  ork::block<ork::InvCbrtS<ork::Level::ep>>(n, {{a}, {r}});
}
