// Any text as a value string of a table, and the value or the range of a field. The first two bytes
// choose the table and the field.
#include "fuzz/tool.hpp"

#include "tesselctl/device/table_info.hpp"
#include "tesselctl/program/value_range.hpp"
#include "tesselctl/state/kind.hpp"

using namespace tesselctl;

namespace {

template <class Read>
void unless_fault(Read read) {
  try {
    read();
  } catch (const Fault &) {
    // What every reader may say.
  }
}

// The text as a line of every kind of items of the table.
void try_items(std::string_view text, const char *table) {
  for (const ItemKind *kind : kinds()) {
    if (kind->object.keyword != "table") continue;
    const auto items = kind->open(table);
    if (!items) continue;
    unless_fault([&] {
      ItemBytes item;
      ItemBytes again;
      ValueScanner line(text, 1);
      items->parse(line, item);
      std::string shown;
      items->print(shown, item.view());
      ValueScanner shown_line(shown, 1);
      items->parse(shown_line, again);
      require(again.view() == item.view(), "an item is read as it is printed");
      Row row;
      items->add_to(row, item.view(), Naming::numbers);
      row.json();
    });
  }
}

void try_value(std::string_view text, const Field &field) {
  const FieldValue value = parse_value(field, {text, 1});
  const std::string shown = format_value(field, value);
  require(parse_value(field, {shown, 1}) == value, "a value is read as it is shown");
}

void try_range(std::string_view text, const Field &field) {
  if (!is_range(text)) return;
  const std::vector<FieldValue> values = parse_range(field, {text, 1});
  const auto &[value, mask] = values.back();
  const ValueRange range = {values.front().value, value | (~mask & low_ones(range_width(field)))};
  require(parse_range(field, {format_range(field, range), 1}) == values,
          "a range is read as it is shown");
}

}  // namespace

void try_input(std::string_view input) {
  const bindings::Record &table = tables()[take_number(input, 1) % tables().size()];
  const uint64_t chosen = take_number(input, 1);
  try_items(input, table.name);
  if (table.field_count == 0) return;
  const Field &field = table.fields[chosen % table.field_count];
  unless_fault([&] { try_value(input, field); });
  unless_fault([&] { try_range(input, field); });
}
