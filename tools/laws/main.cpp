// ork_laws [DRAWS [NAME]]: how the numbers of gamma and beta agree with their distribution
// functions and the integers of the discrete distributions with their probabilities, for every
// method, its borders and extreme parameters, and the covariances of GaussianMV with theirs; ten
// million draws each unless said otherwise, a tenth as many vectors. NAME: only laws whose name
// begins so. The exit code is the number of laws that a chance of one in a million would not
// explain.
#include <cstdio>
#include <cstdlib>

#include "laws/covariance.hpp"
#include "laws/discrete.hpp"

namespace {

int report(const std::string& name, char type, const laws::Agreement& a, bool beyond) {
  std::printf("%c %-28s %5d %10.3g %10.3g %8.2f %8.2f%s\n", type, name.c_str(), a.cells,
              a.chi_square, a.kolmogorov, a.low_tail, a.high_tail,
              !laws::bad(a) ? ""
              : beyond      ? "  beyond the method"
                            : "  does not agree");
  std::fflush(stdout);
  return laws::bad(a) && !beyond;
}

template <class R>
int report(const laws::Law& law, char type, uint64_t draws) {
  return report(law.name, type, laws::check<R>(law, draws, 200, 20211),
                law.beyond.find(type) != std::string::npos);
}

}  // namespace

int main(int argc, char** argv) {
  const uint64_t draws = argc > 1 ? std::strtoull(argv[1], nullptr, 10) : 10000000;
  const std::string wanted = argc > 2 ? argv[2] : "";
  const auto wants = [&](const std::string& name) { return name.rfind(wanted, 0) == 0; };
  std::printf(
      "# %llu draws on MT19937; chance of a worse chi-square in the cells and of a greater\n"
      "# distance of the distribution functions; tails of 1e-5, in standard deviations\n"
      "# %-28s %5s %10s %10s %8s %8s\n",
      static_cast<unsigned long long>(draws), "distribution", "cells", "chi-square", "distance",
      "low", "high");
  int bad = 0;
  for (const laws::Law& law : laws::all())
    if (wants(law.name)) bad += report<double>(law, 'd', draws) + report<float>(law, 's', draws);
  for (const laws::DiscreteLaw& law : laws::all_discrete())
    if (wants(law.name))
      bad +=
          report(law.name, 'i', laws::check(law, draws, 20211), law.coarse || draws >= law.shows);
  if (!wants("GaussianMV")) return bad;
  std::printf(
      "# GaussianMV: worst of all means and covariances, in standard errors: double, single\n");
  for (const int dim : {1, 2, 10, 11, 64})
    for (const int storage : {RUA_MATRIX_FULL, RUA_MATRIX_PACKED, RUA_MATRIX_DIAGONAL}) {
      const double d = laws::covariance_deviation<double>(dim, storage, draws / 10),
                   s = laws::covariance_deviation<float>(dim, storage, draws / 10);
      std::printf("dim %2d, storage %d %21.2f %8.2f\n", dim, storage, d, s);
      bad += (d > 6) + (s > 6);
    }
  return bad;
}
