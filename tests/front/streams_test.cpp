// Streams and distributions through the public layer: bad arguments, and the same numbers as the
// kernels behind it.
#include <algorithm>

#include "ork/front.h"
#include "status_rows.hpp"
#include "support/blocks.hpp"

namespace {

struct Stream {
  RuaStream* handle = nullptr;
  explicit Stream(int brng = RUA_BRNG_MCG59, uint32_t seed = 1) {
    EXPECT_EQ(ork_stream_new(&handle, brng, seed), 0);
  }
  ~Stream() { EXPECT_EQ(ork_stream_delete(&handle), 0); }
  Stream(const Stream&) = delete;
  operator RuaStream*() const { return handle; }
};

TEST(FrontStreams, BadArguments) {
  Stream s, mersenne(RUA_BRNG_MT19937);
  RuaStream* out = nullptr;
  const std::string missing = testing::TempDir() + "no/such/file";
  const StatusRow rows[] = {
      {"new, no place", -5, [&] { return ork_stream_new(nullptr, RUA_BRNG_MCG59, 1); }},
      {"new, unknown generator", -1000, [&] { return ork_stream_new(&out, 0x7F00000, 1); }},
      {"new, negative generator", -1000, [&] { return ork_stream_new(&out, -1, 1); }},
      {"new, abstract generator", -1000,
       [&] { return ork_stream_new(&out, RUA_BRNG_DABSTRACT, 1); }},
      {"delete, no place", -5, [&] { return ork_stream_delete(nullptr); }},
      {"delete, null stream", 0, [&] { return ork_stream_delete(&out); }},
      {"copy, no place", -5, [&] { return ork_stream_copy(nullptr, s); }},
      {"copy, null", -5, [&] { return ork_stream_copy(&out, nullptr); }},
      {"leapfrog, null", -5, [&] { return ork_stream_leapfrog(nullptr, 0, 2); }},
      {"leapfrog, no streams", -1013, [&] { return ork_stream_leapfrog(s, 0, 0); }},
      {"leapfrog, negative streams", -1013, [&] { return ork_stream_leapfrog(s, 0, -2); }},
      {"leapfrog, number too large", -3, [&] { return ork_stream_leapfrog(s, 2, 2); }},
      {"leapfrog, number negative", -3, [&] { return ork_stream_leapfrog(s, -1, 2); }},
      {"leapfrog, not by this generator", -1002,
       [&] { return ork_stream_leapfrog(mersenne, 0, 2); }},
      {"skip, null", -5, [&] { return ork_stream_skip(nullptr, 1); }},
      {"skip back, not by this generator", -1003, [&] { return ork_stream_skip(mersenne, -1); }},
      {"save, null", -5, [&] { return ork_stream_save(nullptr, "x"); }},
      {"save, no name", -5, [&] { return ork_stream_save(s, nullptr); }},
      {"save, no directory", -1101, [&] { return ork_stream_save(s, missing.c_str()); }},
      {"load, no place", -5, [&] { return ork_stream_load(nullptr, missing.c_str()); }},
      {"load, no name", -5, [&] { return ork_stream_load(&out, nullptr); }},
      {"load, no file", -1101, [&] { return ork_stream_load(&out, missing.c_str()); }}};
  expect_statuses(rows);
  EXPECT_EQ(out, nullptr);
  Stream fresh;
  double a, b;
  EXPECT_EQ(ork_dRngUniform(0, s, 1, &a, 0, 1), 0);
  EXPECT_EQ(ork_dRngUniform(0, fresh, 1, &b, 0, 1), 0);
  EXPECT_EQ(a, b) << "refused calls left the stream where it was";
}

TEST(FrontStreams, NothingIsLeftOfAStreamThatCouldNotBeMade) {
  const int before = blocks::live();
  {
    Stream source;
    double r;  // half a pair stays with the stream, in a chunk
    EXPECT_EQ(ork_dRngGaussian(RUA_GAUSSIAN_BOXMULLER2, source, 1, &r, 0, 1), 0);
    const int allocations = blocks::fail_each([&] {
      RuaStream *made = source, *copy = nullptr;
      const int status = ork_stream_new(&made, RUA_BRNG_MT19937, 3);
      EXPECT_EQ(made == nullptr, status != 0);
      const int copied = ork_stream_copy(&copy, source);
      EXPECT_EQ(copy == nullptr, copied != 0);
      EXPECT_EQ(blocks::failed(), status == -4 || copied == -4);
      ork_stream_delete(&made);
      ork_stream_delete(&copy);
    });
    EXPECT_GE(allocations, 4);
  }
  EXPECT_EQ(blocks::live(), before);
}

TEST(FrontStreams, NothingIsLeftWhenTheGeneratorRefusesTheSeed) {
  RuaBrngProperties row;
  ASSERT_EQ(__ruaGetBrngProperties(RUA_BRNG_MCG59, &row), 0);
  row.initStream = [](int32_t, RuaStream*, int32_t, const uint32_t*) { return int32_t{-3}; };
  const int32_t brng = __ruaRegisterBrng(&row);
  ASSERT_GT(brng, 0);
  const int before = blocks::live();
  RuaStream* stream;
  EXPECT_EQ(ork_stream_new(&stream, brng, 1), -3);
  EXPECT_EQ(stream, nullptr);
  EXPECT_EQ(blocks::live(), before);
}

// A distribution by both letters and by the kernel behind it. p and q have to be valid, and
// `bad` to name the places of parameters that must be above 0.
struct Distribution {
  const char* name;
  int methods;
  std::function<int(int, RuaStream*, int, double*, const double*)> front, kernel;
  std::function<int(int, RuaStream*, int, float*, const double*)> single, single_kernel;
  std::vector<double> parameters;
  std::vector<int> positive;
};

#define ARGUMENTS2 m, s, n, r, p[0], p[1]
#define ARGUMENTS3 ARGUMENTS2, p[2]
#define ARGUMENTS4 ARGUMENTS3, p[3]
#define CALL(F, T, count) \
  [](int m, RuaStream* s, int n, T* r, const double* p) { return F(ARGUMENTS##count); }
#define DISTRIBUTION(name, methods, count, ...)                                               \
  {                                                                                           \
#name, methods, CALL(ork_dRng##name, double, count), CALL(_ruadRng##name, double, count), \
        CALL(ork_sRng##name, float, count), CALL(_ruasRng##name, float, count), __VA_ARGS__   \
  }

const Distribution distributions[] = {
    DISTRIBUTION(Uniform, 1, 2, {-1, 2}, {}),
    DISTRIBUTION(Gaussian, 3, 2, {1, 2}, {1}),
    DISTRIBUTION(Exponential, 1, 2, {1, 2}, {1}),
    DISTRIBUTION(Laplace, 1, 2, {1, 2}, {1}),
    DISTRIBUTION(Cauchy, 1, 2, {1, 2}, {1}),
    DISTRIBUTION(Rayleigh, 1, 2, {1, 2}, {1}),
    DISTRIBUTION(Lognormal, 2, 4, {0, 1, -1, 2}, {1, 3}),
    DISTRIBUTION(Weibull, 1, 3, {0.5, 1, 2}, {0, 2}),
    DISTRIBUTION(Gumbel, 1, 2, {1, 2}, {1}),
};

template <class T, class F, class K>
void check_draws(const Distribution& d, const F& front, const K& kernel) {
  constexpr int n = 33;
  Stream s, twin;
  T r[n] = {7}, expected[n];
  const double* p = d.parameters.data();
  const auto expect = [&](int status, int m, RuaStream* stream, int count, T* out, const double* q,
                          const char* what) {
    EXPECT_EQ(front(m, stream, count, out, q), status) << d.name << ", " << what;
    EXPECT_EQ(r[0], 7) << d.name << ", " << what;
  };
  expect(-5, 0, nullptr, n, r, p, "null stream");
  expect(-5, 0, s, n, nullptr, p, "null array");
  expect(-3, 0, s, -1, r, p, "negative count");
  expect(0, 0, s, 0, nullptr, p, "count 0");
  expect(-2, -1, s, n, r, p, "method -1");
  expect(-2, d.methods, s, n, r, p, "method too large");
  expect(-2, d.methods | RUA_METHOD_ACCURATE, s, n, r, p, "method too large, accurate");
  for (size_t k = 0; k < d.parameters.size(); ++k)
    for (const double bad : {double(NAN), double(INFINITY), -double(INFINITY), 0.0, -1.0}) {
      if (bad == 0 || bad == -1)
        if (std::count(d.positive.begin(), d.positive.end(), int(k)) == 0) continue;
      std::vector<double> q = d.parameters;
      q[k] = bad;
      expect(-3, 0, s, n, r, q.data(), "bad parameter");
    }
  for (int m = 0; m < d.methods; ++m)
    for (const int flag : {0, RUA_METHOD_ACCURATE}) {  // more than one method: it says nothing
      EXPECT_EQ(front(m | flag, s, n, r, p), 0) << d.name;
      EXPECT_EQ(kernel(d.methods > 1 ? m : m | flag, twin, n, expected, p), 0);
      EXPECT_EQ(memcmp(r, expected, sizeof r), 0) << d.name << " " << m << " " << flag;
    }
}

TEST(FrontStreams, DistributionsCheckAndDrawAsTheirKernels) {
  for (const Distribution& d : distributions) {
    check_draws<double>(d, d.front, d.kernel);
    check_draws<float>(d, d.single, d.single_kernel);
  }
  Stream s;
  double r = 7;
  EXPECT_EQ(ork_dRngUniform(0, s, 1, &r, 1, 1), -3) << "empty interval";
  EXPECT_EQ(ork_dRngUniform(0, s, 1, &r, 2, 1), -3);
  EXPECT_EQ(r, 7);
}

}  // namespace
