// Negative binomial numbers: the integers themselves, against the methods written out one number at
// a time, with probabilities by log-gamma in extended precision; set-ups that stay with the stream;
// failing and damaged streams; parameters at the ends of their ranges.
#include <cmath>

#include "ork/rua_distributions.h"
#include "ork/zem_kernels.h"
#include "rua/player.hpp"
#include "support/control.hpp"

namespace {

using real = long double;
constexpr uint32_t kSeed = 4357;

struct Parameters {
  double a, p;
  double mean() const { return a * (1 - p) / p; }
};
std::ostream& operator<<(std::ostream& out, const Parameters& d) {
  return out << "a = " << d.a << ", p = " << d.p;
}

// Sums of a table, from either side of the mode and behind it; far behind it; below the hat near
// the mode and far from it, with the left tail near 0 and away from it. 100.9 and 101 are the two
// sides of where the hat begins.
const Parameters kSums[] = {{10, 0.3},    {1, 0.3},    {0.5, 0.3},  {1e-3, 0.5},  {3, 0.999},
                            {100.9, 0.5}, {1.5, 0.02}, {0.5, 1e-4}, {1.5, 0.004}, {2.05, 1e-3}};
const Parameters kHats[] = {{101, 0.5},  {1000, 0.3},  {3, 0.01},  {2.3, 0.005},
                            {20, 0.001}, {2e5, 0.999}, {1e6, 0.5}, {1e9, 1 - 1e-7}};

// Extended precision: the shapes' log-gammas cancel.
real ln_weight(const Parameters& d, real y) {
  return lgammal(y + d.a) - lgammal(y + 1) + y * log1pl(-d.p);
}

float single(const ork_s_unary (&table)[3], float x) {
  table[0](1, &x, &x);
  return x;
}
int32_t pole(ork_error_record* e) {
  if (e->status == ZEM_STATUS_SINGULARITY) e->r1 = e->r2 = -103.2789306640625;
  return 0;
}

class Reference {
 public:
  std::vector<int32_t> r;  // of the last call
  size_t drawn = 0;        // numbers, since the beginning
  int failing = -1;        // the draw that fails

  explicit Reference(const std::vector<float>& u) : floats_(u) {}
  explicit Reference(const std::vector<double>& u) : doubles_(u) {}

  // The first integer whose sum of probabilities exceeds a number.
  int32_t by_sums(int n, const Parameters& d) {
    r.clear();
    for (int left = n, m; left > 0; left -= m) {
      m = std::min(left, 2048);
      if (calls_++ == failing) return kFailure;
      for (int i = 0; i < m; ++i) {
        const double u = doubles_[drawn++ % doubles_.size()];
        double p = std::pow(d.p, d.a), sum = p;
        int32_t k = 0;
        while (sum <= u && sum + p > sum) ++k, sum += p = p * (1 - d.p) * (d.a + (k - 1)) / k;
        r.push_back(k);
      }
    }
    return 0;
  }

