#include "python/core/tables/table.hpp"

#include <fmt/format.h>

#include <map>

#include "python/core/status.hpp"
#include "python/core/structure.hpp"
#include "tesselctl/device/table_info.hpp"
#include "tesselctl/program/library.hpp"

namespace python {

namespace {

PyTypeObject *table_type = nullptr;
PyObject *entry_type = nullptr;

// Keywords of calls that are no fields; a field of that name is written with a '_' behind it.
enum Option : uint8_t { kPriority, kTtl, kMeter, kEntry, kKey, kFromHardware, kOptions };
constexpr const char *kOptionNames[] = {"priority", "ttl", "meter",
                                        "entry",    "key", "from_hardware"};
PyObject *option_names[kOptions] = {};

// The option that a keyword is, or kOptions.
size_t option_of(PyObject *name) {
  for (size_t i = 0; i < kOptions; ++i) {
    if (option_names[i] == name) return i;
  }
  for (size_t i = 0; i < kOptions; ++i) {
    if (PyUnicode_CompareWithASCIIString(name, kOptionNames[i]) == 0) return i;
  }
  return kOptions;
}

// The handle of an entry: an int, or one of the table that was read.
uint32_t read_entry(const TableKind &kind, PyObject *object) {
  Ref number = Ref::borrowed(object);
  if (PyObject_IsInstance(object, entry_type) > 0) {
    number = Ref(PySequence_GetItem(object, 0));
    const Ref key(PySequence_GetItem(object, 1));
    if (key.get() != Py_None && as_record(key.get(), kind.key()) == nullptr) {
      raise(PyExc_TypeError, fmt::format("{} takes an entry of its own, not one with a {}",
                                         kind.name(), type_name(key.get())));
    }
  }
  PyErr_Clear();
  return static_cast<uint32_t>(unsigned_of(number.get(), 4, "entry"));
}

// The arguments of a call about an entry.
class EntryArguments {
 public:
  EntryArguments(TableObject &table, const char *method, PyObject *const *values, Py_ssize_t count,
                 PyObject *names, std::initializer_list<Option> taken,
                 Values values_taken = Values::any)
      : table_(table), method_(method), filler_(table.kind->key(), values_taken) {
    for (const Option option : taken) taken_ |= 1u << option;
    const Py_ssize_t named = names == nullptr ? 0 : PyTuple_Size(names);
    for (Py_ssize_t i = 0; i < named; ++i) read(PyTuple_GetItem(names, i), values[count + i]);
  }

  // The entry that is given as the argument at that place or as entry=; none: a key is given.
  const std::optional<uint32_t> &entry(PyObject *const *arguments, Py_ssize_t count,
                                       Py_ssize_t at) {
    if (count > at + 1) raise(PyExc_TypeError, context() + " takes one entry or a key");
    if ((count > at || entry_) && (has_key() || priority_ || (count > at && entry_))) {
      raise(PyExc_TypeError, context() + ": give an entry or a key, not both");
    }
    if (count > at) entry_ = read_entry(*table_.kind, arguments[at]);
    return entry_;
  }
  bool from_hardware() const { return from_hardware_; }
  bool has_key() const { return key_ != nullptr || filler_.any_given(); }

  // The whole key.
  const uint8_t *key() {
    if (key_ != nullptr && !filler_.any_given()) return key_;
    if (key_ != nullptr) raise(PyExc_TypeError, context() + ": give key= or fields, not both");
    if (!table_.kind->keyed()) {
      raise(PyExc_TypeError, context() + ": the table has no key, so it has a default entry alone");
    }
    filler_.finish();
    return filler_.data();
  }
  const uint8_t *fields() {
    filler_.finish();
    return filler_.data();
  }
  void fill_key(PlannedCall &call) {
    call.set(Slot::match_spec, key());
    if (table_.kind->ternary() && !priority_) {
      raise(PyExc_TypeError, context() + " of a ternary table needs priority=");
    }
    call.set(Slot::priority, priority_.value_or(0));
  }
  void fill_rest(PlannedCall &call) {
    call.set(Slot::ttl, ttl_);
    call.set(Slot::meter_spec, meter_ ? &*meter_ : nullptr);
  }
  std::string context() const { return fmt::format("{}.{}", table_.kind->name(), method_); }

