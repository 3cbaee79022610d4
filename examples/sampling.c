/* Quality control by sampling: what a plan lets pass, by drawing the inspections themselves. */
#include <ork/front.h>
#include <stdio.h>

#define N 100000

static int status; /* the first that was not 0 */
static void check(int s) {
  if (status == 0) status = s;
}

/* The share of inspections that find no more than so many. */
static double passed(const int* found, int most) {
  int passes = 0;
  for (int i = 0; i < N; ++i) passes += found[i] <= most;
  return (double)passes / N;
}

int main(void) {
  static int found[N];
  RuaStream* stream;
  check(ork_stream_new(&stream, RUA_BRNG_SFMT19937, 2024));

  /* 1. A lot of 500 with 15 bad items; 50 are drawn and not put back, at most 2 bad ones pass. */
  check(ork_iRngHypergeometric(0, stream, N, found, 500, 50, 15));
  printf("lot of 500, 15 bad, passes: %.4f\n", passed(found, 2));

  /* 2. A running line with 3% bad items: no lot to empty. */
  check(ork_iRngBinomial(0, stream, N, found, 50, 0.03));
  printf("line with 3%% bad, passes: %.4f\n", passed(found, 2));

  /* 3. Good items up to the first bad one. */
  check(ork_iRngGeometric(0, stream, N, found, 0.03));
  double run = 0;
  for (int i = 0; i < N; ++i) run += found[i];
  printf("good items before a bad one: %.2f\n", run / N);

  /* 4. A sample larger than its lot is refused, and nothing is drawn. */
  printf("51 of 50: status %d\n", ork_iRngHypergeometric(0, stream, N, found, 50, 51, 15));

  check(ork_stream_delete(&stream));
  printf("status %d\n", status);
  return status != 0;
}
