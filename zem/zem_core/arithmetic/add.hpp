#pragma once
#include "frame/arith.hpp"
#include "ork/zem_kernels.h"

namespace ork {

struct Add {
  template <class V>
  ORK_INLINE V eval(V x, V y) {
    return x + y;
  }
};

}  // namespace ork
