// What the words behind the name of a table say about an entry:
//
//   TABLE [FIELD=VALUE...] [entry=HANDLE] [priority=N] [ttl=MS] [meter=CIR,CBS,PIR,PBS]
//         [action=NAME [PARAM=VALUE...]] [member=HANDLE] [group=HANDLE] [as=NAME]
//
// Behind action=, a parameter goes before a word of that name that this grammar has; before it, a
// word of the grammar goes before a field of that name as far as the table takes it.
#pragma once

#include <optional>

#include "tesselctl/command.hpp"
#include "tesselctl/library.hpp"
#include "tesselctl/record.hpp"

namespace tesselctl {

// A match table by name.
struct TableInfo {
  const bindings::Record *record;
  const soft_table_t *description;

  const char *name() const { return record->name; }
  const Shape &shape() const { return table_shape(*record); }
  bool keyed() const { return record->member_count != 0; }
  bool has_priority() const { return description->match == SOFT_TERNARY; }
  bool ages() const { return description->ages_entries; }
  // Bound to an action profile, so that entries name a member or a group.
  bool indirect() const { return description->action_data_table != 0; }
};

// Throws Fault when no table has this name.
TableInfo resolve_table(Word word);

// A number with the word that gave it.
struct Given {
  uint32_t value;
  Word word;
};

struct GivenMeter {
  p4_pd_bytes_meter_spec_t value;
  Word word;
};

class EntryLine {
 public:
  // Reads the words of the invocation from TABLE on. Throws Fault.
  EntryLine(const Context &context, const Invocation &invocation);

  const TableInfo &table() const { return table_; }
  Word table_word() const { return table_word_; }
  bool has_key() const { return key_.any_given(); }
  const std::optional<Given> &entry() const { return entry_; }
  const std::optional<Given> &member() const { return member_; }
  const std::optional<Given> &group() const { return group_; }
  const std::optional<Word> &label() const { return label_; }
  bool has_action() const { return action_.has_value(); }
  // Name of the action; empty without action=.
  std::string_view action() const { return action_ ? action_->shape().name() : std::string_view(); }

  // The faults of words that the command cannot use.
  void need_key_or_entry() const;
  void need_key();
  void refuse_entry() const { refuse(entry_); }
  void refuse_outcome() const;
  void refuse_label() const;
  // Exactly one of action=, member= and group=, of the kind that the table has; returns whether it
  // is an action.
  bool need_outcome() const;

  // Fills the arguments of a call from the line: match_spec, priority, action_spec, ttl,
  // meter_spec, member, group. A missing meter is passed as null unless it is needed. Throws Fault
  // for what the function needs and the line lacks, and for what the line has and the function
  // does not take.
  void fill(Call &call, bool meter_is_needed);

 private:
  static void refuse(const std::optional<Given> &given) {
    if (given) throw Fault(given->word, "the command does not take this");
  }
  void read_word(const Context &context, const Assignment &word);
  bool read_option(const Context &context, const Assignment &word);
  void read_action(const Assignment &word);

  Word table_word_;
  TableInfo table_;
  RecordWriter key_;
  std::optional<Given> entry_, priority_, ttl_, member_, group_;
  std::optional<GivenMeter> meter_;
  std::optional<RecordWriter> action_;
  Word action_word_;
  std::optional<Word> label_;
};

// "CIR,CBS,PIR,PBS": rates in kbit/s (or packets/s), bursts in kbit (or packets).
p4_pd_bytes_meter_spec_t parse_meter(Word text);

}  // namespace tesselctl
