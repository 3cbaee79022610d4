#include "trig/large.hpp"
#include "trig/table.hpp"

namespace ork::trig {

const Row rows_pi32[64] = {
#include "trig/sincos_pi32.inc"
};
const Row rows_pi64[160] = {
#include "trig/sincos_pi64.inc"
};

const SineCosine rows_quadrant[128] = {
#include "trig/sincos_quadrant.inc"
};

}  // namespace ork::trig