 private:
  void read(PyObject *name, PyObject *value) {
    const size_t option = option_of(name);
    if (option == kOptions) return filler_.set(name, value);
    if ((taken_ >> option & 1) == 0) {
      raise(PyExc_TypeError, fmt::format("{} takes no {}=", context(), kOptionNames[option]));
    }
    read_option(static_cast<Option>(option), value);
  }
  void read_option(Option option, PyObject *value) {
    const TableKind &kind = *table_.kind;
    // As what is read of an entry without it.
    if (value == Py_None && option <= kMeter) return;
    if (option == kPriority) {
      if (!kind.ternary()) raise(PyExc_TypeError, context() + ": the table has no priorities");
      priority_ = static_cast<uint32_t>(unsigned_of(value, 4, "priority"));
    } else if (option == kTtl) {
      if (!kind.description().ages_entries) {
        raise(PyExc_TypeError, context() + ": the table does not age its entries, so no ttl=");
      }
      ttl_ = static_cast<uint32_t>(unsigned_of(value, 4, "ttl"));
    } else if (option == kMeter) {
      meter_ = read_meter(value);
    } else if (option == kEntry) {
      entry_ = read_entry(kind, value);
    } else if (option == kKey) {
      const RecordObject *record = as_record(value, kind.key());
      if (record == nullptr) raise(PyExc_TypeError, "key is a " + kind.key().type_name);
      key_ = record->bytes;
    } else {
      from_hardware_ = flag_of(value, "from_hardware");
    }
  }

