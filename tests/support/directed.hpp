#pragma once
// Functions of one input against exact values at directed points: borders, exact cases,
// published hard-to-round inputs.
#include <string>
#include <vector>

#include "registry/kernels.hpp"

using quad = __float128;

// Of the three levels: largest error in ulp, the rounding's half included, or relative error
// where `relative` is set.
struct Limits {
  double bound[3];
  bool relative[3];
};

// The floats next to each of `centres`, `each_side` below and above.
template <class T>
std::vector<T> neighbours(const std::vector<T>& centres, int each_side);

// `count` numbers spread evenly through [low, high].
template <class T>
std::vector<T> spread(double low, double high, int count);

template <class T>
std::vector<T> operator+(std::vector<T> a, const std::vector<T>& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

// Reports failures through GoogleTest.
template <class T>
void check_directed(const char* function, quad (*exact)(quad), const std::vector<T>& points,
                    const Limits& limits);

// The rows of tests/data/worst_cases/binary{32,64}_NAME.tsv: arguments, then the exact value in two
// parts.
template <class T>
std::vector<std::vector<double>> published_cases(const std::string& name);

// Those of a function of one argument: the level's error against the published values.
template <class T>
void check_worst_cases(const char* function, const char* name, const Limits& limits);
