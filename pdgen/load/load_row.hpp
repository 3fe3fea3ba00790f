// Typed access to one row of the catalogue: each accessor reports a missing key, a wrong type or a
// value out of its limits and then returns an empty value, so that reading goes on and all faults
// come to light together.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "pdgen/check/diagnostics.hpp"
#include "pdgen/load/toml_reader.hpp"
#include "pdgen/model.hpp"

namespace pdgen {

// A string of an array, with its place.
struct Word {
  std::string text;
  Place place;
};

// Names that must differ from one another, such as those of all tables.
class NameScope {
 public:
  // Reports `name` under `key` if it is taken. An empty name is one that could not be read.
  void add(const std::string &name, const Place &place, std::string_view key,
           Diagnostics &diagnostics);

 private:
  std::map<std::string, Place> taken_;
};

// The top byte of a handle tells what it is a handle of.
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

// All handles of a catalogue: no two objects share one.
class HandleScope {
 public:
  void add(std::uint32_t handle, const std::string &owner, const Place &place, std::string_view key,
           Diagnostics &diagnostics);
  std::vector<Handle> all() const;

 private:
  struct Holder {
    std::string owner;
    Place place;
  };
  std::map<std::uint32_t, Holder> taken_;
};

// Whether `text` can be part of a C name: [A-Za-z_][A-Za-z0-9_]*.
bool is_identifier(std::string_view text);

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

  RowReader(const TomlValue &row, Naming naming, Diagnostics &diagnostics);
  RowReader(const RowReader &) = delete;
  RowReader &operator=(const RowReader &) = delete;
  // Reports each key that no accessor has asked for.
  ~RowReader();

  const std::string &what() const { return what_; }
  Diagnostics &diagnostics() const { return diagnostics_; }

  bool has(std::string_view key) const { return row_.find(key) != nullptr; }
  // Of the value, or of the row if it lacks the key.
  const Place &place(std::string_view key) const;
  // "table.key.width" of "width".
  std::string path(std::string_view key) const;
  void report(std::string_view key, std::string message) const;

  // Required unless the name says otherwise; empty or nullopt after a fault.
  std::string identifier(std::string_view key);
  std::string text(std::string_view key);  // printable ASCII, not empty
  std::optional<std::uint32_t> number(std::string_view key, std::uint32_t least,
                                      std::uint32_t most);
  std::optional<std::uint32_t> optional_number(std::string_view key, std::uint32_t least,
                                               std::uint32_t most);
  // `object`: whose handle it is, if not the row's own.
  std::uint32_t handle(std::string_view key, HandleKind kind, HandleScope &scope,
                       std::string object = "");
  bool optional_flag(std::string_view key);
  // The index of the value in `choices`.
  std::optional<std::size_t> choice(std::string_view key,
                                    const std::vector<std::string_view> &choices);
  std::optional<std::size_t> optional_choice(std::string_view key,
                                             const std::vector<std::string_view> &choices);
  std::vector<Word> identifiers(std::string_view key);  // at least one
  std::vector<Word> optional_identifiers(std::string_view key);
  // The elements of an array of tables.
  std::vector<const TomlValue *> rows(std::string_view key);
  std::vector<const TomlValue *> optional_rows(std::string_view key);

  // The name of the row itself and its place, which must be new in the scope.
  template <typename Row>
  void name(std::string_view key, NameScope &scope, Row &row) {
    row.name = identifier(key);
    row.place = place(key);
    scope.add(row.name, row.place, path(key), diagnostics_);
  }

  template <typename T>
  Ref<T> reference(std::string_view key) {
    Ref<T> ref;
    ref.name = identifier(key);
    ref.place = place(key);
    return ref;
  }

  // Nothing is known of the other keys.
  void ignore_other_keys() { ignores_others_ = true; }

  // A value without any rule, null if the row lacks the key.
  const TomlValue *optional_value(std::string_view key);

 private:
  const TomlValue *value(std::string_view key, bool required);
  template <typename T>
  const T *typed(std::string_view key, bool required, std::string_view wanted);
  void report_wrong_type(std::string_view key, const TomlValue &value,
                         std::string_view wanted) const;
  std::optional<std::uint32_t> number_within(std::string_view key, bool required,
                                             std::uint32_t least, std::uint32_t most);
  std::optional<std::size_t> chosen(std::string_view key, bool required,
                                    const std::vector<std::string_view> &choices);
  std::vector<Word> word_list(std::string_view key, bool required);
  std::vector<const TomlValue *> row_list(std::string_view key, bool required);

  const TomlValue &row_;
  Naming naming_;
  std::string what_;
  Diagnostics &diagnostics_;
  std::vector<std::string> known_keys_;
  bool ignores_others_ = false;
};

}  // namespace pdgen
