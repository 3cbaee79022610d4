// The source of all draws, for either type.
#pragma once
#include "ork/rua_distributions.h"

namespace ork::rua {

inline int32_t uniform(RuaStream* stream, int32_t n, double* r, double a, double b) {
  return _ruadRngUniform(0, stream, n, r, a, b);
}
inline int32_t uniform(RuaStream* stream, int32_t n, float* r, float a, float b) {
  return _ruasRngUniform(0, stream, n, r, a, b);
}

}  // namespace ork::rua