  int32_t by_hat(int n, const Parameters& d) {
    const ThreadState state;
    ork_zem_kernel_SetMode(ORK_ZEM_ERRMODE_CALLBACK);
    ork_zem_kernel_SetMode(ORK_ZEM_DENORMAL_KEEP);
    ork_zem_kernel_SetErrorCallBack(pole);
    r.clear();
    const double q = 1 - d.p, b = d.a - 1;
    const double mode = std::floor(double(float(b) * float(q)) / d.p);
    const float m = float(double(float(b) * float(q)) / d.p);
    const real at_mode = ln_weight(d, mode);
    const auto ln_f = [&](double y) { return ln_weight(d, y) - at_mode; };
    const auto f = [&](double y) -> double {
      return std::fabs(y - mode) <= 64 ? float(expl(ln_f(y))) : double(expl(ln_f(y)));
    };
    const double h = std::sqrt(m / d.p + 0.25), foot = std::trunc(m - 0.5 - h), x1 = foot + 1,
                 x2 = std::ceil(m - 0.5 + h), e = (b + foot) * q, xl = e / (foot - e) + x1,
                 xr = (1 + x2) / (1 + x2 - (d.a + x2) * q) + x2, il = std::trunc(xl),
                 ir = std::trunc(xr);
    const double fl = f(foot), fr = f(x2), gl = f(il), gr = f(ir);
    const double a1 = gr * ir / ((b + ir) * q), r1 = q * (b + il) / il,
                 a2 = gl * q * (d.a + il) / (il + 1), r2 = (d.a + ir) * q / (ir + 1),
                 t1 = gr * std::pow(r2, xr - 1 - ir), t2 = gl * std::pow(r1, xl - il);
    const float w1 = float(x2 - x1), w2 = float(x1 - xl), w3 = float(xr - x2);
    const float areas[] = {w1, float((0.5 * fr + a1) * (xr - x2)),
                           float((0.5 * fl + a2) * (x1 - xl)), float(-t1 / std::log(r2)),
                           float(t2 / std::log(r1))};
    double sum = 0, total = 0;
    for (const float area : areas) total += area;
    float c[5];
    for (int i = 0; i < 5; ++i) c[i] = float(float(sum += areas[i]) / total);
    const double sr = (1 - fr) / -(x2 - mode), sl = (1 - fl) / (mode - foot), g1 = a1 / fr,
                 g2 = a2 / fl;
    const float p1 = float((1 + 2 * g1) / (c[1] - c[0])), p2 = float((1 + 2 * g2) / (c[2] - c[1])),
                q1 = float(g1 * g1 - c[0] * ((1 + 2 * g1) / (c[1] - c[0]))),
                q2 = float(g2 * g2 - c[1] * ((1 + 2 * g2) / (c[2] - c[1]))),
                t3 = float(t1 / (c[3] - c[2])), t4 = float(t2 / (c[4] - c[3]));
    const float from = float(x1), left = float(xl), right = float(xr), fls = float(fl),
                frs = float(fr);
    while (int(r.size()) < n) {
      const int pairs = std::min(n - int(r.size()), 1024);
      if (calls_++ == failing) return kFailure;
      for (int i = 0; i < pairs; ++i) {
        const float u = floats_[drawn++ % floats_.size()], v = floats_[drawn++ % floats_.size()];
        float x, height = v, line = -1;
        if (!(u > c[0])) {
          x = u * (w1 / c[0]) + from;
          line = x > float(mode) + 0.5f ? x * float(sr) + float(1 - sr * mode)
                                        : x * float(sl) + float(1 - (mode + 1) * sl);
        } else if (!(u > c[1])) {
          const float s = single(ork_zem_kernel_sSqrt_ttab, u * p1 + q1);
          x = float(g1) * w3 + right - w3 * s;
          height = s * frs * v;
          line = (x - right) * (frs / -w3);
        } else if (!(u > c[2])) {
          const float s = single(ork_zem_kernel_sSqrt_ttab, u * p2 + q2);
          x = left - float(g2) * w2 + w2 * s;
          height = s * fls * v;
          line = (x - left) * (fls / w2);
        } else if (!(u > c[3])) {
          x = single(ork_zem_kernel_sLn_ttab, v) / float(std::log(r2)) + right;
          height = (u - c[2]) * t3 * v;
        } else {
          x = single(ork_zem_kernel_sLn_ttab, v) / float(std::log(r1)) + left;
          height = (u - c[3]) * t4 * v;
        }
        if (x < 0 || !(x < 0x1p31f)) continue;
        const double y = std::trunc(x);
        if (u > c[2] || height > line) {
          if (y == mode) {
            if (height > c[4]) continue;
          } else if (std::fabs(y - mode) <= 64) {
            if (height > float(expl(ln_f(y)))) continue;
          } else if (ln_f(y) < single(ork_zem_kernel_sLn_ttab, height)) {
            continue;
          }
        }
        r.push_back(int32_t(y));
      }
    }
    return 0;
  }

