/* Elementwise functions: statuses, an error callback that repairs results, accuracy levels. */
#include <math.h>
#include <ork/front.h>
#include <stdio.h>

#define N 6

/* Runs once for each special element, between two others. What it leaves in r1 is the result,
 * if it returns 0. On long vectors it runs on several threads, perhaps at once. */
static int32_t clamp(ork_error_record* event) {
  printf("  %.*s: element %d is %g, status %d", (int)event->name_length, event->name,
         (int)event->index, event->a1, (int)event->status);
  if (event->status == ZEM_STATUS_SINGULARITY) {
    event->r1 = -700;
    printf(": %g instead of -inf", event->r1);
  }
  printf("\n");
  return 0;
}

static void print(const char* title, const double* r) {
  printf("%s:", title);
  for (int i = 0; i < N; ++i) printf(" %.6g", r[i]);
  printf("\n");
}

int main(void) {
  const double x[N] = {1, 2.718281828459045, 0, 10, -1, 0.5};
  double r[N], ep[N], la[N], ha[N];

  /* 1. Every element has a value, whatever the status: that of the last event. */
  int status = ork_dLn(N, x, r);
  printf("status %d\n", status);
  print("ln", r);

  /* 2. The same with a callback. */
  ork_zem_kernel_SetErrorCallBack(clamp);
  status = ork_dLn(N, x, r);
  print("ln, repaired", r);
  ork_zem_kernel_ClearErrorCallBack();

  /* 3. Bad arguments are refused and touch nothing. */
  printf("n below 0: %d, null array: %d, n of 0: %d\n", ork_dLn(-1, x, r), ork_dLn(N, x, NULL),
         ork_dLn(0, NULL, NULL));

  /* 4. The thread's mode word says how accurate: EP is the fastest, HA the best. */
  const uint32_t mode = ork_zem_kernel_SetMode(ORK_ZEM_EP);
  ork_dExp(N, x, ep);
  ork_zem_kernel_SetMode(ORK_ZEM_LA);
  ork_dExp(N, x, la);
  ork_zem_kernel_SetMode(ORK_ZEM_HA);
  ork_dExp(N, x, ha);
  ork_zem_kernel_SetMode(mode);
  double worst[3] = {0, 0, 0};
  for (int i = 0; i < N; ++i) {
    const double error[3] = {ep[i] / exp(x[i]) - 1, la[i] / exp(x[i]) - 1, ha[i] / exp(x[i]) - 1};
    for (int k = 0; k < 3; ++k) worst[k] = fmax(worst[k], fabs(error[k]));
  }
  printf("exp, largest relative difference from the C library: EP %.1e LA %.1e HA %.1e\n", worst[0],
         worst[1], worst[2]);
  return 0;
}
