// The methods about many entries.
#include <fmt/format.h>

#include <optional>

#include "python/core/structure.hpp"
#include "python/core/tables/bulk_rows.hpp"
#include "python/core/tables/columns.hpp"

namespace python {

namespace {

// ---- Keyword arguments of the calls ----

bool is_named(PyObject *name, const char *wanted) {
  return PyUnicode_CompareWithASCIIString(name, wanted) == 0;
}

std::vector<Column> named_columns(BulkRows &table, PyObject *names) {
  std::vector<Column> columns;
  const Ref list(PySequence_List(names));
  for (Py_ssize_t i = 0; i < PyList_Size(list.get()); ++i) {
    columns.push_back(table.column(PyList_GetItem(list.get(), i)));
  }
  return columns;
}

// A row as a tuple or list by place, as a dict by name.
class RowReader {
 public:
  RowReader(BulkRows &table, PyObject *names, bool is_dict) : table_(table), is_dict_(is_dict) {
    if (names != nullptr && names != Py_None) {
      if (PyUnicode_Check(names)) {
        raise(PyExc_TypeError, "columns is a sequence of names, such as ('dip', 'nextHop')");
      }
      names_ = Ref(PySequence_List(names));
      columns_ = named_columns(table, names_.get());
      table.check_columns(columns_);
    } else if (!is_dict) {
      columns_ = table.usual_columns();
      table.check_columns(columns_);
    }
  }

  void read(PyObject *row) {
    if (is_dict_) {
      read_dict(row);
    } else if (PyTuple_Check(row)) {
      check_size(PyTuple_Size(row));
      for (size_t i = 0; i < columns_.size(); ++i) {
        table_.store(columns_[i], PyTuple_GetItem(row, static_cast<Py_ssize_t>(i)));
      }
    } else {
      const Ref tuple(PySequence_Tuple(row));
      read(tuple.get());
    }
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
      columns_ = named_columns(table_, names_.get());
      table_.check_columns(columns_);
    }
    check_size(PyDict_Size(row));
    for (size_t i = 0; i < columns_.size(); ++i) {
      PyObject *name = PyList_GetItem(names_.get(), static_cast<Py_ssize_t>(i));
      PyObject *value = PyDict_GetItemWithError(row, name);
      if (value == nullptr && PyErr_Occurred() == nullptr) {
        raise(PyExc_ValueError, fmt::format("a row has no {}", text_of(name)));
      }
      // What the value does when it is asked for a number may take it out of the dict.
      table_.store(columns_[i], Ref::borrowed(checked(value)).get());
    }
  }

  BulkRows &table_;
  bool is_dict_;
  Ref names_;
  std::vector<Column> columns_;
};

template <class Visit>
void for_each_row(PyObject *iterable, Visit visit) {
  const Ref rows(PyObject_GetIter(iterable));
  while (PyObject *next = PyIter_Next(rows.get())) {
    const Ref held(next);
    visit(next);
  }
  if (PyErr_Occurred() != nullptr) throw Raised{};
}

// The arguments of a call before its keywords: what entries do unless they are deleted, and rows
// where it takes any.
void check_count(Verb verb, const char *method, Py_ssize_t count, bool takes_rows) {
  const bool takes_outcome = verb != Verb::remove;
  if (count == (takes_outcome ? 1 : 0) + (takes_rows ? 1 : 0)) return;
  raise(PyExc_TypeError,
        fmt::format("{} takes {}{}{}", method, takes_outcome ? "what the entries do, and " : "",
                    takes_rows ? "rows" : "columns as keyword arguments",
                    takes_rows ? ", and then keyword arguments" : ""));
}

// Whether a keyword is about the call, not a column.
bool read_option(Verb verb, BulkRun &run, BulkRows &table, PyObject *name, PyObject *value) {
  if (verb == Verb::add && is_named(name, "keep")) {
    if (flag_of(value, "keep")) run.keep();
    return true;
  }
  if (verb == Verb::remove || !is_named(name, "meter")) return false;
  if (value != Py_None) table.set_meter(value);
  return true;
}

void stage_columns(BulkRun &run, BulkRows &table, const std::vector<NamedColumn> &columns,
                   size_t at) {
  const size_t size = common_size(columns);
  run.run([&] {
    for (size_t row = 0; row < size; ++row) {
      for (const NamedColumn &column : columns) column.store(table, row);
      run.end_row(at);
    }
  });
}

}  // namespace

