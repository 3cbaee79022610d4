#pragma once
#include "frame/block.hpp"
#include "ork/zem_kernels.h"

namespace ork {

// x * (1 with the sign of x). A NaN keeps its sign, a signalling one is quieted.
template <class T>
struct Abs : Core<T> {
  using vec = vec_of<T>;
  static constexpr char name[] = "";
  static constexpr Csr csr = Csr::untouched;
  static vec eval(vec x, u32x4&) {
    constexpr typename simd<T>::ivec dbAbsMask = [] {
      if constexpr (sizeof(T) == 8)
        return sign_f64x2;
      else
        return sign_f32x4;
    }();
    return x * or_bits(splat(T(1)), as<typename simd<T>::ivec>(x) & dbAbsMask);
  }
  static int special(const T*, T*) { return 0; }  // no lane is rare
};

}  // namespace ork
