// Interpolation: every kind of spline against its pieces in long double, over layouts, flags,
// roads (one site, a few, blocks, threads), cells in and out, and callbacks.
#include <array>

#include "df/request.hpp"

namespace {

struct KindCase {
  int order, type;
  int64_t ic;
};
const KindCase kinds[] = {{2, 0, 0},  {3, 0, 0}, {4, 0, 0},  {4, 5, 0}, {3, 1, 0}, {3, 1, 8},
                          {3, 1, 12}, {6, 0, 0}, {13, 2, 0}, {0, 7, 0}, {0, 8, 0}};

template <class T>
struct Ask {
  std::vector<T> site;
  std::vector<int> flags;
  int64_t site_hint = 0, result_hint = 0, type = 1;
  typename Df<T>::interp_callback* callback[3] = {};  // left, inside, right
  void* params = nullptr;
  typename Df<T>::search_callback* search = nullptr;
  void* search_params = nullptr;
  const ork_threader* threader = &ork_threader_serial;
  void* cell = nullptr;
  bool wide = false;
  int64_t total = -1;  // generated sites

  std::vector<T> result{};

  int count() const {
    const int sum = int(std::count(flags.begin(), flags.end(), 1));
    return sum == 0 ? 1 : sum;
  }
  int64_t sites() const { return total >= 0 ? total : int64_t(site.size()); }
  // The orders asked for, ascending.
  std::vector<int> orders() const {
    std::vector<int> o;
    for (int k = 0; k < int(flags.size()); ++k)
      if (flags[k]) o.push_back(k);
    return o.empty() ? std::vector<int>{0} : o;
  }
  int run(const Spline<T>& s) {
    Lender lend;
    result.assign(size_t(sites()) * s.ny * count(), T(-9));
    T* out = lend(result);
    const std::vector<int64_t> wide_flags(flags.begin(), flags.end());
    const void* lent = wide ? (const void*)lend(wide_flags) : lend(flags);
    const int code = Df<T>::interpolate(
        s.task, type, 0, sites(), lend(site), site_hint, int64_t(flags.size()),
        flags.empty() ? nullptr : lent, nullptr, out, result_hint, cell, callback[0], params,
        callback[2], params, callback[1], params, search, search_params, threader);
    std::copy(out, out + result.size(), result.begin());
    return code;
  }
  T at(const Spline<T>& s, int f, int j, int k) const {
    const size_t n = size_t(sites());
    (void)s;
    return result_hint == 0 || result_hint == 32 ? result[(size_t(f) * count() + k) * n + j]
                                                 : result[(size_t(f) * n + j) * count() + k];
  }
};

// The results of a request without callbacks.
template <class T>
void check(const Ask<T>& ask, const Spline<T>& s, const std::vector<T>& site, const char* what) {
  const std::vector<int> orders = ask.orders();
  const T eps = std::numeric_limits<T>::epsilon();
  for (int j = 0; j < int(site.size()); ++j) {
    const int p = s.piece(site[j], plain_cell(s.x, site[j]));
    for (int f = 0; f < s.ny; ++f)
      for (int k = 0; k < int(orders.size()); ++k) {
        long double size;
        const long double exact = s.at(f, p, site[j], orders[k], &size);
        ASSERT_NEAR((double)ask.at(s, f, j, k), (double)exact,
                    (double)(4 * (s.order + 1) * eps * size))
            << what << " order " << s.order << " type " << s.type << " ic " << s.ic << " site " << j
            << " of " << site.size() << " f " << f << " derivative " << orders[k] << " grid "
            << int(s.grid);
      }
  }
}

template <class T>
void check_kinds() {
  std::mt19937 random(1);
  const std::vector<int> flag_sets[] = {{},
                                        {0, 0},
                                        {1},
                                        {0, 1},
                                        {1, 1},
                                        {1, 1, 1},
                                        {0, 0, 1, 1},
                                        {1, 0, 1, 1, 0, 1},
                                        {0, 0, 0, 0, 1}};
  for (const KindCase& kind : kinds)
    for (Grid grid : {Grid::even, Grid::free})
      for (int nx : {2, 5, 60}) {
        if (kind.ic == 12 && nx == 2) continue;  // one point stands for two
        Spline<T> s(grid, nx, nx == 5 ? 3 : 1, kind.order, kind.type, random, 0, nx == 5 ? 32 : 0,
                    kind.ic);
        for (int n : {1, 2, 3, 31, 32, 64, 131, 1030})
          for (const auto& flags : flag_sets) {
            Ask<T> ask{make_sites(s.x, n, random), flags};
            if (kind.type == 1 && kind.ic != 12)  // points where the parabolas meet
              for (int j = 0; j < n; j += 3) ask.site[j] = s.inner(1 + int(random() % (nx - 1)));
            const int variant = int(random() % 12);
            ask.result_hint = (const int64_t[]){0, 16, 32, 128}[variant % 4];
            if (variant % 3 == 1) std::sort(ask.site.begin(), ask.site.end()), ask.site_hint = 64;
            ASSERT_EQ(ask.run(s), 0);
            check(ask, s, ask.site, "plain");
            const std::vector<T> serial = ask.result;
            ask.threader = Recorder::table(3);
            ASSERT_EQ(ask.run(s), 0);
            ASSERT_EQ(memcmp(serial.data(), ask.result.data(), serial.size() * sizeof(T)), 0);
          }
      }
}

TEST(Interpolate, EveryKindFollowsItsPieces) {
  check_kinds<double>();
  check_kinds<float>();
}

// One site gives the bits that it has among others, whatever the grid is called.
TEST(Interpolate, OneSiteAsAmongOthers) {
  std::mt19937 random(4);
  for (Grid grid : {Grid::even, Grid::near_even, Grid::free})
    for (int order : {2, 3, 4}) {
      Spline<double> s(grid, 30, 1, order, 0, random);
      for (double site : make_sites(s.x, 50, random)) {
        Ask<double> one{{site}, {1, 1, 1}}, two{{site, s.x[3]}, {1, 1, 1}};
        one.result_hint = two.result_hint = 16;
        ASSERT_EQ(one.run(s), 0);
        ASSERT_EQ(two.run(s), 0);
        EXPECT_EQ(memcmp(one.result.data(), two.result.data(), 3 * sizeof(double)), 0) << site;
        double scalar[3];
        const int flags[] = {1, 1, 1}, kind = grid == Grid::even        ? 0
                                              : grid == Grid::near_even ? 1
                                                                        : 2;
        ASSERT_EQ(_Interp1DKernel_scalar(s.task, order - 2, kind, site, 3, flags, scalar, nullptr,
                                         nullptr, nullptr, nullptr, nullptr, nullptr),
                  0);
        EXPECT_EQ(memcmp(one.result.data(), scalar, sizeof scalar), 0) << site;
      }
    }
}

TEST(Interpolate, LaunchesTasksOfFiveBlocksThenOne) {
  std::mt19937 random(6);
  Spline<double> s(Grid::free, 30, 1, 4, 0, random);
  const struct {
    int n;
    std::vector<std::pair<int, int>> launches;
  } rows[] = {{512, {}},
              {513, {{1, 1}, {3, 3}}},
              {3 * 320 + 70, {{3, 3}, {1, 1}}},
              {640, {{2, 2}}},
              {6 * 320 + 5, {{6, 4}}}};
  for (const auto& row : rows) {
    Ask<double> ask{make_sites(s.x, row.n, random), {1}};
    ask.threader = Recorder::table(4);
    ASSERT_EQ(ask.run(s), 0);
    EXPECT_EQ(Recorder::launches, row.launches) << row.n;
    check(ask, s, ask.site, "threads");
  }
}

template <class T>
void check_generated() {
  std::mt19937 random(8);
  for (int n : {1, 2, 31, 40, 700}) {
    Spline<T> s(Grid::free, 50, 2, 4, 0, random);
    Ask<T> ask{{T(-2), T(26)}, {1, 0, 1}};
    ask.site_hint = 4, ask.total = n;
    std::vector<T> site(n);
    for (int j = 0; j < n; ++j) site[j] = n == 1 ? T(-2) : T(T(j) * (T(28) / T(n - 1)) + T(-2));
    for (auto* threader : {&ork_threader_serial, Recorder::table(2)}) {
      ask.threader = threader;
      ASSERT_EQ(ask.run(s), 0);
      check(ask, s, site, "generated");
    }
  }
}

TEST(Interpolate, GeneratedSites) {
  check_generated<double>();
  check_generated<float>();
}

TEST(Interpolate, CellsGoOutAndComeBack) {
  std::mt19937 random(10);
  for (int64_t width : {0, 1})
    for (int n : {1, 20, 100, 700})
      for (Grid grid : {Grid::even, Grid::free}) {
        Spline<double> s(grid, 40, 2, 4, 2, random, width);
        Ask<double> ask{make_sites(s.x, n, random), {1, 1}};
        Lender lend;
        int32_t* narrow = lend(std::vector<int32_t>(n, -9));
        int64_t* wide = lend(std::vector<int64_t>(n, -9));
        ask.wide = width != 0;
        ask.cell = width ? (void*)wide : narrow;
        ask.type = 3;
        ASSERT_EQ(ask.run(s), 0);
        for (int j = 0; j < n; ++j)
          ASSERT_EQ(width ? wide[j] : narrow[j], plain_cell(s.x, ask.site[j]));
        check(ask, s, ask.site, "cells out");
        // Taken as they are: shifted by one they name the neighbours' polynomials.
        for (int j = 0; j < n; ++j)
          narrow[j] = std::min(narrow[j] + 1, 40), wide[j] = std::min<int64_t>(wide[j] + 1, 40);
        ask.type = 4;
        ASSERT_EQ(ask.run(s), 0);
        for (int j = 0; j < n; ++j) {
          long double size;
          const int p = s.piece(ask.site[j], int(width ? wide[j] : narrow[j]));
          const long double exact = s.at(1, p, ask.site[j], 0, &size);
          ASSERT_NEAR((double)ask.at(s, 1, j, 0), (double)exact, 1e-14 * (double)size);
        }
      }
}

// ---- Callbacks ----------------------------------------------------------------------------

// Checks what it is given and answers with a function of site, place and piece.
struct Answer {
  const Spline<double>* spline;
  int count;
  int fail_on = -1;  // side whose calls fail
  std::atomic<int> calls[3] = {};

