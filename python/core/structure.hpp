// Plain records of C as named tuples: targets, counter cells, meters and the like.
#pragma once

#include <cstdint>
#include <span>

#include "python/core/object.hpp"

namespace python {

struct StructureField {
  const char *name;
  size_t offset;
  size_t size;
  bool is_real = false;
  bool may_lack = false;  // behind those that must be there
  uint32_t usual = 0;     // what it is then
};

struct Structure {
  std::string_view type;  // in C
  const char *name;       // in Python
  const char *note;
  size_t size;
  std::span<const StructureField> fields;
};

// Adds a type of named tuples to the module; the last defaults.size() names may be left out.
PyObject *add_named_tuple(PyObject *module, const char *name, const char *note,
                          std::span<const char *const> fields, Ref defaults = {});
// One with the values of a tuple.
PyObject *make_named(PyObject *type, const Ref &values);

void add_structures(PyObject *module);

// Of a C type, or null.
const Structure *find_structure(std::string_view type);

PyObject *from_structure(const Structure &structure, const void *bytes);
// From any sequence of as many numbers. Throws TypeError or ValueError that names the field.
void to_structure(const Structure &structure, PyObject *object, void *bytes);

// A truth: a bool or another number. What names it in the error.
bool flag_of(PyObject *object, std::string_view what);
// An int of 0 and up to so many bytes; what names it in the errors.
uint64_t unsigned_of(PyObject *object, size_t bytes, std::string_view what);

}  // namespace python
