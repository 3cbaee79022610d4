// Bernoulli: 1 where a uniform number is below p, drawn and compared in single precision.
#include "base/export.hpp"
#include "base/vec.hpp"
#include "rua_kernel/service/uniform.hpp"

using namespace ork::rua;

ORK_EXPORT int32_t _ruaiRngBernoulli(int32_t, RuaStream* stream, int32_t n, int32_t* r, double p) {
  // In place. From here on the bits are integers, in the order of the numbers, none of which is
  // below 0.
  const int32_t status = uniform(stream, n, reinterpret_cast<float*>(r), 0.0f, 1.0f);
  if (status < 0) return status;
  const __m128i f = _mm_castps_si128(_mm_set1_ps(float(p)));
  int32_t i = 0;
  for (; n - i >= 4; i += 4) {
    const auto place = reinterpret_cast<__m128i*>(r + i);
    _mm_storeu_si128(place, _mm_srli_epi32(_mm_cmplt_epi32(_mm_loadu_si128(place), f), 31));
  }
  for (; i < n; ++i) {
    const __m128i u = _mm_loadu_si32(r + i);
    r[i] = _mm_cvtsi128_si32(_mm_srli_epi32(_mm_cmplt_epi32(u, f), 31));
  }
  return RUA_STATUS_OK;
}
