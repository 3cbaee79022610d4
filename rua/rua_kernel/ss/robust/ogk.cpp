#include "rua_kernel/ss/robust/ogk.hpp"

#include "base/dense.hpp"
#include "base/scratch.hpp"
#include "base/threads.hpp"
#include "rua_kernel/ss/robust/tau.hpp"

namespace ork::ss {
namespace {

// Pieces of the scratch start on cache lines of their own.
uint64_t padded(uint64_t count) { return (count + 31) / 32 * 32; }
uint64_t packed(uint64_t p) { return p * (p + 1) / 2; }
uint64_t solver_reals(uint64_t p) { return (p + 6) * p + 1; }

// The scratch, and what the steps hand on in it.
template <class R>
struct Ogk {
  const Data<R>& data;
  R* centres;  // p medians
  R* scales;   // p reciprocals of scales; 0 for a variable that has none
  R* u;        // p by p, packed by columns of the lower triangle
  R* values;   // p
  R* axes;     // p by p, axis after axis
  R* work;     // of the eigensolver
  R* series;   // of thread 0; those of the others follow

  Ogk(const Data<R>& data, R* scratch) : data(data) {
    const uint64_t p = data.p;
    const auto take = [&](R*& piece, uint64_t count) {
      piece = scratch;
      scratch += padded(count);
    };
    take(centres, p);
    take(scales, p);
    take(u, packed(p));
    take(values, p);
    take(axes, p * p);
    take(work, solver_reals(p));
    series = scratch;
  }
  R* own(int thread, int k) const {
    return series + size_t(thread * kOgkSeries + k) * padded(data.n);
  }
};

// f<V, together>(i) over all observations; `together`: a variable's stand side by side.
template <class R, class F>
ORK_INLINE void over(const Data<R>& data, F f) {
  if (data.rows)
    sweep<R>(0, data.n, [&]<class V>(int i) { f.template operator()<V, true>(i); });
  else
    sweep<R>(0, data.n, [&]<class V>(int i) { f.template operator()<V, false>(i); });
}

// Observations from i on, as many as V has lanes.
template <class V, bool together, class R>
ORK_INLINE V lanes_of(const Series<R>& x, int i) {
  if constexpr (sizeof(V) == sizeof(R)) {
    return x[i];
  } else if constexpr (together) {
    return get<V>(x.x + i);
  } else {
    V v;
    for (int l = 0; l < simd<R>::width; ++l) v[l] = x[i + l];
    return v;
  }
}

template <class R>
void take_variable(const Ogk<R>& ogk, int j, int thread) {
  R *const x = ogk.own(thread, 0), *const scratch = ogk.own(thread, 1);
  const int n = ogk.data.n;
  ogk.data.variable(j).copy(0, n, x);
  memcpy(scratch, x, size_t(n) * sizeof(R));
  ogk.centres[j] = take_median(scratch, n);
  ogk.scales[j] = tau(x, n, scratch).inverse();
}

// Sum and difference of two variables in units of their scales: a quarter of the difference of
// their squared scales is their covariance. From each variable its median is taken first, which
// changes nothing but the rounding.
template <class R>
void take_pair(const Ogk<R>& ogk, int j, int k, R* to, int thread) {
  R *const sum = ogk.own(thread, 0), *const difference = ogk.own(thread, 1),
           *const scratch = ogk.own(thread, 2);
  const Series<R> x = ogk.data.variable(j), y = ogk.data.variable(k);
  const R centre_x = ogk.centres[j], scale_x = ogk.scales[j];
  const R centre_y = ogk.centres[k], scale_y = ogk.scales[k];
  over(ogk.data, [&]<class V, bool together>(int i) {
    const V a = (lanes_of<V, together>(x, i) - all<V>(centre_x)) * all<V>(scale_x);
    const V b = (lanes_of<V, together>(y, i) - all<V>(centre_y)) * all<V>(scale_y);
    put(sum + i, a + b);
    put(difference + i, a - b);
  });
  const int n = ogk.data.n;
  *to = (tau(sum, n, scratch).square - tau(difference, n, scratch).square) * R(0.25);
}

// All pairs are items of one launch, column after column of the triangle.
template <class R>
void take_pairs(const Ogk<R>& ogk, int threads, const ork_threader* threader) {
  const int p = ogk.data.p;
  run_items(threader, p * (p - 1) / 2, threads, [&](int item, int thread) {
    int j = 0, length = p - 1;  // of the column below its diagonal
    while (item >= length) item -= length--, ++j;
    R* const column = ogk.u + (size_t(j) * p - size_t(j) * (j - 1) / 2);
    take_pair(ogk, j, j + 1 + item, column + 1 + item, thread);
  });
  R* diagonal = ogk.u;
  for (int length = p; length > 0; diagonal += length--) *diagonal = 1;
}

// e += the squares of distances along an axis.
template <class R>
void take_axis(const Ogk<R>& ogk, const R* axis, R* e, int thread) {
  R *const z = ogk.own(thread, 0), *const scratch = ogk.own(thread, 1);
  const int n = ogk.data.n;
  memset(z, 0, size_t(n) * sizeof(R));
  for (int j = 0; j < ogk.data.p; ++j) {
    const Series<R> x = ogk.data.variable(j);
    const R centre = ogk.centres[j], share = axis[j] * ogk.scales[j];
    over(ogk.data, [&]<class V, bool together>(int i) {
      put(z + i, get<V>(z + i) + (lanes_of<V, together>(x, i) - all<V>(centre)) * all<V>(share));
    });
  }
  const Tau<R> t = tau(z, n, scratch);
  const R inverse = t.inverse();
  sweep<R>(0, n, [&]<class V>(int i) {
    const V d = (get<V>(z + i) - all<V>(t.location)) * all<V>(inverse);
    put(e + i, get<V>(e + i) + d * d);
  });
}

template <class R>
void take_axes(const Ogk<R>& ogk, int threads, R* e, const ork_threader* threader) {
  const int p = ogk.data.p, n = ogk.data.n;
  const auto sum_of = [&](int thread) { return thread == 0 ? e : ogk.own(thread, 2); };
  run_team(threader, threads, [&](int thread, int team) {
    memset(sum_of(thread), 0, size_t(n) * sizeof(R));
    const int each = p / team, first = thread * each;
    for (int r = first; r < (thread == team - 1 ? p : first + each); ++r)
      take_axis(ogk, ogk.axes + size_t(r) * p, sum_of(thread), thread);
  });
  for (int thread = 1; thread < threads; ++thread) {
    const R* more = sum_of(thread);
    sweep<R>(0, n, [&]<class V>(int i) { put(e + i, get<V>(e + i) + get<V>(more + i)); });
  }
}

}  // namespace

template <class R>
int ogk_threads(int n, const ork_threader* threader) {
  const int fit = int(10000000 / sizeof(R) / kOgkSeries / unsigned(n));
  return thread_limit(threader, fit);
}

template <class R>
uint64_t ogk_reals(int p, int n, int threads) {
  const uint64_t square = uint64_t(p) * p;
  return 3 * padded(p) + padded(packed(p)) + padded(square) + padded(solver_reals(p)) +
         uint64_t(threads) * kOgkSeries * padded(n);
}

template <class R>
int32_t ogk_distances(const Data<R>& data, int threads, R* scratch, R* e,
                      const ork_threader* threader) {
  const int p = data.p;
  const Ogk<R> ogk(data, scratch);
  run_items(threader, p, threads, [&](int j, int thread) { take_variable(ogk, j, thread); });
  take_pairs(ogk, threads, threader);
  const int real_count = int(solver_reals(p)), integer_count = 5 * p + 3;
  const Scratch<int> integers(integer_count);
  if (!integers) return ORK_SS_NO_MEMORY;
  int info = 0;
  Dense<R>::spevd("V", "L", &p, ogk.u, ogk.values, ogk.axes, &p, ogk.work, &real_count,
                  integers.get(), &integer_count, &info);
  if (info != 0) return ORK_SS_ROBUST_EIGEN;
  take_axes(ogk, threads, e, threader);
  return ORK_SS_OK;
}

template int ogk_threads<double>(int, const ork_threader*);
template int ogk_threads<float>(int, const ork_threader*);
template uint64_t ogk_reals<double>(int, int, int);
template uint64_t ogk_reals<float>(int, int, int);
template int32_t ogk_distances(const Data<double>&, int, double*, double*, const ork_threader*);
template int32_t ogk_distances(const Data<float>&, int, float*, float*, const ork_threader*);

}  // namespace ork::ss
