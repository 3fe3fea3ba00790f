#include "python/core/record.hpp"

#include <fmt/format.h>

#include <cstddef>
#include <cstring>
#include <unordered_map>

#include "python/core/buffer.hpp"
#include "python/core/value.hpp"

namespace python {

namespace {

using tesselctl::Fault;
using tesselctl::Field;

PyTypeObject *base = nullptr;

std::unordered_map<PyTypeObject *, const RecordKind *> &kinds() {
  static std::unordered_map<PyTypeObject *, const RecordKind *> all;
  return all;
}

const RecordObject *cast(PyObject *object) { return reinterpret_cast<RecordObject *>(object); }

const RecordKind &kind_of(PyTypeObject *type) {
  const auto found = kinds().find(type);
  if (found == kinds().end()) raise(PyExc_TypeError, "this type has no record");
  return *found->second;
}

PyObject *new_record(PyTypeObject *type, PyObject *arguments, PyObject *keywords) {
  return guarded([&] {
    const RecordKind &kind = kind_of(type);
    if (PyTuple_Size(arguments) != 0) {
      raise(PyExc_TypeError, kind.what + " takes keyword arguments alone");
    }
    RecordFiller filler(kind);
    PyObject *name = nullptr;
    PyObject *value = nullptr;
    Py_ssize_t at = 0;
    while (keywords != nullptr && PyDict_Next(keywords, &at, &name, &value) != 0) {
      filler.set(name, value);
    }
    filler.finish();
    return make_record(kind, filler.data());
  });
}

const Field *shown_field(const RecordKind &kind, PyObject *name) {
  for (size_t i = 0; i < kind.labels.size(); ++i) {
    if (kind.labels[i] == name) return &kind.record->fields[i];
  }
  return nullptr;
}

PyObject *get_attribute(PyObject *self, PyObject *name) {
  return guarded([&] {
    const RecordObject &record = *cast(self);
    const Field *field = shown_field(*record.kind, name);
    std::string_view wanted = text_of(name);
    if (field == nullptr && !wanted.starts_with('_')) {
      if (wanted.ends_with('_')) wanted.remove_suffix(1);
      field = tesselctl::find_field(*record.kind->record, wanted);
    }
    if (field != nullptr) return from_value(*field, tesselctl::load_value(*field, record.bytes));
    return checked(PyObject_GenericGetAttr(self, name));
  });
}

// The shown fields with their values, in a dict.
Ref fields_of(const RecordObject &record) {
  Ref dict(PyDict_New());
  for (size_t i = 0; i < record.kind->labels.size(); ++i) {
    const Field &field = record.kind->record->fields[i];
    const Ref value(from_value(field, tesselctl::load_value(field, record.bytes)));
    check(PyDict_SetItem(dict.get(), record.kind->labels[i], value.get()));
  }
  return dict;
}

PyObject *represent(PyObject *self) {
  return guarded([&] {
    const RecordObject &record = *cast(self);
    std::string shown;
    for (size_t i = 0; i < record.kind->labels.size(); ++i) {
      const Field &field = record.kind->record->fields[i];
      const tesselctl::FieldValue value = tesselctl::load_value(field, record.bytes);
      if (field.match == tesselctl::Match::ternary && value.mask.is_zero()) continue;
      const Ref part(PyObject_Repr(Ref(from_value(field, value)).get()));
      shown += fmt::format("{}{}={}", shown.empty() ? "" : ", ", field.label, text_of(part.get()));
    }
    return text(fmt::format("{}({})", type_name(self), shown));
  });
}

// By what the fields hold: bytes between them do not count, nor do bits that nothing reads.
bool are_equal(const RecordObject &a, const RecordObject &b) {
  if (a.kind != b.kind) return false;
  for (const Field &field : a.kind->record->shown()) {
    if (tesselctl::load_value(field, a.bytes) != tesselctl::load_value(field, b.bytes))
      return false;
  }
  return true;
}

PyObject *compare(PyObject *self, PyObject *other, int operation) {
  const RecordObject *record = as_record(other);
  if (record == nullptr || (operation != Py_EQ && operation != Py_NE)) {
    return Py_NewRef(Py_NotImplemented);
  }
  return PyBool_FromLong(are_equal(*cast(self), *record) == (operation == Py_EQ));
}

Py_hash_t hash(PyObject *self) {
  const RecordObject &record = *cast(self);
  uint64_t mixed = reinterpret_cast<uintptr_t>(record.kind);
  for (const Field &field : record.kind->record->shown()) {
    const tesselctl::FieldValue value = tesselctl::load_value(field, record.bytes);
    for (const uint64_t part :
         {value.value.high, value.value.low, value.mask.high, value.mask.low}) {
      mixed = (mixed ^ part) * 0x9e3779b97f4a7c15u;
      mixed ^= mixed >> 29;
    }
  }
  const auto result = static_cast<Py_hash_t>(mixed);
  return result == -1 ? -2 : result;
}

int get_buffer(PyObject *self, Py_buffer *view, int flags) {
  const RecordObject *record = cast(self);
  return PyBuffer_FillInfo(view, self, const_cast<uint8_t *>(record->bytes),
                           static_cast<Py_ssize_t>(record->kind->record->size), 1, flags);
}

void deallocate(PyObject *self) {
  PyTypeObject *type = Py_TYPE(self);
  PyObject_Free(self);
  Py_DECREF(type);
}

PyObject *as_dict(PyObject *self, PyObject * /*unused*/) {
  return guarded([&] { return fields_of(*cast(self)).release(); });
}

PyObject *replaced(PyObject *self, PyObject *arguments, PyObject *keywords) {
  return guarded([&] {
    const RecordKind &kind = *cast(self)->kind;
    if (PyTuple_Size(arguments) != 0) {
      raise(PyExc_TypeError, kind.what + "._replace takes keyword arguments alone");
    }
    Ref made(make_record(kind, cast(self)->bytes));
    PyObject *name = nullptr;
    PyObject *value = nullptr;
    Py_ssize_t at = 0;
    while (keywords != nullptr && PyDict_Next(keywords, &at, &name, &value) != 0) {
      const Field &field = field_of(kind, name);
      tesselctl::store_value(field, field_value(kind, field, value),
                             reinterpret_cast<RecordObject *>(made.get())->bytes);
    }
    return made.release();
  });
}

// What makes the record again, for copy and pickle.
PyObject *new_arguments(PyObject *self, PyObject * /*unused*/) {
  return guarded([&] { return Py_BuildValue("(()N)", fields_of(*cast(self)).release()); });
}

PyObject *masked(PyObject *self, PyObject *name) {
  return guarded([&] {
    const RecordObject &record = *cast(self);
    const Field &field = field_of(*record.kind, name);
    const tesselctl::FieldValue value = tesselctl::load_value(field, record.bytes);
    const Ref number(from_number(value.value));
    const Ref mask(from_number(value.mask));
    return checked(PyTuple_Pack(2, number.get(), mask.get()));
  });
}

PyObject *from_bytes(PyObject *type, PyObject *source) {
  return guarded([&] {
    const RecordKind &kind = kind_of(reinterpret_cast<PyTypeObject *>(type));
    const Buffer bytes(source, PyBUF_SIMPLE);
    if (bytes.size() < kind.record->size) {
      raise(PyExc_ValueError,
            fmt::format("{} has {} bytes, not {}", kind.what, kind.record->size, bytes.size()));
    }
    return make_record(kind, bytes.data());
  });
}

PyObject *describe(PyObject *type, PyObject * /*unused*/) {
  return guarded([&] {
    const RecordKind &kind = kind_of(reinterpret_cast<PyTypeObject *>(type));
    Ref rows(PyList_New(0));
    for (const Field &field : kind.record->shown()) {
      const Ref row(Py_BuildValue("(s#s#ssI)", field.label.data(), field.label.size(),
                                  field.name.data(), field.name.size(),
                                  tesselctl::notation_name(field.notation),
                                  tesselctl::match_name(field.match), field.width));
      check(PyList_Append(rows.get(), row.get()));
    }
    return rows.release();
  });
}

PyMethodDef methods[] = {
    {"_asdict", as_dict, METH_NOARGS, PD_DOC("_asdict($self, /)", "The fields by name.")},
    {"_replace", method(replaced), METH_VARARGS | METH_KEYWORDS,
     PD_DOC("_replace($self, /, **fields)", "The same record with other values of some fields.")},
    {"__getnewargs_ex__", new_arguments, METH_NOARGS, "The arguments of a copy."},
    {"_masked", masked, METH_O,
     PD_DOC("_masked($self, name, /)", "Value and mask of a field, as ints.")},
    {"_from_bytes", from_bytes, METH_O | METH_CLASS,
     PD_DOC("_from_bytes($type, source, /)", "The record of these bytes, as C has it.")},
    {"_describe", describe, METH_NOARGS | METH_CLASS,
     PD_DOC("_describe($type, /)", "Of each field its label, name, notation, match and width.")},
    {nullptr, nullptr, 0, nullptr}};

// How a record is made, what it is, and what its fields take.
std::string doc_of(const RecordKind &kind, std::string_view what) {
  std::string arguments;
  std::string fields;
  for (const Field &field : kind.record->shown()) {
    const bool is_ternary = field.match == tesselctl::Match::ternary;
    arguments += fmt::format("{}{}{}", arguments.empty() ? "*, " : ", ", argument_name(field.label),
                             kind.may_lack_fields ? "=0"
                             : is_ternary         ? "='*'"
                                                  : "");
    const bool is_exact = field.match == tesselctl::Match::exact;
    fields += fmt::format("\n{}: {} of {} bit{}{}{}", field.label,
                          tesselctl::notation_name(field.notation), field.width,
                          field.width == 1 ? "" : "s", is_exact ? "" : ", ",
                          is_exact ? "" : tesselctl::match_name(field.match));
  }
  return fmt::format(PD_DOC("{}({})", "{}\n{}"), kind.record->name, arguments, what, fields);
}

}  // namespace

void make_record_base(PyObject *module) {
  PyType_Slot slots[] = {{Py_tp_new, reinterpret_cast<void *>(new_record)},
                         {Py_tp_dealloc, reinterpret_cast<void *>(deallocate)},
                         {Py_tp_getattro, reinterpret_cast<void *>(get_attribute)},
                         {Py_tp_repr, reinterpret_cast<void *>(represent)},
                         {Py_tp_richcompare, reinterpret_cast<void *>(compare)},
                         {Py_tp_hash, reinterpret_cast<void *>(hash)},
                         {Py_tp_methods, methods},
                         {Py_bf_getbuffer, reinterpret_cast<void *>(get_buffer)},
                         doc_slot(PD_DOC("Record(**fields)",
                                         "The fields of a key, an action, or another record; it "
                                         "never changes.")),
                         {0, nullptr}};
  base =
      make_type("pd.Record", sizeof(RecordObject), slots, Py_TPFLAGS_DEFAULT | Py_TPFLAGS_BASETYPE);
  check(PyModule_AddObjectRef(module, "Record", reinterpret_cast<PyObject *>(base)));
}

RecordKind *make_record_kind(const bindings::Record &record, std::string type_name,
                             const std::string &note, bool may_lack_fields) {
  auto kind = std::make_unique<RecordKind>();
  kind->record = &record;
  kind->what = record.name;
  kind->type_name = std::move(type_name);
  kind->may_lack_fields = may_lack_fields;
  Ref names(PyTuple_New(static_cast<Py_ssize_t>(record.shown_count)));
  for (const Field &field : record.shown()) {
    const std::string label(field.label);
    kind->labels.push_back(checked(PyUnicode_InternFromString(label.c_str())));
    check(PyTuple_SetItem(names.get(), static_cast<Py_ssize_t>(kind->labels.size() - 1),
                          Py_NewRef(kind->labels.back())));
  }
  const std::string doc = doc_of(*kind, note);
  PyType_Slot slots[] = {doc_slot(doc.c_str()), {0, nullptr}};
  kind->type = make_type(kind->type_name.c_str(), offsetof(RecordObject, bytes) + record.size + 1,
                         slots, Py_TPFLAGS_DEFAULT, reinterpret_cast<PyObject *>(base));
  check(PyObject_SetAttrString(reinterpret_cast<PyObject *>(kind->type), "__match_args__",
                               names.get()));
  kinds()[kind->type] = kind.get();
  return kind.release();
}

PyObject *make_record(const RecordKind &kind, const void *bytes) {
  auto *record = allocate<RecordObject>(kind.type);
  record->kind = &kind;
  if (kind.record->size != 0) memcpy(record->bytes, bytes, kind.record->size);
  return reinterpret_cast<PyObject *>(record);
}

const RecordObject *as_record(PyObject *object) {
  return PyObject_TypeCheck(object, base) ? cast(object) : nullptr;
}

const Field &field_of(const RecordKind &kind, PyObject *name) {
  if (const Field *field = shown_field(kind, name)) return *field;
  if (!PyUnicode_Check(name)) raise(PyExc_TypeError, kind.what + ": the name of a field is a str");
  std::string_view wanted = text_of(name);
  if (wanted.size() > 1 && wanted.ends_with('_')) wanted.remove_suffix(1);
  try {
    return tesselctl::find_field(*kind.record, {wanted, 1}, kind.what);
  } catch (const Fault &fault) {
    raise(PyExc_TypeError, fault.sentence());
  }
}

tesselctl::FieldValue field_value(const RecordKind &kind, const Field &field, PyObject *value,
                                  Values values) {
  try {
    return values == Values::one ? to_single(field, value) : to_value(field, value);
  } catch (const Fault &fault) {
    raise(PyExc_ValueError, fmt::format("{}.{}: {}", kind.what, field.label, fault.sentence()));
  }
}

void RecordFiller::set(PyObject *name, PyObject *value) {
  const Field &field = field_of(kind_, name);
  try {
    writer_.give(field, {field.label, 1});
  } catch (const Fault &fault) {
    raise(PyExc_TypeError, fmt::format("{}: {}", kind_.what, fault.sentence()));
  }
  writer_.store(field, field_value(kind_, field, value, values_));
}

void RecordFiller::finish() {
  if (kind_.may_lack_fields) return;
  try {
    writer_.finish({});
  } catch (const Fault &fault) {
    raise(PyExc_TypeError, fault.sentence());
  }
}

}  // namespace python
