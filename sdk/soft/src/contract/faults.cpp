#include <algorithm>
#include <mutex>
#include <string>

#include "contract/watch.hpp"

namespace soft::faults {
namespace {

struct CallFault {
  std::string function;  // empty: any
  uint64_t calls_left;   // the fault strikes when it comes to 0
  bf_status_t status;
};

struct Plan {
  std::mutex mutex;
  std::vector<CallFault> calls;
  std::vector<uint64_t> allocations;  // as calls_left

  // Under the mutex. Allocations are watched apart: they are many and take the mutex too.
  void renew_watch() {
    watch(kWatchCallFaults, !calls.empty());
    watch(kWatchAllocationFaults, !allocations.empty());
  }
};

Plan &plan() {
  static Plan *const instance = new Plan;
  return *instance;
}

}  // namespace

void fail_call(std::string_view function, uint64_t n, bf_status_t status) {
  const std::lock_guard lock(plan().mutex);
  plan().calls.push_back({std::string(function), std::max<uint64_t>(n, 1), status});
  plan().renew_watch();
}

void fail_any_call(uint64_t n, bf_status_t status) { fail_call({}, n, status); }

void fail_allocation(uint64_t n) {
  const std::lock_guard lock(plan().mutex);
  plan().allocations.push_back(std::max<uint64_t>(n, 1));
  plan().renew_watch();
}

void clear() {
  const std::lock_guard lock(plan().mutex);
  plan().calls.clear();
  plan().allocations.clear();
  plan().renew_watch();
}

uint64_t pending() {
  const std::lock_guard lock(plan().mutex);
  return plan().calls.size() + plan().allocations.size();
}

// Every fault that concerns the call counts it; the one planned first strikes where two meet, and
// the others that were due are spent with it.
bool strikes(const char *function, bf_status_t *status) {
  if (!watched(kWatchCallFaults)) return false;
  const std::lock_guard lock(plan().mutex);
  bool struck = false;
  std::erase_if(plan().calls, [&](CallFault &fault) {
    if (!fault.function.empty() && fault.function != function) return false;
    if (--fault.calls_left != 0) return false;
    if (!struck) *status = fault.status;
    struck = true;
    return true;
  });
  plan().renew_watch();
  return struck;
}

bool strikes_allocation() {
  if (!watched(kWatchAllocationFaults)) return false;
  const std::lock_guard lock(plan().mutex);
  const auto due = std::erase_if(plan().allocations, [](uint64_t &left) { return --left == 0; });
  plan().renew_watch();
  return due != 0;
}

}  // namespace soft::faults
