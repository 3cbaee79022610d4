// Creating, editing and querying a task: statuses in their order, and what is stored.
#include "df/request.hpp"

namespace {

const double x5[] = {0, 1, 2, 3, 5};
const double y15[15] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15};

struct Task {
  ork_df_task* task = nullptr;
  explicit Task(int64_t ny = 3, int64_t yhint = 0, int32_t width = 0, int64_t xhint = 0) {
    EXPECT_EQ(
        ork_df_kernel_dNewTask1D(&task, 5, x5, xhint, ny, ny != 0 ? y15 : nullptr, yhint, width),
        0);
  }
  ~Task() { EXPECT_EQ(ork_df_kernel_DeleteTask(&task), 0); }
  int32_t value(int code) const {
    int32_t v = -99;
    EXPECT_EQ(ork_df_kernel_iQueryVal(task, code, &v), 0);
    return v;
  }
  double* row(int code, int index) const {
    double* p = nullptr;
    EXPECT_EQ(ork_df_kernel_dQueryIdxPtr(task, code, index, &p), 0);
    return p;
  }
  // A field of the record, whose layout is fixed.
  template <class V>
  V field(size_t offset) const {
    V v;
    memcpy(&v, reinterpret_cast<const char*>(task) + offset, sizeof v);
    return v;
  }
};

TEST(Task, CreatorChecksInOrder) {
  const struct {
    int64_t nx;
    const double* x;
    int64_t xhint, ny;
    const double* y;
    int64_t yhint;
    int expected;
  } rows[] = {
      {1, nullptr, 3, 1, nullptr, 7, -1004}, {2, nullptr, 3, 1, nullptr, 7, -1005},
      {5, x5, 3, 1, nullptr, 7, -1006},      {5, x5, 8, 1, nullptr, 7, -1006},
      {5, x5, 2, 1, nullptr, 7, -1008},      {5, x5, 1, 0, y15, 7, -1007},
      {5, x5, 4, 3, y15, 7, -1009},          {5, x5, 0, 3, y15, 64, -1009},
      {5, x5, 0, 0, nullptr, 0, 0},          {5, x5, 4, 3, y15, 128, 0},
      {-3, x5, 0, 3, y15, 0, -1004},
  };
  for (const auto& r : rows) {
    ork_df_task* task = nullptr;
    const int before = blocks::live();
    EXPECT_EQ(ork_df_kernel_dNewTask1D(&task, r.nx, r.x, r.xhint, r.ny, r.y, r.yhint, 0),
              r.expected);
    EXPECT_EQ(task != nullptr, r.expected == 0);
    if (task != nullptr) ork_df_kernel_DeleteTask(&task);
    EXPECT_EQ(task, nullptr);
    EXPECT_EQ(blocks::live(), before);
  }
  ork_df_task* none = nullptr;
  EXPECT_EQ(ork_df_kernel_DeleteTask(&none), -1000);
}

TEST(Task, ValuesAreCheckedAndStored) {
  Task t;
  const struct {
    int code;
    int64_t value;
    int expected;
  } rows[] = {
      {14, 1, -1004},  {14, 2, 0},      {15, 3, -1006}, {15, 2, 0},     {15, 4, 0},
      {15, -1, -1006}, {16, 0, -1007},  {16, 2, 0},     {17, 8, -1009}, {17, 32, 0},
      {17, 128, 0},    {18, -1, -1010}, {18, 9, 0},     {19, 6, -1011}, {19, -1, -1011},
      {19, 5, 0},      {20, 3, -1012},  {20, 12, 0},    {20, 2, 0},     {21, -1, -1014},
      {21, 77, 0},     {22, 64, -1017}, {22, 128, 0},   {23, 2, -1036}, {23, 1, 0},
      {13, 1, -1019},  {24, 1, -1019},
  };
  for (const auto& r : rows) {
    EXPECT_EQ(ork_df_kernel_iEditVal(t.task, r.code, r.value), r.expected)
        << r.code << " " << r.value;
    if (r.expected == 0) {
      EXPECT_EQ(t.value(r.code), r.value) << r.code;
    }
  }
  EXPECT_EQ(ork_df_kernel_iEditVal(nullptr, 14, 5), -1000);
  int32_t out;
  EXPECT_EQ(ork_df_kernel_iQueryVal(nullptr, 14, &out), -1000);
  EXPECT_EQ(ork_df_kernel_iQueryVal(t.task, 14, nullptr), -1037);
  EXPECT_EQ(ork_df_kernel_iQueryVal(t.task, 13, &out), -1019);
}

