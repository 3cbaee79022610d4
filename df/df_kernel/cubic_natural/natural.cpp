// Natural cubic spline: the construction entries.
#include "cubic_natural/natural.hpp"

namespace ork::df {

template <class T>
int construct_natural(const Task* task, int64_t method, const ork_threader* threader) {
  if (task == nullptr) return ORK_DF_NULL_TASK;
  if (method != 0) return ORK_DF_BAD_METHOD;
  if (const int code = check_shape(task, 3)) return code;
  const int boundary = check_cubic_boundary(task, false);
  if (boundary < 0) return boundary;
  if (const int code = check_arrays(task)) return code;
  return for_layout(task, [&]<class Y, class Grid>() {
    return Natural<T, Y, Grid>::build(task, boundary, threader);
  });
}

}  // namespace ork::df

ORK_CONSTRUCTION(NaturalCubic, construct_natural)
