#pragma once
// docs/accuracy.md: one row a kernel, kept sorted; a partial run replaces its own rows.
#include <map>
#include <string>

struct Worst {
  double error = 0;  // in the claim's unit
  double a = 0, b = 0, got = 0, exact = 0;
  long long points = 0;
};

std::string table_row(const std::string& kernel, const Worst& worst, double bound, bool relative,
                      bool binary);

// Merges rows (by kernel) into one of the file's tables: 0 sampled arguments, 1 all arguments,
// 2 denormals counting as zeros.
void update_report(const std::string& path, const std::map<std::string, std::string>& rows,
                   int table);
