// Poisson and PoissonV: the integers themselves, against the methods written out one number at a
// time on a twin stream; what stays with the stream; failing streams and ends of the range.
#include <cmath>
#include <functional>

#include "ork/rua_distributions.h"
#include "ork/zem_kernels.h"
#include "rua/player.hpp"

namespace {

constexpr double kRowsC[7][24] = {
#include "../../rua/rua_kernel/discrete/poisson_rows_c.inc"
};
constexpr double kRowsV[18][20] = {
#include "../../rua/rua_kernel/discrete/poisson_rows_v.inc"
};

float single(void (*const (&table)[3])(int, const float*, float*), float x) {
  float y;
  table[0](1, &x, &y);
  return y;
}
float ln(float x) { return x == 0 ? -103.2789306640625f : single(ork_zem_kernel_sLn_ttab, x); }

int32_t whole(double x) { return x > 0 ? int32_t(x) : 0; }

// The methods, on a stream of their own, which they leave where the library leaves its one.
class Reference {
 public:
  std::vector<int32_t> r;

  explicit Reference(RuaStream* twin) : s_(twin) {}

  void poisson(int method, int n, double lambda) {
    r.clear();
    if (n < 1) return;
    if (method == RUA_POISSON_POISNORM)
      by_normal(n, lambda);
    else if (lambda < 27)
      by_sums(n, lambda);
    else
      by_hat(n, lambda);
  }

  void vector(int n, const double* lambda) {
    r.clear();
    if (n < 1) return;
    const auto z = normals(n, 0, 1);
    for (int i = 0; i < n; ++i) {
      const double l = lambda[i];
      if (l < 0.0625) {
        const float e = single(ork_zem_kernel_sErf_ttab, z[i] * 0.70710677f);
        const double scale =
            ((0.16669916415448055 * l + 0.49999555884885266) * l + 1.000000235204182) * l +
            0.9999999978976929;
        r.push_back(first_sum_from(float(scale) * std::fabs(e), l));
      } else {
        const int exponent = std::ilogb(l);
        const double t = std::ldexp(l, -exponent) - 1, x = z[i];
        const double* p = kRowsV[std::min(exponent + 4, 17)];
        const auto at = [&](int k) {
          return ((p[k + 3] * t + p[k + 2]) * t + p[k + 1]) * t + p[k];
        };
        r.push_back(whole(1 + l + p[0] + p[1] * t +
                          x * (at(4) + x * (at(8) + x * (at(12) + x * at(16)))) *
                              (std::sqrt(l) + p[2] + p[3] * t)));
      }
    }
  }

 private:
  RuaStream* s_;

  std::vector<float> uniforms(int n, float b) {
    std::vector<float> u(n);
    EXPECT_EQ(_ruasRngUniform(0, s_, n, u.data(), 0, b), 0);
    return u;
  }
  std::vector<float> normals(int n, float a, float sigma) {
    std::vector<float> z(n);
    EXPECT_EQ(_ruasRngGaussian(RUA_GAUSSIAN_ICDF, s_, n, z.data(), a, sigma), 0);
    return z;
  }

  // The sums of l^i/i! to 10, in single precision.
  static int first_sum_from(float u, double l) {
    double term = 1, sum = 1;
    for (int k = 0; k < 11; ++k) {
      if (u <= float(sum)) return k;
      term = term * l / (k + 1);
      sum += term;
    }
    return 11;
  }

  void by_sums(int n, double lambda) {
    const double least = -lambda;
    double zero;
    ork_zem_kernel_dExp_ttab[1](1, &least, &zero);
    const int mode = int(lambda);
    std::vector<double> u(n);
    EXPECT_EQ(_ruadRngUniform(0, s_, n, u.data(), 0, 1), 0);
    for (const double x : u) {
      double p = zero, sum = zero;
      int k = 0;
      // Equality goes up from the mode on and stays before it; no sum grows for ever.
      while (k < mode ? sum < x : sum <= x) {
        const double next = p * lambda / (k + 1);
        if (k >= mode + 15 && sum + next == sum) {
          ++k;
          break;
        }
        ++k, p = next, sum += p;
      }
      r.push_back(x < zero ? 0 : k);
    }
  }

