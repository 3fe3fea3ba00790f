// What the device holds, read through the library and put into the words of scripts.
#pragma once

#include <functional>
#include <string>

#include "tesselctl/device.hpp"
#include "tesselctl/entry_line.hpp"

namespace tesselctl {

// Reads the entries of one table, and its default entries by their handles; what it read last lies
// in its members.
class EntryReader {
 public:
  EntryReader(const Device &device, const TableInfo &table);
  EntryReader(const EntryReader &) = delete;
  EntryReader &operator=(const EntryReader &) = delete;

  // A status.
  uint64_t read(p4_pd_entry_handle_t entry);

  bool has_key() const { return !no_key && keyed_; }
  const uint8_t *action_record() const { return reinterpret_cast<const uint8_t *>(parameters_); }

  std::vector<uint8_t> key;
  uint32_t priority = 0;
  bool no_key = false;
  uint32_t action = 0;  // enumeration value; of a table that is bound to no profile
  bool has_member = false;
  bool has_group = false;
  p4_pd_member_handle_t member = 0;
  p4_pd_group_handle_t group = 0;

 private:
  bool keyed_;
  alignas(16) uint32_t parameters_[64] = {};
  Call call_;
};

// Adds what would add the entry again: its key, priority, ttl, meter and outcome. Throws Fault at
// the word when it cannot be read.
void add_entry(Row &row, const Device &device, const TableInfo &table, p4_pd_entry_handle_t entry,
               Word word);
// Adds the outcome: action and parameters, member or group.
void add_default_entry(Row &row, const Device &device, const TableInfo &table, Word word);
void add_member(Row &row, const Device &device, const char *profile, p4_pd_member_handle_t member,
                Word word);
// An action by its enumeration value and record.
void add_outcome(Row &row, uint32_t action, const uint8_t *record);

// The row of an entry with the name of its table and its handle before it.
Row entry_row(const Device &device, const TableInfo &table, p4_pd_entry_handle_t entry, Word word);

// Visits what a pair of get_first and get_next functions enumerates: entries of a table, members or
// groups of a profile, members of a group. first and next are prepared but for their outputs, whose
// parameters are named one (in first) and many (in next); next also takes the handle before as
// from.
struct Enumeration {
  Call first;
  Call next;
  const char *one;
  const char *many;
  const char *from;
};
void for_each_handle(Enumeration enumeration, Word word,
                     const std::function<void(uint32_t)> &visit);
void for_each_entry(const Device &device, const TableInfo &table, Word word,
                    const std::function<void(p4_pd_entry_handle_t)> &visit);

void for_each_member(const Device &device, const char *profile, Word word,
                     const std::function<void(p4_pd_member_handle_t)> &visit);
void for_each_group(const Device &device, const char *profile, Word word,
                    const std::function<void(p4_pd_group_handle_t)> &visit);
void for_each_group_member(const Device &device, const char *profile, p4_pd_group_handle_t group,
                           Word word,
                           const std::function<void(p4_pd_member_handle_t, bool active)> &visit);

// One value of the array that a register read wrote: the smallest integers that hold a cell.
uint32_t register_value(unsigned width, const void *values, size_t at);

}  // namespace tesselctl
