#include "analysis.hpp"

#include <cmath>

#include "fail.hpp"
#include "ork/front.h"

namespace demo {

Analysis analyse(const Quarters& quarters) {
  const int32_t p = int32_t(quarters.series.size()), n = int32_t(quarters.series[0].values.size());
  const int32_t rows = ORK_SS_ROWS, full = ORK_SS_FULL, orders = int32_t(quantile_count);
  const size_t P = size_t(p);

  // Series after series: an observation matrix in row storage.
  std::vector<double> x;
  for (const Series& s : quarters.series) x.insert(x.end(), s.values.begin(), s.values.end());

  std::vector<double> mean(P), raw[3], central[3], kurtosis(P), skewness(P), deviation(P);
  for (int k = 0; k < 3; ++k) raw[k].resize(P), central[k].resize(P);
  Analysis a;
  a.series = P;
  a.correlation.resize(P * P);
  a.quantiles.resize(P * quantile_count);
  a.sorted.resize(x.size());

  ork_ss_task* task = nullptr;
  require(__ruadSSNewTask(&task, &p, &n, &rows, x.data(), nullptr, nullptr, 0),
          "a statistics task");
  __ruadSSEditMoments(task, mean.data(), raw[0].data(), raw[1].data(), raw[2].data(),
                      central[0].data(), central[1].data(), central[2].data());
  __ruadSSEditTask(task, ORK_SS_EDIT_KURTOSIS, kurtosis.data());
  __ruadSSEditTask(task, ORK_SS_EDIT_SKEWNESS, skewness.data());
  __ruadSSEditCovCor(task, nullptr, nullptr, nullptr, a.correlation.data(), &full);
  __ruadSSEditQuantiles(task, &orders, quantile_orders, a.quantiles.data(), a.sorted.data(), &rows);

  constexpr uint64_t moments =
      ORK_SS_MEAN | ORK_SS_CENTRAL2 | ORK_SS_KURTOSIS | ORK_SS_SKEWNESS | ORK_SS_COR;
  constexpr uint64_t places = ORK_SS_QUANTILES | ORK_SS_ORDER_STATS;
  require(ork_ss_compute(task, moments, ORK_SS_ONE_PASS, &ork_threader_parallel),
          "computing moments");
  require(ork_ss_compute(task, places, ORK_SS_FAST, &ork_threader_parallel), "computing quantiles");
  __ruaSSDeleteTask(&task);

  ork_dSqrt(p, central[0].data(), deviation.data());
  for (size_t i = 0; i < P; ++i) {
    const double* q = a.quantiles_of(i);
    if (q[0] == q[quantile_count - 1])
      fail("%s is %g throughout; there is nothing to analyse", quarters.series[i].name, q[0]);
    if (!std::isfinite(kurtosis[i] + skewness[i]))
      fail("%s, from %g to %g, varies too little to be analysed", quarters.series[i].name, q[0],
           q[quantile_count - 1]);
    a.moments.push_back({mean[i], deviation[i], skewness[i], kurtosis[i]});
    a.correlation[i * P + i] = 1;  // the task leaves the variances there
  }
  a.slope = a.cor(gdp_growth, unemployment_change) * deviation[unemployment_change] /
            deviation[gdp_growth];
  a.intercept = mean[unemployment_change] - a.slope * mean[gdp_growth];
  return a;
}

}  // namespace demo
