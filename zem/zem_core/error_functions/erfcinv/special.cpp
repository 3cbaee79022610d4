#include "error_functions/inverse_special.hpp"

#include "error_functions/erfcinv/erfcinv.hpp"

namespace ork {

static double tail(double x) { return _mm_cvtsd_f64(dErfcInv_Tail(_mm_set_sd(x))); }

int dErfcInv_SC(const double* a, double* r) { return inverse_special(a, r, 2.0, tail, 1.0); }
int sErfcInv_SC(const float* a, float* r) { return inverse_special(a, r, 2.0f, tail, 1.0); }

}  // namespace ork
