// The exported interface as data: every function with its parameters and the one statement of its
// wrapper. The families fill it (families.hpp); the emit_*.cpp files print it as header, export
// list, wrappers and call table, so a function is stated once.
#pragma once

#include <string>
#include <vector>

#include "pdgen/families/families.hpp"
#include "pdgen/model.hpp"

namespace pdgen {

// type ends in " *" for a pointer and is complete in front of the name otherwise.
struct Parameter {
  std::string type;
  std::string name;
};

struct Function {
  std::string name;
  std::string result;
  std::vector<Parameter> parameters;
  std::string statement;  // of the wrapper, without its semicolon
  std::string family;     // the operation, the same for all objects that have it
  std::string object;     // the table, profile, action ... that it belongs to; empty if none
  std::string action;     // of an operation with an action
};

// Functions that stand together in the header, behind the declarations that they need.
struct Group {
  std::string title;
  std::string declarations;  // C text: records and enumerations
  std::vector<Function> functions;
};

// What all functions of a family have in common, said once in the header.
struct FamilyNote {
  std::string title;
  std::string text;
};

// The wrappers are compiled in several units; each holds whole families.
struct Unit {
  std::string name;
  std::vector<std::string> includes;
};

class Api {
 public:
  explicit Api(const Program &program) : program_(program) {}

  const Program &program() const { return program_; }

  void add_note(std::string title, std::string text) {
    notes_.push_back({std::move(title), std::move(text)});
  }
  // Opens a unit: functions added from here on belong to it.
  void begin_unit(std::string name, std::vector<std::string> includes) {
    units_.push_back({std::move(name), std::move(includes)});
  }
  // The group of that title is made at the end if there is none; a blank line separates
  // declarations.
  void declare(const std::string &group, const std::string &declarations);
  void add(const std::string &group, Function function);

  const std::vector<FamilyNote> &notes() const { return notes_; }
  const std::vector<Group> &groups() const { return groups_; }
  const std::vector<Unit> &units() const { return units_; }
  // The functions of a unit, in the order in which they were added.
  std::vector<const Function *> functions_of(const Unit &unit) const;
  std::vector<const Function *> functions() const;

 private:
  struct Address {
    std::size_t unit;
    std::size_t group;
    std::size_t index;
  };

  Group &group(const std::string &title);

  const Program &program_;
  std::vector<FamilyNote> notes_;
  std::vector<Group> groups_;
  std::vector<Unit> units_;
  std::vector<Address> order_;
};

// The whole interface. The families have no fault; without them, those that were compiled in.
Api build_api(const Program &program, const Families &families);
Api build_api(const Program &program);

// The text of an output.
std::string fill_in(const Family &output, const Program &program);

}  // namespace pdgen
