#include "ork/zem_kernels.h"
#include "trig/pi_single.hpp"

namespace ork::trig {

struct CosEpS : SingleEp<Cosine> {
  static constexpr char name[] = "sCos_A11";
};

}  // namespace ork::trig

ORK_EXPORT void ork_zem_kernel_sCos_W7EPnnn(int n, const float* a, float* r) {
  ork::block<ork::trig::CosEpS>(n, {{a}, {r}});
}
