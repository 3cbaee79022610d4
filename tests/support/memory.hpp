#pragma once
// Arrays that end, or begin, at an inaccessible page: a read or write beyond them faults.
#include <sys/mman.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>

class GuardedPages {
 public:
  explicit GuardedPages(size_t bytes) : page_(size_t(sysconf(_SC_PAGESIZE))) {
    size_ = (bytes + page_ - 1) / page_ * page_ + page_;
    base_ = static_cast<char*>(
        mmap(nullptr, size_ + 2 * page_, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
    if (base_ == MAP_FAILED || mprotect(base_ + page_, size_, PROT_READ | PROT_WRITE) != 0) abort();
  }
  ~GuardedPages() { munmap(base_, size_ + 2 * page_); }
  GuardedPages(const GuardedPages&) = delete;

  // n elements whose last byte lies `gap` bytes before the guard page.
  template <class T>
  T* at_end(int n, int gap = 0) {
    return reinterpret_cast<T*>(base_ + page_ + size_ - gap - size_t(n) * sizeof(T));
  }
  // Elements that begin `offset` bytes behind the lower guard page.
  template <class T>
  T* at_start(int offset = 0) {
    return reinterpret_cast<T*>(base_ + page_ + offset);
  }

 private:
  size_t page_, size_;
  char* base_;
};
