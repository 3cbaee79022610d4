#include "accuracy/report.hpp"

#include <cmath>
#include <cstdio>
#include <fstream>

std::string table_row(const std::string& kernel, const Worst& worst, double bound, bool relative,
                      bool binary) {
  char text[400], at[100], unit[40];
  std::snprintf(at, sizeof at, binary ? "%a, %a" : "%a", worst.a, worst.b);
  std::snprintf(unit, sizeof unit, relative ? "2^%.1f | 2^%.1f rel" : "%.3f | %.2f ulp",
                relative ? std::log2(worst.error) : worst.error,
                relative ? std::log2(bound) : bound);
  std::snprintf(text, sizeof text, "| %s | %s | %s | %a | %lld |", kernel.c_str(), unit, at,
                worst.got, worst.points);
  return text;
}

void update_report(const std::string& path, const std::map<std::string, std::string>& rows,
                   int table) {
  constexpr const char* headings[] = {"Sampled arguments", "All 2^32 arguments",
                                      "Denormals counting as zeros"};
  constexpr const char* notes[] = {
      "", "",
      "`./dev accuracy --flush`: flush-to-zero and denormals-are-zero, by mode word 0x280000 and\n"
      "MXCSR. Arguments in every binade, thick where they or the results come near the ends of "
      "the\n"
      "range; denormal arguments and results are left out. LinearFrac without shifts.\n"};
  std::map<std::string, std::string> tables[3];
  int current = 0;
  std::ifstream file(path);
  for (std::string line; std::getline(file, line);) {
    for (int k = 0; k < 3; ++k)
      if (line == std::string("## ") + headings[k]) current = k;
    const size_t end = line.find(" |", 2);
    if (line.starts_with("| ") && !line.starts_with("| kernel") && end != std::string::npos)
      tables[current][line.substr(2, end - 2)] = line;
  }
  file.close();
  for (const auto& [kernel, row] : rows) tables[table][kernel] = row;
  std::ofstream out(path);
  out << "# Accuracy\n\n"
         "Written by `./dev accuracy`. Error is |got - exact| / ulp(exact), the rounding's half "
         "ulp\n"
         "included, with the ulp of the smallest normal number below the normal range; rows marked "
         "rel\n"
         "give |got - exact| / |exact|. Exact values come from quad precision for `d` kernels, "
         "from the\n"
         "x87's extended precision for `s` kernels. Arguments: the ranges and neighbourhoods "
         "declared in\n"
         "each function's `claims.tsv`, powers of two, random bit patterns.\n\n"
         "Complex kernels (`c`, `z`): quad precision; the error of the worse part, in rows marked "
         "modulus the\n"
         "error's modulus in ulp of the result's, in rel rows of EP relative to it. A third of the "
         "operands lies\n"
         "anywhere in the range, ends included, a third near 1, a third makes products or sums "
         "cancel, by 1 to 50\n"
         "bits or all but the last; EP rows leave out operands whose squares come near the ends of "
         "the range.\n";
  for (int k = 0; k < 3; ++k) {
    if (tables[k].empty()) continue;
    out << "\n## " << headings[k] << "\n\n"
        << notes[k] << (*notes[k] ? "\n" : "")
        << "| kernel | worst | bound | at | got | points |\n|---|---|---|---|---|---|\n";
    for (const auto& [kernel, row] : tables[k]) out << row << "\n";
  }
}
