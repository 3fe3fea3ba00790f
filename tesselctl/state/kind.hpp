// Kinds of items that a device holds: how those of one object are read from a device and written to
// one, and how they stand in images and answers. One file of tesselctl/kinds is one kind;
// topics.cpp has the list.
#pragma once

#include <bit>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <span>

#include "tesselctl/device/read_back.hpp"
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
  // The handle of the one item that is wanted, or the index of its cell. Kinds whose items have
  // neither give all.
  std::optional<uint32_t> only = {};
};
struct Target {
  const Device &device;
  Numbering &numbering;
  LoadCounts counts = {};  // of what was added
};

// New numbers of the members or the groups of one profile; those that are missing stay.
struct Renumbering {
  Numbered what;
  std::map<uint32_t, uint32_t> numbers;

  // Replaces the number at that place of the bytes.
  void replace(Numbered of, std::span<char> bytes, size_t at = 0) const;
};

using ItemVisitor = std::function<void(const ItemView &)>;

class Script;
struct ItemKind;

// What becomes of an item of an object, as commands have it.
struct ItemEdit {
  const ItemKind &kind;
  const char *object;
  Edit edit;
  std::optional<ItemView> before = {};  // nothing of a new one
  ItemView item;                        // as it is to be, or as it was
};

// The items of one kind in one object: the entries of a table.
class ObjectItems {
 public:
  virtual ~ObjectItems() = default;

  // The line of an image behind its keyword, to its end. Throws Fault with the column.
  virtual void parse(ValueScanner &line, ItemBytes &item) = 0;
  virtual void print(std::string &text, const ItemView &item) const = 0;
  // In the words of commands.
  virtual void add_to(Row &row, const ItemView &item, Naming naming) const = 0;
  // All that rows of such items may have, for Results::expect.
  virtual void add_samples_to(Row &row, Naming naming) const = 0;

  // Visits what the device holds, in the order of images; with only the one item, as long as it is
  // there. Throws Fault.
  virtual void read(Source &from, const ItemVisitor &visit) = 0;
  // Throws Fault at the word when the device refuses.
  virtual void write(Target &to, Edit edit, const ItemView &item, Word word) = 0;
  // Prints the commands that do the same.
  virtual void print_commands(Script &script, const ItemEdit &edit) const = 0;

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
  bool in_commands = true;      // whether commands name the object
};

// The commands that edit items. One that adds them modifies them too, unless another one does, and
// so it removes them, by the values that they have in a new device.
struct Verbs {
  std::string_view adds;
  std::string_view modifies = {};
  std::string_view removes = {};

  std::string_view of(Edit edit) const {
    const std::string_view other = edit == Edit::remove ? removes : modifies;
    return edit == Edit::add || other.empty() ? adds : other;
  }
};

struct ItemKind {
  const ObjectKind &object;
  std::string_view keyword;  // of its lines: "entry"
  uint32_t order;            // in images; kinds of the same objects follow one another
  std::span<const Step> steps;
  Verbs verbs;
  // Null when the object has no such items at all.
  std::unique_ptr<ObjectItems> (*open)(const char *object);
  Numbered numbered = Numbered::no;  // if so, the identity of an item is its number
};

// In the order of images.
std::span<const ItemKind *const> kinds();
// The names of the objects that have any.
std::vector<std::string_view> names_of_objects();
// Those from that one on that have the same objects.
std::span<const ItemKind *const> kinds_of_same_objects(size_t at);

// ---- For kinds ----

template <class Object>
const char *object_name(size_t at) {
  const auto rows = program_rows<Object>();
  return at < rows.size() ? rows[at].name : nullptr;
}

// The objects that the program names.
template <class Object>
inline constexpr ObjectKind kObjectKind = {kObjects<Object>.keyword, kObjects<Object>.noun,
                                           object_name<Object>};

// Items are made of the object, unless its exist() says that the object has none.
template <class Items, class Object>
std::unique_ptr<ObjectItems> open_items(const char *name) {
  const Object &object = *find_object<Object>(name);
  if constexpr (requires { Items::exist(object); }) {
    if (!Items::exist(object)) return nullptr;
  }
  return std::make_unique<Items>(object);
}

// Items that are numbers: first those of the identity, then those of the value.
class NumberItems : public ObjectItems {
 public:
  using Numbers = std::vector<uint64_t>;
  using NumbersVisitor = std::function<void(const Numbers &)>;

  // A real number is kept as the bits of a float.
  enum class Notation : uint8_t { decimal, hexadecimal, real };

  // One number, or several with commas between them.
  struct Column {
    std::string_view name;
    uint64_t least = 0;
    uint64_t limit = 0xffffffffu;
    uint64_t otherwise = 0;  // in a new device, and where a line of an image does not have it
    size_t count = 1;        // 0 for all that follow
    Notation notation = Notation::decimal;
  };
  // How many columns are the identity, and how many stand in images without their names, both from
  // the first on. what says in answers which of the object's items it is, if it has others.
  struct Layout {
    std::vector<Column> columns;
    size_t identity;
    size_t nameless;
    std::string_view what = {};
  };

  static uint64_t bits_of(float number) { return std::bit_cast<uint32_t>(number); }
  static float real_of(uint64_t bits) { return std::bit_cast<float>(static_cast<uint32_t>(bits)); }

  void parse(ValueScanner &line, ItemBytes &item) final;
  void print(std::string &text, const ItemView &item) const final;
  void add_to(Row &row, const ItemView &item, Naming) const final {
    add_numbers(row, unpacked(item));
  }
  void add_samples_to(Row &row, Naming) const final;
  void read(Source &from, const ItemVisitor &visit) final;
  void write(Target &to, Edit edit, const ItemView &item, Word word) final {
    write_numbers(to, edit, unpacked(item), word);
  }
  void print_commands(Script &script, const ItemEdit &edit) const override;

 protected:
  explicit NumberItems(Layout layout) : layout_(std::move(layout)) {}

  virtual void add_numbers(Row &row, const Numbers &numbers) const;
  virtual void read_numbers(Source &from, const NumbersVisitor &visit) const = 0;
  virtual void write_numbers(Target &to, Edit edit, const Numbers &numbers, Word word) const = 0;

 private:
  static Numbers unpacked(const ItemView &item);
  void store(const Numbers &numbers, ItemBytes &item) const;

  Layout layout_;
};

inline constexpr Step kCellSteps[] = {
    {Phase::cells_leave, Edit::remove}, {Phase::cells, Edit::modify}, {Phase::cells, Edit::add}};

}  // namespace tesselctl