  static double value(double site, int f, int k) { return 1000 * (f + 1) + 100 * k + site / 64; }

  template <int side>
  static int32_t call(const int64_t* n, const int64_t* piece, const double* site, double* result,
                      void* self) {
    auto& a = *static_cast<Answer*>(self);
    const Spline<double>& s = *a.spline;
    ++a.calls[side];
    if (a.fail_on == side) return -70 - side;
    EXPECT_GE(*n, 1);
    EXPECT_LE(*n, 64);
    for (int j = 0; j < *n; ++j) {
      const int last = s.pieces() - 1;
      EXPECT_EQ(piece[j], side == 0   ? 0
                          : side == 2 ? last
                                      : std::min(plain_cell(s.x, site[j]) - 1, last));
      EXPECT_EQ(side, site[j] < s.x[0]       ? 0
                      : site[j] > s.x.back() ? 2
                      : site[j] < s.x.back() ? 1
                                             : side);
    }
    for (int f = 0; f < s.ny; ++f)
      for (int j = 0; j < *n; ++j)
        for (int k = 0; k < a.count; ++k, ++result) {
          EXPECT_EQ(*result, 0);
          *result = value(site[j], f, k);
        }
    return 3;
  }
};

TEST(Interpolate, CallbacksServeTheirSide) {
  std::mt19937 random(12);
  const std::vector<int> flags = {1, 0, 1};
  for (const KindCase& kind :
       {KindCase{4, 2, 0}, KindCase{3, 1, 8}, KindCase{11, 0, 0}, KindCase{0, 7, 0}})
    for (int given = 1; given < 8; ++given)
      for (int n : {1, 30, 100, 900})
        for (int64_t hint : {0, 64})
          for (int ny : {1, 40}) {
            Spline<double> s(Grid::free, 20, ny, kind.order, kind.type, random, 0, 0, kind.ic);
            Ask<double> ask{make_sites(s.x, n, random), flags};
            if (n > 2) ask.site[1] = ask.site[2] = s.x.back();
            if (hint == 64) std::sort(ask.site.begin(), ask.site.end());
            ask.site_hint = hint;
            ask.result_hint = n == 30 ? 16 : 0;
            Answer answer{&s, ask.count()};
            ork_df_interp_d* all[] = {Answer::call<0>, Answer::call<1>, Answer::call<2>};
            for (int side = 0; side < 3; ++side)
              ask.callback[side] = given >> side & 1 ? all[side] : nullptr;
            ask.params = &answer;
            const bool single =
                n == 1 && ny == 1 && kind.order >= 2 && kind.order <= 4 && kind.type != 1;
            std::vector<double> serial;
            for (auto* threader : {&ork_threader_serial, Recorder::table(3)}) {
              ask.threader = threader;
              const int code = ask.run(s);
              ASSERT_TRUE(code == 0 || (single && code == 3));
              if (serial.empty()) serial = ask.result;
              ASSERT_EQ(serial, ask.result);
            }
            for (int j = 0; j < n; ++j) {
              const double site = ask.site[j];
              const int c = plain_cell(s.x, site);
              const bool at_end = site == s.x.back();
              const int side = c == 0 ? 0 : c < 20 || (at_end && hint != 64 && !single) ? 1 : 2;
              for (int f = 0; f < ny; f += 13)
                for (int k = 0; k < 2; ++k) {
                  long double size;
                  const double exact = given >> side & 1
                                           ? Answer::value(site, f, k)
                                           : (double)s.at(f, s.piece(site, c), site, 2 * k, &size);
                  ASSERT_NEAR(ask.at(s, f, j, k), exact,
                              1e-12 * (1 + std::abs(exact)) +
                                  (given >> side & 1 ? 0 : 1e-13 * (double)size))
                      << "given " << given << " side " << side << " n " << n << " order "
                      << kind.order;
                }
            }
          }
}

TEST(Interpolate, FailingCallbackStopsLaterGroups) {
  std::mt19937 random(14);
  Spline<double> s(Grid::free, 20, 2, 4, 0, random);
  std::vector<double> site(200);
  for (int j = 0; j < 200; ++j) site[j] = j % 3 == 0 ? s.x[0] - 1 : j % 3 == 1 ? 3 : s.x.back() + 1;
  for (int side = 0; side < 3; ++side)
    for (int n : {20, 200}) {
      Ask<double> ask{{site.begin(), site.begin() + n}, {1}};
      Answer answer{&s, 1, side};
      ask.params = &answer;
      ask.callback[0] = Answer::call<0>, ask.callback[1] = Answer::call<1>,
      ask.callback[2] = Answer::call<2>;
      EXPECT_EQ(ask.run(s), -70 - side);
      for (int k = 0; k < 3; ++k) EXPECT_EQ(answer.calls[k], k <= side) << side << " " << k;
    }
  // Under threads some task's status comes back.
  Ask<double> ask{std::vector<double>(2000, 3.0), {1}};
  Answer answer{&s, 1, 1};
  ask.params = &answer, ask.callback[1] = Answer::call<1>;
  ask.threader = Recorder::table(2);
  EXPECT_EQ(ask.run(s), -71);
}

TEST(Interpolate, SearchCallbackNamesTheCells) {
  std::mt19937 random(16);
  Spline<double> s(Grid::free, 20, 1, 4, 0, random);
  for (int n : {1, 40}) {
    Ask<double> ask{make_sites(s.x, n, random), {1}};
    ask.search = [](const int64_t* count, const double*, int64_t* cell, int32_t*,
                    void*) -> int32_t {
      for (int j = 0; j < *count; ++j) cell[j] = 7;
      return 1000;
    };
    ASSERT_EQ(ask.run(s), 0);
    for (int j = 0; j < n; ++j) {
      long double size;
      const long double exact = s.at(0, 6, ask.site[j], 0, &size);
      ASSERT_NEAR(ask.result[j], (double)exact, 1e-14 * (double)size);
    }
    ask.search = [](const int64_t*, const double*, int64_t*, int32_t*, void*) -> int32_t {
      return -5;
    };
    EXPECT_EQ(ask.run(s), -5);
  }
}

// ---- Look-up, statuses, memory, exported evaluators -----------------------------------------

template <class T>
void check_look_up() {
  std::mt19937 random(18);
  for (Grid grid : {Grid::even, Grid::free})
    for (int n : {1, 20, 90}) {
      Spline<T> s(grid, 40, 2, 0, 6, random, 0, 32);
      Ask<T> ask{std::vector<T>(n), {1}};
      std::vector<int> index(n);
      for (int j = 0; j < n; ++j) ask.site[j] = s.x[index[j] = int(random() % 40)];
      ASSERT_EQ(ask.run(s), 0);
      for (int j = 0; j < n; ++j)
        for (int f = 0; f < 2; ++f) ASSERT_EQ(ask.at(s, f, j, 0), s.value(f, index[j]));
      const T on = ask.site[n - 1];
      for (T off : {T(s.x[0] - 1), T((s.x[3] + s.x[4]) / 2), T(s.x[39] + 1)}) {
        ask.site[n - 1] = off;
        EXPECT_EQ(ask.run(s), ORK_DF_NOT_A_BREAKPOINT);
        if (n == 20) {
          EXPECT_EQ(ask.result[0], T(-9));
        }
      }
      ask.site[n - 1] = on;
      ask.flags = {1, 1};
      EXPECT_EQ(ask.run(s), ORK_DF_LOOKUP_ONE_FLAG);
      ask.flags = {0, 1};
      EXPECT_EQ(ask.run(s), ORK_DF_LOOKUP_VALUE);
    }
  // Computed breakpoints may be missed by 2^-40.
  Spline<double> s(Grid::even, 40, 1, 0, 6, random);
  for (double miss : {0x1p-41, -0x1p-41, 0x1.1p-40, -0x1.1p-40}) {
    Ask<double> ask{{s.x[5] + miss}, {1}};
    EXPECT_EQ(ask.run(s), std::abs(miss) < 0x1p-40 ? 0 : ORK_DF_NOT_A_BREAKPOINT) << miss;
  }
}

TEST(Interpolate, LookUpTakesBreakpointsOnly) {
  check_look_up<double>();
  check_look_up<float>();
}

template <class T>
void check_steps(Grid grid, int nx) {
  std::mt19937 random(20), again(20);
  Spline<T> right(grid, nx, 1, 0, 7, random), left(grid, nx, 1, 0, 8, again);
  std::vector<T> site;
  for (int i = 0; i < nx; ++i) {
    const T x = right.x[i];
    site.insert(site.end(), {x, i < nx - 1 ? (x + right.x[i + 1]) / 2 : x + 1});
  }
  const auto expect = [&](const Ask<T>& ask, const Spline<T>& s, int at, int j) {
    const bool before = &s == &left && j % 2 == 0;
    ASSERT_EQ(ask.result[at], s.y[std::max(j / 2 - before, 0)]) << int(grid) << " " << j;
  };
  for (const Spline<T>* s : {&right, &left}) {
    Ask<T> together{site, {1}};
    ASSERT_EQ(together.run(*s), 0);
    for (int j = 0; j < 2 * nx; ++j) {
      expect(together, *s, j, j);
      Ask<T> alone{{site[j]}, {1}};
      ASSERT_EQ(alone.run(*s), 0);
      expect(alone, *s, 0, j);
    }
  }
}

TEST(Interpolate, StepsDifferAtBreakpointsOnly) {
  for (Grid grid : {Grid::even, Grid::near_even, Grid::free})
    for (int nx : {9, 41}) {
      check_steps<double>(grid, nx);
      check_steps<float>(grid, nx);
    }
}

TEST(Interpolate, RefusesInOrder) {
  std::mt19937 random(22);
  const struct {
    int order, type, expected;
  } rows[] = {{1, 0, -1011}, {2, 9, 0}, {3, 2, -1011}, {4, 1, -1011},
              {4, 6, -1011}, {5, 1, 0}, {0, 0, -1011}, {0, 9, -1011}};
  for (const auto& row : rows) {
    Spline<double> s(Grid::free, 9, 1, row.order, row.type, random);
    const double bad[] = {0, 3, 0, 0, 0};
    double r = 0;
    const auto run = [&](const double* hint, int64_t layout, ork_df_interp_d* callback) {
      return Df<double>::interpolate(s.task, 1, 0, 1, s.x.data(), 0, 0, nullptr, hint, &r, layout,
                                     nullptr, callback, nullptr, callback, nullptr, callback,
                                     nullptr, nullptr, nullptr, &ork_threader_serial);
    };
    EXPECT_EQ(run(nullptr, 0, nullptr), row.expected) << row.order << " " << row.type;
    EXPECT_EQ(run(bad, 3, nullptr), row.expected == 0 ? -1026 : row.expected);
    EXPECT_EQ(run(nullptr, 3, nullptr), row.expected == 0 ? -1028 : row.expected);
    const auto nine = [](const int64_t*, const int64_t*, const double*, double* out,
                         void*) -> int32_t {
      *out = 9;
      return 0;
    };
    if (row.order == 0) {
      EXPECT_EQ(run(nullptr, 0, nine), 0);  // order 0 with three callbacks
      EXPECT_EQ(r, 9);
    }
  }
  ork_df_task* bare = nullptr;
  const double x[] = {0, 1};
  double r;
  Df<double>::create(&bare, 2, x, 0, 0, nullptr, 0, 0);
  for (auto [order, type, expected] :
       {std::array<int, 3>{4, 0, ORK_DF_BAD_COEFFS}, {0, 7, ORK_DF_BAD_Y}}) {
    Df<double>::edit(bare, order, type, 0, nullptr, 0, nullptr, nullptr, 0);
    EXPECT_EQ(Df<double>::interpolate(bare, 1, 0, 1, x, 0, 0, nullptr, nullptr, &r, 0, nullptr,
                                      nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                                      nullptr, &ork_threader_serial),
              expected);
  }
  ork_df_kernel_DeleteTask(&bare);
}

TEST(Interpolate, EveryFailingAllocationIsReported) {
  std::mt19937 random(24);
  const struct {
    int order, ny, n;
    bool callback;
    int asked;
  } rows[] = {{4, 1, 31, false, 0},  {4, 3, 32, false, 1}, {4, 32, 700, true, 1},
              {4, 33, 700, true, 2}, {4, 40, 31, true, 1}, {12, 1, 31, false, 1},
              {12, 2, 70, false, 5}};
  for (const auto& row : rows) {
    Spline<double> s(Grid::free, 20, row.ny, row.order, 0, random);
    Ask<double> ask{make_sites(s.x, row.n, random), {1}};
    Answer answer{&s, 1};
    ask.params = &answer;
    if (row.callback) ask.callback[0] = Answer::call<0>;
    const int before = blocks::live();
    EXPECT_EQ(blocks::fail_each([&] {
                const int code = ask.run(s);
                ASSERT_EQ(code, blocks::failed() ? ORK_DF_NO_MEMORY : 0);
                ASSERT_EQ(blocks::live(), before);
              }),
              row.asked)
        << row.order << " " << row.ny << " " << row.n;
  }
}

TEST(Interpolate, ExportedEvaluators) {
  std::mt19937 random(26);
  const struct {
    KindCase kind;
    ork_df_eval_d* plain;
    ork_df_eval_cb_d* with_callback;
  } rows[] = {
      {{2, 0, 0}, ork_df_kernel_d_LinearSplineEval32, ork_df_kernel_d_LinearSplineEval32CB},
      {{3, 0, 0}, ork_df_kernel_d_QuadraticSplineEval32, ork_df_kernel_d_QuadraticSplineEval32CB},
      {{4, 0, 0}, ork_df_kernel_d_CubicSplineEval32, ork_df_kernel_d_CubicSplineEval32CB},
      {{3, 1, 8}, ork_df_kernel_d_QuadSubbSplineEval32, ork_df_kernel_d_QuadSubbSplineEval32CB},
      {{7, 0, 0}, ork_df_kernel_d_ArbitrSplineEval32, ork_df_kernel_d_ArbitrSplineEval32CB},
      {{0, 8, 0}, ork_df_kernel_d_StepLeftSplineEval32, ork_df_kernel_d_StepLeftSplineEval32CB},
      {{0, 7, 0}, ork_df_kernel_d_StepRightSplineEval32, ork_df_kernel_d_StepRightSplineEval32CB}};
  for (const auto& row : rows)
    for (bool scattered : {false, true}) {
      const int n = 100, ny = 2;
      Spline<double> s(Grid::free, 20, ny, row.kind.order, row.kind.type, random, 0, 0,
                       row.kind.ic);
      const std::vector<double> site = make_sites(s.x, n, random);
      std::vector<int32_t> cell(n), position(n);
      for (int j = 0; j < n; ++j) cell[j] = plain_cell(s.x, site[j]), position[j] = n - 1 - j;
      const int32_t flags[] = {1, 0, 1, 0};
      std::vector<double*> c(ny), y(ny);
      for (int f = 0; f < ny; ++f)
        c[f] = s.coeffs.data() + size_t(f) * s.pieces() * s.order, y[f] = s.y.data() + 20 * f;
      const int32_t* places = scattered ? position.data() : nullptr;
      std::vector<double> plain(2 * n * ny), both(2 * n * ny), called(2 * n * ny);
      for (int f = 0; f < ny; ++f)
        ASSERT_EQ(row.plain(20, s.x.data(), 1, 0, s.subgrid.data(), s.ic, n, site.data(), y.data(),
                            ny, f, 0, s.order, c.data(), cell.data(), 0, places, &plain[2 * n * f],
                            0, 3, flags, 2, flags),
                  0);
      const auto cb = [&](std::vector<double>& out, ork_df_interp_d* callback, void* params) {
        return row.with_callback(20, s.x.data(), 1, 0, s.subgrid.data(), s.ic, n, site.data(),
                                 y.data(), ny, 0, 0, s.order, c.data(), cell.data(), 0, places,
                                 out.data(), n, 3, flags, 2, flags, callback, params);
      };
      ASSERT_EQ(cb(both, nullptr, nullptr), 0);
      ASSERT_EQ(plain, both);
      const auto echo = [](const int64_t* count, const int64_t*, const double* at, double* out,
                           void*) -> int32_t {
        for (int f = 0; f < 2; ++f)
          for (int j = 0; j < *count; ++j, out += 2) out[0] = at[j] + f, out[1] = -at[j];
        return 0;
      };
      ASSERT_EQ(cb(called, echo, nullptr), 0);
      for (int f = 0; f < ny; ++f)
        for (int j = 0; j < n; ++j) {
          const int place = scattered ? position[j] : j;
          for (int k = 0; k < (s.order == 0 ? 1 : 2); ++k) {
            long double size;
            const long double exact = s.at(f, s.piece(site[j], cell[j]), site[j], 2 * k, &size);
            ASSERT_NEAR(plain[2 * (n * f + place) + k], (double)exact, 1e-14 * (double)size)
                << s.order << " " << j;
          }
          ASSERT_EQ(called[2 * (n * f + place)], site[j] + f);
        }
    }
}

}  // namespace
