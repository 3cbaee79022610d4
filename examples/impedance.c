/* A series circuit of resistor, coil and capacitor, by complex vectors: arrays of C's own complex
 * type, passed with a cast of the pointer. */
#include <complex.h>
#include <math.h>
#include <stdio.h>

#include "ork/front.h"

#define N 20001

static const double pi = 3.14159265358979323846;

static double complex coil[N], capacitor[N], impedance[N], ratio[N];
static double frequency[N], size[N], angle[N], voltage[N];

int main(void) {
  const double R = 50, L = 10e-3, C = 100e-9;
  for (int i = 0; i < N; ++i) {
    frequency[i] = i + 1;
    const double omega = 2 * pi * frequency[i];
    coil[i] = I * (omega * L);
    capacitor[i] = -I / (omega * C);
    impedance[i] = R;
  }

  /* Z = R + i omega L + 1/(i omega C); U_C / U = Z_C / Z. Pairs of doubles, real part first. */
  double* const Z = (double*)impedance;
  int status = ork_zAdd(N, Z, (const double*)coil, Z);
  status |= ork_zAdd(N, Z, (const double*)capacitor, Z);
  status |= ork_zDiv(N, (const double*)capacitor, Z, (double*)ratio);
  status |= ork_zAbs(N, Z, size);
  status |= ork_zArg(N, Z, angle);
  status |= ork_zAbs(N, (const double*)ratio, voltage);

  int least = 0, low = 0, high = 0;
  for (int i = 1; i < N; ++i) {
    if (size[i] < size[least]) least = i;
    if (low == 0 && size[i] <= sqrt(2.0) * R) low = i;
    if (size[i] <= sqrt(2.0) * R) high = i;
  }
  printf("resonance at %.2f Hz, by formula %.2f Hz\n", frequency[least],
         1 / (2 * pi * sqrt(L * C)));
  printf("impedance there: %.2f ohms, angle %.3f radians\n", size[least], angle[least]);
  printf("band of %.1f Hz, by formula %.1f Hz\n", frequency[high] - frequency[low],
         R / (2 * pi * L));
  printf("voltage over the capacitor there: %.3f times the source's, by formula %.3f\n",
         voltage[least], sqrt(L / C) / R);
  printf("90 degrees of lag far below resonance: %.2f\n", angle[0] * 180 / pi);
  printf("status %d\n", status);
  return 0;
}
