#include "error_functions/cdfnorminv/cdfnorminv.hpp"
#include "error_functions/inverse_special.hpp"

namespace ork {

static double tail(double p) { return _mm_cvtsd_f64(dCdfNormInv_Tail(_mm_set_sd(p))); }

int cdfnorminv_rare(const double* a, double* r) { return inverse_special(a, r, 1.0, tail, -1.0); }
int cdfnorminv_rare(const float* a, float* r) { return inverse_special(a, r, 1.0f, tail, -1.0); }

}  // namespace ork
