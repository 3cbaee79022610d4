// Search and verification of the parameters of the MT2203 members.
//
//   g++ -std=c++20 -O3 -mpclmul -o mt2203 tools/mt2203/mt2203.cpp        (64-bit, native)
//   mt2203 search FILE [FIRST LAST]   append the rows that FILE does not hold yet: "k a b c"
//   mt2203 table FILE                 print the table file of the generator from a full FILE
//   mt2203 verify TABLE [STEP]        check every STEP-th row of a table file, and all of them
//                                     for being distinct; exit code 1 when one fails
//   mt2203 sample TABLE STEP FILE     write the rows but every STEP-th one to FILE, so that a
//                                     search in FILE finds these anew
//
// A full search takes a quarter of an hour on one core, a full verification half a minute.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <set>
#include <string>
#include <vector>

#include "twist_search.hpp"

namespace {

using namespace mt2203;

constexpr int kMembers = 6024;

// Parameters that are fixed in advance.
const std::vector<std::pair<int, Member>> kGiven = {
    {0, {0xAF81055F, 0xDD7EEF80, 0xEFD78000}},
    {1, {0x832604E1, 0x66AD7F80, 0xEBD58000}},
    {6023, {0xE8761D4B, 0x72967680, 0xEFEB0000}},
};

Member search(int k, const Family& family, Sieve& sieve, TemperingSearch& tempering) {
  for (const auto& [member, row] : kGiven)
    if (member == k) return row;
  // A twist word whose outputs no tempering distributes well is passed over.
  TwistSearch twists(k);
  Member m{};
  while (m.c == 0) m = tempering.find(twists.next(family, sieve));
  return m;
}

// Rows of a table file or, with their numbers in front, of a search.
std::vector<Member> read_rows(const char* path, std::vector<bool>* present = nullptr) {
  std::vector<Member> rows(kMembers);
  std::FILE* in = std::fopen(path, "r");
  if (in == nullptr) return {};
  char line[256];
  int next = 0;
  while (std::fgets(line, sizeof line, in)) {
    Member m;
    int k = next;
    bool row = std::sscanf(line, " {0x%x, 0x%x, 0x%x}", &m.a, &m.b, &m.c) == 3 ||
               std::sscanf(line, "%d %x %x %x", &k, &m.a, &m.b, &m.c) == 4;
    if (!row || k < 0 || k >= kMembers) continue;
    rows[k] = m;
    if (present) (*present)[k] = true;
    next = k + 1;
  }
  std::fclose(in);
  return rows;
}

int run_search(const char* path, int first, int last) {
  std::vector<bool> present(kMembers);
  read_rows(path, &present);
  std::FILE* out = std::fopen(path, "a");
  if (out == nullptr) return 1;
  Family family;
  Sieve sieve;
  TemperingSearch tempering;
  for (int k = first; k <= last; ++k) {
    if (present[k]) continue;
    Member m = search(k, family, sieve, tempering);
    std::fprintf(out, "%d %08X %08X %08X\n", k, m.a, m.b, m.c);
    std::fflush(out);
  }
  return std::fclose(out);
}

int print_table(const char* path) {
  std::vector<bool> present(kMembers);
  auto rows = read_rows(path, &present);
  for (int k = 0; k < kMembers; ++k)
    if (!present[k]) return std::fprintf(stderr, "row %d is missing\n", k), 1;
  std::puts(
      "// Parameters of the MT2203 members: twist word, tempering words.\n"
      "// Found by ./dev tables mt2203 (tools/mt2203/), checked by ./dev tables --verify-mt2203:\n"
      "// characteristic polynomials of degree 2203 that are irreducible and distinct, defects of\n"
      "// equidistribution that sum up to 720 at most.");
  for (const Member& m : rows) std::printf("{0x%08X, 0x%08X, 0x%08X},\n", m.a, m.b, m.c);
  return 0;
}

// What is wrong with a row, or null.
const char* fault(const Member& m, const Family& family) {
  if (!(m.a & 1) || !(m.a >> 31)) return "twist word without its end bits";
  if ((m.b & ~TemperingSearch::kMaskB) || (m.c & ~TemperingSearch::kMaskC)) return "tempering mask";
  if (!irreducible(family.characteristic(m.a))) return "reducible characteristic polynomial";
  Equidistribution e(m);
  if (!well_distributed(e.profile())) return "equidistribution";
  return nullptr;
}

int verify(const char* path, int step) {
  std::vector<bool> present(kMembers);
  auto rows = read_rows(path, &present);
  int faults = 0, checked = 0, sum = 0, worst = 0;
  std::set<uint32_t> twists;
  Family family;
  for (int k = 0; k < static_cast<int>(rows.size()); ++k) {
    if (!present[k]) std::printf("row %d is missing\n", k), ++faults;
    if (!twists.insert(rows[k].a).second) std::printf("row %d repeats a twist word\n", k), ++faults;
    if (k % step != 0 && k != kMembers - 1) continue;
    ++checked;
    if (const char* what = fault(rows[k], family)) {
      std::printf("row %d: %s\n", k, what);
      ++faults;
      continue;
    }
    Equidistribution e(rows[k]);
    int defect = total_defect(e.profile());
    sum += defect;
    worst = std::max(worst, defect);
  }
  for (const auto& [k, m] : kGiven)
    if (rows.empty() || std::memcmp(&rows[k], &m, sizeof m) != 0)
      std::printf("row %d differs from the frozen one\n", k), ++faults;
  if (checked != 0)
    std::printf(
        "%d rows, %d checked in full, %d faults; total defect %.1f on average, %d at most\n",
        static_cast<int>(rows.size()), checked, faults, double(sum) / checked, worst);
  return faults != 0;
}

// The rows of a table file but every STEP-th one, for a search to fill the gaps.
int sample(const char* path, int step, const char* out_path) {
  std::vector<bool> present(kMembers);
  auto rows = read_rows(path, &present);
  std::FILE* out = std::fopen(out_path, "w");
  if (out == nullptr) return 1;
  for (int k = 0; k < static_cast<int>(rows.size()); ++k)
    if (present[k] && k % step != step / 2)
      std::fprintf(out, "%d %08X %08X %08X\n", k, rows[k].a, rows[k].b, rows[k].c);
  return std::fclose(out);
}

}  // namespace

int main(int argc, char** argv) {
  std::string verb = argc > 2 ? argv[1] : "";
  auto number = [&](int i, int otherwise) { return argc > i ? std::atoi(argv[i]) : otherwise; };
  if (verb == "search") return run_search(argv[2], number(3, 0), number(4, kMembers - 1));
  if (verb == "table") return print_table(argv[2]);
  if (verb == "verify") return verify(argv[2], std::max(1, number(3, 1)));
  if (verb == "sample" && argc > 4) return sample(argv[2], std::max(1, number(3, 1)), argv[4]);
  std::fputs("usage: mt2203 search|table|verify|sample FILE ...\n", stderr);
  return 2;
}
