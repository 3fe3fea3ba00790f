#include <fmt/format.h>

#include <algorithm>

#include "python/core/structure.hpp"
#include "python/core/tables/table.hpp"

namespace python {

namespace {

constexpr const char *kSlotNames[] = {
    "session",     "target",     "device", "match_spec", "priority", "action_spec",
    "ttl",         "meter_spec", "entry",  "member",     "group",    "read_from_hardware",
    "action_name", "action",     "no_key", "has_member", "has_group"};

}  // namespace

CallPlan::CallPlan(const bindings::Export *exported) : target(exported) {
  std::fill(std::begin(places), std::end(places), static_cast<int8_t>(-1));
  for (size_t i = 0; exported != nullptr && i < exported->parameter_count; ++i) {
    for (size_t slot = 0; slot < std::size(kSlotNames); ++slot) {
      if (std::string_view(kSlotNames[slot]) == exported->parameters[i].name) {
        places[slot] = static_cast<int8_t>(i);
      }
    }
  }
}

const CallPlan &TableKind::plan(const char *family, const Outcome *outcome) {
  const void *action = outcome == nullptr ? nullptr : outcome->action;
  auto &plans = plans_[action];
  const auto found = plans.find(family);
  if (found != plans.end()) return found->second;
  const std::string_view of = action == nullptr ? "" : outcome->action->record->name;
  const CallPlan made(program_.find(family, name(), of));
  if (made.target == nullptr && action != nullptr) {
    raise(PyExc_TypeError,
          fmt::format("entries of {} cannot have the action {} that way", name(), of));
  }
  if (made.target == nullptr) {
    raise(PyExc_TypeError, fmt::format("{} has no function for this", name()));
  }
  return plans.emplace(family, made).first->second;
}

void TableKind::refuse_outcome(PyObject *object) {
  std::string wanted = "a member or a group of its profile";
  if (!indirect()) {
    wanted = "one of its actions:";
    for (const soft_action_t &action : std::span(description_.actions, description_.action_count)) {
      wanted += std::string(wanted.ends_with(':') ? " " : ", ") + action.name;
    }
  }
  const RecordObject *record = as_record(object);
  raise(PyExc_TypeError, fmt::format("{} takes {}; not {}", name(), wanted,
                                     record != nullptr ? record->kind->what : type_name(object)));
}

void TableKind::check_profile(PyObject *held, const SessionObject &session) {
  const Ref profile(PyObject_GetAttrString(held, "profile"));
  const Ref handle(PyObject_GetAttrString(profile.get(), "handle"));
  const Ref of(PyObject_GetAttrString(profile.get(), "session"));
  const uint32_t device = session.target.device_id;
  if (unsigned_of(handle.get(), 4, "profile") == description_.action_data_table &&
      open_session(of.get()).target.device_id == device) {
    return;
  }
  raise(PyExc_ValueError,
        fmt::format("{} takes members and groups of its profile on device {}, not {} of device {}",
                    name(), device, text_of(Ref(PyObject_Repr(held)).get()),
                    open_session(of.get()).target.device_id));
}

Outcome TableKind::outcome_of(PyObject *object, const SessionObject &session) {
  // Another program may have an action of the same name.
  const auto own = program_.binding().actions.list();
  const RecordObject *record = as_record(object);
  if (record != nullptr && !indirect() && record->kind->record >= own.data() &&
      record->kind->record < own.data() + own.size()) {
    for (const soft_action_t &action : std::span(description_.actions, description_.action_count)) {
      if (record->kind->what == action.name) return {record->kind, record->bytes};
    }
  }
  if (!indirect()) refuse_outcome(object);
  PyObject *found = PyObject_GetAttrString(object, "_outcome");
  if (found == nullptr) {
    PyErr_Clear();
    refuse_outcome(object);
  }
  const Ref kind(found);
  check_profile(object, session);
  Outcome outcome;
  outcome.kind = text_of(kind.get()) == "group" ? Slot::group : Slot::member;
  const Ref handle(PyObject_GetAttrString(object, "handle"));
  outcome.handle = static_cast<uint32_t>(unsigned_of(handle.get(), 4, "handle"));
  return outcome;
}

const RecordKind *TableKind::action_of_type(PyObject *type) {
  for (const soft_action_t &action : std::span(description_.actions, description_.action_count)) {
    const RecordKind &kind = program_.action(action.name);
    if (reinterpret_cast<PyObject *>(kind.type) == type) return &kind;
  }
  return nullptr;
}

p4_pd_bytes_meter_spec_t read_meter(PyObject *object) {
  p4_pd_bytes_meter_spec_t spec = {};
  to_structure(*find_structure("p4_pd_bytes_meter_spec_t"), object, &spec);
  return spec;
}

}  // namespace python
