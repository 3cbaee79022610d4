#include "logarithms/log_rare.hpp"

namespace ork {
namespace {

// ln(1 + u) - u by degree 8, frozen: off by at most 2^-69.5 for |u| <= 2^-6.7.
struct Natural {
  static constexpr double c0 = 1.0, l1 = 0.69314718055989033, l2 = 5.4979230187083712e-14;
  static constexpr double split = 2097152.0;
  static constexpr double rows[128][3] = {
#include "logarithms/ln/rows_rare.inc"
  };
  static double p(double u) {
    return u * u *
           horner(u, -0.5, 0.33333333333334386, -0.25000000000003386, 0.19999999911565072,
                  -0.1666666651884978, 0.1428756883852146, -0.1250214602960357);
  }
};

}  // namespace

int ln_rare(double y, double* out) { return log_rare<Natural>(y, out); }

}  // namespace ork
