// What quicksort.hpp sorts: reals side by side, reals with a stride, keys with companions.
#pragma once
#include <stddef.h>

namespace ork {

template <class R>
struct Reals {
  struct Item {
    R key;
  };
  R* a;
  R key(int i) const { return a[i]; }
  Item load(int i) const { return {a[i]}; }
  void store(int i, Item x) { a[i] = x.key; }
};

template <class R>
struct StridedReals {
  using Item = typename Reals<R>::Item;
  R* a;
  ptrdiff_t stride;
  R key(int i) const { return a[i * stride]; }
  Item load(int i) const { return {a[i * stride]}; }
  void store(int i, Item x) { a[i * stride] = x.key; }
};

template <class R>
struct Pairs {
  struct Item {
    R key, value;
  };
  R *keys, *values;
  R key(int i) const { return keys[i]; }
  Item load(int i) const { return {keys[i], values[i]}; }
  void store(int i, Item x) {
    keys[i] = x.key;
    values[i] = x.value;
  }
};

}  // namespace ork
