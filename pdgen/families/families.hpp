// The families and outputs as they are read: tied to what the vocabulary knows of a program, not
// yet applied to one. Their format is described in families/interface.family.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "pdgen/check/diagnostics.hpp"
#include "pdgen/load/load.hpp"
#include "pdgen/model.hpp"

namespace pdgen {

class Scope;
struct Walk;

// The kinds of objects in reach, outermost first. A name is looked up from the last one on. None
// where an unknown kind has been reported: then nothing else is.
using Kinds = std::vector<std::string_view>;

// "where NAME" or "where not NAME"; null: always.
using Where = std::function<bool(const Scope &)>;

// A text with placeholders.
struct StatedText {
  struct Piece {
    std::string before;
    std::function<std::string(const Scope &)> placeholder;  // null behind the last one
    bool begins_comment = false;
  };
  std::vector<Piece> pieces;
};

// A parameter as a function states it. One that is marked with "?" has the condition of its word.
struct StatedParameter {
  StatedText type;
  std::string name;
  Where where;
};

struct StatedFunction {
  std::string result;
  StatedText name;
  std::string family;
  std::vector<StatedParameter> parameters;
  StatedText statement;
  Where where;
};

// "each KIND", "program", "when CONDITION" or "declare" with what stands in it, in order.
struct Block {
  const Walk *objects = nullptr;  // null: those of the block around it
  StatedText order;               // objects are sorted by it, if there is one
  Where where;
  std::string group;
  std::size_t notes = 0;             // of the family that stand above it
  bool declares = false;             // C text for the header
  std::vector<StatedText> declared;  // the names in it
  std::string separator;             // of what is written for one object and the next
  std::vector<std::variant<StatedFunction, StatedText, Block>> items;
};

struct StatedNote {
  StatedText title;
  StatedText text;
  Where where;
};

struct Family {
  std::vector<StatedNote> notes;
  std::string unit;
  unsigned parts = 1;
  std::vector<std::string> includes;
  std::vector<Block> blocks;
};

// A file that is text alone, or one such file for each unit.
struct Output {
  std::string name;         // that of the .output
  std::string file_option;  // the option that names the file; empty: its name is `file`
  StatedText file;
  Block block;
};

// The families in the order of the interface, and the outputs.
struct Families {
  std::vector<Family> families;
  std::vector<Output> outputs;
};

// The families that were compiled in.
std::vector<TextFile> embedded_families();

// From the text of the files; faults go to diagnostics.
Families load_families(const std::vector<TextFile> &files, Diagnostics &diagnostics);

// Looks up what texts name, and reports what nobody knows where it stands.
class Binder {
 public:
  explicit Binder(Diagnostics &diagnostics) : diagnostics_(diagnostics) {}

  StatedText text(const Kinds &kinds, std::string_view text, const Place &place,
                  std::string_view key) const;
  // Of "NAME", "not NAME" or "".
  Where where(const Kinds &kinds, std::string_view condition, const Place &place) const;
  // Adds the kinds that come into reach.
  const Walk *walk(Kinds &kinds, std::string_view name, const Place &place) const;
  // The text with the orders that stand in it ("% each KIND", "{% end %}") as a block; what begins
  // with "% file " goes to `output`, if there is one.
  Block block(const std::string &text, Place place, const Kinds &kinds, Output *output) const;

 private:
  Diagnostics &diagnostics_;
};

// Cuts off and returns what follows the last " <keyword> " outside of parentheses.
std::string cut_tail(std::string &text, std::string_view keyword);

}  // namespace pdgen
