// A parser value set of a device: (value, mask) entries, each in one parser, in all parsers of a
// pipe, in one parser id of all pipes, or everywhere in its direction.
#pragma once

#include <map>

#include "device/engine.hpp"
#include "soft_contents.h"

namespace soft {

// Some parsers: of one direction, of one pipe or BF_ALL_PIPES, one id or SOFT_ALL_PARSERS.
struct Parsers {
  uint32_t direction;
  bf_pipe_id_t pipe;
  uint8_t parser;

  // Whether a parser belongs to both.
  bool meets(const Parsers &other) const;
};

// A member function with the arguments of a contract function does what that function says. Parsers
// are checked by the caller. A call that looks for entries finds those that are in at least one of
// the parsers that it names, the oldest first.
class ValueSet : public Engine<ValueSet> {
 public:
  ValueSet(const Device &, const soft_value_set_t &description) : Engine(description.handle) {}

  // The one property, PIPE_PVS_CAPACITY: most entries in any one parser, 0 no limit. A capacity
  // below the number of entries keeps them and refuses new ones.
  bf_status_t set_property(uint32_t property, uint32_t value);
  bf_status_t get_property(uint32_t property, uint32_t *value);

  // Two entries with the same mask and the same value under it exclude each other from a parser.
  // Values are kept as given. BF_ALREADY_EXISTS, BF_TABLE_FULL.
  bf_status_t add(const Parsers &where, uint32_t value, uint32_t mask, pipe_entry_handle_t *entry);
  bf_status_t modify(pipe_entry_handle_t entry, uint32_t value, uint32_t mask);
  bf_status_t erase(pipe_entry_handle_t entry);
  bf_status_t get(pipe_entry_handle_t entry, uint32_t *value, uint32_t *mask);

  bf_status_t parsers_of(pipe_entry_handle_t entry, soft_parsers_t *parsers);

  bf_status_t find(const Parsers &where, uint32_t value, uint32_t mask, pipe_entry_handle_t *entry);
  bf_status_t match(const Parsers &where, uint32_t value, pipe_entry_handle_t *entry);
  uint32_t count(const Parsers &where);
  bf_status_t first(const Parsers &where, pipe_entry_handle_t *entry);
  // entry may have been erased since. BF_OBJECT_NOT_FOUND also for one that was never issued.
  bf_status_t next(const Parsers &where, pipe_entry_handle_t entry,
                   std::span<pipe_entry_handle_t> entries);

  uint64_t held_bytes() const;
  void take_over(ValueSet &other);

 private:
  struct Entry {
    Parsers where;
    uint32_t value;
    uint32_t mask;
  };
  using Entries = std::map<pipe_entry_handle_t, Entry>;  // by age: handles count up

  static bool same(const Entry &entry, uint32_t value, uint32_t mask);

  template <class Body>
  bf_status_t on_entry(pipe_entry_handle_t entry, Body body);

  // Called under the lock. Goes on from a place in the map to an entry that test(entry) holds for.
  template <class Test>
  Entries::const_iterator search(Entries::const_iterator from, Test test) const;
  template <class Test>
  bf_status_t search_first(Test test, pipe_entry_handle_t *entry) const;
  bool is_full(const Parsers &where) const;
  uint32_t count_in(const Parsers &where) const;

  uint32_t capacity_ = 0;
  pipe_entry_handle_t last_handle_ = 0;
  Entries entries_;
};

}  // namespace soft
