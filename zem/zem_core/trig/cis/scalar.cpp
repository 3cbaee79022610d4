// cos x + i sin x of one element, any argument.
#include "trig/scalar.hpp"

#include "base/export.hpp"

namespace {

template <class T>
void element(int index, const T* a, T* r) {
  ork::trig::scalar_sincos(a + index, r + 2 * index + 1, r + 2 * index);
}

}  // namespace

#define CIS(NAME, T) \
  ORK_EXPORT void ork_zem_kernel_##NAME(int index, const T* a, T* r) { element(index, a, r); }
CIS(cCIS_SC_HA, float)
CIS(cCIS_SC_LA, float)
CIS(cCIS_SC_A11, float)
CIS(zCIS_SC, double)
CIS(zCIS_SC_HA, double)
CIS(zCIS_SC_LA, double)
CIS(zCIS_SC_A11, double)
