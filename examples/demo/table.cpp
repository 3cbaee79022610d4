#include "table.hpp"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <utility>

#include "fail.hpp"

namespace demo {
namespace {

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

std::string trimmed(const std::string& text) {
  const char* blanks = " \t\r";
  const size_t first = text.find_first_not_of(blanks);
  if (first == std::string::npos) return "";
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::string contents(const std::string& file) {
  FILE* stream = std::fopen(file.c_str(), "r");
  if (!stream) fail("%s: cannot be opened: %s", file.c_str(), std::strerror(errno));
  std::string text;
  char part[4096];
  while (const size_t n = std::fread(part, 1, sizeof part, stream)) text.append(part, n);
  if (std::ferror(stream)) fail("%s: cannot be read: %s", file.c_str(), std::strerror(errno));
  std::fclose(stream);
  return text;
}

// Goes through the text, line by line and field by field.
class Reader {
 public:
  Reader(const std::string& file, std::string text) : file_(file), text_(std::move(text)) {
    if (text_.starts_with("\xEF\xBB\xBF")) at_ = 3;
  }
  int line() const { return line_; }
  bool at_end() const { return at_ == text_.size(); }

  bool at_note() const { return !at_end() && text_[at_] == '#'; }
  bool at_blank_line() const { return trimmed(rest_of_line()).empty(); }
  std::string pass_line() {
    const std::string rest = rest_of_line();
    at_ += rest.size();
    pass_line_end();
    return rest;
  }

  // What the line at hand has most of, outside quotes.
  void choose_separator() {
    size_t most = 0;
    for (const char candidate : {',', ';', '\t'}) {
      size_t count = 0;
      bool quoted = false;
      for (size_t i = at_; i < text_.size() && (quoted || text_[i] != '\n'); ++i) {
        quoted ^= text_[i] == '"';
        count += !quoted && text_[i] == candidate;
      }
      if (count > most) most = count, separator_ = candidate;
    }
  }

  std::vector<std::string> fields() {
    std::vector<std::string> all;
    for (bool more = true; more; all.push_back(field(more))) {
    }
    pass_line_end();
    return all;
  }

 private:
  static bool is_blank(char c) { return c == ' ' || c == '\t' || c == '\r'; }
  std::string rest_of_line() const { return text_.substr(at_, text_.find('\n', at_) - at_); }
  void pass_line_end() {
    if (!at_end()) ++at_, ++line_;
  }
  bool ends_field() const { return at_end() || text_[at_] == separator_ || text_[at_] == '\n'; }
  void pass_blanks() {
    while (!ends_field() && is_blank(text_[at_])) ++at_;
  }

  std::string field(bool& more) {
    std::string value;
    pass_blanks();
    if (!at_end() && text_[at_] == '"') {
      value = quoted();
      pass_blanks();
      if (!ends_field())
        fail("%s:%d: text after the quoted field \"%s\"", file_.c_str(), line_,
             shown(value).c_str());
    } else {
      const size_t start = at_;
      while (!ends_field()) ++at_;
      value = trimmed(text_.substr(start, at_ - start));
    }
    more = !at_end() && text_[at_] == separator_;
    at_ += more;
    return value;
  }

  std::string quoted() {
    const int first = line_;
    std::string value;
    for (++at_;; ++at_) {
      if (at_end()) fail("%s:%d: a quoted field without end", file_.c_str(), first);
      if (text_[at_] == '"' && (++at_ == text_.size() || text_[at_] != '"')) return value;
      line_ += text_[at_] == '\n';
      value += text_[at_];
    }
  }

  const std::string& file_;
  std::string text_;
  size_t at_ = 0;
  int line_ = 1;
  char separator_ = ',';
};

}  // namespace

std::vector<double> Table::column(const std::string& name) const {
  const auto found = std::find(names.begin(), names.end(), name);
  if (found == names.end()) {
    std::string list;
    for (const auto& n : names) list += (list.empty() ? "" : ", ") + shown(n);
    fail("%s:%d: no column \"%s\"; there are: %s", file.c_str(), head_line, name.c_str(),
         list.c_str());
  }
  if (std::find(found + 1, names.end(), name) != names.end())
    fail("%s:%d: column \"%s\" occurs twice", file.c_str(), head_line, name.c_str());
  std::vector<double> numbers;
  for (size_t i = 0; i < rows(); ++i)
    numbers.push_back(number_of(*this, lines[i], name, fields[i][size_t(found - names.begin())]));
  return numbers;
}

Table read_table(const std::string& file) {
  Table table{file, {}, 0, {}, {}, {}};
  Reader reader(table.file, contents(file));
  while (!reader.at_end()) {
    const int line = reader.line();
    if (reader.at_note()) {
      const std::string note = trimmed(reader.pass_line().substr(1));
      if (table.names.empty()) table.notes.push_back(note);
      continue;
    }
    if (reader.at_blank_line()) {
      reader.pass_line();
      continue;
    }
    if (table.names.empty()) {
      reader.choose_separator();
      table.names = reader.fields();
      table.head_line = line;
      continue;
    }
    table.fields.push_back(reader.fields());
    table.lines.push_back(line);
    if (table.fields.back().size() != table.names.size())
      fail("%s:%d: %zu fields, expected %zu as in line %d", file.c_str(), line,
           table.fields.back().size(), table.names.size(), table.head_line);
  }
  if (table.names.empty())
    fail("%s:%d: the file is empty, expected a line of column names", file.c_str(), reader.line());
  return table;
}

}  // namespace demo
