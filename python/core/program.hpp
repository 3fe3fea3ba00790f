// A loaded program: its functions and records by name, as Python objects made when they are asked
// for.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>

#include "bindings/export_table.hpp"
#include "python/core/record.hpp"
#include "tesselctl/program/export_index.hpp"

namespace python {

class Program {
 public:
  explicit Program(const bindings::Binding &binding) : binding_(binding), index_(binding) {}

  const bindings::Binding &binding() const { return binding_; }
  const soft_program_t &description() const { return *binding_.description; }
  // Both null where there is none.
  const bindings::Export *find(std::string_view family, std::string_view object,
                               std::string_view action = {}) const {
    return index_.find(family, object, action);
  }
  const bindings::Export *function(std::string_view name);

  // Of a table, action, digest and so on.
  const RecordKind &kind(const bindings::Record &record);
  // The action spec of an action of the program.
  const RecordKind &action(std::string_view name);
  const bindings::Record *find_record(std::string_view list, std::string_view name) const;
  // The record that a C type is a pointer to, or null: "const p4_pd_x_TABLE_match_spec_t *".
  const bindings::Record *record_of_type(std::string_view type) const;

 private:
  const bindings::Binding &binding_;
  tesselctl::ExportIndex index_;
  std::unordered_map<std::string_view, const bindings::Export *> by_name_;
  std::unordered_map<const bindings::Record *, const RecordKind *> kinds_;
};

struct ProgramObject {
  PyObject ob_base;
  Program *program;
};

void add_program(PyObject *module);
// Throws TypeError for any other object.
Program &program_of(PyObject *object);
// Throws ValueError where the device runs another program.
void check_device(const Program &program, uint32_t device);
// The device is gone.
void forget_device(uint32_t device);

// "p4_pd_x_t" of "const p4_pd_x_t *".
std::string_view pointed_type(std::string_view type);

}  // namespace python
