/* Numbers of several distributions from one stream: a year's claims, shares, correlated returns. */
#include <ork/front.h>
#include <stdio.h>

#define N 100000

static int status; /* the first that was not 0 */
static void check(int s) {
  if (status == 0) status = s;
}

static double mean(const double* x, int n, int step) {
  double sum = 0;
  for (int i = 0; i < n; ++i) sum += x[i * step];
  return sum / n;
}

int main(void) {
  static double size[N], share[N], returns[3 * N];
  RuaStream* stream;
  check(ork_stream_new(&stream, RUA_BRNG_SFMT19937, 11));

  /* 1. Claims: gamma of shape 2.5 and scale 400 above a deductible of 100; mean 100 + 2.5 * 400. */
  check(ork_dRngGamma(0, stream, N, size, 2.5, 100, 400));
  double least = size[0];
  for (int i = 1; i < N; ++i) least = size[i] < least ? size[i] : least;
  printf("mean claim %.1f, none below the deductible: %d\n", mean(size, N, 1), least >= 100);

  /* 2. The share that is paid: beta on [0, 1]; mean 2/(2 + 3). */
  check(ork_dRngBeta(0, stream, N, share, 2, 3, 0, 1));
  double paid = 0;
  for (int i = 0; i < N; ++i) paid += size[i] * share[i];
  printf("mean share %.3f, paid on average %.1f\n", mean(share, N, 1), paid / N);

  /* 3. Three correlated returns: covariance T T' with T lower triangular, here row after row. */
  const double drift[] = {0.01, 0.02, -0.01};
  const double t[] = {0.2, 0, 0, 0.1, 0.3, 0, -0.05, 0.1, 0.1};
  check(ork_dRngGaussianMV(RUA_GAUSSIAN_BOXMULLER2, stream, N, returns, 3, RUA_MATRIX_FULL, drift,
                           t));
  double product = 0;
  for (int i = 0; i < N; ++i)
    product += (returns[3 * i] - drift[0]) * (returns[3 * i + 1] - drift[1]);
  printf("mean of the second return %.3f, covariance of the first two %.4f\n",
         mean(returns + 1, N, 3), product / N);

  /* 4. What is not a distribution is refused, and nothing is drawn. */
  printf("shape 0: status %d\n", ork_dRngGamma(0, stream, N, size, 0, 0, 1));

  check(ork_stream_delete(&stream));
  printf("status %d\n", status);
  return status != 0;
}
