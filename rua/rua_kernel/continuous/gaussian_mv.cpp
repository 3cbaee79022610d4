// Multivariate Gaussian: a + T z, T a lower triangular factor of the covariance matrix and z
// independent standard normal numbers. The vectors in r are the columns of a matrix dim by n, to
// which a factor by rows is an upper triangle.
#include "base/dense.hpp"
#include "base/export.hpp"
#include "ork/rua_distributions.h"
#include "rua_kernel/service/elementwise.hpp"

using namespace ork::rua;

namespace {

// The parameters of as many vectors as kTile numbers hold, one behind the other: vectors of few
// coordinates are passed over in longer runs. A long vector is a run of its own.
template <class R>
class Tile {
 public:
  static constexpr int32_t kTile = 32;

  static int32_t run(int32_t dim) { return dim < kTile ? kTile / dim * dim : dim; }
  Tile(const R* values, int32_t dim) : values_(values) {
    if (dim >= kTile) return;
    const int32_t length = run(dim);
    for (int32_t j = 0, k = 0; j < length; ++j, k = k + 1 < dim ? k + 1 : 0) copy_[j] = values[k];
    values_ = copy_;
  }
  Tile(const Tile&) = delete;
  const R* get() const { return values_; }

 private:
  alignas(16) R copy_[kTile];
  const R* values_;
};

// r <- f(r, j) for n vectors, j the place in a tile. f takes a vector or a value.
template <class R, class F>
ORK_INLINE void each_coordinate(int32_t n, int32_t dim, R* r, F f) {
  constexpr int w = ork::simd<R>::width;
  const int32_t run = Tile<R>::run(dim);
  for (int32_t left = n * dim, count; left > 0; left -= count, r += count) {
    count = left < run ? left : run;
    int32_t j = 0;
    for (; count - j >= w; j += w) ork::store(r + j, f(ork::load(r + j), j));
    for (; j < count; ++j) r[j] = f(r[j], j);
  }
}

// As many values as the second argument has.
ORK_INLINE double at(const double* p, double) { return *p; }
ORK_INLINE float at(const float* p, float) { return *p; }
ORK_INLINE ork::f64x2 at(const double* p, ork::f64x2) { return ork::load(p); }
ORK_INLINE ork::f32x4 at(const float* p, ork::f32x4) { return ork::load(p); }

template <class R>
inline void transform(int32_t n, R* r, int32_t dim, int32_t mstorage, const R* a, const R* t) {
  using D = ork::Dense<R>;
  constexpr int32_t kLarge = 11;  // the order from which the dense layer's other entry serves
  const R one = 1;
  const Tile<R> mean(a, dim);
  const R* const shift = mean.get();
  if (mstorage == RUA_MATRIX_DIAGONAL) {
    const Tile<R> diagonal(t, dim);
    const R* const scale = diagonal.get();
    each_coordinate(n, dim, r,
                    [=](auto x, int32_t j) { return x * at(scale + j, x) + at(shift + j, x); });
    return;
  }
  if (mstorage == RUA_MATRIX_FULL)
    (dim < kLarge ? D::trmm_small : D::trmm_large)("L", "U", "T", "N", &dim, &n, &one, t, &dim, r,
                                                   &dim);
  else if (mstorage == RUA_MATRIX_PACKED)
    D::ptrmm("L", "L", "N", "N", &dim, &n, &one, t, r, &dim);
  else
    return;
  each_coordinate(n, dim, r, [=](auto x, int32_t j) { return x + at(shift + j, x); });
}

template <class R, class Gaussian>
inline int32_t generate(Gaussian gaussian, int32_t method, RuaStream* stream, int32_t n, R* r,
                        int32_t dim, int32_t mstorage, const R* a, const R* t) {
  if (dim == 1) return gaussian(method, stream, n, r, a[0], t[0]);
  const int32_t status = gaussian(method, stream, n * dim, r, 0, 1);
  if (status >= 0 && n > 0 && dim > 0) transform(n, r, dim, mstorage, a, t);
  return status;
}

}  // namespace

ORK_EXPORT int32_t _ruadRngGaussianMV(int32_t method, RuaStream* stream, int32_t n, double* r,
                                      int32_t dim, int32_t mstorage, const double* a,
                                      const double* t) {
  return generate(_ruadRngGaussian, method, stream, n, r, dim, mstorage, a, t);
}

ORK_EXPORT int32_t _ruasRngGaussianMV(int32_t method, RuaStream* stream, int32_t n, float* r,
                                      int32_t dim, int32_t mstorage, const float* a,
                                      const float* t) {
  return generate(_ruasRngGaussian, method, stream, n, r, dim, mstorage, a, t);
}
