#include <stdlib.h>

#include "ork/serv.h"
#include "outer/export.hpp"

ORK_OUTER void* ork_serv_allocate(size_t size, size_t alignment) {
  void* block = nullptr;
  if (alignment < sizeof(void*)) alignment = sizeof(void*);
  return posix_memalign(&block, alignment, size != 0 ? size : 1) == 0 ? block : nullptr;
}

ORK_OUTER void ork_serv_deallocate(void* block) { free(block); }
