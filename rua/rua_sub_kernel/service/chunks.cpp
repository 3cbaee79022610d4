// The list of data blocks that hangs on a stream, newest first.
#include "rua_sub_kernel/service/chunks.hpp"

#include <string.h>

#include "base/export.hpp"
#include "ork/serv.h"
#include "rua_sub_kernel/service/shared_table.hpp"
#include "rua_sub_kernel/service/stream.hpp"

using namespace ork::rua;

namespace {

bool is_shared(const RuaChunk* chunk) {
  RuaSharedRow* row;
  return __ruaFindGlobRODataTableEntry(&row, chunk->sharedId) == RUA_STATUS_OK;
}

void release_payload(RuaChunk* chunk) {
  if (is_shared(chunk))
    __ruaUnregisterGlobRODataReference(chunk->sharedId);
  else if (chunk->data)
    ork_serv_deallocate(chunk->data);
}

const RuaChunk* newest(const RuaStream* stream, uint32_t id) {
  const RuaChunk* c = stream->chunks;
  while (c && c->chunkId != id) c = c->next;
  return c;
}

// Adds a copy of one chunk to the target.
int32_t copy_chunk(RuaStream* target, const RuaChunk* chunk) {
  if (!chunk->data || is_shared(chunk))
    return __ruaAddChunk(target, chunk->chunkId, chunk->sharedId, chunk->data, chunk->size);
  void* copy = ork_serv_allocate(chunk->size, kAlignment);
  if (!copy) return RUA_STATUS_NO_MEMORY;
  memcpy(copy, chunk->data, chunk->size);
  return give_chunk(target, chunk->chunkId, chunk->sharedId, copy, chunk->size);
}

}  // namespace

int32_t ork::rua::give_chunk(RuaStream* stream, uint32_t chunkId, const uint32_t* sharedId,
                             void* data, uint32_t size) {
  const int32_t status = __ruaAddChunk(stream, chunkId, sharedId, data, size);
  if (status < 0 || stream->chunks->data != data) ork_serv_deallocate(data);
  return status;
}

int32_t ork::rua::find_chunk(const RuaStream* stream, uint32_t id, uint32_t size, void** payload) {
  const RuaChunk* chunk = newest(stream, id);
  *payload = chunk ? chunk->data : nullptr;
  return *payload && chunk->size < size ? RUA_STATUS_BAD_GENERATOR : RUA_STATUS_OK;
}

void ork::rua::drop_chunk(RuaStream* stream, uint32_t id) {
  RuaChunk** link = &stream->chunks;
  while (*link && (*link)->chunkId != id) link = &(*link)->next;
  if (RuaChunk* chunk = *link) {
    *link = chunk->next;
    release_payload(chunk);
    ork_serv_deallocate(chunk);
  }
}

ORK_EXPORT int32_t __ruaAddChunk(RuaStream* stream, uint32_t chunkId, const uint32_t* sharedId,
                                 void* data, uint32_t size) {
  auto* chunk = static_cast<RuaChunk*>(ork_serv_allocate(sizeof(RuaChunk), kAlignment));
  if (!chunk) return RUA_STATUS_NO_MEMORY;
  *chunk = {.chunkId = chunkId, .size = size, .data = data, .next = stream->chunks, .sharedId = {}};
  if (sharedId) {
    memcpy(chunk->sharedId, sharedId, sizeof chunk->sharedId);
    share(chunk);
  }
  stream->chunks = chunk;
  return RUA_STATUS_OK;
}

ORK_EXPORT void* __ruaSearchChunk(const RuaStream* stream, uint32_t chunkId) {
  const RuaChunk* chunk = newest(stream, chunkId);
  return chunk ? chunk->data : nullptr;
}

ORK_EXPORT int32_t __ruaGetNumChunks(const RuaStream* stream) {
  int32_t number = 0;
  for (const RuaChunk* c = stream->chunks; c; c = c->next) ++number;
  return number;
}

ORK_EXPORT int32_t __ruaCopyChunks(RuaStream* target, const RuaStream* source) {
  for (const RuaChunk* c = source->chunks; c; c = c->next) {
    const int32_t status = copy_chunk(target, c);
    if (status < 0) {
      __ruaDeleteChunks(target);
      return status;
    }
  }
  return RUA_STATUS_OK;
}

ORK_EXPORT int32_t __ruaDeleteChunks(RuaStream* stream) {
  RuaChunk* chunk = stream->chunks;
  stream->chunks = nullptr;
  while (chunk) {
    RuaChunk* next = chunk->next;
    release_payload(chunk);
    ork_serv_deallocate(chunk);
    chunk = next;
  }
  return RUA_STATUS_OK;
}
