// The quadratic splines: the construction entries of the standard and the Subbotin kind.
#include "quadratic_std/quadratic.hpp"

#include "quadratic_subbotin/subbotin.hpp"

namespace ork::df {

template <class T>
int construct_quadratic_std(const Task* task) {
  if (task->bcType != ORK_DF_BC_MIDDLE) return ORK_DF_BAD_BC;
  if (task->bcValues == nullptr) return ORK_DF_BAD_BC_VALUES;
  if (const int code = check_arrays(task)) return code;
  return for_layout(task,
                    [&]<class Y, class Grid>() { return Quadratic<T, Y, Grid>::build(task); });
}

template <class T>
int construct_subbotin(const Task* task) {
  if (!(task->icType & ORK_DF_IC_SUBGRID)) return ORK_DF_BAD_IC;
  const int boundary = boundary_index(task->bcType);
  if (!two_boundary_values(boundary)) return ORK_DF_BAD_BC;
  if (task->bcValues == nullptr) return ORK_DF_BAD_BC_VALUES;
  if ((task->icType & ORK_DF_IC_UNIFORM) && task->icValues == nullptr) return ORK_DF_BAD_IC_VALUES;
  if (const int code = check_arrays(task)) return code;
  return for_layout(
      task, [&]<class Y, class Grid>() { return Subbotin<T, Y, Grid>::build(task, boundary); });
}

template <class T>
int construct_quadratic(const Task* task, int64_t, const ork_threader*) {
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

ORK_CONSTRUCTION(Quadratic, construct_quadratic)
