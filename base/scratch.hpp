// A block of the service layer's memory, released on every way out.
#pragma once
#include <stddef.h>
#include <stdint.h>

#include "ork/serv.h"

namespace ork {

template <class T>
class Scratch {
 public:
  // Uninitialised; null when there is no memory for it, or no address space.
  explicit Scratch(uint64_t count)
      : block_(count <= PTRDIFF_MAX / sizeof(T)
                   ? static_cast<T*>(ork_serv_allocate(size_t(count) * sizeof(T), 128))
                   : nullptr) {}
  Scratch() : block_(nullptr) {}
  Scratch(Scratch&& other) : block_(other.release()) {}
  Scratch& operator=(Scratch&& other) {
    T* block = other.release();
    if (block_) ork_serv_deallocate(block_);
    block_ = block;
    return *this;
  }
  ~Scratch() {
    if (block_) ork_serv_deallocate(block_);
  }

  explicit operator bool() const { return block_ != nullptr; }
  T* get() const { return block_; }
  T& operator[](size_t i) const { return block_[i]; }
  // The caller has to deallocate the block.
  T* release() {
    T* block = block_;
    block_ = nullptr;
    return block;
  }

 private:
  T* block_;
};

}  // namespace ork
