// The extension pd._core. It knows no program: it loads the module of one, and the soft SDK.
#include <dlfcn.h>

#include "common/nearest.hpp"
#include "python/core/argument.hpp"
#include "python/core/function.hpp"
#include "python/core/journal.hpp"
#include "python/core/session.hpp"
#include "python/core/status.hpp"
#include "python/core/structure.hpp"
#include "python/core/tables/table.hpp"
#include "soft_sdk.h"

namespace {

// Python loads extensions for themselves alone, but the libraries of programs take the SDK's
// functions from the process.
void share_sdk() {
  Dl_info info = {};
  if (dladdr(reinterpret_cast<void *>(soft_clock_now), &info) == 0 ||
      dlopen(info.dli_fname, RTLD_NOW | RTLD_NOLOAD | RTLD_GLOBAL) == nullptr) {
    python::raise(PyExc_ImportError, "the soft SDK cannot be shared with programs");
  }
}

// The functions that the SDK has for libraries.
void add_sdk_functions(PyObject *module) {
  const python::Ref names(PyList_New(0));
  for (const char *name : {
#include "sdk_functions.inc"
       }) {
    python::check(PyList_Append(names.get(), python::Ref(python::text(name)).get()));
  }
  python::check(PyModule_AddObjectRef(module, "sdk_functions", names.get()));
}

// (number, what it is, its most bytes: 4 unless given)
PyObject *unsigned_number(PyObject * /*module*/, PyObject *arguments) {
  return python::guarded([&] {
    PyObject *number = nullptr;
    const char *what = nullptr;
    unsigned bytes = 4;
    if (PyArg_ParseTuple(arguments, "Os|I", &number, &what, &bytes) == 0) throw python::Raised{};
    return PyLong_FromUnsignedLongLong(python::unsigned_of(number, bytes, what));
  });
}

PyObject *nearest(PyObject * /*module*/, PyObject *arguments) {
  return python::guarded([&] {
    const char *word = nullptr;
    PyObject *names = nullptr;
    if (PyArg_ParseTuple(arguments, "sO", &word, &names) == 0) throw python::Raised{};
    const python::Ref list(PySequence_List(names));
    common::Nearest near(word);
    for (Py_ssize_t i = 0; i < PyList_Size(list.get()); ++i) {
      near.consider(python::text_of(PyList_GetItem(list.get(), i)));
    }
    return python::text(near.name());
  });
}

PyMethodDef functions[] = {
    {"nearest", nearest, METH_VARARGS, "The name that was probably meant, or an empty one."},
    {"unsigned", unsigned_number, METH_VARARGS, "The int of so many bytes that a number is."},
    {nullptr, nullptr, 0, nullptr}};

PyModuleDef definition = {
    PyModuleDef_HEAD_INIT, "pd._core", nullptr, -1, functions, nullptr, nullptr, nullptr, nullptr};

}  // namespace

extern "C" __attribute__((visibility("default"))) PyObject *PyInit__core() {
  return python::guarded([] {
    share_sdk();
    python::Ref module(PyModule_Create(&definition));
    python::add_statuses(module.get());
    python::add_structures(module.get());
    python::make_record_base(module.get());
    python::add_output(module.get());
    python::add_opaque(module.get());
    python::add_function(module.get());
    python::add_program(module.get());
    python::add_session(module.get());
    python::add_table(module.get());
    python::add_soft(module.get());
    python::add_journal(module.get());
    add_sdk_functions(module.get());
    python::watch_process();
    python::check(PyModule_AddIntConstant(module.get(), "BF_ALL_PIPES", BF_ALL_PIPES));
    python::check(PyModule_AddStringConstant(module.get(), "modules", PD_MODULES_FROM_PACKAGES));
    return module.release();
  });
}
