#pragma once
// The report's place: a file is replaced whole or not at all, links to it stay links; a device or
// a pipe is written to as it is.
#include <string>

namespace demo {

class Output {
 public:
  // Fails where nothing could be written in the end.
  explicit Output(const std::string& file);

  const std::string& file() const { return file_; }
  // For a file that is removed again: beside the report, or where temporary files go.
  std::string scratch() const { return part_ + ".scratch"; }
  void write(const std::string& text) const;

 private:
  std::string file_;
  std::string target_;  // what links lead to
  std::string part_;    // the report until it is whole
  bool directly_;
};

}  // namespace demo
