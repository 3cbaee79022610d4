#pragma once
// What a core tells its frame, and what all frames share: operands, rare lanes, the guards.
//
// A core is a small struct with the arithmetic of one vector. It derives from Core<T> for
// the defaults and supplies
//
//   static constexpr char name[] = "vdExp";           the name in error reports
//   vec eval(vec x, u32x4& rare) const;               sign bit of a lane of `rare` set: the
//                                                     lane needs `special`
//   int special(const T* x, T* r) const;              one rare element: writes *r, returns
//                                                     its status
//
// A unary core whose rare lanes are mostly ordinary values may have a second vector path:
// eval_rest(x, r, rare) returns r with the lanes replaced that eval called rare, and calls
// rare in its turn what is for `special`.
//
// With two inputs: eval(a, b, rare) and special(a, b, r). With two outputs: eval(x, second,
// rare), special(x, r, r2). Scalars of a call are members of the core. Lanes are independent:
// the bits of an element do not depend on its place. `special` takes pointers so that a
// signalling NaN is not quieted on its way through an x87 register.
//
// Elements are float, double, or Complex of them, whose vectors are Planes (complex.hpp). Inputs
// may be complex and outputs real, or the reverse; such a core has no statuses, and its `special`
// returns nothing. A core with `total` has no rare lanes and no `special`.
#include "base/control.hpp"
#include "base/export.hpp"
#include "base/vec.hpp"
#include "frame/complex.hpp"
#include "frame/mode.hpp"

namespace ork {

enum class Csr {
  from_mode,  // denormals as the mode word says, rounding as Core::rounding
  cleared,    // denormals kept, whatever the mode
  untouched,
};

// In, Out: the types of an input's and an output's elements.
template <class In, int Inputs = 1, int Outputs = 1, class Out = In>
struct Core {
  using type = In;
  using result = Out;
  using real = typename Element<In>::real;
  using vec = typename Element<In>::vec;
  using result_vec = typename Element<Out>::vec;
  static constexpr int inputs = Inputs, outputs = Outputs;
  static constexpr int vectors = 2;  // vectors in a block
  static constexpr bool total = false;
  static constexpr Csr csr = Csr::from_mode;
  static constexpr unsigned rounding = 0;  // MXCSR rounding control
  static constexpr unsigned x87 = 0;       // x87 control, or 0: not used
  // What the error report of an element takes as second input array.
  const In* second(const In* last_input, int) const { return last_input; }
};

// Elements in a vector of a core, and whether it has statuses.
template <class C>
inline constexpr int lanes_of = simd<typename C::real>::width;
template <class C>
inline constexpr bool has_statuses = __is_same(typename C::type, typename C::result);

// For Core::second: an array whose element `index`, the only one read, is *x.
template <class T>
ORK_INLINE const T* array_with(const T* x, int index) {
  return reinterpret_cast<const T*>((uintptr_t)x - (uintptr_t)index * sizeof(T));
}

// The arrays of a call.
template <class In, int Inputs, class Out, int Outputs>
struct Operands {
  const In* in[Inputs];
  Out* out[Outputs];
};
template <class C>
using OperandsOf = Operands<typename C::type, C::inputs, typename C::result, C::outputs>;

// The pairs of an exported entry's array.
template <class R>
ORK_INLINE const Complex<R>* pairs(const R* p) {
  return reinterpret_cast<const Complex<R>*>(p);
}
template <class R>
ORK_INLINE Complex<R>* pairs(R* p) {
  return reinterpret_cast<Complex<R>*>(p);
}

// The processor state around a body.
template <class C>
struct Control {
  __attribute__((always_inline)) static unsigned wanted() {
    if constexpr (C::csr == Csr::cleared) return 0;
    return mxcsr_of_mode(current_mode()) | C::rounding;
  }
  MxcsrGuard mxcsr{wanted()};
  X87Guard<C::x87> x87;
};
template <class C>
requires(C::csr == Csr::untouched) struct Control<C> {
  X87Guard<C::x87> x87;
};

template <class C>
concept has_rest = requires(const C core, typename C::vec x, typename C::result_vec r, u32x4 rare) {
  core.eval_rest(x, r, rare);
};

// One vector of every input in, one of every output out.
template <class C>
struct Lanes {
  typename C::vec in[C::inputs];
  typename C::result_vec out[C::outputs];

