/* Statistics of data that come in blocks: each computation adds the block at hand to what the
 * earlier ones gathered, so the whole never has to be in memory. */
#include <ork/front.h>
#include <stdio.h>

#define TOTAL 20000
#define BLOCK 1000

/* Two variables, one row each: the numbers 1 to TOTAL in a scrambled order, and half of each
 * with a small wave on top. */
static void next_block(int first, double* x) {
  for (int i = 0; i < BLOCK; ++i) {
    const int k = (int)((first + i) * 7919LL % TOTAL);
    x[i] = 1 + k;
    x[BLOCK + i] = 0.5 * x[i] + k % 4;
  }
}

int main(void) {
  int p = 2, n = BLOCK, rows = ORK_SS_ROWS, full = ORK_SS_FULL, orders = 3, one = 1, status = 0;
  static double x[2 * BLOCK];
  double mean[2], raw2[2], central2[2], least[2], most[2], cov[4], cor[4];
  double weight[2] = {0, 0}; /* sums of weights and of their squares so far */
  const double order[3] = {0.25, 0.5, 0.75}, epsilon = 0.01;
  double quantile[6];
  const uint64_t moments = ORK_SS_MEAN | ORK_SS_CENTRAL2 | ORK_SS_COV | ORK_SS_COR;
  const uint64_t extremes = ORK_SS_MIN | ORK_SS_MAX;

  /* 1. The task borrows these arrays: p, n and the observations are read at each computation. */
  ork_ss_task* task;
  status |= __ruadSSNewTask(&task, &p, &n, &rows, x, NULL, NULL, 0);
  if (status != 0) return 1;
  status |= __ruadSSEditTask(task, ORK_SS_EDIT_ACCUMULATED_WEIGHT, weight);
  status |= __ruadSSEditMoments(task, mean, raw2, NULL, NULL, central2, NULL, NULL);
  status |= __ruadSSEditCovCor(task, mean, cov, &full, cor, &full);
  status |= __ruadSSEditTask(task, ORK_SS_EDIT_MIN, least);
  status |= __ruadSSEditTask(task, ORK_SS_EDIT_MAX, most);
  status |= __ruadSSEditStreamQuantiles(task, &orders, order, quantile, &one, &epsilon);

  /* 2. Block by block. Extremes go on from what their arrays hold, quantiles from a summary
   * that the task keeps. */
  for (int first = 0; first < TOTAL; first += BLOCK) {
    next_block(first, x);
    if (first == 0)
      for (int j = 0; j < p; ++j) least[j] = most[j] = x[j * BLOCK];
    status |= ork_ss_compute(task, moments | extremes, ORK_SS_ONE_PASS, &ork_threader_parallel);
    status |= ork_ss_compute(task, ORK_SS_QUANTILES, ORK_SS_STREAM, &ork_threader_parallel);
  }

  /* 3. The estimates are those of all blocks together. */
  printf("observations %.0f\n", weight[0]);
  printf("mean         %.4f %.4f\n", mean[0], mean[1]);
  printf("variance     %.4f %.4f\n", central2[0], central2[1]);
  printf("range        %g to %g, %g to %g\n", least[0], most[0], least[1], most[1]);
  printf("covariance   %.4f, correlation %.8f\n", cov[1], cor[1]);
  printf("quartiles    %g %g %g, within %g in rank\n", quantile[0], quantile[1], quantile[2],
         epsilon * TOTAL);
  status |= __ruaSSDeleteTask(&task);
  puts(status == 0 ? "all calls succeeded" : "a call failed");
  return status != 0;
}
