// What the items of tables have in common: value strings and calls of entries and default entries.
#pragma once

#include <optional>

#include "tesselctl/command/options.hpp"
#include "tesselctl/device/entry_value.hpp"
#include "tesselctl/state/kind.hpp"
#include "tesselctl/state/line_words.hpp"

namespace tesselctl {

// "TABLE [NAME=VALUE...]"
struct TableLine : ObjectLine<soft_table_t> {
  using ObjectLine::ObjectLine;

  // The entry whose handle the option entry= gives, or all of them.
  void for_each_entry(const std::function<void(p4_pd_entry_handle_t)> &visit) const {
    if (options.has("entry")) return visit(options.handle(context, "entry"));
    tesselctl::for_each_entry(context.device, table, word, visit);
  }

  TableInfo table = resolve_table(word);
};

// A capacity of a table under that name: a number, or kUnlimited for 0.
inline constexpr std::string_view kUnlimited = "unlimited";
Row &add_capacity(Row &row, std::string_view name, uint32_t capacity);
// The number of entries and, where that is limited, how many per cent of it they are.
Row &add_occupancy(Row &row, uint32_t entries, uint32_t capacity);

// Entries or default entries:
//   ((( 0x01,0x0a000000,0x0008,),('setNextHop',(0x000c,)),),(0,True)) ttl=0
//   (((),('setMbrHdl',(0x1,))),(0,True))
class TableItems : public ObjectItems {
 public:
  void parse(ValueScanner &line, ItemBytes &item) override;
  void print(std::string &text, const ItemView &item) const override;
  void add_to(Row &row, const ItemView &item, Naming naming) const override {
    add_entry(row, table_, item, naming);
  }
  void add_samples_to(Row &row, Naming) const override { add_entry_samples(row, table_); }
  void print_commands(Script &script, const ItemEdit &edit) const override;
  uint32_t profile() const override { return table_.description->action_data_table; }
  void renumber(std::span<char> identity, std::span<char> value,
                const Renumbering &numbers) const override;

 protected:
  // The functions that give entries an action of the table, null where it has none, and their calls
  // on one device.
  struct ActionCalls {
    const bindings::Record *action;
    const bindings::Export *add;
    const bindings::Export *modify;
    const Device *device = nullptr;
    std::optional<Call> add_call = {};
    std::optional<Call> modify_call = {};
  };
  struct Families {
    const char *add;
    const char *modify;
  };

  // keyed says whether the items have keys; the families are those of functions with an action.
  TableItems(const soft_table_t &table, bool keyed, Families families);

  const TableInfo &table() const { return table_; }
  // Reads the entry with numbers for handles. False when there is none. Throws Fault.
  bool read_entry(Source &from, EntryReader &reader, p4_pd_entry_handle_t entry, ItemBytes &item);
  // The call that gives an entry the action of the value.
  Call &action_call(const Target &to, std::string_view value, Edit edit);
  // The handle of the member or group of the value. Throws Fault at the word.
  uint32_t target_of(Target &to, const EntryHead &head, Word word) const;
  // Sets the counter, which no call of an entry gives.
  void write_counter(const Target &to, Edit edit, const EntryHead &head, uint32_t entry,
                     Word word) const;

 private:
  ActionCalls &calls_of(const bindings::Record &action);
  void check_action(const bindings::Record &action, Word word);
  void parse_resources(const ValueScanner &line, EntryHead &head) const;

  TableInfo table_;
  bool keyed_;
  Families families_;
  const soft_counter_t *counter_;
  std::vector<ActionCalls> calls_;
  const bindings::Record *last_action_ = nullptr;
};

}  // namespace tesselctl
