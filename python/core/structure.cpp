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
    FIELD(p4_pd_bytes_meter_spec_t, peak_burst), FIELD(p4_pd_bytes_meter_spec_t, meter_type)};
constexpr StructureField kIdle[] = {FIELD(p4_pd_idle_time_params_t, mode),
                                    FIELD(p4_pd_idle_time_params_t, sweep_interval_ms),
                                    FIELD(p4_pd_idle_time_params_t, max_ttl_ms),
                                    FIELD(p4_pd_idle_time_params_t, min_ttl_ms),
                                    FIELD(p4_pd_idle_time_params_t, default_ttl_ms),
                                    FIELD(p4_pd_idle_time_params_t, reserved)};
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
                                              FIELD(p4_pd_hash_field_attr_t, reserved)};
constexpr StructureField kHit[] = {FIELD(soft_hit_t, entry),  FIELD(soft_hit_t, is_default),
                                   FIELD(soft_hit_t, action), FIELD(soft_hit_t, group),
                                   FIELD(soft_hit_t, member), FIELD(soft_hit_t, color)};
constexpr StructureField kParsers[] = {FIELD(soft_parsers_t, direction),
                                       FIELD(soft_parsers_t, pipe), FIELD(soft_parsers_t, parser)};

#undef FIELD
#undef REAL

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

PyTypeObject *types[std::size(kStructures)] = {};

void add_structure(PyObject *module, size_t at) {
  const Structure &structure = kStructures[at];
  std::vector<PyStructSequence_Field> fields;
  for (const StructureField &field : structure.fields) fields.push_back({field.name, nullptr});
  fields.push_back({nullptr, nullptr});
  const std::string name = std::string("pd.") + structure.name;
  PyStructSequence_Desc description = {name.c_str(), structure.note, fields.data(),
                                       static_cast<int>(structure.fields.size())};
  types[at] = PyStructSequence_NewType(&description);
  PyObject *type = checked(reinterpret_cast<PyObject *>(types[at]));
  check(PyModule_AddObjectRef(module, structure.name, type));
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

void add_structures(PyObject *module) {
  for (size_t i = 0; i < std::size(kStructures); ++i) {
    const bool is_again = i > 0 && std::string_view(kStructures[i].name) == kStructures[i - 1].name;
    if (is_again) {
      types[i] = types[i - 1];
    } else {
      add_structure(module, i);
    }
  }
}

const Structure *find_structure(std::string_view type) {
  // A program has a name of its own for one of them.
  if (type.ends_with("_hash_field_attr_t")) type = "p4_pd_hash_field_attr_t";
  const auto *found = std::ranges::find(kStructures, type, &Structure::type);
  return found == std::end(kStructures) ? nullptr : found;
}

PyObject *from_structure(const Structure &structure, const void *bytes) {
  Ref made(PyStructSequence_New(types[&structure - kStructures]));
  for (size_t i = 0; i < structure.fields.size(); ++i) {
    const StructureField &field = structure.fields[i];
    PyStructSequence_SetItem(made.get(), static_cast<Py_ssize_t>(i),
                             number_at(field, static_cast<const uint8_t *>(bytes) + field.offset));
  }
  return made.release();
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
  if (!PySequence_Check(object) ||
      PySequence_Size(object) != static_cast<Py_ssize_t>(structure.fields.size())) {
    PyErr_Clear();
    raise(PyExc_TypeError,
          fmt::format("{} is a sequence of {} numbers", structure.name, structure.fields.size()));
  }
  for (size_t i = 0; i < structure.fields.size(); ++i) {
    const StructureField &field = structure.fields[i];
    const Ref item(PySequence_GetItem(object, static_cast<Py_ssize_t>(i)));
    auto *at = static_cast<uint8_t *>(bytes) + field.offset;
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
