// Many entries at once: rows are encoded a chunk at a time, and added while other threads run.
#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cstring>

#include "python/core/buffer.hpp"
#include "python/core/status.hpp"
#include "python/core/structure.hpp"
#include "python/core/table.hpp"
#include "python/core/value.hpp"

namespace python {

namespace {

using tesselctl::Field;
using tesselctl::FieldValue;

constexpr size_t kChunk = 256;

// Where the values of a column go.
struct Column {
  enum Kind : uint8_t { key, parameter, priority, ttl } kind = key;
  const RecordKind *record = nullptr;
  const Field *field = nullptr;
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
  void store(const Column &column, const FieldValue &value) {
    tesselctl::store_value(*column.field, value, record_of(column));
  }
  // The row is whole. Throws when a chunk of entries could not be added.
  void end_row();
  void flush();

  size_t rows() const { return handles_.size() + used_; }
  const std::vector<uint32_t> &handles() const { return handles_; }
  // Deletes what was added, the last first; what stays are those that could not be deleted.
  void take_back();
  const TableKind &kind() const { return kind_; }

 private:
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
  bool is_in(const std::vector<Column> &columns, Column::Kind kind, const Field *field) const;

  TableKind &kind_;
  bool needs_parameters_ = false;
  Outcome outcome_;
  PlannedCall add_, delete_;
  size_t key_size_, parameter_size_;
  std::vector<uint8_t> keys_, parameters_, key_, row_parameters_;
  std::array<uint32_t, kChunk> priorities_ = {}, ttls_ = {};
  uint32_t priority_ = 0, ttl_ = 0, entry_ = 0;
  p4_pd_bytes_meter_spec_t meter_ = {};
  size_t used_ = 0;
  std::vector<Column> fixed_;
  std::vector<uint32_t> handles_;
};

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

void BulkAdder::end_row() {
  memcpy(&keys_[used_ * key_size_], key_.data(), key_size_);
  memcpy(&parameters_[used_ * parameter_size_], row_parameters_.data(), parameter_size_);
  priorities_[used_] = priority_;
  ttls_[used_] = ttl_;
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
      if (status == BF_SUCCESS) handles_.push_back(entry_);
    }
  }
  used_ = 0;
  check_status(status, fmt::format("{}, row {}", kind_.name(), handles_.size()));
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

// Handles as a memoryview of 32-bit words.
PyObject *handle_array(const std::vector<uint32_t> &handles) {
  const Ref bytes(PyBytes_FromStringAndSize(reinterpret_cast<const char *>(handles.data()),
                                            static_cast<Py_ssize_t>(4 * handles.size())));
  const Ref view(PyMemoryView_FromObject(bytes.get()));
  return checked(PyObject_CallMethod(view.get(), "cast", "s", "I"));
}

// Runs what adds, and after a fault takes back all that was added unless it is to be kept. The
// exception has the number of the row and the handles of what is there.
template <class Add>
void add_all(std::initializer_list<BulkAdder *> adders, size_t &row, bool keep, Add add) {
  PyObject *type = nullptr;
  PyObject *value = nullptr;
  PyObject *trace = nullptr;
  // Only Raised has a Python exception; others become one first.
  const int result = guarded(
      [&] {
        add();
        for (BulkAdder *adder : adders) adder->flush();
        return 0;
      },
      -1);
  if (result == 0) return;
  PyErr_Fetch(&type, &value, &trace);
  PyErr_NormalizeException(&type, &value, &trace);
  size_t added = 0;
  std::vector<uint32_t> handles;
  for (BulkAdder *adder : adders) {
    added += adder->handles().size();
    if (!keep) adder->take_back();
    handles.insert(handles.end(), adder->handles().begin(), adder->handles().end());
  }
  // A row that the device refused is behind those that it took, in one table.
  const bool is_status = PyObject_HasAttrString(value, "status") != 0;
  const size_t at = is_status && adders.size() == 1 ? added : row;
  PyObject *number = PyLong_FromSize_t(at);
  PyObject *array = guarded([&] { return handle_array(handles); });
  if (number != nullptr) PyObject_SetAttrString(value, "row", number);
  if (array != nullptr) PyObject_SetAttrString(value, "handles", array);
  PyErr_Clear();
  Py_XDECREF(number);
  Py_XDECREF(array);
  PyErr_Restore(type, value, trace);
  throw Raised{};
}

// ---- Keyword arguments of the calls ----

bool is_named(PyObject *name, const char *wanted) {
  return PyUnicode_CompareWithASCIIString(name, wanted) == 0;
}
bool truth_of(PyObject *object) {
  const int truth = PyObject_IsTrue(object);
  check(truth);
  return truth != 0;
}

std::vector<Column> named_columns(BulkAdder &adder, PyObject *names) {
  std::vector<Column> columns;
  const Ref list(PySequence_List(names));
  for (Py_ssize_t i = 0; i < PyList_Size(list.get()); ++i) {
    columns.push_back(adder.column(PyList_GetItem(list.get(), i)));
  }
  return columns;
}

// A row as a tuple or list by place, as a dict by name.
class RowReader {
 public:
  RowReader(BulkAdder &adder, PyObject *names, bool is_dict) : adder_(adder), is_dict_(is_dict) {
    if (names != nullptr && names != Py_None) {
      names_ = Ref(PySequence_List(names));
      columns_ = named_columns(adder, names_.get());
      adder.check_columns(columns_);
    } else if (!is_dict) {
      columns_ = adder.usual_columns();
      adder.check_columns(columns_);
    }
  }

