// Kinds of items that a device holds: how those of one object are read from a device and written to
// one, and how they stand in images and answers. One file of tesselctl/kinds is one kind; kinds.cpp
// has the list.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <span>

#include "tesselctl/device/item.hpp"
#include "tesselctl/program/library.hpp"
#include "tesselctl/program/value_scanner.hpp"
#include "tesselctl/state/numbering.hpp"
#include "tesselctl/text/row.hpp"

namespace tesselctl {

// What becomes of an item. remove puts cells and settings back to how they are in a new device.
enum class Edit : uint8_t { add, modify, remove };

struct LoadCounts {
  uint64_t entries = 0;
  uint64_t members = 0;
  uint64_t groups = 0;
};

// Where items come from and go to, with the numbers of its members and groups.
struct Source {
  const Device &device;
  Numbering &numbering;
};
struct Target {
  const Device &device;
  Numbering &numbering;
  LoadCounts counts = {};  // of what was added
};

// What the numbers of items are: those of members or groups, or they have none.
enum class Numbered : uint8_t { no, members, groups };

// New numbers of the members or the groups of one profile; those that are missing stay.
struct Renumbering {
  Numbered what;
  std::map<uint32_t, uint32_t> numbers;

  // Replaces the number at that place of the bytes.
  void replace(Numbered of, std::span<char> bytes, size_t at = 0) const;
};

using ItemVisitor = std::function<void(const ItemView &)>;

// The items of one kind in one object: the entries of a table.
class ObjectItems {
 public:
  virtual ~ObjectItems() = default;

  // The line of an image behind its keyword, to its end. Throws Fault with the column.
  virtual void parse(ValueScanner &line, ItemBytes &item) = 0;
  virtual void print(std::string &text, const ItemView &item) const = 0;
  // In the words of commands; members and groups by number.
  virtual void add_to(Row &row, const ItemView &item) const = 0;
  // All that rows of such items may have, for Results::expect.
  virtual void add_samples_to(Row &row) const = 0;

  // Visits what the device holds, in the order of images. Throws Fault.
  virtual void read(Source &from, const ItemVisitor &visit) = 0;
  // Throws Fault at the word when the device refuses.
  virtual void write(Target &to, Edit edit, const ItemView &item, Word word) = 0;

  // The action-data table of the profile whose members or groups the items are or name, or 0.
  virtual uint32_t profile() const { return 0; }
  // Changes their numbers in an item.
  virtual void renumber(std::span<char>, std::span<char>, const Renumbering &) const {}
  // The part of a numbered item that it keeps for life.
  virtual std::string_view lasting(std::string_view) const { return {}; }
};

// When apply edits items. What others refer to comes before them and leaves behind them; while
// entries change, no ageing that ends or changes bounds their ttl.
enum class Phase : uint8_t {
  ageing_off,
  members,
  groups,
  fallback,
  entries_leave,
  entries,
  ageing,
  groups_leave,
  fallback_leaves,
  members_leave,
  cells_leave,
  cells,
};

// In a phase, the items that differ so are edited so.
struct Step {
  Phase phase;
  Edit difference;
  Edit edit = difference;
};

// Objects that have items: tables, profiles, counters.
struct ObjectKind {
  std::string_view keyword;     // of the line that opens one in images: "valueset"
  std::string_view noun;        // "value set"
  const char *(*name)(size_t);  // one after the other; null behind the last
};

struct ItemKind {
  const ObjectKind &object;
  std::string_view keyword;  // of its lines: "entry"
  std::span<const Step> steps;
  // Null when the object has no such items at all.
  std::unique_ptr<ObjectItems> (*open)(const char *object);
  Numbered numbered = Numbered::no;  // if so, the identity of an item is its number
};

// In the order of images; those of the same objects stand together.
std::span<const ItemKind *const> kinds();
// Those from that one on that have the same objects.
std::span<const ItemKind *const> kinds_of_same_objects(size_t at);

// ---- For kinds ----

template <auto Rows>
const char *row_name(size_t at) {
  const auto rows = Rows();
  return at < rows.size() ? rows[at].name : nullptr;
}

// The row of that name, which is there.
template <class Row>
const Row &need_row(std::string_view name) {
  return resolve({name, 0}, program_rows<Row>(), "object");
}

// Items with an identity and a value of fixed size.
template <class Identity, class Value>
class CellItems : public ObjectItems {
 public:
  using CellVisitor = std::function<void(const Identity &, const Value &)>;

  void parse(ValueScanner &line, ItemBytes &item) final {
    Identity identity{};
    Value value{};
    parse_cell(line, identity, value);
    store(identity, value, item);
  }
  void print(std::string &text, const ItemView &item) const final {
    print_cell(text, read_bytes<Identity>(item.identity), read_bytes<Value>(item.value));
  }
  void add_to(Row &row, const ItemView &item) const final {
    add_cell(row, read_bytes<Identity>(item.identity), read_bytes<Value>(item.value));
  }
  void add_samples_to(Row &row) const final { add_cell(row, Identity{}, Value{}); }
  void read(Source &from, const ItemVisitor &visit) final {
    ItemBytes item;
    read_cells(from, [&](const Identity &identity, const Value &value) {
      store(identity, value, item);
      visit(item.view());
    });
  }
  void write(Target &to, Edit edit, const ItemView &item, Word word) final {
    write_cell(to, edit, read_bytes<Identity>(item.identity), read_bytes<Value>(item.value), word);
  }

 protected:
  virtual void parse_cell(ValueScanner &line, Identity &identity, Value &value) const = 0;
  virtual void print_cell(std::string &text, const Identity &identity,
                          const Value &value) const = 0;
  virtual void add_cell(Row &row, const Identity &identity, const Value &value) const = 0;
  virtual void read_cells(Source &from, const CellVisitor &visit) const = 0;
  virtual void write_cell(Target &to, Edit edit, const Identity &identity, const Value &value,
                          Word word) const = 0;

 private:
  static void store(const Identity &identity, const Value &value, ItemBytes &item) {
    item.clear();
    append_bytes(item.identity, identity);
    append_bytes(item.value, value);
  }
};

// Of an object that has one such item at most.
struct NoIdentity {};

inline constexpr Step kCellSteps[] = {
    {Phase::cells_leave, Edit::remove}, {Phase::cells, Edit::modify}, {Phase::cells, Edit::add}};

}  // namespace tesselctl
