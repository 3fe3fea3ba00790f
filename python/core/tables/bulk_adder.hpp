// Entries that are added many at a time: rows are encoded a chunk at a time, and added while other
// threads run.
#pragma once

#include <array>
#include <optional>
#include <vector>

#include "python/core/tables/table.hpp"

namespace python {

// Where the values of a column go.
struct Column {
  enum Kind : uint8_t { key, parameter, priority, ttl } kind = key;
  const RecordKind *record = nullptr;
  const tesselctl::Field *field = nullptr;
};

// Adds entries of one table with one action, member or group.
class BulkAdder {
 public:
  BulkAdder(TableKind &kind, PyObject *outcome, const SessionObject &session)
      : kind_(kind),
        outcome_(outcome_of(outcome)),
        add_(kind.plan(family(), &outcome_), session),
        delete_(kind.plan("table_delete"), session),
        key_size_(std::max<size_t>(kind.key().record->size, 1)),
        parameter_size_(outcome_.action == nullptr ? 1 : outcome_.action->record->size + 1),
        keys_(kChunk * key_size_),
        parameters_(kChunk * parameter_size_) {
    add_.set(Slot::entry, &entry_);
    add_.set(Slot::meter_spec, nullptr);
    if (outcome_.kind != Slot::action) add_.set(outcome_.kind, outcome_.handle);
    // A ternary field that is left out matches anything, and its bytes are 0.
    key_.resize(key_size_);
    row_parameters_.resize(parameter_size_);
    if (outcome_.parameters != nullptr) {
      memcpy(row_parameters_.data(), outcome_.parameters, outcome_.action->record->size);
    }
  }

  // The column of that name: "priority", "ttl", a field of the key, or "ACTION.PARAMETER"; what no
  // field of the key is called may be a parameter.
  Column column(PyObject *name);
  // Those of a row without names: the fields of the key, the priority, the parameters; without
  // what has a value for all.
  std::vector<Column> usual_columns() const;
  void fix(const Column &column, PyObject *value) {
    store(column, value);
    fixed_.push_back(column);
  }
  // Throws TypeError unless columns and fixed values make whole entries.
  void check_columns(const std::vector<Column> &columns) const;

  void set_meter(PyObject *meter) {
    meter_ = read_meter(meter);
    add_.set(Slot::meter_spec, &meter_);
  }

  // Values of the row at hand, in any order.
  void store(const Column &column, PyObject *value);
  void store(const Column &column, const tesselctl::FieldValue &value) {
    tesselctl::store_value(*column.field, value, record_of(column));
  }
  // The row of that number is whole. Throws when an entry of a chunk could not be added.
  void end_row(size_t row);
  void flush();

  // The row that the device refused, if it did.
  const std::optional<size_t> &refused_row() const { return refused_row_; }
  const std::vector<uint32_t> &handles() const { return handles_; }
  // Deletes what was added, the last first; what stays are those that could not be deleted.
  void take_back();
  const TableKind &kind() const { return kind_; }

 private:
  static constexpr size_t kChunk = 256;

  const char *family() const {
    if (outcome_.kind == Slot::action) return "table_add";
    return outcome_.kind == Slot::member ? "add_entry" : "add_entry_with_selector";
  }
  // An action may be given by its type, when its parameters are in the rows.
  Outcome outcome_of(PyObject *object) {
    if (const RecordKind *action = kind_.action_of_type(object)) {
      needs_parameters_ = true;
      return {action, nullptr};
    }
    return kind_.outcome_of(object);
  }
  uint8_t *record_of(const Column &column) {
    return column.kind == Column::key ? key_.data() : row_parameters_.data();
  }
  bool is_in(const std::vector<Column> &columns, Column::Kind kind,
             const tesselctl::Field *field) const;

  TableKind &kind_;
  bool needs_parameters_ = false;
  Outcome outcome_;
  PlannedCall add_, delete_;
  size_t key_size_, parameter_size_;
  std::vector<uint8_t> keys_, parameters_, key_, row_parameters_;
  std::array<uint32_t, kChunk> priorities_ = {}, ttls_ = {};
  std::array<size_t, kChunk> rows_ = {};
  std::optional<size_t> refused_row_;
  uint32_t priority_ = 0, ttl_ = 0, entry_ = 0;
  p4_pd_bytes_meter_spec_t meter_ = {};
  size_t used_ = 0;
  std::vector<Column> fixed_;
  std::vector<uint32_t> handles_;
};

// Handles as a memoryview of 32-bit words.
PyObject *handle_array(const std::vector<uint32_t> &handles);

}  // namespace python
