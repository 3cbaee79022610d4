// Minimum and maximum: the caller's arrays hold the values to start from.
#include <string.h>

#include "base/scratch.hpp"
#include "base/vec.hpp"
#include "rua_kernel/ss/service/computation.hpp"
#include "rua_kernel/ss/service/task.hpp"

namespace ork::ss {
namespace {

ORK_INLINE f64x2 least(f64x2 x, f64x2 y) { return _mm_min_pd(x, y); }  // y where x is NaN
ORK_INLINE f32x4 least(f32x4 x, f32x4 y) { return _mm_min_ps(x, y); }
ORK_INLINE f64x2 most(f64x2 x, f64x2 y) { return _mm_max_pd(x, y); }
ORK_INLINE f32x4 most(f32x4 x, f32x4 y) { return _mm_max_ps(x, y); }

// The least of start and x, kept strictly: an equal value or a NaN replaces nothing.
template <class R, bool minimum>
R extreme(const R* x, int n, R start) {
  typedef vec_of<R> V;
  constexpr int width = simd<R>::width, chains = 4;
  const auto take = [](auto a, auto b) { return minimum ? least(a, b) : most(a, b); };
  const auto take_one = [](R a, R now) { return (minimum ? a < now : a > now) ? a : now; };
  V now[chains];
  for (V& v : now) v = splat(start);
  int i = 0;
  for (; i + chains * width <= n; i += chains * width)
#pragma GCC unroll 4
    for (int c = 0; c < chains; ++c) now[c] = take(load(x + i + c * width), now[c]);
  R result = start;
  for (const V& v : now)
    for (int l = 0; l < width; ++l) result = take_one(v[l], result);
  for (; i < n; ++i) result = take_one(x[i], result);
  return result;
}

// The extremes of all variables, an observation after another.
template <class R, bool minimum>
void extremes(const R* x, int n, int p, R* now) {
  typedef vec_of<R> V;
  constexpr int width = simd<R>::width, chains = 4;
  const auto take = [](auto a, auto b) { return minimum ? least(a, b) : most(a, b); };
  int j = 0;
  for (; j + chains * width <= p; j += chains * width) {
    V a[chains];
    for (int c = 0; c < chains; ++c) a[c] = load(now + j + c * width);
    const R* from = x + j;
    for (int i = 0; i < n; ++i, from += p)
#pragma GCC unroll 4
      for (int c = 0; c < chains; ++c) a[c] = take(load(from + c * width), a[c]);
    for (int c = 0; c < chains; ++c) store(now + j + c * width, a[c]);
  }
  for (; j + width <= p; j += width) {
    V a = load(now + j);
    const R* from = x + j;
    for (int i = 0; i < n; ++i, from += p) a = take(load(from), a);
    store(now + j, a);
  }
  for (; j < p; ++j) {
    R a = now[j];
    const R* from = x + j;
    for (int i = 0; i < n; ++i, from += p) a = (minimum ? *from < a : *from > a) ? *from : a;
    now[j] = a;
  }
}

template <class R, bool minimum>
void run(const Task<R>& t, R* now, R* copy) {
  const int p = t.p(), n = t.n();
  if (t.rows()) {
    for (int j = 0; j < p; ++j)
      if (t.selected(j)) now[j] = extreme<R, minimum>(t.observations + size_t(j) * n, n, now[j]);
    return;
  }
  // Variables run side by side; with a mask, in a copy.
  if (copy) memcpy(copy, now, size_t(p) * sizeof(R));
  constexpr int chunk = 16384 / sizeof(R);  // reals that stay in the cache
  const int step = chunk / p > 16 ? chunk / p : 16;
  for (int i = 0; i < n; i += step)
    extremes<R, minimum>(t.observations + size_t(i) * p, n - i < step ? n - i : step, p,
                         copy ? copy : now);
  if (copy)
    for (int j = 0; j < p; ++j)
      if (t.selected(j)) now[j] = copy[j];
}

template <class R>
int32_t minmax(const Task<R>& t, uint64_t estimates, uint64_t method, const ork_threader*) {
  const bool min = estimates & ORK_SS_MIN, max = estimates & ORK_SS_MAX;
  if (!(t.integer(t.storageFormat) & kLayouts)) return ORK_SS_BAD_STORAGE;
  if (min && !t.min) return ORK_SS_NULL_MIN;
  if (max && !t.max) return ORK_SS_NULL_MAX;
  if (!(method & (ORK_SS_FAST | ORK_SS_ONE_PASS))) return ORK_SS_BAD_METHOD;
  Scratch<R> copy;
  if (!t.rows() && t.variableMask) {
    copy = Scratch<R>(t.p());
    if (!copy) return ORK_SS_NO_MEMORY;
  }
  if (min) run<R, true>(t, t.min, copy.get());
  if (max) run<R, false>(t, t.max, copy.get());
  return ORK_SS_OK;
}

}  // namespace

ORK_COMPUTATION(Minmax, minmax)

}  // namespace ork::ss
