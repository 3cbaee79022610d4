// Comparison sorts and selection under their exported names.
#include "base/export.hpp"
#include "ork/ss_math.h"
#include "rua_sub_kernel/math/select.hpp"

namespace ork {

ORK_EXPORT double __ruadQSortSelect(int n, double* a, int k) {
  select(Reals<double>{a}, n, k);
  return a[k];
}
ORK_EXPORT float __ruasQSortSelect(int n, float* a, int k) {
  select(Reals<float>{a}, n, k);
  return a[k];
}

ORK_EXPORT void __ruadQSort(int n, double* a) { quicksort(Reals<double>{a}, n); }
ORK_EXPORT void __ruasQSort(int n, float* a) { quicksort(Reals<float>{a}, n); }

ORK_EXPORT void __ruadQSortStep(int n, double* a, int stride) {
  quicksort(StridedReals<double>{a, stride}, n);
}
ORK_EXPORT void __ruasQSortStep(int n, float* a, int stride) {
  quicksort(StridedReals<float>{a, stride}, n);
}

ORK_EXPORT void _vdSSQuickMapSort(int n, double* keys, double* values) {
  quicksort(Pairs<double>{keys, values}, n);
}
ORK_EXPORT void _vsSSQuickMapSort(int n, float* keys, float* values) {
  quicksort(Pairs<float>{keys, values}, n);
}

}  // namespace ork
