// Integrals with callbacks: the interval is cut at the ends of the partition.
#include <string.h>

#include "integr1d/integration.hpp"

namespace ork::df {
namespace {

template <class T>
struct Limit {
  T at;
  int cell;
};

// Adds the integral of the part to the totals.
template <class T>
int add_part(const Fit<T>& fit, int kind, typename IntegrCallback<T>::type* callback, void* params,
             Limit<T> lower, Limit<T> upper, T* total, T* part) {
  if (callback != nullptr) {
    const int last = last_piece(kind, fit.nx);
    const int64_t one = 1, lower_piece = piece_of_cell(lower.cell, last),
                  upper_piece = piece_of_cell(upper.cell, last);
    memset(part, 0, sizeof(T) * static_cast<size_t>(fit.ny));
    const int status =
        callback(&one, &lower_piece, &lower.at, &upper_piece, &upper.at, part, params);
    if (status < 0) return status;
  } else {
    const Integrator<T> sum = integrator<T>(kind);
    Located<T> from, to;
    sum.locate(fit, 1, &lower.at, &lower.cell, from);
    sum.locate(fit, 1, &upper.at, &upper.cell, to);
    for (int f = 0; f < fit.ny; ++f)
      sum.integrate(fit, 1, &lower.at, from, &upper.at, to, f, {}, part + f, 1);
  }
  for (int f = 0; f < fit.ny; ++f) total[f] += part[f];
  return ORK_DF_OK;
}

}  // namespace

template <class T>
int integrate_parts(const Fit<T>& fit, int kind, const Parts<T>& parts, T left, int left_cell,
                    T right, int right_cell, T* total, T* part) {
  for (int f = 0; f < fit.ny; ++f) total[f] = 0;
  if (left == right) return ORK_DF_OK;
  Limit<T> a = {left, left_cell}, b = {right, right_cell};
  if (left != left || right != right)  // nothing to ask the callbacks
    return add_part<T>(fit, kind, nullptr, nullptr, a, b, total, part);
  const bool swapped = right < left;
  if (swapped) {
    const Limit<T> lower = b;
    b = a;
    a = lower;
  }
  const Limit<T> first = {fit.x[0], 1}, last = {fit.right_end(), fit.nx};
  int status = ORK_DF_OK;
  if (a.at < first.at) {
    const Limit<T> to = b.at < first.at ? Limit<T>{b.at, 0} : Limit<T>{first.at, 0};
    status = add_part(fit, kind, parts.left, parts.left_params, {a.at, 0}, to, total, part);
    if (status < 0) return status;
  }
  Limit<T> lower = a.at < first.at ? first : a, upper = b.at > last.at ? last : b;
  if (lower.at < upper.at) {
    if (parts.interior != nullptr) {  // within the pieces that are named
      const T start = fit.point(piece_of_cell(lower.cell, fit.nx - 2));
      const T end = fit.point(piece_of_cell(upper.cell, fit.nx - 2) + 1);
      const auto inside = [start, end](T at) { return at < start ? start : at > end ? end : at; };
      lower.at = inside(lower.at);
      upper.at = inside(upper.at);
    }
    status = add_part(fit, kind, parts.interior, parts.interior_params, lower, upper, total, part);
    if (status < 0) return status;
  }
  if (b.at > last.at) {
    const Limit<T> from = {a.at > last.at ? a.at : last.at, fit.nx};
    status =
        add_part(fit, kind, parts.right, parts.right_params, from, {b.at, fit.nx}, total, part);
    if (status < 0) return status;
  }
  if (swapped)
    for (int f = 0; f < fit.ny; ++f) total[f] = -total[f];
  return ORK_DF_OK;
}
template int integrate_parts(const Fit<double>&, int, const Parts<double>&, double, int, double,
                             int, double*, double*);
template int integrate_parts(const Fit<float>&, int, const Parts<float>&, float, int, float, int,
                             float*, float*);

}  // namespace ork::df
