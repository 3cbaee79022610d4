#pragma once
// Bit images of numbers, for comparisons that tell -0 from +0 and one NaN from another.
#include <bit>
#include <cstdint>

inline uint64_t bits(double x) { return std::bit_cast<uint64_t>(x); }
inline uint32_t bits(float x) { return std::bit_cast<uint32_t>(x); }
template <class T>
T from_bits(uint64_t image) {
  if constexpr (sizeof(T) == 8)
    return std::bit_cast<double>(image);
  else
    return std::bit_cast<float>(static_cast<uint32_t>(image));
}
