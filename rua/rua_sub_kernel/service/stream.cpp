// Making, copying and positioning streams.
#include "rua_sub_kernel/service/stream.hpp"

#include <string.h>

#include "base/export.hpp"
#include "ork/serv.h"
#include "rua_sub_kernel/quasi/streams.hpp"

using namespace ork::rua;

namespace {

bool is_abstract(int32_t brng) {
  return brng == RUA_BRNG_IABSTRACT || brng == RUA_BRNG_DABSTRACT || brng == RUA_BRNG_SABSTRACT;
}

// Bytes that __ruaCopyStreamState moves: the seed state, within both records. Tables of a
// quasi-random sequence reach behind the seed state and go along whole.
uint32_t seed_bytes(const RuaStream* target, const RuaStream* source) {
  const RuaBrngProperties& row = properties(source);
  const uint32_t from = state_bytes(row), to = state_bytes(properties(target));
  const uint64_t seed =
      is_quasi_random(row) ? from : uint64_t(uint32_t(row.wordSize)) * uint32_t(row.seedWords);
  const uint32_t room = from < to ? from : to;
  return seed < room ? uint32_t(seed) : room;
}

}  // namespace

ORK_EXPORT int32_t __ruaAllocateStream(RuaStream** stream, RuaBrngProperties* table, int32_t brng,
                                       int32_t row, int32_t offset) {
  const int32_t status = __ruaIsBrngValid(table, row, offset);
  if (status < 0) return status;
  *stream = static_cast<RuaStream*>(
      ork_serv_allocate(sizeof(RuaStream) + state_bytes(table[row]), kAlignment));
  if (!*stream) return RUA_STATUS_NO_MEMORY;
  **stream = {.brng = brng, .allocated = 1, .reserved = {}, .chunks = nullptr, .reserved2 = 0};
  return RUA_STATUS_OK;
}

ORK_EXPORT int32_t __ruaNewStreamEx(RuaStream** stream, int32_t brng, int32_t n,
                                    const uint32_t* params) {
  if (is_abstract(brng)) return RUA_STATUS_BAD_GENERATOR;
  int32_t row, offset;
  RuaBrngProperties* table = __ruaGetBrngBaseOffset(brng, &row, &offset);
  const int32_t status = __ruaAllocateStream(stream, table, brng, row, offset);
  if (status < 0) return status;
  return table[row].initStream(kSeed, *stream, n, params);
}

ORK_EXPORT int32_t __ruaDeleteStream(RuaStream** stream) {
  if (!*stream) return RUA_STATUS_OK;
  __ruaDeleteChunks(*stream);
  ork_serv_deallocate(*stream);
  *stream = nullptr;
  return RUA_STATUS_OK;
}

ORK_EXPORT int32_t __ruaCopyStream(RuaStream** newStream, const RuaStream* source) {
  int32_t row, offset;
  RuaBrngProperties* table = __ruaGetBrngBaseOffset(source->brng, &row, &offset);
  const int32_t status = __ruaAllocateStream(newStream, table, source->brng, row, offset);
  if (status < 0) return status;
  memcpy(*newStream + 1, source + 1, state_bytes(table[row]));
  return __ruaCopyChunks(*newStream, source);
}

ORK_EXPORT int32_t __ruaCopyStreamState(RuaStream* target, const RuaStream* source) {
  if (target == source) return RUA_STATUS_OK;
  memcpy(target + 1, source + 1, seed_bytes(target, source));
  __ruaDeleteChunks(target);
  return __ruaCopyChunks(target, source);
}

ORK_EXPORT int32_t __ruaLeapfrogStream(RuaStream* stream, int32_t k, int32_t nstreams) {
  if (nstreams < 0) return RUA_STATUS_BAD_LEAPFROG_COUNT;
  const uint32_t params[] = {uint32_t(k)};
  return properties(stream).initStream(kLeapfrog, stream, nstreams, params);
}

ORK_EXPORT int32_t __ruaSkipAheadStream(RuaStream* stream, int64_t nskip) {
  const uint32_t params[] = {uint32_t(nskip), uint32_t(uint64_t(nskip) >> 32)};
  return properties(stream).initStream(kSkipAhead, stream, 2, params);
}

ORK_EXPORT int32_t __ruaGetStreamStateBrng(const RuaStream* stream) { return stream->brng; }
