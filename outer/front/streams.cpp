// Streams behind the checks that their kernels leave to the caller.
#include "ork/front.h"
#include "outer/export.hpp"

ORK_OUTER int ork_stream_new_words(RuaStream** stream, int32_t brng, int32_t n,
                                   const uint32_t* seed) {
  if (stream == nullptr) return RUA_STATUS_NULL_POINTER;
  *stream = nullptr;
  if (n < 0) return RUA_STATUS_BAD_ARGUMENT;
  if (n > 0 && seed == nullptr) return RUA_STATUS_NULL_POINTER;
  const int status = __ruaNewStreamEx(stream, brng, n, seed);
  if (status < 0) __ruaDeleteStream(stream);
  return status;
}

ORK_OUTER int ork_stream_new(RuaStream** stream, int32_t brng, uint32_t seed) {
  return ork_stream_new_words(stream, brng, 1, &seed);
}

ORK_OUTER int ork_stream_new_points(RuaStream** stream, int32_t brng, int32_t dimension) {
  if (stream == nullptr) return RUA_STATUS_NULL_POINTER;
  *stream = nullptr;
  const int32_t most = brng == RUA_BRNG_SOBOL ? 40 : brng == RUA_BRNG_NIEDERR ? 318 : 0;
  if (most == 0) return RUA_STATUS_BAD_GENERATOR;
  if (dimension < 1 || dimension > most) return RUA_STATUS_BAD_ARGUMENT;
  return ork_stream_new(stream, brng, uint32_t(dimension));
}

ORK_OUTER int ork_stream_select(RuaStream* stream, int32_t component) {
  if (stream == nullptr) return RUA_STATUS_NULL_POINTER;
  return __ruaLeapfrogStream(stream, component, INT32_MAX);
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
