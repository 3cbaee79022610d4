// Integration against the exact integrals of the pieces, summed in long double.
#include "df/request.hpp"

namespace {

struct KindCase {
  int order, type;
  int64_t ic;
};
const KindCase kinds[] = {{2, 0, 0},  {3, 0, 0}, {4, 2, 0}, {3, 1, 0}, {3, 1, 8},
                          {3, 1, 12}, {6, 0, 0}, {0, 7, 0}, {0, 8, 0}};

template <class T>
struct Ask {
  std::vector<T> left, right;
  int64_t left_hint = 0, right_hint = 0, result_hint = 0;
  std::vector<T> left_data{}, right_data{};
  typename Df<T>::integr_callback* callback[3] = {};  // left, inside, right
  void* params = nullptr;
  typename Df<T>::search_callback* search = nullptr;
  const ork_threader* threader = &ork_threader_serial;
  int64_t total = -1;

  std::vector<T> result{};

  int64_t pairs() const { return total >= 0 ? total : int64_t(left.size()); }
  int run(const Spline<T>& s) {
    Lender lend;
    result.assign(size_t(pairs()) * s.ny, T(-9));
    T* out = lend(result);
    const int code = Df<T>::integrate(s.task, 0, pairs(), lend(left), left_hint, lend(right),
                                      right_hint, left_data.empty() ? nullptr : left_data.data(),
                                      right_data.empty() ? nullptr : right_data.data(), out,
                                      result_hint, callback[0], params, callback[2], params,
                                      callback[1], params, search, nullptr, threader);
    std::copy(out, out + result.size(), result.begin());
    return code;
  }
  T at(const Spline<T>& s, int f, int j) const {
    return result_hint == 0 || result_hint == 32 ? result[size_t(j) * s.ny + f]
                                                 : result[size_t(f) * pairs() + j];
  }
};

// The integral piece by piece; `size` is the sum of the terms' magnitudes.
template <class T>
long double exact(const Spline<T>& s, int f, T a, T b, long double* size) {
  *size = 0;
  if (b < a) return -exact(s, f, b, a, size);
  const int p = s.piece(a, plain_cell(s.x, a)), q = s.piece(b, plain_cell(s.x, b));
  const bool parabolas = s.order == 3 && s.type == ORK_DF_TYPE_SUBBOTIN;
  long double sum = 0;
  for (int i = p; i <= q; ++i) {
    const long double from = i == p ? a : parabolas ? s.inner(i) : s.x[i];
    const long double to = i == q ? b : parabolas ? s.inner(i + 1) : s.x[i + 1];
    sum += s.over(f, i, from - s.x[i], to - s.x[i], size);
    if (s.ic == 12) *size += std::abs(from) + std::abs(to);  // computed points, rounded
  }
  return sum;
}

template <class T>
void check(const Ask<T>& ask, const Spline<T>& s, const std::vector<T>& left,
           const std::vector<T>& right) {
  for (int j = 0; j < int(left.size()); ++j)
    for (int f = 0; f < s.ny; ++f) {
      long double size;
      const long double e = exact(s, f, left[j], right[j], &size);
      ASSERT_NEAR((double)ask.at(s, f, j), (double)e,
                  (double)(8 * std::numeric_limits<T>::epsilon() * size))
          << "order " << s.order << " type " << s.type << " ic " << s.ic << " grid " << int(s.grid)
          << " nx " << s.nx << " from " << left[j] << " to " << right[j] << " x0 " << s.x[0];
    }
}

template <class T>
void check_kinds() {
  std::mt19937 random(1);
  for (const KindCase& kind : kinds)
    for (Grid grid : {Grid::even, Grid::free})
      for (int nx : {2, 4, 30})
        for (int64_t layout : {0, 16, 32, 128}) {
          if (kind.ic == 12 && nx == 2) continue;
          Spline<T> s(grid, nx, nx == 4 ? 3 : 1, kind.order, kind.type, random, 0,
                      layout == 32 ? 32 : 0, kind.ic);
          for (int n : {1, 3, 64, 130, 640 + 128 + 5}) {
            Ask<T> ask{make_sites(s.x, n, random), make_sites(s.x, n, random)};
            ask.result_hint = layout;
            if (n > 3) {
              ask.right[0] = ask.left[0];                                          // nothing
              ask.right[1] = ask.left[1] + (s.x[1] - s.x[0]) / 8;                  // about one cell
              ask.left[2] = s.x[0] - 2, ask.right[2] = s.x[0] - 1;                 // left of all
              ask.left[3] = s.x[nx - 1] + 1, ask.right[3] = s.x[nx - 1] + T(1.5);  // right of all
            }
            ASSERT_EQ(ask.run(s), 0);
            check(ask, s, ask.left, ask.right);
            if (n > 3) {
              ASSERT_EQ(ask.at(s, 0, 0), 0);
            }
            const std::vector<T> serial = ask.result;
            ask.threader = Recorder::table(3);
            ASSERT_EQ(ask.run(s), 0);
            ASSERT_EQ(memcmp(serial.data(), ask.result.data(), serial.size() * sizeof(T)), 0);
            // Swapped limits negate, to the bit.
            std::swap(ask.left, ask.right);
            ASSERT_EQ(ask.run(s), 0);
            for (size_t i = 0; i < serial.size(); ++i) ASSERT_EQ(ask.result[i], -serial[i]);
          }
        }
}

TEST(Integrate, EveryKindSumsItsPieces) {
  check_kinds<double>();
  check_kinds<float>();
}

TEST(Integrate, LaunchesTasksOfFiveBlocksThenOne) {
  std::mt19937 random(3);
  Spline<double> s(Grid::free, 30, 1, 4, 0, random);
  const struct {
    int n;
    std::vector<std::pair<int, int>> launches;
  } rows[] = {{127, {}},
              {128, {{1, 1}}},
              {640 + 128 + 5, {{1, 1}, {1, 1}}},
              {5 * 640 + 300, {{5, 4}, {2, 2}}}};
  for (const auto& row : rows) {
    Ask<double> ask{make_sites(s.x, row.n, random), make_sites(s.x, row.n, random)};
    ask.threader = Recorder::table(4);
    ASSERT_EQ(ask.run(s), 0);
    EXPECT_EQ(Recorder::launches, row.launches) << row.n;
    check(ask, s, ask.left, ask.right);
  }
}

TEST(Integrate, GeneratedAndSortedLimits) {
  std::mt19937 random(5);
  for (int n : {1, 2, 200, 1000}) {
    Spline<double> s(Grid::free, 50, 2, 4, 0, random);
    const std::vector<double> ends = {-2, 26};
    std::vector<double> even(n), sorted = make_sites(s.x, n, random);
    for (int j = 0; j < n; ++j) even[j] = n == 1 ? -2 : j * (28.0 / (n - 1)) + -2;
    std::sort(sorted.begin(), sorted.end());
    Ask<double> ask{ends, sorted};
    ask.total = n, ask.left_hint = 4, ask.right_hint = 64;
    for (auto* threader : {&ork_threader_serial, Recorder::table(2)}) {
      ask.threader = threader;
      ASSERT_EQ(ask.run(s), 0);
      check(ask, s, even, sorted);
    }
  }
}

// Limits about two peaks: the sum between them is taken from a table, and is the same.
TEST(Integrate, PeaksChangeTheGroupingOnly) {
  std::mt19937 random(7);
  const struct {
    int nx;
    double p, q;
  } rows[] = {{60, 10, 50}, {60, 50, 10}, {60, 20, 23}, {60, 20, 24},    {60, 0, 60},
              {60, 0, 4},   {6, 0, 6},    {5, 0, 5},    {60, 1.5, 59.5}, {7, 1, 6}};
  for (const auto& row : rows)
    for (int order : {2, 3, 4, 7})
      for (Grid grid : {Grid::even, Grid::free})
        for (int ny : {1, 17}) {
          Spline<double> s(grid, row.nx, ny, order, 0, random);
          const int n = 300;
          Ask<double> ask{make_sites(s.x, n, random), make_sites(s.x, n, random)};
          for (int j = 0; j < n / 2; ++j) {
            ask.left[j] = s.x[std::min(int(row.p), row.nx - 1)] + 0.7 * ((j % 8) - 4);
            ask.right[j] = s.x[std::min(int(row.q), row.nx - 1)] + 0.6 * ((j % 5) - 2);
          }
          ask.left_data = {0, 1, 0, 0, row.p}, ask.right_data = {0, 1, 0, 0, row.q};
          ASSERT_EQ(ask.run(s), 0);
          check(ask, s, ask.left, ask.right);
        }
}

// ---- Callbacks ----------------------------------------------------------------------------

// Answers with a multiple of the length; sums of it tell which parts were asked for.
struct Lengths {
  const Spline<double>* spline;
  int fail_on = -1;
  static constexpr double weight[] = {3, 100, 7000};

