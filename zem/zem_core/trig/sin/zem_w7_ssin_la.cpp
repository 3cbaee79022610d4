#include "ork/zem_kernels.h"
#include "trig/pi_single.hpp"

namespace ork::trig {

struct SinLaS : SingleLa<Sine> {
  static constexpr char name[] = "sSin_LA";
};

}  // namespace ork::trig

ORK_EXPORT void ork_zem_kernel_sSin_W7LAynn(int n, const float* a, float* r) {
  ork::block<ork::trig::SinLaS>(n, {{a}, {r}});
}
