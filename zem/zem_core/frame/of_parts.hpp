#pragma once
// Complex functions made of a core for real numbers.
#include "frame/block.hpp"
#include "ork/zem_kernels.h"

namespace ork {

// A real function of the two parts: Real's of two arguments. swapped: of (im, re).
template <class Real, bool swapped = false>
struct OfParts : Core<Complex<typename Real::type>, 1, 1, typename Real::type> {
  using T = typename Real::type;
  static constexpr unsigned x87 = Real::x87;
  ORK_INLINE vec_of<T> eval(const Planes<vec_of<T>>& z, u32x4& rare) {
    return swapped ? Real::eval(z.im, z.re, rare) : Real::eval(z.re, z.im, rare);
  }
  static void special(const Complex<T>* z, T* r) {
    swapped ? Real::special(&z->im, &z->re, r) : Real::special(&z->re, &z->im, r);
  }
};

// The two results of a real function as parts, the first as the imaginary one.
template <class Real>
struct AsParts : Core<typename Real::type, 1, 1, Complex<typename Real::type>> {
  using T = typename Real::type;
  static constexpr unsigned x87 = Real::x87;
  ORK_INLINE Planes<vec_of<T>> eval(vec_of<T> x, u32x4& rare) {
    Planes<vec_of<T>> z;
    z.im = Real::eval(x, z.re, rare);
    return z;
  }
  static void special(const T* x, Complex<T>* r) { Real::special(x, &r->im, &r->re); }
};

}  // namespace ork
