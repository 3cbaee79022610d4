#include "series.hpp"

#include "fail.hpp"
#include "ork/front.h"

namespace demo {
namespace {

constexpr size_t least_rows = 20, most_rows = 2000;

// What the logarithm's error callback needs to name the culprit.
const Table* culprit_table;
const char* culprit_column;

int32_t on_log_error(ork_error_record* record) {
  fail("%s:%d: %s is %g, expected a positive number", culprit_table->file.c_str(),
       culprit_table->lines[size_t(record->index)], culprit_column, record->a1);
}

// 400 ln(x[t] / x[t-1]): growth from quarter to quarter, in percent a year.
std::vector<double> growth(const Table& table, const char* name) {
  const auto x = table.column(name);
  const int n = int(x.size());
  std::vector<double> log(x.size()), r(x.size() - 1);
  culprit_table = &table, culprit_column = name;
  ork_zem_kernel_SetErrorCallBack(on_log_error);
  ork_dLn(n, x.data(), log.data());
  ork_zem_kernel_ClearErrorCallBack();
  ork_dSub(n - 1, log.data() + 1, log.data(), r.data());
  ork_dLinearFrac(n - 1, r.data(), r.data(), 400, 0, 0, 1, r.data());
  return r;
}

std::vector<double> difference(const std::vector<double>& x) {
  std::vector<double> r(x.size() - 1);
  ork_dSub(int(r.size()), x.data() + 1, x.data(), r.data());
  return r;
}

// Each row is the quarter after the row before.
void take_calendar(Quarters& q, const Table& table) {
  const auto year = table.column("year"), quarter = table.column("quarter");
  for (size_t i = 0; i < table.rows(); ++i) {
    const int line = table.lines[i];
    const double y = year[i], k = quarter[i];
    if (!(y >= 1 && y <= 9999 && y == int(y)))
      fail("%s:%d: year is %g, expected a whole number from 1 to 9999", table.file.c_str(), line,
           y);
    if (!(k >= 1 && k <= 4 && k == int(k)))
      fail("%s:%d: quarter is %g, expected 1, 2, 3 or 4", table.file.c_str(), line, k);
    q.year.push_back(int(y)), q.quarter.push_back(int(k));
    if (i == 0) continue;
    const int next = q.year[i - 1] * 4 + q.quarter[i - 1];  // quarters since year 0
    if (int(y) * 4 + int(k) - 1 != next)
      fail("%s:%d: quarter %d of %d, expected quarter %d of %d after line %d", table.file.c_str(),
           line, int(k), int(y), next % 4 + 1, next / 4, table.lines[i - 1]);
  }
  const int n = int(table.rows());
  q.time.resize(table.rows());
  ork_dLinearFrac(n, quarter.data(), quarter.data(), 0.25, -0.125, 0, 1, q.time.data());
  ork_dAdd(n, q.time.data(), year.data(), q.time.data());
}

void find_downturns(Quarters& q) {
  const auto& growth = q.series[gdp_growth].values;  // growth[i] leads to quarter i + 1
  for (size_t i = 0; i < growth.size();) {
    size_t end = i;
    while (end < growth.size() && growth[end] < 0) ++end;
    if (end - i >= 2) q.downturns.emplace_back(q.time[i + 1] - 0.125, q.time[end] + 0.125);
    i = end + 1;
  }
}

}  // namespace

std::string Quarters::label(size_t i) const {
  return std::to_string(year[i]) + " Q" + std::to_string(quarter[i]);
}

Quarters transform(const Table& table) {
  if (table.rows() < least_rows || table.rows() > most_rows)
    fail("%s: %zu rows, expected from %zu to %zu quarters", table.file.c_str(), table.rows(),
         least_rows, most_rows);
  Quarters q;
  take_calendar(q, table);
  const auto bills = table.column("tbilrate");
  q.unemployment = table.column("unemp");
  q.series = {
      {"gdp", "GDP growth", "GDP", "% a year", growth(table, "realgdp")},
      {"cons", "Consumption growth", "Cons.", "% a year", growth(table, "realcons")},
      {"inv", "Investment growth", "Inv.", "% a year", growth(table, "realinv")},
      {"infl", "Inflation", "Infl.", "% a year", growth(table, "cpi")},
      {"bill", "Treasury bill rate", "Bill", "%", {bills.begin() + 1, bills.end()}},
      {"unemp", "Unemployment change", "Un.", "points", difference(q.unemployment)},
  };
  find_downturns(q);
  return q;
}

}  // namespace demo
