#pragma once
// Accuracy and speed of some kernels on this machine, beside the C library.
#include <string>
#include <vector>

#include "progress.hpp"

namespace demo {

// Worst errors over the sample, and time-stamp cycles per element of 1024 elements in the
// first-level cache: the least of many runs.
struct Measurement {
  double ulp;   // |got - exact| / ulp(exact)
  double bits;  // correct bits: -log2 of the worst relative error
  double cycles;
};

struct Measured {
  std::string name, range;  // "exp", or "expf" in single precision; the arguments
  Measurement level[3];     // low accuracy, high accuracy, enhanced performance
  Measurement c_library;
};

constexpr int sample_points = 200000;

std::vector<Measured> measure(Progress& progress);
std::string processor_name();

}  // namespace demo
