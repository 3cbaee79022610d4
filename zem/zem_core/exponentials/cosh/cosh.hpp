#pragma once
// Cosh of |x|: see exp_pair.hpp. Fast range: |x| below 708.4 (707.7 at LA), single 87.3365.
#include "exponentials/exp_pair.hpp"
#include "frame/block.hpp"
#include "frame/chunk.hpp"
#include "ork/zem_kernels.h"

namespace ork {

template <class Level>
struct Cosh : Core<typename Level::type> {
  using T = typename Level::type;
  using vec = vec_of<T>;
  static constexpr char name[] = {'v', sizeof(T) == 8 ? 'd' : 's', 'C', 'o', 's', 'h', 0};
  ORK_INLINE vec eval(vec x, u32x4& rare) { return from_pair<Level, false>(abs(x), rare); }
  static int special(const T* x, T* r) { return pair_special<T, false>(x, r); }
};

}  // namespace ork
