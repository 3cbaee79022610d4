#pragma once
// The generators as plain recurrences, one number at a time, by division where the library folds.
#include <array>
#include <deque>
#include <functional>
#include <memory>

#include "rua/stream_fixture.hpp"
#include "support/bits.hpp"

namespace reference {

using Item = std::array<uint32_t, 4>;  // the words of an integer item, as many as there are
using Source = std::function<Item()>;

inline uint64_t power(uint64_t base, uint64_t exponent, uint64_t m) {
  uint64_t r = 1;
  for (int bit = 63; bit >= 0; --bit) {
    r = r * r % m;
    if (exponent >> bit & 1) r = r * (base % m) % m;
  }
  return r;
}

inline Source mcg59(const std::vector<uint32_t>& seed) {
  uint64_t x =
      seed.empty() ? 1 : seed[0] | uint64_t{seed.size() > 1 ? seed[1] & 0x7FFFFFF : 0} << 32;
  if (x == 0) x = 1;
  return [x]() mutable {
    const Item item = {uint32_t(x), uint32_t(x >> 32)};
    x = x * 302875106592253 % (uint64_t{1} << 59);
    return item;
  };
}

struct Mrg {
  static constexpr int64_t m1 = 4294967087, m2 = 4294944443;
  int64_t x[3], y[3];

