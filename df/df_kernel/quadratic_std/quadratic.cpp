// The quadratic splines: the standard kernels, their dispatch table, and the construction
// entries, which serve the Subbotin kind, too.
#include "quadratic_std/quadratic.hpp"

#include "quadratic_subbotin/kernels.hpp"

namespace ork::df {

template <class T>
inline constexpr QuadraticKernel* _v1DQSStdYColsNoUniformGrid =
    Quadratic<T, YCols, NoUniformGrid>::build;
template <class T>
inline constexpr QuadraticKernel* _v1DQSStdYColsUniformGrid =
    Quadratic<T, YCols, UniformGrid>::build;
template <class T>
inline constexpr QuadraticKernel* _v1DQSStdYRowsNoUniformGrid =
    Quadratic<T, YRows, NoUniformGrid>::build;
template <class T>
inline constexpr QuadraticKernel* _v1DQSStdYRowsUniformGrid =
    Quadratic<T, YRows, UniformGrid>::build;

template <class T>
inline constexpr QuadraticKernel* quadratic_dispatch[] = {
    _v1DQSStdYColsNoUniformGrid<T>,
    _v1DQSStdYColsUniformGrid<T>,
    _v1DQSStdYRowsNoUniformGrid<T>,
    _v1DQSStdYRowsUniformGrid<T>,
};

template <class T>
int construct_quadratic_std(const Task* task) {
  if (task->bcType != ORK_DF_BC_MIDDLE) return ORK_DF_BAD_BC;
  if (task->bcValues == nullptr) return ORK_DF_BAD_BC_VALUES;
  if (const int code = check_arrays(task)) return code;
  return quadratic_dispatch<T>[dispatch_block(task)](task);
}

template <class T>
int construct_subbotin(const Task* task) {
  if (!(task->icType & ORK_DF_IC_SUBGRID)) return ORK_DF_BAD_IC;
  const int boundary = boundary_index(task->bcType);
  if (!two_boundary_values(boundary)) return ORK_DF_BAD_BC;
  if (task->bcValues == nullptr) return ORK_DF_BAD_BC_VALUES;
  const bool even = (task->icType & ORK_DF_IC_UNIFORM) != 0;
  if (even && task->icValues == nullptr) return ORK_DF_BAD_IC_VALUES;
  if (const int code = check_arrays(task)) return code;
  const int kernel = (4 * even + dispatch_block(task)) * boundary_slots + boundary;
  return subbotin_dispatch<T>[kernel](task);
}

template <class T>
int construct_quadratic(const Task* task) {
  if (task == nullptr) return ORK_DF_NULL_TASK;
  if (const int code = check_shape(task, 2)) return code;
  switch (task->splineType) {
    case ORK_DF_TYPE_DEFAULT:
      return construct_quadratic_std<T>(task);
    case ORK_DF_TYPE_SUBBOTIN:
      return construct_subbotin<T>(task);
    default:
      return ORK_DF_BAD_METHOD;
  }
}

}  // namespace ork::df

ORK_EXPORT int ork_df_kernel_dDFQuadraticSpline1D(ork_df_task* task, int64_t, int64_t,
                                                  const ork_threader*) {
  return ork::df::construct_quadratic<double>(task);
}
ORK_EXPORT int ork_df_kernel_sDFQuadraticSpline1D(ork_df_task* task, int64_t, int64_t,
                                                  const ork_threader*) {
  return ork::df::construct_quadratic<float>(task);
}
