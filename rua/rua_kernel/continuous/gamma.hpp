// The methods of the gamma distribution, of scale 1. They run under the callback guard of the
// entry.
#pragma once
#include "ork/rua.h"

namespace ork::rua {

template <class R>
int32_t gamma_above_one(RuaStream* stream, int32_t n, R* r, R alpha);
template <class R>
int32_t gamma_below_one(RuaStream* stream, int32_t n, R* r, R alpha);
template <class R>
int32_t gamma_near_zero(RuaStream* stream, int32_t n, R* r, R alpha);

}  // namespace ork::rua