  TableObject &table_;
  const char *method_;
  unsigned taken_ = 0;
  RecordFiller filler_;
  const uint8_t *key_ = nullptr;
  std::optional<uint32_t> priority_, entry_;
  uint32_t ttl_ = 0;
  std::optional<p4_pd_bytes_meter_spec_t> meter_;
  bool from_hardware_ = false;
};

PyObject *only(PyObject *const *arguments, Py_ssize_t count, const std::string &context,
               const char *what) {
  if (count == 1) return arguments[0];
  raise(PyExc_TypeError, fmt::format("{} takes {} and then keyword arguments, not {} of them",
                                     context, what, count));
}

void set_outcome(PlannedCall &call, const Outcome &outcome) {
  call.set(Slot::action_spec, outcome.parameters);
  if (outcome.kind != Slot::action) call.set(outcome.kind, outcome.handle);
}

const char *family_of(const Outcome &outcome, const char *direct, const char *member,
                      const char *group) {
  if (outcome.kind == Slot::action) return direct;
  return outcome.kind == Slot::member ? member : group;
}

// ---- Methods ----

PyObject *add(PyObject *self, PyObject *const *arguments, Py_ssize_t count, PyObject *names) {
  return guarded([&] {
    TableObject &table = as_table(self);
    EntryArguments given(table, "add", arguments, count, names, {kPriority, kTtl, kMeter, kKey});
    const Outcome outcome =
        table.kind->outcome_of(only(arguments, count, given.context(), "what the entry does"),
                               open_session(table.session));
    PlannedCall call(
        table.kind->plan(family_of(outcome, "table_add", "add_entry", "add_entry_with_selector"),
                         &outcome),
        open_session(table.session));
    given.fill_key(call);
    given.fill_rest(call);
    set_outcome(call, outcome);
    p4_pd_entry_handle_t entry = 0;
    call.set(Slot::entry, &entry);
    if (const uint32_t status = call.run_unlocked()) raise_status(status, given.context());
    return checked(PyLong_FromUnsignedLong(entry));
  });
}

PyObject *modify(PyObject *self, PyObject *const *arguments, Py_ssize_t count, PyObject *names) {
  return guarded([&] {
    TableObject &table = as_table(self);
    EntryArguments given(table, "modify", arguments, count, names,
                         {kPriority, kMeter, kKey, kEntry});
    const std::optional<uint32_t> entry = given.entry(arguments, count, 1);
    const Outcome outcome = table.kind->outcome_of(
        only(arguments, std::min<Py_ssize_t>(count, 1), given.context(), "what the entry does"),
        open_session(table.session));
    const bool by_key = !entry;
    const char *family =
        by_key ? family_of(outcome, "table_modify_by_match_spec", "modify_entry_by_match_spec",
                           "modify_entry_with_selector_by_match_spec")
               : family_of(outcome, "table_modify", "modify_entry", "modify_entry_with_selector");
    PlannedCall call(table.kind->plan(family, &outcome), open_session(table.session));
    if (by_key) {
      given.fill_key(call);
    } else {
      call.set(Slot::entry, *entry);
    }
    given.fill_rest(call);
    set_outcome(call, outcome);
    if (const uint32_t status = call.run_unlocked()) raise_status(status, given.context());
    return none();
  });
}

PyObject *remove(PyObject *self, PyObject *const *arguments, Py_ssize_t count, PyObject *names) {
  return guarded([&] {
    TableObject &table = as_table(self);
    EntryArguments given(table, "delete", arguments, count, names, {kPriority, kKey, kEntry});
    const std::optional<uint32_t> entry = given.entry(arguments, count, 0);
    PlannedCall call(table.kind->plan(entry ? "table_delete" : "table_delete_by_match_spec"),
                     open_session(table.session));
    if (entry) {
      call.set(Slot::entry, *entry);
    } else {
      given.fill_key(call);
    }
    if (const uint32_t status = call.run_unlocked()) raise_status(status, given.context());
    return none();
  });
}

uint32_t find_entry(const TableObject &table, EntryArguments &given) {
  PlannedCall call(table.kind->plan("match_spec_to_entry_hdl"), open_session(table.session));
  given.fill_key(call);
  p4_pd_entry_handle_t entry = 0;
  call.set(Slot::entry, &entry);
  if (const uint32_t status = call.run_unlocked()) raise_status(status, given.context());
  return entry;
}

PyObject *find(PyObject *self, PyObject *const *arguments, Py_ssize_t count, PyObject *names) {
  return guarded([&] {
    TableObject &table = as_table(self);
    EntryArguments given(table, "find", arguments, count, names, {kPriority, kKey});
    if (count != 0) raise(PyExc_TypeError, given.context() + " takes keyword arguments alone");
    return checked(PyLong_FromUnsignedLong(find_entry(table, given)));
  });
}

PyObject *set_default(PyObject *self, PyObject *const *arguments, Py_ssize_t count,
                      PyObject *names) {
  return guarded([&] {
    TableObject &table = as_table(self);
    EntryArguments given(table, "set_default", arguments, count, names, {kMeter});
    if (given.has_key()) raise(PyExc_TypeError, given.context() + ": a default entry has no key");
    const Outcome outcome =
        table.kind->outcome_of(only(arguments, count, given.context(), "what the entry does"),
                               open_session(table.session));
    PlannedCall call(table.kind->plan(family_of(outcome, "set_default_action", "set_default_entry",
                                                "set_default_entry_with_selector"),
                                      &outcome),
                     open_session(table.session));
    given.fill_rest(call);
    set_outcome(call, outcome);
    p4_pd_entry_handle_t entry = 0;
    call.set(Slot::entry, &entry);
    if (const uint32_t status = call.run_unlocked()) raise_status(status, given.context());
    return checked(PyLong_FromUnsignedLong(entry));
  });
}

// An entry as the library reads it back.
class EntryReader {
 public:
  explicit EntryReader(PyObject *table)
      : table_(table),
        kind_(*as_table(table).kind),
        key_(kind_.key().record->size + 1),
        parameters_(kind_.program().binding().sizes.action_specs),
        call_(kind_.plan(kind_.indirect() ? "get_indirect_entry" : "get_entry"),
              open_session(as_table(table).session)) {
    call_.set(Slot::match_spec, key_.data());
    call_.set(Slot::priority, &priority_);
    call_.set(Slot::action_spec, parameters_.data());
    call_.set(Slot::action, &action_);
    call_.set(Slot::action_name, nullptr);
    call_.set(Slot::no_key, &no_key_);
    call_.set(Slot::has_member, &has_member_);
    call_.set(Slot::has_group, &has_group_);
    call_.set(Slot::member, &member_);
    call_.set(Slot::group, &group_);
  }

  PyObject *read(uint32_t entry, bool from_hardware, const std::string &context) {
    call_.set(Slot::entry, entry);
    call_.set(Slot::read_from_hardware, from_hardware ? 1 : 0);
    check_status(call_.run_unlocked(), context);
    const bool has_key = kind_.keyed() && !no_key_;
    const Ref values(Py_BuildValue(
        "(INNNNN)", entry, has_key ? make_record(kind_.key(), key_.data()) : none(),
        has_key && kind_.ternary() ? PyLong_FromUnsignedLong(priority_) : none(),
        kind_.indirect() ? none() : action(), has_member_ ? held("member", member_) : none(),
        has_group_ ? held("group", group_) : none()));
    return make_named(entry_type, values);
  }

 private:
  PyObject *action() {
    for (const bindings::Record &record : kind_.program().binding().actions.list()) {
      if (record.number == action_) {
        return make_record(kind_.program().kind(record), parameters_.data());
      }
    }
    return none();
  }

