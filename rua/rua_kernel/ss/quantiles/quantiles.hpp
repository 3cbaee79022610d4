// Quantiles for other methods of statistics, on records of their own.
#pragma once
#include "rua_kernel/ss/service/task.hpp"

namespace ork::ss {

template <class R>
int32_t quantiles(Task<R>& task, uint64_t estimates, uint64_t method, const ork_threader* threader);

}  // namespace ork::ss
