// Statuses as exceptions: a class for each, below one base.
#pragma once

#include <cstdint>

#include "python/core/object.hpp"

namespace python {

// Adds StatusError and its classes to the module.
void add_statuses(PyObject *module);

// The exception of a status with the attributes status, name and text; the context says what
// failed.
Ref status_error(uint64_t status, const std::string &context);
[[noreturn]] void raise_status(uint64_t status, const std::string &context);
inline void check_status(uint64_t status, const std::string &context) {
  if (status != 0) raise_status(status, context);
}

}  // namespace python
