/* Groups compared: what varies within groups, and what only between them. Ten flowers of each of
 * three species of iris (from R. A. Fisher, Annals of Eugenics 7, 1936), lengths in cm. */
#include <math.h>
#include <ork/front.h>
#include <stdio.h>

enum { VARIABLES = 4, FLOWERS = 30, SPECIES = 3 };
static const char* const species[SPECIES] = {"setosa", "versicolor", "virginica"};

/* Sepal length and width, petal length and width: a flower after the other. */
static const double flowers[FLOWERS][VARIABLES] = {
    {5.1, 3.5, 1.4, 0.2}, {4.9, 3.0, 1.4, 0.2}, {4.7, 3.2, 1.3, 0.2}, {4.6, 3.1, 1.5, 0.2},
    {5.0, 3.6, 1.4, 0.2}, {5.4, 3.9, 1.7, 0.4}, {4.6, 3.4, 1.4, 0.3}, {5.0, 3.4, 1.5, 0.2},
    {4.4, 2.9, 1.4, 0.2}, {4.9, 3.1, 1.5, 0.1}, {7.0, 3.2, 4.7, 1.4}, {6.4, 3.2, 4.5, 1.5},
    {6.9, 3.1, 4.9, 1.5}, {5.5, 2.3, 4.0, 1.3}, {6.5, 2.8, 4.6, 1.5}, {5.7, 2.8, 4.5, 1.3},
    {6.3, 3.3, 4.7, 1.6}, {4.9, 2.4, 3.3, 1.0}, {6.6, 2.9, 4.6, 1.3}, {5.2, 2.7, 3.9, 1.4},
    {6.3, 3.3, 6.0, 2.5}, {5.8, 2.7, 5.1, 1.9}, {7.1, 3.0, 5.9, 2.1}, {6.3, 2.9, 5.6, 1.8},
    {6.5, 3.0, 5.8, 2.2}, {7.6, 3.0, 6.6, 2.1}, {4.9, 2.5, 4.5, 1.7}, {7.3, 2.9, 6.3, 1.8},
    {6.7, 2.5, 5.8, 1.8}, {7.2, 3.6, 6.1, 2.5}};

static double correlation(const double* cov, int i, int j) {
  return cov[VARIABLES * i + j] / sqrt(cov[VARIABLES * i + i] * cov[VARIABLES * j + j]);
}

int main(void) {
  int p = VARIABLES, n = FLOWERS, columns = ORK_SS_COLUMNS, full = ORK_SS_FULL, status = 0;
  int group[FLOWERS], wanted[SPECIES] = {1, 1, 1};
  double mean[VARIABLES], cov[VARIABLES * VARIABLES];
  double pooled_mean[VARIABLES], pooled[VARIABLES * VARIABLES];
  double means[SPECIES][VARIABLES], covs[SPECIES][VARIABLES * VARIABLES];
  for (int i = 0; i < n; ++i) group[i] = i / 10;

  /* 1. A task with the group of each flower. */
  ork_ss_task* task;
  status |= ork_dSSNewTask(&task, &p, &n, &columns, flowers[0], NULL, NULL);
  if (status != 0) return 1;
  const struct {
    int code;
    double* array;
  } arrays[] = {{ORK_SS_EDIT_MEAN, mean},
                {ORK_SS_EDIT_COV, cov},
                {ORK_SS_EDIT_POOLED_MEAN, pooled_mean},
                {ORK_SS_EDIT_POOLED_COV, pooled},
                {ORK_SS_EDIT_GROUP_MEANS, means[0]},
                {ORK_SS_EDIT_GROUP_COV, covs[0]}};
  for (int k = 0; k < 6; ++k) status |= ork_dSSEditTask(task, arrays[k].code, arrays[k].array);
  status |= ork_iSSEditTask(task, ORK_SS_EDIT_GROUP_INDEX, group);
  status |= ork_iSSEditTask(task, ORK_SS_EDIT_GROUP_REQUEST, wanted);
  status |= ork_iSSEditTask(task, ORK_SS_EDIT_COV_STORAGE, &full);
  status |= ork_iSSEditTask(task, ORK_SS_EDIT_POOLED_COV_STORAGE, &full);
  status |= ork_iSSEditTask(task, ORK_SS_EDIT_GROUP_COV_STORAGE, &full);

  /* 2. The covariance of all flowers, that of each species, and the pooled one. */
  status |= ork_ss_compute(task, ORK_SS_COV | ORK_SS_POOLED_COV | ORK_SS_GROUP_COV, ORK_SS_ONE_PASS,
                           NULL);
  status |= ork_ss_delete(&task);

  /* 3. Over all flowers length and width of a sepal seem to have nothing to do with each other;
   * within each species long sepals are wide. */
  puts("correlation of sepal length and width");
  printf("all together %6.3f\n", correlation(cov, 0, 1));
  for (int k = 0; k < SPECIES; ++k)
    printf("%-12s %6.3f   mean %.2f %.2f\n", species[k], correlation(covs[k], 0, 1), means[k][0],
           means[k][1]);
  printf("pooled       %6.3f   mean %.2f %.2f\n", correlation(pooled, 0, 1), pooled_mean[0],
         pooled_mean[1]);
  printf("share of the variance of petal length within species: %.3f\n",
         pooled[2 * p + 2] * (n - SPECIES) / (cov[2 * p + 2] * (n - 1)));
  puts(status == 0 ? "all calls succeeded" : "a call failed");
  return status != 0;
}
