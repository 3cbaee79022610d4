#pragma once
// The distributions as tests and benchmarks see them: a row for each entry, called with parameters
// of one kind whatever theirs are.
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

#include "ork/rua_distributions.h"

// A parameter: a number, an array, or a null array.
class Value {
 public:
  Value(double x) : Value{{x}} {}
  Value(std::initializer_list<double> x) : double_(x), float_(x.begin(), x.end()) {}
  Value(std::nullptr_t) {}
  // For an array of as many elements as outputs, of which nobody draws more.
  static Value repeated(std::initializer_list<double> x) {
    Value all(nullptr);
    for (size_t i = 0; i < 2048; ++i) {
      all.double_.push_back(x.begin()[i % x.size()]);
      all.float_.push_back(float(all.double_.back()));
    }
    return all;
  }

  operator double() const { return double_[0]; }
  operator float() const { return float_[0]; }
  operator int32_t() const { return int32_t(double_[0]); }
  operator const double*() const { return double_.empty() ? nullptr : double_.data(); }
  operator const float*() const { return float_.empty() ? nullptr : float_.data(); }
  size_t size() const { return double_.size(); }
  void set(size_t i, double x) { double_[i] = x, float_[i] = float(x); }

 private:
  std::vector<double> double_;
  std::vector<float> float_;
};
using Values = std::vector<Value>;

enum class Kind { real, integer, array };

struct Condition {
  const char* relation;  // ">", ">=", "<", "<="
  double bound;
  int parameter;  // whose value is the bound; -1: `bound` is
};

struct Parameter {
  const char* name;
  Kind kind;
  bool counted;  // an array whose elements can be checked
  std::vector<Condition> conditions;
};

// An entry with the distribution's own argument list behind the output.
using Draw = int32_t(int32_t method, RuaStream* stream, int32_t n, void* r, const Values& p);

struct Distribution {
  char type;
  const char* name;
  size_t element;  // bytes of an output's value
  int methods;
  int values;      // the parameter that says how many values an output has; -1: one
  uint32_t chunk;  // that it may leave with the stream, 0 for none
  Draw* kernel;
  std::vector<Parameter> parameters;
  Values sample;

  std::string full_name() const { return type + std::string(name); }
  size_t bytes(int n) const {
    return size_t(n) * element * (values < 0 ? 1 : int32_t(sample[values]));
  }
};
extern const std::vector<Distribution> distributions;
