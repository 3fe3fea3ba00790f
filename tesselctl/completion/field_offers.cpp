#include "tesselctl/completion/field_offers.hpp"

#include <algorithm>

#include "tesselctl/program/known_numbers.hpp"
#include "tesselctl/program/value.hpp"

namespace tesselctl {

namespace {

std::string number_range(unsigned width) {
  return "0 to " + (width <= 64 ? decimal(low_ones(width).low) : hexadecimal(low_ones(width)));
}

std::string notation_help(const Field &field) {
  switch (field.notation) {
    case Notation::ipv4:
      return "10.0.0.1";
    case Notation::ipv6:
      return "2001:db8::1";
    case Notation::mac:
      return "00:11:22:33:44:55";
    default:
      return number_range(field.width);
  }
}

std::string prefix_help(const Field &field) {
  if (field.notation == Notation::ipv4) return "10.0.0.0/8";
  if (field.notation == Notation::ipv6) return "2001:db8::/32";
  return notation_help(field) + ", VALUE/LENGTH";
}

}  // namespace

std::string field_help(const Field &field, bool of_key) {
  const std::string bits = field.width == 1 ? "1 bit" : std::to_string(field.width) + " bits";
  if (!of_key) return bits + ", " + notation_help(field);
  switch (field.match) {
    case Match::lpm:
      return bits + ", prefix, " + prefix_help(field);
    case Match::ternary:
      return bits + ", ternary, " + notation_help(field) +
             ", VALUE&MASK, LOW..HIGH; may be left out";
    default:
      return bits + ", exact, " + notation_help(field);
  }
}

void offer_values(Offers &offers, const Field &field, bool of_key) {
  const size_t dots = offers.typed().find(kRange);
  if (dots != std::string_view::npos) offers.skip(dots + kRange.size());
  for (const KnownNumber &known : known_numbers(field.notation)) {
    offers.offer(known.name, decimal(known.number));
  }
  offers.hint(field_help(field, of_key));
}

namespace {

// The members that the names fill.
std::vector<const bindings::Member *> filled(const bindings::Record &record,
                                             const std::vector<std::string_view> &given) {
  std::vector<const bindings::Member *> members;
  for (const std::string_view name : given) {
    const Field *field = find_field(record, name);
    if (field != nullptr)
      members.insert(members.end(), std::begin(field->parts), std::end(field->parts));
  }
  return members;
}

template <class WordOf>
void offer_record(Offers &offers, const bindings::Record &record,
                  const std::vector<std::string_view> &given, bool of_key, WordOf word_of) {
  const std::vector<const bindings::Member *> members = filled(record, given);
  const auto offer = [&](const Field &field) {
    const auto *end = field.parts + field.part_count();
    const bool is_filled =
        std::find_first_of(field.parts, end, members.begin(), members.end()) != end;
    if (!is_filled) offers.offer(std::string(word_of(field)) + "=", field_help(field, of_key));
  };
  const size_t before = offers.count();
  for (const Field &field : record.shown()) offer(field);
  // The halves of a pair, for who asks for them by name.
  if (offers.count() != before || offers.typed().empty()) return;
  for (const Field &field : record.field_list().subspan(record.shown_count)) offer(field);
}

}  // namespace

void offer_fields(Offers &offers, const Subject &subject, const std::vector<Argument> &grammar,
                  const std::vector<std::string_view> &given) {
  if (!subject.table) return;
  std::vector<std::string_view> fields = given;
  std::erase_if(fields,
                [&](std::string_view name) { return subject.field_of(name, grammar) == nullptr; });
  // A field whose short name is a word of the grammar goes by its full name.
  offer_record(offers, *subject.table->record, fields, true, [&](const Field &field) {
    return subject.field_of(field.label, grammar) == &field ? field.label : field.name;
  });
}

void offer_parameters(Offers &offers, const bindings::Record &record,
                      const std::vector<std::string_view> &given) {
  offer_record(offers, record, given, false, [](const Field &field) { return field.label; });
}

void offer_actions(Offers &offers, const Subject &subject, std::string_view command) {
  const bool of_default = subject.table && command.starts_with("default");
  const bool of_entry = subject.table && !of_default;
  for (const soft_action_t &action : subject.actions()) {
    if (of_default && !action.may_be_default) continue;
    if (of_entry && action.default_only) continue;
    std::string parameters;
    for (const Field &field : action_record(action.name).shown()) {
      parameters += (parameters.empty() ? "" : " ") + std::string(field.label) + "=";
    }
    offers.offer(action.name, parameters.empty() ? "no parameters" : parameters);
  }
}

void offer_answer_names(Offers &offers, const Subject &subject, const char *end) {
  const TableInfo &table = *subject.table;
  std::vector<std::string_view> seen;
  const auto offer = [&](std::string_view name, std::string_view help) {
    if (std::find(seen.begin(), seen.end(), name) != seen.end()) return;
    seen.push_back(name);
    offers.offer(std::string(name) + end, help);
  };
  for (const Field &field : table.record->shown()) offer(field.label, field_help(field, true));
  for (const soft_action_t &action : subject.actions()) {
    for (const Field &field : action_record(action.name).shown()) {
      offer(field.label, field_help(field, false));
    }
  }
  offer("entry", meaning_of_name("entry"));
  if (table.has_priority()) offer("priority", meaning_of_name("priority"));
  if (table.ages()) offer("ttl", meaning_of_name("ttl"));
  if (!table.indirect()) return offer("action", meaning_of_name("action"));
  offer("member", meaning_of_name("member"));
  offer("group", meaning_of_name("group"));
}

}  // namespace tesselctl
