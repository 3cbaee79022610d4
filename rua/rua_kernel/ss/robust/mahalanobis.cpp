// Mahalanobis distances, sqrt((x - m)' A (x - m)), by the lower triangle of A alone:
//
//   (x - m)' A (x - m) = 2 sum_i c_i (a_ii c_i / 2 + sum_(j < i) a_ij c_j),   c = x - m,
//
// half the operations of a symmetric product. Eight observations (s: 16) go together, one in each
// lane: each element of A is read once for all of them, and an observation has the same bits
// wherever it stands.
#include "rua_kernel/ss/robust/mahalanobis.hpp"

#include "base/lanes.hpp"
#include "base/scratch.hpp"
#include "rua_kernel/service/elementwise.hpp"
#include "rua_kernel/ss/service/computation.hpp"
#include "rua_kernel/ss/service/data.hpp"

namespace ork::ss {
namespace {

constexpr int kVectors = 4;  // of observations
template <class R>
constexpr int kLanes = kVectors* simd<R>::width;
// Variables whose differences fit on the stack: 16 KB.
constexpr int kStack = 256;

ORK_INLINE void transpose(f64x2* v) {
  const f64x2 first = evens(v[0], v[1]);
  v[1] = odds(v[0], v[1]);
  v[0] = first;
}
ORK_INLINE void transpose(f32x4* v) { _MM_TRANSPOSE4_PS(v[0], v[1], v[2], v[3]); }

// to[j][l] <- difference of observation first + l from the mean, variable j. Lanes from count on
// get 0.
template <class R>
void centre(const Data<R>& data, const R* mean, int first, int count, R* to) {
  typedef vec_of<R> V;
  constexpr int width = simd<R>::width, lanes = kLanes<R>;
  const int p = data.p;
  int j = 0;
  if (count == lanes && data.rows) {
    for (; j < p; ++j, to += lanes) {
      const R* x = data.x + size_t(j) * data.n + first;
      const V m = splat(mean[j]);
#pragma GCC unroll 4
      for (int l = 0; l < lanes; l += width) store(to + l, load(x + l) - m);
    }
  } else if (count == lanes) {
    for (; j + width <= p; j += width, to += width * lanes) {
      const R* x = data.x + size_t(first) * p + j;
#pragma GCC unroll 4
      for (int l = 0; l < lanes; l += width) {
        V v[width];
#pragma GCC unroll 4
        for (int k = 0; k < width; ++k, x += p) v[k] = load(x);
        transpose(v);
#pragma GCC unroll 4
        for (int k = 0; k < width; ++k) store(to + k * lanes + l, v[k] - splat(mean[j + k]));
      }
    }
  }
  for (; j < p; ++j, to += lanes) {
    const Series<R> x = data.variable(j);
    for (int l = 0; l < lanes; ++l) to[l] = l < count ? x[first + l] - mean[j] : R(0);
  }
}

// Distances of the lanes of c. Rounding may leave a tiny negative square, which counts as 0.
template <class R>
void put_distances(int p, const R* a, const R* c, R* to) {
  typedef vec_of<R> V;
  constexpr int width = simd<R>::width, lanes = kLanes<R>;
  V sum[kVectors] = {};
  const R* own = c;
  for (int i = 0; i < p; ++i, own += lanes, a += p) {
    V t[kVectors];
    const V half = splat(R(0.5) * a[i]);
#pragma GCC unroll 4
    for (int v = 0; v < kVectors; ++v) t[v] = half * load(own + v * width);
    const R* other = c;
    for (int j = 0; j < i; ++j, other += lanes) {
      const V element = splat(a[j]);
#pragma GCC unroll 4
      for (int v = 0; v < kVectors; ++v) t[v] += element * load(other + v * width);
    }
#pragma GCC unroll 4
    for (int v = 0; v < kVectors; ++v) sum[v] += t[v] * load(own + v * width);
  }
#pragma GCC unroll 4
  for (int v = 0; v < kVectors; ++v)
    store(to + v * width, sqrt(rua::at_least(R(0), sum[v] + sum[v])));
}

}  // namespace

template <class R>
int32_t mahalanobis(const Task<R>& t) {
  constexpr int lanes = kLanes<R>;
  const Data<R> data = data_of(t);
  const int first = int(t.integer(t.mahFirst)), last = int(t.integer(t.mahLast));
  alignas(16) R near_differences[kStack * lanes];
  R* differences = near_differences;
  Scratch<R> far_differences;
  if (data.p > kStack) {
    far_differences = Scratch<R>(uint64_t(data.p) * lanes);
    if (!far_differences) return ORK_SS_NO_MEMORY;
    differences = far_differences.get();
  }
  for (int i = first; i < last; i += lanes) {
    const int count = last - i < lanes ? last - i : lanes;
    centre(data, t.mahMean, i, count, differences);
    R* to = t.mahDistances + (i - first);
    if (count == lanes) {
      put_distances(data.p, t.mahInverseCov, differences, to);
    } else {
      R rest[lanes];
      put_distances(data.p, t.mahInverseCov, differences, rest);
      for (int l = 0; l < count; ++l) to[l] = rest[l];
    }
  }
  return ORK_SS_OK;
}

template int32_t mahalanobis(const Task<double>&);
template int32_t mahalanobis(const Task<float>&);

#define ORK_DISTANCE(t, R)                                       \
  ORK_EXPORT int32_t _rua##t##SSMahDistance(ork_ss_task* task) { \
    return mahalanobis(record_of<R>(task));                      \
  }
ORK_TWINS(ORK_DISTANCE)

}  // namespace ork::ss
