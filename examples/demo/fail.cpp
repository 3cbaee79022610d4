#include "fail.hpp"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>

namespace demo {

void fail(const char* pattern, ...) {
  va_list arguments;
  va_start(arguments, pattern);
  std::fflush(stdout);
  std::vfprintf(stderr, pattern, arguments);
  std::fputc('\n', stderr);
  va_end(arguments);
  std::exit(1);
}

void require(int status, const char* what) {
  if (status != 0) fail("%s failed with status %d", what, status);
}

}  // namespace demo
