#include "integr1d/pieces.hpp"

#include "interp1d/polynomial.hpp"

namespace ork::df {
namespace {

// c0 d + c1 d^2 / 2 + .. + c_(P-1) d^P / P, by Horner's rule.
template <class T, int P, class V>
ORK_INLINE V primitive(const V (&k)[P], V d) {
  V sum = k[P - 1] * (T(1) / T(P));
#pragma GCC unroll 4
  for (int i = P - 2; i >= 0; --i) sum = sum * d + (i == 0 ? k[0] : k[i] * (T(1) / T(i + 1)));
  return sum * d;
}

// ---- Pieces: F, and where each piece starts and ends, as seen from its breakpoint --------

// Pieces of P coefficients, from breakpoint to breakpoint.
template <class T, int P>
struct Polynomials {
  static constexpr bool starts_at_breakpoint = true;
  using V = ork::vec_of<T>;
  static constexpr int width = ork::simd<T>::width;
  const Fit<T>& fit;
  const T* row;
  Polynomials(const Fit<T>& fit, int f) : fit(fit), row(fit.row(f)) {}

  T F(int i, T d) const {
    T k[P];
    for (int m = 0; m < P; ++m) k[m] = row[static_cast<ptrdiff_t>(i) * P + m];
    return primitive<T>(k, d);
  }
  void F(const Located<T>& at, int n, T* value) const {
    for (int j = 0; j < n; j += width) {
      V k[P];
      gather_rows<P>(row, at.piece + j, k);
      ork::store_aligned(value + j, primitive<T>(k, ork::load_aligned(at.distance + j)));
    }
  }
  T start(int) const { return 0; }
  T end(int i) const { return fit.uniform ? fit.step : fit.x[i + 1] - fit.x[i]; }

  // The whole pieces from `first` to before `last`, in eight sums side by side.
  T wholes(int first, int last) const {
    constexpr int sums = 8 / width;
    T total = 0;
    int i = first;
    if (last - first >= 8) {
      V sum[sums] = {};
      for (; i + 8 <= last; i += 8) {
#pragma GCC unroll 4
        for (int s = 0; s < sums; ++s) {
          const int at = i + s * width;
          int32_t piece[width];
          for (int m = 0; m < width; ++m) piece[m] = at + m;
          V k[P];
          gather_rows<P>(row, piece, k);
          const V h = fit.uniform ? ork::splat(fit.step)
                                  : ork::load(fit.x + at + 1) - ork::load(fit.x + at);
          sum[s] += primitive<T>(k, h);
        }
      }
      for (int s = 1; s < sums; ++s) sum[0] += sum[s];
      for (int m = 0; m < width; ++m) total += sum[0][m];
    }
    for (; i < last; ++i) total += F(i, end(i));
    return total;
  }
};

// What the kinds below share: they are summed piece by piece.
template <class T, class Pieces>
struct OneByOne {
  void F(const Located<T>& at, int n, T* value) const {
    for (int j = 0; j < n; ++j) value[j] = self().F(at.piece[j], at.distance[j]);
  }
  T wholes(int first, int last) const {
    T total = 0;
    for (int i = first; i < last; ++i)
      total += Pieces::starts_at_breakpoint
                   ? self().F(i, self().end(i))
                   : self().F(i, self().end(i)) - self().F(i, self().start(i));
    return total;
  }

 private:
  const Pieces& self() const { return static_cast<const Pieces&>(*this); }
};

// Parabolas around the breakpoints, from one point of the sub-grid to the next.
template <class T>
struct Parabolas : OneByOne<T, Parabolas<T>> {
  using OneByOne<T, Parabolas>::F;
  static constexpr bool starts_at_breakpoint = false;
  const Fit<T>& fit;
  const T* row;
  Subgrid<T> grid;
  Parabolas(const Fit<T>& fit, int f)
      : fit(fit), row(fit.row(f)), grid(fit.nx, fit.icType, fit.icValues) {}

  T F(int i, T d) const {
    const T k[3] = {row[3 * i], row[3 * i + 1], row[3 * i + 2]};
    return primitive<T>(k, d);
  }
  T start(int i) const { return i == 0 ? T(0) : fit.inner(grid, i) - fit.point(i); }
  T end(int i) const { return i == fit.nx - 1 ? T(0) : fit.inner(grid, i + 1) - fit.point(i); }
};

template <class T>
struct ArbitraryOrder : OneByOne<T, ArbitraryOrder<T>> {
  using OneByOne<T, ArbitraryOrder>::F;
  static constexpr bool starts_at_breakpoint = true;
  const Fit<T>& fit;
  const T* row;
  ArbitraryOrder(const Fit<T>& fit, int f) : fit(fit), row(fit.order > 0 ? fit.row(f) : nullptr) {}

