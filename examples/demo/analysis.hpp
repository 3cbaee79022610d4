#pragma once
// Moments, correlations and quantiles of all series, by statistics tasks.
#include <vector>

#include "series.hpp"

namespace demo {

struct Moments {
  double mean, deviation, skewness, kurtosis;
};

constexpr double quantile_orders[] = {0, 0.05, 0.25, 0.5, 0.75, 0.95, 1};
constexpr size_t quantile_count = sizeof quantile_orders / sizeof *quantile_orders;

struct Analysis {
  size_t series;
  std::vector<Moments> moments;
  std::vector<double> correlation;  // series by series, ones on the diagonal
  std::vector<double> quantiles;    // quantile_count for each series
  std::vector<double> sorted;       // all values of a series, series after series
  double slope, intercept;          // of unemployment's change on growth, by least squares

  double cor(size_t i, size_t j) const { return correlation[i * series + j]; }
  const double* quantiles_of(size_t i) const { return &quantiles[i * quantile_count]; }
};

// Fails when a series does not vary.
Analysis analyse(const Quarters& quarters);

}  // namespace demo
