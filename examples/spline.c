/* A cubic spline: construct, evaluate, differentiate, integrate. */
#include <math.h>
#include <ork/front.h>
#include <stdio.h>

#define KNOTS 17
#define SITES 401

int main(void) {
  const double pi = acos(-1.0);
  double x[KNOTS], y[KNOTS], coefficients[4 * (KNOTS - 1)];
  int status = 0;
  for (int i = 0; i < KNOTS; ++i) { /* closer together on the left */
    x[i] = pi * i * (i + KNOTS - 1) / (2.0 * (KNOTS - 1) * (KNOTS - 1));
    y[i] = sin(x[i]);
  }

  /* 1. A task lends breakpoints and values to the library, and says which spline is meant. The
   * coefficients stay the caller's, 4 for each cell. */
  ork_df_task* task = NULL;
  const double ends[2] = {0, 0}; /* second derivatives of the sine at 0 and pi */
  status |= ork_dDFNewTask(&task, KNOTS, x, ORK_DF_X_NON_UNIFORM, 1, y, 0);
  status |= ork_dDFEditSpline(task, 4, ORK_DF_TYPE_NATURAL,
                                          ORK_DF_BC_2ND_LEFT | ORK_DF_BC_2ND_RIGHT, ends, 0, NULL,
                                          coefficients, 0);
  status |= ork_dDFConstruct(task, &ork_threader_parallel);

  /* 2. Values at evenly spaced sites: the first and the last are enough. */
  static double value[SITES];
  const double range[2] = {0, pi};
  status |= ork_dDFInterpolate(task, SITES, range, ORK_DF_SITES_UNIFORM, value, NULL);
  double worst = 0;
  for (int j = 0; j < SITES; ++j) worst = fmax(worst, fabs(value[j] - sin(pi * j / (SITES - 1))));
  printf("largest error of the spline   %.1e\n", worst);

  /* 3. Value and slope together: flags for the derivatives of order 0 and 1. */
  const double middle = pi / 2;
  const int32_t flags[2] = {1, 1};
  double both[2];
  status |= ork_dDFDerivatives(task, 1, &middle, 0, 2, flags, both, NULL);
  printf("value and slope at pi/2       %.6f %.6f\n", both[0], both[1]);

  /* 4. Integrals over several intervals; the second one runs backwards. */
  const double left[2] = {0, pi}, right[2] = {pi, pi / 2};
  double integral[2];
  status |= ork_dDFIntegrate(task, 2, left, right, integral, NULL);
  printf("integrals 0 to pi, pi to pi/2 %.6f %.6f\n", integral[0], integral[1]);

  status |= ork_df_delete(&task);
  puts(status == 0 ? "all calls succeeded" : "a call failed");
  return status != 0;
}
