#pragma once
#include "logarithms/log_rare.hpp"

namespace ork {

int log10_rare(const double* a, double* out);
int log10_rare(const float* a, float* out);

}  // namespace ork
