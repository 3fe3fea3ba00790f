// What the words behind the name of a table say about an entry:
//
//   TABLE [FIELD=VALUE...] [entry=HANDLE] [priority=N] [ttl=MS] [meter=CIR,CBS,PIR,PBS]
//         [action=NAME [PARAM=VALUE...]] [member=HANDLE] [group=HANDLE] [as=NAME]
//
// With a range for a VALUE the line is about several entries, of which one is chosen.
//
// Behind action=, a parameter goes before a word of that name that this grammar has; before it, a
// word of the grammar goes before a field of that name as far as the table takes it.
#pragma once

#include <optional>

#include "tesselctl/command/command.hpp"
#include "tesselctl/device/meter_spec.hpp"
#include "tesselctl/device/table_info.hpp"
#include "tesselctl/program/record.hpp"

namespace tesselctl {

// A number with the word that gave it.
struct Given {
  uint32_t value;
  Word word;
};

struct GivenMeter {
  p4_pd_bytes_meter_spec_t value;
  Word word;
};

// Whether a word of that name says something else than a field of the key.
bool is_entry_word(std::string_view name);

class EntryLine {
 public:
  // Reads the words of the invocation from TABLE on. Throws Fault.
  EntryLine(const Context &context, const Invocation &invocation);

  const TableInfo &table() const { return table_; }
  Word table_word() const { return table_word_; }
  bool has_key() const { return key_.any_given(); }
  // How many entries the key is of.
  size_t count() const { return static_cast<size_t>(key_.count()); }
  RecordWriter &key() { return key_; }
  const std::optional<Given> &priority() const { return priority_; }
  void set_priority(uint32_t priority) { priority_ = {priority, table_word_}; }
  // Has the calls that were filled mean that one of them.
  void choose(size_t at) { key_.choose(at); }
  // The fault with what it says of the chosen one.
  Fault with_chosen(const Fault &fault, size_t at, std::string_view more) const;
  const std::optional<Given> &entry() const { return entry_; }
  const std::optional<Given> &member() const { return member_; }
  const std::optional<Given> &group() const { return group_; }
  // Remembers the handle under the name that as= gives.
  void remember(Context &context, uint32_t entry) const {
    if (label_) tesselctl::remember(context, *label_, entry);
  }
  // 0 without ttl=.
  uint32_t ttl() const { return ttl_ ? ttl_->value : 0; }
  bool has_action() const { return action_.has_value(); }
  // Name of the action; empty without action=.
  std::string_view action() const { return action_ ? action_->record().name : std::string_view(); }

  // The faults of words that the command cannot use.
  // Whether it is entry=.
  bool need_key_or_entry();
  void need_key();
  void refuse_key() const;
  void refuse_outcome() const;
  void refuse_label() const;
  // Exactly one of action=, member= and group=, of the kind that the table has; returns whether it
  // is an action.
  bool need_outcome() const;

  // Fills the arguments of a call from the line: match_spec, priority, action_spec, ttl,
  // meter_spec, member, group. A missing meter is passed as null unless it is needed. Throws Fault
  // for what the function needs and the line lacks, and for what the line has and the function
  // does not take.
  void fill(Call &call, bool meter_is_needed) const;
  // The same of what the line has and the function takes, without a look at the rest.
  void give(Call &call) const;

 private:
  void check_words(const Call &call, bool meter_is_needed) const;
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

// Throws Fault unless the status is good: at a member or group of the line that is not there, else
// at the word otherwise.
void check_outcome(uint64_t status, const Device &device, const EntryLine &line, Word otherwise);

}  // namespace tesselctl
