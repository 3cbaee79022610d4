#include "report.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "figures.hpp"
#include "ork/front.h"
#include "svg.hpp"

namespace demo {
namespace {

const char style[] =
#include "style.inc"
    ;

// A number for readers, with all its digits for programs.
std::string data(const std::string& id, double value, int decimals) {
  char digits[64];
  *std::to_chars(digits, digits + sizeof digits - 1, value).ptr = 0;
  return "<data id=\"" + id + "\" value=\"" + digits + "\">" + number(value, decimals) + "</data>";
}

std::string file_name(const std::string& path) { return path.substr(path.find_last_of('/') + 1); }

std::string grouped(int64_t count) {
  std::string text = std::to_string(count);
  for (int at = int(text.size()) - 3; at > 0; at -= 3) text.insert(size_t(at), "\u202f");
  return text;
}

std::string figure(const std::string& plot, const std::string& caption) {
  return "<figure>\n" + plot + "<figcaption>" + caption + "</figcaption>\n</figure>\n";
}

std::string cell(const std::string& text) { return "<td>" + text + "</td>"; }

std::string unbroken(std::string label) { return label.replace(label.find(' '), 1, "\u00a0"); }

// ---- Sections ----------------------------------------------------------------------------

std::string tile(const std::string& value, const std::string& unit, const std::string& name) {
  return "<div><b>" + value + "</b><span class=\"unit\">" + unit + "</span><span>" + name +
         "</span></div>\n";
}

std::string head(const Results& r) {
  const Quarters& q = r.quarters;
  const Bootstrap& b = r.bootstrap;
  const size_t top = size_t(std::max_element(q.unemployment.begin(), q.unemployment.end()) -
                            q.unemployment.begin());
  const Measured& exp = r.measured[0];
  return "<h1>Growth and unemployment</h1>\n<p class=\"lead\">" + q.label(0) + " to " +
         q.label(q.size() - 1) + ", " + std::to_string(q.size()) + " quarters from <code>" +
         escaped(file_name(r.table.file)) +
         "</code>. The figures on this page were computed with "
         "<code>ork_zem_p4m</code> on " +
         escaped(processor_name()) + ".</p>\n<div class=\"tiles\">\n" +
         tile(number(r.analysis.moments[gdp_growth].mean, 1), "% a year", "average growth of GDP") +
         tile(number(q.unemployment[top], 1), "%",
              "highest unemployment, " + unbroken(q.label(top))) +
         tile(number(r.analysis.cor(gdp_growth, unemployment_change), 2),
              number(b.low, 2) + " to " + number(b.high, 2),
              "correlation of growth and the change of unemployment") +
         tile(number(exp.c_library.cycles / exp.level[1].cycles, 0) + "\u00d7", "as fast",
              "exp at high accuracy, beside the C library") +
         "</div>\n";
}

std::string unemployment_section(const Results& r) {
  const Curve& c = r.curve;
  std::string text = "<h2>Unemployment</h2>\n";
  text += figure(
      unemployment_figure(r.quarters, c),
      "Unemployment by quarter (dots) and a natural cubic spline through the yearly averages, with "
      "its peaks. Shaded: "
      "GDP falls for two or more quarters in turn. The quarters lie " +
          data("rms", c.rms, 2) + " points (root mean square) from the curve. It rises by " +
          data("rise", c.rise.value, 1) + " points a year at its steepest, in " +
          std::to_string(int(c.rise.time)) + ", and falls by " + data("fall", -c.fall.value, 1) +
          " at its steepest, in " + std::to_string(int(c.fall.time)) + ".");
  text +=
      "<h3>Average unemployment, %</h3>\n<div "
      "class=\"scroll\"><table>\n<thead><tr><th>Years</th><th>integral of "
      "the curve</th><th>mean of the quarters</th></tr></thead>\n<tbody>\n";
  for (size_t i = 0; i < c.spans.size(); ++i) {
    const Span& s = c.spans[i];
    const auto year = [](double t) { return std::to_string(int(std::floor(t))); };
    text += "<tr><th class=\"years\">" + year(s.from) + " to " + year(s.to - 0.01) + "</th>" +
            cell(data("span-curve-" + std::to_string(i), s.by_curve, 2)) +
            cell(data("span-quarters-" + std::to_string(i), s.by_quarters, 2)) + "</tr>\n";
  }
  return text + "</tbody></table></div>\n";
}

std::string series_section(const Results& r) {
  const Analysis& a = r.analysis;
  const auto& series = r.quarters.series;
  std::string text =
      "<h2>Six series</h2>\n<p>Growth and inflation are 400 ln(<i>x</i><sub>t</sub> / "
      "<i>x</i><sub>t\u22121</sub>), "
      "the change from one quarter to the next as percent a year.</p>\n"
      "<h3>Moments</h3>\n<div class=\"scroll\"><table>\n<thead><tr><th>Series</th><th>mean</th>"
      "<th>standard deviation</th><th>skewness</th><th>excess "
      "kurtosis</th></tr></thead>\n<tbody>\n";
  const auto row_head = [](const Series& s) {
    return "<tr><th>" + std::string(s.name) + " <span class=\"unit\">" + s.unit + "</span></th>";
  };
  for (size_t i = 0; i < series.size(); ++i) {
    const Moments& m = a.moments[i];
    const std::string key = series[i].key;
    text += row_head(series[i]) + cell(data("mean-" + key, m.mean, 2)) +
            cell(data("deviation-" + key, m.deviation, 2)) +
            cell(data("skewness-" + key, m.skewness, 2)) +
            cell(data("kurtosis-" + key, m.kurtosis, 2)) + "</tr>\n";
  }
  text +=
      "</tbody></table></div>\n<h3>Quantiles</h3>\n<div "
      "class=\"scroll\"><table>\n<thead><tr><th>Series</th>"
      "<th>min</th><th>5\u202f%</th><th class=\"extra\">25\u202f%</th><th>median</th><th "
      "class=\"extra\">75\u202f%</th><th>95\u202f%</th><th>max</th></tr></thead>\n<tbody>\n";
  for (size_t i = 0; i < series.size(); ++i) {
    text += row_head(series[i]);
    for (size_t k = 0; k < quantile_count; ++k)
      text += (k == 2 || k == 4 ? "<td class=\"extra\">" : "<td>") +
              data("q" + std::to_string(k) + "-" + series[i].key, a.quantiles_of(i)[k], 2) +
              "</td>";
    text += "</tr>\n";
  }
  text +=
      "</tbody></table></div>\n<h3>Correlations</h3>\n<div class=\"scroll\"><table "
      "class=\"matrix\">\n<thead><tr><th></th>";
  for (const Series& s : series)
    text += "<th><span class=\"wide\">" + std::string(s.name) + "</span><span class=\"narrow\">" +
            s.short_name + "</span></th>";
  text += "</tr></thead>\n<tbody>\n";
  for (size_t i = 0; i < series.size(); ++i) {
    text += "<tr><th>" + std::string(series[i].name) + "</th>";
    for (size_t j = 0; j < series.size(); ++j) {
      const double c = a.cor(i, j);
      char tint[32];
      std::snprintf(tint, sizeof tint, "%s,%.2f", c < 0 ? "var(--minus)" : "var(--plus)",
                    0.55 * std::fabs(c));
      text += i == j ? "<td class=\"self\">1</td>"
                     : "<td style=\"background:rgba(" + std::string(tint) + ")\">" +
                           data(std::string("cor-") + series[i].key + "-" + series[j].key, c, 2) +
                           "</td>";
    }
    text += "</tr>\n";
  }
  return text + "</tbody></table></div>\n";
}

std::string bootstrap_section(const Results& r) {
  const Bootstrap& b = r.bootstrap;
  const Analysis& a = r.analysis;
  const double rho = a.cor(gdp_growth, unemployment_change);
  const double theory = (1 - rho * rho) / std::sqrt(double(r.quarters.size()) - 4);
  std::string text = "<h2>How firm is the link?</h2>\n";
  text += figure(scatter_figure(r.quarters, a),
                 "A dot for each quarter, with the line of least squares. A point of growth more "
                 "goes with a change of "
                 "unemployment " +
                     data("slope", std::fabs(a.slope), 3) + " points " +
                     (a.slope < 0 ? "lower" : "higher") + ". The correlation is " +
                     data("observed", rho, 3) + ".");
  text +=
      figure(bootstrap_figure(b, rho),
             "Correlations of " + grouped(int64_t(b.draws.size())) +
                 " resamples, quarters drawn anew with replacement; 95\u202f% of them lie from " +
                 data("boot-low", b.low, 3) + " to " + data("boot-high", b.high, 3) +
                 " (the fainter bars lie outside). The curve is the density by Fisher\u2019s "
                 "transformation, which takes the data for normal. The draws spread " +
                 number(std::fabs(100 * (b.deviation / theory - 1)), 0) + "\u202f% " +
                 (b.deviation > theory ? "wider" : "less") + ": standard deviation " +
                 data("boot-deviation", b.deviation, 4) + ".");
  text +=
      "<p>" + std::to_string(b.workers) + " workers on " + std::to_string(b.threads) +
      (b.threads == 1 ? " thread" : " threads") +
      " drew the resamples from one sequence of the generator MCG59, by leapfrogging: worker "
      "<i>k</i> takes numbers <i>k</i>, <i>k</i> + " +
      std::to_string(b.workers) + ", <i>k</i> + " + std::to_string(2 * b.workers) +
      " and so on. Their first " + grouped(b.leapfrog_compared) +
      " numbers, put together, equal those of an undivided stream bit by bit. Half-way one stream "
      "was saved to a file of " +
      std::to_string(b.image_bytes) +
      " bytes and read back; the restored stream did the rest of the work, while the old one drew "
      "beside it: " +
      grouped(b.restored_compared) + " numbers, no bit of difference.</p>\n";
  return text;
}

std::string robust_section(const Results& r) {
  const Robust& s = r.robust;
  std::string text = "<h2>Without the odd quarters</h2>\n";
  if (!s.found)
    return text + "<p>More than half of the quarters are alike: there is no robust scale.</p>\n";
  std::string names;
  for (size_t k = 0; k < s.apart.size() && k < 3; ++k)
    names += (k == 0 ? "" : ", ") + r.quarters.label(s.apart[k] + 1);
  return text +
         figure(robust_figure(r.quarters, s),
                "The same quarters. Within the line lie 39 of 40 by the robust estimate, which the "
                "quarters far from the bulk do not move; within the broken line by the classical "
                "one. " +
                    std::to_string(s.apart.size()) + " quarters lie beyond the line" +
                    (names.empty() ? "" : ", the farthest " + names) +
                    ". The robust correlation is " + number(s.robust.correlation, 3) +
                    ", the classical one " + number(s.classical.correlation, 3) + ".");
}

// "1 in 480 000", for a probability; powers of ten where it is small.
std::string once_in(double probability) {
  if (!(probability > 0)) return "practically never";
  const double n = 1 / probability;
  if (n >= 1e7) return "once in 10<sup>" + std::to_string(int(std::log10(n))) + "</sup> quarters";
  const double unit = std::pow(10, std::floor(std::log10(n)) - 1);
  return "once in " + grouped(int64_t(std::round(n / unit) * std::max(unit, 1.0))) + " quarters";
}

std::string quantile_section(const Results& r) {
  const Series& s = r.quarters.series[unemployment_change];
  const Moments& m = r.analysis.moments[unemployment_change];
  const size_t at = size_t(std::max_element(s.values.begin(), s.values.end()) - s.values.begin());
  const double z = (s.values[at] - m.mean) / m.deviation, minus = -z;
  double tail;
  ork_dCdfNorm(1, &minus, &tail);
  return "<h2>Not a bell curve</h2>\n" +
         figure(quantile_figure(r.quarters, r.analysis),
                "Quantiles of unemployment\u2019s change from quarter to quarter, beside those of "
                "a normal distribution; normal "
                "data would follow the line, which has their mean and deviation. (The steps come "
                "from rates that are given to "
                "a tenth.) The largest rise, " +
                    number(s.values[at], 1) + " points in " + r.quarters.label(at + 1) + ", lies " +
                    data("largest-z", z, 1) +
                    " deviations above the mean: a normal distribution gives so much " +
                    once_in(tail) + ".");
}

std::string speed_section(const Results& r) {
  std::string text = "<h2>Kernels on this machine</h2>\n";
  text +=
      figure(speed_figure(r.measured),
             "Time-stamp cycles per element, on a logarithmic scale: <i class=\"key "
             "performance\"></i>enhanced performance, "
             "<i class=\"key low-accuracy\"></i>low accuracy, <i class=\"key "
             "high-accuracy\"></i>high accuracy, "
             "<i class=\"key c-library\"></i>the C library in a loop. 1024 elements in the "
             "first-level cache, one thread, the "
             "least of many runs. Levels may share a kernel. Names with f are single precision.");
  text += "<h3>Worst error of " + grouped(sample_points) +
          " arguments, and cycles per element</h3>\n"
          "<div class=\"scroll\"><table>\n<thead>\n<tr><th rowspan=\"2\">Function</th><th "
          "rowspan=\"2\" class=\"unit\">arguments from</th>"
          "<th colspan=\"3\">error, ulp</th><th>right bits</th><th colspan=\"4\">cycles per "
          "element</th><th rowspan=\"2\">C library / HA</th></tr>\n"
          "<tr class=\"second\"><th>HA</th><th>LA</th><th>C "
          "library</th><th>EP</th><th>HA</th><th>LA</th><th>EP</th><th>C "
          "library</th></tr>\n</thead>\n<tbody>\n";
  for (const Measured& m : r.measured) {
    text += "<tr><th>" + m.name + "</th><td class=\"unit\">" + escaped(m.range) + "</td>" +
            cell(data("ulp-ha-" + m.name, m.level[1].ulp, 3)) +
            cell(data("ulp-la-" + m.name, m.level[0].ulp, 2)) + cell(number(m.c_library.ulp, 3)) +
            cell(data("bits-ep-" + m.name, m.level[2].bits, 1)) +
            cell(number(m.level[1].cycles, 1)) + cell(number(m.level[0].cycles, 1)) +
            cell(number(m.level[2].cycles, 1)) + cell(number(m.c_library.cycles, 0)) +
            cell(number(m.c_library.cycles / m.level[1].cycles, 1)) + "</tr>\n";
  }
  return text +
         "</tbody></table></div>\n<p>HA, LA and EP are high accuracy, low accuracy and enhanced "
         "performance. An ulp is the "
         "distance of neighbouring numbers at the exact result, which comes from extended "
         "precision; rounding alone "
         "costs up to 0.5.</p>\n";
}

std::string foot(const Results& r) {
  std::string text = "<footer>\n";
  for (const auto& note : r.table.notes) text += "<p>" + escaped(note) + "</p>\n";
  return text + "<p>Made by <code>./dev demo</code>.</p>\n</footer>\n";
}

}  // namespace

std::string page(const Results& r) {
  return "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\"/>\n"
         "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\"/>\n"
         "<title>Growth and unemployment</title>\n<style>" +
         std::string(style) + "</style>\n</head>\n<body>\n<main>\n" + head(r) +
         unemployment_section(r) + series_section(r) + robust_section(r) + bootstrap_section(r) +
         quantile_section(r) + speed_section(r) + foot(r) + "</main>\n</body>\n</html>\n";
}

}  // namespace demo
