#include "rua_kernel/ss/service/task.hpp"

#include <string.h>

#include "ork/serv.h"

namespace ork::ss {
namespace {

template <class R>
int32_t new_task(ork_ss_task** task, const void* p, const void* n, const void* storage, const R* x,
                 const R* w, const void* indices, int32_t wide) {
  Task<R> record;
  memset(&record, 0, sizeof record);
  record.wideIntegers = wide;
  record.taskKind = kTaskKind;
  record.isDouble = sizeof(R) == sizeof(double);
  record.dimension = static_cast<Integers>(p);
  record.observationCount = static_cast<Integers>(n);
  record.variableMask = static_cast<Integers>(indices);
  record.observations = x;
  record.weights = w;
  record.storageFormat = static_cast<Integers>(storage);

  if (!task) return ORK_SS_NULL_TASK;
  if (!p || record.integer(record.dimension) < 1) return ORK_SS_BAD_DIMENSION;
  if (x) {
    if (!storage) return ORK_SS_NULL_STORAGE;
    const int64_t layout = record.integer(record.storageFormat);
    if (layout != ORK_SS_ROWS && layout != ORK_SS_COLUMNS) return ORK_SS_BAD_STORAGE;
    if (!n || record.integer(record.observationCount) < 1) return ORK_SS_BAD_OBSERVATION_COUNT;
  }
  void* block = ork_serv_allocate(sizeof record, 128);
  if (!block) return ORK_SS_NO_MEMORY;
  memcpy(block, &record, sizeof record);
  *task = static_cast<ork_ss_task*>(block);
  return ORK_SS_OK;
}

}  // namespace

#define ORK_NEW_TASK(t, R)                                                                 \
  ORK_EXPORT int32_t __rua##t##SSNewTask(ork_ss_task** task, const void* p, const void* n, \
                                         const void* storage, const R* x, const R* w,      \
                                         const void* indices, int32_t wideIntegers) {      \
    return new_task(task, p, n, storage, x, w, indices, wideIntegers);                     \
  }
ORK_TWINS(ORK_NEW_TASK)

ORK_EXPORT int32_t __ruaSSDeleteTask(ork_ss_task** task) {
  if (!task || !*task) return ORK_SS_NULL_TASK;
  // What a hook needs stands at the same place in records of both precisions.
  const Task<double>& record = record_of<double>(*task);
  if (record.releaseCount > 0) record.releaseHook(*task);
  ork_serv_deallocate(*task);
  *task = nullptr;
  return ORK_SS_OK;
}

}  // namespace ork::ss
