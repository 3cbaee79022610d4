#pragma once
// The registry of vector kernels as tests, meter and benchmarks see it: one row for each function
// and type, called through its exported table.
#include <cstdint>
#include <string>
#include <vector>

#include "ork/zem_kernels.h"

enum class Form {
  unary,
  binary,
  scalar,
  two,
  linear,
  to_real,    // complex in, real out
  from_real,  // the reverse
  pack_i,
  pack_m,
  pack_v,
  unpack_i,
  unpack_m,
  unpack_v
};

struct Slot {
  char type;
  const char* function;
  Form form;
  const char* kernels[3];  // "W7LA", ... by level
  const void* const* table;
  const float* costs;

  bool exists(int level) const { return table[level] != nullptr; }
  std::string name(int level) const {
    return std::string(1, type) + function + "_" + kernels[level];
  }
};
extern const std::vector<Slot> slots;

// LinearFrac's scalars: scale and shift of a, then of b. These keep its denominator away from 0.
inline double linear_scalars[4] = {1.5, 0.25, 0.75, 3};

// A kernel with the arguments that its form takes out of these. Powx takes b[0], LinearFrac
// linear_scalars. Complex elements are pairs of T.
template <class T>
struct Call {
  const Slot* slot;
  int level;

  bool complex() const { return slot->type == 'c' || slot->type == 'z'; }
  int inputs() const { return slot->form == Form::binary || slot->form == Form::linear ? 2 : 1; }
  int outputs() const { return slot->form == Form::two ? 2 : 1; }
  // Numbers in an element.
  int in_parts() const { return complex() && slot->form != Form::from_real ? 2 : 1; }
  int out_parts() const { return complex() && slot->form != Form::to_real ? 2 : 1; }
  void operator()(int n, const T* a, const T* b, T* r, T* r2) const;
};

// Every existing kernel of a real type with an elementwise form (pack and unpack apart), each
// once; and those of the complex type of these parts.
template <class T>
std::vector<Call<T>> elementwise_kernels();
template <class T>
std::vector<Call<T>> complex_kernels();
