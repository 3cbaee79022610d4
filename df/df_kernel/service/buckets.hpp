// The bucket table: equal slices of the partition's span, each with the breakpoints that
// bracket it. Cell search on non-uniform partitions starts from it.
#pragma once
#include "service/task.hpp"

namespace ork::df {

// Builds the table from the task's x and nx, by the task's precision. The block is allocated
// when there is none yet. 0 or ORK_DF_NO_MEMORY.
int build_buckets(Task* task);

}  // namespace ork::df
