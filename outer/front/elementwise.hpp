// The road of an elementwise call: check, pick the kernel, run it whole or in slices.
#pragma once

#include <type_traits>

#include "ork/zem.h"

namespace ork::front {

// A kernel with the arguments of one call: run() computes elements begin .. begin + n - 1.
struct Bound {
  const void* call;
  void (*run)(const void* call, int begin, int n);
  const void* input;  // the whole first input; reported indices count from it
};

// Raises the status of a rejected call, and returns it.
int rejected(int status, int argument, const char* name);

// Run the n elements, on the calling thread or where n and the cost per element are worth
// it on several. The result is the last event's status in the order of the elements, or 0.
int run_whole(const Bound& bound, int n);
int run_divided(const Bound& bound, int n, float cost);

// The slot of the thread's accuracy. A mode word can hold accuracies that are no slot.
inline int slot() {
  const int index = ork_zem_kernel_GetTTableIndex();
  return index >= 0 && index < 3 ? index : 1;
}

template <class T>
bool is_null(T value) {
  if constexpr (std::is_pointer_v<T>)
    return value == nullptr;
  else
    return false;
}

// The argument for a slice that begins `by` numbers into its array; an argument of the whole
// call stays.
template <class T>
T advanced(T value, int by) {
  if constexpr (std::is_pointer_v<T>)
    return value + by;
  else
    return value;
}

// 0, or the status of a count below 0 or a null pointer. Nothing is asked of n = 0.
template <class... A>
int check(const char* name, int n, A... arguments) {
  if (n < 0) return rejected(ZEM_STATUS_BAD_ARGUMENT, 1, name);
  if (n > 0 && (is_null(arguments) || ...)) return rejected(ZEM_STATUS_BAD_ACCESS, 0, name);
  return ZEM_STATUS_NONE;
}

template <class A, class... Rest>
A first(A a, Rest...) {
  return a;
}

// steps: numbers per element in each argument's array (2 for complex ones), 0 for an argument
// that is no array.
template <int... steps, class... A>
int call(const char* name, void (*const* table)(int, A...), const float* costs, int n,
         std::type_identity_t<A>... arguments) {
  if (const int status = check(name, n, arguments...); status != 0 || n == 0) return status;
  const int level = slot();
  const auto kernel = table[level];
  const auto run = [&](int begin, int count) {
    kernel(count, advanced(arguments, begin * steps)...);
  };
  const Bound bound = {&run,
                       [](const void* call, int begin, int count) {
                         (*static_cast<decltype(run)*>(call))(begin, count);
                       },
                       first(arguments...)};
  return run_divided(bound, n, costs[level]);
}

}  // namespace ork::front
