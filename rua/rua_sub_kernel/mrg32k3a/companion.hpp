// Recurrences of order 3 over integers below 2^32: next = row[0] newest + row[1] middle +
// row[2] oldest. State vectors are oldest first.
#pragma once
#include <array>
#include <cstdint>

namespace ork::rua {

using Row = std::array<uint32_t, 3>;

// v mod m for m = 2^32 - kGap: 2^32 is kGap, and for v below 2^48 two folds leave less than
// 2^32 + kGap.
template <uint32_t kGap>
constexpr uint32_t fold(uint64_t v) {
  constexpr uint32_t m = 0u - kGap;
  v = uint32_t(v) + uint64_t{kGap} * uint32_t(v >> 32);
  v = uint32_t(v) + uint64_t{kGap} * uint32_t(v >> 32);
  return uint32_t(v >= m ? v - m : v);
}

// row . (newest, middle, oldest) mod m: a first fold of each product makes room for the sum.
template <uint32_t kGap>
constexpr uint32_t dot(const Row& row, const uint32_t* vector) {
  uint64_t sum = 0;
  for (int i = 0; i < 3; ++i) {
    const uint64_t p = uint64_t{row[i]} * vector[2 - i];
    sum += uint32_t(p) + uint64_t{kGap} * uint32_t(p >> 32);
  }
  return fold<kGap>(sum);
}

// Element s of the sequence that starts with a vector is reach[s] . vector.
template <uint32_t kGap, int kCount>
constexpr std::array<Row, kCount> reach(const Row& row) {
  std::array<Row, kCount> table{};
  table[0] = {0, 0, 1};
  table[1] = {0, 1, 0};
  table[2] = {1, 0, 0};
  for (int s = 3; s < kCount; ++s)
    for (int i = 0; i < 3; ++i) {
      const uint32_t last[3] = {table[s - 3][i], table[s - 2][i], table[s - 1][i]};
      table[s][i] = dot<kGap>(row, last);
    }
  return table;
}

// vector <- M^exponent vector mod m, M the companion matrix of the row.
inline void companion_power(uint32_t* vector, const uint32_t* row, uint32_t m, uint64_t exponent) {
  using Matrix = std::array<std::array<uint32_t, 3>, 3>;
  const auto sum3 = [m](uint64_t a, uint64_t b, uint64_t c) {
    uint64_t sum = a % m + b % m;
    if (sum >= m) sum -= m;
    sum += c % m;
    return uint32_t(sum >= m ? sum - m : sum);
  };
  Matrix power = {{{0, 1, 0}, {0, 0, 1}, {row[2], row[1], row[0]}}};
  uint32_t v[3] = {vector[0], vector[1], vector[2]};
  for (; exponent != 0; exponent >>= 1) {
    if (exponent & 1) {
      uint32_t w[3];
      for (int i = 0; i < 3; ++i)
        w[i] = sum3(uint64_t{power[i][0]} * v[0], uint64_t{power[i][1]} * v[1],
                    uint64_t{power[i][2]} * v[2]);
      for (int i = 0; i < 3; ++i) v[i] = w[i];
    }
    const Matrix p = power;
    for (int i = 0; i < 3; ++i)
      for (int j = 0; j < 3; ++j)
        power[i][j] = sum3(uint64_t{p[i][0]} * p[0][j], uint64_t{p[i][1]} * p[1][j],
                           uint64_t{p[i][2]} * p[2][j]);
  }
  for (int i = 0; i < 3; ++i) vector[i] = v[i];
}

}  // namespace ork::rua
