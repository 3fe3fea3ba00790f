#include "tesselctl/schema.hpp"

#include <algorithm>

#include "p4_pd_tessel_switch.h"
#include "tesselctl/call.hpp"
#include "tesselctl/library.hpp"
#include "tesselctl/trace.hpp"

namespace tesselctl {

namespace {

using Kind = Literal::Kind;

[[noreturn]] void fail(const Literal &literal, const char *message) {
  throw Fault(Word{literal.text, literal.column}, message);
}

void want(bool holds, const Literal &literal, const char *message) {
  if (!holds) fail(literal, message);
}

const std::string &text_of(const Literal &literal) {
  want(literal.kind == Kind::text, literal, "a name should stand here");
  return literal.text;
}

Number number_of(const Literal &literal) {
  want(literal.kind == Kind::number && !literal.negative, literal, "a number should stand here");
  return literal.number;
}

unsigned width_of(const Literal &literal) {
  const Number width = number_of(literal);
  want(width.high == 0 && width.low >= 1 && width.low <= 128, literal,
       "a width is a number from 1 to 128");
  return static_cast<unsigned>(width.low);
}

std::string hint_of(const Literal &literal) {
  return literal.kind == Kind::none ? std::string() : text_of(literal);
}

const std::vector<Literal> &items_of(const Literal &literal) {
  want(literal.kind == Kind::tuple, literal, "a tuple should stand here");
  return literal.items;
}

std::vector<SchemaField> read_fields(const Literal &literal) {
  std::vector<SchemaField> fields;
  for (size_t i = 0; i < items_of(literal).size(); ++i) {
    const Literal &item = literal.items[i];
    want(item.is_tuple(7), item, "a field should be a tuple of 7");
    SchemaField field;
    field.label = text_of(item.items[0]);
    field.name = text_of(item.items[1]);
    field.width = width_of(item.items[2]);
    field.key_bits = number_of(item.items[3]);
    field.hint = hint_of(item.items[4]);
    field.position = i;
    // A mask or prefix length stands right behind the field that it belongs to.
    if (!fields.empty() && fields.back().position == i - 1 && fields.back().match == Match::exact) {
      SchemaField &before = fields.back();
      if (field.name == before.name + "_mask") before.match = Match::ternary;
      if (field.name == before.name + "_prefix_length") before.match = Match::lpm;
      if (before.match != Match::exact) continue;
    }
    want(!field.key_bits.is_zero() && field.key_bits.fits(field.width), item.items[3],
         "these are no bits of the field");
    fields.push_back(std::move(field));
  }
  return fields;
}

std::vector<ActionSchema> read_actions(const Literal &literal) {
  std::vector<ActionSchema> actions;
  for (const Literal &item : items_of(literal)) actions.push_back(read_action_schema(item));
  return actions;
}

const char *family_of(SchemaKind kind) {
  if (kind == SchemaKind::table) return "table_schema";
  return kind == SchemaKind::action ? "action_schema" : "profile_schema";
}

Literal parse_schema(SchemaKind kind, std::string_view name) {
  return parse_literal({schema_text(kind, name), 1});
}

}  // namespace

Match TableSchema::match() const {
  Match match = Match::exact;
  for (const SchemaField &field : fields) {
    if (match != Match::ternary && field.match != Match::exact) match = field.match;
  }
  return match;
}

const ActionSchema *TableSchema::find_action(std::string_view action) const {
  const auto found = std::find_if(actions.begin(), actions.end(),
                                  [&](const ActionSchema &known) { return known.name == action; });
  return found == actions.end() ? nullptr : &*found;
}

SchemaKind resolve_schema(Word name) {
  std::vector<std::string_view> names;
  for (const SchemaKind kind : {SchemaKind::table, SchemaKind::profile, SchemaKind::action}) {
    if (find_export(family_of(kind), name.text) != nullptr) return kind;
    for_each_export(family_of(kind),
                    [&](const bindings::Export &known) { names.push_back(known.object); });
  }
  throw_unknown(name, "table, action or profile", names);
}

std::string schema_text(SchemaKind kind, std::string_view name) {
  // What the tool asks for itself is no call behind a command.
  const TraceScope quiet(nullptr);
  Call call(need_export(family_of(kind), name));
  if (kind == SchemaKind::action) {
    return reinterpret_cast<const char *>(static_cast<uintptr_t>(call.run()));
  }
  std::string text(P4_PD_TESSEL_SWITCH_SCHEMA_MAX, '\0');
  text.resize(static_cast<size_t>(call.set("buffer", text.data()).run()));
  return text;
}

TableSchema table_schema(std::string_view name) {
  return read_table_schema(parse_schema(SchemaKind::table, name));
}

ActionSchema action_schema(std::string_view name) {
  return read_action_schema(parse_schema(SchemaKind::action, name));
}

std::vector<ActionSchema> profile_schema(std::string_view name) {
  return read_profile_schema(parse_schema(SchemaKind::profile, name));
}

TableSchema read_table_schema(const Literal &literal) {
  want(literal.is_tuple(3) && literal.items[0].is_tuple(3), literal,
       "a table should be a tuple of head, key and actions");
  const Literal &head = literal.items[0];
  const Literal &flag = head.items[2];
  want(text_of(head.items[1]) == "mat", head.items[1], "this is no match table");
  want(flag.is_tuple(1) && flag.items[0].kind == Kind::boolean, flag,
       "True or False should stand here");
  return {.name = text_of(head.items[0]),
          .bound = flag.items[0].truth,
          .fields = read_fields(literal.items[1]),
          .number_count = literal.items[1].items.size(),
          .actions = read_actions(literal.items[2])};
}

ActionSchema read_action_schema(const Literal &literal) {
  want(literal.is_tuple(2), literal, "an action should be a tuple of name and parameters");
  ActionSchema action{text_of(literal.items[0]), {}};
  for (const Literal &item : items_of(literal.items[1])) {
    want(item.is_tuple(4), item, "a parameter should be a tuple of 4");
    action.parameters.push_back(
        {text_of(item.items[0]), hint_of(item.items[1]), width_of(item.items[2])});
  }
  return action;
}

std::vector<ActionSchema> read_profile_schema(const Literal &literal) {
  return read_actions(literal);
}

}  // namespace tesselctl
