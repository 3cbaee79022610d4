#pragma once
// The public layer's elementwise functions by the registry's rows.
#include <dlfcn.h>
#include <pthread.h>

#include <random>

#include "ork/front.h"
#include "registry/kernels.hpp"
#include "support/control.hpp"
#include "support/pch.hpp"

// Puts the layer's settings back at the end of a test.
struct DivisionGuard {
  int threads = ork_set_threads(-1);
  float threshold = ork_set_threshold(-1);
  ~DivisionGuard() {
    ork_set_threads(threads);
    ork_set_threshold(threshold);
  }
};

// Vectors of two grains (256 elements) and more run in up to `threads` slices.
inline void divide_all(int threads) {
  ork_set_threads(threads);
  ork_set_threshold(1e-6f);
}

inline const void* front_function(const Slot& slot) {
  const std::string name = std::string("ork_") + slot.type + slot.function;
  return dlsym(RTLD_DEFAULT, name.c_str());
}

// A row of the registry whose kernels are all the public layer's function. Called as a kernel
// is: the status is then that of the thread.
struct FrontSlot {
  const void* functions[3];
  Slot slot;
  explicit FrontSlot(const Slot& row) : slot(row) {
    for (const void*& f : functions) f = front_function(row);
    slot.table = functions;
  }
  FrontSlot(const FrontSlot&) = delete;
};

// Every row with an elementwise form, real or complex, of arrays of T.
template <class T, class F>
void for_each_function(F f) {
  for (const Slot& row : slots) {
    const bool wide = row.type == 'd' || row.type == 'z';
    if (wide != (sizeof(T) == 8) || row.form >= Form::pack_i || !row.exists(0)) continue;
    const FrontSlot front(row);
    ASSERT_NE(front.functions[0], nullptr) << row.type << row.function;
    f(row, Call<T>{&front.slot, 1});
  }
}
