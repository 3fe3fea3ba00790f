// The commands of the tool. One registry serves scripts, single commands and the shell; a command
// reads words, works on a device and writes to an output, and knows nothing of where they come
// from.
#pragma once

#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "tesselctl/device.hpp"
#include "tesselctl/interrupt.hpp"
#include "tesselctl/output.hpp"
#include "tesselctl/results.hpp"
#include "tesselctl/words.hpp"

namespace tesselctl {

// What commands share while a script or shell runs.
struct Context {
  Device &device;
  Output &out;
  // Of every command that does not say otherwise.
  Settings defaults = {};
  // Of the command that runs, and its answers.
  Settings settings = {};
  Results results{out};
  // Handles that commands were asked to remember (as=NAME), for $NAME.
  std::map<std::string, uint32_t, std::less<>> labels = {};
  // Set by commands that compare when they found a difference.
  bool differs = false;
  // What the names of files are relative to, when that is not where this process works.
  std::string directory = {};

  // The file that the word names. Throws Fault for one that only the process of a client has.
  std::string path(Word word) const;
};

struct Invocation {
  Word command;  // the words that name the command
  Words arguments;
};

// What a command does decides which words that begin with "--" it takes: all take --json, --terse
// and --trace; those that list also --count, --filter NAME=PATTERN and --sort NAME; those that
// change something --dry-run.
enum class Kind : uint8_t { asks, lists, changes };

struct Command {
  std::string_view name;       // one word or two: "add", "meter set"
  std::string_view arguments;  // "TABLE FIELD=VALUE..."; a word in capitals is to be replaced
  std::string_view summary;    // one line
  void (*run)(Context &context, const Invocation &invocation);  // throws Fault
  Kind kind = Kind::asks;
  std::string_view flags = {};  // further "--" words, separated by blanks: "--raw"
  bool hidden = false;          // for programs: no help lists it
  bool watched = false;         // changes something, and watch repeats it all the same
};

// Whether watch repeats the command.
inline bool can_be_watched(const Command &command) {
  return (command.kind != Kind::changes || command.watched) && command.name != "watch";
}

// All commands by topic; every span is a topic.
std::span<const std::span<const Command>> command_topics();

// The command that the words name. Throws Fault with a near name.
const Command &find_command(Words words, Invocation &invocation);

enum class Ran : uint8_t { nothing, asked, changed, differs };

// Runs one line; one without words does nothing. Throws Fault, behind which context.results waits
// for fail.
Ran run_line(Context &context, std::string_view line);

// The words of a line that begin with "--" go to the settings, the others stay. Throws Fault.
struct Flags {
  std::vector<Word> given;  // without values
  void check(const Command &command) const;
};
Flags take_flags(std::vector<Word> &words, Settings &settings);
// The settings as such words, from which take_flags makes the same settings.
std::string words_of(const Settings &settings);
// What stands behind such a word, in capitals, and what it does; empty for an unknown one.
std::string_view flag_value(std::string_view name);
std::string_view flag_help(std::string_view name);

// ---- For commands ----

// The argument at that position, or the end of them all. what is what it should be.
Word need_argument(const Invocation &invocation, size_t at, std::string_view what);
void refuse_arguments_from(const Invocation &invocation, size_t at);
// A handle: a number, or $NAME of one that was remembered.
uint32_t parse_handle(const Context &context, Word text, const std::string &what);
// Remembers a handle under the name of an as= word, and tells it where wanted.
void remember(Context &context, Word name, uint32_t handle);

// The topics.
std::span<const Command> entry_commands();
std::span<const Command> show_commands();
std::span<const Command> profile_commands();
std::span<const Command> meter_commands();
std::span<const Command> stateful_commands();
std::span<const Command> hash_commands();
std::span<const Command> value_set_commands();
std::span<const Command> digest_commands();
std::span<const Command> snapshot_commands();
std::span<const Command> traffic_commands();
std::span<const Command> state_commands();
std::span<const Command> image_commands();
std::span<const Command> compare_commands();
std::span<const Command> routes_commands();
std::span<const Command> introspection_commands();
std::span<const Command> watch_commands();
std::span<const Command> help_commands();
std::span<const Command> report_commands();

}  // namespace tesselctl
