// What every file of the extension stands on: references to Python objects, and errors as C++
// exceptions up to the border, where guarded makes Python exceptions of them.
#pragma once

#include <new>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

#include "python/core/unlocked.hpp"
#include "tesselctl/text/fault.hpp"

namespace python {

// A Python exception is set.
struct Raised {};

[[noreturn]] inline void raise(PyObject *type, const std::string &text) {
  PyErr_SetString(type, text.c_str());
  throw Raised{};
}
inline PyObject *checked(PyObject *object) {
  if (object == nullptr) throw Raised{};
  return object;
}
inline void check(int result) {
  if (result < 0) throw Raised{};
}

// Owns a reference.
class Ref {
 public:
  Ref() = default;
  // Takes over what the caller owns; throws Raised for null.
  explicit Ref(PyObject *owned) : object_(checked(owned)) {}
  Ref(const Ref &other) : object_(Py_XNewRef(other.object_)) {}
  Ref(Ref &&other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  Ref &operator=(Ref other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~Ref() {
    if (object_ != nullptr && may_release()) Py_DECREF(object_);
  }
  static Ref borrowed(PyObject *object) { return Ref(Py_XNewRef(object)); }

  PyObject *get() const { return object_; }
  PyObject *release() { return std::exchange(object_, nullptr); }
  explicit operator bool() const { return object_ != nullptr; }

 private:
  PyObject *object_ = nullptr;
};

// Runs a body; what it throws is the Python exception of the failure.
template <class Body, class Result>
Result guarded(Body body, Result failure) noexcept {
  try {
    return until_end(body);
  } catch (const Raised &) {
  } catch (const tesselctl::Fault &fault) {
    PyErr_SetString(PyExc_ValueError, fault.sentence().c_str());
  } catch (const std::bad_alloc &) {
    PyErr_NoMemory();
  } catch (const std::exception &error) {
    PyErr_SetString(PyExc_RuntimeError, error.what());
  }
  return failure;
}
template <class Body>
PyObject *guarded(Body body) noexcept {
  return guarded(body, static_cast<PyObject *>(nullptr));
}

inline PyObject *text(std::string_view value) {
  return checked(PyUnicode_FromStringAndSize(value.data(), static_cast<Py_ssize_t>(value.size())));
}
inline std::string type_name(PyObject *object);
// Lives as long as the object.
inline std::string_view text_of(PyObject *object, std::string_view what = "a name") {
  Py_ssize_t size = 0;
  const char *data = PyUnicode_AsUTF8AndSize(object, &size);
  if (data != nullptr) return {data, static_cast<size_t>(size)};
  if (!PyUnicode_Check(object)) {
    raise(PyExc_TypeError, std::string(what) + " is a str, not " + type_name(object));
  }
  throw Raised{};
}
inline std::string type_name(PyObject *object) {
  const Ref name(PyType_GetName(Py_TYPE(object)));
  return std::string(text_of(name.get()));
}
inline PyObject *none() { return Py_NewRef(Py_None); }

// The text of a method or a type behind the signature that inspect and help read off it.
#define PD_DOC(signature, text) signature "\n--\n\n" text

// A name as an argument: words of Python have a '_' behind them.
inline std::string argument_name(std::string_view name) {
  const Ref module(PyImport_ImportModule("keyword"));
  const Ref words(PyObject_GetAttrString(module.get(), "kwlist"));
  const int is_word = PySequence_Contains(words.get(), Ref(text(name)).get());
  check(is_word);
  return std::string(name) + (is_word != 0 ? "_" : "");
}

// The text of a type, as one of its slots.
inline PyType_Slot doc_slot(const char *text) { return {Py_tp_doc, const_cast<char *>(text)}; }
// A type of the extension; instances come from C alone unless it has Py_tp_new.
inline PyTypeObject *make_type(const char *name, size_t size, PyType_Slot *slots,
                               unsigned long flags = Py_TPFLAGS_DEFAULT, PyObject *base = nullptr) {
  PyType_Spec spec = {name, static_cast<int>(size), 0, static_cast<unsigned>(flags), slots};
  return reinterpret_cast<PyTypeObject *>(
      checked(base == nullptr ? PyType_FromSpec(&spec) : PyType_FromSpecWithBases(&spec, base)));
}
template <class T>
T *allocate(PyTypeObject *type) {
  return reinterpret_cast<T *>(checked(PyType_GenericAlloc(type, 0)));
}
template <class Function>
PyCFunction method(Function *function) {
  return reinterpret_cast<PyCFunction>(reinterpret_cast<void (*)()>(function));
}

}  // namespace python
