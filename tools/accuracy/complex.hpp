#pragma once
// The meter's part for complex functions: quad precision, errors of each part and of the modulus.
#include <map>
#include <string>
#include <vector>

#include "registry/claims.hpp"
#include "registry/kernels.hpp"

struct ComplexRun {
  int points;
  bool flush;  // denormals count as zeros; arguments and results that are denormal do not count
  std::map<std::string, std::string>* rows;
  int failures = 0, measured = 0;
};

// Measures the slot's kernels at these levels, prints a row for each declared bound and adds it to
// the rows. A kernel without a bound is a failure.
void measure_complex(const Claims& claims, const Slot& slot, const std::vector<int>& levels,
                     ComplexRun& run);