template <Verb verb>
PyObject *write_rows(PyObject *self, PyObject *const *arguments, Py_ssize_t count,
                     PyObject *names) {
  return guarded([&] {
    const TableObject &object = as_table(self);
    constexpr bool kTakesOutcome = verb != Verb::remove;
    check_count(verb, "a call for rows", count, true);
    BulkRows table(verb, *object.kind, kTakesOutcome ? arguments[0] : nullptr,
                   open_session(object.session));
    BulkRun run(verb, {&table});
    PyObject *columns = nullptr;
    for (Py_ssize_t i = 0; names != nullptr && i < PyTuple_Size(names); ++i) {
      PyObject *name = PyTuple_GetItem(names, i);
      PyObject *value = arguments[count + i];
      if (is_named(name, "columns")) {
        columns = value;
      } else if (!read_option(verb, run, table, name, value)) {
        table.fix(table.column(name), value);
      }
    }
    run.run([&] {
      std::optional<RowReader> reader;
      for_each_row(arguments[count - 1], [&](PyObject *row) {
        if (!reader) reader.emplace(table, columns, PyDict_Check(row));
        reader->read(row);
        run.end_row();
      });
    });
    return run.result();
  });
}

template <Verb verb>
PyObject *write_columns(PyObject *self, PyObject *const *arguments, Py_ssize_t count,
                        PyObject *names) {
  return guarded([&] {
    const TableObject &object = as_table(self);
    check_count(verb, "a call for columns", count, false);
    BulkRows table(verb, *object.kind, verb != Verb::remove ? arguments[0] : nullptr,
                   open_session(object.session));
    BulkRun run(verb, {&table});
    std::vector<NamedColumn> columns;
    std::vector<Column> described;
    for (Py_ssize_t i = 0; names != nullptr && i < PyTuple_Size(names); ++i) {
      PyObject *name = PyTuple_GetItem(names, i);
      PyObject *value = arguments[count + i];
      if (read_option(verb, run, table, name, value)) continue;
      if (is_pair_of_columns(value) || is_column(value)) {
        described.push_back(table.column(name));
        columns.push_back({described.back(), parts_of(value)});
      } else {
        table.fix(table.column(name), value);
      }
    }
    table.check_columns(described);
    stage_columns(run, table, columns, 0);
    return run.result();
  });
}

#define PD_INSTANCES(verb)                                                                    \
  template PyObject *write_rows<verb>(PyObject *, PyObject *const *, Py_ssize_t, PyObject *); \
  template PyObject *write_columns<verb>(PyObject *, PyObject *const *, Py_ssize_t, PyObject *)
PD_INSTANCES(Verb::add);
PD_INSTANCES(Verb::replace);
PD_INSTANCES(Verb::modify);
PD_INSTANCES(Verb::remove);
#undef PD_INSTANCES

namespace {

// The routes of one kind of addresses: of the key their prefix is left, and of the action the hop.
class RouteTable {
 public:
  RouteTable(PyObject *table, PyObject *action) : RouteTable(checked_table(table), action) {}

  BulkRows &rows() { return rows_; }
  void fix(PyObject *name, PyObject *value) { rows_.fix(rows_.column(name), value); }
  void begin() {
    columns_ = rows_.usual_columns();
    for (const Column &column : columns_) {
      if (column.kind != Column::key || column.field->match == tesselctl::Match::lpm) continue;
      raise(PyExc_TypeError, fmt::format("the routes of {} also need {}=", rows_.kind().name(),
                                         column.field->label));
    }
    if (columns_.size() != 2) {
      raise(PyExc_TypeError, fmt::format("{} has other routes", rows_.kind().name()));
    }
  }
  void store(PyObject *prefix, PyObject *next_hop) {
    rows_.store(columns_[0], prefix);
    rows_.store(columns_[1], next_hop);
  }
  std::vector<NamedColumn> named(std::vector<ColumnValues> prefixes, PyObject *next_hops) const {
    std::vector<NamedColumn> named;
    named.push_back({columns_[0], std::move(prefixes)});
    named.push_back({columns_[1], parts_of(next_hops)});
    return named;
  }

