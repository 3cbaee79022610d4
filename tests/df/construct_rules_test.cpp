// What a construction accepts and refuses, where it starts threads, and what it does without
// memory.
#include "df/fit.hpp"
#include "df/recorder.hpp"
#include "support/blocks.hpp"

namespace {

constexpr Kind all_kinds[] = {Kind::linear,   Kind::quadratic, Kind::subbotin, Kind::natural,
                              Kind::standard, Kind::hermite,   Kind::bessel,   Kind::akima};

template <class T>
void same_bits(Fit<T> fit, int threads) {
  ASSERT_EQ(fit.build(), 0) << fit.name();
  const std::vector<T> serial = fit.coeffs;
  fit.threader = Recorder::table(threads);
  ASSERT_EQ(fit.build(), 0) << fit.name();
  ASSERT_EQ(memcmp(serial.data(), fit.coeffs.data(), serial.size() * sizeof(T)), 0) << fit.name();
}

TEST(ConstructionThreads, LaunchesAsDocumentedWithTheSameBits) {
  const struct {
    Kind kind;
    int64_t bc;
    int nx, ny, threads, launched, on;  // launched 0: stays on the calling thread
  } rows[] = {
      {Kind::linear, 0, 63, 2, 8, 0, 0},     {Kind::linear, 0, 64, 2, 8, 0, 0},
      {Kind::linear, 64, 4097, 1, 8, 0, 0},  {Kind::linear, 64, 4098, 1, 8, 5, 5},
      {Kind::linear, 0, 1025, 17, 3, 5, 3},  {Kind::linear, 0, 1026, 17, 3, 10, 3},
      {Kind::natural, 2, 600, 2, 2, 2, 2},   {Kind::natural, 2, 600, 3, 8, 3, 3},
      {Kind::natural, 64, 599, 9, 7, 0, 0},  {Kind::natural, 64, 599, 9, 8, 9, 8},
      {Kind::natural, 1, 299, 8, 8, 0, 0},   {Kind::natural, 1, 300, 8, 8, 8, 8},
      {Kind::natural, 36, 300, 7, 8, 0, 0},  {Kind::natural, 36, 1000, 1, 8, 0, 0},
      {Kind::natural, 64, 1000, 5, 1, 0, 0}, {Kind::natural, 64, 1001, 5, 4, 5, 4},
      {Kind::hermite, 2, 511, 1, 8, 0, 0},   {Kind::hermite, 2, 512, 1, 8, 1, 1},
      {Kind::hermite, 64, 2051, 1, 8, 1, 1}, {Kind::hermite, 1, 2052, 5, 3, 4, 3},
      {Kind::bessel, 64, 2051, 4, 8, 1, 1},  {Kind::bessel, 1, 2052, 9, 8, 6, 6},
      {Kind::bessel, 24, 127, 4, 8, 0, 0},   {Kind::bessel, 24, 128, 5, 8, 2, 2},
      {Kind::akima, 0, 2053, 1, 8, 1, 1},    {Kind::akima, 64, 2054, 5, 2, 4, 2},
      {Kind::akima, 1, 4102, 1, 8, 3, 3},    {Kind::akima, 48, 101, 5, 8, 0, 0},
  };
  for (const auto& row : rows)
    for (int64_t layout : {0, 4, 32, 36}) {
      const int64_t xhint = layout & 4, yhint = layout & 32;
      same_bits(make_fit<double>(row.kind, row.bc, row.nx, row.ny, xhint, yhint), row.threads);
      const std::vector<std::pair<int, int>> expected(row.launched != 0, {row.launched, row.on});
      ASSERT_EQ(Recorder::launches, expected)
          << kind_facts[int(row.kind)].name << " " << row.nx << " " << row.ny << " " << row.threads;
      same_bits(make_fit<float>(row.kind, row.bc, row.nx, row.ny, xhint, yhint), row.threads);
      ASSERT_EQ(Recorder::launches, expected);
    }
}

// A function alone and among others goes through different solvers, and still is the same
// spline.
TEST(ConstructionThreads, FunctionsDoNotDependOnEachOther) {
  for (Kind kind : all_kinds)
    for (int64_t bc : boundaries(kind))
      for (int nx : {7, 64, 333}) {
        Fit<double> many = make_fit<double>(kind, bc, nx, 5, 0, 32), one = many;
        one.ny = 1, one.yhint = 0, one.y.resize(nx);
        ASSERT_EQ(many.build(), 0);
        for (int f = 0; f < 5; ++f) {
          for (int i = 0; i < nx; ++i) one.y[i] = many.value(f, i);
          ASSERT_EQ(one.build(), 0);
          for (size_t j = 0; j < one.coeffs.size(); ++j)
            ASSERT_NEAR(one.coeffs[j], many.piece(f, 0)[j], 1e-12)
                << many.name() << " " << f << " " << j;
        }
      }
}

TEST(ConstructionMemory, EveryFailingAllocationIsReported) {
  const struct {
    Kind kind;
    int64_t bc;
    int nx, ny;
    int blocks;  // of the construction alone, beside the four of the task
  } rows[] = {
      {Kind::linear, 0, 500, 3, 0},       {Kind::quadratic, 128, 4094, 1, 0},
      {Kind::quadratic, 128, 4095, 2, 1}, {Kind::subbotin, 12, 9, 2, 1},
      {Kind::natural, 1, 50, 1, 1},       {Kind::natural, 64, 50, 3, 1},
      {Kind::natural, 64, 700, 3, 2},     {Kind::standard, 2, 50, 2, 1},
      {Kind::hermite, 2, 700, 2, 1},      {Kind::bessel, 2, 50, 2, 1},
      {Kind::akima, 0, 700, 2, 1},
  };
  for (const auto& row : rows) {
    Fit<double> fit = make_fit<double>(row.kind, row.bc, row.nx, row.ny, 0, 0);
    fit.threader = Recorder::table(3);
    const int before = blocks::live();
    const int asked = blocks::fail_each([&] {
      const int code = fit.build();
      ASSERT_EQ(code, blocks::failed() ? ORK_DF_NO_MEMORY : ORK_DF_OK) << fit.name();
      ASSERT_EQ(blocks::live(), before) << fit.name();
      if (blocks::failed()) {
        ASSERT_TRUE(fit.untouched()) << fit.name();
      }
    });
    EXPECT_EQ(asked, 4 + row.blocks) << fit.name();
  }
}

TEST(ConstructionStatus, RefusesWhatItsEntryDoesNotServe) {
  struct Row {
    const char* what;
    int expected;
    Kind kind;
    void (*spoil)(Fit<double>&);
  };
  using F = Fit<double>;
  const Row rows[] = {
      {"linear method", ORK_DF_BAD_METHOD, Kind::linear, [](F& f) { f.method = 1; }},
      {"method before nx", ORK_DF_BAD_METHOD, Kind::natural, [](F& f) { f.method = 1, f.nx = 2; }},
      {"natural nx", ORK_DF_BAD_NX, Kind::natural, [](F& f) { f.nx = 2; }},
      {"nx before bc", ORK_DF_BAD_NX, Kind::standard, [](F& f) { f.nx = 2, f.bc = 3; }},
      {"Hermite nx", ORK_DF_BAD_NX, Kind::hermite, [](F& f) { f.nx = 2; }},
      {"Bessel nx", ORK_DF_BAD_NX, Kind::bessel, [](F& f) { f.nx = 3; }},
      {"Akima nx", ORK_DF_BAD_NX, Kind::akima, [](F& f) { f.nx = 4; }},
      {"unset ends", ORK_DF_BAD_BC, Kind::bessel, [](F& f) { f.bc = 0; }},
      {"three ends", ORK_DF_BAD_BC, Kind::akima, [](F& f) { f.bc = 4 | 8 | 16; }},
      {"one end", ORK_DF_BAD_BC, Kind::natural, [](F& f) { f.bc = 4; }},
      {"the quadratic's own", ORK_DF_BAD_BC, Kind::hermite, [](F& f) { f.bc = 128; }},
      {"no closing value", ORK_DF_BAD_BC_VALUES, Kind::standard,
       [](F& f) { f.bc = 64, f.bc_values = {}; }},
      {"no closing value", ORK_DF_BAD_BC_VALUES, Kind::hermite,
       [](F& f) { f.bc = 64, f.bc_values = {}; }},
      {"none needed", ORK_DF_OK, Kind::bessel, [](F& f) { f.bc = 2, f.bc_values = {}; }},
      {"no middle", ORK_DF_BAD_BC, Kind::quadratic, [](F& f) { f.bc = 12; }},
      {"no sub-grid", ORK_DF_BAD_IC, Kind::subbotin, [](F& f) { f.ic = 1; }},
      {"sub-grid before ends", ORK_DF_BAD_IC, Kind::subbotin, [](F& f) { f.ic = 2, f.bc = 2; }},
      {"Subbotin not-a-knot", ORK_DF_BAD_BC, Kind::subbotin, [](F& f) { f.bc = 1; }},
      {"Subbotin free", ORK_DF_BAD_BC, Kind::subbotin, [](F& f) { f.bc = 2; }},
      {"Subbotin periodic", ORK_DF_BAD_BC, Kind::subbotin, [](F& f) { f.bc = 64; }},
      {"even without values", ORK_DF_BAD_IC_VALUES, Kind::subbotin, [](F& f) { f.ic = 12; }},
      {"no second derivatives", ORK_DF_BAD_IC_VALUES, Kind::standard,
       [](F& f) { f.ic_values = {}; }},
      {"no slopes", ORK_DF_BAD_IC_VALUES, Kind::hermite, [](F& f) { f.ic_values = {}; }},
      {"one point twice", ORK_DF_SOLVER_FAILED, Kind::natural, [](F& f) { f.x.assign(f.nx, 1); }},
  };
  for (const Row& row : rows) {
    Fit<double> fit = make_fit<double>(row.kind, boundaries(row.kind)[0], 9, 2, 0, 0);
    row.spoil(fit);
    EXPECT_EQ(fit.build(), row.expected) << row.what << ": " << fit.name();
    if (row.expected != ORK_DF_OK) {
      EXPECT_TRUE(fit.untouched()) << row.what;
    }
  }
  for (auto* entry : FitApi<double>::build)
    EXPECT_EQ(entry(nullptr, 0, 0, &ork_threader_serial), ORK_DF_NULL_TASK);

  // The editor guards these; a record that lacks them anyway is refused, not read.
  ork_df_task* task = nullptr;
  const double x[] = {0, 1, 2, 3, 4}, y[] = {1, 2, 1, 2, 1};
  ASSERT_EQ(ork_df_kernel_dNewTask1D(&task, 5, x, 0, 0, nullptr, 0, 0), 0);
  EXPECT_EQ(ork_df_kernel_dDFAkimaCubicSpline1D(task, 0, 0, &ork_threader_serial), ORK_DF_BAD_Y);
  ork_df_kernel_DeleteTask(&task);
  ASSERT_EQ(ork_df_kernel_dNewTask1D(&task, 5, x, 0, 1, y, 0, 0), 0);
  EXPECT_EQ(ork_df_kernel_dDFAkimaCubicSpline1D(task, 0, 0, &ork_threader_serial),
            ORK_DF_BAD_COEFFS);
  auto* const record = reinterpret_cast<char*>(task);
  const struct {
    int offset;  // of a field of 64 bits
    int64_t value;
    int expected;
  } spoilt[] = {{16, 1, ORK_DF_BAD_NX}, {48, 64, ORK_DF_BAD_YHINT}};
  for (const auto& s : spoilt) {
    int64_t kept;
    memcpy(&kept, record + s.offset, sizeof kept);
    memcpy(record + s.offset, &s.value, sizeof kept);
    for (auto* entry : FitApi<double>::build)
      EXPECT_EQ(entry(task, 0, 0, &ork_threader_serial), s.expected);
    memcpy(record + s.offset, &kept, sizeof kept);
  }
  ork_df_kernel_DeleteTask(&task);
}

TEST(ConstructionStatus, ClosesOnlyWhatEndsAsItBegan) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  for (Kind kind : all_kinds) {
    if (kind == Kind::quadratic || kind == Kind::subbotin) continue;
    for (int nx : {20, 700})
      for (int threads : {1, 8})
        for (bool both_nan : {false, true}) {
          Fit<double> fit = make_fit<double>(kind, 64, nx, 5, 0, 0);
          fit.threader = Recorder::table(threads);
          fit.value(3, nx - 1) = both_nan ? nan : std::nextafter(fit.value(3, 0), 2);
          if (both_nan) fit.value(3, 0) = nan;
          EXPECT_EQ(fit.build(), ORK_DF_NOT_PERIODIC) << fit.name();
          const bool checks_first = kind != Kind::natural && kind != Kind::standard;
          EXPECT_TRUE(fit.untouched() || !checks_first) << fit.name();
        }
  }
}

