// Kernels of the frames' own test: every frame and argument form around a core whose rare lanes
// and statuses are easy to foretell. Built into a small library of its own.
#include "frame/block.hpp"
#include "frame/chunk.hpp"
#include "frame/element.hpp"

namespace ork {

// Negative inputs are rare: -1 to -4 have the status 1 to 4, others none. The rare result is
// 1000 - x, the common one 2x + 1 (binary: with y for 1; two outputs: also -x).
template <class T>
struct Rule {
  static int status(T x) { return x < 0 && x >= T(-4) && x == T(int(x)) ? int(-x) : 0; }
  static u32x4 rare(vec_of<T> x) { return as<u32x4>(x); }
};

template <class T>
struct Toy1 : Core<T> {
  static constexpr char name[] = "toy1";
  vec_of<T> eval(vec_of<T> x, u32x4& rare) const {
    rare |= Rule<T>::rare(x);
    return x + x + splat(T(1));
  }
  int special(const T* x, T* r) const {
    *r = *x < 0 ? T(1000) - *x : *x + *x + T(1);
    return Rule<T>::status(*x);
  }
};
template <class T>
struct Toy2 : Core<T, 2, 1> {
  static constexpr char name[] = "toy2";
  static constexpr int vectors = 1;
  vec_of<T> eval(vec_of<T> x, vec_of<T> y, u32x4& rare) const {
    rare |= Rule<T>::rare(x);
    return x + x + y;
  }
  int special(const T* x, const T* y, T* r) const {
    *r = *x < 0 ? T(1000) - *x : *x + *x + *y;
    return Rule<T>::status(*x);
  }
};
template <class T>
struct ToyTwo : Core<T, 1, 2> {
  static constexpr char name[] = "toytwo";
  static constexpr int vectors = 4;
  static constexpr unsigned x87 = x87_extended;
  vec_of<T> eval(vec_of<T> x, vec_of<T>& r2, u32x4& rare) const {
    rare |= Rule<T>::rare(x);
    r2 = -x;
    return x + x + splat(T(1));
  }
  int special(const T* x, T* r, T* r2) const {
    *r = T(1000) - *x, *r2 = T(2000) - *x;
    return Rule<T>::status(*x);
  }
};
// A scalar of the call, as in Powx.
template <class T>
struct ToyScalar : Core<T> {
  static constexpr char name[] = "toyscalar";
  static constexpr unsigned rounding = 0x2000;
  T y;
  explicit ToyScalar(T y) : y(y) {}
  vec_of<T> eval(vec_of<T> x, u32x4& rare) const {
    rare |= Rule<T>::rare(x);
    return x + x + splat(y);
  }
  int special(const T* x, T* r) const {
    *r = T(1000) - *x;
    return Rule<T>::status(*x);
  }
  const T* second(const T*, int index) const { return array_with(&y, index); }
};

}  // namespace ork

using namespace ork;
#define TOY(t, T)                                                                           \
  ORK_EXPORT void t##block1(int n, const T* a, T* r) { block<Toy1<T>>(n, {{a}, {r}}); }     \
  ORK_EXPORT void t##chunk1(int n, const T* a, T* r) { chunk<Toy1<T>>(n, {{a}, {r}}); }     \
  ORK_EXPORT void t##element1(int n, const T* a, T* r) { element<Toy1<T>>(n, {{a}, {r}}); } \
  ORK_EXPORT void t##block2(int n, const T* a, const T* b, T* r) {                          \
    block<Toy2<T>>(n, {{a, b}, {r}});                                                       \
  }                                                                                         \
  ORK_EXPORT void t##chunk2(int n, const T* a, const T* b, T* r) {                          \
    chunk<Toy2<T>>(n, {{a, b}, {r}});                                                       \
  }                                                                                         \
  ORK_EXPORT void t##blocktwo(int n, const T* a, T* r, T* r2) {                             \
    block<ToyTwo<T>>(n, {{a}, {r, r2}});                                                    \
  }                                                                                         \
  ORK_EXPORT void t##chunktwo(int n, const T* a, T* r, T* r2) {                             \
    chunk<ToyTwo<T>>(n, {{a}, {r, r2}});                                                    \
  }                                                                                         \
  ORK_EXPORT void t##blockscalar(int n, const T* a, T y, T* r) {                            \
    block(n, {{a}, {r}}, ToyScalar<T>(y));                                                  \
  }
TOY(d, double)
TOY(s, float)
