// Entries that are added, changed or deleted many at a time: rows are encoded a chunk at a time,
// and the calls of a chunk made while other threads run.
#pragma once

#include <array>
#include <deque>
#include <vector>

#include "python/core/tables/table.hpp"

namespace python {

// Where the values of a column go.
struct Column {
  enum Kind : uint8_t { key, parameter, priority, ttl } kind = key;
  const RecordKind *record = nullptr;
  const tesselctl::Field *field = nullptr;
};

constexpr size_t kChunk = 256;

// Rows about one table, all with one action, member or group.
class BulkRows {
 public:
  // The outcome is null where entries are deleted.
  BulkRows(Verb verb, TableKind &kind, PyObject *outcome, const SessionObject &session);

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
    for (PlannedCall &call : calls_) call.set(Slot::meter_spec, &meter_);
  }

  // Values of the row at hand, in any order.
  void store(const Column &column, PyObject *value);
  void store(const Column &column, const tesselctl::FieldValue &value) {
    tesselctl::store_value(*column.field, value, record_of(column));
  }
  // The row at hand is whole.
  void stage();
  // The call of the next row that was staged; its status.
  uint32_t run_next();
  void forget_staged() { staged_ = next_ = 0; }
  // The entry that was added last.
  uint32_t entry() const { return entry_; }
  // Whether it is gone.
  bool take_back(uint32_t entry);
  const TableKind &kind() const { return kind_; }

 private:
  // An action may be given by its type, when its parameters are in the rows.
  Outcome outcome_of(PyObject *object, const SessionObject &session) {
    if (const RecordKind *action = kind_.action_of_type(object)) {
      needs_parameters_ = true;
      return {action, nullptr};
    }
    return kind_.outcome_of(object, session);
  }
  uint8_t *record_of(const Column &column) {
    return column.kind == Column::key ? key_.data() : row_parameters_.data();
  }
  bool is_in(const std::vector<Column> &columns, Column::Kind kind,
             const tesselctl::Field *field) const;

  TableKind &kind_;
  Verb verb_;
  bool needs_parameters_ = false;
  Outcome outcome_;
  std::deque<PlannedCall> calls_;  // and the one for entries that are there already
  PlannedCall delete_;
  size_t key_size_, parameter_size_;
  std::vector<uint8_t> keys_, parameters_, key_, row_parameters_;
  std::array<uint32_t, kChunk> priorities_ = {}, ttls_ = {};
  uint32_t priority_ = 0, ttl_ = 0, entry_ = 0;
  p4_pd_bytes_meter_spec_t meter_ = {};
  size_t staged_ = 0, next_ = 0;
  std::vector<Column> fixed_;
};

// The rows of one call, about one table or several; their calls are made in the order of the rows.
class BulkRun {
 public:
  BulkRun(Verb verb, std::vector<BulkRows *> tables)
      : is_add_(verb == Verb::add), keep_(!is_add_), tables_(std::move(tables)) {}

  // Entries that were added before a fault stay; what was changed or deleted does anyway.
  void keep() { keep_ = true; }
  void end_row(size_t table = 0);
  // Has rows staged and makes their calls. After a fault the exception has the number of its row;
  // what stays of the rows before it has been done, and nothing of those behind it.
  template <class Stage>
  void run(Stage stage) {
    if (!has_failed([&] {
          stage();
          flush();
        })) {
      return;
    }
    fail();
  }
  // What the call returns: the handles of entries that were added, else how many rows there were.
  PyObject *result() const;
  size_t done() const { return done_; }

 private:
  template <class Body>
  static bool has_failed(Body body) {
    return guarded([&] { return body(), false; }, true);
  }
  void flush();
  [[noreturn]] void fail();
  void take_back();

  bool is_add_, keep_;
  std::vector<BulkRows *> tables_;
  std::array<uint8_t, kChunk> order_ = {};  // the table of each row that is staged
  size_t staged_ = 0, done_ = 0;
  std::vector<uint32_t> handles_;
  std::vector<uint8_t> owners_;  // the table of each handle
};

// Handles as a memoryview of 32-bit words.
PyObject *handle_array(const std::vector<uint32_t> &handles);

}  // namespace python
