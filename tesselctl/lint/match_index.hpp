// The entries of a table by the bits that packets are compared in, so that those that match all
// that another one matches are found without a look at each.
#pragma once

#include <span>
#include <unordered_map>
#include <vector>

#include "tesselctl/device/table_info.hpp"
#include "tesselctl/state/device_state.hpp"

namespace tesselctl {

class MatchIndex {
 public:
  // Entries go by their places in the list. Searches find none of them yet.
  MatchIndex(const TableInfo &table, std::span<const ItemStore::Item> entries);

  void add(uint32_t entry);

  // Visits the added entries that match whatever this one does, itself included, in any order.
  template <class Visit>
  void for_each_covering(uint32_t entry, Visit visit) const {
    const Part *const own = parts_of(entry);
    for (size_t at = 0; at < places_.size(); ++at) {
      for (const auto &[mask, group] : places_[at]) {
        if (!group.is_searched || (mask & ~own[at].mask) != 0) continue;
        const auto found = group.entries.find(own[at].value & mask);
        if (found == group.entries.end()) continue;
        for (uint32_t other = found->second.first; other != kNone; other = next_[other]) {
          if (covers(other, entry)) visit(other);
        }
      }
    }
  }

  // How many bits of packets the entry looks at.
  unsigned compared_bits(uint32_t entry) const;

 private:
  static constexpr uint32_t kNone = ~0u;

  // A few fields of a key. An entry is searched for by that part of its key in which the fewest
  // entries are like it, so neither many masks nor many entries of one address make it slow.
  struct Part {
    uint64_t mask = 0;
    uint64_t value = 0;
  };
  struct Alike {
    uint32_t count = 0;
    uint32_t first = kNone;  // that is found by this part; next_ has the others
  };
  struct Group {
    std::unordered_map<uint64_t, Alike> entries;  // by value
    bool is_searched = false;
  };

  void append(const uint8_t *key, const bindings::Record &record);
  const Part *parts_of(uint32_t entry) const { return parts_.data() + entry * places_.size(); }
  bool covers(uint32_t entry, uint32_t other) const;

  std::vector<std::unordered_map<uint64_t, Group>> places_;  // by the place of the part and mask
  std::vector<Part> parts_;                                  // of all entries
  std::vector<uint32_t> next_;                               // by entry
};

}  // namespace tesselctl