  void by_hat(int n, double mean) {
    const float l = float(mean), m = float(int(mean));
    const float p1 = float(int(2.195f * std::sqrt(m) - 2.2f)) + 0.5f;
    const float c = 0.133f + 8.56f / (l + 6.83f), xm = m + 0.5f, xl = xm - p1, xr = xm + p1;
    const float al = (l - xl) / l, ar = (xr - l) / xr;
    const float to_left = al * (1 + 0.5f * al), to_right = ar * (1 + 0.5f * ar);
    const float p2 = p1 * (1 + 2 * c), p3 = p2 + (0.109f + 8.25f / (l + 10.86f)) / to_left,
                p4 = p3 + c / to_right;
    while (int(r.size()) < n) {
      const auto draw = uniforms(std::min(2 * (n - int(r.size())), 2024), 1);
      for (size_t i = 0; i < draw.size(); i += 2) {
        const float u = draw[i] * p4;
        float v = draw[i + 1], y;
        if (draw[i] <= p1 / p4) {
          y = std::trunc(xm - p1 * v + u);
        } else {
          if (draw[i] <= p2 / p4) {
            const float x = xl + (u - p1) / c;
            v = v * c + 1 - std::fabs(xm - x) / p1;
            if (v > 1) continue;
            y = std::trunc(x);
          } else if (draw[i] <= p3 / p4) {
            y = std::trunc(xl + ln(v) / to_left);
            if (y < 0) continue;
            v = v * (u - p2) * to_left;
          } else {
            y = std::trunc(xr - ln(v) / to_right);
            v = v * (u - p3) * to_right;
          }
          if (!(mean > 100 ? by_series(mean, m, y, v) : by_products(l, m, y, v))) continue;
        }
        if (y > 0) r.push_back(int32_t(y));
      }
    }
  }
  static bool by_products(float l, float m, float y, float v) {
    float f = 1;
    for (float i = m; i > y; --i) f *= i / l;
    for (float i = m + 1; i <= y; ++i) f *= l / i;
    return y == m || !(f < v);
  }
  // By the logarithm of the factorial itself.
  static bool by_series(long double l, float m, float y, float v) {
    if (y < 1) return false;
    const long double f =
        (static_cast<long double>(y) - m) * logl(l) + lgammal(m + 1.0L) - lgammal(y + 1.0L);
    return !(f < ln(v));
  }

