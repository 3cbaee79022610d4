// Hermite cubic spline: the slopes at the interior breakpoints are given, one set for all
// functions.
#include "cubic_local/local.hpp"

namespace ork::df {

struct Hermite {
  static constexpr int run = 4, reach = 0, least_nx = 3;
  static constexpr bool may_be_unset = false;

  static int check(const Task* task) {
    return task->icValues == nullptr ? ORK_DF_BAD_IC_VALUES : ORK_DF_OK;
  }
  template <class T, class Grid>
  static void slopes(const Task* task, const Window<T>& s, int first, int last) {
    const T* given = internal_values<T>(task);
    for (int i = first; i <= last; ++i) s.d[i] = given[s.origin + i - 1];
  }
  template <class T>
  static T closed(const Task* task, const End<T>&, const End<T>&) {
    return boundary_values<T>(task)[0];
  }
};

template <class T>
inline constexpr LocalKernel* _v1DCSHermiteYColsNoUniformGrid =
    local_cubic<T, Hermite, YCols, NoUniformGrid>;
template <class T>
inline constexpr LocalKernel* _v1DCSHermiteYColsUniformGrid =
    local_cubic<T, Hermite, YCols, UniformGrid>;
template <class T>
inline constexpr LocalKernel* _v1DCSHermiteYRowsNoUniformGrid =
    local_cubic<T, Hermite, YRows, NoUniformGrid>;
template <class T>
inline constexpr LocalKernel* _v1DCSHermiteYRowsUniformGrid =
    local_cubic<T, Hermite, YRows, UniformGrid>;

template <class T>
inline constexpr LocalKernel* hermite_dispatch[] = {
    _v1DCSHermiteYColsNoUniformGrid<T>,
    _v1DCSHermiteYColsUniformGrid<T>,
    _v1DCSHermiteYRowsNoUniformGrid<T>,
    _v1DCSHermiteYRowsUniformGrid<T>,
};

}  // namespace ork::df

ORK_EXPORT int ork_df_kernel_dDFHermiteCubicSpline1D(ork_df_task* task, int64_t, int64_t method,
                                                     const ork_threader* threader) {
  return ork::df::construct_local<ork::df::Hermite>(ork::df::hermite_dispatch<double>, task, method,
                                                    threader);
}
ORK_EXPORT int ork_df_kernel_sDFHermiteCubicSpline1D(ork_df_task* task, int64_t, int64_t method,
                                                     const ork_threader* threader) {
  return ork::df::construct_local<ork::df::Hermite>(ork::df::hermite_dispatch<float>, task, method,
                                                    threader);
}
