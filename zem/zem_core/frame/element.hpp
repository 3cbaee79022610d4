#pragma once
// The frame of PX kernels with no vector core: every element through the scalar routine.
#include "frame/kernel.hpp"

namespace ork {

template <class C>
ORK_INLINE void element(int n, const OperandsOf<C>& o, const C& core = C{}) {
  if (n <= 0) return;
  using T = typename C::type;
  const Control<C> control;
  for (int i = 0; i < n; ++i) {
    T x[C::inputs];
    for (int k = 0; k < C::inputs; ++k) __builtin_memcpy(x + k, o.in[k] + i, sizeof(T));
    special_element(core, o, i, x, x + C::inputs - 1);
  }
}

}  // namespace ork
