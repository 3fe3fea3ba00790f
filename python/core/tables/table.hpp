// Match tables: entries added, changed, found and read through keyword arguments.
#pragma once

#include <memory>
#include <optional>
#include <unordered_map>

#include "python/core/program.hpp"
#include "python/core/session.hpp"
#include "soft_traffic.h"

namespace python {

// The parameters of entry functions that tables fill, by their names in C.
enum class Slot : uint8_t {
  session,
  target,
  device,
  match_spec,
  priority,
  action_spec,
  ttl,
  meter_spec,
  entry,
  member,
  group,
  read_from_hardware,
  action_name,
  action,
  no_key,
  has_member,
  has_group,
  count
};

// Where the words of a function go.
struct CallPlan {
  const bindings::Export *target = nullptr;  // null: the program has no such function
  int8_t places[static_cast<size_t>(Slot::count)];

  explicit CallPlan(const bindings::Export *exported);
  bool takes(Slot slot) const { return places[static_cast<size_t>(slot)] >= 0; }
};

// The words of one call, or of many.
class PlannedCall {
 public:
  PlannedCall(const CallPlan &plan, const SessionObject &session)
      : plan_(plan), target_(session.target) {
    set(Slot::session, session.handle);
    set(Slot::target, &target_);
    set(Slot::device, target_.device_id);
  }
  PlannedCall(const PlannedCall &) = delete;
  PlannedCall &operator=(const PlannedCall &) = delete;

  // Nothing where the function has no such parameter.
  void set(Slot slot, uint64_t word) {
    const int8_t at = plan_.places[static_cast<size_t>(slot)];
    if (at >= 0) words_[at] = word;
  }
  void set(Slot slot, const void *address) {
    set(slot, static_cast<uint64_t>(reinterpret_cast<uintptr_t>(address)));
  }
  uint32_t run() { return static_cast<uint32_t>(plan_.target->call(words_)); }
  uint32_t run_unlocked() {
    const Unlocked unlocked;
    return run();
  }

 private:
  const CallPlan &plan_;
  p4_pd_device_target_t target_;
  uint64_t words_[16] = {};
};

// What an entry does: an action, a member or a group.
struct Outcome {
  const RecordKind *action = nullptr;
  const uint8_t *parameters = nullptr;
  uint32_t handle = 0;
  Slot kind = Slot::action;  // action, member or group
};

// What there is to know of a table of a program; for good.
class TableKind {
 public:
  TableKind(Program &program, const bindings::Record &record, const soft_table_t &description)
      : program_(program), description_(description), key_(program.kind(record)) {}

  Program &program() const { return program_; }
  const soft_table_t &description() const { return description_; }
  const RecordKind &key() const { return key_; }
  const char *name() const { return description_.name; }
  bool keyed() const { return key_.record->member_count != 0; }
  bool indirect() const { return description_.action_data_table != 0; }
  bool ternary() const { return description_.match == SOFT_TERNARY; }

  // The function of a family, for an outcome where its name ends in one. Throws TypeError where the
  // table has none.
  const CallPlan &plan(const char *family, const Outcome *outcome = nullptr);
  // The action, member or group that an object is, for a device. Throws TypeError, and ValueError
  // for those of another profile or device.
  Outcome outcome_of(PyObject *object, const SessionObject &session);
  // An action of the table by its type, or null.
  const RecordKind *action_of_type(PyObject *type);

 private:
  [[noreturn]] void refuse_outcome(PyObject *object);
  void check_profile(PyObject *held, const SessionObject &session);

  Program &program_;
  const soft_table_t &description_;
  const RecordKind &key_;
  std::unordered_map<const void *, std::unordered_map<const void *, CallPlan>> plans_;
};

struct TableObject {
  PyObject ob_base;
  TableKind *kind;
  PyObject *session;
};

inline TableObject &as_table(PyObject *object) { return *reinterpret_cast<TableObject *>(object); }

void add_table(PyObject *module);
PyTypeObject *table_type_object();

// A meter of a call: a sequence of committed rate and burst, peak rate and burst, and perhaps type.
p4_pd_bytes_meter_spec_t read_meter(PyObject *object);

// The methods for many entries (bulk.cpp).
enum class Verb : uint8_t { add, replace, modify, remove };
template <Verb verb>
PyObject *write_rows(PyObject *self, PyObject *const *arguments, Py_ssize_t count, PyObject *names);
template <Verb verb>
PyObject *write_columns(PyObject *self, PyObject *const *arguments, Py_ssize_t count,
                        PyObject *names);
PyObject *add_routes(PyObject *module, PyObject *const *arguments, Py_ssize_t count,
                     PyObject *names);

}  // namespace python
