// The exported interface as data: every function with its parameters and the one statement of its
// wrapper. The api_*.cpp files fill it, one family of functions each; the emit_*.cpp files print
// it as header, export list, wrappers and call table, so a function is stated once.
#pragma once

#include <string>
#include <vector>

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
  explicit Api(const Program &program);

  const Program &program() const { return program_; }

  void add_note(std::string title, std::string text);
  // Opens a unit: functions added from here on belong to it.
  void begin_unit(std::string name, std::vector<std::string> includes);
  // The group of that title, made at the end if there is none.
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

// Titles of the groups of objects in the header.
std::string table_group(const Table &table);
std::string profile_group(const Profile &profile);
std::string action_group();
std::string introspection_group();  // what belongs to no object

// Parameters that many families share.
namespace parameter {

Parameter session();
Parameter target();    // p4_pd_device_target_t
Parameter device();    // 8 bits
Parameter device32();  // 32 bits
Parameter entry();
Parameter out_entry();
Parameter match_spec(const Program &program, const Table &table);
Parameter out_match_spec(const Program &program, const Table &table);
Parameter priority();
Parameter ttl();
Parameter from_hardware();  // bool
Parameter placement();
Parameter meter_spec();
Parameter sync_callback();
Parameter cookie();
Parameter action_spec(const Program &program, const Action &action);
Parameter buffer();  // of a text

}  // namespace parameter

// One function a family: fills the interface from the program.
void add_frame_functions(Api &api);
void add_records(Api &api);
void add_table_functions(Api &api);
void add_entry_functions(Api &api);
void add_default_functions(Api &api);
void add_read_back_functions(Api &api);
void add_idle_functions(Api &api);
void add_indirect_functions(Api &api);
void add_profile_functions(Api &api);
void add_meter_functions(Api &api);
void add_placement_functions(Api &api);
void add_counter_functions(Api &api);
void add_register_functions(Api &api);
void add_hash_functions(Api &api);
void add_digest_functions(Api &api);
void add_value_set_functions(Api &api);
void add_snapshot_functions(Api &api);
void add_schema_functions(Api &api);
void add_value_functions(Api &api);
void add_print_functions(Api &api);
void add_label_functions(Api &api);
void add_compare_functions(Api &api);

// The whole interface.
Api build_api(const Program &program);

}  // namespace pdgen
