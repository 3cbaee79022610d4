// Generators in every form, with skips and leaps, and the distributions drawn from one of them.
#include "digests/digests.hpp"
#include "registry/distributions.hpp"

namespace {

class Stream {
 public:
  explicit Stream(int32_t brng) {
    const uint32_t seed[] = {20, 304, 5, 77777, 12, 1};
    const bool family = brng != RUA_BRNG_SOBOL && brng != RUA_BRNG_NIEDERR;
    const uint32_t dimension = 7;
    status_ = family ? __ruaNewStreamEx(&stream_, brng, 6, seed)
                     : __ruaNewStreamEx(&stream_, brng, 1, &dimension);
  }
  ~Stream() { __ruaDeleteStream(&stream_); }
  Stream(const Stream&) = delete;
  int status() const { return status_; }
  operator RuaStream*() { return stream_; }

 private:
  RuaStream* stream_ = nullptr;
  int status_;
};

constexpr int kCount = 1237;

template <class T, class Draw>
void add(Digest& digest, int n, Draw draw) {
  std::vector<T> r(static_cast<size_t>(n), T(-1));
  digest.add(draw(n, r.data()));
  digest.add(r);
}

// `prepare` puts the stream where the numbers begin.
template <class Prepare>
void digest_generator(const std::string& name, int32_t brng, Prepare prepare) {
  if (!wanted(name)) return;
  Digest digest;
  for (int form = 0; form < 3; ++form) {
    Stream stream(brng);
    digest.add(stream.status());
    if (stream.status() != 0) break;
    digest.add(prepare(stream));
    RuaBrngProperties row{};
    __ruaGetBrngProperties(brng, &row);
    for (const int n : {1, 7, kCount, 3}) {
      if (form == 0)
        add<double>(digest, n,
                    [&](int k, double* r) { return row.dGenerate(stream, k, r, -1, 3); });
      if (form == 1)
        add<float>(digest, n, [&](int k, float* r) { return row.sGenerate(stream, k, r, -1, 3); });
      if (form == 2)
        add<uint32_t>(digest, n * row.wordSize / 4, [&](int k, uint32_t* r) {
          return row.iGenerate(stream, k * 4 / row.wordSize, r);
        });
    }
  }
  print(name, digest);
}

struct Generator {
  const char* name;
  int32_t brng;
};
constexpr Generator kGenerators[] = {
    {"MCG31M1", RUA_BRNG_MCG31M1},      {"R250", RUA_BRNG_R250},
    {"MRG32K3A", RUA_BRNG_MRG32K3A},    {"MCG59", RUA_BRNG_MCG59},
    {"WH", RUA_BRNG_WH + 100},          {"Sobol", RUA_BRNG_SOBOL},
    {"Niederr", RUA_BRNG_NIEDERR},      {"MT19937", RUA_BRNG_MT19937},
    {"MT2203", RUA_BRNG_MT2203 + 3001}, {"SFMT19937", RUA_BRNG_SFMT19937},
};

// A distribution's entry by each of its methods, with the parameters of its row.
void digest_distribution(const Distribution& d) {
  for (int method = 0; method < d.methods; ++method) {
    const std::string name = "draws " + d.full_name() + ' ' + std::to_string(method);
    if (!wanted(name)) continue;
    Digest digest;
    for (const int32_t brng : {RUA_BRNG_MCG59, RUA_BRNG_MT19937})
      for (const int32_t flag : {0, RUA_METHOD_ACCURATE}) {
        if (flag && d.methods > 1) continue;
        Stream stream(brng);
        // Bits come in the generator's words, up to twice as long as a number.
        for (const int n : {3, 4 * kCount, 1, kCount})
          add<uint8_t>(digest, 2 * int(d.bytes(n)), [&](int, uint8_t* r) {
            return d.kernel(method | flag, stream, n, r, d.sample);
          });
      }
    print(name, digest);
  }
}

}  // namespace

void digest_streams() {
  for (const Generator& g : kGenerators) {
    const std::string name = std::string("stream ") + g.name;
    digest_generator(name, g.brng, [](RuaStream*) { return 0; });
    digest_generator(name + " skip", g.brng,
                     [](RuaStream* s) { return __ruaSkipAheadStream(s, 987654321012345); });
    digest_generator(name + " leap", g.brng,
                     [](RuaStream* s) { return __ruaLeapfrogStream(s, 2, 5); });
  }
  for (const Distribution& d : distributions) digest_distribution(d);
}
