// The start of a search for outliers: the observations of least distance.
#pragma once

namespace ork::ss {

// Keeps `capacity` observations, in arrays of that length. Of equal distances at the border those
// offered first stay.
template <class R>
class Nearest {
 public:
  Nearest(int capacity, int* observations, R* distances)
      : capacity_(capacity), observations_(observations), distances_(distances) {}

  void offer(int observation, R distance) {
    if (count_ < capacity_)
      put(count_++, observation, distance);
    else if (distance < distances_[farthest_])
      put(farthest_, observation, distance);
  }
  int operator[](int i) const { return observations_[i]; }

 private:
  void put(int at, int observation, R distance) {
    observations_[at] = observation;
    distances_[at] = distance;
    if (count_ < capacity_) return;
    farthest_ = 0;
    for (int i = 1; i < capacity_; ++i)
      if (distances_[i] > distances_[farthest_]) farthest_ = i;
  }

  const int capacity_;
  int* const observations_;
  R* const distances_;
  int count_ = 0, farthest_ = 0;
};

}  // namespace ork::ss
