#pragma once
// What the demo found, as a self-contained HTML page and as a few lines of text.
#include <string>
#include <vector>

#include "analysis.hpp"
#include "bootstrap.hpp"
#include "curve.hpp"
#include "measure.hpp"
#include "robust.hpp"
#include "series.hpp"

namespace demo {

struct Results {
  Table table;
  Quarters quarters;
  Analysis analysis;
  Robust robust;
  Bootstrap bootstrap;
  Curve curve;
  std::vector<Measured> measured;
};

std::string page(const Results& results);
std::string summary(const Results& results);

}  // namespace demo
