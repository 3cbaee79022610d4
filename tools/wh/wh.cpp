// Search and verification of the parameters of the 273 Wichmann-Hill generators.
//
//   g++ -std=gnu++20 -O2 -o wh tools/wh/wh.cpp -lquadmath                 (64-bit, native)
//   wh search         print the table file of the generator
//   wh verify TABLE   check the rows of a table file; exit code 1 when one fails
//
// Each row has four prime moduli m from 16718909 to 16776971, no modulus standing twice in the
// table, and four multipliers a from 112 to 127, such that
//   - a is a primitive root of its m;
//   - the numbers (m - 1)/2 of a row have no common factors, which makes the period the product
//     of the (m - 1) divided by 8, close to 2^93;
//   - the sum of the four parts, which is one multiplicative generator modulo the product of the
//     m, has S_t of at least kSpectralLimit in 2 to 8 dimensions (spectral.hpp).
// The first and the last row were fixed in advance.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <numeric>
#include <set>
#include <string>

#include "spectral.hpp"

namespace {

using namespace wh;

constexpr int kRows = 273;
constexpr uint32_t kFirst = 16718909, kLast = 16776971;  // the range of the moduli
constexpr double kSpectralLimit = 0.60;

struct Row {
  uint32_t a[4], m[4];
};
constexpr Row kFirstRow = {{125, 117, 127, 126}, {16770647, 16770643, 16770623, 16770617}};
constexpr uint32_t kLastModuli[4] = {16766363, 16766359, 16766327, 16766231};

std::vector<uint32_t> prime_factors(uint32_t n) {
  std::vector<uint32_t> f;
  for (uint32_t d = 2; d * d <= n; ++d)
    for (; n % d == 0; n /= d)
      if (f.empty() || f.back() != d) f.push_back(d);
  if (n > 1 && (f.empty() || f.back() != n)) f.push_back(n);
  return f;
}

uint32_t power(uint64_t base, uint32_t exponent, uint32_t m) {
  uint64_t r = 1;
  for (; exponent != 0; exponent >>= 1, base = base * base % m)
    if (exponent & 1) r = r * base % m;
  return static_cast<uint32_t>(r);
}

bool primitive_root(uint32_t a, uint32_t m) {
  for (uint32_t f : prime_factors(m - 1))
    if (power(a, (m - 1) / f, m) == 1) return false;
  return true;
}

bool compatible(uint32_t m, uint32_t n) { return std::gcd((m - 1) / 2, (n - 1) / 2) == 1; }

// The multiplier of the sum: congruent to a[p] modulo m[p].
Int combined(const Row& row, Int modulus) {
  unsigned __int128 sum = 0;
  for (int p = 0; p < 4; ++p) {
    uint32_t m = row.m[p];
    unsigned __int128 rest = modulus / m;
    uint64_t inverse = power(static_cast<uint32_t>(rest % m), m - 2, m);
    sum += rest * (inverse * row.a[p] % m);  // below 2^96 each
  }
  return static_cast<Int>(sum % modulus);
}

Int product(Int a, Int b, Int m) {  // factors below 2^96, in steps of 24 bits
  Int r = 0;
  for (int shift = 72; shift >= 0; shift -= 24) r = ((r << 24) + (b >> shift & 0xFFFFFF) * a) % m;
  return r;
}

// The smallest S_t for t = 2 to 8; gives up below `enough`.
double figure(const Row& row, double enough) {
  const double hermite[] = {0, 1, 4.0 / 3, 2, 4, 8, 64.0 / 3, 64, 256};  // gamma_t^t
  Int modulus = 1;
  for (uint32_t m : row.m) modulus *= m;
  Int a = combined(row, modulus);
  std::vector<Int> powers = {1};
  double worst = 1;
  for (int t = 2; t <= 8; ++t) {
    powers.push_back(product(powers.back(), a, modulus));
    double nu2 = DualLattice(modulus, powers, t).shortest();
    double bound = std::pow(hermite[t], 1.0 / t) * std::pow(static_cast<double>(modulus), 2.0 / t);
    worst = std::min(worst, std::sqrt(nu2 / bound));
    if (worst < enough) break;
  }
  return worst;
}

// A fixed sequence of numbers below n.
struct Sequence {
  uint64_t x = 1;
  uint32_t below(uint32_t n) {
    x = x * 6364136223846793005u + 1442695040888963407u;
    return static_cast<uint32_t>((x >> 32) * n >> 32);
  }
};

// Multipliers for the moduli of a row, by trial; false when none meet the limit.
bool choose_multipliers(Row& row, Sequence& sequence) {
  std::vector<uint32_t> roots[4];
  for (int p = 0; p < 4; ++p) {
    for (uint32_t a = 112; a <= 127; ++a)
      if (primitive_root(a, row.m[p])) roots[p].push_back(a);
    if (roots[p].empty()) return false;
  }
  for (int trial = 0; trial < 200; ++trial) {
    for (int p = 0; p < 4; ++p) row.a[p] = roots[p][sequence.below(roots[p].size())];
    if (figure(row, kSpectralLimit) >= kSpectralLimit) return true;
  }
  return false;
}

std::vector<uint32_t> primes() {
  std::vector<uint32_t> list;
  for (uint32_t m = kFirst; m <= kLast; ++m)
    if (prime_factors(m)[0] == m) list.push_back(m);
  return list;
}

std::vector<Row> search() {
  Sequence sequence;
  std::vector<uint32_t> pool = primes();
  for (uint32_t given : {kFirstRow.m[0], kFirstRow.m[1], kFirstRow.m[2], kFirstRow.m[3],
                         kLastModuli[0], kLastModuli[1], kLastModuli[2], kLastModuli[3]})
    pool.erase(std::find(pool.begin(), pool.end(), given));
  // In random order, but for the ends of the range, which are used first.
  for (size_t i = pool.size() - 2; i > 1; --i)
    std::swap(pool[i], pool[1 + sequence.below(static_cast<uint32_t>(i))]);
  std::swap(pool[1], pool.back());
  std::vector<Row> rows = {kFirstRow};
  while (rows.size() < kRows - 1) {
    // The first primes of the pool that go together; those of a failure go to its end.
    Row row{};
    std::vector<uint32_t> left;
    int found = 0;
    for (uint32_t m : pool) {
      bool fits = found < 4 &&
                  std::all_of(row.m, row.m + found, [m](uint32_t n) { return compatible(m, n); });
      if (fits)
        row.m[found++] = m;
      else
        left.push_back(m);
    }
    std::sort(row.m, row.m + 4, std::greater<>());
    pool = left;
    if (choose_multipliers(row, sequence))
      rows.push_back(row);
    else
      pool.insert(pool.end(), row.m, row.m + 4);
  }
  Row last{};
  std::copy(kLastModuli, kLastModuli + 4, last.m);
  if (!choose_multipliers(last, sequence)) std::fputs("no multipliers for the last row\n", stderr);
  rows.push_back(last);
  return rows;
}

int print_table() {
  std::puts(
      "// Parameters of the Wichmann-Hill generators: multipliers, moduli.\n"
      "// Made by: wh search (tools/wh/wh.cpp, which states the criteria).");
  for (const Row& r : search())
    std::printf("WH(%u, %u, %u, %u, %u, %u, %u, %u)\n", r.a[0], r.a[1], r.a[2], r.a[3], r.m[0],
                r.m[1], r.m[2], r.m[3]);
  return 0;
}

const char* fault(const Row& row, std::set<uint32_t>& used, double& worst) {
  for (int p = 0; p < 4; ++p) {
    uint32_t m = row.m[p], a = row.a[p];
    if (m < kFirst || m > kLast || prime_factors(m)[0] != m) return "modulus";
    if (!used.insert(m).second) return "modulus used twice";
    if (a < 112 || a > 127 || !primitive_root(a, m)) return "multiplier";
    for (int q = 0; q < p; ++q)
      if (!compatible(m, row.m[q])) return "common factor";
  }
  double s = figure(row, 0);
  worst = std::min(worst, s);
  return s < kSpectralLimit ? "spectral test" : nullptr;
}

int verify(const char* path) {
  std::FILE* in = std::fopen(path, "r");
  if (in == nullptr) return 1;
  std::set<uint32_t> used;
  int rows = 0, faults = 0;
  double worst = 1, given = 1;
  char line[256];
  while (std::fgets(line, sizeof line, in)) {
    Row r;
    if (std::sscanf(line, "WH(%u, %u, %u, %u, %u, %u, %u, %u)", r.a, r.a + 1, r.a + 2, r.a + 3, r.m,
                    r.m + 1, r.m + 2, r.m + 3) != 8)
      continue;
    const char* what = fault(r, used, rows == 0 ? given : worst);
    // The first row is frozen, whatever its figure.
    if (rows == 0 && what && std::strcmp(what, "spectral test") == 0)
      what = std::memcmp(&r, &kFirstRow, sizeof r) == 0 ? nullptr : "differs from the frozen one";
    if (what) std::printf("row %d: %s\n", rows, what), ++faults;
    if (++rows == kRows && std::memcmp(r.m, kLastModuli, sizeof r.m) != 0)
      std::puts("the last row differs from the frozen one"), ++faults;
  }
  std::fclose(in);
  if (rows != kRows) ++faults;
  std::printf("%d rows, %d faults; smallest S_t %.3f, of the first row %.3f\n", rows, faults, worst,
              given);
  return faults != 0;
}

}  // namespace

int main(int argc, char** argv) {
  std::string verb = argc > 1 ? argv[1] : "";
  if (verb == "search") return print_table();
  if (verb == "verify" && argc > 2) return verify(argv[2]);
  std::fputs("usage: wh search | wh verify TABLE\n", stderr);
  return 2;
}