  void by_normal(int n, double lambda) {
    if (lambda < 1) {
      const double c[] = {0.9999999978976929,    1.000000235204182,    0.49999555884885266,
                          0.16669916415448055,   0.0415487961378904,   0.008565930750590653,
                          0.0011369805324212754, 0.0003351641595394528};
      double e = 0;
      for (int k = 7; k >= 0; --k) e = e * lambda + c[k];
      for (const float u : uniforms(n, float(e))) r.push_back(first_sum_from(u, lambda));
    } else if (lambda >= 100) {
      const double d = 1 / lambda;
      const auto q = [d](double q0, double q1, double q2, double q3, double q4) {
        return float(d * (q0 + d * (q1 + d * (q2 + d * (q3 + d * q4)))));
      };
      const float w = float(lambda - 0.6666957198 +
                            ((0.001645153709 * d - 0.001288719308) * d - 0.01941020862) * d);
      const float sigma =
          float(std::sqrt(lambda - 0.05580667628 +
                          ((0.00519830812 * d - 0.005534854444) * d - 0.000975814817) * d));
      const float q1 = q(0.00774710541609, -0.443911391797447, 2.29098262740971, -3.85841212878712,
                         2.02847035732762),
                  q2 = q(0.168577008904505, 0.0472242348292688, -0.228162379800275,
                         0.358642226989579, -0.185436433294704),
                  q3 = q(-0.0001145865551857, -0.0126559989233446, 0.0232257954288354,
                         -0.0291113093667918, 0.014389264627966);
      for (const float z : normals(n, w, sigma)) {
        const float e = z - w;
        r.push_back(whole(z + 1 + e * ((q3 * e + q2) * e + q1)));
      }
    } else {
      const float single = float(lambda);
      const int exponent = std::ilogb(single);
      const double t = std::ldexp(single, -exponent) - 1;
      const double* a = kRowsC[exponent];
      const auto at = [&](int k) {
        return float(((a[k + 3] * t + a[k + 2]) * t + a[k + 1]) * t + a[k]);
      };
      const float c0 = float(a[0] + 1 + (a[2] * t + a[1]) * t), c1 = at(3), c2 = at(7), c3 = at(11),
                  c4 = at(15), c5 = at(19);
      for (const float z : normals(n, 0, 1))
        r.push_back(whole((((c5 * z + c4) * z + c3) * z + c2) * z * c1 + c0));
    }
  }
};

// A call and its twin's.
struct Case {
  int method;  // -1: PoissonV of the list of means from `lambda` on
  double lambda;
};
std::ostream& operator<<(std::ostream& out, const Case& c) {
  return out << "method " << c.method << ", " << c.lambda;
}

// Every method, its borders from both sides, and far away.
const Case kCases[] = {{0, 1e-3}, {0, 0.9}, {0, 5},       {0, 26.99},   {0, 27},          {0, 31.5},
                       {0, 60},   {0, 100}, {0, 100.01},  {0, 127.99},  {0, 1e4},         {0, 1e6},
                       {0, 1e8},  {1, 0.5}, {1, 0.99999}, {1, 1},       {1, 1.999999999}, {1, 2},
                       {1, 3.7},  {1, 7.9}, {1, 16},      {1, 50},      {1, 99.99},       {1, 100},
                       {1, 1e6},  {1, 1e8}, {-1, 0.001},  {-1, 0.0625}, {-1, 7}};

// From place to place in every binade, and small ones between.
double mean_at(double first, int i) {
  return i % 5 == 4 ? 0.06 / (1 + i % 7)
                    : first * std::exp2(i * 0.377 - std::floor(i * 0.377 / 24) * 24);
}

class Poisson : public RuaTest {
 protected:
  // Draws at an offset of one element, between marks, and the same with the twin.
  static void expect_same(RuaStream* s, Reference& reference, int n, const Case& c) {
    SCOPED_TRACE(testing::Message() << c << ", n = " << n);
    std::vector<int32_t> r(std::max(n, 0) + 2, -99);
    std::vector<double> means(std::max(n, 0));
    const uint32_t mode = ork_zem_kernel_GetMode();
    const auto callback = ork_zem_kernel_GetErrorCallBack();
    if (c.method < 0) {
      for (int i = 0; i < n; ++i) means[i] = mean_at(c.lambda, i);
      ASSERT_EQ(_ruaiRngPoissonV(0, s, n, r.data() + 1, means.data()), 0);
      reference.vector(n, means.data());
    } else {
      ASSERT_EQ(_ruaiRngPoisson(c.method, s, n, r.data() + 1, c.lambda), 0);
      reference.poisson(c.method, n, c.lambda);
    }
    EXPECT_EQ(ork_zem_kernel_GetMode(), mode);
    EXPECT_EQ(ork_zem_kernel_GetErrorCallBack(), callback);
    EXPECT_TRUE(r.front() == -99 && r.back() == -99);
    for (int i = 0; i < n; ++i) ASSERT_EQ(r[i + 1], reference.r[i]) << i;
  }
  static void expect_same_place(RuaStream* s, RuaStream* twin) {
    float a, b;
    ASSERT_EQ(_ruasRngUniform(0, s, 1, &a, 0, 1), 0);
    ASSERT_EQ(_ruasRngUniform(0, twin, 1, &b, 0, 1), 0);
    EXPECT_EQ(a, b) << "as many numbers were drawn";
  }
  const ThreadState state_;
  void SetUp() override {
    RuaTest::SetUp();
    ork_zem_kernel_SetMode(ORK_ZEM_DENORMAL_KEEP);
  }
};

TEST_F(Poisson, IntegersAreThoseOfTheDrawOrder) {
  for (const Case& c : kCases)
    for (const int n : {1, 2, 3, 0, -1, 127, 1000, 2049, 5000}) {
      Stream s(RUA_BRNG_MT19937, {4357}), twin(RUA_BRNG_MT19937, {4357});
      Reference reference(twin);
      expect_same(s, reference, n, c);
      EXPECT_EQ(__ruaGetNumChunks(s), c.method == 0);
      expect_same_place(s, twin);
    }
}

// A stream keeps the set-up of one mean, of either method, through other methods' calls, copies and
// images; back at an old mean it is made again.
TEST_F(Poisson, MeansMayChangeFromCallToCall) {
  Stream s(RUA_BRNG_MT19937, {4357}), twin(RUA_BRNG_MT19937, {4357});
  Reference reference(twin);
  int call = 0;
  for (const double lambda : {5.0, 5.0, 31.5, 5.0, 200.0, 26.0, 200.0, 200.0, 99.0, 31.5, 31.5})
    for (const int method : {0, 1, -1, 0}) {
      SCOPED_TRACE(++call);
      expect_same(s, reference, call % 3 ? call % 5 : 300, {method, lambda});
      ASSERT_LE(__ruaGetNumChunks(s), 1);
      Stream other;
      if (call % 2) {
        ASSERT_EQ(__ruaCopyStream(other.slot(), s), 0);
      } else {
        std::vector<char> image(__ruaGetStreamSize(s));
        ASSERT_EQ(__ruaSaveStreamM(s, image.data()), 0);
        ASSERT_EQ(__ruaLoadStreamM(other.slot(), image.data()), 0);
      }
      std::swap(*s.slot(), *other.slot());
    }
  expect_same_place(s, twin);
}

// Where one number makes one output, calls in pieces give the numbers of one long call. By the hat
// they need not: a round draws for the outputs that are missing, so that pieces use other pairs.
TEST_F(Poisson, PiecesMakeTheWhole) {
  for (const Case& c : kCases) {
    if (c.method == 0 && c.lambda >= 27) continue;
    SCOPED_TRACE(testing::Message() << c);
    constexpr int n = 5000;
    std::vector<double> means(n);
    for (int i = 0; i < n; ++i) means[i] = mean_at(c.lambda, i);
    std::vector<int32_t> r(n), want(n);
    const auto draw = [&](RuaStream* s, int first, int m, int32_t* to) {
      return c.method < 0 ? _ruaiRngPoissonV(0, s, m, to + first, means.data() + first)
                          : _ruaiRngPoisson(c.method, s, m, to + first, c.lambda);
    };
    Stream s(RUA_BRNG_MT19937, {7}), pieces(RUA_BRNG_MT19937, {7});
    ASSERT_EQ(draw(s, 0, n, want.data()), 0);
    for (int done = 0, call = 0; done < n; ++call) {
      const int lengths[] = {1, 2, 1023, 0, 130, 3}, m = std::min(lengths[call % 6], n - done);
      ASSERT_EQ(draw(pieces, done, m, r.data()), 0);
      done += m;
    }
    ASSERT_EQ(r, want);
  }
}

// The stream's status, at once, with what was accepted before in place.
TEST_F(Poisson, FailingStreamEndsTheCall) {
  ork_zem_kernel_SetErrorCallBack([](ork_error_record*) -> int32_t { return 0; });
  const auto callback = ork_zem_kernel_GetErrorCallBack();
  for (const Case& c : {Case{0, 5}, {0, 31.5}, {0, 200}, {1, 0.5}, {1, 50}, {1, 200}, {-1, 7}})
    for (const int failing : {0, 1}) {
      SCOPED_TRACE(testing::Message() << c << ' ' << failing);
      const bool batches = c.method == 0;
      if (failing && !batches) continue;
      const Stream s = player_stream({0.25, 0.75, 0.5, 0.125}, failing);
      std::vector<int32_t> r(5000, -99);
      const std::vector<double> means(5000, 7.0);
      const int32_t status = c.method < 0 ? _ruaiRngPoissonV(0, s, 5000, r.data(), means.data())
                                          : _ruaiRngPoisson(c.method, s, 5000, r.data(), c.lambda);
      EXPECT_EQ(status, kFailure);
      EXPECT_EQ(player.calls, failing + 1);
      EXPECT_EQ(ork_zem_kernel_GetErrorCallBack(), callback);
      // 2024 numbers make as many outputs by the table, half as many by the hat.
      const int made = !failing ? 0 : c.lambda < 27 ? 2024 : 1012;
      if (made) {
        EXPECT_GT(r[made - 1], 0);
      }
      EXPECT_EQ(r[made], -99);
    }
}

// Uniform numbers 0 and 1: the search behind the end of the table ends, logarithms are finite,
// small means keep to their sums.
TEST_F(Poisson, EndsOfTheRange) {
  int32_t r[4];
  const Stream s = player_stream({0, 1});
  for (const double lambda : {1e-3, 5.0, 26.99}) {
    ASSERT_EQ(_ruaiRngPoisson(RUA_POISSON_PTPE, s, 2, r, lambda), 0);
    EXPECT_EQ(r[0], 0);
    EXPECT_GT(r[1], int(lambda) + 4);
    EXPECT_LT(r[1], 120);
  }
  ASSERT_EQ(_ruaiRngPoisson(RUA_POISSON_POISNORM, s, 2, r, 0.5), 0);
  EXPECT_EQ(r[0], 0);
  EXPECT_LE(r[1], 11);
  // The far end of the right tail: the logarithm of 0 is -103.28, and no ratio is below height 0.
  const Stream tail = player_stream({1, 0});
  ASSERT_EQ(_ruaiRngPoisson(RUA_POISSON_PTPE, tail, 1, r, 50), 0);
  const double width = 13.5, rate = (width + 0.5) / (50 + width + 0.5);
  EXPECT_NEAR(r[0], 50 + width + 103.28 / (rate * (1 + rate / 2)), 2);
}

}  // namespace
