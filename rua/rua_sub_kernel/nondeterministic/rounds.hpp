// Rounds of hardware draws and their retries, over any source of words: a callable that
// stores 32 random bits and says whether they are good. Apart from the instruction, so that
// a test can feed it failures.
#pragma once
#include "ork/rua.h"

namespace ork::rua {

// One round: `words` draws, all of which have to be good, else all are drawn again. The
// retry that uses up the allowance counts as failed even if its draws are good.
template <class Source>
bool draw_round(Source& source, uint32_t retries, uint32_t* word, int words) {
  const auto draw = [&] {
    bool good = true;
    for (int i = 0; i < words; ++i) good &= source(&word[i]);
    return good;
  };
  if (draw()) return true;
  uint32_t attempts = 0;
  while (attempts < retries) {
    ++attempts;
    if (draw()) break;
  }
  return attempts < retries;
}

template <class Source>
int32_t draw_integers(Source source, uint32_t retries, int32_t n, uint32_t* r) {
  for (int32_t i = 0; i < n; i += 2) {
    const int words = n - i > 1 ? 2 : 1;
    uint32_t w[2];
    const bool good = draw_round(source, retries, w, words);
    for (int k = 0; k < words; ++k) r[i + k] = good ? w[k] : 0;
    if (!good) return RUA_STATUS_HARDWARE_RANDOM_FAILED;
  }
  return RUA_STATUS_OK;
}

template <class Source>
int32_t draw_singles(Source source, uint32_t retries, int32_t n, float* r, float a, float b) {
  const float scale = (b - a) * 0x1p-32f;
  for (int32_t i = 0; i < n; i += 2) {
    const int words = n - i > 1 ? 2 : 1;
    uint32_t w[2];
    if (!draw_round(source, retries, w, words)) return RUA_STATUS_HARDWARE_RANDOM_FAILED;
    // Through double, which holds the word exactly: one rounding to float.
    for (int k = 0; k < words; ++k) r[i + k] = float(double(w[k])) * scale + a;
  }
  return RUA_STATUS_OK;
}

template <class Source>
int32_t draw_doubles(Source source, uint32_t retries, int32_t n, double* r, double a, double b) {
  const double scale = (b - a) * 0x1p-64;
  for (int32_t i = 0; i < n; ++i) {
    uint32_t w[2];
    if (!draw_round(source, retries, w, 2)) return RUA_STATUS_HARDWARE_RANDOM_FAILED;
    // The extended format holds all 64 bits: one rounding to double.
    const long double wide = w[1] * 0x1p32L + w[0];
    r[i] = double(wide) * scale + a;
  }
  return RUA_STATUS_OK;
}

}  // namespace ork::rua