TEST(ConstructionStatus, SubgridPointsLieInsideTheirCells) {
  struct Row {
    const char* what;
    int64_t xhint, ic;
    bool accepted;
    void (*change)(std::vector<double>& k, double ulp);
  };
  using K = std::vector<double>;
  const Row rows[] = {
      {"as it is", 0, 8, true, [](K&, double) {}},
      {"left end off", 0, 8, false, [](K& k, double) { k[0] = std::nextafter(k[0], 9); }},
      {"right end off", 0, 8, false, [](K& k, double) { k[6] = std::nextafter(k[6], 9); }},
      {"on its left breakpoint", 0, 8, false, [](K& k, double) { k[3] = 2; }},
      {"on its right breakpoint", 0, 8, false, [](K& k, double) { k[3] = 3; }},
      {"next to it", 0, 8, true, [](K& k, double) { k[3] = std::nextafter(3, 0); }},
      {"NaN", 0, 8, false, [](K& k, double) { k[2] = std::nan(""); }},
      {"NaN end", 0, 8, false, [](K& k, double) { k[6] = std::nan(""); }},
      {"end within the tolerance", 4, 8, true, [](K& k, double t) { k[0] += t, k[6] -= t; }},
      {"left end beyond it", 4, 8, false, [](K& k, double t) { k[0] -= 1.01 * t; }},
      {"right end beyond it", 4, 8, false, [](K& k, double t) { k[6] += 1.01 * t; }},
      {"even", 0, 12, true,
       [](K& k, double) {
         k = {0.5, 4.5};
       }},
      {"even, left outside", 0, 12, false,
       [](K& k, double) {
         k = {0, 4.5};
       }},
      {"even, right outside", 4, 12, false,
       [](K& k, double) {
         k = {0.5, 5};
       }},
      {"even, an inner one outside", 4, 12, false,
       [](K& k, double) {
         k = {0.9, 3.1};
       }},
  };
  for (const Row& row : rows) {
    Fit<double> fit = make_fit<double>(Kind::subbotin, 12, 6, 2, row.xhint, 0, row.ic);
    for (int i = 0; i < 6; ++i) fit.x[i] = i;
    fit.ic_values = {0, 0.3, 1.6, 2.5, 3.2, 4.7, 5};
    row.change(fit.ic_values, 0x1p-40);
    EXPECT_EQ(fit.build(), row.accepted ? ORK_DF_OK : ORK_DF_BAD_IC_VALUES) << row.what;
    EXPECT_EQ(fit.untouched(), !row.accepted) << row.what;
  }
}

}  // namespace
