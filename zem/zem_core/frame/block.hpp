#pragma once
// The frame of W7 and T7 kernels: blocks from the first element on, no peeling; a block with
// a rare lane is redone lane by lane in index order; then the tail.
#include "frame/kernel.hpp"

namespace ork {

template <class C>
ORK_INLINE void block(int n, const OperandsOf<C>& o, const C& core = C{}) {
  if (n <= 0) return;
  const Control<C> control;
  constexpr int width = C::vectors * lanes_of<C>;
  int i = 0;
  for (; i <= n - width; i += width)
    if (__builtin_expect(!block_is_clean(core, o, i), 0)) finish<C, false>(core, o, i, width);
  if (i < n) finish<C, false>(core, o, i, n - i);
}

}  // namespace ork