TEST(Task, QueriesWriteTheTasksWidth) {
  for (int width : {0, 1, 2}) {
    Task t(3, 0, width);
    int64_t v = -1;
    ASSERT_EQ(ork_df_kernel_iQueryVal(t.task, 14, &v), 0);
    EXPECT_EQ(v, width != 0 ? 5 : int64_t(0xFFFFFFFF00000005)) << width;
  }
}

TEST(Task, FunctionsFollowTheirHint) {
  double other = 0;
  double* p = nullptr;
  for (int64_t hint : {0, 16, 32, 128}) {
    Task t(3, hint);
    EXPECT_EQ(ork_df_kernel_dQueryPtr(t.task, 2, &p), 0);
    EXPECT_EQ(p, y15);
    for (int f = 0; f < 3; ++f) {
      if (hint == 32) {
        EXPECT_EQ(ork_df_kernel_dQueryIdxPtr(t.task, 2, f, &p), -1009);
        EXPECT_EQ(ork_df_kernel_dEditIdxPtr(t.task, 2, f, &other), -1009);
        continue;
      }
      EXPECT_EQ(t.row(2, f), f == 0 ? y15 : hint == 128 ? nullptr : y15 + 5 * f);
      EXPECT_EQ(ork_df_kernel_dEditIdxPtr(t.task, 2, f, &other), 0);
      EXPECT_EQ(t.row(2, f), &other);
    }
    // A new block refills the table, with the count and length of now.
    EXPECT_EQ(ork_df_kernel_iEditVal(t.task, 14, 4), 0);
    EXPECT_EQ(ork_df_kernel_dEditPtr(t.task, 2, y15 + 1), 0);
    if (hint == 0) {
      EXPECT_EQ(t.row(2, 2), y15 + 1 + 8);
    }
  }
}

// Every function that the count says has a row, and rows set one by one stay; a task whose table
// cannot grow keeps its count.
TEST(Task, TablesGrowWithTheCountOfFunctions) {
  double other = 0, coeffs[64];
  for (const int64_t hint : {0, 128}) {
    Task t(2, hint);
    ASSERT_EQ(ork_df_kernel_iEditVal(t.task, 18, 2), 0);
    ASSERT_EQ(ork_df_kernel_iEditVal(t.task, 22, hint), 0);
    ASSERT_EQ(ork_df_kernel_dEditPtr(t.task, 5, coeffs), 0);
    ASSERT_EQ(ork_df_kernel_dEditIdxPtr(t.task, 2, 1, &other), 0);
    for (const int ny : {3, 2, 40}) {
      blocks::fail_each([&] {
        const int status = ork_df_kernel_iEditVal(t.task, 16, ny);
        EXPECT_EQ(status, blocks::failed() ? -1001 : 0);
      });
      EXPECT_EQ(t.value(16), ny);
      EXPECT_EQ(t.row(2, 1), &other);
      for (int f = 2; f < ny; ++f) {
        EXPECT_EQ(t.row(2, f), hint == 128 ? nullptr : y15 + 5 * f) << f;
        EXPECT_EQ(t.row(5, f), hint == 128 ? nullptr : coeffs + 8 * f) << f;
      }
    }
  }
  Task t(3, 32);  // by columns the table has one row
  ASSERT_EQ(ork_df_kernel_iEditVal(t.task, 17, 16), 0);
  EXPECT_EQ(t.row(2, 2), y15 + 10);
}