  void read(PyObject *row) {
    if (is_dict_) {
      read_dict(row);
    } else if (PyTuple_Check(row)) {
      check_size(PyTuple_Size(row));
      for (size_t i = 0; i < columns_.size(); ++i) {
        adder_.store(columns_[i], PyTuple_GetItem(row, static_cast<Py_ssize_t>(i)));
      }
    } else {
      const Ref tuple(PySequence_Tuple(row));
      return read(tuple.get());
    }
    adder_.end_row();
  }

 private:
  void check_size(Py_ssize_t size) const {
    if (size == static_cast<Py_ssize_t>(columns_.size())) return;
    raise(PyExc_ValueError, fmt::format("a row has {} values, not {}", columns_.size(), size));
  }
  // All rows have the keys of the first.
  void read_dict(PyObject *row) {
    if (!PyDict_Check(row)) raise(PyExc_TypeError, "a row is a dict like the first one");
    if (!names_) {
      names_ = Ref(PyDict_Keys(row));
      columns_ = named_columns(adder_, names_.get());
      adder_.check_columns(columns_);
    }
    check_size(PyDict_Size(row));
    for (size_t i = 0; i < columns_.size(); ++i) {
      PyObject *name = PyList_GetItem(names_.get(), static_cast<Py_ssize_t>(i));
      PyObject *value = PyDict_GetItemWithError(row, name);
      if (value == nullptr && PyErr_Occurred() == nullptr) {
        raise(PyExc_ValueError, fmt::format("a row has no {}", text_of(name)));
      }
      adder_.store(columns_[i], checked(value));
    }
  }

  BulkAdder &adder_;
  bool is_dict_;
  Ref names_;
  std::vector<Column> columns_;
};

// The values of a column: numbers in a buffer, or objects.
class ColumnValues {
 public:
  ColumnValues(const Column &column, PyObject *object) : column_(column) {
    const bool is_buffer = PyObject_CheckBuffer(object) != 0 && !PyBytes_Check(object);
    if (is_buffer) {
      buffer_ = Buffer(object, PyBUF_STRIDED_RO | PyBUF_FORMAT);
      if (read_format()) return;
      buffer_ = Buffer();
    }
    list_ = Ref(PySequence_List(object));
    size_ = static_cast<size_t>(PyList_Size(list_.get()));
  }

  size_t size() const { return size_; }
  bool is_list() const { return static_cast<bool>(list_); }
  PyObject *object(size_t at) const {
    return PyList_GetItem(list_.get(), static_cast<Py_ssize_t>(at));
  }
  tesselctl::Number number(size_t at) const {
    const Py_buffer &view = buffer_.view();
    const auto *bytes =
        static_cast<const uint8_t *>(view.buf) + static_cast<Py_ssize_t>(at) * view.strides[0];
    if (width_ > 8) return tesselctl::from_bytes(bytes, width_);
    uint64_t number = 0;
    memcpy(&number, bytes, width_);
    const unsigned sign = static_cast<unsigned>(8 * width_ - 1);
    if (is_signed_ && (number >> sign & 1) != 0) {
      raise(PyExc_ValueError, fmt::format("row {}: a value is 0 or more", at));
    }
    return number;
  }

 private:
  // Whether elements are integers, or rows of bytes that are addresses.
  bool read_format() {
    const Py_buffer &view = buffer_.view();
    const std::string_view format = view.format == nullptr ? "B" : view.format;
    if (view.ndim == 2 && format == "B" && view.strides[1] == 1 && view.shape[1] == 16) {
      width_ = 16;
    } else if (view.ndim == 1 && format == "16s") {
      width_ = 16;
    } else if (view.ndim == 1 && format.size() == 1 &&
               std::string_view("BHILQbhilq").find(format[0]) != format.npos) {
      width_ = static_cast<size_t>(view.itemsize);
      is_signed_ = format[0] >= 'a';
    } else {
      return false;
    }
    size_ = static_cast<size_t>(view.shape[0]);
    return true;
  }

