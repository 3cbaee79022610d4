// Cell search by every method against a plain count of the breakpoints at or below a site.
#include "df/request.hpp"

namespace {

enum Method { uniform, quasi_uniform, sorted, peak, hybrid, user, user_uniform };

struct Case {
  const char* name;
  Grid grid;
  int64_t site_hint;
  double peak;  // negative: no data hint
};
const Case cases[] = {
    {"uniform", Grid::even, 0, -1},
    {"quasi-uniform", Grid::near_even, 0, -1},
    {"quasi, uneven", Grid::near_even, 0, 0},
    {"sorted", Grid::free, 64, -1},
    {"sorted, clustered", Grid::clustered, 64, -1},
    {"sorted, repeated", Grid::repeated, 64, -1},
    {"peak at 0", Grid::free, 0, 0},
    {"peak inside", Grid::free, 0, 0.4},
    {"peak at nx", Grid::clustered, 0, 1},
    {"hybrid", Grid::free, 0, -1},
    {"hybrid, clustered", Grid::clustered, 0, -1},
    {"hybrid, repeated", Grid::repeated, 0, -1},
};

// The breakpoint that equal spacing names for a site.
template <class T>
int guess(const std::vector<T>& x, T s) {
  const int nx = int(x.size());
  const T scale = T(nx - 1) / (x[nx - 1] - x[0]);
  return int(std::min((s - x[0]) * scale, T(nx))) + 1;
}

template <class T>
std::vector<int> expected_cells(const Case& c, const std::vector<T>& x,
                                const std::vector<T>& site) {
  std::vector<int> cell;
  for (T s : site) {
    int e = plain_cell(x, s);
    if (c.grid == Grid::near_even && e > 0 && e < int(x.size()) && s == x[e - 1] &&
        guess(x, s) == e - 1)
      e = e - 1;
    cell.push_back(e);
  }
  return cell;
}

template <class T>
std::vector<T> data_hint(const Case& c, int nx) {
  return {T(99), T(1), T(99), T(99), T(std::floor(c.peak * nx)), T(99)};
}

template <class T>
void check_all() {
  std::mt19937 random(7);
  const T inf = std::numeric_limits<T>::infinity(), nan = std::numeric_limits<T>::quiet_NaN();
  for (const Case& c : cases)
    for (int nx : {2, 3, 8, 9, 41, 600, 17000}) {
      if (sizeof(T) == 4 && nx > 600 && c.grid != Grid::even) continue;
      Spline<T> spline(c.grid, nx, 1, 2, 0, random);
      for (int n : {0, 1, 3, 5, 31, 32, 33, 129, 290, 700, 1301, 3500}) {
        std::vector<T> site = make_sites(spline.x, n, random);
        if (n == 33) std::fill(site.begin(), site.end(), spline.x[nx / 2]);
        if (n == 129)
          for (int j = 0; j < n; ++j) site[j] = spline.x[j * (nx - 1) / (n - 1)];
        if (c.site_hint == 64)
          std::sort(site.begin(), site.end());
        else if (n > 4)
          site[1] = nan, site[2] = inf, site[3] = -inf, site[4] = std::numeric_limits<T>::max();
        const std::vector<int> expected = expected_cells(c, spline.x, site);
        Lender lend;
        const std::vector<T> hint = data_hint<T>(c, nx);
        const T* lent = lend(site);
        for (const ork_threader* threads : {&ork_threader_serial, Recorder::table(3)}) {
          int* cell = lend(std::vector<int>(n, -9));
          ASSERT_EQ(
              Df<T>::search(spline.task, 0, n, lent, c.site_hint,
                            c.peak < 0 ? nullptr : hint.data(), cell, nullptr, nullptr, threads),
              0);
          ASSERT_EQ(std::vector<int>(cell, cell + n), expected)
              << c.name << " nx " << nx << " n " << n;
        }
      }
    }
}

TEST(Search, EveryMethodCountsBreakpoints) {
  check_all<double>();
  check_all<float>();
}

// Sites that only nearly ascend: around few breakpoints, or anywhere.
TEST(Search, SortedNeverGoesBack) {
  std::mt19937 random(3);
  Spline<double> spline(Grid::free, 50, 1, 2, 0, random);
  std::uniform_real_distribution<double> unit;
  for (double width : {1e-9, 0.3, 1.5, 40.0}) {
    std::vector<double> site(200);
    for (int j = 0; j < 200; ++j) site[j] = 0.1 * j + width * unit(random);
    site[77] = std::nan("");
    std::vector<int> cell(200);
    Df<double>::search(spline.task, 0, 200, site.data(), 64, nullptr, cell.data(), nullptr, nullptr,
                       &ork_threader_serial);
    int running = 0;
    for (int j = 0; j < 200; ++j) {
      running = std::max(running, plain_cell(spline.x, site[j]));
      ASSERT_EQ(cell[j], j == 77 ? 0 : running) << width << " " << j;
    }
  }
}

TEST(Search, GeneratedSites) {
  std::mt19937 random(5);
  Spline<double> spline(Grid::free, 100, 1, 2, 0, random);
  const double ends[] = {-3, 52};
  for (int n : {1, 2, 31, 32, 4096, 4097}) {
    Lender lend;
    int* cell = lend(std::vector<int>(n, -9));
    const int asked = blocks::fail_each([&] {
      const int code = Df<double>::search(spline.task, 0, n, ends, 4, nullptr, cell, nullptr,
                                          nullptr, &ork_threader_serial);
      ASSERT_EQ(code, blocks::failed() ? ORK_DF_NO_MEMORY : 0);
    });
    EXPECT_EQ(asked, n > 4096);
    for (int j = 0; j < n; ++j)
      ASSERT_EQ(
          cell[j],
          plain_cell(spline.x, n == 1 ? ends[0] : j * ((ends[1] - ends[0]) / (n - 1)) + ends[0]))
          << j;
  }
}

TEST(Search, ThreadsStartWhereDocumented) {
  std::mt19937 random(9);
  const struct {
    Grid grid;
    int64_t site_hint;
    bool peak;
    int nx, n, threads, launched;
  } rows[] = {
      {Grid::even, 0, false, 9, 1000, 8, 0},       {Grid::even, 0, false, 9, 1001, 2, 2},
      {Grid::near_even, 0, false, 39, 300, 8, 0},  {Grid::near_even, 0, false, 9, 301, 2, 2},
      {Grid::near_even, 0, false, 40, 151, 4, 4},  {Grid::near_even, 0, false, 40, 151, 3, 0},
      {Grid::near_even, 0, false, 600, 151, 2, 2}, {Grid::near_even, 0, false, 600, 150, 8, 0},
      {Grid::free, 64, false, 9, 3000, 8, 0},      {Grid::free, 64, false, 9, 3001, 2, 2},
      {Grid::free, 0, true, 9, 1200, 8, 0},        {Grid::free, 0, true, 9, 1201, 3, 3},
      {Grid::free, 0, true, 1201, 40, 2, 2},       {Grid::free, 0, false, 9, 1201, 20, 9},
      {Grid::free, 0, false, 9, 601, 4, 4},        {Grid::free, 0, false, 9, 601, 5, 0},
      {Grid::free, 0, false, 9, 301, 2, 2},        {Grid::free, 0, false, 9, 300, 2, 0},
      {Grid::free, 0, false, 8, 5000, 8, 0},
  };
  for (const auto& row : rows) {
    Spline<double> spline(row.grid, row.nx, 1, 2, 0, random);
    const std::vector<double> site(row.n, 0.1), hint = {0, 1, 0, 0, 1};
    std::vector<int> cell(row.n, -1);
    Df<double>::search(spline.task, 0, row.n, site.data(), row.site_hint,
                       row.peak ? hint.data() : nullptr, cell.data(), nullptr, nullptr,
                       Recorder::table(row.threads));
    const std::vector<std::pair<int, int>> expected(row.launched != 0,
                                                    {row.launched, row.launched});
    EXPECT_EQ(Recorder::launches, expected) << row.nx << " " << row.n << " " << row.threads;
    EXPECT_EQ(std::count(cell.begin(), cell.end(), plain_cell(spline.x, 0.1)), row.n);
  }
}

TEST(Search, RefusesUnknownHints) {
  std::mt19937 random(2);
  Spline<double> spline(Grid::free, 20, 1, 2, 0, random);
  const double nan = std::numeric_limits<double>::quiet_NaN(), site[] = {1};
  const struct {
    double kind, position;
    int expected;
  } rows[] = {{0, nan, 0},     {1, 0, 0},       {1, 20, 0},    {1, 20.5, -1026}, {1, -0.5, -1026},
              {1, nan, -1026}, {0.5, 3, -1026}, {2, 3, -1026}, {nan, 3, -1026}};
  for (const auto& row : rows) {
    const double hint[] = {0, row.kind, 0, 0, row.position};
    int cell = -9;
    EXPECT_EQ(Df<double>::search(spline.task, 0, 1, site, 0, hint, &cell, nullptr, nullptr,
                                 &ork_threader_serial),
              row.expected);
    EXPECT_EQ(cell, row.expected == 0 ? plain_cell(spline.x, 1.0) : -9)
        << row.kind << " " << row.position;
  }
}

// Every second cell is a guess, off by a changing distance; the others are final.
template <class T>
struct Guesser {
  const std::vector<T>* x;
  int status = 0, fail_at = -1;
  std::vector<int64_t> counts;

