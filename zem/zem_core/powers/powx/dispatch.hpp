#pragma once
// Exponents of Powx at HA that are another function's business, told by bits. The calls jump
// through the HA slot of that function's table.
#include "base/image.hpp"
#include "frame/block.hpp"
#include "ork/zem_kernels.h"

namespace ork {

#define ORK_POWX_CALL(F)                                        \
  ORK_INLINE void call_##F(int n, const double* a, double* r) { \
    ork_zem_kernel_d##F##_ttab[1](n, a, r);                     \
  }                                                             \
  ORK_INLINE void call_##F(int n, const float* a, float* r) {   \
    ork_zem_kernel_s##F##_ttab[1](n, a, r);                     \
  }
ORK_POWX_CALL(Sqrt)
ORK_POWX_CALL(InvSqrt)
ORK_POWX_CALL(Inv)
ORK_POWX_CALL(Cbrt)
ORK_POWX_CALL(InvCbrt)
ORK_POWX_CALL(Pow2o3)
ORK_POWX_CALL(Pow3o2)
#undef ORK_POWX_CALL

template <class T>
struct PowxSquare : Core<T> {
  static constexpr char name[] = "";
  static constexpr int vectors = sizeof(T) / 4;  // blocks of 4
  ORK_INLINE vec_of<T> eval(vec_of<T> x, u32x4&) { return x * x; }
  static int special(const T*, T*) { return 0; }  // no lane is rare
};

// True if b was one of them and the call is done.
template <class T>
ORK_INLINE bool powx_is_done(int n, const T* a, T b, T* r) {
  const auto is = [&](double x) { return image(&b) == as<bits_of<T>>((T)x); };
  if (is(2.0))
    block<PowxSquare<T>>(n, {{a}, {r}});
  else if (is(0.5))
    call_Sqrt(n, a, r);
  else if (is(-0.5))
    call_InvSqrt(n, a, r);
  else if (is(-1.0))
    call_Inv(n, a, r);
  else if (is(0.3333333333333333))
    call_Cbrt(n, a, r);
  else if (is(-0.3333333333333333))
    call_InvCbrt(n, a, r);
  else if (is(0.6666666666666666))
    call_Pow2o3(n, a, r);
  else if (is(1.5))
    call_Pow3o2(n, a, r);
  else
    return false;
  return true;
}

// Zero, infinite or NaN.
template <class T>
ORK_INLINE bool powx_is_special(T b) {
  return magnitude(&b) == 0 || magnitude(&b) >= infinity_bits<T>;
}

}  // namespace ork
