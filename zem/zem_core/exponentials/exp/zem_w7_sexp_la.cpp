#include "exponentials/exp/exp_s.hpp"

ORK_EXPORT void ork_zem_kernel_sExp_W7LAynn(int n, const float* a, float* r) {
  ork::block<ork::ExpS<ork::ExpLaS>>(n, {{a}, {r}});
}