  template <int side>
  static int32_t call(const int64_t* n, const int64_t* lower_piece, const double* lower,
                      const int64_t* upper_piece, const double* upper, double* result, void* self) {
    const auto& l = *static_cast<Lengths*>(self);
    const Spline<double>& s = *l.spline;
    if (l.fail_on == side) return -60 - side;
    const int last = s.pieces() - 1;
    EXPECT_EQ(*n, 1);
    EXPECT_LT(*lower, *upper);
    EXPECT_EQ(*lower_piece, side == 0   ? 0
                            : side == 2 ? last
                                        : std::clamp(plain_cell(s.x, *lower) - 1, 0, last));
    EXPECT_EQ(*upper_piece, side == 0   ? 0
                            : side == 2 ? last
                                        : std::clamp(plain_cell(s.x, *upper) - 1, 0, last));
    EXPECT_TRUE(side == 0   ? *upper <= s.x[0]
                : side == 2 ? *lower >= s.x.back()
                            : *lower >= s.x[0] && *upper <= s.x.back());
    for (int f = 0; f < s.ny; ++f) {
      EXPECT_EQ(result[f], 0);
      result[f] = (f + 1) * weight[side] * (*upper - *lower);
    }
    return 2;
  }
};

TEST(Integrate, CallbacksServeTheirParts) {
  std::mt19937 random(9);
  ork_df_integr_d* all[] = {Lengths::call<0>, Lengths::call<1>, Lengths::call<2>};
  for (const KindCase& kind :
       {KindCase{4, 2, 0}, KindCase{3, 1, 8}, KindCase{8, 0, 0}, KindCase{0, 7, 0}})
    for (int given = 1; given < 8; ++given)
      for (int ny : {1, 9})
        for (int n : {1, 300}) {
          Spline<double> s(Grid::free, 25, ny, kind.order, kind.type, random, 0, 0, kind.ic);
          Ask<double> ask{make_sites(s.x, n, random), make_sites(s.x, n, random)};
          ask.result_hint = n == 1 ? 16 : 0;
          if (n > 1) {
            ask.left[0] = s.x[0] - 1, ask.right[0] = s.x[0] + 2;
            ask.left[1] = s.x[0] - 1, ask.right[1] = s.x[0];
            ask.left[2] = s.x.back(), ask.right[2] = s.x.back() + 1;
            ask.left[3] = s.x.back() + 2, ask.right[3] = s.x[0] - 2;
            ask.left[4] = ask.right[4] = s.x[0] - 1;
          }
          Lengths lengths{&s};
          ask.params = &lengths;
          for (int side = 0; side < 3; ++side)
            ask.callback[side] = given >> side & 1 ? all[side] : nullptr;
          for (auto* threader : {&ork_threader_serial, Recorder::table(3)}) {
            ask.threader = threader;
            ASSERT_EQ(ask.run(s), 0);
            for (int j = 0; j < n; ++j)
              for (int f = 0; f < ny; ++f) {
                const double a = std::min(ask.left[j], ask.right[j]),
                             b = std::max(ask.left[j], ask.right[j]);
                long double sum = 0, size = 0;
                for (int side = 0; side < 3; ++side) {
                  const double from = side == 0   ? std::min(a, s.x[0])
                                      : side == 1 ? std::max(a, s.x[0])
                                                  : std::max(a, s.x.back());
                  const double to = side == 0   ? std::min(b, s.x[0])
                                    : side == 1 ? std::min(b, s.x.back())
                                                : b;
                  if (!(from < to)) continue;
                  long double part = 0;
                  if (given >> side & 1)
                    sum += (f + 1) * Lengths::weight[side] * ((long double)to - from), size += 1;
                  else
                    sum += exact(s, f, from, to, &part), size += part;
                }
                if (ask.right[j] < ask.left[j]) sum = -sum;
                ASSERT_NEAR(ask.at(s, f, j), (double)sum,
                            1e-13 * (std::abs((double)sum) + (double)size + 1))
                    << given << " pair " << j << " order " << s.order;
              }
          }
        }
}

// Cells of the caller's search are believed, and the interior callback stays inside them.
TEST(Integrate, InteriorLimitsStayInTheNamedPieces) {
  std::mt19937 random(10);
  Spline<double> s(Grid::free, 25, 1, 4, 0, random);
  Ask<double> ask{{s.x[2], s.x[6] + 0.01}, {s.x[20], s.x[20]}};
  ask.search = [](const int64_t* count, const double*, int64_t* cell, int32_t*, void*) -> int32_t {
    for (int j = 0; j < *count; ++j) cell[j] = 7;
    return 1000;
  };
  ask.callback[1] = [](const int64_t*, const int64_t* p, const double* a, const int64_t* q,
                       const double* b, double* out, void*) -> int32_t {
    EXPECT_TRUE(*p == 6 && *q == 6);
    *out = *b - *a;
    return 0;
  };
  ASSERT_EQ(ask.run(s), 0);
  EXPECT_EQ(ask.result[0], s.x[7] - s.x[6]);
  EXPECT_EQ(ask.result[1], s.x[7] - (s.x[6] + 0.01));
}

TEST(Integrate, EqualInfiniteLimitsGiveZero) {
  std::mt19937 random(12);
  const double inf = std::numeric_limits<double>::infinity();
  for (Grid grid : {Grid::even, Grid::free}) {
    Spline<double> s(grid, 9, 1, 4, 0, random);
    Ask<double> ask{{inf, -inf, std::nan("")}, {inf, -inf, 1}};
    ASSERT_EQ(ask.run(s), 0);
    EXPECT_EQ(ask.result[0], 0);
    EXPECT_EQ(ask.result[1], 0);
    EXPECT_TRUE(std::isnan(ask.result[2]));
  }
}

// The array of breakpoints ends at an inaccessible page.
TEST(Integrate, StepsWithoutALimitLookAtTheirBreakpointsOnly) {
  std::mt19937 random(12);
  const double inf = std::numeric_limits<double>::infinity(), nan = std::nan("");
  for (int type : {ORK_DF_TYPE_STEP_LEFT, ORK_DF_TYPE_STEP_RIGHT})
    for (Grid grid : {Grid::even, Grid::near_even, Grid::free}) {
      Spline<double> s(grid, 9, 1, 0, type, random);
      const double end = s.x[8];
      Ask<double> ask{{nan, nan, end, end + 1, nan, inf}, {end, end + 1, nan, nan, inf, nan}};
      ASSERT_EQ(ask.run(s), 0);
      for (double value : ask.result) EXPECT_TRUE(std::isnan(value));
    }
}

TEST(Integrate, FailingCallbackEndsTheWork) {
  std::mt19937 random(11);
  Spline<double> s(Grid::free, 25, 2, 4, 0, random);
  for (int side = 0; side < 3; ++side)
    for (int n : {1, 900})
      for (int threads : {1, 2}) {
        Ask<double> ask{std::vector<double>(n, s.x[0] - 1), std::vector<double>(n, s.x.back() + 1)};
        Lengths lengths{&s, side};
        ask.params = &lengths;
        ask.callback[0] = Lengths::call<0>, ask.callback[1] = Lengths::call<1>,
        ask.callback[2] = Lengths::call<2>;
        ask.threader = Recorder::table(threads);
        EXPECT_EQ(ask.run(s), -60 - side);
      }
  Ask<double> ask{{1, 2}, {2, 3}};
  ask.search = [](const int64_t*, const double*, int64_t*, int32_t*, void*) -> int32_t {
    return -5;
  };
  EXPECT_EQ(ask.run(s), -5);
}

TEST(Integrate, RefusesInOrder) {
  std::mt19937 random(13);
  const struct {
    int order, type, expected;
  } rows[] = {{0, 6, -1011}, {0, 3, -1011}, {1, 0, -1011}, {4, 7, -1011},
              {4, 5, 0},     {2, 7, 0},     {0, 8, 0}};
  const std::vector<double> bad = {0, 3, 0, 0, 0}, good = {0, 0, 0, 0, 0};
  for (const auto& row : rows) {
    Spline<double> s(Grid::free, 9, 1, row.order, row.type, random);
    const auto run = [&](const std::vector<double>& left, const std::vector<double>& right,
                         int64_t right_hint, int64_t layout) {
      Ask<double> ask{{0}, {1}, 0, right_hint, layout, left, right};
      return ask.run(s);
    };
    const int or_code = row.expected;
    EXPECT_EQ(run({}, {}, 0, 0), or_code) << row.order << " " << row.type;
    EXPECT_EQ(run(bad, good, 0, 3), or_code != 0 ? or_code : -1026);
    EXPECT_EQ(run(good, bad, 0, 3), or_code != 0 ? or_code : -1026);
    EXPECT_EQ(run(good, bad, 64, 0), or_code);
    EXPECT_EQ(run(good, good, 0, 3), or_code != 0 ? or_code : -1034);
  }
  ork_df_task* bare = nullptr;
  const double x[] = {0, 1};
  double r;
  Df<double>::create(&bare, 2, x, 0, 0, nullptr, 0, 0);
  for (int type : {7, 8}) {
    Df<double>::edit(bare, 0, type, 0, nullptr, 0, nullptr, nullptr, 0);
    EXPECT_EQ(Df<double>::integrate(bare, 0, 1, x, 0, x + 1, 0, nullptr, nullptr, &r, 0, nullptr,
                                    nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                                    &ork_threader_serial),
              ORK_DF_BAD_Y);
  }
  ork_df_kernel_DeleteTask(&bare);
}

TEST(Integrate, EveryFailingAllocationIsReported) {
  std::mt19937 random(15);
  const struct {
    int ny;
    bool callback, peaks;
    int asked;
  } rows[] = {{40, false, false, 0},
              {16, true, false, 0},
              {17, true, false, 1},
              {16, false, true, 0},
              {17, false, true, 1}};
  for (const auto& row : rows) {
    Spline<double> s(Grid::free, 25, row.ny, 4, 0, random);
    Ask<double> ask{make_sites(s.x, 200, random), make_sites(s.x, 200, random)};
    Lengths lengths{&s};
    ask.params = &lengths;
    if (row.callback) ask.callback[0] = Lengths::call<0>;
    if (row.peaks) ask.left_data = {0, 1, 0, 0, 3}, ask.right_data = {0, 1, 0, 0, 20};
    const int before = blocks::live();
    EXPECT_EQ(blocks::fail_each([&] {
                const int code = ask.run(s);
                ASSERT_EQ(code, blocks::failed() ? ORK_DF_NO_MEMORY : 0);
                ASSERT_EQ(blocks::live(), before);
              }),
              row.asked);
  }
}

TEST(Integrate, ExportedIntegrators) {
  std::mt19937 random(17);
  const struct {
    KindCase kind;
    ork_df_integrate_d* plain;
    ork_df_integrate_cb_d* with_callback;
  } rows[] = {
      {{2, 0, 0}, ork_df_kernel_d_IntegrateLinearSpline, ork_df_kernel_d_IntegrateLinearSplineCB},
      {{3, 0, 0}, ork_df_kernel_d_IntegrateQuadSpline, ork_df_kernel_d_IntegrateQuadSplineCB},
      {{4, 0, 0}, ork_df_kernel_d_IntegrateCubSpline, ork_df_kernel_d_IntegrateCubSplineCB},
      {{3, 1, 8}, ork_df_kernel_d_IntegrateSubbSpline, ork_df_kernel_d_IntegrateSubbSplineCB},
      {{7, 0, 0}, ork_df_kernel_d_IntegrateArbSpline, ork_df_kernel_d_IntegrateArbSplineCB},
      {{0, 8, 0}, ork_df_kernel_d_IntegratePwLSpline, ork_df_kernel_d_IntegratePwLSplineCB},
      {{0, 7, 0}, ork_df_kernel_d_IntegratePwRSpline, ork_df_kernel_d_IntegratePwRSplineCB}};
  for (const auto& row : rows) {
    const int n = 100, ny = 2, nx = 20;
    Spline<double> s(Grid::free, nx, ny, row.kind.order, row.kind.type, random, 0, 0, row.kind.ic);
    const std::vector<double> left = make_sites(s.x, n, random), right = make_sites(s.x, n, random);
    std::vector<int32_t> from(n), to(n);
    for (int j = 0; j < n; ++j)
      from[j] = plain_cell(s.x, left[j]), to[j] = plain_cell(s.x, right[j]);
    std::vector<double*> c(ny), y(ny);
    for (int f = 0; f < ny; ++f)
      c[f] = s.coeffs.data() + size_t(f) * s.pieces() * s.order, y[f] = s.y.data() + nx * f;
    std::vector<double> plain(n * ny), both(n * ny);
    for (int f = 0; f < ny; ++f)
      ASSERT_EQ(row.plain(nx, s.x.data(), 1, 0, c.data(), n, left.data(), from.data(), right.data(),
                          to.data(), s.subgrid.data(), s.ic, y.data(), ny, f, 0, s.order, 0, 0,
                          nullptr, nullptr, &plain[n * f], nullptr, 0, 0, 0, 0),
                0);
    ASSERT_EQ(row.with_callback(nx, s.x.data(), 1, 0, c.data(), n, left.data(), from.data(),
                                right.data(), to.data(), s.subgrid.data(), s.ic, y.data(), ny, 0, 0,
                                s.order, 0, 0, nullptr, nullptr, both.data(), nullptr, nullptr,
                                nullptr, nullptr, nullptr, nullptr, nullptr, 0, 0, 0, 0),
              0);
    for (int j = 0; j < n; ++j)
      for (int f = 0; f < ny; ++f) {
        long double size;
        const double e = (double)exact(s, f, left[j], right[j], &size);
        ASSERT_NEAR(plain[n * f + j], e, 1e-14 * (double)size) << s.order << " " << s.type;
        ASSERT_NEAR(both[j * ny + f], e, 1e-13 * ((double)size + 1)) << s.order << " " << s.type;
      }
  }
}

}  // namespace
