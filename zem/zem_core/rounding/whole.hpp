#pragma once
// What the rounding functions share. Adding and subtracting 2^52 (2^23 in single) drops the
// fraction of a smaller number in the rounding mode in force. A number at or above it is whole.
#include "base/image.hpp"
#include "frame/block.hpp"
#include "ork/zem_kernels.h"

namespace ork {

template <class T>
struct Whole;
template <>
struct Whole<double> {
  static constexpr f64x2 big = {0x1p52, 0x1p52};
  static constexpr u64x2 sign = sign_f64x2;
  static constexpr i32x4 below = {-1, 0x432FFFFF, -1, 0x432FFFFF};  // high word of the last below
};
template <>
struct Whole<float> {
  static constexpr f32x4 big = {0x1p23f, 0x1p23f, 0x1p23f, 0x1p23f};
  static constexpr u32x4 sign = sign_f32x4;
  static constexpr i32x4 below = {0x4AFFFFFF, 0x4AFFFFFF, 0x4AFFFFFF, 0x4AFFFFFF};
};

// The base of the cores: rare lanes are those at or above `big`, infinities and NaNs.
template <class T, int Outputs = 1>
struct WholeCore : Core<T, 1, Outputs>, Whole<T> {
  using vec = vec_of<T>;
  using ivec = typename simd<T>::ivec;
  static constexpr char name[] = "";  // no element is ever reported

  ORK_INLINE ivec sign_of(vec x) { return as<ivec>(x) & Whole<T>::sign; }
  ORK_INLINE u32x4 large(vec x) { return as<u32x4>(as<i32x4>(abs(x)) > Whole<T>::below); }
  static int special(const T* x, T* r) {
    *r = magnitude(x) < infinity_bits<T> ? *x : *x + *x;
    return ZEM_STATUS_NONE;
  }
};

}  // namespace ork
