// Symmetric matrices of the caller, in any of the three storages.
#pragma once
#include "rua_kernel/ss/service/task.hpp"

namespace ork::ss {

// The low two bits of a storage code decide: both triangles row after row, or one of them.
template <class R>
struct Symmetric {
  R* a;
  int p;
  int code;

  bool full() const { return !(code & 3); }
  uint64_t size() const { return full() ? uint64_t(p) * p : uint64_t(p) * (p + 1) / 2; }
  // Element (i, j), j <= i.
  R& at(int i, int j) const {
    if (code & ORK_SS_LOWER_PACKED) return a[size_t(i) * (i + 1) / 2 + j];
    if (code & ORK_SS_UPPER_PACKED) return a[size_t(j) * (2 * size_t(p) - j - 1) / 2 + i];
    return a[size_t(i) * p + j];
  }
  void set(int i, int j, R value) const {
    at(i, j) = value;
    if (full()) a[size_t(j) * p + i] = value;
  }
};

// A storage code; null counts as full.
template <class R>
inline int code_of(const Task<R>& t, Integers storage) {
  return storage ? int(t.integer(storage)) : ORK_SS_FULL;
}

// Sets the elements of selected variables to value(i, j), j <= i. The diagonal comes last: value
// may read the full matrix that is written.
template <class R, class Value>
inline void put_matrix(const Task<R>& t, const Symmetric<R>& to, Value value) {
  for (int i = 0; i < to.p; ++i)
    for (int j = 0; j < i; ++j)
      if (t.selected(i) && t.selected(j)) to.set(i, j, value(i, j));
  for (int i = 0; i < to.p; ++i)
    if (t.selected(i)) to.set(i, i, value(i, i));
}

// The same for storage that closes up: a packed triangle is that of the selected variables alone.
// value must not read what is written.
template <class R, class Value>
inline void put_selected(const Task<R>& t, const Symmetric<R>& to, Value value) {
  Symmetric<R> closed = to;
  if (!to.full()) {
    closed.p = 0;
    for (int i = 0; i < to.p; ++i) closed.p += t.selected(i);
  }
  for (int i = 0, row = 0; i < to.p; ++i) {
    if (!t.selected(i)) continue;
    for (int j = 0, column = 0; j <= i; ++j) {
      if (!t.selected(j)) continue;
      if (to.full())
        to.set(i, j, value(i, j));
      else
        closed.at(row, column) = value(i, j);
      ++column;
    }
    ++row;
  }
}

}  // namespace ork::ss
