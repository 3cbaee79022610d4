/* A survey with holes: the missing answers drawn several times over, each completed table analysed
 * like a whole one, the results combined by Rubin's rules. */
#include <math.h>
#include <ork/front.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#define PEOPLE 200
#define QUESTIONS 3 /* age, hours of work a week, income in hundreds */
#define IMPUTATIONS 5

static int status; /* the first that was not 0 */
static void check(int s) {
  if (status == 0) status = s;
}

/* The mark of a missing value: a quiet NaN with its sign set. */
static double no_answer(void) {
  const uint64_t bits = 0xFFF8000000000000u;
  double mark;
  memcpy(&mark, &bits, sizeof mark);
  return mark;
}

/* Mean and squared standard error of a column, incomes that are NaN left out. */
static double mean_of(const double* x, double* error) {
  double sum = 0, squares = 0;
  int count = 0;
  for (int i = 0; i < PEOPLE; ++i)
    if (!isnan(x[i])) sum += x[i], ++count;
  for (int i = 0; i < PEOPLE; ++i)
    if (!isnan(x[i])) squares += (x[i] - sum / count) * (x[i] - sum / count);
  *error = squares / (count - 1) / count;
  return sum / count;
}

int main(void) {
  /* 1. Answers: income goes with hours, and who works longer answers that question less often. */
  static double answers[QUESTIONS * PEOPLE], table[QUESTIONS * PEOPLE], u[PEOPLE];
  const double centre[QUESTIONS] = {45, 36, 30};
  const double t[QUESTIONS * QUESTIONS] = {12, 0, 0, -1, 8, 0, 2, 7, 5};
  RuaStream* stream;
  check(ork_stream_new(&stream, RUA_BRNG_MCG59, 4));
  check(ork_dRngGaussianMV(RUA_GAUSSIANMV_ICDF, stream, PEOPLE, answers, QUESTIONS, RUA_MATRIX_FULL,
                           centre, t));
  check(ork_dRngUniform(0, stream, PEOPLE, u, 0, 1));
  check(ork_stream_delete(&stream));
  int missing = 0;
  double* const income = table + 2 * PEOPLE; /* row storage: a variable's values stand together */
  for (int i = 0; i < PEOPLE; ++i) {
    for (int j = 0; j < QUESTIONS; ++j) table[j * PEOPLE + i] = answers[i * QUESTIONS + j];
    if (u[i] < (table[PEOPLE + i] > 36 ? 0.4 : 0.05)) income[i] = no_answer(), ++missing;
  }

  /* 2. The task, and what imputation takes and gives. */
  int p = QUESTIONS, n = PEOPLE, rows = ORK_SS_ROWS, params = 5, count = IMPUTATIONS * missing;
  const double param[5] = {100, 1, 1e-4, IMPUTATIONS, missing};
  double* const simulated = malloc(count * sizeof *simulated);
  ork_ss_task* task;
  check(__ruadSSNewTask(&task, &p, &n, &rows, table, NULL, NULL, 0));
  if (status != 0) return 1;
  check(__ruadSSEditMissingVals(task, &params, param, NULL, NULL, NULL, NULL, &count, simulated,
                                NULL, NULL));
  check(ork_ss_compute(task, ORK_SS_IMPUTED_VALUES, ORK_SS_IMPUTATION, &ork_threader_serial));
  check(__ruaSSDeleteTask(&task));

  /* 3. Each imputation completes the table; its mean and the square of its standard error. */
  double mean = 0, within = 0, squares = 0, error;
  double whole[PEOPLE];
  for (int k = 0; k < IMPUTATIONS; ++k) {
    const double* draw = simulated + k * missing; /* here income alone is missing */
    for (int i = 0; i < PEOPLE; ++i) whole[i] = isnan(income[i]) ? *draw++ : income[i];
    const double own = mean_of(whole, &error);
    mean += own / IMPUTATIONS, squares += own * own, within += error / IMPUTATIONS;
  }

  /* 4. Rubin's rules: the mean of the means, and what they differ by added to their error. */
  const double between = (squares - IMPUTATIONS * mean * mean) / (IMPUTATIONS - 1);
  const double total = within + (1 + 1.0 / IMPUTATIONS) * between;
  for (int i = 0; i < PEOPLE; ++i) whole[i] = answers[i * QUESTIONS + 2];
  printf("missing answers %d of %d\n", missing, PEOPLE);
  printf("income, if all had answered %.2f\n", mean_of(whole, &error));
  printf("income of those who answered %.2f\n", mean_of(income, &error));
  printf("income, holes filled %.2f +- %.2f\n", mean, 1.96 * sqrt(total));
  printf("part of the error due to the holes %.2f\n", (total - within) / total);
  printf("status %d\n", status);
  free(simulated);
  return status != 0;
}
