// The soft SDK's control interface, and its journal and fault plan.
#include <cjson/cJSON.h>
#include <fmt/format.h>

#include <deque>
#include <memory>
#include <type_traits>
#include <vector>

#include "bindings/invoke.hpp"
#include "python/core/callback.hpp"
#include "python/core/function.hpp"
#include "python/core/program.hpp"
#include "python/core/status.hpp"
#include "python/core/structure.hpp"
#include "soft_contents.h"
#include "soft_journal.hpp"
#include "soft_learning.h"
#include "soft_placement.h"
#include "soft_sdk.h"
#include "soft_snapshot.h"
#include "soft_state.h"
#include "soft_traffic.h"

namespace python {

namespace {

// What soft_traffic_hit takes, one by one.
bf_status_t traffic_hit(uint32_t device, uint32_t pipe, uint32_t table, const uint8_t *key,
                        uint32_t length, const uint8_t *hash, uint32_t hash_length,
                        uint64_t packets, uint64_t bytes, soft_hit_t *hit) {
  const soft_traffic_t traffic = {key, length, hash, hash_length, packets, bytes};
  return soft_traffic_hit(device, pipe, table, &traffic, hit);
}
void fail_call(const char *function, uint64_t n, uint32_t status) {
  soft::faults::fail_call(function, n, status);
}

// ---- C types by their names, as the functions of a program state them ----

template <class T>
constexpr const char *kTypeName = nullptr;
template <>
constexpr const char *kTypeName<bool> = "bool";
template <>
constexpr const char *kTypeName<uint8_t> = "uint8_t";
template <>
constexpr const char *kTypeName<uint32_t> = "uint32_t";
template <>
constexpr const char *kTypeName<uint64_t> = "uint64_t";
template <>
constexpr const char *kTypeName<bool *> = "bool *";
template <>
constexpr const char *kTypeName<uint8_t *> = "uint8_t *";
template <>
constexpr const char *kTypeName<uint32_t *> = "uint32_t *";
template <>
constexpr const char *kTypeName<uint64_t *> = "uint64_t *";
template <>
constexpr const char *kTypeName<const uint8_t *> = "const uint8_t *";
template <>
constexpr const char *kTypeName<const char *> = "const char *";
template <>
constexpr const char *kTypeName<void> = "void";
template <>
constexpr const char *kTypeName<soft_hit_t *> = "soft_hit_t *";
template <>
constexpr const char *kTypeName<soft_parsers_t *> = "soft_parsers_t *";
template <>
constexpr const char *kTypeName<pipe_mgr_wred_spec_t *> = "p4_pd_wred_params_t *";
template <>
constexpr const char *kTypeName<pipe_mgr_placement_t *> = "pipe_mgr_placement_t *";

template <class Result, class... Types, class... Names>
bindings::Export row(const char *name, Result (* /*function*/)(Types...), bindings::Call call,
                     Names... names) {
  static_assert(sizeof...(Types) == sizeof...(Names));
  static std::deque<std::vector<bindings::Parameter>> lists;
  lists.push_back({bindings::Parameter{kTypeName<Types>, names}...});
  const char *result = std::is_same_v<Result, bf_status_t> ? "bf_status_t" : kTypeName<Result>;
  return {name, "", "", "", result, lists.back().data(), sizeof...(Types), 0, call};
}

#define SOFT(name, ...) row(#name, name, bindings::invoke<name>, __VA_ARGS__)

std::vector<bindings::Export> device_functions() {
  return {
      SOFT(soft_device_copy, "from", "to"),
      SOFT(soft_device_exists, "device"),
      SOFT(soft_table_capacity_set, "device", "table", "capacity"),
      SOFT(soft_table_capacity_get, "device", "table", "capacity"),
      SOFT(soft_profile_capacity_set, "device", "table", "capacity"),
      SOFT(soft_profile_capacity_get, "device", "table", "capacity"),
      SOFT(soft_lookup, "device", "pipe", "table", "key", "length", "entry", "is_default"),
      SOFT(traffic_hit, "device", "pipe", "table", "key", "length", "hash", "hash_length",
           "packets", "bytes", "hit"),
      SOFT(soft_counter_count, "device", "pipe", "counter", "index", "packets", "bytes"),
      SOFT(soft_meter_mark, "device", "pipe", "meter", "index", "packets", "bytes", "color"),
      SOFT(soft_wred_get, "device", "pipe", "wred", "index", "spec"),
      SOFT(soft_next_cell, "device", "handle", "from", "cell"),
      SOFT(soft_group_max_size, "device", "selector", "group", "max_size"),
      SOFT(soft_fallback_member, "device", "selector", "member"),
      SOFT(soft_value_set_parsers, "device", "value_set", "entry", "parsers"),
      SOFT(soft_register_write, "device", "pipe", "reg", "index", "value"),
      SOFT(soft_value_set_match, "device", "value_set", "direction", "pipe", "parser", "value",
           "entry"),
      SOFT(soft_digest_inject, "device", "pipe", "digest", "entries", "count", "bytes", "learnt"),
      SOFT(soft_digest_pending, "device", "digest", "collected", "unacknowledged"),
      SOFT(soft_snapshot_inject, "device", "pipe", "direction", "first_stage", "records",
           "stage_count", "bytes", "captures"),
      SOFT(soft_device_clock_advance, "device", "milliseconds"),
      SOFT(soft_device_clock_now, "device", "milliseconds"),
      SOFT(soft_memory_bytes, "device", "handle", "bytes"),
      row("soft_allocations_live", soft_allocations_live, bindings::invoke<soft_allocations_live>),
      SOFT(soft_placement_corrupt, "placement"),
  };
}

// What is of the whole process.
std::vector<bindings::Export> process_functions() {
  return {
      SOFT(soft_clock_advance, "milliseconds"),
      row("soft_clock_now", soft_clock_now, bindings::invoke<soft_clock_now>),
      SOFT(fail_call, "function", "n", "status"),
      row("fail_any_call", soft::faults::fail_any_call,
          bindings::invoke<soft::faults::fail_any_call>, "n", "status"),
      row("fail_allocation", soft::faults::fail_allocation,
          bindings::invoke<soft::faults::fail_allocation>, "n"),
      row("faults_clear", soft::faults::clear, bindings::invoke<soft::faults::clear>),
      row("faults_pending", soft::faults::pending, bindings::invoke<soft::faults::pending>),
      row("journal_start", soft::journal::start, bindings::invoke<soft::journal::start>),
      row("journal_stop", soft::journal::stop, bindings::invoke<soft::journal::stop>),
      row("journal_clear", soft::journal::clear, bindings::invoke<soft::journal::clear>),
  };
}

#undef SOFT

// ---- What takes more than words ----

struct DeleteJson {
  void operator()(cJSON *document) const { cJSON_Delete(document); }
};
using Json = std::unique_ptr<cJSON, DeleteJson>;

std::string device_name(uint32_t device) { return fmt::format("device {}", device); }

// Callables of a device go with it: nothing calls them any more.
PyObject *device_remove(PyObject * /*module*/, PyObject *number) {
  return guarded([&] {
    const auto device = static_cast<uint32_t>(unsigned_of(number, 4, "device"));
    const uint32_t status = [&] {
      const Unlocked unlocked;
      return soft_device_remove(device);
    }();
    check_status(status, device_name(device));
    drop_callbacks(device);
    forget_device(device);
    return none();
  });
}

PyObject *device_log(PyObject * /*module*/, PyObject *number) {
  return guarded([&] {
    const auto device = static_cast<uint32_t>(unsigned_of(number, 4, "device"));
    const Json document(cJSON_CreateObject());
    const uint32_t status = [&] {
      const Unlocked unlocked;
      return soft_device_log(device, document.get());
    }();
    check_status(status, device_name(device));
    const std::unique_ptr<char, void (*)(void *)> printed(cJSON_PrintUnformatted(document.get()),
                                                          cJSON_free);
    if (printed == nullptr) throw std::bad_alloc();
    return text(printed.get());
  });
}

PyObject *device_restore(PyObject * /*module*/, PyObject *arguments) {
  return guarded([&] {
    PyObject *number = nullptr;
    const char *state = nullptr;
    if (PyArg_ParseTuple(arguments, "Os", &number, &state) == 0) throw Raised{};
    const auto device = static_cast<uint32_t>(unsigned_of(number, 4, "device"));
    const Json document(cJSON_Parse(state));
    if (document == nullptr) raise(PyExc_ValueError, "the state of a device is JSON");
    const uint32_t status = [&] {
      const Unlocked unlocked;
      return soft_device_restore(device, document.get());
    }();
    check_status(status, device_name(device));
    return none();
  });
}

void release_placement(void *placement) {
  soft_placement_free(static_cast<pipe_mgr_placement_t *>(placement));
}

// (device, object, handle, whether it is a member)
PyObject *placement_of(PyObject * /*module*/, PyObject *arguments) {
  return guarded([&] {
    PyObject *numbers[3] = {};
    int is_member = 0;
    if (PyArg_ParseTuple(arguments, "OOOp", &numbers[0], &numbers[1], &numbers[2], &is_member) ==
        0) {
      throw Raised{};
    }
    const auto device = static_cast<uint32_t>(unsigned_of(numbers[0], 4, "device"));
    const auto object = static_cast<uint32_t>(unsigned_of(numbers[1], 4, "object"));
    const auto handle = static_cast<uint32_t>(unsigned_of(numbers[2], 4, "handle"));
    pipe_mgr_placement_t *placement = nullptr;
    const uint32_t status = [&] {
      const Unlocked unlocked;
      return is_member != 0 ? soft_placement_of_member(device, object, handle, &placement)
                            : soft_placement_of_entry(device, object, handle, &placement);
    }();
    check_status(status, "placement data");
    return make_opaque(placement, release_placement);
  });
}

PyObject *raise_for(PyObject * /*module*/, PyObject *arguments) {
  return guarded([&] {
    unsigned long status = 0;
    const char *context = nullptr;
    if (PyArg_ParseTuple(arguments, "ks", &status, &context) == 0) throw Raised{};
    check_status(status, context);
    return none();
  });
}

PyMethodDef functions[] = {
    {"device_remove", device_remove, METH_O, "Removes a soft device."},
    {"device_log", device_log, METH_O, "What the clients keep for a device, as JSON."},
    {"device_restore", device_restore, METH_VARARGS, "Gives it back to them."},
    {"placement_of", placement_of, METH_VARARGS, "The placement data of an entry or a member."},
    {"check", raise_for, METH_VARARGS, "Raises the exception of a status unless it is 0."},
    {nullptr, nullptr, 0, nullptr}};

}  // namespace

std::span<const bindings::Export> soft_functions() {
  static const std::vector<bindings::Export> all = [] {
    std::vector<bindings::Export> rows = device_functions();
    const std::vector<bindings::Export> others = process_functions();
    rows.insert(rows.end(), others.begin(), others.end());
    return rows;
  }();
  return all;
}

void add_soft(PyObject *module) { check(PyModule_AddFunctions(module, functions)); }

}  // namespace python
