// Entries and members of a device as items, and those as answers.
#pragma once

#include <optional>

#include "soft_placement.h"
#include "tesselctl/device/handles.hpp"
#include "tesselctl/device/item.hpp"
#include "tesselctl/device/meter_spec.hpp"
#include "tesselctl/device/table_info.hpp"
#include "tesselctl/program/action_specs.hpp"
#include "tesselctl/text/results.hpp"

namespace tesselctl {

// The item of an entry: its key, with the priority behind it in a ternary table; the value is this,
// with the parameters of the action behind it. That of a default entry has no identity.
struct EntryHead {
  enum Outcome : uint32_t { kNothing, kAction, kMember, kGroup };
  uint32_t outcome = kNothing;
  // Of the action in its enumeration, or of the member or group: its handle, or its number in
  // images and what is made of them.
  uint32_t number = 0;
  uint32_t has_ttl = 0;
  uint32_t ttl = 0;
  uint32_t has_meter = 0;
  uint32_t unused = 0;
  MeterNumbers meter = {};
  p4_pd_counter_values_t counter = {};
};

inline EntryHead head_of(std::string_view value) { return read_bytes<EntryHead>(value); }
inline const uint8_t *parameters_of(std::string_view value) {
  return reinterpret_cast<const uint8_t *>(value.data()) + sizeof(EntryHead);
}
inline uint32_t priority_of(const TableInfo &table, std::string_view identity) {
  return table.has_priority() ? read_bytes<uint32_t>(identity, table.record->size) : 0;
}

const bindings::Record &action_of_number(uint32_t number);
// Behind what is there.
void append_action_bytes(std::string &bytes, const bindings::Record &action,
                         const uint8_t *parameters);

// A call that is made for one entry after the other.
class EntryCall {
 public:
  explicit EntryCall(const Call &call) : call_(call), entry_(&call_.word("entry")) {}
  EntryCall(const EntryCall &) = delete;
  EntryCall &operator=(const EntryCall &) = delete;

  uint64_t run(p4_pd_entry_handle_t entry) {
    *entry_ = entry;
    return call_.run();
  }

 private:
  Call call_;
  uint64_t *entry_;
};

// Reads the entries and default entries of one table, whose members and groups go by their handles.
class EntryReader {
 public:
  // Which resources: none, ttl and meter, or the counter too.
  enum class Resources : uint8_t { none, settings, all };

  EntryReader(const Device &device, const TableInfo &table, Resources resources);
  EntryReader(const EntryReader &) = delete;
  EntryReader &operator=(const EntryReader &) = delete;

  // Both return a status, and write the item on success.
  uint64_t read(p4_pd_entry_handle_t entry, ItemBytes &item);
  // From placement data of the device, without resources.
  uint64_t decode(const pipe_mgr_placement_t *placement, ItemBytes &item);
  // The handle of the default entry; nothing where the table has none. pipe may be BF_ALL_PIPES.
  std::optional<p4_pd_entry_handle_t> default_entry(uint16_t pipe) const;
  std::optional<p4_pd_entry_handle_t> default_entry() const {
    return default_entry(device_.target().pipe_id);
  }

  const TableInfo &table() const { return table_; }

 private:
  Call prepare(const char *direct, const char *indirect);
  void build(ItemBytes &item);
  void read_resources(p4_pd_entry_handle_t entry);

  const Device &device_;
  TableInfo table_;
  std::vector<uint8_t> key_;
  uint32_t priority_ = 0;
  bool no_key_ = false;
  bool has_member_ = false;
  bool has_group_ = false;
  uint32_t member_ = 0;
  uint32_t group_ = 0;
  ActionSpecs specs_;
  EntryHead head_;
  p4_pd_bytes_meter_spec_t meter_ = {};
  EntryCall entry_call_;
  std::optional<EntryCall> ttl_call_, meter_call_, counter_call_;
  std::optional<Call> placement_call_;
};

// The action and parameters of members, as the value of their items.
class MemberReader {
 public:
  MemberReader(const Device &device, const char *profile);
  MemberReader(const MemberReader &) = delete;
  MemberReader &operator=(const MemberReader &) = delete;

  // A status.
  uint64_t read(p4_pd_member_handle_t member, std::string &value);

 private:
  ActionSpecs specs_;
  Call call_;
};

// ---- As answers ----

// Members and groups by handle, or by number ("#1").
enum class Naming : uint8_t { handles, numbers };
void add_number(Row &row, std::string_view name, uint32_t number, Naming naming);
// The key of an entry and its priority, if it has them.
void add_key(Row &row, const TableInfo &table, const ItemView &item);
// What would add the entry again: its key, priority, ttl, meter and outcome; and its counter where
// it has counted.
void add_entry(Row &row, const TableInfo &table, const ItemView &item, Naming naming);
// An action and its parameters: the value of a member.
void add_action(Row &row, std::string_view value);

// For Results::expect, before there are any: all that rows of entries and of members may have.
void add_entry_samples(Row &row, const TableInfo &table);
void add_member_samples(Row &row, const soft_profile_t &profile);
void expect_entries(Results &results, const TableInfo &table);

// With the name of the table and the handle before it. All throw Fault at the word when the device
// cannot be read.
Row entry_row(const TableInfo &table, p4_pd_entry_handle_t entry, const ItemView &item);
Row entry_row(EntryReader &reader, p4_pd_entry_handle_t entry, Word word);
Row entry_row(const Device &device, const TableInfo &table, p4_pd_entry_handle_t entry, Word word);
// With the word "default" in place of the handle.
Row default_entry_row(const Device &device, const TableInfo &table, Word word);
void add_member(Row &row, const Device &device, const char *profile, p4_pd_member_handle_t member,
                Word word);

// One value of the array that a register read wrote: the smallest integers that hold a cell.
uint32_t register_value(unsigned width, const void *values, size_t at);

}  // namespace tesselctl
