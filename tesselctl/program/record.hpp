// A match spec, action spec or record of digests and snapshots that is filled from NAME=VALUE words
// and put into the words of rows.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tesselctl/program/value.hpp"
#include "tesselctl/text/row.hpp"
#include "tesselctl/text/words.hpp"

namespace tesselctl {

class RecordWriter {
 public:
  // what names the record in messages: "table x".
  RecordWriter(const bindings::Record &record, std::string what)
      : record_(&record),
        what_(std::move(what)),
        bytes_(record.size),
        given_(record.member_count) {}

  const bindings::Record &record() const { return *record_; }
  // Throws Fault: unknown name, value that does not fit, field given before.
  void set(const Assignment &word);
  // Counts a field as given. Throws Fault at its name if it is already.
  void give(const Field &field, Word name);
  void store(const Field &field, const FieldValue &value) {
    store_value(field, value, bytes_.data());
  }
  // The same, but LOW..HIGH is several values, so that there are several records.
  void set_values(const Assignment &word);
  // Gives a field other values.
  void put(const Field &field, std::vector<FieldValue> values);
  bool is_given(const Field &field) const;
  // How many there are, and the one that data() is: those of the field set last come first.
  uint64_t count() const;
  void choose(uint64_t at);
  // "port=0x3f0&0xfff0": the value of each field that has several, in the chosen record.
  std::string chosen() const;
  bool any_given() const;
  // Fields that were not given stay 0; ternary ones match anything. Throws Fault at the word when
  // another one is missing.
  void finish(Word word);
  const uint8_t *data() const { return bytes_.data(); }

 private:
  size_t place_of(const bindings::Member *member) const {
    return static_cast<size_t>(member - record_->members);
  }

  // The field that the name means, if it is not given yet.
  const Field &take_field(Word name);

  struct Spread {
    const Field *field;
    std::vector<FieldValue> values;
  };

  const bindings::Record *record_;
  std::string what_;
  std::vector<uint8_t> bytes_;
  std::vector<bool> given_;  // by member
  std::vector<Spread> spreads_;
};

// What is left out of a row, besides ternary fields that match anything.
enum class LeaveOut : uint8_t { nothing, zeroes };

// Adds the fields of a record with their short names in their notations.
void add_record(Row &row, std::string_view group, const bindings::Record &record,
                const uint8_t *bytes, LeaveOut leave_out = LeaveOut::nothing);
// The name of an action and its parameters.
void add_action(Row &row, const bindings::Record &action, const uint8_t *bytes);
// Every field with some value, for Results::expect.
void add_samples(Row &row, std::string_view group, const bindings::Record &record);

}  // namespace tesselctl
