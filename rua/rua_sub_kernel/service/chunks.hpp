#pragma once
#include "ork/rua.h"

namespace ork::rua {

// __ruaAddChunk for a block that nobody else holds: it is released when the chunk cannot be
// made, and when live shared data take its place.
int32_t give_chunk(RuaStream* stream, uint32_t chunkId, const uint32_t* sharedId, void* data,
                   uint32_t size);

// The chunks that the library itself reads, with the bytes that a payload has at least. Payloads
// come from images, too, whose size fields may be damaged: loading refuses less than this, and
// find_chunk, by which all readers go, checks again.
struct ChunkReader {
  uint32_t id, least;
};
inline constexpr ChunkReader kChunkReaders[] = {
    {1, 2 * sizeof(float)},   // BoxMuller2, single: the pending pair
    {2, 2 * sizeof(double)},  // BoxMuller2, double
    {3, 696},                 // Poisson: a mean's set-up
    {4, 1328},                // Negbinomial: the set-up of a and p
    {5, 544},                 // Binomial: the set-up of ntrial and p
    {6, 56},                  // Hypergeometric: the head of a set-up, more follows
    {7, 2 * sizeof(double)},  // Gamma, double: the pending candidate
    {8, 2 * sizeof(float)},   // Gamma, single
};

// 0 for chunks of others.
constexpr uint32_t least_chunk_size(uint32_t id) {
  for (const ChunkReader& reader : kChunkReaders)
    if (reader.id == id) return reader.least;
  return 0;
}

// Stores the payload of the newest chunk of that id, null when there is none. BAD_GENERATOR: it
// has fewer than `size` bytes.
int32_t find_chunk(const RuaStream* stream, uint32_t id, uint32_t size, void** payload);

// The same for a record P, whose chunk is P::kChunk; `size` where more follows the record.
template <class P>
int32_t find_chunk(const RuaStream* stream, P*& payload, uint32_t size = sizeof(P)) {
  static_assert(least_chunk_size(P::kChunk) == sizeof(P), "a row in kChunkReaders");
  void* found;
  const int32_t status = find_chunk(stream, P::kChunk, size, &found);
  payload = static_cast<P*>(found);
  return status;
}

// Releases the newest chunk of that id, if there is one.
void drop_chunk(RuaStream* stream, uint32_t id);

}  // namespace ork::rua
