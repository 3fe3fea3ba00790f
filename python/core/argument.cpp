#include "python/core/argument.hpp"

#include <fmt/format.h>

#include <algorithm>
#include <cstring>

#include "python/core/session.hpp"

namespace python {

namespace {

PyTypeObject *output_type = nullptr;

// The cookie of a callback.
bool is_cookie(const ParameterInfo &info) {
  const std::string_view name = info.parameter->name;
  return name == "cookie" || name == "client_data";
}

PyObject *new_output(PyTypeObject *type, PyObject * /*arguments*/, PyObject * /*keywords*/) {
  return PyType_GenericAlloc(type, 0);
}
void deallocate_output(PyObject *self) {
  PyTypeObject *type = Py_TYPE(self);
  Py_XDECREF(reinterpret_cast<OutputObject *>(self)->value);
  PyObject_Free(self);
  Py_DECREF(type);
}
PyObject *get_value(PyObject *self, void * /*unused*/) {
  PyObject *value = reinterpret_cast<OutputObject *>(self)->value;
  return Py_NewRef(value == nullptr ? Py_None : value);
}

PyGetSetDef output_members[] = {
    {"value", get_value, nullptr, "What the call wrote; None unless it succeeded.", nullptr},
    {nullptr, nullptr, nullptr, nullptr, nullptr}};

}  // namespace

void add_output(PyObject *module) {
  PyType_Slot slots[] = {{Py_tp_new, reinterpret_cast<void *>(new_output)},
                         {Py_tp_dealloc, reinterpret_cast<void *>(deallocate_output)},
                         {Py_tp_getset, output_members},
                         doc_slot(PD_DOC("Output()", "What a function of C writes, as a value.")),
                         {0, nullptr}};
  output_type = make_type("pd.Output", sizeof(OutputObject), slots);
  check(PyModule_AddObjectRef(module, "Output", reinterpret_cast<PyObject *>(output_type)));
}

OutputObject *as_output(PyObject *object) {
  return Py_TYPE(object) == output_type ? reinterpret_cast<OutputObject *>(object) : nullptr;
}

uint8_t *Arguments::room(size_t bytes) {
  rooms_.emplace_back(bytes / sizeof(uint64_t) + 1);
  return reinterpret_cast<uint8_t *>(rooms_.back().data());
}

uint64_t Arguments::integer_of_session(const ParameterInfo &info, PyObject *object) {
  const SessionObject &session = open_session(object);
  const std::string_view name = info.parameter->name;
  if (name == "session") return session.handle;
  if (name == "device") return session.target.device_id;
  if (name == "pipe") return session.target.pipe_id;
  raise(PyExc_TypeError, name_of(info) + " is an int, not a session");
}

uint64_t Arguments::integer(const ParameterInfo &info, PyObject *object) {
  if (is_session(object)) return integer_of_session(info, object);
  if (info.kind == ParameterKind::flag) return flag_of(object, name_of(info)) ? 1 : 0;
  if (!info.is_signed) return unsigned_of(object, info.size, name_of(info));
  if (!PyIndex_Check(object)) {
    raise(PyExc_TypeError, name_of(info) + " is an int, not " + type_name(object));
  }
  const Ref index(PyNumber_Index(object));
  int overflow = 0;
  const long value = PyLong_AsLongAndOverflow(index.get(), &overflow);
  if (overflow != 0 || value != static_cast<int32_t>(value)) {
    raise(PyExc_ValueError, fmt::format("{} is an int of 32 bits, not {}", name_of(info),
                                        text_of(Ref(PyObject_Str(index.get())).get())));
  }
  return static_cast<uint64_t>(static_cast<int64_t>(value));
}

size_t Arguments::bytes_of(const ParameterInfo &info) const {
  const size_t counted = info.count < 0 ? 1 : words_[info.count];
  size_t bytes = info.size * info.least * counted;
  if (info.reading != Reading::text) return bytes;
  for (const ParameterInfo &other : parameters_) {
    const uint64_t word = words_[&other - parameters_.data()];
    if (other.kind != ParameterKind::text || word == 0) continue;
    bytes += strlen(reinterpret_cast<const char *>(static_cast<uintptr_t>(word)));
  }
  return bytes;
}

uint64_t Arguments::callback(const ParameterInfo &info, PyObject *object) {
  if (object == Py_None) return 0;
  if (PyCallable_Check(object) == 0) {
    raise(PyExc_TypeError, name_of(info) + " is a callable or None, not " + type_name(object));
  }
  callable_ = object;
  return callback_function(info.parameter->type);
}

// A structure, or a sequence of structures or of numbers.
uint64_t Arguments::pointer_to_copies(const ParameterInfo &info, PyObject *object, size_t wanted) {
  uint8_t *bytes = room(wanted);
  if (!info.is_array()) {
    to_structure(*info.structure, object, bytes);
    return reinterpret_cast<uintptr_t>(bytes);
  }
  const Ref items(PySequence_List(object));
  if (PyList_Size(items.get()) < static_cast<Py_ssize_t>(wanted / info.size)) {
    raise(PyExc_ValueError, fmt::format("{} has {} elements, and the call needs {}", name_of(info),
                                        PyList_Size(items.get()), wanted / info.size));
  }
  for (size_t i = 0; i < wanted / info.size; ++i) {
    PyObject *item = PyList_GetItem(items.get(), static_cast<Py_ssize_t>(i));
    if (info.structure != nullptr) {
      to_structure(*info.structure, item, bytes + i * info.size);
    } else {
      const uint64_t number = unsigned_of(item, info.size, name_of(info));
      memcpy(bytes + i * info.size, &number, info.size);
    }
  }
  return reinterpret_cast<uintptr_t>(bytes);
}

uint64_t Arguments::pointer(const ParameterInfo &info, PyObject *object) {
  const auto word = [](const void *address) {
    return static_cast<uint64_t>(reinterpret_cast<uintptr_t>(address));
  };
  if (object == Py_None || is_cookie(info)) return 0;
  if (info.kind == ParameterKind::opaque) {
    if (const OpaqueObject *opaque = as_opaque(object)) return word(opaque->address);
    raise(PyExc_TypeError, name_of(info) + " is an object of the SDK, not " + type_name(object));
  }
  const size_t wanted = bytes_of(info);
  constexpr size_t kMostBytes = 64u << 20;
  if (wanted > kMostBytes) raise(PyExc_ValueError, name_of(info) + " would be too long");
  if (OutputObject *output = as_output(object); output != nullptr) {
    if (info.kind != ParameterKind::output || info.reading == Reading::none) {
      raise(PyExc_TypeError, name_of(info) + " takes a buffer, not an Output");
    }
    outputs_.push_back({&info, output, room(wanted), wanted});
    return word(outputs_.back().bytes);
  }
  if (info.kind == ParameterKind::input && PyObject_CheckBuffer(object) == 0 &&
      (info.structure != nullptr || info.count >= 0)) {
    return pointer_to_copies(info, object, wanted);
  }
  buffers_.emplace_back(object, info.kind == ParameterKind::output ? PyBUF_WRITABLE : PyBUF_SIMPLE);
  const Buffer &buffer = buffers_.back();
  if (buffer.size() >= wanted) return word(buffer.data());
  raise(PyExc_ValueError, fmt::format("{} has {} bytes, and the call needs {}", name_of(info),
                                      buffer.size(), wanted));
}

void Arguments::read(PyObject *tuple) {
  const Py_ssize_t given = PyTuple_Size(tuple);
  if (given != static_cast<Py_ssize_t>(parameters_.size())) {
    std::string names;
    for (const ParameterInfo &info : parameters_) {
      names += (names.empty() ? "" : ", ") + std::string(info.parameter->name);
    }
    raise(PyExc_TypeError, fmt::format("{} takes {} arguments ({}), not {}", target_.name,
                                       parameters_.size(), names, given));
  }
  const auto item = [&](size_t at) { return PyTuple_GetItem(tuple, static_cast<Py_ssize_t>(at)); };
  // A function that returns a status refuses null pointers itself.
  const bool takes_null = target_.result == std::string_view("bf_status_t") || program_ != nullptr;
  buffers_.reserve(parameters_.size());
  // Numbers first: they count the elements behind pointers.
  for (size_t i = 0; i < parameters_.size(); ++i) {
    const ParameterInfo &info = parameters_[i];
    if (info.kind == ParameterKind::integer || info.kind == ParameterKind::flag) {
      words_[i] = integer(info, item(i));
    } else if (info.kind == ParameterKind::structure) {
      uint8_t *bytes = room(info.size + info.structure->size);
      if (is_session(item(i)) && info.structure->type == "p4_pd_device_target_t") {
        memcpy(bytes, &open_session(item(i)).target, info.structure->size);
      } else {
        to_structure(*info.structure, item(i), bytes);
      }
      words_[i] = reinterpret_cast<uintptr_t>(bytes);
    } else if (info.kind == ParameterKind::text && item(i) != Py_None) {
      PyObject *given_text = item(i);
      const char *text = PyBytes_Check(given_text) ? PyBytes_AsString(given_text)
                                                   : text_of(given_text, name_of(info)).data();
      words_[i] = reinterpret_cast<uintptr_t>(text);
    }
  }
  for (size_t i = 0; i < parameters_.size(); ++i) {
    const ParameterInfo &info = parameters_[i];
    if (info.kind == ParameterKind::callback) {
      words_[i] = callback(info, item(i));
    } else if (info.kind >= ParameterKind::opaque) {
      words_[i] = pointer(info, item(i));
    }
    const bool is_null = words_[i] == 0 && info.kind >= ParameterKind::structure;
    if (is_null && !takes_null) raise(PyExc_TypeError, name_of(info) + " is not None");
  }
}

void Arguments::prepare() {
  const bool has_callback = std::ranges::any_of(
      parameters_, [](const ParameterInfo &info) { return info.kind == ParameterKind::callback; });
  if (!has_callback) return;
  uint32_t device = 0;
  for (size_t i = 0; i < parameters_.size(); ++i) {
    const std::string_view name = parameters_[i].parameter->name;
    if (name == "device") device = static_cast<uint32_t>(words_[i]);
    // A target begins with its device.
    if (name == "target") memcpy(&device, reinterpret_cast<void *>(words_[i]), sizeof device);
  }
  slot_ = &callback_slot(&target_, device);
  before_ = slot_->callable == nullptr ? Ref() : Ref::borrowed(slot_->callable);
  Py_XDECREF(std::exchange(slot_->callable, Py_XNewRef(callable_)));
  for (size_t i = 0; i < parameters_.size(); ++i) {
    if (is_cookie(parameters_[i])) words_[i] = reinterpret_cast<uintptr_t>(slot_);
  }
}

void Arguments::finish(bool is_good) {
  if (slot_ != nullptr && !is_good) {
    Py_XDECREF(std::exchange(slot_->callable, Py_XNewRef(before_.get())));
  }
  if (!is_good) return;
  for (const Pending &pending : outputs_) {
    PyObject *value = read_output(*pending.info, pending.bytes, pending.size);
    Py_XDECREF(std::exchange(pending.output->value, value));
  }
}

namespace {

PyObject *element(Program *program, const ParameterInfo &info, const uint8_t *bytes) {
  if (info.reading == Reading::structure) return from_structure(*info.structure, bytes);
  if (info.reading == Reading::record) return make_record(program->kind(*info.record), bytes);
  uint64_t number = 0;
  memcpy(&number, bytes, std::min<size_t>(info.size, sizeof number));
  if (info.reading == Reading::flag) return PyBool_FromLong(number != 0);
  return checked(PyLong_FromUnsignedLongLong(number));
}

PyObject *read_action(Program &program, const uint8_t *bytes) {
  uint32_t number = 0;
  memcpy(&number, bytes, sizeof number);
  for (const bindings::Record &action : program.binding().actions.list()) {
    if (action.number != number) continue;
    return make_record(program.kind(action), bytes + program.binding().sizes.action_spec);
  }
  return none();
}

}  // namespace

PyObject *Arguments::read_output(const ParameterInfo &info, const uint8_t *bytes, size_t size) {
  const auto *characters = reinterpret_cast<const char *>(bytes);
  switch (info.reading) {
    case Reading::text:
      return text({characters, strnlen(characters, size)});
    case Reading::bytes:
      return checked(PyBytes_FromStringAndSize(characters, static_cast<Py_ssize_t>(size)));
    case Reading::action:
      return read_action(*program_, bytes);
    default:
      break;
  }
  if (!info.is_array()) return element(program_, info, bytes);
  Ref list(PyList_New(0));
  for (size_t at = 0; at + info.size <= size; at += info.size) {
    check(PyList_Append(list.get(), Ref(element(program_, info, bytes + at)).get()));
  }
  return list.release();
}

}  // namespace python