TEST(Task, PointersAreCheckedAndStored) {
  Task t;
  double v[20], *p = nullptr;
  const int null_code[] = {0, -1005, -1008, -1013, -1015, -1016};
  for (int code = 1; code <= 5; ++code) {
    EXPECT_EQ(ork_df_kernel_dEditPtr(t.task, code, nullptr), null_code[code]);
    EXPECT_EQ(ork_df_kernel_dEditPtr(t.task, code, v), 0);
    EXPECT_EQ(ork_df_kernel_dQueryPtr(t.task, code, &p), 0);
    EXPECT_EQ(p, v);
  }
  EXPECT_EQ(ork_df_kernel_dEditPtr(t.task, 6, v), -1019);
  EXPECT_EQ(ork_df_kernel_dEditPtr(nullptr, 1, nullptr), -1000);
  EXPECT_EQ(ork_df_kernel_dQueryPtr(t.task, 0, &p), -1019);
  EXPECT_EQ(ork_df_kernel_dQueryPtr(t.task, 1, nullptr), -1037);
  const struct {
    int code;
    int64_t index;
    double* pointer;
    int edit, query;
  } rows[] = {{2, 3, v, -1020, -1020},
              {2, -1, nullptr, -1020, -1020},
              {2, 2, nullptr, -1008, 0},
              {5, 0, nullptr, -1016, 0},
              {5, 3, v, -1020, -1020},
              {1, 0, v, -1019, -1019},
              {5, 2, v, 0, 0}};
  for (const auto& r : rows) {
    EXPECT_EQ(ork_df_kernel_dEditIdxPtr(t.task, r.code, r.index, r.pointer), r.edit)
        << r.code << " " << r.index;
    EXPECT_EQ(ork_df_kernel_dQueryIdxPtr(t.task, r.code, r.index, &p), r.query);
  }
  EXPECT_EQ(ork_df_kernel_dQueryIdxPtr(t.task, 9, 7, nullptr), -1037);
  EXPECT_EQ(ork_df_kernel_dQueryIdxPtr(t.task, 9, 7, &p), -1020);
}

TEST(Task, SplineIsStoredUpToTheFailingCheck) {
  double bc[2], ic[3], c[60];
  const struct {
    int64_t order, type, bc;
    double* bc_values;
    int64_t ic;
    double* ic_values;
    int expected;
    int stored;  // fields stored: order and type, bc, ic
  } rows[] = {
      {-1, -1, 4, nullptr, 1, nullptr, -1010, 0},
      {4, -1, 4, nullptr, 1, nullptr, -1011, 0},
      {4, 2, 12, nullptr, 1, nullptr, -1015, 1},
      {4, 2, 128, nullptr, 0, nullptr, -1015, 1},
      {4, 8, 64, nullptr, 1, nullptr, -1013, 2},
      {4, 7, 12, bc, 0, ic, -1012, 2},
      {3, 1, 2, nullptr, 8, ic, 0, 3},
      {4, 6, 1, bc, 0, nullptr, 0, 3},
  };
  for (const auto& r : rows) {
    Task t;
    EXPECT_EQ(ork_df_kernel_dEditPPSpline1D(t.task, r.order, r.type, r.bc, r.bc_values, r.ic,
                                            r.ic_values, c, 0),
              r.expected);
    EXPECT_EQ(t.value(18), r.stored >= 1 ? r.order : 0);
    EXPECT_EQ(t.value(19), r.stored >= 1 ? r.type : 0);
    EXPECT_EQ(t.value(21), r.stored >= 2 ? r.bc : 0);
    EXPECT_EQ(t.value(20), r.stored >= 3 ? r.ic : 0);
    if (r.expected == 0) {  // a row holds nx pieces in the Subbotin spline, else nx - 1
      EXPECT_EQ(t.row(5, 2), c + 2 * (r.type == 1 ? 3 * 5 : 4 * 4));
    }
  }
  EXPECT_EQ(ork_df_kernel_dEditPPSpline1D(nullptr, 4, 0, 0, nullptr, 0, nullptr, c, 0), -1000);
  Task bare(0);
  EXPECT_EQ(ork_df_kernel_dEditPPSpline1D(bare.task, 4, 0, 0, nullptr, 0, nullptr, c, 0), -1007);
  EXPECT_EQ(ork_df_kernel_dEditPtr(bare.task, 5, c), -1007);
  Task apart;
  EXPECT_EQ(ork_df_kernel_dEditPPSpline1D(apart.task, 4, 0, 0, nullptr, 0, nullptr, c, 128), 0);
  EXPECT_EQ(apart.row(5, 0), c);
  EXPECT_EQ(apart.row(5, 1), nullptr);
}

