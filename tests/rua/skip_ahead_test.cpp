// Skips by polynomials: products and powers over GF(2) against coefficient by coefficient, skips of
// a generator of the test's own, of MT19937 and SFMT19937 against numbers thrown away.
#include <random>

#include "ork/rua_skip_ahead.h"
#include "rua/stream_fixture.hpp"

namespace {

using Words = std::vector<uint64_t>;

class SkipAhead : public RuaTest {
 protected:
  std::mt19937_64 random_{5};
  Words some(int n) {
    Words w(n);
    for (uint64_t& word : w) word = random_();
    return w;
  }
};

bool bit(const Words& w, int k) { return w[k / 64] >> (k % 64) & 1; }

Words naive_product(const Words& a, const Words& b) {
  Words r(a.size() + b.size() + 1);
  for (int k = 0; k < int(a.size()) * 64; ++k) {
    if (!bit(a, k)) continue;
    for (size_t j = 0; j < b.size(); ++j) {
      r[k / 64 + j] ^= b[j] << (k % 64);
      r[k / 64 + j + 1] ^= k % 64 != 0 ? b[j] >> (64 - k % 64) : 0;
    }
  }
  r.pop_back();
  return r;
}

// The product in a block that is full before and has to be left alone behind.
template <class Call>
Words product_of(size_t words, size_t work_words, Call call) {
  Words product(words + 1, 0xABCD), work(work_words + 1, 0xABCD);
  call(product.data(), work.data());
  EXPECT_EQ(product.back(), 0xABCDu);
  EXPECT_EQ(work.back(), 0xABCDu);
  product.pop_back();
  return product;
}

TEST_F(SkipAhead, ProductsOfEqualLengths) {
  using Fixed = void(const uint64_t*, const uint64_t*, uint64_t*);
  const std::pair<int, Fixed*> fixed[] = {
      {2, poly_mul_kar_n2},   {3, poly_mul_kar_n3},   {4, poly_mul_kar_n4},
      {5, poly_mul_kar_n5},   {6, poly_mul_kar_n6},   {7, poly_mul_kar_n7},
      {9, poly_mul_kar_n9},   {11, poly_mul_kar_n11}, {13, poly_mul_kar_n13},
      {15, poly_mul_kar_n15}, {17, poly_mul_kar_n17}, {19, poly_mul_kar_n19}};
  std::vector<int> sizes = {157, 200, 312, 313, 500, 1001};
  for (int n = 1; n <= 130; ++n) sizes.push_back(n);
  for (int n : sizes)
    for (bool full : {false, true}) {
      const Words a = full ? Words(n, ~uint64_t{0}) : some(n), b = full ? a : some(n);
      const Words expected = naive_product(a, b);
      const size_t work = 8 * n + 256;
      const auto check = [&](const char* name, auto call) {
        ASSERT_EQ(product_of(2 * n, work, call), expected) << name << ' ' << n;
      };
      check("tc3", [&](uint64_t* p, uint64_t* w) { poly_mul_tc3(a.data(), b.data(), n, p, w); });
      check("kar", [&](uint64_t* p, uint64_t* w) { poly_mul_kar(a.data(), b.data(), n, p, w); });
      check("long", [&](uint64_t* p, uint64_t*) { poly_mul_long(a.data(), n, b.data(), n, p); });
      for (const auto& [size, multiply] : fixed)
        if (size == n)
          check("fixed", [&, f = multiply](uint64_t* p, uint64_t*) { f(a.data(), b.data(), p); });
      if (HasFatalFailure()) return;
    }
}

TEST_F(SkipAhead, ProductsOfUnequalLengths) {
  for (const auto& [wa, wb] : {std::pair{1, 2},
                               {2, 1},
                               {1, 130},
                               {7, 20},
                               {39, 40},
                               {41, 39},
                               {100, 3},
                               {64, 128},
                               {312, 313},
                               {700, 45}})
    for (int k : {0, 1, 63}) {
      const Words a = some(wa), b = some(wb);
      const Words expected = naive_product(a, b);
      const size_t work = 8 * std::max(wa, wb) + 256;
      const int da = 64 * wa - 1 - k, db = 64 * wb - 1 - k;  // the degrees name the words only
      ASSERT_EQ(
          product_of(wa + wb, work,
                     [&](uint64_t* p, uint64_t* w) { poly_mul(a.data(), da, b.data(), db, p, w); }),
          expected)
          << wa << ' ' << wb;
      ASSERT_EQ(product_of(wa + wb, 0,
                           [&, wa = wa, wb = wb](uint64_t* p, uint64_t*) {
                             poly_mul_long(a.data(), wa, b.data(), wb, p);
                           }),
                expected)
          << wa << ' ' << wb;
    }
}

TEST_F(SkipAhead, WordsOf128Bits) {
  for (int i = 0; i < 200; ++i) {
    const Words a = i == 0 ? Words(2, ~uint64_t{0}) : some(2), b = i == 0 ? a : some(2);
    const auto vector = [](const Words& w) { return _mm_set_epi64x(int64_t(w[1]), int64_t(w[0])); };
    Words r(2);
    const auto store = [&r](__m128i v) {
      _mm_storeu_si128(reinterpret_cast<__m128i*>(r.data()), v);
    };
    store(_rua_polyrem_clmulepi64_si128(vector(a), vector(b)));
    ASSERT_EQ(r, naive_product({a[0]}, {b[0]}));
    store(_rua_polyrem_xor_si128(vector(a), vector(b)));
    ASSERT_EQ(r, (Words{a[0] ^ b[0], a[1] ^ b[1]}));
  }
}

Words naive_remainder(Words p, const Words& modulus, int degree) {
  for (int k = int(p.size()) * 64 - 1; k >= degree; --k) {
    if (!bit(p, k)) continue;
    for (int i = 0; i <= degree; ++i)
      if (bit(modulus, i)) p[(k - degree + i) / 64] ^= uint64_t{1} << ((k - degree + i) % 64);
  }
  p.resize((degree + 63) / 64);
  return p;
}

// Moduli on both sides of words, of the number of terms that are folded, of the gap it needs.
TEST_F(SkipAhead, PowersOfX) {
  const struct {
    int degree, below, terms;  // exponents below the degree: 0, below - 1, some between
  } cases[] = {{2, 2, 2},        {3, 3, 1},       {31, 31, 10},      {32, 32, 3},
               {33, 33, 20},     {63, 60, 9},     {64, 64, 30},      {65, 65, 65},
               {127, 127, 4},    {512, 512, 300}, {512, 0, 0},       {520, 9, 3},
               {1000, 1000, 40}, {1100, 589, 30}, {1100, 590, 30},   {1024, 512, 60},
               {1056, 500, 1},   {700, 700, 600}, {1500, 1500, 700}, {1503, 1000, 800},
               {1536, 1500, 514}};
  for (const auto& c : cases) {
    SCOPED_TRACE(testing::Message() << c.degree << ", " << c.terms << " terms below " << c.below);
    Words modulus(c.degree / 64 + 1);
    std::vector<int32_t> exponents;
    if (c.below > 0) {
      for (int i = 1; i < c.below - 1; ++i) exponents.push_back(i);
      std::shuffle(exponents.begin(), exponents.end(), random_);
      exponents.resize(std::min(int(exponents.size()), std::max(c.terms - 2, 0)));
      exponents.push_back(0);
      if (c.below > 1) exponents.push_back(c.below - 1);
      std::sort(exponents.begin(), exponents.end());
    }
    exponents.push_back(c.degree);
    for (int e : exponents) modulus[e / 64] |= uint64_t{1} << (e % 64);
    const int words = (c.degree + 31) / 32;
    const auto power = [&](uint64_t n) {
      std::vector<uint32_t> r(words + 1, 77);
      EXPECT_EQ(__ruaPolyRem(n, c.degree, int(exponents.size()), exponents.data(), words, r.data()),
                0);
      EXPECT_EQ(r.back(), 77u);
      Words w((c.degree + 63) / 64);
      for (int i = 0; i < words; ++i) w[i / 2] |= uint64_t{r[i]} << (i % 2 * 32);
      return w;
    };
    Words x(modulus.size());  // x^n, by one factor after the other
    x[0] = 1;
    for (int n = 0; n <= 3 * c.degree + 5; ++n) {
      if (n % 7 == 0 || std::abs(n - c.degree) < 3 || std::abs(n - 2 * c.degree) < 3) {
        ASSERT_EQ(power(n), Words(x.begin(), x.begin() + (c.degree + 63) / 64)) << n;
      }
      for (size_t i = x.size(); i-- > 0;) x[i] = x[i] << 1 | (i > 0 ? x[i - 1] >> 63 : 0);
      if (bit(x, c.degree))
        for (size_t i = 0; i < x.size(); ++i) x[i] ^= modulus[i];
    }
    for (const auto& [a, b] : {std::pair{uint64_t{1} << 62, uint64_t{12345}},
                               {uint64_t{987654321}, uint64_t{123456789012345}},
                               {~uint64_t{0} / 3, ~uint64_t{0} / 2}})
      ASSERT_EQ(power(a + b),
                naive_remainder(naive_product(power(a), power(b)), modulus, c.degree));
    Words dense(modulus.size());
    dense.back() = 7;
    ASSERT_EQ(x_pow_nskip_mod_cpoly(999999999, c.degree, modulus.data(), dense.data()), 0);
    const size_t used = (c.degree + 63) / 64;
    EXPECT_EQ(Words(dense.begin(), dense.begin() + used), power(999999999));
    if (used < dense.size()) {
      EXPECT_EQ(dense.back(), 7u);
    }
  }
}

// A feedback register of 89 bits, x^89 + x^38 + 1, in blocks of ten numbers: a record of its own.
struct Register {
  RuaStream head;
  uint32_t past[89];  // the oldest first, a bit each
  int32_t place;      // in the block, 10: used up
};
Register& of(RuaStream* s) { return *reinterpret_cast<Register*>(s); }
const Register& of(const RuaStream* s) { return *reinterpret_cast<const Register*>(s); }

struct Steps {
  static void zero(RuaStream* s) { std::fill(of(s).past, of(s).past + 89, 0u); }
  static void add(RuaStream* s, const RuaStream* t) {
    for (int i = 0; i < 89; ++i) of(s).past[i] ^= of(t).past[i];
  }
  static void copy(RuaStream* s, const RuaStream* t) {
    std::copy(of(t).past, of(t).past + 89, of(s).past);
  }
  static void update(RuaStream* s) {
    uint32_t* p = of(s).past;
    const uint32_t next = p[0] ^ p[38];
    std::copy(p + 1, p + 89, p);
    p[88] = next;
  }
  static void finish(RuaStream* stream, const RuaStream* s, int32_t flag) {
    copy(stream, s);
    of(stream).place = flag;
  }
  // Steps of ten numbers; `flag` is the place in the last of them.
  static int32_t process(RuaStream* stream, uint64_t* nskip, int32_t* flag) {
    const uint64_t end = of(stream).place + *nskip;
    if (end <= 10) {
      of(stream).place = int32_t(end);
      return 0;
    }
    of(stream).place = 10;
    *nskip = (end - 1) / 10;
    *flag = int32_t((end - 1) % 10 + 1);
    return 1;
  }
};

TEST_F(SkipAhead, BothSchemesOnARegister) {
  const int32_t exponents[] = {0, 38, 89};
  for (const auto scheme : {__rua_SkipAheadHorner, __rua_SkipAheadSWin}) {
    for (int place : {0, 3, 10}) {
      Register start{}, stepped;
      for (int i = 0; i < 89; ++i) start.past[i] = i % 5 == 0;
      start.place = place;
      stepped = start;
      for (int n = 0; n < 9000; ++n) {
        Register s = start;
        ASSERT_EQ(scheme(&s.head, Steps::zero, Steps::add, Steps::copy, Steps::update,
                         Steps::finish, Steps::process, n, 3, 89, sizeof s, 3, exponents),
                  0);
        ASSERT_EQ(std::memcmp(&s, &stepped, sizeof s), 0) << n << " from " << place;
        if (++stepped.place == 11) {
          Steps::update(&stepped.head);
          stepped.place = 1;
        }
      }
      const int allocations = blocks::fail_each([&] {
        Register s = start;
        const int32_t status =
            scheme(&s.head, Steps::zero, Steps::add, Steps::copy, Steps::update, Steps::finish,
                   Steps::process, 1000000007, 3, 89, sizeof s, 3, exponents);
        EXPECT_EQ(status, blocks::failed() ? RUA_STATUS_NO_MEMORY : 0);
        EXPECT_EQ(std::memcmp(&s, &start, sizeof s) == 0, blocks::failed());
      });
      EXPECT_GE(allocations, 4);
    }
  }
}

// Within blocks and beyond, from all places, against numbers thrown away.
TEST_F(SkipAhead, CommutesWithGeneration) {
  for (int32_t id : {RUA_BRNG_MT19937, RUA_BRNG_SFMT19937})
    for (int before : {0, 1, 2, 3, 4, 621, 624, 1000})
      for (int skip : {0, 1, 2, 3, 5, 620, 623, 624, 625, 2500, 19936, 19937, 19938, 79872, 1000000,
                       (1 << 20) - 1, 1 << 20, (1 << 20) + 701, 10000000}) {
        if (before > 4 && skip > 100000) continue;
        Stream skipped(id, {77, 78}), drawn(id, {77, 78});
        skipped.integers(before);
        for (int left = before + skip; left > 0; left -= 1 << 20)
          drawn.integers(std::min(left, 1 << 20));
        const auto at = record(skipped);
        ASSERT_EQ(__ruaSkipAheadStream(skipped, skip), 0);
        if (skip == 0) {
          ASSERT_EQ(record(skipped), at);
        }
        ASSERT_EQ(skipped.integers(5), drawn.integers(5)) << before << ' ' << skip;
        ASSERT_EQ(skipped.integers(2000), drawn.integers(2000)) << before << ' ' << skip;
      }
}

TEST_F(SkipAhead, LongSkipsAdd) {
  const int64_t million = 1000000, long_one = (int64_t{1} << 62) + 12345;
  for (int32_t id : {RUA_BRNG_MT19937, RUA_BRNG_SFMT19937})
    for (int before : {0, 2, 627}) {
      Stream once(id, {77}), parts(id, {77});
      once.integers(before);
      parts.integers(before);
      // A thousand skips that are made step by step.
      for (int i = 0; before == 2 && i < 1000; ++i)
        ASSERT_EQ(__ruaSkipAheadStream(parts, million), 0);
      if (before == 2) {
        ASSERT_EQ(__ruaSkipAheadStream(once, 1000 * million), 0);
      }
      ASSERT_EQ(once.integers(1999), parts.integers(1999));
      ASSERT_EQ(__ruaSkipAheadStream(once, long_one), 0);
      for (int64_t part : {int64_t{1} << 61, (int64_t{1} << 61) - (int64_t{1} << 33) + 12340,
                           int64_t{1} << 33, int64_t{5}})
        ASSERT_EQ(__ruaSkipAheadStream(parts, part), 0);
      ASSERT_EQ(once.integers(2000), parts.integers(2000));
    }
}

TEST_F(SkipAhead, FailuresLoseNothing) {
  for (int32_t id : {RUA_BRNG_MT19937, RUA_BRNG_SFMT19937}) {
    Stream s(id, {77});
    s.integers(5);
    const auto before = record(s);
    EXPECT_EQ(__ruaSkipAheadStream(s, -1), RUA_STATUS_NO_SKIPAHEAD);
    EXPECT_EQ(record(s), before);
    Stream expected;
    ASSERT_EQ(__ruaCopyStream(expected.slot(), s), 0);
    ASSERT_EQ(__ruaSkipAheadStream(expected, int64_t{1} << 40), 0);
    const int live = blocks::live();
    const int allocations = blocks::fail_each([&] {
      const int32_t status = __ruaSkipAheadStream(s, int64_t{1} << 40);
      EXPECT_EQ(status, blocks::failed() ? RUA_STATUS_NO_MEMORY : 0);
      EXPECT_EQ(record(s) == before, blocks::failed());
      EXPECT_EQ(blocks::live(), live);
    });
    EXPECT_GE(allocations, 7);
    EXPECT_EQ(s.integers(2000), expected.integers(2000));
    // Short skips need no memory.
    blocks::None none;
    EXPECT_EQ(__ruaSkipAheadStream(s, 900000), 0);
  }
}

}  // namespace
