#include "interp1d/evaluate.hpp"

#include "interp1d/polynomial.hpp"
#include "service/quad.hpp"

namespace ork::df {

Request read_request(int64_t flags, const void* flag, bool wide) {
  Request request = {0, {-1, -1, -1, -1}, 0, flag, wide};
  const int n = flag != nullptr && flags > 0 ? static_cast<int32_t>(flags) : 0;
  for (int k = 0; k < n; ++k) {
    const bool set = wide ? static_cast<const int64_t*>(flag)[k] != 0
                          : static_cast<const int32_t*>(flag)[k] != 0;
    if (!set) continue;
    if (k < 4) request.place[k] = request.count;
    ++request.count;
  }
  request.flags = n;
  if (request.count == 0) {  // the value alone
    request.place[0] = 0;
    request.count = 1;
  }
  return request;
}

namespace {

// ---- Locating ---------------------------------------------------------------------------

template <class T>
void pad(Located<T>& located, int n) {
  for (int j = n; j < n + 4; ++j) {
    located.piece[j] = located.piece[n - 1];
    located.distance[j] = located.distance[n - 1];
  }
}

// The piece is the cell less one, an end piece for sites beyond the ends.
template <class T>
int locate_in_cell(const Fit<T>& fit, int n, const T* site, const int32_t* cell,
                   Located<T>& located) {
  const int last = fit.nx - 2;
  const __m128i last4 = _mm_set1_epi32(last), one = _mm_set1_epi32(1);
  const Quad<T> left = Quad<T>::all(fit.x[0]), step = Quad<T>::all(fit.step);
  const auto four = [&](const T* s, const int32_t* c, int32_t* piece, T* distance) {
    const __m128i given = load4(c), inside = _mm_cmpgt_epi32(given, _mm_setzero_si128());
    __m128i p = _mm_and_si128(inside, _mm_sub_epi32(given, one));
    p = select(_mm_cmpgt_epi32(p, last4), last4, p);
    store4(piece, p);
    const Quad<T> point =
        fit.uniform ? Quad<T>::of(p) * step + left : Quad<T>::gather(fit.x, piece);
    (Quad<T>::load(s) - point).store(distance);
  };
  int j = 0;
  for (; j + 4 <= n; j += 4) four(site + j, cell + j, located.piece + j, located.distance + j);
  for (; j < n; ++j) {
    located.piece[j] = piece_of_cell(cell[j], last);
    located.distance[j] = site[j] - fit.point(located.piece[j]);
  }
  pad(located, n);
  return ORK_DF_OK;
}

// The parabola around the breakpoint on whose side of the sub-grid point the site lies.
template <class T>
int locate_in_subgrid(const Fit<T>& fit, int n, const T* site, const int32_t* cell,
                      Located<T>& located) {
  const Subgrid<T> grid(fit.nx, fit.icType, fit.icValues);
  for (int j = 0; j < n; ++j) {
    const int c = cell[j];
    const int piece = c < 1         ? 0
                      : c >= fit.nx ? fit.nx - 1
                                    : c - 1 + (site[j] >= fit.inner(grid, c));
    located.piece[j] = piece;
    located.distance[j] = site[j] - fit.point(piece);
  }
  pad(located, n);
  return ORK_DF_OK;
}

// The breakpoint whose value holds at the site: the cell's left one, and at a breakpoint
// itself the one before for the step that is continuous from the left. A search by a guess of
// equal spacing may leave a site on a breakpoint in the cell before it: the other step goes on.
template <class T, bool from_left>
int locate_step(const Fit<T>& fit, int n, const T* site, const int32_t* cell, Located<T>& located) {
  for (int j = 0; j < n; ++j) {
    int i = piece_of_cell(cell[j], fit.nx - 1);
    if (from_left)
      i -= i > 0 && site[j] == fit.point(i);
    else
      i += i < fit.nx - 1 && site[j] == fit.point(i + 1);
    located.piece[j] = i;
  }
  return ORK_DF_OK;
}

// The breakpoint that the site is. On a uniform partition, whose breakpoints are computed,
// it may miss it by 2^-40.
template <class T>
int locate_breakpoint(const Fit<T>& fit, int n, const T* site, const int32_t* cell,
                      Located<T>& located) {
  constexpr T tolerance = T(0x1p-40);
  const auto miss = [&](T s, int i) {
    const T d = s - static_cast<T>(i) * fit.step - fit.x[0];
    return d < 0 ? -d : d;
  };
  for (int j = 0; j < n; ++j) {
    const T s = site[j];
    const int c = cell[j] < fit.nx ? cell[j] : fit.nx;
    if (c < 1) return ORK_DF_NOT_A_BREAKPOINT;
    if (fit.uniform ? miss(s, c - 1) <= tolerance : s == fit.x[c - 1])
      located.piece[j] = c - 1;
    else if (c < fit.nx && (fit.uniform ? miss(s, c) < tolerance : s == fit.x[c]))
      located.piece[j] = c;
    else
      return ORK_DF_NOT_A_BREAKPOINT;
  }
  return ORK_DF_OK;
}

// ---- Filling ----------------------------------------------------------------------------

// Any number of coefficients: Horner's rule on a copy, highest power first, which is
// differentiated in place from one order to the next.
template <class T>
void fill_copied(const Fit<T>& fit, const Request& request, int n, const Located<T>& located, int f,
                 const Output<T>& out, T* copy) {
  const int order = fit.order;
  const T* row = order > 0 ? fit.row(f) : nullptr;
  for (int j = 0; j < n; ++j) {
    const T* c = row + static_cast<ptrdiff_t>(located.piece[j]) * order;
    for (int i = 0; i < order; ++i) copy[i] = c[order - 1 - i];
    const T d = located.distance[j];
    int left = order;  // coefficients of the derivative
    for (int k = 0, put = 0; put < request.count; ++k) {
      if (request.asks(k)) {
        T sum = left > 0 ? copy[0] : T(0);
        for (int i = 1; i < left; ++i) sum = sum * d + copy[i];
        *out.at(j, put++) = sum;
      }
      if (left > 0) --left;
      for (int i = 0; i < left; ++i) copy[i] *= static_cast<T>(left - i);
    }
  }
}

template <class T>
int fill_arbitrary(const Fit<T>& fit, const Request& request, int n, const Located<T>& located,
                   int f, const Output<T>& out) {
  constexpr int on_stack = 10;
  if (fit.order <= on_stack) {
    T copy[on_stack];
    fill_copied(fit, request, n, located, f, out, copy);
    return ORK_DF_OK;
  }
  Scratch<T> copy(fit.order);
  if (!copy) return ORK_DF_NO_MEMORY;
  fill_copied(fit, request, n, located, f, out, copy.get());
  return ORK_DF_OK;
}

template <class T>
int fill_samples(const Fit<T>& fit, const Request& request, int n, const Located<T>& located, int f,
                 const Output<T>& out) {
  if (request.place[0] < 0) return ORK_DF_OK;
  const Samples<T> y = fit.function(f);
  for (int j = 0; j < n; ++j) *out.at(j, request.place[0]) = y[located.piece[j]];
  return ORK_DF_OK;
}

template <class T>
int fill_look_up(const Fit<T>& fit, const Request& request, int n, const Located<T>& located, int f,
                 const Output<T>& out) {
  if (request.count != 1) return ORK_DF_LOOKUP_ONE_FLAG;
  if (request.place[0] < 0) return ORK_DF_LOOKUP_VALUE;
  return fill_samples(fit, request, n, located, f, out);
}

}  // namespace

template <class T>
const Evaluator<T>& evaluator(int kind) {
  static constexpr Evaluator<T> dispatch[kinds] = {
      {locate_in_cell<T>, fill_polynomial<T, 2>}, {locate_in_cell<T>, fill_polynomial<T, 3>},
      {locate_in_cell<T>, fill_polynomial<T, 4>}, {locate_in_subgrid<T>, fill_polynomial<T, 3>},
      {locate_in_cell<T>, fill_arbitrary<T>},     {locate_step<T, true>, fill_samples<T>},
      {locate_step<T, false>, fill_samples<T>},   {locate_breakpoint<T>, fill_look_up<T>},
  };
  return dispatch[kind];
}
template const Evaluator<double>& evaluator(int);
template const Evaluator<float>& evaluator(int);

}  // namespace ork::df
