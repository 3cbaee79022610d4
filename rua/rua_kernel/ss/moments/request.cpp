#include "rua_kernel/ss/moments/request.hpp"

namespace ork::ss {
namespace {

constexpr uint32_t kUnmet = bit(kOutputs);  // needs what there is no output for
constexpr uint32_t M = bit(kMean), R2 = bit(kRaw2), R3 = R2 | bit(kRaw3), R4 = R3 | bit(kRaw4);
constexpr uint32_t C2 = bit(kCentral2), C3 = bit(kCentral3), C4 = bit(kCentral4);

struct Row {
  uint64_t estimate;
  uint8_t output;
  int16_t null_status;
  uint32_t updating, fast, from_sums;  // outputs needed besides
};
constexpr Row kRows[] = {
    {ORK_SS_MEAN, kMean, ORK_SS_NULL_MEAN, 0, 0, bit(kSums)},
    {ORK_SS_RAW2, kRaw2, ORK_SS_NULL_RAW2, 0, 0, bit(kSums + kRaw2)},
    {ORK_SS_RAW3, kRaw3, ORK_SS_NULL_RAW3, 0, 0, bit(kSums + kRaw3)},
    {ORK_SS_RAW4, kRaw4, ORK_SS_NULL_RAW4, 0, 0, bit(kSums + kRaw4)},
    {ORK_SS_CENTRAL2, kCentral2, ORK_SS_NULL_CENTRAL2, M | R2, M | R2, bit(kSums + kCentral2)},
    {ORK_SS_CENTRAL3, kCentral3, ORK_SS_NULL_CENTRAL3, M | R3, M | R3, bit(kSums + kCentral3)},
    {ORK_SS_CENTRAL4, kCentral4, ORK_SS_NULL_CENTRAL4, M | R4, M | R4, bit(kSums + kCentral4)},
    {ORK_SS_COV, kCov, ORK_SS_NULL_COV, M, M, bit(kCrossProduct)},
    {ORK_SS_COR, kCor, ORK_SS_NULL_COR, M, M, bit(kCrossProduct)},
    {ORK_SS_KURTOSIS, kKurtosis, ORK_SS_NULL_KURTOSIS, M | R4 | C2 | C4, M | R4 | C2 | C4,
     M | C2 | C4},
    {ORK_SS_SKEWNESS, kSkewness, ORK_SS_NULL_SKEWNESS, M | R3 | C2 | C3, M | R3 | C2 | C3,
     M | C2 | C3},
    {ORK_SS_VARIATION, kVariation, ORK_SS_NULL_VARIATION, M | R2 | C2, M | R2 | C2, M | C2},
    {ORK_SS_SUM, kSums, ORK_SS_NULL_SUM, 0, 0, kUnmet},
    {ORK_SS_SUM2, kSums + kRaw2, ORK_SS_NULL_SUM2, 0, 0, kUnmet},
    {ORK_SS_SUM3, kSums + kRaw3, ORK_SS_NULL_SUM3, 0, 0, kUnmet},
    {ORK_SS_SUM4, kSums + kRaw4, ORK_SS_NULL_SUM4, 0, 0, kUnmet},
    {ORK_SS_CENTRAL_SUM2, kSums + kCentral2, ORK_SS_NULL_CENTRAL_SUM2, M, M | R2, kUnmet},
    {ORK_SS_CENTRAL_SUM3, kSums + kCentral3, ORK_SS_NULL_CENTRAL_SUM3, M, M | R3, kUnmet},
    {ORK_SS_CENTRAL_SUM4, kSums + kCentral4, ORK_SS_NULL_CENTRAL_SUM4, M, M | R4, kUnmet},
    {ORK_SS_CROSS_PRODUCT, kCrossProduct, ORK_SS_NULL_CROSS_PRODUCT, M, M, kUnmet},
};
static_assert(sizeof kRows / sizeof kRows[0] == kOutputs);

}  // namespace

int Request::order_index() const {
  const auto any = [&](Order first, Order second) {
    return asks_order(first) || asks_order(second);
  };
  switch (method) {
    case Method::kFast:
      return asks_order(kRaw4) ? 3 : asks_order(kRaw3) ? 2 : asks_order(kRaw2) ? 1 : 0;
    case Method::kOnePass:
      if (any(kRaw3, kRaw4) || any(kCentral3, kCentral4)) return 3;
      return asks_order(kRaw2) ? 2 : asks_order(kCentral2) ? 1 : 0;
    default:
      if (any(kRaw3, kRaw4) || asks_order(kRaw2)) return 3;
      return asks_order(kCentral4) ? 2 : asks_order(kCentral3) ? 1 : 0;
  }
}

template <class R>
Request request(const Task<R>& t, uint64_t estimates, uint64_t method) {
  Request q{ORK_SS_BAD_METHOD, Method::kFromSums, 0};
  switch (method & (ORK_SS_FAST | ORK_SS_ONE_PASS | ORK_SS_TWO_PASS)) {
    case 0:
      if (!(method & (ORK_SS_FROM_SUMS | ORK_SS_FROM_SUMS_ALT))) return q;
      break;
    case ORK_SS_FAST:
      q.method = Method::kFast;
      break;
    case ORK_SS_ONE_PASS:
      q.method = Method::kOnePass;
      break;
    case ORK_SS_TWO_PASS:
      q.method = Method::kTwoPass;
      break;
    default:
      return q;
  }

  for (const Row& row : kRows)
    if (estimates & row.estimate)
      q.outputs |= bit(row.output) | (q.method == Method::kFromSums ? row.from_sums
                                      : q.method == Method::kFast   ? row.fast
                                                                    : row.updating);
  for (const Row& row : kRows)
    if (q.asks(row.output) && !output_of(t, row.output)) {
      q.status = row.null_status;
      return q;
    }
  if (q.outputs & kUnmet) return q;

  q.status = ORK_SS_OK;
  if (q.method == Method::kFromSums) {
    if (!t.accumulatedWeight && (!t.observationCount || t.weights))
      q.status = ORK_SS_NULL_ACCUMULATED_WEIGHT;
  } else if (!t.observationCount || t.integer(t.observationCount) < 1) {
    q.status = ORK_SS_BAD_OBSERVATION_COUNT;
  } else if (!t.observations) {
    q.status = ORK_SS_NULL_OBSERVATIONS;
  } else if (!t.storageFormat) {
    q.status = ORK_SS_NULL_STORAGE;
  } else if (!(t.integer(t.storageFormat) & kLayouts)) {
    q.status = ORK_SS_BAD_STORAGE;
  }
  return q;
}

template Request request(const Task<double>&, uint64_t, uint64_t);
template Request request(const Task<float>&, uint64_t, uint64_t);

}  // namespace ork::ss
