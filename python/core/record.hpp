// Records as Python types: the match spec of a table, the action spec of an action, entries of
// digests and records of snapshots. An object holds the bytes of one record and never changes.
#pragma once

#include <memory>
#include <vector>

#include "python/core/object.hpp"
#include "tesselctl/program/record.hpp"

namespace python {

struct RecordKind {
  const bindings::Record *record;
  std::string what;  // in messages: "setNextHop"
  std::string type_name;
  std::vector<PyObject *> labels;  // of the shown fields, as interned strings
  PyTypeObject *type = nullptr;
  bool may_lack_fields = false;  // what is left out is 0
};

struct RecordObject {
  PyObject ob_base;
  const RecordKind *kind;
  uint8_t bytes[1];
};

void make_record_base(PyObject *module);

// Of a record; it lives as long as the process. The note says what it is.
RecordKind *make_record_kind(const bindings::Record &record, std::string type_name,
                             const std::string &note, bool may_lack_fields);

PyObject *make_record(const RecordKind &kind, const void *bytes);
// The record that the object is, or null.
const RecordObject *as_record(PyObject *object);
inline const RecordObject *as_record(PyObject *object, const RecordKind &kind) {
  const RecordObject *found = as_record(object);
  return found != nullptr && found->kind == &kind ? found : nullptr;
}

// The field that a keyword means, as find_field reads it, or with a '_' behind it. Throws
// TypeError.
const tesselctl::Field &field_of(const RecordKind &kind, PyObject *name);

// What a field takes: also masks and prefixes, or one value.
enum class Values : uint8_t { any, one };

// Fills a record from keywords.
class RecordFiller {
 public:
  explicit RecordFiller(const RecordKind &kind, Values values = Values::any)
      : kind_(kind), writer_(*kind.record, kind.what), values_(values) {}

  // Both throw TypeError or ValueError with the name of the field.
  void set(PyObject *name, PyObject *value);
  // Fields that must be there are.
  void finish();
  bool any_given() const { return writer_.any_given(); }
  const uint8_t *data() const { return writer_.data(); }

 private:
  const RecordKind &kind_;
  tesselctl::RecordWriter writer_;
  Values values_;
};

// Converts the value of a field; errors name the record and the field.
tesselctl::FieldValue field_value(const RecordKind &kind, const tesselctl::Field &field,
                                  PyObject *value, Values values = Values::any);

}  // namespace python
