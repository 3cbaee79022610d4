#pragma once
// Rounding by a sum: x + integer_shifter is x to the nearest integer (by the rounding mode at
// hand), kept in the low bits; less the shifter it is that integer as a number. |x| < 2^51
// (single: 2^22, long double: 2^62). 1.5 times the power of two, so that negative numbers stay in
// its binade.
namespace ork {

template <class T>
inline constexpr T integer_shifter = 0x1.8p52;
template <>
inline constexpr float integer_shifter<float> = 0x1.8p23f;
template <>
inline constexpr long double integer_shifter<long double> = 0x1.8p63L;

}  // namespace ork
