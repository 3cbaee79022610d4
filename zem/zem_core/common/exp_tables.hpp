#pragma once
// Powers of two with fractional exponents; what a row holds stands in the head of each file.
#include <stdint.h>

namespace ork {

alignas(16) inline constexpr double exp_split64_d[64][2] = {
#include "common/exp_split64_d.inc"
};
alignas(16) inline constexpr uint64_t exp_mantissa128_d[128] = {
#include "common/exp_mantissa128_d.inc"
};
alignas(16) inline constexpr float exp_split128_s[128][2] = {
#include "common/exp_split128_s.inc"
};
alignas(16) inline constexpr uint32_t exp_mantissa128_s[128][2] = {
#include "common/exp_mantissa128_s.inc"
};

}  // namespace ork
