#include "python/core/program.hpp"

#include <fmt/format.h>

#include <filesystem>
#include <map>

#include "python/core/function.hpp"
#include "python/core/status.hpp"
#include "python/core/structure.hpp"
#include "soft_sdk.h"
#include "tesselctl/program/library.hpp"
#include "tesselctl/program/module.hpp"

namespace python {

namespace {

PyTypeObject *program_type = nullptr;

// What each device runs.
const Program *running[SOFT_DEVICE_LIMIT] = {};

struct List {
  std::string_view name;
  bindings::RecordList bindings::Binding::*records;
  std::string_view note;
  bool may_lack_fields = false;  // what packets carry: nobody states all of it
};
constexpr List kLists[] = {{"keys", &bindings::Binding::tables, "The key of the table"},
                           {"actions", &bindings::Binding::actions, "The action"},
                           {"digests", &bindings::Binding::digests, "An entry of the digest", true},
                           {"triggers", &bindings::Binding::triggers, "What triggers snapshots of"},
                           {"packets", &bindings::Binding::packets, "What packets carry in", true},
                           {"captures", &bindings::Binding::captures, "What is captured by"}};

const List *list_of(const bindings::Binding &binding, const bindings::Record &record) {
  for (const List &list : kLists) {
    const auto rows = (binding.*list.records).list();
    if (&record >= rows.data() && &record < rows.data() + rows.size()) return &list;
  }
  return nullptr;
}

}  // namespace

void check_device(const Program &program, uint32_t device) {
  const Program *found = device < SOFT_DEVICE_LIMIT ? running[device] : nullptr;
  if (found == nullptr || found == &program) return;
  raise(PyExc_ValueError, fmt::format("device {} runs {}, and the session is of {}", device,
                                      found->binding().program, program.binding().program));
}
void forget_device(uint32_t device) {
  if (device < SOFT_DEVICE_LIMIT) running[device] = nullptr;
}

std::string_view pointed_type(std::string_view type) {
  if (type.starts_with("const ")) type.remove_prefix(6);
  while (type.ends_with('*') || type.ends_with(' ')) type.remove_suffix(1);
  return type;
}

const bindings::Export *Program::function(std::string_view name) {
  if (by_name_.empty()) {
    for (size_t i = 0; i < binding_.list_count; ++i) {
      const bindings::ExportList &list = *binding_.lists[i];
      for (size_t j = 0; j < list.count; ++j) by_name_.emplace(list.rows[j].name, &list.rows[j]);
    }
  }
  const auto found = by_name_.find(name);
  return found == by_name_.end() ? nullptr : found->second;
}

const RecordKind &Program::kind(const bindings::Record &record) {
  const RecordKind *&kind = kinds_[&record];
  if (kind == nullptr) {
    const List *list = list_of(binding_, record);
    if (list == nullptr) throw std::logic_error("a record of no list");
    kind =
        make_record_kind(record, fmt::format("{}.{}.{}", binding_.program, list->name, record.name),
                         fmt::format("{} {}.", list->note, record.name), list->may_lack_fields);
  }
  return *kind;
}

const RecordKind &Program::action(std::string_view name) {
  const bindings::Record *record = find_record("actions", name);
  if (record == nullptr) throw std::logic_error("there is no action " + std::string(name));
  return kind(*record);
}

const bindings::Record *Program::find_record(std::string_view list, std::string_view name) const {
  for (const List &known : kLists) {
    if (known.name != list) continue;
    return tesselctl::find_record((binding_.*known.records).list(), name);
  }
  return nullptr;
}

const bindings::Record *Program::record_of_type(std::string_view type) const {
  type = pointed_type(type);
  const std::string prefix = fmt::format("p4_pd_{}_", binding_.program);
  if (!type.starts_with(prefix)) return nullptr;
  type.remove_prefix(prefix.size());
  if (type == "snapshot_capture_t") {
    return binding_.captures.count == 0 ? nullptr : binding_.captures.rows;
  }
  for (const auto &[ending, list] :
       {std::pair{"_match_spec_t", "keys"}, std::pair{"_action_spec_t", "actions"}}) {
    if (!type.ends_with(ending)) continue;
    return find_record(list, type.substr(0, type.size() - std::string_view(ending).size()));
  }
  return nullptr;
}

// ---- As a Python object ----

namespace {

PyObject *wrap_function(PyObject *self, const bindings::Export *found) {
  return found == nullptr ? none() : make_function(program_of(self), *found);
}

PyObject *get_function(PyObject *self, PyObject *name) {
  return guarded([&] { return wrap_function(self, program_of(self).function(text_of(name))); });
}

PyObject *get_export(PyObject *self, PyObject *arguments) {
  return guarded([&] {
    const char *family = nullptr;
    const char *object = "";
    const char *action = "";
    if (PyArg_ParseTuple(arguments, "s|ss", &family, &object, &action) == 0) throw Raised{};
    return wrap_function(self, program_of(self).find(family, object, action));
  });
}

PyObject *get_functions(PyObject *self, PyObject * /*unused*/) {
  return guarded([&] {
    const bindings::Binding &binding = program_of(self).binding();
    Ref names(PyList_New(0));
    for (size_t i = 0; i < binding.list_count; ++i) {
      for (size_t j = 0; j < binding.lists[i]->count; ++j) {
        check(PyList_Append(names.get(), Ref(text(binding.lists[i]->rows[j].name)).get()));
      }
    }
    return names.release();
  });
}

PyObject *get_record(PyObject *self, PyObject *arguments) {
  return guarded([&] {
    const char *list = nullptr;
    const char *name = nullptr;
    if (PyArg_ParseTuple(arguments, "ss", &list, &name) == 0) throw Raised{};
    Program &program = program_of(self);
    const bindings::Record *record = program.find_record(list, name);
    if (record == nullptr) return none();
    return Py_NewRef(reinterpret_cast<PyObject *>(program.kind(*record).type));
  });
}

template <class Row>
Ref action_names(const Row &row) {
  Ref names(PyList_New(0));
  for (const soft_action_t &action : std::span(row.actions, row.action_count)) {
    check(PyList_Append(names.get(), Ref(text(action.name)).get()));
  }
  return names;
}

const char *table_name(const soft_program_t &program, uint32_t handle) {
  for (const soft_table_t &table : std::span(program.tables, program.table_count)) {
    if (table.handle == handle) return table.name;
  }
  return nullptr;
}

// The objects of a kind: a dict of what there is to know of each, by name.
template <class Row, class Describe>
Ref objects(const Row *rows, uint32_t count, Describe describe) {
  Ref all(PyDict_New());
  for (const Row &row : std::span(rows, count)) {
    check(PyDict_SetItemString(all.get(), row.name, Ref(describe(row)).get()));
  }
  return all;
}

Ref table_objects(const soft_program_t &program) {
  return objects(program.tables, program.table_count, [&](const soft_table_t &table) {
    const char *profile = nullptr;
    for (const soft_profile_t &row : std::span(program.profiles, program.profile_count)) {
      if (row.action_data_table == table.action_data_table) profile = row.name;
    }
    return Py_BuildValue("{sIsNszsOsO}", "handle", table.handle, "actions",
                         action_names(table).release(), "profile", profile, "ternary",
                         table.match == SOFT_TERNARY ? Py_True : Py_False, "ages",
                         table.ages_entries ? Py_True : Py_False);
  });
}

Ref cell_objects(const soft_program_t &program, std::string_view kind) {
  if (kind == "counters") {
    return objects(program.counters, program.counter_count, [&](const soft_counter_t &row) {
      return Py_BuildValue("{sIsz}", "handle", row.handle, "table", table_name(program, row.table));
    });
  }
  return objects(program.meters, program.meter_count, [&](const soft_meter_t &row) {
    return Py_BuildValue("{sIszsI}", "handle", row.handle, "table", table_name(program, row.table),
                         "unit", row.unit);
  });
}

Ref objects_of(const soft_program_t &program, std::string_view kind) {
  if (kind == "tables") return table_objects(program);
  if (kind == "counters" || kind == "meters") return cell_objects(program, kind);
  if (kind == "profiles") {
    return objects(program.profiles, program.profile_count, [](const soft_profile_t &row) {
      return Py_BuildValue("{sIsIsN}", "handle", row.action_data_table, "selector", row.selector,
                           "actions", action_names(row).release());
    });
  }
  const auto by_handle = [](const auto &row) {
    return Py_BuildValue("{sI}", "handle", row.handle);
  };
  if (kind == "registers") {
    return objects(program.registers, program.register_count, [](const soft_register_t &row) {
      return Py_BuildValue("{sIsI}", "handle", row.handle, "width", unsigned{row.width});
    });
  }
  if (kind == "hashes") return objects(program.hashes, program.hash_count, by_handle);
  if (kind == "digests") return objects(program.digests, program.digest_count, by_handle);
  if (kind == "value_sets") return objects(program.value_sets, program.value_set_count, by_handle);
  raise(PyExc_ValueError, "no objects are called " + std::string(kind));
}

PyObject *get_objects(PyObject *self, PyObject *kind) {
  return guarded(
      [&] { return objects_of(program_of(self).description(), text_of(kind)).release(); });
}

PyObject *get_records(PyObject *self, PyObject *name) {
  return guarded([&] {
    Ref names(PyList_New(0));
    const std::string_view wanted = text_of(name);
    for (const List &list : kLists) {
      if (list.name != wanted) continue;
      for (const bindings::Record &record : (program_of(self).binding().*list.records).list()) {
        check(PyList_Append(names.get(), Ref(text(record.name)).get()));
      }
    }
    return names.release();
  });
}

template <class Row>
const char *action_of_handle(const Row *rows, uint32_t count, uint32_t handle) {
  for (const Row &row : std::span(rows, count)) {
    for (const soft_action_t &action : std::span(row.actions, row.action_count)) {
      if (action.handle == handle) return action.name;
    }
  }
  return nullptr;
}

PyObject *action_name(PyObject *self, PyObject *number) {
  return guarded([&] {
    const auto handle = static_cast<uint32_t>(unsigned_of(number, 4, "action"));
    const soft_program_t &program = program_of(self).description();
    const char *name = action_of_handle(program.tables, program.table_count, handle);
    if (name == nullptr) {
      name = action_of_handle(program.profiles, program.profile_count, handle);
    }
    return name == nullptr ? none() : text(name);
  });
}

PyObject *create_device(PyObject *self, PyObject *arguments) {
  return guarded([&] {
    PyObject *device = nullptr;
    PyObject *pipes = nullptr;
    int is_virtual = 0;
    if (PyArg_ParseTuple(arguments, "OOp", &device, &pipes, &is_virtual) == 0) throw Raised{};
    const auto id = static_cast<uint32_t>(unsigned_of(device, 4, "device"));
    const auto count = static_cast<uint32_t>(unsigned_of(pipes, 4, "pipes"));
    const Program &program = program_of(self);
    if (id >= SOFT_DEVICE_LIMIT)
      raise(PyExc_ValueError,
            fmt::format("a device is 0 to {}, not {}", SOFT_DEVICE_LIMIT - 1, id));
    if (count == 0 || count > SOFT_PIPE_LIMIT)
      raise(PyExc_ValueError,
            fmt::format("a device has 1 to {} pipes, not {}", SOFT_PIPE_LIMIT, count));
    const uint32_t status = [&] {
      const Unlocked unlocked;
      return soft_device_create(id, count, &program.description(), is_virtual != 0);
    }();
    check_status(status, fmt::format("device {}", id));
    running[id] = &program;
    return none();
  });
}

PyObject *get_routes(PyObject *self, void * /*unused*/) {
  return guarded([&] {
    const bindings::Routes &routes = program_of(self).binding().routes;
    Ref tables(PyList_New(0));
    for (size_t i = 0; i < routes.table_count; ++i) {
      check(PyList_Append(tables.get(), Ref(text(routes.tables[i])).get()));
    }
    return Py_BuildValue("(Nz)", tables.release(), routes.action);
  });
}
PyObject *get_name(PyObject *self, void * /*unused*/) {
  return guarded([&] { return text(program_of(self).binding().program); });
}
PyObject *represent(PyObject *self) {
  return guarded(
      [&] { return text(fmt::format("<Program {}>", program_of(self).binding().program)); });
}
PyObject *get_version(PyObject *self, void * /*unused*/) {
  return guarded([&] { return text(program_of(self).binding().library_version); });
}
PyObject *get_capture_limit(PyObject *self, void * /*unused*/) {
  return guarded([&] { return PyLong_FromSize_t(program_of(self).binding().capture_limit); });
}

PyMethodDef methods[] = {
    {"function", get_function, METH_O,
     PD_DOC("function($self, name, /)", "The function of that C name, or None.")},
    {"functions", get_functions, METH_NOARGS,
     PD_DOC("functions($self, /)", "The C names of all functions.")},
    {"export", get_export, METH_VARARGS,
     PD_DOC("export($self, family, object='', action='', /)",
            "The function of a family, object and action, or None.")},
    {"record", get_record, METH_VARARGS,
     PD_DOC("record($self, list, name, /)", "The type of a record, or None.")},
    {"records", get_records, METH_O,
     PD_DOC("records($self, list, /)", "The names of a list of records.")},
    {"objects", get_objects, METH_O,
     PD_DOC("objects($self, kind, /)", "The objects of a kind, described by name.")},
    {"action_name", action_name, METH_O,
     PD_DOC("action_name($self, handle, /)", "The name of an action by its handle, or None.")},
    {"create_device", create_device, METH_VARARGS,
     PD_DOC("create_device($self, id, pipes, virtual, /)", "Creates a soft device.")},
    {nullptr, nullptr, 0, nullptr}};
PyGetSetDef members[] = {
    {"name", get_name, nullptr, "The name of the program.", nullptr},
    {"version", get_version, nullptr, "The version of its library.", nullptr},
    {"routes", get_routes, nullptr, "The tables of routes, and the action of a next hop.", nullptr},
    {"capture_limit", get_capture_limit, nullptr, "How many stages a snapshot may capture.",
     nullptr},
    {nullptr, nullptr, nullptr, nullptr, nullptr}};

PyObject *load(PyObject * /*module*/, PyObject *path) {
  return guarded([&] {
    // Never destroyed: calls may be in progress when the process ends.
    static auto &loaded = *new std::map<const bindings::Binding *, std::unique_ptr<Program>>;
    const Ref file(PyOS_FSPath(path));
    try {
      const bindings::Binding &binding = tesselctl::open_module(text_of(file.get()));
      std::unique_ptr<Program> &program = loaded[&binding];
      if (program == nullptr) program = std::make_unique<Program>(binding);
      auto *made = allocate<ProgramObject>(program_type);
      made->program = program.get();
      return reinterpret_cast<PyObject *>(made);
    } catch (const tesselctl::Fault &fault) {
      raise(PyExc_ImportError, fault.sentence());
    } catch (const std::filesystem::filesystem_error &error) {
      raise(PyExc_ImportError, error.what());
    }
  });
}

PyMethodDef functions[] = {{"load", load, METH_O, "The program of a module, by its file."},
                           {nullptr, nullptr, 0, nullptr}};

}  // namespace

void add_program(PyObject *module) {
  PyType_Slot slots[] = {{Py_tp_methods, methods},
                         {Py_tp_getset, members},
                         {Py_tp_repr, reinterpret_cast<void *>(represent)},
                         doc_slot("A P4 program that was loaded."),
                         {0, nullptr}};
  program_type = make_type("pd.Program", sizeof(ProgramObject), slots,
                           Py_TPFLAGS_DEFAULT | Py_TPFLAGS_DISALLOW_INSTANTIATION);
  check(PyModule_AddObjectRef(module, "Program", reinterpret_cast<PyObject *>(program_type)));
  check(PyModule_AddFunctions(module, functions));
}

Program &program_of(PyObject *object) {
  if (Py_TYPE(object) != program_type) raise(PyExc_TypeError, "this is no program");
  return *reinterpret_cast<ProgramObject *>(object)->program;
}

}  // namespace python
