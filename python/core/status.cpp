#include "python/core/status.hpp"

#include <cctype>
#include <map>

#include "bf_types.h"
#include "p4_pd_types.h"
#include "tesselctl/program/status.hpp"

namespace python {

namespace {

using tesselctl::StatusWords;

PyObject *base = nullptr;

std::map<uint32_t, PyObject *> &classes() {
  static std::map<uint32_t, PyObject *> all;
  return all;
}

// "TableFull" of "BF_TABLE_FULL".
std::string class_name(std::string_view constant) {
  for (const std::string_view prefix : {"BF_", "P4_PD_"}) {
    if (constant.starts_with(prefix)) constant.remove_prefix(prefix.size());
  }
  std::string name;
  bool begins = true;
  for (const char c : constant) {
    const auto letter = static_cast<unsigned char>(c);
    if (c != '_') name += static_cast<char>(begins ? c : std::tolower(letter));
    begins = c == '_';
  }
  return name;
}

void set_words(PyObject *object, uint32_t status, const StatusWords &words) {
  check(PyObject_SetAttrString(object, "status", Ref(PyLong_FromUnsignedLong(status)).get()));
  check(PyObject_SetAttrString(object, "name", Ref(text(words.name)).get()));
  check(PyObject_SetAttrString(object, "text", Ref(text(words.text)).get()));
}

void add_class(PyObject *module, uint32_t status) {
  const StatusWords words = tesselctl::status_words(status);
  const std::string name = class_name(words.name);
  PyObject *made =
      checked(PyErr_NewExceptionWithDoc(("pd.errors." + name).c_str(), words.text, base, nullptr));
  set_words(made, status, words);
  check(PyModule_AddObjectRef(module, name.c_str(), made));
  classes()[status] = made;
}

}  // namespace

void add_statuses(PyObject *module) {
  base = checked(PyErr_NewExceptionWithDoc("pd.errors.StatusError",
                                           "A call returned another status than BF_SUCCESS.",
                                           nullptr, nullptr));
  check(PyModule_AddObjectRef(module, "StatusError", base));
  for (uint32_t status = BF_NOT_READY; status <= BF_TABLE_MISS; ++status) {
    add_class(module, status);
  }
  for (uint32_t status = P4_PD_NULL_ARGUMENT; p4_pd_describe_status(status).name != nullptr;
       ++status) {
    add_class(module, status);
  }
  add_class(module, P4_PD_MEMBER_KEEPS_ACTION);
}

Ref status_error(uint64_t status, const std::string &context) {
  const auto number = static_cast<uint32_t>(status);
  const auto found = classes().find(number);
  const bool is_known = found != classes().end();
  const std::string sentence = context + ": " + tesselctl::status_text(number);
  Ref error(PyObject_CallFunction(is_known ? found->second : base, "s#", sentence.data(),
                                  static_cast<Py_ssize_t>(sentence.size())));
  if (!is_known) set_words(error.get(), number, tesselctl::status_words(number));
  return error;
}

void raise_status(uint64_t status, const std::string &context) {
  const Ref error = status_error(status, context);
  PyErr_SetObject(reinterpret_cast<PyObject *>(Py_TYPE(error.get())), error.get());
  throw Raised{};
}

}  // namespace python
