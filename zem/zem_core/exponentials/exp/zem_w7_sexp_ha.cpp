#include "exponentials/exp/exp_s.hpp"

ORK_EXPORT void ork_zem_kernel_sExp_W7HAynn(int n, const float* a, float* r) {
  ork::block<ork::ExpS<ork::ExpHaS>>(n, {{a}, {r}});
}
