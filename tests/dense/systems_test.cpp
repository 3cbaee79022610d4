// Tridiagonal systems, and the argument checks of all routines.
#include "dense/dense.hpp"

namespace dense {
namespace {

template <class R>
struct DenseSystems : Dense<R> {};
TYPED_TEST_SUITE(DenseSystems, Reals);

template <class R>
struct System {
  int n, ld;
  std::vector<R> dl, d, du;
  Array<R> x, b;  // b = T x

  System(int n, int nrhs, R diagonal, int gap)
      : n(n), ld(n + gap), dl(n), d(n), du(n), x(n, nrhs, gap), b(n, nrhs, gap) {
    for (int i = 0; i < n; ++i)
      dl[i] = draw<R>(), du[i] = draw<R>(), d[i] = diagonal + draw<R>() / 4;
    dl[n - 1] = du[n - 1] = nan<R>;  // one past their ends
    multiply();
  }
  Wide row(const Array<R>& y, int i, int j) const {
    return Wide(d[i]) * y(i, j) + (i > 0 ? Wide(dl[i - 1]) * y(i - 1, j) : 0) +
           (i + 1 < n ? Wide(du[i]) * y(i + 1, j) : 0);
  }
  void multiply() {
    b.fill([&](int i, int j) { return R(row(x, i, j)); });
  }
};

TYPED_TEST(DenseSystems, Tridiagonal) {
  using R = TypeParam;
  for (int n : sizes)
    for (int nrhs : {0, 1, 3, 4, 7})
      for (R diagonal : {R(3), R(0)}) {
        TRACE("n " << n << " nrhs " << nrhs << " diagonal near " << diagonal);
        const System<R> s(n, nrhs, diagonal, 2);
        const int ld = s.ld;
        int info = 1;
        auto t = s;
        TestFixture::A::tsvb(&n, &nrhs, t.dl.data(), t.d.data(), t.du.data(), t.b.data(), &ld,
                             &info);
        ASSERT_EQ(0, info);
        t.b.expect_kept(s.b);
        EXPECT_TRUE(std::isnan(t.dl[n - 1]) && std::isnan(t.du[n - 1]));
        // A backward stable solver leaves a residual of the rounding of T times the solution.
        for (int j = 0; j < nrhs; ++j) {
          Wide largest = 1;
          for (int i = 0; i < n; ++i) largest = std::max(largest, std::fabs(Wide(t.b(i, j))));
          for (int i = 0; i < n; ++i)
            ASSERT_LE(std::fabs(s.row(t.b, i, j) - s.b(i, j)), 40 * eps<R> * largest) << i;
        }
        if (diagonal == 0) continue;

        auto f = s;
        TestFixture::A::ttrfb(&n, f.dl.data(), f.d.data(), f.du.data(), &info);
        ASSERT_EQ(0, info);
        EXPECT_TRUE(std::isnan(f.dl[n - 1]) && std::isnan(f.du[n - 1]));
        const auto solve = [&](int columns, R* b) {
          TestFixture::A::ttrsb("N", &n, &columns, f.dl.data(), f.d.data(), f.du.data(), b, &ld,
                                &info);
          ASSERT_EQ(0, info);
        };
        auto alone = f.b;
        solve(nrhs, f.b.data());
        f.b.expect_kept(s.b);
        f.b.expect_near([&](int i, int j) { return s.x(i, j); }, 20 * eps<R>);
        for (int j = 0; j < nrhs; ++j) solve(1, &alone(0, j));
        EXPECT_EQ(0, memcmp(alone.data(), f.b.data(), alone.v.size() * sizeof(R)));
        if (this->HasFatalFailure()) return;
      }
}

// The rows of a spline whose end pieces are one cubic with their neighbours: not dominated
// by the diagonal at the ends, on a grid whose steps change by up to a thousand.
TYPED_TEST(DenseSystems, TridiagonalSpline) {
  using R = TypeParam;
  for (int n : {4, 5, 40}) {
    System<R> s(n, 1, R(3), 0);
    std::vector<R> h(n - 1);
    for (R& step : h) step = std::pow(R(1000), (draw<R>() + 1) / 2);
    for (int i = 1; i + 1 < n; ++i)
      s.dl[i - 1] = h[i], s.d[i] = 2 * (h[i - 1] + h[i]), s.du[i] = h[i - 1];
    s.d[0] = h[1], s.du[0] = h[0] + h[1];
    s.dl[n - 2] = h[n - 2] + h[n - 3], s.d[n - 1] = h[n - 3];
    s.multiply();
    auto f = s;
    const int one = 1;
    int info = 1;
    TestFixture::A::ttrfb(&n, f.dl.data(), f.d.data(), f.du.data(), &info);
    ASSERT_EQ(0, info);
    TestFixture::A::ttrsb("n", &n, &one, f.dl.data(), f.d.data(), f.du.data(), f.b.data(), &n,
                          &info);
    ASSERT_EQ(0, info);
    for (int i = 0; i < n; ++i) {
      const Wide scale = std::fabs(s.d[i]) + (i > 0 ? s.dl[i - 1] : 0) + (i + 1 < n ? s.du[i] : 0);
      Wide largest = 0;
      for (int k = 0; k < n; ++k) largest = std::max(largest, std::fabs(Wide(f.b(k, 0))));
      EXPECT_LE(std::fabs(s.row(f.b, i, 0) - s.b(i, 0)), 40 * eps<R> * scale * largest)
          << n << " " << i;
    }
  }
}

TYPED_TEST(DenseSystems, TridiagonalSingular) {
  using R = TypeParam;
  const int n = 3, one = 1;
  const struct {
    R dl[2], d[3], du[2];
    int solved, factored;
  } cases[] = {
      {{0, 0}, {0, 1, 1}, {0, 0}, 1, 1},  // empty first column
      {{1, 0}, {0, 0, 1}, {1, 0}, 0, 1},  // regular, but not without an interchange
      {{1, 2}, {1, 4, 1}, {2, 1}, 3, 3},  // last row = second row - first row
      {{2, 1}, {1, 2, 0}, {1, 0}, 2, 2},  // second row = 2 first row
  };
  for (const auto& c : cases) {
    auto solved = c, factored = c;
    R b[3] = {1, 2, 3};
    int info = -99;
    TestFixture::A::tsvb(&n, &one, solved.dl, solved.d, solved.du, b, &n, &info);
    EXPECT_EQ(c.solved == 0, info == 0) << &c - cases;
    TestFixture::A::ttrfb(&n, factored.dl, factored.d, factored.du, &info);
    EXPECT_EQ(c.factored, info) << &c - cases;
  }
}

// Each argument wrong in turn: its position comes back and nothing is written.
TYPED_TEST(DenseSystems, WrongArguments) {
  using R = TypeParam;
  using A = typename TestFixture::A;
  const int n = 3, small = 2, minus = -1, tiny = -2, zero = 0, lwork = 64, liwork = 32;
  const R one = 1;
  std::vector<R> a(16, R(2)), b(16, R(3)), c(16, R(4)), work(64, R(5));
  std::vector<int> iwork(32, 6);
  R* const p = a.data();
  R* const q = b.data();
  R* const r = c.data();
  int info = 0;
  const struct {
    int expected;
    std::function<void()> call;
  } cases[] = {
      {-1, [&] { A::potrf("x", &n, p, &n, &info); }},
      {-2, [&] { A::potrf("U", &minus, p, &n, &info); }},
      {-4, [&] { A::potrf("U", &n, p, &small, &info); }},
      {-4, [&] { A::potri("U", &n, p, &small, &info); }},
      {-2, [&] { A::trtri("U", "x", &n, p, &n, &info); }},
      {-5, [&] { A::trtri("U", "N", &n, p, &small, &info); }},
      {-1, [&] { A::syev("x", "U", &n, p, &n, q, r, &lwork, &info); }},
      {-2, [&] { A::syev("V", "x", &n, p, &n, q, r, &lwork, &info); }},
      {-3, [&] { A::syev("V", "U", &minus, p, &n, q, r, &lwork, &info); }},
      {-5, [&] { A::syev("V", "U", &n, p, &small, q, r, &lwork, &info); }},
      {-8, [&] { A::syev("V", "U", &n, p, &n, q, r, &small, &info); }},
      {-7,
       [&] {
         A::spevd("V", "U", &n, p, q, r, &small, work.data(), &lwork, iwork.data(), &liwork, &info);
       }},
      {-9,
       [&] { A::spevd("V", "U", &n, p, q, r, &n, work.data(), &n, iwork.data(), &liwork, &info); }},
      {-11,
       [&] { A::spevd("V", "U", &n, p, q, r, &n, work.data(), &lwork, iwork.data(), &n, &info); }},
      {-1, [&] { A::tsvb(&minus, &n, p, q, r, work.data(), &n, &info); }},
      {-2, [&] { A::tsvb(&n, &minus, p, q, r, work.data(), &n, &info); }},
      {-7, [&] { A::tsvb(&n, &n, p, q, r, work.data(), &small, &info); }},
      {-1, [&] { A::ttrfb(&minus, p, q, r, &info); }},
      {-1, [&] { A::ttrsb("T", &n, &n, p, q, r, work.data(), &n, &info); }},
      {-8, [&] { A::ttrsb("N", &n, &n, p, q, r, work.data(), &small, &info); }},
      {0, [&] { A::gemm("x", "N", &n, &n, &n, &one, p, &n, q, &n, &one, r, &n); }},
      {0, [&] { A::gemm("N", "N", &n, &n, &n, &one, p, &n, q, &small, &one, r, &n); }},
      {0, [&] { A::gemv("N", &n, &n, &one, p, &n, q, &zero, &one, r, &n); }},
      {0, [&] { A::syr("x", &n, &one, p, &n, r, &n); }},
      {0, [&] { A::syrk("U", "N", &n, &tiny, &one, p, &n, &one, r, &n); }},
      {0, [&] { A::symm("x", "U", &n, &n, &one, p, &n, q, &n, &one, r, &n); }},
      {0, [&] { A::trmm[0]("L", "U", "N", "x", &n, &n, &one, p, &n, r, &n); }},
      {0, [&] { A::ptrmm("L", "U", "N", "N", &n, &n, &one, p, r, &small); }},
      {0, [&] { A::potrf("U", &zero, p, &n, &info); }},
      {0, [&] { A::tsvb(&zero, &n, p, q, r, work.data(), &n, &info); }},
  };
  for (const auto& one_case : cases) {
    info = 0;
    one_case.call();
    const auto at = &one_case - cases;
    EXPECT_EQ(one_case.expected, info) << at;
    for (int i = 0; i < 16; ++i) ASSERT_TRUE(a[i] == 2 && b[i] == 3 && c[i] == 4) << at;
    for (R x : work) ASSERT_EQ(5, x) << at;
    for (int x : iwork) ASSERT_EQ(6, x) << at;
  }
  A::syev("V", "U", &n, p, &n, q, work.data(), &minus, &info);
  EXPECT_TRUE(info == 0 && work[0] == 3 * n - 1 && a[0] == 2);
  A::spevd("V", "U", &n, p, q, r, &n, work.data(), &lwork, iwork.data(), &minus, &info);
  EXPECT_TRUE(info == 0 && work[0] == n * n + 6 * n + 1 && iwork[0] == 5 * n + 3 && c[0] == 4);
}

}  // namespace
}  // namespace dense
