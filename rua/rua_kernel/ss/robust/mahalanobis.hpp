// Mahalanobis distances, for methods that tell outliers by them.
#pragma once
#include "rua_kernel/ss/service/task.hpp"

namespace ork::ss {

// The record's mah fields say which observations and where to; ork/ss.h has the rest.
template <class R>
int32_t mahalanobis(const Task<R>& record);

}  // namespace ork::ss
