// Natural cubic spline: its kernels, their dispatch table and the construction entries.
#include "cubic_natural/natural.hpp"

namespace ork::df {

using NaturalKernel = int(const Task*, int64_t method, const ork_threader*);

template <class T, class Y, class Grid, Boundary boundary>
int natural(const Task* task, int64_t /*method*/, const ork_threader* threader) {
  return Natural<T, Y, Grid>::build(task, boundary, threader);
}

template <class T>
inline constexpr NaturalKernel* _v1DCSNaturalYColsNoUniformGridNotAKnot =
    natural<T, YCols, NoUniformGrid, not_a_knot>;
template <class T>
inline constexpr NaturalKernel* _v1DCSNaturalYColsNoUniformGridFreeEnd =
    natural<T, YCols, NoUniformGrid, free_end>;
template <class T>
inline constexpr NaturalKernel* _v1DCSNaturalYColsNoUniformGrid1st1st =
    natural<T, YCols, NoUniformGrid, first_first>;
template <class T>
inline constexpr NaturalKernel* _v1DCSNaturalYColsNoUniformGrid1st2nd =
    natural<T, YCols, NoUniformGrid, first_second>;
template <class T>
inline constexpr NaturalKernel* _v1DCSNaturalYColsNoUniformGrid2nd1st =
    natural<T, YCols, NoUniformGrid, second_first>;
template <class T>
inline constexpr NaturalKernel* _v1DCSNaturalYColsNoUniformGrid2nd2nd =
    natural<T, YCols, NoUniformGrid, second_second>;
template <class T>
inline constexpr NaturalKernel* _v1DCSNaturalYColsNoUniformGridPeriodic =
    natural<T, YCols, NoUniformGrid, periodic>;
template <class T>
inline constexpr NaturalKernel* _v1DCSNaturalYColsUniformGridNotAKnot =
    natural<T, YCols, UniformGrid, not_a_knot>;
template <class T>
inline constexpr NaturalKernel* _v1DCSNaturalYColsUniformGridFreeEnd =
    natural<T, YCols, UniformGrid, free_end>;
template <class T>
inline constexpr NaturalKernel* _v1DCSNaturalYColsUniformGrid1st1st =
    natural<T, YCols, UniformGrid, first_first>;
template <class T>
inline constexpr NaturalKernel* _v1DCSNaturalYColsUniformGrid1st2nd =
    natural<T, YCols, UniformGrid, first_second>;
template <class T>
inline constexpr NaturalKernel* _v1DCSNaturalYColsUniformGrid2nd1st =
    natural<T, YCols, UniformGrid, second_first>;
template <class T>
inline constexpr NaturalKernel* _v1DCSNaturalYColsUniformGrid2nd2nd =
    natural<T, YCols, UniformGrid, second_second>;
template <class T>
inline constexpr NaturalKernel* _v1DCSNaturalYColsUniformGridPeriodic =
    natural<T, YCols, UniformGrid, periodic>;
template <class T>
inline constexpr NaturalKernel* _v1DCSNaturalYRowsNoUniformGridNotAKnot =
    natural<T, YRows, NoUniformGrid, not_a_knot>;
template <class T>
inline constexpr NaturalKernel* _v1DCSNaturalYRowsNoUniformGridFreeEnd =
    natural<T, YRows, NoUniformGrid, free_end>;
template <class T>
inline constexpr NaturalKernel* _v1DCSNaturalYRowsNoUniformGrid1st1st =
    natural<T, YRows, NoUniformGrid, first_first>;
template <class T>
inline constexpr NaturalKernel* _v1DCSNaturalYRowsNoUniformGrid1st2nd =
    natural<T, YRows, NoUniformGrid, first_second>;
template <class T>
inline constexpr NaturalKernel* _v1DCSNaturalYRowsNoUniformGrid2nd1st =
    natural<T, YRows, NoUniformGrid, second_first>;
template <class T>
inline constexpr NaturalKernel* _v1DCSNaturalYRowsNoUniformGrid2nd2nd =
    natural<T, YRows, NoUniformGrid, second_second>;
template <class T>
inline constexpr NaturalKernel* _v1DCSNaturalYRowsNoUniformGridPeriodic =
    natural<T, YRows, NoUniformGrid, periodic>;
template <class T>
inline constexpr NaturalKernel* _v1DCSNaturalYRowsUniformGridNotAKnot =
    natural<T, YRows, UniformGrid, not_a_knot>;
template <class T>
inline constexpr NaturalKernel* _v1DCSNaturalYRowsUniformGridFreeEnd =
    natural<T, YRows, UniformGrid, free_end>;
template <class T>
inline constexpr NaturalKernel* _v1DCSNaturalYRowsUniformGrid1st1st =
    natural<T, YRows, UniformGrid, first_first>;
template <class T>
inline constexpr NaturalKernel* _v1DCSNaturalYRowsUniformGrid1st2nd =
    natural<T, YRows, UniformGrid, first_second>;
template <class T>
inline constexpr NaturalKernel* _v1DCSNaturalYRowsUniformGrid2nd1st =
    natural<T, YRows, UniformGrid, second_first>;
template <class T>
inline constexpr NaturalKernel* _v1DCSNaturalYRowsUniformGrid2nd2nd =
    natural<T, YRows, UniformGrid, second_second>;
template <class T>
inline constexpr NaturalKernel* _v1DCSNaturalYRowsUniformGridPeriodic =
    natural<T, YRows, UniformGrid, periodic>;

template <class T>
inline constexpr NaturalKernel* natural_dispatch[] = {
    _v1DCSNaturalYColsNoUniformGridNotAKnot<T>, _v1DCSNaturalYColsNoUniformGridFreeEnd<T>,
    _v1DCSNaturalYColsNoUniformGrid1st1st<T>,   _v1DCSNaturalYColsNoUniformGrid1st2nd<T>,
    _v1DCSNaturalYColsNoUniformGrid2nd1st<T>,   _v1DCSNaturalYColsNoUniformGrid2nd2nd<T>,
    _v1DCSNaturalYColsNoUniformGridPeriodic<T>, _v1DCSNaturalYColsUniformGridNotAKnot<T>,
    _v1DCSNaturalYColsUniformGridFreeEnd<T>,    _v1DCSNaturalYColsUniformGrid1st1st<T>,
    _v1DCSNaturalYColsUniformGrid1st2nd<T>,     _v1DCSNaturalYColsUniformGrid2nd1st<T>,
    _v1DCSNaturalYColsUniformGrid2nd2nd<T>,     _v1DCSNaturalYColsUniformGridPeriodic<T>,
    _v1DCSNaturalYRowsNoUniformGridNotAKnot<T>, _v1DCSNaturalYRowsNoUniformGridFreeEnd<T>,
    _v1DCSNaturalYRowsNoUniformGrid1st1st<T>,   _v1DCSNaturalYRowsNoUniformGrid1st2nd<T>,
    _v1DCSNaturalYRowsNoUniformGrid2nd1st<T>,   _v1DCSNaturalYRowsNoUniformGrid2nd2nd<T>,
    _v1DCSNaturalYRowsNoUniformGridPeriodic<T>, _v1DCSNaturalYRowsUniformGridNotAKnot<T>,
    _v1DCSNaturalYRowsUniformGridFreeEnd<T>,    _v1DCSNaturalYRowsUniformGrid1st1st<T>,
    _v1DCSNaturalYRowsUniformGrid1st2nd<T>,     _v1DCSNaturalYRowsUniformGrid2nd1st<T>,
    _v1DCSNaturalYRowsUniformGrid2nd2nd<T>,     _v1DCSNaturalYRowsUniformGridPeriodic<T>,
};

template <class T>
int construct_natural(const Task* task, int64_t method, const ork_threader* threader) {
  if (task == nullptr) return ORK_DF_NULL_TASK;
  if (method != 0) return ORK_DF_BAD_METHOD;
  if (const int code = check_shape(task, 3)) return code;
  const int boundary = check_cubic_boundary(task, false);
  if (boundary < 0) return boundary;
  if (const int code = check_arrays(task)) return code;
  const int kernel = dispatch_block(task) * boundary_slots + boundary;
  return natural_dispatch<T>[kernel](task, method, threader);
}

}  // namespace ork::df

ORK_EXPORT int ork_df_kernel_dDFNaturalCubicSpline1D(ork_df_task* task, int64_t, int64_t method,
                                                     const ork_threader* threader) {
  return ork::df::construct_natural<double>(task, method, threader);
}
ORK_EXPORT int ork_df_kernel_sDFNaturalCubicSpline1D(ork_df_task* task, int64_t, int64_t method,
                                                     const ork_threader* threader) {
  return ork::df::construct_natural<float>(task, method, threader);
}
