// Sobol's and Niederreiter's sequences: points from the definition, their distribution, selection,
// skips, parameter blocks, tables in chunks.
#include <unistd.h>

#include <bitset>
#include <fstream>
#include <random>
#include <sstream>

#include "rua/stream_fixture.hpp"
#include "support/bits.hpp"
#include "support/memory.hpp"

namespace {

using Words = std::vector<uint32_t>;
using Numbers = std::array<uint32_t, 32>;  // direction numbers of a component

int degree(uint32_t p) { return 31 - __builtin_clz(p); }

// As binary fractions: v[i] = m[i] / 2^(i + 1), and each one is a sum of earlier ones.
Numbers sobol_numbers(uint32_t p, const Words& m) {
  Numbers v;
  const int e = degree(p);
  for (int i = 0; i < 32; ++i) {
    v[i] = i < e ? m[i] << (31 - i) : v[i - e] >> e;
    for (int t = 0; i >= e && t < e; ++t)
      if (p >> t & 1) v[i] ^= v[i - e + t];
  }
  return v;
}

Numbers first_sobol_numbers() {
  Numbers v;
  for (int i = 0; i < 32; ++i) v[i] = 0x80000000u >> i;
  return v;
}

// Laurent series n(x) / p(x)^q by long division. The numerator is the one whose series begins with
// deg p^(q-1) zeros and then ones, up to x^-(deg p^q).
Numbers niederreiter_numbers(uint32_t p) {
  using Poly = std::bitset<160>;
  const int e = degree(p);
  Numbers v{};
  Poly b(1);
  for (int row = 0, low = 0; row < 32; low += e) {
    Poly product;
    for (int k = 0; k <= e; ++k)
      if (p >> k & 1) product ^= b << k;
    b = product;
    const int q = low + e;
    Poly head;  // of the series, x^-1 in bit q - 1
    for (int t = low; t < q; ++t) head[q - 1 - t] = 1;
    Poly rest;  // numerator: the part of b * head without powers below x^0
    for (int k = 0; k <= q; ++k)
      if (b[k]) rest ^= head << k;
    rest >>= q;
    std::bitset<80> series;
    for (int t = 0; t < 80; ++t) {
      rest <<= 1;
      series[t] = rest[q];
      if (rest[q]) rest ^= b;
    }
    for (int k = 0; k < e && row < 32; ++k, ++row)
      for (int i = 0; i < 32; ++i) v[i] |= uint32_t(series[k + i]) << (31 - row);
  }
  return v;
}

bool is_irreducible(uint32_t p) {
  for (uint32_t q = 2; 2 * degree(q) <= degree(p); ++q) {
    uint32_t rest = p;
    while (rest != 0 && degree(rest) >= degree(q)) rest ^= q << (degree(rest) - degree(q));
    if (rest == 0) return false;
  }
  return true;
}

struct Sequence {
  int32_t id;
  std::vector<Numbers> v;
  std::vector<int> degrees;
  int d() const { return int(v.size()); }
  // Component j of the point with this number.
  uint32_t value(uint32_t number, int j) const {
    uint32_t x = 0;
    for (int i = 0; i < 32; ++i)
      if ((number ^ number >> 1) >> i & 1) x ^= v[j][i];
    return x;
  }
  // Element k of the stream.
  uint32_t operator[](uint64_t k) const { return value(uint32_t(1 + k / d()), int(k % d())); }
  Sequence first(int d) const { return {id, {v.begin(), v.begin() + d}, degrees}; }
};

struct Table {
  Words polynomials;
  std::vector<Words> initial;
};
// Components 1 to 39.
const Table& sobol_table() {
  static const Table table = [] {
    Table t;
    std::ifstream in(ORK_SOURCE_DIR "/tests/data/sobol_40_dimensions.tsv");
    for (std::string line; std::getline(in, line);) {
      if (line[0] == '#') continue;
      std::replace(line.begin(), line.end(), ',', ' ');
      std::istringstream words(line);
      uint32_t dimension, polynomial, e;
      words >> dimension >> polynomial >> e;
      t.polynomials.push_back(polynomial);
      t.initial.emplace_back();
      for (uint32_t m; words >> m;) t.initial.back().push_back(m);
    }
    return t;
  }();
  return table;
}

const Sequence& sobol() {
  static const Sequence sequence = [] {
    const Table& t = sobol_table();
    Sequence s{RUA_BRNG_SOBOL, {first_sobol_numbers()}, {1}};
    for (size_t j = 0; j < t.polynomials.size(); ++j) {
      s.v.push_back(sobol_numbers(t.polynomials[j], t.initial[j]));
      s.degrees.push_back(degree(t.polynomials[j]));
    }
    return s;
  }();
  return sequence;
}

const Sequence& niederreiter() {
  static const Sequence sequence = [] {
    Sequence s{RUA_BRNG_NIEDERR, {}, {}};
    for (uint32_t p = 2; s.d() < 318; ++p)
      if (is_irreducible(p)) {
        s.v.push_back(niederreiter_numbers(p));
        s.degrees.push_back(degree(p));
      }
    return s;
  }();
  return sequence;
}

// Direction numbers of the caller's own: random ones do, where only their use counts.
Sequence random_numbers(int32_t id, int d) {
  Sequence s{id, std::vector<Numbers>(d), {}};
  std::mt19937 random(d);
  for (Numbers& row : s.v)
    for (uint32_t& word : row) word = random();
  return s;
}

// The parameter block that hands all direction numbers over.
Words block_of(const Sequence& s) {
  Words block = {uint32_t(s.d()), 1, 4};
  for (const Numbers& row : s.v) block.insert(block.end(), row.begin(), row.end());
  return block;
}

struct Position {
  uint32_t counter;
  int32_t dimension;
  uint32_t selected;
  int32_t pending;
};
Position position(const Stream& s) { return *s.state<Position>(); }

// All ways to hold tables: built in, of the caller in the state, in chunks, for dimensions on both
// sides of whole vectors and of the forms for few components.
struct Case {
  Sequence sequence;
  Words block;
};
std::vector<Case> cases() {
  std::vector<Case> all;
  for (uint32_t d : {1, 2, 3, 4, 5, 8, 9, 12, 13, 16, 17, 39, 40})
    all.push_back({sobol().first(int(d)), {d}});
  for (uint32_t d : {1, 2, 3, 4, 7, 33, 318}) all.push_back({niederreiter().first(int(d)), {d}});
  for (int d : {3, 40, 41, 63, 64, 90}) {
    const Sequence s = random_numbers(RUA_BRNG_SOBOL, d);
    all.push_back({s, block_of(s)});
  }
  for (int d : {3, 318, 319, 330}) {
    const Sequence s = random_numbers(RUA_BRNG_NIEDERR, d);
    all.push_back({s, block_of(s)});
  }
  return all;
}

class QuasiRandom : public RuaTest {};

void expect_elements(const Stream& s, const Sequence& sequence, uint64_t first, int n) {
  const Words got = s.integers(n);
  for (int i = 0; i < n; ++i) ASSERT_EQ(got[i], sequence[first + i]) << first << " + " << i;
}

TEST_F(QuasiRandom, PointsAreThoseOfTheDefinition) {
  for (const Sequence* s : {&sobol(), &niederreiter()})
    expect_elements(Stream(s->id, {uint32_t(s->d())}), *s, 0, (1 << 14) * s->d());
  // The ids of the older table.
  expect_elements(Stream(277, {7}), sobol().first(7), 0, 1000);
  expect_elements(Stream(278, {7}), niederreiter().first(7), 0, 1000);
  EXPECT_EQ(Stream(RUA_BRNG_SOBOL, {1}).integers(3), (Words{0x80000000, 0xC0000000, 0x40000000}));
  EXPECT_EQ(niederreiter().v[0], first_sobol_numbers());
}

// 2^m points, the one of zeros included, put 2^t of them into each box of volume 2^(t - m) whose
// sides are powers of two: t is the sum of (degree - 1) over the components.
TEST_F(QuasiRandom, ElementaryIntervalsHoldEqualShares) {
  for (const Sequence* s : {&sobol(), &niederreiter()})
    for (int m : {10, 14}) {
      const int d = s->d();
      const Words got = Stream(s->id, {uint32_t(d)}).integers(((1 << m) - 1) * d);
      int pairs = 0;
      for (int j = 0; j + 1 < d; ++j) {
        const int t = s->degrees[j] + s->degrees[j + 1] - 2;
        for (int left = 0; left <= m - t; ++left) {
          const int right = m - t - left;
          Words count(size_t(1) << (m - t));
          ++count[0];
          for (int i = 0; i + 1 < 1 << m; ++i) {
            const uint64_t x = got[size_t(i) * d + j], y = got[size_t(i) * d + j + 1];
            ++count[(x >> (32 - left)) << right | y >> (32 - right)];
          }
          for (uint32_t c : count) ASSERT_EQ(c, 1u << t) << s->id << ": " << j << ' ' << left;
          pairs += left == 0;
        }
      }
      EXPECT_GE(pairs, m == 10 ? 11 : 34);
    }
}

// Calls of all forms and sizes in one stream, arrays that end before an inaccessible page.
TEST_F(QuasiRandom, CallsInPiecesAndForms) {
  GuardedPages pages(80000);
  std::minstd_rand random(5);
  for (const Case& c : cases()) {
    const int d = c.sequence.d();
    const RuaBrngProperties row = properties(c.sequence.id);
    Stream s(c.sequence.id, c.block);
    uint64_t at = 0;
    for (int call = 0; call < 150; ++call) {
      const int sizes[] = {1, 2, 3, d, d + 1, d > 1 ? d - 1 : 1, 2 * d, int(random() % 1400 + 1)};
      const int n = sizes[random() % std::size(sizes)], gap = 4 * int(random() % 4);
      SCOPED_TRACE(testing::Message() << std::hex << s->brng << std::dec << ", d = " << d
                                      << ", call " << call << " of " << n);
      const auto expect = [&](auto* r, auto value) {
        for (int i = 0; i < n; ++i) ASSERT_EQ(bits(r[i]), bits(value(c.sequence[at + i]))) << i;
      };
      constexpr float bounds[][2] = {{-0.1f, 1e7f}, {0, 1}, {-1, 1}};
      const auto [a, b] = bounds[call % 3];
      const int form = int(random() % 3);
      if (form == 0) {
        uint32_t* r = pages.at_end<uint32_t>(n, gap);
        r[-1] = 7;
        ASSERT_EQ(row.iGenerate(s, n, r), 0);
        for (int i = 0; i < n; ++i) ASSERT_EQ(r[i], c.sequence[at + i]) << i;
        ASSERT_EQ(r[-1], 7u);
      } else if (form == 1) {
        double* r = pages.at_end<double>(n, gap);
        ASSERT_EQ(row.dGenerate(s, n, r, a, b), 0);
        const double t = (double(b) - double(a)) * 0x1p-32;
        expect(r, [&, a = a](uint32_t z) { return z * t + double(a); });
      } else {
        float* r = pages.at_end<float>(n, gap);
        ASSERT_EQ(row.sGenerate(s, n, r, a, b), 0);
        const float range = b - a, t = range * 0x1p-32f;
        expect(r, [&, a = a](uint32_t z) {
          float word = float(int32_t(z));
          if (int32_t(z) < 0) word += 4294967296.0f;
          const float product = word * t;
          return product + a;
        });
      }
      if (HasFatalFailure()) return;
      at += n;
      const int left = int(at % d);
      ASSERT_EQ(position(s).counter, 1 + at / d);
      ASSERT_EQ(position(s).pending, left == 0 ? 0 : d - left);
    }
  }
}

TEST_F(QuasiRandom, SkipsAreThoseOfTheDefinition) {
  for (const Case& c : cases()) {
    const uint64_t d = c.sequence.d();
    for (uint64_t drawn : {uint64_t{0}, uint64_t{1}, d - 1, d, 5 * d + d / 2}) {
      std::vector<uint64_t> counts = {0, 1, 2, d - 1, d, d + 1, 2 * d - 1};
      for (int k = 2; k < 42; ++k)
        for (int64_t off : {-1, 0, 1}) {
          counts.push_back((uint64_t{1} << k) + off);
          if (k < 32) counts.push_back(((uint64_t{1} << k) + off) * d + drawn % d);
        }
      for (uint64_t count : counts) {
        SCOPED_TRACE(testing::Message()
                     << c.sequence.id << ", d = " << d << ": " << drawn << " + " << count);
        Stream s(c.sequence.id, c.block);
        if (drawn > 0) s.integers(int(drawn));
        const auto before = record(s);
        const uint64_t point = position(s).counter + count / d;
        const int32_t expected = point < 0xFFFFFFFF ? 0 : RUA_STATUS_NO_SKIPAHEAD;
        ASSERT_EQ(__ruaSkipAheadStream(s, int64_t(count)), expected);
        if (expected != 0) {
          EXPECT_EQ(record(s), before);
        } else if (1 + (drawn + count) / d < 0xFFFFFFFF - 3 * d) {
          expect_elements(s, c.sequence, drawn + count, int(2 * d + 3));
        }
        if (HasFatalFailure()) return;
      }
    }
    Stream s(c.sequence.id, c.block);
    const auto before = record(s);
    EXPECT_EQ(__ruaSkipAheadStream(s, -1), RUA_STATUS_NO_SKIPAHEAD);
    EXPECT_EQ(__ruaSkipAheadStream(s, INT64_MIN), RUA_STATUS_NO_SKIPAHEAD);
    const uint32_t params[] = {1, 0};
    EXPECT_EQ(properties(s->brng).initStream(2, s, 0, params), RUA_STATUS_NO_SKIPAHEAD);
    for (int method : {-1, 3}) EXPECT_EQ(properties(s->brng).initStream(method, s, 2, params), -2);
    EXPECT_EQ(record(s), before);
  }
}

// The last numbers: as many as points would still fit, whatever the dimension.
TEST_F(QuasiRandom, SequenceEnds) {
  for (uint32_t d : {1, 3, 40, 41}) {
    const Sequence sequence = d <= 40 ? sobol().first(int(d)) : random_numbers(RUA_BRNG_SOBOL, 41);
    Stream s(RUA_BRNG_SOBOL, d <= 40 ? Words{d} : block_of(sequence));
    const uint64_t skipped = uint64_t{0xFFFFFFFA} * d;
    ASSERT_EQ(__ruaSkipAheadStream(s, int64_t(skipped)), 0);
    ASSERT_EQ(position(s).counter, 0xFFFFFFFB);
    const auto before = record(s);
    uint32_t r[6];
    float rf[6];
    double rd[6];
    EXPECT_EQ(__ruaiBRngSobol(s, 5, r), RUA_STATUS_SEQUENCE_ENDED);
    EXPECT_EQ(__ruasBRngSobol(s, 5, rf, 0, 1), RUA_STATUS_SEQUENCE_ENDED);
    EXPECT_EQ(__ruadBRngSobol(s, INT32_MAX, rd, 0, 1), RUA_STATUS_SEQUENCE_ENDED);
    EXPECT_EQ(record(s), before);
    expect_elements(s, sequence, skipped, 4);
    for (uint64_t k = 4; k < 4 * d; ++k) expect_elements(s, sequence, skipped + k, 1);
    EXPECT_EQ(position(s).counter, 0xFFFFFFFF);
    EXPECT_EQ(__ruaiBRngSobol(s, 1, r), RUA_STATUS_SEQUENCE_ENDED);
    EXPECT_EQ(__ruaSkipAheadStream(s, 0), RUA_STATUS_NO_SKIPAHEAD);
    // Selecting a component does not begin anew.
    s.state<Position>()->pending = int32_t(d) - 1;
    for (uint32_t k : {0u, d - 1}) {
      EXPECT_EQ(__ruaLeapfrogStream(s, int32_t(k), 0x7FFFFFFF), 0);
      EXPECT_EQ(__ruaiBRngSobol(s, 1, r), RUA_STATUS_SEQUENCE_ENDED);
    }
  }
}

TEST_F(QuasiRandom, LeapfrogSelectsAComponent) {
  for (const Case& c : cases()) {
    const Sequence& q = c.sequence;
    const int d = q.d();
    for (int drawn : {0, 1, d - 1, d, 2 * d + 1, 7 * d + d / 2})
      for (int k : {0, d / 2, d - 1}) {
        SCOPED_TRACE(testing::Message() << q.id << ", d = " << d << ": " << drawn << ", " << k);
        Stream s(q.id, c.block);
        if (drawn > 0) s.integers(drawn);
        const auto before = record(s);
        for (const auto& [component, streams] :
             {std::pair{k, 2}, {k, 0x7FFFFFFE}, {k, d}, {k, 0}, {d, 0x7FFFFFFF}, {-1, 0x7FFFFFFF}})
          EXPECT_EQ(__ruaLeapfrogStream(s, component, streams), RUA_STATUS_NO_LEAPFROG);
        EXPECT_EQ(__ruaLeapfrogStream(s, k, -1), RUA_STATUS_BAD_LEAPFROG_COUNT);
        EXPECT_EQ(record(s), before);
        ASSERT_EQ(__ruaLeapfrogStream(s, k, 0x7FFFFFFF), 0);
        // The first point that has not emitted the component.
        uint32_t number = uint32_t(1 + drawn / d + (drawn % d > k));
        const auto expect = [&](int component, int n) {
          const Words got = s.integers(n);
          for (int i = 0; i < n; ++i) ASSERT_EQ(got[i], q.value(number++, component)) << i;
        };
        for (int n : {1, 2, 3, 4, 5, 6, 7, 8, 300}) expect(k, n);
        ASSERT_EQ(__ruaLeapfrogStream(s, k, 0x7FFFFFFF), 0);  // changes nothing
        expect(k, 3);
        // A skip counts numbers of whole points.
        ASSERT_EQ(__ruaSkipAheadStream(s, int64_t{1000} * d), 0);
        number += 1000;
        expect(k, 9);
        if (d == 1) continue;
        const int other = k == 0 ? d - 1 : 0;
        ASSERT_EQ(__ruaLeapfrogStream(s, other, 0x7FFFFFFF), 0);
        ++number;
        expect(other, 11);
        if (HasFatalFailure()) return;
      }
  }
}

// Parameter blocks: what sequence comes out, or what status.
struct Block {
  const char* what;
  Words words;
  Sequence expected;
  int32_t status = 0;
};

void expect_block(int32_t id, const Block& b) {
  SCOPED_TRACE(testing::Message() << std::hex << id << ": " << b.what);
  // Guarded, so that no word behind the block is read.
  GuardedPages pages(b.words.size() * 4 + 4);
  uint32_t* at = pages.at_end<uint32_t>(int(b.words.size()));
  std::copy(b.words.begin(), b.words.end(), at);
  Stream s;
  ASSERT_EQ(__ruaNewStreamEx(s.slot(), id, int(b.words.size()), at), b.status);
  if (b.status == 0) {
    EXPECT_EQ(position(s).dimension, b.expected.d());
    expect_elements(s, b.expected, 0, 300 * b.expected.d());
  } else {
    uint32_t r;
    EXPECT_EQ(properties(id).iGenerate(s, 1, &r), RUA_STATUS_BAD_GENERATOR);
    EXPECT_EQ(__ruaSkipAheadStream(s, 1), RUA_STATUS_BAD_GENERATOR);
    EXPECT_EQ(__ruaLeapfrogStream(s, 0, 0x7FFFFFFF), RUA_STATUS_BAD_GENERATOR);
  }
}

Words cut(Words words, int by) {
  words.resize(words.size() - by);
  return words;
}

// Blocks that say nothing valid.
std::vector<Block> plain_blocks(const Sequence& all) {
  const auto most = uint32_t(all.d());
  const Sequence one = all.first(1), three = all.first(3);
  return {{"none", {}, one},
          {"least", {1}, one},
          {"three", {3}, three},
          {"most", {most}, all},
          {"too many", {most + 1}, one},
          {"zero", {0}, one},
          {"negative", {0xFFFFFFFD}, one},
          {"zero with data", {0, 1, 4, 5, 5, 5}, one},
          {"negative with data", {0x80000000, 1, 1, 5, 5, 5}, one},
          {"not user data", {3, 0, 4, 5, 5, 5, 5, 5}, three},
          {"not user data, too many", {most + 1, 2, 1, 5, 5, 5, 5, 5}, one},
          {"no option", {3, 1}, three},
          {"option 0", {3, 1, 0, 7, 7, 7, 7}, three},
          {"unknown option", {3, 1, 5, 7, 7, 7, 7}, three},
          {"unknown option, too many", {most + 1, 1, 0x104, 7, 7, 7}, one},
          {"dimension beyond any block", {0x7FFFFFFF, 1, 4, 7, 7, 7}, one}};
}

TEST_F(QuasiRandom, SobolParameterBlocks) {
  const Table& t = sobol_table();
  const auto initial_rows = [&t](int rows, uint32_t columns, Words block, int shift) {
    for (int j = 0; j < rows; ++j) {
      Words row = t.initial[(j + shift) % 39];
      row.resize(columns, 1);
      block.insert(block.end(), row.begin(), row.end());
    }
    return block;
  };
  const auto padded = [](Words m) {
    m.resize(31, 0);
    return m;
  };
  const Sequence standard = sobol().first(5);
  std::vector<Block> blocks = plain_blocks(sobol());

  // Option 1, polynomials: those of other components, initial values to degree 8 in their rows.
  Sequence expected = standard;
  for (int j = 1; j < 5; ++j)
    expected.v[j] = sobol_numbers(t.polynomials[j % 4], padded(t.initial[j - 1]));
  const Words swapped = {5, 1, 1, 7, 11, 13, 3};
  blocks.push_back({"1", swapped, expected});
  blocks.push_back({"1, short", cut(swapped, 1), standard});
  blocks.push_back({"1, more words", {5, 1, 1, 7, 11, 13, 3, 99}, expected});
  blocks.push_back({"1, degree 9", {2, 1, 1, 529}, {}, -3});
  blocks.push_back({"1, degree 8", {2, 1, 1, 285}, [&] {
                      Sequence s = sobol().first(2);
                      s.v[1] = sobol_numbers(285, padded({1}));
                      return s;
                    }()});
  blocks.push_back({"1, polynomial 0", {3, 1, 1, 3, 0}, {}, -3});
  blocks.push_back({"1, polynomial 1", {3, 1, 1, 3, 1}, {}, -3});
  blocks.push_back({"1, 41 dimensions", Words(45, 1), sobol().first(1)});
  blocks.back().words[0] = 41;

  // Option 2, initial values.
  expected = standard;
  for (int j = 1; j < 5; ++j)
    expected.v[j] = sobol_numbers(t.polynomials[j - 1], padded(t.initial[20 + j]));
  const Words values = initial_rows(4, 7, {5, 1, 2, 7}, 21);
  blocks.push_back({"2", values, expected});
  blocks.push_back({"2, short", cut(values, 1), standard});
  blocks.push_back({"2, rows too short", {3, 1, 2, 1, 1, 1}, {}, -3});
  blocks.push_back({"2, endless rows", {5, 1, 2, 0xFFFFFFFF, 1, 1}, standard});
  Words many = initial_rows(40, 8, {41, 1, 2, 8}, 0);
  blocks.push_back({"2, 41 dimensions", many, sobol().first(1)});

  // Option 3, both, in the state and in chunks.
  for (int d : {1, 5, 40, 41, 70}) {
    Sequence own{RUA_BRNG_SOBOL, {first_sobol_numbers()}, {}};
    Words block = {uint32_t(d), 1, 3};
    for (int j = 1; j < d; ++j) {
      const int row = (j + 12) % 39;
      block.push_back(t.polynomials[row]);
      own.v.push_back(sobol_numbers(t.polynomials[row], t.initial[row]));
    }
    block.push_back(9);
    block = initial_rows(d - 1, 9, block, 13);
    blocks.push_back({"3", block, own});
    if (d > 1) blocks.push_back({"3, short", cut(block, 1), sobol().first(d <= 40 ? d : 1)});
    // Option 11, the first component, too.
    own.v[0] = sobol_numbers(t.polynomials[38], t.initial[38]);
    block = {uint32_t(d), 1, 11, t.polynomials[38]};
    for (int j = 1; j < d; ++j) block.push_back(t.polynomials[(j + 12) % 39]);
    block.push_back(8);
    block.insert(block.end(), t.initial[38].begin(), t.initial[38].end());
    block = initial_rows(d - 1, 8, block, 13);
    blocks.push_back({"11", block, own});
    blocks.push_back({"11, short", cut(block, 1), sobol().first(d <= 40 ? d : 1)});
  }
  blocks.push_back({"3, no word for m", {2, 1, 3, 3}, sobol().first(2)});
  blocks.push_back({"3, m = 0", {2, 1, 3, 3, 0}, {}, -3});
  blocks.push_back({"3, endless rows", {2, 1, 3, 3, 0xFFFFFFFF, 1}, sobol().first(2)});
  blocks.push_back({"3, degree above m", {2, 1, 3, 11, 2, 1, 1, 1}, {}, -3});
  blocks.push_back({"11, degree above m", {1, 1, 11, 11, 2, 1, 1, 1}, {}, -3});
  blocks.push_back({"11, no word for m", {1, 1, 11, 3}, sobol().first(1)});

  // Option 4, direction numbers.
  for (int d : {1, 3, 40, 41, 100}) {
    const Sequence own = random_numbers(RUA_BRNG_SOBOL, d);
    blocks.push_back({"4", block_of(own), own});
    blocks.push_back({"4, short", cut(block_of(own), 1), sobol().first(d <= 40 ? d : 1)});
  }
  for (const Block& b : blocks) expect_block(RUA_BRNG_SOBOL, b);
}

TEST_F(QuasiRandom, NiederreiterParameterBlocks) {
  std::vector<Block> blocks = plain_blocks(niederreiter());
  // Option 1, polynomials, of any degree and any order, in the state and in chunks.
  for (int d : {1, 4, 318, 319}) {
    Sequence own{RUA_BRNG_NIEDERR, {}, {}};
    Words block = {uint32_t(d), 1, 1};
    for (int j = 0; j < d; ++j) {
      const uint32_t p = j == 0 ? 0x80000009 : j == 1 ? 0x18D : 2 + 3 * uint32_t(j);
      block.push_back(p);
      own.v.push_back(niederreiter_numbers(p));
    }
    blocks.push_back({"1", block, own});
    blocks.push_back({"1, short", cut(block, 1), niederreiter().first(d <= 318 ? d : 1)});
  }
  blocks.push_back({"1, polynomial 0", {2, 1, 1, 2, 0}, {}, -3});
  blocks.push_back({"1, polynomial 1", {2, 1, 1, 1, 2}, {}, -3});
  blocks.push_back({"1, three words", {1, 1, 1}, niederreiter().first(1)});
  blocks.push_back({"2", {2, 1, 2, 2, 3, 3, 3}, niederreiter().first(2)});
  for (int d : {1, 318, 319, 400}) {
    const Sequence own = random_numbers(RUA_BRNG_NIEDERR, d);
    blocks.push_back({"4", block_of(own), own});
    blocks.push_back({"4, short", cut(block_of(own), 1), niederreiter().first(d <= 318 ? d : 1)});
  }
  for (const Block& b : blocks) expect_block(RUA_BRNG_NIEDERR, b);
}

// Streams go on from copies, from another stream's state, from images, tables wherever they are.
TEST_F(QuasiRandom, CopiesAndImagesGoOn) {
  const std::string file = testing::TempDir() + "quasi_image_" + std::to_string(getpid());
  for (const Case& c : cases())
    for (bool selected : {false, true}) {
      const int d = c.sequence.d();
      SCOPED_TRACE(testing::Message() << c.sequence.id << ", d = " << d << ' ' << selected);
      Stream s(c.sequence.id, c.block), copy, from_file, from_memory;
      s.integers(3 * d + d / 2 + 1);
      if (selected) {
        ASSERT_EQ(__ruaLeapfrogStream(s, d / 2, 0x7FFFFFFF), 0);
      }
      std::vector<uint8_t> image(__ruaGetStreamSize(s));
      ASSERT_EQ(__ruaSaveStreamM(s, image.data()), 0);
      ASSERT_EQ(__ruaSaveStreamF(s, file.c_str(), -1), 0);
      ASSERT_EQ(__ruaLoadStreamM(from_memory.slot(), image.data()), 0);
      ASSERT_EQ(__ruaLoadStreamF(from_file.slot(), file.c_str(), -1), 0);
      ASSERT_EQ(__ruaCopyStream(copy.slot(), s), 0);
      Stream few(c.sequence.id, {2}), many(c.sequence.id, {40});
      few.integers(1);
      ASSERT_EQ(__ruaCopyStreamState(few, s), 0);
      ASSERT_EQ(__ruaCopyStreamState(many, s), 0);
      const Words next = s.integers(5 * d);
      for (const Stream* other : {&copy, &from_file, &from_memory, &few, &many})
        EXPECT_EQ(other->integers(5 * d), next);
    }
  unlink(file.c_str());
}

TEST_F(QuasiRandom, UserTablesAreSharedAndFreedOnce) {
  const Sequence q = random_numbers(RUA_BRNG_SOBOL, 41);
  std::vector<uint8_t> image;
  Stream survivor;
  {
    Stream s(RUA_BRNG_SOBOL, block_of(q)), again(RUA_BRNG_SOBOL, block_of(q)), loaded;
    const int own = blocks::live();
    ASSERT_EQ(__ruaCopyStream(survivor.slot(), s), 0);
    EXPECT_EQ(blocks::live() - own, 4);  // record, two chunks, the point
    EXPECT_EQ(__ruaSearchChunk(survivor, 9), __ruaSearchChunk(s, 9));
    EXPECT_NE(__ruaSearchChunk(survivor, 13), __ruaSearchChunk(s, 13));
    EXPECT_NE(__ruaSearchChunk(again, 9), __ruaSearchChunk(s, 9));  // of a seed of its own
    image.resize(__ruaGetStreamSize(s));
    ASSERT_EQ(__ruaSaveStreamM(s, image.data()), 0);
    ASSERT_EQ(__ruaLoadStreamM(loaded.slot(), image.data()), 0);
    EXPECT_EQ(__ruaSearchChunk(loaded, 9), __ruaSearchChunk(s, 9));
  }
  expect_elements(survivor, q, 0, 1000);
  // Seeding again lets the tables go.
  const int before = blocks::live();
  ASSERT_EQ(properties(survivor->brng).initStream(0, survivor, 1, Words{3}.data()), 0);
  EXPECT_EQ(blocks::live(), before - 4);
  expect_elements(survivor, sobol().first(3), 0, 1000);
  // A chunk of someone else's stays.
  survivor.add_chunk(77, nullptr, {1});
  const Words block = block_of(q);
  ASSERT_EQ(properties(survivor->brng).initStream(0, survivor, int(block.size()), block.data()), 0);
  expect_elements(survivor, q, 0, 100);
  EXPECT_NE(__ruaSearchChunk(survivor, 77), nullptr);
  // With nothing live, an image brings the tables along.
  Stream loaded;
  ASSERT_EQ(__ruaLoadStreamM(loaded.slot(), image.data()), 0);
  expect_elements(loaded, q, 0, 1000);
}

TEST_F(QuasiRandom, FormsByTableRefuseTheOther) {
  uint32_t i[3];
  double d[3];
  float f[3];
  const Sequence user[] = {random_numbers(RUA_BRNG_SOBOL, 41),
                           random_numbers(RUA_BRNG_NIEDERR, 319)};
  for (const Sequence& q : user) {
    const bool sobol = q.id == RUA_BRNG_SOBOL;
    for (bool chunks : {false, true}) {
      Stream s(q.id, chunks ? block_of(q) : Words{3});
      const auto ints = sobol ? (chunks ? __ruaiBRngSobolUser : __ruaiBRngSobolDefault)
                              : (chunks ? __ruaiBRngNiederrUser : __ruaiBRngNiederrDefault);
      const auto doubles = sobol ? (chunks ? __ruadBRngSobolUser : __ruadBRngSobolDefault)
                                 : (chunks ? __ruadBRngNiederrUser : __ruadBRngNiederrDefault);
      const auto floats = sobol ? (chunks ? __ruasBRngSobolUser : __ruasBRngSobolDefault)
                                : (chunks ? __ruasBRngNiederrUser : __ruasBRngNiederrDefault);
      const Words next = Stream(q.id, chunks ? block_of(q) : Words{3}).integers(9);
      ASSERT_EQ(ints(s, 3, i), 0);
      ASSERT_EQ(doubles(s, 3, d, 0, 1), 0);
      ASSERT_EQ(floats(s, 3, f, 0, 1), 0);
      for (int k = 0; k < 3; ++k) {
        EXPECT_EQ(i[k], next[k]);
        EXPECT_EQ(d[k], next[3 + k] * 0x1p-32);
        EXPECT_NEAR(f[k], next[6 + k] * 0x1p-32, 1e-6);
      }
      const auto wrong = sobol ? (chunks ? __ruaiBRngSobolDefault : __ruaiBRngSobolUser)
                               : (chunks ? __ruaiBRngNiederrDefault : __ruaiBRngNiederrUser);
      EXPECT_EQ(wrong(s, 3, i), RUA_STATUS_BAD_GENERATOR);
    }
  }
}

TEST_F(QuasiRandom, FailingAllocations) {
  for (const Sequence& q :
       {random_numbers(RUA_BRNG_SOBOL, 41), random_numbers(RUA_BRNG_NIEDERR, 319)}) {
    const Words block = block_of(q);
    Stream source(q.id, block);
    const int live = blocks::live();
    const auto expect = [&](int32_t status, const Stream& s) {
      EXPECT_EQ(status, blocks::failed() ? RUA_STATUS_NO_MEMORY : 0);
      uint32_t r;
      if (s) {
        EXPECT_EQ(properties(q.id).iGenerate(s, 1, &r),
                  blocks::failed() ? RUA_STATUS_BAD_GENERATOR : 0);
        EXPECT_EQ(__ruaGetNumChunks(s) == 0, blocks::failed());
      }
    };
    const int payloads = q.id == RUA_BRNG_SOBOL ? 2 : 1;
    EXPECT_EQ(blocks::fail_each([&] {
                Stream s;
                expect(__ruaNewStreamEx(s.slot(), q.id, int(block.size()), block.data()), s);
              }),
              1 + 2 * payloads);
    EXPECT_EQ(blocks::fail_each([&] {
                Stream s;
                expect(__ruaCopyStream(s.slot(), source), s);
              }),
              q.id == RUA_BRNG_SOBOL ? 4 : 3);
    EXPECT_EQ(blocks::live(), live);
  }
}

// Words that no stream has: refused by a load, and on use.
TEST_F(QuasiRandom, DamagedImages) {
  const Sequence q = random_numbers(RUA_BRNG_SOBOL, 41), p = random_numbers(RUA_BRNG_NIEDERR, 319);
  const struct {
    int32_t id;
    Words block;
    int word;
    uint32_t value;
  } damages[] = {{RUA_BRNG_SOBOL, {3}, 1, 0},
                 {RUA_BRNG_SOBOL, {3}, 1, 41},
                 {RUA_BRNG_SOBOL, {3}, 1, 0x80000000},
                 {RUA_BRNG_SOBOL, {3}, 2, 3},
                 {RUA_BRNG_SOBOL, {3}, 2, 0xFFFFFFFE},
                 {RUA_BRNG_SOBOL, {3}, 3, 3},
                 {RUA_BRNG_SOBOL, {3}, 3, 0xFFFFFFFF},
                 {277, {3}, 1, 0},
                 {RUA_BRNG_SOBOL, block_of(q), 1, 65},
                 {RUA_BRNG_SOBOL, block_of(q), 1, 0x7FFFFFFF},
                 {RUA_BRNG_SOBOL, block_of(q), 1, 0},
                 {RUA_BRNG_NIEDERR, {3}, 1, 319},
                 {RUA_BRNG_NIEDERR, {3}, 1, 0},
                 {RUA_BRNG_NIEDERR, {3}, 2, 3},
                 {RUA_BRNG_NIEDERR, {3}, 3, 3},
                 {RUA_BRNG_NIEDERR, block_of(p), 1, 320},
                 {RUA_BRNG_NIEDERR, block_of(p), 1, 0x7FFFFFFF}};
  for (const auto& c : damages) {
    SCOPED_TRACE(testing::Message() << c.id << ": word " << c.word << " = " << c.value);
    Stream s(c.id, c.block), loaded;
    s.state<uint32_t>()[c.word] = c.value;
    std::vector<uint8_t> image(__ruaGetStreamSize(s));
    ASSERT_EQ(__ruaSaveStreamM(s, image.data()), 0);
    EXPECT_EQ(__ruaLoadStreamM(loaded.slot(), image.data()), RUA_STATUS_BAD_MEMORY_FORMAT);
    EXPECT_EQ(*loaded.slot(), nullptr);
    uint32_t r;
    EXPECT_EQ(properties(c.id).iGenerate(s, 1, &r), RUA_STATUS_BAD_GENERATOR);
    EXPECT_EQ(__ruaSkipAheadStream(s, 1), RUA_STATUS_BAD_GENERATOR);
  }
}

}  // namespace
