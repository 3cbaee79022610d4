// What quicksort.hpp sorts: reals side by side, reals with a stride, keys with companions.
#pragma once
#include <stddef.h>
#include <stdint.h>
#include <string.h>

#include <type_traits>

namespace ork {

// The bits of a real as an integer in its order: all inverted when the sign is set, else the sign
// alone. -0 stands below +0, NaNs beyond the infinities.
template <class R>
inline auto ordered_image(R x) {
  using Image = std::conditional_t<sizeof(R) == 8, uint64_t, uint32_t>;
  constexpr Image sign = Image{1} << (8 * sizeof(R) - 1);
  Image image;
  memcpy(&image, &x, sizeof x);
  return image & sign ? ~image : image ^ sign;
}

template <class R>
struct Reals {
  struct Item {
    R key;
  };
  R* a;
  R key(int i) const { return a[i]; }
  auto image(int i) const { return ordered_image(a[i]); }
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
