#include "python/core/tables/bulk_rows.hpp"

#include <fmt/format.h>

#include <algorithm>
#include <cstring>

#include "python/core/status.hpp"
#include "python/core/structure.hpp"

namespace python {

using tesselctl::Field;

namespace {

const char *family_of(Verb verb, Slot outcome) {
  static constexpr const char *kAdds[] = {"table_add", "add_entry", "add_entry_with_selector"};
  static constexpr const char *kModifies[] = {"table_modify_by_match_spec",
                                              "modify_entry_by_match_spec",
                                              "modify_entry_with_selector_by_match_spec"};
  if (verb == Verb::remove) return "table_delete_by_match_spec";
  const size_t kind = outcome == Slot::action ? 0 : outcome == Slot::member ? 1 : 2;
  return (verb == Verb::add ? kAdds : kModifies)[kind];
}

}  // namespace

BulkRows::BulkRows(Verb verb, TableKind &kind, PyObject *outcome, const SessionObject &session)
    : kind_(kind),
      verb_(verb),
      outcome_(outcome == nullptr ? Outcome{} : outcome_of(outcome, session)),
      delete_(kind.plan("table_delete"), session),
      key_size_(std::max<size_t>(kind.key().record->size, 1)),
      parameter_size_(outcome_.action == nullptr ? 1 : outcome_.action->record->size + 1),
      keys_(kChunk * key_size_),
      parameters_(kChunk * parameter_size_),
      // A ternary field that is left out matches anything, and its bytes are 0.
      key_(key_size_),
      row_parameters_(parameter_size_) {
  const auto plan = [&](Verb one) {
    calls_.emplace_back(kind.plan(family_of(one, outcome_.kind), &outcome_), session);
  };
  plan(verb == Verb::replace ? Verb::add : verb);
  if (verb == Verb::replace) plan(Verb::modify);
  for (PlannedCall &call : calls_) {
    call.set(Slot::entry, &entry_);
    call.set(Slot::meter_spec, nullptr);
    if (outcome_.kind != Slot::action) call.set(outcome_.kind, outcome_.handle);
  }
  if (outcome_.parameters != nullptr) {
    memcpy(row_parameters_.data(), outcome_.parameters, outcome_.action->record->size);
  }
}

Column BulkRows::column(PyObject *name) {
  if (!PyUnicode_Check(name)) raise(PyExc_TypeError, "the name of a column is a str");
  std::string_view text = text_of(name);
  if (text == "priority" && kind_.ternary()) return {Column::priority, nullptr, nullptr};
  if (text == "ttl" && kind_.description().ages_entries && verb_ == Verb::add) {
    return {Column::ttl, nullptr, nullptr};
  }
  const RecordKind *action = needs_parameters_ ? outcome_.action : nullptr;
  const size_t dot = text.find('.');
  if (action != nullptr && dot != text.npos && text.substr(0, dot) == action->what) {
    return {Column::parameter, action,
            &field_of(*action, Ref(python::text(text.substr(dot + 1))).get())};
  }
  if (text.ends_with('_')) text.remove_suffix(1);
  if (const Field *field = tesselctl::find_field(*kind_.key().record, text)) {
    return {Column::key, &kind_.key(), field};
  }
  if (action != nullptr) {
    if (const Field *field = tesselctl::find_field(*action->record, text)) {
      return {Column::parameter, action, field};
    }
  }
  return {Column::key, &kind_.key(), &field_of(kind_.key(), name)};
}

bool BulkRows::is_in(const std::vector<Column> &columns, Column::Kind kind,
                     const Field *field) const {
  return std::ranges::any_of(columns, [&](const Column &column) {
    if (column.kind != kind) return false;
    if (column.field == field || field == nullptr) return true;
    // Halves stand for a pair, and it for them.
    for (size_t i = 0; i < field->part_count(); ++i) {
      for (size_t j = 0; j < column.field->part_count(); ++j) {
        if (field->parts[i] == column.field->parts[j]) return true;
      }
    }
    return false;
  });
}

std::vector<Column> BulkRows::usual_columns() const {
  std::vector<Column> columns;
  const auto add = [&](Column::Kind kind, const RecordKind *record, const Field *field) {
    if (!is_in(fixed_, kind, field)) columns.push_back({kind, record, field});
  };
  for (const Field &field : kind_.key().record->shown()) add(Column::key, &kind_.key(), &field);
  if (kind_.ternary()) add(Column::priority, nullptr, nullptr);
  if (!needs_parameters_) return columns;
  for (const Field &field : outcome_.action->record->shown()) {
    add(Column::parameter, outcome_.action, &field);
  }
  return columns;
}

void BulkRows::check_columns(const std::vector<Column> &columns) const {
  if (!kind_.keyed()) {
    raise(PyExc_TypeError,
          fmt::format("{} has no key, so it has a default entry alone", kind_.name()));
  }
  std::vector<Column> all = fixed_;
  for (const Column &column : columns) {
    if (is_in(all, column.kind, column.field)) {
      raise(PyExc_TypeError,
            fmt::format("{} is given twice",
                        column.field != nullptr ? column.field->label : "priority or ttl"));
    }
    all.push_back(column);
  }
  const auto need = [&](const RecordKind &record, Column::Kind kind) {
    for (const Field &field : record.record->shown()) {
      if (field.match == tesselctl::Match::ternary || is_in(all, kind, &field)) continue;
      raise(PyExc_TypeError, fmt::format("{} also needs {}", record.what, field.label));
    }
  };
  need(kind_.key(), Column::key);
  if (needs_parameters_) need(*outcome_.action, Column::parameter);
  if (kind_.ternary() && !is_in(all, Column::priority, nullptr)) {
    raise(PyExc_TypeError,
          fmt::format("{} is a ternary table, so it needs priority", kind_.name()));
  }
}

void BulkRows::store(const Column &column, PyObject *value) {
  if (column.kind == Column::priority) {
    priority_ = static_cast<uint32_t>(unsigned_of(value, 4, "priority"));
  } else if (column.kind == Column::ttl) {
    ttl_ = static_cast<uint32_t>(unsigned_of(value, 4, "ttl"));
  } else {
    store(column, field_value(*column.record, *column.field, value));
  }
}

void BulkRows::stage() {
  memcpy(&keys_[staged_ * key_size_], key_.data(), key_size_);
  memcpy(&parameters_[staged_ * parameter_size_], row_parameters_.data(), parameter_size_);
  priorities_[staged_] = priority_;
  ttls_[staged_++] = ttl_;
}

uint32_t BulkRows::run_next() {
  const size_t at = next_++;
  uint32_t status = BF_SUCCESS;
  for (PlannedCall &call : calls_) {
    call.set(Slot::match_spec, &keys_[at * key_size_]);
    call.set(Slot::action_spec, &parameters_[at * parameter_size_]);
    call.set(Slot::priority, priorities_[at]);
    call.set(Slot::ttl, ttls_[at]);
    status = call.run();
    if (status != BF_ALREADY_EXISTS) break;
  }
  return status;
}

bool BulkRows::take_back(uint32_t entry) {
  delete_.set(Slot::entry, entry);
  const uint32_t status = delete_.run();
  return status == BF_SUCCESS || status == BF_OBJECT_NOT_FOUND;
}

void BulkRun::end_row(size_t table) {
  tables_[table]->stage();
  order_[staged_] = static_cast<uint8_t>(table);
  if (++staged_ == kChunk) flush();
}

void BulkRun::flush() {
  check(PyErr_CheckSignals());
  const size_t staged = std::exchange(staged_, 0);
  if (is_add_ && handles_.size() + staged > handles_.capacity()) {
    handles_.reserve(2 * (handles_.capacity() + kChunk));
    owners_.reserve(handles_.capacity());
  }
  uint32_t status = BF_SUCCESS;
  const BulkRows *table = nullptr;
  {
    const Unlocked unlocked;
    for (size_t i = 0; i < staged && status == BF_SUCCESS; ++i) {
      BulkRows &rows = *tables_[order_[i]];
      table = &rows;
      status = rows.run_next();
      if (status != BF_SUCCESS) break;
      ++done_;
      if (!is_add_) continue;
      handles_.push_back(rows.entry());
      owners_.push_back(order_[i]);
    }
  }
  for (BulkRows *rows : tables_) rows->forget_staged();
  if (status != BF_SUCCESS) {
    raise_status(status, fmt::format("{}, row {}", table->kind().name(), done_));
  }
}

void BulkRun::fail() {
  PyObject *type = nullptr;
  PyObject *value = nullptr;
  PyObject *trace = nullptr;
  PyErr_Fetch(&type, &value, &trace);
  // A row before the fault may be refused: then that is the fault.
  if (keep_ && has_failed([&] { flush(); })) {
    Py_XDECREF(type);
    Py_XDECREF(value);
    Py_XDECREF(trace);
    PyErr_Fetch(&type, &value, &trace);
  }
  PyErr_NormalizeException(&type, &value, &trace);
  const size_t row = done_ + staged_;
  if (!keep_) take_back();
  has_failed([&] {
    check(PyObject_SetAttrString(value, "row", Ref(PyLong_FromSize_t(row)).get()));
    if (is_add_)
      check(PyObject_SetAttrString(value, "handles",
                                   Ref(PySequence_List(Ref(handle_array(handles_)).get())).get()));
  });
  PyErr_Clear();
  PyErr_Restore(type, value, trace);
  throw Raised{};
}

// The last first; what stays are those that could not be deleted.
void BulkRun::take_back() {
  std::vector<uint32_t> left;
  const Unlocked unlocked;
  for (size_t i = handles_.size(); i-- > 0;) {
    if (!tables_[owners_[i]]->take_back(handles_[i])) left.push_back(handles_[i]);
  }
  handles_ = std::move(left);
}

PyObject *BulkRun::result() const {
  return is_add_ ? handle_array(handles_) : checked(PyLong_FromSize_t(done_));
}

PyObject *handle_array(const std::vector<uint32_t> &handles) {
  const Ref bytes(PyBytes_FromStringAndSize(reinterpret_cast<const char *>(handles.data()),
                                            static_cast<Py_ssize_t>(4 * handles.size())));
  const Ref view(PyMemoryView_FromObject(bytes.get()));
  return checked(PyObject_CallMethod(view.get(), "cast", "s", "I"));
}

}  // namespace python
