// Vector kernels: every slot of the table, at its level.
#include "registry/kernels.hpp"

#include <limits>
#include <set>

#include "accuracy/points.hpp"
#include "digests/digests.hpp"

namespace {

constexpr int kCount = 6007;  // elements: blocks and a tail

// Special values, each beside each other when there are two inputs; then bit patterns, numbers of
// all magnitudes and numbers where functions have their domains and borders.
template <class T>
void make_arguments(std::vector<T>& a, std::vector<T>& b) {
  typedef std::numeric_limits<T> Limits;
  std::vector<T> special;
  for (const T x : {T(0), Limits::denorm_min(), Limits::min() / 2, Limits::min(), T(1e-10), T(0.5),
                    T(1), 1 + Limits::epsilon(), T(1.5), T(2), T(3), T(33), T(1e10), Limits::max(),
                    Limits::infinity(), Limits::quiet_NaN(), Limits::signaling_NaN()})
    special.push_back(x), special.push_back(-x);
  for (const T x : special)
    for (const T y : special) a.push_back(x), b.push_back(y);
  Random random{0x9E3779B97F4A7C15};
  const auto draw = [&](int kind) -> T {
    const double u = 2 * random.uniform() - 1;
    const uint64_t bits = random.next();
    T x;
    switch (kind) {
      case 0:
        memcpy(&x, &bits, sizeof x);
        return x;
      case 1:
        return T((u < 0 ? -1 : 1) * __builtin_exp2(u * Limits::max_exponent));
      case 2:
        return T(u);
      case 3:
        return T(1 + u);
      case 4:
        return T(10 * u);
      default:
        return T(800 * u);
    }
  };
  while (int(a.size()) < kCount) {
    const int kind = int(a.size()) % 6;
    a.push_back(draw(kind));
    b.push_back(draw(kind));
  }
}

Digest* events;
bool complex_kernel;

// Field by field: what a name leaves of its own is not part of an event, nor are the imaginary
// parts of a real kernel's.
int32_t record(ork_error_record* e) {
  events->add(e->status);
  events->add(e->index);
  const double values[] = {e->a1, e->a2, e->r1, e->r2, e->a1_im, e->a2_im, e->r1_im, e->r2_im};
  events->add(values, (complex_kernel ? 8 : 4) * sizeof(double));
  events->add(e->name, strnlen(e->name, sizeof e->name));
  return 1;
}

// A kernel's second scalar by value; complex ones pass two reals.
template <class T>
struct Pair {
  T re, im;
};

template <class T>
void run(const Slot& slot, int level, int n, const T* a, const T* b, T* r, T* r2) {
  void* const kernel = const_cast<void*>(slot.table[level]);
  if (complex_kernel) n /= 2;
  const int places = n / 3;
  std::vector<int32_t> numbers(static_cast<size_t>(n));
  const auto fill = [&](bool mask) {
    for (int i = 0; i < n; ++i) numbers[size_t(i)] = mask ? i % 3 == 1 : (i * 7 + 3) % n;
    return numbers.data();
  };
  typedef void Unary(int, const T*, T*);
  typedef void Binary(int, const T*, const T*, T*);
  typedef void Scalar(int, const T*, T, T*);
  typedef void ComplexScalar(int, const T*, Pair<T>, T*);
  typedef void Two(int, const T*, T*, T*);
  typedef void Linear(int, const T*, const T*, T, T, T, T, T*);
  typedef void PackI(int, int, const T*, int, int, T*, int);
  typedef void Pack(int, int, const T*, const void*, T*, int);
  typedef void UnpackI(int, int, const T*, T*, int, int, int);
  typedef void Unpack(int, int, const T*, T*, const void*, int);
  switch (slot.form) {
    case Form::unary:
    case Form::to_real:
    case Form::from_real:
      return reinterpret_cast<Unary*>(kernel)(n, a, r);
    case Form::binary:
      return reinterpret_cast<Binary*>(kernel)(n, a, b, r);
    case Form::scalar:
      for (const T second : {T(2), T(0.5), T(-1.25)}) {
        if (complex_kernel)
          reinterpret_cast<ComplexScalar*>(kernel)(n, a, {second, T(0.75)}, r);
        else
          reinterpret_cast<Scalar*>(kernel)(n, a, second, r);
        events->add(r, size_t(n) * sizeof(T));
      }
      return;
    case Form::two:
      return reinterpret_cast<Two*>(kernel)(n, a, r, r2);
    case Form::linear:
      return reinterpret_cast<Linear*>(kernel)(n, a, b, T(1.5), T(0.25), T(0.75), T(3), r);
    case Form::pack_i:
      return reinterpret_cast<PackI*>(kernel)(places, 0, a, 3, 0, r, 1);
    case Form::unpack_i:
      return reinterpret_cast<UnpackI*>(kernel)(places, 0, a, r, 3, 0, 1);
    case Form::pack_m:
      return reinterpret_cast<Pack*>(kernel)(n, 0, a, fill(true), r, 1);
    case Form::unpack_m:
      return reinterpret_cast<Unpack*>(kernel)(n, 0, a, r, fill(true), 1);
    case Form::pack_v:
      return reinterpret_cast<Pack*>(kernel)(n, 0, a, fill(false), r, 1);
    case Form::unpack_v:
      return reinterpret_cast<Unpack*>(kernel)(n, 0, a, r, fill(false), 1);
  }
}

template <class T>
void digest_slot(const Slot& slot, int level) {
  static std::vector<T> a, b;
  if (a.empty()) make_arguments(a, b);
  Digest digest;
  events = &digest;
  complex_kernel = slot.type == 'c' || slot.type == 'z';
  std::vector<T> r, r2;
  for (const uint32_t mode : {ORK_ZEM_DENORMAL_KEEP, ORK_ZEM_DENORMAL_ZERO})
    for (const int first : {0, 1}) {  // of both alignments
      ork_zem_kernel_SetMode(ORK_ZEM_ERRMODE_CALLBACK | mode);
      ork_zem_kernel_SetErrStatus(0);
      r.assign(kCount, T(-1));
      r2.assign(kCount, T(-1));
      run(slot, level, kCount - first, a.data() + first, b.data() + first, r.data(), r2.data());
      digest.add(r);
      if (slot.form == Form::two) digest.add(r2);
      digest.add(ork_zem_kernel_GetErrStatus());
    }
  print(slot.name(level), digest);
}

}  // namespace

void digest_kernels() {
  const uint32_t mode = ork_zem_kernel_GetMode();
  ork_zem_kernel_SetErrorCallBack(record);
  for (const Slot& slot : slots) {
    std::set<std::string> done;
    for (int level = 0; level < 3; ++level) {
      if (!slot.exists(level) || !wanted(slot.name(level))) continue;
      if (!done.insert(slot.kernels[level]).second) continue;
      if (slot.type == 'd' || slot.type == 'z')
        digest_slot<double>(slot, level);
      else
        digest_slot<float>(slot, level);
    }
  }
  ork_zem_kernel_ClearErrorCallBack();
  ork_zem_kernel_SetMode(mode);
}
