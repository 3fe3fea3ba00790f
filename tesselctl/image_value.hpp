// The lines of images taken apart.
#pragma once

#include <optional>
#include <vector>

#include "tesselctl/entry_line.hpp"
#include "tesselctl/row.hpp"
#include "tesselctl/value_scanner.hpp"

namespace tesselctl {

// " name=value" words behind a value. All members throw Fault.
class Attributes {
 public:
  explicit Attributes(const ValueScanner &scanner);
  const Word *find(std::string_view name) const;
  uint64_t number(std::string_view name, uint64_t limit, uint64_t otherwise) const;
  void refuse_others(std::initializer_list<std::string_view> names) const;
  // The meter of an entry, as meter=CIR,CBS,PIR,PBS; nothing without one.
  std::optional<p4_pd_bytes_meter_spec_t> meter() const;
  const std::vector<Assignment> &words() const { return words_; }

 private:
  std::vector<Assignment> words_;
};

// The numbers of "1,2,3"; none of a null or empty word.
std::vector<uint64_t> number_list(const Word *word);

// An action with its parameters: "('setNextHop',(0x0001,)),".
struct ActionValue {
  const bindings::Record *action = nullptr;
  Word name;
  std::vector<uint8_t> parameters = std::vector<uint8_t>(1);  // never empty

  void read(ValueScanner &scanner);
};

// The value of an entry or default entry of a table. Reading one after another takes no memory.
struct ImageEntry {
  bool has_key = false;
  std::vector<uint8_t> key;
  bool has_action = false;  // not in bound tables
  ActionValue action;
  bool has_target = false;  // of bound tables: the number of a member or group
  bool target_is_group = false;
  uint64_t target = 0;
  Word target_word;
  uint32_t priority = 0;

  void read(const TableInfo &table, ValueScanner &scanner);
};

// The value of an entry with the words behind it, as the row of an entry has them; members and
// groups by number ("#1").
void add_entry_line(Row &row, const TableInfo &table, ValueScanner &scanner);

}  // namespace tesselctl
