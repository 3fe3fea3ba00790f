// C functions as Python callables that take the same arguments:
//
//   integers     ints, checked against the size of the parameter
//   a session    a Session or its number; a Session stands for its device and target too
//   records      a Record, or any buffer that is long enough; None is a null pointer
//   structures   any sequence of as many numbers (structure.hpp)
//   texts        str, bytes or None
//   outputs      an Output, whose value is there afterwards; a writable buffer; None
//   callbacks    a callable, whose cookie is not looked at; None
//
// The result is that of C; texts are str. The GIL is released during the call.
#pragma once

#include "python/core/program.hpp"

namespace python {

void add_function(PyObject *module);

PyObject *make_function(Program &program, const bindings::Export &target);

// The functions of the soft SDK's control interface, by name.
std::span<const bindings::Export> soft_functions();
void add_soft(PyObject *module);

}  // namespace python