  // A member or a group of the table's profile.
  PyObject *held(const char *kind, uint32_t handle) {
    return PyObject_CallMethod(table_, "_held", "sI", kind, unsigned{handle});
  }

  PyObject *table_;
  TableKind &kind_;
  std::vector<uint8_t> key_;
  std::vector<uint8_t> parameters_;
  uint32_t priority_ = 0, action_ = ~uint32_t{0}, member_ = 0, group_ = 0;
  bool no_key_ = false, has_member_ = false, has_group_ = false;
  PlannedCall call_;
};

PyObject *get(PyObject *self, PyObject *const *arguments, Py_ssize_t count, PyObject *names) {
  return guarded([&] {
    TableObject &table = as_table(self);
    EntryArguments given(table, "get", arguments, count, names,
                         {kPriority, kKey, kEntry, kFromHardware});
    std::optional<uint32_t> entry = given.entry(arguments, count, 0);
    if (!entry) entry = find_entry(table, given);
    EntryReader reader(self);
    return reader.read(*entry, given.from_hardware(), given.context());
  });
}

// The key as packets carry it, with one value for each field.
PyObject *packet_key(PyObject *self, PyObject *const *arguments, Py_ssize_t count,
                     PyObject *names) {
  return guarded([&] {
    const TableObject &table = as_table(self);
    EntryArguments given(as_table(self), "packet_key", arguments, count, names, {}, Values::one);
    const tesselctl::TableInfo info = {table.kind->key().record, &table.kind->description()};
    const std::vector<uint8_t> key = tesselctl::packet_key(info, given.fields());
    return checked(PyBytes_FromStringAndSize(reinterpret_cast<const char *>(key.data()),
                                             static_cast<Py_ssize_t>(key.size())));
  });
}

PyObject *new_table(PyTypeObject *type, PyObject *arguments, PyObject * /*keywords*/) {
  return guarded([&] {
    PyObject *source = nullptr;
    const char *name = nullptr;
    PyObject *session = nullptr;
    if (PyArg_ParseTuple(arguments, "OsO", &source, &name, &session) == 0) throw Raised{};
    Program &program = program_of(source);
    open_session(session);
    // Never destroyed: calls may be in progress when the process ends.
    static auto &kinds = *new std::map<const bindings::Record *, std::unique_ptr<TableKind>>;
    const bindings::Record *record = program.find_record("keys", name);
    if (record == nullptr) raise(PyExc_AttributeError, fmt::format("there is no table {}", name));
    std::unique_ptr<TableKind> &kind = kinds[record];
    const soft_program_t &described = program.description();
    for (const soft_table_t &row : std::span(described.tables, described.table_count)) {
      if (kind == nullptr && tesselctl::is_name(row.name, name)) {
        kind = std::make_unique<TableKind>(program, *record, row);
      }
    }
    Ref made(PyType_GenericAlloc(type, 0));
    as_table(made.get()).kind = kind.get();
    as_table(made.get()).session = Py_NewRef(session);
    return made.release();
  });
}

int traverse(PyObject *self, visitproc visit, void *arg) {
  Py_VISIT(Py_TYPE(self));
  Py_VISIT(as_table(self).session);
  return 0;
}
int clear(PyObject *self) {
  Py_CLEAR(as_table(self).session);
  return 0;
}
// A session holds its tables, and they hold it.
void deallocate(PyObject *self) {
  PyTypeObject *type = Py_TYPE(self);
  PyObject_GC_UnTrack(self);
  clear(self);
  reinterpret_cast<freefunc>(PyType_GetSlot(type, Py_tp_free))(self);
  Py_DECREF(type);
}

PyObject *get_name(PyObject *self, void * /*unused*/) {
  return PyUnicode_FromString(as_table(self).kind->name());
}
PyObject *get_session(PyObject *self, void * /*unused*/) {
  PyObject *session = as_table(self).session;
  return Py_NewRef(session == nullptr ? Py_None : session);
}

constexpr int kFast = METH_FASTCALL | METH_KEYWORDS;
PyMethodDef methods[] = {
    {"add", method(add), kFast,
     PD_DOC("add($self, action, /, *, priority=None, ttl=None, meter=None, key=None, **fields)",
            "Adds an entry and returns its handle. key is in place of fields.")},
    {"modify", method(modify), kFast,
     PD_DOC(
         "modify($self, action, /, entry=None, *, priority=None, meter=None, key=None, **fields)",
         "Gives an entry another action, member or group.")},
    {"delete", method(remove), kFast,
     PD_DOC("delete($self, /, entry=None, *, priority=None, key=None, **fields)",
            "Deletes an entry.")},
    {"find", method(find), kFast,
     PD_DOC("find($self, /, *, priority=None, key=None, **fields)",
            "The handle of the entry with exactly this key.")},
    {"get", method(get), kFast,
     PD_DOC("get($self, /, entry=None, *, from_hardware=False, priority=None, key=None, **fields)",
            "Reads an entry.")},
    {"set_default", method(set_default), kFast,
     PD_DOC("set_default($self, action, /, *, meter=None)",
            "Sets the default entry and returns its handle.")},
    {"packet_key", method(packet_key), kFast,
     PD_DOC("packet_key($self, /, **fields)", "The key as packets carry it, as bytes.")},
    {"add_rows", method(write_rows<Verb::add>), kFast,
     PD_DOC("add_rows($self, action, rows, /, *, columns=None, keep=False, meter=None, **fields)",
            "Adds an entry for each row of an iterable, and returns the handles.")},
    {"replace_rows", method(write_rows<Verb::replace>), kFast,
     PD_DOC("replace_rows($self, action, rows, /, *, columns=None, meter=None, **fields)",
            "Adds or modifies an entry for each row, and returns how many rows there were.")},
    {"modify_rows", method(write_rows<Verb::modify>), kFast,
     PD_DOC("modify_rows($self, action, rows, /, *, columns=None, meter=None, **fields)",
            "Modifies the entry of each row, and returns how many there were.")},
    {"delete_rows", method(write_rows<Verb::remove>), kFast,
     PD_DOC("delete_rows($self, rows, /, *, columns=None, **fields)",
            "Deletes the entry of each row, and returns how many there were.")},
    {"add_columns", method(write_columns<Verb::add>), kFast,
     PD_DOC("add_columns($self, action, /, *, keep=False, meter=None, **columns)",
            "Adds entries from columns of values, and returns the handles.")},
    {"replace_columns", method(write_columns<Verb::replace>), kFast,
     PD_DOC("replace_columns($self, action, /, *, meter=None, **columns)",
            "Adds or modifies entries from columns of values, and returns how many.")},
    {"modify_columns", method(write_columns<Verb::modify>), kFast,
     PD_DOC("modify_columns($self, action, /, *, meter=None, **columns)",
            "Modifies entries by columns of values, and returns how many.")},
    {"delete_columns", method(write_columns<Verb::remove>), kFast,
     PD_DOC("delete_columns($self, /, **columns)",
            "Deletes the entries of columns of keys, and returns how many.")},
    {nullptr, nullptr, 0, nullptr}};
PyGetSetDef members[] = {{"name", get_name, nullptr, "The name of the table.", nullptr},
                         {"session", get_session, nullptr, "Whose calls these are.", nullptr},
                         {nullptr, nullptr, nullptr, nullptr, nullptr}};
PyMethodDef functions[] = {
    {"add_routes", method(add_routes), kFast, "Adds routes to the tables of both addresses."},
    {nullptr, nullptr, 0, nullptr}};

}  // namespace

PyTypeObject *table_type_object() { return table_type; }

void add_table(PyObject *module) {
  for (size_t i = 0; i < kOptions; ++i) {
    option_names[i] = checked(PyUnicode_InternFromString(kOptionNames[i]));
  }
  constexpr const char *kFields[] = {"handle", "key", "priority", "action", "member", "group"};
  entry_type = add_named_tuple(module, "Entry",
                               "An entry as it was read; a default one has no key.", kFields);
  PyType_Slot slots[] = {{Py_tp_new, reinterpret_cast<void *>(new_table)},
                         {Py_tp_dealloc, reinterpret_cast<void *>(deallocate)},
                         {Py_tp_traverse, reinterpret_cast<void *>(traverse)},
                         {Py_tp_clear, reinterpret_cast<void *>(clear)},
                         {Py_tp_methods, methods},
                         {Py_tp_getset, members},
                         {0, nullptr}};
  table_type = make_type("pd.TableBase", sizeof(TableObject), slots,
                         Py_TPFLAGS_DEFAULT | Py_TPFLAGS_BASETYPE | Py_TPFLAGS_HAVE_GC);
  check(PyModule_AddObjectRef(module, "TableBase", reinterpret_cast<PyObject *>(table_type)));
  check(PyModule_AddFunctions(module, functions));
}

}  // namespace python
