#include "python/core/function.hpp"

#include <fmt/format.h>

#include <memory>

#include "python/core/argument.hpp"
#include "tesselctl/program/c_call.hpp"

namespace python {

namespace {

PyTypeObject *function_type = nullptr;

struct FunctionObject {
  PyObject ob_base;
  Program *program;  // null for one of the soft SDK
  const bindings::Export *target;
  const std::vector<ParameterInfo> *parameters;
};

FunctionObject *cast(PyObject *object) { return reinterpret_cast<FunctionObject *>(object); }

PyObject *result_of(std::string_view type, uint64_t word) {
  if (type == "void") return none();
  if (type == "bool") return PyBool_FromLong(word != 0 ? 1 : 0);
  if (type == "int" || type == "int32_t") return PyLong_FromLong(static_cast<int32_t>(word));
  if (type == "const char *") {
    const auto *characters = reinterpret_cast<const char *>(static_cast<uintptr_t>(word));
    return characters == nullptr ? none() : text(characters);
  }
  return PyLong_FromUnsignedLongLong(
      type == "uint64_t" || type.ends_with('*') ? word : static_cast<uint32_t>(word));
}

PyObject *call(PyObject *self, PyObject *tuple, PyObject *keywords) {
  return guarded([&] {
    const FunctionObject &function = *cast(self);
    const bindings::Export &target = *function.target;
    if (keywords != nullptr && PyDict_Size(keywords) != 0) {
      raise(PyExc_TypeError, std::string(target.name) + " takes no keyword arguments");
    }
    Arguments arguments(function.program, target, *function.parameters);
    arguments.read(tuple);
    arguments.prepare();
    const uint64_t word = [&] {
      const Unlocked unlocked;
      return target.call(arguments.words());
    }();
    const std::string_view type = target.result;
    const bool is_status = type == "p4_pd_status_t" || type == "bf_status_t";
    arguments.finish(!is_status || static_cast<uint32_t>(word) == 0);
    return checked(result_of(type, word));
  });
}

void deallocate(PyObject *self) {
  PyTypeObject *type = Py_TYPE(self);
  delete cast(self)->parameters;
  PyObject_Free(self);
  Py_DECREF(type);
}

PyObject *represent(PyObject *self) {
  return PyUnicode_FromFormat("<function %s>", cast(self)->target->name);
}

PyObject *get_name(PyObject *self, void * /*unused*/) {
  return PyUnicode_FromString(cast(self)->target->name);
}
PyObject *get_result(PyObject *self, void * /*unused*/) {
  return PyUnicode_FromString(cast(self)->target->result);
}
PyObject *get_parameters(PyObject *self, void * /*unused*/) {
  return guarded([&] {
    Ref rows(PyList_New(0));
    for (const bindings::Parameter &parameter : cast(self)->target->parameter_list()) {
      const Ref row(Py_BuildValue("(ss)", parameter.type, parameter.name));
      check(PyList_Append(rows.get(), row.get()));
    }
    return rows.release();
  });
}

// The prototype, and what the header says about it.
PyObject *get_doc(PyObject *self, void * /*unused*/) {
  return guarded([&] {
    constexpr size_t kWidth = 90;
    const FunctionObject &function = *cast(self);
    std::string doc = tesselctl::wrapped_code(tesselctl::prototype(*function.target) + ";", kWidth);
    if (function.program != nullptr) {
      const bindings::Note &note = function.program->binding().notes[function.target->note];
      doc += fmt::format("\n{}\n{}", note.title, tesselctl::wrapped_text(note.text, kWidth));
    }
    return text(doc);
  });
}
PyObject *get_signature(PyObject *self, void * /*unused*/) {
  return guarded([&] {
    std::string names;
    for (const bindings::Parameter &parameter : cast(self)->target->parameter_list()) {
      names += argument_name(parameter.name) + ", ";
    }
    return text(fmt::format("({}{})", names, names.empty() ? "" : "/"));
  });
}
// A function of a class is called without its object. With __get__ it counts as a routine, of which
// inspect and help read signature and text.
PyObject *get_bound(PyObject *self, PyObject * /*object*/, PyObject * /*type*/) {
  return Py_NewRef(self);
}

PyGetSetDef members[] = {
    {"__name__", get_name, nullptr, "In C.", nullptr},
    {"__doc__", get_doc, nullptr, nullptr, nullptr},
    {"__text_signature__", get_signature, nullptr, nullptr, nullptr},
    {"result", get_result, nullptr, "The C type of the result.", nullptr},
    {"parameters", get_parameters, nullptr, "C type and name of each parameter.", nullptr},
    {nullptr, nullptr, nullptr, nullptr, nullptr}};

PyObject *make(Program *program, const bindings::Export &target) {
  auto parameters = std::make_unique<std::vector<ParameterInfo>>(parameters_of(program, target));
  auto *function = allocate<FunctionObject>(function_type);
  function->program = program;
  function->target = &target;
  function->parameters = parameters.release();
  return reinterpret_cast<PyObject *>(function);
}

}  // namespace

void add_function(PyObject *module) {
  PyType_Slot slots[] = {{Py_tp_call, reinterpret_cast<void *>(call)},
                         {Py_tp_dealloc, reinterpret_cast<void *>(deallocate)},
                         {Py_tp_repr, reinterpret_cast<void *>(represent)},
                         {Py_tp_descr_get, reinterpret_cast<void *>(get_bound)},
                         {Py_tp_getset, members},
                         {0, nullptr}};
  function_type = make_type("pd.Function", sizeof(FunctionObject), slots,
                            Py_TPFLAGS_DEFAULT | Py_TPFLAGS_DISALLOW_INSTANTIATION);
  check(PyModule_AddObjectRef(module, "Function", reinterpret_cast<PyObject *>(function_type)));
  // What a control plane does not call by itself: the soft SDK, by C name.
  const Ref soft(PyDict_New());
  for (const bindings::Export &target : soft_functions()) {
    check(PyDict_SetItemString(soft.get(), target.name, Ref(make(nullptr, target)).get()));
  }
  check(PyModule_AddObjectRef(module, "soft", soft.get()));
}

PyObject *make_function(Program &program, const bindings::Export &target) {
  return make(&program, target);
}

}  // namespace python
