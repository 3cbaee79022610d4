#include "rua_kernel/discrete/negbinomial_tail.hpp"

#include "rua_kernel/service/elementwise.hpp"

namespace ork::rua {

namespace {

// Gauss and Legendre's eight nodes and weights on (-1, 1), the positive half.
constexpr double kNodes[4] = {0.18343464249564980, 0.52553240991632899, 0.79666647741362674,
                              0.96028985649753623};
constexpr double kWeights[4] = {0.36268378337836198, 0.31370664587788729, 0.22238103445337447,
                                0.10122853629037626};

}  // namespace

NegbinomialTail::NegbinomialTail(double a, double p, int32_t k, double probability, double sum)
    : a_(a), p_(p), ln_q_(value(Tables<double>::log1p, -p)), scale_(1) {
  ends_[0] = k;
  sums_[0] = sum;
  const double at[1] = {ends_[0]};
  double f;
  density(at, &f);
  scale_ = probability / f;
}

// scale Gamma(x + a) / Gamma(x + 1) q^x, less its value at the first end: the quotient is
// w^(a - 1) (1 + c1 / w^2 + c2 / w^4 ...) with w = x + a/2 (J. L. Fields 1966).
template <int n>
void NegbinomialTail::density(const double (&x)[n], double* f) const {
  using T = Tables<double>;
  const double half = a_ / 2, first = ends_[0] + half, e = a_ - 1;
  const double c1 = -e * (a_ - 2) * half / 12;
  const double c2 = e * (a_ - 2) * (a_ - 3) * (a_ - 4) * half * (5 * half + 1) / 1440;
  for (int i = 0; i < n; ++i) f[i] = (x[i] + half) / first;
  apply(T::ln, n, f, kConstants);
  for (int i = 0; i < n; ++i) f[i] = e * f[i] + (x[i] - ends_[0]) * ln_q_;
  apply(T::exp, n, f, kConstants);
  for (int i = 0; i < n; ++i) {
    const double w = x[i] + half, z = 1 / (w * w);
    f[i] *= scale_ * (1 + z * (c1 + z * c2));
  }
}

// Of the integers above `from` up to `to`: the integral between the halves, and the first term of
// Euler and Maclaurin's formula; the second is below 2e-3/from^4 of it.
double NegbinomialTail::probability(double from, double to) const {
  const double lo = from + 0.5, hi = to + 0.5, middle = (lo + hi) / 2, half = (hi - lo) / 2;
  double x[10], f[10];
  for (int i = 0; i < 4; ++i) {
    x[2 * i] = middle - half * kNodes[i];
    x[2 * i + 1] = middle + half * kNodes[i];
  }
  x[8] = lo, x[9] = hi;
  density(x, f);
  double sum = 0;
  for (int i = 0; i < 4; ++i) sum += kWeights[i] * (f[2 * i] + f[2 * i + 1]);
  const auto slope = [&](int i) { return f[i] * ((a_ - 1) / (x[i] + a_ / 2) + ln_q_); };
  return half * sum - (slope(9) - slope(8)) / 24;
}

// One stride more; false where sums do not grow any longer.
bool NegbinomialTail::stride() {
  if (known_ == kMost) return false;
  const double from = ends_[known_ - 1];
  const double by_place = from / 2, by_rate = 1 / p_;
  const double to = from + (by_place < by_rate ? by_place : by_rate);
  const double sum = sums_[known_ - 1] + probability(from, to);
  if (!(sum > sums_[known_ - 1])) return false;
  ends_[known_] = to;
  sums_[known_++] = sum;
  return true;
}

int32_t NegbinomialTail::answer(double u) {
  while (!(u < sums_[known_ - 1]))
    if (ends_[known_ - 1] > INT32_MAX || !stride()) {
      const double last = ends_[known_ - 1];
      return last < INT32_MAX ? int32_t(last) + 1 : INT32_MAX;
    }
  int i = known_ - 1;
  while (i > 1 && u < sums_[i - 1]) --i;
  // The real place where the sum is u, by Newton's steps within the stride.
  const double from = ends_[i - 1], to = ends_[i], sum = sums_[i - 1];
  double x = from + (u - sum) / (sums_[i] - sum) * (to - from);
  for (int step = 0; step < 8; ++step) {
    const double at[1] = {x + 0.5};
    double f;
    density(at, &f);
    double next = x - (sum + probability(from, x) - u) / f;
    next = next > from ? next < to ? next : to : from;
    const double moved = next - x;
    x = next;
    if (moved < 1e-3 && moved > -1e-3) break;
  }
  return x < INT32_MAX ? int32_t(x) + 1 : INT32_MAX;
}

}  // namespace ork::rua
