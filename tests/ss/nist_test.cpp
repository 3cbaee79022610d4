// Certified means and deviations of public data sets: correct digits by method.
#include <fstream>
#include <sstream>

#include "ss/statistics.hpp"

namespace {
using namespace statistics;

std::vector<double> numbers(const std::string& path) {
  std::vector<double> values;
  std::ifstream file(path);
  for (std::string line; std::getline(file, line);)
    if (!line.empty() && line[0] != '#') values.push_back(std::strtod(line.c_str(), nullptr));
  return values;
}

// The sets NumAcc2 to NumAcc4, by their rule: a first value, then one below and one above in turn.
std::vector<double> alternating(double first, double below, double above) {
  std::vector<double> values = {first};
  for (int i = 0; i < 500; ++i) values.push_back(below), values.push_back(above);
  return values;
}

double digits(double got, double want) {
  const double error = std::abs(got - want) / std::abs(want);
  return error < 1e-15 ? 15 : -std::log10(error);
}

TEST(StatisticsNist, CorrectDigits) {
  const std::string folder = ORK_SOURCE_DIR "/tests/data/nist/";
  // Least digits of mean and deviation by the fast, one-pass and two-pass methods. Plain sums
  // lose twice as many digits as the mean has more than the deviation, and a few by rounding.
  const struct {
    const char* name;
    double mean, deviation;  // certified
    double fast, one_pass, two_pass;
    std::vector<double> values = {};  // of a set that has no file
  } sets[] = {
      {"Lottery", 518.958715596330, 291.699727470969, 13, 13, 14},
      {"Lew", -177.435000000000, 277.332168044316, 13, 13, 14},
      {"Mavro", 2.00185600000000, 0.000429123454003053, 8, 12, 12},
      {"Michelso", 299.852400000000, 0.0790105478190518, 8, 12, 13},
      {"NumAcc1", 10000002, 1, 0, 15, 15, {10000001, 10000003, 10000002}},
      {"NumAcc2", 1.2, 0.1, 11, 13, 13, alternating(1.2, 1.1, 1.3)},
      {"NumAcc3", 1000000.2, 0.1, 1, 8, 9, alternating(1000000.2, 1000000.1, 1000000.3)},
      {"NumAcc4", 10000000.2, 0.1, 0, 7, 8, alternating(10000000.2, 10000000.1, 10000000.3)},
  };
  for (const auto& set : sets) {
    const std::vector<double> x =
        set.values.empty() ? numbers(folder + set.name + ".txt") : set.values;
    ASSERT_FALSE(x.empty()) << set.name;
    std::printf("%-9s", set.name);
    double mean = 0;
    for (const uint64_t method : {ORK_SS_FAST, ORK_SS_ONE_PASS, ORK_SS_TWO_PASS}) {
      Task<double> t(1, int(x.size()), ORK_SS_ROWS, x.data());
      for (const int code : {ORK_SS_EDIT_MEAN, ORK_SS_EDIT_RAW2, ORK_SS_EDIT_CENTRAL2})
        t.array(code, 1);
      if (method == ORK_SS_TWO_PASS) t[ORK_SS_EDIT_MEAN][0] = mean;
      ASSERT_EQ(t.call(Api<double>::basic, ORK_SS_MEAN | ORK_SS_CENTRAL2, method), 0);
      if (method == ORK_SS_FAST) mean = t[ORK_SS_EDIT_MEAN][0];
      const double of_mean = digits(t[ORK_SS_EDIT_MEAN][0], set.mean);
      const double c2 = t[ORK_SS_EDIT_CENTRAL2][0];
      const double of_deviation = c2 > 0 ? digits(std::sqrt(c2), set.deviation) : 0;
      std::printf("  %4.1f %4.1f", of_mean, of_deviation);
      EXPECT_GE(of_mean, 13) << set.name;
      EXPECT_GE(of_deviation, method == ORK_SS_FAST       ? set.fast
                              : method == ORK_SS_ONE_PASS ? set.one_pass
                                                          : set.two_pass)
          << set.name << " method " << method;
    }
    std::printf("\n");
  }
}

}  // namespace