// Each bucket's pair brackets the cells of all its sites, tightly.
TEST(Task, BucketsBracketTheirSites) {
  std::mt19937 random(1);
  for (Grid grid : {Grid::free, Grid::clustered})
    for (int nx : {2, 5, 255, 256, 272, 16384, 40000}) {
      const std::vector<double> x = make_grid<double>(grid, nx, random);
      ork_df_task* task = nullptr;
      ASSERT_EQ(ork_df_kernel_dNewTask1D(&task, nx, x.data(), 0, 0, nullptr, 0, 0), 0);
      const auto* record = reinterpret_cast<const char*>(task);
      int64_t count;
      const int32_t(*bucket)[2];
      double inverse;
      memcpy(&count, record + 112, 8), memcpy(&bucket, record + 120, 4),
          memcpy(&inverse, record + 124, 8);
      ASSERT_EQ(count, std::min(std::max(nx / 16, 16), 1024));
      std::vector<int> b(nx);
      for (int i = 0; i < nx; ++i) b[i] = int((x[i] - x[0]) * inverse);
      for (int k = 0; k < count; ++k) {
        const int before =
            int(std::lower_bound(b.begin(), b.end(), k) - b.begin());  // in lower buckets
        const int through =
            int(std::upper_bound(b.begin(), b.end(), k) - b.begin());  // up to this one
        ASSERT_LE(bucket[k][0], before) << nx << " " << k;
        ASSERT_GE(bucket[k][1], std::min(through, nx - 1));
        ASSERT_LE(bucket[k][1], nx - 1);
        if (k > 1 && before > 0 && b[before - 1] >= 1) {
          ASSERT_EQ(bucket[k][0], before - 1);
        }
      }
      ork_df_kernel_DeleteTask(&task);
    }
}

TEST(Task, TheTableIsBuiltWhenItIsNeeded) {
  for (int64_t to : {0, 1, 2}) {
    Task t(3, 0, 0, 4);
    EXPECT_EQ(t.field<int64_t>(112), 0);
    EXPECT_EQ(ork_df_kernel_iEditVal(t.task, 15, to), 0);
    EXPECT_EQ(t.field<int64_t>(112), 16) << to;
  }
  const double scaled[] = {0, 2, 4, 6, 10};
  Task t;
  ork_df_kernel_dEditPtr(t.task, 1, scaled);
  for (int64_t to : {0, 2, 1}) {
    EXPECT_EQ(ork_df_kernel_iEditVal(t.task, 15, to), 0);
    EXPECT_EQ(t.field<double>(124), to == 1 ? 1.6 : 3.2) << to;
  }
}

TEST(Task, AnotherDimensionIsLeftAlone) {
  Task t;
  double v, *p = &v;
  int32_t out = 7, three = 3, one = 1;
  memcpy(reinterpret_cast<char*>(t.task) + 12, &three, 4);
  EXPECT_EQ(ork_df_kernel_iEditVal(t.task, 99, -5), 0);
  EXPECT_EQ(ork_df_kernel_dEditPtr(t.task, 1, nullptr), 0);
  EXPECT_EQ(ork_df_kernel_dEditIdxPtr(t.task, 9, 99, nullptr), 0);
  EXPECT_EQ(ork_df_kernel_dQueryPtr(t.task, 9, &p), 0);
  EXPECT_EQ(ork_df_kernel_dQueryPtr(t.task, 9, nullptr), -1037);
  EXPECT_EQ(ork_df_kernel_iQueryVal(t.task, 14, &out), 0);
  EXPECT_EQ(out, 7);
  EXPECT_EQ(p, &v);
  memcpy(reinterpret_cast<char*>(t.task) + 12, &one, 4);
  EXPECT_EQ(t.value(14), 5);
}

TEST(Task, EveryFailingAllocationIsReported) {
  double c[60];
  const int before = blocks::live();
  const int asked = blocks::fail_each([&] {
    ork_df_task* task = nullptr;
    int code = ork_df_kernel_dNewTask1D(&task, 5, x5, 0, 3, y15, 0, 0);
    if (code == 0) code = ork_df_kernel_dEditPPSpline1D(task, 4, 0, 0, nullptr, 0, nullptr, c, 0);
    if (code == 0) code = ork_df_kernel_dEditPtr(task, 2, y15);
    if (code == 0) code = ork_df_kernel_dEditPtr(task, 5, c);
    ASSERT_EQ(code, blocks::failed() ? ORK_DF_NO_MEMORY : 0);
    if (task != nullptr) ork_df_kernel_DeleteTask(&task);
    ASSERT_EQ(blocks::live(), before);
  });
  EXPECT_EQ(asked, 6);
}

}  // namespace
