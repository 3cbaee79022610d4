// R250, MCG59, MRG32K3A, WH: seeding edges, published numbers, properties of the WH table.
#include <numeric>
#include <set>

#include "rua/reference.hpp"

namespace {

class Congruential : public RuaTest {};

TEST_F(Congruential, SeedsAreMadeValid) {
  const uint32_t m1 = 4294967087, m2 = 4294944443;
  const struct {
    int32_t id;
    std::vector<uint32_t> seed, state;
  } cases[] = {
      {RUA_BRNG_MCG59, {}, {1, 0, 0x9B23C5FD, 0x11376}},
      {RUA_BRNG_MCG59, {0}, {1, 0}},
      {RUA_BRNG_MCG59, {0, 0x8000000}, {1, 0}},
      {RUA_BRNG_MCG59, {0, 0xFFFFFFFF}, {0, 0x7FFFFFF}},
      {RUA_BRNG_MCG59, {9, 0x8000001, 7}, {9, 1}},
      {RUA_BRNG_MRG32K3A, {}, {1, 1, 1, 1, 1, 1}},
      {RUA_BRNG_MRG32K3A, {7, 8}, {7, 8, 1, 1, 1, 1}},
      {RUA_BRNG_MRG32K3A, {0, 0, 0, 0, 0, 0}, {1, 0, 0, 1, 0, 0}},
      {RUA_BRNG_MRG32K3A, {0, 0, 0}, {1, 0, 0, 1, 1, 1}},
      {RUA_BRNG_MRG32K3A, {m1, m1, m1, 2, m2, m2, 99}, {1, 0, 0, 2, 0, 0}},
      {RUA_BRNG_MRG32K3A,
       {m1 + 5, 0xFFFFFFFF, 3, m2 - 1, 0xFFFFFFFF, 4},
       {5, 208, 3, m2 - 1, 22852, 4}},
      {RUA_BRNG_WH, {}, {1, 1, 1, 1, 125, 117, 127, 126}},
      {RUA_BRNG_WH, {16770647, 16770644, 5}, {1, 1, 5, 1, 125, 117, 127, 126}},
      {4, {0, 2, 0xFFFFFFFF, 16770617}, {1, 2, 0xFFFFFFFF % 16770623, 1, 125, 117, 127, 126}},
  };
  for (const auto& c : cases) {
    Stream s(c.id, c.seed);
    const uint32_t* words = s.state<uint32_t>();
    const size_t count = c.id == RUA_BRNG_MCG59 && !c.seed.empty() ? 2 : c.state.size();
    EXPECT_EQ(std::vector<uint32_t>(words, words + count), c.state)
        << testing::PrintToString(c.seed);
  }
  // One word counts, if there are not all 250.
  Stream one(RUA_BRNG_R250, {77}), most(RUA_BRNG_R250, std::vector<uint32_t>(249, 77));
  Stream zero(RUA_BRNG_R250, {0}), unit(RUA_BRNG_R250, {1});
  EXPECT_EQ(record(one), record(most));
  EXPECT_EQ(record(zero), record(unit));
}

// The first numbers of L'Ecuyer's generator from six words 12345, as he and others print them.
TEST_F(Congruential, MrgPublishedSequence) {
  const double published[] = {0.12701112204657714, 0.3185275653967945,  0.3091860155832701,
                              0.8258468629271136,  0.22161991578202229, 0.5333953879182788};
  Stream s(RUA_BRNG_MRG32K3A, std::vector<uint32_t>(6, 12345));
  const auto z = s.integers(6);
  for (int i : {0, 1, 2, 3, 5}) EXPECT_NEAR(z[i] / 4294967088.0, published[i], 1e-15) << i;
}

// The matrices of his streams package, by which sequences are cut in pieces of 2^76 and 2^127.
TEST_F(Congruential, MrgPublishedJumpMatrices) {
  const struct {
    uint32_t modulus, row[3];
    int log2;
    uint32_t first_row[3];  // oldest, middle, newest
  } cases[] = {{4294967087, {0, 1403580, 4294156359}, 76, {82758667, 1871391091, 4127413238}},
               {4294967087, {0, 1403580, 4294156359}, 127, {2427906178, 3580155704, 949770784}},
               {4294944443, {527612, 0, 4293573854}, 76, {1511326704, 3759209742, 1610795712}},
               {4294944443, {527612, 0, 4293573854}, 127, {1464411153, 277697599, 1610723613}}};
  for (const auto& c : cases) {
    // M^(2^63), column by column through the library; the rest by squaring.
    uint64_t m[3][3];
    for (int j = 0; j < 3; ++j) {
      uint32_t v[3] = {j == 0, j == 1, j == 2};
      __ruaiVect3PowMod(v, c.row, c.modulus, 0, 0x80000000);
      for (int i = 0; i < 3; ++i) m[i][j] = v[i];
    }
    for (int k = 63; k < c.log2; ++k) {
      uint64_t p[3][3] = {};
      for (int i = 0; i < 9; ++i)
        for (int l = 0; l < 3; ++l)
          p[i / 3][i % 3] = (p[i / 3][i % 3] + m[i / 3][l] * m[l][i % 3] % c.modulus) % c.modulus;
      std::memcpy(m, p, sizeof m);
    }
    for (int j = 0; j < 3; ++j) EXPECT_EQ(m[0][j], c.first_row[j]) << c.log2 << ' ' << j;
  }
}

TEST_F(Congruential, MrgZeroGivesTheLowerEnd) {
  Stream s(RUA_BRNG_MRG32K3A, {0, 0, 1, 0, 1, 0});  // x(1) = y(1) = 0
  double r = 7;
  ASSERT_EQ(__ruadBRngMRG32K3A(s, 1, &r, 0.1, 0.7), 0);
  EXPECT_EQ(r, 0.1);
}

// The lanes find quotients that may be 1 off; states at the ends of the ranges try them.
TEST_F(Congruential, MrgLanesAtTheEndsOfTheRanges) {
  const uint32_t m1 = 4294967087, m2 = 4294944443;
  const uint32_t xs[] = {0, 1, m1 - 2, m1 - 1}, ys[] = {0, 1, m2 - 2, m2 - 1};
  for (int i = 0; i < 64; ++i)
    for (int j = 0; j < 64; ++j) {
      const std::vector<uint32_t> seed = {xs[i % 4], xs[i / 4 % 4], xs[i / 16],
                                          ys[j % 4], ys[j / 4 % 4], ys[j / 16]};
      Stream s(RUA_BRNG_MRG32K3A, seed);
      auto source = reference::mrg32k3a(seed);
      for (uint32_t z : s.integers(60)) ASSERT_EQ(z, source()[0]) << i << ' ' << j;
    }
}

TEST_F(Congruential, PowersAgainstSquareAndMultiply) {
  for (uint64_t e : {uint64_t{0}, uint64_t{1}, uint64_t{2}, uint64_t{0xFFFFFFFF},
                     uint64_t{0x123456789ABCDEF}, ~uint64_t{0}}) {
    const uint32_t low = uint32_t(e), high = uint32_t(e >> 32);
    for (uint32_t m : {2u, 16770647u, 0xFFFFFFFFu, 4294967087u})
      EXPECT_EQ(__ruaiPowMod(0xDEADBEEF, low, high, m), reference::power(0xDEADBEEF, e, m));
    const uint64_t base = 0x7654321FEDCBA987 % (uint64_t{1} << 59);
    uint64_t expected = 1;
    for (int bit = 63; bit >= 0; --bit) {
      expected *= expected;
      if (e >> bit & 1) expected *= base;
    }
    EXPECT_EQ(__ruaiPowMod2P59(uint32_t(base), uint32_t(base >> 32), low, high),
              expected % (uint64_t{1} << 59));
  }
}

// After a long call the ring begins with the oldest word; two short calls leave it turned.
TEST_F(Congruential, R250StateAfterLongAndShortCalls) {
  for (int n : {250, 251, 300, 999, 1000}) {
    Stream s(RUA_BRNG_R250, {5});
    s.integers(33);
    const auto all = s.integers(n);
    const uint32_t* w = s.state<uint32_t>();
    EXPECT_EQ(std::vector<uint32_t>(w, w + 250), std::vector<uint32_t>(all.end() - 250, all.end()));
    EXPECT_EQ(w[250], 0u);
    EXPECT_EQ(w[251], 103u);
  }
  Stream s(RUA_BRNG_R250, {5});
  s.integers(100);
  s.integers(200);
  EXPECT_EQ(s.state<uint32_t>()[250], 50u);
  EXPECT_EQ(s.state<uint32_t>()[251], 153u);
}

bool prime(uint32_t n) {
  for (uint32_t d = 2; d * d <= n; ++d)
    if (n % d == 0) return false;
  return n > 1;
}

bool primitive_root(uint32_t a, uint32_t m) {
  uint32_t rest = m - 1;
  for (uint32_t d = 2; rest > 1; ++d) {
    if (d * d > rest) d = rest;
    if (rest % d != 0) continue;
    while (rest % d == 0) rest /= d;
    if (reference::power(a, (m - 1) / d, m) == 1) return false;
  }
  return true;
}

TEST_F(Congruential, WhTable) {
  std::set<uint32_t> seen;
  for (int k = 0; k < 273; ++k) {
    Stream s(RUA_BRNG_WH + k, {});
    const uint32_t* a = s.state<uint32_t>() + 4;
    const auto m = reference::wh_moduli(k);
    for (int p = 0; p < 4; ++p) {
      ASSERT_EQ(bits(_ruadWH_IM_Tab[k][p]), bits(1.0 / m[p])) << k;
      ASSERT_TRUE(m[p] >= 16718909 && m[p] <= 16776971 && prime(m[p])) << k << ' ' << m[p];
      ASSERT_TRUE(seen.insert(m[p]).second) << k << ' ' << m[p];
      ASSERT_TRUE(a[p] >= 112 && a[p] <= 127 && primitive_root(a[p], m[p])) << k << ' ' << m[p];
      for (int q = 0; q < p; ++q) ASSERT_EQ(std::gcd((m[p] - 1) / 2, (m[q] - 1) / 2), 1u) << k;
    }
  }
  EXPECT_EQ(reference::wh_moduli(0),
            (std::array<uint32_t, 4>{16770647, 16770643, 16770623, 16770617}));
  EXPECT_EQ(reference::wh_moduli(272),
            (std::array<uint32_t, 4>{16766363, 16766359, 16766327, 16766231}));
}

// All members by their vectors, also with the large multipliers that leapfrog leaves.
TEST_F(Congruential, WhMembers) {
  for (int k = 0; k < 273; k += k < 268 ? 4 : 1) {
    Stream s(RUA_BRNG_WH + k, {3, 1u << 31, 99, 16000000});
    const uint32_t* a = s.state<uint32_t>() + 4;
    auto source = reference::wh({3, 1u << 31, 99, 16000000}, k, {a[0], a[1], a[2], a[3]});
    const int stride = k % 5 + 1;
    ASSERT_EQ(__ruaLeapfrogStream(s, 0, stride), 0);
    const auto got = s.integers(64);
    for (int i = 0; i < 64; ++i) {
      const auto item = source();
      for (int p = 0; p < 4; ++p) ASSERT_EQ(got[4 * i + p], item[p]) << k << ' ' << i;
      for (int skipped = 1; skipped < stride; ++skipped) source();
    }
  }
}

TEST_F(Congruential, CopyStateLeavesTheMultiplierOfMcg59) {
  Stream from(RUA_BRNG_MCG59, {5}), to(RUA_BRNG_MCG59, {6});
  ASSERT_EQ(__ruaLeapfrogStream(from, 1, 3), 0);
  ASSERT_EQ(__ruaCopyStreamState(to, from), 0);
  const uint32_t *f = from.state<uint32_t>(), *t = to.state<uint32_t>();
  EXPECT_TRUE(f[0] == t[0] && f[1] == t[1]);
  EXPECT_EQ(t[2], 0x9B23C5FDu);
  EXPECT_NE(f[2], t[2]);
}

}  // namespace
