// What the kinds of profiles have in common.
#pragma once

#include <optional>

#include "tesselctl/command/options.hpp"
#include "tesselctl/state/kind.hpp"

namespace tesselctl {

using ProfileLine = ObjectLine<soft_profile_t>;

// The handle behind a number. Throws Fault at the word.
uint32_t need_handle(const NumberMap &numbers, const char *what, uint32_t number, Word word);

// Prints the items of a profile, or the one whose handle the option of that name gives.
void print_items(const ProfileLine &line, const ItemKind &kind, const char *option);

// What a command that replaces finds: the item whose handle the option of the kind's name gives, as
// long as the profile has it, or else one that holds the value already. Goes by handles.
std::optional<ItemBytes> find_item(const ProfileLine &line, const ItemKind &kind,
                                   std::string_view value);
// Ends such a command, whose item has that handle now.
void done_replacing(const ProfileLine &line, const ItemKind &kind, uint32_t handle,
                    const std::optional<ItemBytes> &before, std::string_view value);

// A command that takes handles and does nothing but call a function that answers with a status.
void run_on_handles(Context &context, const Invocation &invocation, const char *family,
                    std::initializer_list<std::string_view> names, const char *done,
                    const uint32_t *state = nullptr);

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
