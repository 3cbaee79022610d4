// The library at work on a table of quarterly economic data:
//
//   demo FILE.csv REPORT.html
//
// Columns read: year, quarter, realgdp, realcons, realinv, cpi, tbilrate, unemp. Writes the report
// whole or not at all. Exit status 0; 1 with a message for bad input; 2 for wrong arguments.
#include <cstdio>

#include "output.hpp"
#include "report.hpp"

namespace demo {
namespace {

int run(const std::string& input, const std::string& report) {
  Progress progress;
  Results r;
  r.table = read_table(input);
  r.quarters = transform(r.table);
  const Output output(report);
  r.analysis = analyse(r.quarters);
  r.robust = compare_robust(r.quarters);
  r.curve = fit_curve(r.quarters);
  r.bootstrap = bootstrap(r.quarters, r.analysis, output.scratch(), progress);
  r.measured = measure(progress);
  progress.end();
  output.write(page(r));
  std::printf("%s\nreport: %s\n", summary(r).c_str(), report.c_str());
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
