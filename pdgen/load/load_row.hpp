// Typed access to one row of the catalogue: each accessor fills in what it reads. It reports a
// missing key, a wrong type or a value out of its limits and then leaves the value as it was, so
// that reading goes on and all faults come to light together.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "pdgen/check/diagnostics.hpp"
#include "pdgen/load/toml_reader.hpp"
#include "pdgen/model.hpp"

namespace pdgen {

// Names that must differ from one another, such as those of all tables.
using NameScope = std::map<std::string, Place>;

// The top byte of a handle says what it is a handle of.
enum class HandleKind : std::uint32_t {
  kAny = 0,  // of a parser value set: no rule
  kTable = 0x01,
  kActionData = 0x02,
  kSelector = 0x03,
  kCounter = 0x04,
  kMeter = 0x05,
  kRegister = 0x06,
  kActionFunction = 0x20,
  kFieldList = 0x21,  // of a hash, or of a digest
  kCalculation = 0x22,
  kAlgorithm = 0x23,
};

// A row that a reference may name.
struct Candidate {
  std::string_view name;
  Place place;
  const void *row;
};

template <typename Row>
void add_rows(std::vector<Candidate> &candidates, const std::vector<Row> &rows) {
  for (const Row &row : rows) candidates.push_back({row.name, row.place, &row});
}

// Whether a reference of that name leads to a row of that one.
using Fits = bool (*)(std::string_view row, std::string_view name);

// A reference to a row of another list, which is looked up once all rows have been read.
struct Reference {
  Fault fault;              // where it stands; its message says which row has it
  std::string_view name;    // of the row that it leads to
  std::string_view wanted;  // what that one must be
  std::function<std::vector<Candidate>()> candidates;
  std::function<void(const void *row)> found;
  Fits fits = [](std::string_view row, std::string_view other) { return row == other; };
};

// What all rows of a catalogue share.
struct Reading {
  Program &program;
  Diagnostics &diagnostics;
  std::map<std::uint32_t, Handle> handles;  // no two objects share one
  std::vector<Reference> references;
  // Kinds of rows that could not all be read: what is missing among them has been reported.
  std::set<std::string> incomplete;
};

// Rows of a row of that kind: "field of the table".
std::string of_the(std::string_view kind);

// Sets the targets of references. A name that nothing has is one fault, however many rows have it.
void resolve_references(Reading &reading);

// Whether the row must have a key.
enum Need { kRequired, kOptional };

constexpr std::uint32_t kAnyNumber = 0xffffffff;

// How messages write a number: as catalogues do.
constexpr std::string_view kDecimal = "{}";
constexpr std::string_view kBits = "{:#x}";
constexpr std::string_view kHandle = "{:#010x}";

std::string hex(std::uint32_t value);

// "file:line", for messages that point at a second place.
std::string place_text(const Place &place);

class RowReader {
 public:
  // How messages name a row: by its kind, the value of its name key if it has one, and its owner:
  // "field port of table fdb".
  struct Naming {
    std::string path;      // of the row within its file: "table.key"; empty for the root
    std::string kind;      // "field"
    std::string name_key;  // "field", the key that holds the row's name; may be empty
    std::string owner;     // "table fdb"; may be empty
  };

  RowReader(const TomlValue &row, Naming naming, NameScope &siblings, Reading &reading);
  RowReader(const RowReader &) = delete;
  RowReader &operator=(const RowReader &) = delete;
  // Reports each key that no accessor has asked for, and those that the row lacks.
  ~RowReader();

  const std::string &what() const { return what_; }
  Program &program() const { return reading_.program; }

  // Whether all rows of a kind have been read, as far as they come before this one.
  bool knows(const std::string &kind) const { return !reading_.incomplete.contains(kind); }

  bool has(std::string_view key) const { return row_.find(key) != nullptr; }
  // Of the value, or of the row if it lacks the key.
  const Place &place(std::string_view key) const;
  // Nothing is said of a value whose type is wrong, nor of a row that has a misspelt key.
  template <typename... Args>
  void report(std::string_view key, fmt::format_string<Args...> message, Args &&...args) {
    if (spoilt_.contains(key)) return;
    faults_.push_back({place(key), path(key), fmt::format(message, std::forward<Args>(args)...)});
  }
  // At a place other than that of the key.
  template <typename... Args>
  void report_at(const Place &at, std::string_view key, fmt::format_string<Args...> message,
                 Args &&...args) const {
    reading_.diagnostics.report(at, path(key), message, std::forward<Args>(args)...);
  }

  // True if the value is there and right.
  bool identifier(std::string_view key, std::string &value, Need need = kRequired);
  void text(std::string_view key, std::string &value);  // printable ASCII, not empty
  bool number(std::string_view key, unsigned &value, unsigned least = 0, unsigned most = kAnyNumber,
              Need need = kRequired, std::string_view notation = kDecimal);
  bool number_of(std::string_view key, unsigned &value, std::initializer_list<unsigned> choices,
                 Need need = kRequired);
  // `object`: whose handle it is, if not the row's own.
  void handle(std::string_view key, std::uint32_t &value, HandleKind kind, std::string object = "");
  void flag(std::string_view key, bool &value);
  // A value without any rule, null if the row lacks the key.
  const TomlValue *value(std::string_view key, Need need);
  // The words of an array with their places, each of them once.
  using Word = std::pair<std::string, Place>;
  std::vector<Word> words(std::string_view key, Need need);
  // One of the names of T, of so many from the first on.
  template <typename T>
  bool choice(std::string_view key, T &value, Need need = kRequired, std::size_t first = 0,
              std::size_t count = std::dynamic_extent) {
    const auto names = std::span<const std::string_view>(kNamesOf<T>).subspan(first, count);
    const std::size_t chosen = index_of_choice(key, names, need);
    if (chosen < names.size()) value = static_cast<T>(first + chosen);
    return chosen < names.size();
  }

