#include "base/export.hpp"
#include "base/vec.hpp"
#include "ork/zem.h"

ORK_EXPORT float ork_zem_kernel__sabs_scalar(float x) { return __builtin_fabsf(x); }
ORK_EXPORT double ork_zem_kernel__dabs_scalar(double x) { return __builtin_fabs(x); }
