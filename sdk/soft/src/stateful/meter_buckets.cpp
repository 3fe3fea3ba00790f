#include "stateful/meter_buckets.hpp"

#include <algorithm>

#include "soft_traffic.h"

namespace soft {
namespace {

constexpr uint64_t kMost = UINT64_MAX;
constexpr uint64_t kTokensPerUnit = 1000;  // of a burst, and of a packet
constexpr uint64_t kBitsPerByte = 8;

uint64_t times(uint64_t value, uint64_t factor) {
  return value > kMost / factor ? kMost : value * factor;
}

// What a bucket with so many tokens has after a while.
uint64_t refilled(uint64_t tokens, uint64_t rate, uint64_t burst, uint64_t elapsed_ms) {
  const uint64_t full = times(burst, kTokensPerUnit);
  if (rate == 0 || elapsed_ms == 0 || tokens >= full) return std::min(tokens, full);
  return elapsed_ms > (full - tokens) / rate ? full : tokens + rate * elapsed_ms;
}

void refill(const pipe_mgr_meter_spec_t &spec, uint64_t now_ms, MeterBuckets *buckets) {
  if (!buckets->started) {
    *buckets = {kMost, kMost, now_ms, true};
  }
  const uint64_t elapsed = now_ms > buckets->filled_ms ? now_ms - buckets->filled_ms : 0;
  buckets->committed =
      refilled(buckets->committed, spec.committed_rate.value, spec.committed_burst, elapsed);
  buckets->peak = refilled(buckets->peak, spec.peak_rate.value, spec.peak_burst, elapsed);
  buckets->filled_ms += elapsed;
}

}  // namespace

uint64_t meter_cost(uint32_t unit, uint64_t packets, uint64_t bytes, int32_t adjustment) {
  if (unit == PIPE_RATE_PACKETS) return times(packets, kTokensPerUnit);
  const uint64_t each = static_cast<uint64_t>(adjustment < 0 ? -int64_t{adjustment} : adjustment);
  const uint64_t change = each == 0 ? 0 : times(packets, each);
  if (adjustment < 0) return times(bytes - std::min(bytes, change), kBitsPerByte);
  return times(bytes > kMost - change ? kMost : bytes + change, kBitsPerByte);
}

uint8_t mark_traffic(const pipe_mgr_meter_spec_t &spec, uint64_t cost, uint64_t now_ms,
                     MeterBuckets *buckets) {
  refill(spec, now_ms, buckets);
  if (buckets->peak < cost) return SOFT_COLOR_RED;
  buckets->peak -= cost;
  if (buckets->committed < cost) return SOFT_COLOR_YELLOW;
  buckets->committed -= cost;
  return SOFT_COLOR_GREEN;
}

bool fits_meter(const pipe_mgr_meter_spec_t &spec, uint32_t unit) {
  return spec.type <= PIPE_METER_COLOR_UNAWARE && spec.committed_rate.unit == unit &&
         spec.peak_rate.unit == unit;
}

}  // namespace soft
