#pragma once
// Logarithms of short reciprocals; what a row holds stands in the head of the file.
namespace ork {

alignas(16) inline constexpr double log_rows_d[256][3] = {
#include "areas/log_rows_d.inc"
};

}  // namespace ork