  uint32_t next() {
    const int64_t u = ((1403580 * x[1] - 810728 * x[0]) % m1 + m1) % m1;
    const int64_t v = ((527612 * y[2] - 1370589 * y[0]) % m2 + m2) % m2;
    *this = {{x[1], x[2], u}, {y[1], y[2], v}};
    return uint32_t(((u - v) % m1 + m1) % m1);
  }
};

inline Source mrg32k3a(const std::vector<uint32_t>& seed) {
  Mrg g{{1, 1, 1}, {1, 1, 1}};
  for (size_t i = 0; i < seed.size() && i < 6; ++i)
    (i < 3 ? g.x[i] : g.y[i - 3]) = seed[i] % (i < 3 ? Mrg::m1 : Mrg::m2);
  if (!g.x[0] && !g.x[1] && !g.x[2]) g.x[0] = 1;
  if (!g.y[0] && !g.y[1] && !g.y[2]) g.y[0] = 1;
  return [g]() mutable { return Item{g.next()}; };
}

inline Source r250(const std::vector<uint32_t>& seed) {
  std::deque<uint32_t> w(seed.begin(), seed.end());
  if (w.size() < 250) {
    uint64_t x = w.empty() || w[0] == 0 ? 1 : w[0];
    w.resize(250);
    for (auto& word : w) word = uint32_t(x = x * 69069 % (uint64_t{1} << 32));
    for (int b = 0; b < 32; ++b)
      w[3 + 7 * b] = uint32_t((w[3 + 7 * b] | uint64_t{1} << (31 - b)) % (uint64_t{1} << (32 - b)));
  }
  w.resize(250);
  return [w]() mutable {
    w.push_back(w[0] ^ w[103]);
    w.pop_front();
    return Item{w.back()};
  };
}

// The moduli of member k, out of the table of their reciprocals.
inline std::array<uint32_t, 4> wh_moduli(int k) {
  std::array<uint32_t, 4> m;
  for (int p = 0; p < 4; ++p) m[p] = uint32_t(std::lround(1 / _ruadWH_IM_Tab[k][p]));
  return m;
}

inline Source wh(const std::vector<uint32_t>& seed, int member, std::array<uint32_t, 4> a) {
  const auto m = wh_moduli(member);
  Item x;
  for (size_t p = 0; p < 4; ++p) {
    x[p] = p < seed.size() ? seed[p] % m[p] : 1;
    if (x[p] == 0) x[p] = 1;
  }
  return [x, m, a]() mutable {
    const Item item = x;
    for (int p = 0; p < 4; ++p) x[p] = uint32_t(uint64_t{a[p]} * x[p] % m[p]);
    return item;
  };
}

struct Twister {
  uint32_t n, m, lower, a, shift, b, c;
};

// Word k + n from words k, k + 1 and k + m, in one endless row.
inline Source twister(const Twister& t, const std::vector<uint32_t>& seed) {
  std::vector<uint32_t> mt(t.n);
  const std::vector<uint32_t> key = seed.empty() ? std::vector<uint32_t>{1} : seed;
  mt[0] = 19650218;
  for (uint32_t i = 1; i < t.n; ++i) mt[i] = 1812433253 * (mt[i - 1] ^ mt[i - 1] >> 30) + i;
  uint32_t i = 1;
  for (uint32_t k = 0; k < std::max<uint32_t>(t.n, key.size()); ++k) {
    const uint32_t j = k % key.size();
    mt[i] = (mt[i] ^ (mt[i - 1] ^ mt[i - 1] >> 30) * 1664525) + key[j] + j;
    if (++i >= t.n) mt[0] = mt[t.n - 1], i = 1;
  }
  for (uint32_t k = 1; k < t.n; ++k) {
    mt[i] = (mt[i] ^ (mt[i - 1] ^ mt[i - 1] >> 30) * 1566083941) - i;
    if (++i >= t.n) mt[0] = mt[t.n - 1], i = 1;
  }
  mt[0] = 0x80000000;
  std::deque<uint32_t> row(mt.begin(), mt.end());
  return [t, row]() mutable {
    const uint32_t y = (row[0] & ~t.lower) | (row[1] & t.lower);
    row.push_back(row[t.m] ^ y / 2 ^ (y % 2 ? t.a : 0));
    row.pop_front();
    uint32_t z = row.back();
    z ^= z >> t.shift;
    z ^= z << 7 & t.b;
    z ^= z << 15 & t.c;
    return Item{z ^ z >> 18};
  };
}

inline Source sfmt19937(const std::vector<uint32_t>& seed) {
  const std::vector<uint32_t> key = seed.empty() ? std::vector<uint32_t>{1} : seed;
  std::vector<uint32_t> w(624, 0x8B8B8B8B);
  const auto f1 = [](uint32_t v) { return (v ^ v >> 27) * 1664525; };
  const auto f2 = [](uint32_t v) { return (v ^ v >> 27) * 1566083941; };
  uint32_t r = f1(w[0] ^ w[306] ^ w[623]);
  w[306] += r;
  r += uint32_t(key.size());
  w[317] += r;
  w[0] = r;
  uint32_t i = 1;
  for (size_t j = 0; j < std::max<size_t>(key.size(), 623); ++j, i = (i + 1) % 624) {
    r = f1(w[i] ^ w[(i + 306) % 624] ^ w[(i + 623) % 624]);
    w[(i + 306) % 624] += r;
    r += (j < key.size() ? key[j] : 0) + i;
    w[(i + 317) % 624] += r;
    w[i] = r;
  }
  for (int j = 0; j < 624; ++j, i = (i + 1) % 624) {
    r = f2(w[i] + w[(i + 306) % 624] + w[(i + 623) % 624]);
    w[(i + 306) % 624] ^= r;
    r -= i;
    w[(i + 317) % 624] ^= r;
    w[i] = r;
  }
  if (__builtin_popcount(w[0] & 1) % 2 == __builtin_popcount(w[3] & 0x13C9E684) % 2) w[0] ^= 1;
  std::deque<uint32_t> row(w.begin(), w.end());
  return [row, at = 4]() mutable {
    if (at == 4) {  // the next 128 bits, byte by byte where they shift as a whole
      const uint32_t mask[] = {0xDFFFFFEF, 0xDDFECB7F, 0xBFFAFFFF, 0xBFFFFFF6};
      Item z;
      for (int k = 0; k < 4; ++k) {
        const uint32_t a = row[k], c = row[616 + k];
        const uint32_t a_shifted = a << 8 | (k > 0 ? row[k - 1] >> 24 : 0);
        const uint32_t c_shifted = c >> 8 | (k < 3 ? row[616 + k + 1] << 24 : 0);
        z[k] = a ^ a_shifted ^ (row[488 + k] >> 11 & mask[k]) ^ c_shifted ^ row[620 + k] << 18;
      }
      for (uint32_t word : z) row.pop_front(), row.push_back(word);
      at = 0;
    }
    return Item{row[620 + at++]};
  };
}

// A generator under test: its recurrence and how its items become real numbers.
struct Generator {
  const char* name;
  int32_t id;
  std::function<Source(const std::vector<uint32_t>&)> source;
  std::function<double(const Item&, double, double)> real_double;
  std::function<float(const Item&, float, float)> real_float;
};

// z t + a with t = (b - a) c, for items that are one word.
inline Generator of_words(const char* name, int32_t id, double c,
                          std::function<Source(const std::vector<uint32_t>&)> source) {
  const auto real = [c](const Item& z, double a, double b) { return z[0] * ((b - a) * c) + a; };
  return {name, id, source, real,
          [real](const Item& z, float a, float b) { return float(real(z, a, b)); }};
}

inline Generator wh_member(int k, std::array<uint32_t, 4> a) {
  const auto real = [m = wh_moduli(k)](const Item& x, double lower, double upper) {
    double s = 0;
    for (int p = 0; p < 4; ++p) {  // 1/m rounded towards zero: found by trying the one below
      double below = 1.0 / m[p];
      if (__float128(below) * m[p] > 1) below = std::nextafter(below, 0);
      s = p == 0 ? x[p] * below : s + x[p] * below;
    }
    EXPECT_LT(s, 4);
    return (s - std::floor(s)) * (upper - lower) + lower;
  };
  return {"WH", RUA_BRNG_WH + k,
          [k, a](const std::vector<uint32_t>& seed) { return wh(seed, k, a); }, real,
          [real](const Item& z, float l, float u) { return float(real(z, l, u)); }};
}

inline Generator mt2203(int k, uint32_t a, uint32_t b, uint32_t c) {
  return of_words("MT2203", RUA_BRNG_MT2203 + k, 0x1p-32, [=](const std::vector<uint32_t>& seed) {
    return twister({69, 34, 0x1F, a, 12, b, c}, seed);
  });
}

inline std::vector<Generator> generators() {
  const double step59 = 0x1p-59;
  const auto low = [](const Item& z) { return double(z[0]); };
  const auto high = [](const Item& z) { return z[1] * 0x1p32; };
  return {
      of_words("R250", RUA_BRNG_R250, 0x1p-32, r250),
      of_words("MRG32K3A", RUA_BRNG_MRG32K3A, from_bits<double>(0x3DF000000D10000B), mrg32k3a),
      {"MCG59", RUA_BRNG_MCG59, mcg59,
       [=](const Item& z, double a, double b) {
         const double t = (b - a) * step59;
         return low(z) * t + high(z) * t + a;
       },
       [=](const Item& z, float a, float b) {
         return float((low(z) + high(z)) * ((double(b) - double(a)) * step59) + double(a));
       }},
      wh_member(0, {125, 117, 127, 126}),
      of_words(
          "MT19937", RUA_BRNG_MT19937, 0x1p-32,
          [](const std::vector<uint32_t>& seed) {
            return twister({624, 397, 0x7FFFFFFF, 0x9908B0DF, 11, 0x9D2C5680, 0xEFC60000}, seed);
          }),
      mt2203(0, 0xAF81055F, 0xDD7EEF80, 0xEFD78000),
      mt2203(6023, 0xE8761D4B, 0x72967680, 0xEFEB0000),
      {"SFMT19937", RUA_BRNG_SFMT19937, sfmt19937,
       [](const Item& z, double a, double b) {
         return int32_t(z[0]) * ((b - a) * 0x1p-32) + (a + b) * 0.5;
       },
       [](const Item& z, float a, float b) {
         const float t = float((double(b) - double(a)) * 0x1p-32);
         const float c = float((double(a) + double(b)) * 0.5);
         const float product = float(int32_t(z[0])) * t;
         return product + c;
       }},
  };
}

}  // namespace reference
