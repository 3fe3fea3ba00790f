// The families as text: what families/*.family and *.output say, read but not yet applied to a
// program. The format is described in families/interface.family.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "pdgen/check/diagnostics.hpp"
#include "pdgen/load/load.hpp"
#include "pdgen/model.hpp"

namespace pdgen {

// "where NAME" or "where not NAME"; always if the name is empty.
struct Where {
  std::string name;
  bool negated = false;
};

// A parameter as a function states it: the type may have placeholders. One that is marked with "?"
// has the condition of its word.
struct StatedParameter {
  std::string type;
  std::string name;
  Where where;
};

struct StatedFunction {
  Place place;
  std::string result;
  std::string name;
  std::string family;
  std::vector<StatedParameter> parameters;
  std::string statement;
  Where where;
};

struct StatedText {
  Place place;
  std::string title;  // of a note
  std::string text;
  Where where;
};

// "each KIND" or "program" with what stands in it, in order.
struct Block {
  Place place;
  std::string walk;  // "" for the program
  Where where;
  std::string group;
  std::vector<std::variant<StatedFunction, StatedText, Block>> items;
};

struct Family {
  std::vector<StatedText> notes;
  Place place;
  std::string unit;  // or the file that it makes, for an output
  unsigned parts = 1;
  std::vector<std::string> includes;
  std::vector<Block> blocks;
};

// The families in the order of the interface, and the files that are made of text alone.
struct Families {
  std::vector<Family> families;
  std::vector<Family> outputs;
};

// The families that were compiled in.
std::vector<CatalogueFile> embedded_families();

// From the text of the files; faults, those of check_families among them, go to diagnostics.
Families load_families(const std::vector<CatalogueFile> &files, Diagnostics &diagnostics);

// Reports placeholders, conditions and kinds that nobody knows where they stand.
void check_families(const Families &families, Diagnostics &diagnostics);

// The names of the placeholders of a text, in order.
std::vector<std::string_view> placeholders(std::string_view text);

}  // namespace pdgen
