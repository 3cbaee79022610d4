// The library at work on a table of quarterly economic data:
//
//   demo FILE.csv REPORT.html
//
// Columns read: year, quarter, realgdp, realcons, realinv, cpi, tbilrate, unemp. Writes the report
// whole or not at all. Exit status 0; 1 with a message for bad input; 2 for wrong arguments.
#include <cerrno>
#include <cstdio>
#include <cstring>

#include "fail.hpp"
#include "report.hpp"

namespace demo {
namespace {

void write_whole(const std::string& file, const std::string& text) {
  const std::string part = file + ".part";
  FILE* stream = std::fopen(part.c_str(), "w");
  if (!stream) fail("%s: cannot be written: %s", file.c_str(), std::strerror(errno));
  bool ok = std::fwrite(text.data(), 1, text.size(), stream) == text.size();
  ok &= std::fclose(stream) == 0;
  ok = ok && std::rename(part.c_str(), file.c_str()) == 0;
  if (ok) return;
  const int error = errno;
  std::remove(part.c_str());
  fail("%s: cannot be written: %s", file.c_str(), std::strerror(error));
}

// Tells early of a place where no report can be written.
void check_writable(const std::string& file) {
  const std::string part = file + ".part";
  FILE* stream = std::fopen(part.c_str(), "w");
  if (!stream) fail("%s: cannot be written: %s", file.c_str(), std::strerror(errno));
  std::fclose(stream);
  std::remove(part.c_str());
}

int run(const std::string& input, const std::string& output) {
  Progress progress;
  Results r;
  r.table = read_table(input);
  r.quarters = transform(r.table);
  check_writable(output);
  r.analysis = analyse(r.quarters);
  r.curve = fit_curve(r.quarters);
  r.bootstrap = bootstrap(r.quarters, r.analysis, output + ".stream", progress);
  r.measured = measure(progress);
  progress.end();
  write_whole(output, page(r));
  std::printf("%s\nreport: %s\n", summary(r).c_str(), output.c_str());
  return 0;
}

}  // namespace
}  // namespace demo

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fprintf(stderr, "usage: demo FILE.csv REPORT.html\n");
    return 2;
  }
  return demo::run(argv[1], argv[2]);
}
