// Default cubic spline: second derivatives at the interior breakpoints are given, and with
// them every interior cell; the boundary conditions fill the two end cells.
#include "cubic_default/default.hpp"

namespace ork::df {

using DefaultKernel = int(const Task*);

template <class T, class Y, class Grid, Boundary boundary>
int default_cubic(const Task* task) {
  return DefaultCubic<T, Y, Grid>::build(task, boundary);
}

template <class T>
inline constexpr DefaultKernel* _v1DCSDefaultYColsNoUniformGridNotAKnot =
    default_cubic<T, YCols, NoUniformGrid, not_a_knot>;
template <class T>
inline constexpr DefaultKernel* _v1DCSDefaultYColsNoUniformGridFreeEnd =
    default_cubic<T, YCols, NoUniformGrid, free_end>;
template <class T>
inline constexpr DefaultKernel* _v1DCSDefaultYColsNoUniformGrid1st1st =
    default_cubic<T, YCols, NoUniformGrid, first_first>;
template <class T>
inline constexpr DefaultKernel* _v1DCSDefaultYColsNoUniformGrid1st2nd =
    default_cubic<T, YCols, NoUniformGrid, first_second>;
template <class T>
inline constexpr DefaultKernel* _v1DCSDefaultYColsNoUniformGrid2nd1st =
    default_cubic<T, YCols, NoUniformGrid, second_first>;
template <class T>
inline constexpr DefaultKernel* _v1DCSDefaultYColsNoUniformGrid2nd2nd =
    default_cubic<T, YCols, NoUniformGrid, second_second>;
template <class T>
inline constexpr DefaultKernel* _v1DCSDefaultYColsNoUniformGridPeriodic =
    default_cubic<T, YCols, NoUniformGrid, periodic>;
template <class T>
inline constexpr DefaultKernel* _v1DCSDefaultYColsUniformGridNotAKnot =
    default_cubic<T, YCols, UniformGrid, not_a_knot>;
template <class T>
inline constexpr DefaultKernel* _v1DCSDefaultYColsUniformGridFreeEnd =
    default_cubic<T, YCols, UniformGrid, free_end>;
template <class T>
inline constexpr DefaultKernel* _v1DCSDefaultYColsUniformGrid1st1st =
    default_cubic<T, YCols, UniformGrid, first_first>;
template <class T>
inline constexpr DefaultKernel* _v1DCSDefaultYColsUniformGrid1st2nd =
    default_cubic<T, YCols, UniformGrid, first_second>;
template <class T>
inline constexpr DefaultKernel* _v1DCSDefaultYColsUniformGrid2nd1st =
    default_cubic<T, YCols, UniformGrid, second_first>;
template <class T>
inline constexpr DefaultKernel* _v1DCSDefaultYColsUniformGrid2nd2nd =
    default_cubic<T, YCols, UniformGrid, second_second>;
template <class T>
inline constexpr DefaultKernel* _v1DCSDefaultYColsUniformGridPeriodic =
    default_cubic<T, YCols, UniformGrid, periodic>;
template <class T>
inline constexpr DefaultKernel* _v1DCSDefaultYRowsNoUniformGridNotAKnot =
    default_cubic<T, YRows, NoUniformGrid, not_a_knot>;
template <class T>
inline constexpr DefaultKernel* _v1DCSDefaultYRowsNoUniformGridFreeEnd =
    default_cubic<T, YRows, NoUniformGrid, free_end>;
template <class T>
inline constexpr DefaultKernel* _v1DCSDefaultYRowsNoUniformGrid1st1st =
    default_cubic<T, YRows, NoUniformGrid, first_first>;
template <class T>
inline constexpr DefaultKernel* _v1DCSDefaultYRowsNoUniformGrid1st2nd =
    default_cubic<T, YRows, NoUniformGrid, first_second>;
template <class T>
inline constexpr DefaultKernel* _v1DCSDefaultYRowsNoUniformGrid2nd1st =
    default_cubic<T, YRows, NoUniformGrid, second_first>;
template <class T>
inline constexpr DefaultKernel* _v1DCSDefaultYRowsNoUniformGrid2nd2nd =
    default_cubic<T, YRows, NoUniformGrid, second_second>;
template <class T>
inline constexpr DefaultKernel* _v1DCSDefaultYRowsNoUniformGridPeriodic =
    default_cubic<T, YRows, NoUniformGrid, periodic>;
template <class T>
inline constexpr DefaultKernel* _v1DCSDefaultYRowsUniformGridNotAKnot =
    default_cubic<T, YRows, UniformGrid, not_a_knot>;
template <class T>
inline constexpr DefaultKernel* _v1DCSDefaultYRowsUniformGridFreeEnd =
    default_cubic<T, YRows, UniformGrid, free_end>;
template <class T>
inline constexpr DefaultKernel* _v1DCSDefaultYRowsUniformGrid1st1st =
    default_cubic<T, YRows, UniformGrid, first_first>;
template <class T>
inline constexpr DefaultKernel* _v1DCSDefaultYRowsUniformGrid1st2nd =
    default_cubic<T, YRows, UniformGrid, first_second>;
template <class T>
inline constexpr DefaultKernel* _v1DCSDefaultYRowsUniformGrid2nd1st =
    default_cubic<T, YRows, UniformGrid, second_first>;
template <class T>
inline constexpr DefaultKernel* _v1DCSDefaultYRowsUniformGrid2nd2nd =
    default_cubic<T, YRows, UniformGrid, second_second>;
template <class T>
inline constexpr DefaultKernel* _v1DCSDefaultYRowsUniformGridPeriodic =
    default_cubic<T, YRows, UniformGrid, periodic>;

template <class T>
inline constexpr DefaultKernel* default_dispatch[] = {
    _v1DCSDefaultYColsNoUniformGridNotAKnot<T>, _v1DCSDefaultYColsNoUniformGridFreeEnd<T>,
    _v1DCSDefaultYColsNoUniformGrid1st1st<T>,   _v1DCSDefaultYColsNoUniformGrid1st2nd<T>,
    _v1DCSDefaultYColsNoUniformGrid2nd1st<T>,   _v1DCSDefaultYColsNoUniformGrid2nd2nd<T>,
    _v1DCSDefaultYColsNoUniformGridPeriodic<T>, _v1DCSDefaultYColsUniformGridNotAKnot<T>,
    _v1DCSDefaultYColsUniformGridFreeEnd<T>,    _v1DCSDefaultYColsUniformGrid1st1st<T>,
    _v1DCSDefaultYColsUniformGrid1st2nd<T>,     _v1DCSDefaultYColsUniformGrid2nd1st<T>,
    _v1DCSDefaultYColsUniformGrid2nd2nd<T>,     _v1DCSDefaultYColsUniformGridPeriodic<T>,
    _v1DCSDefaultYRowsNoUniformGridNotAKnot<T>, _v1DCSDefaultYRowsNoUniformGridFreeEnd<T>,
    _v1DCSDefaultYRowsNoUniformGrid1st1st<T>,   _v1DCSDefaultYRowsNoUniformGrid1st2nd<T>,
    _v1DCSDefaultYRowsNoUniformGrid2nd1st<T>,   _v1DCSDefaultYRowsNoUniformGrid2nd2nd<T>,
    _v1DCSDefaultYRowsNoUniformGridPeriodic<T>, _v1DCSDefaultYRowsUniformGridNotAKnot<T>,
    _v1DCSDefaultYRowsUniformGridFreeEnd<T>,    _v1DCSDefaultYRowsUniformGrid1st1st<T>,
    _v1DCSDefaultYRowsUniformGrid1st2nd<T>,     _v1DCSDefaultYRowsUniformGrid2nd1st<T>,
    _v1DCSDefaultYRowsUniformGrid2nd2nd<T>,     _v1DCSDefaultYRowsUniformGridPeriodic<T>,
};

template <class T>
int construct_default(const Task* task) {
  if (task == nullptr) return ORK_DF_NULL_TASK;
  if (const int code = check_shape(task, 3)) return code;
  const int boundary = check_cubic_boundary(task, false);
  if (boundary < 0) return boundary;
  if (task->icValues == nullptr) return ORK_DF_BAD_IC_VALUES;
  if (const int code = check_arrays(task)) return code;
  return default_dispatch<T>[dispatch_block(task) * boundary_slots + boundary](task);
}

}  // namespace ork::df

ORK_EXPORT int ork_df_kernel_dDFDefaultCubicSpline1D(ork_df_task* task, int64_t, int64_t,
                                                     const ork_threader*) {
  return ork::df::construct_default<double>(task);
}
ORK_EXPORT int ork_df_kernel_sDFDefaultCubicSpline1D(ork_df_task* task, int64_t, int64_t,
                                                     const ork_threader*) {
  return ork::df::construct_default<float>(task);
}
