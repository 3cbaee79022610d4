#pragma once
#include "rua_kernel/ss/service/task.hpp"

namespace ork::ss {

// Sets the field of a code from 1 to ORK_SS_EDIT_MEAN_ABS_DEV.
void set_field(ork_ss_task* task, int code, const void* value);

}  // namespace ork::ss
