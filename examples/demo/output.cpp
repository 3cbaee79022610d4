#include "output.hpp"

#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>

#include "fail.hpp"

namespace demo {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail_to_write(const std::string& file, int error) {
  fail("%s: cannot be written: %s", file.c_str(), std::strerror(error));
}

// Of a link to nothing, too: the file that it names.
fs::path followed(fs::path path) {
  std::error_code none;
  for (int links = 0; links < 40 && fs::is_symlink(fs::symlink_status(path, none)); ++links)
    path = path.parent_path() / fs::read_symlink(path, none);  // `/` takes an absolute one alone
  return path;
}

// 0 or errno.
int put(const std::string& path, const char* mode, const std::string& text) {
  FILE* stream = std::fopen(path.c_str(), mode);
  if (!stream) return errno;
  int error = 0;
  if (std::fwrite(text.data(), 1, text.size(), stream) != text.size()) error = errno;
  if (std::fclose(stream) != 0 && error == 0) error = errno;
  return error;
}

}  // namespace

Output::Output(const std::string& file) : file_(file), target_(file) {
  std::error_code none;
  const fs::file_status status = fs::status(file, none);
  // A second name of the file would keep the old report.
  directly_ =
      fs::exists(status) && (!fs::is_regular_file(status) || fs::hard_link_count(file, none) > 1);
  if (!directly_) target_ = followed(file).string();
  const std::string place = directly_ ? (fs::temp_directory_path() / "demo").string() : target_;
  part_ = place + "." + std::to_string(getpid()) + ".part";
  if (fs::is_directory(status)) fail_to_write(file, EISDIR);
  if (directly_) {  // opening alone would wake a pipe's reader
    if (access(file.c_str(), W_OK) != 0) fail_to_write(file, errno);
  } else {
    if (const int error = put(part_, "wx", "")) fail_to_write(file, error);
    std::remove(part_.c_str());
  }
}

void Output::write(const std::string& text) const {
  if (directly_) {
    if (const int error = put(file_, "w", text)) fail_to_write(file_, error);
    return;
  }
  std::error_code none;
  const fs::file_status old = fs::status(target_, none);
  int error = put(part_, "wx", text);
  if (error == 0 && fs::exists(old)) fs::permissions(part_, old.permissions(), none);
  if (error == 0 && std::rename(part_.c_str(), target_.c_str()) != 0) error = errno;
  if (error == 0) return;
  std::remove(part_.c_str());
  fail_to_write(file_, error);
}

}  // namespace demo