 private:
  RouteTable(const TableObject &table, PyObject *action)
      : rows_(Verb::add, *table.kind, action, open_session(table.session)) {}
  static const TableObject &checked_table(PyObject *object) {
    if (PyObject_TypeCheck(object, table_type_object())) return as_table(object);
    raise(PyExc_TypeError, "add_routes takes tables");
  }

  BulkRows rows_;
  std::vector<Column> columns_;
};

// By its text, or as the objects of ipaddress say.
bool is_prefix_of_six(PyObject *prefix) {
  if (PyUnicode_Check(prefix)) return text_of(prefix).find(':') != std::string_view::npos;
  PyObject *version = PyObject_GetAttrString(prefix, "version");
  if (version == nullptr) {
    PyErr_Clear();
    raise(PyExc_TypeError, "the prefix of a route is a str or a network, not " + type_name(prefix));
  }
  return unsigned_of(Ref(version).get(), 4, "version") == 6;
}

// Whether the address of a route is one of IPv6; stores the route in the table of its kind.
bool store_route(std::array<RouteTable *, 2> tables, PyObject *route) {
  const Ref pair(PyTuple_Check(route) ? Py_NewRef(route) : PySequence_Tuple(route));
  if (PyTuple_Size(pair.get()) != 2) {
    raise(PyExc_ValueError, "a route is a prefix and a next hop");
  }
  PyObject *prefix = PyTuple_GetItem(pair.get(), 0);
  const bool is_six = is_prefix_of_six(prefix);
  tables[is_six ? 1 : 0]->store(prefix, PyTuple_GetItem(pair.get(), 1));
  return is_six;
}

}  // namespace

// (table for IPv4, table for IPv6, type of the action, routes; fields of both keys). The routes are
// an iterable of pairs, or ((addresses, lengths), next hops) as columns.
PyObject *add_routes(PyObject * /*module*/, PyObject *const *arguments, Py_ssize_t count,
                     PyObject *names) {
  return guarded([&] {
    if (count != 4) raise(PyExc_TypeError, "add_routes takes two tables, an action and routes");
    RouteTable four(arguments[0], arguments[2]);
    RouteTable six(arguments[1], arguments[2]);
    BulkRun run(Verb::add, {&four.rows(), &six.rows()});
    for (Py_ssize_t i = 0; names != nullptr && i < PyTuple_Size(names); ++i) {
      PyObject *name = PyTuple_GetItem(names, i);
      PyObject *value = arguments[count + i];
      if (is_named(name, "keep")) {
        if (flag_of(value, "keep")) run.keep();
        continue;
      }
      four.fix(name, value);
      six.fix(name, value);
    }
    four.begin();
    six.begin();
    PyObject *routes = arguments[3];
    if (is_pair_of_columns(routes) && is_pair_of_columns(PyTuple_GetItem(routes, 0))) {
      std::vector<ColumnValues> prefixes = parts_of(PyTuple_GetItem(routes, 0));
      const bool is_six = prefixes[0].is_wide();
      RouteTable &table = is_six ? six : four;
      stage_columns(run, table.rows(), table.named(std::move(prefixes), PyTuple_GetItem(routes, 1)),
                    is_six ? 1 : 0);
    } else {
      run.run([&] {
        for_each_row(routes, [&](PyObject *route) {
          run.end_row(store_route({&four, &six}, route) ? 1 : 0);
        });
      });
    }
    return checked(PyLong_FromSize_t(run.done()));
  });
}

}  // namespace python
