// Streams and distributions through the public layer: bad arguments, and the same numbers as the
// kernels behind it.
#include <algorithm>

#include "ork/front.h"
#include "registry/distributions.hpp"
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
      {"points, no place", -5, [&] { return ork_stream_new_points(nullptr, RUA_BRNG_SOBOL, 1); }},
      {"points, no sequence", -1000,
       [&] { return ork_stream_new_points(&out, RUA_BRNG_MCG59, 1); }},
      {"points, no component", -3, [&] { return ork_stream_new_points(&out, RUA_BRNG_SOBOL, 0); }},
      {"points, negative", -3, [&] { return ork_stream_new_points(&out, RUA_BRNG_NIEDERR, -1); }},
      {"points, too many", -3, [&] { return ork_stream_new_points(&out, RUA_BRNG_SOBOL, 41); }},
      {"points, too many", -3, [&] { return ork_stream_new_points(&out, RUA_BRNG_NIEDERR, 319); }},
      {"select, null", -5, [&] { return ork_stream_select(nullptr, 0); }},
      {"select, not by this generator", -1002, [&] { return ork_stream_select(mersenne, 0); }},
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

TEST(FrontStreams, PointsAndOneComponent) {
  for (int brng : {RUA_BRNG_SOBOL, RUA_BRNG_NIEDERR}) {
    const int most = brng == RUA_BRNG_SOBOL ? 40 : 318;
    Stream points, one;
    ASSERT_EQ(ork_stream_delete(&points.handle), 0);
    ASSERT_EQ(ork_stream_delete(&one.handle), 0);
    ASSERT_EQ(ork_stream_new_points(&points.handle, brng, most), 0);
    ASSERT_EQ(ork_stream_new_points(&one.handle, brng, most), 0);
    EXPECT_EQ(ork_stream_select(one, most), -1002);
    EXPECT_EQ(ork_stream_select(one, -1), -1002);
    ASSERT_EQ(ork_stream_select(one, most - 1), 0);
    std::vector<double> all(5 * most), last(5);
    ASSERT_EQ(ork_dRngUniform(0, points, 5 * most, all.data(), 0, 1), 0);
    ASSERT_EQ(ork_dRngUniform(0, one, 5, last.data(), 0, 1), 0);
    EXPECT_EQ(all[0], 0.5);
    for (int i = 0; i < 5; ++i) EXPECT_EQ(last[i], all[(i + 1) * most - 1]);
  }
}

// A distribution behind the checks, in the order of the registry's rows.
using Front = int(int method, RuaStream* stream, int n, void* r, const Values& p);
Front* const fronts[] = {
#define DISTRIBUTION(type, element, name, methods, values, chunk, arguments, parameters, sample) \
  [](int m, RuaStream* s, int n, void* out, [[maybe_unused]] const Values& p) {                  \
    auto* r = static_cast<element*>(out);                                                        \
    return ork_##type##Rng##name arguments;                                                      \
  },
#include "registry/distributions.inc"
#undef DISTRIBUTION
};

// Values of a number that break one of its conditions, and nothing else.
std::vector<double> breaking(const Distribution& d, const Parameter& p) {
  std::vector<double> bad;
  for (const Condition& c : p.conditions) {
    const double bound = c.parameter < 0 ? c.bound : double(d.sample[c.parameter]);
    const double outwards = c.relation[0] == '>' ? -1 : 1;
    bad.push_back(bound + outwards);
    if (c.relation[1] == 0) bad.push_back(bound);
  }
  if (p.kind != Kind::integer) bad.insert(bad.end(), {NAN, INFINITY, -INFINITY});
  return bad;
}

void check_draws(const Distribution& d, Front* front) {
  constexpr int n = 33;
  SCOPED_TRACE(d.full_name());
  Stream s(RUA_BRNG_MT19937), twin(RUA_BRNG_MT19937);  // its items are words of 32 bits
  std::vector<char> r(d.bytes(n), 7), expected(d.bytes(n));
  const auto expect = [&](int status, int m, RuaStream* stream, int count, void* out,
                          const Values& p, const std::string& what) {
    EXPECT_EQ(front(m, stream, count, out, p), status) << what;
    EXPECT_EQ(r[0], 7) << what;
  };
  expect(-5, 0, nullptr, n, r.data(), d.sample, "null stream");
  expect(-5, 0, s, n, nullptr, d.sample, "null array");
  expect(-3, 0, s, -1, r.data(), d.sample, "negative count");
  expect(0, 0, s, 0, nullptr, d.sample, "count 0");
  expect(-2, -1, s, n, r.data(), d.sample, "method -1");
  expect(-2, d.methods, s, n, r.data(), d.sample, "method too large");
  expect(-2, d.methods | RUA_METHOD_ACCURATE, s, n, r.data(), d.sample,
         "method too large, accurate");
  for (size_t k = 0; k < d.parameters.size(); ++k) {
    const Parameter& p = d.parameters[k];
    Values v = d.sample;
    if (p.kind == Kind::array) {
      v[k] = nullptr;
      expect(-5, 0, s, n, r.data(), v, std::string("null ") + p.name);
    }
    if (p.kind != Kind::array || p.counted)
      for (const double bad : breaking(d, p)) {
        v[k] = d.sample[k];
        v[k].set(std::min<size_t>(v[k].size(), n) - 1, bad);
        expect(-3, 0, s, n, r.data(), v, p.name + (" = " + std::to_string(bad)));
      }
  }
  if (d.values >= 0) expect(-3, 0, s, INT32_MAX, r.data(), d.sample, "more values than int32_t");
  for (int m = 0; m < d.methods; ++m)
    for (const int flag : {0, RUA_METHOD_ACCURATE}) {  // more than one method: it says nothing
      EXPECT_EQ(front(m | flag, s, n, r.data(), d.sample), 0);
      EXPECT_EQ(d.kernel(d.methods > 1 ? m : m | flag, twin, n, expected.data(), d.sample), 0);
      EXPECT_EQ(r, expected) << m << " " << flag;
    }
}

// Shapes at which the test of a candidate cancels to nothing: an answer, not an endless loop.
TEST(FrontStreams, BetaThatAcceptsNothingEnds) {
  Stream s(RUA_BRNG_MT19937);
  double r[3];
  EXPECT_EQ(ork_dRngBeta(0, s, 3, r, 2, 1e30, 0, 1), RUA_STATUS_BAD_ARGUMENT);
}

TEST(FrontStreams, DistributionsCheckAndDrawAsTheirKernels) {
  ASSERT_EQ(std::size(fronts), distributions.size());
  for (size_t i = 0; i < distributions.size(); ++i) check_draws(distributions[i], fronts[i]);
}

}  // namespace
