// Default cubic spline: the caller supplies the second derivatives at the interior breakpoints,
// and with them every interior cell; the boundary conditions fill the two end cells.
#include "cubic_default/default.hpp"

namespace ork::df {

template <class T>
int construct_default(const Task* task, int64_t, const ork_threader*) {
  if (task == nullptr) return ORK_DF_NULL_TASK;
  if (const int code = check_shape(task, 3)) return code;
  const int boundary = check_cubic_boundary(task, false);
  if (boundary < 0) return boundary;
  if (task->icValues == nullptr) return ORK_DF_BAD_IC_VALUES;
  if (const int code = check_arrays(task)) return code;
  return for_layout(
      task, [&]<class Y, class Grid>() { return DefaultCubic<T, Y, Grid>::build(task, boundary); });
}

}  // namespace ork::df

ORK_CONSTRUCTION(DefaultCubic, construct_default)
