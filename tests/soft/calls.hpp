// Calls of the contract and of the host's control, each with arguments that are right: in lists
// from the first call on something to the last. The sweeps make them wrong in one way after the
// other, take memory away from them, and make them in several threads at once.
#pragma once

#include <string>

#include "p4_pd_ms.h"
#include "program.hpp"

namespace soft_test {

constexpr bf_device_id_t kOther = 9, kVirtual = 10;

// What calls write to. Before each call it looks the same.
struct Room {
  uint32_t word[8];
  uint32_t zero[2];
  uint64_t number;
  uint8_t bytes[128];
  pipe_mgr_match_spec_t match;
  pipe_mgr_action_spec_t action;
  pipe_mgr_action_data_t data;
  pipe_mgr_counter_t counter;
  pipe_mgr_meter_spec_t meter;
  pipe_mgr_wred_spec_t wred;
  pipe_mgr_idle_params_t ageing;
  pipe_mgr_hash_attribute_t attribute;
  pipe_stful_cell_t cells[2];
  pipe_stful_query_t query;
  soft_parsers_t parsers;
  bf_snapshot_control_t control[2];

  void clear();
  // As text, the addresses left out.
  std::string contents() const;
};

// What a call is made with. An argument that every call must check comes through a function, which
// notes that it was asked for and may put a wrong one in its place.
struct Hand {
  enum Wrong : uint32_t { kSession = 1, kDeviceId = 2, kPipe = 4, kHandle = 8, kPointer = 16 };

  pipe_session_handle_t session = 0;
  bf_device_id_t device = 4;
  bool steady = true;   // each call concerns what the one before made; else what there may be
  uint32_t number = 0;  // of the call
  uint32_t last = 0;    // handle that was given last
  uint32_t member = 0;
  pipe_mgr_placement_t *placed = nullptr;
  Room room;

  uint32_t wrong = 0;             // or'ed
  uint32_t wrong_pointer = 0;     // which one is null
  uint32_t wrong_handle = kNone;  // what stands for a handle
  uint32_t asked = 0;             // or'ed
  uint32_t right_handle = 0;      // asked for
  uint32_t pointers = 0;          // asked for

  // Before a call.
  void begin();

  pipe_session_handle_t s() { return is_wrong(kSession) ? session + 1024 : session; }
  bf_device_id_t d() { return d(device); }
  bf_device_id_t d(bf_device_id_t id) { return is_wrong(kDeviceId) ? 77 : id; }
  // A pipe, which may be all, and one that may not.
  uint16_t p(uint32_t pipe = kAll) { return static_cast<uint16_t>(is_wrong(kPipe) ? 2 : pipe); }
  uint16_t q(uint32_t pipe = 0) { return static_cast<uint16_t>(is_wrong(kPipe) ? kAll : pipe); }
  uint32_t o(uint32_t object) {
    right_handle = object;
    return is_wrong(kHandle) ? wrong_handle : object;
  }
  template <class T>
  T *x(T *pointer) {
    const bool chosen = pointers++ == wrong_pointer;
    return is_wrong(kPointer) && chosen ? nullptr : pointer;
  }
  uint32_t *word() { return x(room.word); }

  uint8_t few() const { return steady ? 0 : static_cast<uint8_t>(number % 5); }
  uint32_t entry() const { return steady || number % 2 == 0 ? last : 1 + few(); }
  uint32_t group() const { return steady || number % 2 == 0 ? last : 1; }
  // Of what is removed: the next time the one before it.
  uint32_t spent(uint32_t *handle) const { return steady ? *handle : (*handle)--; }
  // Handles to ask for behind one that nothing follows.
  uint32_t more() const { return steady ? 0 : 3; }
  uint32_t one_member() const { return steady || number % 3 == 0 ? member : 1; }

 private:
  bool is_wrong(Wrong kind) {
    asked |= kind;
    return (wrong & kind) != 0;
  }
};

struct Call {
  // The last kind takes away what those before it made.
  enum Kind { kChange, kRead, kUnsupported, kEnd };
  Kind kind;
  const char *text;
  std::function<bf_status_t(Hand &)> make;

  bf_status_t expected() const { return kind == kUnsupported ? BF_NOT_SUPPORTED : BF_SUCCESS; }
};
using Calls = std::vector<Call>;

// Of tables with a counter (kHost), with a counter and a meter (kAcl), or that age (kRoute).
Calls table_calls(uint32_t table);
Calls profile_calls();
Calls cell_calls();
Calls service_calls();
// Devices, sessions, clients and states that belong to no device.
Calls frame_calls();

// All but those, and all.
std::vector<Calls> device_calls();
std::vector<Calls> all_calls();

// What the reading calls find.
std::string contents(const Calls &calls, Hand hand);

// A device with something of everything: each list was made up to its end.
class Filled {
 public:
  Filled(pipe_session_handle_t session, bf_device_id_t device);

  // The same on a copy of the device.
  Filled on(bf_device_id_t device) const;
  std::string contents() const;
  // Makes the rest of the lists.
  void end();

  std::vector<Calls> lists = device_calls();
  std::vector<Hand> hands;
};

}  // namespace soft_test
