#include "ork/zem_kernels.h"
#include "trig/pi_single.hpp"

namespace ork::trig {

struct SinEpS : SingleEp<Sine> {
  static constexpr char name[] = "sSin_A11";
};

}  // namespace ork::trig

ORK_EXPORT void ork_zem_kernel_sSin_W7EPnnn(int n, const float* a, float* r) {
  ork::block<ork::trig::SinEpS>(n, {{a}, {r}});
}