  Column column_;
  Buffer buffer_;
  Ref list_;
  size_t size_ = 0;
  size_t width_ = 0;
  bool is_signed_ = false;
};

// Whether an argument has a value for each entry: a list, a buffer, an iterator, or another object
// with a length. Networks and numbers of arrays have none.
bool is_column(PyObject *object) {
  if (PyUnicode_Check(object) || PyBytes_Check(object) || PyTuple_Check(object)) return false;
  if (PyIter_Check(object) != 0) return true;
  const bool has_length = PyObject_Size(object) >= 0;
  PyErr_Clear();
  return has_length;
}

// One column of add_columns: values, or values with their masks or prefix lengths.
struct NamedColumn {
  Column column;
  std::vector<ColumnValues> parts;

  size_t size() const { return parts[0].size(); }
  void store(BulkAdder &adder, size_t row) const {
    if (parts.size() == 1 && parts[0].is_list()) {
      adder.store(column, parts[0].object(row));
    } else if (column.field != nullptr && are_numbers()) {
      adder.store(column, value_of(row));
    } else {
      adder.store(column, Ref(object_of(row)).get());
    }
  }

 private:
  bool are_numbers() const { return std::ranges::none_of(parts, &ColumnValues::is_list); }
  // Without objects; what is wrong is found again by way of one, which says so.
  FieldValue value_of(size_t row) const {
    const Field &field = *column.field;
    FieldValue value;
    value.value = parts[0].number(row);
    const bool is_lpm = field.match == tesselctl::Match::lpm;
    bool is_good = value.value.fits(field.width);
    if (parts.size() == 1) {
      value.mask = field.match == tesselctl::Match::ternary ? tesselctl::key_bits(field)
                                                            : tesselctl::low_ones(field.width);
    } else {
      const tesselctl::Number second = parts[1].number(row);
      is_good = is_good && field.match != tesselctl::Match::exact &&
                (is_lpm ? second <= tesselctl::Number(field.width) : second.fits(field.width));
      value.mask = is_good && is_lpm
                       ? tesselctl::prefix_mask(static_cast<unsigned>(second.low), field.width)
                       : second;
      is_good = is_good && (value.value & ~value.mask).is_zero();
    }
    if (is_good) return value;
    return field_value(*column.record, field, Ref(object_of(row)).get());
  }
  PyObject *object_of(size_t row) const {
    const auto one = [&](const ColumnValues &part) {
      return part.is_list() ? Py_NewRef(part.object(row)) : from_number(part.number(row));
    };
    if (parts.size() == 1) return one(parts[0]);
    const Ref value(one(parts[0]));
    return checked(PyTuple_Pack(2, value.get(), Ref(one(parts[1])).get()));
  }
};

// A tuple of two columns: value and mask or length.
bool is_pair_of_columns(PyObject *object) {
  return PyTuple_Check(object) && PyTuple_Size(object) == 2 &&
         (is_column(PyTuple_GetItem(object, 0)) || is_column(PyTuple_GetItem(object, 1)));
}

std::vector<ColumnValues> parts_of(const Column &column, PyObject *object) {
  std::vector<ColumnValues> parts;
  if (!is_pair_of_columns(object)) {
    parts.emplace_back(column, object);
    return parts;
  }
  for (Py_ssize_t i = 0; i < 2; ++i) {
    PyObject *part = PyTuple_GetItem(object, i);
    if (!is_column(part)) raise(PyExc_TypeError, "a column of pairs is two columns");
    parts.emplace_back(column, part);
  }
  if (parts[0].size() != parts[1].size()) {
    raise(PyExc_ValueError, "a column of pairs is two columns of one length");
  }
  return parts;
}

size_t common_size(const std::vector<NamedColumn> &columns) {
  if (columns.empty()) raise(PyExc_TypeError, "at least one column has several values");
  for (const NamedColumn &column : columns) {
    if (column.size() != columns[0].size()) {
      raise(PyExc_ValueError,
            fmt::format("columns have {} and {} values", columns[0].size(), column.size()));
    }
  }
  return columns[0].size();
}

}  // namespace

PyObject *add_rows(PyObject *self, PyObject *const *arguments, Py_ssize_t count, PyObject *names) {
  return guarded([&] {
    const TableObject &table = as_table(self);
    if (count != 2) raise(PyExc_TypeError, "add_rows takes what the entries do, and rows");
    BulkAdder adder(*table.kind, arguments[0], open_session(table.session));
    PyObject *columns = nullptr;
    bool keep = false;
    for (Py_ssize_t i = 0; names != nullptr && i < PyTuple_Size(names); ++i) {
      PyObject *name = PyTuple_GetItem(names, i);
      PyObject *value = arguments[count + i];
      if (is_named(name, "columns")) {
        columns = value;
      } else if (is_named(name, "keep")) {
        keep = truth_of(value);
      } else if (is_named(name, "meter")) {
        adder.set_meter(value);
      } else {
        adder.fix(adder.column(name), value);
      }
    }
    const Ref rows(PyObject_GetIter(arguments[1]));
    size_t row = 0;
    add_all({&adder}, row, keep, [&] {
      std::optional<RowReader> reader;
      while (PyObject *next = PyIter_Next(rows.get())) {
        const Ref held(next);
        if (!reader) reader.emplace(adder, columns, PyDict_Check(next));
        reader->read(next);
        ++row;
      }
      if (PyErr_Occurred() != nullptr) throw Raised{};
    });
    return handle_array(adder.handles());
  });
}

