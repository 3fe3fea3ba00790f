#include "python/core/tables/bulk_adder.hpp"

#include <fmt/format.h>

#include <algorithm>
#include <cstring>

#include "python/core/status.hpp"
#include "python/core/structure.hpp"

namespace python {

using tesselctl::Field;

Column BulkAdder::column(PyObject *name) {
  if (!PyUnicode_Check(name)) raise(PyExc_TypeError, "the name of a column is a str");
  std::string_view text = text_of(name);
  if (text == "priority" && kind_.ternary()) return {Column::priority, nullptr, nullptr};
  if (text == "ttl" && kind_.description().ages_entries) return {Column::ttl, nullptr, nullptr};
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

bool BulkAdder::is_in(const std::vector<Column> &columns, Column::Kind kind,
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

std::vector<Column> BulkAdder::usual_columns() const {
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

void BulkAdder::check_columns(const std::vector<Column> &columns) const {
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

void BulkAdder::store(const Column &column, PyObject *value) {
  if (column.kind == Column::priority) {
    priority_ = static_cast<uint32_t>(unsigned_of(value, 4, "priority"));
  } else if (column.kind == Column::ttl) {
    ttl_ = static_cast<uint32_t>(unsigned_of(value, 4, "ttl"));
  } else {
    store(column, field_value(*column.record, *column.field, value));
  }
}

void BulkAdder::end_row(size_t row) {
  memcpy(&keys_[used_ * key_size_], key_.data(), key_size_);
  memcpy(&parameters_[used_ * parameter_size_], row_parameters_.data(), parameter_size_);
  priorities_[used_] = priority_;
  ttls_[used_] = ttl_;
  rows_[used_] = row;
  if (++used_ == kChunk) flush();
}

void BulkAdder::flush() {
  handles_.reserve(handles_.size() + used_ > handles_.capacity()
                       ? 2 * (handles_.capacity() + kChunk)
                       : handles_.capacity());
  uint32_t status = BF_SUCCESS;
  {
    const Unlocked unlocked;
    for (size_t i = 0; i < used_ && status == BF_SUCCESS; ++i) {
      add_.set(Slot::match_spec, &keys_[i * key_size_]);
      add_.set(Slot::action_spec, &parameters_[i * parameter_size_]);
      add_.set(Slot::priority, priorities_[i]);
      add_.set(Slot::ttl, ttls_[i]);
      status = add_.run();
      if (status == BF_SUCCESS) {
        handles_.push_back(entry_);
      } else {
        refused_row_ = rows_[i];
      }
    }
  }
  used_ = 0;
  if (refused_row_) raise_status(status, fmt::format("{}, row {}", kind_.name(), *refused_row_));
}

void BulkAdder::take_back() {
  std::vector<uint32_t> left;
  {
    const Unlocked unlocked;
    for (size_t i = handles_.size(); i-- > 0;) {
      delete_.set(Slot::entry, handles_[i]);
      if (delete_.run() != BF_SUCCESS) left.push_back(handles_[i]);
    }
  }
  handles_ = std::move(left);
  used_ = 0;
}

PyObject *handle_array(const std::vector<uint32_t> &handles) {
  const Ref bytes(PyBytes_FromStringAndSize(reinterpret_cast<const char *>(handles.data()),
                                            static_cast<Py_ssize_t>(4 * handles.size())));
  const Ref view(PyMemoryView_FromObject(bytes.get()));
  return checked(PyObject_CallMethod(view.get(), "cast", "s", "I"));
}

}  // namespace python
