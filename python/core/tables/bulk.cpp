// The methods that add many entries.
#include <fmt/format.h>

#include <optional>

#include "python/core/tables/bulk_adder.hpp"
#include "python/core/tables/columns.hpp"

namespace python {

namespace {

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
  std::vector<uint32_t> handles;
  for (BulkAdder *adder : adders) {
    if (adder->refused_row()) row = *adder->refused_row();
    if (!keep) adder->take_back();
    handles.insert(handles.end(), adder->handles().begin(), adder->handles().end());
  }
  PyObject *number = PyLong_FromSize_t(row);
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

  void read(PyObject *row, size_t number) {
    if (is_dict_) {
      read_dict(row);
    } else if (PyTuple_Check(row)) {
      check_size(PyTuple_Size(row));
      for (size_t i = 0; i < columns_.size(); ++i) {
        adder_.store(columns_[i], PyTuple_GetItem(row, static_cast<Py_ssize_t>(i)));
      }
    } else {
      const Ref tuple(PySequence_Tuple(row));
      return read(tuple.get(), number);
    }
    adder_.end_row(number);
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
      // What the value does when it is asked for a number may take it out of the dict.
      adder_.store(columns_[i], Ref::borrowed(checked(value)).get());
    }
  }

  BulkAdder &adder_;
  bool is_dict_;
  Ref names_;
  std::vector<Column> columns_;
};

// Counts the rows of an iterable that were visited.
template <class Visit>
void for_each_row(PyObject *iterable, size_t &row, Visit visit) {
  const Ref rows(PyObject_GetIter(iterable));
  while (PyObject *next = PyIter_Next(rows.get())) {
    const Ref held(next);
    visit(next);
    ++row;
  }
  if (PyErr_Occurred() != nullptr) throw Raised{};
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
    size_t row = 0;
    add_all({&adder}, row, keep, [&] {
      std::optional<RowReader> reader;
      for_each_row(arguments[1], row, [&](PyObject *next) {
        if (!reader) reader.emplace(adder, columns, PyDict_Check(next));
        reader->read(next, row);
      });
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
        columns.push_back({described.back(), parts_of(value)});
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
        adder.end_row(row);
      }
    });
    return handle_array(adder.handles());
  });
}

namespace {

// The routes of one kind of addresses: of the key their prefix is left, and of the action the hop.
class RouteTable {
 public:
  RouteTable(PyObject *table, PyObject *action)
      : adder_(*checked_table(table).kind, action, open_session(as_table(table).session)) {}

  BulkAdder &adder() { return adder_; }
  void fix(PyObject *name, PyObject *value) { adder_.fix(adder_.column(name), value); }
  void begin() {
    columns_ = adder_.usual_columns();
    if (columns_.size() == 2) return;
    raise(PyExc_TypeError,
          fmt::format("the key of {} also has other fields than the prefix", adder_.kind().name()));
  }
  void add(PyObject *prefix, PyObject *next_hop, size_t row) {
    adder_.store(columns_[0], prefix);
    adder_.store(columns_[1], next_hop);
    adder_.end_row(row);
  }

 private:
  static const TableObject &checked_table(PyObject *object) {
    if (PyObject_TypeCheck(object, table_type_object())) return as_table(object);
    raise(PyExc_TypeError, "add_routes takes tables");
  }

  BulkAdder adder_;
  std::vector<Column> columns_;
};

void add_route(RouteTable &four, RouteTable &six, PyObject *route, size_t row) {
  const Ref pair(PyTuple_Check(route) ? Py_NewRef(route) : PySequence_Tuple(route));
  if (PyTuple_Size(pair.get()) != 2) {
    raise(PyExc_ValueError, "a route is a prefix and a next hop");
  }
  Ref prefix = Ref::borrowed(PyTuple_GetItem(pair.get(), 0));
  if (!PyUnicode_Check(prefix.get())) prefix = Ref(PyObject_Str(prefix.get()));
  const bool is_six = text_of(prefix.get()).find(':') != std::string_view::npos;
  (is_six ? six : four).add(prefix.get(), PyTuple_GetItem(pair.get(), 1), row);
}

}  // namespace

// (table for IPv4, table for IPv6, type of the action, routes; fields of both keys)
PyObject *add_routes(PyObject * /*module*/, PyObject *const *arguments, Py_ssize_t count,
                     PyObject *names) {
  return guarded([&] {
    if (count != 4) raise(PyExc_TypeError, "add_routes takes two tables, an action and routes");
    RouteTable four(arguments[0], arguments[2]);
    RouteTable six(arguments[1], arguments[2]);
    bool keep = false;
    for (Py_ssize_t i = 0; names != nullptr && i < PyTuple_Size(names); ++i) {
      PyObject *name = PyTuple_GetItem(names, i);
      if (is_named(name, "keep")) {
        keep = truth_of(arguments[count + i]);
        continue;
      }
      four.fix(name, arguments[count + i]);
      six.fix(name, arguments[count + i]);
    }
    four.begin();
    six.begin();
    size_t row = 0;
    add_all({&four.adder(), &six.adder()}, row, keep, [&] {
      for_each_row(arguments[3], row, [&](PyObject *route) { add_route(four, six, route, row); });
    });
    return checked(PyLong_FromSize_t(four.adder().handles().size() + six.adder().handles().size()));
  });
}

}  // namespace python
