// The random numbers of the chain of imputations.
#pragma once
#include "ork/rua.h"
#include "ork/rua_distributions.h"

namespace ork::ss {

template <class R>
struct Draws;
template <>
struct Draws<double> {
  static constexpr auto gaussian = _ruadRngGaussian;
  static constexpr auto vectors = _ruadRngGaussianMV;
};
template <>
struct Draws<float> {
  static constexpr auto gaussian = _ruasRngGaussian;
  static constexpr auto vectors = _ruasRngGaussianMV;
};

// A stream for one call, the same at every call.
class Stream {
 public:
  Stream() {
    const uint32_t seed[2] = {0, 0x40000};
    status_ = __ruaNewStreamEx(&stream_, RUA_BRNG_MCG59, 2, seed);
  }
  ~Stream() {
    if (stream_) __ruaDeleteStream(&stream_);
  }
  Stream(const Stream&) = delete;
  int32_t status() const { return status_; }
  RuaStream* get() const { return stream_; }

 private:
  RuaStream* stream_ = nullptr;
  int32_t status_;
};

}  // namespace ork::ss
