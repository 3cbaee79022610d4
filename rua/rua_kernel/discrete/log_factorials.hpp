// Logarithms of factorials, for quotients of them.
#pragma once
#include <stdint.h>

namespace ork::rua {

// ln x!: to 15! by a table, then by Stirling's series up to x^-3, which is 8e-10 off at 16.
double log_factorial(int32_t x);

// ln a! b! c! d!, whose sum is a + b + c + d. Differences of such with one sum keep few ulps of the
// terms: 1.5e-5 off at a sum of 2e9.
double log_factorials(int32_t a, int32_t b, int32_t c, int32_t d, int32_t sum);

}  // namespace ork::rua
