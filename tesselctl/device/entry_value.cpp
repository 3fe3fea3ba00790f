#include "tesselctl/device/entry_value.hpp"

#include <fmt/format.h>

namespace tesselctl {

namespace {

void append_hexadecimal(std::string &text, uint32_t value, unsigned digits, const char *names) {
  while (digits < 8 && value >> (4 * digits) != 0) ++digits;
  for (unsigned i = digits; i-- > 0;) text += names[value >> (4 * i) & 0xf];
}

// The numbers of a record as value strings have them.
void print_record(std::string &text, const bindings::Record &record, const uint8_t *bytes) {
  for (const bindings::Member &member : record.member_list()) {
    text += "0x";
    const uint8_t *at = bytes + member.offset;
    if (member.is_bytes) {
      for (size_t i = 0; i < member.storage; ++i)
        append_hexadecimal(text, at[i], 2, "0123456789ABCDEF");
    } else {
      uint32_t value = 0;
      memcpy(&value, at, member.storage);
      append_hexadecimal(text, value, (member.width + 3) / 4, "0123456789abcdef");
    }
    text += ',';
  }
}

// Bound tables: "('setMbrHdl',(0x1,)))", or ")" where the entry points at nothing.
void parse_target(ValueScanner &line, EntryHead &head) {
  if (line.accept(")")) return;
  head.outcome = line.accept("('setGrpHdl',(") ? EntryHead::kGroup : EntryHead::kMember;
  if (head.outcome == EntryHead::kMember) line.expect("('setMbrHdl',(");
  const Word word = line.here();
  const uint64_t number = line.hexadecimal();
  if (number == 0 || number > 0xffffffffu) throw Fault(word, "no member or group has this number");
  head.number = static_cast<uint32_t>(number);
  line.expect(",)))");
}

}  // namespace

Word parse_action(ValueScanner &line, const bindings::Record *&action, std::string &value) {
  line.expect("(");
  Word name = {{}, line.column() + 1};
  name.text = line.quoted();
  if (action == nullptr || action->name != name.text) {
    action = find_record(actions(), name.text);
  }
  if (action == nullptr) throw Fault(name, "no action has this name");
  line.expect(",(");
  EntryHead head;
  head.outcome = EntryHead::kAction;
  head.number = action->number;
  value.clear();
  append_bytes(value, head);
  value.resize(sizeof head + action->size);
  line.record(*action, reinterpret_cast<uint8_t *>(value.data()) + sizeof head);
  line.expect(")),");
  return name;
}

void print_action(std::string &text, std::string_view value) {
  const bindings::Record &action = action_of_number(head_of(value).number);
  text += "('";
  text += action.name;
  text += "',(";
  print_record(text, action, parameters_of(value));
  text += ")),";
}

Word parse_entry(ValueScanner &line, const TableInfo &table, const bindings::Record *&action,
                 ItemBytes &item) {
  item.clear();
  Word named;
  line.expect("((");
  const bool has_key = !line.accept("(),");
  if (has_key) {
    if (!table.keyed()) line.fail("'(),', for the table has no key");
    line.expect("( ");
    item.identity.assign(table.record->size, '\0');
    line.record(*table.record, reinterpret_cast<uint8_t *>(item.identity.data()));
    line.expect("),");
  }
  if (table.indirect()) {
    EntryHead head;
    parse_target(line, head);
    append_bytes(item.value, head);
  } else {
    named = parse_action(line, action, item.value);
    line.expect(")");
  }
  line.expect(",(");
  const ValueScanner before = line;
  const auto priority = static_cast<uint32_t>(line.decimal());
  line.expect(",True))");
  if (has_key && table.has_priority()) {
    append_bytes(item.identity, priority);
  } else if (priority != 0) {
    throw Fault(before.here(), "nothing here has a priority");
  }
  return named;
}

void print_entry(std::string &text, const TableInfo &table, const ItemView &item) {
  const EntryHead head = head_of(item.value);
  const bool has_key = !item.identity.empty();
  text += has_key ? "((( " : "(((),";
  if (has_key) {
    print_record(text, *table.record, reinterpret_cast<const uint8_t *>(item.identity.data()));
    text += "),";
  }
  if (head.outcome == EntryHead::kAction) {
    print_action(text, item.value);
  } else if (head.outcome != EntryHead::kNothing) {
    fmt::format_to(std::back_inserter(text), "('{}',({:#x},))",
                   head.outcome == EntryHead::kGroup ? "setGrpHdl" : "setMbrHdl", head.number);
  }
  const uint32_t priority = has_key ? priority_of(table, item.identity) : 0;
  text += "),(";
  fmt::format_to(std::back_inserter(text), "{}", static_cast<int32_t>(priority));
  text += ",True))";
}

}  // namespace tesselctl
