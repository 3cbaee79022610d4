// The text for the terminal.
#include <algorithm>
#include <cmath>
#include <cstdarg>

#include "report.hpp"

namespace demo {
namespace {

__attribute__((format(printf, 2, 3))) void add(std::string& text, const char* pattern, ...) {
  char line[256];
  va_list arguments;
  va_start(arguments, pattern);
  std::vsnprintf(line, sizeof line, pattern, arguments);
  va_end(arguments);
  text += std::string(line) + "\n";
}

}  // namespace

std::string summary(const Results& r) {
  const Quarters& q = r.quarters;
  const Analysis& a = r.analysis;
  const Bootstrap& b = r.bootstrap;
  std::string text;
  add(text, "%zu quarters, %s to %s", q.size(), q.label(0).c_str(), q.label(q.size() - 1).c_str());
  add(text, "%s", "");
  add(text, "%-32s %8s %8s %8s %8s", "", "mean", "st. dev.", "5 %", "95 %");
  for (size_t i = 0; i < q.series.size(); ++i)
    add(text, "%-32s %8.2f %8.2f %8.2f %8.2f",
        (std::string(q.series[i].name) + ", " + q.series[i].unit).c_str(), a.moments[i].mean,
        a.moments[i].deviation, a.quantiles_of(i)[1], a.quantiles_of(i)[5]);
  add(text, "%s", "");
  add(text,
      "correlation of growth and the change of unemployment: %.3f; %zu resamples: 95 %% from %.3f "
      "to %.3f",
      a.cor(gdp_growth, unemployment_change), b.draws.size(), b.low, b.high);
  add(text,
      "leapfrog, %d workers: %lld numbers equal the undivided stream's; restored stream: %lld "
      "numbers equal",
      b.workers, (long long)b.leapfrog_compared, (long long)b.restored_compared);
  add(text, "spline through %zu yearly averages: %.2f points rms from the quarters, %zu peaks",
      r.curve.knot_time.size(), r.curve.rms, r.curve.peaks.size());
  add(text, "%s", "");
  add(text, "%-6s  %8s %8s %8s   %7s %7s %7s %9s", "", "HA ulp", "LA ulp", "EP bits", "HA", "LA",
      "EP", "C library");
  for (const Measured& m : r.measured)
    add(text, "%-6s  %8.3f %8.2f %8.1f   %7.1f %7.1f %7.1f %9.0f  cycles/element", m.name.c_str(),
        m.level[1].ulp, m.level[0].ulp, m.level[2].bits, m.level[1].cycles, m.level[0].cycles,
        m.level[2].cycles, m.c_library.cycles);
  return text;
}

}  // namespace demo
