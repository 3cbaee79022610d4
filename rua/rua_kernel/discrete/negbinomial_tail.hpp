// Far tails of the negative binomial distribution, for shapes whose numbers reach far beyond any
// table. Sums of probabilities over long ranges are integrals of the probability as a function of
// a real number, so that a number costs the same wherever it lies.
#pragma once
#include <stdint.h>

namespace ork::rua {

class NegbinomialTail {
 public:
  // Ratios of the probabilities are taken from an expansion in 1/k^2, and the integrals reach over
  // half of k: from here on both are good to 1e-12 of what they sum, for shapes up to 3.
  static constexpr int32_t kFrom = 128;

  // Behind place k >= kFrom, of this probability, which is not 0; sum is that of 0 to k.
  NegbinomialTail(double a, double p, int32_t k, double probability, double sum);

  // The first k whose sum exceeds u, u not below the sum handed in; INT32_MAX if k is beyond.
  int32_t answer(double u);

 private:
  static constexpr int kMost = 128;

  double a_, p_, ln_q_, scale_;
  // Ends of the strides and the sums there, as many as have been needed so far.
  double ends_[kMost], sums_[kMost];
  int known_ = 1;

  template <int n>
  void density(const double (&x)[n], double* f) const;
  double probability(double from, double to) const;
  bool stride();
};

}  // namespace ork::rua
