// The families as text: what families/*.family and *.output say, read and bound to the vocabulary
// but not yet applied to a program. The format is described in families/interface.family.
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

// "where NAME" or "where not NAME"; always if the name is empty.
struct Where {
  std::string name;
  bool negated = false;
  std::function<bool(const Scope &)> holds = nullptr;  // bound; without the negation
};

// A text with placeholders.
struct StatedText {
  struct Piece {
    std::string before;
    std::function<std::string(const Scope &)> placeholder;  // null behind the last one
    bool begins_comment = false;
  };

  Place place;
  std::string text;
  std::vector<Piece> pieces = {};  // bound
};

// A parameter as a function states it. One that is marked with "?" has the condition of its word.
struct StatedParameter {
  StatedText type;
  std::string name;
  Where where;
};

struct StatedFunction {
  Place place;
  std::string result;
  StatedText name;
  std::string family;
  std::vector<StatedParameter> parameters;
  StatedText statement;
  Where where;
};

// "each KIND", "program", "when CONDITION" or "declare" with what stands in it, in order.
struct Block {
  Place place;
  std::string walk;  // "" for the objects of the block around it
  Where where;
  std::string group;
  bool declares = false;             // C text for the header
  std::vector<StatedText> declared;  // the names in it
  StatedText order;       // objects are sorted by it; empty: as the catalogue orders them
  std::string separator;  // of what is written for one object and the next
  std::vector<std::variant<StatedFunction, StatedText, Block>> items;
  const Walk *objects = nullptr;  // bound
};

struct StatedNote {
  StatedText title;
  StatedText text;
  Where where;
};

struct Family {
  std::vector<StatedNote> notes;
  Place place;
  std::string unit;
  unsigned parts = 1;
  std::vector<std::string> includes;
  std::vector<Block> blocks;
};

// A file that is text alone, or one such file for each unit.
struct Output {
  std::string name;  // that of the .output
  StatedText file;
  Block block;
};

// The families in the order of the interface, and the outputs.
struct Families {
  std::vector<Family> families;
  std::vector<Output> outputs;
};

// The families that were compiled in.
std::vector<CatalogueFile> embedded_families();

// From the text of the files; faults, those of bind_families among them, go to diagnostics.
Families load_families(const std::vector<CatalogueFile> &files, Diagnostics &diagnostics);

// The text with the orders that stand in it ("% each KIND", "{% end %}") as a block; what begins
// with "% file " goes to `output`, if there is one.
Block read_template(const std::string &text, Place place, Output *output, Diagnostics &diagnostics);

// Looks up placeholders, conditions and kinds; reports those that nobody knows where they stand.
void bind_families(Families &families, Diagnostics &diagnostics);

// Cuts off and returns what follows the last " <keyword> " outside of parentheses.
std::string cut_tail(std::string &text, std::string_view keyword);
Where where_of(std::string text);

}  // namespace pdgen
