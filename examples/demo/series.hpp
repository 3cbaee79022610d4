#pragma once
// The columns of the table, transformed: growth rates, differences, points in time.
#include <string>
#include <utility>
#include <vector>

#include "table.hpp"

namespace demo {

// One value for each quarter but the first.
struct Series {
  const char* key;
  const char* name;
  const char* short_name;
  const char* unit;
  std::vector<double> values;
};

// Series of interest by their place.
enum {
  gdp_growth,
  consumption_growth,
  investment_growth,
  inflation,
  bill_rate,
  unemployment_change
};

struct Quarters {
  std::vector<int> year, quarter;
  std::vector<double> time;          // middles of the quarters, in years
  std::vector<double> unemployment;  // %
  std::vector<Series> series;
  // From, to: two or more quarters in turn in which GDP fell.
  std::vector<std::pair<double, double>> downturns;

  size_t size() const { return time.size(); }
  std::string label(size_t i) const;  // "1982 Q4"
};

Quarters transform(const Table& table);

}  // namespace demo
