// The examples, run as programs: the numbers that matter in what they print.
#include <sys/wait.h>

#include <cstdio>
#include <filesystem>
#include <sstream>

#include "support/pch.hpp"

namespace {

struct Line {
  const char* label;            // the line begins with it; once in the output
  std::vector<double> numbers;  // what follows, other words skipped
  double tolerance;
};

struct Example {
  const char* program;
  std::vector<Line> lines;
  friend void PrintTo(const Example& example, std::ostream* out) { *out << example.program; }
};

const Example examples[] = {
    {"conformal",
     {{"exp: crossings at", {90, 90}, 1e-3},
      {"ln: crossings at", {90, 90}, 1e-3},
      {"sqrt: crossings at", {90, 90}, 1e-3},
      {"sin: crossings at", {90, 90}, 1e-3},
      {"tanh: crossings at", {90, 90}, 1e-3},
      {"acos: crossings at", {90, 90}, 1e-3},
      {"status", {0}, 0}}},
    {"elementwise",
     {{"status", {1}, 0},
      {"  vdLn: element 2", {0, 2, -700, -INFINITY}, 0},
      {"  vdLn: element 4", {-1, 1}, 0},
      {"ln, repaired:", {0, 1, -700, 2.302585, NAN, -0.693147}, 5e-6},
      {"n below 0:", {-1, -2, 0, 0}, 0},
      {"exp, largest relative difference from the C library: EP", {1e-9, 0, 0}, 1e-8}}},
    // Of a series circuit: resonance 1/(2 pi sqrt(L C)), band R/(2 pi L), peak sqrt(L/C)/R.
    {"impedance",
     {{"resonance", {5032.92, 5032.92}, 4},
      {"impedance there", {50, 0}, 0.2},
      {"band", {795.8, 795.8}, 4},
      {"voltage over the capacitor", {6.32, 6.32}, 0.02},
      {"90 degrees", {-90}, 0.3},
      {"status", {0}, 0}}},
    // Tones of 1 and 1/2 at 17 and 40 periods, a quarter turn and none.
    {"spectrum",
     {{"line 17", {1, -90}, 2e-4},
      {"line 40", {0.5, 0}, 2e-4},
      {"largest of the others", {0}, 1e-5},
      {"back again", {0}, 1e-5},
      {"status", {0}, 0}}},
    {"stream",
     {{"pi is about", {M_PI}, 0.04},
      {"5 of 5 numbers of the restored", {}, 0},
      {"5 of 5 numbers after skipping", {}, 0},
      {"0 of 60000", {3}, 0},
      {"status", {0}, 0}}},
    // Five standard errors of 100000 numbers.
    {"distributions",
     {{"mean claim", {1100, 1}, 10},
      {"mean share", {0.4, 440}, 7},
      {"mean of the second return", {0.02, 0.02}, 0.005},
      {"shape 0: status", {-3}, 0},
      {"status", {0}, 0}}},
    // Five standard errors of 100000 inspections, from exact sums of probabilities.
    {"sampling",
     {{"lot of 500, 15 bad, passes:", {0.818322}, 0.0065},
      {"line with 3% bad, passes:", {0.810798}, 0.0065},
      {"good items before a bad one:", {0.97 / 0.03}, 0.52},
      {"51 of 50: status", {-3}, 0},
      {"status", {0}, 0}}},
    // Of 1 to n: mean (n + 1)/2, variance n (n + 1)/12, quantiles to 200 places.
    {"statistics_in_blocks",
     {{"observations", {20000}, 0},
      {"mean", {10000.5, 5001.75}, 1e-4},
      {"variance", {20000. * 20001 / 12, 8333752.5001}, 1e-3},
      {"range", {1, 20000, 0.5, 10003}, 0},
      {"covariance", {16667501.2501, 0.99999993}, 1e-3},
      {"quartiles", {5000.75, 10000.5, 15000.25, 200}, 201},
      {"all calls succeeded", {}, 0}}},
    // From the 30 rows by a plain program.
    {"groups_compared",
     {{"all together", {-0.018}, 5e-4},
      {"setosa", {0.787, 4.86, 3.31}, 5e-4},
      {"versicolor", {0.782, 6.10, 2.87}, 5e-4},
      {"virginica", {0.513, 6.57, 2.94}, 5e-4},
      {"pooled", {0.631, 5.84, 3.04}, 5e-4},
      {"share of the variance", {0.053}, 5e-4},
      {"all calls succeeded", {}, 0}}},
    // Income 30 with a deviation of 9; who works longer, and earns more, answers less often.
    {"missing_values",
     {{"missing answers", {42, 200}, 8},
      {"income, if all had answered", {30}, 1.3},
      {"income of those who answered", {28.9}, 0.4},
      {"income, holes filled", {29.9, 1.28}, 0.3},
      {"part of the error due to the holes", {0.03}, 0.03},
      {"status", {0}, 0}}},
    {"spline",
     {{"largest error of the spline", {0}, 2e-5},
      {"value and slope at pi/2", {1, 0}, 2e-4},
      {"integrals 0 to pi, pi to pi/2", {2, -1}, 2e-5},
      {"all calls succeeded", {}, 0}}},
    {"integral",
     {{"Sobol: error falls as points to the power", {-1.2}, 0.25},
      {"Niederreiter: error falls as points to the power", {-1.2}, 0.25},
      {"MT19937: error falls as points to the power", {-0.5}, 0.1},
      {"   262144", {0, 0, 1.5e-3}, 5e-4}}},
    // Four giants and the star of spectral class F between them and the others.
    {"outliers",
     {{"classical correlation", {-0.210}, 5e-4},
      {"classical outliers", {}, 0},
      {"robust correlation", {0.68}, 0.01},
      {"robust outliers", {7, 11, 20, 30, 34}, 0},
      {"status", {0}, 0}}},
    {"tour",
     {{"exp of 200000 numbers:", {1}, 1e6},
      {"lognormal: mean", {1.701, 1.701, 0.1866, 0.1866}, 0.01},
      {"uniform:   mean", {0.5, 0.0833, 0.957}, 0.01},
      {"P(x < 1.4)", {0.256, 0.5, 2, 0.780, 0.256, 0.5, 0.780}, 0.01}}},
};

// The numbers that stand as words of their own, brackets and punctuation apart.
std::vector<double> numbers_in(std::string text) {
  for (char& c : text)
    if (c == '(' || c == ')' || c == ',' || c == ';' || c == ':') c = ' ';
  std::vector<double> numbers;
  std::istringstream words(text);
  for (std::string word; words >> word;) {
    char* end;
    const double value = strtod(word.c_str(), &end);
    if (*end == '\0') numbers.push_back(value);
  }
  return numbers;
}

bool near(double got, double expected, double tolerance) {
  if (std::isnan(expected)) return std::isnan(got);
  return got == expected || std::abs(got - expected) <= tolerance;
}

class Examples : public testing::TestWithParam<Example> {};

TEST_P(Examples, PrintTheRightNumbers) {
  const Example& example = GetParam();
  const std::string image = testing::TempDir() + "ork_example_" + example.program;
  const std::string command =
      ORK_BUILD_DIR "/bin/example_" + std::string(example.program) + " " + image + " 2>&1";
  FILE* pipe = popen(command.c_str(), "r");
  ASSERT_NE(pipe, nullptr);
  std::vector<std::string> output;
  for (char line[500]; fgets(line, sizeof line, pipe) != nullptr;) output.push_back(line);
  EXPECT_EQ(pclose(pipe), 0);
  std::filesystem::remove(image);
  for (const Line& expected : example.lines) {
    std::string rest;
    int found = 0;
    for (const std::string& line : output)
      if (line.starts_with(expected.label)) ++found, rest = line.substr(strlen(expected.label));
    EXPECT_EQ(found, 1) << expected.label;
    const std::vector<double> got = numbers_in(rest);
    ASSERT_EQ(got.size(), expected.numbers.size()) << expected.label << rest;
    for (size_t i = 0; i < got.size(); ++i)
      EXPECT_TRUE(near(got[i], expected.numbers[i], expected.tolerance)) << expected.label << rest;
  }
}

INSTANTIATE_TEST_SUITE_P(All, Examples, testing::ValuesIn(examples),
                         [](const auto& info) { return std::string(info.param.program); });

}  // namespace
