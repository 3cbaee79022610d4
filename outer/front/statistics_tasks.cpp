// Statistics tasks behind checks: a kernel's editor takes arrays of the other precision, too.
#include <type_traits>

#include "ork/front.h"
#include "outer/export.hpp"
#include "rua/rua_kernel/ss/service/task.hpp"

namespace {

using Record = ork::ss::Task<double>;  // of both precisions: what is read here lies alike

template <class T, class Kernel>
int new_task(Kernel kernel, ork_ss_task** task, const int32_t* p, const int32_t* n,
             const int32_t* storage, const T* x, const T* w, const int32_t* indices) {
  if (task == nullptr) return ORK_SS_NULL_TASK;
  *task = nullptr;
  return kernel(task, p, n, storage, x, w, indices, 0);
}

template <class T, class Kernel>
int edit(Kernel kernel, ork_ss_task* task, int32_t code, const T* value) {
  if (task == nullptr) return ORK_SS_NULL_TASK;
  const Record& record = ork::ss::record_of<double>(task);
  const bool fits = std::is_integral_v<T> ? record.wideIntegers == 0
                                          : record.isDouble == (sizeof(T) == sizeof(double));
  return fits ? kernel(task, code, value) : ORK_SS_BAD_CODE;
}

}  // namespace

ORK_OUTER int ork_dSSNewTask(ork_ss_task** task, const int32_t* p, const int32_t* n,
                             const int32_t* storage, const double* x, const double* w,
                             const int32_t* indices) {
  return new_task(__ruadSSNewTask, task, p, n, storage, x, w, indices);
}
ORK_OUTER int ork_sSSNewTask(ork_ss_task** task, const int32_t* p, const int32_t* n,
                             const int32_t* storage, const float* x, const float* w,
                             const int32_t* indices) {
  return new_task(__ruasSSNewTask, task, p, n, storage, x, w, indices);
}

ORK_OUTER int ork_dSSEditTask(ork_ss_task* task, int32_t code, const double* value) {
  return edit(__ruadSSEditTask, task, code, value);
}
ORK_OUTER int ork_sSSEditTask(ork_ss_task* task, int32_t code, const float* value) {
  return edit(__ruasSSEditTask, task, code, value);
}
ORK_OUTER int ork_iSSEditTask(ork_ss_task* task, int32_t code, const int32_t* value) {
  return edit(__ruaiSSEditTask, task, code, value);
}

ORK_OUTER int ork_ss_delete(ork_ss_task** task) {
  if (task == nullptr) return ORK_SS_NULL_TASK;
  return *task != nullptr ? __ruaSSDeleteTask(task) : ORK_SS_OK;
}
