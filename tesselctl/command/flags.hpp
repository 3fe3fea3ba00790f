// The words that begin with '-': each is described here once, for command lines, the tool's own,
// help, the manual page and completion.
#pragma once

#include <optional>

#include "tesselctl/command/command.hpp"
#include "tesselctl/journal/options.hpp"

namespace tesselctl {

// What the tool's own command line asks for.
struct ToolSettings {
  DeviceOptions device = {};
  std::string_view device_flag = {};  // a given one that says what device it is; or empty
  std::string socket = {};  // of the server that has the device; empty for a device of our own
  std::string http = {};    // where a server answers HTTP
  std::string image = {};   // where the device comes from and goes to
  JournalOptions journal = {};
  std::string program = {};  // empty when nobody names one
  size_t program_column = 0;
  bool pipes_are_given = false;
  std::optional<std::string> history = {};
  bool no_colour = false;
  bool no_pager = false;
  bool version = false;
  Settings lines = {};  // of every line that does not say otherwise
};

// Who takes it: the tool as a whole, every command, those that list, those that change something,
// or those whose rows name it.
enum class FlagOf : uint8_t { tool, all, listings, changes, named };

struct Flag {
  std::string_view name;
  FlagOf of;
  void (*set)(ToolSettings &settings, Word value);  // throws Fault
  std::string_view help;
  std::string_view value = {};   // what stands behind it, in capitals; empty for nothing
  std::string_view letter = {};  // "-v", or empty
  bool may_be_empty = false;     // the value

  // Whether the word after that one is the value.
  bool wants_next(std::string_view word) const {
    return !value.empty() && word.find('=') == std::string_view::npos;
  }
};

std::span<const Flag> all_flags();
bool is_flag(std::string_view word);
// The flag of a word, which may hold a value behind '='. Null for an unknown one.
const Flag *find_flag(std::string_view word);
bool takes_flag(const Command &command, const Flag &flag);

// The flags of a line, taken off it.
struct TakenFlags {
  std::vector<Word> words;  // without values
  std::vector<const Flag *> flags;
  // Throws Fault for one that the command does not take.
  void check(const Command &command) const;
};
// Flags of commands go to the settings, the other words stay. Throws Fault.
TakenFlags take_flags(std::vector<Word> &words, Settings &settings);
// The tool's own flags go to the settings wherever they stand, and so do those that every command
// takes, before the first word of a command. The others stay, unknown ones too. Throws Fault.
void take_tool_flags(std::vector<Word> &words, ToolSettings &settings);

// The settings as such words, from which take_flags makes the same settings.
std::string words_of(const Settings &settings);

}  // namespace tesselctl
