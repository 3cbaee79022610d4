// A tour of five minutes: one piece of work that goes through all four domains. Each has an
// example of its own beside this one.
#include <ork/front.h>

#include <chrono>
#include <cstdio>
#include <vector>

namespace {

// Every call returns 0 or a status of its domain.
void check(int status, const char* what) {
  if (status != 0) std::printf("%s: status %d\n", what, status);
}

double milliseconds(std::chrono::steady_clock::time_point since) {
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - since)
      .count();
}

}  // namespace

int main() {
  int n = 200000;
  std::vector<double> z(n), x(n), u(n);

  // Random numbers: a stream of a generator, and a distribution drawn from it.
  RuaStream* stream = nullptr;
  check(ork_stream_new(&stream, RUA_BRNG_MT19937, 42), "stream");
  check(ork_dRngGaussian(RUA_GAUSSIAN_ICDF, stream, n, z.data(), 0.5, 0.25), "draw");
  check(ork_stream_delete(&stream), "delete");

  // Vector mathematics, on as many threads as pay: x = exp(z), then u = P(Z <= z), which is
  // uniform if all is well.
  auto start = std::chrono::steady_clock::now();
  check(ork_dExp(n, z.data(), x.data()), "exp");
  std::printf("exp of %d numbers: %.2f ms\n", n, milliseconds(start));
  std::vector<double> one(n, 1.0);
  check(ork_dLinearFrac(n, z.data(), one.data(), 4, -2, 0, 1, u.data()), "standardise");
  check(ork_dCdfNorm(n, u.data(), u.data()), "cdf");

  // Statistics of two variables, x and u, in one task.
  std::vector<double> data(x);
  data.insert(data.end(), u.begin(), u.end());
  int p = 2, rows = ORK_SS_ROWS, full = ORK_SS_FULL, orders = 9;
  double mean[2], raw2[2], variance[2], cov[4], cor[4], order[9], quantile[18];
  for (int k = 0; k < 9; ++k) order[k] = 0.1 * (k + 1);
  ork_ss_task* task = nullptr;
  check(__ruadSSNewTask(&task, &p, &n, &rows, data.data(), nullptr, nullptr, 0), "task");
  __ruadSSEditMoments(task, mean, raw2, nullptr, nullptr, variance, nullptr, nullptr);
  __ruadSSEditCovCor(task, mean, cov, &full, cor, &full);
  __ruadSSEditQuantiles(task, &orders, order, quantile, nullptr, nullptr);
  check(ork_ss_compute(task, ORK_SS_MEAN | ORK_SS_CENTRAL2 | ORK_SS_COR | ORK_SS_QUANTILES,
                       ORK_SS_FAST, &ork_threader_parallel),
        "estimates");
  check(__ruaSSDeleteTask(&task), "delete");
  std::printf("lognormal: mean %.3f (exact 1.701), variance %.4f (exact 0.1866)\n", mean[0],
              variance[0]);
  std::printf("uniform:   mean %.3f, variance %.4f; correlation %.3f\n", mean[1], variance[1],
              cor[1]);

  // A spline through the deciles: the distribution function, read off at places between them.
  std::vector<double> coefficients(4 * 8);
  ork_df_task* curve = nullptr;
  check(ork_df_kernel_dNewTask1D(&curve, 9, quantile, ORK_DF_X_NON_UNIFORM, 1, order, 0, 0),
        "curve");
  check(ork_df_kernel_dEditPPSpline1D(curve, 4, ORK_DF_TYPE_AKIMA, ORK_DF_BC_NOT_A_KNOT, nullptr, 0,
                                      nullptr, coefficients.data(), 0),
        "spline");
  check(ork_dDFConstruct(curve, nullptr), "construct");
  const double sites[] = {1.4, 1.64872127070012815, 2.0};
  double below[3];
  check(ork_dDFInterpolate(curve, 3, sites, ORK_DF_SITES_SORTED, below, nullptr), "evaluate");
  check(ork_df_kernel_DeleteTask(&curve), "delete");
  std::printf("P(x < 1.4) %.3f, P(x < sqrt e) %.3f, P(x < 2) %.3f (exact 0.256, 0.500, 0.780)\n",
              below[0], below[1], below[2]);
  return 0;
}
