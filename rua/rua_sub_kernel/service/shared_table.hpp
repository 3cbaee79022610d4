#pragma once
#include "ork/rua.h"

namespace ork::rua {

// Rows that chunks may make; the one above can be made only by its own function.
constexpr uint32_t kSharedRowsForChunks = 127;

// Ties a chunk to the shared table by its key, in one hold of the lock: a live row gets one
// more reference and lends its data, with their size, a new key gets a row. With the table full, or
// a key of zeros, the chunk is private and its key zero.
void share(RuaChunk* chunk);

}  // namespace ork::rua
