// How many entries tables may have.
#include <fmt/format.h>

#include <array>

#include "common/nearest.hpp"
#include "tesselctl/command/topic.hpp"
#include "tesselctl/kinds/table_items.hpp"
#include "tesselctl/text/number.hpp"

namespace tesselctl {

namespace {

bool matches_capacity(const void *, std::string_view shown, Word wanted) {
  if (wanted.text == kUnlimited) return shown == wanted.text;
  return matches_number(&kMost<uint32_t>, shown, wanted);
}

}  // namespace

Row &add_capacity(Row &row, std::string_view name, uint32_t capacity) {
  std::string text = capacity == 0 ? std::string(kUnlimited) : std::to_string(capacity);
  return row.field({}, name, std::move(text), {matches_capacity});
}

Row &add_occupancy(Row &row, uint32_t entries, uint32_t capacity) {
  row.amount("entries", entries);
  return capacity == 0 ? row : row.number("percent", uint64_t{entries} * 100 / capacity);
}

namespace {

bf_status_t set_capacity(const Device &device, const TableInfo &table, uint64_t capacity) {
  Call call = device.prepare("set_property", table.name());
  call.set("property", uint64_t{PIPE_TABLE_CAPACITY}).set("value", capacity);
  return static_cast<bf_status_t>(call.set("argument", uint64_t{0}).run());
}

// "capacity 64", 0 for no limit; where it is what the program says there is none.
class Capacity : public NumberItems {
 public:
  static bool exist(const soft_table_t &table) { return table.field_count != 0; }
  explicit Capacity(const soft_table_t &table)
      : NumberItems({.columns = {{.name = "capacity", .otherwise = table.size}},
                     .identity = 0,
                     .nameless = 1}),
        table_(resolve_table({table.name, 0})) {}

 protected:
  void add_numbers(Row &row, const Numbers &capacity) const override {
    add_capacity(row, "capacity", static_cast<uint32_t>(capacity[0]));
  }
  void read_numbers(Source &from, const NumbersVisitor &visit) const override {
    const uint32_t capacity = table_capacity(from.device, table_);
    if (capacity != table_.description->size) visit({capacity});
  }
  void write_numbers(Target &to, Edit edit, const Numbers &capacity, Word word) const override {
    const bool is_own = edit == Edit::remove;
    check(set_capacity(to.device, table_, is_own ? table_.description->size : capacity[0]), word);
  }

 private:
  TableInfo table_;
};

// ---- Commands ----

void set(Context &context, const Invocation &invocation) {
  const TableLine line(context, invocation, {"capacity"});
  const Word word = line.options.need("capacity");
  if (!line.table.keyed()) {
    throw Fault(line.word, fmt::format("{} has no key, so no entries", line.table.name()));
  }
  const bool is_unlimited = word.text == kUnlimited;
  if (!is_unlimited && !parse_number(word.text)) {
    throw Fault(word, "this is neither a number nor unlimited",
                common::nearest(word.text, std::array{kUnlimited}));
  }
  const uint64_t capacity = is_unlimited ? 0 : line.options.number("capacity", 0xffffffffu, 1);
  const uint32_t entries = entry_count(context.device, line.table, line.word);
  if (capacity != 0 && capacity < entries) {
    throw Fault(word, fmt::format("the table has {} entries already", grouped(entries)));
  }
  check(set_capacity(context.device, line.table, capacity), line.word);
  Row row = line.row();
  line.done(add_capacity(row, "capacity", static_cast<uint32_t>(capacity)), "set");
}

void get(Context &context, const Invocation &invocation) {
  const TableLine line(context, invocation);
  const uint32_t capacity = table_capacity(context.device, line.table);
  Row row = line.row();
  add_capacity(row, "capacity", capacity);
  context.results.row(
      add_occupancy(row, entry_count(context.device, line.table, line.word), capacity));
}

constexpr Command kCommands[] = {
    {"table set", "TABLE capacity=N|unlimited", "sets how many entries a table may have", set,
     Kind::changes},
    {"table get", "TABLE", "prints how many entries a table may have, and has", get},
};

// Before the entries come.
constexpr Step kSteps[] = {{Phase::entries_leave, Edit::remove},
                           {Phase::entries_leave, Edit::modify},
                           {Phase::entries_leave, Edit::add}};

constexpr ItemKind kKinds[] = {{kObjectKind<soft_table_t>,
                                "capacity",
                                19,
                                kSteps,
                                {"table set"},
                                open_items<Capacity, soft_table_t>}};

}  // namespace

extern const Topic kTableTopic = {"Entries", kCommands, {}, kKinds};

}  // namespace tesselctl
