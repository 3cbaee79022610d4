#pragma once
#include "logarithms/log_rare.hpp"

namespace ork {

int vdlog10_cout_rare(const double* a, double* out);
int vslog10_cout_rare(const float* a, float* out);

}  // namespace ork
