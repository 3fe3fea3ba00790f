// Columns of values for add_columns.
#pragma once

#include <fmt/format.h>

#include <algorithm>
#include <cstring>

#include "python/core/buffer.hpp"
#include "python/core/tables/bulk_rows.hpp"
#include "python/core/value.hpp"

namespace python {

// Whether an argument has a value for each entry: a list, a buffer, an iterator, or another object
// with a length. Networks and numbers of arrays have none.
inline bool is_column(PyObject *object) {
  if (PyUnicode_Check(object) || PyBytes_Check(object) || PyTuple_Check(object)) return false;
  if (PyIter_Check(object) != 0) return true;
  const bool has_length = PyObject_Size(object) >= 0;
  PyErr_Clear();
  return has_length;
}

// The values of a column: numbers in a buffer, objects, or one object for all rows.
class ColumnValues {
 public:
  explicit ColumnValues(PyObject *object) {
    if (!is_column(object)) {
      list_ = Ref(PyList_New(0));
      check(PyList_Append(list_.get(), object));
      is_one_ = true;
      return;
    }
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
  bool is_one() const { return is_one_; }
  bool is_list() const { return static_cast<bool>(list_); }
  // Numbers of more than 64 bits.
  bool is_wide() const { return width_ > 8; }
  // Whether rows are as long as fields of so many bits; numbers are.
  bool is_as_long(size_t bits) const { return !is_bytes_ || width_ == (bits + 7) / 8; }
  // Of a list.
  PyObject *object(size_t at) const {
    return PyList_GetItem(list_.get(), is_one_ ? 0 : static_cast<Py_ssize_t>(at));
  }
  // Of anything, as a reference of its own.
  PyObject *new_object(size_t at) const {
    if (is_list()) return Py_NewRef(object(at));
    if (!is_bytes_) return from_number(number(at));
    const auto bytes = tesselctl::to_bytes(number(at));
    return checked(PyBytes_FromStringAndSize(
        reinterpret_cast<const char *>(bytes.data()) + bytes.size() - width_,
        static_cast<Py_ssize_t>(width_)));
  }
  tesselctl::Number number(size_t at) const {
    const Py_buffer &view = buffer_.view();
    const auto *bytes =
        static_cast<const uint8_t *>(view.buf) + static_cast<Py_ssize_t>(at) * view.strides[0];
    if (is_bytes_) {
      uint8_t row[kMostBytes];
      for (size_t i = 0; i < width_; ++i) row[i] = bytes[static_cast<Py_ssize_t>(i) * step_];
      return tesselctl::from_bytes(row, width_);
    }
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
    const bool is_rows = view.ndim == 2 && format == "B" && view.shape[1] > 0 &&
                         view.shape[1] <= Py_ssize_t{kMostBytes};
    if (view.ndim != 1 && !is_rows) {
      raise(PyExc_TypeError,
            fmt::format("a column is an array of one dimension, or rows of 1 to {} bytes",
                        kMostBytes));
    }
    is_bytes_ = is_rows || format == "16s";
    if (is_bytes_) {
      width_ = static_cast<size_t>(is_rows ? view.shape[1] : view.itemsize);
      if (is_rows) step_ = view.strides[1];
    } else if (format.size() == 1 &&
               std::string_view("BHILQbhilq").find(format[0]) != format.npos) {
      width_ = static_cast<size_t>(view.itemsize);
      is_signed_ = format[0] >= 'a';
    } else {
      return false;
    }
    size_ = static_cast<size_t>(view.shape[0]);
    return true;
  }

  static constexpr size_t kMostBytes = 16;

  Buffer buffer_;
  Ref list_;
  size_t size_ = 0;
  size_t width_ = 0;
  Py_ssize_t step_ = 1;  // from a byte of a row to the next one
  bool is_bytes_ = false;
  bool is_signed_ = false;
  bool is_one_ = false;
};

// One column of add_columns: values, or values with their masks or prefix lengths.
struct NamedColumn {
  Column column;
  std::vector<ColumnValues> parts;

  size_t size() const { return parts[parts[0].is_one() ? 1 : 0].size(); }
  void store(BulkRows &table, size_t row) const {
    if (parts.size() == 1 && parts[0].is_list()) {
      table.store(column, parts[0].object(row));
    } else if (column.field != nullptr && are_numbers()) {
      table.store(column, value_of(row));
    } else {
      table.store(column, Ref(object_of(row)).get());
    }
  }

 private:
  bool are_numbers() const { return std::ranges::none_of(parts, &ColumnValues::is_list); }
  // Without objects; what is wrong is found again by way of one, which says so.
  tesselctl::FieldValue value_of(size_t row) const {
    const tesselctl::Field &field = *column.field;
    tesselctl::FieldValue value;
    value.value = parts[0].number(row);
    const bool is_lpm = field.match == tesselctl::Match::lpm;
    bool is_good = parts[0].is_as_long(field.width) && value.value.fits(field.width);
    if (parts.size() == 1) {
      value.mask = field.match == tesselctl::Match::ternary ? tesselctl::key_bits(field)
                                                            : tesselctl::low_ones(field.width);
    } else {
      const tesselctl::Number second = parts[1].number(row);
      is_good = is_good && field.match != tesselctl::Match::exact &&
                (is_lpm || parts[1].is_as_long(field.width)) &&
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
    if (parts.size() == 1) return parts[0].new_object(row);
    const Ref value(parts[0].new_object(row));
    return checked(PyTuple_Pack(2, value.get(), Ref(parts[1].new_object(row)).get()));
  }
};

// A tuple of two columns, value and mask or length, of which one may be the same for all rows.
inline bool is_pair_of_columns(PyObject *object) {
  return PyTuple_Check(object) && PyTuple_Size(object) == 2 &&
         (is_column(PyTuple_GetItem(object, 0)) || is_column(PyTuple_GetItem(object, 1)));
}

inline std::vector<ColumnValues> parts_of(PyObject *object) {
  std::vector<ColumnValues> parts;
  if (!is_pair_of_columns(object)) {
    parts.emplace_back(object);
    return parts;
  }
  for (Py_ssize_t i = 0; i < 2; ++i) parts.emplace_back(PyTuple_GetItem(object, i));
  if (parts[0].size() != parts[1].size() && !parts[0].is_one() && !parts[1].is_one()) {
    raise(PyExc_ValueError, "a column of pairs is two columns of one length");
  }
  return parts;
}

inline size_t common_size(const std::vector<NamedColumn> &columns) {
  if (columns.empty()) raise(PyExc_TypeError, "at least one column has several values");
  for (const NamedColumn &column : columns) {
    if (column.size() != columns[0].size()) {
      raise(PyExc_ValueError,
            fmt::format("columns have {} and {} values", columns[0].size(), column.size()));
    }
  }
  return columns[0].size();
}

}  // namespace python
