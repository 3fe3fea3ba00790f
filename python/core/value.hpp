// Values of fields: Python objects on one side, numbers with a mask on the other.
//
//   int, or what has __index__
//   str             any notation that the tool reads
//   bytes           most significant first, as long as the field
//   ipaddress       addresses, networks and interfaces
//   (value, mask)   of a ternary field; (value, length) of an lpm field
#pragma once

#include "python/core/object.hpp"
#include "tesselctl/program/value.hpp"

namespace python {

// Throw tesselctl::Fault for a value that the field does not take, and TypeError for an object that
// is no value at all.
tesselctl::FieldValue to_value(const tesselctl::Field &field, PyObject *object);
// One value, without a mask or a prefix.
tesselctl::FieldValue to_single(const tesselctl::Field &field, PyObject *object);
tesselctl::Number to_number(const tesselctl::Field &field, PyObject *object);

// An int where the field is a number that is whole, else a str that to_value reads as the same.
PyObject *from_value(const tesselctl::Field &field, const tesselctl::FieldValue &value);
PyObject *from_number(tesselctl::Number number);

}  // namespace python
