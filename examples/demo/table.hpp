#pragma once
// A table of numbers from a CSV file: comment lines that begin with #, a line of column names,
// then rows of as many finite numbers. Fields may be quoted. Anything else ends the program with
// a message FILE:LINE: what was found, what was expected.
#include <string>
#include <vector>

namespace demo {

struct Table {
  std::string file;
  std::vector<std::string> notes;  // the comment lines, without their #
  int head_line = 0;               // where the column names are
  std::vector<std::string> names;
  std::vector<std::vector<double>> columns;
  std::vector<int> lines;  // of each row

  size_t rows() const { return lines.size(); }
  const std::vector<double>& column(const std::string& name) const;
};

Table read_table(const std::string& file);

}  // namespace demo
