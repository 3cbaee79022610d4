// The translated biweight (Rocke 1996): full weight up to a distance M, from there a biweight's
// descent of width c, none beyond. rho is the integral of d w(d), bounded by its value at M + c.
//
// M and c follow from two wishes for distances whose squares are chi-square with p degrees of
// freedom: M + c is their quantile of 1 - rejection, and the mean of rho is `breakdown` times its
// bound, which makes that fraction of contamination the most that the scale of an S-estimate
// survives. Where both cannot be had, rejection at M alone is the limit form.
#pragma once
#include "ork/ss_math.h"
#include "rua_kernel/service/elementwise.hpp"

namespace ork::ss {

struct Biweight {
  double m, c;  // c = 0: full weight below m, none from there on

  // t is the part of the descent that is done, 0 to 1. The integral about M: the polynomial in d
  // has terms (M/c)^4 times as large as their sum.
  double rho_at(double t) const {
    const double t2 = t * t;
    return m * m / 2 + m * c * t * (1 - t2 * (2. / 3 - t2 / 5)) +
           c * c * t2 * (0.5 - t2 * (0.5 - t2 / 6));
  }
  double bound() const { return rho_at(1); }
};

// The mean of rho. Quadrature over the descent: right to 1e-9 for c up to some 15, which is more
// than sets in before the limit form.
inline double mean_rho(int p, const Biweight& w) {
  const double square = w.m * w.m;
  const double inner = p / 2. * __ruadChi2CDF(p + 2, square);
  if (w.c <= 0) return inner + square / 2 * (1 - __ruadChi2CDF(p, square));
  // Gauss's rule of five points on panels.
  constexpr int panels = 12, points = 5, all = panels * points;
  constexpr double places[points] = {-0.9061798459386640, -0.5384693101056831, 0,
                                     0.5384693101056831, 0.9061798459386640};
  constexpr double shares[points] = {0.2369268850561891, 0.4786286704993665, 0.5688888888888889,
                                     0.4786286704993665, 0.2369268850561891};
  double done[all], d[all], density[all];
  for (int i = 0; i < all; ++i) {
    done[i] = (i / points + (1 + places[i % points]) / 2) / panels;
    d[i] = w.m + w.c * done[i];
  }
  // That of a chi variable: d^(p - 1) exp(-d^2 / 2) / (2^(p/2 - 1) Gamma(p/2)).
  constexpr double ln2 = 0.6931471805599453;
  const double constant = (p / 2. - 1) * ln2 + __ruadLGamma(p / 2.);
  rua::apply(rua::Tables<double>::ln, all, d, density, rua::kConstants);
  for (int i = 0; i < all; ++i) density[i] = (p - 1) * density[i] - d[i] * d[i] / 2 - constant;
  rua::apply(rua::Tables<double>::exp, all, density, rua::kConstants);
  double descent = 0;
  for (int i = 0; i < all; ++i) descent += shares[i % points] * w.rho_at(done[i]) * density[i];
  const double end = w.m + w.c;
  return inner + descent * w.c / (2 * panels) + w.bound() * (1 - __ruadChi2CDF(p, end * end));
}

// Both searches stop within this of their equation.
constexpr double kBiweightTolerance = 1e-4;
constexpr int kBiweightSteps = 100;

// The c for which the mean of min(d^2, c^2) is `breakdown` times c^2: rejection at c alone would
// have that breakdown.
inline double rejection_distance(int p, double breakdown) {
  double c = 2. * p;
  for (int step = 0; step < kBiweightSteps; ++step) {
    const double square = c * c, half_slope = (1 - __ruadChi2CDF(p, square) - breakdown) * c;
    const double f = c * half_slope + p * __ruadChi2CDF(p + 2, square);
    if (!(f > kBiweightTolerance || f < -kBiweightTolerance)) break;
    // The derivatives of the two distribution functions cancel: x g_p(x) = p g_(p + 2)(x).
    const double next = half_slope == 0 ? c / 2 : c - f / (2 * half_slope);
    c = next < 0 ? c / 2 : next;
  }
  return c;
}

inline Biweight find_biweight(int p, double breakdown, double rejection) {
  const double end = __ruadSqrt(__ruadChi2ICDF(p, 1 - rejection));
  const Biweight limit{end, 0};
  const double distance = rejection_distance(p, breakdown);
  if (rejection >= 1 - __ruadChi2CDF(p, distance * distance)) return limit;
  const auto equation = [&](const Biweight& w, double mean) {
    return mean - breakdown * w.bound();
  };
  // rho in units of its bound is greatest for m = 0, so that no m gives a mean above that one's.
  const Biweight steepest{0, end};
  if (equation(steepest, mean_rho(p, steepest)) < -kBiweightTolerance) return limit;
  double m = __ruadSqrt(p);
  for (int step = 0; step < kBiweightSteps; ++step) {
    constexpr double h = 1e-4;
    const Biweight w{m, end - m};
    const double mean = mean_rho(p, w), g = equation(w, mean);
    if (g <= kBiweightTolerance && g >= -kBiweightTolerance) return w;
    const double by_m = (mean_rho(p, {w.m + h, w.c}) - mean) / h,
                 by_c = (mean_rho(p, {w.m, w.c + h}) - mean) / h;
    m -= g / (by_m - breakdown * (0.2 * w.c + 7. / 15 * w.m) - by_c);
    if (!(m > 0 && m < end)) m = (w.m + end) / 2;
  }
  return limit;
}

}  // namespace ork::ss
