#pragma once
// Statistics tasks with data of their own, and what the moments of that data are.
#include <random>

#include "ss/api.hpp"
#include "support/blocks.hpp"
#include "support/pch.hpp"

namespace statistics {

// An integer parameter. Tasks in single take 64 bits, those in double 32 and have no eye for what
// stands behind them.
template <class R>
struct Integer {
  static constexpr bool wide = sizeof(R) == 4;
  int low, high;

  Integer(int value = 0) : low(value), high(wide ? value >> 31 : 0x5A5A5A5A) {}
  operator int() const { return low; }
};

// A task and its arrays. Arrays are padded with canaries, and filled with one that no result is.
template <class R>
struct Task {
  static constexpr R canary = R(-7777);
  static constexpr int pad = 4;
  Integer<R> p, n, storage;
  ork_ss_task* task = nullptr;
  std::map<int, std::vector<R>> arrays;  // by edit code
  std::map<int, Integer<R>> integers;
  std::vector<int> mask, mask_words;

  Task(int p, int n, int storage, const R* x, const R* w = nullptr, std::vector<int> mask = {})
      : p(p), n(n), storage(storage) {
    set_mask(mask);
    const int status = Api<R>::make(&task, &this->p, &this->n, &this->storage, x, w,
                                    mask.empty() ? nullptr : mask_words.data(), Integer<R>::wide);
    EXPECT_EQ(status, blocks::failed() ? ORK_SS_NO_MEMORY : 0);
  }
  ~Task() { __ruaSSDeleteTask(&task); }
  Task(const Task&) = delete;

  // Of the same length as before. Only the low words of its entries count.
  void set_mask(const std::vector<int>& entries) {
    mask = entries;
    mask_words.resize(entries.size() * (Integer<R>::wide ? 2 : 1));
    for (size_t j = 0; j < mask_words.size(); ++j)
      mask_words[j] = !Integer<R>::wide ? entries[j] : j % 2 ? 1 : entries[j / 2];
  }
  // What editing returns: there is no task where its allocation had to fail.
  int edited() const { return task ? ORK_SS_OK : ORK_SS_NULL_TASK; }
  R* array(int code, int size, R fill = canary) {
    auto& a = arrays[code];
    a.assign(size + 2 * pad, canary);
    std::fill(a.begin() + pad, a.end() - pad, fill);
    EXPECT_EQ(Api<R>::edit(task, code, a.data() + pad), edited());
    return a.data() + pad;
  }
  R* operator[](int code) { return arrays.at(code).data() + pad; }
  void integer(int code, int value) {
    integers[code] = value;
    EXPECT_EQ(__ruaiSSEditTask(task, code, &integers[code]), edited());
  }
  void expect_canaries() {
    for (const auto& [code, a] : arrays)
      for (int i = 0; i < pad; ++i) {
        EXPECT_EQ(a[i], canary) << code;
        EXPECT_EQ(a[a.size() - 1 - i], canary) << code;
      }
  }
  int call(decltype(Api<R>::basic) entry, uint64_t estimates, uint64_t method,
           const ork_threader* table = &ork_threader_serial) {
    return entry(task, uint32_t(estimates), uint32_t(estimates >> 32), uint32_t(method),
                 uint32_t(method >> 32), table);
  }
};

// n observations of p variables, of unlike means and spreads, row after row of observations
// (columns) or variable after variable.
template <class R>
struct Sample {
  int p, n;
  std::vector<R> columns, rows, w;

  Sample(int p, int n, unsigned seed = 1) : p(p), n(n), columns(p * n), rows(p * n), w(n) {
    std::mt19937 g(seed);
    std::gamma_distribution<double> gamma(2, 1);
    std::normal_distribution<double> gauss;
    for (int i = 0; i < n; ++i) {
      const double common = gauss(g);
      for (int j = 0; j < p; ++j)
        rows[j * n + i] = columns[i * p + j] =
            R((j + 1) * 0.5 * (gamma(g) + common) + (j % 3 - 1) * 2);
      w[i] = i % 7 == 0 ? R(0) : R(0.25) * R(1 + g() % 8);
    }
  }
  const R* data(int storage) const { return storage == ORK_SS_ROWS ? rows.data() : columns.data(); }
};

// Two passes in long double.
struct Moments {
  long double w = 0, w2 = 0;
  std::vector<std::array<long double, 8>> raw, central;  // sums, by variable and power
  std::vector<long double> products;                     // p by p

  template <class R>
  Moments(const Sample<R>& s, bool weighted, const R* given_mean = nullptr)
      : raw(s.p), central(s.p), products(s.p * s.p) {
    const auto x = [&](int i, int j) { return (long double)s.columns[i * s.p + j]; };
    for (auto& a : raw) a = {};
    for (auto& a : central) a = {};
    for (int i = 0; i < s.n; ++i) {
      const long double one = weighted ? (long double)s.w[i] : 1;
      w += one, w2 += one * one;
      for (int j = 0; j < s.p; ++j)
        for (int k = 1; k <= 4; ++k) raw[j][k] += one * powl(x(i, j), k);
    }
    for (int i = 0; i < s.n; ++i) {
      const long double one = weighted ? (long double)s.w[i] : 1;
      const auto d = [&](int j) {
        return x(i, j) - (given_mean ? (long double)given_mean[j] : raw[j][1] / w);
      };
      for (int j = 0; j < s.p; ++j) {
        for (int k = 2; k <= 4; ++k) central[j][k] += one * powl(d(j), k);
        for (int k = 0; k < s.p; ++k) products[j * s.p + k] += one * d(j) * d(k);
      }
    }
  }
  long double divisor() const { return w - w2 / w; }
  long double mean(int j) const { return raw[j][1] / w; }
  long double c2(int j) const { return central[j][2] / divisor(); }
  // By the edit code of the array.
  long double value(int code, int j) const {
    if (code >= ORK_SS_EDIT_MEAN && code <= ORK_SS_EDIT_RAW4)
      return raw[j][code - ORK_SS_EDIT_MEAN + 1] / w;
    if (code >= ORK_SS_EDIT_SUM && code <= ORK_SS_EDIT_SUM4)
      return raw[j][code - ORK_SS_EDIT_SUM + 1];
    if (code >= ORK_SS_EDIT_CENTRAL_SUM2 && code <= ORK_SS_EDIT_CENTRAL_SUM4)
      return central[j][code - ORK_SS_EDIT_CENTRAL_SUM2 + 2];
    switch (code) {
      case ORK_SS_EDIT_CENTRAL2:
        return c2(j);
      case ORK_SS_EDIT_CENTRAL3:
        return central[j][3] / w;
      case ORK_SS_EDIT_CENTRAL4:
        return central[j][4] / w;
      case ORK_SS_EDIT_KURTOSIS:
        return central[j][4] / w / (c2(j) * c2(j)) - 3;
      case ORK_SS_EDIT_SKEWNESS:
        return central[j][3] / w / (c2(j) * sqrtl(c2(j)));
      case ORK_SS_EDIT_VARIATION:
        return sqrtl(c2(j)) / mean(j);
    }
    ADD_FAILURE() << code;
    return 0;
  }
  long double matrix_value(int code, int i, int j) const {
    const int p = int(raw.size());
    const long double s = products[i * p + j];
    if (code == ORK_SS_EDIT_CROSS_PRODUCT) return s;
    if (code == ORK_SS_EDIT_COV || i == j) return s / divisor();
    return s / sqrtl(products[i * p + i] * products[j * p + j]);
  }
};

}  // namespace statistics
