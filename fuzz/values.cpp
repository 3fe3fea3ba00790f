// Any text as a literal, a schema, a value string of a table, and the value of a field. The first
// two bytes choose the table and the field.
#include "fuzz/target.hpp"

#include "tesselctl/image_value.hpp"
#include "tesselctl/library.hpp"
#include "tesselctl/schema_value.hpp"
#include "tesselctl/value.hpp"

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

void try_literal(std::string_view text, const bindings::Record &table) {
  const Literal literal = parse_literal({text, 1});
  const std::string lines = indented_literal(literal, 60);
  require(indented_literal(parse_literal({lines, 1}), 60) == lines,
          "indented literals are literals");
  unless_fault([&] {
    const TableSchema schema = read_table_schema(literal);
    EntryWords{schema};
  });
  unless_fault([&] { read_action_schema(literal); });
  unless_fault([&] { read_profile_schema(literal); });
  const TableSchema schema = table_schema(table.name);
  Row row;
  EntryWords(schema).add_to(row, read_entry_value(literal, schema));
  row.json();
}

void try_value(std::string_view text, const Field &field) {
  const FieldValue value = parse_value(field, {text, 1});
  const std::string shown = format_value(field, value);
  require(parse_value(field, {shown, 1}) == value, "a value is read as it is shown");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
  if (size < 2) return 0;
  const bindings::Record &table = tables()[data[0] % tables().size()];
  const std::string_view text = text_of(data + 2, size - 2);
  const Shape &shape = table_shape(table);
  unless_fault([&] { try_literal(text, table); });
  unless_fault([&] {
    Row row;
    ValueScanner scanner(text, 1);
    add_entry_line(row, resolve_table({table.name, 1}), scanner);
  });
  if (shape.fields().empty()) return 0;
  unless_fault([&] { try_value(text, shape.fields()[data[1] % shape.fields().size()]); });
  return 0;
}