  // The row's own name, which must be new among its siblings, and its place.
  template <typename Row>
  void name(Row &row) {
    identifier(naming_.name_key, row.name);
    row.place = place(naming_.name_key);
    add_to_siblings(row.name, row.place);
  }
  // The same where it is the name of a row of another list.
  template <typename Row, typename T>
  void name(Row &row, Ref<T> &ref, std::string_view wanted, const std::vector<T> &list) {
    reference(naming_.name_key, ref, wanted, rows_of(list));
    row.place = ref.place;
    // Nothing is known of what it has unless it is the one that was meant.
    if (!add_to_siblings(ref.name, ref.place)) reading_.incomplete.insert(of_the(wanted));
  }

  // A row of other lists; `wanted` is what it must be.
  using Candidates = std::function<std::vector<Candidate>()>;
  template <typename T>
  void reference(std::string_view key, Ref<T> &ref, std::string_view wanted, Candidates rows,
                 Need need = kRequired) {
    ref.place = place(key);
    if (string(key, ref.name, need)) refer(key, ref, wanted, std::move(rows));
  }
  template <typename T>
  void references(std::string_view key, std::vector<Ref<T>> &refs, std::string_view wanted,
                  const Candidates &rows, Need need = kRequired) {
    for (auto &[word, at] : words(key, need)) refs.push_back({std::move(word), at, nullptr});
    for (Ref<T> &ref : refs) refer(key, ref, wanted, rows);
  }
  // Words that go with rows of other lists.
  void names(std::string_view key, std::vector<std::string> &names, std::string_view wanted,
             const Candidates &rows, Fits fits = Reference().fits, Need need = kOptional);
  // The rows of lists of the program.
  template <typename... Lists>
  static Candidates rows_of(const Lists &...lists) {
    return [&lists...] {
      std::vector<Candidate> rows;
      (add_rows(rows, lists), ...);
      return rows;
    };
  }

  // The one row under a key that may be missing.
  template <typename Row, typename Read>
  void row(std::string_view key, std::optional<Row> &row, Read read) {
    const TomlValue *given = value(key, kOptional);
    if (typed<TomlValue::Table>(key, given, "a table") == nullptr) return;
    RowReader reader(*given, naming_of(key, std::string(key), ""), siblings_, reading_);
    read(reader, row.emplace());
  }

  // The rows of an array of tables, read one by one. Rows stay where they are from then on.
  template <typename Row, typename Read>
  void rows(std::string_view key, const std::string &kind, const std::string &name_key,
            std::vector<Row> &rows, Read read, Need need = kRequired,
            NameScope *siblings = nullptr) {
    NameScope names;
    const std::vector<const TomlValue *> values = row_values(key, kind, need);
    rows.reserve(values.size());
    for (const TomlValue *row : values) {
      RowReader reader(*row, naming_of(key, kind, name_key), siblings ? *siblings : names,
                       reading_);
      read(reader, rows.emplace_back());
    }
  }

  // Nothing is known of the other keys.
  void ignore_other_keys() { ignores_others_ = true; }

 private:
  template <typename T>
  void refer(std::string_view key, Ref<T> &ref, std::string_view wanted, Candidates rows) {
    const bool is_name = key == naming_.name_key;
    const std::string &owner = is_name ? naming_.owner : what_;
    reading_.references.push_back(
        {{ref.place, path(key), owner.empty() ? "a " + naming_.kind : owner},
         ref.name,
         wanted,
         std::move(rows),
         [&ref](const void *row) { ref.target = static_cast<const T *>(row); }});
  }

  Naming naming_of(std::string_view key, std::string kind, std::string name_key) const;
  std::string path(std::string_view key) const;
  template <typename T>
  const T *typed(std::string_view key, const TomlValue *value, std::string_view wanted) {
    if (value == nullptr) return nullptr;
    const T *data = std::get_if<T>(&value->data);
    if (data == nullptr) {
      report_at(value->place, key, "{} has {} here, which must be {}", what_, value->kind_text(),
                wanted);
      spoilt_.emplace(key);
    }
    return data;
  }
  bool string(std::string_view key, std::string &value, Need need);
  template <typename T>
  std::vector<const TomlValue *> elements(std::string_view key, Need need, std::string_view verb,
                                          std::string_view kind);
  std::size_t index_of_choice(std::string_view key, std::span<const std::string_view> choices,
                              Need need);
  std::vector<const TomlValue *> row_values(std::string_view key, const std::string &kind,
                                            Need need);
  bool add_to_siblings(const std::string &name, const Place &place);
  bool report_unknown_keys();

  const TomlValue &row_;
  Naming naming_;
  std::string what_;
  NameScope &siblings_;
  Reading &reading_;
  std::vector<std::string> known_keys_;
  std::vector<std::string> missing_;           // keys that the row must have
  std::vector<Fault> faults_;                  // of its values
  std::vector<std::string> missing_kinds_;     // of rows under keys that it lacks
  std::set<std::string, std::less<>> spoilt_;  // keys whose values have a wrong type
  bool is_doubled_ = false;                    // its name is that of a sibling
  bool ignores_others_ = false;
};

}  // namespace pdgen
