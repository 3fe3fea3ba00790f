// Library calls over an SDK that does nothing: against code written by hand for the table, against
// the stores that no code can go without, and against messages with the same entry.
#include "call_rows.hpp"

#include <cstring>
#include <type_traits>

#include "by_hand.h"
#include "null_sdk.h"

namespace bench {

namespace {

constexpr p4_pd_device_target_t target = {0, 0xffff};
constexpr p4_pd_session_handle_t session = 1;
p4_pd_entry_handle_t entry;
volatile p4_pd_status_t sink;

// Every byte of a record set, so that no field is a special case.
template <class Record>
Record filled(uint8_t seed) {
  Record record;
  std::memset(&record, seed, sizeof record);
  return record;
}

struct NoParameters {};

template <class Record>
Record match = filled<Record>(0x35);
template <class Record>
Record action = filled<Record>(0x01);

// All lengths of prefixes, as they cost differently.
template <class Record>
void vary(Record &record, uint32_t i) {
  if constexpr (requires { record.ingIpv4_dip_prefix_length; }) {
    record.ingIpv4_dip_prefix_length = static_cast<uint16_t>(i % 33);
  } else if constexpr (requires { record.ingIpv6_dip_prefix_length; }) {
    record.ingIpv6_dip_prefix_length = static_cast<uint16_t>(i % 129);
  }
}

// ---- Operations: how a function of any of the tables is called ----

template <class Match, class Action>
struct Add {
  template <auto function>
  static p4_pd_status_t call(uint32_t i) {
    using Function = decltype(function);
    using Session = p4_pd_session_handle_t;
    using Target = p4_pd_device_target_t;
    using Entry = p4_pd_entry_handle_t *;
    const Match *key = &match<Match>;
    const Action *spec = &action<Action>;
    vary(match<Match>, i);
    if constexpr (std::is_invocable_v<Function, Session, Target, const Match *, uint32_t,
                                      const Action *, Entry>) {
      return function(session, target, key, i, spec, &entry);
    } else if constexpr (std::is_invocable_v<Function, Session, Target, const Match *,
                                             const Action *, uint32_t, Entry>) {
      return function(session, target, key, spec, i, &entry);
    } else if constexpr (std::is_invocable_v<Function, Session, Target, const Match *, uint32_t,
                                             Entry>) {
      return function(session, target, key, i, &entry);
    } else {
      return function(session, target, key, spec, &entry);
    }
  }
};

template <class Match, class Action>
struct Modify {
  template <auto function>
  static p4_pd_status_t call(uint32_t i) {
    if constexpr (std::is_same_v<Action, NoParameters>) {
      return function(session, 0, i);
    } else {
      return function(session, 0, i, &action<Action>);
    }
  }
};

template <class Match, class Action>
struct Delete {
  template <auto function>
  static p4_pd_status_t call(uint32_t i) {
    return function(session, 0, i);
  }
};

template <class Match, class Action>
struct Find {
  template <auto function>
  static p4_pd_status_t call(uint32_t i) {
    vary(match<Match>, i);
    if constexpr (std::is_invocable_v<decltype(function), p4_pd_session_handle_t,
                                      p4_pd_device_target_t, const Match *, uint32_t,
                                      p4_pd_entry_handle_t *>) {
      return function(session, target, &match<Match>, i, &entry);
    } else {
      return function(session, target, &match<Match>, &entry);
    }
  }
};

// What was read, compared byte by byte.
struct {
  uint8_t match[128];
  uint8_t action[16];
  uint32_t priority;
  uint32_t action_value;
  bool has_no_key;
} read;

template <class Match, class Action>
struct Read {
  template <auto function>
  static p4_pd_status_t call(uint32_t i) {
    auto *key = reinterpret_cast<Match *>(read.match);
    if constexpr (std::is_invocable_v<decltype(function), p4_pd_session_handle_t, uint8_t,
                                      p4_pd_entry_handle_t, bool, Match *, uint32_t *, char *,
                                      void *, uint32_t *, bool *>) {
      return function(session, 0, i, false, key, &read.priority, nullptr, read.action,
                      &read.action_value, &read.has_no_key);
    } else {
      return function(session, 0, i, false, key, nullptr, read.action, &read.action_value,
                      &read.has_no_key);
    }
  }
};

template <class Match, class Action>
struct SetDefault {
  template <auto function>
  static p4_pd_status_t call(uint32_t) {
    if constexpr (std::is_same_v<Action, NoParameters>) {
      return function(session, target, &entry);
    } else {
      return function(session, target, &action<Action>, &entry);
    }
  }
};

// ---- What the SDK gets ----

std::string heard;

template <class Value>
void hear(const Value &value) {
  heard.append(reinterpret_cast<const char *>(&value), sizeof value);
}

void listen(const pipe_mgr_match_spec_t *key, pipe_object_handle_t handle,
            const pipe_mgr_action_spec_t *spec) {
  hear(handle);
  if (key != nullptr) {
    hear(key->scope), hear(key->valid_bit_count), hear(key->priority);
    heard.append(reinterpret_cast<const char *>(key->value), key->byte_count);
    heard.append(reinterpret_cast<const char *>(key->mask), key->byte_count);
  }
  if (spec != nullptr) {
    hear(spec->type), hear(spec->data.valid_bit_count), hear(spec->resource_count);
    heard.append(reinterpret_cast<const char *>(spec->data.bytes), spec->data.byte_count);
    hear(spec->resources);
  }
}

// All that some calls hand to the SDK and read from it.
std::string effect(p4_pd_status_t (*call)(uint32_t)) {
  heard.clear();
  std::memset(&read, 0, sizeof read);
  null_sdk_watch = listen;
  for (uint32_t i = 0; i < 300; ++i) hear(call(i));
  null_sdk_watch = nullptr;
  hear(read);
  return heard;
}

// ---- Rows ----

// An entry whose key is a prefix of 24 bits behind 8 others, where the mask counts.
null_sdk_entry held_entry(pipe_object_handle_t action, pipe_object_handle_t counter) {
  null_sdk_entry held = {};
  std::memset(held.value, 0x35, sizeof held.value);
  std::memset(held.mask, 0xff, 4);
  held.priority = 8;
  held.action = action;
  std::memset(held.data, 1, sizeof held.data);
  held.counter = counter;
  return held;
}

template <auto function>
Side side(const char *name, const null_sdk_entry &held) {
  return {name, [held] {
            null_sdk_held = held;
            return [](uint64_t operations) {
              for (; operations > 0; --operations) {
                sink = function(static_cast<uint32_t>(operations));
              }
            };
          }};
}

struct Names {
  const char *operation;
  const char *table;
  const char *action;
};

template <class Operation, auto library, auto by_hand, auto unrolled, auto stores>
void add_rows(std::vector<Row> &rows, const Names &names, const null_sdk_entry &held) {
  constexpr auto call = Operation::template call<library>;
  null_sdk_held = held;
  const std::string done = effect(call);
  expect(done == effect(Operation::template call<by_hand>) &&
             done == effect(Operation::template call<unrolled>),
         (std::string(names.operation) + ", " + names.table +
          ": library and code written by hand do the same")
             .c_str());
  const std::string name = std::string(names.operation) + ", " + names.table;
  const Side what = side<call>("library", held);
  rows.push_back({"calls",
                  name,
                  what,
                  {side<Operation::template call<by_hand>>("by hand", held),
                   side<Operation::template call<unrolled>>("by hand, unrolled", held)},
                  at_most(1.02),
                  true});
  rows.push_back(
      {"messages", name, what, messages(names.operation, names.table, names.action), at_least(40)});
  rows.push_back({"stores",
                  name,
                  what,
                  {side<Operation::template call<stores>>("stores of the records", held)},
                  {},
                  true});
}

// Names of by_hand_tables.h; an action without parameters has no record.
#define MATCH_RECORD(table) p4_pd_tessel_switch_##table##_match_spec_t
#define ACTION_RECORD_0(action) NoParameters
#define ACTION_RECORD_1(action) p4_pd_tessel_switch_##action##_action_spec_t
#define ACTION_RECORD_2(action) ACTION_RECORD_1(action)
#define ACTION_RECORD_3(action) ACTION_RECORD_1(action)

#define ADD_ROWS(Operation, operation, table, name, function, suffix, record)                   \
  add_rows<Operation<MATCH_RECORD(table), record>, p4_pd_tessel_switch_##table##_##function,    \
           by_hand_##table##_##suffix, unrolled_##table##_##suffix, stores_##table##_##suffix>( \
      rows, {operation, #table, #name}, held);

#define ADD_TABLE(table, KIND, key_bits, key_bytes, handle, name, name_handle, bits, bytes,     \
                  counter, default_name, default_handle, default_bits, default_bytes, ...)      \
  {                                                                                             \
    const null_sdk_entry held = held_entry(name_handle, counter);                               \
    ADD_ROWS(Add, "add", table, name, table_add_with_##name, add, ACTION_RECORD_##bytes(name))  \
    ADD_ROWS(Modify, "modify", table, name, table_modify_with_##name, modify,                   \
             ACTION_RECORD_##bytes(name))                                                       \
    ADD_ROWS(Delete, "delete", table, name, table_delete, delete, NoParameters)                 \
    ADD_ROWS(Find, "find", table, name, match_spec_to_entry_hdl, find, NoParameters)            \
    ADD_ROWS(Read, "read back", table, name, get_entry, read, NoParameters)                     \
    ADD_ROWS(SetDefault, "set default", table, default_name, set_default_action_##default_name, \
             set_default, ACTION_RECORD_##default_bytes(default_name))                          \
  }

}  // namespace

std::vector<Row> call_rows() {
  std::vector<Row> rows;
  BY_HAND_TABLES(ADD_TABLE)
  return rows;
}

}  // namespace bench
