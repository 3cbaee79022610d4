#pragma once
// Bit images of scalars, for the rare routines: they decide by bits.
#include "base/vec.hpp"

namespace ork {

template <class T>
inline constexpr bits_of<T> sign_bit = ~(~bits_of<T>(0) >> 1);
template <class T>
inline constexpr bits_of<T> infinity_bits = 0x7FF0000000000000;
template <>
inline constexpr uint32_t infinity_bits<float> = 0x7F800000;
// The NaN of a domain error: negative, quiet.
template <class T>
inline constexpr bits_of<T> domain_nan = 0xFFF8000000000000;
template <>
inline constexpr uint32_t domain_nan<float> = 0xFFC00000;

template <class T>
ORK_INLINE bits_of<T> image(const T* x) {
  return as<bits_of<T>>(*x);
}
template <class T>
ORK_INLINE bits_of<T> magnitude(const T* x) {
  return image(x) & ~sign_bit<T>;
}
template <class T>
ORK_INLINE bits_of<T> sign(const T* x) {
  return image(x) & sign_bit<T>;
}

}  // namespace ork
