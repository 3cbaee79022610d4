// Task records over data of the library's own: a method that needs another one's computation fills
// such a record and calls it.
#pragma once
#include "rua_kernel/ss/service/task.hpp"

namespace ork::ss {

// Shape and data; the outputs are the user's to set. It borrows from itself, so it stays where it
// was made.
template <class R>
class PrivateTask {
 public:
  // storage: ORK_SS_ROWS or ORK_SS_COLUMNS.
  PrivateTask(int p, int n, int storage, const R* x, const R* w = nullptr)
      : p_(p), n_(n), storage_(storage) {
    record_.taskKind = kTaskKind;
    record_.isDouble = sizeof(R) == sizeof(double);
    record_.dimension = &p_;
    record_.observationCount = &n_;
    record_.storageFormat = &storage_;
    record_.observations = x;
    record_.weights = w;
  }
  PrivateTask(const PrivateTask&) = delete;

  Task<R>& operator*() { return record_; }
  Task<R>* operator->() { return &record_; }

 private:
  int32_t p_, n_, storage_;
  Task<R> record_{};
};

}  // namespace ork::ss
