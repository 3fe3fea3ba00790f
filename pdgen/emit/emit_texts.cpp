// What introspection works from: the members of every record (layout), and the constant texts that
// go with them.
#include <fmt/format.h>

#include <algorithm>
#include <map>

#include "pdgen/emit/emit.hpp"
#include "pdgen/names.hpp"
#include "pdgen/texts/texts.hpp"

namespace pdgen {

namespace {

std::string file_top(const Program &program, const std::string &includes) {
  return origin(program, "// ") + "#pragma once\n\n" + includes + "\n";
}

// ---- Records ----

struct MemberRow {
  std::string member;
  unsigned storage;
  unsigned width;
  std::uint32_t mask;
};

std::string member_rows(const std::vector<MemberRow> &rows) {
  std::string text;
  for (const MemberRow &row : rows) {
    text += fmt::format("    {{offsetof(Record, {}), {}, {}, {}}},\n", row.member, row.storage,
                        digit_count(row.width), hex32(row.mask));
  }
  return text;
}

std::string record_shape(const std::string &name, const std::string &type,
                         const std::vector<MemberRow> &rows, const std::string &wide_masks) {
  const std::string wide =
      wide_masks.empty() ? "  static constexpr const WideMask *wide_masks = nullptr;\n"
                         : "  static constexpr WideMask wide_masks[] = {\n" + wide_masks + "  };\n";
  return expand(
      "struct $0 {\n  using Record = $1;\n  static constexpr size_t size = sizeof(Record);\n"
      "  static constexpr unsigned count = $2;\n"
      "  static constexpr RecordMember members[] = {\n$3  };\n$4};\n",
      {name, type, std::to_string(rows.size()), member_rows(rows), wide});
}

std::string empty_shape(const std::string &name) {
  return expand(
      "struct $0 {\n  static constexpr size_t size = 0;\n  static constexpr unsigned count = 0;\n"
      "};\n",
      {name});
}

std::string action_shape(const Program &program, const Action &action) {
  if (!action.has_params()) return empty_shape(action.name);
  std::vector<MemberRow> rows;
  for (const Param &param : action.params) {
    rows.push_back({param_member(param), param.storage_bytes, param.width,
                    static_cast<std::uint32_t>((std::uint64_t{1} << param.width) - 1)});
  }
  return record_shape(action.name, action_spec_type(program, action), rows, "");
}

std::string table_shape(const Program &program, const Table &table) {
  if (!table.keyed()) return empty_shape(table.name);
  std::vector<MemberRow> rows;
  std::string wide_masks;
  for (const RecordField &field : table.record) {
    rows.push_back({field.name, field.storage_bytes, field.width, member_mask(table, field)});
    if (field.storage_bytes != 16) continue;
    std::vector<std::string> bytes;
    for (const std::uint8_t byte : member_bits(table, field)) {
      bytes.push_back(fmt::format("{:#x}", byte));
    }
    wide_masks += "    {" + join(bytes, ", ") + "},\n";
  }
  return record_shape(table.name, match_spec_type(program, table), rows, wide_masks);
}

// ---- Texts ----

// A literal of several lines, split behind each newline.
std::string quoted_lines(const std::string &text) {
  std::string out;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find('\n', at), text.size() - 1) + 1;
    std::string literal = c_literal(std::string_view(text).substr(at, end - at));
    out += "\n      " + literal;
    at = end;
  }
  return out.empty() ? "\"\"" : out;
}

std::string value_members(const ValueText &value) {
  std::string out = "  static constexpr char value[] = " + c_literal(value.text) + ";\n";
  if (value.digits_at.empty()) return out;
  return out + fmt::format("  static constexpr uint16_t digits_at[] = {{{}}};\n",
                           fmt::join(value.digits_at, ", "));
}

std::string line_members(const std::string &lines, bool has_header) {
  return fmt::format(
      "  static constexpr bool has_header = {};\n  static constexpr char lines[] = {};\n",
      has_header, quoted_lines(lines));
}

