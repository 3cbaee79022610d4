// The exported form of a computation.
#pragma once
#include "rua_kernel/ss/service/task.hpp"

// _ruadSS<name> and _ruasSS<name>: compute(record, estimates, method, threader) of either
// precision. The masks travel as two words each, low word first.
#define ORK_COMPUTATION(name, compute)         \
  ORK_COMPUTATION_OF(d, double, name, compute) \
  ORK_COMPUTATION_OF(s, float, name, compute)
#define ORK_COMPUTATION_OF(letter, R, name, compute)                                              \
  ORK_EXPORT int32_t _rua##letter##SS##name(ork_ss_task* task, uint32_t estimates_low,            \
                                            uint32_t estimates_high, uint32_t method_low,         \
                                            uint32_t method_high, const ork_threader* threader) { \
    return compute(record_of<R>(task), join(estimates_low, estimates_high),                       \
                   join(method_low, method_high), threader);                                      \
  }
