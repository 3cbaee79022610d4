#include "table.hpp"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstring>
#include <fstream>

#include "fail.hpp"

namespace demo {
namespace {

std::string trimmed(const std::string& text) {
  const char* blanks = " \t\r\"";
  const size_t first = text.find_first_not_of(blanks);
  if (first == std::string::npos) return "";
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::vector<std::string> fields_of(const std::string& line) {
  std::vector<std::string> fields;
  size_t start = 0;
  for (size_t comma; (comma = line.find(',', start)) != std::string::npos; start = comma + 1)
    fields.push_back(trimmed(line.substr(start, comma - start)));
  fields.push_back(trimmed(line.substr(start)));
  return fields;
}

// For messages: short, and nothing that upsets a terminal.
std::string shown(std::string text) {
  if (text.size() > 40) text = text.substr(0, 37) + "...";
  for (char& c : text)
    if (c >= 0 && c < 32) c = '?';
  return text;
}

double number_of(const Table& table, int line, const std::string& name, const std::string& field) {
  double value = 0;
  const auto [end, error] = std::from_chars(field.data(), field.data() + field.size(), value);
  if (field.empty())
    fail("%s:%d: %s is empty, expected a number", table.file.c_str(), line, name.c_str());
  if (error == std::errc::invalid_argument || end != field.data() + field.size())
    fail("%s:%d: %s is \"%s\", expected a number", table.file.c_str(), line, name.c_str(),
         shown(field).c_str());
  if (error != std::errc() || !(std::fabs(value) <= 1e12))
    fail("%s:%d: %s is %s, expected a number between -1e12 and 1e12", table.file.c_str(), line,
         name.c_str(), shown(field).c_str());
  return value;
}

void take_names(Table& table, const std::vector<std::string>& fields, int line) {
  for (const auto& name : fields) {
    if (name.empty()) fail("%s:%d: a column without a name", table.file.c_str(), line);
    if (std::count(fields.begin(), fields.end(), name) > 1)
      fail("%s:%d: column \"%s\" occurs twice", table.file.c_str(), line, shown(name).c_str());
    table.names.push_back(shown(name));
  }
  table.head_line = line;
  table.columns.resize(fields.size());
}

}  // namespace

const std::vector<double>& Table::column(const std::string& name) const {
  const auto found = std::find(names.begin(), names.end(), name);
  if (found == names.end()) {
    std::string list;
    for (const auto& n : names) list += (list.empty() ? "" : ", ") + n;
    fail("%s:%d: no column \"%s\"; there are: %s", file.c_str(), head_line, name.c_str(),
         list.c_str());
  }
  return columns[size_t(found - names.begin())];
}

Table read_table(const std::string& file) {
  Table table{file, {}, 0, {}, {}, {}};
  std::ifstream stream(file);
  if (!stream) fail("%s: cannot be opened: %s", file.c_str(), std::strerror(errno));
  int number = 0;
  for (std::string line; std::getline(stream, line);) {
    ++number;
    if (line.starts_with("#")) {
      if (table.names.empty()) table.notes.push_back(trimmed(line.substr(1)));
      continue;
    }
    if (trimmed(line).empty()) continue;
    const auto fields = fields_of(line);
    if (table.names.empty()) {
      take_names(table, fields, number);
      continue;
    }
    if (fields.size() != table.names.size())
      fail("%s:%d: %zu fields, expected %zu as in line %d", file.c_str(), number, fields.size(),
           table.names.size(), table.head_line);
    for (size_t i = 0; i < fields.size(); ++i)
      table.columns[i].push_back(number_of(table, number, table.names[i], fields[i]));
    table.lines.push_back(number);
  }
  if (stream.bad()) fail("%s: cannot be read: %s", file.c_str(), std::strerror(errno));
  if (table.names.empty())
    fail("%s:%d: the file is empty, expected a line of column names", file.c_str(), number + 1);
  return table;
}

}  // namespace demo
