#pragma once
// The exact functions: in quad precision for double kernels, in the x87's extended precision
// for single ones.
#include <string>

typedef __float128 quad;

struct Reference {
  const char* function;
  quad (*wide)(quad a, quad b);
  long double (*extended)(long double a, long double b);
  // The second output, of functions that have one.
  quad (*wide2)(quad a, quad b) = nullptr;
  long double (*extended2)(long double a, long double b) = nullptr;
};

// Null for a function with no row.
const Reference* find_reference(const std::string& function);
