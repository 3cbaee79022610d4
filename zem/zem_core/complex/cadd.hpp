#pragma once
#include "arithmetic/add.hpp"
#include "arithmetic/sub.hpp"
#include "base/image.hpp"
#include "frame/interleaved.hpp"

namespace ork {

template <class Op, class R>
struct SumName;
#define ORK_SUM_NAME(Op, R, text)        \
  template <>                            \
  struct SumName<Op, R> {                \
    static constexpr char name[] = text; \
  };
ORK_SUM_NAME(Add, float, "vcAdd")
ORK_SUM_NAME(Add, double, "vzAdd")
ORK_SUM_NAME(Sub, float, "vcSub")
ORK_SUM_NAME(Sub, double, "vzSub")
#undef ORK_SUM_NAME

// a + b or a - b, c and z, HA: plain sums; an infinite part of the result is an overflow if the
// operands are no cause of it.
template <class Op, class R>
struct ComplexSum : Core<Complex<R>, 2>, SumName<Op, R> {
  static constexpr unsigned x87 = sizeof(R) == 4 ? x87_double : 0;
  ORK_INLINE vec_of<R> eval(const R* a, const R* b) { return Op::eval(load(a), load(b)); }
  static int special(const Complex<R>* a, const Complex<R>* b, Complex<R>* r) {
    *r = {Op::eval(a->re, b->re), Op::eval(a->im, b->im)};
    constexpr auto infinity = infinity_bits<R>;
    if (magnitude(&r->re) != infinity && magnitude(&r->im) != infinity) return ZEM_STATUS_NONE;
    const R* const parts[] = {&a->re, &a->im, &b->re, &b->im};
    for (const R* part : parts) {
      // In single precision zeros and NaNs keep the status back, too.
      const bits_of<R> size = magnitude(part);
      if (sizeof(R) == 8 ? size == infinity : size - 1 >= infinity - 1) return ZEM_STATUS_NONE;
    }
    return ZEM_STATUS_OVERFLOW;
  }
};

// EP: no status.
struct SumStateC : Core<Complex<float>> {
  static constexpr unsigned x87 = x87_double;
};
template <class Op>
ORK_INLINE void complex_sum_ep(int n, const float* a, const float* b, float* r) {
  arith<Op, Complex<float>, SumStateC>(n, pairs(a), pairs(b), pairs(r), pairs(r));
}
// A sum does not mix the parts: it is one of twice as many real numbers.
template <class Op>
ORK_INLINE void complex_sum_ep(int n, const double* a, const double* b, double* r) {
  if (n > 0) arith<Op>(2 * n, a, b, r, r);
}

}  // namespace ork
