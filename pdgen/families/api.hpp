// The exported interface as data: every function with its parameters and the one statement of its
// wrapper. The families fill it (families.hpp); the outputs print it as header, export list,
// wrappers and call table, so a function is stated once.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "pdgen/check/check.hpp"
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
  std::size_t note = 0;   // its place among the notes; 0, about all functions, if it has none
  std::string list;       // the parameter list of its unit; empty without parameters
};

// Functions that stand together in the header, behind the declarations that they need.
struct Group {
  std::string title;
  std::string declarations;  // C text: records and enumerations
  std::vector<const Function *> functions;
};

// What functions have in common, said once.
struct Note {
  std::string title;
  std::string text;
};

// Parameters that several functions of a unit share.
struct ParameterList {
  std::string name;
  std::vector<Parameter> parameters;
};

// The wrappers are compiled in several units; each holds whole families.
struct Unit {
  std::string name;
  std::vector<std::string> includes;
  std::vector<const Function *> functions;
  std::vector<ParameterList> lists;
};

// Can be moved, not copied.
struct Api {
  explicit Api(const Program &of) : program(of) {}
  Api(Api &&) = default;
  Api(const Api &) = delete;

  const Program &program;
  unsigned long soname = 1;  // version of the shared object
  std::deque<Function> functions;
  std::vector<Note> notes;
  std::vector<Group> groups;
  std::vector<Unit> units;
  std::vector<std::string> exports;  // sorted
  std::vector<MadeName> names;       // of functions and of what the header declares
};

// The C declaration of a function, without its semicolon, in lines of so many columns.
std::string declaration(const Function &function, std::size_t width = std::string::npos);

}  // namespace pdgen
