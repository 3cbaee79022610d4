// What the public layer asks of every spline task.
#pragma once
#include "df/df_kernel/service/task.hpp"

namespace ork::front {

// A task, and of the precision of T: kernels take its arrays for what their letter says.
template <class T>
int check_task(const ork_df_task* task) {
  if (task == nullptr) return ORK_DF_NULL_TASK;
  return task->precisionFlag == (sizeof(T) == sizeof(double)) ? ORK_DF_OK : ORK_DF_BAD_TYPE;
}

// Whether an array of so many values can exist: kernels count its bytes in 32 bits.
template <class T>
bool can_hold(int64_t a, int64_t b = 1, int64_t c = 1) {
  constexpr int64_t most = INT32_MAX / sizeof(T);
  return a >= 0 && a <= most && b >= 0 && b <= most && c >= 0 && c <= most && a * b <= most &&
         (c == 0 || a * b <= most / c);
}

}  // namespace ork::front