  static int32_t call(const int64_t* n, const T* site, int64_t* cell, int32_t* flag, void* self) {
    auto& g = *static_cast<Guesser*>(self);
    g.counts.push_back(*n);
    if (int(g.counts.size()) == g.fail_at) return -77;
    for (int j = 0; j < *n; ++j) {
      cell[j] = plain_cell(*g.x, site[j]);
      flag[j] = j % 2;
      if (g.status == 1000)
        cell[j] = 1'000'000 + j, flag[j] = 0;
      else if (!flag[j])
        cell[j] += (j % 11 - 5) * (int64_t(1) << (j % 3 * 20));
      else
        cell[j] = 5'000'000 + j;
    }
    return g.status;
  }
};

template <class T>
void check_user() {
  std::mt19937 random(11);
  for (Grid grid : {Grid::even, Grid::free})
    for (int64_t width : {0, 1})
      for (int n : {0, 1, 31, 40, 128, 300})
        for (int status : {0, 5, 1000, -77}) {
          Spline<T> spline(grid, 60, 1, 2, 0, random, width);
          const std::vector<T> site = make_sites(spline.x, n, random);
          Guesser<T> g{&spline.x, status == -77 ? 0 : status, status == -77 ? 2 : -1, {}};
          std::vector<int64_t> wide(n, -9);
          std::vector<int32_t> narrow(n, -9);
          const int code = Df<T>::search(spline.task, 0, n, site.data(), 0, nullptr,
                                         width ? (void*)wide.data() : narrow.data(),
                                         Guesser<T>::call, &g, Recorder::table(8));
          const bool stopped = status == -77 && n >= 128;
          EXPECT_EQ(code, stopped ? -77 : status == 5 ? 5 : 0);
          EXPECT_TRUE(Recorder::launches.empty());
          std::vector<int64_t> counts(n / 128, 128);
          counts.push_back(n % 128);
          if (stopped) counts.resize(2);
          EXPECT_EQ(g.counts, counts);
          for (int j = 0; j < n; ++j) {
            const int64_t cell = width ? wide[j] : narrow[j];
            const int in_block = j % 128;
            int expected = status == 1000 ? 1'000'000 + in_block
                           : in_block % 2 ? 5'000'000 + in_block
                                          : plain_cell(spline.x, site[j]);
            if (stopped && j >= 128) expected = -9;
            // On a breakpoint that the guess named the cell stays at the guess.
            const bool on_guess = grid == Grid::free && in_block % 2 == 0 && status != 1000 &&
                                  expected > 0 && site[j] == spline.x[expected - 1];
            ASSERT_TRUE(cell == expected || (on_guess && cell == expected - 1))
                << j << " of " << n << ": " << cell << " " << expected;
          }
        }
}

TEST(Search, UserDefinedCellsAreFinalOrCorrected) {
  check_user<double>();
  check_user<float>();
}

// The exported single methods, with the arguments that each one reads.
template <class T>
void check_simple() {
  std::mt19937 random(13);
  for (int method = uniform; method <= user_uniform; ++method)
    for (int twin : {0, 1}) {
      const Grid grid = method == uniform || method == user_uniform ? Grid::even
                        : method == quasi_uniform                   ? Grid::near_even
                                                                    : Grid::free;
      const int nx = 70, n = 150;
      const std::vector<T> x = make_grid<T>(grid, nx, random);
      std::vector<T> site = make_sites(x, n, random);
      if (method == sorted) std::sort(site.begin(), site.end());
      const std::vector<int32_t> bracket = {0, nx - 1, 0, nx - 1, 0, nx - 1};
      const T span = x.back() - x.front();
      const T scale = method == peak ? T(12) : method == hybrid ? 3 / span : T(nx - 1) / span;
      Lender lend;
      Guesser<T> g{&x, 0, -1, {}};
      const T* lent_x = lend(grid == Grid::even ? std::vector<T>{x.front(), x.back()} : x);
      int* cell = lend(std::vector<int>(n, -9));
      int32_t flags[128];
      int64_t state = 0;
      const auto call = [&](int first, int count) {
        return Df<T>::simple[method][twin](nx, lent_x, count, &site[first], &state, scale, nullptr,
                                           3, bracket.data(), cell + first, 0, Guesser<T>::call, &g,
                                           flags);
      };
      ASSERT_EQ(call(0, 128), 0);
      ASSERT_EQ(call(128, n - 128), 0);
      if (method == sorted) {
        EXPECT_EQ(state, cell[n - 1]);
      }
      const Case c = {"", grid, 0, -1};
      const std::vector<int> expected = expected_cells(c, x, site);
      for (int j = 0; j < n; ++j) {
        if (method >= user) {
          const bool on_guess = method == user && expected[j] > 0 && site[j] == x[expected[j] - 1];
          if (j % 128 % 2 == 1 || on_guess) continue;
        }
        ASSERT_EQ(cell[j], expected[j]) << "method " << method << " site " << j;
      }
    }
}

TEST(Search, ExportedMethods) {
  check_simple<double>();
  check_simple<float>();
}

// A table older than the partition finds wrong cells, and reads nothing outside x.
TEST(Search, StaleTableStaysInside) {
  std::mt19937 random(17);
  Spline<double> spline(Grid::free, 600, 1, 2, 0, random);
  const std::vector<double> all = spline.x, few(all.begin(), all.begin() + 20);
  Df<double>::set(spline.task, ORK_DF_PTR_X, spline.lend(few));
  ork_df_kernel_iEditVal(spline.task, ORK_DF_VAL_NX, 20);
  const std::vector<double> site = make_sites(all, 500, random);
  std::vector<int> cell(500, -9);
  const auto search = [&] {
    return Df<double>::search(spline.task, 0, 500, site.data(), 0, nullptr, cell.data(), nullptr,
                              nullptr, &ork_threader_serial);
  };
  ASSERT_EQ(search(), 0);
  for (int c : cell) ASSERT_TRUE(c >= 0 && c <= 20);
  ASSERT_EQ(ork_df_kernel_iEditVal(spline.task, ORK_DF_VAL_XHINT, 1), 0);
  ASSERT_EQ(search(), 0);
  for (int j = 0; j < 500; ++j) ASSERT_EQ(cell[j], plain_cell(few, site[j]));
}

}  // namespace
