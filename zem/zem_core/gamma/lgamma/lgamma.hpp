#pragma once
// ln |Gamma(x)| of one element; writes *r and returns the status. Any rounding mode; the x87
// control word is as before on return.
#include "frame/element.hpp"

namespace ork {

int lgamma_rare(const double* a, double* r);
int lgamma_rare(const float* a, float* r);

}  // namespace ork
