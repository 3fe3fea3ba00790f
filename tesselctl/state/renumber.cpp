// The numbers of members and groups of a state, chosen so that it differs least from another one.
#include <set>

#include "tesselctl/state/device_state.hpp"

namespace tesselctl {

namespace {

// Pairs the numbers of items with those of other items: same number and same value, then same
// value, then same number where one can become the other, then any number that is free.
class Pairing {
 public:
  using Items = std::map<uint32_t, std::string_view>;  // values by number

  Pairing(const ObjectItems &access, const Items &mine, const Items &theirs)
      : access_(access), mine_(mine), theirs_(theirs) {}

  std::map<uint32_t, uint32_t> run() {
    pair_same_numbers([](std::string_view a, std::string_view b) { return a == b; });
    pair_same_values();
    pair_same_numbers([&](std::string_view a, std::string_view b) {
      return access_.lasting(a) == access_.lasting(b);
    });
    uint32_t next = 1;
    for (const auto &[number, value] : mine_) {
      if (pairs_.contains(number)) continue;
      while (taken_.contains(next) || theirs_.contains(next)) ++next;
      pair(number, next);
    }
    return std::move(pairs_);
  }

 private:
  void pair(uint32_t number, uint32_t other) {
    pairs_[number] = other;
    taken_.insert(other);
  }
  template <class Matches>
  void pair_same_numbers(Matches matches) {
    for (const auto &[number, value] : mine_) {
      const auto found = theirs_.find(number);
      if (found == theirs_.end() || pairs_.contains(number) || taken_.contains(number)) continue;
      if (matches(value, found->second)) pair(number, number);
    }
  }
  void pair_same_values() {
    std::multimap<std::string_view, uint32_t> by_value;
    for (const auto &[number, value] : theirs_) {
      if (!taken_.contains(number)) by_value.emplace(value, number);
    }
    for (const auto &[number, value] : mine_) {
      const auto found = by_value.find(value);
      if (pairs_.contains(number) || found == by_value.end()) continue;
      pair(number, found->second);
      by_value.erase(found);
    }
  }

  const ObjectItems &access_;
  const Items &mine_;
  const Items &theirs_;
  std::map<uint32_t, uint32_t> pairs_;
  std::set<uint32_t> taken_;
};

Pairing::Items items_of(const DeviceState::Part *part) {
  Pairing::Items items;
  if (part == nullptr) return items;
  for (const ItemStore::Item &item : part->items) {
    items.emplace(read_bytes<uint32_t>(item.view().identity), item.view().value);
  }
  return items;
}

}  // namespace

void DeviceState::number_like(const DeviceState &other) {
  // Members come first: groups that have the same ones are equal.
  for (const auto &[place, part] : parts_) {
    if (part.kind->numbered == Numbered::no) continue;
    const Pairing::Items mine = items_of(&part);
    const Pairing::Items theirs = items_of(other.find(place));
    const Renumbering numbers = {part.kind->numbered, Pairing(*part.access, mine, theirs).run()};
    for (const auto &[at, named] : parts_) {
      if (named.access->profile() != part.access->profile()) continue;
      for (const ItemStore::Item &item : named.items) {
        named.access->renumber(item.identity(), item.value(), numbers);
      }
    }
  }
}

}  // namespace tesselctl
