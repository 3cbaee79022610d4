/* A random stream: draw, save and restore, skip ahead, and share its sequence among workers. */
#include <ork/front.h>
#include <stdio.h>

#define N 30000 /* points, two coordinates each */
#define WORKERS 3

static int status; /* the first that was not 0 */
static void check(int s) {
  if (status == 0) status = s;
}

/* How many of n points of the unit square lie within the quarter circle. */
static int hits(const double* xy, int n) {
  int count = 0;
  for (int i = 0; i < n; ++i) count += xy[2 * i] * xy[2 * i] + xy[2 * i + 1] * xy[2 * i + 1] < 1;
  return count;
}

int main(int argc, char** argv) {
  const char* file = argc > 1 ? argv[1] : "stream.image";
  static double all[2 * N], part[2 * N / WORKERS], later[5], again[5];
  RuaStream *stream, *restored, *ahead;

  /* 1. A generator and a seed make a stream; the same seed gives the same numbers. */
  check(ork_stream_new(&stream, RUA_BRNG_MCG59, 2024));
  check(ork_dRngUniform(0, stream, 2 * N, all, 0, 1));
  printf("pi is about %.4f\n", 4.0 * hits(all, N) / N);

  /* 2. Saved here, restored as another stream: both go on with the same numbers. */
  check(ork_stream_save(stream, file));
  check(ork_stream_load(&restored, file));
  check(ork_dRngGaussian(RUA_GAUSSIAN_ICDF, stream, 5, later, 0, 1));
  check(ork_dRngGaussian(RUA_GAUSSIAN_ICDF, restored, 5, again, 0, 1));
  int same = 0;
  for (int i = 0; i < 5; ++i) same += later[i] == again[i];
  printf("%d of 5 numbers of the restored stream are the same\n", same);
  check(ork_stream_delete(&restored));

  /* 3. A new stream that skips what was drawn so far is there at once. */
  check(ork_stream_new(&ahead, RUA_BRNG_MCG59, 2024));
  check(ork_stream_skip(ahead, 2 * N));
  check(ork_dRngGaussian(RUA_GAUSSIAN_ICDF, ahead, 5, again, 0, 1));
  same = 0;
  for (int i = 0; i < 5; ++i) same += later[i] == again[i];
  printf("%d of 5 numbers after skipping ahead are the same\n", same);
  check(ork_stream_delete(&ahead));

  /* 4. Worker w takes numbers w, w + 3, w + 6 ... of one sequence. Together they draw what one
   * stream would; here in turn, in a program each on a thread of its own. */
  int mismatches = 0;
  for (int w = 0; w < WORKERS; ++w) {
    RuaStream* own;
    check(ork_stream_new(&own, RUA_BRNG_MCG59, 2024));
    check(ork_stream_leapfrog(own, w, WORKERS));
    check(ork_dRngUniform(0, own, 2 * N / WORKERS, part, 0, 1));
    for (int i = 0; i < 2 * N / WORKERS; ++i) mismatches += part[i] != all[i * WORKERS + w];
    check(ork_stream_delete(&own));
  }
  printf("%d of %d numbers of %d leapfrogging workers differ\n", mismatches, 2 * N, WORKERS);

  check(ork_stream_delete(&stream));
  printf("status %d\n", status);
  return status != 0;
}
