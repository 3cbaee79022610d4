#pragma once
#include "ork/rua.h"

namespace ork::rua {

// __ruaAddChunk for a block that nobody else holds: it is released when the chunk cannot be
// made, and when live shared data take its place.
int32_t give_chunk(RuaStream* stream, uint32_t chunkId, const uint32_t* sharedId, void* data,
                   uint32_t size);

}  // namespace ork::rua
