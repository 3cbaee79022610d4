#include "trig/large.hpp"

namespace ork::trig {

const Digits inverse_two_pi[128] = {
#include "trig/inverse_two_pi.inc"
};

}  // namespace ork::trig
