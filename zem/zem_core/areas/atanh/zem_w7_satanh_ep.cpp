// Atanh, single, EP: see atanh_s.hpp. Bound: 2^-12.
#include "areas/atanh/atanh_s.hpp"

ORK_EXPORT void ork_zem_kernel_sAtanh_W7EPnnn(int n, const float* a, float* r) {
  ork::block<ork::AtanhS<ork::AtanhLevel::ep>>(n, {{a}, {r}});
}
