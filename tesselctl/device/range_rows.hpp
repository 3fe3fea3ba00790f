// Entries of a ternary table as rows for people, in which those that make a range are one row.
//
// The device knows entries, not ranges, so this goes by what it holds: entries that follow one
// another, are equal but for one field, priority, ttl, meter and outcome included, and have in that
// field exactly the fewest prefixes of a range, in ascending order. Rows that are so equal but for
// another field are one row in turn, as of a rule with two ranges.
#pragma once

#include <functional>

#include "tesselctl/device/read_back.hpp"
#include "tesselctl/program/value_range.hpp"

namespace tesselctl {

// Entries as one: the first of them, their handles, and the fields in which they make a range.
struct JoinedEntries {
  struct Part {
    const Field *field;
    ValueRange range;

    friend bool operator==(const Part &, const Part &) = default;
  };
  ItemBytes item;
  std::vector<p4_pd_entry_handle_t> handles;
  std::vector<Part> parts;
};

// Joins what follows one another and differs in one field.
class RangeJoiner {
 public:
  using Visit = std::function<void(JoinedEntries &&)>;

  RangeJoiner(const bindings::Record &record, Visit visit)
      : record_(record), visit_(std::move(visit)) {}

  void add(JoinedEntries &&next);
  void finish();

 private:
  bool joins(const JoinedEntries &next);
  const Field *only_difference(const JoinedEntries &next) const;

  const bindings::Record &record_;
  Visit visit_;
  JoinedEntries joined_;          // without handles before the first
  const Field *field_ = nullptr;  // in which they differ, of more than one
  ValueRange range_;              // that they make in it
  size_t count_ = 0;              // of what was joined
};

class RangeRows {
 public:
  RangeRows(const TableInfo &table, std::function<void(const Row &)> visit);
  RangeRows(const RangeRows &) = delete;
  RangeRows &operator=(const RangeRows &) = delete;

  void add(p4_pd_entry_handle_t entry, const ItemBytes &item) { inner_.add({item, {entry}, {}}); }
  void finish() {
    inner_.finish();
    outer_.finish();
  }

 private:
  RangeJoiner outer_;
  RangeJoiner inner_;
};

}  // namespace tesselctl
