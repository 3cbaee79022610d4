// Large read-only tables that several streams use, one copy each. The one locked thing of
// the random streams.
#include "rua_sub_kernel/service/shared_table.hpp"

#include <string.h>
#include <x86intrin.h>

#include "base/export.hpp"
#include "ork/serv.h"
#include "rua_sub_kernel/service/stream.hpp"

using namespace ork::rua;

namespace {

constexpr uint32_t kRows = 128;
constexpr uint32_t kUnknown = 0xFFFFFFFF;
RuaSharedRow rows[kRows];  // the first `count` are in use
uint32_t sizes[kRows];     // of their data, as far as known
uint32_t count;
int locker;  // 0 free, 1 held

struct Hold {
  Hold() {
    int expected = 0;
    while (!__atomic_compare_exchange_n(&locker, &expected, 1, false, __ATOMIC_ACQUIRE,
                                        __ATOMIC_RELAXED)) {
      expected = 0;
      __builtin_ia32_pause();
    }
  }
  ~Hold() { __atomic_store_n(&locker, 0, __ATOMIC_RELEASE); }
};

bool names_a_row(const uint32_t* key) { return key && (key[0] | key[1] | key[2] | key[3]) != 0; }

// The functions below want the lock held.

RuaSharedRow* find(const uint32_t* key) {
  if (!names_a_row(key)) return nullptr;
  for (uint32_t i = 0; i < count; ++i)
    if (memcmp(rows[i].sharedId, key, sizeof rows[i].sharedId) == 0) return &rows[i];
  return nullptr;
}

RuaSharedRow* append(const uint32_t* key, void* data, uint32_t size) {
  sizes[count] = size;
  RuaSharedRow* row = &rows[count++];
  memcpy(row->sharedId, key, sizeof row->sharedId);
  row->refCount = 1;
  row->data = data;
  return row;
}

void refer(RuaChunk* chunk, RuaSharedRow* row) {
  ++row->refCount;
  chunk->data = row->data;
  const uint32_t size = sizes[row - rows];
  if (size != kUnknown) chunk->size = size;
}

}  // namespace

void ork::rua::share(RuaChunk* chunk) {
  if (!names_a_row(chunk->sharedId)) return;
  const Hold hold;
  if (RuaSharedRow* row = find(chunk->sharedId))
    refer(chunk, row);
  else if (count < kSharedRowsForChunks)
    append(chunk->sharedId, chunk->data, chunk->size);
  else
    memset(chunk->sharedId, 0, sizeof chunk->sharedId);
}

ORK_EXPORT int32_t __ruaFindGlobRODataTableEntry(RuaSharedRow** row, const uint32_t* sharedId) {
  const Hold hold;
  RuaSharedRow* found = find(sharedId);
  if (!found) return RUA_STATUS_NO_SHARED_ENTRY;
  *row = found;
  return RUA_STATUS_OK;
}

ORK_EXPORT int32_t __ruaCreateGlobRODataTableEntry(RuaSharedRow** row, const uint32_t* sharedId,
                                                   void* data) {
  if (!names_a_row(sharedId)) return RUA_STATUS_NO_SHARED_ENTRY;
  const Hold hold;
  if (count == kRows) return RUA_STATUS_SHARED_TABLE_FULL;
  *row = append(sharedId, data, kUnknown);
  return RUA_STATUS_OK;
}

ORK_EXPORT int32_t __ruaRegisterGlobRODataReference(RuaChunk* chunk, const uint32_t* sharedId) {
  const Hold hold;
  RuaSharedRow* row = find(sharedId);
  if (!row) return RUA_STATUS_NO_SHARED_ENTRY;
  refer(chunk, row);
  return RUA_STATUS_OK;
}

ORK_EXPORT int32_t __ruaUnregisterGlobRODataReference(const uint32_t* sharedId) {
  void* released = nullptr;
  {
    const Hold hold;
    RuaSharedRow* row = find(sharedId);
    if (row && --row->refCount == 0) {
      released = row->data;
      *row = rows[--count];
      sizes[row - rows] = sizes[count];
    }
  }
  // Outside the lock: the allocator has locks of its own.
  if (released) ork_serv_deallocate(released);
  return RUA_STATUS_OK;
}

ORK_EXPORT int32_t __ruaGenerateNewGlobalRODataTableEntryId(uint32_t* sharedId, int32_t tag) {
  sharedId[2] = uint32_t(tag);
  sharedId[3] = tag < 0 ? 0xFFFFFFFF : 0;
  RuaSharedRow* taken;
  do {
    const uint64_t time = ruatsRDTSC();
    sharedId[0] = uint32_t(time);
    sharedId[1] = uint32_t(time >> 32);
  } while (__ruaFindGlobRODataTableEntry(&taken, sharedId) == RUA_STATUS_OK);
  return RUA_STATUS_OK;
}

ORK_EXPORT uint64_t ruatsRDTSC(void) { return __rdtsc(); }
