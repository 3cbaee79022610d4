#include "error_functions/erfcinv/erfcinv.hpp"
#include "error_functions/inverse_special.hpp"

namespace ork {

static double tail(double x) { return _mm_cvtsd_f64(dErfcInv_Tail(_mm_set_sd(x))); }

int erfcinv_rare(const double* a, double* r) { return inverse_special(a, r, 2.0, tail, 1.0); }
int erfcinv_rare(const float* a, float* r) { return inverse_special(a, r, 2.0f, tail, 1.0); }

}  // namespace ork
