// The two token buckets of a meter, and the colour that they give to traffic.
//
// A bucket is full at first and gains tokens at its rate up to its burst, on the virtual clock. A
// bytes-based meter counts in bits (its rates are kilobits per second, its bursts kilobits), a
// packets-based one in thousandths of a packet, so that both gain rate.value tokens a millisecond
// and hold at most 1000 * burst.
#pragma once

#include <cstdint>

#include "pipe_mgr_types.h"

namespace soft {

struct MeterBuckets {
  uint64_t committed = 0;
  uint64_t peak = 0;
  uint64_t filled_ms = 0;  // the time up to which tokens were added
  bool started = false;    // not so: both are full
};

// Tokens that traffic costs. adjustment is a signed number of bytes for each packet; a sum below
// zero counts as zero.
uint64_t meter_cost(uint32_t unit, uint64_t packets, uint64_t bytes, int32_t adjustment);

// The colour of traffic that comes at once, one of SOFT_COLOR_*. Red when the peak bucket has less
// than it costs, which then costs nothing; else yellow when the committed bucket has less, at the
// cost of the peak bucket; else green, at the cost of both. Traffic comes without a colour of its
// own: a colour-aware meter treats it as green.
uint8_t mark_traffic(const pipe_mgr_meter_spec_t &spec, uint64_t cost, uint64_t now_ms,
                     MeterBuckets *buckets);

// A meter may be set to a spec of type colour-aware or -unaware whose rates are both in its unit.
bool fits_meter(const pipe_mgr_meter_spec_t &spec, uint32_t unit);

}  // namespace soft
