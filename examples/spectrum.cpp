// The spectrum of a signal, by complex vectors: arrays of std::complex, passed with a cast of the
// pointer. Each line is the signal times a turning unit vector, summed.
#include <cmath>
#include <complex>
#include <cstdio>
#include <vector>

#include "ork/front.h"

using Vector = std::vector<std::complex<float>>;

// Arrays of std::complex are arrays of pairs.
static const float* in(const Vector& z) { return reinterpret_cast<const float*>(z.data()); }
static float* out(Vector& z) { return reinterpret_cast<float*>(z.data()); }

int main() {
  constexpr int n = 256;
  const float turn = 6.28318530717958648f;
  Vector signal(n), unit(n), product(n), lines(n), back(n);
  for (int t = 0; t < n; ++t) {
    const double phase = 6.28318530717958648 * t / n;
    signal[t] = float(std::sin(17 * phase) + 0.5 * std::cos(40 * phase));
  }

  std::vector<float> angle(n);
  int status = 0;
  for (int k = 0; k < n; ++k) {
    for (int t = 0; t < n; ++t) angle[t] = turn * float(k * t % n) / n;
    status |= ork_cCIS(n, angle.data(), out(unit));
    status |= ork_cMulByConj(n, in(signal), in(unit), out(product));
    std::complex<double> sum = 0;
    for (const auto& x : product) sum += x;
    lines[k] = std::complex<float>(sum / double(n / 2));
    // The way back, line by line.
    for (auto& x : product) x = lines[k] * 0.5f;
    status |= ork_cMul(n, in(product), in(unit), out(product));
    status |= ork_cAdd(n, in(back), in(product), out(back));
  }

  std::vector<float> size(n), phase(n);
  status |= ork_cAbs(n, in(lines), size.data());
  status |= ork_cArg(n, in(lines), phase.data());
  float rest = 0, error = 0;
  for (int k = 0; k < n / 2; ++k)
    if (k != 17 && k != 40) rest = std::fmax(rest, size[k]);
  for (int t = 0; t < n; ++t) error = std::fmax(error, std::abs(back[t] - signal[t]));
  for (const int k : {17, 40})
    std::printf("line %d: %.5f at %.3f degrees\n", k, double(size[k]),
                double(phase[k] * 360 / turn));
  std::printf("largest of the others: %.1e\n", double(rest));
  std::printf("back again, largest error: %.1e\n", double(error));
  std::printf("status %d\n", status);
}
