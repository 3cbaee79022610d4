#pragma once
// A table from a CSV file: comment lines that begin with #, a line of column names, then rows of
// as many fields. The names' line tells what separates fields: a comma, a semicolon or a tab.
// Quoted fields may hold separators, line ends and doubled quotes; a byte order mark is passed
// over. Anything else ends the program with a message FILE:LINE: what was found, what was expected.
#include <string>
#include <vector>

namespace demo {

struct Table {
  std::string file;
  std::vector<std::string> notes;  // the comment lines, without their #
  int head_line = 0;               // where the column names are
  std::vector<std::string> names;
  std::vector<std::vector<std::string>> fields;  // row by row
  std::vector<int> lines;                        // of each row

  size_t rows() const { return lines.size(); }
  // The numbers of a column, which must all be finite. Other columns may hold anything.
  std::vector<double> column(const std::string& name) const;
};

Table read_table(const std::string& file);

}  // namespace demo
