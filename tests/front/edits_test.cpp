// Tasks made and edited through the public layer: what is refused, what an edit takes from a
// spline, derivatives and cells.
#include <cmath>

#include "ork/front.h"
#include "status_rows.hpp"
#include "support/blocks.hpp"

namespace {

TEST(FrontEdits, StatisticsRefuseAndCompute) {
  const int32_t p = 1, n = 4, none = 0, rows = ORK_SS_ROWS, layout = 3;
  const double x[] = {1, 2, 3, 6};
  const float single[] = {1, 2, 3, 6};
  double mean = 7;
  ork_ss_task *task = nullptr, *other = nullptr, *wide = nullptr;
  const int64_t p64 = 1;
  ASSERT_EQ(ork_dSSNewTask(&task, &p, &n, &rows, x, nullptr, nullptr), 0);
  ASSERT_EQ(ork_sSSNewTask(&other, &p, &n, &rows, single, nullptr, nullptr), 0);
  ASSERT_EQ(__ruadSSNewTask(&wide, &p64, nullptr, nullptr, nullptr, nullptr, nullptr, 1), 0);
  ork_ss_task* const held = task;
  ork_ss_task* out = held;
  const StatusRow refused[] = {
      {"new, no place", -4031,
       [&] { return ork_dSSNewTask(nullptr, &p, &n, &rows, x, nullptr, nullptr); }},
      {"new, no p", -4001,
       [&] { return ork_dSSNewTask(&out, nullptr, &n, &rows, x, nullptr, nullptr); }},
      {"new, p 0", -4001,
       [&] { return ork_sSSNewTask(&out, &none, &n, &rows, single, nullptr, nullptr); }},
      {"new, no layout", -4044,
       [&] { return ork_dSSNewTask(&out, &p, &n, nullptr, x, nullptr, nullptr); }},
      {"new, unknown layout", -4003,
       [&] { return ork_dSSNewTask(&out, &p, &n, &layout, x, nullptr, nullptr); }},
      {"new, n 0", -4002,
       [&] { return ork_dSSNewTask(&out, &p, &none, &rows, x, nullptr, nullptr); }},
      {"edit, null", -4031, [&] { return ork_dSSEditTask(nullptr, ORK_SS_EDIT_MEAN, &mean); }},
      {"edit, code 0", -3, [&] { return ork_dSSEditTask(task, 0, &mean); }},
      {"edit, unknown code", -3, [&] { return ork_iSSEditTask(task, 78, &p); }},
      {"edit, an integer's code", -3,
       [&] { return ork_dSSEditTask(task, ORK_SS_EDIT_DIMENSION, &mean); }},
      {"edit, other precision", -3,
       [&] { return ork_sSSEditTask(task, ORK_SS_EDIT_OBSERVATIONS, single); }},
      {"edit, other precision", -3,
       [&] { return ork_dSSEditTask(other, ORK_SS_EDIT_OBSERVATIONS, x); }},
      {"edit, wide integers", -3, [&] { return ork_iSSEditTask(wide, ORK_SS_EDIT_DIMENSION, &p); }},
      {"edit, null value", -4006, [&] { return ork_dSSEditTask(task, ORK_SS_EDIT_MEAN, nullptr); }},
      {"delete, no place", -4031, [&] { return ork_ss_delete(nullptr); }}};
  expect_statuses(refused);
  EXPECT_EQ(out, nullptr) << "after a constructor that failed";
  EXPECT_EQ(ork_ss_delete(&out), 0);
  EXPECT_EQ(ork_dSSEditTask(task, ORK_SS_EDIT_MEAN, &mean), 0);
  EXPECT_EQ(ork_ss_compute(task, ORK_SS_MEAN, ORK_SS_FAST, nullptr), 0);
  EXPECT_EQ(mean, 3);
  for (ork_ss_task** t : {&task, &other, &wide}) EXPECT_TRUE(ork_ss_delete(t) == 0 && !*t);
}

// The cube on five breakpoints, twice, as piecewise cubics with known coefficients.
struct Cubes {
  double x[5] = {0, 1, 2, 3, 4}, y[10], coeffs[2 * 4 * 4];
  ork_df_task* task = nullptr;
  Cubes() {
    for (int f = 0; f < 2; ++f)
      for (int i = 0; i < 5; ++i) y[5 * f + i] = (f + 1) * x[i] * x[i] * x[i];
    EXPECT_EQ(ork_dDFNewTask(&task, 5, x, 0, 2, y, 0), 0);
  }
  ~Cubes() { EXPECT_EQ(ork_df_delete(&task), 0); }
  int name(int order = 4, int type = ORK_DF_TYPE_NATURAL) {
    static const double ends[] = {0, 24};
    return ork_dDFEditSpline(task, order, type, ORK_DF_BC_2ND_LEFT | ORK_DF_BC_2ND_RIGHT, ends, 0,
                             nullptr, coeffs, 0);
  }
};

TEST(FrontEdits, DerivativesAndCells) {
  Cubes s;
  ASSERT_EQ(s.name(), 0);
  ASSERT_EQ(ork_dDFConstruct(s.task, nullptr), 0);
  const double site[] = {-1, 0.5, 2.5, 3.25, 5};
  const int32_t wanted[] = {0, 1, 0, 1, 1};
  double r[2 * 5 * 3] = {};
  int32_t cell[5];
  // Both functions in one table of conditions: the second one's ends are off, so look at the first.
  ASSERT_EQ(ork_dDFDerivatives(s.task, 5, site, 0, 5, wanted, r, nullptr), 0);
  for (int j = 0; j < 5; ++j) {
    EXPECT_NEAR(r[3 * j], 3 * site[j] * site[j], 1e-12) << j;
    EXPECT_NEAR(r[3 * j + 1], 6, 1e-12) << j;
    EXPECT_EQ(r[3 * j + 2], 0) << "order 4, beyond a cubic";
  }
  ASSERT_EQ(ork_dDFSearch(s.task, 5, site, 0, cell, &ork_threader_parallel), 0);
  for (int j = 0; j < 5; ++j) EXPECT_EQ(cell[j], std::vector<int>({0, 1, 3, 4, 5})[size_t(j)]);
  r[0] = 7;
  EXPECT_EQ(ork_dDFDerivatives(s.task, 5, site, 0, 1, wanted, r, nullptr), 0);
  EXPECT_EQ(r[0], 7) << "nothing wanted";
}

TEST(FrontEdits, SplinesRefuse) {
  Cubes s;
  ASSERT_EQ(s.name(), 0);
  ork_df_task* out = s.task;
  ork_df_task* bare = nullptr;
  const double* const x = s.x;
  const float single[] = {0, 1, 2, 3, 4};
  ASSERT_EQ(ork_dDFNewTask(&bare, 5, x, 0, 0, nullptr, 0), 0);
  const int64_t huge = int64_t{1} << 32 | 5;
  double r[4] = {7};
  int32_t cell[4] = {7}, flag[] = {2};
  const auto edit = [&](int64_t order, int64_t type, int64_t bc, const double* bv, int64_t ic,
                        const double* iv, int64_t hint) {
    return ork_dDFEditSpline(s.task, order, type, bc, bv, ic, iv, s.coeffs, hint);
  };
  const StatusRow refused[] = {
      {"new, no place", -1000, [&] { return ork_dDFNewTask(nullptr, 5, x, 0, 2, s.y, 0); }},
      {"new, nx 1", -1004, [&] { return ork_dDFNewTask(&out, 1, x, 0, 2, s.y, 0); }},
      {"new, nx of 33 bits", -1004, [&] { return ork_dDFNewTask(&out, huge, x, 0, 2, s.y, 0); }},
      {"new, no x", -1005, [&] { return ork_sDFNewTask(&out, 5, nullptr, 0, 2, single, 0); }},
      {"new, xhint", -1006, [&] { return ork_dDFNewTask(&out, 5, x, 3, 2, s.y, 0); }},
      {"new, no y", -1008, [&] { return ork_dDFNewTask(&out, 5, x, 0, 2, nullptr, 0); }},
      {"new, ny of 33 bits", -1007, [&] { return ork_dDFNewTask(&out, 5, x, 0, huge, s.y, 0); }},
      {"new, ny below 0", -1007, [&] { return ork_dDFNewTask(&out, 5, x, 0, -1, s.y, 0); }},
      {"new, yhint", -1009, [&] { return ork_dDFNewTask(&out, 5, x, 0, 2, s.y, 1); }},
      {"partition, null", -1000, [&] { return ork_dDFEditPartition(nullptr, 5, x, 0); }},
      {"partition, letter", -1011, [&] { return ork_sDFEditPartition(s.task, 5, single, 0); }},
      {"partition, nx", -1004, [&] { return ork_dDFEditPartition(s.task, huge, x, 0); }},
      {"partition, no x", -1005, [&] { return ork_dDFEditPartition(s.task, 5, nullptr, 0); }},
      {"partition, xhint", -1006, [&] { return ork_dDFEditPartition(s.task, 5, x, 8); }},
      {"functions, letter", -1011, [&] { return ork_sDFEditFunctions(s.task, 2, single, 0); }},
      {"functions, null", -1008, [&] { return ork_dDFEditFunctions(s.task, 2, nullptr, 0); }},
      {"functions, ny", -1007, [&] { return ork_dDFEditFunctions(s.task, 0, s.y, 0); }},
      {"functions, yhint", -1009, [&] { return ork_dDFEditFunctions(s.task, 2, s.y, 64); }},
      {"spline, null", -1000,
       [&] { return ork_dDFEditSpline(nullptr, 2, 0, 0, nullptr, 0, nullptr, nullptr, 0); }},
      {"spline, order", -1010, [&] { return edit(-1, 0, 0, nullptr, 0, nullptr, 0); }},
      {"spline, order of 33 bits", -1010, [&] { return edit(huge, 0, 0, nullptr, 0, nullptr, 0); }},
      {"spline, type", -1011, [&] { return edit(4, 9, 0, nullptr, 0, nullptr, 0); }},
      {"spline, no ends", -1015, [&] { return edit(4, 2, 20, nullptr, 0, nullptr, 0); }},
      {"spline, ends", -1014, [&] { return edit(4, 2, -1, x, 0, nullptr, 0); }},
      {"spline, no slopes", -1013, [&] { return edit(4, 3, 0, nullptr, 1, nullptr, 0); }},
      {"spline, inside", -1012, [&] { return edit(4, 3, 0, nullptr, 8, x, 0); }},
      {"spline, slopes for a sub-grid", -1012, [&] { return edit(3, 1, 0, nullptr, 1, x, 0); }},
      {"spline, even sub-grid", -1013, [&] { return edit(3, 1, 0, nullptr, 12, nullptr, 0); }},
      {"spline, coefficients", -1017, [&] { return edit(4, 2, 0, nullptr, 0, nullptr, 4); }},
      {"spline of no functions", -1007,
       [&] { return ork_dDFEditSpline(bare, 2, 0, 0, nullptr, 0, nullptr, s.coeffs, 0); }},
      {"row, letter", -1011, [&] { return ork_sDFEditRow(s.task, ORK_DF_PTR_Y, 0, nullptr); }},
      {"row, code", -1019, [&] { return ork_dDFEditRow(s.task, ORK_DF_PTR_X, 0, s.y); }},
      {"row, index", -1020, [&] { return ork_dDFEditRow(s.task, ORK_DF_PTR_Y, 2, s.y); }},
      {"row, null", -1016, [&] { return ork_dDFEditRow(s.task, ORK_DF_PTR_COEFFS, 0, nullptr); }},
      {"search, letter", -1011, [&] { return ork_sDFSearch(s.task, 1, single, 0, cell, nullptr); }},
      {"search, hint", -1006, [&] { return ork_dDFSearch(s.task, 1, x, 5, cell, nullptr); }},
      {"search, no cells", -1037, [&] { return ork_dDFSearch(s.task, 1, x, 0, nullptr, nullptr); }},
      {"derivatives, flag 2", -1010,
       [&] { return ork_dDFDerivatives(s.task, 1, x, 0, 1, flag, r, nullptr); }},
      {"derivatives, no flags", -1010,
       [&] { return ork_dDFDerivatives(s.task, 1, x, 0, 1, nullptr, r, nullptr); }},
      {"values, hint", -1006, [&] { return ork_dDFInterpolate(s.task, 1, x, 6, r, nullptr); }},
      {"delete, no place", -1000, [&] { return ork_df_delete(nullptr); }}};
  expect_statuses(refused);
  EXPECT_TRUE(out == nullptr && r[0] == 7 && cell[0] == 7);
  EXPECT_EQ(ork_dDFConstruct(s.task, nullptr), 0) << "refused edits changed nothing";
  EXPECT_EQ(ork_df_delete(&bare), 0);
}

// What was as long, or as many, as the task no longer says may not be read any more.
TEST(FrontEdits, ArraysOfOtherLengthsAreForgotten) {
  const double more[] = {0, 1, 2, 3, 4, 5}, six[] = {0, 1, 8, 27, 64, 125}, at[] = {2.5};
  double r[3], longer[20], left_of_it[1] = {4.5};
  Cubes s;
  ASSERT_EQ(s.name(), 0);
  ASSERT_EQ(ork_dDFConstruct(s.task, nullptr), 0);
  ASSERT_EQ(ork_dDFInterpolate(s.task, 1, at, 0, r, nullptr), 0);
  EXPECT_EQ(ork_dDFEditFunctions(s.task, 3, s.y, ORK_DF_ROWS_APART), 0);
  EXPECT_EQ(ork_dDFInterpolate(s.task, 1, at, 0, r, nullptr), ORK_DF_BAD_COEFFS);
  EXPECT_EQ(ork_dDFEditPartition(s.task, 6, more, ORK_DF_X_NON_UNIFORM), 0);
  EXPECT_EQ(ork_dDFConstruct(s.task, nullptr), ORK_DF_BAD_Y);
  EXPECT_EQ(ork_dDFEditFunctions(s.task, 1, six, 0), 0);
  EXPECT_EQ(ork_dDFEditSpline(s.task, 4, ORK_DF_TYPE_AKIMA, 0, nullptr, 0, nullptr, longer, 0), 0);
  EXPECT_EQ(ork_dDFConstruct(s.task, nullptr), 0);
  EXPECT_EQ(ork_dDFInterpolate(s.task, 1, left_of_it, 0, r, nullptr), 0);
  EXPECT_TRUE(r[0] > 64 && r[0] < 125) << "in the sixth cell";
  EXPECT_EQ(ork_dDFEditSpline(s.task, 5, 0, 0, nullptr, 0, nullptr, nullptr, 0), 0);
  EXPECT_EQ(ork_dDFInterpolate(s.task, 1, at, 0, r, nullptr), ORK_DF_BAD_COEFFS);
}

TEST(FrontEdits, NothingIsLeftOfATaskThatCouldNotBeMade) {
  const int before = blocks::live();
  const double x[] = {0, 1, 2}, y[] = {0, 1, 4};
  const int32_t p = 1;
  EXPECT_GT(
      blocks::fail_each([&] {
        ork_df_task* spline = nullptr;
        ork_ss_task* statistics = nullptr;
        const int made = ork_dDFNewTask(&spline, 3, x, 0, 1, y, 0);
        const int other =
            ork_dSSNewTask(&statistics, &p, nullptr, nullptr, nullptr, nullptr, nullptr);
        EXPECT_TRUE((made == 0) == (spline != nullptr) && (other == 0) == (statistics != nullptr));
        EXPECT_EQ(blocks::failed(), made == ORK_DF_NO_MEMORY || other == ORK_SS_NO_MEMORY);
        ork_df_delete(&spline);
        ork_ss_delete(&statistics);
        EXPECT_EQ(blocks::live(), before);
      }),
      2);
}

}  // namespace
