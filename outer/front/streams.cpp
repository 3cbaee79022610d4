// Streams and distributions behind the checks that their kernels leave to the caller.
#include <math.h>

#include <type_traits>

#include "ork/front.h"
#include "outer/export.hpp"

ORK_OUTER int ork_stream_new(RuaStream** stream, int32_t brng, uint32_t seed) {
  if (stream == nullptr) return RUA_STATUS_NULL_POINTER;
  *stream = nullptr;
  const int status = __ruaNewStreamEx(stream, brng, 1, &seed);
  if (status < 0) __ruaDeleteStream(stream);
  return status;
}

ORK_OUTER int ork_stream_delete(RuaStream** stream) {
  return stream != nullptr ? __ruaDeleteStream(stream) : RUA_STATUS_NULL_POINTER;
}

ORK_OUTER int ork_stream_copy(RuaStream** copy, const RuaStream* stream) {
  if (copy == nullptr || stream == nullptr) return RUA_STATUS_NULL_POINTER;
  RuaStream* made = nullptr;  // *copy may be what `stream` was read from
  const int status = __ruaCopyStream(&made, stream);
  if (status < 0) __ruaDeleteStream(&made);
  *copy = made;
  return status;
}

ORK_OUTER int ork_stream_leapfrog(RuaStream* stream, int32_t k, int32_t nstreams) {
  if (stream == nullptr) return RUA_STATUS_NULL_POINTER;
  if (nstreams < 1) return RUA_STATUS_BAD_LEAPFROG_COUNT;
  if (k < 0 || k >= nstreams) return RUA_STATUS_BAD_ARGUMENT;
  return __ruaLeapfrogStream(stream, k, nstreams);
}

ORK_OUTER int ork_stream_skip(RuaStream* stream, int64_t n) {
  return stream != nullptr ? __ruaSkipAheadStream(stream, n) : RUA_STATUS_NULL_POINTER;
}

ORK_OUTER int ork_stream_save(const RuaStream* stream, const char* file) {
  if (stream == nullptr || file == nullptr) return RUA_STATUS_NULL_POINTER;
  return __ruaSaveStreamF(stream, file, -1);
}

ORK_OUTER int ork_stream_load(RuaStream** stream, const char* file) {
  if (stream == nullptr || file == nullptr) return RUA_STATUS_NULL_POINTER;
  return __ruaLoadStreamF(stream, file, -1);
}

namespace {

// `methods` is the number of the distribution's methods, `valid` what its scales must meet.
template <class T, class... P>
int draw(int32_t (*kernel)(int32_t, RuaStream*, int32_t, T*, P...), int methods, bool valid,
         int method, RuaStream* stream, int n, T* r, std::type_identity_t<P>... parameters) {
  if (stream == nullptr) return RUA_STATUS_NULL_POINTER;
  const int plain = method & ~RUA_METHOD_ACCURATE;
  if (plain < 0 || plain >= methods) return RUA_STATUS_BAD_METHOD;
  if (n < 0 || !valid || !(isfinite(parameters) && ...)) return RUA_STATUS_BAD_ARGUMENT;
  if (n == 0) return RUA_STATUS_OK;
  if (r == nullptr) return RUA_STATUS_NULL_POINTER;
  return kernel(methods > 1 ? plain : method, stream, n, r, parameters...);
}

}  // namespace

ORK_OUTER int ork_dRngUniform(int method, RuaStream* stream, int n, double* r, double a, double b) {
  return draw(_ruadRngUniform, 1, a < b, method, stream, n, r, a, b);
}
ORK_OUTER int ork_sRngUniform(int method, RuaStream* stream, int n, float* r, float a, float b) {
  return draw(_ruasRngUniform, 1, a < b, method, stream, n, r, a, b);
}

ORK_OUTER int ork_dRngGaussian(int method, RuaStream* stream, int n, double* r, double a,
                               double sigma) {
  return draw(_ruadRngGaussian, 3, sigma > 0, method, stream, n, r, a, sigma);
}
ORK_OUTER int ork_sRngGaussian(int method, RuaStream* stream, int n, float* r, float a,
                               float sigma) {
  return draw(_ruasRngGaussian, 3, sigma > 0, method, stream, n, r, a, sigma);
}

ORK_OUTER int ork_dRngExponential(int method, RuaStream* stream, int n, double* r, double a,
                                  double beta) {
  return draw(_ruadRngExponential, 1, beta > 0, method, stream, n, r, a, beta);
}
ORK_OUTER int ork_sRngExponential(int method, RuaStream* stream, int n, float* r, float a,
                                  float beta) {
  return draw(_ruasRngExponential, 1, beta > 0, method, stream, n, r, a, beta);
}

ORK_OUTER int ork_dRngLaplace(int method, RuaStream* stream, int n, double* r, double a,
                              double beta) {
  return draw(_ruadRngLaplace, 1, beta > 0, method, stream, n, r, a, beta);
}
ORK_OUTER int ork_sRngLaplace(int method, RuaStream* stream, int n, float* r, float a, float beta) {
  return draw(_ruasRngLaplace, 1, beta > 0, method, stream, n, r, a, beta);
}

ORK_OUTER int ork_dRngCauchy(int method, RuaStream* stream, int n, double* r, double a,
                             double beta) {
  return draw(_ruadRngCauchy, 1, beta > 0, method, stream, n, r, a, beta);
}
ORK_OUTER int ork_sRngCauchy(int method, RuaStream* stream, int n, float* r, float a, float beta) {
  return draw(_ruasRngCauchy, 1, beta > 0, method, stream, n, r, a, beta);
}

ORK_OUTER int ork_dRngRayleigh(int method, RuaStream* stream, int n, double* r, double a,
                               double beta) {
  return draw(_ruadRngRayleigh, 1, beta > 0, method, stream, n, r, a, beta);
}
ORK_OUTER int ork_sRngRayleigh(int method, RuaStream* stream, int n, float* r, float a,
                               float beta) {
  return draw(_ruasRngRayleigh, 1, beta > 0, method, stream, n, r, a, beta);
}

ORK_OUTER int ork_dRngLognormal(int method, RuaStream* stream, int n, double* r, double a,
                                double sigma, double b, double beta) {
  return draw(_ruadRngLognormal, 2, sigma > 0 && beta > 0, method, stream, n, r, a, sigma, b, beta);
}
ORK_OUTER int ork_sRngLognormal(int method, RuaStream* stream, int n, float* r, float a,
                                float sigma, float b, float beta) {
  return draw(_ruasRngLognormal, 2, sigma > 0 && beta > 0, method, stream, n, r, a, sigma, b, beta);
}

ORK_OUTER int ork_dRngWeibull(int method, RuaStream* stream, int n, double* r, double alpha,
                              double a, double beta) {
  return draw(_ruadRngWeibull, 1, alpha > 0 && beta > 0, method, stream, n, r, alpha, a, beta);
}
ORK_OUTER int ork_sRngWeibull(int method, RuaStream* stream, int n, float* r, float alpha, float a,
                              float beta) {
  return draw(_ruasRngWeibull, 1, alpha > 0 && beta > 0, method, stream, n, r, alpha, a, beta);
}

ORK_OUTER int ork_dRngGumbel(int method, RuaStream* stream, int n, double* r, double a,
                             double beta) {
  return draw(_ruadRngGumbel, 1, beta > 0, method, stream, n, r, a, beta);
}
ORK_OUTER int ork_sRngGumbel(int method, RuaStream* stream, int n, float* r, float a, float beta) {
  return draw(_ruasRngGumbel, 1, beta > 0, method, stream, n, r, a, beta);
}
