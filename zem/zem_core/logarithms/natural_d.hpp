#pragma once
// Base e for the logarithms of log_d_ha.hpp.
#include "logarithms/log_d_ha.hpp"

namespace ork {

// Base e. p(r) for ln(1 + r) - r is frozen, of degree 5: off by at most 2^-64.7 for |r| <= 2^-9.9.
struct Natural {
  static constexpr char name[] = "vdLn";
  static constexpr double c0 = 1.0, l1 = 0.69314718055989033, l2 = 5.4979230187083712e-14;
  static constexpr double log_2_52 = 36.043653389117154;
  // k rises by one where the rows pass to 2 m, at m of about 1.5.
  static constexpr uint32_t k_from = 0x3FE7FC00;
  alignas(16) static constexpr double rows[513][4] = {
#include "logarithms/ln_rows_d_ha.inc"
  };
  static f64x2 p(f64x2 r) {
    return r * r *
           horner(r, -0.49999999999995254, 0.33333333333327408, -0.25000019886943392,
                  0.20000019344205111);
  }
};

}  // namespace ork
