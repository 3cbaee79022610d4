#pragma once
// Special values of a vector kernel, each in every lane: in blocks and tails, aligned or not,
// in place or not, beside clean lanes, with a callback that replaces the result.
#include <limits>
#include <string>
#include <vector>

#include "registry/kernels.hpp"

template <class T>
struct SpecialCase {
  T a;  // input
  T r;  // expected result; a NaN stands for any quiet NaN
  int status = 0;
  T b = 0;                 // second input, for the forms that have one
  T r2 = 0;                // second result, likewise
  bool exact_nan = false;  // compare a NaN's bits, too
};

template <class T>
struct SpecialTable {
  const char* function;    // "Exp"
  int level;               // 0 LA, 1 HA, 2 EP
  const char* error_name;  // "vdExp"
  T clean_a, clean_b;      // inputs of the other lanes; they raise no status
  std::vector<SpecialCase<T>> cases;
};

// Reports failures through GoogleTest.
template <class T>
void check_special(const SpecialTable<T>& table);

template <class T>
constexpr T inf = std::numeric_limits<T>::infinity();
template <class T>
constexpr T quiet_nan = std::numeric_limits<T>::quiet_NaN();
template <class T>
constexpr T largest = std::numeric_limits<T>::max();
template <class T>
constexpr T smallest_normal = std::numeric_limits<T>::min();
template <class T>
constexpr T smallest_denormal = std::numeric_limits<T>::denorm_min();

// What the callback of these tests saw.
struct Event {
  int status, index;
  double a1, a2, r1, r2;
  std::string name;
};

// Runs f() with a callback that records events in order and, if `replacement` is given,
// writes it to both results (of complex ones to the real part, 1 more to the imaginary one); the
// other error actions are off.
template <class F>
std::vector<Event> record_events(F f, const double* replacement = nullptr);

namespace support {
void start_recording(const double* replacement);
std::vector<Event> stop_recording();
}  // namespace support
template <class F>
std::vector<Event> record_events(F f, const double* replacement) {
  support::start_recording(replacement);
  f();
  return support::stop_recording();
}
