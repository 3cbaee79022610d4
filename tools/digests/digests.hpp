#pragma once
// One number for all that a kernel does over fixed arguments: its results to the bit, and the
// statuses and events on the way.
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

// FNV-1a over 64-bit words, the last one padded; lengths are taken in, so that pieces differ
// from their whole.
class Digest {
 public:
  void add(const void* data, size_t bytes) {
    const char* p = static_cast<const char*>(data);
    word(bytes);
    for (; bytes >= 8; p += 8, bytes -= 8) word(read(p, 8));
    if (bytes > 0) word(read(p, bytes));
  }
  template <class T>
  void add(const std::vector<T>& values) {
    add(values.data(), values.size() * sizeof(T));
  }
  void add(int64_t value) { word(uint64_t(value)); }
  uint64_t value() const { return value_; }

 private:
  static uint64_t read(const char* p, size_t bytes) {
    uint64_t w = 0;
    memcpy(&w, p, bytes);
    return w;
  }
  void word(uint64_t w) { value_ = ((value_ ^ w) * 0x100000001B3) ^ (value_ >> 47); }

  uint64_t value_ = 0xCBF29CE484222325;
};

// Prints a line, the name and 16 digits, if the name holds the text of the command line.
bool wanted(const std::string& name);
void print(const std::string& name, const Digest& digest);

void digest_kernels();
void digest_streams();
void digest_statistics();
void digest_fits();
