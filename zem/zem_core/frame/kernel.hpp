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
#include "base/control.hpp"
#include "base/export.hpp"
#include "base/vec.hpp"
#include "frame/mode.hpp"

namespace ork {

enum class Csr {
  from_mode,  // denormals as the mode word says, rounding as Core::rounding
  cleared,    // denormals kept, whatever the mode
  untouched,
};

template <class T, int Inputs = 1, int Outputs = 1>
struct Core {
  using type = T;
  using vec = vec_of<T>;
  static constexpr int inputs = Inputs, outputs = Outputs;
  static constexpr int vectors = 2;  // vectors in a block
  static constexpr Csr csr = Csr::from_mode;
  static constexpr unsigned rounding = 0;  // MXCSR rounding control
  static constexpr unsigned x87 = 0;       // x87 control, or 0: not used
  // What the error report of an element takes as second input array.
  const T* second(const T* last_input, int) const { return last_input; }
};

// For Core::second: an array whose element `index`, the only one read, is *x.
template <class T>
ORK_INLINE const T* array_with(const T* x, int index) {
  return reinterpret_cast<const T*>((uintptr_t)x - (uintptr_t)index * sizeof(T));
}

// The arrays of a call.
template <class T, int Inputs, int Outputs>
struct Operands {
  const T* in[Inputs];
  T* out[Outputs];
};
template <class C>
using OperandsOf = Operands<typename C::type, C::inputs, C::outputs>;

// The processor state around a body.
template <class C>
struct Control {
  __attribute__((always_inline)) static unsigned wanted() {
    if constexpr (C::csr == Csr::cleared) return 0;
    return mxcsr_of_mode(_zem_static_wrapper32_GetMode()) | C::rounding;
  }
  MxcsrGuard mxcsr{wanted()};
  X87Guard<C::x87> x87;
};
template <class C>
requires(C::csr == Csr::untouched) struct Control<C> {
  X87Guard<C::x87> x87;
};

template <class C>
concept has_rest = requires(const C core, typename C::vec x, u32x4 rare) {
  core.eval_rest(x, x, rare);
};

// One vector of every input in, one of every output out.
template <class C>
struct Lanes {
  using T = typename C::type;
  vec_of<T> in[C::inputs], out[C::outputs];

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

// Raises an element's event. Its result stands in the outputs before and after.
template <class C>
inline void report(const C& core, const OperandsOf<C>& o, int i, int status) {
  const auto* b = core.second(o.in[C::inputs - 1], i);
  if constexpr (sizeof(typename C::type) == 8)
    ork_zem_kernel_dError(status, i, o.in[0], b, o.out[0], o.out[C::outputs - 1], C::name);
  else
    ork_zem_kernel_sError(status, i, o.in[0], b, o.out[0], o.out[C::outputs - 1], C::name);
}

// One element through the scalar routine, from the lane's own copies of inputs and outputs to
// the arrays.
template <class C>
inline void special_element(const C& core, const OperandsOf<C>& o, int i, const typename C::type* x,
                            const typename C::type* x2) {
  typename C::type y[C::outputs];
  int status;
  if constexpr (C::inputs == 2)
    status = core.special(x, x2, y);
  else if constexpr (C::outputs == 2)
    status = core.special(x, y, y + 1);
  else
    status = core.special(x, y);
  for (int k = 0; k < C::outputs; ++k) __builtin_memcpy(o.out[k] + i, y + k, sizeof y[k]);
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
  using T = typename C::type;
  constexpr int width = simd<T>::width;
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
      if (sign_mask<T>(rare) != 0) lanes.eval_rest(core, rare = u32x4{});
    const int mask = sign_mask<T>(rare) & ((1 << active) - 1);
    if (mask == 0 && active == width) {
      lanes.store(o, i);
      continue;
    }
    alignas(16) T x[C::inputs][width], y[C::outputs][width];
    for (int k = 0; k < C::inputs; ++k) store_aligned(x[k], lanes.in[k]);
    for (int k = 0; k < C::outputs; ++k) store_aligned(y[k], lanes.out[k]);
    const auto store_clean = [&](int lane) {
      for (int k = 0; k < C::outputs; ++k)
        __builtin_memcpy(o.out[k] + i + lane, &y[k][lane], sizeof(T));
    };
    for (int lane = 0; lane < active; ++lane) {
      if (mask >> lane & 1)
        special_element(core, o, i + lane, &x[0][lane], &x[C::inputs - 1][lane]);
      else if (!clean_last)
        store_clean(lane);
    }
    if (clean_last)
      for (int lane = 0; lane < active; ++lane)
        if (!(mask >> lane & 1)) store_clean(lane);
  }
}

// A block of full vectors. False, with nothing stored, if a lane is rare.
template <class C>
ORK_INLINE bool block_is_clean(const C& core, const OperandsOf<C>& o, int i) {
  using T = typename C::type;
  constexpr int width = simd<T>::width;
  Lanes<C> lanes[C::vectors];
  u32x4 rare{};
#pragma GCC unroll 8
  for (int v = 0; v < C::vectors; ++v) {
    lanes[v].load(o, i + v * width);
    lanes[v].eval(core, rare);
  }
  if (__builtin_expect(sign_mask<T>(rare) != 0, 0)) {
    if constexpr (!has_rest<C>)
      return false;
    else {
      rare = u32x4{};
      for (int v = 0; v < C::vectors; ++v) lanes[v].eval_rest(core, rare);
      if (sign_mask<T>(rare) != 0) return false;
    }
  }
#pragma GCC unroll 8
  for (int v = 0; v < C::vectors; ++v) lanes[v].store(o, i + v * width);
  return true;
}

}  // namespace ork
