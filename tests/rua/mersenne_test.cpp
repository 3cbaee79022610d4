// MT19937, MT2203, SFMT19937: published outputs, places in the state, the MT2203 parameters.
#include <bitset>
#include <fstream>
#include <set>

#include "rua/reference.hpp"

namespace {

class Mersenne : public RuaTest {};

// The reference output of the authors for init_by_array {0x123, 0x234, 0x345, 0x456}.
TEST_F(Mersenne, Mt19937PublishedOutput) {
  Stream s(RUA_BRNG_MT19937, {0x123, 0x234, 0x345, 0x456});
  const auto z = s.integers(1000);
  const std::vector<uint32_t> first = {1067595299, 955945823,  477289528, 4107218783, 4228976476,
                                       3344332714, 3355579695, 227628506, 810200273,  2591290167};
  EXPECT_EQ(std::vector<uint32_t>(z.begin(), z.begin() + 10), first);
  EXPECT_EQ(z[999], 3460025646u);
}

TEST_F(Mersenne, Sfmt19937PublishedOutput) {
  std::ifstream in(ORK_SOURCE_DIR "/tests/data/sfmt19937.tsv");
  Stream s(RUA_BRNG_SFMT19937, {0x1234, 0x5678, 0x9abc, 0xdef0});
  const auto z = s.integers(1000);
  int checked = 0;
  for (std::string line; std::getline(in, line);) {
    unsigned index, word;
    if (std::sscanf(line.c_str(), "%u %u", &index, &word) != 2) continue;
    ASSERT_LT(index, z.size());
    ASSERT_EQ(z[index], word) << index;
    ++checked;
  }
  EXPECT_EQ(checked, 136);
}

TEST_F(Mersenne, NoKeyIsTheKeyOne) {
  for (int32_t id :
       {int32_t{RUA_BRNG_MT19937}, RUA_BRNG_MT2203 + 17, int32_t{RUA_BRNG_SFMT19937}}) {
    Stream none(id, {}), one(id, {1});
    EXPECT_EQ(record(none), record(one));
    EXPECT_EQ(properties(id).initStream(0, one, -5, nullptr), 0);
    EXPECT_EQ(record(none), record(one));
  }
}

TEST_F(Mersenne, PlacesBehindTheLastWord) {
  struct Sfmt {
    uint32_t words[624];
    int32_t index;
    uint32_t rest[3];
    int32_t next, end;
  };
  Stream mt(RUA_BRNG_MT19937, {4}), small(RUA_BRNG_MT2203, {4}), s(RUA_BRNG_SFMT19937, {4});
  EXPECT_EQ(mt.state<int32_t>()[624], 624);
  EXPECT_EQ(small.state<int32_t>()[69], 69);
  const struct {
    int draw, mt, small, index, next, end;
  } cases[] = {{1, 1, 1, 4, 0, 3},       {1, 2, 2, 4, 1, 3},     {2, 4, 4, 4, 3, 3},
               {2, 6, 6, 8, 0, 2},       {63, 69, 69, 72, 0, 3}, {3, 72, 3, 72, 3, 3},
               {552, 624, 3, 624, 3, 3}, {626, 2, 8, 4, 0, 2}};
  for (const auto& c : cases) {
    mt.integers(c.draw);
    small.integers(c.draw);
    s.integers(c.draw);
    EXPECT_EQ(mt.state<int32_t>()[624], c.mt);
    EXPECT_EQ(small.state<int32_t>()[69], c.small);
    EXPECT_EQ(s.state<Sfmt>()->index, c.index);
    EXPECT_EQ(s.state<Sfmt>()->next, c.next);
    EXPECT_EQ(s.state<Sfmt>()->end, c.end);
    for (int i = c.next; i < c.end; ++i)  // what is left of the block that was opened
      EXPECT_EQ(s.state<Sfmt>()->rest[i], s.state<Sfmt>()->words[c.index - c.end + i]);
  }
}

// The state words copied, not the parameters, and not the rest of an SFMT block.
TEST_F(Mersenne, CopyState) {
  Stream a(RUA_BRNG_MT2203 + 1, {4}), b(RUA_BRNG_MT2203 + 2, {5});
  const std::vector<uint32_t> own(b.state<uint32_t>() + 70, b.state<uint32_t>() + 73);
  a.integers(10);
  ASSERT_EQ(__ruaCopyStreamState(b, a), 0);
  EXPECT_EQ(std::memcmp(a.state<uint32_t>(), b.state<uint32_t>(), 280), 0);
  EXPECT_EQ(std::vector<uint32_t>(b.state<uint32_t>() + 70, b.state<uint32_t>() + 73), own);
  Stream c(RUA_BRNG_SFMT19937, {4}), d(RUA_BRNG_SFMT19937, {5});
  c.integers(9);
  ASSERT_EQ(__ruaCopyStreamState(d, c), 0);
  EXPECT_EQ(d.state<int32_t>()[624], 12);
  EXPECT_EQ(d.state<int32_t>()[629], 0);
}

struct Member {
  uint32_t a, b, c;
};

Member parameters(const Stream& s) {
  const uint32_t* w = s.state<uint32_t>() + 70;
  return {w[0], w[1], w[2]};
}

TEST_F(Mersenne, Mt2203Parameters) {
  std::set<uint32_t> twists;
  for (int k = 0; k < 6024; ++k) {
    const Member m = parameters(Stream(RUA_BRNG_MT2203 + k, {}));
    ASSERT_TRUE(twists.insert(m.a).second) << k;
    ASSERT_TRUE(m.a >> 31 && m.a & 1) << k;
    ASSERT_TRUE((m.b & 0x7F) == 0 && (m.c & 0x7FFF) == 0 && m.c != 0) << k;
  }
  const struct {
    int k;
    Member m;
  } given[] = {{0, {0xAF81055F, 0xDD7EEF80, 0xEFD78000}},
               {1, {0x832604E1, 0x66AD7F80, 0xEBD58000}},
               {6023, {0xE8761D4B, 0x72967680, 0xEFEB0000}}};
  for (const auto& g : given) {
    const Member m = parameters(Stream(RUA_BRNG_MT2203 + g.k, {}));
    EXPECT_TRUE(m.a == g.m.a && m.b == g.m.b && m.c == g.m.c) << g.k;
  }
}

constexpr int kP = 2203;
using Poly = std::bitset<2 * kP + 2>;  // coefficient of t^i in bit i

// The shortest recurrence that a row of bits obeys (Berlekamp, Massey), as 1 + c_1 t + ...; its
// reciprocal is the characteristic polynomial, if the length is that of the state.
Poly shortest_recurrence(const std::vector<bool>& s, int& length) {
  Poly c, b, reversed;  // reversed holds s[n], s[n - 1], ... from bit 0 on
  c[0] = b[0] = 1;
  length = 0;
  for (int n = 0, gap = 1; n < int(s.size()); ++n, ++gap) {
    reversed <<= 1;
    reversed[0] = s[n];
    if ((c & reversed).count() % 2 == 0) continue;
    const Poly before = c;
    c ^= b << gap;
    if (2 * length > n) continue;
    length = n + 1 - length;
    b = before;
    gap = 0;
  }
  return c;
}

// f of prime degree p without roots is irreducible when t^(2^p) = t modulo f.
bool irreducible(const Poly& f) {
  if (!f[0] || f.count() % 2 == 0) return false;
  Poly x;
  x[1] = 1;
  for (int i = 0; i < kP; ++i) {
    Poly square;
    for (int k = 0; k < kP; ++k)
      if (x[k]) square[2 * k] = 1;
    Poly shifted = f << (kP - 2);
    for (int k = 2 * kP - 2; k >= kP; --k, shifted >>= 1)
      if (square[k]) square ^= shifted;
    x = square;
  }
  Poly t;
  t[1] = 1;
  return x == t;
}

// The period of a sample of members, from their outputs alone.
TEST_F(Mersenne, Mt2203MembersHaveFullPeriod) {
  for (int k : {1, 2, 3011, 6022}) {
    Stream s(RUA_BRNG_MT2203 + k, {uint32_t(k)});
    std::vector<bool> top;
    for (uint32_t z : s.integers(2 * kP + 64)) top.push_back(z >> 31);
    int length = 0;
    const Poly c = shortest_recurrence(top, length);
    ASSERT_EQ(length, kP) << k;
    Poly f;
    for (int i = 0; i <= kP; ++i) f[i] = c[kP - i];
    EXPECT_TRUE(irreducible(f)) << k;
  }
}

// The leading v bits of n outputs are equidistributed when the states reach every combination of
// them: when their map from the 2203 state bits has rank n v.
TEST_F(Mersenne, Mt2203MembersAreEquidistributed) {
  for (int k : {0, 2, 1777, 6022})
    for (const auto& [v, n] : {std::pair{2, 1097}, {8, 271}, {16, 133}}) {
      Stream s(RUA_BRNG_MT2203 + k, {});
      std::vector<std::bitset<kP>> images;
      for (int bit = 0; bit < kP; ++bit) {
        uint32_t* mt = s.state<uint32_t>();
        std::fill(mt, mt + 69, 0u);
        mt[(bit + 5) / 32] = 1u << (bit + 5) % 32;  // the low five bits of mt[0] do not count
        mt[69] = 69;
        const auto z = s.integers(n);
        std::bitset<kP> image;
        for (int i = 0; i < n * v; ++i) image[i] = z[i / v] >> (31 - i % v) & 1;
        images.push_back(image);
      }
      int rank = 0;
      for (int column = 0; column < n * v; ++column) {
        int pivot = rank;
        while (pivot < kP && !images[pivot][column]) ++pivot;
        if (pivot == kP) continue;
        std::swap(images[rank], images[pivot]);
        for (int row = rank + 1; row < kP; ++row)
          if (images[row][column]) images[row] ^= images[rank];
        ++rank;
      }
      EXPECT_EQ(rank, n * v) << k << ' ' << v;
    }
}

}  // namespace
