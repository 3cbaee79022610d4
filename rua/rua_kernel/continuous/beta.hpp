// The methods of the beta distribution on (0, 1). They run under the callback guard of the entry.
#pragma once
#include "ork/rua.h"

namespace ork::rua {

// p and q below 1, the smaller the better.
template <class R>
int32_t beta_johnk(RuaStream* stream, int32_t n, R* r, R p, R q);
// p and q below 1.
template <class R>
int32_t beta_switching(RuaStream* stream, int32_t n, R* r, R p, R q);
// p below 1, q above.
template <class R>
int32_t beta_switching_mixed(RuaStream* stream, int32_t n, R* r, R p, R q);
// p and q above 1.
template <class R>
int32_t beta_cheng(RuaStream* stream, int32_t n, R* r, R p, R q);

}  // namespace ork::rua
