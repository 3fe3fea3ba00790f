#include "python/core/structure.hpp"

#include <fmt/format.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <vector>

#include "p4_pd_types.h"
#include "soft_contents.h"
#include "soft_traffic.h"

namespace python {

namespace {

#define FIELD(type, member) \
  { #member, offsetof(type, member), sizeof(type::member) }
#define REAL(type, member) \
  { #member, offsetof(type, member), sizeof(type::member), true }
#define USUAL(type, member, value) \
  { #member, offsetof(type, member), sizeof(type::member), false, true, value }

constexpr StructureField kTarget[] = {FIELD(p4_pd_device_target_t, device_id),
                                      FIELD(p4_pd_device_target_t, pipe_id)};
constexpr StructureField kParser[] = {
    FIELD(p4_pd_parser_target_t, device_id), FIELD(p4_pd_parser_target_t, direction),
    FIELD(p4_pd_parser_target_t, pipe_id), FIELD(p4_pd_parser_target_t, parser_id)};
constexpr StructureField kCounter[] = {FIELD(p4_pd_counter_values_t, packets),
                                       FIELD(p4_pd_counter_values_t, bytes)};
// The two kinds of meters have the same members.
constexpr StructureField kMeter[] = {
    FIELD(p4_pd_bytes_meter_spec_t, committed_rate),
    FIELD(p4_pd_bytes_meter_spec_t, committed_burst), FIELD(p4_pd_bytes_meter_spec_t, peak_rate),
    FIELD(p4_pd_bytes_meter_spec_t, peak_burst),
    USUAL(p4_pd_bytes_meter_spec_t, meter_type, PD_METER_TYPE_COLOR_UNAWARE)};
constexpr StructureField kIdle[] = {FIELD(p4_pd_idle_time_params_t, mode),
                                    FIELD(p4_pd_idle_time_params_t, sweep_interval_ms),
                                    FIELD(p4_pd_idle_time_params_t, max_ttl_ms),
                                    FIELD(p4_pd_idle_time_params_t, min_ttl_ms),
                                    FIELD(p4_pd_idle_time_params_t, default_ttl_ms),
                                    USUAL(p4_pd_idle_time_params_t, reserved, 0)};
constexpr StructureField kWred[] = {
    REAL(p4_pd_wred_params_t, time_constant_ns), FIELD(p4_pd_wred_params_t, min_threshold_cells),
    FIELD(p4_pd_wred_params_t, max_threshold_cells), REAL(p4_pd_wred_params_t, max_probability)};
constexpr StructureField kControl[] = {
    FIELD(bf_snapshot_control_t, stage), FIELD(bf_snapshot_control_t, valid),
    FIELD(bf_snapshot_control_t, triggered), FIELD(bf_snapshot_control_t, reserved)};
constexpr StructureField kAttribute[] = {FIELD(p4_pd_hash_calc_attr_t, field),
                                         FIELD(p4_pd_hash_calc_attr_t, type),
                                         FIELD(p4_pd_hash_calc_attr_t, value)};
constexpr StructureField kNamedAttribute[] = {FIELD(p4_pd_hash_field_attr_t, field),
                                              FIELD(p4_pd_hash_field_attr_t, value),
                                              USUAL(p4_pd_hash_field_attr_t, reserved, 0)};
constexpr StructureField kHit[] = {FIELD(soft_hit_t, entry),  FIELD(soft_hit_t, is_default),
                                   FIELD(soft_hit_t, action), FIELD(soft_hit_t, group),
                                   FIELD(soft_hit_t, member), FIELD(soft_hit_t, color)};
constexpr StructureField kParsers[] = {FIELD(soft_parsers_t, direction),
                                       FIELD(soft_parsers_t, pipe), FIELD(soft_parsers_t, parser)};

#undef FIELD
#undef REAL
#undef USUAL

constexpr Structure kStructures[] = {
    {"p4_pd_device_target_t", "Target", "A device and one of its pipes, or all.",
     sizeof(p4_pd_device_target_t), kTarget},
    {"p4_pd_parser_target_t", "ParserTarget", "A parser of a device.",
     sizeof(p4_pd_parser_target_t), kParser},
    {"p4_pd_counter_values_t", "CounterValues", "What a counter cell has counted.",
     sizeof(p4_pd_counter_values_t), kCounter},
    {"p4_pd_bytes_meter_spec_t", "MeterSpec", "A two-rate meter: kilobits, or packets.",
     sizeof(p4_pd_bytes_meter_spec_t), kMeter},
    {"p4_pd_packets_meter_spec_t", "MeterSpec", "A two-rate meter: kilobits, or packets.",
     sizeof(p4_pd_packets_meter_spec_t), kMeter},
    {"p4_pd_idle_time_params_t", "IdleParams", "How a table ages its entries.",
     sizeof(p4_pd_idle_time_params_t), kIdle},
    {"p4_pd_wred_params_t", "WredParams", "A weighted random early detection profile.",
     sizeof(p4_pd_wred_params_t), kWred},
    {"bf_snapshot_control_t", "SnapshotControl", "Of one captured stage.",
     sizeof(bf_snapshot_control_t), kControl},
    {"p4_pd_hash_calc_attr_t", "HashAttribute", "An attribute of a field, or its value.",
     sizeof(p4_pd_hash_calc_attr_t), kAttribute},
    {"p4_pd_hash_field_attr_t", "NamedHashAttribute", "An attribute of a field by its name.",
     sizeof(p4_pd_hash_field_attr_t), kNamedAttribute},
    {"soft_hit_t", "Hit", "What became of traffic.", sizeof(soft_hit_t), kHit},
    {"soft_parsers_t", "Parsers", "The parsers that a value is in.", sizeof(soft_parsers_t),
     kParsers}};

PyObject *types[std::size(kStructures)] = {};

PyObject *add_structure(PyObject *module, const Structure &structure) {
  std::vector<const char *> names;
  const Ref usual(PyList_New(0));
  for (const StructureField &field : structure.fields) {
    names.push_back(field.name);
    if (!field.may_lack) continue;
    check(PyList_Append(usual.get(), Ref(PyLong_FromUnsignedLong(field.usual)).get()));
  }
  return add_named_tuple(module, structure.name, structure.note, names, usual);
}

PyObject *number_at(const StructureField &field, const uint8_t *bytes) {
  if (field.is_real) {
    float real = 0;
    memcpy(&real, bytes, sizeof real);
    return checked(PyFloat_FromDouble(static_cast<double>(real)));
  }
  uint64_t number = 0;
  memcpy(&number, bytes, field.size);
  return checked(PyLong_FromUnsignedLongLong(number));
}

}  // namespace

PyObject *add_named_tuple(PyObject *module, const char *name, const char *note,
                          std::span<const char *const> fields, Ref defaults) {
  const Ref names(PyList_New(0));
  for (const char *field : fields) check(PyList_Append(names.get(), Ref(text(field)).get()));
  const Ref collections(PyImport_ImportModule("collections"));
  const Ref make(PyObject_GetAttrString(collections.get(), "namedtuple"));
  const Ref arguments(Py_BuildValue("(sO)", name, names.get()));
  const Ref keywords(Py_BuildValue("{ss}", "module", "pd"));
  if (defaults) check(PyDict_SetItemString(keywords.get(), "defaults", defaults.get()));
  Ref type(PyObject_Call(make.get(), arguments.get(), keywords.get()));
  check(PyObject_SetAttrString(type.get(), "__doc__", Ref(text(note)).get()));
  check(PyModule_AddObjectRef(module, name, type.get()));
  return type.release();
}

PyObject *make_named(PyObject *type, const Ref &values) {
  static const auto make = reinterpret_cast<newfunc>(PyType_GetSlot(&PyTuple_Type, Py_tp_new));
  const Ref arguments(PyTuple_Pack(1, values.get()));
  return checked(make(reinterpret_cast<PyTypeObject *>(type), arguments.get(), nullptr));
}

void add_structures(PyObject *module) {
  for (size_t i = 0; i < std::size(kStructures); ++i) {
    const bool is_again = i > 0 && std::string_view(kStructures[i].name) == kStructures[i - 1].name;
    types[i] = is_again ? types[i - 1] : add_structure(module, kStructures[i]);
  }
}

const Structure *find_structure(std::string_view type) {
  // A program has a name of its own for one of them.
  if (type.ends_with("_hash_field_attr_t")) type = "p4_pd_hash_field_attr_t";
  const auto *found = std::ranges::find(kStructures, type, &Structure::type);
  return found == std::end(kStructures) ? nullptr : found;
}

PyObject *from_structure(const Structure &structure, const void *bytes) {
  const Ref values(PyTuple_New(static_cast<Py_ssize_t>(structure.fields.size())));
  for (size_t i = 0; i < structure.fields.size(); ++i) {
    const StructureField &field = structure.fields[i];
    check(PyTuple_SetItem(values.get(), static_cast<Py_ssize_t>(i),
                          number_at(field, static_cast<const uint8_t *>(bytes) + field.offset)));
  }
  return make_named(types[&structure - kStructures], values);
}

bool flag_of(PyObject *object, std::string_view what) {
  if (PyNumber_Check(object) == 0) {
    raise(PyExc_TypeError, fmt::format("{} is a bool, not {}", what, type_name(object)));
  }
  const int truth = PyObject_IsTrue(object);
  check(truth);
  return truth != 0;
}

uint64_t unsigned_of(PyObject *object, size_t bytes, std::string_view what) {
  if (!PyIndex_Check(object)) {
    raise(PyExc_TypeError, fmt::format("{} is an int, not {}", what, type_name(object)));
  }
  const Ref index(PyNumber_Index(object));
  const unsigned long long value = PyLong_AsUnsignedLongLong(index.get());
  if (!PyErr_Occurred() && (bytes >= 8 || value >> 8 * bytes == 0)) return value;
  PyErr_Clear();
  raise(PyExc_ValueError, fmt::format("{} is 0 to {:#x}, not {}", what,
                                      bytes >= 8 ? ~uint64_t{0} : (uint64_t{1} << 8 * bytes) - 1,
                                      text_of(Ref(PyObject_Str(index.get())).get())));
}

void to_structure(const Structure &structure, PyObject *object, void *bytes) {
  const auto most = static_cast<Py_ssize_t>(structure.fields.size());
  const auto least = most - std::ranges::count_if(structure.fields, &StructureField::may_lack);
  const Py_ssize_t given = PySequence_Check(object) != 0 ? PySequence_Size(object) : -1;
  if (given < least || given > most) {
    PyErr_Clear();
    raise(PyExc_TypeError,
          fmt::format("{} is a sequence of {} numbers", structure.name, structure.fields.size()));
  }
  for (size_t i = 0; i < structure.fields.size(); ++i) {
    const StructureField &field = structure.fields[i];
    auto *at = static_cast<uint8_t *>(bytes) + field.offset;
    const auto place = static_cast<Py_ssize_t>(i);
    const Ref item(place < given ? PySequence_GetItem(object, place)
                                 : PyLong_FromUnsignedLong(field.usual));
    if (field.is_real) {
      const auto real = static_cast<float>(PyFloat_AsDouble(item.get()));
      if (PyErr_Occurred()) throw Raised{};
      memcpy(at, &real, sizeof real);
    } else {
      const uint64_t number =
          unsigned_of(item.get(), field.size, fmt::format("{}.{}", structure.name, field.name));
      // A byte that C reads as a bool holds 0 or 1.
      const bool is_flag = structure.type == "bf_snapshot_control_t" && number > 1 && i > 0;
      const uint64_t stored = is_flag ? 1 : number;
      memcpy(at, &stored, field.size);
    }
  }
}

}  // namespace python
