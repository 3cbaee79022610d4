// The generated rows of the inverse, error and gamma functions: a sample of each table against
// quad precision, near both ends and the middle of its intervals.
#include <quadmath.h>

#include <functional>

#include "accuracy/inverse_error.hpp"
#include "support/directed.hpp"
#include "support/pch.hpp"

namespace {

namespace atan_rows {
constexpr double d[][2] = {
#include "../../zem/zem_core/arcs/atan_rows_d.inc"
};
constexpr double steps[][2] = {
#include "../../zem/zem_core/arcs/atan_steps_d.inc"
};
}  // namespace atan_rows
namespace exp_rows {
constexpr double split64[][2] = {
#include "../../zem/zem_core/exponentials/pair_split64_d.inc"
};
constexpr double power128[] = {
#include "../../zem/zem_core/common/exp_power128_d.inc"
};
constexpr float split128_s[][2] = {
#include "../../zem/zem_core/exponentials/pair_split128_s.inc"
};
constexpr double erfc128[][2] = {
#include "../../zem/zem_core/error_functions/erfc/powers.inc"
};
}  // namespace exp_rows
namespace ln_rows {
constexpr double asinh[][3] = {
#include "../../zem/zem_core/areas/log_rows_d.inc"
};
constexpr double tails[][2] = {
#include "../../zem/zem_core/error_functions/erfcinv/reciprocals.inc"
};
}  // namespace ln_rows
namespace erf_rows {
constexpr double d[][2] = {
#include "../../zem/zem_core/error_functions/erf/rows_d.inc"
};
constexpr double d_ha[][4] = {
#include "../../zem/zem_core/error_functions/erf/rows_d_ha.inc"
};
constexpr float s[][2] = {
#include "../../zem/zem_core/error_functions/erf/rows_s.inc"
};
}  // namespace erf_rows
namespace cdf_rows {
constexpr double d_ep[][2] = {
#include "../../zem/zem_core/error_functions/cdfnorm/rows_d_ep.inc"
};
constexpr double d_la[][2] = {
#include "../../zem/zem_core/error_functions/cdfnorm/rows_d_la.inc"
};
constexpr double d_ha[][4] = {
#include "../../zem/zem_core/error_functions/cdfnorm/rows_d_ha.inc"
};
constexpr double s[][2] = {
#include "../../zem/zem_core/error_functions/cdfnorm/rows_s.inc"
};
}  // namespace cdf_rows
namespace erfc_rows {
constexpr double d_la[][16] = {
#include "../../zem/zem_core/error_functions/erfc/rows_d_la.inc"
};
constexpr double d_ha[][16] = {
#include "../../zem/zem_core/error_functions/erfc/rows_d_ha.inc"
};
constexpr double s_ha[][8] = {
#include "../../zem/zem_core/error_functions/erfc/rows_s_ha.inc"
};
constexpr double s_la[][6] = {
#include "../../zem/zem_core/error_functions/erfc/rows_s_la.inc"
};
constexpr double s_ep[][4] = {
#include "../../zem/zem_core/error_functions/erfc/rows_s_ep.inc"
};
}  // namespace erfc_rows
namespace inverse_rows {
constexpr double erf_d_ep[][4] = {
#include "../../zem/zem_core/error_functions/erfinv/rows_d_ep.inc"
};
constexpr double erf_d_la[][12] = {
#include "../../zem/zem_core/error_functions/erfinv_rows_d_la.inc"
};
constexpr double erf_d_ha[][17] = {
#include "../../zem/zem_core/error_functions/erfinv_rows_d_ha.inc"
};
constexpr double erf_s_ep[][4] = {
#include "../../zem/zem_core/error_functions/erfinv_rows_s_ep.inc"
};
constexpr double erf_s_la[][6] = {
#include "../../zem/zem_core/error_functions/erfinv_rows_s_la.inc"
};
constexpr double cubics_s_ep[][4] = {
#include "../../zem/zem_core/error_functions/erfinv/cubics_s_ep.inc"
};
constexpr double cubics_s_la[][4] = {
#include "../../zem/zem_core/error_functions/erfinv/cubics_s_la.inc"
};
constexpr double erf_s_ha[][8] = {
#include "../../zem/zem_core/error_functions/erfinv_rows_s_ha.inc"
};
constexpr double erfc_d_ep[][4] = {
#include "../../zem/zem_core/error_functions/erfcinv/rows_d_ep.inc"
};
constexpr double cdf_d_ep[][4] = {
#include "../../zem/zem_core/error_functions/cdfnorminv/rows_d_ep.inc"
};
constexpr double cdf_d_la[][12] = {
#include "../../zem/zem_core/error_functions/cdfnorminv/rows_d_la.inc"
};
constexpr double cdf_d_ha[][17] = {
#include "../../zem/zem_core/error_functions/cdfnorminv/rows_d_ha.inc"
};
constexpr double cdf_s_ep[][4] = {
#include "../../zem/zem_core/error_functions/cdfnorminv/rows_s_ep.inc"
};
constexpr double cdf_s_la[][6] = {
#include "../../zem/zem_core/error_functions/cdfnorminv/rows_s_la.inc"
};
constexpr double cdf_s_ha[][8] = {
#include "../../zem/zem_core/error_functions/cdfnorminv/rows_s_ha.inc"
};
}  // namespace inverse_rows
namespace tanh_rows {
constexpr double d[][16] = {
#include "../../zem/zem_core/exponentials/tanh/rows_d.inc"
};
constexpr float s[][8] = {
#include "../../zem/zem_core/exponentials/tanh/rows_s.inc"
};
constexpr float s_ep[][4] = {
#include "../../zem/zem_core/exponentials/tanh/rows_s_ep.inc"
};
}  // namespace tanh_rows
namespace gamma_rows {
template <class C, int factors>
struct Lgamma {
  double middle, per_half;
  C scale, factor[2 * factors];
};
template <class C, int factors>
struct Low {
  double middle, per_half;
  C scale;
  int zero;
  C factor[2 * factors];
};
struct Root {
  double high;
  long double low, per_width, c[24];
};
constexpr Lgamma<long double, 12> binades_d[] = {
#include "../../zem/zem_core/gamma/lgamma/binades_d.inc"
};
constexpr Lgamma<double, 6> binades_s[] = {
#include "../../zem/zem_core/gamma/lgamma/binades_s.inc"
};
constexpr Low<long double, 11> low_d[] = {
#include "../../zem/zem_core/gamma/lgamma/low_d.inc"
};
constexpr Low<double, 5> low_s[] = {
#include "../../zem/zem_core/gamma/lgamma/low_s.inc"
};
constexpr Root roots[] = {
#include "../../zem/zem_core/gamma/lgamma/roots.inc"
};
constexpr long double tgamma_d[][25] = {
#include "../../zem/zem_core/gamma/tgamma/rows_d.inc"
};
constexpr double tgamma_s[][13] = {
#include "../../zem/zem_core/gamma/tgamma/rows_s.inc"
};
}  // namespace gamma_rows

// What row i of a table says at place u of its interval, u in [0, 1], and what it should.
struct Table {
  const char* name;
  int rows;
  std::function<quad(int, quad)> got, exact;
  double bound;  // relative
};
template <class T, size_t n>
constexpr int count(const T (&)[n]) {
  return int(n);
}

void check(const std::vector<Table>& tables) {
  for (const Table& t : tables)
    for (int i = 0; i < t.rows; i += 1 + t.rows / 40)
      for (const quad u : {0.01Q, 0.47Q, 0.99Q}) {
        const quad exact = t.exact(i, u), got = t.got(i, u);
        ASSERT_LE(double(fabsq(got - exact)), t.bound * double(fabsq(exact)))
            << t.name << " row " << i << " at " << double(u);
      }
}

const quad root_2 = sqrtq(2), root_pi = sqrtq(M_PIq);
quad power(quad e) { return exp2q(e); }
template <class Row>
quad polynomial(const Row& row, int first, int last, quad t) {
  quad p = 0;
  for (int n = last; n >= first; --n) p = p * t + quad(row[n]);
  return p;
}

// Values at nodes: one word to half its last place, two words to the last place of the second.
TEST(Tables, ValuesAtNodes) {
  constexpr double one = 0x1.01p-53, single = 0x1.01p-24;
  const auto erf = [](int j, quad) { return erfq(j / 128.0Q); };
  const auto slope = [](int j, quad) { return 2 / root_pi * expq(-quad(j) * j / 16384); };
  const auto tail = [](int steps, quad scale) {
    return [=](int j, quad) { return scale * erfcq(quad(j) / steps / root_2) / 2; };
  };
  const auto density = [](int steps, quad scale) {
    return [=](int j, quad) {
      return scale * expq(-quad(j) * j / steps / steps / 2) / (root_2 * root_pi);
    };
  };
  const quad g = power(128), gs = power(48);
  using namespace erf_rows;
  check({
      {"erf d", 767, [](int j, quad) -> quad { return d[j][0]; }, erf, one},
      {"erf d slope", 767, [](int j, quad) -> quad { return d[j][1]; }, slope, one},
      {"erf s", 767, [](int j, quad) -> quad { return s[j][0]; }, erf, single},
      {"erf s slope", 767, [](int j, quad) -> quad { return s[j][1]; }, slope, single},
      {"erf d HA", 767, [=](int j, quad) { return (quad(d_ha[j][0]) + d_ha[j][2]) / g; }, erf,
       0x1p-104},
      {"erf d HA slope", 767, [](int j, quad) { return quad(d_ha[j][1]) + d_ha[j][3]; }, slope,
       0x1p-78},
      {"cdfnorm d EP", 38 * 64, [](int j, quad) -> quad { return cdf_rows::d_ep[j][0]; },
       tail(64, g), one},
      {"cdfnorm d EP slope", 38 * 64, [](int j, quad) -> quad { return cdf_rows::d_ep[j][1]; },
       density(64, g), one},
      {"cdfnorm d LA", 38 * 128, [](int j, quad) -> quad { return cdf_rows::d_la[j][0]; },
       tail(128, g), one},
      {"cdfnorm d LA slope", 38 * 128, [](int j, quad) -> quad { return cdf_rows::d_la[j][1]; },
       density(128, g), one},
      {"cdfnorm d HA", 38 * 128,
       [](int j, quad) { return quad(cdf_rows::d_ha[j][0]) + cdf_rows::d_ha[j][2]; }, tail(128, g),
       0x1p-100},
      {"cdfnorm d HA slope", 38 * 128,
       [](int j, quad) { return quad(cdf_rows::d_ha[j][1]) + cdf_rows::d_ha[j][3]; },
       density(128, g), 0x1p-78},
      {"cdfnorm s", 14 * 64, [](int j, quad) -> quad { return cdf_rows::s[j][0]; }, tail(64, gs),
       one},
      {"cdfnorm s slope", 14 * 64, [](int j, quad) -> quad { return cdf_rows::s[j][1]; },
       density(64, gs), one},
      {"atan", 126, [](int i, quad) { return quad(atan_rows::d[i][0]) + atan_rows::d[i][1]; },
       [](int i, quad) {
         return i == 0 ? 0
                       : atanq(power((i - 1) / 16 - 3) * (1 + (quad((i - 1) % 16) + 0.5Q) / 16));
       },
       0x1p-104},
      {"atan2", 65,
       [](int i, quad) { return quad(atan_rows::steps[i][0]) + atan_rows::steps[i][1]; },
       [](int i, quad) { return atanq(i / 64.0Q); }, 0x1p-104},
      {"2^(j/64)", 64,
       [](int i, quad) { return quad(exp_rows::split64[i][0]) + exp_rows::split64[i][1]; },
       [](int i, quad) { return power(i / 64.0Q); }, 0x1p-96},
      {"2^(j/128)", 128, [](int i, quad) -> quad { return exp_rows::power128[i]; },
       [](int i, quad) { return power(i / 128.0Q); }, one},
      {"2^(j/128) s", 128,
       [](int i, quad) { return quad(exp_rows::split128_s[i][0]) + exp_rows::split128_s[i][1]; },
       [](int i, quad) { return power(i / 128.0Q); }, 0x1p-46},
      {"2^(j/128) erfc", 128,
       [](int i, quad) { return quad(exp_rows::erfc128[i][0]) + exp_rows::erfc128[i][1]; },
       [](int i, quad) { return power(i / 128.0Q); }, 0x1p-78},
      {"-ln c", 256, [](int i, quad) { return quad(ln_rows::asinh[i][0]) + ln_rows::asinh[i][1]; },
       [](int i, quad) { return -logq(ln_rows::asinh[i][2]); }, 0x1p-100},
      {"c", 256, [](int i, quad) -> quad { return ln_rows::asinh[i][2]; },
       [](int i, quad) { return 256 / (256.0Q + i); }, 0x1p-21},
      {"ln c of the tails", 256, [](int i, quad) -> quad { return ln_rows::tails[i][1]; },
       [](int i, quad) { return logq(ln_rows::tails[i][0]); }, one},
      {"c of the tails", 256, [](int i, quad) -> quad { return ln_rows::tails[i][0]; },
       [](int i, quad) { return 256 / (256.5Q + i); }, 0x1p-14},
  });
}

// exp(x^2) erfc(x) from the left end of a quarter of a binade.
TEST(Tables, Erfc) {
  const auto end = [](int i) {
    return i == 0 ? quad(0) : power((i - 1) / 4 - 2) * (4 + (i - 1) % 4) / 4;
  };
  const auto place = [=](int i, quad u) { return u * (end(i + 1) - end(i)); };
  const auto exact = [=](int i, quad u) {
    const quad x = end(i) + place(i, u);
    return expq(x * x) * erfcq(x);
  };
  const auto rows = [=](const auto& table, int degree) {
    return [=, &table](int i, quad u) { return polynomial(table[i], 0, degree, place(i, u)); };
  };
  using namespace erfc_rows;
  check({
      {"erfc d LA", 28, rows(d_la, 12), exact, 0x1p-52},
      {"erfc d HA", 28,
       [=](int i, quad u) {
         const quad t = place(i, u);
         return polynomial(d_ha[i], 0, 13, t) + quad(d_ha[i][14]) + d_ha[i][15] * t;
       },
       exact, 0x1p-55},
      {"erfc s HA", 23, rows(s_ha, 7), exact, 0x1p-30},
      {"erfc s LA", 23, rows(s_la, 5), exact, 0x1p-23},
      {"erfc s EP", 23, rows(s_ep, 3), exact, 0x1p-15},
  });
}

// erfinv(1 - w)/(1 - w), the rows next to w = 1 first.
TEST(Tables, InverseErrorFunctions) {
  const auto exact = [](int parts, quad scale) {
    return [=](int i, quad u) {
      const quad w = power(-1 - i / parts) * (1 + (parts - 1 - i % parts + u) / parts);
      return scale * exact::inverse_error<exact::QuadForms>(1 - w, w) / (1 - w);
    };
  };
  const auto rows = [](const auto& table, int parts, int degree) {
    return
        [=, &table](int i, quad u) { return polynomial(table[i], 0, degree, (u - 0.5Q) / parts); };
  };
  const auto split = [](const auto& table) {
    return [&table](int i, quad u) {
      const quad t = (u - 0.5Q) / 4;
      return polynomial(table[i], 0, 14, t) + quad(table[i][15]) + table[i][16] * t;
    };
  };
  // The cubics of single ErfInv begin at w = 2^-24, and take w unscaled.
  const auto upward = [](const auto& table, int parts) {
    return [=, &table](int i, quad u) {
      return polynomial(table[i], 0, 3, (u - 0.5Q) / parts * power(i / parts - 24));
    };
  };
  const auto exact_upward = [=](int parts) {
    return [=](int i, quad u) { return exact(parts, 1)(24 * parts - 1 - i, u); };
  };
  using namespace inverse_rows;
  check({
      {"erfinv d EP", 848,
       [](int i, quad u) {
         return polynomial(erf_d_ep[i], 0, 3, (u - 0.5Q) / 16 * power(-1 - i / 16));
       },
       exact(16, 1), 0x1p-26},
      {"erfinv d LA", 212, rows(erf_d_la, 4, 11), exact(4, 1), 0x1p-52},
      {"erfinv d HA", 212, split(erf_d_ha), exact(4, 1), 0x1p-57},
      {"erfinv s EP", 96, upward(cubics_s_ep, 4), exact_upward(4), 0x1p-18},
      {"erfinv s LA", 384, upward(cubics_s_la, 16), exact_upward(16), 0x1p-25},
      {"erfcinv s EP", 96, rows(erf_s_ep, 4, 3), exact(4, 1), 0x1p-18},
      {"erfcinv s LA", 96, rows(erf_s_la, 4, 5), exact(4, 1), 0x1p-27},
      {"erfinv s HA", 96, rows(erf_s_ha, 4, 7), exact(4, 1), 0x1p-34},
      {"erfcinv d EP", 848, rows(erfc_d_ep, 16, 3), exact(16, 1), 0x1p-26},
      {"cdfnorminv d EP", 848, rows(cdf_d_ep, 16, 3), exact(16, root_2), 0x1p-26},
      {"cdfnorminv d LA", 212, rows(cdf_d_la, 4, 11), exact(4, root_2), 0x1p-52},
      {"cdfnorminv d HA", 212, split(cdf_d_ha), exact(4, root_2), 0x1p-57},
      {"cdfnorminv s EP", 96, rows(cdf_s_ep, 4, 3), exact(4, root_2), 0x1p-18},
      {"cdfnorminv s LA", 96, rows(cdf_s_la, 4, 5), exact(4, root_2), 0x1p-27},
      {"cdfnorminv s HA", 96, rows(cdf_s_ha, 4, 7), exact(4, root_2), 0x1p-34},
  });
}

// Eighths of binades from 0.125 on, about their centres; row 0 below.
TEST(Tables, Tanh) {
  const auto low = [](int i) {
    return i == 0 ? quad(0) : power((i - 1) / 8 - 3) * (8 + (i - 1) % 8) / 8;
  };
  const auto at = [=](int i, quad u) { return low(i) + u * (low(i + 1) - low(i)); };
  const auto from_centre = [=](int i, quad u) {
    return at(i, u) - (i == 0 ? 0 : (low(i) + low(i + 1)) / 2);
  };
  const auto exact = [=](int i, quad u) { return tanhq(at(i, u)); };
  using namespace tanh_rows;
  check({
      {"tanh d", 59,
       [=](int i, quad u) {
         const quad t = at(i, u) + d[i][12];
         return polynomial(d[i], 1, 11, t) + quad(d[i][0]);
       },
       exact, 0x1p-54},
      {"tanh s", 51,
       [=](int i, quad u) {
         const quad t = from_centre(i, u);
         return quad(s[i][0]) + s[i][1] +
                t * (quad(s[i][2]) + s[i][3] + t * polynomial(s[i], 4, 7, t));
       },
       exact, 0x1p-28},
      {"tanh s EP", 51, [=](int i, quad u) { return polynomial(s_ep[i], 0, 3, from_centre(i, u)); },
       exact, 0x1p-18},
  });
}

TEST(Tables, Gamma) {
  const auto product = [](const auto& row, quad t) {
    quad y = row.scale;
    for (int k = 0; k < count(row.factor); k += 2)
      y *= (t * t + quad(row.factor[k + 1])) + quad(row.factor[k]) * t;
    return y;
  };
  const auto binade = [=](const auto& table) {
    return [=, &table](int i, quad u) { return product(table[i], 2 * u - 1); };
  };
  const auto of_binade = [](int i, quad u) { return lgammaq(power(i + 2) * (1 + u)); };
  // The factors' coefficients are rounded to 64 bits, which leaves 2^-62 in the products. Low rows:
  // ln Gamma over x - 1 or x - 2.
  const auto low = [=](const auto& table) {
    return [=, &table](int i, quad u) { return product(table[i], 2 * u - 1); };
  };
  const auto of_low = [](const auto& table) {
    return [&table](int i, quad u) {
      const quad x = table[i].middle + (2 * u - 1) / quad(table[i].per_half);
      return lgammaq(1 + x) / (x - table[i].zero);
    };
  };
  const auto shifted = [](const auto& table, int columns) {
    return [=, &table](int i, quad u) {
      const quad f = u - 0.5Q;
      quad y = table[i][0];
      for (int k = 1; k < columns; k += 2)
        y *= 1 + quad(table[i][k]) * f + quad(table[i][k + 1]) * f * f;
      return y;
    };
  };
  using namespace gamma_rows;
  check({
      {"lgamma d", count(binades_d), binade(binades_d), of_binade, 0x1p-61},
      {"lgamma s", count(binades_s), binade(binades_s), of_binade, 0x1p-32},
      {"lgamma low d", count(low_d), low(low_d), of_low(low_d), 0x1p-61},
      {"lgamma low s", count(low_s), low(low_s), of_low(low_s), 0x1p-28},
      {"tgamma d", count(tgamma_d), shifted(tgamma_d, 25),
       [](int i, quad u) { return tgammaq(3 + 4 * i + u - 0.5Q); }, 0x1p-61},
      {"tgamma s", count(tgamma_s), shifted(tgamma_s, 13),
       [](int i, quad u) { return tgammaq(3 + i + u - 0.5Q); }, 0x1p-29},
  });
  // The zeros at negative x: the function vanishes there, and its slope is digamma.
  for (const Root& root : roots) {
    if (root.high == 0) continue;
    const quad zero = quad(root.high) + root.low, width = 1 / quad(root.per_width);
    ASSERT_LT(double(fabsq(lgammaq(zero))), 0x1p-95 * double(fabsq(1 / width))) << root.high;
    for (const quad t : {-0.99Q, -0.5Q, 0.3Q, 0.99Q}) {
      const quad exact = lgammaq(zero + t * width), got = t * polynomial(root.c, 0, 23, t);
      ASSERT_LE(double(fabsq(got - exact)), 0x1p-62 * double(fabsq(exact)))
          << root.high << " at " << double(t);
    }
  }
}

}  // namespace
