#include "trig/large.hpp"

namespace ork::trig {

const Digits _VAPI_COMMON_DATA_NAME[128] = {
#include "trig/inverse_two_pi.inc"
};

}  // namespace ork::trig
