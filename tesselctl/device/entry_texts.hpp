// What the library writes about entries of a device: value strings and labels of counted entries.
#pragma once

#include <string>
#include <string_view>

#include "tesselctl/device/device.hpp"
#include "tesselctl/device/entry_line.hpp"

namespace tesselctl {

// The value strings of a table's entries.
class ValueStrings {
 public:
  ValueStrings(const Device &device, const TableInfo &table);
  ValueStrings(const ValueStrings &) = delete;
  ValueStrings &operator=(const ValueStrings &) = delete;

  // With a line feed behind; valid until the next call. Throws Fault at the word when the entry
  // cannot be read.
  std::string_view line(p4_pd_entry_handle_t entry, Word word);

 private:
  Call call_;
  std::string buffer_;
};

// Answers with the value string of every entry of the table, or of one: a line each, which goes
// straight to the output unless the settings ask for rows.
void dump_values(Context &context, const TableInfo &table, Word word);
void dump_value(Context &context, const TableInfo &table, p4_pd_entry_handle_t entry, Word word);

// The label of a counted entry without the blanks behind it; empty when its table has no labels.
// table is a handle.
std::string counter_label(const Device &device, uint32_t table, p4_pd_entry_handle_t entry);

}  // namespace tesselctl
