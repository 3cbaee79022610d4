// The methods of the Gaussian distribution: mean a, standard deviation sigma. They run under the
// callback guard of the entry.
#pragma once
#include "ork/rua.h"

namespace ork::rua {

template <class R>
using GaussianMethod = int32_t(RuaStream* stream, int32_t n, R* r, R a, R sigma);

template <class R>
int32_t box_muller(RuaStream* stream, int32_t n, R* r, R a, R sigma);
template <class R>
int32_t box_muller2(RuaStream* stream, int32_t n, R* r, R a, R sigma);
template <class R>
int32_t icdf(RuaStream* stream, int32_t n, R* r, R a, R sigma);

// The type's value nearest to 2 pi.
template <class R>
inline constexpr R kTwoPi = 0x1.921fb54442d18p+2;
template <>
inline constexpr float kTwoPi<float> = 0x1.921fb6p+2f;

}  // namespace ork::rua
