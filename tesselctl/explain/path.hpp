// What a packet is followed through: tables one after the other, the values that it has at first,
// and where those that actions set go.
#pragma once

#include <optional>

#include "tesselctl/device/table_info.hpp"
#include "tesselctl/explain/path_file.hpp"

namespace tesselctl {

// Where a value in a key comes from.
struct Origin {
  enum Kind : uint8_t { nowhere, given, action } kind = nowhere;
  size_t stop = 0;  // whose action set it
  const Field *parameter = nullptr;
};

// The key of a table while its fields become known. Those that nobody knows are 0.
class PathKey {
 public:
  explicit PathKey(const TableInfo &table)
      : record_(table.record), bytes_(record_->size), origins_(record_->member_count) {}

  void set(const Field &field, Number value, const Origin &origin);
  const uint8_t *data() const { return bytes_.data(); }
  // Of a pair, nowhere unless both halves are known.
  const Origin &origin_of(const Field &field) const;
  // Those that a table cannot be looked up without, or the ternary ones.
  std::vector<const Field *> unknown_fields(bool ternary) const;

 private:
  size_t place_of(const bindings::Member *member) const {
    return static_cast<size_t>(member - record_->members);
  }

  const bindings::Record *record_;
  std::vector<uint8_t> bytes_;
  std::vector<Origin> origins_;  // by member
};

std::string labels_of(const std::vector<const Field *> &fields, std::string_view separator);

struct Stop {
  TableInfo table;
  Word word;  // of the command line, that names the table or the path
};

class Path {
 public:
  // words: tables, names of paths, FIELD=VALUE and PARAMETER=FIELD. Options are those that no table
  // on the path has a field of. Throws Fault.
  Path(const Context &context, Words words, std::span<const std::string_view> options);

  const std::vector<Stop> &stops() const { return stops_; }
  Words options() const { return options_; }
  // Throws Fault when the path cannot be followed: it has no table, a word names nothing in it, or
  // a field that a table cannot be looked up without is neither given nor set by any action before.
  void check(Word command) const;

  // What goes into the key of a stop: first what is given, then what each action before sets.
  void give(PathKey &key, size_t stop) const;
  void hand_on(const bindings::Record &action, const uint8_t *parameters, size_t from, PathKey &key,
               size_t stop) const;
  // The key of a stop if every action before sets all that it can, each to 0.
  PathKey fullest_key(size_t stop) const;

 private:
  // FIELD=VALUE, or PARAMETER=FIELD that joins the two names.
  struct Pair {
    Assignment words;
    const NamedPath *from;  // null: the command line
    bool joins = false;
  };

  void take(Word word, const NamedPath *from, Word typed);
  void sort_out(Pair &pair, std::span<const std::string_view> options);
  void check_pair(const Pair &pair) const;
  void check_fields(size_t stop) const;
  const PathFile &file() const;
  bool has_field(std::string_view name) const;
  bool has_pair(const Pair &like) const;
  template <class Act>
  void in_place_of(const NamedPath *from, Act act) const;
  template <class Visit>
  void for_each_action(size_t stops, Visit visit) const;
  template <class Visit>
  void for_each_joined(std::string_view label, std::string_view name,
                       const bindings::Record &record, Visit visit) const;

  const Context &context_;
  mutable std::optional<PathFile> file_;
  std::vector<Stop> stops_;
  std::vector<Pair> pairs_;  // those of the command line behind those of paths
  std::vector<Word> options_;
};

}  // namespace tesselctl