PyObject *add_columns(PyObject *self, PyObject *const *arguments, Py_ssize_t count,
                      PyObject *names) {
  return guarded([&] {
    const TableObject &table = as_table(self);
    if (count != 1) raise(PyExc_TypeError, "add_columns takes what the entries do, and columns");
    BulkAdder adder(*table.kind, arguments[0], open_session(table.session));
    std::vector<NamedColumn> columns;
    std::vector<Column> described;
    bool keep = false;
    for (Py_ssize_t i = 0; names != nullptr && i < PyTuple_Size(names); ++i) {
      PyObject *name = PyTuple_GetItem(names, i);
      PyObject *value = arguments[count + i];
      if (is_named(name, "keep")) {
        keep = truth_of(value);
      } else if (is_named(name, "meter")) {
        adder.set_meter(value);
      } else if (is_pair_of_columns(value) || is_column(value)) {
        described.push_back(adder.column(name));
        columns.push_back({described.back(), parts_of(described.back(), value)});
      } else {
        adder.fix(adder.column(name), value);
      }
    }
    adder.check_columns(described);
    const size_t size = common_size(columns);
    size_t row = 0;
    add_all({&adder}, row, keep, [&] {
      for (; row < size; ++row) {
        for (const NamedColumn &column : columns) column.store(adder, row);
        adder.end_row();
      }
    });
    return handle_array(adder.handles());
  });
}

// (table for IPv4, table for IPv6, type of the action, routes; fields of both keys)
PyObject *add_routes(PyObject * /*module*/, PyObject *const *arguments, Py_ssize_t count,
                     PyObject *names) {
  return guarded([&] {
    if (count != 4) raise(PyExc_TypeError, "add_routes takes two tables, an action and routes");
    const auto make = [&](PyObject *object) {
      if (!PyObject_TypeCheck(object, table_type_object())) {
        raise(PyExc_TypeError, "add_routes takes tables");
      }
      const TableObject &table = as_table(object);
      return BulkAdder(*table.kind, arguments[2], open_session(table.session));
    };
    BulkAdder four = make(arguments[0]);
    BulkAdder six = make(arguments[1]);
    bool keep = false;
    for (Py_ssize_t i = 0; names != nullptr && i < PyTuple_Size(names); ++i) {
      PyObject *name = PyTuple_GetItem(names, i);
      if (is_named(name, "keep")) {
        keep = truth_of(arguments[count + i]);
        continue;
      }
      for (BulkAdder *adder : {&four, &six}) adder->fix(adder->column(name), arguments[count + i]);
    }
    // Of each table its prefix and the next hop are left.
    const std::vector<Column> of_four = four.usual_columns();
    const std::vector<Column> of_six = six.usual_columns();
    if (of_four.size() != 2 || of_six.size() != 2) {
      raise(PyExc_TypeError, "the keys of routes also need other fields than the prefix");
    }
    const Ref rows(PyObject_GetIter(arguments[3]));
    size_t row = 0;
    add_all({&four, &six}, row, keep, [&] {
      while (PyObject *next = PyIter_Next(rows.get())) {
        const Ref held(next);
        const Ref tuple(PyTuple_Check(next) ? Py_NewRef(next) : PySequence_Tuple(next));
        if (PyTuple_Size(tuple.get()) != 2) {
          raise(PyExc_ValueError, "a route is a prefix and a next hop");
        }
        Ref prefix = Ref::borrowed(PyTuple_GetItem(tuple.get(), 0));
        if (!PyUnicode_Check(prefix.get())) prefix = Ref(PyObject_Str(prefix.get()));
        const bool is_six = text_of(prefix.get()).find(':') != std::string_view::npos;
        BulkAdder &adder = is_six ? six : four;
        const std::vector<Column> &columns = is_six ? of_six : of_four;
        adder.store(columns[0], prefix.get());
        adder.store(columns[1], PyTuple_GetItem(tuple.get(), 1));
        adder.end_row();
        ++row;
      }
      if (PyErr_Occurred() != nullptr) throw Raised{};
    });
    return checked(PyLong_FromSize_t(four.handles().size() + six.handles().size()));
  });
}

}  // namespace python
