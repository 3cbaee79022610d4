/* The front door from C, with every domain behind it. */
#include <ork/front.h>
#include <stddef.h>

int main(void) {
  const double a[3] = {1, 4, -9};
  double r[3] = {0, 0, 0}, draws[2];
  RuaStream* stream = NULL;
  int ok = ork_dSqrt(3, a, r) == ZEM_STATUS_DOMAIN && r[1] == 2;
  ok = ok && ork_stream_new(&stream, RUA_BRNG_MT19937, 1) == 0;
  ok = ok && ork_dRngUniform(0, stream, 2, draws, 3, 4) == 0 && draws[1] >= 3 && draws[1] <= 4;
  ok = ok && ork_stream_delete(&stream) == 0;
  ok = ok && ork_ss_compute(NULL, ORK_SS_MEAN, ORK_SS_FAST, NULL) == ORK_SS_NULL_TASK;
  ok = ok && ork_dDFConstruct(NULL, &ork_threader_serial) == ORK_DF_NULL_TASK;
  ok = ok && ork_version() == 10000 * ORK_VERSION_MAJOR + 100 * ORK_VERSION_MINOR + ORK_VERSION_PATCH;
  return !ok;
}
