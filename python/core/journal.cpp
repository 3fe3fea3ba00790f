// The calls that the soft SDK has recorded, as Python objects.
#include "python/core/journal.hpp"

#include <fmt/format.h>

#include <variant>

#include "python/core/callback.hpp"
#include "python/core/structure.hpp"
#include "soft_journal.hpp"

namespace python {

namespace {

using soft::journal::Argument;
using soft::journal::Bytes;
using soft::journal::Call;

PyObject *call_type = nullptr;

PyObject *bytes_of(const Bytes &bytes) {
  return checked(PyBytes_FromStringAndSize(reinterpret_cast<const char *>(bytes.data()),
                                           static_cast<Py_ssize_t>(bytes.size())));
}
PyObject *bytes_of(const std::optional<Bytes> &bytes) { return bytes ? bytes_of(*bytes) : none(); }

template <class Rows, class Make>
PyObject *list_of(const Rows &rows, Make make) {
  Ref list(PyList_New(0));
  for (const auto &row : rows) check(PyList_Append(list.get(), Ref(make(row)).get()));
  return list.release();
}

PyObject *cells_of(const std::vector<pipe_stful_cell_t> &cells) {
  return list_of(cells,
                 [](const pipe_stful_cell_t &cell) { return PyLong_FromUnsignedLong(cell.word); });
}

PyObject *to_python(const pipe_mgr_meter_spec_t &meter) {
  return Py_BuildValue("{sIsKsKsKsKsI}", "type", meter.type, "committed_rate",
                       meter.committed_rate.value, "committed_burst", meter.committed_burst,
                       "peak_rate", meter.peak_rate.value, "peak_burst", meter.peak_burst, "unit",
                       meter.committed_rate.unit);
}
PyObject *to_python(const pipe_mgr_resource_t &resource) {
  return Py_BuildValue("{sIsIsI}", "handle", resource.handle, "index", resource.index, "tag",
                       resource.tag);
}

// What a value of the journal is in Python.
struct ToPython {
  PyObject *operator()(const soft::journal::NullPointer & /*null*/) const { return none(); }
  PyObject *operator()(const soft::journal::Output & /*output*/) const {
    return Py_NewRef(Py_Ellipsis);
  }
  PyObject *operator()(const soft::journal::Opaque &opaque) const {
    return PyLong_FromUnsignedLongLong(opaque.address);
  }
  PyObject *operator()(uint64_t number) const { return PyLong_FromUnsignedLongLong(number); }
  PyObject *operator()(const std::string &value) const { return text(value); }
  PyObject *operator()(const Bytes &bytes) const { return bytes_of(bytes); }
  PyObject *operator()(const soft::journal::Words &words) const {
    return list_of(words, [](uint32_t word) { return PyLong_FromUnsignedLong(word); });
  }
  PyObject *operator()(const soft::journal::MatchSpec &match) const {
    return Py_BuildValue("{sNsNsI}", "value", bytes_of(match.value), "mask", bytes_of(match.mask),
                         "priority", match.priority);
  }
  PyObject *operator()(const soft::journal::ActionData &data) const { return bytes_of(data.bytes); }
  PyObject *operator()(const soft::journal::ActionSpec &action) const {
    return Py_BuildValue("{sIsNsIsIsN}", "type", action.type, "data", bytes_of(action.data.bytes),
                         "member", action.member, "group", action.group, "resources",
                         (*this)(action.resources));
  }
  PyObject *operator()(const std::vector<pipe_mgr_resource_t> &resources) const {
    return list_of(resources, [](const pipe_mgr_resource_t &row) { return to_python(row); });
  }
  PyObject *operator()(const pipe_mgr_meter_spec_t &meter) const { return to_python(meter); }
  PyObject *operator()(const pipe_mgr_counter_t &counter) const {
    return Py_BuildValue("{sKsK}", "bytes", counter.bytes, "packets", counter.packets);
  }
  PyObject *operator()(const std::vector<pipe_stful_cell_t> &cells) const {
    return cells_of(cells);
  }
  PyObject *operator()(const std::vector<soft::journal::Query> &queries) const {
    return list_of(queries, [](const soft::journal::Query &query) {
      return query.cells ? cells_of(*query.cells) : none();
    });
  }
  PyObject *operator()(const std::vector<pipe_mgr_hash_attribute_t> &attributes) const {
    return list_of(attributes, [](const pipe_mgr_hash_attribute_t &row) {
      return Py_BuildValue("{sIsIsK}", "field", row.field, "type", row.type, "value",
                           static_cast<unsigned long long>(row.value));
    });
  }
  PyObject *operator()(const pipe_mgr_idle_params_t &idle) const {
    return Py_BuildValue("{sIsIsIsIsI}", "mode", idle.mode, "sweep_interval_ms",
                         idle.sweep_interval_ms, "max_ttl_ms", idle.max_ttl_ms, "min_ttl_ms",
                         idle.min_ttl_ms, "default_ttl_ms", idle.default_ttl_ms);
  }
  PyObject *operator()(const pipe_mgr_wred_spec_t &wred) const {
    return Py_BuildValue("{sfsIsIsf}", "time_constant_ns",
                         static_cast<double>(wred.time_constant_ns), "min_threshold_cells",
                         wred.min_threshold_cells, "max_threshold_cells", wred.max_threshold_cells,
                         "max_probability", static_cast<double>(wred.max_probability));
  }
  PyObject *operator()(const soft::journal::DigestMessage &message) const {
    return Py_BuildValue("{sIsIsIsN}", "device", message.device, "digest", message.digest,
                         "entry_count", message.entry_count, "entries", bytes_of(message.entries));
  }
};

PyObject *named(const std::vector<Argument> &arguments) {
  Ref dict(PyDict_New());
  for (const Argument &argument : arguments) {
    const Ref value(std::visit(ToPython{}, argument.value));
    check(PyDict_SetItemString(dict.get(), argument.name.c_str(), value.get()));
  }
  return dict.release();
}

PyObject *to_python(const Call &call) {
  const Ref values(Py_BuildValue(
      "(NNNINK)", text(call.function), named(call.arguments), named(call.results), call.status,
      PyBool_FromLong(call.performed ? 1 : 0), static_cast<unsigned long long>(call.number)));
  return make_named(call_type, values);
}

PyObject *calls(PyObject * /*module*/, PyObject *arguments) {
  return guarded([&] {
    const char *function = nullptr;
    if (PyArg_ParseTuple(arguments, "|z", &function) == 0) throw Raised{};
    const std::vector<Call> all = [&] {
      const Unlocked unlocked;
      return function == nullptr ? soft::journal::calls() : soft::journal::calls(function);
    }();
    return list_of(all, [](const Call &call) { return to_python(call); });
  });
}

PyMethodDef functions[] = {{"journal_calls", calls, METH_VARARGS, "The calls of the journal."},
                           {nullptr, nullptr, 0, nullptr}};

}  // namespace

void add_journal(PyObject *module) {
  constexpr const char *kFields[] = {"function", "arguments", "results",
                                     "status",   "performed", "number"};
  call_type = add_named_tuple(module, "JournalCall", "A call of the SDK.", kFields);
  check(PyModule_AddFunctions(module, functions));
}

}  // namespace python
