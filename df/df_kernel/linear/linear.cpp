// Linear spline: the construction entries.
#include "linear/linear.hpp"

namespace ork::df {

template <class T>
int construct_linear(const Task* task, int64_t method, const ork_threader* threader) {
  if (task == nullptr) return ORK_DF_NULL_TASK;
  if (method != 0) return ORK_DF_BAD_METHOD;
  if (const int code = check_shape(task, 2)) return code;
  if (const int code = check_arrays(task)) return code;
  return for_layout(
      task, [&]<class Y, class Grid>() { return Linear<T, Y, Grid>::build(task, threader); });
}

}  // namespace ork::df

ORK_CONSTRUCTION(Linear, construct_linear)
