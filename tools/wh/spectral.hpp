#pragma once
// Spectral test of a multiplicative generator x <- A x mod M with M up to 2^96: the normalised
// figure S_t = nu_t / (gamma_t^(1/2) M^(1/t)), at most 1, where nu_t is the length of the shortest
// vector of the dual lattice in t dimensions and gamma_t is Hermite's constant.
#include <quadmath.h>

#include <cmath>
#include <vector>

namespace wh {

using Int = __int128;
using Real = __float128;

// Dual lattice: the vectors h with h_1 + h_2 A + ... + h_t A^(t - 1) = 0 mod M.
class DualLattice {
 public:
  DualLattice(Int modulus, const std::vector<Int>& powers, int t)
      : t_(t), b_(t, std::vector<Int>(t)), mu_(t, std::vector<Real>(t)), norm_(t) {
    b_[0][0] = modulus;
    for (int i = 1; i < t; ++i) b_[i][0] = -powers[i], b_[i][i] = 1;
    reduce();
  }

  // Squared length of the shortest vector, by enumeration over the reduced basis.
  double shortest() {
    best_ = static_cast<double>(length2(0));
    std::vector<long> h(t_);
    enumerate(t_ - 1, 0, h);
    return best_;
  }

 private:
  Real length2(int i) const {
    Real s = 0;
    for (Int v : b_[i]) s += Real(v) * Real(v);
    return s;
  }

  // Gram-Schmidt coefficients of vector k; quad precision holds the 96-bit entries exactly.
  void orthogonalise(int k) {
    for (int j = 0; j <= k; ++j) {
      Real s = 0;
      for (int i = 0; i < t_; ++i) s += Real(b_[k][i]) * Real(b_[j][i]);
      for (int l = 0; l < j; ++l) s -= mu_[j][l] * mu_[k][l] * norm_[l];
      if (j == k)
        norm_[k] = s;
      else
        mu_[k][j] = s / norm_[j];
    }
  }

  // Lenstra, Lenstra, Lovasz with delta = 0.99.
  void reduce() {
    for (int i = 0; i < t_; ++i) orthogonalise(i);
    for (int k = 1; k < t_;) {
      for (int j = k - 1; j >= 0; --j) {
        Real q = rintq(mu_[k][j]);
        if (q == 0) continue;
        for (int i = 0; i < t_; ++i) b_[k][i] -= Int(q) * b_[j][i];
        orthogonalise(k);
      }
      if (norm_[k] >= (Real(0.99) - mu_[k][k - 1] * mu_[k][k - 1]) * norm_[k - 1]) {
        ++k;
      } else {
        std::swap(b_[k], b_[k - 1]);
        orthogonalise(k - 1);
        orthogonalise(k);
        k = std::max(k - 1, 1);
      }
      for (int i = 0; i <= std::min(k, t_ - 1); ++i) orthogonalise(i);
    }
    for (int i = 0; i < t_; ++i) orthogonalise(i);
  }

  void enumerate(int level, double length, std::vector<long>& h) {
    if (level < 0) {
      if (length > 0.5 && length < best_) best_ = length;
      return;
    }
    double centre = 0, size = static_cast<double>(norm_[level]);
    for (int i = level + 1; i < t_; ++i) centre -= h[i] * static_cast<double>(mu_[i][level]);
    double radius = std::sqrt(std::max(0.0, best_ * (1 + 1e-9) - length) / size);
    for (long v = std::lround(std::ceil(centre - radius)); v <= centre + radius; ++v) {
      h[level] = v;
      enumerate(level - 1, length + (v - centre) * (v - centre) * size, h);
    }
    h[level] = 0;
  }

  int t_;
  std::vector<std::vector<Int>> b_;
  std::vector<std::vector<Real>> mu_;
  std::vector<Real> norm_;
  double best_ = 0;
};

}  // namespace wh
