// Blocks with callbacks: sites in groups, each with a caller's function or the spline.
#include <string.h>

#include "interp1d/interpolate.hpp"

namespace ork::df {

template <class T>
int interpolate_group(const Fit<T>& fit, int kind, const Request& request, int n, const T* site,
                      const int32_t* cell, typename InterpCallback<T>::type* callback, void* params,
                      Located<T>& located, T* values, const Output<T>& out, ptrdiff_t by_function) {
  const Evaluator<T>& eval = evaluator<T>(kind);
  // The look-up spline refuses sites that are no breakpoints whoever evaluates.
  if (callback == nullptr || kind == look_up_kind) {
    const int status = eval.locate(fit, n, site, cell, located);
    if (status < 0) return status;
  }
  if (callback == nullptr) {
    for (int f = 0; f < fit.ny; ++f) {
      Output<T> to = out;
      to.base += f * by_function;
      const int status = eval.fill(fit, request, n, located, f, to);
      if (status < 0) return status;
    }
    return ORK_DF_OK;
  }
  const int last = last_piece(kind, fit.nx);
  int64_t piece[block];
  for (int j = 0; j < n; ++j) piece[j] = piece_of_cell(cell[j], last);
  const int64_t count = n;
  memset(values, 0, sizeof(T) * static_cast<size_t>(n) * fit.ny * request.count);
  const int status = callback(&count, piece, site, values, params);
  if (status < 0) return status;
  for (int f = 0; f < fit.ny; ++f)
    for (int j = 0; j < n; ++j)
      for (int k = 0; k < request.count; ++k) out.at(j, k)[f * by_function] = *values++;
  return ORK_DF_OK;
}
template int interpolate_group(const Fit<double>&, int, const Request&, int, const double*,
                               const int32_t*, ork_df_interp_d*, void*, Located<double>&, double*,
                               const Output<double>&, ptrdiff_t);
template int interpolate_group(const Fit<float>&, int, const Request&, int, const float*,
                               const int32_t*, ork_df_interp_s*, void*, Located<float>&, float*,
                               const Output<float>&, ptrdiff_t);

template <class T>
int interpolate_groups(const Interpolation<T>& job, int first, int n, const T* site, int32_t& state,
                       Located<T>& located, T* values) {
  const T left = job.fit.x[0], right = job.fit.right_end();
  // Sorted sites are split by the ends alone, and the right end itself falls to the right.
  const bool end_is_right = job.method == sorted_search;
  const auto side = [&](T s) {
    return s < left ? left_side : s > right || (end_is_right && s == right) ? right_side : interior;
  };
  for (int group = left_side; group <= right_side; ++group) {
    T member[block];
    int32_t cell[block], position[block];
    int count = 0;
    for (int j = 0; j < n; ++j)
      if (side(site[j]) == group) member[count] = site[j], position[count++] = j;
    if (count == 0) continue;
    if (group != interior) {
      for (int j = 0; j < count; ++j) cell[j] = group == left_side ? 0 : job.fit.nx;
    } else if (job.take_cells) {
      for (int j = 0; j < count; ++j) cell[j] = job.given_cell(first + position[j]);
    } else {
      const int status = find_dispatch<T>[job.method](job.search, count, member, state, cell);
      if (status < 0) return status;
    }
    if (job.store_cells)
      for (int j = 0; j < count; ++j) job.put_cell(first + position[j], cell[j]);
    Output<T> out = job.output(0, first);
    out.position = position;
    const int status =
        interpolate_group(job.fit, job.kind, job.request, count, member, cell, job.callback[group],
                          job.params[group], located, values, out, job.by_function);
    if (status < 0) return status;
  }
  return ORK_DF_OK;
}
template int interpolate_groups(const Interpolation<double>&, int, int, const double*, int32_t&,
                                Located<double>&, double*);
template int interpolate_groups(const Interpolation<float>&, int, int, const float*, int32_t&,
                                Located<float>&, float*);

}  // namespace ork::df