  T F(int i, T d) const {
    const T* c = row + static_cast<ptrdiff_t>(i) * fit.order;
    T sum = 0;
    for (int m = fit.order - 1; m >= 0; --m) sum = sum * d + c[m] / static_cast<T>(m + 1);
    return sum * d;
  }
  T start(int) const { return 0; }
  T end(int i) const { return fit.uniform ? fit.step : fit.x[i + 1] - fit.x[i]; }
};

// The value of the left breakpoint on each cell, and of the last one beyond it. The two steps
// differ at breakpoints only, and have one integral.
template <class T>
struct Steps : OneByOne<T, Steps<T>> {
  using OneByOne<T, Steps>::F;
  static constexpr bool starts_at_breakpoint = true;
  const Fit<T>& fit;
  Samples<T> y;
  Steps(const Fit<T>& fit, int f) : fit(fit), y(fit.function(f)) {}

  T F(int i, T d) const { return y[i] * d; }
  T start(int) const { return 0; }
  // The last value has no end. Only limits out of order, a NaN among them, ask for it.
  T end(int i) const { return i < fit.nx - 1 ? fit.point(i + 1) - fit.point(i) : T(0); }
};

template <class T>
int locate_on_steps(const Fit<T>& fit, int n, const T* limit, const int32_t* cell,
                    Located<T>& located) {
  for (int j = 0; j < n; ++j) {
    located.piece[j] = piece_of_cell(cell[j], fit.nx - 1);
    located.distance[j] = limit[j] - fit.point(located.piece[j]);
  }
  return ORK_DF_OK;
}

// ---- Sums ---------------------------------------------------------------------------------

template <class T, class Pieces>
T between(const Pieces& pieces, int first, int last, const T* middle, const int* cut) {
  T total = 0;
  if (middle != nullptr)
    for (int m = 0; m < 3; ++m)
      if (cut[m] >= first && cut[m + 1] <= last) {
        total += pieces.wholes(first, cut[m]) + middle[m];
        first = cut[m + 1];
      }
  return total + pieces.wholes(first, last);
}

// Limits in different pieces, the lower one first.
template <class T, class Pieces>
__attribute__((noinline)) T across(const Pieces& pieces, int p, T Fa, int q, T Fb, const T* middle,
                                   const int* cut) {
  T total = pieces.F(p, pieces.end(p)) - Fa;
  if (q - p > 1) total += between(pieces, p + 1, q, middle, cut);
  return total + (Pieces::starts_at_breakpoint ? Fb : Fb - pieces.F(q, pieces.start(q)));
}

template <class T, class Pieces>
void integrate(const Fit<T>& fit, int n, const T* left, const Located<T>& from, const T* right,
               const Located<T>& to, int f, const Middles<T>& middles, T* result,
               ptrdiff_t stride) {
  const Pieces pieces(fit, f);
  const T* middle = middles.value != nullptr ? middles.value + 3 * f : nullptr;
  alignas(16) T Fa[block + 4], Fb[block + 4];
  pieces.F(from, n, Fa);
  pieces.F(to, n, Fb);
  for (int j = 0; j < n; ++j) {
    const int p = from.piece[j], q = to.piece[j];
    T value = Fb[j] - Fa[j];
    if (p != q)
      value = right[j] >= left[j] ? across(pieces, p, Fa[j], q, Fb[j], middle, middles.cut)
                                  : -across(pieces, q, Fb[j], p, Fa[j], middle, middles.cut);
    else if (value != value && left[j] == right[j])
      value = 0;  // even where the integral is not finite
    result[j * stride] = value;
  }
}

}  // namespace

template <class T>
Integrator<T> integrator(int kind) {
  static constexpr decltype(Integrator<T>::integrate) dispatch[] = {
      integrate<T, Polynomials<T, 2>>, integrate<T, Polynomials<T, 3>>,
      integrate<T, Polynomials<T, 4>>, integrate<T, Parabolas<T>>,
      integrate<T, ArbitraryOrder<T>>, integrate<T, Steps<T>>,
      integrate<T, Steps<T>>};
  return {kind >= step_left_kind ? locate_on_steps<T> : evaluator<T>(kind).locate, dispatch[kind]};
}
template Integrator<double> integrator(int);
template Integrator<float> integrator(int);

}  // namespace ork::df
