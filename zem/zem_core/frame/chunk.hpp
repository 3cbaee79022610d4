#pragma once
// The frame of V8 kernels: a masked prefix up to the first input's 16-byte boundary, blocks,
// a masked suffix; the rare lanes of a chunk are finished before its clean ones are stored.
#include "frame/kernel.hpp"

namespace ork {

template <class C>
ORK_INLINE void chunk(int n, const OperandsOf<C>& o, const C& core = C{}) {
  if (n <= 0) return;
  using T = typename C::type;
  const Control<C> control;
  constexpr int width = C::vectors * lanes_of<C>;
  int i = (int)(-(uintptr_t)o.in[0] % 16 / sizeof(T));
  if (i > n) i = n;
  if (i != 0) finish<C, true>(core, o, 0, i);
  for (; i <= n - width; i += width)
    if (__builtin_expect(!block_is_clean(core, o, i), 0)) finish<C, true>(core, o, i, width);
  if (i < n) finish<C, true>(core, o, i, n - i);
}

}  // namespace ork