 private:
  std::vector<float> floats_;
  std::vector<double> doubles_;
  int calls_ = 0;
};

template <class R, class F>
std::vector<R> recorded(F draw, int n) {
  Stream s(RUA_BRNG_MT19937, {kSeed});
  std::vector<R> u(n);
  EXPECT_EQ(draw(0, s, n, u.data(), R(0), R(1)), 0);
  return u;
}
const std::vector<float>& floats() {
  static const auto u = recorded<float>(_ruasRngUniform, 100000);
  return u;
}
const std::vector<double>& doubles() {
  static const auto u = recorded<double>(_ruadRngUniform, 20000);
  return u;
}

// Draws between marks; the state of thread and processor stays.
int32_t draw(RuaStream* s, int n, const Parameters& d, std::vector<int32_t>& r) {
  r.assign(std::max(n, 0) + 2, -99);
  const uint32_t mode = ork_zem_kernel_GetMode();
  const auto callback = ork_zem_kernel_GetErrorCallBack();
  const unsigned mxcsr = mxcsr_control(), x87 = x87_control();
  const int32_t status = _ruaiRngNegbinomial(0, s, n, r.data() + 1, d.a, d.p);
  EXPECT_EQ(ork_zem_kernel_GetMode(), mode);
  EXPECT_EQ(ork_zem_kernel_GetErrorCallBack(), callback);
  EXPECT_TRUE(mxcsr_control() == mxcsr && x87_control() == x87);
  EXPECT_TRUE(r.front() == -99 && r.back() == -99);
  r = {r.begin() + 1, r.end() - 1};
  return status;
}

class Negbinomial : public RuaTest {
  const StateGuard guard_;
};

// By sums every number takes one uniform number, so calls in pieces give those of one call; below
// the hat a call draws as many pairs as numbers are missing, and pieces give numbers of their own.
TEST_F(Negbinomial, NumbersAreThoseOfTheDrawOrder) {
  const auto check = [](auto by, const auto& u, auto uniform, const Parameters& d) {
    for (const std::vector<int>& lengths :
         {std::vector{1}, {2}, {3}, {1000}, {5000}, {1, 5, 0, -1, 2, 300, 2049, 3}}) {
      SCOPED_TRACE(testing::Message() << d << ", n = " << lengths[0]);
      Stream s(RUA_BRNG_MT19937, {kSeed});
      Reference reference(u);
      std::vector<int32_t> r;
      for (const int n : lengths) {
        ASSERT_EQ(draw(s, n, d, r), 0);
        (reference.*by)(n, d);
        ASSERT_TRUE(std::equal(reference.r.begin(), reference.r.end(), r.begin())) << n;
      }
      std::decay_t<decltype(u[0])> next;
      ASSERT_EQ(uniform(0, s, 1, &next, 0, 1), 0);
      EXPECT_EQ(next, u[reference.drawn]);
    }
  };
  for (const Parameters& d : kSums) check(&Reference::by_sums, doubles(), _ruadRngUniform, d);
  for (const Parameters& d : kHats) check(&Reference::by_hat, floats(), _ruasRngUniform, d);
}

// Where nobody could walk: failures before the first success have a closed form.
TEST_F(Negbinomial, FarTailsAreThoseOfTheClosedForm) {
  for (const double p : {0.015, 1e-3, 1e-6, 3e-9}) {
    Stream s(RUA_BRNG_MT19937, {kSeed});
    std::vector<int32_t> r;
    ASSERT_EQ(draw(s, 3000, {1, p}, r), 0);
    for (int i = 0; i < 3000; ++i) {
      const real k = floorl(log1pl(-doubles()[i]) / log1pl(-p));
      ASSERT_EQ(r[i], k < 0x7fffffff ? int32_t(k) : 0x7fffffff) << p << ' ' << i;
    }
  }
}

// The height from which on a candidate is rejected shows the least error of f, which numbers drawn
// by chance hardly do. The list is a pair, then one in the middle of the rectangle.
TEST_F(Negbinomial, RejectionBeginsAtTheSameHeight) {
  int borders = 0;
  for (const Parameters& d : kHats)
    for (float u = 0.005f; u < 1; u += 0.009f) {
      const auto by_kernel = [&](float v) {
        const Stream s = player_stream({u, v, 0.33, 1e-30});
        int32_t r;
        EXPECT_EQ(_ruaiRngNegbinomial(0, s, 1, &r, d.a, d.p), 0);
        return player.next == 2;
      };
      const auto by_reference = [&](float v) {
        Reference reference(std::vector<float>{u, v, 0.33f, 1e-30f});
        reference.by_hat(1, d);
        return reference.drawn == 2;
      };
      const auto border = [](auto accepts) {
        float lo = 0.05f, hi = 1;
        if (!accepts(lo) || accepts(hi)) return -1.0f;
        while (std::nextafter(lo, hi) < hi) {
          const float middle = lo + (hi - lo) / 2;
          (accepts(middle) ? lo : hi) = middle;
        }
        return lo;
      };
      const float want = border(by_reference);
      borders += want > 0;
      EXPECT_NEAR(border(by_kernel), want, 3e-6) << d << ", u = " << u;
    }
  EXPECT_GT(borders, 200);
}

// Parameters in turn on one stream, through copies and images; a set-up that an image has damaged
// is made again, or at least ends.
TEST_F(Negbinomial, SetUpFollowsTheParameters) {
  const Parameters turn[] = {{1000, 0.3}, {1000, 0.3}, {10, 0.3}, {10, 0.3}, {1000, 0.3}, {3, 0.01},
                             {3, 0.011},  {10, 0.3},   {1, 1e-6}, {3, 0.01}, {1.5, 0.004}};
  Stream s(RUA_BRNG_MT19937, {kSeed});
  std::vector<int32_t> r, want;
  for (int call = 0; call < 33; ++call) {
    const Parameters& d = turn[call % std::size(turn)];
    Stream other, plain(RUA_BRNG_MT19937, {1});
    if (call % 2) {
      ASSERT_EQ(__ruaCopyStream(other.slot(), s), 0);
    } else {
      std::vector<char> image(__ruaGetStreamSize(s));
      ASSERT_EQ(__ruaSaveStreamM(s, image.data()), 0);
      ASSERT_EQ(__ruaLoadStreamM(other.slot(), image.data()), 0);
    }
    ASSERT_EQ(__ruaCopyStreamState(plain, s), 0);
    __ruaDeleteChunks(plain);
    ASSERT_EQ(draw(plain, 7, d, want), 0);
    ASSERT_EQ(draw(s, 7, d, r), 0);
    EXPECT_EQ(r, want) << d << call;
    ASSERT_EQ(draw(other, 7, d, r), 0);
    EXPECT_EQ(r, want) << d << call;
    EXPECT_EQ(__ruaGetNumChunks(s), 1);
    if (call < 22) continue;
    auto* words = static_cast<uint32_t*>(__ruaSearchChunk(other, 4));
    for (int i = 4 + call % 3; i < 332; i += 3) words[i] = call % 2 ? 0x7fc00001 : 0x41999999;
    ASSERT_EQ(draw(other, 2000, d, r), 0);
    for (const int32_t x : r) ASSERT_GE(x, 0);
  }
}

// The k-th draw fails: the call ends there with numbers accepted before in place.
TEST_F(Negbinomial, FailingDrawEndsTheCall) {
  ork_zem_kernel_SetErrorCallBack([](ork_error_record*) -> int32_t { return 0; });
  ork_zem_kernel_SetMode(ORK_ZEM_DENORMAL_ZERO | ORK_ZEM_ERRMODE_ERRNO | ORK_ZEM_LA);
  const auto check = [](auto by, const auto& u, const Parameters& d) {
    const std::vector<double> list(u.begin(), u.begin() + 20000);
    for (const int failing : {0, 1, 2, 3}) {
      const Stream s = player_stream(list, failing);
      Reference reference(u);
      reference.failing = failing;
      std::vector<int32_t> r;
      ASSERT_EQ(draw(s, 5000, d, r), (reference.*by)(5000, d)) << d << failing;
      EXPECT_TRUE(std::equal(reference.r.begin(), reference.r.end(), r.begin())) << d << failing;
      if (reference.r.size() < 5000) {
        EXPECT_EQ(r[4999], -99);
      }
    }
  };
  for (const Parameters& d : {kSums[0], kSums[3]}) check(&Reference::by_sums, doubles(), d);
  for (const Parameters& d : {kHats[1], kHats[2]}) check(&Reference::by_hat, floats(), d);
}

// Uniform numbers of 0 and 1 in every place of a pair, and every shape and probability: calls end,
// with numbers whose mean is that of the law, or say that they would not fit.
TEST_F(Negbinomial, EndsOfTheRanges) {
  const double shapes[] = {5e-324, 1e-300, 1e-10, 0.5, 1,   1.5,  2.05, 2.1,  2.2,   2.3,    3,
                           10,     100,    1e4,   1e6, 1e9, 1e12, 1e18, 1e25, 1e100, 1.7e308},
               successes[] = {5e-324, 1e-300, 1e-12, 2e-9,  1e-6,     1e-3,       0.01,
                              0.1,    0.5,    0.9,   0.999, 1 - 1e-9, 1 - 0x1p-53};
  std::vector<int32_t> r;
  for (const double a : shapes)
    for (const double p : successes) {
      const Parameters d = {a, p};
      const double deviation = std::sqrt(d.mean() / p);
      Stream s(RUA_BRNG_MT19937, {kSeed});
      const auto before = record(s);
      const int32_t status = draw(s, 1000, d, r);
      if (!(d.mean() + 2 * deviation < 0x1p31)) {
        EXPECT_EQ(status, RUA_STATUS_BAD_ARGUMENT) << d;
        EXPECT_EQ(record(s), before);
        EXPECT_EQ(__ruaGetNumChunks(s), 0);
        continue;
      }
      ASSERT_EQ(status, 0) << d;
      double mean = 0;
      for (const int32_t x : r) {
        ASSERT_GE(x, 0) << d;
        mean += x / 1000.0;
      }
      EXPECT_NEAR(mean, d.mean(), 6 * deviation / std::sqrt(1000) + 1e-9) << d;
      const Stream ends = player_stream({0, 0, 0.25, 0, 1, 0.75, 0, 1, 0.5, 0.5, 0.25, 1, 1, 1});
      ASSERT_EQ(draw(ends, 1000, d, r), 0) << d;
      EXPECT_GE(*std::min_element(r.begin(), r.end()), 0) << d;
    }
  Stream s(RUA_BRNG_MT19937, {kSeed});
  for (const Parameters& d : {Parameters{NAN, 0.5}, {3, NAN}, {NAN, NAN}})
    EXPECT_EQ(draw(s, 10, d, r), RUA_STATUS_BAD_ARGUMENT);
}

// A chunk that an image has shortened.
TEST_F(Negbinomial, ChunkTooSmallIsRefused) {
  Stream s(RUA_BRNG_MT19937, {9});
  s.add_chunk(4, nullptr, std::vector<uint32_t>(331));
  const auto before = record(s);
  std::vector<int32_t> r;
  EXPECT_EQ(draw(s, 3, {10, 0.3}, r), RUA_STATUS_BAD_GENERATOR);
  EXPECT_EQ(record(s), before);
}

}  // namespace