  __attribute__((always_inline)) void load(const OperandsOf<C>& o, int i) {
    for (int k = 0; k < C::inputs; ++k) in[k] = ork::load(o.in[k] + i);
  }
  __attribute__((always_inline)) void load_part(const OperandsOf<C>& o, int i, int count) {
    for (int k = 0; k < C::inputs; ++k) in[k] = ork::load_part(o.in[k] + i, count);
  }
  __attribute__((always_inline)) void store(const OperandsOf<C>& o, int i) const {
    for (int k = 0; k < C::outputs; ++k) ork::store(o.out[k] + i, out[k]);
  }
  __attribute__((always_inline)) void eval(const C& core, u32x4& rare) {
    if constexpr (C::inputs == 2)
      out[0] = core.eval(in[0], in[1], rare);
    else if constexpr (C::outputs == 2)
      out[0] = core.eval(in[0], out[1], rare);
    else
      out[0] = core.eval(in[0], rare);
  }
  // The core's second vector path, if it has one. `rare` is what remains.
  __attribute__((always_inline)) void eval_rest(const C& core, u32x4& rare) {
    out[0] = core.eval_rest(in[0], out[0], rare);
  }
};

// The dispatch of an element type.
ORK_INLINE void raise(int status, int i, const float* a, const float* b, float* r, float* r2,
                      const char* name) {
  ork_zem_kernel_sError(status, i, a, b, r, r2, name);
}
ORK_INLINE void raise(int status, int i, const double* a, const double* b, double* r, double* r2,
                      const char* name) {
  ork_zem_kernel_dError(status, i, a, b, r, r2, name);
}
template <class R>
ORK_INLINE void raise(int status, int i, const Complex<R>* a, const Complex<R>* b, Complex<R>* r,
                      Complex<R>* r2, const char* name) {
  constexpr auto dispatch = [] {
    if constexpr (sizeof(R) == 8)
      return ork_zem_kernel_zError;
    else
      return ork_zem_kernel_cError;
  }();
  const auto in = [](const Complex<R>* p) { return reinterpret_cast<const R*>(p); };
  const auto out = [](Complex<R>* p) { return reinterpret_cast<R*>(p); };
  dispatch(status, i, in(a), in(b), out(r), out(r2), name);
}

// Raises an element's event. Its result stands in the outputs before and after.
template <class C>
inline void report(const C& core, const OperandsOf<C>& o, int i, int status) {
  raise(status, i, o.in[0], core.second(o.in[C::inputs - 1], i), o.out[0], o.out[C::outputs - 1],
        C::name);
}

// One element through the scalar routine, from the lane's own copies of inputs and outputs to
// the arrays.
template <class C>
inline void special_element(const C& core, const OperandsOf<C>& o, int i, const typename C::type* x,
                            const typename C::type* x2) {
  typename C::result y[C::outputs];
  int status = ZEM_STATUS_NONE;
  if constexpr (!has_statuses<C>)
    core.special(x, y);
  else if constexpr (C::inputs == 2)
    status = core.special(x, x2, y);
  else if constexpr (C::outputs == 2)
    status = core.special(x, y, y + 1);
  else
    status = core.special(x, y);
  for (int k = 0; k < C::outputs; ++k) __builtin_memcpy(o.out[k] + i, y + k, sizeof y[k]);
  if constexpr (has_statuses<C>)
    if (status != ZEM_STATUS_NONE) report(core, o, i, status);
}

// The slow way through `count` elements from `first`: any count, any lane rare. Vector by
// vector; a vector's inputs are read before its first result is stored, so that in-place
// calls are safe.
//
// clean_last = false: all lanes are finished in index order.
// clean_last = true: the rare lanes first, lowest first, then the others are stored.
template <class C, bool clean_last>
__attribute__((noinline, cold)) void finish(const C& core, const OperandsOf<C>& o, int first,
                                            int count) {
  using In = typename C::type;
  using Out = typename C::result;
  constexpr int width = lanes_of<C>;
  for (int i = first; i < first + count; i += width) {
    const int active = first + count - i < width ? first + count - i : width;
    Lanes<C> lanes;
    if (active == width)
      lanes.load(o, i);
    else
      lanes.load_part(o, i, active);
    u32x4 rare{};
    lanes.eval(core, rare);
    if constexpr (has_rest<C>)
      if (sign_mask<typename C::real>(rare) != 0) lanes.eval_rest(core, rare = u32x4{});
    const int mask = C::total ? 0 : sign_mask<typename C::real>(rare) & ((1 << active) - 1);
    if (mask == 0 && active == width) {
      lanes.store(o, i);
      continue;
    }
    alignas(16) In x[C::inputs][width];
    alignas(16) Out y[C::outputs][width];
    for (int k = 0; k < C::inputs; ++k) store(x[k], lanes.in[k]);
    for (int k = 0; k < C::outputs; ++k) store(y[k], lanes.out[k]);
    const auto store_clean = [&](int lane) {
      for (int k = 0; k < C::outputs; ++k)
        __builtin_memcpy(o.out[k] + i + lane, &y[k][lane], sizeof(Out));
    };
    for (int lane = 0; lane < active; ++lane) {
      if constexpr (!C::total)
        if (mask >> lane & 1) {
          special_element(core, o, i + lane, &x[0][lane], &x[C::inputs - 1][lane]);
          continue;
        }
      if (!clean_last) store_clean(lane);
    }
    if (clean_last)
      for (int lane = 0; lane < active; ++lane)
        if (!(mask >> lane & 1)) store_clean(lane);
  }
}

// A block of full vectors. False, with nothing stored, if a lane is rare.
template <class C>
ORK_INLINE bool block_is_clean(const C& core, const OperandsOf<C>& o, int i) {
  using R = typename C::real;
  constexpr int width = lanes_of<C>;
  Lanes<C> lanes[C::vectors];
  u32x4 rare{};
#pragma GCC unroll 8
  for (int v = 0; v < C::vectors; ++v) {
    lanes[v].load(o, i + v * width);
    lanes[v].eval(core, rare);
  }
  if (!C::total && __builtin_expect(sign_mask<R>(rare) != 0, 0)) {
    if constexpr (!has_rest<C>)
      return false;
    else {
      rare = u32x4{};
      for (int v = 0; v < C::vectors; ++v) lanes[v].eval_rest(core, rare);
      if (sign_mask<R>(rare) != 0) return false;
    }
  }
#pragma GCC unroll 8
  for (int v = 0; v < C::vectors; ++v) lanes[v].store(o, i + v * width);
  return true;
}

}  // namespace ork
