// The commands of the tool. One registry serves scripts, single commands and the shell; a command
// reads words, works on a device and writes to an output, and knows nothing of where they come
// from.
#pragma once

#include <algorithm>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "tesselctl/device/device.hpp"
#include "tesselctl/text/interrupt.hpp"
#include "tesselctl/text/output.hpp"
#include "tesselctl/text/results.hpp"
#include "tesselctl/text/words.hpp"

namespace tesselctl {

class EventSource;
class Journal;

// What commands did to the device. One with a fault may have done a part.
enum class Changed : uint8_t { no, perhaps, yes };

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
  Changed changed = Changed::no;
  // Set by commands that compare when they found a difference, and by one that found a defect.
  bool differs = false;
  // What the names of files are relative to, when that is not where this process works.
  std::string directory = {};
  // Of the server, where the line is one of its own; null without one.
  Journal *journal = nullptr;
  EventSource *events = nullptr;
  // The device is a copy to try commands on: nothing that they do is to stay.
  bool is_trial = false;

  // The file that the word names. Throws Fault for one that only the process of a client has.
  std::string path(Word word) const;
  // The same of a file to write; in a trial one that keeps nothing.
  std::string output_path(Word word) const;
};

class Offers;

struct Invocation {
  Word command;  // the words that name the command
  Words arguments;
};

// What a command does to what an image holds; it decides which options the command takes
// (flags.hpp). One that acts does something to the device that no image holds.
enum class Kind : uint8_t { asks, lists, acts, changes };

// Where a command is run: in the process that has the device, wherever the line comes from; by a
// server, for its clients; by the tool that the line is typed into, which a server is not; or as
// the tool's own command line alone.
enum class Where : uint8_t { device, server, tool, command_line };

// All there is to know about a command but what it does.
struct Command {
  std::string_view name;       // one word or two: "add", "meter set"
  std::string_view arguments;  // "TABLE FIELD=VALUE..."; a word in capitals is to be replaced
  std::string_view summary;    // one line
  // Throws Fault, as all do that are not run where the device is.
  void (*run)(Context &context, const Invocation &invocation);
  Kind kind = Kind::asks;
  std::string_view flags = {};  // further options, separated by blanks: "--raw"
  bool hidden = false;          // for programs: no help lists it
  bool watched = false;         // changes something, and watch repeats it all the same
  Where where = Where::device;
  // Of a command with more than one table: offers the fields that the words behind it want, or what
  // can stand behind the name of one. May throw Fault.
  void (*offer_fields)(Offers &offers, const Context &context, Words given,
                       std::string_view name) = nullptr;

  std::string_view first_word() const { return name.substr(0, name.find(' ')); }
  // Empty when the name is one word.
  std::string_view second_word() const {
    return name.substr(std::min(first_word().size() + 1, name.size()));
  }
};

// Whether watch repeats the command.
inline bool can_be_watched(const Command &command) {
  return (command.kind != Kind::changes || command.watched) && command.where == Where::device;
}

// ---- For commands ----

// The argument at that position, or the end of them all. what is what it should be.
Word need_argument(const Invocation &invocation, size_t at, std::string_view what);
void refuse_arguments_from(const Invocation &invocation, size_t at);
// A handle: a number, or $NAME of one that was remembered.
uint32_t parse_handle(const Context &context, Word text, const std::string &what);
// Remembers a handle under the name of an as= word.
void remember(Context &context, Word name, uint32_t handle);

}  // namespace tesselctl
