// What a device holds, and what states differ in, as the commands of a script.
#pragma once

#include <map>
#include <tuple>

#include "tesselctl/state/changes.hpp"

namespace tesselctl {

// Prints commands. Members and groups that they add get names, by which later commands refer to
// them; others are those of the device before, whose handles are their numbers.
class Script {
 public:
  explicit Script(Results &results) : results_(results) {}
  virtual ~Script() = default;
  Script(const Script &) = delete;
  Script &operator=(const Script &) = delete;

  // One command: its beginning, its words, its end.
  Script &begin(const ItemEdit &edit) { return begin(edit, edit.kind.verbs.of(edit.edit)); }
  Script &begin(const ItemEdit &edit, std::string_view verb) {
    return begin(verb, edit.kind.object.in_commands ? edit.object : std::string_view());
  }
  Script &begin(std::string_view verb, std::string_view object);
  Script &word(std::string_view name, std::string_view value);
  Script &number(std::string_view name, uint64_t value);
  // The named values of a row. The members and groups are those of the profile.
  Script &words(const Row &row, uint32_t profile = 0);
  Script &reference(Numbered what, uint32_t profile, uint32_t number);
  // "as=NAME", for references to come.
  Script &name(Numbered what, const ItemEdit &edit, uint32_t profile, uint32_t number);
  void end() { results_.command(line_); }

  // The items of another kind in the object of an edit, as they are to be.
  using Items = std::span<const ItemStore::Item>;
  virtual Items after(const ItemEdit &edit, std::string_view keyword) = 0;
  virtual bool differ(const ItemEdit &edit, std::string_view keyword) = 0;

 private:
  using Key = std::tuple<Numbered, uint32_t, uint32_t>;

  Results &results_;
  std::string line_;
  std::map<Key, std::string> names_;
};

// Prints the commands of a change.
void print_commands(Script &script, const ChangeStep &step);

// Answers with the commands that turn before into after, in an order that a device takes. The
// changes are those between the two. Throws Fault.
void print_script(const DeviceState &before, const DeviceState &after,
                  const std::vector<Change> &changes, Results &results);

}  // namespace tesselctl
