// Inside of the journal and of the fault plan, as the frame around contract calls uses it.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "soft_journal.hpp"

namespace soft {

inline constexpr uint32_t kWatchJournal = 1;
inline constexpr uint32_t kWatchCallFaults = 2;
inline constexpr uint32_t kWatchAllocationFaults = 4;

// Which of them are on. Relaxed: a call that races with start() or with a new fault may be seen or
// missed, as if it had been made a moment earlier.
extern std::atomic<uint32_t> watch_state;

inline bool watched(uint32_t what = kWatchJournal | kWatchCallFaults) {
  return (watch_state.load(std::memory_order_relaxed) & what) != 0;
}
inline void watch(uint32_t what, bool on) {
  if (on) {
    watch_state.fetch_or(what, std::memory_order_relaxed);
  } else {
    watch_state.fetch_and(~what, std::memory_order_relaxed);
  }
}

namespace journal {

// Names the record of a call in progress. Records that were cleared meanwhile are left alone.
struct Ticket {
  uint64_t epoch = 0;
  size_t number = 0;
  bool held() const { return number != 0; }
};

Ticket open(const char *function, std::vector<Argument> arguments);
void close(Ticket ticket, bf_status_t status, bool performed, std::vector<Argument> results);

}  // namespace journal

namespace faults {

// Counts a call; true when a fault of the plan stands in for it, with its status.
bool strikes(const char *function, bf_status_t *status);

// Counts an allocation; true when it is planned to fail.
bool strikes_allocation();

}  // namespace faults

}  // namespace soft
