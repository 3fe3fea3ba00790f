// Eyes and hands of tests: a journal of contract calls with deep copies of their arguments, and a
// plan of faults. Both are process-wide, off at the start, and safe to use from any thread. While
// neither is on, a contract call pays one relaxed load for them.
//
// The journal keeps every function of the contract except bf_sys_calloc and bf_sys_free, which are
// counted instead (soft_allocations_live) and fail by fail_allocation.
#pragma once

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <thread>
#include <variant>
#include <vector>

#include "pipe_mgr_types.h"

namespace soft::journal {

// ---- What an argument or result can be ----

// A pointer that was null.
struct NullPointer {
  bool operator==(const NullPointer &) const { return true; }
};
// A pointer to an out-parameter; what it points at is not looked at before the call.
struct Output {
  bool operator==(const Output &) const { return true; }
};
// A callback, a cookie or an object whose inside is not the SDK's to read.
struct Opaque {
  uintptr_t address;
  bool operator==(const Opaque &other) const { return address == other.address; }
};

using Bytes = std::vector<uint8_t>;
using Words = std::vector<uint32_t>;

// As an argument that is to be filled, value, mask and bytes of the three records below are null
// pointers or empty, never contents; byte_count is the capacity.
struct MatchSpec {
  uint32_t scope = 0;
  uint16_t valid_bit_count = 0;
  uint16_t byte_count = 0;
  std::optional<Bytes> value;  // empty optional: null pointer
  std::optional<Bytes> mask;
  uint32_t priority = 0;
};
struct ActionData {
  uint16_t valid_bit_count = 0;
  uint16_t byte_count = 0;
  std::optional<Bytes> bytes;
};
struct ActionSpec {
  uint32_t type = 0;
  ActionData data;
  pipe_member_handle_t member = 0;
  pipe_group_handle_t group = 0;
  std::vector<pipe_mgr_resource_t> resources;  // at most PIPE_RESOURCES_PER_ACTION
  uint32_t resource_count = 0;                 // as given, even when out of range
};
// A query record; cells is empty before the call and an empty optional for a null pointer.
struct Query {
  uint32_t count = 0;
  std::optional<std::vector<pipe_stful_cell_t>> cells;
};
struct DigestMessage {
  bf_device_id_t device = 0;
  bf_pipe_id_t pipe = 0;
  pipe_object_handle_t digest = 0;
  uint32_t entry_count = 0;
  uint32_t entry_size = 0;
  std::optional<Bytes> entries;
};

using Value =
    std::variant<NullPointer, Output, Opaque, uint64_t, std::string, Bytes, Words, MatchSpec,
                 ActionData, ActionSpec, std::vector<pipe_mgr_resource_t>, pipe_mgr_meter_spec_t,
                 pipe_mgr_counter_t, std::vector<pipe_stful_cell_t>, std::vector<Query>,
                 std::vector<pipe_mgr_hash_attribute_t>, pipe_mgr_idle_params_t,
                 pipe_mgr_wred_spec_t, DigestMessage>;

struct Argument {
  std::string name;  // of the parameter
  Value value;
};

// ---- Calls ----

struct Call {
  uint64_t number = 0;  // 1 is the first call since start()
  std::string function;
  std::thread::id thread;
  std::vector<Argument> arguments;
  std::vector<Argument> results;  // out-parameters that were written; empty unless successful
  bf_status_t status = BF_SUCCESS;
  bool finished = false;   // false while the call is still in progress
  bool performed = false;  // false when a planned fault stood in for it

  // The argument or result of that name; std::out_of_range when there is none, std::logic_error
  // when it is of another type.
  const Value &argument(std::string_view name) const;
  const Value &result(std::string_view name) const;
  uint64_t scalar(std::string_view name) const { return as<uint64_t>(name, argument(name)); }
  bool is_null(std::string_view name) const {
    return std::holds_alternative<NullPointer>(argument(name));
  }
  template <class T>
  const T &get(std::string_view name) const {
    return as<T>(name, argument(name));
  }
  template <class T>
  const T &got(std::string_view name) const {
    return as<T>(name, result(name));
  }

 private:
  template <class T>
  const T &as(std::string_view name, const Value &value) const {
    if (const T *held = std::get_if<T>(&value)) return *held;
    throw std::logic_error(function + ": " + std::string(name) + " is of another type");
  }
};

// Starts with an empty journal; stop keeps what was recorded.
void start();
void stop();
void clear();

// Calls in the order in which they were made (a call made from a callback comes after the call
// that ran the callback), all of them or those of one function.
std::vector<Call> calls();
std::vector<Call> calls(std::string_view function);

}  // namespace soft::journal

namespace soft::faults {

// Each fault strikes once. n counts from 1, beginning with the next call or allocation. A call that
// is struck returns the status and does nothing; it is recorded with performed == false. A struck
// function that returns a pointer returns null; one that returns nothing does nothing.
void fail_call(std::string_view function, uint64_t n, bf_status_t status);
void fail_any_call(uint64_t n, bf_status_t status);
// bf_sys_calloc returns null.
void fail_allocation(uint64_t n);

// Forgets all faults that have not struck, and says how many there are.
void clear();
uint64_t pending();

}  // namespace soft::faults
