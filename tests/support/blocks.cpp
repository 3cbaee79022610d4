#include "support/blocks.hpp"

#include <stdlib.h>
#include <string.h>

#include <mutex>
#include <unordered_map>
#include <utility>

#include "ork/serv.h"

namespace {
std::mutex mutex;
std::unordered_map<void*, size_t>& alive() {  // block and size
  static auto* map = new std::unordered_map<void*, size_t>;
  return *map;
}
// Behind each block, to be found as it was.
constexpr unsigned char kFence[16] = {0xFE, 0xED, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14};
int countdown;
bool reached, none;
size_t least;
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

size_t blocks::least_alignment() {
  const std::lock_guard guard(mutex);
  return std::exchange(least, 0);
}

blocks::None::None() {
  const std::lock_guard guard(mutex);
  none = true;
}
blocks::None::~None() {
  const std::lock_guard guard(mutex);
  none = false;
}

extern "C" void* ork_serv_allocate(size_t size, size_t alignment) {
  const std::lock_guard guard(mutex);
  if (least == 0 || alignment < least) least = alignment;
  if (none) return nullptr;
  if (countdown > 0 && --countdown == 0) {
    reached = true;
    return nullptr;
  }
  void* block = nullptr;
  if (size > 0x40000000) return nullptr;  // sanitizers would end the program
  if (posix_memalign(&block, alignment, size + sizeof kFence) != 0) return nullptr;
  memset(block, 0xA5, size);  // nobody may count on zeros
  memcpy(static_cast<char*>(block) + size, kFence, sizeof kFence);
  alive()[block] = size;
  return block;
}

extern "C" void ork_serv_deallocate(void* block) {
  const std::lock_guard guard(mutex);
  if (!block) return;
  const auto found = alive().find(block);
  if (found == alive().end()) abort();
  if (memcmp(static_cast<char*>(block) + found->second, kFence, sizeof kFence) != 0) abort();
  memset(block, 0x5A, found->second);
  alive().erase(found);
  free(block);
}
