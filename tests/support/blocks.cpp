#include "support/blocks.hpp"

#include <stdlib.h>
#include <string.h>

#include <mutex>
#include <unordered_set>

#include "ork/serv.h"

namespace {
std::mutex mutex;
std::unordered_set<void*>& alive() {
  static auto* set = new std::unordered_set<void*>;
  return *set;
}
int countdown;
bool reached;
}  // namespace

int blocks::live() {
  const std::lock_guard guard(mutex);
  return int(alive().size());
}

void blocks::fail(int k) {
  const std::lock_guard guard(mutex);
  countdown = k;
  reached = false;
}

bool blocks::failed() {
  const std::lock_guard guard(mutex);
  return reached;
}

extern "C" void* ork_serv_allocate(size_t size, size_t alignment) {
  const std::lock_guard guard(mutex);
  if (countdown > 0 && --countdown == 0) {
    reached = true;
    return nullptr;
  }
  void* block = nullptr;
  if (posix_memalign(&block, alignment, size != 0 ? size : 1) != 0) return nullptr;
  memset(block, 0xA5, size);  // nobody may count on zeros
  alive().insert(block);
  return block;
}

extern "C" void ork_serv_deallocate(void* block) {
  const std::lock_guard guard(mutex);
  if (!block) return;
  if (alive().erase(block) == 0) abort();
  memset(block, 0x5A, 1);
  free(block);
}
