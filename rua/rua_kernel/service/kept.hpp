// What a distribution keeps with a stream from call to call.
#pragma once
#include "ork/serv.h"
#include "rua_sub_kernel/service/chunks.hpp"
#include "rua_sub_kernel/service/stream.hpp"

namespace ork::rua {

// The record P in the stream's chunk P::kChunk, made as `fresh` on first use. NO_MEMORY, or
// BAD_GENERATOR for a chunk that is too short: `record` is then of no use, the stream unchanged.
template <class P>
int32_t find_or_make(RuaStream* stream, P*& record, const P& fresh) {
  const int32_t status = find_chunk(stream, record);
  if (status < 0 || record) return status;
  record = static_cast<P*>(ork_serv_allocate(sizeof(P), kAlignment));
  if (!record) return RUA_STATUS_NO_MEMORY;
  *record = fresh;
  return give_chunk(stream, P::kChunk, nullptr, record, sizeof(P));
}

// A chunk of `size` bytes in the place of the stream's chunk P::kChunk, if it has one. Its content
// is undefined. NO_MEMORY: there is none at all, or the old one is as it was.
template <class P>
int32_t replace(RuaStream* stream, P*& record, uint32_t size) {
  record = static_cast<P*>(ork_serv_allocate(size, kAlignment));
  if (!record) return RUA_STATUS_NO_MEMORY;
  drop_chunk(stream, P::kChunk);
  return give_chunk(stream, P::kChunk, nullptr, record, size);
}

}  // namespace ork::rua