std::string action_text(const Action &action) {
  std::string out = expand("struct $0 {\n  using Shape = record::action::$0;\n", {action.name});
  out += value_members(action_value(action));
  if (action.has_params()) out += line_members(action_lines(action), false);
  return out + "};\n";
}

std::string table_text(const Program &program, const Table &table) {
  std::vector<std::string> actions;
  for (const Pair &pair : table.pairs) actions.push_back("action::" + pair.action.name);
  std::string out = expand(
      "struct $0 {\n  using Layout = ::pd::table::$0;\n  using Shape = record::table::$0;\n"
      "  using Actions = ActionTexts<$1>;\n",
      {table.name, join(actions, ", ")});
  if (table.keyed()) {
    out += value_members(match_spec_value(table));
    out += line_members(match_spec_lines(program, table), true);
  }
  return out + "};\n";
}

}  // namespace

std::string emit_records(const Program &program) {
  std::string out =
      file_top(program, "#include \"p4_pd_" + program.name + ".h\"\n#include \"shapes.hpp\"\n");
  out += "namespace pd::record {\n\nnamespace action {\n\n";
  for (const Action &action : program.actions) out += action_shape(program, action);
  out += "\n}  // namespace action\n\nnamespace table {\n\n";
  for (const Table &table : program.tables) out += table_shape(program, table);
  return out + "\n}  // namespace table\n\n}  // namespace pd::record\n";
}

std::string emit_texts(const Program &program) {
  std::string out = file_top(
      program, "#include \"descriptors.hpp\"\n#include \"records.hpp\"\n#include \"value.hpp\"\n");
  out += "namespace pd::text {\n\nnamespace action {\n\n";
  for (const Action &action : program.actions) out += action_text(action);
  out += "\n}  // namespace action\n\nnamespace table {\n\n";
  for (const Table &table : program.tables) out += table_text(program, table);
  return out + "\n}  // namespace table\n\n}  // namespace pd::text\n";
}

// ---- Schemas ----

namespace {

std::string constant(const std::string &name, const std::string &text) {
  return "inline constexpr char " + name + "[] = " + c_literal(text) + ";\n";
}

// Rows of a look-up by handle, ascending.
class HandleRows {
 public:
  void add(std::uint32_t handle, const std::string &name) {
    rows_[handle] = fmt::format("    {{{0}, sizeof {1}, {1}}},\n", hex32(handle), name);
  }

  std::string text() const {
    std::string rows;
    for (const auto &row : rows_) rows += row.second;
    return expand(
        "inline constexpr HandleSchema by_handle[] = {\n$0    {0, 0, nullptr},\n};\n"
        "inline constexpr size_t handle_count = $1;\n",
        {rows, std::to_string(rows_.size())});
  }

 private:
  std::map<std::uint32_t, std::string> rows_;
};

}  // namespace

std::string emit_schemas(const Program &program) {
  std::string keys;
  std::map<std::string, std::string> shared;  // tables with the same key share its schema
  std::string actions;
  std::string tables;
  std::string profiles;
  HandleRows handles;
  for (const Table &table : program.tables) {
    tables += constant(table.name, table_schema(table));
    handles.add(table.handle, "table::" + table.name);
    if (!table.keyed()) continue;
    const std::string text = match_spec_schema(table);
    const auto [first, added] = shared.try_emplace(text, table.name);
    keys += added ? constant(table.name, text)
                  : expand("inline constexpr auto &$0 = $1;\n", {table.name, first->second});
  }
  for (const Action &action : program.actions) {
    actions += constant(action.name, action_schema(action));
  }
  for (const Profile &profile : program.profiles) {
    profiles += constant(profile.name, profile_schema(profile));
    handles.add(profile.action_data_handle, "profile::" + profile.name);
  }
  return file_top(program, "#include \"schema.hpp\"\n") +
         expand(
             "namespace pd::schema {\n\nnamespace match_spec {\n$0}\n\nnamespace action {\n$1}\n\n"
             "namespace table {\n$2}\n\nnamespace profile {\n$3}\n\n$4\n}  // namespace "
             "pd::schema\n",
             {keys, actions, tables, profiles, handles.text()});
}

}  // namespace pdgen
