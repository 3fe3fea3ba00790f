// What the kinds of profiles have in common.
#pragma once

#include "soft_contents.h"
#include "tesselctl/kinds/table_items.hpp"

namespace tesselctl {

extern const ObjectKind kProfileObjects;

// The number that a line begins with. Throws Fault.
uint32_t parse_item_number(ValueScanner &line);

// The handle behind a number. Throws Fault at the word.
uint32_t need_handle(const NumberMap &numbers, const char *what, uint32_t number, Word word);

// A member of a group, by its number.
struct Membership {
  uint32_t member;
  uint32_t is_active;
  friend auto operator<=>(const Membership &,
                          const Membership &) = default;  // NOLINT(modernize-use-nullptr)
};

// What the value of a group says; the item has its members in the order of their numbers.
struct GroupValue {
  uint32_t size = 0;  // most members, 0 unlimited
  std::vector<Membership> members;

  GroupValue() = default;
  explicit GroupValue(std::string_view value);
  void store(std::string &value);
};

}  // namespace tesselctl
