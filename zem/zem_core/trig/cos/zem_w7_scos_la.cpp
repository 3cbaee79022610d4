#include "ork/zem_kernels.h"
#include "trig/pi_single.hpp"

namespace ork::trig {

struct CosLaS : SingleLa<Cosine> {
  static constexpr char name[] = "sCos_LA";
};

}  // namespace ork::trig

ORK_EXPORT void ork_zem_kernel_sCos_W7LAynn(int n, const float* a, float* r) {
  ork::block<ork::trig::CosLaS>(n, {{a}, {r}});
}
