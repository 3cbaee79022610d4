// The headers tell which statuses a function raises: over special and ordinary arguments each
// kernel raises those and no others.
#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "support/control.hpp"
#include "support/pch.hpp"
#include "support/special.hpp"

namespace {

// functions.tsv: {function and type letter: {status: what stands in brackets behind it}}.
std::map<std::string, std::map<int, std::string>> told() {
  std::map<std::string, std::map<int, std::string>> rows;
  std::ifstream file(ORK_SOURCE_DIR "/zem/zem_core/frame/functions.tsv");
  for (std::string line; std::getline(file, line);) {
    std::istringstream cells(line);
    std::string function, kinds, sentence, statuses;
    std::getline(cells, function, '\t'), std::getline(cells, kinds, '\t');
    std::getline(cells, sentence, '\t'), std::getline(cells, statuses, '\t');
    std::map<int, std::string> row;
    for (size_t at = 0; at < statuses.size();
         at = std::min(statuses.find("; ", at), line.size()) + 2) {
      const size_t open = statuses.find(" (", at);
      row[statuses[at] - '0'] =
          open == at + 1 ? statuses.substr(open + 2, statuses.find(')', at) - open - 2) : "";
    }
    for (const char kind : kinds)
      for (const char type : kind == 'r' ? "ds" : "zc") rows[function + type] = row;
  }
  return rows;
}

template <class T>
std::vector<T> points(bool few) {
  using L = std::numeric_limits<T>;
  std::vector<T> p = {0,
                      L::denorm_min(),
                      L::min(),
                      T(0.5),
                      std::nextafter(T(1), T(0)),
                      1,
                      T(1.5),
                      2,
                      T(10),
                      T(34.5),
                      T(100),
                      T(171.7),
                      T(720),
                      T(1e5),
                      T(1e30),
                      L::max(),
                      L::infinity(),
                      L::quiet_NaN()};
  for (int e = L::min_exponent; !few && e < L::max_exponent; e += 7)
    p.push_back(std::ldexp(T(1.37), e));
  for (T x = T(0.25); !few && x < 200; x += T(0.25)) p.push_back(x);
  for (size_t i = 0, n = p.size(); i < n; ++i) p.push_back(-p[i]);
  return p;
}

template <class T>
void expect_as_told(const Call<T>& call, const std::map<int, std::string>& row) {
  const bool parts = call.in_parts() == 2,
             two = call.inputs() == 2 || call.slot->form == Form::scalar;
  std::set<int> seen, due;
  const std::vector<T> first = points<T>(parts || two),
                       second = parts || two ? first : std::vector<T>{0};
  const std::vector<T> third =
      parts && two ? std::vector<T>{0, 1, T(-2.5), T(1e-30), std::numeric_limits<T>::max()}
                   : std::vector<T>{0};
  for (const T x : first)
    for (const T y : second)
      for (const T u : third)
        for (const T v : third) {
          const T a[2] = {x, y}, b[2] = {parts ? u : y, v};
          T r[2], r2[2];
          ork_zem_kernel_ClearErrStatus();
          call(1, a, b, r, r2);
          seen.insert(ork_zem_kernel_GetErrStatus());
        }
  seen.erase(0);
  static const char* const levels[] = {"LA", "HA", "EP"};
  const std::string name = call.slot->kernels[call.level];
  for (const auto& [status, only] : row) {
    bool applies = only.empty() || only == std::string(1, call.slot->type);
    for (int level = 0; level < 3; ++level)
      applies |= only.find(levels[level]) != only.npos && call.slot->kernels[level] == name;
    if (applies) due.insert(status);
  }
  EXPECT_EQ(due, seen) << call.slot->name(call.level);
}

TEST(ToldStatuses, AreThoseRaised) {
  const StateGuard guard;
  ork_zem_kernel_SetMode(ORK_ZEM_ERRMODE_IGNORE);
  const auto rows = told();
  ASSERT_GT(rows.size(), 150u);
  const auto all = [&](const auto& calls) {
    for (const auto& call : calls) {
      const auto row = rows.find(call.slot->function + std::string(1, call.slot->type));
      ASSERT_NE(row, rows.end()) << call.slot->function;
      expect_as_told(call, row->second);
    }
  };
  all(elementwise_kernels<double>());
  all(elementwise_kernels<float>());
  all(complex_kernels<double>());
  all(complex_kernels<float>());
}

}  // namespace
